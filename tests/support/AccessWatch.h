#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sys/inotify.h>
#include <unistd.h>

/** Tells whether anybody opens a file while the watch lives. */
class AccessWatch
{
public:
    explicit AccessWatch(const QString &path) : m_queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        m_ok = inotify_add_watch(m_queue, QFile::encodeName(path).constData(), IN_OPEN) >= 0;
    }

    ~AccessWatch() { close(m_queue); }

    bool isOk() const { return m_ok; }

    bool wasOpened() const
    {
        QByteArray events(4096, '\0');
        return read(m_queue, events.data(), static_cast<size_t>(events.size())) > 0;
    }

private:
    Q_DISABLE_COPY(AccessWatch)

    const int m_queue;
    bool m_ok = false;
};
