#pragma once

#include "configfile/ConfigurationShape.h"

/** What is wrong with an entry of a list; a sentence for each kind, as languages have a grammar. */
namespace EntryTexts {

QString missing(ConfigurationShape::EEntry entry, const QString &path);
QString present(ConfigurationShape::EEntry entry, const QString &path);

} // namespace EntryTexts
