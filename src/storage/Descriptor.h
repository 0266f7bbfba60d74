#pragma once

#include <QByteArray>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

/** Owns an open file; 0 of the operations is success, -1 failure with errno. */
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) { }
    ~Descriptor() { close(); }

    bool isOpen() const { return m_fd >= 0; }
    int get() const { return m_fd; }

    int close()
    {
        const int fd = m_fd;
        m_fd = -1;
        // An interrupted close has closed the file nevertheless.
        return fd < 0 || ::close(fd) == 0 || errno == EINTR ? 0 : -1;
    }

    int release()
    {
        const int fd = m_fd;
        m_fd = -1;
        return fd;
    }

private:
    Q_DISABLE_COPY(Descriptor)

    int m_fd;
};

/** Writes all of it, whatever comes between. */
inline int writeAll(int fd, const char *bytes, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t written = write(fd, bytes + done, static_cast<size_t>(size - done));
        if (written < 0 && errno != EINTR) {
            return -1;
        }
        done += qMax<ssize_t>(written, 0);
    }
    return 0;
}

/** Where a file system or device has nothing to sync, there is nothing that could be lost. */
inline int syncAll(int fd)
{
    return fsync(fd) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS ? 0 : -1;
}

inline int syncDirectory(const QByteArray &directory)
{
    const Descriptor entries(open(directory.isEmpty() ? "." : directory.constData(),
                                  O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!entries.isOpen()) {
        return errno == EACCES || errno == EPERM ? 0 : -1;
    }
    return syncAll(entries.get());
}
