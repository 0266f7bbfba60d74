#pragma once

#include "imported/CXmlAbstractVornFile.h"
#include "settings/CDeviceSettingsFileBase.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/** Files of version 1.0 and their documents. */
namespace SettingsFileV10 {

const QString Version = QStringLiteral("1.0");

inline QByteArray bytesOf(CDeviceSettingsFileBase &file)
{
    QByteArray bytes;
    QString errorText;
    return file.CXmlAbstractVornFile::save(bytes, errorText) ? bytes : QByteArray();
}

} // namespace SettingsFileV10
