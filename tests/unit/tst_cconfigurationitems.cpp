#include "commissioning/CConfigurationItems.h"

#include "support/Files.h"
#include "support/LargeConfiguration.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/RandomText.h"
#include "support/SampleConfiguration.h"

#include <QMap>
#include <QTest>

namespace {

using SItem = CConfigurationItems::SItem;

/** Around the example, which has every item, things that no reader of this library understands. */
QByteArray sampleDocument()
{
    QByteArray bytes = Files::read(
        QStringLiteral(VRN_SOURCE_DIR "/examples/packaging-line/DeviceConfiguration.3deco"));
    const QList<QPair<QByteArray, QByteArray>> marks = {
        {" <Device>\n", " <!--before the device-->\n <Device note=\"kept\">\n"},
        {"  <Config>\n", "  <Config a=\"1\" b=\"2\">\n   <Vendor>\n    <Deep/>\n   </Vendor>\n"},
        {"    <File type=\"VornParameters\">\n",
         "    <!--formats-->\n    <File lang=\"de\" type=\"VornParameters\">\n"},
        {"     <Name>recipes.csv</Name>\n",
         "     <Size>12</Size>\n     <Name>recipes.csv</Name>\n"},
        {"   <Name>Folder</Name>\n",
         "   <Name>Folder</Name>\n   <!--gantry-->\n   <Axis>Y</Axis>\n"},
        {"</VornDeviceConfig>\n", " <Other/>\n</VornDeviceConfig>\n"},
    };
    for (const auto &mark : marks) {
        const int count = bytes.count(mark.first);
        if (count != 1) {
            qWarning("%s stands %d times in the example", mark.first.constData(), count);
            return QByteArray();
        }
        bytes.replace(mark.first, mark.second);
    }
    return bytes;
}

QByteArray documentOf(const QByteArray &device)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\">\n"
        + device + "</VornDeviceConfig>\n";
}

QByteArray configurationOf(const QByteArray &config)
{
    return documentOf("<Device><Name>D</Name><Config>" + config + "</Config></Device>");
}

/** A document that is open, with its items. */
struct SOpened {
    CDeviceConfigurationFile10 file{nullptr};
    CConfigurationItems items{file};

    explicit SOpened(const QByteArray &bytes) { isOpen = file.load(bytes); }

    QByteArray bytes()
    {
        QByteArray result;
        QString error;
        return file.save(result, error) ? result : error.toUtf8();
    }

    QString value(const QString &path) const
    {
        QString result = u"(none)"_s;
        items.value(path, result);
        return result;
    }

    bool isOpen = false;
};

/** The lines that are in one of two documents alone, if they stand in one place. */
struct SDifference {
    QByteArrayList removed;
    QByteArrayList added;

    SDifference(const QByteArray &before, const QByteArray &after)
        : removed(before.split('\n')), added(after.split('\n'))
    {
        while (!removed.isEmpty() && !added.isEmpty() && removed.first() == added.first()) {
            removed.removeFirst();
            added.removeFirst();
        }
        while (!removed.isEmpty() && !added.isEmpty() && removed.last() == added.last()) {
            removed.removeLast();
            added.removeLast();
        }
    }
};

QString text(const QList<SItem> &items)
{
    QString result;
    for (const SItem &item : items) {
        result += item.path + u" = "_s + item.value + u"\n"_s;
    }
    return result;
}

/** A value that the item can have and has not. */
QString otherValue(const SItem &item)
{
    static const QMap<QString, QString> values = {
        {u"creationDate"_s, u"2024-02-29"_s},
        {u"revisionDate"_s, u"2025-12-31"_s},
        {u"class"_s, u"kc2"_s},
        {u"hardwareId"_s, u"KD2:Other %0025 Drive:9:8:7"_s},
        {u"opcUaEnabled"_s, u"false"_s},
        {u"busId"_s, u"4294967295"_s},
        {u"priority"_s, u"-2147483648"_s},
        {u"deviceDir"_s, u"/other/<&>/"_s},
        {u"projectDir"_s, u"Other/ü ]\\/"_s.replace(u'\\', u'/')},
    };
    const QString word = item.path.mid(item.path.lastIndexOf(u'.') + 1);
    if (values.contains(word)) {
        return values.value(word);
    }
    if (word == u"type"_s) {
        return item.path.startsWith(u"drive"_s)
            ? (item.value == u"KD2_drive"_s ? u"KD3_drive"_s : u"KD2_drive"_s)
            : u"VornOemParameters"_s;
    }
    if (item.path.startsWith(u"device.options"_s)) {
        return u"one <2> drei"_s;
    }
    return u"Other <&> \"ü\" "_s + word;
}

/** Items whose setting changes more than one line, or nothing. */
bool isSpecial(const QString &path)
{
    return path == u"device.activeFpgaFile"_s || path.startsWith(u"device.fpgaFiles"_s);
}

} // namespace

class tst_CConfigurationItems : public QObject
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

    void setOneItem_data();
    void setOneItem();
    void setEveryItem();
    void values_data();
    void values();
    void directoriesAreNormalised_data();
    void directoriesAreNormalised();
    void missingElementsAreCreated_data();
    void missingElementsAreCreated();
    void activeFpgaFile();
    void commentsAndElementsInAnItemStay();

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
    void kd2FilesAreOfKd2DrivesAlone();
    void withoutDocument();
    void manyEntries();

private:
    QByteArray m_sample;
};

void tst_CConfigurationItems::initTestCase()
{
    m_sample = sampleDocument();
    SOpened opened(m_sample);
    QVERIFY(opened.isOpen);
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_CConfigurationItems::acceptedPaths_data()
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

void tst_CConfigurationItems::acceptedPaths()
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

void tst_CConfigurationItems::refusedPaths_data()
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

void tst_CConfigurationItems::refusedPaths()
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

void tst_CConfigurationItems::anyKeyCanBeWritten()
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

void tst_CConfigurationItems::everyItemIsListed()
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

void tst_CConfigurationItems::itemsBelowAPath_data()
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

void tst_CConfigurationItems::itemsBelowAPath()
{
    QFETCH(QString, path);
    QFETCH(QString, items);
    const SOpened opened(m_sample);
    QCOMPARE(text(opened.items.items(path)), items);
    QCOMPARE(opened.items.errorText(), QString());
    QVERIFY(opened.items.contains(path));
}

void tst_CConfigurationItems::listedItemsCanBeRead()
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

void tst_CConfigurationItems::whatIsNotThereIsNotListed()
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

void tst_CConfigurationItems::entriesAreThoseOfTheReaders()
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
    for (const CParamFileElement &file : device.parameterFiles()) {
        expected << CConfigurationItems::entryPath(u"device.parameterFiles"_s, file.name());
    }
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
    QCOMPARE(opened.items.entries(),
             QStringList({u"device.parameterFiles[Deep]"_s, u"device.parameterFiles[Deeper]"_s,
                          u"device.parameterFiles[Flat]"_s, u"device.fpgaFiles[]"_s,
                          u"device.fpgaFiles[b]"_s, u"device.plugins[Deep]"_s,
                          u"device.plugins[]"_s, u"files[]"_s, u"files[y]"_s}));
    QCOMPARE(opened.value(u"device.parameterFiles[Deeper].name"_s), u"Deeper"_s);
}

void tst_CConfigurationItems::entriesOfOneKeyAreCounted()
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

void tst_CConfigurationItems::drivesAreKnownByTheirNumbers()
{
    QByteArray drives;
    for (const char *number : {"7", "007", " 8 ", "255", "0256", "-1", "left", ""}) {
        drives +=
            QByteArray("<SubDevice><Name>n</Name><DriveNo>") + number + "</DriveNo></SubDevice>";
    }
    const SOpened opened(
        documentOf("<Device>" + drives + "<SubDevice><Name>n</Name></SubDevice></Device>"));
    QCOMPARE(opened.items.entries(),
             QStringList({u"drive[7]"_s, u"drive[7][2]"_s, u"drive[8]"_s, u"drive[255]"_s,
                          u"drive[0256]"_s, u"drive[-1]"_s, u"drive[left]"_s, u"drive[]"_s,
                          u"drive[][2]"_s}));
    for (const QString &path : opened.items.entries()) {
        QCOMPARE(opened.value(path + u".name"_s), u"n"_s);
    }
    QCOMPARE(opened.value(u"drive[7][2].driveNo"_s), u"007"_s);
    QCOMPARE(opened.value(u"drive[08].driveNo"_s), u" 8 "_s);
}

void tst_CConfigurationItems::elements()
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

void tst_CConfigurationItems::setOneItem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    const SOpened opened(m_sample);
    for (const SItem &item : opened.items.items()) {
        if (!isSpecial(item.path)) {
            QTest::newRow(qPrintable(item.path)) << item.path << otherValue(item);
        }
    }
}

void tst_CConfigurationItems::setOneItem()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    SOpened opened(m_sample);
    const QString before = opened.value(path);
    QVERIFY(before != value);
    const bool isSet = opened.items.setValue(path, value);
    QVERIFY2(isSet, qPrintable(opened.items.errorText()));
    QCOMPARE(opened.items.errorText(), QString());
    QCOMPARE(opened.value(path), value);

    const SDifference difference(m_sample, opened.bytes());
    QCOMPARE(difference.removed.size(), 1);
    QCOMPARE(difference.added.size(), 1);
    const SOpened again(opened.bytes());
    QCOMPARE(again.value(path), value);

    QVERIFY(opened.items.setValue(path, before));
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_CConfigurationItems::setEveryItem()
{
    SOpened opened(m_sample);
    QList<SItem> expected;
    for (SItem item : opened.items.items()) {
        // The drives' types first, and the other way round, would hide and show their files.
        if (!isSpecial(item.path) && !item.path.endsWith(u"].type"_s)) {
            item.value = otherValue(item);
            QVERIFY2(opened.items.setValue(item.path, item.value),
                     qPrintable(opened.items.errorText()));
        }
        expected.append(item);
    }
    const SOpened again(opened.bytes());
    QVERIFY(again.isOpen);
    QCOMPARE(text(again.items.items()), text(expected));
    // The readers see the same.
    CDeviceElement device;
    const MessageCatcher messages;
    QVERIFY(again.file.configuration(device));
    QCOMPARE(device.comment(), u"Other <&> \"ü\" comment"_s);
    QCOMPARE(device.deviceClass(), NDeviceConf::DEVICE_CLASS_KC2);
    QCOMPARE(device.subDevice(2).busId(), 4294967295u);
    QCOMPARE(device.additionalFile(0).devicePath(), u"/other/<&>/"_s);
    QCOMPARE(device.plugins().at(1).priority(), std::numeric_limits<int>::min());
    QCOMPARE(again.file.description().creationDate(), QDate(2024, 2, 29));
}

void tst_CConfigurationItems::values_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("errorText");

    const auto good = [](const QString &path, const QString &value) {
        QTest::newRow(qPrintable(path + u" takes '"_s + value + u"'"_s))
            << path << value << QString();
    };
    const auto bad = [](const QString &path, const QString &value, const QString &reason) {
        QTest::newRow(qPrintable(path + u" refuses '"_s + value + u"'"_s))
            << path << value << path + u": "_s + reason;
    };
    const QString date = u"description.creationDate"_s;
    const QString noDate = u"'%1' is not a valid date; write one such as 2026-11-21"_s;
    good(date, u""_s);
    good(date, u"2024-02-29"_s);
    for (const QString &value : {u"2025-02-29"_s, u"2026-1-2"_s, u"21.11.2026"_s, u"20261121"_s,
                                 u"2026-11-21T10:00:00"_s, u" 2026-11-21"_s, u"today"_s}) {
        bad(date, value, noDate.arg(value));
    }
    for (const QString &value : {u"kc2"_s, u"Undefined"_s}) {
        good(u"device.class"_s, value);
    }
    for (const QString &value : {u"KD3"_s, u""_s, u"kd4"_s, u"undefined"_s}) {
        bad(u"device.class"_s, value,
            u"unknown device class '%1'; write kc2, kd3 or Undefined"_s.arg(value));
    }
    good(u"device.hardwareId"_s, u""_s);
    good(u"device.hardwareId"_s, u"A:B:65535:0:1"_s);
    for (const QString &value : {u"A"_s, u"A:B:1:2"_s, u"A:B:65536:0:1"_s, u"A:B:1:2:3:4"_s}) {
        bad(u"device.hardwareId"_s, value,
            u"'%1' is not a valid hardware identity; write "
            "PREFIX:NAME:PLATFORM:VERSION:REVISION"_s.arg(value));
    }
    good(u"device.opcUaEnabled"_s, u"false"_s);
    for (const QString &value : {u"TRUE"_s, u"1"_s, u"yes"_s, u""_s, u" true"_s}) {
        bad(u"device.opcUaEnabled"_s, value, u"'%1' is neither true nor false"_s.arg(value));
    }
    good(u"drive[0].busId"_s, u"0"_s);
    good(u"drive[0].busId"_s, u"4294967295"_s);
    for (const QString &value : {u"-1"_s, u"4294967296"_s, u""_s, u"+1"_s, u"1.0"_s, u"0x10"_s,
                                 u"007"_s, u" 7"_s, u"٣"_s, u"1,000"_s}) {
        bad(u"drive[0].busId"_s, value,
            u"'%1' is not a whole number from 0 to 4294967295"_s.arg(value));
    }
    good(u"device.plugins[motion].priority"_s, u"0"_s);
    good(u"device.plugins[motion].priority"_s, u"-2147483648"_s);
    good(u"device.plugins[motion].priority"_s, u"2147483647"_s);
    for (const QString &value : {u"2147483648"_s, u"-2147483649"_s, u""_s, u"high"_s, u"-0"_s}) {
        bad(u"device.plugins[motion].priority"_s, value,
            u"'%1' is not a whole number from -2147483648 to 2147483647"_s.arg(value));
    }
    const QString paramType = u"device.parameterFiles[LineParams].type"_s;
    for (const QString &value : {u"KC2Parameters"_s, u"VornMotorParameters"_s, u"Undefined"_s}) {
        good(paramType, value);
    }
    for (const QString &value : {u"vornparameters"_s, u""_s, u"10"_s}) {
        bad(paramType, value, u"unknown parameter file type '%1'"_s.arg(value));
    }
    good(u"drive[0].type"_s, u"KD2_drive"_s);
    for (const QString &value : {u"UNKNOWN_drive"_s, u"kd2_drive"_s, u""_s}) {
        bad(u"drive[0].type"_s, value,
            u"unknown drive type '%1'; write KD2_drive or KD3_drive"_s.arg(value));
    }
    const QString option = u"device.options[-trace]"_s;
    good(option, u"a b=-1 c-d"_s);
    for (const QString &value : {u"-1"_s, u"a -b"_s, u"-"_s}) {
        bad(option, value,
            u"a word in '%1' begins with '-' and would be read as an option"_s.arg(value));
    }
    for (const QString &value : {u" a"_s, u"a  b"_s, u"a\tb"_s, u"a\n"_s, u" "_s}) {
        bad(option, value, u"separate the words of an argument by single spaces"_s);
    }
    for (const QString &value : {u""_s, u" "_s, u"\t\r\n"_s, u"]]> &amp; <"_s, u"\U0001F600"_s}) {
        good(u"device.comment"_s, value);
    }
    const QList<QPair<QString, QString>> unwritable = {
        {u"a\u0001"_s, u"0001"_s},          {u"\u001b[0m"_s, u"001B"_s},
        {QString(QChar(0)), u"0000"_s},     {u"a\ufffe"_s, u"FFFE"_s},
        {u"\uffff"_s, u"FFFF"_s},           {QString(QChar(0xd83d)), u"D83D"_s},
        {QString(QChar(0xde00)), u"DE00"_s}};
    const QString reason = u"the character U+%1 cannot be stored in a configuration"_s;
    for (const auto &row : unwritable) {
        bad(u"device.comment"_s, row.first, reason.arg(row.second));
        bad(u"device.activeFpgaFile"_s, row.first, reason.arg(row.second));
        bad(option, row.first, reason.arg(row.second));
    }
    bad(u"drive[0].param.deviceDir"_s, u"a\u0001"_s, reason.arg(u"0001"_s));
    bad(u"files[recipes.csv].name"_s, u"a\u0001"_s, reason.arg(u"0001"_s));

    bad(u"device.activeFpgaFile"_s, u""_s, u"the name must not be empty"_s);
    bad(u"device.fpgaFiles[kd3_motion_v11.bit]"_s, u"x"_s,
        u"this path does not lead to a single value"_s);
    for (const QString &path : {u"device"_s, u"files"_s, u"files[recipes.csv]"_s,
                                u"device.dictionary"_s, u"device.options"_s}) {
        bad(path, u"x"_s, u"this path does not lead to a single value"_s);
    }
}

void tst_CConfigurationItems::values()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    QFETCH(QString, errorText);
    SOpened opened(m_sample);
    const bool isSet = opened.items.setValue(path, value);
    QCOMPARE(opened.items.errorText(), errorText);
    QCOMPARE(isSet, errorText.isEmpty());
    const QByteArray bytes = opened.bytes();
    if (!isSet) {
        QCOMPARE(bytes, m_sample);
        return;
    }
    const SOpened again(bytes);
    QVERIFY(again.isOpen);
    QCOMPARE(again.value(path), value);
}

void tst_CConfigurationItems::directoriesAreNormalised_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("onDevice");
    QTest::addColumn<QString>("inProject");
    QTest::newRow("relative") << u"a/b"_s << u"/a/b/"_s << u"a/b/"_s;
    QTest::newRow("absolute") << u"/a/b/"_s << u"/a/b/"_s << u"/a/b/"_s;
    QTest::newRow("back-slashes") << u"a\\b"_s << u"/a/b/"_s << u"a/b/"_s;
    QTest::newRow("upwards") << u"../a"_s << u"/../a/"_s << u"../a/"_s;
    QTest::newRow("empty") << u""_s << u""_s << u""_s;
}

void tst_CConfigurationItems::directoriesAreNormalised()
{
    QFETCH(QString, directory);
    QFETCH(QString, onDevice);
    QFETCH(QString, inProject);
    SOpened opened(m_sample);
    for (const QString &file :
         {u"files[recipes.csv]"_s, u"device.dictionary"_s, u"drive[2].kd2Logic"_s}) {
        QVERIFY(opened.items.setValue(file + u".deviceDir"_s, directory));
        QCOMPARE(opened.value(file + u".deviceDir"_s), onDevice);
        QVERIFY(opened.items.setValue(file + u".projectDir"_s, directory));
        QCOMPARE(opened.value(file + u".projectDir"_s), inProject);
    }
}

void tst_CConfigurationItems::missingElementsAreCreated_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("after");

    const QByteArray nothing = documentOf(" <Other/>\n");
    const QByteArray device = documentOf(" <Device>\n  <SubDevice>\n   <DriveNo>0</DriveNo>\n"
                                         "  </SubDevice>\n </Device>\n");
    const auto row = [](const char *name, const QByteArray &before, const QString &path,
                        const QString &value, const QByteArray &after) {
        QTest::newRow(name) << before << path << value << after;
    };
    row("device", nothing, u"device.name"_s, u"D"_s,
        documentOf(" <Other/>\n <Device>\n  <Name>D</Name>\n </Device>\n"));
    row("configuration block", nothing, u"device.opcUaEnabled"_s, u"true"_s,
        documentOf(" <Other/>\n <Device>\n  <Config>\n   <OpcUa>\n"
                   "    <OpcUaEnabled>true</OpcUaEnabled>\n   </OpcUa>\n  </Config>\n"
                   " </Device>\n"));
    row("description at the end", nothing, u"description.version"_s, u"2"_s,
        documentOf(" <Other/>\n <!--Project description-->\n <Description>\n"
                   "  <Version>2</Version>\n </Description>\n"));
    row("description before the device", documentOf(" <Device/>\n"), u"description.name"_s, u"N"_s,
        documentOf(" <!--Project description-->\n <Description>\n  <Name>N</Name>\n"
                   " </Description>\n <Device/>\n"));
    row("single file", documentOf(" <Device>\n  <Config/>\n </Device>\n"),
        u"device.dictionary.comment"_s, u"c"_s,
        documentOf(" <Device>\n  <Config>\n   <Dictionary>\n    <File>\n     <Name/>\n"
                   "     <Comment>c</Comment>\n     <DeviceDir/>\n     <ProjectDir/>\n"
                   "    </File>\n   </Dictionary>\n  </Config>\n </Device>\n"));
    row("file of a drive", device, u"drive[0].param.name"_s, u"p"_s,
        documentOf(" <Device>\n  <SubDevice>\n   <DriveNo>0</DriveNo>\n   <Param>\n    <File>\n"
                   "     <Name>p</Name>\n     <Comment/>\n     <DeviceDir/>\n     <ProjectDir/>\n"
                   "    </File>\n   </Param>\n  </SubDevice>\n </Device>\n"));
    row("type of a drive", device, u"drive[0].type"_s, u"KD3_drive"_s,
        documentOf(" <Device>\n  <SubDevice type=\"KD3_drive\">\n   <DriveNo>0</DriveNo>\n"
                   "  </SubDevice>\n </Device>\n"));
    row("item of a drive", device, u"drive[0].busId"_s, u"5"_s,
        documentOf(" <Device>\n  <SubDevice>\n   <DriveNo>0</DriveNo>\n   <BusId>5</BusId>\n"
                   "  </SubDevice>\n </Device>\n"));
    row("empty value", nothing, u"device.comment"_s, QString(),
        documentOf(" <Other/>\n <Device>\n  <Comment/>\n </Device>\n"));
    row("active image", documentOf(" <Device/>\n"), u"device.activeFpgaFile"_s, u"a.bit"_s,
        documentOf(" <Device>\n  <Config>\n   <FPGA_FileNames>\n    <File>\n"
                   "     <Name>a.bit</Name>\n    </File>\n   </FPGA_FileNames>\n  </Config>\n"
                   " </Device>\n"));
}

void tst_CConfigurationItems::missingElementsAreCreated()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, path);
    QFETCH(QString, value);
    QFETCH(QByteArray, after);
    SOpened opened(before);
    QCOMPARE(opened.bytes(), before);
    QVERIFY(!opened.items.contains(path));
    QVERIFY(opened.items.setValue(path, value));
    QCOMPARE(opened.value(path), value);
    QCOMPARE(opened.bytes(), after);
}

void tst_CConfigurationItems::activeFpgaFile()
{
    SOpened opened(m_sample);
    CConfigurationItems &items = opened.items;
    QVERIFY(items.setValue(u"device.activeFpgaFile"_s, u"kd3_motion_v12.bit"_s));
    QCOMPARE(opened.bytes(), m_sample);
    QVERIFY(items.setValue(u"device.activeFpgaFile"_s, u"kd3_motion_v11.bit"_s));
    QCOMPARE(opened.file.fpgaFiles(),
             QStringList({u"kd3_motion_v11.bit"_s, u"kd3_motion_v12.bit"_s}));
    QVERIFY(items.setValue(u"device.activeFpgaFile"_s, u"new.bit"_s));
    QCOMPARE(opened.file.fpgaFiles(),
             QStringList({u"new.bit"_s, u"kd3_motion_v11.bit"_s, u"kd3_motion_v12.bit"_s}));
    QVERIFY(items.setValue(u"device.fpgaFiles[new.bit]"_s, QString()));
    QVERIFY(items.remove(u"device.activeFpgaFile"_s));
    QVERIFY(items.setValue(u"device.activeFpgaFile"_s, u"kd3_motion_v12.bit"_s));
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_CConfigurationItems::commentsAndElementsInAnItemStay()
{
    SOpened opened(documentOf(" <Device>\n  <Name>ab<!--why--><Extra/></Name>\n </Device>\n"));
    QVERIFY(opened.items.setValue(u"device.name"_s, u"new"_s));
    QCOMPARE(opened.value(u"device.name"_s), u"new"_s);
    QVERIFY(opened.bytes().contains("<!--why-->"));
    QVERIFY(opened.bytes().contains("<Extra/>"));
}

void tst_CConfigurationItems::rename_data()
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
    row(file, QString(), u"files[recipes.csv].name: the name must not be empty"_s);
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
                + u": '%1' is not a valid option; write a word that begins with '-'"_s.arg(value));
    }
    row(drive, u"1"_s, QString());
    row(drive, u"3"_s, QString());
    row(drive, u"254"_s, QString());
    row(drive, u"2"_s, u"drive[2]: the drive already exists"_s);
    for (const QString &value : {u"255"_s, u"-1"_s, u""_s, u"03"_s, u"x"_s, u" 3"_s}) {
        row(drive, value,
            drive
                + u": '%1' is not a valid drive number; write a number from 0 to 254"_s.arg(value));
    }
}

void tst_CConfigurationItems::rename()
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

void tst_CConfigurationItems::renamedEntryIsFoundUnderItsNewName()
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

void tst_CConfigurationItems::add_data()
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

void tst_CConfigurationItems::add()
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

void tst_CConfigurationItems::addToNothing_data()
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

void tst_CConfigurationItems::addToNothing()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, after);
    SOpened opened(documentOf(QByteArray()));
    QVERIFY(opened.items.add(path));
    QCOMPARE(opened.bytes(), after);
}

void tst_CConfigurationItems::addedDriveIsAsAnInsertedOne_data()
{
    QTest::addColumn<QString>("deviceClass");
    QTest::newRow("KC2 controller") << u"kc2"_s;
    QTest::newRow("KD3 device") << u"kd3"_s;
    QTest::newRow("other") << u"Undefined"_s;
}

void tst_CConfigurationItems::addedDriveIsAsAnInsertedOne()
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

void tst_CConfigurationItems::remove_data()
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

void tst_CConfigurationItems::remove()
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

void tst_CConfigurationItems::removeASingleFileOfSeveral()
{
    // Only the first one counts, and none of them may step into its place.
    SOpened opened(configurationOf("<Dictionary><!--kept--><File><Name>a</Name></File>"
                                   "<File><Name>b</Name></File><Extra/></Dictionary>"));
    QCOMPARE(opened.value(u"device.dictionary.name"_s), u"a"_s);
    QVERIFY(opened.items.remove(u"device.dictionary"_s));
    QVERIFY(!opened.items.contains(u"device.dictionary"_s));
    QVERIFY(opened.bytes().contains("   <Dictionary>\n    <!--kept-->\n    <Extra/>\n"));
}

void tst_CConfigurationItems::optionsKeepTheirBlanks_data()
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

void tst_CConfigurationItems::optionsKeepTheirBlanks()
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

void tst_CConfigurationItems::failuresChangeNothing_data()
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
    row(true, u"files[]"_s, u"the name must not be empty"_s);
    row(true, u"files[a\u0001]"_s, u"the character U+0001 cannot be stored in a configuration"_s);
    row(true, u"files[recipes.csv]"_s, u"the file already exists"_s);
    row(true, u"files[recipes.csv][2]"_s, u"a second entry with the same key cannot be added"_s);
    row(true, u"drive[0]"_s, u"the drive already exists"_s);
    row(true, u"drive[255]"_s,
        u"'255' is not a valid drive number; write a number from 0 to 254"_s);
    row(true, u"drive[x]"_s, u"'x' is not a valid drive number; write a number from 0 to 254"_s);
    row(true, u"drive[]"_s, u"'' is not a valid drive number; write a number from 0 to 254"_s);
    row(true, u"device.options[-opc]"_s, u"the option already exists"_s);
    row(true, u"device.options[opc]"_s,
        u"'opc' is not a valid option; write a word that begins with '-'"_s);
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

void tst_CConfigurationItems::failuresChangeNothing()
{
    QFETCH(bool, isAdding);
    QFETCH(QString, path);
    QFETCH(QString, errorText);
    SOpened opened(m_sample);
    QVERIFY(!(isAdding ? opened.items.add(path) : opened.items.remove(path)));
    QCOMPARE(opened.items.errorText(), errorText);
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_CConfigurationItems::kd2FilesAreOfKd2DrivesAlone()
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

void tst_CConfigurationItems::withoutDocument()
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

void tst_CConfigurationItems::manyEntries()
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

QTEST_GUILESS_MAIN(tst_CConfigurationItems)
#include "tst_cconfigurationitems.moc"
