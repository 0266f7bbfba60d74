#pragma once

#include "commissioning/VrnCommissioningExport.h"
#include "elements/CDeviceElement.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * What has to be put on a device so that it runs a configuration: every directory, and every file
 * with its source and its place; and the problems that prevent staging.
 *
 * The directories are those of CDeviceFileSystem, those of every drive under the drive's own
 * number, and those in which files lie. The files are the document itself, which goes where
 * CDeviceBaseElement::configurationFile() names, and all that CDeviceBaseElement::allFiles() names.
 *
 * Whether a file can be staged is judged as CConfigurationCheck does it, by the same rules. A file
 * of the project may be reached through symbolic links as long as it is in the project. A project
 * path with ".." is refused, also where it comes back into the project: behind a symbolic link it
 * leads elsewhere. So is an empty file. What the check reports beyond that does not concern
 * staging:
 * - one file that the configuration names twice, for one place, is staged once;
 * - a directory that belongs to another configuration, or does not begin with a slash, is made;
 * - the manifest of the project is not read: staging is what makes a new one.
 *
 * The project is read once, when the plan is made.
 *
 * Thread-safe as every value: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CStagingPlan
{
public:
    /** The document that describes the device, as it is to lie on the device. */
    struct SDocument {
        QByteArray content;
        /** The file that it was read from; empty if it was not read from a file. */
        QString path;
    };

    struct SFile {
        /** Relative to the root of the device, with forward slashes: "velkor/conf/a.xml". */
        QString devicePath;
        /** Relative to the project's directory; empty for a document that is not in it. */
        QString projectPath;
        /**
         * Name of the file that it comes from, as the system takes it; empty if it does not come
         * from a file.
         */
        QByteArray source;
        /** That of the document; null for a file that is yet to be read. */
        QByteArray content;
        /** Bytes, when the plan was made. */
        qint64 size = 0;
    };

    struct SProblem {
        /**
         * Stable name of what is wrong: a rule of CConfigurationCheck that begins with
         * "file-name-", "device-path-", "device-file-", "project-path-" or "project-file-", or one
         * of staging: "no-configuration-name", "bad-configuration-name", "no-project",
         * "file-and-directory".
         */
        QString rule;
        /** As in SFile, or as the configuration contains it where that is wrong; may be empty. */
        QString devicePath;
        QString projectPath;
        /** One sentence for the user. */
        QString message;
    };

    /** Plans nothing. */
    CStagingPlan();
    /** @param projectDirectory holds the files that the configuration names */
    CStagingPlan(const CDeviceElement &device, const SDocument &document,
                 const QString &projectDirectory);

    /** Everything that is wrong; a plan with problems is not to be carried out. */
    QList<SProblem> problems() const;

    /** In the form and order of CDeviceManifest::directories(), parents included. */
    QStringList directories() const;
    /** In the order of their device paths. */
    QList<SFile> files() const;
    /** Bytes of all files, when the plan was made. */
    qint64 totalSize() const;

private:
    friend class StagingPlanner;

    QList<SProblem> m_problems;
    QStringList m_directories;
    QList<SFile> m_files;
};
