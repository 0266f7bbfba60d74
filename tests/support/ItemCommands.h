#pragma once

#include <QString>

/** Files with a configuration, as the commands on items need them. */
namespace ItemCommands {

const QString FileName = QStringLiteral("DeviceConfiguration.3deco");

inline QString toJson(const QString &path, const QString &value)
{
    return path + u'=' + value;
}

} // namespace ItemCommands
