#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sys/mman.h>

/** A file that can be opened by name while it lives, and needs no disk. */
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content)
    {
        m_isOk =
            m_file.open(memfd_create("fuzz", MFD_CLOEXEC),
                        QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)
            && m_file.write(content) == content.size();
    }

    bool isOk() const { return m_isOk; }
    QString name() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file.handle()); }

private:
    Q_DISABLE_COPY(MemoryFile)

    QFile m_file;
    bool m_isOk = false;
};
