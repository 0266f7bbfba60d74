#include "devicefiles/CDeviceCommData.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>
#include <type_traits>

using Change = void (*)(CDeviceCommData &);

Q_DECLARE_METATYPE(CDeviceCommData)
Q_DECLARE_METATYPE(Change)

namespace {

const QUuid SampleId(0x01234567, 0x89ab, 0xcdef, 0x10, 0x32, 0x54, 0x76, 0x98, 0xba, 0xdc, 0xfe);
const QUuid OtherId(0x01234567, 0x89ab, 0xcdef, 0x10, 0x32, 0x54, 0x76, 0x98, 0xba, 0xdc, 0xff);

/** Something in each field, each different from its default. */
CDeviceCommData sample()
{
    CDeviceCommData data;
    data.setRefId(SampleId);
    data.setName(u"name"_s);
    data.setComment(u"comment"_s);
    data.setSerial(7);
    data.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    data.setHostAddress(QHostAddress(u"192.168.1.10"_s));
    data.setPort(8080);
    data.setAccessDescription(u"access"_s);
    data.setConnectionState(NvrnGlobal::CONNECTION_STATE_CONNECTED);
    data.setPreferredDeviceListNumber(3);
    data.setConfigurationName(u"configuration"_s);
    return data;
}

struct NamedChange {
    const char *name;
    Change change;
};

/** Each changes one field that the comparison looks at, in a null record and in a sample(). */
const NamedChange Changes[] = {
    {"reference id", [](CDeviceCommData &d) { d.setRefId(OtherId); }},
    {"name", [](CDeviceCommData &d) { d.setName(u"Name"_s); }},
    {"comment", [](CDeviceCommData &d) { d.setComment(u"Comment"_s); }},
    {"serial", [](CDeviceCommData &d) { d.setSerial(8); }},
    {"type of address",
     [](CDeviceCommData &d) { d.setHostAddressType(CDeviceItem::HOST_ADDRESS_NAME); }},
    {"address", [](CDeviceCommData &d) { d.setHostAddress(QHostAddress(u"192.168.1.11"_s)); }},
    {"port", [](CDeviceCommData &d) { d.setPort(8081); }},
    {"access description", [](CDeviceCommData &d) { d.setAccessDescription(u"Access"_s); }},
    {"list number", [](CDeviceCommData &d) { d.setPreferredDeviceListNumber(0); }},
    {"configuration name", [](CDeviceCommData &d) { d.setConfigurationName(u"Configuration"_s); }},
};

const NamedChange StateChange = {
    "connection state",
    [](CDeviceCommData &d) { d.setConnectionState(NvrnGlobal::CONNECTION_STATE_DISCONNECTED); }};

NvrnGlobal::EConnectionState state(int number)
{
    return static_cast<NvrnGlobal::EConnectionState>(number);
}

CDeviceItem::EHostAddrType addressType(int number)
{
    return static_cast<CDeviceItem::EHostAddrType>(number);
}

class Noting : public CDeviceCommData
{
public:
    void setConfigurationName(const QString &name) override
    {
        CDeviceCommData::setConfigurationName(u"<%1>"_s.arg(name));
    }
};

/** The bytes of a default record before its address, and behind it. */
const QByteArray DefaultHead = QByteArray::fromHex("00000000 0000 0000 0000000000000000" // refId
                                                   "ffffffff" // name
                                                   "ffffffff" // comment
                                                   "00000000" // serial
                                                   "00000000"); // type of address
const QByteArray DefaultTail = QByteArray::fromHex("0000" // port
                                                   "ffffffff" // access description
                                                   "00000002" // connection state
                                                   "ffffffff" // list number
                                                   "ffffffff"); // configuration name

} // namespace

class tst_cdevicecommdata : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void accessors();
    void extremes();
    void enumerationValues();
    void null_data();
    void null();
    void clear();
    void equality_data();
    void equality();
    void stateIsNotCompared();
    void copiesAreIndependent_data();
    void copiesAreIndependent();
    void selfAssignment();
    void stateNeedsSerial_data();
    void stateNeedsSerial();
    void stateComesBack();
    void virtualSetter();
    void connectionStateText_data();
    void connectionStateText();
    void hostAddressTypeText_data();
    void hostAddressTypeText();
    void streamForm_data();
    void streamForm();
    void readingDetaches();
    void numbersOfTheStreamStay();
    void truncatedStream();
    void randomStream();
};

void tst_cdevicecommdata::defaults()
{
    const CDeviceCommData data;
    QVERIFY(data.refId().isNull());
    QCOMPARE(data.name(), QString());
    QCOMPARE(data.comment(), QString());
    QCOMPARE(data.serial(), 0u);
    QCOMPARE(static_cast<int>(data.hostAddressType()), 0);
    QVERIFY(data.hostAddress().isNull());
    QCOMPARE(data.port(), quint16(0));
    QCOMPARE(data.accessDescription(), QString());
    QCOMPARE(static_cast<int>(data.connectionState()), 2);
    QCOMPARE(data.preferredDeviceListNumber(), -1);
    QCOMPARE(data.configurationName(), QString());
    QVERIFY(data.isNull());
}

void tst_cdevicecommdata::accessors()
{
    const CDeviceCommData data = sample();
    QCOMPARE(data.refId(), SampleId);
    QCOMPARE(data.name(), u"name"_s);
    QCOMPARE(data.comment(), u"comment"_s);
    QCOMPARE(data.serial(), 7u);
    QCOMPARE(data.hostAddressType(), CDeviceItem::HOST_ADDRESS_IPV4);
    QCOMPARE(data.hostAddress(), QHostAddress(u"192.168.1.10"_s));
    QCOMPARE(data.port(), quint16(8080));
    QCOMPARE(data.accessDescription(), u"access"_s);
    QCOMPARE(data.connectionState(), NvrnGlobal::CONNECTION_STATE_CONNECTED);
    QCOMPARE(data.preferredDeviceListNumber(), 3);
    QCOMPARE(data.configurationName(), u"configuration"_s);
    QVERIFY(!data.isNull());
}

void tst_cdevicecommdata::extremes()
{
    // Setters store what they are given.
    CDeviceCommData data;
    data.setSerial(4294967295u);
    data.setPort(65535);
    data.setPreferredDeviceListNumber(std::numeric_limits<int>::min());
    data.setHostAddressType(addressType(77));
    data.setConnectionState(state(-77));
    data.setName(u" a\nb\t%1/\\ "_s);
    QCOMPARE(data.serial(), 4294967295u);
    QCOMPARE(data.port(), quint16(65535));
    QCOMPARE(data.preferredDeviceListNumber(), std::numeric_limits<int>::min());
    QCOMPARE(static_cast<int>(data.hostAddressType()), 77);
    QCOMPARE(static_cast<int>(data.connectionState()), -77);
    QCOMPARE(data.name(), u" a\nb\t%1/\\ "_s);

    data.setPreferredDeviceListNumber(std::numeric_limits<int>::max());
    QCOMPARE(data.preferredDeviceListNumber(), std::numeric_limits<int>::max());
}

void tst_cdevicecommdata::enumerationValues()
{
    QCOMPARE(static_cast<int>(CDeviceItem::HOST_ADDRESS_UNDEFINED), 0);
    QCOMPARE(static_cast<int>(NvrnGlobal::CONNECTION_STATE_DISCONNECTED), 0);
    QCOMPARE(static_cast<int>(NvrnGlobal::CONNECTION_STATE_CONNECTED), 1);
    QCOMPARE(static_cast<int>(NvrnGlobal::CONNECTION_STATE_UNKNOWN), 2);
}

void tst_cdevicecommdata::null_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isNull");

    for (const NamedChange &change : Changes) {
        QTest::newRow(change.name) << change.change << false;
    }
    QTest::newRow(StateChange.name) << StateChange.change << true;
    const Change empty = [](CDeviceCommData &d) { d.setName(u""_s); };
    QTest::newRow("empty name") << empty << true;
}

void tst_cdevicecommdata::null()
{
    QFETCH(Change, change);
    QFETCH(bool, isNull);

    CDeviceCommData data;
    change(data);
    QCOMPARE(data.isNull(), isNull);
    QCOMPARE(data == CDeviceCommData(), isNull);
}

void tst_cdevicecommdata::clear()
{
    CDeviceCommData data = sample();
    const CDeviceCommData copy(data);
    data.clear();
    QVERIFY(data.isNull());
    // The comparison would not see a state that was left.
    QCOMPARE(StreamBytes::toBytes(data), StreamBytes::toBytes(CDeviceCommData()));
    QCOMPARE(StreamBytes::toBytes(copy), StreamBytes::toBytes(sample()));
}

void tst_cdevicecommdata::equality_data()
{
    QTest::addColumn<Change>("change");

    for (const NamedChange &change : Changes) {
        QTest::newRow(change.name) << change.change;
    }
}

void tst_cdevicecommdata::equality()
{
    QFETCH(Change, change);

    for (const CDeviceCommData &start : {CDeviceCommData(), sample()}) {
        CDeviceCommData left(start);
        CDeviceCommData right(start);
        QVERIFY(left == right);
        QVERIFY(!(left != right));
        change(left);
        QVERIFY(!(left == right));
        QVERIFY(!(right == left));
        QVERIFY(left != right);
        change(right);
        QVERIFY(left == right);
        QVERIFY(!(left != right));
    }
}

void tst_cdevicecommdata::stateIsNotCompared()
{
    const CDeviceCommData left = sample();
    CDeviceCommData right = sample();
    right.setConnectionState(NvrnGlobal::CONNECTION_STATE_DISCONNECTED);
    QVERIFY(left.connectionState() != right.connectionState());
    QVERIFY(left == right);
    QVERIFY(!(left != right));
}

void tst_cdevicecommdata::copiesAreIndependent_data()
{
    equality_data();
    QTest::newRow(StateChange.name) << StateChange.change;
}

void tst_cdevicecommdata::copiesAreIndependent()
{
    QFETCH(Change, change);

    const QByteArray before = StreamBytes::toBytes(sample());
    CDeviceCommData original = sample();
    CDeviceCommData copy(original);
    CDeviceCommData assigned;
    QCOMPARE(&(assigned = original), &assigned);
    QCOMPARE(StreamBytes::toBytes(copy), before);
    QCOMPARE(StreamBytes::toBytes(assigned), before);

    change(copy);
    QVERIFY(StreamBytes::toBytes(copy) != before);
    QCOMPARE(StreamBytes::toBytes(original), before);
    change(original);
    QCOMPARE(StreamBytes::toBytes(original), StreamBytes::toBytes(copy));
    QCOMPARE(StreamBytes::toBytes(assigned), before);
}

void tst_cdevicecommdata::selfAssignment()
{
    CDeviceCommData data = sample();
    const CDeviceCommData &self = data;
    data = self;
    QCOMPARE(StreamBytes::toBytes(data), StreamBytes::toBytes(sample()));
}

void tst_cdevicecommdata::stateNeedsSerial_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<uint>("serial");
    QTest::addColumn<int>("told");

    for (const int stored : {0, 1, 2, 3, -1}) {
        const QByteArray name = "state " + QByteArray::number(stored);
        QTest::newRow((name + ", no serial").constData()) << stored << 0u << 2;
        QTest::newRow((name + ", serial").constData()) << stored << 1u << stored;
        QTest::newRow((name + ", highest serial").constData()) << stored << 4294967295u << stored;
    }
}

void tst_cdevicecommdata::stateNeedsSerial()
{
    QFETCH(int, stored);
    QFETCH(uint, serial);
    QFETCH(int, told);

    CDeviceCommData serialFirst;
    serialFirst.setSerial(serial);
    serialFirst.setConnectionState(state(stored));
    QCOMPARE(static_cast<int>(serialFirst.connectionState()), told);

    CDeviceCommData stateFirst;
    stateFirst.setConnectionState(state(stored));
    stateFirst.setSerial(serial);
    QCOMPARE(static_cast<int>(stateFirst.connectionState()), told);
}

void tst_cdevicecommdata::stateComesBack()
{
    CDeviceCommData data = sample();
    data.setSerial(0);
    QCOMPARE(data.connectionState(), NvrnGlobal::CONNECTION_STATE_UNKNOWN);
    data.setSerial(9);
    QCOMPARE(data.connectionState(), NvrnGlobal::CONNECTION_STATE_CONNECTED);
}

void tst_cdevicecommdata::virtualSetter()
{
    QVERIFY(std::has_virtual_destructor<CDeviceCommData>::value);
    Noting noting;
    CDeviceCommData &data = noting;
    data.setConfigurationName(u"a"_s);
    QCOMPARE(data.configurationName(), u"<a>"_s);
}

void tst_cdevicecommdata::connectionStateText_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("disconnected") << 0 << u"Disconnected"_s;
    QTest::newRow("connected") << 1 << u"Connected"_s;
    QTest::newRow("unknown") << 2 << u"Unknown"_s;
    QTest::newRow("below") << -1 << u"Unknown"_s;
    QTest::newRow("behind the last") << 3 << u"Unknown"_s;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << u"Unknown"_s;
    QTest::newRow("highest") << std::numeric_limits<int>::max() << u"Unknown"_s;
}

void tst_cdevicecommdata::connectionStateText()
{
    QFETCH(int, number);
    QTEST(CDeviceCommData::connectionStateStr(state(number)), "text");
}

void tst_cdevicecommdata::hostAddressTypeText_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << 0 << u"Undefined"_s;
    QTest::newRow("IPv4") << 1 << u"IPv4"_s;
    QTest::newRow("IPv6") << 2 << u"IPv6"_s;
    QTest::newRow("name") << 3 << u"Name"_s;
    QTest::newRow("below") << -1 << u"Undefined"_s;
    QTest::newRow("behind the last") << 4 << u"Undefined"_s;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << u"Undefined"_s;
    QTest::newRow("highest") << std::numeric_limits<int>::max() << u"Undefined"_s;
}

void tst_cdevicecommdata::hostAddressTypeText()
{
    QFETCH(int, number);
    QTEST(CDeviceCommData::hostAddressTypeStr(addressType(number)), "text");
}

void tst_cdevicecommdata::streamForm_data()
{
    QTest::addColumn<CDeviceCommData>("data");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("default") << CDeviceCommData()
                             << DefaultHead + QByteArray::fromHex("ff") + DefaultTail;

    QTest::newRow("all fields") << sample()
                                << QByteArray::fromHex("01234567 89ab cdef 1032547698badcfe"
                                                       "00000008 006e 0061 006d 0065"
                                                       "0000000e 0063 006f 006d 006d 0065 006e 0074"
                                                       "00000007"
                                                       "00000001"
                                                       "00 c0a8010a"
                                                       "1f90"
                                                       "0000000c 0061 0063 0063 0065 0073 0073"
                                                       "00000001"
                                                       "00000003"
                                                       "0000001a 0063 006f 006e 0066 0069 0067 0075"
                                                       "0072 0061 0074 0069 006f 006e");

    CDeviceCommData ipv6;
    ipv6.setHostAddress(QHostAddress(u"fe80::1:2%eth0"_s));
    QTest::newRow("IPv6 address with scope") << ipv6
                                             << DefaultHead
            + QByteArray::fromHex("01 fe80 0000 0000 0000 0000 0000 0001 0002"
                                  "00000008 0065 0074 0068 0030")
            + DefaultTail;

    // The rule about records without serial number is one of telling, not of storing.
    CDeviceCommData hidden;
    hidden.setConnectionState(NvrnGlobal::CONNECTION_STATE_CONNECTED);
    QByteArray hiddenTail = DefaultTail;
    hiddenTail.replace(QByteArray::fromHex("00000002"), QByteArray::fromHex("00000001"));
    QTest::newRow("state without serial")
        << hidden << DefaultHead + QByteArray::fromHex("ff") + hiddenTail;
}

void tst_cdevicecommdata::streamForm()
{
    QFETCH(CDeviceCommData, data);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(data).toHex(' '), bytes.toHex(' '));

    for (const CDeviceCommData &before : {CDeviceCommData(), sample()}) {
        CDeviceCommData read(before);
        QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
        QVERIFY(read == data);
        QCOMPARE(read.connectionState(), data.connectionState());
        QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
    }
}

void tst_cdevicecommdata::readingDetaches()
{
    const CDeviceCommData original = sample();
    CDeviceCommData copy(original);
    StreamBytes::read(StreamBytes::toBytes(CDeviceCommData()), copy);
    QVERIFY(copy.isNull());
    QCOMPARE(StreamBytes::toBytes(original), StreamBytes::toBytes(sample()));
}

void tst_cdevicecommdata::numbersOfTheStreamStay()
{
    CDeviceCommData data = sample();
    data.setHostAddressType(addressType(-2));
    data.setConnectionState(state(99));
    const auto read = StreamBytes::fromBytes<CDeviceCommData>(StreamBytes::toBytes(data));
    QCOMPARE(static_cast<int>(read.hostAddressType()), -2);
    QCOMPARE(static_cast<int>(read.connectionState()), 99);
    QVERIFY(read == data);
}

void tst_cdevicecommdata::truncatedStream()
{
    CDeviceCommData ipv6 = sample();
    ipv6.setHostAddress(QHostAddress(u"fe80::1:2%eth0"_s));
    for (const CDeviceCommData &data : {sample(), ipv6}) {
        const QByteArray bytes = StreamBytes::toBytes(data);
        for (int size = 0; size < bytes.size(); ++size) {
            CDeviceCommData read = sample();
            QCOMPARE(StreamBytes::read(bytes.left(size), read), qint64(-1));
            read = sample();
            QVERIFY(read == sample());
        }
    }
}

void tst_cdevicecommdata::randomStream()
{
    // What matters is that nothing crashes; whatever was read is a record like any other.
    QRandomGenerator random(20260131);
    const QByteArray sampleBytes = StreamBytes::toBytes(sample());
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes = sampleBytes;
        for (int change = 0; change <= i % 8; ++change) {
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        }
        CDeviceCommData read;
        StreamBytes::read(bytes, read);
        const QByteArray again = StreamBytes::toBytes(read);
        QCOMPARE(StreamBytes::toBytes(StreamBytes::fromBytes<CDeviceCommData>(again)), again);
        QVERIFY(!CDeviceCommData::hostAddressTypeStr(read.hostAddressType()).isEmpty());
        QVERIFY(!CDeviceCommData::connectionStateStr(read.connectionState()).isEmpty());
    }
}

REGISTER_APPLESS_TEST(tst_cdevicecommdata)
#include "tst_cdevicecommdata.moc"
