#include "configfile/CDeviceConfigurationFile10.h"
#include "support/ConfigurationTexts.h"
#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <functional>

using namespace ConfigurationTexts;

namespace {

QString validPath(const QString &name)
{
    return Places::data("configuration/valid/") + name;
}

using File = CDeviceConfigurationFile10;
using Setter = std::function<bool(File &)>;

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

Q_DECLARE_METATYPE(Setter)

class tst_configurationdocument : public QObject
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
    void deviceComesLast();
    void descriptionPlace_data();
    void descriptionPlace();
    void settersCreateAtTheirPlace_data();
    void settersCreateAtTheirPlace();
    void settersInAnyOrder();

    void missingParts_data();
    void missingParts();

    void specialTexts_data();
    void specialTexts();

    void setterKeepsUnknown_data();
    void setterKeepsUnknown();
    void wholeDeviceKeepsUnknownOutside();
};

void tst_configurationdocument::writesReference()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    file.setMetaData(SampleConfiguration::metaData());
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    QCOMPARE(QString::fromUtf8(bytesOf(file)),
             QString::fromUtf8(Files::read(validPath(u"full.3deco"_s))));
}

void tst_configurationdocument::readsReference()
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

void tst_configurationdocument::readsItems_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("as written") << u"full.3deco"_s;
    QTest::newRow("among unknown content") << u"unknown-content.3deco"_s;
}

void tst_configurationdocument::readsItems()
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

void tst_configurationdocument::savesReferenceAsItWas_data()
{
    readsItems_data();
}

void tst_configurationdocument::savesReferenceAsItWas()
{
    QFETCH(QString, name);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(validPath(name)));
    QCOMPARE(bytesOf(file), Files::read(validPath(name)));
}

void tst_configurationdocument::itemWiseIsAsWhole()
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

void tst_configurationdocument::emptyDevice()
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

void tst_configurationdocument::writingTwice()
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

void tst_configurationdocument::severalDevices()
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
    QVERIFY(bytes.indexOf("<Device>") > bytes.indexOf("<Other/>"));
}

void tst_configurationdocument::deviceComesLast()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(" <A/>\n <!-- c -->\n <Device/>\n <Description/>\n <B/>\n")));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    const QByteArray bytes = bytesOf(file);
    QVERIFY(bytes.contains(">\n <A/>\n <!-- c -->\n <Description/>\n <B/>\n <Device>\n"));
    QVERIFY(bytes.endsWith(" </Device>\n</VornDeviceConfig>\n"));
}

void tst_configurationdocument::descriptionPlace_data()
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
    QTest::newRow("in front of the comment on the device")
        << QByteArray(" <Head/>\n <!-- c -->\n <Device/>\n")
        << QByteArray(" <Head/>\n" + comment + description + " <!-- c -->\n <Device/>\n");
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

void tst_configurationdocument::descriptionPlace()
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

void tst_configurationdocument::settersCreateAtTheirPlace_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<Setter>("set");

    using namespace SampleConfiguration;
    const QString root = u"VornDeviceConfig"_s;
    const QString config = u"Config"_s;
    const QString opcUa = u"OpcUa"_s;
    const auto row = [](const QString &parent, const char *tag, const Setter &set) {
        QTest::newRow(tag) << parent << QString::fromLatin1(tag) << set;
    };
    row(root, "Description", [](File &f) { return f.setDescription(description()); });
    row(config, "ParameterFiles", [](File &f) { return f.setParamFiles(paramFiles()); });
    row(config, "Dictionary", [](File &f) { return f.setOdictFile(odictFile()); });
    row(config, "FaultTextFile", [](File &f) { return f.setFaultTextFile(faultTextFile()); });
    row(config, "FPGA_FileNames", [](File &f) { return f.setFpgaFiles(fpgaFiles()); });
    row(opcUa, "OpcUaEnabled", [](File &f) { return f.setOpcUaEnabled(true); });
    row(opcUa, "OpcUaFiles", [](File &f) { return f.setOpcUaFiles(opcUaFiles()); });
    row(config, "EtherCatMaster",
        [](File &f) { return f.setEtherCatMasterFile(etherCatMasterFile()); });
    row(config, "Files", [](File &f) { return f.setAdditionalFiles(additionalFiles()); });
    row(config, "Plugins", [](File &f) { return f.setPlugins(plugins()); });
    row(config, "ExecutionPlugin", [](File &f) { return f.setExecutionPlugin(executionPlugin()); });
    row(config, "OpcUa",
        [](File &f) { return f.setOpcUaFiles(opcUaFiles()) && f.setOpcUaEnabled(true); });
}

void tst_configurationdocument::settersCreateAtTheirPlace()
{
    QFETCH(QString, parent);
    QFETCH(QString, tag);
    QFETCH(Setter, set);

    File file(nullptr);
    QVERIFY(file.open(validPath(u"full.3deco"_s)));
    const QDomDocument document = file.domDocument();
    QDomElement element = document.elementsByTagName(parent).at(0).toElement();
    const QDomElement removed = element.firstChildElement(tag);
    if (removed.previousSibling().isComment()) {
        element.removeChild(removed.previousSibling());
    }
    QVERIFY(!element.removeChild(removed).isNull());
    QVERIFY(set(file));
    QCOMPARE(QString::fromUtf8(bytesOf(file)),
             QString::fromUtf8(Files::read(validPath(u"full.3deco"_s))));
}

void tst_configurationdocument::settersInAnyOrder()
{
    File file(nullptr);
    QVERIFY(file.load(document(" <Device>\n  <Name/>\n  <Colour/>\n  <!-- of the drive -->\n"
                               "  <SubDevice/>\n </Device>\n")));
    const QList<ConfigurationItems::Setter> setters = ConfigurationItems::setters();
    for (int i = setters.size() - 1; i >= 0; --i) {
        setters.at(i).set(file);
    }
    const auto names = [](const QDomElement &parent) {
        QStringList result;
        for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
            result << node.nodeName();
        }
        return result.join(QLatin1Char(' '));
    };
    QCOMPARE(names(file.domDocument().documentElement()), u"#comment Description Device"_s);
    QCOMPARE(names(file.findDeviceElement()), u"Name Colour Config #comment SubDevice"_s);
    QCOMPARE(names(file.findConfigElement()),
             u"ParameterFiles Dictionary FaultTextFile FPGA_FileNames OpcUa EtherCatMaster Files "
             "Plugins ExecutionPlugin"_s);
    QCOMPARE(names(file.findOpcUAElement()), u"OpcUaEnabled OpcUaFiles"_s);
}

void tst_configurationdocument::missingParts_data()
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

void tst_configurationdocument::missingParts()
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

void tst_configurationdocument::specialTexts_data()
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

void tst_configurationdocument::specialTexts()
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

void tst_configurationdocument::setterKeepsUnknown_data()
{
    QTest::addColumn<int>("index");

    const QList<ConfigurationItems::Setter> setters = ConfigurationItems::setters();
    for (int i = 0; i < setters.size(); ++i) {
        QTest::newRow(setters.at(i).name) << i;
    }
}

void tst_configurationdocument::setterKeepsUnknown()
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

void tst_configurationdocument::wholeDeviceKeepsUnknownOutside()
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

REGISTER_GUILESS_TEST(tst_configurationdocument)
#include "tst_configurationdocument.moc"
