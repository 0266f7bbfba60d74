#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>

/**
 * Reading and replacing whole files. It belongs to no library: each that reads or writes files is
 * built with it, for the maker's imported libraries have nothing of the kind.
 *
 * A name means what it means to QFile: ":/name" is a resource, which can be read but not replaced,
 * and "prefix:name" is looked for in Qt's search paths.
 *
 * All functions may be used from any thread; two that replace one file at a time leave the content
 * of one of them.
 */
namespace FileStorage {

enum EOutcome {
    DONE,
    /** The file cannot be opened for reading or writing; nothing was touched. */
    NOT_OPENED,
    /** Reading or writing failed on the way; what was there before is still there, whole. */
    NOT_FINISHED,
    /** The new content is there, whole, but the disk does not confirm that it will stay. */
    NOT_CONFIRMED
};

struct SResult {
    EOutcome outcome = DONE;
    /** Why it failed, for the user; without the name of the file. */
    QString reason;

    explicit operator bool() const { return outcome == DONE; }
};

/**
 * Reads the file @p path; @p content is empty on failure. Only a regular file is read: a directory
 * has no content, and a pipe or device might never come to an end. One that is larger than
 * @p maximumSize bytes is not opened.
 */
SResult read(const QString &path, QByteArray &content, qint64 maximumSize);

/** Why content of more than @p maximumSize bytes is refused, for the user. */
QString tooLarge(qint64 maximumSize);

/**
 * Makes @p content the content of the file @p path.
 *
 * The new content is complete and on the disk, beside the file, before it takes the file's name:
 * whatever fails on the way, power included, leaves the old file whole. Where the directory cannot
 * be written but the file can, the file is written in place: space is reserved before the first
 * byte is changed, and a failure puts the old content back, but a power cut may leave a mixture.
 * A file that has this content already is not written, and keeps its time of modification.
 *
 * In the end the directory is synced, so that the file's name outlives a power cut, too; a failure
 * of that alone is reported as NOT_CONFIRMED. A directory that may not be read cannot be synced.
 *
 * The file keeps its mode, owner and group; one that may not be given away belongs to whoever
 * replaces it. A symbolic link stays one, and its target is replaced; other hard links keep the old
 * content. A character device is written to, not replaced; directories, pipes and disks are
 * refused. A file that may not be written is left alone, even if its directory may be.
 *
 * @param permissions of the file; none keeps those of the old file, or takes the process's default
 */
SResult replace(const QString &path, const QByteArray &content,
                QFileDevice::Permissions permissions = QFileDevice::Permissions());

} // namespace FileStorage
