#pragma once

#include <QByteArray>
#include <QString>

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

/** The two ends of a pseudo-terminal. */
class PseudoTerminal
{
public:
    PseudoTerminal() : m_master(posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_master >= 0 && grantpt(m_master) == 0 && unlockpt(m_master) == 0) {
            m_name = QString::fromLocal8Bit(ptsname(m_master));
            // Held open, so that what was written can still be read when the writer has ended.
            m_slave = ::open(m_name.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
        }
    }
    ~PseudoTerminal()
    {
        ::close(m_slave);
        ::close(m_master);
    }

    bool isOpen() const { return m_slave >= 0; }
    QString name() const { return m_name; }

    /** What there is to read at once. */
    QByteArray read() const
    {
        QByteArray result;
        char buffer[4096];
        fcntl(m_master, F_SETFL, O_NONBLOCK);
        for (ssize_t size = ::read(m_master, buffer, sizeof buffer); size > 0;
             size = ::read(m_master, buffer, sizeof buffer)) {
            result.append(buffer, static_cast<int>(size));
        }
        return result;
    }

private:
    Q_DISABLE_COPY(PseudoTerminal)

    int m_master = -1;
    int m_slave = -1;
    QString m_name;
};
