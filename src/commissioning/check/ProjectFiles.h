#pragma once

#include "commissioning/CDeviceManifest.h"

#include <QHash>
#include <QSet>
#include <QString>

/**
 * Looks for files in the directory of a project. Each directory is read once, and each file looked
 * at once: what is changed meanwhile may be missed.
 */
class ProjectFiles
{
public:
    enum EState {
        STATE_PRESENT,
        /** SFile::found is where a symbolic link leads to nothing. */
        STATE_MISSING,
        /** There is one whose path differs in capital and small letters; SFile::found tells it. */
        STATE_OTHER_CASE,
        /** A symbolic link leads out of the project, to SFile::found. */
        STATE_OUTSIDE,
        /** It is a directory, a pipe or a device. */
        STATE_NOT_REGULAR,
        /** SFile::found may tell why. */
        STATE_UNREADABLE,
        STATE_EMPTY,
        /** Size or sum are not those of SFile::recorded. */
        STATE_CHANGED
    };

    struct SFile {
        EState state = STATE_PRESENT;
        QString found;
        /** Of a changed file: as it is (the sum only when the size is the same), and as it was. */
        CDeviceManifest::SEntry measured;
        CDeviceManifest::SEntry recorded;
    };

    explicit ProjectFiles(const QString &directory);

    /**
     * Reads the project's manifest, if it has one.
     * @return false when it cannot be read; it is as if there were none, then
     */
    bool readManifest(QString &errorText);

    /** Looks for the file of that path relative to the project, without "." and "..". */
    SFile find(const QString &relativePath);

private:
    struct SDirectory {
        QSet<QString> names;
        QHash<QString, QString> namesByFoldedName;
        /** Otherwise it may only be asked for exact names. */
        bool isListed = false;
        QString canonicalPath;
    };

    const SDirectory &directory(const QString &relativePath);
    SFile look(const QString &relativePath);
    void compare(const QString &relativePath, SFile &file) const;
    bool isInside(const QString &canonicalPath) const;

    const QString m_root;
    const QString m_canonicalRoot;
    QHash<QString, SDirectory> m_directories;
    QHash<QString, SFile> m_files;
    QHash<QString, CDeviceManifest::SEntry> m_recorded;
};
