#include "storage/FileStorage.h"

#include "storage/Descriptor.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <climits>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FileStorage {

namespace {

const int MaxLinks = 40;
const int MaxNameTries = 100;
const qint64 AnySize = std::numeric_limits<int>::max() / 2; // that a QByteArray can hold

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileStorage)
};

SResult failure(EOutcome outcome, int error)
{
    return {outcome, qt_error_string(error)};
}

SResult notRegular()
{
    return {NOT_OPENED, Texts::tr("This is not a regular file.")};
}

/** Whether QFile takes @p path for a name of its own and not of the system, as ":/resource". */
bool isVirtual(const QString &path)
{
    return !path.isEmpty() && !QFileInfo(path).isNativePath();
}

/**
 * The name as the system takes it, with what Qt's search paths make of "prefix:name"; empty when it
 * cannot be one.
 */
QByteArray systemName(const QString &path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).filePath());
    return name.contains('\0') ? QByteArray() : name;
}

QByteArray directoryOf(const QByteArray &name)
{
    return name.left(name.lastIndexOf('/') + 1);
}

/** Where the links from @p name end, also when nothing is there; empty, with errno, on failure. */
QByteArray followLinks(QByteArray name)
{
    for (int i = 0; i < MaxLinks; ++i) {
        QByteArray target(PATH_MAX, Qt::Uninitialized);
        const ssize_t size =
            readlink(name.constData(), target.data(), static_cast<size_t>(target.size()));
        const bool isNoLink = errno == EINVAL || errno == ENOENT || errno == ENOTDIR;
        if (size < 0 && !isNoLink) {
            return QByteArray();
        }
        if (size <= 0 || size == target.size()) {
            break;
        }
        target.truncate(static_cast<int>(size));
        name = target.startsWith('/') ? target : directoryOf(name) + target;
    }
    return name;
}

mode_t toMode(QFileDevice::Permissions permissions)
{
    mode_t mode = 0;
    const auto add = [&](QFileDevice::Permissions any, mode_t bit) {
        mode |= (permissions & any) ? bit : 0;
    };
    add(QFileDevice::ReadOwner | QFileDevice::ReadUser, S_IRUSR);
    add(QFileDevice::WriteOwner | QFileDevice::WriteUser, S_IWUSR);
    add(QFileDevice::ExeOwner | QFileDevice::ExeUser, S_IXUSR);
    add(QFileDevice::ReadGroup, S_IRGRP);
    add(QFileDevice::WriteGroup, S_IWGRP);
    add(QFileDevice::ExeGroup, S_IXGRP);
    add(QFileDevice::ReadOther, S_IROTH);
    add(QFileDevice::WriteOther, S_IWOTH);
    add(QFileDevice::ExeOther, S_IXOTH);
    return mode;
}

/**
 * Only the super-user may give files away: whoever else replaces a file then owns it. The group
 * stays if it is one of the user's.
 */
void keepOwner(int fd, const struct stat &before)
{
    const auto sameOwner = static_cast<uid_t>(-1);
    if (fchown(fd, before.st_uid, before.st_gid) != 0) {
        const int ignored = fchown(fd, sameOwner, before.st_gid);
        Q_UNUSED(ignored)
    }
}

/** A new file under a name of its own; when it still has that name in the end, it is removed. */
class TemporaryFile
{
public:
    explicit TemporaryFile(const QByteArray &directory) : m_file(create(directory, m_name)) { }

    ~TemporaryFile()
    {
        if (m_file.isOpen()) {
            m_file.close();
        }
        if (!m_name.isEmpty()) {
            unlink(m_name.constData());
        }
    }

    bool isOpen() const { return m_file.isOpen(); }
    int get() const { return m_file.get(); }
    int close() { return m_file.close(); }

    int rename(const QByteArray &name)
    {
        const int result = ::rename(m_name.constData(), name.constData());
        if (result == 0) {
            m_name.clear();
        }
        return result;
    }

private:
    // Not mkstemp: that takes a mode of its own, and the process's default cannot be asked for
    // without changing it.
    static int create(const QByteArray &directory, QByteArray &name)
    {
        const mode_t everybody = 0666;
        for (int i = 0; i < MaxNameTries; ++i) {
            name = directory + ".vrn-"
                + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".tmp";
            const int fd =
                open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everybody);
            if (fd >= 0) {
                return fd;
            }
            if (errno != EEXIST) {
                break;
            }
        }
        const int error = errno;
        name.clear();
        errno = error;
        return -1;
    }

    QByteArray m_name;
    Descriptor m_file;
};

SResult notConfirmed(int error)
{
    return {NOT_CONFIRMED,
            Texts::tr("%1; the new content is in place, but a power failure may undo this")
                .arg(qt_error_string(error))};
}

int rewrite(int fd, const QByteArray &content)
{
    return lseek(fd, 0, SEEK_SET) == 0 && writeAll(fd, content.constData(), content.size()) == 0
            && ftruncate(fd, content.size()) == 0 && syncAll(fd) == 0
        ? 0
        : -1;
}

int reserve(int fd, int length)
{
    errno = posix_fallocate(fd, 0, length);
    return errno == 0 ? 0 : -1;
}

SResult overwrite(const QString &path, const QByteArray &name, const QByteArray &content,
                  QFileDevice::Permissions permissions)
{
    QByteArray before;
    const SResult known = read(path, before, AnySize);
    if (!known) {
        return {NOT_OPENED, known.reason};
    }
    Descriptor file(open(name.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen()) {
        return failure(NOT_OPENED, errno);
    }
    const bool hasSpace =
        content.size() <= before.size() || reserve(file.get(), content.size()) == 0;
    // The mode comes last: it is not taken back.
    if (hasSpace && rewrite(file.get(), content) == 0
        && (!permissions || fchmod(file.get(), toMode(permissions)) == 0)) {
        return SResult();
    }
    const int error = errno;
    if (hasSpace) {
        rewrite(file.get(), before);
    } else {
        const int cut = ftruncate(file.get(), before.size());
        Q_UNUSED(cut)
    }
    return failure(NOT_FINISHED, error);
}

/** False also when the file may not be read. */
bool holds(const QString &path, const struct stat &status, const QByteArray &content)
{
    QByteArray present;
    return status.st_size == content.size() && read(path, present, AnySize) && present == content;
}

/** Gives a file that has its content already the rest of what replace() promises. */
SResult confirm(int fd, const struct stat &status, QFileDevice::Permissions permissions)
{
    if (permissions && (status.st_mode & ALLPERMS) != toMode(permissions)
        && fchmod(fd, toMode(permissions)) != 0) {
        return failure(NOT_FINISHED, errno);
    }
    return syncAll(fd) == 0 ? SResult() : notConfirmed(errno);
}

/** Owner and mode of a new file: those of @p before, null when it replaces none, or as wanted. */
bool setOwnerAndMode(int fd, const struct stat *before, QFileDevice::Permissions permissions)
{
    if (before != nullptr) {
        keepOwner(fd, *before);
    }
    if (!permissions && before == nullptr) {
        return true;
    }
    const mode_t mode = permissions ? toMode(permissions) : before->st_mode & ALLPERMS;
    return fchmod(fd, mode) == 0;
}

/** Writing takes the bits for another user or group from a file, unless the super-user writes. */
bool setIdBitsAgain(int fd, const struct stat *before, QFileDevice::Permissions permissions)
{
    const bool hasThem = before != nullptr && (before->st_mode & (S_ISUID | S_ISGID)) != 0;
    return permissions || !hasThem || fchmod(fd, before->st_mode & ALLPERMS) == 0;
}

/** Makes the file complete, and only then gives it the name @p name. */
SResult fill(TemporaryFile &file, const QByteArray &name, const QByteArray &content,
             const struct stat *before, QFileDevice::Permissions permissions)
{
    const bool replaced = setOwnerAndMode(file.get(), before, permissions)
        && writeAll(file.get(), content.constData(), content.size()) == 0
        && setIdBitsAgain(file.get(), before, permissions) && syncAll(file.get()) == 0
        && file.close() == 0 && file.rename(name) == 0;
    if (!replaced) {
        return failure(NOT_FINISHED, errno);
    }
    return syncDirectory(directoryOf(name)) == 0 ? SResult() : notConfirmed(errno);
}

SResult writeTo(Descriptor &device, const QByteArray &content)
{
    // It was opened without waiting; from here on it may take its time.
    const bool written = fcntl(device.get(), F_SETFL, 0) == 0
        && writeAll(device.get(), content.constData(), content.size()) == 0 && device.close() == 0;
    return written ? SResult() : failure(NOT_FINISHED, errno);
}

SResult readAll(QFile &file, QByteArray &content)
{
    content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        content.clear();
        return {NOT_FINISHED, file.errorString()};
    }
    return SResult();
}

SResult readVirtual(const QString &path, QByteArray &content, qint64 maximumSize)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return failure(NOT_OPENED, info.isDir() ? EISDIR : ENOENT);
    }
    if (info.size() > maximumSize) {
        return {NOT_OPENED, tooLarge(maximumSize)};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {NOT_OPENED, file.errorString()};
    }
    return readAll(file, content);
}

} // namespace

QString tooLarge(qint64 maximumSize)
{
    return Texts::tr("The file is larger than %1 bytes.").arg(maximumSize);
}

SResult read(const QString &path, QByteArray &content, qint64 maximumSize)
{
    content.clear();
    if (isVirtual(path)) {
        return readVirtual(path, content, maximumSize);
    }
    const QByteArray name = systemName(path);
    Descriptor opened(open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status = {};
    if (!opened.isOpen() || fstat(opened.get(), &status) != 0) {
        return failure(NOT_OPENED, errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return failure(NOT_OPENED, EISDIR);
    }
    if (!S_ISREG(status.st_mode)) {
        return notRegular();
    }
    if (status.st_size > maximumSize) {
        return {NOT_OPENED, tooLarge(maximumSize)};
    }
    QFile file;
    if (!file.open(opened.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return {NOT_OPENED, file.errorString()};
    }
    return readAll(file, content);
}

SResult replace(const QString &path, const QByteArray &content,
                QFileDevice::Permissions permissions)
{
    if (isVirtual(path)) {
        return failure(NOT_OPENED, EROFS);
    }
    const QByteArray givenName = systemName(path);
    if (givenName.isEmpty()) {
        return failure(NOT_OPENED, ENOENT);
    }
    const QByteArray name = followLinks(givenName);
    if (name.isEmpty()) {
        return failure(NOT_OPENED, errno);
    }
    Descriptor old(open(name.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    const bool isNew = !old.isOpen() && errno == ENOENT;
    struct stat status = {};
    if (!isNew && (!old.isOpen() || fstat(old.get(), &status) != 0)) {
        return failure(NOT_OPENED, errno);
    }
    if (S_ISCHR(status.st_mode)) {
        return writeTo(old, content);
    }
    if (!isNew && !S_ISREG(status.st_mode)) {
        return notRegular();
    }
    if (!isNew && holds(path, status, content)) {
        return confirm(old.get(), status, permissions);
    }

    TemporaryFile file(directoryOf(name));
    if (!file.isOpen()) {
        const int error = errno;
        const bool mayNotBeCreated = error == EACCES || error == EPERM || error == EROFS;
        if (old.isOpen() && mayNotBeCreated) {
            return overwrite(path, name, content, permissions);
        }
        return failure(isNew ? NOT_OPENED : NOT_FINISHED, error);
    }
    return fill(file, name, content, isNew ? nullptr : &status, permissions);
}

} // namespace FileStorage
