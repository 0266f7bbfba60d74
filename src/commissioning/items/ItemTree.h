#pragma once

#include "configfile/ConfigurationShape.h"

#include <QStringList>
#include <QVector>

#include <algorithm>

/** One word of a path, and how the document holds what it names. */
struct SItemNode {
    const ConfigurationShape::SNode *shape = nullptr;
    /** From the element of the node around it to its own, each the first child of that name. */
    QStringList tags;
    /** In the order in which they are listed; of a list what each of its entries has. */
    QVector<SItemNode> children;

    bool isItem() const { return shape->isItem(); }
    bool isList() const { return shape->isList(); }
    bool isKey() const { return shape->isKey(); }
    bool isAttribute() const { return shape->item.isAttribute; }
    ConfigurationShape::EKind kind() const { return shape->kind; }
    ConfigurationShape::EValue value() const { return shape->item.value; }
    /** Whether its entries have nothing but their key: they are there or not. */
    bool isListOfNames() const { return isList() && children.size() == 1; }
    /** Of a list: the child that is the key of an entry. */
    const SItemNode &key() const
    {
        return *std::find_if(children.begin(), children.end(),
                             [](const SItemNode &child) { return child.isKey(); });
    }
};

namespace ItemTree {

/** The root element; below it is what a path can begin with. Built at the first use. */
const SItemNode &root();

} // namespace ItemTree
