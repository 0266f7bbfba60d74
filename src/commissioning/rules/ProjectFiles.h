#pragma once

#include "elements/CFileElement.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/**
 * Looks for files in the directory of a project, and says what state they are in. Each directory is
 * read once, and each file looked at once: what is changed meanwhile may be missed.
 *
 * Names in the file system are taken as UTF-8, whatever the locale.
 */
class ProjectFiles
{
public:
    enum EState {
        STATE_PRESENT,
        /** SFile::found is where a symbolic link leads to nothing, or to itself. */
        STATE_MISSING,
        /** There is one whose path differs in capital and small letters, which is SFile::found. */
        STATE_OTHER_CASE,
        /** A symbolic link leads out of the project, to SFile::found. */
        STATE_OUTSIDE,
        /** It is a directory, a pipe or a device. */
        STATE_NOT_REGULAR,
        /** SFile::found is the reason. */
        STATE_UNREADABLE,
        STATE_EMPTY
    };

    struct SFile {
        EState state = STATE_MISSING;
        QString found;
        /** Without links, as the system takes it; empty when there is no such file. */
        QByteArray source;
        /** Bytes. */
        qint64 size = 0;
    };

    explicit ProjectFiles(const QString &directory);

    /** Why there is no such directory; empty when there is. */
    QString errorText() const { return m_errorText; }

    /** Looks for @p file, whose directory in the project has no fault. */
    SFile find(const CFileElement &file);

    /** The path in the project of the file @p source, without links; empty when it is outside. */
    QString relativePath(const QByteArray &source) const;

    /** The name of what @p name leads to, without links; empty, with errno, when that is nothing.
     */
    static QByteArray canonical(const QByteArray &name);

private:
    struct SDirectory {
        QSet<QString> names;
        QHash<QString, QString> namesByFoldedName;
        /** Otherwise it may only be asked for exact names. */
        bool isListed = false;
        /** Empty when it cannot be found. */
        QByteArray canonicalPath;
    };

    const SDirectory &directory(const QString &relativePath);
    QString spelled(const QString &relativePath);
    QByteArray resolved(const QString &relativePath);
    SFile look(const QString &relativePath);
    QByteArray inProject(const QString &relativePath) const;

    /** Without links, and with a separator at the end; empty when there is none. */
    QByteArray m_root;
    QString m_errorText;
    QHash<QString, SDirectory> m_directories;
    QHash<QString, SFile> m_files;
};
