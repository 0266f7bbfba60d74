#include "configfile/CDeviceConfigurationFile10.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"
#include "vocabulary/NVornXmlTags.h"

#include <QtTest>

#include <limits>
#include <memory>

Q_DECLARE_METATYPE(NvrnGlobal::EParamFileType)
Q_DECLARE_METATYPE(NDeviceConf::EDeviceClass)

namespace {

/** The finders have one shape, so that one test can ask all of them. */
using Finder = QDomElement (CAbstractDeviceConfigurationFile::*)(const QDomElement &) const;
using Creator = QDomElement (CAbstractDeviceConfigurationFile::*)(QDomElement);

const QByteArray Document = "<VornDeviceConfig version=\"1.0\">"
                            "<Description id=\"description\"/>"
                            "<Device id=\"device\">"
                            "<Config id=\"config\">"
                            "<ParameterFiles id=\"params\"/>"
                            "<Files id=\"files\"/>"
                            "<Plugins id=\"plugins\"/>"
                            "<OpcUa id=\"opcua\"/>"
                            "<EtherCatMaster id=\"ethercat\"/>"
                            "</Config>"
                            "<Config id=\"second config\"/>"
                            "</Device>"
                            "<Device id=\"second device\">"
                            "<Config id=\"config of second\">"
                            "<ParameterFiles id=\"params of second\"/>"
                            "<Files id=\"files of second\"/>"
                            "<Plugins id=\"plugins of second\"/>"
                            "<OpcUa id=\"opcua of second\"/>"
                            "<EtherCatMaster id=\"ethercat of second\"/>"
                            "</Config>"
                            "</Device>"
                            "<Group id=\"group\">"
                            "<Device id=\"device of group\"/>"
                            "<Description id=\"description of group\"/>"
                            "</Group>"
                            "</VornDeviceConfig>";

/** A file with the document above. */
class HelperFile : public CDeviceConfigurationFile10
{
public:
    HelperFile() : CDeviceConfigurationFile10(nullptr) { load(Document); }

    QDomElement root() const { return domDocument().documentElement(); }

    QDomElement byId(const QString &id) const { return byId(id, root()); }

    QByteArray bytes()
    {
        QByteArray result;
        QString error;
        return save(result, error) ? result : QByteArray();
    }

    /** A new element with that content, at the end of the root. */
    QDomElement append(const QByteArray &xml)
    {
        QDomDocument fragment;
        fragment.setContent(xml);
        return root()
            .appendChild(domDocument().importNode(fragment.documentElement(), true))
            .toElement();
    }

private:
    static QDomElement byId(const QString &id, const QDomElement &element)
    {
        if (element.attribute(u"id"_s) == id) {
            return element;
        }
        QDomElement found;
        for (QDomElement e = element.firstChildElement(); !e.isNull() && found.isNull();
             e = e.nextSiblingElement()) {
            found = byId(id, e);
        }
        return found;
    }
};

/** An element and what is in it, on one line. */
QString text(const QDomElement &element)
{
    QString result;
    QTextStream stream(&result);
    element.save(stream, -1);
    return result.remove(QLatin1Char('\n'));
}

const char *const FileContent = "<Name>n</Name><Comment>c</Comment>"
                                "<DeviceDir>/d/</DeviceDir><ProjectDir>p/</ProjectDir>";

CFileElement sampleFile()
{
    return SampleConfiguration::file(u"n"_s, u"c"_s, u"/d/"_s, u"p/"_s);
}

} // namespace

class tst_ConfigurationHelpers : public QObject
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

    void readFile_data();
    void readFile();
    void readParamFile();
    void readPlugin_data();
    void readPlugin();
    void readLists();
    void readListsOfNull();
    void setLists();

    void typeToStr_data();
    void typeToStr();
    void strToType_data();
    void strToType();
    void deviceClassToStr_data();
    void deviceClassToStr();
    void strToDeviceClass_data();
    void strToDeviceClass();

    void descriptionElement();
    void deviceElementOfOtherTag();

    void buildersIntoNull_data();
    void buildersIntoNull();
};

void tst_ConfigurationHelpers::factory()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(dynamic_cast<CDeviceConfigurationFile10 *>(file.get()) != nullptr);
    const std::unique_ptr<ICDeviceConfigurationFile> other(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file != other);
    QCOMPARE(ICDeviceConfigurationFile::defaultFileName(), u"DeviceConfiguration.3deco"_s);
}

void tst_ConfigurationHelpers::find_data()
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

void tst_ConfigurationHelpers::find()
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

void tst_ConfigurationHelpers::findInConfig_data()
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

void tst_ConfigurationHelpers::findInConfig()
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

void tst_ConfigurationHelpers::findWithoutDocument()
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

void tst_ConfigurationHelpers::create()
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

void tst_ConfigurationHelpers::createFromNothing()
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

void tst_ConfigurationHelpers::createBelowGivenElement()
{
    HelperFile file;
    const QDomElement group = file.byId(u"device of group"_s);
    QCOMPARE(file.configDomElement(group).parentNode().toElement(), group);
    const QDomElement config = file.byId(u"second config"_s);
    QCOMPARE(file.paramFilesDomElement(config).parentNode().toElement(), config);
    QCOMPARE(file.pluginsDomElement(config).parentNode().toElement(), config);
    QCOMPARE(config.childNodes().size(), 2);
}

void tst_ConfigurationHelpers::createWithoutDocument()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.deviceDomElement().isNull());
    QVERIFY(file.configDomElement(QDomElement()).isNull());
    QVERIFY(file.paramFilesDomElement(QDomElement()).isNull());
    QVERIFY(file.pluginsDomElement(QDomElement()).isNull());
}

void tst_ConfigurationHelpers::appendFile()
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

void tst_ConfigurationHelpers::appendParamFile_data()
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

void tst_ConfigurationHelpers::appendParamFile()
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

void tst_ConfigurationHelpers::appendPlugin()
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

void tst_ConfigurationHelpers::appendFileString()
{
    HelperFile file;
    const QDomElement list = file.byId(u"files"_s);
    file.appendFileString(u"a.bit"_s, list);
    file.appendFileString(u"a.bit"_s, list);
    QCOMPARE(text(list),
             u"<Files id=\"files\"><File><Name>a.bit</Name></File>"
             u"<File><Name>a.bit</Name></File></Files>"_s);
}

void tst_ConfigurationHelpers::writersFillInPlace()
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

void tst_ConfigurationHelpers::writersIntoNull()
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

void tst_ConfigurationHelpers::insertFile()
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

void tst_ConfigurationHelpers::insertParamFile()
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

void tst_ConfigurationHelpers::insertParamFileInvalid()
{
    HelperFile file;
    QDomElement list = file.byId(u"params"_s);
    list.appendChild(file.append("<File type=\"VornParameters\"><Name/></File>"));
    const QByteArray before = file.bytes();
    file.insertParamFileElement(
        SampleConfiguration::paramFile(QString(), NvrnGlobal::PARAM_FILE_OEM_PARAMETERS), list);
    QCOMPARE(file.bytes(), before);
}

void tst_ConfigurationHelpers::insertPlugin()
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

void tst_ConfigurationHelpers::readFile_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("devicePath");

    QTest::newRow("whole") << QByteArray("<File><Name>n</Name><DeviceDir>/d/</DeviceDir></File>")
                           << u"n"_s << u"/d/"_s;
    QTest::newRow("directory without separators")
        << QByteArray("<File><DeviceDir>d\\e</DeviceDir></File>") << QString() << u"/d/e/"_s;
    QTest::newRow("name alone") << QByteArray("<File><Name>n</Name></File>") << u"n"_s << QString();
    QTest::newRow("no child nodes") << QByteArray("<File type=\"a\"/>") << QString() << QString();
    QTest::newRow("other children")
        << QByteArray("<File><A>n</A></File>") << QString() << QString();
    QTest::newRow("other tag") << QByteArray("<Plugin><Name>n</Name></Plugin>") << QString()
                               << QString();
    QTest::newRow("lower case") << QByteArray("<file><Name>n</Name></file>") << QString()
                                << QString();
}

void tst_ConfigurationHelpers::readFile()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, name);
    QFETCH(QString, devicePath);

    HelperFile file;
    const QDomElement element = file.append(xml);
    CFileElement read = sampleFile();
    file.fileElement(read, element);
    QVERIFY(read == SampleConfiguration::file(name, QString(), devicePath, QString()));
    QString readName = u"before"_s;
    file.fileString(readName, element);
    QCOMPARE(readName, name);

    file.fileElement(read, QDomElement());
    QVERIFY(read.isNull());
    file.fileString(readName, QDomElement());
    QVERIFY(readName.isEmpty());
}

void tst_ConfigurationHelpers::readParamFile()
{
    HelperFile file;
    CParamFileElement read = SampleConfiguration::paramFiles().constFirst();
    read.setDriveId(4);
    read.setDevicePath(u"/d/"_s);
    file.paramFileElement(
        read,
        file.append("<File type=\"KC2Parameters\"><Name>n</Name><Comment>c</Comment></File>"));
    // What the document does not carry is not left over from before.
    QVERIFY(read == SampleConfiguration::paramFile(u"n"_s, NvrnGlobal::PARAM_FILE_KC2_PARAMETERS));
    QCOMPARE(read.comment(), u"c"_s);

    for (const QByteArray &xml : {QByteArray("<File type=\"KC2Parameters\"/>"),
                                  QByteArray("<Plugin><Name>n</Name></Plugin>"),
                                  QByteArray("<file><Name>n</Name></file>")}) {
        read = SampleConfiguration::paramFiles().constFirst();
        file.paramFileElement(read, file.append(xml));
        QVERIFY2(read.isNull(), xml.constData());
    }
    read = SampleConfiguration::paramFiles().constFirst();
    file.paramFileElement(read, QDomElement());
    QVERIFY(read.isNull());
}

void tst_ConfigurationHelpers::readPlugin_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("priority");

    const int notSet = std::numeric_limits<int>::min();
    QTest::newRow("whole") << QByteArray("<Plugin><Name>n</Name><Priority>3</Priority></Plugin>")
                           << u"n"_s << 3;
    QTest::newRow("name alone") << QByteArray("<Plugin><Name>n</Name></Plugin>") << u"n"_s
                                << notSet;
    QTest::newRow("no child nodes") << QByteArray("<Plugin Name=\"n\"/>") << QString() << notSet;
    QTest::newRow("file") << QByteArray("<File><Name>n</Name></File>") << QString() << notSet;
    QTest::newRow("lower case") << QByteArray("<plugin><Name>n</Name></plugin>") << QString()
                                << notSet;
}

void tst_ConfigurationHelpers::readPlugin()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, name);
    QFETCH(int, priority);

    HelperFile file;
    CPluginElement read = SampleConfiguration::plugins().constFirst();
    file.pluginElement(read, file.append(xml));
    QVERIFY(read == SampleConfiguration::plugin(name, QString(), priority));
    file.pluginElement(read, QDomElement());
    QVERIFY(read.isNull());
}

void tst_ConfigurationHelpers::readLists()
{
    HelperFile file;
    const QDomElement list = file.append("<Files>"
                                         "<File><Name>a</Name></File>"
                                         "<Other><File><Name>no</Name></File></Other>"
                                         "<File/>"
                                         "<!--c-->"
                                         "<File><Name/></File>"
                                         "<file><Name>no</Name></file>"
                                         "<File><Name>b</Name></File>"
                                         "</Files>");
    QList<CFileElement> files = {sampleFile()};
    file.fileElements(files, list);
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.at(0).fileName(), u"a"_s);
    QCOMPARE(files.at(1).fileName(), u"b"_s);

    QStringList names = {u"before"_s};
    file.fileStrings(names, list);
    QCOMPARE(names, (QStringList{u"a"_s, QString(), QString(), u"b"_s}));
}

void tst_ConfigurationHelpers::readListsOfNull()
{
    const HelperFile file;
    QList<CFileElement> files = {sampleFile()};
    file.fileElements(files, QDomElement());
    QVERIFY(files.isEmpty());
    QStringList names = {u"before"_s};
    file.fileStrings(names, QDomElement());
    QVERIFY(names.isEmpty());
    QList<CParamFileElement> paramFiles = SampleConfiguration::paramFiles();
    file.paramFileElementList(paramFiles, QDomElement());
    QVERIFY(paramFiles.isEmpty());
    QList<CPluginElement> plugins = SampleConfiguration::plugins();
    file.pluginElementList(plugins, QDomElement());
    QVERIFY(plugins.isEmpty());
    QList<CSubDeviceElement> subDevices = {SampleConfiguration::kd2SubDevice()};
    file.subDeviceElements(subDevices, QDomElement());
    QVERIFY(subDevices.isEmpty());
}

void tst_ConfigurationHelpers::setLists()
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

void tst_ConfigurationHelpers::typeToStr_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << -1 << u"Undefined"_s;
    QTest::newRow("KC2 parameters") << 0 << u"KC2Parameters"_s;
    QTest::newRow("KC2 compensation") << 1 << u"KC2Compensation"_s;
    QTest::newRow("parameters") << 2 << u"VornParameters"_s;
    QTest::newRow("configuration parameters") << 3 << u"VornConfigParams"_s;
    QTest::newRow("device data base") << 4 << u"VornDeviceDatabase"_s;
    QTest::newRow("plug-in parameters") << 5 << u"VornPluginParameters"_s;
    QTest::newRow("firmware data base") << 6 << u"VornFirmwareDataBase"_s;
    QTest::newRow("logic data base") << 7 << u"VornLogicDataBase"_s;
    QTest::newRow("OEM parameters") << 8 << u"VornOemParameters"_s;
    QTest::newRow("motor parameters") << 9 << u"VornMotorParameters"_s;
    QTest::newRow("reserved") << 10 << u"Undefined"_s;
    QTest::newRow("option module data base") << 11 << u"VornOptionModulDatabase"_s;
    QTest::newRow("beyond the last") << 12 << u"Undefined"_s;
    QTest::newRow("below undefined") << -2 << u"Undefined"_s;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << u"Undefined"_s;
}

void tst_ConfigurationHelpers::typeToStr()
{
    QFETCH(int, type);
    const HelperFile file;
    QTEST(file.typeToStr(static_cast<NvrnGlobal::EParamFileType>(type)), "text");
}

void tst_ConfigurationHelpers::strToType_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");

    QTest::newRow("undefined") << u"Undefined"_s << -1;
    QTest::newRow("KC2 parameters") << u"KC2Parameters"_s << 0;
    QTest::newRow("KC2 compensation") << u"KC2Compensation"_s << 1;
    QTest::newRow("parameters") << u"VornParameters"_s << 2;
    QTest::newRow("configuration parameters") << u"VornConfigParams"_s << 3;
    QTest::newRow("device data base") << u"VornDeviceDatabase"_s << 4;
    QTest::newRow("plug-in parameters") << u"VornPluginParameters"_s << 5;
    QTest::newRow("firmware data base") << u"VornFirmwareDataBase"_s << 6;
    QTest::newRow("logic data base") << u"VornLogicDataBase"_s << 7;
    QTest::newRow("OEM parameters") << u"VornOemParameters"_s << 8;
    QTest::newRow("motor parameters") << u"VornMotorParameters"_s << 9;
    QTest::newRow("option module data base") << u"VornOptionModulDatabase"_s << 11;
    QTest::newRow("undefined in lower case") << u"undefined"_s << -1;
    QTest::newRow("parameters in lower case") << u"vornparameters"_s << -1;
    QTest::newRow("one character short") << u"VornParameter"_s << -1;
    QTest::newRow("one character more") << u"KC2Parameters2"_s << -1;
    QTest::newRow("blank behind") << u"KC2Parameters "_s << -1;
    QTest::newRow("number") << u"2"_s << -1;
    QTest::newRow("empty") << u""_s << -1;
    QTest::newRow("null") << QString() << -1;
}

void tst_ConfigurationHelpers::strToType()
{
    QFETCH(QString, text);
    const HelperFile file;
    QTEST(static_cast<int>(file.strToType(text)), "type");
}

void tst_ConfigurationHelpers::deviceClassToStr_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << 0 << u"Undefined"_s;
    QTest::newRow("kc2") << 1 << u"kc2"_s;
    QTest::newRow("kd3") << 2 << u"kd3"_s;
    QTest::newRow("beyond the last") << 3 << u"Undefined"_s;
    QTest::newRow("negative") << -1 << u"Undefined"_s;
}

void tst_ConfigurationHelpers::deviceClassToStr()
{
    QFETCH(int, number);
    const HelperFile file;
    QTEST(file.deviceClassToStr(static_cast<NDeviceConf::EDeviceClass>(number)), "text");
}

void tst_ConfigurationHelpers::strToDeviceClass_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("undefined") << u"Undefined"_s << 0;
    QTest::newRow("kc2") << u"kc2"_s << 1;
    QTest::newRow("kd3") << u"kd3"_s << 2;
    QTest::newRow("KC2 in upper case") << u"KC2"_s << 0;
    QTest::newRow("KD3 in upper case") << u"KD3"_s << 0;
    QTest::newRow("one character short") << u"kd"_s << 0;
    QTest::newRow("blank in front") << u" kd3"_s << 0;
    QTest::newRow("number") << u"2"_s << 0;
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("null") << QString() << 0;
}

void tst_ConfigurationHelpers::strToDeviceClass()
{
    QFETCH(QString, text);
    const HelperFile file;
    QTEST(static_cast<int>(file.strToDeviceClass(text)), "number");
}

void tst_ConfigurationHelpers::descriptionElement()
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

void tst_ConfigurationHelpers::deviceElementOfOtherTag()
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

void tst_ConfigurationHelpers::buildersIntoNull_data()
{
    QTest::addColumn<QString>("builder");

    for (const char *const builder :
         {"file list", "name list", "parameter file list", "plug-in list", "new sub-device",
          "sub-device", "device", "description"}) {
        QTest::newRow(builder) << QString::fromLatin1(builder);
    }
}

void tst_ConfigurationHelpers::buildersIntoNull()
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

REGISTER_GUILESS_TEST(tst_ConfigurationHelpers)
#include "tst_configurationhelpers.moc"
