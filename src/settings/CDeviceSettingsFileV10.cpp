#include "settings/CDeviceSettingsFileV10.h"

#include "vocabulary/NVornXmlTags.h"

#include <QDomDocument>

using namespace NVornXmlTags;
using NvrnGlobal::EFileResult;

namespace {

EFileResult toResult(bool saved)
{
    return saved ? NvrnGlobal::FILE_RESULT_SUCCESS : NvrnGlobal::FILE_RESULT_FAILURE;
}

} // namespace

CDeviceSettingsFileV10::CDeviceSettingsFileV10(ICLogfile *logfile)
    : CDeviceSettingsFileBase(logfile)
{
}

CDeviceSettingsFileV10::~CDeviceSettingsFileV10() = default;

QString CDeviceSettingsFileV10::fileVersionText()
{
    return QStringLiteral("1.0");
}

void CDeviceSettingsFileV10::setDeviceSettings(const CDeviceSettings &settings)
{
    QDomDocument document = domDocument();
    if (document.isNull()) {
        return;
    }
    QDomElement device = domElement(TAG_DEVICE, document.documentElement());
    setNodeValue(domElement(TAG_NAME, device), settings.deviceName());
    const QMap<quint8, QString> names = settings.subDeviceNameMap();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name) {
        QDomElement subDevice = document.createElement(TAG_SUB_DEVICE);
        setNodeValue(domElement(TAG_DRIVE_NO, subDevice), int(name.key()));
        setNodeValue(domElement(TAG_NAME, subDevice), name.value());
        device.appendChild(subDevice);
    }
}

CDeviceSettings CDeviceSettingsFileV10::deviceSettings() const
{
    CDeviceSettings settings;
    const QDomDocument document = domDocument();
    const QDomElement device = existingDomElement(TAG_DEVICE, document.documentElement());
    if (device.isNull()) {
        return settings;
    }
    const QString deviceName = getNodeValue(TAG_NAME, device);
    if (!deviceName.isEmpty()) {
        // Of an empty element the text is null, which the name of no device is.
        settings.setDeviceName(deviceName);
    }
    const QDomNodeList subDevices = device.elementsByTagName(TAG_SUB_DEVICE);
    for (int i = 0; i < subDevices.count(); ++i) {
        const QDomElement subDevice = subDevices.at(i).toElement();
        bool isNumber = false;
        const uint driveNo = getNodeValue(TAG_DRIVE_NO, subDevice).toUInt(&isNumber);
        if (isNumber) {
            settings.setSubDeviceName(getNodeValue(TAG_NAME, subDevice),
                                      static_cast<quint8>(driveNo));
        }
    }
    return settings;
}

EFileResult CDeviceSettingsFileV10::openFile(const QString &fileName, const QString &)
{
    return openDocument(fileName, fileVersionText());
}

EFileResult CDeviceSettingsFileV10::saveFile(const QString &fileName, const QString &)
{
    QString errorText;
    return toResult(CXmlAbstractVornFile::save(fileName, errorText));
}

EFileResult CDeviceSettingsFileV10::openBuffer(const QByteArray &buffer, const QString &)
{
    return openDocument(buffer, fileVersionText());
}

EFileResult CDeviceSettingsFileV10::saveBuffer(QByteArray &buffer, const QString &)
{
    QString errorText;
    return toResult(CXmlAbstractVornFile::save(buffer, errorText));
}
