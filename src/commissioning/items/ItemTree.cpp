#include "commissioning/items/ItemTree.h"

#include "configfile/ShapePaths.h"

#include <algorithm>

using namespace ConfigurationShape;

namespace {

/** The names of the elements from @p parent to what @p node stands for. */
QStringList ownTags(const SNode &parent, const SNode &node)
{
    if (node.kind == EKind::ALIAS) {
        // The key of the first entry of the list that has the same element.
        const auto list = std::find_if(parent.children.begin(), parent.children.end(),
                                       [&node](const SNode &candidate) {
                                           return candidate.isList() && candidate.tag == node.tag;
                                       });
        return {list->tag, list->entryTag, list->key().tag};
    }
    if (node.kind == EKind::SINGLE_FILE) {
        return {node.tag, node.entryTag};
    }
    const bool hasElement = !node.tag.isEmpty() && !node.item.isAttribute;
    return hasElement ? QStringList(node.tag) : QStringList();
}

/** Finds @p node among the children of @p parent and of the groups in it. */
bool findTags(const SNode &parent, const SNode *node, QStringList &tags)
{
    return std::any_of(parent.children.begin(), parent.children.end(), [&](const SNode &child) {
        if (&child == node) {
            tags = ownTags(parent, child);
            return true;
        }
        const bool isFound = child.kind == EKind::GROUP && findTags(child, node, tags);
        if (isFound) {
            tags.prepend(child.tag);
        }
        return isFound;
    });
}

SItemNode made(const SNode &shape, const SNode &around)
{
    SItemNode node;
    node.shape = &shape;
    findTags(around, &shape, node.tags);
    for (const SNode *const child : ShapePaths::below(shape)) {
        node.children.append(made(*child, shape));
    }
    return node;
}

} // namespace

const SItemNode &ItemTree::root()
{
    static const SItemNode node = [] {
        SItemNode result;
        result.shape = &ConfigurationShape::root();
        for (const SNode *const child : ShapePaths::top()) {
            result.children.append(made(*child, *result.shape));
        }
        return result;
    }();
    return node;
}
