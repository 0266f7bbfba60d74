#pragma once

#include "configfile/ICDeviceConfigurationFile.h"
#include "Literals.h"

#include <memory>

/** Devices of any size, and their documents; every name, path and comment is a text of its own. */
namespace LargeConfiguration {

inline CFileElement file(int number)
{
    const QString directory = u"line%1/station%2/"_s.arg(number / 1000).arg(number % 40);
    CFileElement result;
    result.setFileName(u"recipe_%1.csv"_s.arg(number, 6, 10, QLatin1Char('0')));
    result.setComment(u"Recipe %1, größe & <form>"_s.arg(number));
    result.setDevicePath(u"/velkor/recipes/"_s + directory);
    result.setProjectPath(u"PackagingLine/velkor/recipes/"_s + directory);
    return result;
}

inline QList<CFileElement> files(int count)
{
    QList<CFileElement> result;
    for (int i = 0; i < count; ++i) {
        result.append(file(i));
    }
    return result;
}

inline QList<CSubDeviceElement> subDevices(int count)
{
    QList<CSubDeviceElement> result;
    for (int i = 0; i < count; ++i) {
        CSubDeviceKD3Element subDevice;
        subDevice.setHardwareId(u"KD3:Servo Drive 8A:3:2:1"_s);
        subDevice.setName(u"Axis %1"_s.arg(i));
        subDevice.setDriveId(static_cast<quint8>(i));
        subDevice.setBusId(1000u + static_cast<uint>(i));
        subDevice.setParameterFile(file(i));
        result.append(subDevice);
    }
    return result;
}

/** @p subDeviceCount is at most 256. */
inline CDeviceElement device(int fileCount, int subDeviceCount = 0)
{
    CDeviceElement result;
    result.setHardwareId(u"KD3:Servo Drive 8A:3:2:1"_s);
    result.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    result.setName(u"PackagingLine"_s);
    result.setAdditionalFiles(files(fileCount));
    result.setSubDevices(subDevices(subDeviceCount));
    return result;
}

/** A file object that holds the document of @p device; null on failure. */
inline std::unique_ptr<ICDeviceConfigurationFile> document(const CDeviceElement &device)
{
    std::unique_ptr<ICDeviceConfigurationFile> file(ICDeviceConfigurationFile::instance(nullptr));
    if (!file->createNewDocument() || !file->setConfiguration(device)) {
        file.reset();
    }
    return file;
}

/** Empty on failure. */
inline QByteArray bytes(ICDeviceConfigurationFile &file)
{
    QByteArray result;
    QString errorText;
    return file.save(result, errorText) ? result : QByteArray();
}

} // namespace LargeConfiguration
