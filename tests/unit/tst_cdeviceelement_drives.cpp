#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/SampleDevice.h"

#include <QTest>

using namespace SampleDevice;

using Change = void (*)(CDeviceElement &);
Q_DECLARE_METATYPE(CDeviceElement)
Q_DECLARE_METATYPE(Change)
using namespace NvrnDeviceCore;

namespace {

const QString OtherIdText = QStringLiteral("KD3:Other:4:5:6");

/** A sub-device that notes in which order the device asks it to change. */
class Recorder : public CSubDeviceElement
{
public:
    explicit Recorder(const CSubDeviceKD3Element &subDevice) : CSubDeviceElement(subDevice) { }

    void setDriveId(unsigned char driveId) override
    {
        calls << u"drive number"_s;
        CSubDeviceElement::setDriveId(driveId);
    }

    void setDeviceSerial(unsigned int serial) override
    {
        calls << u"serial"_s;
        CSubDeviceElement::setDeviceSerial(serial);
    }

    void setDeviceName(const QString &name) override
    {
        calls << u"device name"_s;
        CSubDeviceElement::setDeviceName(name);
    }

    void setHardwareId(const CDeviceHardwareId &id) override
    {
        calls << u"identity"_s;
        CSubDeviceElement::setHardwareId(id);
    }

    void setHardwareId(const QString &id) override
    {
        calls << u"identity as text"_s;
        CSubDeviceElement::setHardwareId(id);
    }

    void setConfigurationName(const QString &name) override
    {
        calls << u"configuration name"_s;
        CSubDeviceElement::setConfigurationName(name);
    }

    QStringList calls;
};

void changeRow(const char *name, Change change)
{
    QTest::newRow(name) << change;
}

} // namespace

/** The drives of a device: numbers, names, and what follows the device. */
class tst_cdeviceelement_drives : public QObject
{
    Q_OBJECT

private slots:
    void nextFreeDriveId_data();
    void nextFreeDriveId();
    void insertedNumber_data();
    void insertedNumber();
    void insertedName_data();
    void insertedName();
    void insertingFitsTheSubDevice();
    void insertingInOrder();
    void insertingAConstantLeavesIt();
    void insertingReplaces();
    void insertingAnEmptyContainer();
    void subDevicesAreInOrderAndCopies();
    void removeSubDevice();
    void setSubDevices();
    void subDevicesFollow_data();
    void subDevicesFollow();
    void subDevicesOfACopyDoNotFollow();
};

void tst_cdeviceelement_drives::nextFreeDriveId_data()
{
    QTest::addColumn<QList<int>>("used");
    QTest::addColumn<int>("next");

    QTest::newRow("none") << QList<int>() << 0;
    QTest::newRow("0") << QList<int>{0} << 1;
    QTest::newRow("gap") << QList<int>{0, 5} << 6;
    QTest::newRow("gap at the start") << QList<int>{3} << 4;
    QTest::newRow("in another order") << QList<int>{9, 2} << 10;
    QTest::newRow("253") << QList<int>{253} << 254;
    QTest::newRow("254") << QList<int>{254} << 255;
}

void tst_cdeviceelement_drives::nextFreeDriveId()
{
    QFETCH(QList<int>, used);
    QFETCH(int, next);

    CDeviceElement device;
    for (const int id : used) {
        QCOMPARE(int(device.insertSubDevice(kd3(), static_cast<quint8>(id))), id);
    }
    QCOMPARE(int(device.nextFreeDriveID()), next);
    QCOMPARE(int(device.insertSubDevice(kd3())), next);

    // The number of a removed sub-device below the highest one is never used again.
    if (used.size() > 1) {
        device.removeSubDevice(static_cast<quint8>(used.first()));
        QCOMPARE(int(device.nextFreeDriveID()), next + 1);
    }
}

void tst_cdeviceelement_drives::insertedNumber_data()
{
    QTest::addColumn<QList<int>>("insert");
    QTest::addColumn<QList<int>>("numbers");

    QTest::newRow("first") << QList<int>{255} << QList<int>{0};
    QTest::newRow("second") << QList<int>{255, 255} << QList<int>{0, 1};
    QTest::newRow("behind a gap") << QList<int>{7, 255} << QList<int>{7, 8};
    QTest::newRow("254 given") << QList<int>{254} << QList<int>{254};
    // Behind 254 comes 255 itself; once that is in use, it is like any other number.
    QTest::newRow("255 in use") << QList<int>{254, 255, 255} << QList<int>{254, 255, 255};
    QTest::newRow("given numbers") << QList<int>{3, 1} << QList<int>{3, 1};
    QTest::newRow("given twice") << QList<int>{3, 3} << QList<int>{3, 3};
}

void tst_cdeviceelement_drives::insertedNumber()
{
    QFETCH(QList<int>, insert);
    QFETCH(QList<int>, numbers);

    CDeviceElement device;
    for (int i = 0; i < insert.size(); ++i) {
        CSubDeviceElement subDevice = kd3();
        QCOMPARE(int(device.insertSubDevice(subDevice, static_cast<quint8>(insert.at(i)))),
                 numbers.at(i));
        QCOMPARE(int(subDevice.driveId()), numbers.at(i));
        QVERIFY(device.subDevice(static_cast<quint8>(numbers.at(i))) == subDevice);
    }
    if (numbers.contains(255)) {
        // Computed in 8 bits.
        QCOMPARE(int(device.nextFreeDriveID()), 0);
    }
}

void tst_cdeviceelement_drives::insertedName_data()
{
    QTest::addColumn<int>("deviceClass");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("result");

    QTest::newRow("KC2") << 1 << QString() << 255 << u"Sub-Device 0"_s;
    QTest::newRow("KC2, number given") << 1 << QString() << 12 << u"Sub-Device 12"_s;
    QTest::newRow("undefined") << 0 << QString() << 255 << u"DRIVE-0"_s;
    QTest::newRow("KD3") << 2 << QString() << 254 << u"DRIVE-254"_s;
    QTest::newRow("unknown class") << 3 << QString() << 1 << u"DRIVE-1"_s;
    QTest::newRow("empty name") << 2 << u""_s << 1 << u"DRIVE-1"_s;
    QTest::newRow("name stays") << 2 << u"x"_s << 1 << u"x"_s;
    QTest::newRow("name stays on a KC2") << 1 << u"x"_s << 1 << u"x"_s;
    QTest::newRow("blank name stays") << 2 << u" "_s << 1 << u" "_s;
}

void tst_cdeviceelement_drives::insertedName()
{
    QFETCH(int, deviceClass);
    QFETCH(QString, name);
    QFETCH(int, id);
    QFETCH(QString, result);

    for (CSubDeviceElement subDevice : {kd2(name), kd3(name)}) {
        CDeviceElement device;
        device.setDeviceClass(static_cast<NDeviceConf::EDeviceClass>(deviceClass));
        const quint8 used = device.insertSubDevice(subDevice, static_cast<quint8>(id));
        QCOMPARE(device.subDevice(used).name(), result);
        QCOMPARE(subDevice.name(), result);
    }
}

void tst_cdeviceelement_drives::insertingFitsTheSubDevice()
{
    CDeviceElement device;
    device.setName(u"device"_s);
    device.setSerial(77);
    device.setHardwareId(IdText);
    device.setConfigurationName(u"conf"_s);

    CSubDeviceElement subDevice = kd2();
    subDevice.setHardwareId(OtherIdText);
    subDevice.setDeviceName(u"old"_s);
    subDevice.setComment(u"comment"_s);
    subDevice.setParameterFile(file(u"p"_s, u"old/a"_s));
    device.insertSubDevice(subDevice, 4);
    QCOMPARE(subDevice.driveId(), quint8(4));
    QCOMPARE(subDevice.deviceSerial(), 77u);
    QCOMPARE(subDevice.deviceName(), u"device"_s);
    // Deliberate: also an identity of its own gives way to the one of the device.
    QCOMPARE(subDevice.hardwareIdStr(), IdText);
    QCOMPARE(subDevice.configurationName(), u"conf"_s);
    QCOMPARE(subDevice.comment(), u"comment"_s);
    QVERIFY(subDevice.parameterFile() == file(u"p"_s, u"old/a"_s));
    QVERIFY(device.subDevice(4) == subDevice);
}

void tst_cdeviceelement_drives::insertingInOrder()
{
    CDeviceElement device;
    Recorder subDevice{CSubDeviceKD3Element()};
    device.insertSubDevice(subDevice, 4);
    QCOMPARE(subDevice.calls,
             (QStringList{u"drive number"_s, u"serial"_s, u"device name"_s, u"identity as text"_s,
                          u"configuration name"_s}));
}

void tst_cdeviceelement_drives::insertingAConstantLeavesIt()
{
    CDeviceElement device;
    device.setName(u"device"_s);
    const CSubDeviceElement subDevice = kd2();
    QCOMPARE(device.insertSubDevice(subDevice), quint8(0));
    QVERIFY(subDevice == kd2());
    QCOMPARE(device.subDevice(0).name(), u"DRIVE-0"_s);

    // Also through the base class.
    CDeviceBaseElement &base = device;
    QCOMPARE(base.insertSubDevice(subDevice), quint8(1));
    QVERIFY(subDevice == kd2());
}

void tst_cdeviceelement_drives::insertingReplaces()
{
    CDeviceElement device;
    device.insertSubDevice(kd2(u"first"_s), 3);
    device.insertSubDevice(kd3(u"second"_s), 3);
    QCOMPARE(device.subDeviceCount(), 1);
    QCOMPARE(device.subDevice(3).name(), u"second"_s);
    QVERIFY(device.subDevice(3).isKD3());
}

void tst_cdeviceelement_drives::insertingAnEmptyContainer()
{
    CDeviceElement device;
    QCOMPARE(device.insertSubDevice(CSubDeviceElement()), quint8(0));
    QCOMPARE(device.subDeviceCount(), 1);
    QVERIFY(device.subDevice(0).isNull());
    QVERIFY(!device.isNull());
    QVERIFY(device.allFiles().isEmpty());
}

void tst_cdeviceelement_drives::subDevicesAreInOrderAndCopies()
{
    CDeviceElement device;
    for (const quint8 id : {quint8(9), quint8(0), quint8(200), quint8(10)}) {
        device.insertSubDevice(kd3(), id);
    }
    QList<CSubDeviceElement> subDevices = device.subDevices();
    QList<int> ids;
    for (const CSubDeviceElement &subDevice : subDevices) {
        ids << subDevice.driveId();
    }
    QCOMPARE(ids, (QList<int>{0, 9, 10, 200}));

    subDevices[0].setName(u"x"_s);
    device.subDevice(0).setName(u"x"_s);
    CSubDeviceElement copy = device.subDevice(0);
    copy.setName(u"x"_s);
    QCOMPARE(device.subDevice(0).name(), u"DRIVE-0"_s);
    QCOMPARE(static_cast<int>(device.subDevice(1).type()), 0);
    QVERIFY(device.subDevice(1).isNull());
    QCOMPARE(device.subDeviceCount(), 4);
}

void tst_cdeviceelement_drives::removeSubDevice()
{
    CDeviceElement device;
    QVERIFY(!device.removeSubDevice(0));
    device.insertSubDevice(kd3(), 0);
    device.insertSubDevice(kd3(), 255);
    QCOMPARE(device.subDeviceCount(), 2);
    QVERIFY(!device.removeSubDevice(2));
    QVERIFY(device.removeSubDevice(1));
    QVERIFY(!device.removeSubDevice(1));
    QVERIFY(device.removeSubDevice(0));
    QVERIFY(device.isNull());
}

void tst_cdeviceelement_drives::setSubDevices()
{
    CDeviceElement device;
    device.setName(u"device"_s);
    device.setSerial(77);
    device.setHardwareId(IdText);
    device.setConfigurationName(u"conf"_s);
    device.insertSubDevice(kd3(u"old"_s), 1);

    CSubDeviceElement ownIdentity = kd2(u"own"_s);
    ownIdentity.setDriveId(7);
    ownIdentity.setHardwareId(OtherIdText);
    CSubDeviceElement first = kd3(u"first"_s);
    first.setDriveId(3);
    CSubDeviceElement second = kd3();
    second.setDriveId(3);
    const CSubDeviceElement unassigned = kd3();
    device.setSubDevices({ownIdentity, first, CSubDeviceElement(), second, unassigned});

    QCOMPARE(device.subDeviceCount(), 3);
    QCOMPARE(device.subDevice(3).name(), u"DRIVE-3"_s);
    QCOMPARE(device.subDevice(3).hardwareIdStr(), IdText);
    QCOMPARE(device.subDevice(7).name(), u"own"_s);
    QCOMPARE(device.subDevice(7).hardwareIdStr(), OtherIdText);
    QCOMPARE(device.subDevice(255).name(), u"DRIVE-255"_s);
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QCOMPARE(subDevice.deviceSerial(), 77u);
        QCOMPARE(subDevice.deviceName(), u"device"_s);
        QCOMPARE(subDevice.configurationName(), u"conf"_s);
    }
    QCOMPARE(ownIdentity.deviceSerial(), 0u);

    device.setSubDevices({});
    QCOMPARE(device.subDeviceCount(), 0);
}

void tst_cdeviceelement_drives::subDevicesFollow_data()
{
    QTest::addColumn<Change>("change");

    changeRow("name", [](CDeviceElement &d) { d.setName(u"n"_s); });
    changeRow("name and paths", [](CDeviceElement &d) { d.setNameAndAdaptProjectPaths(u"n"_s); });
    changeRow("serial", [](CDeviceElement &d) { d.setSerial(99); });
    changeRow("identity as text", [](CDeviceElement &d) { d.setHardwareId(OtherIdText); });
    changeRow("identity",
              [](CDeviceElement &d) { d.setHardwareId(CDeviceHardwareId(OtherIdText)); });
    changeRow("no identity", [](CDeviceElement &d) { d.setHardwareId(QString()); });
    changeRow("product id", [](CDeviceElement &d) { d.setProductId(9); });
    changeRow("product version", [](CDeviceElement &d) { d.setProductVersion(9); });
    changeRow("product revision", [](CDeviceElement &d) { d.setProductRevision(9); });
    changeRow("product name", [](CDeviceElement &d) { d.setProductName(u"p"_s); });
    changeRow("configuration name", [](CDeviceElement &d) { d.setConfigurationName(u"c"_s); });
    changeRow("configuration name and paths",
              [](CDeviceElement &d) { d.setConfigurationNameAndAdaptPaths(u"c"_s); });
    changeRow("through the base class", [](CDeviceElement &d) {
        CBaseElement &element = d;
        element.setName(u"n"_s);
        element.setProductId(9);
        element.setConfigurationName(u"c"_s);
    });
}

void tst_cdeviceelement_drives::subDevicesFollow()
{
    QFETCH(Change, change);

    CDeviceElement device;
    device.setName(u"device"_s);
    device.setSerial(77);
    device.setHardwareId(IdText);
    device.insertSubDevice(kd2());
    device.insertSubDevice(kd3(u"own name"_s));
    const CDeviceElement before(device);

    change(device);
    QVERIFY(device != before);
    QVERIFY(device.subDevices() != before.subDevices());
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QCOMPARE(subDevice.deviceName(), device.name());
        QCOMPARE(subDevice.deviceSerial(), device.serial());
        QCOMPARE(subDevice.hardwareIdStr(), device.hardwareIdStr());
        QVERIFY(subDevice.hardwareId() == device.hardwareId());
        QCOMPARE(subDevice.configurationName(), device.configurationName());
    }
    QCOMPARE(device.subDevice(0).name(), u"DRIVE-0"_s);
    QCOMPARE(device.subDevice(1).name(), u"own name"_s);
    QCOMPARE(before.subDevice(1).deviceSerial(), 77u);
    QCOMPARE(before.subDevice(1).deviceName(), u"device"_s);
    QCOMPARE(before.subDevice(1).hardwareIdStr(), IdText);
    QCOMPARE(before.subDevice(1).configurationName(), u"STD"_s);
}

void tst_cdeviceelement_drives::subDevicesOfACopyDoNotFollow()
{
    CDeviceElement device;
    device.setName(u"device"_s);
    device.insertSubDevice(kd3());
    CDeviceElement copy(device);
    CDeviceElement assigned;
    assigned = device;
    device.setName(u"other"_s);
    QCOMPARE(copy.subDevice(0).deviceName(), u"device"_s);
    QCOMPARE(assigned.subDevice(0).deviceName(), u"device"_s);
    copy.removeSubDevice(0);
    QCOMPARE(assigned.subDeviceCount(), 1);
}

QTEST_APPLESS_MAIN(tst_cdeviceelement_drives)
#include "tst_cdeviceelement_drives.moc"
