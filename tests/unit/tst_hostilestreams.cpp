#include "devicefiles/CDeviceCommData.h"
#include "devicefiles/COptionModuleFileName.h"
#include "settings/CDeviceSettings.h"
#include "settings/CNetworkSettings.h"
#include "support/AllocationCounter.h"
#include "support/ClassChecks.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"
#include "support/ScriptedDevice.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <limits>

// Streams that break off, lie about counts, or come from devices that fail: reading ends with a
// status, takes no more memory than the bytes that are there explain, and leaves a usable value.

using namespace ClassChecks;

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

namespace {

/** Beside what the size of a stream explains. */
const int SmallChange = 64 * 1024;
/** The heap that reading may take, in sizes of what can be read. */
const int MemoryFactor = 16;

/** Every class that has an operator of its own to read it. */
using StreamClasses =
    ClassList<CDeviceHardwareId, CBaseElement, CFileElement, CParamFileElement, CPluginElement,
              CDescriptionElement, CSubDeviceBaseElement, CSubDeviceKD2Element,
              CSubDeviceKD3Element, CSubDeviceElement, CDeviceBaseElement, CDeviceSettings,
              CNetworkSettings, CDeviceCommData, COptionModuleFileName>;

/** A value with something in each field, and no more: all bytes of its stream form are damaged. */
template <typename T>
T sample() = delete;

#undef NAMED

template <>
CDeviceHardwareId sample()
{
    return CDeviceHardwareId(u"KD3:Servo:1:2:3"_s);
}

template <>
CFileElement sample()
{
    return SampleConfiguration::file(u"f"_s, u"c"_s, u"/d/"_s, u"p/"_s);
}

template <>
CParamFileElement sample()
{
    CParamFileElement result =
        SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_MOTOR_PARAMETERS, u"c"_s);
    result.setDriveId(7);
    result.setDevicePath(u"/d/"_s);
    result.setProjectPath(u"p/"_s);
    return result;
}

template <>
CPluginElement sample()
{
    return SampleConfiguration::plugin(u"n"_s, u"1.2"_s, 7);
}

template <>
CDescriptionElement sample()
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
CBaseElement sample()
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
CSubDeviceBaseElement sample()
{
    return subDeviceSample<CSubDeviceBaseElement>();
}

template <>
CSubDeviceKD2Element sample()
{
    CSubDeviceKD2Element result = subDeviceSample<CSubDeviceKD2Element>();
    result.setKd2FirmwareFile(sample<CFileElement>());
    result.setKd2LogicFile(sample<CFileElement>());
    result.setKd2ParameterFile(sample<CFileElement>());
    return result;
}

template <>
CSubDeviceKD3Element sample()
{
    return subDeviceSample<CSubDeviceKD3Element>();
}

template <>
CSubDeviceElement sample()
{
    return sample<CSubDeviceKD2Element>();
}

template <>
CDeviceBaseElement sample()
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
CDeviceSettings sample()
{
    CDeviceSettings settings;
    settings.setDeviceName(u"device"_s);
    settings.setSubDeviceName(u"sub-device"_s, 3);
    settings.setSubDeviceName(u""_s, 7);
    return settings;
}

template <>
CNetworkSettings sample()
{
    CNetworkSettings settings;
    settings.setMode(CNetworkSettings::NETWORK_MODE_STATIC);
    settings.setAddress(u"192.168.1.10"_s);
    settings.setNtpAddress(u"192.168.1.3"_s);
    return settings;
}

template <>
CDeviceCommData sample()
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
COptionModuleFileName sample()
{
    return COptionModuleFileName(u"OM1_EC_H2_V1_3_text.bin"_s);
}

template <typename T>
QByteArray sampleBytes()
{
    return StreamBytes::toBytes(sample<T>());
}

/** Whether it can be copied, compared, cleared, written and read back. */
template <typename T>
bool isUsable(const T &value)
{
    T copy(value);
    const QByteArray bytes = StreamBytes::toBytes(value);
    T read = sample<T>();
    if (StreamBytes::read(bytes, read) != bytes.size() || StreamBytes::toBytes(read) != bytes) {
        return false;
    }
    static_cast<void>(copy == value);
    copy = sample<T>();
    return copy == sample<T>() && StreamBytes::toBytes(value) == bytes;
}

struct SOutcome {
    QDataStream::Status status = QDataStream::Ok;
    bool isUsable = false;
    bool isSample = false;
    qint64 peakBytes = 0;
    qint64 readBytes = 0;

    bool isModest(qint64 size) const { return peakBytes <= SmallChange + MemoryFactor * size; }
};

template <typename T>
SOutcome readFrom(QDataStream &stream)
{
    SOutcome outcome;
    T value = sample<T>();
    StreamBytes::setUp(stream);
    AllocationCounter::start();
    stream >> value;
    outcome.peakBytes = AllocationCounter::counts().peakBytes;
    outcome.status = stream.status();
    outcome.readBytes = stream.device() != nullptr ? stream.device()->pos() : 0;
    outcome.isUsable = isUsable(value);
    outcome.isSample = StreamBytes::toBytes(value) == sampleBytes<T>();
    return outcome;
}

template <typename T>
SOutcome readFrom(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    return readFrom<T>(stream);
}

/** The bytes with @p value, big endian, at @p at. */
QByteArray withNumber(const QByteArray &bytes, int at, quint32 value)
{
    QByteArray result = bytes;
    for (int i = 0; i < 4; ++i) {
        result[at + i] = static_cast<char>((value >> (24 - 8 * i)) & 0xffu);
    }
    return result;
}

quint32 numberAt(const QByteArray &bytes, int at)
{
    quint32 result = 0;
    for (int i = 0; i < 4; ++i) {
        result = (result << 8) | static_cast<quint8>(bytes.at(at + i));
    }
    return result;
}

/** The largest count of elements, of bytes in a text, texts that are null, and large ones. */
const quint32 Counts[] = {0x7fffffffu, 0xfffffffeu, 0xffffffffu, 0x80000000u,
                          0x7ffffffeu, 0x40000000u, 0x00ffffffu};

template <typename T>
void checkWhole()
{
    const SOutcome outcome = readFrom<T>(sampleBytes<T>() + "rest");
    QCOMPARE(outcome.status, QDataStream::Ok);
    QCOMPARE(outcome.readBytes, qint64(sampleBytes<T>().size()));
    QVERIFY(outcome.isSample);
    QVERIFY(outcome.isUsable);
}

template <typename T>
void checkTruncated()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int size = 0; size < bytes.size(); ++size) {
        const SOutcome outcome = readFrom<T>(bytes.left(size));
        const QByteArray where = "size " + QByteArray::number(size);
        QVERIFY2(outcome.status != QDataStream::Ok, where);
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(outcome.isModest(size), where + ": " + QByteArray::number(outcome.peakBytes));
    }
}

template <typename T>
void checkFlipped()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at < bytes.size(); ++at) {
        for (const int flip : {0xff, 0x80, 0x20, 0x01}) {
            QByteArray flipped = bytes;
            flipped[at] = static_cast<char>(flipped.at(at) ^ flip);
            const SOutcome outcome = readFrom<T>(flipped);
            const QByteArray where = "byte " + QByteArray::number(at);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.readBytes <= bytes.size(), where);
            QVERIFY2(outcome.isModest(bytes.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));
        }
    }
}

template <typename T>
void checkCounts()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at + 4 <= bytes.size(); ++at) {
        for (const quint32 count : Counts) {
            const QByteArray changed = withNumber(bytes, at, count);
            const QByteArray where =
                "byte " + QByteArray::number(at) + ", count " + QByteArray::number(count, 16);
            const SOutcome outcome = readFrom<T>(changed);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.isModest(bytes.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));

            // The same where nobody can tell how much is left.
            ScriptedDevice device(changed, changed.size(), ScriptedDevice::End::Reached);
            QDataStream stream(&device);
            const SOutcome unsized = readFrom<T>(stream);
            QVERIFY2(unsized.status == outcome.status, where);
            QVERIFY2(unsized.isUsable, where);
            QVERIFY2(unsized.isModest(bytes.size()),
                     where + ": " + QByteArray::number(unsized.peakBytes));
            QVERIFY2(device.calls() <= bytes.size() + 100, where);
        }
    }
}

/** Counts that are believed as long as something comes: behind them stands a lot of one byte. */
template <typename T>
void checkCountsWithMuchBehind()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at + 4 <= bytes.size(); ++at) {
        // Only what can be a count is one: all others would but cost time.
        if (numberAt(bytes, at) > 64) {
            continue;
        }
        for (const char filling : {'\0', '\xff', '\x01'}) {
            const QByteArray much =
                withNumber(bytes, at, 0x7ffffffeu).left(at + 4) + QByteArray(16384, filling);
            const QByteArray where = "byte " + QByteArray::number(at);
            const SOutcome outcome = readFrom<T>(much);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.isModest(much.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));
        }
    }
}

template <typename T>
void checkSequential()
{
    // A device may hand out less than it was asked for; what is missing then has not come yet.
    const QByteArray bytes = sampleBytes<T>();
    for (const int atATime : {1, 3, 4, 7, 64, std::numeric_limits<int>::max()}) {
        ScriptedDevice device(bytes, atATime, ScriptedDevice::End::Reached);
        QDataStream stream(&device);
        const SOutcome outcome = readFrom<T>(stream);
        const QByteArray where = QByteArray::number(atATime) + " bytes at a time";
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(outcome.isSample || outcome.status != QDataStream::Ok, where);
        QVERIFY2(device.calls() <= 2 * bytes.size() + 10, where);
        if (atATime >= bytes.size()) {
            QVERIFY2(outcome.isSample, where);
            QVERIFY2(outcome.status == QDataStream::Ok, where);
        }
    }
}

template <typename T>
void checkFailingDevice()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int size = 0; size < bytes.size(); ++size) {
        ScriptedDevice device(bytes.left(size), std::numeric_limits<int>::max(),
                              ScriptedDevice::End::Failure);
        QDataStream stream(&device);
        const SOutcome outcome = readFrom<T>(stream);
        const QByteArray where = "size " + QByteArray::number(size);
        QVERIFY2(outcome.status != QDataStream::Ok, where);
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(device.calls() <= bytes.size() + 100, where);
    }
}

template <typename T>
void checkNoDevice()
{
    QDataStream without;
    QVERIFY(readFrom<T>(without).isUsable);

    QByteArray bytes = sampleBytes<T>();
    QDataStream broken(bytes);
    broken.setStatus(QDataStream::ReadCorruptData);
    const SOutcome outcome = readFrom<T>(broken);
    QCOMPARE(outcome.status, QDataStream::ReadCorruptData);
    QVERIFY(outcome.isUsable);
}

#define ROWS(check) rowsOf(CHECK_OF(check), StreamClasses())

} // namespace

class tst_hostilestreams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyClassIsListed();

    void whole_data() { ROWS(checkWhole); }
    void whole() { run(); }
    void truncated_data() { ROWS(checkTruncated); }
    void truncated() { run(); }
    void flipped_data() { ROWS(checkFlipped); }
    void flipped() { run(); }
    void counts_data() { ROWS(checkCounts); }
    void counts() { run(); }
    void countsWithMuchBehind_data() { ROWS(checkCountsWithMuchBehind); }
    void countsWithMuchBehind() { run(); }
    void sequential_data() { ROWS(checkSequential); }
    void sequential() { run(); }
    void failingDevice_data() { ROWS(checkFailingDevice); }
    void failingDevice() { run(); }
    void noDevice_data() { ROWS(checkNoDevice); }
    void noDevice() { run(); }
};

void tst_hostilestreams::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostilestreams::everyClassIsListed()
{
    QStringList declared;
    const QRegularExpression reading(
        u"QDataStream &operator>>\\(QDataStream &stream,\\s*(\\w+) &\\w+\\);"_s);
    for (const char *folder : {"elements", "settings", "devicefiles", "imported", "configfile"}) {
        const QDir directory(Places::source("src/%1").arg(QString::fromLatin1(folder)));
        for (const QFileInfo &header : directory.entryInfoList({u"*.h"_s}, QDir::Files)) {
            const QString text = QString::fromUtf8(Files::read(header.filePath()));
            QRegularExpressionMatchIterator matches = reading.globalMatch(text);
            while (matches.hasNext()) {
                declared << matches.next().captured(1);
            }
        }
    }
    declared.removeDuplicates();
    QStringList listed = classNames(StreamClasses());
    declared.sort();
    listed.sort();
    QCOMPARE(listed, declared);
}

REGISTER_APPLESS_TEST(tst_hostilestreams)
#include "tst_hostilestreams.moc"
