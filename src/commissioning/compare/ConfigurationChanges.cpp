#include "commissioning/compare/ConfigurationChanges.h"

#include "commissioning/compare/ConfigurationWords.h"
#include "commissioning/items/ItemPath.h"
#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"
#include "vocabulary/DriveTypes.h"

#include <QSet>

#include <algorithm>

using namespace ConfigurationChanges;
using ConfigurationShape::EEntry;
using ConfigurationShape::EValue;
using ConfigurationWords::shown;

using ItemPath::joined;

namespace {

using ConfigurationPatchTexts::Texts;

QString nameOf(const SItemPath &path)
{
    return ConfigurationWords::subject(path, QString());
}

/** Makes one change in one document. */
class Maker
{
public:
    Maker(CConfigurationItems &items, QStringList &mismatches)
        : m_items(items), m_mismatches(mismatches)
    {
    }

    bool addEntry(const SChange &change, const SItemPath &path);
    bool removeEntry(const SChange &change, const SItemPath &path);
    bool changeItem(const SChange &change, const SItemPath &path);

private:
    bool fail(const QString &text)
    {
        m_mismatches << text;
        return false;
    }

    SSnapshotEntry entryAt(const SItemPath &path) const;
    bool isThere(const SItemPath &path) const;
    bool checkValue(const SItemPath &path, const QString &value, const QString &expected);
    bool setItem(const QString &path, const QString &value);
    bool clearItem(const QString &path);
    bool setActiveFpgaFile(const SChange &change);
    bool setDriveType(const SChange &change, const SItemPath &entry);

    CConfigurationItems &m_items;
    QStringList &m_mismatches;
};

/** The entry or single file that is found at @p path, with what is in it. */
SSnapshotEntry Maker::entryAt(const SItemPath &path) const
{
    SSnapshotEntry entry;
    entry.path = path;
    const int prefix = path.item.isEmpty() ? 0 : path.item.size() + 1;
    const QList<CConfigurationItems::SItem> items =
        m_items.items(joined(path.entryPath(), path.item));
    for (const CConfigurationItems::SItem &item : items) {
        SItemPath whole;
        SItemPath::parse(item.path, whole);
        entry.items << CConfigurationItems::SItem{whole.item.mid(prefix),
                                                  readValue(whole, QString(), item.value)};
    }
    return entry;
}

/** A single file without any text is as good as none. */
bool Maker::isThere(const SItemPath &path) const
{
    return path.item.isEmpty() ? m_items.contains(path.entryPath())
                               : !entryAt(path).content().isEmpty();
}

bool Maker::checkValue(const SItemPath &path, const QString &value, const QString &expected)
{
    return readValue(path, QString(), value) == readValue(path, QString(), expected)
        || fail(Texts::tr("%1: %2 is %3, but %4 is expected.")
                    .arg(ConfigurationWords::subject(path), ConfigurationWords::item(path),
                         shown(value), shown(expected)));
}

bool Maker::setItem(const QString &path, const QString &value)
{
    return m_items.setValue(path, value) || (value.isEmpty() && m_items.remove(path))
        || fail(m_items.errorText());
}

bool Maker::clearItem(const QString &path)
{
    return m_items.remove(path) || fail(m_items.errorText());
}

/** The image itself moves: another one whose path ends in the same file name stays. */
bool Maker::setActiveFpgaFile(const SChange &change)
{
    const QString path = CConfigurationItems::entryPath(fpgaFileList(), change.after);
    QDomElement image = m_items.element(path);
    if (image.isNull()) {
        return fail(m_items.errorText());
    }
    QDomNode list = image.parentNode();
    list.insertBefore(image, list.firstChildElement(image.tagName()));
    return true;
}

bool Maker::setDriveType(const SChange &change, const SItemPath &entry)
{
    const SSnapshotEntry before = entryAt(entry);
    if (!setItem(change.path, change.after)) {
        return false;
    }
    // A drive may have files that did not count in its former type: they are not told as added.
    const SSnapshotEntry after = entryAt(entry);
    const QStringList parts = after.parts();
    for (const QString &part : parts) {
        if (after.hasPart(part) && !before.hasPart(part)) {
            m_items.remove(joined(entry.entryPath(), part));
        }
    }
    return true;
}

bool Maker::changeItem(const SChange &change, const SItemPath &path)
{
    SItemPath entry = path;
    entry.item.clear();
    QString value;
    if (!m_items.value(change.path, value) && path.isInList()
        && !m_items.contains(path.entryPath())) {
        return fail(Texts::tr("%1 does not exist.").arg(ConfigurationWords::subject(entry)));
    }
    if (!checkValue(path, value, change.before)) {
        return false;
    }
    if (change.change == CConfigurationPatch::REMOVE_ITEM) {
        return clearItem(change.path);
    }
    if (!path.isInList() && path.item == activeFpgaItem()) {
        return setActiveFpgaFile(change);
    }
    return isDriveList(path.list) && path.item == driveTypeItem()
        ? setDriveType(change, entry)
        : setItem(change.path, change.after);
}

bool Maker::addEntry(const SChange &change, const SItemPath &path)
{
    if (isThere(path)) {
        return fail(Texts::tr("%1 already exists.").arg(nameOf(path)));
    }
    if (path.item.isEmpty() && !m_items.add(change.path)) {
        return fail(m_items.errorText());
    }
    // Which items a drive can have depends on its type.
    QList<CConfigurationItems::SItem> values = change.items;
    std::stable_partition(values.begin(), values.end(), [](const CConfigurationItems::SItem &item) {
        return item.path == driveTypeItem();
    });
    bool isDone = true;
    QSet<QString> given;
    for (const CConfigurationItems::SItem &item : qAsConst(values)) {
        given.insert(item.path);
        isDone = setItem(joined(change.path, item.path), item.value) && isDone;
    }
    // What the new entry got by itself.
    const QList<CConfigurationItems::SItem> items = entryAt(path).content();
    for (const CConfigurationItems::SItem &item : items) {
        if (!given.contains(item.path) && item.value != defaultValue(path, item.path)) {
            isDone = clearItem(joined(change.path, item.path)) && isDone;
        }
    }
    return isDone;
}

bool Maker::removeEntry(const SChange &change, const SItemPath &path)
{
    if (!isThere(path)) {
        return fail(Texts::tr("%1 does not exist.").arg(nameOf(path)));
    }
    const SSnapshotEntry present = entryAt(path);
    SSnapshotEntry expected;
    expected.path = path;
    expected.items = change.items;
    const QStringList all = ConfigurationSnapshot::unite(expected.paths(), present.paths());
    bool isAsExpected = true;
    for (const QString &item : all) {
        SItemPath itemPath = path;
        itemPath.item = path.item.isEmpty() ? item : joined(path.item, item);
        isAsExpected =
            checkValue(itemPath, present.value(item), expected.value(item)) && isAsExpected;
    }
    return isAsExpected && clearItem(change.path);
}

} // namespace

QString ConfigurationChanges::fpgaFileList()
{
    return ShapePaths::list(EEntry::FPGA_FILE);
}

QString ConfigurationChanges::activeFpgaItem()
{
    return ShapePaths::word(EValue::ACTIVE_FPGA_FILE);
}

bool ConfigurationChanges::isDriveList(const QString &list)
{
    return list == ShapePaths::list(EEntry::DRIVE);
}

QString ConfigurationChanges::driveTypeItem()
{
    return ShapePaths::word(EValue::DRIVE_TYPE);
}

ConfigurationChanges::SChange ConfigurationChanges::ofEntry(CConfigurationPatch::EChange kind,
                                                            const SItemPath &path,
                                                            const SSnapshotEntry &entry)
{
    SChange change;
    change.change = kind;
    change.path = path.entryPath();
    change.items = entry.content();
    return change;
}

ConfigurationChanges::SChange ConfigurationChanges::ofPart(CConfigurationPatch::EChange kind,
                                                           const SItemPath &path,
                                                           const QString &part,
                                                           const SSnapshotEntry &entry)
{
    SChange change;
    change.change = kind;
    change.path = joined(path.entryPath(), part);
    for (const CConfigurationItems::SItem &item : entry.content(part)) {
        change.items << CConfigurationItems::SItem{item.path.mid(part.size() + 1), item.value};
    }
    return change;
}

ConfigurationChanges::SChange ConfigurationChanges::ofItem(const SItemPath &path,
                                                           const QString &item,
                                                           const QString &before,
                                                           const SSnapshotEntry &after)
{
    SChange change;
    change.change =
        after.has(item) ? CConfigurationPatch::SET_ITEM : CConfigurationPatch::REMOVE_ITEM;
    change.path = joined(path.entryPath(), item);
    change.before = before;
    change.after = after.has(item) ? after.value(item) : QString();
    return change;
}

bool ConfigurationChanges::isKd2(const SSnapshotEntry &drive)
{
    return DriveTypes::isKd2(drive.value(driveTypeItem()));
}

void ConfigurationChanges::appendItemDifferences(const QString &part, const SSnapshotEntry &before,
                                                 const SSnapshotEntry &after,
                                                 QList<SChange> &changes)
{
    for (const QString &item :
         ConfigurationSnapshot::unite(before.itemsOf(part), after.itemsOf(part))) {
        if (item != activeFpgaItem() && before.value(item) != after.value(item)) {
            changes << ofItem(before.path, item, before.value(item), after);
        }
    }
}

void ConfigurationChanges::appendDifferences(const SSnapshotEntry &before,
                                             const SSnapshotEntry &after, QList<SChange> &changes)
{
    // The files that only one of two types has go before the type changes, and come after it.
    const QStringList parts = ConfigurationSnapshot::unite(before.parts(), after.parts());
    for (const QString &part : parts) {
        if (before.hasPart(part) && !after.hasPart(part)) {
            changes << ofPart(CConfigurationPatch::REMOVE_ENTRY, before.path, part, before);
        }
    }
    appendItemDifferences(QString(), before, after, changes);
    for (const QString &part : parts) {
        if (!before.hasPart(part) && after.hasPart(part)) {
            changes << ofPart(CConfigurationPatch::ADD_ENTRY, before.path, part, after);
        } else if (after.hasPart(part)) {
            appendItemDifferences(part, before, after, changes);
        }
    }
}

void ConfigurationChanges::ListChanges::appendTo(const QString &list, const SSnapshotEntry &device,
                                                 const QString &active,
                                                 QList<SChange> &changes) const
{
    if (list != fpgaFileList()) {
        appendRemovals(changes);
        appendAdditions(changes);
        return;
    }
    appendAdditions(changes);
    const bool wasEmpty = m_before.isEmpty() && !m_added.isEmpty();
    const QString first = wasEmpty ? m_added.constFirst().path.key : device.value(activeFpgaItem());
    if (!active.isEmpty() && active != first) {
        SChange change;
        change.path = joined(device.path.entryPath(), activeFpgaItem());
        change.before = first;
        change.after = active;
        changes << change;
    }
    appendRemovals(changes);
}

void ConfigurationChanges::ListChanges::appendRemovals(QList<SChange> &changes) const
{
    // Of several entries with one key the last one goes first: the others keep their numbers.
    QHash<QString, QVector<int>> ofKey;
    for (const int index : m_removed) {
        ofKey[m_before.at(index).path.key].append(index);
    }
    for (const int index : m_removed) {
        const SSnapshotEntry &last = m_before.at(ofKey[m_before.at(index).path.key].takeLast());
        changes << ofEntry(CConfigurationPatch::REMOVE_ENTRY, last.path, last);
    }
}

void ConfigurationChanges::ListChanges::appendAdditions(QList<SChange> &changes) const
{
    QHash<QString, int> count;
    for (const SSnapshotEntry &entry : m_before) {
        ++count[entry.path.key];
    }
    for (const int index : m_removed) {
        --count[m_before.at(index).path.key];
    }
    for (const SSnapshotEntry &entry : m_added) {
        SItemPath path = entry.path;
        path.number = ++count[path.key];
        changes << ofEntry(CConfigurationPatch::ADD_ENTRY, path, entry);
    }
}

bool ConfigurationChanges::make(const SChange &change, CConfigurationItems &items,
                                QStringList &mismatches)
{
    SItemPath path;
    if (!SItemPath::parse(change.path, path)) {
        mismatches << Texts::tr("'%1' is not a valid path.").arg(change.path);
        return false;
    }
    Maker maker(items, mismatches);
    switch (change.change) {
    case CConfigurationPatch::ADD_ENTRY:
        return maker.addEntry(change, path);
    case CConfigurationPatch::REMOVE_ENTRY:
        return maker.removeEntry(change, path);
    case CConfigurationPatch::SET_ITEM:
    case CConfigurationPatch::REMOVE_ITEM:
        break;
    }
    return maker.changeItem(change, path);
}

std::unique_ptr<CDeviceConfigurationFile10>
ConfigurationChanges::copyOf(const CDeviceConfigurationFile10 &file)
{
    const QDomElement root = file.domDocument().documentElement();
    if (root.isNull()) {
        return nullptr;
    }
    auto copy = std::make_unique<CDeviceConfigurationFile10>(nullptr);
    copy->createNewDocument();
    QDomDocument document = copy->domDocument();
    document.replaceChild(document.importNode(root, true), document.documentElement());
    return copy;
}
