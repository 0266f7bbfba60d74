#include "configfile/CDeviceConfigurationFile10.h"
#include "settings/CDeviceSettingsFile.h"
#include "settings/CDeviceSettingsFileV10.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Document = CDeviceConfigurationFile10;

Q_DECLARE_METATYPE(std::function<void(Document &)>)

namespace {

const char *const ConfigurationSchema = "DeviceConfiguration.xsd";
const char *const SettingsSchema = "DeviceSettings.xsd";

struct SVerdict {
    bool isValid = false;
    QString findings;
};

/** What xmllint thinks of a document. */
SVerdict validate(const QByteArray &document, const QString &schema)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"document"_s);
    SVerdict verdict;
    if (!Files::write(path, document)) {
        verdict.findings = u"The document cannot be written."_s;
        return verdict;
    }
    QProcess xmllint;
    xmllint.start(
        u"xmllint"_s,
        {u"--nonet"_s, u"--noout"_s, u"--schema"_s, Places::source("schemas/") + schema, path});
    const bool ended = xmllint.waitForFinished() && xmllint.exitStatus() == QProcess::NormalExit;
    verdict.isValid = ended && xmllint.exitCode() == 0;
    verdict.findings = QString::fromUtf8(xmllint.readAllStandardError());
    return verdict;
}

QByteArray testData(const QString &name)
{
    return Files::read(Places::data("") + name);
}

/** With the first @p from replaced by @p to; empty when there is none. */
QByteArray changed(QByteArray document, const QByteArray &from, const QByteArray &to)
{
    const int index = document.indexOf(from);
    return index < 0 ? QByteArray() : document.replace(index, from.size(), to);
}

/** Turns the order of the child elements around, everywhere. */
void reverse(QDomElement element)
{
    QDomElement child = element.firstChildElement();
    while (!child.isNull()) {
        const QDomElement next = child.nextSiblingElement();
        reverse(child);
        element.insertBefore(child, element.firstChild());
        child = next;
    }
}

void addChange(const char *name, const QByteArray &from, const QByteArray &to,
               const char *finding = "")
{
    QTest::newRow(name) << from << to << QString::fromLatin1(finding);
}

void addChangeColumns()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("finding");
}

} // namespace

/** The schemas accept what the library writes, and nothing that it would not write. */
class tst_schemas : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void schemas_data();
    void schemas();
    void files_data();
    void files();
    void brokenFiles_data();
    void brokenFiles();
    void written_data();
    void written();
    void writtenSettings();
    void anyOrder_data();
    void anyOrder();
    void configuration_data();
    void configuration();
    void settings_data();
    void settings();

private:
    void checkChange(const QByteArray &document, const char *schema);
};

void tst_schemas::initTestCase()
{
    if (QStandardPaths::findExecutable(u"xmllint"_s).isEmpty()) {
        QSKIP("There is no xmllint.", 0);
    }
}

void tst_schemas::schemas_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("configuration") << QString::fromLatin1(ConfigurationSchema)
                                   << QByteArray("<VornDeviceConfig version=\"1.0\"/>");
    QTest::newRow("settings") << QString::fromLatin1(SettingsSchema)
                              << QByteArray("<VornDeviceSettings version=\"1.0\"/>");
    QTest::newRow("configuration with only what must be there")
        << QString::fromLatin1(ConfigurationSchema)
        << QByteArray("<VornDeviceConfig version=\"1.0\"><Head/><Description/><Device><Config>"
                      "<ParameterFiles><File type=\"Undefined\"><Name>a</Name></File>"
                      "</ParameterFiles><Dictionary/><OpcUa/>"
                      "<Files><File><Name/></File></Files>"
                      "<Plugins><Plugin><Name/></Plugin></Plugins></Config>"
                      "<SubDevice type=\"KD3_drive\"><DriveNo>0</DriveNo></SubDevice></Device>"
                      "</VornDeviceConfig>");
    QTest::newRow("empty device") << QString::fromLatin1(ConfigurationSchema)
                                  << QByteArray("<VornDeviceConfig version=\"1.0\"><Device/>"
                                                "</VornDeviceConfig>");
    QTest::newRow("settings with only what must be there")
        << QString::fromLatin1(SettingsSchema)
        << QByteArray("<VornDeviceSettings version=\"1.0\"><Head/><Device>"
                      "<SubDevice><DriveNo>0</DriveNo></SubDevice></Device></VornDeviceSettings>");
}

void tst_schemas::schemas()
{
    QFETCH(QString, schema);
    QFETCH(QByteArray, document);
    const SVerdict verdict = validate(document, schema);
    QVERIFY2(verdict.isValid, qPrintable(verdict.findings));

    // Each type and element says what it is for somewhere: who reads only the schema understands
    // it.
    const QByteArray text = Files::read(Places::source("schemas/") + schema);
    QVERIFY(text.count("<xs:documentation") > 5);
}

void tst_schemas::files_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("path");

    const auto addFiles = [](const char *schema, const QString &directory, const QString &suffix) {
        const QDir files(Places::source() + u'/' + directory);
        for (const QString &name : files.entryList({u"*."_s + suffix}, QDir::Files, QDir::Name)) {
            QTest::newRow(qPrintable(directory + QLatin1Char('/') + name))
                << QString::fromLatin1(schema) << files.filePath(name);
        }
    };
    addFiles(ConfigurationSchema, u"tests/data/configuration/valid"_s, u"3deco"_s);
    addFiles(ConfigurationSchema, u"examples/packaging-line"_s, u"3deco"_s);
    addFiles(SettingsSchema, u"tests/data/settings/valid"_s, u"3conf"_s);
    addFiles(SettingsSchema, u"examples/packaging-line"_s, u"3conf"_s);
}

void tst_schemas::files()
{
    QFETCH(QString, schema);
    QFETCH(QString, path);
    const SVerdict verdict = validate(Files::read(path), schema);
    // The readers take more than the schemas: what they ignore, they do not refuse.
    const bool holdsForeignContent = path.endsWith(u"unknown-content.3deco"_s)
        || path.endsWith(u"unknown-content.3conf"_s)
        || path.endsWith(u"drive-numbers-to-skip.3conf"_s);
    QVERIFY2(verdict.isValid != holdsForeignContent, qPrintable(verdict.findings));
}

void tst_schemas::brokenFiles_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("path");

    int count = 0;
    const auto addFiles = [&](const char *schema, const QString &directory) {
        const QDir files(Places::data("") + directory);
        for (const QString &name : files.entryList(QDir::Files, QDir::Name)) {
            QTest::newRow(qPrintable(directory + QLatin1Char('/') + name))
                << QString::fromLatin1(schema) << files.filePath(name);
            ++count;
        }
    };
    addFiles(ConfigurationSchema, u"configuration/invalid"_s);
    addFiles(SettingsSchema, u"settings/invalid"_s);
    QVERIFY(count > 60);
}

void tst_schemas::brokenFiles()
{
    QFETCH(QString, schema);
    QFETCH(QString, path);
    QVERIFY(QFile::exists(path));
    QVERIFY(!validate(Files::read(path), schema).isValid);
}

void tst_schemas::written_data()
{
    QTest::addColumn<std::function<void(Document &)>>("write");
    using Write = std::function<void(Document &)>;

    QTest::newRow("nothing") << Write([](Document &) {});
    QTest::newRow("description without dates")
        << Write([](Document &file) { file.setDescription(CDescriptionElement()); });
    QTest::newRow("everything") << Write([](Document &file) {
        file.setMetaData(SampleConfiguration::metaData());
        file.setDescription(SampleConfiguration::description());
        file.setConfiguration(SampleConfiguration::device());
    });
    QTest::newRow("default device")
        << Write([](Document &file) { file.setConfiguration(CDeviceElement()); });
    QTest::newRow("last dates") << Write([](Document &file) {
        CDescriptionElement description;
        description.setCreationDate(QDate(1, 1, 1));
        description.setRevisionDate(QDate(9999, 12, 31));
        file.setDescription(description);
    });
    QTest::newRow("dates that cannot be written") << Write([](Document &file) {
        CDescriptionElement description;
        description.setCreationDate(QDate(-44, 3, 15));
        description.setRevisionDate(QDate(10000, 1, 1));
        file.setDescription(description);
    });
    QTest::newRow("every type of parameter file") << Write([](Document &file) {
        for (int type = NvrnGlobal::PARAM_FILE_UNDEFINED;
             type <= NvrnGlobal::PARAM_FILE_OPTION_MODULE_DATABASE + 1; ++type) {
            file.addParamFile(QString::number(type), static_cast<NvrnGlobal::EParamFileType>(type));
        }
    });
    QTest::newRow("every device class") << Write([](Document &file) {
        CDeviceElement device;
        for (const auto deviceClass : {NDeviceConf::DEVICE_CLASS_KC2, NDeviceConf::DEVICE_CLASS_KD3,
                                       NDeviceConf::DEVICE_CLASS_UNDEFINED}) {
            device.setDeviceClass(deviceClass);
            file.setDeviceElement(device, file.deviceDomElement());
        }
    });
    QTest::newRow("empty lists") << Write([](Document &file) {
        file.setParamFiles({});
        file.setFpgaFiles({});
        file.setAdditionalFiles({});
        file.setPlugins({});
        file.setOpcUaFiles({});
        file.setOpcUaEnabled(false);
        file.setExecutionPlugin(QString());
    });
    QTest::newRow("empty entries") << Write([](Document &file) {
        file.setFpgaFiles({QString()});
        file.setAdditionalFiles({CFileElement()});
        file.setPlugins({CPluginElement()});
    });
    QTest::newRow("extreme numbers") << Write([](Document &file) {
        file.setPlugins({SampleConfiguration::plugin(u"a"_s, QString(), INT_MIN),
                         SampleConfiguration::plugin(u"b"_s, QString(), INT_MAX)});
        CSubDeviceKD3Element drive;
        drive.setDriveId(255);
        drive.setBusId(UINT_MAX);
        file.appendSubDeviceElement(drive, file.deviceDomElement());
    });
    QTest::newRow("all drive numbers") << Write([](Document &file) {
        CDeviceElement device;
        for (int i = 0; i < 255; ++i) {
            device.insertSubDevice(CSubDeviceKD3Element());
        }
        file.setConfiguration(device);
    });
    QTest::newRow("drive numbers first") << Write([](Document &file) {
        file.appendSubDeviceElement(CSubDeviceKD2Element(), file.deviceDomElement());
        file.setExecutionPlugin(u"a"_s);
    });
    QTest::newRow("hardware identities") << Write([](Document &file) {
        for (const QString &name : {u"a:b%c"_s, u"line\nbreak\t\u0085"_s, u"Größe 軸"_s, u""_s}) {
            CDeviceHardwareId id;
            id.setPrefix(name);
            id.setName(name);
            id.setPlatform(65535);
            CSubDeviceKD3Element drive;
            drive.setHardwareId(id);
            file.appendSubDeviceElement(drive, file.deviceDomElement());
        }
    });
    for (const ConfigurationItems::Setter &setter : ConfigurationItems::setters()) {
        QTest::newRow(setter.name) << Write([=](Document &file) {
            file.setConfiguration(SampleConfiguration::device());
            setter.set(file);
        });
        QTest::newRow(
            qPrintable(QStringLiteral("%1, new document").arg(QLatin1String(setter.name))))
            << Write([=](Document &file) { setter.set(file); });
    }
}

void tst_schemas::written()
{
    QFETCH(std::function<void(Document &)>, write);
    Document file(nullptr);
    QVERIFY(file.createNewDocument());
    write(file);
    QByteArray document;
    QString error;
    QVERIFY2(file.CXmlAbstractVornFile::save(document, error), qPrintable(error));
    const SVerdict verdict = validate(document, QString::fromLatin1(ConfigurationSchema));
    QVERIFY2(verdict.isValid, qPrintable(verdict.findings));
}

void tst_schemas::writtenSettings()
{
    CDeviceSettings settings = SampleSettings::settings(u"Größe <&>"_s);
    for (int number = 0; number < 256; ++number) {
        settings.setSubDeviceName(number % 2 == 0 ? QString() : QString::number(number),
                                  static_cast<quint8>(number));
    }
    for (const CDeviceSettings &value : {CDeviceSettings(), settings}) {
        CDeviceSettingsFile file(nullptr);
        file.setDeviceSettings(value);
        QByteArray document;
        QCOMPARE(file.saveToBuffer(document, CDeviceSettingsFileV10::fileVersionText()),
                 NvrnGlobal::FILE_RESULT_SUCCESS);
        const SVerdict verdict = validate(document, QString::fromLatin1(SettingsSchema));
        QVERIFY2(verdict.isValid, qPrintable(verdict.findings));
    }
}

void tst_schemas::anyOrder_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("configuration") << QString::fromLatin1(ConfigurationSchema)
                                   << testData(u"configuration/valid/full.3deco"_s);
    QTest::newRow("settings") << QString::fromLatin1(SettingsSchema)
                              << testData(u"settings/valid/full.3conf"_s);
}

void tst_schemas::anyOrder()
{
    QFETCH(QString, schema);
    QFETCH(QByteArray, document);
    QDomDocument reversed;
    QVERIFY(reversed.setContent(document));
    reverse(reversed.documentElement());
    const SVerdict verdict = validate(reversed.toByteArray(), schema);
    QVERIFY2(verdict.isValid, qPrintable(verdict.findings));
}

/** One change in a valid document; it stays valid when no finding is told. */
void tst_schemas::checkChange(const QByteArray &document, const char *schema)
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, finding);
    const QByteArray variant = changed(document, from, to);
    QVERIFY2(!variant.isEmpty(), "The document does not hold what is to be changed.");
    const SVerdict verdict = validate(variant, QString::fromLatin1(schema));
    QVERIFY2(verdict.isValid == finding.isEmpty(), qPrintable(verdict.findings));
    QVERIFY2(verdict.findings.contains(finding), qPrintable(verdict.findings));
}

void tst_schemas::configuration_data()
{
    addChangeColumns();
    const char *const notExpected = "This element is not expected";
    const char *const notAllowed = "is not allowed";
    const char *const noNumber = "is not a valid value";
    const char *const notInList = "is not an element of the set";
    const QByteArray root = "<VornDeviceConfig version=\"1.0\">";

    addChange("as it is", "", "");
    addChange("comment and instruction", "<Device>", "<!-- a --><?a b?><Device>");
    addChange("blanks between elements", "<Device>", "\n\n\t<Device>");
    addChange("CDATA section", "<Name>Press</Name>", "<Name><![CDATA[<Press>]]></Name>");
    addChange("place of the schema", root,
              "<VornDeviceConfig version=\"1.0\""
              " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
              " xsi:noNamespaceSchemaLocation=\"DeviceConfiguration.xsd\">");

    addChange("version missing", root, "<VornDeviceConfig>", "required but missing");
    addChange("version later", root, "<VornDeviceConfig version=\"1.1\">", notInList);
    addChange("version in other words", root, "<VornDeviceConfig version=\"1\">", notInList);
    addChange("attribute of the root", root, "<VornDeviceConfig version=\"1.0\" a=\"1\">",
              notAllowed);
    addChange("namespace", root, "<VornDeviceConfig version=\"1.0\" xmlns=\"urn:a\">",
              "No matching global declaration");
    addChange("text in the root", " <Device>", " a<Device>", "Character content");

    // In each kind of element: an unknown one, one at the wrong place, and one that comes twice.
    addChange("unknown in the root", " <Device>", "<Unknown/><Device>", notExpected);
    addChange("drive in the root", " <Device>", "<SubDevice/><Device>", notExpected);
    addChange("two heads", " <Device>", "<Head/><Device>", notExpected);
    addChange("two descriptions", " <Device>", "<Description/><Device>", notExpected);
    addChange("two devices", " <Device>", "<Device/><Device>", notExpected);
    addChange("unknown in the head", "<Author>", "<Unknown/><Author>", notExpected);
    addChange("two authors", "<Author>", "<Author/><Author>", notExpected);
    addChange("unknown in the description", "<Version>2.1", "<Unknown/><Version>2.1", notExpected);
    addChange("two project names", "<Version>2.1", "<Name/><Version>2.1", notExpected);
    addChange("unknown in the device", "<Class>", "<Unknown/><Class>", notExpected);
    addChange("plug-ins in the device", "<Class>", "<Plugins/><Class>", notExpected);
    addChange("attribute of the device", "<Device>", "<Device a=\"1\">", notAllowed);
    addChange("unknown in the configuration", "<Options>", "<Unknown/><Options>", notExpected);
    addChange("drive in the configuration", "<Options>", "<SubDevice/><Options>", notExpected);
    addChange("two dictionaries", "<Options>", "<Dictionary/><Options>", notExpected);
    addChange("two options", "<ParameterFiles>", "<Options/><ParameterFiles>", notExpected);
    addChange("text in the configuration", "<Options>", "a<Options>", "Character content");
    addChange("unknown among parameter files", "<ParameterFiles>", "<ParameterFiles><Unknown/>",
              notExpected);
    addChange("plug-in among parameter files", "<ParameterFiles>", "<ParameterFiles><Plugin/>",
              notExpected);
    addChange("unknown in a parameter file", "<Name>Machine", "<Unknown/><Name>Machine",
              notExpected);
    addChange("directory of a parameter file", "<Name>Machine", "<DeviceDir/><Name>Machine",
              notExpected);
    addChange("parameter file without name", "<Name>Machine</Name>", "", "Missing child element");
    addChange("parameter file with empty name", "<Name>Machine</Name>", "<Name/>", "minLength");
    addChange("parameter file without type", " type=\"VornParameters\"", "",
              "required but missing");
    addChange("parameter file of unknown type", "VornParameters", "VornParameter", notInList);
    addChange("parameter file of a type in lower case", "VornParameters", "vornparameters",
              notInList);
    addChange("parameter file with other order",
              "<Name>Machine</Name>\n     <Comment>all axes</Comment>",
              "<Comment>all axes</Comment><Name>Machine</Name>");
    addChange("parameter file without comment", "<Comment>all axes</Comment>", "");
    addChange("two files of the dictionary", "<Dictionary>", "<Dictionary><File><Name/></File>",
              notExpected);
    addChange("no file of the dictionary", "<EtherCatMaster>", "<EtherCatMaster><!-- a -->");
    addChange("unknown beside the dictionary", "<Dictionary>", "<Dictionary><Unknown/>",
              notExpected);
    addChange("two fault-text files", "<FaultTextFile>", "<FaultTextFile><File><Name/></File>",
              notExpected);
    addChange("two files of the EtherCAT master", "<EtherCatMaster>",
              "<EtherCatMaster><File><Name/></File>", notExpected);
    addChange("type of a file", "<Dictionary>\n    <File>", "<Dictionary><File type=\"Undefined\">",
              notAllowed);
    addChange("unknown in a file", "<Name>KD3_D", "<Unknown/><Name>KD3_D", notExpected);
    addChange("two names of a file", "<Name>KD3_D", "<Name/><Name>KD3_D", notExpected);
    addChange("file without name", "<Name>KD3_Dictionary_V1.xml</Name>", "",
              "Missing child element");
    addChange("file with a name alone", "<Comment>as delivered</Comment>", "");
    addChange("comment of an FPGA file", "<Name>main.bit", "<Comment/><Name>main.bit", notExpected);
    addChange("FPGA file without name", "<Name>main.bit</Name>", "", "Missing child element");
    addChange("unknown in OPC UA", "<OpcUaFiles>", "<Unknown/><OpcUaFiles>", notExpected);
    addChange("file directly in OPC UA", "<OpcUaFiles>", "<File><Name/></File><OpcUaFiles>",
              notExpected);
    addChange("two flags", "<OpcUaFiles>", "<OpcUaEnabled>true</OpcUaEnabled><OpcUaFiles>",
              notExpected);
    addChange("flag in capitals", ">true<", ">TRUE<", notInList);
    addChange("flag as number", ">true<", ">1<", notInList);
    addChange("flag with blank", ">true<", "> true<", notInList);
    addChange("flag empty", ">true<", "><", notInList);
    addChange("flag false", ">true<", ">false<");
    addChange("unknown in an OPC UA file", "<Name>kd3NodeSet", "<Unknown/><Name>kd3NodeSet",
              notExpected);
    addChange("unknown among the OPC UA files", "<OpcUaFiles>", "<OpcUaFiles><Unknown/>",
              notExpected);
    addChange("unknown in an additional file", "<Name>recipe", "<Unknown/><Name>recipe",
              notExpected);
    addChange("unknown among the files", "<Files>", "<Files><Unknown/>", notExpected);
    addChange("unknown among the plug-ins", "<Plugins>", "<Plugins><Unknown/>", notExpected);
    addChange("file among the plug-ins", "<Plugins>", "<Plugins><File><Name/></File>", notExpected);
    addChange("unknown in a plug-in", "<Name>Motion", "<Unknown/><Name>Motion", notExpected);
    addChange("plug-in without name", "<Name>Motion</Name>", "", "Missing child element");
    addChange("priority is no number", "<Priority>10", "<Priority>high", noNumber);
    addChange("priority empty", "<Priority>10", "<Priority>", noNumber);
    addChange("priority too large", "<Priority>10", "<Priority>2147483648", noNumber);
    addChange("unknown in a drive", "<DriveNo>0", "<Unknown/><DriveNo>0", notExpected);
    addChange("drive in a drive", "<DriveNo>0", "<SubDevice/><DriveNo>0", notExpected);
    addChange("two drive numbers", "<DriveNo>0", "<DriveNo>0</DriveNo><DriveNo>0", notExpected);
    addChange("drive without number", "<DriveNo>0</DriveNo>", "", "Missing child element");
    addChange("drive number is no number", "<DriveNo>0", "<DriveNo>x", noNumber);
    addChange("drive number empty", "<DriveNo>0", "<DriveNo>", noNumber);
    addChange("drive number negative", "<DriveNo>0", "<DriveNo>-1", noNumber);
    addChange("drive number too large", "<DriveNo>0", "<DriveNo>256", noNumber);
    addChange("drive number hexadecimal", "<DriveNo>0", "<DriveNo>0x1", noNumber);
    addChange("drive number of none", "<DriveNo>0", "<DriveNo>255");
    addChange("bus identifier is no number", "<BusId>1001", "<BusId>a", noNumber);
    addChange("bus identifier negative", "<BusId>1001", "<BusId>-1", noNumber);
    addChange("bus identifier too large", "<BusId>1001", "<BusId>4294967296", noNumber);
    addChange("drive without type", " type=\"KD2_drive\"", "", "required but missing");
    addChange("drive of a type in lower case", "KD2_drive", "kd2_drive", notInList);
    addChange("drive of another type", "KD2_drive", "KD4_drive", notInList);
    addChange("drive not yet known", "KD2_drive", "UNKNOWN_drive");
    addChange("two parameter files of a drive", "<Param>", "<Param><File><Name/></File>",
              notExpected);
    addChange("two KD2 parameter files", "<KD2Param>", "<KD2Param><File><Name/></File>",
              notExpected);
    addChange("two logic files", "<KD2Logic>", "<KD2Logic><File><Name/></File>", notExpected);
    addChange("hardware identity of a drive", "KD2:Feed Drive:1:0:2", "KD2", "pattern");
    addChange("two firmware files", "<KD2Firmware>", "<KD2Firmware><File><Name/></File>",
              notExpected);
    addChange("file of a drive directly", "<Param>", "<File><Name/></File><Param>", notExpected);

    addChange("date in German", "2026-01-31", "31.01.2026", noNumber);
    addChange("date that does not exist", "2026-01-31", "2026-02-30", noNumber);
    addChange("date with time", "2026-01-31", "2026-01-31T10:00:00", noNumber);
    addChange("date with time zone", "2026-01-31", "2026-01-31Z", noNumber);
    addChange("date in two digits", "2026-01-31", "26-01-31", noNumber);
    addChange("date missing", "<Date>2026-01-31</Date>", "");
    addChange("date empty", "2026-01-31", "");
    addChange("creation date is a word", "2025-12-24", "Christmas", noNumber);
    addChange("revision date is a word", "2026-01-30", "today", noNumber);
    addChange("class of the other series", ">kd3<", ">kc2<");
    addChange("class in capitals", ">kd3<", ">KD3<", notInList);
    addChange("class empty", ">kd3<", "><", notInList);
    addChange("class undefined", ">kd3<", ">Undefined<");
    addChange("hardware identity empty", "KD3:Servo Drive 8A:3:2:1", "");
    addChange("hardware identity of four parts", "KD3:Servo Drive 8A:3:2:1",
              "KD3:Servo Drive 8A:3:2", "pattern");
    addChange("hardware identity with a word", "KD3:Servo Drive 8A:3:2:1",
              "KD3:Servo Drive 8A:3:2:b", "pattern");
    addChange("hardware identity, largest number", "8A:3:2:1", "8A:65535:0065535:1");
    addChange("hardware identity, number too large", "8A:3:2:1", "8A:65536:2:1", "pattern");
    addChange("hardware identity, last number too large", "8A:3:2:1", "8A:3:2:99999", "pattern");
    addChange("hardware identity, escape not finished", "8A:3:2:1", "8%00A:3:2:1", "pattern");
    addChange("hardware identity, escaped", "8A:3:2:1", "8%003aA:3:2:1");
}

void tst_schemas::configuration()
{
    checkChange(testData(u"configuration/valid/full.3deco"_s), ConfigurationSchema);
}

void tst_schemas::settings_data()
{
    addChangeColumns();
    const char *const notExpected = "This element is not expected";
    const char *const noNumber = "is not a valid value";
    const QByteArray root = "<VornDeviceSettings version=\"1.0\">";

    addChange("as it is", "", "");
    addChange("version missing", root, "<VornDeviceSettings>", "required but missing");
    addChange("version later", root, "<VornDeviceSettings version=\"2.0\">",
              "is not an element of the set");
    addChange("attribute of the root", root, "<VornDeviceSettings version=\"1.0\" a=\"1\">",
              "is not allowed");
    addChange("unknown in the root", " <Device>", "<Unknown/><Device>", notExpected);
    addChange("name in the root", " <Device>", "<Name/><Device>", notExpected);
    addChange("two heads", " <Device>", "<Head/><Device>", notExpected);
    addChange("two devices", " <Device>", "<Device/><Device>", notExpected);
    addChange("unknown in the head", "<Author>", "<Unknown/><Author>", notExpected);
    addChange("unknown in the device", "<Device>", "<Device><Unknown/>", notExpected);
    addChange("attribute of the device", "<Device>", "<Device a=\"1\">", "is not allowed");
    addChange("two names of the device", "<Device>", "<Device><Name/>", notExpected);
    addChange("drive in front of the name", "<Device>",
              "<Device><SubDevice><DriveNo>9</DriveNo></SubDevice>");
    addChange("name of the device missing", "<Name>Press &lt;3&gt; &amp; Größe</Name>", "");
    addChange("unknown in a drive", "<DriveNo>0", "<Unknown/><DriveNo>0", notExpected);
    addChange("drive in a drive", "<DriveNo>0", "<SubDevice/><DriveNo>0", notExpected);
    addChange("two names of a drive", "<DriveNo>0", "<Name/><DriveNo>0", notExpected);
    addChange("two drive numbers", "<DriveNo>0", "<DriveNo>1</DriveNo><DriveNo>0", notExpected);
    addChange("drive without number", "<DriveNo>0</DriveNo>", "", "Missing child element");
    addChange("unknown in a drive behind the name", "<DriveNo>255", "<Unknown/><DriveNo>255",
              notExpected);
    addChange("unknown in a drive in front of the name", "<Device>",
              "<Device><SubDevice><DriveNo>9</DriveNo><Unknown/></SubDevice>", notExpected);
    addChange("date with time zone", "2026-01-31", "2026-01-31Z", noNumber);
    addChange("drive without name", "<Name>Feed</Name>", "");
    addChange("name in front of the number", "<DriveNo>0</DriveNo>\n   <Name>Feed</Name>",
              "<Name>Feed</Name><DriveNo>0</DriveNo>");
    addChange("drive number is no number", "<DriveNo>0", "<DriveNo>x", noNumber);
    addChange("drive number empty", "<DriveNo>0", "<DriveNo>", noNumber);
    addChange("drive number too large", "<DriveNo>0", "<DriveNo>256", noNumber);
    addChange("drive number negative", "<DriveNo>0", "<DriveNo>-1", noNumber);
    addChange("date is a word", "2026-01-31", "today", noNumber);
    addChange("date empty", "2026-01-31", "");
}

void tst_schemas::settings()
{
    checkChange(testData(u"settings/valid/full.3conf"_s), SettingsSchema);
}

REGISTER_GUILESS_TEST(tst_schemas)
#include "tst_schemas.moc"
