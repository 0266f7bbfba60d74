#include "configfile/ElementOrder.h"

#include "configfile/ConfigurationShape.h"

#include <QDomDocument>
#include <QHash>
#include <QStringList>

using namespace ConfigurationShape;

namespace {

/** By the name of an element those of its children. */
using Order = QHash<QString, QStringList>;

void addChildren(const SNode &node, const QString &tag, Order &order);

/** An element that stands in several places, like "File", holds most in one of them. */
void addElement(const QString &tag, const QStringList &children, Order &order)
{
    if (children.size() > order.value(tag).size()) {
        order.insert(tag, children);
    }
}

/** @return the name of the child that its parent gets */
QString addNode(const SNode &node, Order &order)
{
    const bool hasEntries = node.kind == EKind::LIST || node.kind == EKind::SINGLE_FILE;
    if (hasEntries) {
        addChildren(node, node.entryTag, order);
    } else if (node.kind == EKind::GROUP) {
        addChildren(node, node.tag, order);
    }
    if (!node.tag.isEmpty() && hasEntries) {
        addElement(node.tag, {node.entryTag}, order);
    }
    return node.tag.isEmpty() ? node.entryTag : node.tag;
}

void addChildren(const SNode &node, const QString &tag, Order &order)
{
    QStringList tags;
    for (const SNode &child : node.children) {
        if (!child.item.isAttribute) {
            tags.append(addNode(child, order));
        }
    }
    tags.removeDuplicates();
    addElement(tag, tags, order);
}

const Order &order()
{
    static const Order order = [] {
        Order result;
        addNode(root(), result);
        return result;
    }();
    return order;
}

/** The node before which a new child @p tag of @p parent stands; null for the end. */
QDomNode nodeBehind(const QString &tag, const QDomElement &parent)
{
    const QStringList tags = order().value(parent.tagName());
    const int place = tags.indexOf(tag);
    if (place < 0) {
        return QDomNode();
    }
    QDomNode behind = parent.firstChildElement();
    while (!behind.isNull() && tags.indexOf(behind.nodeName()) <= place) {
        behind = behind.nextSiblingElement();
    }
    while (behind.previousSibling().isComment()) {
        behind = behind.previousSibling();
    }
    return behind;
}

} // namespace

QDomElement ElementOrder::child(const QString &tag, QDomElement parent)
{
    QDomElement element = parent.firstChildElement(tag);
    if (!element.isNull() || parent.isNull()) {
        return element;
    }
    const QDomNode behind = nodeBehind(tag, parent);
    element = parent.ownerDocument().createElement(tag);
    // A null node would put it first.
    if (behind.isNull()) {
        parent.appendChild(element);
    } else {
        parent.insertBefore(element, behind);
    }
    return element;
}
