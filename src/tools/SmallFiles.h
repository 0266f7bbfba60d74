#pragma once

#include "settings/CDeviceSettings.h"
#include "settings/CNetworkSettingsFile.h"
#include "tools/Output.h"

/** The forms in which the commands print the small files of a device. */

QJsonObject toJson(const CDeviceSettings &settings);
QList<QStringList> toRows(const CDeviceSettings &settings);

QJsonObject toJson(const CNetworkSettingsFile &file);
QList<QStringList> toRows(const CNetworkSettingsFile &file);

/** Prints the text or, when @p asJson is set, the JSON form. @return an exit code */
template <typename Content>
int printContent(const Content &content, bool asJson)
{
    Output out;
    if (asJson) {
        out.print(toJson(content));
    } else {
        out.printColumns(toRows(content));
    }
    return out.finish();
}

/** The version in which settings documents are read and written. */
QString settingsVersion();
