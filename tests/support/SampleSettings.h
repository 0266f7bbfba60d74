#pragma once

#include "settings/CDeviceSettings.h"

#include <QByteArray>

/** Device settings, and documents that hold them. */
namespace SampleSettings {

inline CDeviceSettings settings(const QString &deviceName,
                                const QMap<quint8, QString> &subDeviceNames = {})
{
    CDeviceSettings result;
    result.setDeviceName(deviceName);
    for (auto name = subDeviceNames.constBegin(); name != subDeviceNames.constEnd(); ++name) {
        result.setSubDeviceName(name.value(), name.key());
    }
    return result;
}

/** A whole document around @p content; @p attributes are those of the root. */
inline QByteArray document(const QByteArray &content,
                           const QByteArray &attributes = " version=\"1.0\"")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceSettings" + attributes + ">\n"
        + content + "</VornDeviceSettings>\n";
}

} // namespace SampleSettings
