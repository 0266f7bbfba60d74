#include "elements/CBaseElement.h"
#include "elements/CDescriptionElement.h"
#include "elements/CDeviceElement.h"
#include "elements/CFileElement.h"
#include "elements/CParamFileElement.h"
#include "elements/CPluginElement.h"
#include "elements/CSubDeviceElement.h"
#include "elements/CSubDeviceKD2ElementEdit.h"
#include "elements/CSubDeviceKD3ElementEdit.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"

#include <QDir>
#include <QTest>

#include <type_traits>

// What a program may expect of every value class in elements/: the same checks for each of them. A
// new class is added to ValueClasses and gets a name, a sample and a list of changes; without these
// it does not compile, and everyClassIsListed() finds a header without an entry.

using Check = void (*)();
Q_DECLARE_METATYPE(Check)

namespace {

template <typename... Class>
struct ClassList {
};

using ValueClasses =
    ClassList<CBaseElement, CFileElement, CParamFileElement, CPluginElement, CDescriptionElement,
              CSubDeviceBaseElement, CSubDeviceKD2Element, CSubDeviceKD3Element,
              CSubDeviceKD2ElementEdit, CSubDeviceKD3ElementEdit, CSubDeviceElement,
              CDeviceBaseElement, CDeviceElement>;

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

template <typename T>
const char *className();

/** A value with something in each field. */
template <typename T>
T sample() = delete;

/** One change for each field that the comparison looks at; each changes a null and a sample(). */
template <typename T>
Changes<T> changes() = delete;

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
const char *className<CBaseElement>()
{
    return "CBaseElement";
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
const char *className<CFileElement>()
{
    return "CFileElement";
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
const char *className<CParamFileElement>()
{
    return "CParamFileElement";
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
const char *className<CPluginElement>()
{
    return "CPluginElement";
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
const char *className<CDescriptionElement>()
{
    return "CDescriptionElement";
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
const char *className<CSubDeviceBaseElement>()
{
    return "CSubDeviceBaseElement";
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
const char *className<CSubDeviceKD2Element>()
{
    return "CSubDeviceKD2Element";
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
const char *className<CSubDeviceKD2ElementEdit>()
{
    return "CSubDeviceKD2ElementEdit";
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
const char *className<CSubDeviceKD3Element>()
{
    return "CSubDeviceKD3Element";
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
const char *className<CSubDeviceKD3ElementEdit>()
{
    return "CSubDeviceKD3ElementEdit";
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

template <>
const char *className<CSubDeviceElement>()
{
    return "CSubDeviceElement";
}

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
const char *className<CDeviceBaseElement>()
{
    return "CDeviceBaseElement";
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
const char *className<CDeviceElement>()
{
    return "CDeviceElement";
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

/** An empty container of sub-devices equals nothing, not even another one: so it is wanted. */
template <typename T>
constexpr bool NullEqualsNull = !std::is_same<T, CSubDeviceElement>::value;

template <typename T>
void checkDefaultIsNull()
{
    const T value;
    QVERIFY(value.isNull());
    QCOMPARE(value == T(), NullEqualsNull<T>);
    QCOMPARE(value != T(), !NullEqualsNull<T>);
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
    QVERIFY(value.isNull());
    QVERIFY(value != sample<T>());
}

template <typename T>
void checkSelfAssignment()
{
    T value = sample<T>();
    const T &self = value;
    value = self;
    QVERIFY(value == sample<T>());

    T null;
    const T &nullSelf = null;
    null = nullSelf;
    QVERIFY(null.isNull());
}

template <typename T>
void checkClear()
{
    T value = sample<T>();
    const T copy(value);
    value.clear();
    QVERIFY(value.isNull());
    QCOMPARE(value == T(), NullEqualsNull<T>);
    QVERIFY(copy == sample<T>());

    T null;
    null.clear();
    QVERIFY(null.isNull());
}

template <typename T>
void checkStreamRoundTrip()
{
    const QByteArray bytes = StreamBytes::toBytes(sample<T>());
    T value;
    const T copy(value);
    QCOMPARE(StreamBytes::read(bytes + "rest", value), qint64(bytes.size()));
    QVERIFY(value == sample<T>());
    QVERIFY(copy.isNull());
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
    QVERIFY(list.at(1).isNull());
}

#define ROWS(check) rows([](auto type) -> Check { return &check<typename decltype(type)::Type>; })

template <typename T>
struct Tag {
    using Type = T;
};

template <typename CheckOf, typename... Class>
void rowsOf(CheckOf checkOf, ClassList<Class...>)
{
    QTest::addColumn<Check>("check");
    ((QTest::newRow(className<Class>()) << checkOf(Tag<Class>())), ...);
}

template <typename CheckOf>
void rows(CheckOf checkOf)
{
    rowsOf(checkOf, ValueClasses());
}

/** Only for elements, see checkSharing(). */
template <typename... Class>
void sharingRows(ClassList<Class...>)
{
    QTest::addColumn<Check>("check");
    const auto row = [](const char *name, bool isElement, Check check) {
        if (isElement) {
            QTest::newRow(name) << check;
        }
    };
    (row(className<Class>(), std::is_base_of<CBaseElement, Class>::value, &checkSharing<Class>),
     ...);
}

template <typename... Class>
QStringList classNames(ClassList<Class...>)
{
    return {QString::fromLatin1(className<Class>())...};
}

void run()
{
    QFETCH(Check, check);
    check();
}

} // namespace

class tst_valuesemantics : public QObject
{
    Q_OBJECT

private slots:
    void everyClassIsListed();

    void defaultIsNull_data() { ROWS(checkDefaultIsNull); }
    void defaultIsNull() { run(); }
    void sampleIsNotNull_data() { ROWS(checkSampleIsNotNull); }
    void sampleIsNotNull() { run(); }
    void everyChangeCounts_data() { ROWS(checkEveryChangeCounts); }
    void everyChangeCounts() { run(); }
    void copyKeepsItsValue_data() { ROWS(checkCopyKeepsItsValue); }
    void copyKeepsItsValue() { run(); }
    void sharing_data() { sharingRows(ValueClasses()); }
    void sharing() { run(); }
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
    const QDir elements(QStringLiteral(VRN_SOURCE_DIR "/elements"));
    for (const QFileInfo &header : elements.entryInfoList({u"C*.h"_s}, QDir::Files)) {
        headers << header.completeBaseName();
    }
    QStringList listed = classNames(ValueClasses());
    headers.sort();
    listed.sort();
    QCOMPARE(listed, headers);
}

QTEST_APPLESS_MAIN(tst_valuesemantics)
#include "tst_valuesemantics.moc"
