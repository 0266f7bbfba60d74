#include "configfile/CDeviceConfigurationFile10.h"
#include "support/ConfigurationTexts.h"
#include "support/MessageCatcher.h"

#include <QtTest>

using namespace ConfigurationTexts;

Q_DECLARE_METATYPE(NDeviceConf::EDeviceClass)

/** The fields of the device in the document. */
class tst_configurationdocument_device : public QObject
{
    Q_OBJECT

private slots:
    void deviceFields_data();
    void deviceFields();
    void options_data();
    void options();
    void optionsAreWritten();
    void deviceClass_data();
    void deviceClass();
    void deviceClassIsWritten_data();
    void deviceClassIsWritten();
    void hardwareId_data();
    void hardwareId();
    void configurationName_data();
    void configurationName();
    void dates_data();
    void dates();
    void opcUaFlag_data();
    void opcUaFlag();
    void opcUaOption();
};

void tst_configurationdocument_device::deviceFields_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("comment");

    QTest::newRow("plain") << QByteArray("  <Name>a</Name>\n  <Comment>b</Comment>\n") << u"a"_s
                           << u"b"_s;
    QTest::newRow("in another order")
        << QByteArray("  <Comment>b</Comment>\n  <Name>a</Name>\n") << u"a"_s << u"b"_s;
    QTest::newRow("the first counts")
        << QByteArray("  <Name>a</Name>\n  <Name>c</Name>\n") << u"a"_s << QString();
    QTest::newRow("below another element")
        << QByteArray("  <A>\n   <Name>a</Name>\n  </A>\n") << QString() << QString();
    QTest::newRow("section") << QByteArray("  <Name><![CDATA[<a>]]></Name>\n") << u"<a>"_s
                             << QString();
    QTest::newRow("around a comment")
        << QByteArray("  <Name>a<!-- x -->b</Name>\n") << u"ab"_s << QString();
    QTest::newRow("blanks") << QByteArray("  <Name> a </Name>\n") << u" a "_s << QString();
}

void tst_configurationdocument_device::deviceFields()
{
    QFETCH(QByteArray, content);
    const CDeviceElement device = deviceIn(deviceDocument(content));
    QTEST(device.name(), "name");
    QTEST(device.comment(), "comment");
}

void tst_configurationdocument_device::options_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("options");

    QTest::newRow("one") << QByteArray("-a") << QStringList{u"-a"_s};
    QTest::newRow("three") << QByteArray("-a -b -c") << QStringList{u"-a"_s, u"-b"_s, u"-c"_s};
    QTest::newRow("several blanks") << QByteArray(" -a   -b ") << QStringList{u"-a"_s, u"-b"_s};
    QTest::newRow("argument") << QByteArray("-a x -b") << QStringList{u"-a"_s, u"x"_s, u"-b"_s};
    QTest::newRow("blank alone") << QByteArray(" ") << QStringList();
    QTest::newRow("tab is no separator") << QByteArray("-a\t-b") << QStringList{u"-a\t-b"_s};
}

void tst_configurationdocument_device::options()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, options);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <Options>" + text + "</Options>\n")));
    QCOMPARE(file.options(), options);
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QCOMPARE(device.options(), options);
}

void tst_configurationdocument_device::optionsAreWritten()
{
    CDeviceElement device;
    device.setOptions(QStringList{u"A"_s, u"B"_s, u"C"_s});
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    QVERIFY(bytesOf(file).contains("<Options>A B C</Options>"));
    QCOMPARE(file.options(), device.options());
}

void tst_configurationdocument_device::deviceClass_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<NDeviceConf::EDeviceClass>("deviceClass");

    QTest::newRow("kc2") << QByteArray("kc2") << NDeviceConf::DEVICE_CLASS_KC2;
    QTest::newRow("kd3") << QByteArray("kd3") << NDeviceConf::DEVICE_CLASS_KD3;
    QTest::newRow("undefined") << QByteArray("Undefined") << NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QTest::newRow("upper case") << QByteArray("KD3") << NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QTest::newRow("blank behind") << QByteArray("kd3 ") << NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QTest::newRow("number") << QByteArray("2") << NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QTest::newRow("empty") << QByteArray() << NDeviceConf::DEVICE_CLASS_UNDEFINED;
}

void tst_configurationdocument_device::deviceClass()
{
    QFETCH(QByteArray, text);
    QTEST(deviceIn(deviceDocument("  <Class>" + text + "</Class>\n")).deviceClass(), "deviceClass");
}

void tst_configurationdocument_device::deviceClassIsWritten_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("undefined") << 0 << QByteArray("Undefined");
    QTest::newRow("kc2") << 1 << QByteArray("kc2");
    QTest::newRow("kd3") << 2 << QByteArray("kd3");
    QTest::newRow("one too large") << 3 << QByteArray("Undefined");
    QTest::newRow("negative") << -1 << QByteArray("Undefined");
}

void tst_configurationdocument_device::deviceClassIsWritten()
{
    QFETCH(int, number);
    QFETCH(QByteArray, text);

    CDeviceElement device;
    device.setDeviceClass(static_cast<NDeviceConf::EDeviceClass>(number));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    QVERIFY(bytesOf(file).contains("<Class>" + text + "</Class>"));
}

void tst_configurationdocument_device::hardwareId_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("identity");
    QTest::addColumn<int>("warnings");

    QTest::newRow("plain") << QByteArray("KD3:Servo Drive 8A:3:2:1")
                           << u"KD3:Servo Drive 8A:3:2:1"_s << 0;
    QTest::newRow("empty") << QByteArray() << QString() << 0;
    QTest::newRow("no identity") << QByteArray("KD3") << QString() << 1;
    QTest::newRow("number too large") << QByteArray("KD3:n:65536:0:0") << QString() << 1;
    QTest::newRow("place markers") << QByteArray("%1 %2") << QString() << 1;
}

void tst_configurationdocument_device::hardwareId()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, identity);
    QFETCH(int, warnings);

    const MessageCatcher catcher;
    const CDeviceElement device = deviceIn(
        deviceDocument("  <HardwareId>" + text + "</HardwareId>\n  <Name>Press %1</Name>\n"));
    QCOMPARE(device.hardwareIdStr(), identity);
    QCOMPARE(device.name(), u"Press %1"_s);
    QCOMPARE(catcher.warnings().size(), warnings);
    QVERIFY(catcher.criticals().isEmpty());
    for (const QString &warning : catcher.warnings()) {
        QVERIFY2(warning.contains(QString::fromUtf8(text)), qPrintable(warning));
        QVERIFY2(warning.contains(u"Press %1"_s), qPrintable(warning));
    }
}

void tst_configurationdocument_device::configurationName_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("configurationName");

    QTest::newRow("told") << QByteArray("  <ConfigurationName>a</ConfigurationName>\n") << u"a"_s;
    QTest::newRow("told to be empty") << QByteArray("  <ConfigurationName/>\n") << QString();
    QTest::newRow("not told") << QByteArray("  <Name/>\n") << u"STD"_s;
}

void tst_configurationdocument_device::configurationName()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, configurationName);

    const CDeviceElement device = deviceIn(
        deviceDocument(content + "  <SubDevice>\n   <DriveNo>1</DriveNo>\n  </SubDevice>\n"));
    QCOMPARE(device.configurationName(), configurationName);
    QCOMPARE(device.subDevice(1).configurationName(), configurationName);
}

void tst_configurationdocument_device::dates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDate>("date");

    QTest::newRow("day") << QByteArray("2026-01-31") << QDate(2026, 1, 31);
    QTest::newRow("no such day") << QByteArray("2026-02-30") << QDate();
    QTest::newRow("other form") << QByteArray("31.01.2026") << QDate();
    QTest::newRow("words") << QByteArray("today") << QDate();
    QTest::newRow("empty") << QByteArray() << QDate();
}

void tst_configurationdocument_device::dates()
{
    QFETCH(QByteArray, text);
    QFETCH(QDate, date);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(" <Description>\n  <CreationDate>" + text
                               + "</CreationDate>\n"
                                 "  <RevisionDate>"
                               + text + "</RevisionDate>\n </Description>\n")));
    QCOMPARE(file.description().creationDate(), date);
    QCOMPARE(file.description().revisionDate(), date);

    const CDescriptionElement read = file.description();
    QVERIFY(file.setDescription(read));
    QVERIFY(file.description() == read);
}

void tst_configurationdocument_device::opcUaFlag_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("upper case") << QByteArray("TRUE") << false;
    QTest::newRow("number") << QByteArray("1") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void tst_configurationdocument_device::opcUaFlag()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, enabled);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <OpcUa>\n    <OpcUaEnabled>" + text
                                     + "</OpcUaEnabled>\n   </OpcUa>\n")));
    QCOMPARE(file.isOpcUaEnabled(), enabled);
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QCOMPARE(device.isOpcUaEnabled(), enabled);

    QVERIFY(file.setOpcUaEnabled(!enabled));
    QCOMPARE(file.isOpcUaEnabled(), !enabled);
    QVERIFY(bytesOf(file).contains(enabled ? "<OpcUaEnabled>false</OpcUaEnabled>"
                                           : "<OpcUaEnabled>true</OpcUaEnabled>"));
}

void tst_configurationdocument_device::opcUaOption()
{
    // The options in the document are all there are, whatever the flag says.
    const CDeviceElement device = deviceIn(
        configDocument("   <Options>-v</Options>\n"
                       "   <OpcUa>\n    <OpcUaEnabled>true</OpcUaEnabled>\n   </OpcUa>\n"));
    QVERIFY(device.isOpcUaEnabled());
    QCOMPARE(device.options(), QStringList{u"-v"_s});
}

QTEST_GUILESS_MAIN(tst_configurationdocument_device)
#include "tst_configurationdocument_device.moc"
