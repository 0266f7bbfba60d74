#include "commissioning/stage/StagingArea.h"

#include <QList>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

const char *const Prefix = ".vrn-stage-";
const char *const OldSuffix = ".old";
const int NumberDigits = 16;
const int MaxNameTries = 100;

/** A name that createOnce() or exchange() makes. */
bool isOurs(const QByteArray &name)
{
    QByteArray number = name.mid(static_cast<int>(qstrlen(Prefix)));
    if (number.endsWith(OldSuffix)) {
        number.chop(static_cast<int>(qstrlen(OldSuffix)));
    }
    return name.startsWith(Prefix) && number.size() == NumberDigits
        && std::all_of(number.begin(), number.end(),
                       [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

/** What cannot be removed now is found again as a leftover. */
void removeAll(const QByteArray &name)
{
    std::error_code ignored;
    std::filesystem::remove_all(std::filesystem::path(name.toStdString()), ignored);
}

/** Whether @p name is that of what @p fd has open. */
bool isSame(int fd, const QByteArray &name)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(fd, &opened) == 0 && lstat(name.constData(), &named) == 0
        && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace

StagingArea::StagingArea(const QByteArray &parent, EKind kind)
    : m_parent(parent.isEmpty() || parent.endsWith('/') ? parent : parent + '/'), m_kind(kind),
      m_opened(create())
{
}

StagingArea::~StagingArea()
{
    if (m_opened.isOpen() && !m_name.isEmpty()) {
        removeAll(m_name);
    }
}

void StagingArea::removeLeftovers() const
{
    DIR *const directory = opendir(m_parent.isEmpty() ? "." : m_parent.constData());
    if (directory == nullptr) {
        return;
    }
    QList<QByteArray> names;
    while (const dirent *const entry = readdir(directory)) {
        if (isOurs(entry->d_name)) {
            names.append(m_parent + entry->d_name);
        }
    }
    closedir(directory);
    for (const QByteArray &name : qAsConst(names)) {
        const Descriptor leftover(
            open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
        struct stat status = {};
        if (leftover.isOpen() && fstat(leftover.get(), &status) == 0 && status.st_uid == geteuid()
            && flock(leftover.get(), LOCK_EX | LOCK_NB) == 0) {
            removeAll(name);
        }
    }
}

int StagingArea::create()
{
    removeLeftovers();
    for (int i = 0; i < MaxNameTries; ++i) {
        const int fd = createOnce();
        if (fd >= 0 || errno != EEXIST) {
            return fd;
        }
    }
    return -1;
}

int StagingArea::createOnce()
{
    const mode_t onlyOwner = 0700;
    const QByteArray number = QByteArray::number(QRandomGenerator::system()->generate64(), 16)
                                  .rightJustified(NumberDigits, '0');
    const QByteArray name = m_parent + Prefix + number;
    const bool isDirectory = m_kind == DIRECTORY;
    if (isDirectory && mkdir(name.constData(), onlyOwner) != 0) {
        return -1;
    }
    const int mode = isDirectory ? O_RDONLY | O_DIRECTORY : O_WRONLY | O_CREAT | O_EXCL;
    // A umask may take even the owner's rights.
    const bool isReady = !isDirectory || chmod(name.constData(), onlyOwner) == 0;
    Descriptor opened(isReady ? open(name.constData(), mode | O_CLOEXEC | O_NOFOLLOW, onlyOwner)
                              : -1);
    if (!opened.isOpen()) {
        const int error = errno;
        if (isDirectory) {
            rmdir(name.constData());
        }
        errno = error;
        return -1;
    }
    // Until it is locked, another program takes it for a leftover, and has perhaps removed it. A
    // file system without locks has no leftovers either: nobody gets the lock to remove them.
    const bool isTaken = flock(opened.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isTaken || !isSame(opened.get(), name)) {
        errno = EEXIST;
        return -1;
    }
    m_name = name;
    return opened.release();
}

int StagingArea::rename(const QByteArray &name)
{
    const int result = ::rename(m_name.constData(), name.constData());
    if (result == 0) {
        m_name.clear();
    }
    return result;
}

int StagingArea::exchange(const QByteArray &name)
{
    if (renameat2(AT_FDCWD, m_name.constData(), AT_FDCWD, name.constData(), RENAME_EXCHANGE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return -1;
    }
    // In two steps: for a moment there is nothing of that name, but never half a tree.
    const QByteArray old = m_name + OldSuffix;
    if (::rename(name.constData(), old.constData()) != 0) {
        return -1;
    }
    if (::rename(m_name.constData(), name.constData()) != 0) {
        const int error = errno;
        ::rename(old.constData(), name.constData());
        errno = error;
        return -1;
    }
    m_name = old;
    return 0;
}
