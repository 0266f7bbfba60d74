#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/SampleDevice.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace SampleDevice;

using Change = void (*)(CDeviceElement &);
Q_DECLARE_METATYPE(CDeviceElement)
Q_DECLARE_METATYPE(Change)
using namespace NvrnDeviceCore;

namespace {

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

    void hardwareIdCompatible_data();
    void hardwareIdCompatible();
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
    QTest::newRow("several times") << QStringList{opc, u"-a"_s, opc, opc}
                                   << QStringList{opc, u"-a"_s, opc, opc} << QStringList{u"-a"_s};
    QTest::newRow("with an argument")
        << QStringList{u"-opc 4840"_s} << QStringList{u"-opc 4840"_s, opc}
        << QStringList{u"-opc 4840"_s};
    QTest::newRow("behind one with an argument")
        << QStringList{u"-opc 4840"_s, opc} << QStringList{u"-opc 4840"_s, opc}
        << QStringList{u"-opc 4840"_s};
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

    device.setOpcUaEnabled(false);
    QVERIFY(!device.isOpcUaEnabled());
    QCOMPARE(device.options(), disabled);

    // The flag is its own, the options do not change it.
    device.appendOption(u"-opc"_s);
    QVERIFY(!device.isOpcUaEnabled());
    device.setOpcUaEnabled(true);
    device.removeOption(u"-opc"_s);
    QVERIFY(device.isOpcUaEnabled());
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

REGISTER_APPLESS_TEST(tst_cdeviceelement)
#include "tst_cdeviceelement.moc"
