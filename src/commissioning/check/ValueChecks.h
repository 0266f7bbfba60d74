#pragma once

#include "commissioning/check/Findings.h"

#include <optional>

/**
 * What is wrong with the text of a single value, whatever stands around it; nothing where it is
 * read as it is meant.
 */
namespace ValueChecks {

using Fault = std::optional<SFault>;

/** @param version of the document as it was read; @p required is that of this library */
Fault version(const QString &version, const QString &required);
Fault date(const QString &text);
Fault hardwareId(const QString &text);
Fault deviceClass(const QString &text, const CDeviceConfigurationFile10 &texts);
/** Of a configuration; it is that of a directory. */
Fault configurationName(const QString &name);
/** The flag that enables the OPC UA server. */
Fault opcUaFlag(const QString &text);
Fault parameterType(const QString &text, const CDeviceConfigurationFile10 &texts);
Fault pluginVersion(const CPluginElement &plugin);
Fault priority(const QString &text);
Fault driveType(const QString &text);
Fault driveNumber(const QString &text);
Fault busId(const QString &text);

/** What happens to a drive without a number of its own; for hints. */
QString nextFreeNumber();

} // namespace ValueChecks
