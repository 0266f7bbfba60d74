#pragma once

#include "elements/CDeviceElement.h"
#include "elements/CFileElement.h"
#include "elements/CParamFileElement.h"
#include "elements/CPluginElement.h"
#include "elements/CSubDeviceElement.h"
#include "elements/CSubDeviceKD2Element.h"
#include "elements/CSubDeviceKD3Element.h"
#include "support/Literals.h"
#include "vocabulary/NvrnGlobal.h"

#include <QList>
#include <QString>
#include <QStringList>

/** Devices and their files, as the tests of the device element need them. */
namespace SampleDevice {

const QString IdText = QStringLiteral("KD3:Servo:1:2:3");
using Files = QList<CFileElement>;

inline CFileElement file(const QString &name, const QString &projectPath = {},
                         const QString &devicePath = {}, const QString &comment = {})
{
    CFileElement result;
    result.setFileName(name);
    result.setDevicePath(devicePath);
    result.setProjectPath(projectPath);
    result.setComment(comment);
    return result;
}

inline NvrnGlobal::EParamFileType toType(int value)
{
    return static_cast<NvrnGlobal::EParamFileType>(value);
}

inline CParamFileElement paramFile(const QString &name, int type = 2, int driveId = -1)
{
    CParamFileElement result;
    result.setName(name);
    result.setType(toType(type));
    result.setDriveId(driveId);
    return result;
}

inline CPluginElement plugin(const QString &name, const QString &version)
{
    CPluginElement result;
    result.setName(name);
    result.setVersion(version);
    return result;
}

inline CSubDeviceElement kd2(const QString &name = {})
{
    CSubDeviceKD2Element result;
    result.setName(name);
    return result;
}

inline CSubDeviceElement kd3(const QString &name = {})
{
    CSubDeviceKD3Element result;
    result.setName(name);
    return result;
}

inline QStringList fileNames(const Files &files)
{
    QStringList result;
    for (const CFileElement &element : files) {
        result << element.fileName();
    }
    return result;
}

/** A device with one file in each place that can hold one, and all project paths below "old". */
inline CDeviceElement deviceWithFiles()
{
    CDeviceElement device;
    device.setName(u"old"_s);
    device.setConfigurationName(u"conf"_s);
    CParamFileElement parameters = paramFile(u"params"_s);
    parameters.setProjectPath(u"old/a"_s);
    parameters.setDevicePath(u"/velkor/configurations/conf/param"_s);
    device.setParameterFiles({parameters});
    device.setOdictFile(file(u"odict"_s, u"old/b"_s, u"/opt/velkor/configurations/conf/conf"_s));
    device.setFaultTextFile(file(u"faults"_s, u"old/c"_s, u"/tmp/conf"_s));
    device.setAdditionalFiles({file(u"add1"_s, u"old/d"_s, u"/velkor/configurations/conf"_s),
                               file(u"add2"_s, u"p/old/conf/d"_s)});
    device.setPlugins({plugin(u"motion"_s, u"2"_s)});
    device.setFpgaFiles({u"fpga1"_s, u"fpga2"_s});
    device.setOpcUaFiles({file(u"opc"_s, u"old/e"_s, u"/velkor/configurations/conf/conf"_s)});
    device.setEtherCatMasterFile(
        file(u"bus"_s, u"old/f"_s, u"/velkor/configurations/conf/param"_s));

    CSubDeviceKD2Element first;
    first.setParameterFile(
        file(u"sub"_s, u"old/g"_s, u"/velkor/configurations/conf/subdevices/0/param"_s));
    first.setKd2FirmwareFile(file(u"firmware"_s, u"old/h"_s));
    first.setKd2LogicFile(file(u"logic"_s, u"old/i"_s));
    first.setKd2ParameterFile(file(u"kd2"_s, u"old/j"_s));
    device.insertSubDevice(CSubDeviceElement(first));
    CSubDeviceKD3Element second;
    second.setParameterFile(file(u"sub3"_s, u"old/k"_s));
    device.insertSubDevice(CSubDeviceElement(second));
    return device;
}

} // namespace SampleDevice
