#include "commissioning/CConfigurationItems.h"
#include "support/Files.h"
#include "support/ItemDocuments.h"
#include "support/LargeConfiguration.h"
#include "support/Literals.h"
#include "support/RandomText.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QMap>
#include <QTest>

using namespace ItemDocuments;

class tst_cconfigurationitems : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void acceptedPaths_data();
    void acceptedPaths();
    void refusedPaths_data();
    void refusedPaths();
    void anyKeyCanBeWritten();

    void everyItemIsListed();
    void itemsBelowAPath_data();
    void itemsBelowAPath();
    void listedItemsCanBeRead();
    void whatIsNotThereIsNotListed();
    void entriesAreThoseOfTheReaders();
    void entriesOfOneKeyAreCounted();
    void drivesAreKnownByTheirNumbers();
    void elements();

    void kd2FilesAreOfKd2DrivesAlone();
    void withoutDocument();
    void manyEntries();

private:
    QByteArray m_sample;
};

void tst_cconfigurationitems::initTestCase()
{
    m_sample = sampleDocument();
    SOpened opened(m_sample);
    QVERIFY(opened.isOpen);
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_cconfigurationitems::acceptedPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *name, const QString &path, const QString &value) {
        QTest::newRow(name) << path << value;
    };
    row("item", u"device.name"_s, u"D"_s);
    row("key", u"files[a.xml].comment"_s, u"first"_s);
    row("second of the same key", u"files[a.xml][2].comment"_s, u"second"_s);
    row("key of an entry", u"files[a.xml][2].name"_s, u"a.xml"_s);
    row("closing bracket", u"files[b\\]c].comment"_s, u"bracket"_s);
    row("back-slash", u"files[b\\\\].comment"_s, u"slash"_s);
    row("both", u"files[\\]\\\\\\]].comment"_s, u"both"_s);
    row("opening bracket", u"files[[2].comment"_s, u"opening"_s);
    row("dot and blank", u"files[ x.y ].comment"_s, u"blank"_s);
    row("line feed", u"files[x\ny].comment"_s, u"line feed"_s);
    row("not ASCII", u"files[ü\U0001F600].comment"_s, u"smile"_s);
    row("empty key", u"files[].comment"_s, u"nameless"_s);
    row("entry that is an item", u"device.options[-a]"_s, u"1"_s);
    row("number with zeros", u"drive[007].name"_s, u"Seven"_s);
}

void tst_cconfigurationitems::acceptedPaths()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    QByteArray files;
    const QList<QPair<QByteArray, QByteArray>> names = {
        {"a.xml", "first"}, {"a.xml", "second"},
        {"b]c", "bracket"}, {"b\\", "slash"},
        {"]\\]", "both"},   {"[2", "opening"},
        {" x.y ", "blank"}, {"x\ny", "line feed"},
        {"", "nameless"},   {"ü\xF0\x9F\x98\x80", "smile"},
    };
    for (const auto &name : names) {
        files +=
            "<File><Name>" + name.first + "</Name><Comment>" + name.second + "</Comment></File>";
    }
    const SOpened opened(documentOf("<Device><Name>D</Name><Config><Options>-a 1</Options><Files>"
                                    + files + "</Files></Config><SubDevice><DriveNo>7</DriveNo>"
                                    + "<Name>Seven</Name></SubDevice></Device>"));
    QVERIFY(opened.isOpen);
    QVERIFY2(opened.items.contains(path), qPrintable(opened.items.errorText()));
    QCOMPARE(opened.value(path), value);
    QCOMPARE(opened.items.errorText(), QString());
}

void tst_cconfigurationitems::refusedPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("errorText");

    const auto row = [](const char *name, const char *path, const char *errorText) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(errorText);
    };
    row("empty", "", "'' is not a valid path: a word is missing at character 1");
    row("dot alone", ".", "'.' is not a valid path: a word is missing at character 1");
    row("dot at the start", ".device",
        "'.device' is not a valid path: a word is missing at character 1");
    row("dot at the end", "device.",
        "'device.' is not a valid path: a word is missing at character 8");
    row("two dots", "device..name",
        "'device..name' is not a valid path: a word is missing at character 8");
    row("bracket alone", "[", "'[' is not a valid path: a word is missing at character 1");
    row("key alone", "[a]", "'[a]' is not a valid path: a word is missing at character 1");
    row("closing bracket in a word", "files]",
        "'files]' is not a valid path: a '.' is missing at character 6");
    row("open key", "files[a", "'files[a' is not a valid path: a ']' is missing at character 8");
    row("open empty key", "files[",
        "'files[' is not a valid path: a ']' is missing at character 7");
    row("escaped end", "files[a\\]",
        "'files[a\\]' is not a valid path: a ']' is missing at character 10");
    row("escape of nothing", "files[a\\",
        "'files[a\\' is not a valid path: only ']' and '\\' can follow a '\\' at character 9");
    row("escape of a letter", "files[a\\b]",
        "'files[a\\b]' is not a valid path: only ']' and '\\' can follow a '\\' at character 9");
    row("text behind a key", "files[a]name",
        "'files[a]name' is not a valid path: a '.' is missing at character 9");
    row("third bracket", "files[a][2][2]",
        "'files[a][2][2]' is not a valid path: a '.' is missing at character 12");
    const char *const counts[] = {"", "0", "1", "-2", "+2", "02", " 2", "2 ", "a", "2147483648"};
    for (const char *count : counts) {
        const QByteArray path = QByteArray("files[a][") + count + "]";
        row(("count '" + QByteArray(count) + "'").constData(), path.constData(),
            ("'" + path
             + "' is not a valid path: after a key, brackets can only contain a number from 2 on "
               "at character 10")
                .constData());
    }
    row("open count", "files[a][2",
        "'files[a][2' is not a valid path: a ']' is missing at character 10");

    row("unknown word", "colour",
        "colour: unknown item; expected is one of description, device, drive, files");
    row("unknown word below", "drive[0].colour",
        "drive[0].colour: unknown item; expected is one of driveNo, type, hardwareId, name, "
        "comment, busId, param");
    row("unknown word of a KD2 drive", "drive[2].colour",
        "drive[2].colour: unknown item; expected is one of driveNo, type, hardwareId, name, "
        "comment, busId, param, kd2Param, kd2Logic, kd2Firmware");
    row("letter missing", "device.coment",
        "device.coment: unknown item; did you mean device.comment?");
    row("other capitals", "device.hardwareID",
        "device.hardwareID: unknown item; did you mean device.hardwareId?");
    row("plural", "drives[0]", "drives[0]: unknown item; did you mean drive?");
    row("nearer of two", "device.opcUaFile",
        "device.opcUaFile: unknown item; did you mean device.opcUaFiles?");
    row("short word", "drive[0].x.y",
        "drive[0].x: unknown item; expected is one of driveNo, type, hardwareId, name, comment, "
        "busId, param");
    row("below an item", "device.name.x", "device.name.x: unknown item");
    row("below a key", "files[recipes.csv].name.x", "files[recipes.csv].name.x: unknown item");
    row("blank", "device. name", "device. name: unknown item; did you mean device.name?");
    row("key behind an item", "device.name[3]",
        "device.name[3]: name is not a list and takes no brackets");
    row("key behind a group", "device[0].name",
        "device[0]: device is not a list and takes no brackets");
    row("list without key", "files.comment",
        "files.comment: name an entry of the list, as in files[…]");
    row("list in a group without key", "device.plugins.version",
        "device.plugins.version: name an entry of the list, as in device.plugins[…]");

    row("no such drive", "drive[7]", "drive[7]: the drive does not exist");
    row("no such second drive", "drive[0][2].name", "drive[0][2]: the drive does not exist");
    row("no such number", "drive[x].name", "drive[x]: the drive does not exist");
    row("no such file", "files[x].comment", "files[x]: the file does not exist");
    row("no such parameter file", "device.parameterFiles[x].type",
        "device.parameterFiles[x]: the parameter file does not exist");
    row("no such image", "device.fpgaFiles[x]",
        "device.fpgaFiles[x]: the FPGA image does not exist");
    row("no such OPC UA file", "device.opcUaFiles[x].comment",
        "device.opcUaFiles[x]: the OPC UA file does not exist");
    row("no such plug-in", "device.plugins[Motion].version",
        "device.plugins[Motion]: the plug-in does not exist");
    row("no such option", "device.options[-TRACE]",
        "device.options[-TRACE]: the option does not exist");
    row("no such second option", "device.options[-trace][2]",
        "device.options[-trace][2]: the option does not exist");
}

void tst_cconfigurationitems::refusedPaths()
{
    QFETCH(QString, path);
    QFETCH(QString, errorText);
    SOpened opened(m_sample);
    CConfigurationItems &items = opened.items;
    QString value = u"before"_s;
    QVERIFY(!items.value(path, value));
    QCOMPARE(items.errorText(), errorText);
    QCOMPARE(value, u"before"_s);
    QVERIFY(!items.contains(path));
    QCOMPARE(items.errorText(), errorText);
    QVERIFY(items.items(path).isEmpty());
    QCOMPARE(items.errorText(), errorText);
    QVERIFY(items.element(path).isNull());
    QVERIFY(!items.setValue(path, u"1"_s));
    QCOMPARE(items.errorText(), errorText);
    QVERIFY(!items.remove(path));
    QCOMPARE(items.errorText(), errorText);
    QCOMPARE(opened.bytes(), m_sample);
    // A success forgets it.
    QVERIFY(items.contains(u"device.name"_s));
    QCOMPARE(items.errorText(), QString());
}

void tst_cconfigurationitems::anyKeyCanBeWritten()
{
    SOpened opened(configurationOf(QByteArray()));
    RandomText texts(11);
    QMap<QString, QString> added;
    for (int i = 0; i < 300; ++i) {
        const QString key = texts.next();
        const QString path = CConfigurationItems::entryPath(u"files"_s, key);
        const bool canBeAdded = !key.isEmpty() && !added.contains(path);
        QCOMPARE(opened.items.add(path), canBeAdded);
        if (canBeAdded) {
            added.insert(path, key);
        }
    }
    QVERIFY(added.size() > 200);
    const SOpened again(opened.bytes());
    QVERIFY(again.isOpen);
    const QStringList entries = again.items.entries();
    QCOMPARE(entries.size(), added.size());
    for (const QString &path : entries) {
        QCOMPARE(again.value(path + u".name"_s), added.value(path));
    }
}

void tst_cconfigurationitems::everyItemIsListed()
{
    const SOpened opened(documentOf(
        "<Description><Name>P</Name><Comment/><Version>1.2</Version>"
        "<CreationDate>2026-03-02</CreationDate><RevisionDate>soon</RevisionDate></Description>"
        "<Device><HardwareId>KD3:S:3:2:1</HardwareId><Class>KD3</Class><Name>D</Name>"
        "<Comment>c</Comment><ConfigurationName>STD</ConfigurationName><Config>"
        "<Options>-trace 5  -opc</Options>"
        "<ParameterFiles><File type=\"VornParameters\"><Name>P1</Name><Comment>pc</Comment></File>"
        "</ParameterFiles>"
        "<Dictionary><File><Name>d</Name><Comment>dc</Comment><DeviceDir>dd</DeviceDir>"
        "<ProjectDir>dp</ProjectDir></File></Dictionary>"
        "<FaultTextFile><File><Name>f</Name></File></FaultTextFile>"
        "<FPGA_FileNames><File><Name>a.bit</Name></File><File><Name>b.bit</Name></File>"
        "</FPGA_FileNames>"
        "<OpcUa><OpcUaEnabled>TRUE</OpcUaEnabled><OpcUaFiles><File><Name>o</Name>"
        "<Comment>oc</Comment></File></OpcUaFiles></OpcUa>"
        "<EtherCatMaster><File><Name>e</Name></File></EtherCatMaster>"
        "<Files><File><Name>x</Name><DeviceDir>xd</DeviceDir></File></Files>"
        "<Plugins><Plugin><Name>m</Name><Version>1</Version><Priority>x</Priority></Plugin>"
        "</Plugins><ExecutionPlugin>m</ExecutionPlugin></Config>"
        "<SubDevice type=\"KD2_drive\"><HardwareId>h</HardwareId><Name>n</Name><Comment/>"
        "<DriveNo>4</DriveNo><BusId>7</BusId><Param><File><Name>p</Name></File></Param>"
        "<KD2Param><File><Name>k1</Name></File></KD2Param>"
        "<KD2Logic><File><Name>k2</Name></File></KD2Logic>"
        "<KD2Firmware><File><Name>k3</Name></File></KD2Firmware></SubDevice></Device>"));
    QVERIFY(opened.isOpen);
    QCOMPARE(text(opened.items.items()),
             u"description.name = P\n"
             "description.comment = \n"
             "description.version = 1.2\n"
             "description.creationDate = 2026-03-02\n"
             "description.revisionDate = soon\n"
             "device.name = D\n"
             "device.comment = c\n"
             "device.class = KD3\n"
             "device.hardwareId = KD3:S:3:2:1\n"
             "device.configurationName = STD\n"
             "device.executionPlugin = m\n"
             "device.opcUaEnabled = TRUE\n"
             "device.activeFpgaFile = a.bit\n"
             "device.options[-trace] = 5\n"
             "device.options[-opc] = \n"
             "device.parameterFiles[P1].type = VornParameters\n"
             "device.parameterFiles[P1].comment = pc\n"
             "device.dictionary.name = d\n"
             "device.dictionary.comment = dc\n"
             "device.dictionary.deviceDir = dd\n"
             "device.dictionary.projectDir = dp\n"
             "device.faultTextFile.name = f\n"
             "device.etherCatMasterFile.name = e\n"
             "device.fpgaFiles[a.bit] = \n"
             "device.fpgaFiles[b.bit] = \n"
             "device.opcUaFiles[o].comment = oc\n"
             "device.plugins[m].version = 1\n"
             "device.plugins[m].priority = x\n"
             "drive[4].type = KD2_drive\n"
             "drive[4].hardwareId = h\n"
             "drive[4].name = n\n"
             "drive[4].comment = \n"
             "drive[4].busId = 7\n"
             "drive[4].param.name = p\n"
             "drive[4].kd2Param.name = k1\n"
             "drive[4].kd2Logic.name = k2\n"
             "drive[4].kd2Firmware.name = k3\n"
             "files[x].deviceDir = xd\n"_s);
    QCOMPARE(opened.items.entries(),
             QStringList({u"device.options[-trace]"_s, u"device.options[-opc]"_s,
                          u"device.parameterFiles[P1]"_s, u"device.fpgaFiles[a.bit]"_s,
                          u"device.fpgaFiles[b.bit]"_s, u"device.opcUaFiles[o]"_s,
                          u"device.plugins[m]"_s, u"drive[4]"_s, u"files[x]"_s}));
}

void tst_cconfigurationitems::itemsBelowAPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("items");

    const auto row = [](const QString &path, const QString &items) {
        QTest::newRow(qPrintable(path)) << path << items;
    };
    row(u"device.name"_s, u"device.name = PackagingLine\n"_s);
    row(u"drive[1].driveNo"_s, u"drive[1].driveNo = 1\n"_s);
    row(u"device.options"_s,
        u"device.options[-trace] = \ndevice.options[-autostart] = \ndevice.options[-opc] = \n"_s);
    row(u"device.options[-opc]"_s, u"device.options[-opc] = \n"_s);
    row(u"device.options[-opc].name"_s, u"device.options[-opc].name = -opc\n"_s);
    row(u"device.fpgaFiles[kd3_motion_v11.bit]"_s, u"device.fpgaFiles[kd3_motion_v11.bit] = \n"_s);
    row(u"device.plugins"_s,
        u"device.plugins[CECatMaster].version = 1.3\n"
        "device.plugins[CECatMaster].priority = 10\n"
        "device.plugins[motion].version = 2\n"
        "device.plugins[motion].priority = 20\n"_s);
    row(u"device.plugins[motion]"_s,
        u"device.plugins[motion].version = 2\ndevice.plugins[motion].priority = 20\n"_s);
    row(u"drive[01].param"_s,
        u"drive[1].param.name = Folder.3param\n"
        "drive[1].param.comment = \n"
        "drive[1].param.deviceDir = /velkor/configurations/STD/subdevices/1/param/\n"
        "drive[1].param.projectDir = PackagingLine/velkor/subdevices/1/param/\n"_s);
    row(u"files"_s,
        u"files[recipes.csv].comment = Box formats\n"
        "files[recipes.csv].deviceDir = /velkor/configurations/STD/conf/\n"
        "files[recipes.csv].projectDir = PackagingLine/velkor/conf/\n"_s);
}

void tst_cconfigurationitems::itemsBelowAPath()
{
    QFETCH(QString, path);
    QFETCH(QString, items);
    const SOpened opened(m_sample);
    QCOMPARE(text(opened.items.items(path)), items);
    QCOMPARE(opened.items.errorText(), QString());
    QVERIFY(opened.items.contains(path));
}

void tst_cconfigurationitems::listedItemsCanBeRead()
{
    const SOpened opened(m_sample);
    const QList<SItem> items = opened.items.items();
    QStringList paths;
    for (const SItem &item : items) {
        QVERIFY(opened.items.contains(item.path));
        QCOMPARE(opened.value(item.path), item.value);
        QVERIFY(!opened.items.element(item.path).isNull());
        paths.append(item.path);
    }
    QCOMPARE(paths.removeDuplicates(), 0);
    // All of them lie in one of these, in this order.
    QList<SItem> parts;
    for (const QString &part : {u"description"_s, u"device"_s, u"drive"_s, u"files"_s}) {
        QVERIFY(opened.items.contains(part));
        parts += opened.items.items(part);
    }
    QCOMPARE(text(parts), text(items));
    for (const QString &path : opened.items.entries()) {
        QVERIFY(opened.items.contains(path));
    }
}

void tst_cconfigurationitems::whatIsNotThereIsNotListed()
{
    const SOpened opened(
        configurationOf("<Dictionary/><FaultTextFile><File/></FaultTextFile><Plugins/>"));
    QCOMPARE(text(opened.items.items()), u"device.name = D\n"_s);
    QCOMPARE(opened.items.entries(), QStringList());
    for (const QString &path :
         {u"device.comment"_s, u"device.activeFpgaFile"_s, u"device.dictionary"_s,
          u"device.dictionary.name"_s, u"device.faultTextFile"_s, u"description.name"_s}) {
        const QString expected = path + u": the configuration does not contain this item"_s;
        QVERIFY(!opened.items.contains(path));
        QCOMPARE(opened.items.errorText(), expected);
        QVERIFY(opened.items.items(path).isEmpty());
        QCOMPARE(opened.items.errorText(), expected);
        QCOMPARE(opened.value(path), u"(none)"_s);
    }
    // Of lists and groups nothing is a good answer.
    for (const QString &path : {u"files"_s, u"drive"_s, u"device.plugins"_s, u"description"_s}) {
        QVERIFY(opened.items.items(path).isEmpty());
        QCOMPARE(opened.items.errorText(), QString());
    }
    QVERIFY(opened.items.contains(u"device.plugins"_s));
    QVERIFY(!opened.items.contains(u"files"_s));
    QVERIFY(!opened.items.contains(u"description"_s));
}

void tst_cconfigurationitems::entriesAreThoseOfTheReaders()
{
    const SOpened opened(configurationOf(
        "<ParameterFiles><Group><File type=\"VornParameters\"><Name>Deep</Name>"
        "<File><Name>Deeper</Name></File></File></Group><File/><File type=\"x\"/>"
        "<File><Comment/></File><File><Name>Flat</Name></File></ParameterFiles>"
        "<Plugins><Group><Plugin><Name>Deep</Name></Plugin></Group><Plugin/></Plugins>"
        "<FPGA_FileNames><File/><Group><File><Name>a</Name></File></Group>"
        "<File><Name>b</Name></File></FPGA_FileNames>"
        "<Files><File/><File><Name/></File><File><Comment>c</Comment></File>"
        "<Group><File><Name>x</Name></File></Group><Plugin><Name>x</Name></Plugin>"
        "<File><Name>y</Name></File></Files>"
        "<Files><File><Name>second list</Name></File></Files>"));
    CDeviceElement device;
    QVERIFY(opened.file.configuration(device));
    QStringList expected;
    int nameless = 0;
    for (const CParamFileElement &file : device.parameterFiles()) {
        const int occurrence = file.name().isEmpty() ? ++nameless : 1;
        expected << CConfigurationItems::entryPath(u"device.parameterFiles"_s, file.name(),
                                                   occurrence);
    }
    QCOMPARE(nameless, 3);
    for (const QString &name : device.fpgaFiles()) {
        expected << CConfigurationItems::entryPath(u"device.fpgaFiles"_s, name);
    }
    for (const CPluginElement &plugin : device.plugins()) {
        expected << CConfigurationItems::entryPath(u"device.plugins"_s, plugin.name());
    }
    for (const CFileElement &file : device.additionalFiles()) {
        expected << CConfigurationItems::entryPath(u"files"_s, file.fileName());
    }
    QCOMPARE(opened.items.entries(), expected);
    QCOMPARE(
        opened.items.entries(),
        QStringList({u"device.parameterFiles[Deep]"_s, u"device.parameterFiles[Deeper]"_s,
                     u"device.parameterFiles[]"_s, u"device.parameterFiles[][2]"_s,
                     u"device.parameterFiles[][3]"_s, u"device.parameterFiles[Flat]"_s,
                     u"device.fpgaFiles[]"_s, u"device.fpgaFiles[b]"_s, u"device.plugins[Deep]"_s,
                     u"device.plugins[]"_s, u"files[]"_s, u"files[y]"_s}));
    QCOMPARE(opened.value(u"device.parameterFiles[Deeper].name"_s), u"Deeper"_s);
}

void tst_cconfigurationitems::entriesOfOneKeyAreCounted()
{
    SOpened opened(configurationOf("<Options>-a 1 -b -a -a 3</Options><Files>"
                                   "<File><Name>x</Name><Comment>1</Comment></File>"
                                   "<File><Name>y</Name><Comment>2</Comment></File>"
                                   "<File><Name>x</Name><Comment>3</Comment></File>"
                                   "<File><Name>x</Name><Comment>4</Comment></File></Files>"));
    QCOMPARE(text(opened.items.items()),
             u"device.name = D\n"
             "device.options[-a] = 1\n"
             "device.options[-b] = \n"
             "device.options[-a][2] = \n"
             "device.options[-a][3] = 3\n"
             "files[x].comment = 1\n"
             "files[y].comment = 2\n"
             "files[x][2].comment = 3\n"
             "files[x][3].comment = 4\n"_s);
    QVERIFY(opened.items.setValue(u"files[x][2].comment"_s, u"three"_s));
    QVERIFY(opened.items.setValue(u"device.options[-a][2]"_s, u"two"_s));
    QVERIFY(opened.items.remove(u"files[x]"_s));
    QVERIFY(opened.items.remove(u"device.options[-a]"_s));
    QCOMPARE(text(opened.items.items()),
             u"device.name = D\n"
             "device.options[-b] = \n"
             "device.options[-a] = two\n"
             "device.options[-a][2] = 3\n"
             "files[y].comment = 2\n"
             "files[x].comment = three\n"
             "files[x][2].comment = 4\n"_s);
    QVERIFY(!opened.items.contains(u"files[x][3]"_s));
}

void tst_cconfigurationitems::drivesAreKnownByTheirNumbers()
{
    QByteArray drives;
    for (const char *number : {"7", "007", " 8 ", "255", "0256", "0300", "-1", "left", ""}) {
        drives +=
            QByteArray("<SubDevice><Name>n</Name><DriveNo>") + number + "</DriveNo></SubDevice>";
    }
    const SOpened opened(
        documentOf("<Device>" + drives + "<SubDevice><Name>n</Name></SubDevice></Device>"));
    QCOMPARE(opened.items.entries(),
             QStringList({u"drive[7]"_s, u"drive[7][2]"_s, u"drive[8]"_s, u"drive[255]"_s,
                          u"drive[0256]"_s, u"drive[0300]"_s, u"drive[-1]"_s, u"drive[left]"_s,
                          u"drive[]"_s, u"drive[][2]"_s}));
    for (const QString &path : opened.items.entries()) {
        QCOMPARE(opened.value(path + u".name"_s), u"n"_s);
    }
    QCOMPARE(opened.value(u"drive[7][2].driveNo"_s), u"007"_s);
    QCOMPARE(opened.value(u"drive[08].driveNo"_s), u" 8 "_s);
}

void tst_cconfigurationitems::elements()
{
    const SOpened opened(m_sample);
    const QMap<QString, QString> names = {
        {u"description"_s, u"Description"_s},
        {u"device"_s, u"Device"_s},
        {u"device.hardwareId"_s, u"HardwareId"_s},
        {u"device.opcUaEnabled"_s, u"OpcUaEnabled"_s},
        {u"device.options"_s, u"Options"_s},
        {u"device.options[-opc]"_s, u"Options"_s},
        {u"device.dictionary"_s, u"File"_s},
        {u"device.plugins"_s, u"Plugins"_s},
        {u"device.plugins[motion]"_s, u"Plugin"_s},
        {u"drive[1]"_s, u"SubDevice"_s},
        {u"drive[1].type"_s, u"SubDevice"_s},
        {u"drive[1].param"_s, u"File"_s},
        {u"files"_s, u"Files"_s},
        {u"files[recipes.csv]"_s, u"File"_s},
        {u"files[recipes.csv].name"_s, u"Name"_s},
    };
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        QCOMPARE(opened.items.element(name.key()).tagName(), name.value());
    }
    QCOMPARE(opened.items.element(u"drive[1]"_s).firstChildElement(u"Name"_s).text(), u"Folder"_s);
}

void tst_cconfigurationitems::kd2FilesAreOfKd2DrivesAlone()
{
    SOpened opened(m_sample);
    QVERIFY(!opened.items.setValue(u"drive[0].kd2Logic.name"_s, u"x"_s));
    QCOMPARE(opened.items.errorText(),
             u"drive[0].kd2Logic: only a drive of the type KD2_drive has this file"_s);
    // A change of the type hides them, and back again shows them.
    QVERIFY(opened.items.setValue(u"drive[2].type"_s, u"KD3_drive"_s));
    QVERIFY(!opened.items.contains(u"drive[2].kd2Logic.name"_s));
    QCOMPARE(opened.items.items(u"drive[2]"_s).size(), 9);
    QVERIFY(opened.items.setValue(u"drive[2].type"_s, u"KD2_drive"_s));
    QCOMPARE(opened.items.items(u"drive[2]"_s).size(), 21);
    QCOMPARE(opened.bytes(), m_sample);
    // In the new one of another type, too.
    QVERIFY(opened.items.add(u"drive[5]"_s));
    QVERIFY(opened.items.setValue(u"drive[5].type"_s, u"KD2_drive"_s));
    QVERIFY(opened.items.setValue(u"drive[5].kd2Firmware.name"_s, u"f.bin"_s));
    CDeviceElement device;
    QVERIFY(opened.file.configuration(device));
    QCOMPARE(device.subDevice(5).toKD2().kd2FirmwareFile().fileName(), u"f.bin"_s);
}

void tst_cconfigurationitems::withoutDocument()
{
    CDeviceConfigurationFile10 file(nullptr);
    CConfigurationItems items(file);
    const QString expected = u"The document contains no configuration."_s;
    QVERIFY(items.items().isEmpty());
    QVERIFY(items.entries().isEmpty());
    QVERIFY(items.items(u"device"_s).isEmpty());
    QCOMPARE(items.errorText(), expected);
    QVERIFY(!items.contains(u"device.name"_s));
    QVERIFY(!items.setValue(u"device.name"_s, u"x"_s));
    QCOMPARE(items.errorText(), expected);
    QVERIFY(!items.add(u"drive[0]"_s));
    QVERIFY(!items.remove(u"device.name"_s));
    QVERIFY(items.element(u"device"_s).isNull());
    // Another document in the same file object is seen at once.
    QVERIFY(file.createNewDocument());
    QVERIFY(items.setValue(u"device.name"_s, u"x"_s));
    QCOMPARE(text(items.items()), u"device.name = x\n"_s);
}

void tst_cconfigurationitems::manyEntries()
{
    // With a walk along the list for each item this would take until the test is ended.
    const int count = 50000;
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device = LargeConfiguration::device(count, 255);
    QStringList options;
    for (int i = 0; i < count; ++i) {
        options << u"-o%1"_s.arg(i);
    }
    device.setOptions(options);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    CConfigurationItems items(file);
    QCOMPARE(items.entries().size(), 2 * count + 255);
    QCOMPARE(items.items().size(), 4 * count + 255 * 9 + 5);
    QCOMPARE(items.items(u"files"_s).last().path, u"files[recipe_049999.csv].projectDir"_s);
    QVERIFY(items.setValue(u"files[recipe_049999.csv].comment"_s, u"last"_s));
    QVERIFY(items.contains(u"device.options[-o49999]"_s));
}

REGISTER_GUILESS_TEST(tst_cconfigurationitems)
#include "tst_cconfigurationitems.moc"
