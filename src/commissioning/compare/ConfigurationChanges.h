#pragma once

#include "commissioning/CConfigurationPatch.h"
#include "commissioning/compare/ConfigurationSnapshot.h"

#include <memory>

/** How changes are found and made, one by one. */
namespace ConfigurationChanges {

using SChange = CConfigurationPatch::SChange;

/** The path of the list of FPGA images, and the item of the device that names the first of them. */
QString fpgaFileList();
QString activeFpgaItem();
/** Whether entries of @p list are drives, and the item that is their type. */
bool isDriveList(const QString &list);
QString driveTypeItem();

/** The change that adds or removes an entry as a whole. */
SChange ofEntry(CConfigurationPatch::EChange kind, const SItemPath &path,
                const SSnapshotEntry &entry);
/** The same for the part of an entry that is found at @p path. */
SChange ofPart(CConfigurationPatch::EChange kind, const SItemPath &path, const QString &part,
               const SSnapshotEntry &entry);
/** The change of an item from @p before to what @p after has. */
SChange ofItem(const SItemPath &path, const QString &item, const QString &before,
               const SSnapshotEntry &after);

/** Whether the drive has the files that only the KD2 series has. */
bool isKd2(const SSnapshotEntry &drive);

/** Appends what makes @p after out of @p before; but for the active FPGA image. */
void appendDifferences(const SSnapshotEntry &before, const SSnapshotEntry &after,
                       QList<SChange> &changes);
/** The same for the items of one part, or for those of the entry alone. */
void appendItemDifferences(const QString &part, const SSnapshotEntry &before,
                           const SSnapshotEntry &after, QList<SChange> &changes);

/** Collects what happens to the entries of one list, and puts it into an order that can be made. */
class ListChanges
{
public:
    /** @param before the entries as they are; must outlive this object */
    explicit ListChanges(const QVector<SSnapshotEntry> &before) : m_before(before) { }

    void remove(int index) { m_removed.append(index); }
    void add(const SSnapshotEntry &entry) { m_added.append(entry); }

    /**
     * Appends it all. Which FPGA image is active is settled while the former and the new ones are
     * there.
     * @param list   the list's path
     * @param device with the active FPGA image as it is before
     * @param active the FPGA image that is to be active; empty when that does not matter
     */
    void appendTo(const QString &list, const SSnapshotEntry &device, const QString &active,
                  QList<SChange> &changes) const;

private:
    void appendRemovals(QList<SChange> &changes) const;
    void appendAdditions(QList<SChange> &changes) const;

    const QVector<SSnapshotEntry> &m_before;
    QVector<int> m_removed;
    QVector<SSnapshotEntry> m_added;
};

/**
 * Makes a change in the document that @p items works on, if it is as the change expects it.
 * @return false when it is not, or when the change is not possible; @p mismatches then contains
 * why, and the document may hold a part of the change
 */
bool make(const SChange &change, CConfigurationItems &items, QStringList &mismatches);

/** A file object with a copy of the document; null when there is none. */
std::unique_ptr<CDeviceConfigurationFile10> copyOf(const CDeviceConfigurationFile10 &file);

} // namespace ConfigurationChanges
