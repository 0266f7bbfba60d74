#include "configfile/ICDeviceConfigurationFile.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <limits>

using Change = void (*)(CDeviceElement &);
Q_DECLARE_METATYPE(CDeviceElement)
Q_DECLARE_METATYPE(Change)

using namespace NvrnDeviceCore;

namespace {

const QString IdText = QStringLiteral("KD3:Servo:1:2:3");
const QString OtherIdText = QStringLiteral("KD3:Other:4:5:6");

using Files = QList<CFileElement>;

CFileElement file(const QString &name, const QString &projectPath = {},
                  const QString &devicePath = {}, const QString &comment = {})
{
    CFileElement result;
    result.setFileName(name);
    result.setDevicePath(devicePath);
    result.setProjectPath(projectPath);
    result.setComment(comment);
    return result;
}

NvrnGlobal::EParamFileType toType(int value)
{
    return static_cast<NvrnGlobal::EParamFileType>(value);
}

CParamFileElement paramFile(const QString &name, int type = 2, int driveId = -1)
{
    CParamFileElement result;
    result.setName(name);
    result.setType(toType(type));
    result.setDriveId(driveId);
    return result;
}

CPluginElement plugin(const QString &name, const QString &version)
{
    CPluginElement result;
    result.setName(name);
    result.setVersion(version);
    return result;
}

CSubDeviceElement kd2(const QString &name = {})
{
    CSubDeviceKD2Element result;
    result.setName(name);
    return result;
}

CSubDeviceElement kd3(const QString &name = {})
{
    CSubDeviceKD3Element result;
    result.setName(name);
    return result;
}

QStringList fileNames(const Files &files)
{
    QStringList result;
    for (const CFileElement &element : files) {
        result << element.fileName();
    }
    return result;
}

/** A device with one file in each place that can hold one, and all project paths below "old". */
CDeviceElement deviceWithFiles()
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

QStringList projectPaths(const CDeviceElement &device)
{
    QStringList result;
    for (const CParamFileElement &element : device.parameterFiles()) {
        result << element.projectPath();
    }
    result << device.odictFile().projectPath() << device.faultTextFile().projectPath();
    for (const CFileElement &element : device.additionalFiles() + device.opcUaFiles()) {
        result << element.projectPath();
    }
    result << device.etherCatMasterFile().projectPath();
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        for (const CFileElement &element : subDevice.allFiles()) {
            result << element.projectPath();
        }
    }
    return result;
}

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

class tst_cdeviceelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void changedField_data();
    void changedField();
    void equalityOfFilesIsTheirOwn();
    void driveIdIsAlways255();
    void kinds();
    void accessors();

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

    void appendOption_data();
    void appendOption();
    void removeOption_data();
    void removeOption();
    void setOptionsText_data();
    void setOptionsText();
    void setOptionsList();
    void optionAt();
    void opcUaOption_data();
    void opcUaOption();

    void fpgaFileAt_data();
    void fpgaFileAt();
    void fpgaFileList();
    void setActiveFpgaFile_data();
    void setActiveFpgaFile();
    void isSameFpgaFile_data();
    void isSameFpgaFile();
    void fpgaFileElements();

    void addParameterFile();
    void addInvalidParameterFile_data();
    void addInvalidParameterFile();
    void removeParameterFile();
    void parameterFilesOfAType();
    void parameterFileElements_data();
    void parameterFileElements();
    void additionalFiles();
    void opcUaFiles();
    void pluginFiles();
    void odictFileName_data();
    void odictFileName();
    void configurationFile_data();
    void configurationFile();
    void standardDirectories();
    void hardwareIdCompatible_data();
    void hardwareIdCompatible();

    void allFiles_data();
    void allFiles();
    void allFilesLeavesOutNullAndRepeatedOnes();
    void allFilesLeavesOutWhatCannotExist();
    void allFilesWithoutAConfigurationName();
    void allFilesTellsPlaces();

    void renamingMovesEveryProjectPath();
    void renamingKeepsNamesAndDevicePaths();
    void adaptingPathsLeavesTheName();
    void renamingWithoutAName_data();
    void renamingWithoutAName();
    void settingTheNameLeavesPaths();
    void renamingTheConfigurationMovesDirectories();
    void renamingTheConfigurationWithoutAName();
    void settingTheConfigurationLeavesPaths();

    void streamForm_data();
    void streamForm();
    void streamOfFiles();
    void emptyContainersAreNotStreamed();
    void readingDoesNotCheck();
    void repeatedDriveNumber();
    void brokenCount_data();
    void brokenCount();
};

void tst_cdeviceelement::defaults()
{
    const CDeviceElement device;
    QVERIFY(device.isNull());
    QVERIFY(device == CDeviceElement());
    QCOMPARE(device.configurationName(), u"STD"_s);
    QCOMPARE(device.serial(), 0u);
    QCOMPARE(static_cast<int>(device.deviceClass()), 0);
    QVERIFY(device.options().isEmpty());
    QVERIFY(device.parameterFiles().isEmpty());
    QVERIFY(device.odictFile().isNull());
    QVERIFY(device.odictFileName().isNull());
    QVERIFY(device.faultTextFile().isNull());
    QVERIFY(device.additionalFiles().isEmpty());
    QCOMPARE(device.additionalFileCount(), 0);
    QVERIFY(device.plugins().isEmpty());
    QVERIFY(device.executionPlugin().isNull());
    QVERIFY(device.fpgaFiles().isEmpty());
    QCOMPARE(device.fpgaFileCount(), 0);
    QVERIFY(device.activeFpgaFile().isEmpty());
    QVERIFY(!device.isOpcUaEnabled());
    QVERIFY(device.opcUaFiles().isEmpty());
    QVERIFY(device.etherCatMasterFile().isNull());
    QCOMPARE(static_cast<int>(device.hostAddressType()), 0);
    QVERIFY(device.hostAddress().isNull());
    QCOMPARE(device.port(), quint16(0));
    QCOMPARE(device.preferredDeviceListNumber(), -1);
    QVERIFY(device.subDevices().isEmpty());
    QCOMPARE(device.subDeviceCount(), 0);
    QVERIFY(device.allFiles().isEmpty());
}

void tst_cdeviceelement::changedField_data()
{
    QTest::addColumn<Change>("change");

    changeRow("name", [](CDeviceElement &d) { d.setName(u"n"_s); });
    changeRow("comment", [](CDeviceElement &d) { d.setComment(u"c"_s); });
    changeRow("identity", [](CDeviceElement &d) { d.setHardwareId(IdText); });
    changeRow("configuration name", [](CDeviceElement &d) { d.setConfigurationName(u"x"_s); });
    changeRow("serial", [](CDeviceElement &d) { d.setSerial(1); });
    changeRow("class", [](CDeviceElement &d) { d.setDeviceClass(NDeviceConf::DEVICE_CLASS_KC2); });
    changeRow("options", [](CDeviceElement &d) { d.appendOption(u"-a"_s); });
    changeRow("parameter files", [](CDeviceElement &d) { d.addParameterFile(paramFile(u"p"_s)); });
    changeRow("null parameter file",
              [](CDeviceElement &d) { d.setParameterFiles({CParamFileElement()}); });
    changeRow("object dictionary", [](CDeviceElement &d) { d.setOdictFile(file(u"f"_s)); });
    changeRow("fault texts", [](CDeviceElement &d) { d.setFaultTextFile(file(u"f"_s)); });
    changeRow("additional files", [](CDeviceElement &d) { d.appendAdditionalFile(file(u"f"_s)); });
    changeRow("null additional file",
              [](CDeviceElement &d) { d.appendAdditionalFile(CFileElement()); });
    changeRow("plug-ins", [](CDeviceElement &d) { d.setPlugins({CPluginElement()}); });
    changeRow("execution plug-in", [](CDeviceElement &d) { d.setExecutionPlugin(u"x"_s); });
    changeRow("FPGA files", [](CDeviceElement &d) { d.appendFpgaFile(u"f"_s); });
    changeRow("OPC UA enabled", [](CDeviceElement &d) { d.setOpcUaEnabled(true); });
    changeRow("OPC UA enabled without its option", [](CDeviceElement &d) {
        d.setOpcUaEnabled(true);
        d.setOptions(QStringList());
    });
    changeRow("OPC UA files", [](CDeviceElement &d) { d.appendOpcUaFile(file(u"f"_s)); });
    changeRow("EtherCAT master", [](CDeviceElement &d) { d.setEtherCatMasterFile(file(u"f"_s)); });
    changeRow("kind of host address",
              [](CDeviceElement &d) { d.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV6); });
    changeRow("host address", [](CDeviceElement &d) { d.setHostAddress(QHostAddress(1u)); });
    changeRow("port", [](CDeviceElement &d) { d.setPort(1); });
    changeRow("preferred position", [](CDeviceElement &d) { d.setPreferredDeviceListNumber(0); });
    changeRow("sub-device", [](CDeviceElement &d) { d.insertSubDevice(kd3()); });
    changeRow("sub-device of another series", [](CDeviceElement &d) { d.insertSubDevice(kd2()); });
    changeRow("sub-device of another number",
              [](CDeviceElement &d) { d.insertSubDevice(kd3(u"DRIVE-0"_s), 3); });
}

void tst_cdeviceelement::changedField()
{
    QFETCH(Change, change);

    CDeviceElement device;
    change(device);
    QVERIFY(!device.isNull());
    QVERIFY(device != CDeviceElement());
    QVERIFY(CDeviceElement() != device);

    CDeviceElement same;
    change(same);
    QVERIFY(device == same);

    // A difference in one field is enough, whatever the others hold.
    CDeviceElement full = deviceWithFiles();
    full.insertSubDevice(kd2(u"2"_s), 0);
    CDeviceElement changed(full);
    change(changed);
    QVERIFY(changed != full);

    CDeviceElement read;
    QCOMPARE(StreamBytes::read(StreamBytes::toBytes(changed), read),
             qint64(StreamBytes::toBytes(changed).size()));
    QVERIFY(read == changed);

    device.clear();
    QVERIFY(device.isNull());
    QVERIFY(device == CDeviceElement());
    QVERIFY(!same.isNull());
}

void tst_cdeviceelement::equalityOfFilesIsTheirOwn()
{
    CParamFileElement commented = paramFile(u"p"_s);
    commented.setComment(u"comment"_s);
    CDeviceElement left;
    CDeviceElement right;
    left.setParameterFiles({paramFile(u"p"_s)});
    right.setParameterFiles({commented});
    QVERIFY(left == right);

    left.setAdditionalFiles({file(u"f"_s)});
    right.setAdditionalFiles({file(u"f"_s, {}, {}, u"comment"_s)});
    QVERIFY(left != right);
}

void tst_cdeviceelement::driveIdIsAlways255()
{
    CDeviceElement device;
    for (const unsigned char id : {quint8(0), quint8(1), quint8(254), quint8(255)}) {
        device.setDriveId(id);
        QCOMPARE(device.driveId(), quint8(255));
        QVERIFY(device.isNull());
        CBaseElement &element = device;
        element.setDriveId(id);
        QCOMPARE(element.driveId(), quint8(255));
    }
    CDeviceBaseElement base;
    base.setDriveId(3);
    QCOMPARE(base.driveId(), quint8(255));
}

void tst_cdeviceelement::kinds()
{
    const CDeviceElement device;
    QCOMPARE(static_cast<int>(device.type()), 1);
    QVERIFY(device.isDevice());
    QVERIFY(!device.isSubDevice());
    QCOMPARE(device.toDevicePtr(), &device);
    const CDeviceBaseElement base;
    QVERIFY(base.isDevice());
    QCOMPARE(static_cast<int>(base.type()), 0);
    QVERIFY(!base.toDevicePtr());
    QCOMPARE(base.toBaseDevicePtr(), &base);
}

void tst_cdeviceelement::accessors()
{
    CDeviceElement device;
    device.setSerial(0xffffffff);
    device.setDeviceClass(static_cast<NDeviceConf::EDeviceClass>(77));
    device.setExecutionPlugin(u" x "_s);
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_NAME);
    device.setHostAddress(QHostAddress(u"fe80::1"_s));
    device.setPort(65535);
    device.setPreferredDeviceListNumber(-5);
    device.setFaultTextFile(file(u"f"_s, u"a"_s, u"b"_s, u"c"_s));
    device.setOdictFile(file(u"o"_s, u"a"_s, u"b"_s, u"c"_s));
    device.setEtherCatMasterFile(file(u"e"_s, u"a"_s, u"b"_s, u"c"_s));
    QCOMPARE(device.serial(), 0xffffffffu);
    QCOMPARE(static_cast<int>(device.deviceClass()), 77);
    QCOMPARE(device.executionPlugin(), u" x "_s);
    QCOMPARE(device.hostAddressType(), CDeviceItem::HOST_ADDRESS_NAME);
    QCOMPARE(device.hostAddress(), QHostAddress(u"fe80::1"_s));
    QCOMPARE(device.port(), quint16(65535));
    QCOMPARE(device.preferredDeviceListNumber(), -5);
    QVERIFY(device.faultTextFile() == file(u"f"_s, u"a"_s, u"b"_s, u"c"_s));
    QVERIFY(device.odictFile() == file(u"o"_s, u"a"_s, u"b"_s, u"c"_s));
    QCOMPARE(device.odictFileName(), u"o"_s);
    QVERIFY(device.etherCatMasterFile() == file(u"e"_s, u"a"_s, u"b"_s, u"c"_s));
}

void tst_cdeviceelement::nextFreeDriveId_data()
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

void tst_cdeviceelement::nextFreeDriveId()
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

void tst_cdeviceelement::insertedNumber_data()
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

void tst_cdeviceelement::insertedNumber()
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

void tst_cdeviceelement::insertedName_data()
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

void tst_cdeviceelement::insertedName()
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

void tst_cdeviceelement::insertingFitsTheSubDevice()
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

void tst_cdeviceelement::insertingInOrder()
{
    CDeviceElement device;
    Recorder subDevice{CSubDeviceKD3Element()};
    device.insertSubDevice(subDevice, 4);
    QCOMPARE(subDevice.calls,
             (QStringList{u"drive number"_s, u"serial"_s, u"device name"_s, u"identity as text"_s,
                          u"configuration name"_s}));
}

void tst_cdeviceelement::insertingAConstantLeavesIt()
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

void tst_cdeviceelement::insertingReplaces()
{
    CDeviceElement device;
    device.insertSubDevice(kd2(u"first"_s), 3);
    device.insertSubDevice(kd3(u"second"_s), 3);
    QCOMPARE(device.subDeviceCount(), 1);
    QCOMPARE(device.subDevice(3).name(), u"second"_s);
    QVERIFY(device.subDevice(3).isKD3());
}

void tst_cdeviceelement::insertingAnEmptyContainer()
{
    CDeviceElement device;
    QCOMPARE(device.insertSubDevice(CSubDeviceElement()), quint8(0));
    QCOMPARE(device.subDeviceCount(), 1);
    QVERIFY(device.subDevice(0).isNull());
    QVERIFY(!device.isNull());
    QVERIFY(device.allFiles().isEmpty());
}

void tst_cdeviceelement::subDevicesAreInOrderAndCopies()
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

void tst_cdeviceelement::removeSubDevice()
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

void tst_cdeviceelement::setSubDevices()
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

void tst_cdeviceelement::subDevicesFollow_data()
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

void tst_cdeviceelement::subDevicesFollow()
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

void tst_cdeviceelement::subDevicesOfACopyDoNotFollow()
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

void tst_cdeviceelement::appendOption_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("result");

    const QStringList some = {u"-a"_s, u"-b x"_s};
    const auto row = [&some](const char *name, const QString &option, const QStringList &result) {
        QTest::newRow(name) << some << option << result;
    };
    row("new", u"-c"_s, some + QStringList{u"-c"_s});
    row("there", u"-a"_s, some);
    row("there, with an argument", u"-b x"_s, some);
    row("another argument", u"-b y"_s, some + QStringList{u"-b y"_s});
    row("another case", u"-A"_s, some + QStringList{u"-A"_s});
    row("longer", u"-ab"_s, some + QStringList{u"-ab"_s});
    row("long form", u"--a"_s, some + QStringList{u"--a"_s});
    row("minus alone", u"-"_s, some + QStringList{u"-"_s});
    row("no minus", u"x"_s, some);
    row("blank in front", u" -c"_s, some);
    row("another minus", u"\u2212c"_s, some);
    row("empty", u""_s, some);
    row("null", QString(), some);
    QTest::newRow("first") << QStringList() << u"-v"_s << QStringList{u"-v"_s};
}

void tst_cdeviceelement::appendOption()
{
    QFETCH(QStringList, options);
    QFETCH(QString, option);
    QFETCH(QStringList, result);

    CDeviceElement device;
    device.setOptions(options);
    device.appendOption(option);
    QCOMPARE(device.options(), result);
    device.appendOption(option);
    QCOMPARE(device.options(), result);
}

void tst_cdeviceelement::removeOption_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("result");

    const auto row = [](const char *name, const QStringList &options, const QString &option,
                        const QStringList &result) {
        QTest::newRow(name) << options << option << result;
    };
    row("alone", {u"-a"_s}, u"-a"_s, {});
    row("among others", {u"-a"_s, u"-b"_s, u"-c"_s}, u"-b"_s, {u"-a"_s, u"-c"_s});
    row("with an argument", {u"-a"_s, u"-b x y"_s}, u"-b"_s, {u"-a"_s});
    row("tabulator before the argument", {u"-b\tx"_s}, u"-b"_s, {});
    row("the first one only", {u"-a 1"_s, u"-a 2"_s}, u"-a"_s, {u"-a 2"_s});
    row("given with its argument", {u"-a 1"_s, u"-a 2"_s}, u"-a 2"_s, {u"-a 1"_s});
    row("given with another argument", {u"-a 1"_s}, u"-a 2"_s, {u"-a 1"_s});
    row("not there", {u"-a"_s}, u"-b"_s, {u"-a"_s});
    row("part of another one", {u"-opc"_s}, u"-op"_s, {u"-opc"_s});
    row("part of another one's second half", {u"-a-opc"_s}, u"-opc"_s, {u"-a-opc"_s});
    row("longer than another one", {u"-op"_s}, u"-opc"_s, {u"-op"_s});
    row("as an argument", {u"-a -opc"_s}, u"-opc"_s, {u"-a -opc"_s});
    row("before a hyphen", {u"-opc-ua"_s}, u"-opc"_s, {u"-opc-ua"_s});
    row("before an equals sign", {u"-opc=1"_s}, u"-opc"_s, {u"-opc=1"_s});
    row("another case", {u"-A"_s}, u"-a"_s, {u"-A"_s});
    row("no minus", {u"a"_s, u"-a"_s}, u"a"_s, {u"a"_s, u"-a"_s});
    row("empty", {u"-a"_s, u""_s}, u""_s, {u"-a"_s, u""_s});
    row("null", {u"-a"_s}, QString(), {u"-a"_s});
    row("from no options", {}, u"-a"_s, {});
    row("pattern", {u"-a1"_s, u"-b1"_s}, u"-b\\d"_s, {u"-a1"_s});
}

void tst_cdeviceelement::removeOption()
{
    QFETCH(QStringList, options);
    QFETCH(QString, option);
    QFETCH(QStringList, result);

    CDeviceElement device;
    device.setOptions(options);
    QCOMPARE(device.removeOption(option), options != result);
    QCOMPARE(device.options(), result);
}

void tst_cdeviceelement::setOptionsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("options");

    const auto row = [](const char *name, const QString &text, const QStringList &options) {
        QTest::newRow(name) << text << options;
    };
    row("example", u"-a -b x"_s, {u"-a"_s, u"-b x"_s});
    row("one", u"-a"_s, {u"-a"_s});
    row("empty", u""_s, {});
    row("null", QString(), {});
    row("several blanks", u"-a   -b"_s, {u"-a"_s, u"-b"_s});
    row("tabulator and line feed", u"-a\t-b\n-c"_s, {u"-a"_s, u"-b"_s, u"-c"_s});
    row("blank in front", u" -a"_s, {u"-a"_s});
    row("blanks within an argument", u"-a x  y"_s, {u"-a x  y"_s});
    row("minus within a word", u"-a-b -c x-y"_s, {u"-a-b"_s, u"-c x-y"_s});
    row("negative argument becomes an option", u"-a -1"_s, {u"-a"_s, u"-1"_s});
    row("long form", u"--long -a"_s, {u"--long"_s, u"-a"_s});
    row("long form behind another one", u"-a --long"_s, {u"-a"_s, u"--long"_s});
    row("no minus at the start", u"x -a"_s, {u"-x"_s, u"-a"_s});
    row("repeated", u"-a -b -a"_s, {u"-a"_s, u"-b"_s});
    row("repeated with another argument", u"-a 1 -a 2"_s, {u"-a 1"_s, u"-a 2"_s});
    row("minus alone", u"-"_s, {});
    row("blank at the end", u"-a "_s, {u"-a "_s});
}

void tst_cdeviceelement::setOptionsText()
{
    QFETCH(QString, text);
    QFETCH(QStringList, options);

    CDeviceElement device;
    device.setOptions(QStringList{u"-old"_s});
    device.setOptions(text);
    QCOMPARE(device.options(), options);
}

void tst_cdeviceelement::setOptionsList()
{
    const QStringList options = {u"x"_s, u"-a"_s, u"-a"_s, u""_s};
    CDeviceElement device;
    device.appendOption(u"-old"_s);
    device.setOptions(options);
    QCOMPARE(device.options(), options);
}

void tst_cdeviceelement::optionAt()
{
    CDeviceElement device;
    QVERIFY(device.option(0).isEmpty());
    device.setOptions(QStringList{u"-a"_s, u"-b"_s});
    QCOMPARE(device.option(0), u"-a"_s);
    QCOMPARE(device.option(1), u"-b"_s);
    QVERIFY(device.option(2).isEmpty());
    QVERIFY(device.option(-1).isEmpty());
}

void tst_cdeviceelement::opcUaOption_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("enabled");
    QTest::addColumn<QStringList>("disabled");

    const QString opc = u"-opc"_s;
    QTest::newRow("none") << QStringList() << QStringList{opc} << QStringList();
    QTest::newRow("another one") << QStringList{u"-a"_s} << QStringList{u"-a"_s, opc}
                                 << QStringList{u"-a"_s};
    QTest::newRow("there") << QStringList{opc, u"-a"_s} << QStringList{opc, u"-a"_s}
                           << QStringList{u"-a"_s};
    QTest::newRow("longer") << QStringList{u"-opcua"_s} << QStringList{u"-opcua"_s, opc}
                            << QStringList{u"-opcua"_s};
}

void tst_cdeviceelement::opcUaOption()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, enabled);
    QFETCH(QStringList, disabled);

    CDeviceElement device;
    device.setOptions(options);
    QVERIFY(!device.isOpcUaEnabled());
    device.setOpcUaEnabled(true);
    QVERIFY(device.isOpcUaEnabled());
    QCOMPARE(device.options(), enabled);
    device.setOpcUaEnabled(true);
    QCOMPARE(device.options(), enabled);

    // The flag is its own, the options do not change it.
    device.removeOption(u"-opc"_s);
    QVERIFY(device.isOpcUaEnabled());
    device.appendOption(u"-opc"_s);
    device.setOpcUaEnabled(false);
    QVERIFY(!device.isOpcUaEnabled());
    QCOMPARE(device.options(), disabled);
    device.appendOption(u"-opc"_s);
    QVERIFY(!device.isOpcUaEnabled());
}

void tst_cdeviceelement::fpgaFileAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("left");

    const QStringList all = {u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("first") << 0 << u"a"_s << QStringList{u"b"_s, u"c"_s};
    QTest::newRow("last") << 2 << u"c"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("behind the end") << 3 << QString() << all;
    QTest::newRow("far behind the end") << 1000000 << QString() << all;
    QTest::newRow("negative") << -1 << QString() << all;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << QString() << all;
}

void tst_cdeviceelement::fpgaFileAt()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(QStringList, left);

    CDeviceElement device;
    device.setFpgaFiles({u"a"_s, u"b"_s, u"c"_s});
    QCOMPARE(device.fpgaFile(index), name);
    QCOMPARE(device.fpgaFileElement(index).fileName(), name);
    QCOMPARE(device.fpgaFileElement(index).isNull(), name.isEmpty());
    QCOMPARE(device.removeFpgaFile(index), !name.isEmpty());
    QCOMPARE(device.fpgaFiles(), left);
}

void tst_cdeviceelement::fpgaFileList()
{
    CDeviceElement device;
    QVERIFY(!device.removeFpgaFile(0));
    QVERIFY(!device.removeFpgaFile(u"a"_s));
    device.appendFpgaFile(u"a"_s);
    device.appendFpgaFile(u"b"_s);
    device.appendFpgaFile(u"a"_s);
    QCOMPARE(device.fpgaFiles(), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    QCOMPARE(device.fpgaFileCount(), 3);
    QCOMPARE(device.activeFpgaFile(), u"a"_s);
    QVERIFY(!device.removeFpgaFile(u"A"_s));
    QVERIFY(!device.removeFpgaFile(u"x/a"_s));
    QVERIFY(device.removeFpgaFile(u"a"_s));
    QCOMPARE(device.fpgaFiles(), (QStringList{u"b"_s, u"a"_s}));
    QCOMPARE(device.activeFpgaFile(), u"b"_s);
    device.clearFpgaFiles();
    QCOMPARE(device.fpgaFileCount(), 0);
    QVERIFY(device.activeFpgaFile().isEmpty());
}

void tst_cdeviceelement::setActiveFpgaFile_data()
{
    QTest::addColumn<QString>("active");
    QTest::addColumn<QStringList>("files");

    QTest::newRow("first") << u"a"_s << QStringList{u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("last") << u"c"_s << QStringList{u"c"_s, u"a"_s, u"dir/b"_s};
    QTest::newRow("new") << u"d"_s << QStringList{u"d"_s, u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("with another directory")
        << u"other/c"_s << QStringList{u"other/c"_s, u"a"_s, u"dir/b"_s};
    QTest::newRow("without its directory") << u"b"_s << QStringList{u"b"_s, u"a"_s, u"c"_s};
    QTest::newRow("another case") << u"A"_s << QStringList{u"A"_s, u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("empty") << u""_s << QStringList{u"a"_s, u"dir/b"_s, u"c"_s};
}

void tst_cdeviceelement::setActiveFpgaFile()
{
    QFETCH(QString, active);
    QFETCH(QStringList, files);

    CDeviceElement device;
    device.setFpgaFiles({u"a"_s, u"dir/b"_s, u"c"_s});
    device.setActiveFpgaFile(active);
    QCOMPARE(device.fpgaFiles(), files);
    QCOMPARE(device.activeFpgaFile(), files.first());
    device.setActiveFpgaFile(active);
    QCOMPARE(device.fpgaFiles(), files);
}

void tst_cdeviceelement::isSameFpgaFile_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("same");

    QTest::newRow("equal") << u"a"_s << u"a"_s << true;
    QTest::newRow("one with a directory") << u"a"_s << u"x/a"_s << true;
    QTest::newRow("two directories") << u"/x/y/a"_s << u"z/a"_s << true;
    QTest::newRow("other names") << u"x/a"_s << u"x/b"_s << false;
    QTest::newRow("another case") << u"a"_s << u"A"_s << false;
    QTest::newRow("name and directory") << u"a"_s << u"a/x"_s << false;
}

void tst_cdeviceelement::isSameFpgaFile()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST(CDeviceBaseElement::isSameFpgaFile(left, right), "same");
    QTEST(CDeviceBaseElement::isSameFpgaFile(right, left), "same");
}

void tst_cdeviceelement::fpgaFileElements()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setFpgaFiles({u"a"_s, u"b"_s});
    const CFileElement first =
        file(u"a"_s, u"dev/opt/velkor/etc/conf"_s, u"/opt/velkor/etc/conf"_s);
    QVERIFY(device.fpgaFileElement(0) == first);
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_FPGA)), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_ALL)), (QStringList{u"a"_s, u"b"_s}));
    QVERIFY(device.fpgaFiles(DEVICE_FILE_ALL).first() == first);
    QVERIFY(device.fpgaFiles(EDeviceFiles(DEVICE_FILE_ALL) & ~EDeviceFiles(DEVICE_FILE_FPGA))
                .isEmpty());
    QVERIFY(device.fpgaFiles(DEVICE_FILE_NONE).isEmpty());
}

void tst_cdeviceelement::addParameterFile()
{
    CDeviceElement device;
    QVERIFY(device.addParameterFile(u"a"_s, toType(2)));
    QVERIFY(device.addParameterFile(u"a"_s, toType(3)));
    QVERIFY(device.addParameterFile(paramFile(u"a"_s, 2, 0)));
    QVERIFY(device.addParameterFile(u"A"_s, toType(2)));
    QVERIFY(device.addParameterFile(u"b"_s, toType(-1)));
    QCOMPARE(device.parameterFiles().size(), 5);
    QVERIFY(device.parameterFiles().first() == paramFile(u"a"_s));

    // The same name, type and drive number again replaces it where it stands.
    CParamFileElement replacement = paramFile(u"a"_s, 3);
    replacement.setComment(u"new"_s);
    replacement.setProjectPath(u"p"_s);
    QVERIFY(device.addParameterFile(replacement));
    QCOMPARE(device.parameterFiles().size(), 5);
    QCOMPARE(device.parameterFiles().at(1).comment(), u"new"_s);
    QCOMPARE(device.parameterFiles().at(1).projectPath(), u"p/"_s);
    QVERIFY(device.containsParameterFile(replacement));
    replacement.setComment(u"in other words"_s);
    QVERIFY(device.containsParameterFile(replacement));
    replacement.setDriveId(9);
    QVERIFY(!device.containsParameterFile(replacement));
}

void tst_cdeviceelement::addInvalidParameterFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");

    QTest::newRow("no name") << QString() << 2;
    QTest::newRow("below undefined") << u"a"_s << -2;
}

void tst_cdeviceelement::addInvalidParameterFile()
{
    QFETCH(QString, name);
    QFETCH(int, type);

    CDeviceElement device;
    QVERIFY(!device.addParameterFile(paramFile(name, type)));
    QVERIFY(!device.addParameterFile(name, toType(type)));
    QVERIFY(device.isNull());
    QVERIFY(device.parameterFiles().isEmpty());
}

void tst_cdeviceelement::removeParameterFile()
{
    CDeviceElement device;
    const QList<CParamFileElement> all = {paramFile(u"a"_s, 2), paramFile(u"a"_s, 3),
                                          paramFile(u"a"_s, 3, 5), paramFile(u"b"_s, 2)};
    device.setParameterFiles(all);
    QVERIFY(!device.removeParameterFile(paramFile(u"a"_s, 4)));
    QVERIFY(!device.removeParameterFile(paramFile(u"b"_s, 2, 1)));
    QVERIFY(!device.removeParameterFile(u"b"_s, toType(3)));
    QVERIFY(!device.removeParameterFile(u"B"_s, toType(2)));
    QVERIFY(device.parameterFiles() == all);

    CParamFileElement commented = paramFile(u"b"_s, 2);
    commented.setComment(u"comment"_s);
    QVERIFY(device.removeParameterFile(commented));
    QVERIFY(device.parameterFiles() == all.mid(0, 3));
    QVERIFY(device.removeParameterFile(u"a"_s, toType(3)));
    QVERIFY(device.parameterFiles()
            == (QList<CParamFileElement>{paramFile(u"a"_s, 2), paramFile(u"a"_s, 3, 5)}));
    QVERIFY(device.removeParameterFile(u"a"_s, toType(3)));
    QVERIFY(!device.removeParameterFile(u"a"_s, toType(3)));
}

void tst_cdeviceelement::parameterFilesOfAType()
{
    CDeviceElement device;
    device.setParameterFiles(
        {paramFile(u"a"_s, 2), paramFile(u"b"_s, -1), paramFile(u"c"_s, 2), paramFile(u"d"_s, 10)});
    QVERIFY(device.parameterFiles(toType(2))
            == (QList<CParamFileElement>{paramFile(u"a"_s, 2), paramFile(u"c"_s, 2)}));
    QVERIFY(device.parameterFiles(toType(-1)) == QList<CParamFileElement>{paramFile(u"b"_s, -1)});
    QVERIFY(device.parameterFiles(toType(3)).isEmpty());
}

void tst_cdeviceelement::parameterFileElements_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("devicePath");
    QTest::addColumn<QString>("projectPath");

    const QStringList pair = {u"a.3param"_s, u"a.3pdef"_s};
    const QString own = u"/velkor/configurations/x1/param/"_s;
    const QString ownProject = u"dev/velkor/param/"_s;
    const QString area = u"/opt/velkor/etc/conf/"_s;
    const QString areaProject = u"dev/opt/velkor/etc/conf/"_s;
    QTest::newRow("KC2 parameters") << 0 << QStringList{u"a.xml"_s} << own << ownProject;
    QTest::newRow("KC2 compensation") << 1 << QStringList{u"a"_s} << own << ownProject;
    QTest::newRow("parameters") << 2 << pair << own << ownProject;
    QTest::newRow("undefined") << -1 << pair << own << ownProject;
    QTest::newRow("device data base") << 4 << pair << area << areaProject;
    QTest::newRow("option module data base") << 11 << pair << area << areaProject;
}

void tst_cdeviceelement::parameterFileElements()
{
    QFETCH(int, type);
    QFETCH(QStringList, names);
    QFETCH(QString, devicePath);
    QFETCH(QString, projectPath);

    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setConfigurationName(u"x1"_s);
    device.setParameterFiles({paramFile(u"other"_s, 3), paramFile(u"a"_s, type)});
    const Files files = device.parameterFileElements(toType(type));
    QCOMPARE(fileNames(files), names);
    for (const CFileElement &element : files) {
        QCOMPARE(element.devicePath(), devicePath);
        QCOMPARE(element.projectPath(), projectPath);
    }
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER).mid(2), files);
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER_VALUES).mid(1), files.mid(0, 1));
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER_DEFINITION).mid(1), files.mid(1));
    QVERIFY(device.parameterFiles(DEVICE_FILE_NONE).isEmpty());
    QVERIFY(device.parameterFiles(DEVICE_FILE_FPGA).isEmpty());
}

void tst_cdeviceelement::additionalFiles()
{
    CDeviceElement device;
    QVERIFY(device.additionalFile(0).isNull());
    QVERIFY(!device.removeAdditionalFile(0));
    device.setAdditionalFiles({file(u"a"_s), file(u"b"_s)});
    device.appendAdditionalFile(file(u"a"_s));
    QCOMPARE(fileNames(device.additionalFiles()), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    QCOMPARE(device.additionalFileCount(), 3);
    QVERIFY(device.additionalFile(1) == file(u"b"_s));
    QVERIFY(device.additionalFile(3).isNull());
    QVERIFY(device.additionalFile(-1).isNull());

    QVERIFY(!device.removeAdditionalFile(file(u"a"_s, u"x"_s)));
    QVERIFY(!device.removeAdditionalFile(file(u"a"_s, {}, {}, u"comment"_s)));
    QVERIFY(device.removeAdditionalFile(file(u"a"_s)));
    QCOMPARE(fileNames(device.additionalFiles()), (QStringList{u"b"_s, u"a"_s}));
    QVERIFY(!device.removeAdditionalFile(2));
    QVERIFY(!device.removeAdditionalFile(-1));
    QVERIFY(device.removeAdditionalFile(0));
    QCOMPARE(fileNames(device.additionalFiles()), QStringList{u"a"_s});
    device.clearAdditionalFiles();
    QCOMPARE(device.additionalFileCount(), 0);
    QVERIFY(device.isNull());
}

void tst_cdeviceelement::opcUaFiles()
{
    CDeviceElement device;
    device.setOpcUaFiles({file(u"a"_s)});
    device.appendOpcUaFile(file(u"b"_s));
    QCOMPARE(fileNames(device.opcUaFiles()), (QStringList{u"a"_s, u"b"_s}));
    QVERIFY(!device.isOpcUaEnabled());
    device.setOpcUaFiles({});
    QVERIFY(device.isNull());
}

void tst_cdeviceelement::pluginFiles()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setPlugins({plugin(u"motion"_s, u"2"_s), plugin(u"pi_ecat"_s, u"1.3"_s)});
    const QString onDevice = u"/opt/velkor/plugins/app"_s;
    const QString inProject = u"dev/opt/velkor/plugins/app"_s;
    QVERIFY(device.pluginFileElements()
            == (Files{file(u"pi_motion.so.2"_s, inProject, onDevice),
                      file(u"pi_ecat.so.1.3"_s, inProject, onDevice)}));
    QCOMPARE(device.plugins().size(), 2);
    device.setPlugins({});
    QVERIFY(device.pluginFileElements().isEmpty());
}

void tst_cdeviceelement::odictFileName_data()
{
    QTest::addColumn<QString>("configurationName");
    QTest::addColumn<QString>("devicePath");

    QTest::newRow("default") << u"STD"_s << u"/opt/velkor/configurations/STD/conf/"_s;
    QTest::newRow("named") << u"a b"_s << u"/opt/velkor/configurations/a b/conf/"_s;
    QTest::newRow("none") << QString() << u"/conf/"_s;
}

void tst_cdeviceelement::odictFileName()
{
    QFETCH(QString, configurationName);
    QFETCH(QString, devicePath);

    CDeviceElement device;
    device.setConfigurationName(configurationName);
    device.setOdictFile(file(u"old"_s, u"project"_s, u"device"_s, u"comment"_s));
    device.setOdictFileName(u"new"_s);
    QCOMPARE(device.odictFileName(), u"new"_s);
    QVERIFY(device.odictFile() == file(u"new"_s, QString(), devicePath, u"comment"_s));
    QVERIFY(device.odictFile().projectPath().isNull());
}

void tst_cdeviceelement::configurationFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("configurationName");
    QTest::addColumn<QString>("devicePath");
    QTest::addColumn<QString>("projectPath");

    QTest::newRow("named") << u"dev"_s << u"x"_s << u"/velkor/configurations/x/conf/"_s
                           << u"dev/velkor/conf/"_s;
    QTest::newRow("null device") << QString() << u"STD"_s << u"/velkor/configurations/STD/conf/"_s
                                 << QString();
    QTest::newRow("no configuration") << u"dev"_s << QString() << u"/conf/"_s << QString();
}

void tst_cdeviceelement::configurationFile()
{
    QFETCH(QString, name);
    QFETCH(QString, configurationName);

    CDeviceElement device;
    device.setName(name);
    device.setConfigurationName(configurationName);
    const CFileElement element = device.configurationFile();
    QCOMPARE(element.fileName(), u"DeviceConfiguration.3deco"_s);
    QCOMPARE(element.fileName(), ICDeviceConfigurationFile::defaultFileName());
    QTEST(element.devicePath(), "devicePath");
    QTEST(element.projectPath(), "projectPath");
    QVERIFY(element.comment().isEmpty());
}

void tst_cdeviceelement::standardDirectories()
{
    CDeviceElement device;
    device.setConfigurationName(u"x"_s);
    QCOMPARE(device.stdAppPluginDevicePath(), u"/opt/velkor/plugins/app/"_s);
    QCOMPARE(device.stdEtherCatMasterFileDevicePath(), u"/velkor/configurations/x/param/"_s);
    QCOMPARE(device.stdFaultTextFileDevicePath(), u"/opt/velkor/configurations/x/conf/"_s);
    QCOMPARE(device.stdFpgaDevicePath(), u"/opt/velkor/etc/conf/"_s);
    QCOMPARE(device.stdObjectDictionaryDevicePath(), u"/opt/velkor/configurations/x/conf/"_s);
    QCOMPARE(device.stdOpcUaFileDevicePath(), u"/velkor/configurations/x/conf/"_s);
    for (int type = -2; type <= 12; ++type) {
        QCOMPARE(device.stdParameterFileDevicePath(toType(type)),
                 CDeviceFileSystem::stdParamFilePath(toType(type), u"x"_s));
    }
}

void tst_cdeviceelement::hardwareIdCompatible_data()
{
    QTest::addColumn<QString>("identity");
    QTest::addColumn<bool>("values");
    QTest::addColumn<bool>("images");

    QTest::newRow("equal") << IdText << true << true;
    QTest::newRow("another revision") << u"KD3:Servo:1:2:4"_s << true << false;
    QTest::newRow("another version") << u"KD3:Servo:1:3:3"_s << true << false;
    QTest::newRow("another platform") << u"KD3:Servo:2:2:3"_s << false << false;
    QTest::newRow("another name") << u"KD3:servo:1:2:3"_s << false << false;
    QTest::newRow("another prefix") << u"KD2:Servo:1:2:3"_s << false << false;
    QTest::newRow("none") << QString() << false << false;
}

void tst_cdeviceelement::hardwareIdCompatible()
{
    QFETCH(QString, identity);
    QFETCH(bool, values);
    QFETCH(bool, images);

    CDeviceElement device;
    device.setHardwareId(IdText);
    for (int type = -1; type <= 12; ++type) {
        const bool isImage = type == 6 || type == 7;
        QCOMPARE(device.isParameterHardwareIdCompatible(CDeviceHardwareId(identity), toType(type)),
                 isImage ? images : values);
    }
}

void tst_cdeviceelement::allFiles_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<QStringList>("names");

    const auto row = [](const char *name, int kinds, const QStringList &names) {
        QTest::newRow(name) << kinds << names;
    };
    row("none", DEVICE_FILE_NONE, {});
    row("all", DEVICE_FILE_ALL,
        {u"params.3param"_s, u"params.3pdef"_s, u"odict"_s, u"faults"_s, u"add1"_s, u"add2"_s,
         u"pi_motion.so.2"_s, u"fpga1"_s, u"fpga2"_s, u"opc"_s, u"bus"_s, u"sub"_s, u"firmware"_s,
         u"logic"_s, u"kd2"_s, u"sub3"_s});
    row("parameters", DEVICE_FILE_PARAMETER, {u"params.3param"_s, u"params.3pdef"_s});
    row("parameter values", DEVICE_FILE_PARAMETER_VALUES, {u"params.3param"_s});
    row("parameter definitions", DEVICE_FILE_PARAMETER_DEFINITION, {u"params.3pdef"_s});
    row("object dictionary", DEVICE_FILE_OBJECT_DICTIONARY, {u"odict"_s});
    row("fault texts", DEVICE_FILE_FAULT_TEXTS, {u"faults"_s});
    row("additional", DEVICE_FILE_ADDITIONAL, {u"add1"_s, u"add2"_s});
    row("plug-ins", DEVICE_FILE_PLUGIN, {u"pi_motion.so.2"_s});
    row("FPGA", DEVICE_FILE_FPGA, {u"fpga1"_s, u"fpga2"_s});
    row("OPC UA", DEVICE_FILE_OPC_UA, {u"opc"_s});
    row("EtherCAT master", DEVICE_FILE_ETHERCAT_MASTER, {u"bus"_s});
    row("sub-devices", DEVICE_FILE_SUB_DEVICE,
        {u"sub"_s, u"firmware"_s, u"logic"_s, u"kd2"_s, u"sub3"_s});
    row("sub-device parameters", DEVICE_FILE_SUB_DEVICE_PARAMETERS, {u"sub"_s, u"sub3"_s});
    row("KD2 firmware", DEVICE_FILE_KD2_FIRMWARE, {u"firmware"_s});
    row("KD2 logic", DEVICE_FILE_KD2_LOGIC, {u"logic"_s});
    row("KD2 parameters", DEVICE_FILE_KD2_PARAMETERS, {u"kd2"_s});
    row("two kinds in the order of the fields", DEVICE_FILE_OPC_UA | DEVICE_FILE_FAULT_TEXTS,
        {u"faults"_s, u"opc"_s});
}

void tst_cdeviceelement::allFiles()
{
    QFETCH(int, kinds);
    QFETCH(QStringList, names);

    const CDeviceElement device = deviceWithFiles();
    const EDeviceFiles flags = EDeviceFiles(QFlag(kinds));
    QCOMPARE(fileNames(device.allFiles(flags)), names);
    if (kinds == DEVICE_FILE_ALL) {
        QVERIFY(device.allFiles() == device.allFiles(flags));
        QVERIFY(static_cast<const CDeviceBaseElement &>(device).allFiles() == device.allFiles());
    }
}

void tst_cdeviceelement::allFilesLeavesOutNullAndRepeatedOnes()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setAdditionalFiles({CFileElement(), file(u"a"_s), file({}, u"p"_s, u"d"_s),
                               file(u"a"_s, {}, {}, u"comment"_s), file(u"a"_s, u"p"_s),
                               file(u"a"_s, {}, u"d"_s)});
    device.setFpgaFiles({u""_s, u"f"_s, u"f"_s});
    device.setOpcUaFiles({file(u"a"_s, u"p"_s), file(u"b"_s)});
    device.setEtherCatMasterFile(file(u"b"_s));
    CSubDeviceKD3Element subDevice;
    subDevice.setParameterFile(file(u"b"_s));
    device.insertSubDevice(CSubDeviceElement(subDevice));
    device.insertSubDevice(CSubDeviceElement());
    QCOMPARE(fileNames(device.allFiles()), (QStringList{u"a"_s, u"a"_s, u"a"_s, u"f"_s, u"b"_s}));
    for (const CFileElement &element : device.allFiles()) {
        QVERIFY(!element.isNull());
    }
}

void tst_cdeviceelement::allFilesLeavesOutWhatCannotExist()
{
    // Without a name they would still give ".3param" and "pi_.so.2".
    CDeviceElement device;
    device.setParameterFiles({paramFile(QString()), paramFile(u"p"_s)});
    device.setPlugins({plugin(QString(), u"2"_s), plugin(u"m"_s, u"2"_s), plugin(u"m"_s, u"2"_s)});
    device.setFpgaFiles({QString(), u"f"_s, u"f"_s});
    QCOMPARE(fileNames(device.allFiles()),
             (QStringList{u"p.3param"_s, u"p.3pdef"_s, u"pi_m.so.2"_s, u"f"_s}));
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_ALL)), QStringList{u"f"_s});
    QCOMPARE(fileNames(device.pluginFileElements()), QStringList{u"pi_m.so.2"_s});
}

void tst_cdeviceelement::allFilesWithoutAConfigurationName()
{
    CDeviceElement device;
    device.setConfigurationName(QString());
    device.setParameterFiles({paramFile(u"own"_s, 2), paramFile(u"shared"_s, 4)});
    const Files files = device.parameterFiles(DEVICE_FILE_PARAMETER_VALUES);
    QCOMPARE(files.size(), 2);
    QVERIFY(files.at(0).devicePath().isEmpty());
    QCOMPARE(files.at(1).devicePath(), CDeviceFileSystem::optSMEtcConfPath());
}

void tst_cdeviceelement::allFilesTellsPlaces()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setConfigurationName(u"x"_s);
    CParamFileElement withProject = paramFile(u"b"_s);
    withProject.setProjectPath(u"own"_s);
    CParamFileElement withDevice = paramFile(u"c"_s);
    withDevice.setDevicePath(u"/opt/velkor/own"_s);
    device.setParameterFiles({paramFile(u"a"_s), withProject, withDevice});
    device.setOdictFile(file(u"o"_s));
    const Files files =
        device.allFiles(EDeviceFiles(DEVICE_FILE_PARAMETER_VALUES) | DEVICE_FILE_OBJECT_DICTIONARY);
    const QString param = u"/velkor/configurations/x/param"_s;
    QCOMPARE(files.size(), 4);
    QVERIFY(files.at(0) == file(u"a.3param"_s, u"dev/velkor/param"_s, param));
    QVERIFY(files.at(1) == file(u"b.3param"_s, u"own"_s, param));
    QVERIFY(files.at(2) == file(u"c.3param"_s, u"dev/opt/velkor/own"_s, u"/opt/velkor/own"_s));
    QVERIFY(files.at(3) == file(u"o"_s));
}

void tst_cdeviceelement::renamingMovesEveryProjectPath()
{
    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setNameAndAdaptProjectPaths(u"new"_s);
    QCOMPARE(device.name(), u"new"_s);

    QStringList expected;
    for (const QString &path : before) {
        QVERIFY(path.contains(u"old/"_s));
        expected << QString(path).replace(u"old/"_s, u"new/"_s);
    }
    QCOMPARE(projectPaths(device), expected);
    QCOMPARE(expected.size(), 12);
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QCOMPARE(subDevice.deviceName(), u"new"_s);
    }

    // And back.
    device.setNameAndAdaptProjectPaths(u"old"_s);
    QVERIFY(device == deviceWithFiles());
}

void tst_cdeviceelement::renamingKeepsNamesAndDevicePaths()
{
    const CDeviceElement before = deviceWithFiles();
    CDeviceElement device(before);
    device.setNameAndAdaptProjectPaths(u"new"_s);
    const Files files = device.allFiles();
    QCOMPARE(fileNames(files), fileNames(before.allFiles()));
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(files.at(i).deviceFilePath(), before.allFiles().at(i).deviceFilePath());
    }
    QVERIFY(before == deviceWithFiles());
}

void tst_cdeviceelement::adaptingPathsLeavesTheName()
{
    CDeviceElement device = deviceWithFiles();
    device.adaptProjectPaths(u"new"_s);
    QCOMPARE(device.name(), u"old"_s);
    QCOMPARE(device.subDevice(0).deviceName(), u"old"_s);
    QCOMPARE(device.subDevice(0).parameterFile().projectPath(), u"new/g/"_s);
    QCOMPARE(device.odictFile().projectPath(), u"new/b/"_s);
    device.setName(u"new"_s);
    CDeviceElement renamed = deviceWithFiles();
    renamed.setNameAndAdaptProjectPaths(u"new"_s);
    QVERIFY(device == renamed);
}

void tst_cdeviceelement::renamingWithoutAName_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");

    QTest::newRow("no old name") << QString() << u"new"_s;
    QTest::newRow("no new name") << u"old"_s << QString();
    QTest::newRow("no name at all") << QString() << QString();
    QTest::newRow("same name") << u"old"_s << u"old"_s;
}

void tst_cdeviceelement::renamingWithoutAName()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);

    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setName(oldName);
    device.setNameAndAdaptProjectPaths(newName);
    QCOMPARE(device.name(), newName);
    QCOMPARE(projectPaths(device), before);
}

void tst_cdeviceelement::settingTheNameLeavesPaths()
{
    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setName(u"new"_s);
    QCOMPARE(projectPaths(device), before);
}

void tst_cdeviceelement::renamingTheConfigurationMovesDirectories()
{
    const CDeviceElement before = deviceWithFiles();
    CDeviceElement device(before);
    device.setConfigurationNameAndAdaptPaths(u"new"_s);
    QCOMPARE(device.configurationName(), u"new"_s);
    QCOMPARE(device.name(), u"old"_s);

    const QString sm = u"/velkor/configurations/new/"_s;
    QCOMPARE(device.parameterFiles().first().devicePath(), QString(sm + u"param/"_s));
    QCOMPARE(device.odictFile().devicePath(), u"/opt/velkor/configurations/new/conf/"_s);
    QCOMPARE(device.faultTextFile().devicePath(), u"/tmp/conf/"_s);
    QCOMPARE(device.additionalFile(0).devicePath(), sm);
    QCOMPARE(device.additionalFile(1).projectPath(), u"p/old/new/d/"_s);
    QCOMPARE(device.opcUaFiles().first().devicePath(), QString(sm + u"conf/"_s));
    QCOMPARE(device.etherCatMasterFile().devicePath(), QString(sm + u"param/"_s));
    QCOMPARE(device.subDevice(0).parameterFile().devicePath(),
             QString(sm + u"subdevices/0/param/"_s));
    QCOMPARE(device.subDevice(1).configurationName(), u"new"_s);
    QCOMPARE(fileNames(device.allFiles()), fileNames(before.allFiles()));
    QVERIFY(before == deviceWithFiles());

    device.setConfigurationNameAndAdaptPaths(u"conf"_s);
    QVERIFY(device == before);
}

void tst_cdeviceelement::renamingTheConfigurationWithoutAName()
{
    CDeviceElement device = deviceWithFiles();
    device.setConfigurationNameAndAdaptPaths(QString());
    QVERIFY(device.configurationName().isEmpty());
    device.setConfigurationNameAndAdaptPaths(u"conf"_s);
    QVERIFY(device == deviceWithFiles());
}

void tst_cdeviceelement::settingTheConfigurationLeavesPaths()
{
    CDeviceElement device = deviceWithFiles();
    device.setConfigurationName(u"new"_s);
    device.setConfigurationName(u"conf"_s);
    QVERIFY(device == deviceWithFiles());
}

void tst_cdeviceelement::streamForm_data()
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

void tst_cdeviceelement::streamForm()
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

void tst_cdeviceelement::streamOfFiles()
{
    const CDeviceElement device = deviceWithFiles();
    const auto read = StreamBytes::fromBytes<CDeviceElement>(StreamBytes::toBytes(device));
    QVERIFY(read == device);
    QVERIFY(read.allFiles() == device.allFiles());
    QVERIFY(read.subDevice(0).isKD2());
    QVERIFY(read.subDevice(1).isKD3());
    QCOMPARE(read.driveId(), quint8(255));
}

void tst_cdeviceelement::emptyContainersAreNotStreamed()
{
    CDeviceElement device;
    device.insertSubDevice(kd3(), 0);
    const QByteArray bytes = StreamBytes::toBytes(device);
    device.insertSubDevice(CSubDeviceElement(), 1);
    QCOMPARE(device.subDeviceCount(), 2);
    QCOMPARE(StreamBytes::toBytes(device), bytes);
    QCOMPARE(StreamBytes::fromBytes<CDeviceElement>(bytes).subDeviceCount(), 1);
}

void tst_cdeviceelement::readingDoesNotCheck()
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

void tst_cdeviceelement::repeatedDriveNumber()
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

void tst_cdeviceelement::brokenCount_data()
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

void tst_cdeviceelement::brokenCount()
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

REGISTER_APPLESS_TEST(tst_cdeviceelement)
#include "tst_cdeviceelement.moc"
