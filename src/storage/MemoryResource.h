#pragma once

#include <QByteArray>
#include <QString>

/**
 * Bytes in memory that Qt's file classes open by name while it lives, as one of Qt's resources: it
 * needs neither a file system to write to nor one mounted at /proc. Every one has a name of its
 * own.
 *
 * Distinct ones may be used from different threads.
 */
class MemoryResource
{
public:
    explicit MemoryResource(const QByteArray &content);
    ~MemoryResource();

    /** Whether the name leads to the content. */
    bool isOk() const;
    /** For QFile and what opens files by it. */
    QString name() const;

private:
    Q_DISABLE_COPY(MemoryResource)

    const uchar *bytes() const;

    const QString m_fileName;
    const QByteArray m_collection;
    const bool m_isRegistered;
};
