#include "commissioning/CConfigurationMerge.h"

#include "commissioning/compare/ConfigurationChanges.h"
#include "commissioning/compare/ConfigurationWords.h"
#include "commissioning/items/ItemPath.h"
#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"

#include <QSet>

#include <algorithm>

using namespace ConfigurationChanges;
using ConfigurationWords::shown;

namespace {

using ConfigurationMergeTexts::Texts;

using SConflict = CConfigurationMerge::SConflict;

/** Whether both sides have what BASE does not have; then there is nothing to tell who changed it.
 */
enum EOrigin { IN_BASE, ADDED_BY_BOTH };

QStringList described(const QList<SChange> &changes)
{
    CConfigurationPatch patch;
    patch.setChanges(changes);
    return patch.describe();
}

QString pathOf(const SItemPath &path, const QString &item)
{
    return item.isEmpty() ? path.entryPath() : path.entryPath() + QLatin1Char('.') + item;
}

/** Whether only drives of the KD2 series have that file. */
bool isKd2Part(const SItemPath &drive, const QString &part)
{
    const ConfigurationShape::SNode *const node =
        ShapePaths::find(ItemPath::joined(drive.list, part));
    return node != nullptr && node->isOfKd2Only;
}

/** A list while it is merged. */
struct SList {
    SList(const QString &listPath, const QVector<SSnapshotEntry> &inOurs,
          const QVector<SSnapshotEntry> &inTheirs)
        : path(listPath), ours(inOurs), theirs(inTheirs), whole(ours)
    {
        for (const SSnapshotEntry &entry : ours) {
            keys.insert(entry.path.key);
        }
    }
    Q_DISABLE_COPY(SList)

    const QString path;
    const QVector<SSnapshotEntry> ours;
    const QVector<SSnapshotEntry> theirs;
    /** What happens to the entries of OURS; it refers to them. */
    ListChanges whole;
    /** Those that OURS will have. */
    QSet<QString> keys;
};

/** The entries but for those with the indexes @p others. */
QVector<SSnapshotEntry> without(const QVector<SSnapshotEntry> &entries, const QVector<int> &others)
{
    QVector<bool> isOther(entries.size(), false);
    for (const int index : others) {
        if (index >= 0) {
            isOther[index] = true;
        }
    }
    QVector<SSnapshotEntry> result;
    for (int i = 0; i < entries.size(); ++i) {
        if (!isOther.at(i)) {
            result << entries.at(i);
        }
    }
    return result;
}

/** Finds what has to be done to OURS. */
class Merger
{
public:
    Merger(const CDeviceConfigurationFile10 &base, const CDeviceConfigurationFile10 &ours,
           const CDeviceConfigurationFile10 &theirs)
        : m_base(base), m_ours(ours), m_theirs(theirs)
    {
        mergeEntry(m_base.description, m_ours.description, m_theirs.description, IN_BASE);
        mergeEntry(m_base.device, m_ours.device, m_theirs.device, IN_BASE);
        const QStringList &lists = ShapePaths::lists();
        for (const QString &list : lists) {
            mergeList(list);
        }
    }

    QList<SChange> changes() const { return m_changes; }
    QList<SConflict> conflicts() const { return m_conflicts; }

private:
    void mergeEntry(const SSnapshotEntry &base, const SSnapshotEntry &ours,
                    const SSnapshotEntry &theirs, EOrigin origin);
    void mergeItems(const QString &part, const SSnapshotEntry &base, const SSnapshotEntry &ours,
                    const SSnapshotEntry &theirs, EOrigin origin, QList<SChange> &changes);
    void mergePart(const QString &part, const SSnapshotEntry &base, const SSnapshotEntry &ours,
                   const SSnapshotEntry &theirs, EOrigin origin, QList<SChange> &removals,
                   QList<SChange> &others);
    bool mergeSeries(const QStringList &parts, const SSnapshotEntry &base,
                     const SSnapshotEntry &ours, const SSnapshotEntry &theirs, EOrigin origin);
    void mergeBaseEntry(const SSnapshotEntry &base, int inOurs, int inTheirs, SList &list);
    void mergeNewEntries(const QVector<SSnapshotEntry> &inOurs,
                         const QVector<SSnapshotEntry> &inTheirs, SList &list);
    void mergeList(const QString &path);
    QString mergeActiveFpgaFile();

    void addValueConflict(const SItemPath &path, const QString &item, const SSnapshotEntry &base,
                          const SSnapshotEntry &ours, const SSnapshotEntry &theirs);
    void addRemovalConflict(CConfigurationMerge::EConflict kind, const QString &part,
                            const SSnapshotEntry &base, const SSnapshotEntry &changed,
                            const SItemPath &path);
    void addEntryConflict(CConfigurationMerge::EConflict kind, const SItemPath &path,
                          const QList<SChange> &changes);
    QList<SChange> changesOf(const QString &list, const SSnapshotEntry &base,
                             const SSnapshotEntry &side, const ConfigurationSnapshot &whole) const;

    const ConfigurationSnapshot m_base;
    const ConfigurationSnapshot m_ours;
    const ConfigurationSnapshot m_theirs;
    QList<SChange> m_changes;
    QList<SConflict> m_conflicts;
};

void Merger::addValueConflict(const SItemPath &path, const QString &item,
                              const SSnapshotEntry &base, const SSnapshotEntry &ours,
                              const SSnapshotEntry &theirs)
{
    SConflict conflict;
    conflict.path = pathOf(path, item);
    conflict.base = base.value(item);
    conflict.ours = ours.value(item);
    conflict.theirs = theirs.value(item);
    m_conflicts << conflict;
}

/** One side removed a part that the other one changed. */
void Merger::addRemovalConflict(CConfigurationMerge::EConflict kind, const QString &part,
                                const SSnapshotEntry &base, const SSnapshotEntry &changed,
                                const SItemPath &path)
{
    QList<SChange> changes;
    if (base.hasPart(part) && changed.hasPart(part)) {
        appendItemDifferences(part, base, changed, changes);
    } else if (changed.hasPart(part)) {
        changes << ofPart(CConfigurationPatch::ADD_ENTRY, changed.path, part, changed);
    } else {
        changes << ofPart(CConfigurationPatch::REMOVE_ENTRY, changed.path, part, base);
    }
    SConflict conflict;
    conflict.conflict = kind;
    conflict.path = pathOf(path, part);
    conflict.details = described(changes);
    m_conflicts << conflict;
}

void Merger::mergeItems(const QString &part, const SSnapshotEntry &base, const SSnapshotEntry &ours,
                        const SSnapshotEntry &theirs, EOrigin origin, QList<SChange> &changes)
{
    const QStringList items = ConfigurationSnapshot::unite(
        ConfigurationSnapshot::unite(base.itemsOf(part), ours.itemsOf(part)), theirs.itemsOf(part));
    for (const QString &item : items) {
        const QString value = ours.value(item);
        const QString other = theirs.value(item);
        if (item == activeFpgaItem() || other == value
            || (origin == IN_BASE && other == base.value(item))) {
            continue;
        }
        if (origin == IN_BASE && value == base.value(item)) {
            changes << ofItem(ours.path, item, value, theirs);
        } else {
            addValueConflict(ours.path, item, base, ours, theirs);
        }
    }
}

void Merger::mergePart(const QString &part, const SSnapshotEntry &base, const SSnapshotEntry &ours,
                       const SSnapshotEntry &theirs, EOrigin origin, QList<SChange> &removals,
                       QList<SChange> &others)
{
    const bool isInBase = origin == IN_BASE && base.hasPart(part);
    if (ours.hasPart(part) && theirs.hasPart(part)) {
        mergeItems(part, base, ours, theirs, isInBase ? IN_BASE : ADDED_BY_BOTH, others);
    } else if (ours.hasPart(part) && isInBase) {
        if (base.isSamePart(part, ours)) {
            removals << ofPart(CConfigurationPatch::REMOVE_ENTRY, ours.path, part, ours);
        } else {
            addRemovalConflict(CConfigurationMerge::REMOVED_BY_THEIRS, part, base, ours, ours.path);
        }
    } else if (theirs.hasPart(part) && !isInBase) {
        others << ofPart(CConfigurationPatch::ADD_ENTRY, ours.path, part, theirs);
    } else if (theirs.hasPart(part) && !base.isSamePart(part, theirs)) {
        addRemovalConflict(CConfigurationMerge::REMOVED_BY_OURS, part, base, theirs, ours.path);
    }
}

/**
 * A drive that changes from the KD2 series to another one loses the files that only KD2 drives
 * have, whatever happens to these on the other side.
 * @return whether type and KD2 files can be merged as anything else; else those of OURS stay
 */
bool Merger::mergeSeries(const QStringList &parts, const SSnapshotEntry &base,
                         const SSnapshotEntry &ours, const SSnapshotEntry &theirs, EOrigin origin)
{
    if (isKd2(ours) == isKd2(theirs)) {
        return true;
    }
    if (origin == ADDED_BY_BOTH) {
        addValueConflict(ours.path, driveTypeItem(), base, ours, theirs);
        return false;
    }
    if (!isKd2(base)) {
        return true;
    }
    const SSnapshotEntry &kept = isKd2(ours) ? ours : theirs;
    bool isClean = true;
    for (const QString &part : parts) {
        if (isKd2Part(ours.path, part) && !base.isSamePart(part, kept)) {
            addRemovalConflict(isKd2(ours) ? CConfigurationMerge::REMOVED_BY_THEIRS
                                           : CConfigurationMerge::REMOVED_BY_OURS,
                               part, base, kept, ours.path);
            isClean = false;
        }
    }
    return isClean;
}

void Merger::mergeEntry(const SSnapshotEntry &base, const SSnapshotEntry &ours,
                        const SSnapshotEntry &theirs, EOrigin origin)
{
    const QStringList parts = ConfigurationSnapshot::unite(
        ConfigurationSnapshot::unite(base.parts(), ours.parts()), theirs.parts());
    const bool isDrive = isDriveList(ours.path.list);
    const bool isSeriesMerged = !isDrive || mergeSeries(parts, base, ours, theirs, origin);
    SSnapshotEntry taken = theirs;
    if (!isSeriesMerged) {
        taken.items.erase(std::remove_if(taken.items.begin(), taken.items.end(),
                                         [](const CConfigurationItems::SItem &item) {
                                             return item.path == driveTypeItem();
                                         }),
                          taken.items.end());
        taken.items << CConfigurationItems::SItem{driveTypeItem(), ours.value(driveTypeItem())};
    }
    QList<SChange> removals;
    QList<SChange> own;
    QList<SChange> others;
    mergeItems(QString(), base, ours, taken, origin, own);
    for (const QString &part : parts) {
        if (isSeriesMerged || !isKd2Part(ours.path, part)) {
            mergePart(part, base, ours, theirs, origin, removals, others);
        }
    }
    // The files that only one type of drives has go before the type changes, and come after it.
    m_changes << removals << own << others;
}

/** What one side did to an entry, whether it is active among the FPGA images included. */
QList<SChange> Merger::changesOf(const QString &list, const SSnapshotEntry &base,
                                 const SSnapshotEntry &side,
                                 const ConfigurationSnapshot &whole) const
{
    QList<SChange> changes;
    appendDifferences(base, side, changes);
    const QString before = m_base.device.value(activeFpgaItem());
    const QString active = whole.device.value(activeFpgaItem());
    if (list == fpgaFileList() && side.path.number == 1 && active == side.path.key
        && active != before) {
        changes << ofItem(m_base.device.path, activeFpgaItem(), before, whole.device);
    }
    return changes;
}

void Merger::addEntryConflict(CConfigurationMerge::EConflict kind, const SItemPath &path,
                              const QList<SChange> &changes)
{
    SConflict conflict;
    conflict.conflict = kind;
    conflict.path = path.entryPath();
    conflict.details = described(changes);
    m_conflicts << conflict;
}

/** Where an entry of BASE is in the other two; -1 where it was removed. */
void Merger::mergeBaseEntry(const SSnapshotEntry &base, int inOurs, int inTheirs, SList &list)
{
    if (inOurs >= 0 && inTheirs >= 0) {
        mergeEntry(base, list.ours.at(inOurs), list.theirs.at(inTheirs), IN_BASE);
    } else if (inOurs >= 0) {
        const SSnapshotEntry &ours = list.ours.at(inOurs);
        const QList<SChange> changes = changesOf(list.path, base, ours, m_ours);
        if (changes.isEmpty()) {
            list.whole.remove(inOurs);
            list.keys.remove(ours.path.key);
        } else {
            addEntryConflict(CConfigurationMerge::REMOVED_BY_THEIRS, base.path, changes);
        }
    } else if (inTheirs >= 0) {
        const QList<SChange> changes =
            changesOf(list.path, base, list.theirs.at(inTheirs), m_theirs);
        if (!changes.isEmpty()) {
            addEntryConflict(CConfigurationMerge::REMOVED_BY_OURS, base.path, changes);
        }
    }
}

/** The entries that BASE does not have. */
void Merger::mergeNewEntries(const QVector<SSnapshotEntry> &inOurs,
                             const QVector<SSnapshotEntry> &inTheirs, SList &list)
{
    const QVector<int> counterparts = ConfigurationSnapshot::match(inTheirs, inOurs);
    for (int i = 0; i < inTheirs.size(); ++i) {
        const SSnapshotEntry &entry = inTheirs.at(i);
        if (counterparts.at(i) < 0) {
            list.whole.add(entry);
            list.keys.insert(entry.path.key);
            continue;
        }
        SSnapshotEntry nothing;
        nothing.path = entry.path;
        mergeEntry(nothing, inOurs.at(counterparts.at(i)), entry, ADDED_BY_BOTH);
    }
}

void Merger::mergeList(const QString &path)
{
    SList list(path, m_ours.entries(path), m_theirs.entries(path));
    const QVector<SSnapshotEntry> base = m_base.entries(path);
    const QVector<int> inOurs = ConfigurationSnapshot::match(base, list.ours);
    const QVector<int> inTheirs = ConfigurationSnapshot::match(base, list.theirs);
    for (int i = 0; i < base.size(); ++i) {
        mergeBaseEntry(base.at(i), inOurs.at(i), inTheirs.at(i), list);
    }
    mergeNewEntries(without(list.ours, inOurs), without(list.theirs, inTheirs), list);

    QString active;
    if (path == fpgaFileList()) {
        active = mergeActiveFpgaFile();
        // OURS removed it: that is a conflict of the image.
        active = list.keys.contains(active) ? active : QString();
    }
    list.whole.appendTo(path, m_ours.device, active, m_changes);
}

/** @return the image that THEIRS wants to be active; empty when nothing has to be done */
QString Merger::mergeActiveFpgaFile()
{
    const QString base = m_base.device.value(activeFpgaItem());
    const QString ours = m_ours.device.value(activeFpgaItem());
    QString theirs = m_theirs.device.value(activeFpgaItem());
    // A side without images does not care which one is active.
    if (theirs == base || theirs == ours || theirs.isEmpty()) {
        return QString();
    }
    if (ours == base || ours.isEmpty()) {
        return theirs;
    }
    addValueConflict(m_ours.device.path, activeFpgaItem(), m_base.device, m_ours.device,
                     m_theirs.device);
    return QString();
}

/** Moves changes that OURS cannot take to the conflicts. */
void dropImpossible(const CDeviceConfigurationFile10 &ours, QList<SChange> &changes,
                    QList<SConflict> &conflicts)
{
    bool isPossible = false;
    while (!isPossible && !changes.isEmpty()) {
        const auto copy = copyOf(ours);
        if (copy == nullptr) {
            return;
        }
        CConfigurationItems items(*copy);
        QList<SChange> possible;
        for (const SChange &change : qAsConst(changes)) {
            SConflict conflict;
            if (make(change, items, conflict.details)) {
                possible << change;
            } else {
                conflict.conflict = CConfigurationMerge::NOT_POSSIBLE;
                conflict.path = change.path;
                conflict.ours = change.before;
                conflict.theirs = change.after;
                conflicts << conflict;
            }
        }
        // One that failed may have been made in part: the others are tried once more.
        isPossible = possible.size() == changes.size();
        changes = possible;
    }
}

} // namespace

CConfigurationMerge::CConfigurationMerge(CDeviceConfigurationFile10 &base,
                                         CDeviceConfigurationFile10 &ours,
                                         CDeviceConfigurationFile10 &theirs)
    : CConfigurationMerge(qAsConst(base), qAsConst(ours), qAsConst(theirs))
{
}

CConfigurationMerge::CConfigurationMerge(const CDeviceConfigurationFile10 &base,
                                         const CDeviceConfigurationFile10 &ours,
                                         const CDeviceConfigurationFile10 &theirs)
{
    const Merger merger(base, ours, theirs);
    QList<SChange> changes = merger.changes();
    m_conflicts = merger.conflicts();
    dropImpossible(ours, changes, m_conflicts);
    m_patch.setChanges(changes);
}

CConfigurationPatch CConfigurationMerge::patch() const
{
    return m_patch;
}

QList<CConfigurationMerge::SConflict> CConfigurationMerge::conflicts() const
{
    return m_conflicts;
}

QStringList CConfigurationMerge::describe(const SConflict &conflict)
{
    SItemPath path;
    SItemPath::parse(conflict.path, path);
    QStringList lines;
    switch (conflict.conflict) {
    case DIFFERENT_VALUES:
        lines << Texts::tr("%1: %2: base %3, ours %4, theirs %5")
                     .arg(ConfigurationWords::subject(path), ConfigurationWords::item(path),
                          shown(conflict.base), shown(conflict.ours), shown(conflict.theirs));
        break;
    case REMOVED_BY_OURS:
        lines << Texts::tr("%1: removed by ours, but changed by theirs")
                     .arg(ConfigurationWords::subject(path, QString()));
        break;
    case REMOVED_BY_THEIRS:
        lines << Texts::tr("%1: changed by ours, but removed by theirs")
                     .arg(ConfigurationWords::subject(path, QString()));
        break;
    case NOT_POSSIBLE:
        lines << Texts::tr("%1: the change of theirs cannot be stored").arg(conflict.path);
        break;
    }
    for (const QString &detail : conflict.details) {
        lines << QStringLiteral("    ") + detail;
    }
    return lines;
}
