#pragma once

#include "commissioning/CConfigurationItems.h"

#include <QHash>
#include <QString>

/** Makes the paths of the entries of one list, as CConfigurationItems documents them. */
class ItemPaths
{
public:
    explicit ItemPaths(const QString &list) : m_list(list) { }

    /** The path of the next entry, whose key may have been there before. */
    QString next(const QString &key)
    {
        return CConfigurationItems::entryPath(m_list, key, ++m_occurrences[key]);
    }

private:
    const QString m_list;
    QHash<QString, int> m_occurrences;
};
