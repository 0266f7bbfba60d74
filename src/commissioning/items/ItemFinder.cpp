#include "commissioning/items/ItemFinder.h"

#include "commissioning/items/ItemTexts.h"
#include "commissioning/items/NearestName.h"
#include "elements/DriveNumbers.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"

#include <algorithm>

using namespace ConfigurationShape;
using ItemPath::joined;

namespace {

QDomElement followed(QDomElement element, const QStringList &tags)
{
    for (const QString &tag : tags) {
        element = element.firstChildElement(tag);
    }
    return element;
}

/** The next element behind @p element in the document, inside @p top; null at the end. */
QDomElement nextInside(const QDomElement &top, const QDomElement &element)
{
    const QDomElement child = element.firstChildElement();
    if (!child.isNull()) {
        return child;
    }
    for (QDomElement current = element; current != top;
         current = current.parentNode().toElement()) {
        const QDomElement sibling = current.nextSiblingElement();
        if (!sibling.isNull()) {
            return sibling;
        }
    }
    return QDomElement();
}

} // namespace

QDomElement SItemPlace::element() const
{
    return followed(anchor, tags);
}

bool SItemPlace::isThere() const
{
    const QDomElement own = element();
    if (node->isAttribute()) {
        return own.hasAttribute(node->shape->tag);
    }
    return node->kind() == EKind::SINGLE_FILE ? own.hasChildNodes() : !own.isNull();
}

ItemFinder::ItemFinder(const CDeviceConfigurationFile10 &file) : m_file(file) { }

bool ItemFinder::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

bool ItemFinder::find(const QString &path, SItemPlace &place, bool entryMayBeAbsent)
{
    m_errorText.clear();
    place = SItemPlace();
    place.node = &ItemTree::root();
    place.anchor = m_file.domDocument().documentElement();
    if (place.anchor.isNull()) {
        return fail(ItemTexts::tr("There is no configuration."));
    }
    QList<SItemPathStep> steps;
    QString reason;
    if (!ItemPath::parse(path, steps, reason)) {
        return fail(reason);
    }
    for (int i = 0; i < steps.size(); ++i) {
        if (!step(steps.at(i), entryMayBeAbsent && i + 1 == steps.size(), place)) {
            return false;
        }
    }
    return true;
}

bool ItemFinder::step(const SItemPathStep &given, bool entryMayBeAbsent, SItemPlace &place)
{
    const QString path = joined(place.path, given.text());
    if (place.node->isList() && !place.isEntry) {
        return fail(ItemTexts::tr("%1: an entry of the list must be named, as in %2")
                        .arg(path, SItemPathStep{place.path, QStringLiteral("…"), 1, true}.text()));
    }
    const auto &children = place.node->children;
    const auto child = std::find_if(children.cbegin(), children.cend(), [&](const SItemNode &node) {
        return node.shape->word == given.word;
    });
    if (child == children.cend()) {
        return failUnknownWord(place, path, given.word);
    }
    if (!canHave(place.element(), *child)) {
        return fail(
            ItemTexts::tr("%1: only a drive of the type KD2_drive has this file").arg(path));
    }
    const QString listPath = joined(place.path, given.word);
    place.list = place.isEntry ? place.node : nullptr;
    place.node = &*child;
    place.path = path;
    place.isEntry = given.hasKey;
    if (place.option < 0) {
        place.tags += child->tags;
    }
    if (!given.hasKey) {
        return true;
    }
    place.listPath = listPath;
    return enterList(given, entryMayBeAbsent, place);
}

bool ItemFinder::enterList(const SItemPathStep &given, bool entryMayBeAbsent, SItemPlace &place)
{
    if (!place.node->isList()) {
        return fail(ItemTexts::tr("%1: %2 is no list, nothing can stand in brackets behind it")
                        .arg(place.path, given.word));
    }
    place.entry = given;
    if (place.node->shape->entry == EEntry::DRIVE) {
        place.entry.key = DriveNumbers::key(given.key);
        place.path = place.entry.text();
    }
    const bool isFound = place.node->kind() == EKind::OPTIONS ? findOption(place.entry, place)
                                                              : findEntry(place.entry, place);
    place.isAbsent = !isFound;
    return isFound || entryMayBeAbsent
        || fail(ItemTexts::missingEntry(place.node->shape->entry, place.path));
}

bool ItemFinder::findOption(const SItemPathStep &wanted, SItemPlace &place) const
{
    const QList<StartOptions::SOption> all = options(place.element()).options();
    int left = wanted.occurrence;
    for (int i = 0; i < all.size() && left > 0; ++i) {
        left -= all.at(i).name() == wanted.key ? 1 : 0;
        place.option = left == 0 ? i : -1;
    }
    return left == 0;
}

bool ItemFinder::findEntry(const SItemPathStep &wanted, SItemPlace &place) const
{
    const SItemNode &list = *place.node;
    int left = wanted.occurrence;
    QDomElement found;
    visitCandidates(list, place.element(), [&](const QDomElement &candidate) {
        // Its key first: to take a whole entry apart costs more.
        if (key(list, candidate) == wanted.key && isEntry(list, candidate)) {
            --left;
            found = candidate;
        }
        return left > 0;
    });
    if (left == 0) {
        place.anchor = found;
        place.tags.clear();
    }
    return left == 0;
}

QVector<QDomElement> ItemFinder::entries(const SItemNode &list, const QDomElement &element) const
{
    QVector<QDomElement> result;
    visitCandidates(list, element, [&](const QDomElement &candidate) {
        if (isEntry(list, candidate)) {
            result.append(candidate);
        }
        return true;
    });
    return result;
}

QString ItemFinder::key(const SItemNode &list, const QDomElement &entry) const
{
    const QString text = m_file.getNodeValue(followed(entry, list.key().tags));
    return list.shape->entry == EEntry::DRIVE ? DriveNumbers::key(text) : text;
}

StartOptions ItemFinder::options(const QDomElement &element) const
{
    // People also separate options by other white space than the device knows.
    return {m_file.getNodeValue(element), StartOptions::SEPARATOR_WHITE_SPACE};
}

bool ItemFinder::canHave(const QDomElement &element, const SItemNode &node)
{
    return !node.shape->isOfKd2Only
        || DriveTypes::isKd2(element.attribute(NVornXmlTags::ATTR_TYPE));
}

/** Whether readers of the document take @p element for an entry of the list. */
bool ItemFinder::isEntry(const SItemNode &list, const QDomElement &element) const
{
    if (element.tagName() != list.shape->entryTag) {
        return false;
    }
    switch (list.shape->entry) {
    case EEntry::PARAMETER_FILE: {
        CParamFileElement entry;
        m_file.paramFileElement(entry, element);
        return !entry.isNull();
    }
    case EEntry::FILE:
    case EEntry::OPC_UA_FILE: {
        CFileElement entry;
        m_file.fileElement(entry, element);
        return !entry.isNull();
    }
    default:
        return true;
    }
}

/** Calls @p visit with what may be an entry, in the order of the document, until it returns false.
 */
template <typename Visit>
void ItemFinder::visitCandidates(const SItemNode &list, const QDomElement &element, Visit visit)
{
    const bool isDeep = list.shape->isReadDeep;
    QDomElement candidate = element.firstChildElement();
    while (!candidate.isNull() && visit(candidate)) {
        candidate = isDeep ? nextInside(element, candidate) : candidate.nextSiblingElement();
    }
}

bool ItemFinder::failUnknownWord(const SItemPlace &place, const QString &path, const QString &word)
{
    QStringList words;
    for (const SItemNode &child : place.node->children) {
        if (canHave(place.element(), child)) {
            words.append(child.shape->word);
        }
    }
    if (words.isEmpty() || place.node->isItem()) {
        return fail(ItemTexts::tr("%1: there is no such item").arg(path));
    }
    const QString meant = nearestName(word, words);
    if (!meant.isEmpty()) {
        return fail(ItemTexts::tr("%1: there is no such item; did you mean %2?")
                        .arg(path, joined(place.path, meant)));
    }
    return fail(ItemTexts::tr("%1: there is no such item; there are %2")
                    .arg(path, words.join(QStringLiteral(", "))));
}
