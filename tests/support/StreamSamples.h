#pragma once

#include "devicefiles/CDeviceCommData.h"
#include "devicefiles/COptionModuleFileName.h"
#include "elements/CDeviceBaseElement.h"
#include "settings/CDeviceSettings.h"
#include "settings/CNetworkSettings.h"
#include "support/ClassChecks.h"
#include "support/SampleConfiguration.h"
#include "support/StreamBytes.h"

CLASS_NAME(CDeviceHardwareId)
CLASS_NAME(CBaseElement)
CLASS_NAME(CFileElement)
CLASS_NAME(CParamFileElement)
CLASS_NAME(CPluginElement)
CLASS_NAME(CDescriptionElement)
CLASS_NAME(CSubDeviceBaseElement)
CLASS_NAME(CSubDeviceKD2Element)
CLASS_NAME(CSubDeviceKD3Element)
CLASS_NAME(CSubDeviceElement)
CLASS_NAME(CDeviceBaseElement)
CLASS_NAME(CDeviceSettings)
CLASS_NAME(CNetworkSettings)
CLASS_NAME(CDeviceCommData)
CLASS_NAME(COptionModuleFileName)

namespace StreamSamples {

/** Every class that has an operator of its own to read it. */
using StreamClasses =
    ClassChecks::ClassList<CDeviceHardwareId, CBaseElement, CFileElement, CParamFileElement,
                           CPluginElement, CDescriptionElement, CSubDeviceBaseElement,
                           CSubDeviceKD2Element, CSubDeviceKD3Element, CSubDeviceElement,
                           CDeviceBaseElement, CDeviceSettings, CNetworkSettings, CDeviceCommData,
                           COptionModuleFileName>;

/** A value with something in each field, and no more: all bytes of its stream form are damaged. */
template <typename T>
T sample() = delete;

template <>
inline CDeviceHardwareId sample()
{
    return CDeviceHardwareId(u"KD3:Servo:1:2:3"_s);
}

template <>
inline CFileElement sample()
{
    return SampleConfiguration::file(u"f"_s, u"c"_s, u"/d/"_s, u"p/"_s);
}

template <>
inline CParamFileElement sample()
{
    CParamFileElement result =
        SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_MOTOR_PARAMETERS, u"c"_s);
    result.setDriveId(7);
    result.setDevicePath(u"/d/"_s);
    result.setProjectPath(u"p/"_s);
    return result;
}

template <>
inline CPluginElement sample()
{
    return SampleConfiguration::plugin(u"n"_s, u"1.2"_s, 7);
}

template <>
inline CDescriptionElement sample()
{
    return SampleConfiguration::description();
}

template <typename T>
T baseSample()
{
    T result;
    result.setName(u"n"_s);
    result.setComment(u"c"_s);
    result.setHardwareId(u"K:S:1:2:3"_s);
    result.setConfigurationName(u"x"_s);
    result.setDriveId(7);
    return result;
}

template <>
inline CBaseElement sample()
{
    return baseSample<CBaseElement>();
}

template <typename T>
T subDeviceSample()
{
    T result = baseSample<T>();
    result.setDeviceSerial(7);
    result.setDeviceName(u"d"_s);
    result.setParameterFile(sample<CFileElement>());
    result.setBusId(8);
    return result;
}

template <>
inline CSubDeviceBaseElement sample()
{
    return subDeviceSample<CSubDeviceBaseElement>();
}

template <>
inline CSubDeviceKD2Element sample()
{
    CSubDeviceKD2Element result = subDeviceSample<CSubDeviceKD2Element>();
    result.setKd2FirmwareFile(sample<CFileElement>());
    result.setKd2LogicFile(sample<CFileElement>());
    result.setKd2ParameterFile(sample<CFileElement>());
    return result;
}

template <>
inline CSubDeviceKD3Element sample()
{
    return subDeviceSample<CSubDeviceKD3Element>();
}

template <>
inline CSubDeviceElement sample()
{
    return sample<CSubDeviceKD2Element>();
}

template <>
inline CDeviceBaseElement sample()
{
    CDeviceBaseElement device = baseSample<CDeviceBaseElement>();
    device.setSerial(7);
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    device.setOptions(QStringList{u"-a"_s, u"-b 1"_s});
    device.setParameterFiles({sample<CParamFileElement>()});
    device.setOdictFile(sample<CFileElement>());
    device.setFaultTextFile(sample<CFileElement>());
    device.setAdditionalFiles({sample<CFileElement>(), CFileElement()});
    device.setPlugins({sample<CPluginElement>()});
    device.setExecutionPlugin(u"e"_s);
    device.setFpgaFiles({u"b"_s});
    device.setOpcUaEnabled(true);
    device.setOpcUaFiles({sample<CFileElement>()});
    device.setEtherCatMasterFile(sample<CFileElement>());
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    device.setHostAddress(QHostAddress(u"192.168.1.10"_s));
    device.setPort(7);
    device.setPreferredDeviceListNumber(7);
    device.insertSubDevice(sample<CSubDeviceKD2Element>(), 1);
    device.insertSubDevice(sample<CSubDeviceKD3Element>(), 2);
    return device;
}

template <>
inline CDeviceSettings sample()
{
    CDeviceSettings settings;
    settings.setDeviceName(u"device"_s);
    settings.setSubDeviceName(u"sub-device"_s, 3);
    settings.setSubDeviceName(u""_s, 7);
    return settings;
}

template <>
inline CNetworkSettings sample()
{
    CNetworkSettings settings;
    settings.setMode(CNetworkSettings::NETWORK_MODE_STATIC);
    settings.setAddress(u"192.168.1.10"_s);
    settings.setNtpAddress(u"192.168.1.3"_s);
    return settings;
}

template <>
inline CDeviceCommData sample()
{
    CDeviceCommData data;
    data.setRefId(QUuid(u"{12345678-9abc-def0-1234-56789abcdef0}"_s));
    data.setName(u"name"_s);
    data.setSerial(7);
    data.setHostAddress(QHostAddress(u"fe80::1"_s));
    data.setAccessDescription(u"access"_s);
    data.setConfigurationName(u"configuration"_s);
    return data;
}

template <>
inline COptionModuleFileName sample()
{
    return COptionModuleFileName(u"OM1_EC_H2_V1_3_text.bin"_s);
}

template <typename T>
QByteArray sampleBytes()
{
    return StreamBytes::toBytes(sample<T>());
}

} // namespace StreamSamples
