#include "commissioning/compare/ConfigurationSnapshot.h"

#include "commissioning/items/ItemPath.h"
#include "commissioning/items/ItemReader.h"
#include "configfile/ItemValue.h"
#include "configfile/ShapePaths.h"

#include <QQueue>

#include <algorithm>
#include <tuple>
#include <vector>

using SItem = CConfigurationItems::SItem;

namespace {

const QLatin1Char Dot('.');

/** More pairs of entries of one key are not compared with each other: that would take too long. */
const qint64 LargestMatrix = 4096;

QList<SItem>::const_iterator find(const QList<SItem> &items, const QString &path)
{
    return std::find_if(items.begin(), items.end(),
                        [&](const SItem &item) { return item.path == path; });
}

QString partOf(const QString &item)
{
    return item.left(qMax(item.indexOf(Dot), 0));
}

/** The same text for entries without a difference. */
QString fingerprint(const SSnapshotEntry &entry)
{
    QStringList texts;
    for (const SItem &item : entry.items) {
        if (item.value != defaultValue(entry.path, item.path)) {
            texts << item.path + QLatin1Char('=') + QString::number(item.value.size())
                    + QLatin1Char(' ') + item.value;
        }
    }
    texts.sort();
    return texts.join(QLatin1Char(' '));
}

/** The entries of one key, as indexes. */
struct SGroup {
    QVector<int> left;
    QVector<int> right;
};

using Entries = QVector<SSnapshotEntry>;

/** Matches entries without any difference and takes them out of the group. */
void matchSame(const Entries &left, const Entries &right, SGroup &group, QVector<int> &counterparts)
{
    QHash<QString, QQueue<int>> byContent;
    for (const int index : group.right) {
        byContent[fingerprint(right.at(index))].enqueue(index);
    }
    SGroup rest;
    for (const int index : group.left) {
        QQueue<int> &same = byContent[fingerprint(left.at(index))];
        if (same.isEmpty()) {
            rest.left << index;
        } else {
            counterparts[index] = same.dequeue();
        }
    }
    for (const int index : group.right) {
        QQueue<int> &unused = byContent[fingerprint(right.at(index))];
        if (!unused.isEmpty() && unused.constFirst() == index) {
            rest.right << unused.dequeue();
        }
    }
    group = rest;
}

/** Matches the rest, those with the fewest differences first. */
void matchSimilar(const Entries &left, const Entries &right, const SGroup &group,
                  QVector<int> &counterparts)
{
    const int leftCount = group.left.size();
    const int rightCount = group.right.size();
    if (qint64(leftCount) * rightCount > LargestMatrix) {
        for (int i = 0; i < qMin(leftCount, rightCount); ++i) {
            counterparts[group.left.at(i)] = group.right.at(i);
        }
        return;
    }
    // In an order that stays the same, but for the sides, when the sides are swapped.
    std::vector<std::tuple<int, int, int, int, int>> pairs;
    for (int i = 0; i < leftCount; ++i) {
        for (int k = 0; k < rightCount; ++k) {
            pairs.emplace_back(left.at(group.left.at(i)).differences(right.at(group.right.at(k))),
                               i + k, qAbs(i - k), i, k);
        }
    }
    std::sort(pairs.begin(), pairs.end());
    QVector<bool> isLeftTaken(leftCount, false);
    QVector<bool> isRightTaken(rightCount, false);
    for (const auto &pair : pairs) {
        const int i = std::get<3>(pair);
        const int k = std::get<4>(pair);
        if (!isLeftTaken.at(i) && !isRightTaken.at(k)) {
            isLeftTaken[i] = true;
            isRightTaken[k] = true;
            counterparts[group.left.at(i)] = group.right.at(k);
        }
    }
}

} // namespace

bool SItemPath::parse(const QString &path, SItemPath &parts)
{
    parts = SItemPath();
    QList<SItemPathStep> steps;
    QString reason;
    if (!ItemPath::parse(path, steps, reason)) {
        return false;
    }
    const auto entry = std::find_if(steps.cbegin(), steps.cend(),
                                    [](const SItemPathStep &step) { return step.hasKey; });
    // Where there is no entry, the first word stands alone.
    const auto last = entry == steps.cend() ? steps.cbegin() : entry;
    for (auto step = steps.cbegin(); step != steps.cend(); ++step) {
        if (step <= last) {
            parts.list = ItemPath::joined(parts.list, step->word);
        } else {
            parts.item = ItemPath::joined(parts.item, step->text());
        }
    }
    if (entry != steps.cend()) {
        parts.key = entry->key;
        parts.number = entry->occurrence;
    }
    return true;
}

QString SItemPath::entryPath() const
{
    return isInList() ? CConfigurationItems::entryPath(list, key, number) : list;
}

QString defaultValue(const SItemPath &entry, const QString &item)
{
    return readValue(entry, item, QString());
}

QString readValue(const SItemPath &entry, const QString &item, const QString &text)
{
    const QString path = ItemPath::joined(entry.list, ItemPath::joined(entry.item, item));
    const ConfigurationShape::SNode *const node = ShapePaths::find(path);
    return node == nullptr ? text : ItemValue::read(node->item.value, text);
}

bool SSnapshotEntry::has(const QString &item) const
{
    return find(items, item) != items.end();
}

QString SSnapshotEntry::value(const QString &item) const
{
    const auto found = find(items, item);
    return found == items.end() ? defaultValue(path, item) : found->value;
}

QStringList SSnapshotEntry::paths() const
{
    QStringList result;
    for (const SItem &item : items) {
        result << item.path;
    }
    return result;
}

QStringList SSnapshotEntry::itemsOf(const QString &part) const
{
    QStringList result;
    for (const SItem &item : items) {
        if (partOf(item.path) == part) {
            result << item.path;
        }
    }
    return result;
}

QStringList SSnapshotEntry::parts() const
{
    QStringList result;
    for (const SItem &item : items) {
        const QString part = partOf(item.path);
        if (!part.isEmpty() && !result.contains(part)) {
            result << part;
        }
    }
    return result;
}

bool SSnapshotEntry::hasPart(const QString &part) const
{
    return !content(part).isEmpty();
}

int SSnapshotEntry::differences(const SSnapshotEntry &other) const
{
    const QStringList all = ConfigurationSnapshot::unite(paths(), other.paths());
    return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const QString &item) {
        return value(item) != other.value(item);
    }));
}

bool SSnapshotEntry::isSamePart(const QString &part, const SSnapshotEntry &other) const
{
    const QStringList all = ConfigurationSnapshot::unite(itemsOf(part), other.itemsOf(part));
    return std::all_of(all.begin(), all.end(),
                       [&](const QString &item) { return value(item) == other.value(item); });
}

QList<CConfigurationItems::SItem> SSnapshotEntry::content(const QString &part) const
{
    QList<SItem> result;
    for (const SItem &item : items) {
        if (!item.value.isEmpty() && (part.isEmpty() || partOf(item.path) == part)) {
            result << item;
        }
    }
    return result;
}

ConfigurationSnapshot::ConfigurationSnapshot(const CDeviceConfigurationFile10 &file)
{
    description.path.list = QStringLiteral("description");
    device.path.list = QStringLiteral("device");
    ItemReader reader(file);
    QHash<QString, int> indexes;
    const QStringList entryPaths = reader.entries();
    for (const QString &path : entryPaths) {
        SSnapshotEntry entry;
        SItemPath::parse(path, entry.path);
        QVector<SSnapshotEntry> &list = m_lists[entry.path.list];
        indexes.insert(path, list.size());
        list.append(entry);
    }
    const QList<SItem> all = reader.items();
    for (const SItem &item : all) {
        SItemPath path;
        SItemPath::parse(item.path, path);
        SSnapshotEntry &entry = path.isInList()
            ? m_lists[path.list][indexes.value(path.entryPath())]
            : path.list == device.path.list ? device
                                            : description;
        entry.items << SItem{path.item, readValue(path, QString(), item.value)};
    }
}

QVector<int> ConfigurationSnapshot::match(const QVector<SSnapshotEntry> &left,
                                          const QVector<SSnapshotEntry> &right)
{
    QHash<QString, int> groupOfKey;
    QVector<SGroup> groups;
    const auto groupOf = [&](const SSnapshotEntry &entry) -> SGroup & {
        const auto known = groupOfKey.constFind(entry.path.key);
        if (known != groupOfKey.constEnd()) {
            return groups[known.value()];
        }
        groupOfKey.insert(entry.path.key, groups.size());
        groups.append(SGroup());
        return groups.last();
    };
    for (int i = 0; i < left.size(); ++i) {
        groupOf(left.at(i)).left << i;
    }
    for (int i = 0; i < right.size(); ++i) {
        groupOf(right.at(i)).right << i;
    }

    QVector<int> counterparts(left.size(), -1);
    for (SGroup &group : groups) {
        if (group.left.size() == 1 && group.right.size() == 1) {
            counterparts[group.left.constFirst()] = group.right.constFirst();
        } else if (!group.left.isEmpty() && !group.right.isEmpty()) {
            matchSame(left, right, group, counterparts);
            matchSimilar(left, right, group, counterparts);
        }
    }
    return counterparts;
}

QStringList ConfigurationSnapshot::unite(const QStringList &left, const QStringList &right)
{
    QStringList result = left;
    for (const QString &text : right) {
        if (!left.contains(text)) {
            result << text;
        }
    }
    return result;
}
