#pragma once

#include "imported/ICLogfile.h"

#include <QList>
#include <QPair>

#include <mutex>

/** A log that keeps its entries in memory. */
class RecordingLog : public ICLogfile
{
public:
    using Entry = QPair<ELevel, QString>;

    explicit RecordingLog(const QString &author = QString()) : m_author(author) { }

    void write(ELevel level, const QString &text) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_entries.append({level, text});
    }

    QString author() const override { return m_author; }

    QList<Entry> entries() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_entries;
    }

private:
    mutable std::mutex m_mutex;
    QList<Entry> m_entries;
    const QString m_author;
};
