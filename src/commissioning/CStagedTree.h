#pragma once

#include "commissioning/CDeviceManifest.h"
#include "commissioning/CStagingPlan.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QList>
#include <QString>

#include <functional>

/**
 * Carries out a plan: makes a tree, or an archive of it, that is ready to be put on a device, with
 * a manifest of all that is in it; and checks a tree or an archive against its manifest.
 *
 * Whatever interrupts the making, a crash or a power cut included, leaves the whole tree or none,
 * the whole archive or none; something hidden may stay beside it (".vrn-stage-…"), which is removed
 * when the next one is made in the same directory. Two programs may make trees in one directory at
 * a time.
 *
 * Equal plans give equal trees and the same bytes of archives: files have the mode 0644,
 * directories 0755, everything the time of modification 1980-01-01 00:00:00 UTC; entries of
 * archives are in the order of their names, belong to user and group 0, and the compression records
 * no time. All names are UTF-8, whatever the locale.
 *
 * Thread-safe as every file object: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CStagedTree
{
public:
    /** Called now and then with the progress in bytes; false ends the work. */
    using Progress = std::function<bool(qint64 done, qint64 total)>;

    /** Where a plan is carried out; what is empty is not made. At least one must be given. */
    struct STarget {
        /**
         * Directory that becomes the root of the device. It must not be there, or be empty, but
         * its parent must be there.
         */
        QString root;
        /**
         * A tree that has a manifest and no other files than those in it may be there, too, and is
         * replaced in one step.
         */
        bool mayReplaceRoot = false;
        /** File that becomes the tar archive, compressed by gzip; replaced if it is there. */
        QString archive;
    };

    struct SDifference {
        enum EKind {
            MISSING,
            SURPLUS,
            /** Another size or sum. */
            CHANGED,
            /** A directory or link where a file should be, or the other way round. */
            WRONG_KIND,
            UNREADABLE,
            /** The manifest is missing or cannot be read; nothing else is compared then. */
            NO_MANIFEST,
            /** The archive is damaged or none; what follows is not compared. */
            BROKEN
        };
        EKind kind = MISSING;
        /** Relative to the root; as it stands in the archive for what cannot be there. */
        QString path;
        /** One sentence for the user. */
        QString message;
    };

    void setProgress(const Progress &progress);

    /**
     * Carries out a plan that has no problems. Where a tree and an archive are wanted, both are
     * ready before either takes its place.
     *
     * A file of the project that changes meanwhile is noticed, and makes it fail: what is written
     * has the sums that stand in the manifest.
     */
    bool write(const CStagingPlan &plan, const STarget &target);

    /**
     * Compares the tree or archive @p path with the manifest in it. Nothing is extracted, links are
     * not followed, and little memory is used. Directories and files that the manifest does not
     * list are surplus; the content of such a directory is not listed.
     * @return whether it could be compared at all, with or without differences()
     */
    bool verify(const QString &path);

    /** What verify() found, in the order of the paths. */
    QList<SDifference> differences() const;
    /** What was written, or that which verify() compared with. */
    CDeviceManifest manifest() const;

    /** Why the last operation failed, for the user; empty after one that did not. */
    QString errorText() const;
    /** Whether the last operation was ended by the progress function. */
    bool wasCancelled() const;

private:
    Progress m_progress;
    QList<SDifference> m_differences;
    CDeviceManifest m_manifest;
    QString m_errorText;
    bool m_wasCancelled = false;
};
