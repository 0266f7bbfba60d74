#pragma once

#include "commissioning/CConfigurationItems.h"

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
        const QString path = CConfigurationItems::entryPath(m_list, key);
        const int occurrence = ++m_occurrences[key];
        return occurrence == 1 ? path
                               : QStringLiteral("%1[%2]").arg(path, QString::number(occurrence));
    }

private:
    const QString m_list;
    QHash<QString, int> m_occurrences;
};
