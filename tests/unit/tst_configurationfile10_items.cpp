#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/FullDocument.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace FullDocument;

/** Getters and setters of single parts. */
class tst_configurationfile10_items : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void gettersCreateNothing_data();
    void gettersCreateNothing();
    void gettersWithoutDocument();
    void settersWithoutDocument_data();
    void settersWithoutDocument();
    void settersFromNothing();
    void configurationDetour();

    void description();
    void singleFiles_data();
    void singleFiles();
    void paramFiles();
    void paramFilesAreIdentified();
    void paramFileWithoutNameIsNotFound();
    void paramFilesRefused();
    void fpgaFiles();
    void setActiveFpgaFile_data();
    void setActiveFpgaFile();
    void additionalFiles();
    void plugins();
    void executionPlugin();
    void opcUa();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_configurationfile10_items::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_configurationfile10_items::gettersCreateNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty root") << emptyDocument();
    QTest::newRow("empty device") << QByteArray(
        "<VornDeviceConfig version=\"1.0\"><Device/></VornDeviceConfig>");
    QTest::newRow("empty configuration block")
        << QByteArray("<VornDeviceConfig version=\"1.0\"><Device><Config/></Device>"
                      "</VornDeviceConfig>");
    QTest::newRow("empty items") << QByteArray(
        "<VornDeviceConfig version=\"1.0\"><Head/><Description/><Device>"
        "<Config><Options/><ParameterFiles/><Dictionary/><FaultTextFile/>"
        "<FPGA_FileNames/><OpcUa/><EtherCatMaster/><Files/><Plugins/>"
        "<ExecutionPlugin/></Config><SubDevice/></Device></VornDeviceConfig>");
    QTest::newRow("everything") << fullDocument();
    QTest::newRow("unknown content") << Files::read(dataPath(u"valid/unknown-content.3deco"_s));
}

void tst_configurationfile10_items::gettersCreateNothing()
{
    QFETCH(QByteArray, bytes);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(bytes));
    const QByteArray before = bytesOf(file);
    QVERIFY(!before.isEmpty());
    ConfigurationItems::read(file);
    file.metaData();
    file.openResult();
    file.currentFileVersion();
    file.findDeviceElement();
    file.findConfigElement();
    file.findParamFilesElement();
    file.findFilesElement();
    file.findPluginsElement();
    file.findDescriptionElement();
    file.findOpcUAElement();
    file.findEtherCatMasterElement();
    QCOMPARE(bytesOf(file), before);
}

void tst_configurationfile10_items::gettersWithoutDocument()
{
    const MessageCatcher catcher;
    const CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device = SampleConfiguration::device();
    QVERIFY(!file.configuration(device));
    QVERIFY(device.isNull());
    QVERIFY(file.description() == CDescriptionElement());
    QVERIFY(file.odictFile().isNull());
    QVERIFY(file.faultTextFile().isNull());
    QVERIFY(file.paramFiles().isEmpty());
    QList<CParamFileElement> paramFiles = SampleConfiguration::paramFiles();
    QVERIFY(!file.paramFiles(paramFiles));
    QVERIFY(paramFiles.isEmpty());
    QVERIFY(!file.containsParamFile(SampleConfiguration::paramFiles().constFirst()));
    QVERIFY(file.fpgaFiles().isEmpty());
    QVERIFY(!file.containsFpgaFile(u"main.bit"_s));
    QVERIFY(file.activeFpgaFile().isEmpty());
    QVERIFY(file.additionalFiles().isEmpty());
    QVERIFY(!file.containsAdditionalFile(SampleConfiguration::odictFile()));
    QVERIFY(file.plugins().isEmpty());
    QList<CPluginElement> plugins = SampleConfiguration::plugins();
    QVERIFY(!file.plugins(plugins));
    QVERIFY(plugins.isEmpty());
    QVERIFY(file.executionPlugin().isEmpty());
    QVERIFY(!file.isOpcUaEnabled());
    QList<CFileElement> opcUaFiles = SampleConfiguration::opcUaFiles();
    QVERIFY(!file.opcUaFiles(opcUaFiles));
    QVERIFY(opcUaFiles.isEmpty());
    QVERIFY(file.etherCatMasterFile().isNull());
    QVERIFY(file.options().isEmpty());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_configurationfile10_items::settersWithoutDocument_data()
{
    QTest::addColumn<int>("index");

    const QList<ConfigurationItems::Setter> setters = ConfigurationItems::setters();
    for (int i = 0; i < setters.size(); ++i) {
        QTest::newRow(setters.at(i).name) << i;
    }
    QTest::newRow("setConfiguration") << -1;
}

void tst_configurationfile10_items::settersWithoutDocument()
{
    QFETCH(int, index);
    const auto set = [index](ICDeviceConfigurationFile &file) {
        return index < 0 ? file.setConfiguration(SampleConfiguration::device())
                         : ConfigurationItems::setters().at(index).set(file);
    };

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(!set(file));
    QVERIFY(isWithoutDocument(file));
    // The same after a document was lost again.
    QVERIFY(file.load(fullDocument()));
    QVERIFY(!file.open(QString()));
    QVERIFY(!set(file));
    QVERIFY(isWithoutDocument(file));
}

void tst_configurationfile10_items::settersFromNothing()
{
    // In a new document every setter creates what it needs; those that remove find nothing.
    for (const ConfigurationItems::Setter &setter : ConfigurationItems::setters()) {
        CDeviceConfigurationFile10 file(nullptr);
        QVERIFY(file.createNewDocument());
        const bool removes = QByteArray(setter.name).startsWith("remove");
        QVERIFY2(setter.set(file) == !removes, setter.name);
        CDeviceConfigurationFile10 reopened(nullptr);
        QVERIFY2(reopened.load(bytesOf(file)), setter.name);
        QVERIFY2(ConfigurationItems::read(reopened) == ConfigurationItems::read(file), setter.name);
        QCOMPARE(bytesOf(reopened), bytesOf(file));
    }
}

void tst_configurationfile10_items::configurationDetour()
{
    // What the document does not carry comes back as by default.
    CDeviceElement device = SampleConfiguration::device();
    device.setSerial(4711);
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    device.setHostAddress(QHostAddress(u"192.168.1.2"_s));
    device.setPort(1234);
    device.setPreferredDeviceListNumber(3);
    CParamFileElement paramFile = SampleConfiguration::paramFiles().constFirst();
    paramFile.setDriveId(3);
    paramFile.setDevicePath(u"/d/"_s);
    device.setParameterFiles(
        {paramFile, SampleConfiguration::paramFiles().at(1), CParamFileElement()});
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    CDeviceElement read;
    QVERIFY(file.configuration(read));
    QVERIFY(read == SampleConfiguration::device());
}

void tst_configurationfile10_items::description()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.description() == CDescriptionElement());
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QVERIFY(file.description() == SampleConfiguration::description());
    CDescriptionElement other;
    other.setVersion(QString());
    other.setCreationDate(QDate());
    QVERIFY(file.setDescription(other));
    QVERIFY(file.description() == other);
    QCOMPARE(bytesOf(file).count("<Description>"), 1);
    QCOMPARE(bytesOf(file).count("<!--Project description-->"), 1);
}

void tst_configurationfile10_items::singleFiles_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QByteArray>("tag");

    QTest::newRow("object dictionary") << 0 << QByteArray("Dictionary");
    QTest::newRow("fault texts") << 1 << QByteArray("FaultTextFile");
    QTest::newRow("EtherCAT master") << 2 << QByteArray("EtherCatMaster");
}

void tst_configurationfile10_items::singleFiles()
{
    QFETCH(int, which);
    QFETCH(QByteArray, tag);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(emptyDocument()));
    const auto set = [&](const CFileElement &value) {
        switch (which) {
        case 0:
            return file.setOdictFile(value);
        case 1:
            return file.setFaultTextFile(value);
        default:
            return file.setEtherCatMasterFile(value);
        }
    };
    const auto get = [&]() {
        switch (which) {
        case 0:
            return file.odictFile();
        case 1:
            return file.faultTextFile();
        default:
            return file.etherCatMasterFile();
        }
    };
    const CFileElement first = SampleConfiguration::odictFile();
    const CFileElement second = SampleConfiguration::etherCatMasterFile();
    for (const CFileElement &value : {first, second, CFileElement(), first}) {
        QVERIFY(set(value));
        QVERIFY(get() == value);
    }
    QCOMPARE(bytesOf(file).count("<" + tag + ">"), 1);
    QCOMPARE(bytesOf(file).count("<File>"), 1);
    CFileElement bare;
    bare.setComment(u"comment alone"_s);
    QVERIFY(set(bare));
    QVERIFY(get() == bare);
}

void tst_configurationfile10_items::paramFiles()
{
    using SampleConfiguration::paramFile;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CParamFileElement> list;
    QVERIFY(!file.paramFiles(list));

    QVERIFY(file.addParamFile(paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s)));
    QVERIFY(file.addParamFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS));
    QVERIFY(file.paramFiles(list));
    QVERIFY(
        list
        == (QList<CParamFileElement>{paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
                                     paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS)}));
    QCOMPARE(list.constFirst().comment(), u"c"_s);

    // A file of that name is replaced where it stands, its type and comment too.
    QVERIFY(file.addParamFile(u"b"_s, NvrnGlobal::PARAM_FILE_DEVICE_DATABASE));
    QCOMPARE(file.paramFiles().size(), 2);
    QVERIFY(file.paramFiles().constFirst()
            == paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_DEVICE_DATABASE));
    QVERIFY(file.paramFiles().constFirst().comment().isEmpty());

    QVERIFY(file.setParamFiles({paramFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
                                CParamFileElement(),
                                paramFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS)}));
    QCOMPARE(file.paramFiles().size(), 2);
    QVERIFY(file.removeParamFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS));
    QCOMPARE(file.paramFiles().size(), 1);
    QVERIFY(file.setParamFiles({}));
    QVERIFY(file.paramFiles(list));
    QVERIFY(list.isEmpty());
}

void tst_configurationfile10_items::paramFilesAreIdentified()
{
    using SampleConfiguration::paramFile;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    CParamFileElement present = paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s);
    QVERIFY(file.addParamFile(present));
    const QByteArray before = bytesOf(file);

    for (const CParamFileElement &other :
         {paramFile(u"A"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
          paramFile(u"a "_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
          paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS),
          paramFile(QString(), NvrnGlobal::PARAM_FILE_PARAMETERS)}) {
        QVERIFY(!file.containsParamFile(other));
        QVERIFY(!file.removeParamFile(other));
        QVERIFY(!file.removeParamFile(other.name(), other.type()));
    }
    QCOMPARE(bytesOf(file), before);

    // Name and type are what counts.
    present.setComment(u"other"_s);
    present.setDriveId(3);
    present.setDevicePath(u"/d/"_s);
    QVERIFY(file.containsParamFile(present));
    QVERIFY(file.removeParamFile(present));
    QVERIFY(!file.containsParamFile(present));
}

void tst_configurationfile10_items::paramFileWithoutNameIsNotFound()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load("<VornDeviceConfig version=\"1.0\"><Device><Config><ParameterFiles>"
                      "<File type=\"VornParameters\"><Comment>c</Comment></File>"
                      "</ParameterFiles></Config></Device></VornDeviceConfig>"));
    CParamFileElement nameless;
    nameless.setType(NvrnGlobal::PARAM_FILE_PARAMETERS);
    QVERIFY(!file.containsParamFile(nameless));
    QVERIFY(!file.removeParamFile(nameless));
    QVERIFY(!file.removeParamFile(QString(), NvrnGlobal::PARAM_FILE_PARAMETERS));
    QCOMPARE(file.domDocument().elementsByTagName(u"File"_s).size(), 1);
}

void tst_configurationfile10_items::paramFilesRefused()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    const QByteArray before = bytesOf(file);
    QVERIFY(!file.addParamFile(CParamFileElement()));
    QVERIFY(!file.addParamFile(QString(), NvrnGlobal::PARAM_FILE_PARAMETERS));
    QVERIFY(!file.addParamFile(u"a"_s, static_cast<NvrnGlobal::EParamFileType>(-2)));
    QCOMPARE(bytesOf(file), before);
    QVERIFY(file.addParamFile(u"a"_s, NvrnGlobal::PARAM_FILE_UNDEFINED));
}

void tst_configurationfile10_items::fpgaFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.activeFpgaFile().isEmpty());
    QVERIFY(file.appendFpgaFile(u"a.bit"_s));
    QVERIFY(file.appendFpgaFile(u"b.bit"_s));
    QVERIFY(file.appendFpgaFile(u"a.bit"_s));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"a.bit"_s, u"b.bit"_s, u"a.bit"_s}));
    QCOMPARE(file.activeFpgaFile(), u"a.bit"_s);
    QVERIFY(file.containsFpgaFile(u"b.bit"_s));
    QVERIFY(!file.containsFpgaFile(u"B.bit"_s));
    QVERIFY(!file.containsFpgaFile(u"dir/b.bit"_s));

    // Only the first of that name goes.
    QVERIFY(file.removeFpgaFile(u"a.bit"_s));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"b.bit"_s, u"a.bit"_s}));
    QVERIFY(!file.removeFpgaFile(u"c.bit"_s));
    QVERIFY(!file.removeFpgaFile(u"A.bit"_s));
    QVERIFY(file.setFpgaFiles({u"z"_s, u"y"_s}));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"z"_s, u"y"_s}));
    QVERIFY(file.setFpgaFiles({}));
    QVERIFY(file.fpgaFiles().isEmpty());
}

void tst_configurationfile10_items::setActiveFpgaFile_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("after");

    QTest::newRow("empty list") << QStringList() << u"a"_s << QStringList{u"a"_s};
    QTest::newRow("new") << QStringList{u"a"_s, u"b"_s} << u"c"_s
                         << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("last") << QStringList{u"a"_s, u"b"_s, u"c"_s} << u"c"_s
                          << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("first") << QStringList{u"a"_s, u"b"_s} << u"a"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("twice in the list")
        << QStringList{u"a"_s, u"b"_s, u"a"_s} << u"a"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("given with a directory")
        << QStringList{u"a"_s, u"b"_s} << u"dir/b"_s << QStringList{u"dir/b"_s, u"a"_s};
    QTest::newRow("listed with a directory")
        << QStringList{u"a"_s, u"dir/b"_s} << u"b"_s << QStringList{u"b"_s, u"a"_s};
    QTest::newRow("listed in another directory")
        << QStringList{u"a"_s, u"x/b"_s} << u"y/b"_s << QStringList{u"y/b"_s, u"a"_s};
    QTest::newRow("upper case is another")
        << QStringList{u"a"_s, u"b"_s} << u"B"_s << QStringList{u"B"_s, u"a"_s, u"b"_s};
    QTest::newRow("name that ends the same")
        << QStringList{u"ab"_s} << u"b"_s << QStringList{u"b"_s, u"ab"_s};
}

void tst_configurationfile10_items::setActiveFpgaFile()
{
    QFETCH(QStringList, before);
    QFETCH(QString, name);
    QFETCH(QStringList, after);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setFpgaFiles(before));
    const QByteArray bytes = bytesOf(file);
    QVERIFY(!file.setActiveFpgaFile(QString()));
    QCOMPARE(bytesOf(file), bytes);
    QVERIFY(file.setActiveFpgaFile(name));
    QCOMPARE(file.fpgaFiles(), after);
    QCOMPARE(file.activeFpgaFile(), name);
}

void tst_configurationfile10_items::additionalFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    const CFileElement a = SampleConfiguration::odictFile();
    CFileElement b = a;
    b.setComment(u"other"_s);
    QVERIFY(!file.appendAdditionalFile(CFileElement()));
    QVERIFY(!file.removeAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(CFileElement()));
    QVERIFY(file.appendAdditionalFile(a));
    QVERIFY(file.appendAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(b));
    QVERIFY(!file.removeAdditionalFile(b));
    QVERIFY(file.appendAdditionalFile(b));
    // Appending does not look for an equal one, and removing takes the first.
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, a, b}));
    QVERIFY(file.containsAdditionalFile(a));
    QVERIFY(file.removeAdditionalFile(a));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, b}));
    QVERIFY(file.removeAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(a));
    QVERIFY(file.setAdditionalFiles({b, a, b}));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{b, a, b}));
    QVERIFY(file.removeAdditionalFile(b));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, b}));
    QVERIFY(!file.removeAdditionalFile(CFileElement()));
    QVERIFY(file.setAdditionalFiles({}));
    QVERIFY(file.additionalFiles().isEmpty());
}

void tst_configurationfile10_items::plugins()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CPluginElement> list;
    QVERIFY(!file.plugins(list));
    const QList<CPluginElement> plugins = {SampleConfiguration::plugin(u"b"_s, u"1"_s, 0),
                                           SampleConfiguration::plugin(u"a"_s, QString(), -5),
                                           SampleConfiguration::plugin(u"b"_s, u"1"_s, 0)};
    QVERIFY(file.setPlugins(plugins));
    QVERIFY(file.plugins() == plugins);
    QVERIFY(file.plugins(list));
    QVERIFY(list == plugins);
    QVERIFY(file.setPlugins({}));
    QVERIFY(file.plugins(list));
    QVERIFY(list.isEmpty());
}

void tst_configurationfile10_items::executionPlugin()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    for (const QString &name : {u"Motion"_s, u" a <b> "_s, QString(), u"x"_s}) {
        QVERIFY(file.setExecutionPlugin(name));
        QCOMPARE(file.executionPlugin(), name);
    }
    QCOMPARE(bytesOf(file).count("<ExecutionPlugin>"), 1);
}

void tst_configurationfile10_items::opcUa()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CFileElement> list;
    QVERIFY(!file.opcUaFiles(list));
    QVERIFY(file.setOpcUaFiles(SampleConfiguration::opcUaFiles()));
    QVERIFY(!file.isOpcUaEnabled());
    QVERIFY(file.setOpcUaEnabled(true));
    QVERIFY(file.isOpcUaEnabled());
    QVERIFY(file.opcUaFiles(list));
    QVERIFY(list == SampleConfiguration::opcUaFiles());
    QVERIFY(file.setOpcUaFiles({}));
    QVERIFY(file.opcUaFiles(list));
    QVERIFY(list.isEmpty());
    QVERIFY(file.isOpcUaEnabled());
    QVERIFY(file.setOpcUaEnabled(false));
    QVERIFY(!file.isOpcUaEnabled());
    // The options are not touched: they are the device's business.
    QVERIFY(file.options().isEmpty());
}

REGISTER_GUILESS_TEST(tst_configurationfile10_items)
#include "tst_configurationfile10_items.moc"
