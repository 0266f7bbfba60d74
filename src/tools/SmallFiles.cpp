#include "tools/SmallFiles.h"

#include "settings/CDeviceSettingsFileV10.h"
#include "tools/Texts.h"

#include <QJsonArray>

QJsonObject toJson(const CDeviceSettings &settings)
{
    QJsonArray drives;
    const QMap<quint8, QString> names = settings.subDeviceNameMap();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name) {
        drives.append(QJsonObject{{QStringLiteral("driveNo"), name.key()},
                                  {QStringLiteral("name"), name.value()}});
    }
    return {{QStringLiteral("deviceName"), settings.deviceName()},
            {QStringLiteral("drive"), drives}};
}

QList<QStringList> toRows(const CDeviceSettings &settings)
{
    QList<QStringList> rows = {{Texts::tr("Device"), settings.deviceName()}};
    const QMap<quint8, QString> names = settings.subDeviceNameMap();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name) {
        rows.append({Texts::tr("Drive %1").arg(name.key()), name.value()});
    }
    return rows;
}

QJsonObject toJson(const CNetworkSettingsFile &file)
{
    QJsonObject object;
    for (const QString &key : CNetworkSettingsFile::keys()) {
        object.insert(key, file.value(key));
    }
    return object;
}

QList<QStringList> toRows(const CNetworkSettingsFile &file)
{
    QList<QStringList> rows;
    for (const QString &key : CNetworkSettingsFile::keys()) {
        rows.append({key, file.value(key)});
    }
    return rows;
}

QString settingsVersion()
{
    return CDeviceSettingsFileV10::fileVersionText();
}
