#pragma once

#include "commissioning/check/Findings.h"
#include "configfile/ItemValue.h"

#include <optional>

/**
 * What is wrong with the text of a single value, whatever stands around it; nothing where it is
 * read as it is meant.
 */
namespace ValueChecks {

using Fault = std::optional<SFault>;

/** A value of a kind: the kind knows what readers make of it, the check adds the rule. */
Fault of(ConfigurationShape::EValue kind, const QString &text);

/** @param version of the document as it was read; @p required is that of this library */
Fault version(const QString &version, const QString &required);
/** Of a configuration; it is that of a directory. */
Fault configurationName(const QString &name);
Fault pluginVersion(const CPluginElement &plugin);

/** What happens to a drive without a number of its own; for hints. */
QString nextFreeNumber();

} // namespace ValueChecks
