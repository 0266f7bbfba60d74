// Long because one table lists the fields of every class.
#include "devicefiles/CDeviceCommData.h"
#include "devicefiles/COptionModuleFileName.h"
#include "elements/CBaseElement.h"
#include "elements/CDescriptionElement.h"
#include "elements/CDeviceElement.h"
#include "elements/CFileElement.h"
#include "elements/CParamFileElement.h"
#include "elements/CPluginElement.h"
#include "elements/CSubDeviceElement.h"
#include "elements/CSubDeviceKD2ElementEdit.h"
#include "elements/CSubDeviceKD3ElementEdit.h"
#include "settings/CDeviceSettings.h"
#include "settings/CNetworkSettings.h"
#include "support/ClassChecks.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QTest>

#include <type_traits>

// What a program may expect of every value class: the same checks for each of them. A new class is
// added to ElementClasses or RecordClasses and gets a name, a sample and a list of changes; without
// these it does not compile, and everyClassIsListed() and everyRecordIsListed() find a header
// without an entry. Where a class differs on purpose, a switch next to its sample says so.

using namespace ClassChecks;

CLASS_NAME(CBaseElement)
CLASS_NAME(CFileElement)
CLASS_NAME(CParamFileElement)
CLASS_NAME(CPluginElement)
CLASS_NAME(CDescriptionElement)
CLASS_NAME(CSubDeviceBaseElement)
CLASS_NAME(CSubDeviceKD2Element)
CLASS_NAME(CSubDeviceKD2ElementEdit)
CLASS_NAME(CSubDeviceKD3Element)
CLASS_NAME(CSubDeviceKD3ElementEdit)
CLASS_NAME(CSubDeviceElement)
CLASS_NAME(CDeviceBaseElement)
CLASS_NAME(CDeviceElement)
CLASS_NAME(CDeviceSettings)
CLASS_NAME(CNetworkSettings)
CLASS_NAME(CDeviceCommData)
CLASS_NAME(COptionModuleFileName)

namespace {

template <typename... Left, typename... Right>
ClassList<Left..., Right...> joined(ClassList<Left...>, ClassList<Right...>);

using ElementClasses =
    ClassList<CBaseElement, CFileElement, CParamFileElement, CPluginElement, CDescriptionElement,
              CSubDeviceBaseElement, CSubDeviceKD2Element, CSubDeviceKD3Element,
              CSubDeviceKD2ElementEdit, CSubDeviceKD3ElementEdit, CSubDeviceElement,
              CDeviceBaseElement, CDeviceElement>;

using RecordClasses =
    ClassList<CDeviceSettings, CNetworkSettings, CDeviceCommData, COptionModuleFileName>;

using ValueClasses = decltype(joined(ElementClasses(), RecordClasses()));

template <typename T>
using Changes = QList<void (*)(T &)>;

CFileElement file(const QString &name)
{
    CFileElement result;
    result.setFileName(name);
    result.setDevicePath(u"/velkor"_s);
    result.setProjectPath(u"project"_s);
    result.setComment(u"comment"_s);
    return result;
}

/** A value with something in each field. */
template <typename T>
T sample() = delete;

/** One change for each field that the comparison looks at; each changes a default and a sample().
 */
template <typename T>
Changes<T> changes() = delete;

/** Changes that the comparison overlooks on purpose, each of a default and a sample(). */
template <typename T>
Changes<T> overlookedChanges()
{
    return {};
}

template <typename T>
constexpr bool DefaultIsNull = true;

/** Whether a default-constructed value equals another one. */
template <typename T>
constexpr bool DefaultEqualsDefault = true;

/** Whether copies of a record share all fields, so that it is no more than a pointer to them. */
template <typename T>
constexpr bool SharesData = true;

template <typename T>
T baseSample()
{
    T element;
    element.setName(u"name"_s);
    element.setComment(u"comment"_s);
    element.setHardwareId(u"KD3:Servo:1:2:3"_s);
    element.setConfigurationName(u"configuration"_s);
    element.setDriveId(7);
    return element;
}

template <typename T>
Changes<T> baseChanges()
{
    return {
        [](T &e) { e.setName(u"x"_s); },
        [](T &e) { e.setComment(u"x"_s); },
        [](T &e) { e.setHardwareId(u"X:X:9:9:9"_s); },
        [](T &e) { e.setHardwareId(CDeviceHardwareId(u"X:X:9:9:9"_s)); },
        [](T &e) { e.setProductId(9); },
        [](T &e) { e.setProductVersion(9); },
        [](T &e) { e.setProductRevision(9); },
        [](T &e) { e.setProductName(u"x"_s); },
        [](T &e) { e.setConfigurationName(u"x"_s); },
    };
}

template <>
CBaseElement sample()
{
    return baseSample<CBaseElement>();
}

template <>
Changes<CBaseElement> changes()
{
    return baseChanges<CBaseElement>() << [](CBaseElement &e) { e.setDriveId(9); };
}

template <>
CFileElement sample()
{
    return file(u"file"_s);
}

template <>
Changes<CFileElement> changes()
{
    return {
        [](CFileElement &f) { f.setFileName(u"x"_s); },
        [](CFileElement &f) { f.setDevicePath(u"x"_s); },
        [](CFileElement &f) { f.setProjectPath(u"x"_s); },
        [](CFileElement &f) { f.setComment(u"x"_s); },
    };
}

template <>
CParamFileElement sample()
{
    CParamFileElement element;
    element.setName(u"name"_s);
    element.setComment(u"comment"_s);
    element.setType(NvrnGlobal::PARAM_FILE_MOTOR_PARAMETERS);
    element.setDriveId(7);
    element.setDevicePath(u"/velkor"_s);
    element.setProjectPath(u"project"_s);
    return element;
}

template <>
Changes<CParamFileElement> changes()
{
    return {
        [](CParamFileElement &f) { f.setName(u"x"_s); },
        [](CParamFileElement &f) { f.setType(NvrnGlobal::PARAM_FILE_KC2_PARAMETERS); },
        [](CParamFileElement &f) { f.setDriveId(9); },
        [](CParamFileElement &f) { f.setDevicePath(u"x"_s); },
        [](CParamFileElement &f) { f.setProjectPath(u"x"_s); },
    };
}

template <>
CPluginElement sample()
{
    CPluginElement element;
    element.setName(u"name"_s);
    element.setPriority(7);
    element.setVersion(u"1.2"_s);
    return element;
}

template <>
Changes<CPluginElement> changes()
{
    return {
        [](CPluginElement &p) { p.setName(u"x"_s); },
        [](CPluginElement &p) { p.setPriority(9); },
        [](CPluginElement &p) { p.setVersion(u"x"_s); },
    };
}

template <>
CDescriptionElement sample()
{
    CDescriptionElement element;
    element.setName(u"name"_s);
    element.setComment(u"comment"_s);
    element.setVersion(u"2.0"_s);
    element.setCreationDate(QDate(2001, 1, 1));
    element.setRevisionDate(QDate(2002, 2, 2));
    return element;
}

template <>
Changes<CDescriptionElement> changes()
{
    return {
        [](CDescriptionElement &d) { d.setName(u"x"_s); },
        [](CDescriptionElement &d) { d.setComment(u"x"_s); },
        [](CDescriptionElement &d) { d.setVersion(u"x"_s); },
        [](CDescriptionElement &d) { d.setCreationDate(QDate(1999, 9, 9)); },
        [](CDescriptionElement &d) { d.setRevisionDate(QDate(1999, 9, 9)); },
    };
}

template <typename T>
T subDeviceSample()
{
    T element = baseSample<T>();
    element.setDeviceSerial(7);
    element.setDeviceName(u"device"_s);
    element.setParameterFile(file(u"parameters"_s));
    element.setBusId(8);
    return element;
}

template <typename T>
Changes<T> subDeviceChanges()
{
    return baseChanges<T>()
        + Changes<T>{
            [](T &s) { s.setDriveId(9); },
            [](T &s) { s.setDeviceSerial(9); },
            [](T &s) { s.setDeviceName(u"x"_s); },
            [](T &s) { s.setDeviceNameAndAdaptPaths(u"x"_s); },
            [](T &s) { s.setConfigurationNameAndAdaptPaths(u"x"_s); },
            [](T &s) { s.setParameterFileName(u"x"_s); },
            [](T &s) { s.setParameterFile(file(u"x"_s)); },
            [](T &s) { s.setBusId(9); },
        };
}

template <>
CSubDeviceBaseElement sample()
{
    return subDeviceSample<CSubDeviceBaseElement>();
}

template <>
Changes<CSubDeviceBaseElement> changes()
{
    return subDeviceChanges<CSubDeviceBaseElement>();
}

template <typename T>
T kd2Sample()
{
    T element = subDeviceSample<T>();
    element.setKd2FirmwareFile(file(u"firmware"_s));
    element.setKd2LogicFile(file(u"logic"_s));
    element.setKd2ParameterFile(file(u"own parameters"_s));
    return element;
}

template <typename T>
Changes<T> kd2Changes()
{
    return subDeviceChanges<T>()
        + Changes<T>{
            [](T &s) { s.setKd2FirmwareFile(file(u"x"_s)); },
            [](T &s) { s.setKd2LogicFile(file(u"x"_s)); },
            [](T &s) { s.setKd2ParameterFile(file(u"x"_s)); },
        };
}

template <>
CSubDeviceKD2Element sample()
{
    return kd2Sample<CSubDeviceKD2Element>();
}

template <>
Changes<CSubDeviceKD2Element> changes()
{
    return kd2Changes<CSubDeviceKD2Element>();
}

template <>
CSubDeviceKD2ElementEdit sample()
{
    return kd2Sample<CSubDeviceKD2ElementEdit>();
}

template <>
Changes<CSubDeviceKD2ElementEdit> changes()
{
    return kd2Changes<CSubDeviceKD2ElementEdit>();
}

template <>
CSubDeviceKD3Element sample()
{
    return subDeviceSample<CSubDeviceKD3Element>();
}

template <>
Changes<CSubDeviceKD3Element> changes()
{
    return subDeviceChanges<CSubDeviceKD3Element>();
}

template <>
CSubDeviceKD3ElementEdit sample()
{
    return subDeviceSample<CSubDeviceKD3ElementEdit>();
}

template <>
Changes<CSubDeviceKD3ElementEdit> changes()
{
    return subDeviceChanges<CSubDeviceKD3ElementEdit>();
}

/** An empty container of sub-devices equals nothing, not even another one: so it is wanted. */
template <>
constexpr bool DefaultEqualsDefault<CSubDeviceElement> = false;

template <>
CSubDeviceElement sample()
{
    return sample<CSubDeviceKD2Element>();
}

template <>
Changes<CSubDeviceElement> changes()
{
    return {
        [](CSubDeviceElement &s) { s = CSubDeviceKD3Element(); },
        [](CSubDeviceElement &s) { s = CSubDeviceKD2Element(); },
    };
}

template <typename T>
T deviceSample()
{
    T device = baseSample<T>();
    device.setSerial(7);
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    device.setOptions(QStringList{u"-a"_s, u"-b 1"_s});
    device.setParameterFiles({sample<CParamFileElement>()});
    device.setOdictFile(file(u"dictionary"_s));
    device.setFaultTextFile(file(u"texts"_s));
    device.setAdditionalFiles({file(u"additional"_s)});
    device.setPlugins({sample<CPluginElement>()});
    device.setExecutionPlugin(u"plugin"_s);
    device.setFpgaFiles({u"image"_s});
    device.setOpcUaEnabled(true);
    device.setOpcUaFiles({file(u"model"_s)});
    device.setEtherCatMasterFile(file(u"bus"_s));
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    device.setHostAddress(QHostAddress(u"192.168.1.10"_s));
    device.setPort(7);
    device.setPreferredDeviceListNumber(7);
    device.insertSubDevice(CSubDeviceElement(sample<CSubDeviceKD2Element>()), 3);
    return device;
}

template <typename T>
Changes<T> deviceChanges()
{
    return baseChanges<T>()
        + Changes<T>{
            [](T &d) { d.setNameAndAdaptProjectPaths(u"x"_s); },
            [](T &d) { d.setConfigurationNameAndAdaptPaths(u"x"_s); },
            [](T &d) { d.setSerial(9); },
            [](T &d) { d.setDeviceClass(NDeviceConf::DEVICE_CLASS_KC2); },
            [](T &d) { d.setOptions(QStringList{u"-x"_s}); },
            [](T &d) { d.setOptions(u"-x"_s); },
            [](T &d) { d.appendOption(u"-x"_s); },
            [](T &d) { d.addParameterFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS); },
            [](T &d) { d.setOdictFile(file(u"x"_s)); },
            [](T &d) { d.setOdictFileName(u"x"_s); },
            [](T &d) { d.setFaultTextFile(file(u"x"_s)); },
            [](T &d) { d.setAdditionalFiles({file(u"x"_s)}); },
            [](T &d) { d.appendAdditionalFile(file(u"x"_s)); },
            [](T &d) { d.setPlugins({CPluginElement()}); },
            [](T &d) { d.setExecutionPlugin(u"x"_s); },
            [](T &d) { d.setFpgaFiles({u"x"_s}); },
            [](T &d) { d.appendFpgaFile(u"x"_s); },
            [](T &d) { d.setActiveFpgaFile(u"x"_s); },
            [](T &d) { d.setOpcUaEnabled(!d.isOpcUaEnabled()); },
            [](T &d) { d.setOpcUaFiles({file(u"x"_s)}); },
            [](T &d) { d.appendOpcUaFile(file(u"x"_s)); },
            [](T &d) { d.setEtherCatMasterFile(file(u"x"_s)); },
            [](T &d) { d.setHostAddressType(CDeviceItem::HOST_ADDRESS_NAME); },
            [](T &d) { d.setHostAddress(QHostAddress(u"::1"_s)); },
            [](T &d) { d.setPort(9); },
            [](T &d) { d.setPreferredDeviceListNumber(9); },
            [](T &d) { d.insertSubDevice(CSubDeviceElement(CSubDeviceKD3Element()), 3); },
            [](T &d) { d.insertSubDevice(CSubDeviceElement(CSubDeviceKD3Element())); },
            [](T &d) { d.setSubDevices({CSubDeviceElement(CSubDeviceKD3Element())}); },
        };
}

template <>
CDeviceBaseElement sample()
{
    return deviceSample<CDeviceBaseElement>();
}

template <>
Changes<CDeviceBaseElement> changes()
{
    return deviceChanges<CDeviceBaseElement>();
}

template <>
CDeviceElement sample()
{
    return deviceSample<CDeviceElement>();
}

template <>
Changes<CDeviceElement> changes()
{
    return deviceChanges<CDeviceElement>();
}

template <>
CDeviceSettings sample()
{
    CDeviceSettings settings;
    settings.setDeviceName(u"device"_s);
    settings.setSubDeviceName(u"sub-device"_s, 3);
    settings.setSubDeviceName(u""_s, 7);
    return settings;
}

template <>
Changes<CDeviceSettings> changes()
{
    return {
        [](CDeviceSettings &s) { s.setDeviceName(u"x"_s); },
        [](CDeviceSettings &s) { s.setSubDeviceName(u"x"_s, 3); },
        [](CDeviceSettings &s) { s.setSubDeviceName(u""_s, 4); },
    };
}

/** It tells addresses, which null settings have none of. */
template <>
constexpr bool DefaultIsNull<CNetworkSettings> = false;

template <>
CNetworkSettings sample()
{
    CNetworkSettings settings;
    settings.setMode(CNetworkSettings::NETWORK_MODE_STATIC);
    settings.setAddress(u"192.168.1.10"_s);
    settings.setSubnetMask(u"255.255.255.0"_s);
    settings.setGateway(u"192.168.1.1"_s);
    settings.setSyslogAddress(u"192.168.1.2"_s);
    settings.setNtpAddress(u"192.168.1.3"_s);
    settings.setNtpMode(CNetworkSettings::NTP_MODE_DAEMON);
    settings.setNetConsoleAddress(u"192.168.1.4"_s);
    settings.setNetConsolePort(7);
    settings.setKernelLogLevel(u"7"_s);
    return settings;
}

template <>
Changes<CNetworkSettings> changes()
{
    return {
        [](CNetworkSettings &s) { s.setMode(CNetworkSettings::NETWORK_MODE_DHCP); },
        [](CNetworkSettings &s) { s.setModeStr(u"DISABLED"_s); },
        [](CNetworkSettings &s) { s.setAddress(u"x"_s); },
        [](CNetworkSettings &s) { s.setSubnetMask(u"x"_s); },
        [](CNetworkSettings &s) { s.setGateway(u"x"_s); },
        [](CNetworkSettings &s) { s.setSyslogAddress(u"x"_s); },
        [](CNetworkSettings &s) { s.setSyslogAddress(u""_s); },
        [](CNetworkSettings &s) { s.setNtpAddress(u"x"_s); },
        [](CNetworkSettings &s) { s.setNtpMode(CNetworkSettings::NTP_MODE_SET_ON_STARTUP); },
        [](CNetworkSettings &s) { s.setNtpModeStr(u"NTP_DISABLE"_s); },
        [](CNetworkSettings &s) { s.setNetConsoleAddress(u"x"_s); },
        [](CNetworkSettings &s) { s.setNetConsolePort(9); },
        [](CNetworkSettings &s) { s.setKernelLogLevel(u"0"_s); },
    };
}

template <>
CDeviceCommData sample()
{
    CDeviceCommData data;
    data.setRefId(QUuid(u"{12345678-9abc-def0-1234-56789abcdef0}"_s));
    data.setName(u"name"_s);
    data.setComment(u"comment"_s);
    data.setSerial(7);
    data.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    data.setHostAddress(QHostAddress(u"192.168.1.10"_s));
    data.setPort(7);
    data.setAccessDescription(u"access"_s);
    data.setConnectionState(NvrnGlobal::CONNECTION_STATE_CONNECTED);
    data.setPreferredDeviceListNumber(7);
    data.setConfigurationName(u"configuration"_s);
    return data;
}

template <>
Changes<CDeviceCommData> changes()
{
    return {
        [](CDeviceCommData &d) { d.setRefId(QUuid(9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9)); },
        [](CDeviceCommData &d) { d.setName(u"x"_s); },
        [](CDeviceCommData &d) { d.setComment(u"x"_s); },
        [](CDeviceCommData &d) { d.setSerial(9); },
        [](CDeviceCommData &d) { d.setHostAddressType(CDeviceItem::HOST_ADDRESS_NAME); },
        [](CDeviceCommData &d) { d.setHostAddress(QHostAddress(u"::1"_s)); },
        [](CDeviceCommData &d) { d.setPort(9); },
        [](CDeviceCommData &d) { d.setAccessDescription(u"x"_s); },
        [](CDeviceCommData &d) { d.setPreferredDeviceListNumber(9); },
        [](CDeviceCommData &d) { d.setConfigurationName(u"x"_s); },
    };
}

/** A device stays the same when it goes off line. */
template <>
Changes<CDeviceCommData> overlookedChanges()
{
    return {[](CDeviceCommData &d) {
        d.setConnectionState(NvrnGlobal::CONNECTION_STATE_DISCONNECTED);
    }};
}

template <>
constexpr bool SharesData<COptionModuleFileName> = false;

template <>
COptionModuleFileName sample()
{
    return COptionModuleFileName(u"OM1_EC_H2_V1_3_text.bin"_s);
}

template <>
Changes<COptionModuleFileName> changes()
{
    return {
        [](COptionModuleFileName &n) { n.setSlot(u"OM9"_s); },
        [](COptionModuleFileName &n) { n.setInterface(u"AI"_s); },
        [](COptionModuleFileName &n) { n.setHardwareVersion(u"H9"_s); },
        [](COptionModuleFileName &n) { n.setSoftwareVersion(u"V9_9"_s); },
        [](COptionModuleFileName &n) { n.setText(u"x"_s); },
        [](COptionModuleFileName &n) { n.setSuffix(u"x"_s); },
        [](COptionModuleFileName &n) { n.setFileName(u"OM9_AI_H9_V9_9.bin"_s); },
        [](COptionModuleFileName &n) { n = u"OM9_AI_H9_V9_9.bin"_s; },
    };
}

/** Whether it is in every respect as a default-constructed value. */
template <typename T>
bool isDefault(const T &value)
{
    if (value.isNull() != DefaultIsNull<T>) {
        return false;
    }
    if (!DefaultEqualsDefault<T>) {
        return value != T();
    }
    return value == T() && StreamBytes::toBytes(value) == StreamBytes::toBytes(T());
}

template <typename T>
void checkDefault()
{
    const T value;
    QCOMPARE(value.isNull(), DefaultIsNull<T>);
    QCOMPARE(value == T(), DefaultEqualsDefault<T>);
    QCOMPARE(value != T(), !DefaultEqualsDefault<T>);
}

template <typename T>
void checkSampleIsNotNull()
{
    const T value = sample<T>();
    QVERIFY(!value.isNull());
    QVERIFY(value == sample<T>());
    QVERIFY(!(value != sample<T>()));
    QVERIFY(value != T());
    QVERIFY(T() != value);
}

template <typename T>
void checkEveryChangeCounts()
{
    int index = 0;
    for (const auto change : changes<T>()) {
        const QByteArray which = "change " + QByteArray::number(index++);
        for (const T &start : {T(), sample<T>()}) {
            T value(start);
            change(value);
            QVERIFY2(value != start, which);
            QVERIFY2(!(value == start), which);
            QVERIFY2(start != value, which);
            QVERIFY2(StreamBytes::toBytes(value) != StreamBytes::toBytes(start), which);
        }
    }
}

template <typename T>
void checkOverlookedChanges()
{
    for (const auto change : overlookedChanges<T>()) {
        for (const T &start : {T(), sample<T>()}) {
            T value(start);
            change(value);
            QVERIFY(value == start);
            QVERIFY(!(value != start));
            QCOMPARE(value.isNull(), start.isNull());
            // It is stored nevertheless, and only there.
            const QByteArray changed = StreamBytes::toBytes(value);
            QVERIFY(changed != StreamBytes::toBytes(start));
            QCOMPARE(StreamBytes::toBytes(StreamBytes::fromBytes<T>(changed)), changed);
            const T copy(value);
            QCOMPARE(StreamBytes::toBytes(copy), changed);
            value.clear();
            QVERIFY(isDefault(value));
            QCOMPARE(StreamBytes::toBytes(copy), changed);
        }
    }
}

template <typename T>
void checkCopyKeepsItsValue()
{
    int index = 0;
    for (const auto change : changes<T>()) {
        const QByteArray which = "change " + QByteArray::number(index++);
        T original = sample<T>();
        T copy(original);
        QVERIFY2(copy == original, which);

        change(copy);
        QVERIFY2(original == sample<T>(), which);
        QVERIFY2(copy != original, which);

        T assigned;
        assigned = original;
        change(original);
        QVERIFY2(assigned == sample<T>(), which);
        QVERIFY2(original == copy, which);
    }
}

template <typename T>
void checkSize()
{
    // A field beside the shared data would be copied with every copy.
    const size_t pointer = sizeof(void *);
    const size_t table = std::is_polymorphic<T>::value ? pointer : 0;
    QCOMPARE(sizeof(T) == table + pointer, SharesData<T>);
}

template <typename T>
void checkSharing()
{
    // Where an accessor gives a reference into the data, it shows who shares with whom.
    if constexpr (std::is_base_of<CBaseElement, T>::value) {
        const T original = sample<T>();
        T copy(original);
        T assigned;
        assigned = original;
        QCOMPARE(&copy.hardwareId(), &original.hardwareId());
        QCOMPARE(&assigned.hardwareId(), &original.hardwareId());
        copy.isNull();
        copy.name();
        QVERIFY(copy == original);
        StreamBytes::toBytes(copy);
        QCOMPARE(&copy.hardwareId(), &original.hardwareId());
        copy.setName(u"x"_s);
        QVERIFY(&copy.hardwareId() != &original.hardwareId());
        QCOMPARE(&assigned.hardwareId(), &original.hardwareId());
    }
}

template <typename T>
void checkAssignment()
{
    T value;
    QCOMPARE(&(value = sample<T>()), &value);
    QVERIFY(value == sample<T>());
    value = T();
    QVERIFY(isDefault(value));
    QVERIFY(value != sample<T>());
}

template <typename T>
void checkSelfAssignment()
{
    T value = sample<T>();
    const T &self = value;
    value = self;
    QVERIFY(value == sample<T>());

    T initial;
    const T &initialSelf = initial;
    initial = initialSelf;
    QVERIFY(isDefault(initial));
}

template <typename T>
void checkClear()
{
    T value = sample<T>();
    const T copy(value);
    value.clear();
    QVERIFY(isDefault(value));
    QVERIFY(copy == sample<T>());

    T initial;
    initial.clear();
    QVERIFY(isDefault(initial));
}

template <typename T>
void checkStreamRoundTrip()
{
    const QByteArray bytes = StreamBytes::toBytes(sample<T>());
    T value;
    const T copy(value);
    QCOMPARE(StreamBytes::read(bytes + "rest", value), qint64(bytes.size()));
    QVERIFY(value == sample<T>());
    QVERIFY(isDefault(copy));
    QCOMPARE(StreamBytes::toBytes(value), bytes);

    // Reading overwrites what was there, and the two values do not mix.
    int index = 0;
    for (const auto change : changes<T>()) {
        const QByteArray which = "change " + QByteArray::number(index++);
        T changed = sample<T>();
        change(changed);
        const T before(changed);
        StreamBytes::read(bytes, changed);
        QVERIFY2(changed == sample<T>(), which);
        QVERIFY2(before != sample<T>(), which);
        QCOMPARE(StreamBytes::fromBytes<T>(StreamBytes::toBytes(before)) == before, true);
    }
}

template <typename T>
void checkTruncatedStream()
{
    const QByteArray bytes = StreamBytes::toBytes(sample<T>());
    for (int size = 0; size < bytes.size(); ++size) {
        T value = sample<T>();
        QCOMPARE(StreamBytes::read(bytes.left(size), value), qint64(-1));
        value = sample<T>();
        QVERIFY(value == sample<T>());
    }
}

template <typename T>
void checkInLists()
{
    QList<T> list;
    list << T() << sample<T>() << T();
    QCOMPARE(list.indexOf(sample<T>()), 1);
    const QList<T> copy(list);
    changes<T>().first()(list[1]);
    QVERIFY(copy.at(1) == sample<T>());
    std::swap(list[0], list[1]);
    QVERIFY(isDefault(list.at(1)));
}

#define ROWS(check) rowsOf(CHECK_OF(check), ValueClasses())

void rowIf(bool wanted, const char *name, Check check)
{
    if (wanted) {
        QTest::newRow(name) << check;
    }
}

/** Only for elements, see checkSharing(). */
template <typename... Class>
void sharingRows(ClassList<Class...>)
{
    QTest::addColumn<Check>("check");
    (rowIf(std::is_base_of<CBaseElement, Class>::value, className<Class>(), &checkSharing<Class>),
     ...);
}

template <typename... Class>
void overlookedRows(ClassList<Class...>)
{
    QTest::addColumn<Check>("check");
    (rowIf(!overlookedChanges<Class>().isEmpty(), className<Class>(),
           &checkOverlookedChanges<Class>),
     ...);
}

} // namespace

class tst_valuesemantics : public QObject
{
    Q_OBJECT

private slots:
    void everyClassIsListed();
    void everyRecordIsListed();

    void defaultValue_data() { ROWS(checkDefault); }
    void defaultValue() { run(); }
    void sampleIsNotNull_data() { ROWS(checkSampleIsNotNull); }
    void sampleIsNotNull() { run(); }
    void everyChangeCounts_data() { ROWS(checkEveryChangeCounts); }
    void everyChangeCounts() { run(); }
    void overlookedChanges_data() { overlookedRows(ValueClasses()); }
    void overlookedChanges() { run(); }
    void copyKeepsItsValue_data() { ROWS(checkCopyKeepsItsValue); }
    void copyKeepsItsValue() { run(); }
    void sharing_data() { sharingRows(ValueClasses()); }
    void sharing() { run(); }
    void size_data() { rowsOf(CHECK_OF(checkSize), RecordClasses()); }
    void size() { run(); }
    void assignment_data() { ROWS(checkAssignment); }
    void assignment() { run(); }
    void selfAssignment_data() { ROWS(checkSelfAssignment); }
    void selfAssignment() { run(); }
    void clear_data() { ROWS(checkClear); }
    void clear() { run(); }
    void streamRoundTrip_data() { ROWS(checkStreamRoundTrip); }
    void streamRoundTrip() { run(); }
    void truncatedStream_data() { ROWS(checkTruncatedStream); }
    void truncatedStream() { run(); }
    void inLists_data() { ROWS(checkInLists); }
    void inLists() { run(); }
};

void tst_valuesemantics::everyClassIsListed()
{
    QStringList headers;
    const QDir elements(Places::source("src/elements"));
    for (const QFileInfo &header : elements.entryInfoList({u"C*.h"_s}, QDir::Files)) {
        headers << header.completeBaseName();
    }
    QStringList listed = classNames(ElementClasses());
    headers.sort();
    listed.sort();
    QCOMPARE(listed, headers);
}

void tst_valuesemantics::everyRecordIsListed()
{
    // Between file classes and helpers, the values are those that can be read from a data stream.
    QStringList headers;
    for (const QString &folder : {u"/settings"_s, u"/devicefiles"_s}) {
        const QDir directory(Places::source("src") + folder);
        for (const QFileInfo &header : directory.entryInfoList({u"*.h"_s}, QDir::Files)) {
            if (Files::read(header.filePath()).contains("operator>>")) {
                headers << header.completeBaseName();
            }
        }
    }
    QStringList listed = classNames(RecordClasses());
    headers.sort();
    listed.sort();
    QCOMPARE(listed, headers);
}

REGISTER_APPLESS_TEST(tst_valuesemantics)
#include "tst_valuesemantics.moc"
