#pragma once

#include "commissioning/CConfigurationPatch.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QList>
#include <QString>
#include <QStringList>

/**
 * What two people changed in copies of one configuration, brought together item by item.
 *
 * What one side changed is taken, and so is what both changed in the same way. Where they changed
 * one thing in different ways, it stays as OURS has it, and that is reported as a conflict. What
 * counts as the same entry is defined by CConfigurationComparison.
 *
 * Thread-safe as every value: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationMerge
{
public:
    enum EConflict {
        /** Both sides gave an item another value, or added the entry with different ones. */
        DIFFERENT_VALUES,
        /** OURS removed an entry or single file that THEIRS changed. */
        REMOVED_BY_OURS,
        /** THEIRS removed an entry or single file that OURS changed. */
        REMOVED_BY_THEIRS,
        /** What THEIRS changed cannot be stored here, as a class that does not exist. */
        NOT_POSSIBLE
    };

    struct SConflict {
        EConflict conflict = DIFFERENT_VALUES;
        /** Of the item or entry in OURS, or in BASE when OURS has it no more. */
        QString path;
        /** The values of an item; empty where there is none. */
        QString base;
        QString ours;
        QString theirs;
        /** For the user: what the other side did to what one removed, or why it is not possible. */
        QStringList details;
    };

    /** @param base the configuration that both sides started from */
    CConfigurationMerge(const CDeviceConfigurationFile10 &base,
                        const CDeviceConfigurationFile10 &ours,
                        const CDeviceConfigurationFile10 &theirs);
    /** The same, for programs that were compiled when there was no other. */
    CConfigurationMerge(CDeviceConfigurationFile10 &base, CDeviceConfigurationFile10 &ours,
                        CDeviceConfigurationFile10 &theirs);

    /** What has to be changed in OURS to have both sides' work in it; apply() it there. */
    CConfigurationPatch patch() const;
    /** In the order of CConfigurationItems' paths. */
    QList<SConflict> conflicts() const;

    /** One line: "drive 2: name: base DRIVE-2, ours GRIPPER, theirs CLAMP"; details follow
     * indented. */
    static QStringList describe(const SConflict &conflict);

private:
    CConfigurationPatch m_patch;
    QList<SConflict> m_conflicts;
};
