#include "commissioning/CConfigurationItems.h"
#include "support/ItemDocuments.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QMap>
#include <QTest>

using namespace ItemDocuments;

namespace {

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

/** How the value of an item is set. */
class tst_cconfigurationitems_setting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void setOneItem_data();
    void setOneItem();
    void setEveryItem();
    void values_data();
    void values();
    void directoriesAreNormalised_data();
    void directoriesAreNormalised();
    void missingElementsAreCreated_data();
    void missingElementsAreCreated();
    void removedItemsComeBackAtTheirPlace();
    void activeFpgaFile();
    void commentsAndElementsInAnItemStay();

private:
    QByteArray m_sample;
};

void tst_cconfigurationitems_setting::initTestCase()
{
    m_sample = sampleDocument();
    SOpened opened(m_sample);
    QVERIFY(opened.isOpen);
    QCOMPARE(opened.bytes(), m_sample);
}

void tst_cconfigurationitems_setting::setOneItem_data()
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

void tst_cconfigurationitems_setting::setOneItem()
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

void tst_cconfigurationitems_setting::setEveryItem()
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

void tst_cconfigurationitems_setting::values_data()
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
    const QString noDate = u"'%1' is not a valid date. Expected: a date such as 2026-11-21."_s;
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
            u"'%1' is not a valid device class. Expected: kc2, kd3."_s.arg(value));
    }
    good(u"device.hardwareId"_s, u""_s);
    good(u"device.hardwareId"_s, u"A:B:65535:0:1"_s);
    for (const QString &value : {u"A"_s, u"A:B:1:2"_s, u"A:B:65536:0:1"_s, u"A:B:1:2:3:4"_s}) {
        bad(u"device.hardwareId"_s, value,
            u"'%1' is not a valid hardware identity. Expected: "
            "PREFIX:NAME:PLATFORM:VERSION:REVISION."_s.arg(value));
    }
    good(u"device.opcUaEnabled"_s, u"false"_s);
    for (const QString &value : {u"TRUE"_s, u"1"_s, u"yes"_s, u""_s, u" true"_s}) {
        bad(u"device.opcUaEnabled"_s, value,
            u"'%1' is neither true nor false. Expected: true, false."_s.arg(value));
    }
    good(u"drive[0].busId"_s, u"0"_s);
    good(u"drive[0].busId"_s, u"4294967295"_s);
    for (const QString &value : {u"-1"_s, u"4294967296"_s, u""_s, u"+1"_s, u"1.0"_s, u"0x10"_s,
                                 u"007"_s, u" 7"_s, u"٣"_s, u"1,000"_s}) {
        bad(u"drive[0].busId"_s, value,
            u"'%1' is not a valid number. Expected: a number from 0 to 4294967295."_s.arg(value));
    }
    good(u"device.plugins[motion].priority"_s, u"0"_s);
    good(u"device.plugins[motion].priority"_s, u"-2147483648"_s);
    good(u"device.plugins[motion].priority"_s, u"2147483647"_s);
    for (const QString &value : {u"2147483648"_s, u"-2147483649"_s, u""_s, u"high"_s, u"-0"_s}) {
        bad(u"device.plugins[motion].priority"_s, value,
            u"'%1' is not a valid number. Expected: a number from -2147483648 to 2147483647."_s.arg(
                value));
    }
    const QString paramType = u"device.parameterFiles[LineParams].type"_s;
    for (const QString &value : {u"KC2Parameters"_s, u"VornMotorParameters"_s, u"Undefined"_s}) {
        good(paramType, value);
    }
    for (const QString &value : {u"vornparameters"_s, u""_s, u"10"_s}) {
        bad(paramType, value,
            u"'%1' is not a valid type of a parameter file. Expected: KC2Parameters, "
            u"KC2Compensation, VornParameters, VornConfigParams, VornDeviceDatabase, "
            u"VornPluginParameters, VornFirmwareDataBase, VornLogicDataBase, VornOemParameters, "
            u"VornMotorParameters, VornOptionModulDatabase."_s.arg(value));
    }
    good(u"drive[0].type"_s, u"KD2_drive"_s);
    for (const QString &value : {u"UNKNOWN_drive"_s, u"kd2_drive"_s, u""_s}) {
        bad(u"drive[0].type"_s, value,
            u"'%1' is not a valid type of a drive. Expected: KD2_drive, KD3_drive."_s.arg(value));
    }
    const QString option = u"device.options[-trace]"_s;
    good(option, u"a b=-1 c-d"_s);
    for (const QString &value :
         {u"-1"_s, u"a -b"_s, u"-"_s, u" a"_s, u"a  b"_s, u"a\tb"_s, u"a\n"_s, u" "_s}) {
        bad(option, value,
            u"'%1' is not a valid argument of a start option. Expected: words that do not begin "
            "with '-', with one space between each two."_s.arg(value));
    }
    for (const QString &value : {u""_s, u" "_s, u"\t\r\n"_s, u"]]> &amp; <"_s, u"\U0001F600"_s}) {
        good(u"device.comment"_s, value);
    }
    const QList<QPair<QString, QString>> unwritable = {
        {u"a\u0001"_s, u"0001"_s},          {u"\u001b[0m"_s, u"001B"_s},
        {QString(QChar(0)), u"0000"_s},     {u"a\ufffe"_s, u"FFFE"_s},
        {u"\uffff"_s, u"FFFF"_s},           {QString(QChar(0xd83d)), u"D83D"_s},
        {QString(QChar(0xde00)), u"DE00"_s}};
    const QString reason = u"The character U+%1 cannot be stored in a configuration."_s;
    for (const auto &row : unwritable) {
        bad(u"device.comment"_s, row.first, reason.arg(row.second));
        bad(u"device.activeFpgaFile"_s, row.first, reason.arg(row.second));
        bad(option, row.first, reason.arg(row.second));
    }
    bad(u"drive[0].param.deviceDir"_s, u"a\u0001"_s, reason.arg(u"0001"_s));
    bad(u"files[recipes.csv].name"_s, u"a\u0001"_s, reason.arg(u"0001"_s));

    bad(u"device.activeFpgaFile"_s, u""_s, u"The name is empty. Expected: a name."_s);
    bad(u"device.fpgaFiles[kd3_motion_v11.bit]"_s, u"x"_s,
        u"this path does not lead to a single value"_s);
    for (const QString &path : {u"device"_s, u"files"_s, u"files[recipes.csv]"_s,
                                u"device.dictionary"_s, u"device.options"_s}) {
        bad(path, u"x"_s, u"this path does not lead to a single value"_s);
    }
}

void tst_cconfigurationitems_setting::values()
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

void tst_cconfigurationitems_setting::directoriesAreNormalised_data()
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

void tst_cconfigurationitems_setting::directoriesAreNormalised()
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

void tst_cconfigurationitems_setting::missingElementsAreCreated_data()
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

void tst_cconfigurationitems_setting::missingElementsAreCreated()
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

void tst_cconfigurationitems_setting::removedItemsComeBackAtTheirPlace()
{
    const QByteArray example =
        Files::read(Places::source("examples/packaging-line/DeviceConfiguration.3deco"));
    int count = 0;
    for (const SItem &item : SOpened(example).items.items()) {
        SOpened opened(example);
        // What goes as a whole entry is no item any more.
        if (!isSpecial(item.path) && opened.items.remove(item.path)
            && opened.items.setValue(item.path, item.value)) {
            QCOMPARE(opened.bytes(), example);
            ++count;
        }
    }
    QVERIFY(count > 60);
}

void tst_cconfigurationitems_setting::activeFpgaFile()
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

void tst_cconfigurationitems_setting::commentsAndElementsInAnItemStay()
{
    SOpened opened(documentOf(" <Device>\n  <Name>ab<!--why--><Extra/></Name>\n </Device>\n"));
    QVERIFY(opened.items.setValue(u"device.name"_s, u"new"_s));
    QCOMPARE(opened.value(u"device.name"_s), u"new"_s);
    QVERIFY(opened.bytes().contains("<!--why-->"));
    QVERIFY(opened.bytes().contains("<Extra/>"));
}

REGISTER_GUILESS_TEST(tst_cconfigurationitems_setting)
#include "tst_cconfigurationitems_setting.moc"
