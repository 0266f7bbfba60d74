#include "support/HelperFiles.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"
#include "vocabulary/NVornXmlTags.h"

#include <QtTest>

#include <limits>

using namespace HelperFiles;

Q_DECLARE_METATYPE(NvrnGlobal::EParamFileType)
Q_DECLARE_METATYPE(NDeviceConf::EDeviceClass)

/** What the helpers read, and the texts for types and classes. */
class tst_configurationhelpers_reading : public QObject
{
    Q_OBJECT

private slots:
    void readFile_data();
    void readFile();
    void readParamFile();
    void readPlugin_data();
    void readPlugin();
    void readLists();
    void readListsOfNull();

    void typeToStr_data();
    void typeToStr();
    void strToType_data();
    void strToType();
    void deviceClassToStr_data();
    void deviceClassToStr();
    void strToDeviceClass_data();
    void strToDeviceClass();
};

void tst_configurationhelpers_reading::readFile_data()
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

void tst_configurationhelpers_reading::readFile()
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

void tst_configurationhelpers_reading::readParamFile()
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

void tst_configurationhelpers_reading::readPlugin_data()
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

void tst_configurationhelpers_reading::readPlugin()
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

void tst_configurationhelpers_reading::readLists()
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

    // At any depth, and with those in which nothing is.
    QList<CParamFileElement> paramFiles = SampleConfiguration::paramFiles();
    file.paramFileElementList(paramFiles, list);
    names.clear();
    for (const CParamFileElement &paramFile : qAsConst(paramFiles)) {
        names << paramFile.name();
    }
    QCOMPARE(names, (QStringList{u"a"_s, u"no"_s, QString(), QString(), u"b"_s}));
}

void tst_configurationhelpers_reading::readListsOfNull()
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

void tst_configurationhelpers_reading::typeToStr_data()
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

void tst_configurationhelpers_reading::typeToStr()
{
    QFETCH(int, type);
    const HelperFile file;
    QTEST(file.typeToStr(static_cast<NvrnGlobal::EParamFileType>(type)), "text");
}

void tst_configurationhelpers_reading::strToType_data()
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

void tst_configurationhelpers_reading::strToType()
{
    QFETCH(QString, text);
    const HelperFile file;
    QTEST(static_cast<int>(file.strToType(text)), "type");
}

void tst_configurationhelpers_reading::deviceClassToStr_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << 0 << u"Undefined"_s;
    QTest::newRow("kc2") << 1 << u"kc2"_s;
    QTest::newRow("kd3") << 2 << u"kd3"_s;
    QTest::newRow("beyond the last") << 3 << u"Undefined"_s;
    QTest::newRow("negative") << -1 << u"Undefined"_s;
}

void tst_configurationhelpers_reading::deviceClassToStr()
{
    QFETCH(int, number);
    const HelperFile file;
    QTEST(file.deviceClassToStr(static_cast<NDeviceConf::EDeviceClass>(number)), "text");
}

void tst_configurationhelpers_reading::strToDeviceClass_data()
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

void tst_configurationhelpers_reading::strToDeviceClass()
{
    QFETCH(QString, text);
    const HelperFile file;
    QTEST(static_cast<int>(file.strToDeviceClass(text)), "number");
}

REGISTER_GUILESS_TEST(tst_configurationhelpers_reading)
#include "tst_configurationhelpers_reading.moc"
