#pragma once

#include "commissioning/CConfigurationItems.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * Changes from one configuration to another, to be read by people, to be kept as a file, and to be
 * made in a document that is as the patch expects it.
 *
 * Paths are those of CConfigurationItems. The changes are made in their order, and each path states
 * where its entry is found then. A single file, as "device.dictionary" or "drive[2].param", is
 * added and removed as an entry.
 *
 * Thread-safe as every value: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationPatch
{
public:
    enum EChange {
        /** An entry of a list, or a single file, comes with its items. */
        ADD_ENTRY,
        /** It is removed, with its items. */
        REMOVE_ENTRY,
        /** The value of an item becomes another one. */
        SET_ITEM,
        /** An item is removed from the document. */
        REMOVE_ITEM
    };

    struct SChange {
        EChange change = SET_ITEM;
        /** Of the entry, or of the item. */
        QString path;
        /** Of an item: its values; what is not in the document has an empty one. */
        QString before;
        QString after;
        /**
         * Of an entry: the items that have values, with paths below it: "name", "param.comment".
         * The argument of a start option has an empty path.
         */
        QList<CConfigurationItems::SItem> items;
    };

    QList<SChange> changes() const;
    void setChanges(const QList<SChange> &changes);
    bool isEmpty() const;

    /** The patch as JSON, the same bytes for the same changes. */
    QByteArray toJson() const;
    /**
     * Reads what toJson() wrote. Anything else is refused: other formats and versions, what is
     * missing, unknown or of the wrong type, and paths that are changed twice. On failure this
     * patch is unchanged.
     * @param errorText why it was refused, for the user
     */
    bool readJson(const QByteArray &json, QString &errorText);

    /**
     * The changes in the terms of an engineer, one line each: "drive 2: name DRIVE-2 -> GRIPPER".
     * An entry that is added or removed is followed by its items, one indented line each.
     */
    QStringList describe() const;
    /** The first line alone. */
    static QString describe(const SChange &change);

    /**
     * Changes @p file; everything else in the document stays. All or nothing: when anything is not
     * as the patch expects it, or cannot be changed, the document is as before.
     * @param mismatches every reason for that, for the user
     */
    bool apply(CDeviceConfigurationFile10 &file, QStringList &mismatches) const;
    /** Whether apply() would succeed. */
    bool check(const CDeviceConfigurationFile10 &file, QStringList &mismatches) const;

private:
    QList<SChange> m_changes;
};
