#pragma once

#include <QHash>
#include <QString>

/** Makes the paths of the entries of one list, as CConfigurationItems tells them. */
class ItemPaths
{
public:
    explicit ItemPaths(const QString &list) : m_list(list) { }

    /** The path of the next entry, whose key may have been there before. */
    QString next(const QString &key)
    {
        QString escaped = key;
        escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        escaped.replace(QLatin1Char(']'), QStringLiteral("\\]"));
        const int occurrence = ++m_occurrences[key];
        return occurrence == 1
            ? QStringLiteral("%1[%2]").arg(m_list, escaped)
            : QStringLiteral("%1[%2][%3]").arg(m_list, escaped, QString::number(occurrence));
    }

private:
    const QString m_list;
    QHash<QString, int> m_occurrences;
};
