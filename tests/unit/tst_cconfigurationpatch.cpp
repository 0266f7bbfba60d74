#include "commissioning/CConfigurationComparison.h"
#include "commissioning/CConfigurationPatch.h"
#include "support/ComparedDocuments.h"
#include "support/MessageCatcher.h"
#include "support/RandomConfiguration.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace ComparedDocuments;
using SChange = CConfigurationPatch::SChange;
using SItem = CConfigurationItems::SItem;

Q_DECLARE_METATYPE(SChange)

namespace {

SChange added(const QString &path, const QList<SItem> &items = {})
{
    return {CConfigurationPatch::ADD_ENTRY, path, QString(), QString(), items};
}

SChange removed(const QString &path, const QList<SItem> &items = {})
{
    return {CConfigurationPatch::REMOVE_ENTRY, path, QString(), QString(), items};
}

SChange set(const QString &path, const QString &before, const QString &after)
{
    return {CConfigurationPatch::SET_ITEM, path, before, after, {}};
}

SChange cleared(const QString &path, const QString &before)
{
    return {CConfigurationPatch::REMOVE_ITEM, path, before, QString(), {}};
}

CConfigurationPatch patchOf(const QList<SChange> &changes)
{
    CConfigurationPatch patch;
    patch.setChanges(changes);
    return patch;
}

bool isSame(const QList<SItem> &left, const QList<SItem> &right)
{
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(),
        [](const SItem &a, const SItem &b) { return a.path == b.path && a.value == b.value; });
}

bool isSame(const QList<SChange> &left, const QList<SChange> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const SChange &a, const SChange &b) {
                          return a.change == b.change && a.path == b.path && a.before == b.before
                              && a.after == b.after && isSame(a.items, b.items);
                      });
}

/** A patch in JSON with one change, of whose object this is the inside. */
QByteArray withChange(const QByteArray &inside)
{
    return "{\"format\":\"vrn-configuration-patch\",\"version\":1,\"changes\":[{" + inside + "}]}";
}

QByteArray withHead(const QByteArray &head)
{
    return "{" + head + "}";
}

const QByteArray Format = "\"format\":\"vrn-configuration-patch\"";

} // namespace

/** Patches: how they read, how they are kept, and what they do to a document. */
class tst_cconfigurationpatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describe_data();
    void describe();
    void jsonIsFixed();
    void jsonRoundTrip_data();
    void jsonRoundTrip();
    void jsonRoundTripOfRandomPatches();
    void refused_data();
    void refused();
    void refusedKeepsThePatch();
    void apply_data();
    void apply();
    void applyKeepsTheRest();
    void mismatch_data();
    void mismatch();
    void everyMismatchIsTold();
    void checkChangesNothing();
    void withoutDocument();
    void emptyPatch();
    void hiddenFilesOfADriveStayHidden();
    void imagesOfOneFileName();
    void positionsAndHandlesStay();
};

void tst_cconfigurationpatch::describe_data()
{
    QTest::addColumn<SChange>("change");
    QTest::addColumn<QString>("expected");

    QTest::newRow("item of a drive") << set(u"drive[2].name"_s, u"DRIVE-2"_s, u"GRIPPER"_s)
                                     << u"drive 2: name DRIVE-2 -> GRIPPER"_s;
    QTest::newRow("drive added") << added(u"drive[3]"_s, {{u"name"_s, u"Stacker"_s}})
                                 << u"drive 3 (Stacker) added"_s;
    QTest::newRow("drive without name added")
        << added(u"drive[3]"_s, {{u"type"_s, u"KD2_drive"_s}, {u"param.name"_s, u"p"_s}})
        << u"drive 3 added\n    type KD2_drive\n    parameter file: name p"_s;
    QTest::newRow("file removed") << removed(u"files[recipes.csv]"_s)
                                  << u"file recipes.csv removed"_s;
    QTest::newRow("plug-in") << set(u"device.plugins[motion].priority"_s, u"20"_s, u"30"_s)
                             << u"plug-in motion: priority 20 -> 30"_s;
    QTest::newRow("option") << added(u"device.options[-trace]"_s) << u"option -trace added"_s;
    QTest::newRow("option with argument")
        << added(u"device.options[-trace]"_s, {{QString(), u"4"_s}})
        << u"option -trace added\n    argument 4"_s;
    QTest::newRow("argument of an option")
        << set(u"device.options[-trace]"_s, u"4"_s, u"5"_s) << u"option -trace: argument 4 -> 5"_s;
    QTest::newRow("device") << set(u"device.class"_s, u"kd3"_s, u"kc2"_s)
                            << u"device: class kd3 -> kc2"_s;
    QTest::newRow("item removed") << cleared(u"device.comment"_s, u"old"_s)
                                  << u"device: comment old -> (empty)"_s;
    QTest::newRow("description") << set(u"description.creationDate"_s, QString(), u"2026-11-21"_s)
                                 << u"description: creation date (empty) -> 2026-11-21"_s;
    QTest::newRow("active FPGA image")
        << set(u"device.activeFpgaFile"_s, u"a"_s, u"b"_s) << u"device: active FPGA image a -> b"_s;
    QTest::newRow("FPGA image") << removed(u"device.fpgaFiles[a.bit]"_s)
                                << u"FPGA image a.bit removed"_s;
    QTest::newRow("parameter file")
        << removed(u"device.parameterFiles[P]"_s) << u"parameter file P removed"_s;
    QTest::newRow("OPC UA file") << removed(u"device.opcUaFiles[n.xml]"_s)
                                 << u"OPC UA file n.xml removed"_s;
    QTest::newRow("single file") << set(u"device.dictionary.projectDir"_s, u"a/"_s, u"b/"_s)
                                 << u"object dictionary: project directory a/ -> b/"_s;
    QTest::newRow("single file removed")
        << removed(u"device.faultTextFile"_s, {{u"name"_s, u"F.xml"_s}, {u"comment"_s, u"c"_s}})
        << u"fault texts (F.xml) removed\n    comment c"_s;
    QTest::newRow("file of a drive") << set(u"drive[0].kd2Firmware.deviceDir"_s, u"/a/"_s, u"/b/"_s)
                                     << u"drive 0: KD2 firmware: device directory /a/ -> /b/"_s;
    QTest::newRow("file of a drive added") << added(u"drive[0].param"_s, {{u"name"_s, u"P"_s}})
                                           << u"drive 0: parameter file (P) added"_s;
    QTest::newRow("second of one name") << removed(u"files[a][2]"_s) << u"file a [2] removed"_s;
    QTest::newRow("escaped key") << removed(u"files[a\\]b\\\\c]"_s) << u"file a]b\\c removed"_s;
    QTest::newRow("empty key") << removed(u"files[]"_s) << u"file (empty) removed"_s;
    QTest::newRow("more than a line")
        << set(u"device.comment"_s, u"a\nb\"\\"_s, u"\r\t\u0001"_s)
        << u"device: comment \"a\\nb\\\"\\\\\" -> \"\\r\\t\\u0001\""_s;
    QTest::newRow("blanks at the ends")
        << set(u"device.comment"_s, u" a"_s, u"a "_s) << u"device: comment \" a\" -> \"a \""_s;
    QTest::newRow("what looks empty") << set(u"device.comment"_s, u"(empty)"_s, QString())
                                      << u"device: comment \"(empty)\" -> (empty)"_s;
    QTest::newRow("what looks like two values") << set(u"device.comment"_s, u"a -> b"_s, u"\"c\""_s)
                                                << u"device: comment \"a -> b\" -> \"\\\"c\\\"\""_s;
    QTest::newRow("what turns the line around")
        << set(u"device.comment"_s, u"\u202ea"_s, u"\u2028"_s)
        << u"device: comment \"\\u202ea\" -> \"\\u2028\""_s;
    QTest::newRow("beyond the basic plane") << set(u"device.comment"_s, u"\U0001f600"_s, u"ß"_s)
                                            << u"device: comment \U0001f600 -> ß"_s;
    QTest::newRow("half a character") << set(u"device.comment"_s, QString(QChar(0xd83d)), u"x"_s)
                                      << u"device: comment \"\\ud83d\" -> x"_s;
    QTest::newRow("byte-order mark") << set(u"device.comment"_s, u"\ufeffa"_s, u"b\ufeff"_s)
                                     << u"device: comment \"\\ufeffa\" -> \"b\\ufeff\""_s;
    QTest::newRow("placeholders in values")
        << set(u"files[%1].comment"_s, u"%2"_s, u"%1 %3"_s) << u"file %1: comment %2 -> %1 %3"_s;
    QTest::newRow("unknown words")
        << set(u"spare[x].part.word"_s, u"a"_s, u"b"_s) << u"spare x: part: word a -> b"_s;
}

void tst_cconfigurationpatch::describe()
{
    QFETCH(SChange, change);
    QFETCH(QString, expected);
    QCOMPARE(patchOf({change}).describe().join(QLatin1Char('\n')), expected);
    QCOMPARE(CConfigurationPatch::describe(change), expected.section(QLatin1Char('\n'), 0, 0));
}

void tst_cconfigurationpatch::jsonIsFixed()
{
    const CConfigurationPatch patch = patchOf(
        {set(u"drive[2].name"_s, u"DRIVE-2"_s, u"GRIPPER"_s), cleared(u"device.comment"_s, u"ß"_s),
         added(u"files[a]"_s, {{u"projectDir"_s, u"p/"_s}, {u"comment"_s, u"c"_s}}),
         removed(u"device.options[-v]"_s, {{QString(), u"4"_s}})});
    QCOMPARE(patch.toJson(), QByteArray(R"({
    "changes": [
        {
            "after": "GRIPPER",
            "before": "DRIVE-2",
            "change": "setItem",
            "path": "drive[2].name"
        },
        {
            "before": "ß",
            "change": "removeItem",
            "path": "device.comment"
        },
        {
            "change": "addEntry",
            "items": [
                {
                    "item": "projectDir",
                    "value": "p/"
                },
                {
                    "item": "comment",
                    "value": "c"
                }
            ],
            "path": "files[a]"
        },
        {
            "change": "removeEntry",
            "items": [
                {
                    "item": "",
                    "value": "4"
                }
            ],
            "path": "device.options[-v]"
        }
    ],
    "format": "vrn-configuration-patch",
    "version": 1
}
)"));
}

void tst_cconfigurationpatch::jsonRoundTrip_data()
{
    describe_data();
}

void tst_cconfigurationpatch::jsonRoundTrip()
{
    QFETCH(SChange, change);
    const CConfigurationPatch patch = patchOf({change});
    CConfigurationPatch read;
    QString error;
    QVERIFY2(read.readJson(patch.toJson(), error), qPrintable(error));
    QVERIFY(error.isEmpty());
    QVERIFY(isSame(read.changes(), patch.changes()));
}

void tst_cconfigurationpatch::jsonRoundTripOfRandomPatches()
{
    for (quint32 seed = 0; seed < 50; ++seed) {
        RandomConfiguration random(seed);
        const File before = random.document();
        const File after = random.document();
        const CConfigurationPatch patch = CConfigurationComparison::compare(*before, *after);
        CConfigurationPatch read;
        QString error;
        QVERIFY2(read.readJson(patch.toJson(), error), qPrintable(error));
        QVERIFY(isSame(read.changes(), patch.changes()));
        QCOMPARE(read.toJson(), patch.toJson());
    }
}

void tst_cconfigurationpatch::refused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const QByteArray &json, const char *reason) {
        QTest::newRow(name) << json << QString::fromLatin1(reason);
    };
    row("nothing", "", "not JSON");
    row("XML", example(), "not JSON: ");
    row("truncated", "{\"format\":", "at byte ");
    row("two documents", "{}{}", "not JSON");
    row("nested too deep", QByteArray(100000, '['), "not JSON: ");
    row("objects nested too deep", QByteArray("{\"a\":").repeated(100000), "not JSON: ");
    row("array", "[]", "not a patch");
    row("other format", withHead("\"format\":\"x\",\"version\":1,\"changes\":[]"), "not a patch");
    row("format is no text", withHead("\"format\":1,\"version\":1,\"changes\":[]"), "not a patch");
    row("no format", withHead("\"version\":1,\"changes\":[]"), "not a patch");
    row("no version", withHead(Format + ",\"changes\":[]"), "version 1 is required");
    row("later version", withHead(Format + ",\"version\":2,\"changes\":[]"),
        "version 1 is required");
    row("version as text", withHead(Format + ",\"version\":\"1\",\"changes\":[]"),
        "version 1 is required");
    row("version between", withHead(Format + ",\"version\":1.5,\"changes\":[]"),
        "version 1 is required");
    row("huge version", withHead(Format + ",\"version\":1e300,\"changes\":[]"),
        "version 1 is required");
    row("version beyond numbers", withHead(Format + ",\"version\":1e999,\"changes\":[]"), "");
    row("no changes", withHead(Format + ",\"version\":1"), "\"changes\" is missing");
    row("changes are an object", withHead(Format + ",\"version\":1,\"changes\":{}"),
        "\"changes\" is not an array");
    row("unknown key", withHead(Format + ",\"version\":1,\"changes\":[],\"x\":1"),
        "\"x\" is unknown");
    row("change is a text", withHead(Format + ",\"version\":1,\"changes\":[\"x\"]"),
        "Change 1: This is not an object");
    row("empty change", withChange(""),
        "Change 1: The value of \"change\" is not a known kind of change");
    row("unknown change", withChange("\"change\":\"move\",\"path\":\"device.name\""),
        "Change 1: The value of \"change\" is not a known kind of change");
    row("change is a number", withChange("\"change\":1"), "is not a known kind of change");
    row("path missing", withChange("\"change\":\"setItem\",\"before\":\"\",\"after\":\"\""),
        "Change 1: \"path\" is missing");
    row("path is null",
        withChange("\"change\":\"setItem\",\"path\":null,\"before\":\"\",\"after\":\"\""),
        "\"path\" is not a text");
    row("before missing",
        withChange("\"change\":\"setItem\",\"path\":\"device.name\",\"after\":\"\""),
        "\"before\" is missing");
    row("after missing",
        withChange("\"change\":\"setItem\",\"path\":\"device.name\",\"before\":\"\""),
        "\"after\" is missing");
    row("after is a number",
        withChange(
            "\"change\":\"setItem\",\"path\":\"device.name\",\"before\":\"\",\"after\":1e400"),
        "");
    row("after of what is removed",
        withChange("\"change\":\"removeItem\",\"path\":\"device.name\",\"before\":\"\","
                   "\"after\":\"\""),
        "\"after\" is unknown");
    row("unknown key of a change",
        withChange("\"change\":\"removeItem\",\"path\":\"device.name\",\"before\":\"\",\"x\":[]"),
        "\"x\" is unknown");
    row("items missing", withChange("\"change\":\"addEntry\",\"path\":\"files[a]\""),
        "\"items\" is missing");
    row("items are an object",
        withChange("\"change\":\"addEntry\",\"path\":\"files[a]\",\"items\":{}"),
        "\"items\" is not an array");
    row("item is a text",
        withChange("\"change\":\"addEntry\",\"path\":\"files[a]\",\"items\":[\"a\"]"),
        "\"item\" is missing");
    row("value is an array",
        withChange("\"change\":\"addEntry\",\"path\":\"files[a]\","
                   "\"items\":[{\"item\":\"a\",\"value\":[]}]"),
        "\"value\" is not a text");
    row("unknown key of an item",
        withChange("\"change\":\"addEntry\",\"path\":\"files[a]\","
                   "\"items\":[{\"item\":\"a\",\"value\":\"\",\"x\":1}]"),
        "\"x\" is unknown");
    row("item twice",
        withChange("\"change\":\"addEntry\",\"path\":\"files[a]\",\"items\":["
                   "{\"item\":\"a\",\"value\":\"1\"},{\"item\":\"a\",\"value\":\"2\"}]"),
        "The item \"a\" occurs more than once");
    row("path twice",
        withChange("\"change\":\"removeItem\",\"path\":\"device.name\",\"before\":\"a\"},"
                   "{\"change\":\"removeItem\",\"path\":\"device.name\",\"before\":\"a\""),
        "Change 2: \"device.name\" is changed more than once");
    for (const char *path :
         {"", ".", "device.", ".name", "files[", "files[a", "files[a\\\\", "files[a]b", "files[a].",
          "files[a][1]", "files[a][02]", "files[a][x]", "files[a][2", "files[a][99999999999]"}) {
        QTest::addRow("no path: %s", path) << withChange("\"change\":\"removeItem\",\"path\":\""
                                                         + QByteArray(path) + "\",\"before\":\"a\"")
                                           << u"is not a valid path"_s;
    }
}

void tst_cconfigurationpatch::refused()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    CConfigurationPatch patch;
    QString error;
    QVERIFY(!patch.readJson(json, error));
    QVERIFY2(!error.isEmpty() && error.contains(reason), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY(patch.isEmpty());
}

void tst_cconfigurationpatch::refusedKeepsThePatch()
{
    CConfigurationPatch patch = patchOf({removed(u"files[a]"_s)});
    QString error;
    QVERIFY(!patch.readJson(withChange(""), error));
    QCOMPARE(patch.changes().size(), 1);
    QVERIFY(patch.readJson(patch.toJson(), error));
    QVERIFY(error.isEmpty());
}

void tst_cconfigurationpatch::apply_data()
{
    QTest::addColumn<SChange>("change");
    QTest::addColumn<QByteArray>("replacement");

    const auto row = [](const char *name, const SChange &change, const QByteArray &replacement) {
        QTest::newRow(name) << change << replacement;
    };
    row("item of a drive", set(u"drive[2].name"_s, u"Gluer"_s, u"GRIPPER"_s),
        "<Name>Gluer|<Name>GRIPPER");
    row("item removed", cleared(u"device.comment"_s, u"Folding box line 4, hall B"_s),
        "  <Comment>Folding box line 4, hall B</Comment>\n|");
    row("argument of an option", set(u"device.options[-trace]"_s, QString(), u"4"_s),
        "-trace|-trace 4");
    row("option removed", removed(u"device.options[-autostart]"_s), "-autostart |");
    row("option added", added(u"device.options[-v]"_s, {{QString(), u"1 2"_s}}),
        "-opc|-opc -v 1 2");
    row("plug-in", set(u"device.plugins[motion].priority"_s, u"20"_s, u"30"_s),
        "<Priority>20|<Priority>30");
    row("active FPGA image",
        set(u"device.activeFpgaFile"_s, u"kd3_motion_v12.bit"_s, u"kd3_motion_v11.bit"_s),
        "     <Name>kd3_motion_v12.bit</Name>\n    </File>\n    <File>\n"
        "     <Name>kd3_motion_v11.bit</Name>|"
        "     <Name>kd3_motion_v11.bit</Name>\n    </File>\n    <File>\n"
        "     <Name>kd3_motion_v12.bit</Name>");
    row("FPGA image removed", removed(u"device.fpgaFiles[kd3_motion_v11.bit]"_s),
        "    <File>\n     <Name>kd3_motion_v11.bit</Name>\n    </File>\n|");
    row("file added",
        added(u"files[a]"_s, {{u"projectDir"_s, u"p/"_s}, {u"deviceDir"_s, u"/d/"_s}}),
        "    </File>\n   </Files>\n|    </File>\n    <File>\n     <Name>a</Name>\n     <Comment/>\n"
        "     <DeviceDir>/d/</DeviceDir>\n     <ProjectDir>p/</ProjectDir>\n    </File>\n"
        "   </Files>\n");
    row("parameter file added", added(u"device.parameterFiles[P]"_s, {{u"comment"_s, u"c"_s}}),
        "   </ParameterFiles>\n|    <File>\n     <Name>P</Name>\n     <Comment>c</Comment>\n"
        "    </File>\n   </ParameterFiles>\n");
    row("plug-in added", added(u"device.plugins[P]"_s, {{u"priority"_s, u"-1"_s}}),
        "   </Plugins>\n|    <Plugin>\n     <Name>P</Name>\n     <Version/>\n"
        "     <Priority>-1</Priority>\n    </Plugin>\n   </Plugins>\n");
    row("drive added", added(u"drive[3]"_s, {{u"busId"_s, u"9"_s}, {u"type"_s, u"KD3_drive"_s}}),
        "</SubDevice>\n </Device>|</SubDevice>\n  <SubDevice type=\"KD3_drive\">\n"
        "   <Comment/>\n   <DriveNo>3</DriveNo>\n   <BusId>9</BusId>\n  </SubDevice>\n </Device>");
    row("KD2 drive added, its type comes last",
        added(
            u"drive[3]"_s,
            {{u"busId"_s, u"9"_s}, {u"kd2Logic.name"_s, u"l.bit"_s}, {u"type"_s, u"KD2_drive"_s}}),
        "</SubDevice>\n </Device>|</SubDevice>\n  <SubDevice type=\"KD2_drive\">\n"
        "   <Comment/>\n   <DriveNo>3</DriveNo>\n   <BusId>9</BusId>\n   <KD2Logic>\n"
        "    <File>\n     <Name>l.bit</Name>\n     <Comment/>\n     <DeviceDir/>\n"
        "     <ProjectDir/>\n    </File>\n   </KD2Logic>\n  </SubDevice>\n </Device>");
    row("value in another spelling",
        set(u"files[recipes.csv].deviceDir"_s, u"velkor\\configurations/STD/conf"_s, u"x\\y"_s),
        "<DeviceDir>/velkor/configurations/STD/conf/</DeviceDir>\n     "
        "<ProjectDir>PackagingLine/velkor/conf/</ProjectDir>\n    </File>\n   </Files>|"
        "<DeviceDir>/x/y/</DeviceDir>\n     <ProjectDir>PackagingLine/velkor/conf/</ProjectDir>\n"
        "    </File>\n   </Files>");
    row("same value", set(u"device.name"_s, u"PackagingLine"_s, u"PackagingLine"_s), "<|<");
}

void tst_cconfigurationpatch::apply()
{
    QFETCH(SChange, change);
    QFETCH(QByteArray, replacement);
    const QByteArray expected = changed(example(), {replacement});
    QVERIFY(!expected.isEmpty());
    const File file = load(example());
    QStringList mismatches = {u"old"_s};
    const CConfigurationPatch patch = patchOf({change});
    QVERIFY2(patch.check(*file, mismatches), qPrintable(mismatches.join(QLatin1Char('\n'))));
    QCOMPARE(saved(*file), example());
    QVERIFY2(patch.apply(*file, mismatches), qPrintable(mismatches.join(QLatin1Char('\n'))));
    QVERIFY(mismatches.isEmpty());
    QCOMPARE(QString::fromUtf8(saved(*file)), QString::fromUtf8(expected));
}

void tst_cconfigurationpatch::applyKeepsTheRest()
{
    const QByteArray marked =
        changed(example(),
                {"<Device>|<!--mine--><Device mark=\"1\"><Mine>x</Mine>",
                 "<Plugin>\n     <Name>motion|<Plugin mark=\"2\"><!--2--><Mine/><Name>motion",
                 "<Name>Gluer|<Mine/><!--3--><Name mark=\"3\">Gluer"});
    const File file = load(marked);
    const QByteArray before = saved(*file);
    QStringList mismatches;
    const CConfigurationPatch patch =
        patchOf({set(u"device.plugins[motion].priority"_s, u"20"_s, u"30"_s),
                 set(u"drive[2].name"_s, u"Gluer"_s, u"GRIPPER"_s)});
    QVERIFY(patch.apply(*file, mismatches));
    QCOMPARE(saved(*file), changed(before, {"<Priority>20|<Priority>30", ">Gluer<|>GRIPPER<"}));
}

void tst_cconfigurationpatch::mismatch_data()
{
    QTest::addColumn<SChange>("change");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const SChange &change, const QString &expected) {
        QTest::newRow(name) << change << expected;
    };
    row("other value", set(u"drive[2].name"_s, u"Knife"_s, u"GRIPPER"_s),
        u"drive 2: name is Gluer, but Knife is expected."_s);
    row("value where none is expected", set(u"drive[2].name"_s, QString(), u"GRIPPER"_s),
        u"drive 2: name is Gluer, but (empty) is expected."_s);
    row("other value of what is removed", cleared(u"device.comment"_s, u"x"_s),
        u"device: comment is Folding box line 4, hall B, but x is expected."_s);
    row("no such drive", set(u"drive[3].name"_s, QString(), u"GRIPPER"_s),
        u"drive 3 does not exist."_s);
    row("drive to remove is not there", removed(u"drive[3]"_s), u"drive 3 does not exist."_s);
    row("second entry of a name", removed(u"files[recipes.csv][2]"_s),
        u"file recipes.csv [2] does not exist."_s);
    row("drive to add is there", added(u"drive[2]"_s), u"drive 2 already exists."_s);
    row("single file to add is there", added(u"device.dictionary"_s),
        u"object dictionary already exists."_s);
    row("single file to remove is not there", removed(u"drive[0].kd2Param"_s),
        u"drive 0: KD2 parameter file does not exist."_s);
    row("other item of what is removed",
        removed(u"device.plugins[motion]"_s, {{u"priority"_s, u"20"_s}, {u"version"_s, u"3"_s}}),
        u"plug-in motion: version is 2, but 3 is expected."_s);
    row("more items of what is removed",
        removed(u"device.plugins[motion]"_s, {{u"priority"_s, u"20"_s}}),
        u"plug-in motion: version is 2, but (empty) is expected."_s);
    row("FPGA image to activate is not there",
        set(u"device.activeFpgaFile"_s, u"kd3_motion_v12.bit"_s, u"x.bit"_s),
        u"the FPGA image does not exist"_s);
    row("no such item", set(u"device.nme"_s, QString(), u"x"_s), u"unknown item"_s);
    row("no class", set(u"device.class"_s, u"kd3"_s, u"kd9"_s),
        u"'kd9' is not a valid device class"_s);
    row("no text", set(u"device.name"_s, u"PackagingLine"_s, u"a\u0001"_s),
        u"The character U+0001 cannot be stored"_s);
    row("no text of an entry", added(u"files[a]"_s, {{u"comment"_s, QString(QChar(0xd800))}}),
        u"The character U+D800 cannot be stored"_s);
    row("no number", added(u"device.plugins[a]"_s, {{u"priority"_s, u"1e9"_s}}),
        u"'1e9' is not a valid number"_s);
    row("no drive number", added(u"drive[255]"_s), u"'255' is not a valid drive number"_s);
    row("no option", added(u"device.options[trace]"_s), u"'trace' is not a valid start option"_s);
    row("empty name", added(u"files[]"_s), u"The name is empty"_s);
    row("second of one name", added(u"files[recipes.csv][2]"_s),
        u"a second entry with the same key cannot be added"_s);
    row("item that no such entry has", added(u"files[a]"_s, {{u"busId"_s, u"1"_s}}),
        u"unknown item"_s);
    row("KD2 file of a KD3 drive", added(u"drive[0].kd2Logic"_s, {{u"name"_s, u"l"_s}}),
        u"only a drive of the type KD2_drive has this file"_s);
    row("list to remove", removed(u"device.options"_s), u"options does not exist."_s);
    row("not a valid path", removed(u"files[a"_s), u"'files[a' is not a valid path."_s);
    row("no list", removed(u"spare[a]"_s), u"spare a does not exist."_s);
    row("list to add to", added(u"spare[a]"_s), u"unknown item"_s);
}

void tst_cconfigurationpatch::mismatch()
{
    QFETCH(SChange, change);
    QFETCH(QString, expected);
    const File file = load(example());
    QStringList mismatches;
    const MessageCatcher catcher;
    const CConfigurationPatch patch = patchOf({set(u"device.configurationName"_s, u"STD"_s, u"x"_s),
                                               change, removed(u"device.options[-autostart]"_s)});
    QVERIFY(!patch.check(*file, mismatches));
    QVERIFY(!patch.apply(*file, mismatches));
    QCOMPARE(mismatches.size(), 1);
    QVERIFY2(mismatches.constFirst().contains(expected), qPrintable(mismatches.constFirst()));
    QCOMPARE(saved(*file), example());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cconfigurationpatch::everyMismatchIsTold()
{
    const File file = load(example());
    QStringList mismatches;
    const CConfigurationPatch patch =
        patchOf({set(u"drive[2].name"_s, u"a"_s, u"b"_s), removed(u"files[x]"_s),
                 removed(u"device.plugins[motion]"_s, {{u"priority"_s, u"1"_s}})});
    QVERIFY(!patch.apply(*file, mismatches));
    QCOMPARE(
        mismatches,
        QStringList({u"drive 2: name is Gluer, but a is expected."_s, u"file x does not exist."_s,
                     u"plug-in motion: priority is 20, but 1 is expected."_s,
                     u"plug-in motion: version is 2, but (empty) is expected."_s}));
}

void tst_cconfigurationpatch::checkChangesNothing()
{
    const File file = load(example());
    const QDomDocument document = file->domDocument();
    QStringList mismatches;
    QVERIFY(patchOf({removed(u"device.options[-trace]"_s)}).check(*file, mismatches));
    QCOMPARE(saved(*file), example());
    QVERIFY(file->domDocument() == document);
}

void tst_cconfigurationpatch::withoutDocument()
{
    CDeviceConfigurationFile10 file(nullptr);
    QStringList mismatches;
    QVERIFY(!patchOf({}).apply(file, mismatches));
    QCOMPARE(mismatches, QStringList{u"The document contains no configuration."_s});
}

void tst_cconfigurationpatch::emptyPatch()
{
    const File file = load(example());
    QStringList mismatches = {u"old"_s};
    const CConfigurationPatch patch;
    QVERIFY(patch.isEmpty());
    QCOMPARE(patch.describe(), QStringList());
    QVERIFY(patch.apply(*file, mismatches));
    QVERIFY(mismatches.isEmpty());
    QCOMPARE(saved(*file), example());
}

void tst_cconfigurationpatch::hiddenFilesOfADriveStayHidden()
{
    // The drive has the elements of a KD2 drive, which do not count for a KD3 drive.
    const File before = load(changed(example(), {"type=\"KD2_drive\"|type=\"KD3_drive\""}));
    const CConfigurationPatch patch =
        patchOf({set(u"drive[2].type"_s, u"KD3_drive"_s, u"KD2_drive"_s),
                 added(u"drive[2].kd2Logic"_s, {{u"name"_s, u"new.bit"_s}})});
    QStringList mismatches;
    QVERIFY2(patch.apply(*before, mismatches), qPrintable(mismatches.join(QLatin1Char('\n'))));
    CConfigurationItems items(*before);
    QVERIFY(!items.contains(u"drive[2].kd2Param.name"_s));
    QVERIFY(!items.contains(u"drive[2].kd2Firmware.name"_s));
    QString name;
    QVERIFY(items.value(u"drive[2].kd2Logic.name"_s, name));
    QCOMPARE(name, u"new.bit"_s);
    QVERIFY(items.value(u"drive[2].param.name"_s, name));
    QCOMPARE(name, u"Gluer.3param"_s);
}

void tst_cconfigurationpatch::imagesOfOneFileName()
{
    const File file = load(example());
    QVERIFY(file->setFpgaFiles({u"a/x.bit"_s, u"x.bit"_s, u"b/x.bit"_s}));
    QStringList mismatches;
    QVERIFY(patchOf({set(u"device.activeFpgaFile"_s, u"a/x.bit"_s, u"b/x.bit"_s)})
                .apply(*file, mismatches));
    QCOMPARE(file->fpgaFiles(), QStringList({u"b/x.bit"_s, u"a/x.bit"_s, u"x.bit"_s}));
}

void tst_cconfigurationpatch::positionsAndHandlesStay()
{
    CDeviceConfigurationFile10 file(nullptr);
    file.keepPositions(true);
    QVERIFY(file.load(example()));
    const QDomElement device = file.findDeviceElement();
    const qint64 line = file.position(device).line;
    QVERIFY(line > 0);
    QStringList mismatches;
    QVERIFY(patchOf({cleared(u"device.configurationName"_s, u"STD"_s)}).apply(file, mismatches));
    QVERIFY(file.findDeviceElement() == device);
    QCOMPARE(file.position(device).line, line);
    QVERIFY(device.firstChildElement(u"ConfigurationName"_s).isNull());
}

REGISTER_GUILESS_TEST(tst_cconfigurationpatch)
#include "tst_cconfigurationpatch.moc"
