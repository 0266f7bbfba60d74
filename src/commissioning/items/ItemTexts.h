#pragma once

#include "configfile/ConfigurationShape.h"

#include <QCoreApplication>

/** The texts of CConfigurationItems, under the context in which they are translated. */
class ItemTexts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationItems)

public:
    // One sentence for each kind of entry: other languages have a grammar.
    static QString missingEntry(ConfigurationShape::EEntry entry, const QString &path);
    static QString presentEntry(ConfigurationShape::EEntry entry, const QString &path);
};
