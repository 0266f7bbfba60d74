#include "commissioning/CConfigurationItems.h"
#include "support/Files.h"
#include "support/ItemDocuments.h"
#include "support/Literals.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace ItemDocuments;

/** How entries are renamed, added and removed. */
class tst_cconfigurationitems_entries : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void rename_data();
    void rename();
    void renamedEntryIsFoundUnderItsNewName();

    void add_data();
    void add();
    void addToNothing_data();
    void addToNothing();
    void addedDriveIsAsAnInsertedOne_data();
    void addedDriveIsAsAnInsertedOne();
    void remove_data();
    void remove();
    void removeASingleFileOfSeveral();
    void optionsKeepTheirBlanks_data();
    void optionsKeepTheirBlanks();

    void failuresChangeNothing_data();
    void failuresChangeNothing();

private:
    QByteArray m_sample;
};

void tst_cconfigurationitems_entries::initTestCase()
{
    m_sample = sampleDocument();
    SOpened opened(m_sample);
    QVERIFY(opened.isOpen);
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_cconfigurationitems_entries::rename_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("errorText");

    const auto row = [](const QString &path, const QString &value, const QString &errorText) {
        QTest::newRow(qPrintable(path + u" to '"_s + value + u"'"_s)) << path << value << errorText;
    };
    const QString file = u"files[recipes.csv].name"_s;
    const QString drive = u"drive[1].driveNo"_s;
    const QString option = u"device.options[-trace].name"_s;
    row(file, u"new ].csv"_s, QString());
    row(file, QString(), u"files[recipes.csv].name: The name is empty. Expected: a name."_s);
    row(u"device.parameterFiles[options].name"_s, u"Other"_s, QString());
    row(u"device.parameterFiles[options].name"_s, u"LineParams"_s,
        u"device.parameterFiles[LineParams]: the parameter file already exists"_s);
    row(u"device.fpgaFiles[kd3_motion_v11.bit].name"_s, u"x.bit"_s, QString());
    row(u"device.fpgaFiles[kd3_motion_v11.bit].name"_s, u"kd3_motion_v12.bit"_s,
        u"device.fpgaFiles[kd3_motion_v12.bit]: the FPGA image already exists"_s);
    row(u"device.opcUaFiles[kd3NodeSet.xml].name"_s, u"x.xml"_s, QString());
    row(u"device.opcUaFiles[kd3NodeSet.xml].name"_s, u"kd3SubSystem.xml"_s,
        u"device.opcUaFiles[kd3SubSystem.xml]: the OPC UA file already exists"_s);
    row(u"device.plugins[motion].name"_s, u"m"_s, QString());
    row(u"device.plugins[motion].name"_s, u"CECatMaster"_s,
        u"device.plugins[CECatMaster]: the plug-in already exists"_s);
    row(option, u"-t"_s, QString());
    row(option, u"-opc"_s, u"device.options[-opc]: the option already exists"_s);
    for (const QString &value : {u"t"_s, u"-"_s, u"-a b"_s, u""_s, u"-a\t"_s}) {
        row(option, value,
            option
                + u": '%1' is not a valid start option. Expected: a word that begins with '-'."_s
                      .arg(value));
    }
    row(drive, u"1"_s, QString());
    row(drive, u"3"_s, QString());
    row(drive, u"254"_s, QString());
    row(drive, u"2"_s, u"drive[2]: the drive already exists"_s);
    for (const QString &value : {u"255"_s, u"-1"_s, u""_s, u"03"_s, u"x"_s, u" 3"_s}) {
        row(drive, value,
            drive
                + u": '%1' is not a valid drive number. Expected: a number from 0 to 254."_s.arg(
                    value));
    }
}

void tst_cconfigurationitems_entries::rename()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    QFETCH(QString, errorText);
    SOpened opened(m_sample);
    const QString before = opened.value(path);
    const bool isSet = opened.items.setValue(path, value);
    QCOMPARE(opened.items.errorText(), errorText);
    QCOMPARE(isSet, errorText.isEmpty());
    if (!isSet || before == value) {
        QCOMPARE(opened.bytes(), m_sample);
        return;
    }
    const SDifference difference(m_sample, opened.bytes());
    QCOMPARE(difference.removed.size(), 1);
    QCOMPARE(difference.added.size(), 1);
    QVERIFY(!opened.items.contains(path));
    const QString list = path.left(path.indexOf(u'['));
    const QString key = path.mid(path.lastIndexOf(u'.'));
    const QString renamed = CConfigurationItems::entryPath(list, value) + key;
    QCOMPARE(opened.value(renamed), value);
    QVERIFY(opened.items.setValue(renamed, before));
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_cconfigurationitems_entries::renamedEntryIsFoundUnderItsNewName()
{
    SOpened opened(m_sample);
    QVERIFY(opened.items.setValue(u"drive[0].driveNo"_s, u"9"_s));
    QCOMPARE(opened.value(u"drive[9].name"_s), u"Infeed"_s);
    QCOMPARE(opened.items.entries().mid(15, 3),
             QStringList({u"drive[9]"_s, u"drive[1]"_s, u"drive[2]"_s}));
    // One of two with the same key can be given another; the same one it has already.
    SOpened twice(configurationOf("<Options>-a 1 -a 2</Options>"));
    QVERIFY(twice.items.setValue(u"device.options[-a][2].name"_s, u"-a"_s));
    QVERIFY(twice.items.setValue(u"device.options[-a][2].name"_s, u"-b"_s));
    QCOMPARE(twice.file.options(), QStringList({u"-a"_s, u"1"_s, u"-b"_s, u"2"_s}));
}

void tst_cconfigurationitems_entries::add_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArrayList>("added");

    QTest::newRow("file") << u"files[a\\].xml]"_s
                          << QByteArrayList{"    <File>",         "     <Name>a].xml</Name>",
                                            "     <Comment/>",    "     <DeviceDir/>",
                                            "     <ProjectDir/>", "    </File>"};
    QTest::newRow("OPC UA file") << u"device.opcUaFiles[a.xml]"_s
                                 << QByteArrayList{
                                        "     <File>",         "      <Name>a.xml</Name>",
                                        "      <Comment/>",    "      <DeviceDir/>",
                                        "      <ProjectDir/>", "     </File>"};
    QTest::newRow("parameter file")
        << u"device.parameterFiles[Machine]"_s
        << QByteArrayList{"    <File type=\"VornParameters\">", "     <Name>Machine</Name>",
                          "     <Comment/>", "    </File>"};
    QTest::newRow("FPGA image") << u"device.fpgaFiles[a.bit]"_s
                                << QByteArrayList{"    <File>", "     <Name>a.bit</Name>",
                                                  "    </File>"};
    QTest::newRow("plug-in") << u"device.plugins[vision]"_s
                             << QByteArrayList{"    <Plugin>", "     <Name>vision</Name>",
                                               "     <Version/>", "     <Priority>0</Priority>",
                                               "    </Plugin>"};
    QTest::newRow("drive") << u"drive[254]"_s
                           << QByteArrayList{
                                  "  <SubDevice type=\"KD3_drive\">",
                                  "   <HardwareId>KD3:KD3 Controller 8A:3:2:1</HardwareId>",
                                  "   <Name>DRIVE-254</Name>",
                                  "   <Comment/>",
                                  "   <DriveNo>254</DriveNo>",
                                  "   <BusId>0</BusId>",
                                  "  </SubDevice>"};
}

void tst_cconfigurationitems_entries::add()
{
    QFETCH(QString, path);
    QFETCH(QByteArrayList, added);
    SOpened opened(m_sample);
    QVERIFY2(opened.items.add(path), qPrintable(opened.items.errorText()));
    QVERIFY(opened.items.contains(path));
    // What is common at both ends may be counted in another place than it was added.
    const SDifference difference(m_sample, opened.bytes());
    QCOMPARE(difference.removed, QByteArrayList());
    QCOMPARE(difference.added.size(), added.size());
    QVERIFY(opened.bytes().contains('\n' + added.join('\n') + '\n'));

    QVERIFY(!opened.items.add(path));
    QVERIFY2(opened.items.errorText().startsWith(path + u": the "_s)
                 && opened.items.errorText().endsWith(u" already exists"_s),
             qPrintable(opened.items.errorText()));
    QVERIFY(opened.items.remove(path));
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_cconfigurationitems_entries::addToNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("after");

    const auto config = [](const QByteArray &content) {
        return documentOf(" <Device>\n  <Config>\n" + content + "  </Config>\n </Device>\n");
    };
    QTest::newRow("option") << u"device.options[-a=b]"_s << config("   <Options>-a=b</Options>\n");
    QTest::newRow("file") << u"files[a]"_s
                          << config("   <Files>\n    <File>\n     <Name>a</Name>\n     <Comment/>\n"
                                    "     <DeviceDir/>\n     <ProjectDir/>\n    </File>\n"
                                    "   </Files>\n");
    QTest::newRow("OPC UA file")
        << u"device.opcUaFiles[a]"_s
        << config("   <OpcUa>\n    <OpcUaFiles>\n     <File>\n      <Name>a</Name>\n"
                  "      <Comment/>\n      <DeviceDir/>\n      <ProjectDir/>\n     </File>\n"
                  "    </OpcUaFiles>\n   </OpcUa>\n");
    QTest::newRow("drive") << u"drive[3]"_s
                           << documentOf(" <Device>\n  <SubDevice type=\"KD3_drive\">\n"
                                         "   <HardwareId/>\n   <Name>DRIVE-3</Name>\n"
                                         "   <Comment/>\n   <DriveNo>3</DriveNo>\n"
                                         "   <BusId>0</BusId>\n  </SubDevice>\n </Device>\n");
}

void tst_cconfigurationitems_entries::addToNothing()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, after);
    SOpened opened(documentOf(QByteArray()));
    QVERIFY(opened.items.add(path));
    QCOMPARE(opened.bytes(), after);
}

void tst_cconfigurationitems_entries::addedDriveIsAsAnInsertedOne_data()
{
    QTest::addColumn<QString>("deviceClass");
    QTest::newRow("KC2 controller") << u"kc2"_s;
    QTest::newRow("KD3 device") << u"kd3"_s;
    QTest::newRow("other") << u"Undefined"_s;
}

void tst_cconfigurationitems_entries::addedDriveIsAsAnInsertedOne()
{
    QFETCH(QString, deviceClass);
    SOpened opened(m_sample);
    QVERIFY(opened.items.setValue(u"device.class"_s, deviceClass));
    CDeviceElement device;
    QVERIFY(opened.file.configuration(device));
    CSubDeviceElement inserted = CSubDeviceKD3Element();
    QCOMPARE(device.insertSubDevice(inserted, 8), quint8(8));

    QVERIFY(opened.items.add(u"drive[8]"_s));
    CDeviceElement read;
    QVERIFY(opened.file.configuration(read));
    QVERIFY(read == device);
    QCOMPARE(read.subDevice(8).name(), inserted.name());
    QVERIFY(!inserted.name().isEmpty());
}

void tst_cconfigurationitems_entries::remove_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArrayList>("removed");
    QTest::addColumn<QByteArrayList>("added");

    const auto row = [](const QString &path, const QByteArrayList &removed,
                        const QByteArrayList &added = {}) {
        QTest::newRow(qPrintable(path)) << path << removed << added;
    };
    row(u"device.comment"_s, {"  <Comment>Folding box line 4, hall B</Comment>"});
    row(u"drive[1].busId"_s, {"   <BusId>1002</BusId>"});
    row(u"device.parameterFiles[LineParams].type"_s,
        {"    <File lang=\"de\" type=\"VornParameters\">"}, {"    <File lang=\"de\">"});
    row(u"device.parameterFiles[LineParams]"_s,
        {"    <File lang=\"de\" type=\"VornParameters\">", "     <Name>LineParams</Name>",
         "     <Comment>Formats of the line</Comment>", "    </File>"});
    row(u"device.activeFpgaFile"_s,
        {"    <File>", "     <Name>kd3_motion_v12.bit</Name>", "    </File>"});
    row(u"device.fpgaFiles[kd3_motion_v11.bit]"_s,
        {"    <File>", "     <Name>kd3_motion_v11.bit</Name>", "    </File>"});
    row(u"device.plugins[motion]"_s,
        {"    <Plugin>", "     <Name>motion</Name>", "     <Version>2</Version>",
         "     <Priority>20</Priority>", "    </Plugin>"});
    row(u"device.options[-autostart]"_s, {"   <Options>-trace -autostart -opc</Options>"},
        {"   <Options>-trace -opc</Options>"});
    row(u"files[recipes.csv]"_s,
        {"   <Files>", "    <File>", "     <Size>12</Size>", "     <Name>recipes.csv</Name>",
         "     <Comment>Box formats</Comment>",
         "     <DeviceDir>/velkor/configurations/STD/conf/</DeviceDir>",
         "     <ProjectDir>PackagingLine/velkor/conf/</ProjectDir>", "    </File>", "   </Files>"},
        {"   <Files/>"});
    row(u"device.etherCatMasterFile"_s,
        {"   <EtherCatMaster>", "    <File>", "     <Name>EC_BusConfiguration.xml</Name>",
         "     <Comment>Two drives, one I/O station</Comment>",
         "     <DeviceDir>/velkor/configurations/STD/param/</DeviceDir>",
         "     <ProjectDir>PackagingLine/velkor/param/</ProjectDir>", "    </File>",
         "   </EtherCatMaster>"},
        {"   <EtherCatMaster/>"});
    row(u"drive[1].param.name"_s, {"     <Name>Folder.3param</Name>"});
}

void tst_cconfigurationitems_entries::remove()
{
    QFETCH(QString, path);
    QFETCH(QByteArrayList, removed);
    QFETCH(QByteArrayList, added);
    SOpened opened(m_sample);
    QVERIFY(opened.items.contains(path));
    QVERIFY2(opened.items.remove(path), qPrintable(opened.items.errorText()));
    const bool nextFollows = path == u"device.activeFpgaFile"_s;
    QCOMPARE(opened.items.contains(path), nextFollows);
    QByteArray expected = m_sample;
    const QByteArray gone = '\n' + removed.join('\n') + '\n';
    QCOMPARE(expected.count(gone), 1);
    expected.replace(gone, '\n' + added.join('\n') + (added.isEmpty() ? "" : "\n"));
    QCOMPARE(opened.bytes(), expected);
}

void tst_cconfigurationitems_entries::removeASingleFileOfSeveral()
{
    // Only the first one counts, and none of them may step into its place.
    SOpened opened(configurationOf("<Dictionary><!--kept--><File><Name>a</Name></File>"
                                   "<File><Name>b</Name></File><Extra/></Dictionary>"));
    QCOMPARE(opened.value(u"device.dictionary.name"_s), u"a"_s);
    QVERIFY(opened.items.remove(u"device.dictionary"_s));
    QVERIFY(!opened.items.contains(u"device.dictionary"_s));
    QVERIFY(opened.bytes().contains("   <Dictionary>\n    <!--kept-->\n    <Extra/>\n"));
}

void tst_cconfigurationitems_entries::optionsKeepTheirBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("withValue");
    QTest::addColumn<QString>("removed");

    const auto row = [](const char *name, const QString &text, const QString &option,
                        const QString &withValue, const QString &removed) {
        QTest::newRow(name) << text << option << withValue << removed;
    };
    row("alone", u"-a"_s, u"-a"_s, u"-a x y"_s, u""_s);
    row("first", u"-a  -b"_s, u"-a"_s, u"-a x y  -b"_s, u"-b"_s);
    row("in the middle", u"-a  -b \t-c"_s, u"-b"_s, u"-a  -b x y \t-c"_s, u"-a  -c"_s);
    row("last", u"-a\n-b"_s, u"-b"_s, u"-a\n-b x y"_s, u"-a"_s);
    row("argument", u"-a 1  2 -b"_s, u"-a"_s, u"-a x y -b"_s, u"-b"_s);
    row("blanks around", u"  -a 1  "_s, u"-a"_s, u"  -a x y  "_s, u""_s);
    row("hyphens inside", u"-a-b --c"_s, u"--c"_s, u"-a-b --c x y"_s, u"-a-b"_s);
    row("text before", u"free -a"_s, u"-a"_s, u"free -a x y"_s, u"free"_s);
}

void tst_cconfigurationitems_entries::optionsKeepTheirBlanks()
{
    QFETCH(QString, text);
    QFETCH(QString, option);
    QFETCH(QString, withValue);
    QFETCH(QString, removed);
    const QString path = CConfigurationItems::entryPath(u"device.options"_s, option);
    const QByteArray document = configurationOf("<Options>" + text.toUtf8() + "</Options>");
    const auto stored = [](const SOpened &opened) {
        const QDomElement element = opened.file.findElementInConfigElement(u"Options"_s);
        return opened.file.getNodeValue(element);
    };
    SOpened opened(document);
    QCOMPARE(stored(opened), text);
    // Each begins where CDeviceBaseElement::setOptions() begins one.
    CDeviceElement device;
    device.setOptions(text);
    QStringList grouped;
    for (const SItem &item : opened.items.items(u"device.options"_s)) {
        const QString name = item.path.mid(15).chopped(1);
        grouped << (item.value.isEmpty() ? name : name + u' ' + item.value);
    }
    if (!text.startsWith(u"free"_s)) {
        QCOMPARE(grouped.join(u'|').simplified(), device.options().join(u'|').simplified());
    }
    QVERIFY(opened.items.setValue(path, u"x y"_s));
    QCOMPARE(stored(opened), withValue);
    QCOMPARE(opened.value(path), u"x y"_s);
    SOpened other(document);
    QVERIFY(other.items.remove(path));
    QCOMPARE(stored(other), removed);
    QVERIFY(other.items.add(u"device.options[-z]"_s));
    QCOMPARE(stored(other), removed.isEmpty() ? u"-z"_s : removed + u" -z"_s);
}

void tst_cconfigurationitems_entries::failuresChangeNothing_data()
{
    QTest::addColumn<bool>("isAdding");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("errorText");

    const auto row = [](bool isAdding, const QString &path, const QString &reason) {
        QTest::newRow(qPrintable((isAdding ? u"add "_s : u"remove "_s) + path))
            << isAdding << path << path + u": "_s + reason;
    };
    row(true, u"device.name"_s, u"only list entries can be added"_s);
    row(true, u"device.dictionary"_s, u"only list entries can be added"_s);
    row(true, u"files"_s, u"only list entries can be added"_s);
    row(true, u"files[recipes.csv].comment"_s, u"only list entries can be added"_s);
    row(true, u"files[]"_s, u"The name is empty. Expected: a name."_s);
    row(true, u"files[a\u0001]"_s, u"The character U+0001 cannot be stored in a configuration."_s);
    row(true, u"files[recipes.csv]"_s, u"the file already exists"_s);
    row(true, u"files[recipes.csv][2]"_s, u"a second entry with the same key cannot be added"_s);
    row(true, u"drive[0]"_s, u"the drive already exists"_s);
    row(true, u"drive[255]"_s,
        u"'255' is not a valid drive number. Expected: a number from 0 to 254."_s);
    row(true, u"drive[x]"_s,
        u"'x' is not a valid drive number. Expected: a number from 0 to 254."_s);
    row(true, u"drive[]"_s, u"'' is not a valid drive number. Expected: a number from 0 to 254."_s);
    row(true, u"device.options[-opc]"_s, u"the option already exists"_s);
    row(true, u"device.options[opc]"_s,
        u"'opc' is not a valid start option. Expected: a word that begins with '-'."_s);
    row(true, u"device.plugins[motion]"_s, u"the plug-in already exists"_s);

    const QString noItem = u"only single items, list entries and files can be removed"_s;
    for (const QString &path : {u"device"_s, u"description"_s, u"files"_s, u"drive"_s,
                                u"device.options"_s, u"device.plugins"_s}) {
        row(false, path, noItem);
    }
    row(false, u"files[recipes.csv].name"_s, u"the entry cannot exist without this item"_s);
    row(false, u"drive[0].driveNo"_s, u"the entry cannot exist without this item"_s);
    row(false, u"device.options[-opc].name"_s, u"the entry cannot exist without this item"_s);
}

void tst_cconfigurationitems_entries::failuresChangeNothing()
{
    QFETCH(bool, isAdding);
    QFETCH(QString, path);
    QFETCH(QString, errorText);
    SOpened opened(m_sample);
    QVERIFY(!(isAdding ? opened.items.add(path) : opened.items.remove(path)));
    QCOMPARE(opened.items.errorText(), errorText);
    QCOMPARE(opened.bytes(), m_sample);
}

REGISTER_GUILESS_TEST(tst_cconfigurationitems_entries)
#include "tst_cconfigurationitems_entries.moc"
