#include "imported/logfiles/CLogfile.h"

#include <QCoreApplication>
#include <QDateTime>

ICLogfile::~ICLogfile() = default;

ICLogfile *ICLogfile::instance(const QString &fileName, const QString &author)
{
    return new CLogfile(fileName, author);
}

QString ICLogfile::levelName(ELevel level)
{
    switch (level) {
    case LEVEL_EMERG:
        return QStringLiteral("emerg");
    case LEVEL_ALERT:
        return QStringLiteral("alert");
    case LEVEL_CRIT:
        return QStringLiteral("crit");
    case LEVEL_ERR:
        return QStringLiteral("error");
    case LEVEL_WARNING:
        return QStringLiteral("warn");
    case LEVEL_NOTICE:
        return QStringLiteral("notice");
    case LEVEL_INFO:
        return QStringLiteral("info");
    case LEVEL_DEBUG:
        return QStringLiteral("debug");
    }
    return QString();
}

CLogfile::CLogfile(const QString &fileName, const QString &author)
    : m_file(fileName), m_author(author)
{
}

CLogfile::~CLogfile() = default;

void CLogfile::write(ELevel level, const QString &text)
{
    QString oneLine = text;
    oneLine.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"));
    const QString line = QStringLiteral("%1 [%2] %3\n")
                             .arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs),
                                  levelName(level), oneLine);

    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_file.isOpen() && !m_file.open(QIODevice::Append | QIODevice::Unbuffered)) {
        return;
    }
    m_file.write(line.toUtf8());
}

QString CLogfile::author() const
{
    return m_author.isEmpty() ? QCoreApplication::applicationName() : m_author;
}
