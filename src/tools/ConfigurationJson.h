#pragma once

#include "commissioning/SConfigurationFinding.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QJsonArray>
#include <QJsonObject>

/** The JSON forms of what a configuration holds. Keys are the words of paths. */
QJsonObject toJson(const CFileElement &file);
QJsonObject toJson(const CSubDeviceElement &subDevice);
QJsonObject toJson(const SConfigurationFinding &finding);
/** The description and the device of an open configuration file. */
QJsonObject toJson(const CDeviceConfigurationFile10 &file);

/** The text by which documents and users name the type of a drive. */
QString subDeviceTypeName(const CSubDeviceElement &subDevice);
