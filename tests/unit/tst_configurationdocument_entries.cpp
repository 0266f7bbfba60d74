#include "configfile/CDeviceConfigurationFile10.h"
#include "support/ConfigurationTexts.h"
#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <limits>

using namespace ConfigurationTexts;

namespace {

using File = CDeviceConfigurationFile10;
using FileSetter = bool (File::*)(const CFileElement &);
using FileGetter = CFileElement (File::*)() const;

} // namespace

Q_DECLARE_METATYPE(FileSetter)
Q_DECLARE_METATYPE(FileGetter)

/** Files, plug-ins and drives in the document. */
class tst_configurationdocument_entries : public QObject
{
    Q_OBJECT

private slots:
    void paramFileTypes_data();
    void paramFileTypes();
    void entriesAtAnyDepth();
    void emptyEntries();
    void emptyParamFiles();
    void entryNames_data();
    void entryNames();
    void singleFileHolders_data();
    void singleFileHolders();
    void singleFilesOfNull_data();
    void singleFilesOfNull();
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
};

void tst_configurationdocument_entries::paramFileTypes_data()
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

void tst_configurationdocument_entries::paramFileTypes()
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

void tst_configurationdocument_entries::entriesAtAnyDepth()
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

void tst_configurationdocument_entries::emptyEntries()
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

void tst_configurationdocument_entries::emptyParamFiles()
{
    // Each entry is one in the list, whatever is in it; a type alone is none.
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <ParameterFiles>\n    <File/>\n"
                                     "    <File type=\"VornParameters\"/>\n"
                                     "    <File>\n     <Name>a</Name>\n    </File>\n"
                                     "    <File type=\"x\">\n     <Name/>\n    </File>\n"
                                     "   </ParameterFiles>\n")));
    const CParamFileElement null;
    const CParamFileElement named =
        SampleConfiguration::paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_UNDEFINED);
    const QList<CParamFileElement> expected = {null, null, named, null};
    QVERIFY(file.paramFiles() == expected);
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QVERIFY(device.parameterFiles() == expected);
    // They are no files.
    QVERIFY(!file.containsParamFile(null));
    QVERIFY(!device.parameterFiles(NvrnDeviceCore::DEVICE_FILE_PARAMETER).isEmpty());
    for (const CFileElement &placed :
         device.parameterFiles(NvrnDeviceCore::DEVICE_FILE_PARAMETER)) {
        QVERIFY(placed.fileName().startsWith(u"a."_s));
    }
    // A list that is written leaves them out, as it leaves out all invalid ones.
    QVERIFY(file.setParamFiles(file.paramFiles()));
    QVERIFY(file.paramFiles() == QList<CParamFileElement>{named});
}

void tst_configurationdocument_entries::entryNames_data()
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

void tst_configurationdocument_entries::entryNames()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, fileName);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(configDocument("   <Dictionary>" + entry + "</Dictionary>\n   <Files>" + entry
                                     + "</Files>\n")));
    QCOMPARE(file.odictFile().fileName(), fileName);
    QCOMPARE(file.additionalFiles().value(0).fileName(), fileName);
}

void tst_configurationdocument_entries::singleFileHolders_data()
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
        << QByteArray("    <A/>\n" + written);
    QTest::newRow("type and other content in the entry")
        << QByteArray("    <!--c-->\n    <File type=\"x\">\n     <!--old-->\n     <Size>3</Size>\n"
                      "     <Name b=\"1\">x</Name>\n    </File>\n    <A b=\"2\"/>\n")
        << QByteArray("    <!--c-->\n    <A b=\"2\"/>\n" + written);
}

void tst_configurationdocument_entries::singleFileHolders()
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

void tst_configurationdocument_entries::singleFilesOfNull_data()
{
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<FileSetter>("set");
    QTest::addColumn<FileGetter>("get");

    QTest::newRow("object dictionary")
        << QByteArray("Dictionary") << FileSetter(&File::setOdictFile)
        << FileGetter(&File::odictFile);
    QTest::newRow("fault texts") << QByteArray("FaultTextFile")
                                 << FileSetter(&File::setFaultTextFile)
                                 << FileGetter(&File::faultTextFile);
    QTest::newRow("EtherCAT master")
        << QByteArray("EtherCatMaster") << FileSetter(&File::setEtherCatMasterFile)
        << FileGetter(&File::etherCatMasterFile);
}

void tst_configurationdocument_entries::singleFilesOfNull()
{
    QFETCH(QByteArray, tag);
    QFETCH(FileSetter, set);
    QFETCH(FileGetter, get);

    const QByteArray empty = "    <File>\n     <Name/>\n     <Comment/>\n     <DeviceDir/>\n"
                             "     <ProjectDir/>\n    </File>\n";
    const auto holder = [&tag](const QByteArray &content) {
        return configDocument("   <" + tag + ">\n" + content + "   </" + tag + ">\n");
    };
    const struct {
        QByteArray before;
        QByteArray after;
    } rows[] = {
        {document(""), holder(empty)},
        {configDocument(""), holder(empty)},
        {holder("    <File type=\"x\">\n     <Name>a</Name>\n    </File>\n    <A/>\n"),
         holder("    <A/>\n" + empty)},
        {holder(empty), holder(empty)},
    };
    for (const auto &row : rows) {
        CDeviceConfigurationFile10 file(nullptr);
        QVERIFY(file.load(row.before));
        QVERIFY((file.*set)(CFileElement()));
        QCOMPARE(bytesOf(file), row.after);
        QVERIFY((file.*get)().isNull());
        CDeviceElement device;
        QVERIFY(file.configuration(device));
        QVERIFY(device.isNull());
    }
}

void tst_configurationdocument_entries::pluginPriority_data()
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

void tst_configurationdocument_entries::pluginPriority()
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

void tst_configurationdocument_entries::subDeviceType_data()
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

void tst_configurationdocument_entries::subDeviceType()
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

void tst_configurationdocument_entries::unknownTypeIsWrittenFirst()
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

void tst_configurationdocument_entries::subDeviceOrder()
{
    CDeviceElement device;
    CSubDeviceKD3Element subDevice;
    for (const int id : {200, 3, 254, 0}) {
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
    QCOMPARE(numbers, (QStringList{u"0"_s, u"3"_s, u"200"_s, u"254"_s}));
    CDeviceElement back;
    QVERIFY(file.configuration(back));
    QVERIFY(back == device);
}

void tst_configurationdocument_entries::driveNumbers_data()
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
    QTest::newRow("none") << QStringList{u"255"_s} << u"0"_s << 1;
    QTest::newRow("none, with zeros in front") << QStringList{u"0255"_s} << u"0"_s << 1;
    QTest::newRow("none, several times") << QStringList{u"255"_s, u"255"_s} << u"0 1"_s << 2;
    QTest::newRow("none, before given ones")
        << QStringList{u"255"_s, u"0"_s, u"7"_s} << u"8 0 7"_s << 1;
    QTest::newRow("none, with the highest") << QStringList{u"254"_s, u"255"_s} << u"254 0"_s << 1;
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

void tst_configurationdocument_entries::driveNumbers()
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

    // Another drive takes the place of none.
    CDeviceElement larger = device;
    larger.insertSubDevice(CSubDeviceElement(CSubDeviceKD3Element()));
    QCOMPARE(larger.subDeviceCount(), texts.size() + 1);
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QVERIFY(larger.subDevice(subDevice.driveId()) == subDevice);
    }
}

void tst_configurationdocument_entries::tooManySubDevices()
{
    QByteArray content;
    for (int i = 0; i < 258; ++i) {
        content +=
            "  <SubDevice>\n   <Name>s" + QByteArray::number(i) + "</Name>\n  </SubDevice>\n";
    }
    const MessageCatcher catcher;
    const CDeviceElement device = deviceIn(deviceDocument(content));
    QCOMPARE(device.subDeviceCount(), 255);
    QCOMPARE(device.subDevice(0).name(), u"s0"_s);
    QCOMPARE(device.subDevice(254).name(), u"s254"_s);
    QCOMPARE(catcher.warnings().size(), 258);
    QVERIFY(catcher.warnings().at(255).contains(u"'s255'"_s));
    QVERIFY(catcher.warnings().at(256).contains(u"'s256'"_s));
    QVERIFY(catcher.warnings().at(257).contains(u"'s257'"_s));
}

void tst_configurationdocument_entries::subDeviceNamesInWarnings_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"Feed"_s;
    QTest::newRow("first place marker") << u"Feed %1"_s;
    QTest::newRow("second place marker") << u"Feed %2"_s;
    QTest::newRow("quotes") << u"'Feed'"_s;
}

void tst_configurationdocument_entries::subDeviceNamesInWarnings()
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

void tst_configurationdocument_entries::busId_data()
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

void tst_configurationdocument_entries::busId()
{
    QFETCH(QByteArray, text);
    QTEST(deviceIn(deviceDocument("  <SubDevice>\n   <DriveNo>0</DriveNo>\n   <BusId>" + text
                                  + "</BusId>\n  </SubDevice>\n"))
              .subDevice(0)
              .busId(),
          "busId");
}

void tst_configurationdocument_entries::subDeviceIdentity()
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

REGISTER_GUILESS_TEST(tst_configurationdocument_entries)
#include "tst_configurationdocument_entries.moc"
