#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/SampleDevice.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace SampleDevice;

Q_DECLARE_METATYPE(CDeviceElement)
using namespace NvrnDeviceCore;

/** The bytes of a device on a data stream. */
class tst_cdeviceelement_streams : public QObject
{
    Q_OBJECT

private slots:
    void streamForm_data();
    void streamForm();
    void streamOfFiles();
    void emptyContainer_data();
    void emptyContainer();
    void readingAnEmptyContainer();
    void readingDoesNotCheck();
    void repeatedDriveNumber();
    void brokenCount_data();
    void brokenCount();
};

void tst_cdeviceelement_streams::streamForm_data()
{
    QTest::addColumn<CDeviceElement>("device");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("null") << CDeviceElement()
                          << QByteArray::fromHex("ffffffff ffffffff"
                                                 "ffffffff ffffffff 0000 0000 0000"
                                                 "00000006 0053 0054 0044"
                                                 "ff"
                                                 "00000000"
                                                 "00000000"
                                                 "00000000"
                                                 "00000000"
                                                 "ffffffff ffffffff ffffffff ffffffff"
                                                 "ffffffff ffffffff ffffffff ffffffff"
                                                 "00000000"
                                                 "00000000"
                                                 "ffffffff"
                                                 "00000000"
                                                 "00"
                                                 "00000000"
                                                 "ffffffff ffffffff ffffffff ffffffff"
                                                 "00000000"
                                                 "ff"
                                                 "0000"
                                                 "ffffffff"
                                                 "00000000");

    CDeviceElement device;
    device.setName(u"N"_s);
    device.setComment(u"C"_s);
    device.setHardwareId(u"P:Q:1:2:3"_s);
    device.setConfigurationName(u"X"_s);
    device.setSerial(0x01020304);
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    device.setOpcUaEnabled(true);
    device.setOptions(QStringList{u"-a"_s, u""_s});
    device.setParameterFiles({paramFile(u"p"_s, 9, 5)});
    device.setOdictFile(file(u"o"_s));
    device.setFaultTextFile(file(u"t"_s));
    device.setAdditionalFiles({file(u"a"_s), file(u"b"_s)});
    device.setPlugins({plugin(u"m"_s, u"2"_s)});
    device.setExecutionPlugin(u"e"_s);
    device.setFpgaFiles({u"f"_s});
    device.setOpcUaFiles({file(u"u"_s)});
    device.setEtherCatMasterFile(file(u"c"_s));
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    device.setHostAddress(QHostAddress(u"192.168.1.10"_s));
    device.setPort(0x1234);
    device.setPreferredDeviceListNumber(-2);
    device.insertSubDevice(kd3(u"s"_s), 1);
    device.insertSubDevice(kd3(u"r"_s), 200);
    // Qt writes maps from the highest key to the lowest.
    QTest::newRow("all fields") << device
                                << QByteArray::fromHex(
                                       "00000002 004e 00000002 0043"
                                       "00000002 0050 00000002 0051 0001 0002 0003"
                                       "00000002 0058"
                                       "ff"
                                       "01020304"
                                       "00000002"
                                       "00000002 00000004 002d 0061 00000000"
                                       "00000001 00000002 0070 ffffffff 00000009 00000005"
                                       "ffffffff ffffffff"
                                       "00000002 006f ffffffff ffffffff ffffffff"
                                       "00000002 0074 ffffffff ffffffff ffffffff"
                                       "00000002"
                                       "00000002 0061 ffffffff ffffffff ffffffff"
                                       "00000002 0062 ffffffff ffffffff ffffffff"
                                       "00000001 00000002 006d 80000000 00000002 0032"
                                       "00000002 0065"
                                       "00000001 00000002 0066"
                                       "01"
                                       "00000001 00000002 0075 ffffffff ffffffff ffffffff"
                                       "00000002 0063 ffffffff ffffffff ffffffff"
                                       "00000001"
                                       "00 c0a8010a"
                                       "1234"
                                       "fffffffe"
                                       "00000002"
                                       "c8 00000003"
                                       "00000002 0072 ffffffff"
                                       "00000002 0050 00000002 0051 0001 0002 0003"
                                       "00000002 0058 c8"
                                       "01020304 00000002 004e"
                                       "ffffffff ffffffff ffffffff ffffffff 00000000"
                                       "01 00000003"
                                       "00000002 0073 ffffffff"
                                       "00000002 0050 00000002 0051 0001 0002 0003"
                                       "00000002 0058 01"
                                       "01020304 00000002 004e"
                                       "ffffffff ffffffff ffffffff ffffffff 00000000");
}

void tst_cdeviceelement_streams::streamForm()
{
    QFETCH(CDeviceElement, device);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(device).toHex(' '), bytes.toHex(' '));

    CDeviceElement read = deviceWithFiles();
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == device);
    QCOMPARE(read.isNull(), device.isNull());
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

void tst_cdeviceelement_streams::streamOfFiles()
{
    const CDeviceElement device = deviceWithFiles();
    const auto read = StreamBytes::fromBytes<CDeviceElement>(StreamBytes::toBytes(device));
    QVERIFY(read == device);
    QVERIFY(read.allFiles() == device.allFiles());
    QVERIFY(read.subDevice(0).isKD2());
    QVERIFY(read.subDevice(1).isKD3());
    QCOMPARE(read.driveId(), quint8(255));
}

void tst_cdeviceelement_streams::emptyContainer_data()
{
    QTest::addColumn<QList<int>>("empty");
    QTest::addColumn<QList<int>>("filled");

    QTest::newRow("alone") << QList<int>{4} << QList<int>{};
    QTest::newRow("several alone") << QList<int>{0, 4, 254} << QList<int>{};
    QTest::newRow("highest") << QList<int>{1} << QList<int>{0};
    QTest::newRow("lowest") << QList<int>{0} << QList<int>{1};
    QTest::newRow("between") << QList<int>{1} << QList<int>{0, 2};
    QTest::newRow("around") << QList<int>{0, 2} << QList<int>{1};
}

void tst_cdeviceelement_streams::emptyContainer()
{
    QFETCH(QList<int>, empty);
    QFETCH(QList<int>, filled);

    CDeviceElement device;
    QMap<int, QByteArray> containers;
    for (const int id : empty) {
        device.insertSubDevice(CSubDeviceElement(), static_cast<quint8>(id));
        containers.insert(id, QByteArray());
    }
    for (const int id : filled) {
        device.insertSubDevice(kd3(), static_cast<quint8>(id));
        containers.insert(id, StreamBytes::toBytes(device.subDevice(static_cast<quint8>(id))));
    }
    QByteArray bytes = StreamBytes::toBytes(CDeviceElement());
    bytes.chop(4);
    bytes += StreamBytes::toBytes(containers.size());
    for (int id = 255; id >= 0; --id) {
        if (containers.contains(id)) {
            bytes += static_cast<char>(id) + containers.value(id);
        }
    }
    QCOMPARE(StreamBytes::toBytes(device).toHex(' '), bytes.toHex(' '));
}

void tst_cdeviceelement_streams::readingAnEmptyContainer()
{
    // Nothing stands in place of its type: that is taken from what follows.
    CDeviceElement device;
    device.insertSubDevice(CSubDeviceElement(), 1);
    const QByteArray bytes = StreamBytes::toBytes(device);

    CDeviceElement read;
    QCOMPARE(StreamBytes::read(bytes, read), qint64(-1));
    QCOMPARE(read.subDeviceCount(), 0);

    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size() + 4));
    QCOMPARE(read.subDeviceCount(), 1);
    QCOMPARE(read.subDevice(1).type(), ELEMENT_UNKNOWN);

    const CSubDeviceElement drive = kd3();
    QCOMPARE(StreamBytes::read(bytes + StreamBytes::toBytes(drive), read),
             qint64(bytes.size() + StreamBytes::toBytes(drive).size()));
    QVERIFY(read.subDevice(1) == drive);
}

void tst_cdeviceelement_streams::readingDoesNotCheck()
{
    // Options that are none, an unknown class, and a sub-device that does not fit the device.
    CDeviceElement device;
    device.setOptions(QStringList{u"x"_s, u"x"_s});
    device.setDeviceClass(static_cast<NDeviceConf::EDeviceClass>(-7));
    device.setHostAddressType(static_cast<CDeviceItem::EHostAddrType>(99));
    QByteArray bytes = StreamBytes::toBytes(device);
    CSubDeviceKD3Element stranger;
    stranger.setDeviceName(u"stranger"_s);
    bytes.chop(4);
    bytes += QByteArray::fromHex("00000001 05") + StreamBytes::toBytes(CSubDeviceElement(stranger));

    const auto read = StreamBytes::fromBytes<CDeviceElement>(bytes);
    QCOMPARE(read.options(), (QStringList{u"x"_s, u"x"_s}));
    QCOMPARE(static_cast<int>(read.deviceClass()), -7);
    QCOMPARE(static_cast<int>(read.hostAddressType()), 99);
    QCOMPARE(read.subDevice(5).deviceName(), u"stranger"_s);
    QCOMPARE(read.subDevice(5).driveId(), quint8(255));
    QVERIFY(read.subDevice(5).name().isEmpty());
}

void tst_cdeviceelement_streams::repeatedDriveNumber()
{
    QByteArray bytes = StreamBytes::toBytes(CDeviceElement());
    bytes.chop(4);
    bytes += QByteArray::fromHex("00000002");
    for (const QString &name : {u"first"_s, u"last"_s}) {
        bytes += QByteArray::fromHex("05") + StreamBytes::toBytes(kd3(name));
    }
    const auto read = StreamBytes::fromBytes<CDeviceElement>(bytes);
    QCOMPARE(read.subDeviceCount(), 1);
    QCOMPARE(read.subDevice(5).name(), u"last"_s);
}

void tst_cdeviceelement_streams::brokenCount_data()
{
    QTest::addColumn<int>("offset");

    // Where the counts stand in the stream form of a null device.
    QTest::newRow("options") << 41;
    QTest::newRow("parameter files") << 45;
    QTest::newRow("additional files") << 81;
    QTest::newRow("plug-ins") << 85;
    QTest::newRow("FPGA files") << 93;
    QTest::newRow("OPC UA files") << 98;
    QTest::newRow("sub-devices") << 129;
}

void tst_cdeviceelement_streams::brokenCount()
{
    QFETCH(int, offset);

    // A few bytes that ask for all the memory there is.
    QByteArray bytes = StreamBytes::toBytes(CDeviceElement());
    QCOMPARE(bytes.mid(offset, 4), QByteArray(4, '\0'));
    bytes.replace(offset, 4, QByteArray::fromHex("7fffffff"));
    CDeviceElement read;
    QCOMPARE(StreamBytes::read(bytes, read), qint64(-1));
    QVERIFY(read.options().isEmpty() || offset != 41);
    QVERIFY(read.subDevices().isEmpty());
    read = deviceWithFiles();
    QVERIFY(read == deviceWithFiles());
}

REGISTER_APPLESS_TEST(tst_cdeviceelement_streams)
#include "tst_cdeviceelement_streams.moc"
