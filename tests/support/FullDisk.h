#pragma once

#include <QtGlobal>

#include <csignal>

#include <sys/resource.h>

/** While it lives, no file may grow beyond @p bytes, as on a disk that is full. */
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_previousHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_previous);
        rlimit limited = m_previous;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }

private:
    Q_DISABLE_COPY(FullDisk)

    using SignalHandler = void (*)(int);

    SignalHandler m_previousHandler;
    rlimit m_previous = {};
};
