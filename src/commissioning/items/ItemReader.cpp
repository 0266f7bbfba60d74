#include "commissioning/items/ItemReader.h"

#include "commissioning/items/ItemPaths.h"
#include "commissioning/Texts.h"

using namespace ConfigurationShape;
using ConfigurationItemsTexts::Texts;
using ItemPath::joined;

namespace {

/** Whether @p element has the item, which is @p node. */
bool hasItem(const SItemNode &node, const QDomElement &element)
{
    return node.isAttribute() ? element.hasAttribute(node.shape->tag) : !element.isNull();
}

} // namespace

ItemReader::ItemReader(const CDeviceConfigurationFile10 &file) : m_file(file), m_finder(file) { }

bool ItemReader::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

bool ItemReader::failWithoutValue(const SItemPlace &place)
{
    return fail(Texts::tr("%1: this path does not lead to a single value").arg(place.path));
}

bool ItemReader::failAbsent(const SItemPlace &place)
{
    return fail(Texts::tr("%1: the configuration does not contain this item").arg(place.path));
}

bool ItemReader::find(const QString &path, SItemPlace &place, bool entryMayBeAbsent)
{
    const bool isFound = m_finder.find(path, place, entryMayBeAbsent);
    m_errorText = m_finder.errorText();
    return isFound;
}

QList<ItemReader::SItem> ItemReader::items()
{
    m_errorText.clear();
    QList<SItem> result;
    listAll({&result, nullptr});
    return result;
}

QStringList ItemReader::entries()
{
    m_errorText.clear();
    QStringList result;
    listAll({nullptr, &result});
    return result;
}

QList<ItemReader::SItem> ItemReader::items(const QString &path)
{
    QList<SItem> result;
    SItemPlace place;
    if (find(path, place)) {
        const bool isOptional = place.node->isItem() || place.node->kind() == EKind::SINGLE_FILE;
        if (isOptional && !place.isThere()) {
            failAbsent(place);
        } else {
            listPlace(place, {&result, nullptr});
        }
    }
    return result;
}

bool ItemReader::contains(const QString &path)
{
    SItemPlace place;
    return find(path, place) && (place.isThere() || failAbsent(place));
}

bool ItemReader::value(const QString &path, QString &value)
{
    SItemPlace place;
    if (!find(path, place)) {
        return false;
    }
    if (!place.hasValue()) {
        return failWithoutValue(place);
    }
    if (!place.isThere()) {
        return failAbsent(place);
    }
    value = text(place);
    return true;
}

QDomElement ItemReader::element(const QString &path)
{
    SItemPlace place;
    return find(path, place) ? place.element() : QDomElement();
}

StartOptions ItemReader::options(const SItemPlace &place) const
{
    return m_finder.options(place.element());
}

QString ItemReader::text(const SItemPlace &place) const
{
    if (place.option >= 0) {
        const StartOptions::SOption option = options(place).options().at(place.option);
        return place.isEntry ? option.argument : option.name();
    }
    if (place.isEntry) {
        return QString();
    }
    const QDomElement element = place.element();
    return place.node->isAttribute() ? element.attribute(place.node->shape->tag)
                                     : m_file.getNodeValue(element);
}

void ItemReader::listAll(const SLists &lists) const
{
    listChildren(ItemTree::root(), m_file.domDocument().documentElement(), QString(), lists);
}

void ItemReader::listPlace(const SItemPlace &place, const SLists &lists) const
{
    if (place.option >= 0) {
        lists.items->append({place.path, text(place)});
    } else if (place.isEntry) {
        listEntry(*place.node, place.element(), place.path, lists);
    } else {
        listNode(*place.node, place.element(), place.path, lists);
    }
}

void ItemReader::listNode(const SItemNode &node, const QDomElement &element, const QString &path,
                          const SLists &lists) const
{
    switch (node.kind()) {
    case EKind::GROUP:
    case EKind::SINGLE_FILE:
        listChildren(node, element, path, lists);
        break;
    case EKind::LIST:
        listEntries(node, element, path, lists);
        break;
    case EKind::OPTIONS:
        listOptions(element, path, lists);
        break;
    case EKind::ITEM:
    case EKind::ALIAS:
        if (lists.items != nullptr && hasItem(node, element)) {
            lists.items->append({path,
                                 node.isAttribute() ? element.attribute(node.shape->tag)
                                                    : m_file.getNodeValue(element)});
        }
        break;
    }
}

void ItemReader::listChildren(const SItemNode &node, const QDomElement &element,
                              const QString &path, const SLists &lists) const
{
    for (const SItemNode &child : node.children) {
        if (!child.isKey() && ItemFinder::canHave(element, child)) {
            QDomElement childElement = element;
            for (const QString &tag : child.tags) {
                childElement = childElement.firstChildElement(tag);
            }
            listNode(child, childElement, joined(path, child.shape->word), lists);
        }
    }
}

void ItemReader::listEntries(const SItemNode &list, const QDomElement &element, const QString &path,
                             const SLists &lists) const
{
    ItemPaths paths(path);
    for (const QDomElement &entry : m_finder.entries(list, element)) {
        listEntry(list, entry, paths.next(m_finder.key(list, entry)), lists);
    }
}

void ItemReader::listEntry(const SItemNode &list, const QDomElement &entry, const QString &path,
                           const SLists &lists) const
{
    if (lists.entries != nullptr) {
        lists.entries->append(path);
    }
    if (lists.items != nullptr && list.isListOfNames()) {
        lists.items->append({path, QString()});
    }
    listChildren(list, entry, path, lists);
}

void ItemReader::listOptions(const QDomElement &element, const QString &path,
                             const SLists &lists) const
{
    ItemPaths paths(path);
    for (const StartOptions::SOption &option : m_finder.options(element).options()) {
        const QString optionPath = paths.next(option.name());
        if (lists.entries != nullptr) {
            lists.entries->append(optionPath);
        }
        if (lists.items != nullptr) {
            lists.items->append({optionPath, option.argument});
        }
    }
}
