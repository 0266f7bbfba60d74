#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(NDeviceConf::EDeviceClass)

namespace {

QString validPath(const QString &name)
{
    return QStringLiteral(VRN_TEST_DATA_DIR "/configuration/valid/") + name;
}

QByteArray bytesOf(CXmlAbstractVornFile &file)
{
    QByteArray bytes;
    QString error;
    return file.save(bytes, error) ? bytes : QByteArray();
}

/** A whole document around what stands below its root. */
QByteArray document(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\">\n"
        + content + "</VornDeviceConfig>\n";
}

QByteArray deviceDocument(const QByteArray &content)
{
    return document(" <Device>\n" + content + " </Device>\n");
}

QByteArray configDocument(const QByteArray &content)
{
    return deviceDocument("  <Config>\n" + content + "  </Config>\n");
}

/** What a document with that content tells of its device. */
CDeviceElement deviceIn(const QByteArray &bytes)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!file.load(bytes) || !file.configuration(device)) {
        device.setName(u"not read"_s);
    }
    return device;
}

/** The marks of content that the library does not know, as they stand in a document. */
QStringList unknownMarks(const QByteArray &bytes)
{
    const QRegularExpression mark(QStringLiteral("x-[a-z-]+(-2|-3|=\"1\")"));
    QStringList marks;
    for (auto it = mark.globalMatch(QString::fromUtf8(bytes)); it.hasNext();) {
        marks << it.next().captured();
    }
    marks.sort();
    return marks;
}

} // namespace

class tst_ConfigurationDocument : public QObject
{
    Q_OBJECT

private slots:
    void writesReference();
    void readsReference();
    void readsItems_data();
    void readsItems();
    void savesReferenceAsItWas_data();
    void savesReferenceAsItWas();
    void itemWiseIsAsWhole();

    void emptyDevice();
    void writingTwice();
    void severalDevices();
    void deviceKeepsItsPlace();
    void descriptionPlace_data();
    void descriptionPlace();

    void missingParts_data();
    void missingParts();
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
    void paramFileTypes_data();
    void paramFileTypes();
    void entriesAtAnyDepth();
    void emptyEntries();
    void entryNames_data();
    void entryNames();
    void singleFileHolders_data();
    void singleFileHolders();
    void pluginPriority_data();
    void pluginPriority();

    void subDeviceType_data();
    void subDeviceType();
    void unknownTypeIsWrittenFirst();
    void subDeviceOrder();
    void driveNumbers_data();
    void driveNumbers();
    void tooManySubDevices();
    void subDeviceNamesInWarnings_data();
    void subDeviceNamesInWarnings();
    void busId_data();
    void busId();
    void subDeviceIdentity();

    void specialTexts_data();
    void specialTexts();

    void setterKeepsUnknown_data();
    void setterKeepsUnknown();
    void wholeDeviceKeepsUnknownOutside();
};

void tst_ConfigurationDocument::writesReference()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    file.setMetaData(SampleConfiguration::metaData());
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    QCOMPARE(QString::fromUtf8(bytesOf(file)),
             QString::fromUtf8(Files::read(validPath(u"full.3deco"_s))));
}

void tst_ConfigurationDocument::readsReference()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(u"full.3deco"_s)));
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QVERIFY(device == SampleConfiguration::device());
    QVERIFY(file.description() == SampleConfiguration::description());
    QVERIFY(file.metaData() == SampleConfiguration::metaData());
    QCOMPARE(device.subDeviceCount(), 2);
    QVERIFY(device.subDevice(0).toKD2() != CSubDeviceKD2Element());
    QVERIFY(device.subDevice(7).isKD3());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationDocument::readsItems_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("as written") << u"full.3deco"_s;
    QTest::newRow("among unknown content") << u"unknown-content.3deco"_s;
}

void tst_ConfigurationDocument::readsItems()
{
    QFETCH(QString, name);

    using namespace SampleConfiguration;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(name)));

    QVERIFY(file.description() == description());
    QVERIFY(file.odictFile() == odictFile());
    QVERIFY(file.faultTextFile() == faultTextFile());
    QVERIFY(file.paramFiles() == paramFiles());
    QCOMPARE(file.paramFiles().at(0).comment(), u"all axes"_s);
    QList<CParamFileElement> paramFileList;
    QVERIFY(file.paramFiles(paramFileList));
    QVERIFY(paramFileList == paramFiles());
    QVERIFY(file.containsParamFile(paramFiles().at(1)));
    QCOMPARE(file.fpgaFiles(), fpgaFiles());
    QCOMPARE(file.activeFpgaFile(), u"main.bit"_s);
    QVERIFY(file.containsFpgaFile(u"spare.bit"_s));
    QVERIFY(file.additionalFiles() == additionalFiles());
    QVERIFY(file.containsAdditionalFile(additionalFiles().at(1)));
    QVERIFY(file.plugins() == plugins());
    QList<CPluginElement> pluginList;
    QVERIFY(file.plugins(pluginList));
    QVERIFY(pluginList == plugins());
    QCOMPARE(file.executionPlugin(), executionPlugin());
    QVERIFY(file.isOpcUaEnabled());
    QList<CFileElement> opcUaFileList;
    QVERIFY(file.opcUaFiles(opcUaFileList));
    QVERIFY(opcUaFileList == opcUaFiles());
    QVERIFY(file.etherCatMasterFile() == etherCatMasterFile());
    QCOMPARE(file.options(), SampleConfiguration::options());
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QVERIFY(device == SampleConfiguration::device());
}

void tst_ConfigurationDocument::savesReferenceAsItWas_data()
{
    readsItems_data();
}

void tst_ConfigurationDocument::savesReferenceAsItWas()
{
    QFETCH(QString, name);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(name)));
    QCOMPARE(bytesOf(file), Files::read(validPath(name)));
}

void tst_ConfigurationDocument::itemWiseIsAsWhole()
{
    // The sample set item by item gives what writing the whole device gives.
    using namespace SampleConfiguration;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(u"full.3deco"_s)));
    QVERIFY(file.setDescription(description()));
    QVERIFY(file.setParamFiles(paramFiles()));
    QVERIFY(file.setOdictFile(odictFile()));
    QVERIFY(file.setFaultTextFile(faultTextFile()));
    QVERIFY(file.setFpgaFiles(fpgaFiles()));
    QVERIFY(file.setOpcUaEnabled(true));
    QVERIFY(file.setOpcUaFiles(opcUaFiles()));
    QVERIFY(file.setEtherCatMasterFile(etherCatMasterFile()));
    QVERIFY(file.setAdditionalFiles(additionalFiles()));
    QVERIFY(file.setPlugins(plugins()));
    QVERIFY(file.setExecutionPlugin(executionPlugin()));
    QCOMPARE(bytesOf(file), Files::read(validPath(u"full.3deco"_s)));
}

void tst_ConfigurationDocument::emptyDevice()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("")));
    QVERIFY(file.setConfiguration(CDeviceElement()));
    const QByteArray expected = deviceDocument("  <HardwareId/>\n"
                                               "  <Class>Undefined</Class>\n"
                                               "  <Name/>\n"
                                               "  <Comment/>\n"
                                               "  <ConfigurationName>STD</ConfigurationName>\n"
                                               "  <Config/>\n");
    CDeviceConfigurationFile10 reopened(nullptr);
    QVERIFY(reopened.load(bytesOf(file)));
    QCOMPARE(bytesOf(reopened), expected);
    CDeviceElement device = SampleConfiguration::device();
    QVERIFY(reopened.configuration(device));
    QVERIFY(device.isNull());
}

void tst_ConfigurationDocument::writingTwice()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    const QByteArray once = bytesOf(file);
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    QCOMPARE(bytesOf(file), once);
    QCOMPARE(once.count("<Device>"), 1);

    CDeviceElement other;
    other.setName(u"Other"_s);
    QVERIFY(file.setConfiguration(other));
    QCOMPARE(bytesOf(file).count("<Device>"), 1);
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QVERIFY(device == other);
}

void tst_ConfigurationDocument::severalDevices()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(" <Device>\n  <Name>first</Name>\n </Device>\n"
                               " <Other/>\n"
                               " <Device>\n  <Name>second</Name>\n </Device>\n"
                               " <Device/>\n")));
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QCOMPARE(device.name(), u"first"_s);
    QVERIFY(file.setConfiguration(device));
    const QByteArray bytes = bytesOf(file);
    QCOMPARE(bytes.count("<Device"), 1);
    QVERIFY(!bytes.contains("second"));
    QVERIFY(bytes.indexOf("<Device>") < bytes.indexOf("<Other/>"));
}

void tst_ConfigurationDocument::deviceKeepsItsPlace()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(" <A/>\n <!-- of the device -->\n <Device/>\n <B/>\n")));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    const QByteArray bytes = bytesOf(file);
    QVERIFY(bytes.contains("<A/>\n <!-- of the device -->\n <Device>"));
    QVERIFY(bytes.contains("</Device>\n <B/>\n"));
}

void tst_ConfigurationDocument::descriptionPlace_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    const QByteArray comment = " <!--Project description-->\n";
    const QByteArray description = " <Description>\n"
                                   "  <Name>Packaging line</Name>\n"
                                   "  <Comment>Hall 3</Comment>\n"
                                   "  <Version>2.1</Version>\n"
                                   "  <CreationDate>2025-12-24</CreationDate>\n"
                                   "  <RevisionDate>2026-01-30</RevisionDate>\n"
                                   " </Description>\n";
    QTest::newRow("in front of the device")
        << QByteArray(" <Head/>\n <Device/>\n")
        << QByteArray(" <Head/>\n" + comment + description + " <Device/>\n");
    QTest::newRow("behind the head")
        << QByteArray(" <Head/>\n") << QByteArray(" <Head/>\n" + comment + description);
    QTest::newRow("where it was") << QByteArray(" <Device/>\n" + comment
                                                + " <Description/>\n <Other/>\n")
                                  << QByteArray(" <Device/>\n" + comment + description
                                                + " <Other/>\n");
    QTest::newRow("comment added") << QByteArray(" <Head/>\n <Description/>\n")
                                   << QByteArray(" <Head/>\n" + comment + description);
    QTest::newRow("comment with blanks is enough")
        << QByteArray(" <!-- Project description -->\n <Description/>\n")
        << QByteArray(" <!-- Project description -->\n" + description);
    QTest::newRow("other comment stays") << QByteArray(" <!-- mine -->\n <Description/>\n")
                                         << QByteArray(" <!-- mine -->\n" + comment + description);
}

void tst_ConfigurationDocument::descriptionPlace()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(before)));
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QCOMPARE(bytesOf(file), document(after));
    // A second time changes nothing.
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QCOMPARE(bytesOf(file), document(after));
    QVERIFY(file.description() == SampleConfiguration::description());
}

void tst_ConfigurationDocument::missingParts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("hasDevice");

    QTest::newRow("empty root") << document("") << false;
    QTest::newRow("device in lower case") << document(" <device/>\n") << false;
    QTest::newRow("device below another element")
        << document(" <A>\n  <Device/>\n </A>\n") << false;
    QTest::newRow("empty device") << document(" <Device/>\n") << true;
    QTest::newRow("device without configuration block") << deviceDocument("  <Name/>\n") << true;
    QTest::newRow("configuration block in lower case")
        << deviceDocument("  <config>\n   <Options>-a</Options>\n  </config>\n") << true;
    QTest::newRow("configuration block below the root")
        << document(" <Config>\n  <Options>-a</Options>\n </Config>\n <Device/>\n") << true;
    QTest::newRow("empty configuration block") << deviceDocument("  <Config/>\n") << true;
    QTest::newRow("empty items") << configDocument(
        "   <Options/>\n   <ParameterFiles/>\n   <Dictionary/>\n"
        "   <FaultTextFile/>\n   <FPGA_FileNames/>\n   <OpcUa/>\n"
        "   <EtherCatMaster/>\n   <Files/>\n   <Plugins/>\n"
        "   <ExecutionPlugin/>\n")
                                 << true;
    QTest::newRow("items in lower case")
        << configDocument("   <options>-a</options>\n   <fpga_filenames><File><Name>a</Name></File>"
                          "</fpga_filenames>\n   <executionplugin>a</executionplugin>\n")
        << true;
    QTest::newRow("items outside the block")
        << deviceDocument("  <Config/>\n  <Options>-a</Options>\n"
                          "  <ExecutionPlugin>a</ExecutionPlugin>\n")
        << true;
}

void tst_ConfigurationDocument::missingParts()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, hasDevice);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(bytes));
    QVERIFY(file.options().isEmpty());
    QVERIFY(file.paramFiles().isEmpty());
    QVERIFY(file.odictFile().isNull());
    QVERIFY(file.faultTextFile().isNull());
    QVERIFY(file.fpgaFiles().isEmpty());
    QVERIFY(file.activeFpgaFile().isEmpty());
    QVERIFY(!file.isOpcUaEnabled());
    QList<CFileElement> files = SampleConfiguration::opcUaFiles();
    QVERIFY(!file.opcUaFiles(files));
    QVERIFY(files.isEmpty());
    QVERIFY(file.etherCatMasterFile().isNull());
    QVERIFY(file.additionalFiles().isEmpty());
    QVERIFY(file.plugins().isEmpty());
    QVERIFY(file.executionPlugin().isEmpty());
    QVERIFY(file.description() == CDescriptionElement());

    CDeviceElement device = SampleConfiguration::device();
    QCOMPARE(file.configuration(device), hasDevice);
    QVERIFY(device.isNull());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationDocument::deviceFields_data()
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

void tst_ConfigurationDocument::deviceFields()
{
    QFETCH(QByteArray, content);
    const CDeviceElement device = deviceIn(deviceDocument(content));
    QTEST(device.name(), "name");
    QTEST(device.comment(), "comment");
}

void tst_ConfigurationDocument::options_data()
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

void tst_ConfigurationDocument::options()
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

void tst_ConfigurationDocument::optionsAreWritten()
{
    CDeviceElement device;
    device.setOptions(QStringList{u"A"_s, u"B"_s, u"C"_s});
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    QVERIFY(bytesOf(file).contains("<Options>A B C</Options>"));
    QCOMPARE(file.options(), device.options());
}

void tst_ConfigurationDocument::deviceClass_data()
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

void tst_ConfigurationDocument::deviceClass()
{
    QFETCH(QByteArray, text);
    QTEST(deviceIn(deviceDocument("  <Class>" + text + "</Class>\n")).deviceClass(), "deviceClass");
}

void tst_ConfigurationDocument::deviceClassIsWritten_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("undefined") << 0 << QByteArray("Undefined");
    QTest::newRow("kc2") << 1 << QByteArray("kc2");
    QTest::newRow("kd3") << 2 << QByteArray("kd3");
    QTest::newRow("one too large") << 3 << QByteArray("Undefined");
    QTest::newRow("negative") << -1 << QByteArray("Undefined");
}

void tst_ConfigurationDocument::deviceClassIsWritten()
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

void tst_ConfigurationDocument::hardwareId_data()
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

void tst_ConfigurationDocument::hardwareId()
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

void tst_ConfigurationDocument::configurationName_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("configurationName");

    QTest::newRow("told") << QByteArray("  <ConfigurationName>a</ConfigurationName>\n") << u"a"_s;
    QTest::newRow("told to be empty") << QByteArray("  <ConfigurationName/>\n") << QString();
    QTest::newRow("not told") << QByteArray("  <Name/>\n") << u"STD"_s;
}

void tst_ConfigurationDocument::configurationName()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, configurationName);

    const CDeviceElement device = deviceIn(
        deviceDocument(content + "  <SubDevice>\n   <DriveNo>1</DriveNo>\n  </SubDevice>\n"));
    QCOMPARE(device.configurationName(), configurationName);
    QCOMPARE(device.subDevice(1).configurationName(), configurationName);
}

void tst_ConfigurationDocument::dates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDate>("date");

    QTest::newRow("day") << QByteArray("2026-01-31") << QDate(2026, 1, 31);
    QTest::newRow("no such day") << QByteArray("2026-02-30") << QDate();
    QTest::newRow("other form") << QByteArray("31.01.2026") << QDate();
    QTest::newRow("words") << QByteArray("today") << QDate();
    QTest::newRow("empty") << QByteArray() << QDate();
}

void tst_ConfigurationDocument::dates()
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

void tst_ConfigurationDocument::opcUaFlag_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("upper case") << QByteArray("TRUE") << false;
    QTest::newRow("number") << QByteArray("1") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void tst_ConfigurationDocument::opcUaFlag()
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

void tst_ConfigurationDocument::opcUaOption()
{
    // The options in the document are all there are, whatever the flag says.
    const CDeviceElement device = deviceIn(
        configDocument("   <Options>-v</Options>\n"
                       "   <OpcUa>\n    <OpcUaEnabled>true</OpcUaEnabled>\n   </OpcUa>\n"));
    QVERIFY(device.isOpcUaEnabled());
    QCOMPARE(device.options(), QStringList{u"-v"_s});
}

void tst_ConfigurationDocument::paramFileTypes_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<int>("type");

    QTest::newRow("undefined") << QByteArray(" type=\"Undefined\"") << -1;
    QTest::newRow("KC2 parameters") << QByteArray(" type=\"KC2Parameters\"") << 0;
    QTest::newRow("KC2 compensation") << QByteArray(" type=\"KC2Compensation\"") << 1;
    QTest::newRow("parameters") << QByteArray(" type=\"VornParameters\"") << 2;
    QTest::newRow("option modules") << QByteArray(" type=\"VornOptionModulDatabase\"") << 11;
    QTest::newRow("lower case") << QByteArray(" type=\"vornparameters\"") << -1;
    QTest::newRow("number") << QByteArray(" type=\"2\"") << -1;
    QTest::newRow("no attribute") << QByteArray() << -1;
    QTest::newRow("attribute in upper case") << QByteArray(" Type=\"VornParameters\"") << -1;
}

void tst_ConfigurationDocument::paramFileTypes()
{
    QFETCH(QByteArray, attribute);
    QFETCH(int, type);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <ParameterFiles>\n    <File" + attribute
                                     + ">\n     <Name>a</Name>\n    </File>\n"
                                       "   </ParameterFiles>\n")));
    QCOMPARE(file.paramFiles().size(), 1);
    QCOMPARE(static_cast<int>(file.paramFiles().constFirst().type()), type);
    QCOMPARE(file.paramFiles().constFirst().name(), u"a"_s);
    QCOMPARE(file.paramFiles().constFirst().driveId(), -1);
}

void tst_ConfigurationDocument::entriesAtAnyDepth()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <ParameterFiles>\n"
                                     "    <File>\n     <Name>a</Name>\n    </File>\n"
                                     "    <Group>\n     <Group>\n"
                                     "      <File>\n       <Name>b</Name>\n      </File>\n"
                                     "     </Group>\n    </Group>\n"
                                     "    <File>\n     <Name>c</Name>\n    </File>\n"
                                     "   </ParameterFiles>\n"
                                     "   <Files>\n"
                                     "    <Group>\n"
                                     "     <File>\n      <Name>d</Name>\n     </File>\n"
                                     "    </Group>\n"
                                     "   </Files>\n"
                                     "   <Plugins>\n"
                                     "    <Group>\n"
                                     "     <Plugin>\n      <Name>e</Name>\n     </Plugin>\n"
                                     "    </Group>\n"
                                     "    <Plugin>\n     <Name>f</Name>\n    </Plugin>\n"
                                     "   </Plugins>\n")));
    QStringList names;
    for (const CParamFileElement &paramFile : file.paramFiles()) {
        names << paramFile.name();
    }
    QCOMPARE(names, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    names.clear();
    for (const CPluginElement &plugin : file.plugins()) {
        names << plugin.name();
    }
    QCOMPARE(names, (QStringList{u"e"_s, u"f"_s}));
    // Of all other lists only the direct children count.
    QVERIFY(file.additionalFiles().isEmpty());

    // What is listed is contained, and can be removed.
    for (const CParamFileElement &paramFile : file.paramFiles()) {
        QVERIFY2(file.containsParamFile(paramFile), qPrintable(paramFile.name()));
        QVERIFY2(file.removeParamFile(paramFile), qPrintable(paramFile.name()));
    }
    QVERIFY(file.paramFiles().isEmpty());
}

void tst_ConfigurationDocument::emptyEntries()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <FPGA_FileNames>\n    <File/>\n"
                                     "    <File>\n     <Name>a</Name>\n    </File>\n"
                                     "   </FPGA_FileNames>\n"
                                     "   <Files>\n    <File/>\n"
                                     "    <File>\n     <Name/>\n    </File>\n"
                                     "    <File>\n     <Name>b</Name>\n    </File>\n"
                                     "   </Files>\n")));
    QCOMPARE(file.fpgaFiles(), (QStringList{QString(), u"a"_s}));
    QCOMPARE(file.additionalFiles().size(), 1);
    QCOMPARE(file.additionalFiles().constFirst().fileName(), u"b"_s);
}

void tst_ConfigurationDocument::entryNames_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("fileName");

    QTest::newRow("file") << QByteArray("<File><Name>a</Name></File>") << u"a"_s;
    QTest::newRow("lower case") << QByteArray("<file><Name>a</Name></file>") << QString();
    QTest::newRow("one character more") << QByteArray("<Files><Name>a</Name></Files>") << QString();
    QTest::newRow("name in lower case") << QByteArray("<File><name>a</name></File>") << QString();
    QTest::newRow("name as attribute") << QByteArray("<File Name=\"a\"/>") << QString();
    QTest::newRow("name as text") << QByteArray("<File>a</File>") << QString();
    QTest::newRow("file in a file")
        << QByteArray("<File><File><Name>a</Name></File></File>") << QString();
    QTest::newRow("behind another element")
        << QByteArray("<A/><File><Name>a</Name></File>") << u"a"_s;
}

void tst_ConfigurationDocument::entryNames()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, fileName);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <Dictionary>" + entry + "</Dictionary>\n   <Files>" + entry
                                     + "</Files>\n")));
    QCOMPARE(file.odictFile().fileName(), fileName);
    QCOMPARE(file.additionalFiles().value(0).fileName(), fileName);
}

void tst_ConfigurationDocument::singleFileHolders_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    const QByteArray written = "    <File>\n"
                               "     <Name>n</Name>\n"
                               "     <Comment>c</Comment>\n"
                               "     <DeviceDir>/d/</DeviceDir>\n"
                               "     <ProjectDir>p/</ProjectDir>\n"
                               "    </File>\n";
    QTest::newRow("no entry") << QByteArray("    <A/>\n") << QByteArray("    <A/>\n" + written);
    QTest::newRow("one entry") << QByteArray("    <File>\n     <Name>x</Name>\n    </File>\n")
                               << written;
    QTest::newRow("several entries")
        << QByteArray("    <File>\n     <Name>x</Name>\n    </File>\n    <A/>\n"
                      "    <File/>\n    <File>\n     <Name>y</Name>\n    </File>\n")
        << QByteArray(written + "    <A/>\n");
}

void tst_ConfigurationDocument::singleFileHolders()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);

    const auto holder = [](const QByteArray &content) {
        return configDocument("   <Dictionary>\n" + content + "   </Dictionary>\n");
    };
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(holder(before)));
    const CFileElement odict = SampleConfiguration::file(u"n"_s, u"c"_s, u"/d/"_s, u"p/"_s);
    QVERIFY(file.setOdictFile(odict));
    QVERIFY(file.odictFile() == odict);
    QCOMPARE(bytesOf(file), holder(after));
}

void tst_ConfigurationDocument::pluginPriority_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("priority");

    const int notSet = std::numeric_limits<int>::min();
    QTest::newRow("positive") << QByteArray("7") << 7;
    QTest::newRow("negative") << QByteArray("-7") << -7;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("not set") << QByteArray("-2147483648") << notSet;
    QTest::newRow("one too large") << QByteArray("2147483648") << notSet;
    QTest::newRow("fraction") << QByteArray("1.5") << notSet;
    QTest::newRow("words") << QByteArray("high") << notSet;
    QTest::newRow("empty") << QByteArray() << notSet;
}

void tst_ConfigurationDocument::pluginPriority()
{
    QFETCH(QByteArray, text);
    QFETCH(int, priority);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <Plugins>\n    <Plugin>\n     <Name>a</Name>\n"
                                     "     <Version>1</Version>\n     <Priority>"
                                     + text + "</Priority>\n    </Plugin>\n   </Plugins>\n")));
    const QList<CPluginElement> plugins = file.plugins();
    QVERIFY(plugins
            == QList<CPluginElement>{SampleConfiguration::plugin(u"a"_s, u"1"_s, priority)});
    QVERIFY(file.setPlugins(plugins));
    QVERIFY(file.plugins() == plugins);
}

void tst_ConfigurationDocument::subDeviceType_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<bool>("isKD2");

    QTest::newRow("KD2") << QByteArray(" type=\"KD2_drive\"") << true;
    QTest::newRow("KD3") << QByteArray(" type=\"KD3_drive\"") << false;
    QTest::newRow("unknown") << QByteArray(" type=\"UNKNOWN_drive\"") << false;
    QTest::newRow("KD2 in lower case") << QByteArray(" type=\"kd2_drive\"") << false;
    QTest::newRow("KD2 with a capital") << QByteArray(" type=\"KD2_Drive\"") << false;
    QTest::newRow("blank behind") << QByteArray(" type=\"KD2_drive \"") << false;
    QTest::newRow("one character short") << QByteArray(" type=\"KD2_driv\"") << false;
    QTest::newRow("any other text") << QByteArray(" type=\"Gripper\"") << false;
    QTest::newRow("empty") << QByteArray(" type=\"\"") << false;
    QTest::newRow("no attribute") << QByteArray() << false;
    QTest::newRow("attribute in upper case") << QByteArray(" Type=\"KD2_drive\"") << false;
}

void tst_ConfigurationDocument::subDeviceType()
{
    QFETCH(QByteArray, attribute);
    QFETCH(bool, isKD2);

    const MessageCatcher catcher;
    const CDeviceElement device =
        deviceIn(deviceDocument("  <SubDevice" + attribute
                                + ">\n"
                                  "   <Name>Feed</Name>\n"
                                  "   <DriveNo>3</DriveNo>\n"
                                  "   <Param><File><Name>p</Name></File></Param>\n"
                                  "   <KD2Param><File><Name>kp</Name></File></KD2Param>\n"
                                  "   <KD2Logic><File><Name>kl</Name></File></KD2Logic>\n"
                                  "   <KD2Firmware><File><Name>kf</Name></File></KD2Firmware>\n"
                                  "  </SubDevice>\n"));
    QCOMPARE(device.subDeviceCount(), 1);
    const CSubDeviceElement subDevice = device.subDevice(3);
    QCOMPARE(subDevice.isKD2(), isKD2);
    QCOMPARE(subDevice.isKD3(), !isKD2);
    QCOMPARE(subDevice.name(), u"Feed"_s);
    QCOMPARE(subDevice.parameterFileName(), u"p"_s);
    if (isKD2) {
        QCOMPARE(subDevice.toKD2().kd2ParameterFile().fileName(), u"kp"_s);
        QCOMPARE(subDevice.toKD2().kd2LogicFile().fileName(), u"kl"_s);
        QCOMPARE(subDevice.toKD2().kd2FirmwareFile().fileName(), u"kf"_s);
    }
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationDocument::unknownTypeIsWrittenFirst()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("")));
    const QDomElement created = file.createSubDeviceDomElement(file.deviceDomElement());
    QCOMPARE(created.tagName(), u"SubDevice"_s);
    QCOMPARE(created.attribute(u"type"_s), u"UNKNOWN_drive"_s);
    QCOMPARE(created.parentNode().toElement(), file.deviceDomElement());
    const MessageCatcher catcher;
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QVERIFY(device.subDevice(0).isKD3());
    QCOMPARE(catcher.warnings().size(), 1);

    // A container without a sub-device leaves no trace.
    file.appendSubDeviceElement(CSubDeviceElement(), file.deviceDomElement());
    QCOMPARE(file.deviceDomElement().childNodes().size(), 1);
}

void tst_ConfigurationDocument::subDeviceOrder()
{
    CDeviceElement device;
    CSubDeviceKD3Element subDevice;
    for (const int id : {200, 3, 255, 0}) {
        subDevice.setDriveId(static_cast<quint8>(id));
        subDevice.setName(QString::number(id));
        device.setSubDevices(device.subDevices() << subDevice);
    }
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    QStringList numbers;
    for (QDomElement e = file.findDeviceElement().firstChildElement(u"SubDevice"_s); !e.isNull();
         e = e.nextSiblingElement(u"SubDevice"_s)) {
        numbers << file.getNodeValue(u"DriveNo"_s, e);
    }
    QCOMPARE(numbers, (QStringList{u"0"_s, u"3"_s, u"200"_s, u"255"_s}));
    CDeviceElement back;
    QVERIFY(file.configuration(back));
    QVERIFY(back == device);
}

void tst_ConfigurationDocument::driveNumbers_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<int>("warnings");

    // The numbers are those of the sub-devices in document order.
    QTest::newRow("ascending") << QStringList{u"0"_s, u"1"_s, u"2"_s} << u"0 1 2"_s << 0;
    QTest::newRow("descending") << QStringList{u"2"_s, u"0"_s} << u"2 0"_s << 0;
    QTest::newRow("highest") << QStringList{u"254"_s} << u"254"_s << 0;
    QTest::newRow("zeros in front") << QStringList{u"007"_s} << u"7"_s << 0;
    QTest::newRow("no number") << QStringList{u""_s} << u"0"_s << 1;
    QTest::newRow("missing element") << QStringList{QString()} << u"0"_s << 1;
    QTest::newRow("words") << QStringList{u"one"_s} << u"0"_s << 1;
    QTest::newRow("negative") << QStringList{u"-1"_s} << u"0"_s << 1;
    QTest::newRow("one too large") << QStringList{u"256"_s} << u"0"_s << 1;
    QTest::newRow("overflow") << QStringList{u"4294967296"_s} << u"0"_s << 1;
    QTest::newRow("fraction") << QStringList{u"1.0"_s} << u"0"_s << 1;
    QTest::newRow("twice") << QStringList{u"3"_s, u"3"_s} << u"3 4"_s << 1;
    QTest::newRow("three times") << QStringList{u"3"_s, u"3"_s, u"3"_s} << u"3 4 5"_s << 2;
    QTest::newRow("same number in other words") << QStringList{u"3"_s, u"03"_s} << u"3 4"_s << 1;
    QTest::newRow("missing before a given one") << QStringList{QString(), u"0"_s} << u"1 0"_s << 1;
    QTest::newRow("twice before a given one")
        << QStringList{u"1"_s, u"1"_s, u"2"_s} << u"1 3 2"_s << 1;
    QTest::newRow("gaps stay free") << QStringList{u"0"_s, u"9"_s, QString()} << u"0 9 10"_s << 1;
    QTest::newRow("behind the highest comes the lowest free")
        << QStringList{u"0"_s, u"254"_s, QString(), QString()} << u"0 254 1 2"_s << 2;
}

void tst_ConfigurationDocument::driveNumbers()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, numbers);
    QFETCH(int, warnings);

    QByteArray content;
    for (int i = 0; i < texts.size(); ++i) {
        content += "  <SubDevice>\n   <Name>s" + QByteArray::number(i) + "</Name>\n";
        if (!texts.at(i).isNull()) {
            content += "   <DriveNo>" + texts.at(i).toUtf8() + "</DriveNo>\n";
        }
        content += "  </SubDevice>\n";
    }
    const MessageCatcher catcher;
    const CDeviceElement device = deviceIn(deviceDocument(content));
    QCOMPARE(device.subDeviceCount(), texts.size());
    QStringList found;
    for (int i = 0; i < texts.size(); ++i) {
        for (const CSubDeviceElement &subDevice : device.subDevices()) {
            if (subDevice.name() == QStringLiteral("s%1").arg(i)) {
                found << QString::number(subDevice.driveId());
                QVERIFY(device.subDevice(subDevice.driveId()) == subDevice);
            }
        }
    }
    QCOMPARE(found.join(QLatin1Char(' ')), numbers);
    QCOMPARE(catcher.warnings().size(), warnings);
    QVERIFY(catcher.criticals().isEmpty());
}

void tst_ConfigurationDocument::tooManySubDevices()
{
    QByteArray content;
    for (int i = 0; i < 258; ++i) {
        content +=
            "  <SubDevice>\n   <Name>s" + QByteArray::number(i) + "</Name>\n  </SubDevice>\n";
    }
    const MessageCatcher catcher;
    const CDeviceElement device = deviceIn(deviceDocument(content));
    QCOMPARE(device.subDeviceCount(), 256);
    QCOMPARE(device.subDevice(0).name(), u"s0"_s);
    QCOMPARE(device.subDevice(255).name(), u"s255"_s);
    QCOMPARE(catcher.warnings().size(), 258);
    QVERIFY(catcher.warnings().at(256).contains(u"'s256'"_s));
    QVERIFY(catcher.warnings().at(257).contains(u"'s257'"_s));
}

void tst_ConfigurationDocument::subDeviceNamesInWarnings_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"Feed"_s;
    QTest::newRow("first place marker") << u"Feed %1"_s;
    QTest::newRow("second place marker") << u"Feed %2"_s;
    QTest::newRow("quotes") << u"'Feed'"_s;
}

void tst_ConfigurationDocument::subDeviceNamesInWarnings()
{
    QFETCH(QString, name);

    const MessageCatcher catcher;
    const CDeviceElement device = deviceIn(deviceDocument(
        "  <SubDevice>\n   <Name>A</Name>\n   <DriveNo>41</DriveNo>\n  </SubDevice>\n"
        "  <SubDevice>\n   <Name>"
        + name.toUtf8() + "</Name>\n  </SubDevice>\n"));
    QCOMPARE(device.subDevice(42).name(), name);
    QCOMPARE(catcher.warnings(),
             QStringList{u"The drive '"_s + name + u"' has no unique drive number and gets 42."_s});
}

void tst_ConfigurationDocument::busId_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<unsigned int>("busId");

    QTest::newRow("plain") << QByteArray("12") << 12u;
    QTest::newRow("largest") << QByteArray("4294967295") << 4294967295u;
    QTest::newRow("one too large") << QByteArray("4294967296") << 0u;
    QTest::newRow("negative") << QByteArray("-1") << 0u;
    QTest::newRow("words") << QByteArray("first") << 0u;
    QTest::newRow("empty") << QByteArray() << 0u;
}

void tst_ConfigurationDocument::busId()
{
    QFETCH(QByteArray, text);
    QTEST(deviceIn(deviceDocument("  <SubDevice>\n   <DriveNo>0</DriveNo>\n   <BusId>" + text
                                  + "</BusId>\n  </SubDevice>\n"))
              .subDevice(0)
              .busId(),
          "busId");
}

void tst_ConfigurationDocument::subDeviceIdentity()
{
    const CDeviceElement device = deviceIn(
        deviceDocument("  <HardwareId>KD3:Device:1:2:3</HardwareId>\n"
                       "  <Name>Press</Name>\n"
                       "  <ConfigurationName>production</ConfigurationName>\n"
                       "  <SubDevice>\n"
                       "   <HardwareId>KD2:Drive:4:5:6</HardwareId>\n   <DriveNo>0</DriveNo>\n"
                       "  </SubDevice>\n"
                       "  <SubDevice>\n   <DriveNo>1</DriveNo>\n  </SubDevice>\n"));
    QCOMPARE(device.subDevice(0).hardwareIdStr(), u"KD2:Drive:4:5:6"_s);
    QCOMPARE(device.subDevice(1).hardwareIdStr(), u"KD3:Device:1:2:3"_s);
    QCOMPARE(device.subDevice(1).name(), u"DRIVE-1"_s);
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QCOMPARE(subDevice.deviceName(), u"Press"_s);
        QCOMPARE(subDevice.configurationName(), u"production"_s);
    }
}

void tst_ConfigurationDocument::specialTexts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("blank") << u" "_s;
    QTest::newRow("blanks at both ends") << u"  a  "_s;
    QTest::newRow("tab") << u"\t"_s;
    QTest::newRow("line breaks") << u"a\r\nb\rc\n"_s;
    QTest::newRow("marks") << u"<a b=\"c\" d='e'>&amp;]]>"_s;
    QTest::newRow("comment") << u"<!-- a -->"_s;
    QTest::newRow("place markers") << u"%1 %2 %n"_s;
    QTest::newRow("separator of identities") << u"a:b%c"_s;
    QTest::newRow("slashes") << u"a/b"_s;
    QTest::newRow("non-Latin") << u"軸 Größe"_s;
    QTest::newRow("beyond the basic plane") << u"\U0001F600"_s;
    QTest::newRow("right to left") << u"ציר 1"_s;
    QTest::newRow("no-break space") << u"\u00A0"_s;
    QTest::newRow("line separator") << u"a\u2028b\u0085c"_s;
    QTest::newRow("long") << QString(5000, QLatin1Char('x'));
}

void tst_ConfigurationDocument::specialTexts()
{
    QFETCH(QString, text);

    using namespace SampleConfiguration;
    CDeviceHardwareId id;
    id.setPrefix(text);
    id.setName(text);
    CDeviceElement device;
    device.setHardwareId(id);
    device.setName(text);
    device.setComment(text);
    device.setConfigurationName(text);
    device.setParameterFiles({paramFile(text, NvrnGlobal::PARAM_FILE_PARAMETERS, text)});
    CFileElement special = file(text, text, QLatin1Char('/') + text, text);
    device.setOdictFile(special);
    device.setFpgaFiles({text, text + text});
    device.setAdditionalFiles({special, special});
    device.setPlugins({plugin(text, text, 1)});
    device.setExecutionPlugin(text);
    CSubDeviceKD2Element subDevice;
    subDevice.setHardwareId(id);
    subDevice.setName(text);
    subDevice.setComment(text);
    subDevice.setDriveId(0);
    subDevice.setKd2FirmwareFile(special);
    device.setSubDevices({subDevice});
    CDescriptionElement description;
    description.setName(text);
    description.setComment(text);
    description.setVersion(text);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setDescription(description));
    QVERIFY(file.setConfiguration(device));
    CDeviceConfigurationFile10 back(nullptr);
    QVERIFY(back.load(bytesOf(file)));
    CDeviceElement read;
    QVERIFY(back.configuration(read));
    QVERIFY(read == device);
    QCOMPARE(read.parameterFiles().constFirst().comment(), text);
    QVERIFY(back.description() == description);
    QCOMPARE(bytesOf(back), bytesOf(file));
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationDocument::setterKeepsUnknown_data()
{
    QTest::addColumn<int>("index");

    const QList<ConfigurationItems::Setter> setters = ConfigurationItems::setters();
    for (int i = 0; i < setters.size(); ++i) {
        QTest::newRow(setters.at(i).name) << i;
    }
}

void tst_ConfigurationDocument::setterKeepsUnknown()
{
    QFETCH(int, index);
    const ConfigurationItems::Setter setter = ConfigurationItems::setters().at(index);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(u"unknown-content.3deco"_s)));
    const QByteArray before = bytesOf(file);
    const QMap<QString, QByteArray> itemsBefore = ConfigurationItems::read(file);
    QVERIFY(setter.set(file));
    const QByteArray after = bytesOf(file);
    const QMap<QString, QByteArray> itemsAfter = ConfigurationItems::read(file);

    QStringList expected = unknownMarks(before);
    QVERIFY(expected.size() > 60);
    for (const QString &part : setter.rebuilt) {
        for (const char *const kind : {"-2", "-3", "=\"1\""}) {
            QCOMPARE(expected.removeAll(u"x-"_s + part + QString::fromLatin1(kind)), 1);
        }
    }
    QCOMPARE(unknownMarks(after), expected);

    // It changes what it is there for, and nothing else.
    for (auto it = itemsBefore.cbegin(); it != itemsBefore.cend(); ++it) {
        if (it.key() == u"configuration"_s || setter.concerned.contains(it.key())) {
            continue;
        }
        QVERIFY2(itemsAfter.value(it.key()) == it.value(), qPrintable(it.key()));
    }
    QVERIFY(itemsAfter.value(setter.concerned.constFirst())
            != itemsBefore.value(setter.concerned.constFirst()));

    // A save and another reading keep it that way.
    CDeviceConfigurationFile10 reopened(nullptr);
    QVERIFY(reopened.load(after));
    QCOMPARE(bytesOf(reopened), after);
    QVERIFY(ConfigurationItems::read(reopened) == itemsAfter);
}

void tst_ConfigurationDocument::wholeDeviceKeepsUnknownOutside()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(u"unknown-content.3deco"_s)));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    QStringList parts;
    for (const QString &mark : unknownMarks(bytesOf(file))) {
        parts << mark.section(QRegularExpression(QStringLiteral("-[23]|=")), 0, 0);
    }
    parts.removeDuplicates();
    QCOMPARE(parts, (QStringList{u"x-before"_s, u"x-behind"_s, u"x-description"_s, u"x-root"_s}));
}

QTEST_GUILESS_MAIN(tst_ConfigurationDocument)
#include "tst_configurationdocument.moc"
