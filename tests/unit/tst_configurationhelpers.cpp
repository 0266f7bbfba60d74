#include "configfile/CDeviceConfigurationFile10.h"
#include "support/HelperFiles.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "vocabulary/NVornXmlTags.h"

#include <QtTest>

#include <memory>

using namespace HelperFiles;

Q_DECLARE_METATYPE(NvrnGlobal::EParamFileType)

namespace {

/** The finders have one shape, so that one test can ask all of them. */
using Finder = QDomElement (CAbstractDeviceConfigurationFile::*)(const QDomElement &) const;

using Creator = QDomElement (CAbstractDeviceConfigurationFile::*)(QDomElement);

const char *const FileContent = "<Name>n</Name><Comment>c</Comment>"
                                "<DeviceDir>/d/</DeviceDir><ProjectDir>p/</ProjectDir>";

} // namespace

class tst_configurationhelpers : public QObject
{
    Q_OBJECT

private slots:
    void factory();

    void find_data();
    void find();
    void findInConfig_data();
    void findInConfig();
    void findWithoutDocument();

    void create();
    void createFromNothing();
    void createBelowGivenElement();
    void createWithoutDocument();

    void appendFile();
    void appendParamFile_data();
    void appendParamFile();
    void appendPlugin();
    void appendFileString();
    void writersFillInPlace();
    void writersIntoNull();

    void insertFile();
    void insertParamFile();
    void insertParamFileInvalid();
    void insertPlugin();

    void setLists();

    void descriptionElement();
    void deviceElementOfOtherTag();

    void buildersIntoNull_data();
    void buildersIntoNull();
};

void tst_configurationhelpers::factory()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(dynamic_cast<CDeviceConfigurationFile10 *>(file.get()) != nullptr);
    const std::unique_ptr<ICDeviceConfigurationFile> other(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file != other);
    QCOMPARE(ICDeviceConfigurationFile::defaultFileName(), u"DeviceConfiguration.3deco"_s);
}

void tst_configurationhelpers::find_data()
{
    QTest::addColumn<QString>("finder");
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("found");

    QTest::newRow("device") << u"device"_s << QString() << u"device"_s;
    QTest::newRow("device in the root") << u"device"_s << u"root"_s << u"device"_s;
    QTest::newRow("device in a group") << u"device"_s << u"group"_s << u"device of group"_s;
    QTest::newRow("device in a device") << u"device"_s << u"device"_s << QString();

    QTest::newRow("description") << u"description"_s << QString() << u"description"_s;
    QTest::newRow("description in a group")
        << u"description"_s << u"group"_s << u"description of group"_s;
    QTest::newRow("description in a device") << u"description"_s << u"device"_s << QString();

    QTest::newRow("config") << u"config"_s << QString() << u"config"_s;
    QTest::newRow("config in a device")
        << u"config"_s << u"second device"_s << u"config of second"_s;
    QTest::newRow("config in a group") << u"config"_s << u"group"_s << QString();

    QTest::newRow("params") << u"params"_s << QString() << u"params"_s;
    QTest::newRow("params in a config")
        << u"params"_s << u"config of second"_s << u"params of second"_s;
    QTest::newRow("params in an empty config") << u"params"_s << u"second config"_s << QString();
    QTest::newRow("params in a device") << u"params"_s << u"device"_s << QString();

    QTest::newRow("files") << u"files"_s << QString() << u"files"_s;
    QTest::newRow("files in a config")
        << u"files"_s << u"config of second"_s << u"files of second"_s;
    QTest::newRow("files in an empty config") << u"files"_s << u"second config"_s << QString();

    QTest::newRow("plugins") << u"plugins"_s << QString() << u"plugins"_s;
    QTest::newRow("plugins in a config")
        << u"plugins"_s << u"config of second"_s << u"plugins of second"_s;
    QTest::newRow("plugins in an empty config") << u"plugins"_s << u"second config"_s << QString();

    QTest::newRow("OPC UA") << u"opcua"_s << QString() << u"opcua"_s;
    QTest::newRow("OPC UA in a device") << u"opcua"_s << u"second device"_s << u"opcua of second"_s;
    QTest::newRow("OPC UA in a config")
        << u"opcua"_s << u"config of second"_s << u"opcua of second"_s;
    QTest::newRow("EtherCAT") << u"ethercat"_s << QString() << u"ethercat"_s;
    QTest::newRow("EtherCAT in a device")
        << u"ethercat"_s << u"second device"_s << u"ethercat of second"_s;
    QTest::newRow("EtherCAT in an empty config")
        << u"ethercat"_s << u"second config"_s << QString();
}

void tst_configurationhelpers::find()
{
    QFETCH(QString, finder);
    QFETCH(QString, in);
    QFETCH(QString, found);

    using Base = CAbstractDeviceConfigurationFile;
    const QMap<QString, Finder> finders = {
        {u"device"_s, &Base::findDeviceElement}, {u"description"_s, &Base::findDescriptionElement},
        {u"config"_s, &Base::findConfigElement}, {u"params"_s, &Base::findParamFilesElement},
        {u"files"_s, &Base::findFilesElement},   {u"plugins"_s, &Base::findPluginsElement},
        {u"opcua"_s, &Base::findOpcUAElement},   {u"ethercat"_s, &Base::findEtherCatMasterElement},
    };
    HelperFile file;
    const QByteArray before = file.bytes();
    const QDomElement where = in == u"root"_s ? file.root() : file.byId(in);
    const QDomElement element = (file.*finders.value(finder))(in.isEmpty() ? QDomElement() : where);
    QCOMPARE(element.attribute(u"id"_s), found);
    QCOMPARE(element.isNull(), found.isEmpty());
    QCOMPARE(file.bytes(), before);
}

void tst_configurationhelpers::findInConfig_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("found");

    QTest::newRow("present") << u"Files"_s << u"files"_s;
    QTest::newRow("lower case") << u"files"_s << QString();
    QTest::newRow("one character short") << u"File"_s << QString();
    QTest::newRow("absent") << u"Dictionary"_s << QString();
    QTest::newRow("the block itself") << u"Config"_s << QString();
    QTest::newRow("no tag") << QString() << QString();
}

void tst_configurationhelpers::findInConfig()
{
    QFETCH(QString, tag);
    QFETCH(QString, found);

    const HelperFile file;
    QCOMPARE(file.findElementInConfigElement(tag).attribute(u"id"_s), found);
    QCOMPARE(file.findElementInConfigElement(tag, file.byId(u"device"_s)).attribute(u"id"_s),
             found);
    QCOMPARE(file.findElementInConfigElement(tag, file.byId(u"config"_s)).attribute(u"id"_s),
             found);
    QVERIFY(file.findElementInConfigElement(tag, file.byId(u"group"_s)).isNull());
}

void tst_configurationhelpers::findWithoutDocument()
{
    const CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.findDeviceElement().isNull());
    QVERIFY(file.findConfigElement().isNull());
    QVERIFY(file.findParamFilesElement().isNull());
    QVERIFY(file.findFilesElement().isNull());
    QVERIFY(file.findPluginsElement().isNull());
    QVERIFY(file.findDescriptionElement().isNull());
    QVERIFY(file.findElementInConfigElement(u"Files"_s).isNull());
    QVERIFY(file.findOpcUAElement().isNull());
    QVERIFY(file.findEtherCatMasterElement().isNull());
}

void tst_configurationhelpers::create()
{
    HelperFile file;
    const QByteArray before = file.bytes();
    const QDomElement device = file.deviceDomElement();
    QCOMPARE(device.attribute(u"id"_s), u"device"_s);
    const QDomElement config = file.configDomElement(device);
    QCOMPARE(config.attribute(u"id"_s), u"config"_s);
    QCOMPARE(file.paramFilesDomElement(config).attribute(u"id"_s), u"params"_s);
    QCOMPARE(file.pluginsDomElement(config).attribute(u"id"_s), u"plugins"_s);
    // The whole document, when no element is given.
    QCOMPARE(file.configDomElement(QDomElement()), config);
    QCOMPARE(file.paramFilesDomElement(QDomElement()).attribute(u"id"_s), u"params"_s);
    QCOMPARE(file.pluginsDomElement(QDomElement()).attribute(u"id"_s), u"plugins"_s);
    // What is there already is not created again.
    QCOMPARE(file.bytes(), before);
}

void tst_configurationhelpers::createFromNothing()
{
    const struct {
        Creator creator;
        QString expected;
    } rows[] = {
        {&CAbstractDeviceConfigurationFile::configDomElement, u"<Device><Config/></Device>"_s},
        {&CAbstractDeviceConfigurationFile::paramFilesDomElement,
         u"<Device><Config><ParameterFiles/></Config></Device>"_s},
        {&CAbstractDeviceConfigurationFile::pluginsDomElement,
         u"<Device><Config><Plugins/></Config></Device>"_s},
    };
    for (const auto &row : rows) {
        CDeviceConfigurationFile10 file(nullptr);
        QVERIFY(file.load("<VornDeviceConfig version=\"1.0\"/>"));
        const QDomElement created = (file.*row.creator)(QDomElement());
        QVERIFY(!created.isNull());
        QCOMPARE(text(file.deviceDomElement()), row.expected);
        QCOMPARE((file.*row.creator)(QDomElement()), created);
        QCOMPARE(text(file.deviceDomElement()), row.expected);
    }
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load("<VornDeviceConfig version=\"1.0\"/>"));
    QVERIFY(file.findDeviceElement().isNull());
    const QDomElement device = file.deviceDomElement();
    QCOMPARE(device, file.findDeviceElement());
    QCOMPARE(text(file.findDeviceElement()), u"<Device/>"_s);
}

void tst_configurationhelpers::createBelowGivenElement()
{
    HelperFile file;
    const QDomElement group = file.byId(u"device of group"_s);
    QCOMPARE(file.configDomElement(group).parentNode().toElement(), group);
    const QDomElement config = file.byId(u"second config"_s);
    QCOMPARE(file.paramFilesDomElement(config).parentNode().toElement(), config);
    QCOMPARE(file.pluginsDomElement(config).parentNode().toElement(), config);
    QCOMPARE(config.childNodes().size(), 2);
}

void tst_configurationhelpers::createWithoutDocument()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.deviceDomElement().isNull());
    QVERIFY(file.configDomElement(QDomElement()).isNull());
    QVERIFY(file.paramFilesDomElement(QDomElement()).isNull());
    QVERIFY(file.pluginsDomElement(QDomElement()).isNull());
}

void tst_configurationhelpers::appendFile()
{
    HelperFile file;
    const QDomElement list = file.byId(u"files"_s);
    file.appendFileElement(sampleFile(), list);
    file.appendFileElement(sampleFile(), list);
    file.appendFileElement(CFileElement(), list);
    const QString entry = u"<File>"_s + QString::fromLatin1(FileContent) + u"</File>"_s;
    QCOMPARE(text(list),
             u"<Files id=\"files\">"_s + entry + entry
                 + u"<File><Name/><Comment/><DeviceDir/><ProjectDir/></File></Files>"_s);
}

void tst_configurationhelpers::appendParamFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("typeText");

    QTest::newRow("parameters") << u"a"_s << 2 << u"VornParameters"_s;
    QTest::newRow("undefined") << u"a"_s << -1 << u"Undefined"_s;
    QTest::newRow("reserved") << u"a"_s << 10 << u"Undefined"_s;
    QTest::newRow("beyond the last") << u"a"_s << 12 << u"Undefined"_s;
    QTest::newRow("no name") << QString() << 2 << QString();
    QTest::newRow("below undefined") << u"a"_s << -2 << QString();
}

void tst_configurationhelpers::appendParamFile()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(QString, typeText);

    HelperFile file;
    const QByteArray before = file.bytes();
    const QDomElement list = file.byId(u"params"_s);
    CParamFileElement paramFile =
        SampleConfiguration::paramFile(name, static_cast<NvrnGlobal::EParamFileType>(type), u"c"_s);
    paramFile.setDevicePath(u"/d/"_s);
    paramFile.setDriveId(3);
    QCOMPARE(paramFile.isValid(), !typeText.isEmpty());
    file.appendParamFileElement(paramFile, list);
    if (typeText.isEmpty()) {
        QCOMPARE(file.bytes(), before);
    } else {
        QCOMPARE(text(list.firstChildElement()),
                 u"<File type=\""_s + typeText + u"\"><Name>"_s + name
                     + u"</Name><Comment>c</Comment></File>"_s);
        QCOMPARE(list.childNodes().size(), 1);
    }
}

void tst_configurationhelpers::appendPlugin()
{
    HelperFile file;
    const QDomElement list = file.byId(u"plugins"_s);
    file.appendPluginElement(SampleConfiguration::plugin(u"n"_s, u"1.2"_s, -3), list);
    file.appendPluginElement(CPluginElement(), list);
    QCOMPARE(text(list),
             u"<Plugins id=\"plugins\">"
             u"<Plugin><Name>n</Name><Version>1.2</Version><Priority>-3</Priority></Plugin>"
             u"<Plugin><Name/><Version/><Priority>-2147483648</Priority></Plugin>"
             u"</Plugins>"_s);
}

void tst_configurationhelpers::appendFileString()
{
    HelperFile file;
    const QDomElement list = file.byId(u"files"_s);
    file.appendFileString(u"a.bit"_s, list);
    file.appendFileString(u"a.bit"_s, list);
    QCOMPARE(text(list),
             u"<Files id=\"files\"><File><Name>a.bit</Name></File>"
             u"<File><Name>a.bit</Name></File></Files>"_s);
}

void tst_configurationhelpers::writersFillInPlace()
{
    HelperFile file;
    const QByteArray old = "<File x=\"1\"><!--c--><Name>old</Name><Other/></File>";
    const QString kept = u"<!--c--><Name>n</Name><Other/>"_s;

    const QDomElement asFile = file.append(old);
    file.appendFileElement(sampleFile(), asFile);
    QCOMPARE(text(asFile),
             u"<File x=\"1\">"_s + kept
                 + u"<Comment>c</Comment><DeviceDir>/d/</DeviceDir><ProjectDir>p/</ProjectDir>"
                   u"</File>"_s);

    const QDomElement asParamFile = file.append("<File>" + old.mid(old.indexOf('>') + 1));
    file.appendParamFileElement(
        SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_PARAMETERS), asParamFile);
    QCOMPARE(text(asParamFile),
             u"<File type=\"VornParameters\">"_s + kept + u"<Comment/></File>"_s);

    const QDomElement asString = file.append(old);
    file.appendFileString(u"n"_s, asString);
    QCOMPARE(text(asString), u"<File x=\"1\">"_s + kept + u"</File>"_s);

    const QDomElement asPlugin = file.append(old);
    file.appendPluginElement(SampleConfiguration::plugin(u"n"_s, u"1"_s, 2), asPlugin);
    QCOMPARE(text(asPlugin),
             u"<File x=\"1\">"_s + kept + u"<Version>1</Version><Priority>2</Priority></File>"_s);

    // An invalid parameter file does not even change what is there.
    const QDomElement untouched = file.append(old);
    file.appendParamFileElement(CParamFileElement(), untouched);
    QCOMPARE(text(untouched), QString::fromLatin1(old));
}

void tst_configurationhelpers::writersIntoNull()
{
    HelperFile file;
    const QByteArray before = file.bytes();
    const QDomElement null;
    file.appendFileElement(sampleFile(), null);
    file.appendParamFileElement(
        SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_PARAMETERS), null);
    file.appendPluginElement(SampleConfiguration::plugin(u"n"_s, u"1"_s, 2), null);
    file.appendFileString(u"n"_s, null);
    file.insertFileElement(sampleFile(), null);
    file.insertParamFileElement(
        SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_PARAMETERS), null);
    file.insertPluginElement(SampleConfiguration::plugin(u"n"_s, u"1"_s, 2), null);
    QCOMPARE(file.bytes(), before);
}

void tst_configurationhelpers::insertFile()
{
    HelperFile file;
    const QDomElement list = file.byId(u"files"_s);
    file.insertFileElement(sampleFile(), list);
    file.insertFileElement(CFileElement(), list);
    QCOMPARE(list.childNodes().size(), 1);

    // The very same file is there already.
    file.insertFileElement(sampleFile(), list);
    QCOMPARE(list.childNodes().size(), 1);

    // The same name is not enough: all four texts count.
    CFileElement other = sampleFile();
    other.setComment(u"other"_s);
    file.insertFileElement(other, list);
    QCOMPARE(list.childNodes().size(), 2);
    QList<CFileElement> files;
    file.fileElements(files, list);
    QVERIFY(files == (QList<CFileElement>{sampleFile(), other}));
}

void tst_configurationhelpers::insertParamFile()
{
    HelperFile file;
    const QDomElement list = file.byId(u"params"_s);
    using SampleConfiguration::paramFile;
    file.insertParamFileElement(paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"1"_s), list);
    file.insertParamFileElement(paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"2"_s), list);
    list.firstChildElement().appendChild(file.domDocument().createElement(u"Other"_s));

    file.insertParamFileElement(paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS, u"3"_s),
                                list);
    QCOMPARE(text(list),
             u"<ParameterFiles id=\"params\">"
             u"<File type=\"VornOemParameters\"><Name>a</Name><Comment>3</Comment><Other/></File>"
             u"<File type=\"VornParameters\"><Name>b</Name><Comment>2</Comment></File>"
             u"</ParameterFiles>"_s);

    // Names are compared exactly.
    file.insertParamFileElement(paramFile(u"A"_s, NvrnGlobal::PARAM_FILE_PARAMETERS), list);
    QCOMPARE(list.childNodes().size(), 3);
}

void tst_configurationhelpers::insertParamFileInvalid()
{
    HelperFile file;
    QDomElement list = file.byId(u"params"_s);
    list.appendChild(file.append("<File type=\"VornParameters\"><Name/></File>"));
    const QByteArray before = file.bytes();
    file.insertParamFileElement(
        SampleConfiguration::paramFile(QString(), NvrnGlobal::PARAM_FILE_OEM_PARAMETERS), list);
    QCOMPARE(file.bytes(), before);
}

void tst_configurationhelpers::insertPlugin()
{
    HelperFile file;
    const QDomElement list = file.byId(u"plugins"_s);
    using SampleConfiguration::plugin;
    file.insertPluginElement(plugin(u"a"_s, u"1"_s, 1), list);
    file.insertPluginElement(plugin(u"b"_s, u"2"_s, 2), list);
    file.insertPluginElement(plugin(u"a"_s, u"3"_s, 3), list);
    QList<CPluginElement> plugins;
    file.pluginElementList(plugins, list);
    QVERIFY(plugins
            == (QList<CPluginElement>{plugin(u"a"_s, u"3"_s, 3), plugin(u"b"_s, u"2"_s, 2)}));
}

void tst_configurationhelpers::setLists()
{
    HelperFile file;
    const QDomElement parent = file.append("<P><A/><Files x=\"1\"><File/></Files><B/></P>");
    file.setFileElements({sampleFile()}, u"Files"_s, parent);
    const QString entry = u"<File>"_s + QString::fromLatin1(FileContent) + u"</File>"_s;
    QCOMPARE(text(parent), u"<P><A/><Files>"_s + entry + u"</Files><B/></P>"_s);
    file.setFileElements({}, u"Files"_s, parent);
    QCOMPARE(text(parent), u"<P><A/><Files/><B/></P>"_s);
    file.setFileElements({sampleFile(), sampleFile()}, u"More"_s, parent);
    QCOMPARE(text(parent), u"<P><A/><Files/><B/><More>"_s + entry + entry + u"</More></P>"_s);

    file.setFileStringList({u"b"_s, u"a"_s}, u"Files"_s, parent);
    QCOMPARE(text(parent.firstChildElement(u"Files"_s)),
             u"<Files><File><Name>b</Name></File><File><Name>a</Name></File></Files>"_s);
    file.setFileStringList({}, u"Names"_s, parent);
    QCOMPARE(parent.lastChildElement().tagName(), u"Names"_s);
}

void tst_configurationhelpers::descriptionElement()
{
    HelperFile file;
    const QDomElement element = file.append("<Description x=\"1\"><Other/></Description>");
    file.setDescriptionElement(SampleConfiguration::description(), element);
    CDescriptionElement read;
    file.descriptionElement(read, element);
    QVERIFY(read == SampleConfiguration::description());
    QCOMPARE(element.firstChildElement().tagName(), u"Other"_s);
    QVERIFY(element.hasAttribute(u"x"_s));

    // Of any other element a default description is read.
    file.descriptionElement(read, file.append("<description><Name>n</Name></description>"));
    QVERIFY(read == CDescriptionElement());
    read = SampleConfiguration::description();
    file.descriptionElement(read, QDomElement());
    QVERIFY(read == CDescriptionElement());
}

void tst_configurationhelpers::deviceElementOfOtherTag()
{
    HelperFile file;
    CDeviceElement device = SampleConfiguration::device();
    file.deviceElement(device, file.append("<device><Name>n</Name></device>"));
    QVERIFY(device.isNull());
    device = SampleConfiguration::device();
    file.deviceElement(device, QDomElement());
    QVERIFY(device.isNull());

    file.setDeviceElement(SampleConfiguration::device(), file.append("<Device/>"));
    file.deviceElement(device, file.root().lastChildElement());
    QVERIFY(device == SampleConfiguration::device());
}

void tst_configurationhelpers::buildersIntoNull_data()
{
    QTest::addColumn<QString>("builder");

    for (const char *const builder :
         {"file list", "name list", "parameter file list", "plug-in list", "new sub-device",
          "sub-device", "device", "description"}) {
        QTest::newRow(builder) << QString::fromLatin1(builder);
    }
}

void tst_configurationhelpers::buildersIntoNull()
{
    QFETCH(QString, builder);

    // What has no place in a document is not built at all, least of all somewhere else in it.
    HelperFile file;
    const QByteArray before = file.bytes();
    const QDomElement null;
    if (builder == u"file list"_s) {
        file.setFileElements({sampleFile()}, u"Files"_s, null);
    } else if (builder == u"name list"_s) {
        file.setFileStringList({u"n"_s}, u"Files"_s, null);
    } else if (builder == u"parameter file list"_s) {
        file.setParamFileElementList(SampleConfiguration::paramFiles(), null);
    } else if (builder == u"plug-in list"_s) {
        file.setPluginElementList(SampleConfiguration::plugins(), null);
    } else if (builder == u"new sub-device"_s) {
        QVERIFY(file.createSubDeviceDomElement(null).isNull());
    } else if (builder == u"sub-device"_s) {
        file.appendSubDeviceElement(SampleConfiguration::kd2SubDevice(), null);
    } else if (builder == u"device"_s) {
        file.setDeviceElement(SampleConfiguration::device(), null);
    } else {
        file.setDescriptionElement(SampleConfiguration::description(), null);
    }
    QCOMPARE(file.bytes(), before);
}

QTEST_GUILESS_MAIN(tst_configurationhelpers)
#include "tst_configurationhelpers.moc"
