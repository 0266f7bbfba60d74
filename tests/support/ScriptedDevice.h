#pragma once

#include <QByteArray>
#include <QIODevice>

#include <cstring>

/**
 * A device that cannot tell its size, as a pipe cannot: it hands out some bytes, at most so many at
 * a time, and then ends or fails.
 */
class ScriptedDevice : public QIODevice
{
public:
    enum class End { Reached, Failure };

    ScriptedDevice(const QByteArray &bytes, qint64 bytesAtATime, End end)
        : m_bytes(bytes), m_bytesAtATime(bytesAtATime), m_end(end)
    {
        open(QIODevice::ReadOnly);
    }

    bool isSequential() const override { return true; }

    /** How often the device was asked. */
    int calls() const { return m_calls; }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        ++m_calls;
        const qint64 size = qMin(qMin(maximum, m_bytesAtATime), qint64(m_bytes.size()) - m_at);
        if (size == 0 && m_end == End::Failure) {
            setErrorString(QStringLiteral("The device is gone."));
            return -1;
        }
        std::memcpy(data, m_bytes.constData() + m_at, static_cast<size_t>(size));
        m_at += size;
        return size;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_bytes;
    const qint64 m_bytesAtATime;
    const End m_end;
    qint64 m_at = 0;
    int m_calls = 0;
};
