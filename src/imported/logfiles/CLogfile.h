#pragma once

#include "imported/ICLogfile.h"

#include <QFile>

#include <mutex>

/** The log in a file that ICLogfile::instance() gives. */
class CLogfile : public ICLogfile
{
public:
    CLogfile(const QString &fileName, const QString &author);
    ~CLogfile() override;

    void write(ELevel level, const QString &text) override;
    QString author() const override;

private:
    std::mutex m_mutex;
    QFile m_file;
    const QString m_author;
};
