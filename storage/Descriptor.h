#pragma once

#include <QtGlobal>

#include <cerrno>

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
