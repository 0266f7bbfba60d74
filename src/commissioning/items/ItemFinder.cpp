#include "commissioning/items/ItemFinder.h"

#include "commissioning/items/EntryTexts.h"
#include "commissioning/items/NearestName.h"
#include "commissioning/Texts.h"
#include "configfile/ItemValue.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"

#include <algorithm>

using namespace ConfigurationShape;
using ConfigurationItemsTexts::Texts;
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
        return fail(Texts::tr("The document contains no configuration."));
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
        return fail(Texts::tr("%1: name an entry of the list, as in %2")
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
        return fail(Texts::tr("%1: only a drive of the type KD2_drive has this file").arg(path));
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
        return fail(
            Texts::tr("%1: %2 is not a list and takes no brackets").arg(place.path, given.word));
    }
    place.entry = given;
    place.entry.key = key(*place.node->shape, given.key);
    if (place.entry.key != given.key) {
        SItemPathStep written = place.entry;
        written.word = place.listPath;
        place.path = written.text();
    }
    const bool isFound = place.node->kind() == EKind::OPTIONS ? findOption(place.entry, place)
                                                              : findEntry(place.entry, place);
    place.isAbsent = !isFound;
    return isFound || entryMayBeAbsent
        || fail(EntryTexts::missing(place.node->shape->entry, place.path));
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
        if (key(list, candidate) == wanted.key && isEntry(m_file, *list.shape, candidate)) {
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
        if (isEntry(m_file, *list.shape, candidate)) {
            result.append(candidate);
        }
        return true;
    });
    return result;
}

QString ItemFinder::key(const SItemNode &list, const QDomElement &entry) const
{
    return key(*list.shape, m_file.getNodeValue(followed(entry, list.key().tags)));
}

QString ItemFinder::key(const SNode &list, const QString &text)
{
    return ItemValue::read(list.key().item.value, text);
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

bool ItemFinder::isEntry(const CDeviceConfigurationFile10 &file, const SNode &list,
                         const QDomElement &element)
{
    if (element.tagName() != list.entryTag) {
        return false;
    }
    switch (list.entry) {
    case EEntry::FILE:
    case EEntry::OPC_UA_FILE: {
        CFileElement entry;
        file.fileElement(entry, element);
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
        return fail(Texts::tr("%1: unknown item").arg(path));
    }
    const QString meant = nearestName(word, words);
    if (!meant.isEmpty()) {
        return fail(
            Texts::tr("%1: unknown item; did you mean %2?").arg(path, joined(place.path, meant)));
    }
    return fail(Texts::tr("%1: unknown item; expected is one of %2")
                    .arg(path, words.join(QStringLiteral(", "))));
}
