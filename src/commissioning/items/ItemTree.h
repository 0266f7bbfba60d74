#pragma once

#include "configfile/ConfigurationShape.h"

#include <QStringList>
#include <QVector>

/** One word of a path, and how the document holds what it names. */
struct SItemNode {
    const ConfigurationShape::SNode *shape = nullptr;
    /** From the element of the node around it to its own, each the first child of that name. */
    QStringList tags;
    /** The key of an entry. */
    bool isKey = false;
    /** In the order in which they are listed; of a list what each of its entries has, key first. */
    QVector<SItemNode> children;

    bool isItem() const { return shape->isItem(); }
    bool isList() const { return shape->isList(); }
    bool isAttribute() const { return shape->item.isAttribute; }
    ConfigurationShape::EKind kind() const { return shape->kind; }
    ConfigurationShape::EValue value() const { return shape->item.value; }
    /** Whether its entries have nothing but their key: they are there or not. */
    bool isListOfNames() const { return isList() && children.size() == 1; }
};

namespace ItemTree {

/** The root element; below it is what a path can begin with. Built at the first use. */
const SItemNode &root();

} // namespace ItemTree
