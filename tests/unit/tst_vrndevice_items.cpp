#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/ItemCommands.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace ItemCommands;

using Tool::SResult;

namespace {

/** "path=value" of each. */
QStringList items(const QJsonObject &json)
{
    QStringList result;
    for (const QJsonValue item : json.value(u"items"_s).toArray()) {
        const QJsonObject object = item.toObject();
        result << toJson(object.value(u"path"_s).toString(), object.value(u"value"_s).toString());
    }
    return result;
}

} // namespace

/** The commands that read and change items, format files, and begin with a template. */
class tst_vrndevice_items : public ItemCommandTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void usage_data();
    void usage();
    void help();
    void unreadableInput_data();
    void unreadableInput();
    void failuresLeaveTheFile_data();
    void failuresLeaveTheFile();

    void getOneItem_data();
    void getOneItem();
    void getSeveralItems();
    void getJson();
    void getPrintsLinesOfAValue();

    void setOneItem();
    void setSeveralItems();
    void setPutsBackWhatWasRemoved_data();
    void setPutsBackWhatWasRemoved();
    void setJson();
    void setValueWithHyphen();
    void addEntryWithItems();
    void addJson();
    void removeEntries();
    void removeJson();
    void filters_data();
    void filters();
    void fullDisk_data();
    void fullDisk();
};

void tst_vrndevice_items::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errors");

    QTest::newRow("get: nothing") << QStringList{u"get"_s} << u"The argument FILE is missing."_s;
    QTest::newRow("get: too much")
        << QStringList{u"get"_s, FileName, u"a"_s, u"b"_s} << u"Unexpected argument 'b'."_s;
    QTest::newRow("set: no path") << QStringList{u"set"_s, FileName}
                                  << u"The argument PATH is missing."_s;
    QTest::newRow("set: no value")
        << QStringList{u"set"_s, FileName, u"device.name"_s} << u"The argument VALUE is missing."_s;
    QTest::newRow("set: no second value")
        << QStringList{u"set"_s, FileName, u"device.name"_s, u"N"_s, u"device.comment"_s}
        << u"Each path needs a value."_s;
    QTest::newRow("add: no path") << QStringList{u"add"_s, FileName}
                                  << u"The argument PATH is missing."_s;
    QTest::newRow("add: no value")
        << QStringList{u"add"_s, FileName, u"drive[7]"_s, u"drive[7].name"_s}
        << u"Each path needs a value."_s;
    QTest::newRow("remove: no path")
        << QStringList{u"remove"_s, FileName} << u"The argument PATH is missing."_s;
    QTest::newRow("set: two outputs")
        << QStringList{u"set"_s, u"--json"_s, u"-"_s, u"device.name"_s, u"N"_s} << u"--json"_s;
    QTest::newRow("fmt: nothing") << QStringList{u"fmt"_s} << u"The argument FILE is missing."_s;
    QTest::newRow("fmt: two outputs") << QStringList{u"fmt"_s, u"--json"_s, u"-"_s} << u"--json"_s;
    QTest::newRow("fmt: two documents")
        << QStringList{u"fmt"_s, u"-"_s, FileName} << u"cannot be combined with other files"_s;
    QTest::newRow("new: no file") << QStringList{u"new"_s, u"--class=kd3"_s, u"--name=N"_s}
                                  << u"FILE is missing."_s;
    QTest::newRow("new: no name") << QStringList{u"new"_s, u"x"_s, u"--template=kd3-drive"_s}
                                  << u"--name is missing."_s;
    QTest::newRow("new: no class")
        << QStringList{u"new"_s, u"x"_s, u"--template=kd3-drive"_s, u"--class=kd4"_s, u"--name=N"_s}
        << u"--class must be kc2 or kd3."_s;
    QTest::newRow("new: two outputs")
        << QStringList{u"new"_s, u"-"_s, u"--json"_s, u"--class=kd3"_s, u"--name=N"_s}
        << u"--json"_s;
}

void tst_vrndevice_items::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, errors);
    const SResult result = run(arguments, m_example);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
    QCOMPARE(bytes(), m_example);
    QCOMPARE(Files::names(m_directory->path()), QStringList{FileName});
}

void tst_vrndevice_items::help()
{
    for (const QString &command : {u"get"_s, u"set"_s, u"add"_s, u"remove"_s, u"fmt"_s, u"new"_s}) {
        const SResult result = run({command, u"--help"_s});
        QCOMPARE(result.exitCode, 0);
        QVERIFY(result.output.startsWith(u"Usage: vrndevice %1 "_s.arg(command)));
        const QString example = u":\n  vrndevice "_s + command;
        QVERIFY(result.output.contains(u"Example"_s + example)
                || result.output.contains(u"Examples"_s + example));
    }
}

void tst_vrndevice_items::unreadableInput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("get") << QStringList{u"get"_s, u"missing"_s};
    QTest::newRow("set") << QStringList{u"set"_s, u"missing"_s, u"device.name"_s, u"N"_s};
    QTest::newRow("add") << QStringList{u"add"_s, u"missing"_s, u"drive[7]"_s};
    QTest::newRow("remove") << QStringList{u"remove"_s, u"missing"_s, u"drive[0]"_s};
    QTest::newRow("fmt") << QStringList{u"fmt"_s, u"missing"_s};
    QTest::newRow("fmt --check") << QStringList{u"fmt"_s, u"--check"_s, u"missing"_s};
}

void tst_vrndevice_items::unreadableInput()
{
    QFETCH(QStringList, arguments);
    const SResult missing = run(arguments);
    QCOMPARE(missing.exitCode, 3);
    QVERIFY2(missing.errors.contains(u"missing"_s), qPrintable(missing.errors));
    QCOMPARE(missing.output, QString());

    arguments.replace(arguments.indexOf(u"missing"_s), u"-"_s);
    for (const QByteArray &input : {QByteArray(), m_example.chopped(20)}) {
        const SResult broken = run(arguments, input);
        QCOMPARE(broken.exitCode, 3);
        QVERIFY(!broken.errors.isEmpty());
        QCOMPARE(broken.output, QString());
    }
    arguments.replace(arguments.indexOf(u"-"_s), u"."_s);
    QCOMPARE(run(arguments).exitCode, 3);
}

void tst_vrndevice_items::failuresLeaveTheFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const QStringList &arguments, const QString &reason) {
        QTest::newRow(name) << arguments << reason;
    };
    row("get: no drive", {u"get"_s, u"drive[7]"_s}, u"drive[7]: the drive does not exist"_s);
    row("get: no item", {u"get"_s, u"device.coment"_s},
        u"device.coment: unknown item; did you mean device.comment?"_s);
    row("get: no path", {u"get"_s, QString()},
        u"'' is not a valid path: a word is missing at character 1"_s);
    row("set: second", {u"set"_s, u"device.name"_s, u"N"_s, u"drive[7].name"_s, u"x"_s},
        u"drive[7]: the drive does not exist"_s);
    row("set: value", {u"set"_s, u"device.name"_s, u"N"_s, u"drive[0].busId"_s, u"x"_s},
        u"drive[0].busId: 'x' is not a valid number. Expected: a number from 0 to 4294967295."_s);
    row("add: there", {u"add"_s, u"drive[0]"_s}, u"drive[0]: the drive already exists"_s);
    row("add: value", {u"add"_s, u"drive[7]"_s, u"drive[7].busId"_s, u"x"_s},
        u"drive[7].busId: 'x' is not a valid number. Expected: a number from 0 to 4294967295."_s);
    row("remove: second", {u"remove"_s, u"drive[0]"_s, u"drive[7]"_s},
        u"drive[7]: the drive does not exist"_s);
    row("remove: twice", {u"remove"_s, u"drive[0]"_s, u"drive[0]"_s},
        u"drive[0]: the drive does not exist"_s);
}

void tst_vrndevice_items::failuresLeaveTheFile()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    arguments.insert(1, FileName);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.errors, u"vrndevice: error: %1: %2\n"_s.arg(FileName, reason));
    QCOMPARE(result.output, QString());
    QCOMPARE(bytes(), m_example);
    arguments[1] = u"-"_s;
    const SResult filtered = run(arguments, m_example);
    QCOMPARE(filtered.exitCode, 1);
    QCOMPARE(filtered.errors, u"vrndevice: error: standard input: %1\n"_s.arg(reason));
    QCOMPARE(filtered.output, QString());
}

void tst_vrndevice_items::getOneItem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    QTest::newRow("text") << u"device.comment"_s << u"Folding box line 4, hall B"_s;
    QTest::newRow("empty") << u"drive[0].comment"_s << QString();
    QTest::newRow("option") << u"device.options[-opc]"_s << QString();
    QTest::newRow("key") << u"drive[2].driveNo"_s << u"2"_s;
}

void tst_vrndevice_items::getOneItem()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    const SResult result = run({u"get"_s, FileName, path});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, value + u'\n');
    QCOMPARE(result.errors, QString());
    QCOMPARE(run({u"get"_s, u"-"_s, path}, m_example).output, value + u'\n');
    const QJsonObject json = run({u"get"_s, u"--json"_s, FileName, path}).json();
    QCOMPARE(items(json), QStringList{toJson(path, value)});
}

void tst_vrndevice_items::getSeveralItems()
{
    const SResult entry = run({u"get"_s, FileName, u"device.plugins[motion]"_s});
    QCOMPARE(entry.exitCode, 0);
    QCOMPARE(entry.output,
             u"device.plugins[motion].version = 2\n"
             "device.plugins[motion].priority = 20\n"_s);
    QVERIFY(run({u"remove"_s, FileName, u"files[recipes.csv]"_s}).exitCode == 0);
    const SResult nothing = run({u"get"_s, FileName, u"files"_s});
    QCOMPARE(nothing.exitCode, 0);
    QCOMPARE(nothing.output, QString());

    const SResult all = run({u"get"_s, FileName});
    QCOMPARE(all.exitCode, 0);
    const QStringList lines = all.output.split(u'\n');
    QCOMPARE(lines.first(), u"description.name = Packaging line"_s);
    QCOMPARE(lines.at(lines.size() - 2),
             u"drive[2].kd2Firmware.projectDir = PackagingLine/velkor/subdevices/2/firmware/"_s);
    QVERIFY(all.output.contains(u"\ndevice.options[-trace] = \n"_s));
}

void tst_vrndevice_items::getJson()
{
    const QJsonObject json = run({u"get"_s, u"--json"_s, FileName}).json();
    QCOMPARE(json.keys(), QStringList{u"items"_s});
    QStringList lines;
    for (const QString &item : items(json)) {
        lines << QString(item).replace(item.indexOf(u'='), 1, u" = "_s);
    }
    QCOMPARE(lines.join(u'\n') + u'\n', run({u"get"_s, FileName}).output);
}

void tst_vrndevice_items::getPrintsLinesOfAValue()
{
    QCOMPARE(run({u"set"_s, FileName, u"device.comment"_s, u"one\ntwo = 2\n"_s}).exitCode, 0);
    QCOMPARE(run({u"get"_s, FileName, u"device.comment"_s}).output, u"one\ntwo = 2\n\n"_s);
    const QString all = run({u"get"_s, FileName}).output;
    QVERIFY(all.contains(u"\ndevice.comment = one\n\ttwo = 2\n\t\ndevice.class = kd3\n"_s));
}

void tst_vrndevice_items::setOneItem()
{
    const SResult result = run({u"set"_s, FileName, u"drive[2].busId"_s, u"1003"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"drive[2].busId = 1003\n"_s);
    QCOMPARE(result.errors, QString());
    QByteArray expected = m_example;
    QCOMPARE(bytes(), expected.replace("<BusId>7<", "<BusId>1003<"));
}

void tst_vrndevice_items::setSeveralItems()
{
    const SResult result =
        run({u"set"_s, FileName, u"device.name"_s, u"Größe <&>"_s, u"files[recipes.csv].name"_s,
             u"a].csv"_s, u"files[a\\].csv].deviceDir"_s, u"velkor\\a"_s});
    QCOMPARE(result.exitCode, 0);
    // As it is stored; what has another name now, as it was given.
    QCOMPARE(result.output,
             u"device.name = Größe <&>\n"
             "files[recipes.csv].name = a].csv\n"
             "files[a\\].csv].deviceDir = /velkor/a/\n"_s);
    const QByteArray file = "     <Name>recipes.csv</Name>\n     <Comment>Box formats</Comment>\n"
                            "     <DeviceDir>/velkor/configurations/STD/conf/</DeviceDir>\n";
    QVERIFY(m_example.contains(file));
    QByteArray expected = m_example;
    expected.replace("  <Name>PackagingLine</Name>\n", "  <Name>Größe &lt;&amp;&gt;</Name>\n")
        .replace(file,
                 "     <Name>a].csv</Name>\n     <Comment>Box formats</Comment>\n"
                 "     <DeviceDir>/velkor/a/</DeviceDir>\n");
    QCOMPARE(bytes(), expected);
}

void tst_vrndevice_items::setPutsBackWhatWasRemoved_data()
{
    QTest::addColumn<QString>("item");
    for (const QString &item :
         {u"description.version"_s, u"device.hardwareId"_s, u"device.class"_s, u"device.comment"_s,
          u"device.configurationName"_s, u"device.executionPlugin"_s, u"device.opcUaEnabled"_s,
          u"device.dictionary.deviceDir"_s, u"device.plugins[motion].version"_s, u"drive[0].name"_s,
          u"drive[0].busId"_s, u"drive[0].param.name"_s}) {
        QTest::newRow(qPrintable(item)) << item;
    }
}

void tst_vrndevice_items::setPutsBackWhatWasRemoved()
{
    QFETCH(QString, item);
    QString value = run({u"get"_s, FileName, item}).output;
    value.chop(1);
    QVERIFY(!value.isEmpty());
    QCOMPARE(run({u"remove"_s, FileName, item}).exitCode, 0);
    QVERIFY(bytes() != m_example);
    QCOMPARE(run({u"set"_s, FileName, item, value}).exitCode, 0);
    QCOMPARE(bytes(), m_example);
}

void tst_vrndevice_items::setJson()
{
    const SResult result = run({u"set"_s, u"--json"_s, FileName, u"drive[0].param.projectDir"_s,
                                u"a\\b"_s, u"device.comment"_s, QString()});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json().keys(), QStringList{u"items"_s});
    QCOMPARE(items(result.json()),
             QStringList({u"drive[0].param.projectDir=a/b/"_s, u"device.comment="_s}));
}

void tst_vrndevice_items::setValueWithHyphen()
{
    const QString path = u"device.plugins[motion].priority"_s;
    QCOMPARE(run({u"set"_s, FileName, path, u"-5"_s}).exitCode, 2);
    QCOMPARE(bytes(), m_example);
    QCOMPARE(run({u"set"_s, FileName, path, u"--"_s, u"-5"_s}).exitCode, 0);
    QCOMPARE(run({u"get"_s, FileName, path}).output, u"-5\n"_s);
}

void tst_vrndevice_items::addEntryWithItems()
{
    const SResult result =
        run({u"add"_s, FileName, u"drive[7]"_s, u"drive[7].name"_s, u"Gripper"_s,
             u"drive[7].type"_s, u"KD2_drive"_s, u"drive[7].kd2Logic.name"_s, u"l.bit"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output,
             u"Added drive[7]\ndrive[7].name = Gripper\ndrive[7].type = KD2_drive\n"
             "drive[7].kd2Logic.name = l.bit\n"_s);
    const QByteArray added = "  <SubDevice type=\"KD2_drive\">\n"
                             "   <HardwareId>KD3:KD3 Controller 8A:3:2:1</HardwareId>\n"
                             "   <Name>Gripper</Name>\n"
                             "   <Comment/>\n"
                             "   <DriveNo>7</DriveNo>\n"
                             "   <BusId>0</BusId>\n"
                             "   <KD2Logic>\n"
                             "    <File>\n"
                             "     <Name>l.bit</Name>\n"
                             "     <Comment/>\n"
                             "     <DeviceDir/>\n"
                             "     <ProjectDir/>\n"
                             "    </File>\n"
                             "   </KD2Logic>\n"
                             "  </SubDevice>\n";
    QByteArray expected = m_example;
    QCOMPARE(bytes(), expected.replace(" </Device>\n", added + " </Device>\n"));
}

void tst_vrndevice_items::addJson()
{
    const SResult alone = run({u"add"_s, u"--json"_s, FileName, u"device.options[-x]"_s});
    QCOMPARE(alone.exitCode, 0);
    QCOMPARE(alone.json().keys(), QStringList({u"added"_s, u"items"_s}));
    QCOMPARE(alone.json().value(u"added"_s).toString(), u"device.options[-x]"_s);
    QCOMPARE(items(alone.json()), QStringList());
    const SResult withItem = run({u"add"_s, u"--json"_s, FileName, u"device.options[-y]"_s,
                                  u"device.options[-y]"_s, u"5"_s});
    QCOMPARE(items(withItem.json()), QStringList{u"device.options[-y]=5"_s});
    QVERIFY(bytes().contains("<Options>-trace -autostart -opc -x -y 5</Options>"));
}

void tst_vrndevice_items::removeEntries()
{
    const SResult result = run({u"remove"_s, FileName, u"device.options[-trace]"_s,
                                u"device.plugins[motion]"_s, u"drive[0].comment"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output,
             u"Removed device.options[-trace]\nRemoved device.plugins[motion]\n"
             "Removed drive[0].comment\n"_s);
    QByteArray expected = m_example;
    expected.replace("-trace -auto", "-auto")
        .replace("    <Plugin>\n     <Name>motion</Name>\n     <Version>2</Version>\n"
                 "     <Priority>20</Priority>\n    </Plugin>\n",
                 "")
        .replace("   <Name>Infeed</Name>\n   <Comment/>\n", "   <Name>Infeed</Name>\n");
    QCOMPARE(bytes(), expected);
}

void tst_vrndevice_items::removeJson()
{
    const QStringList paths = {u"drive[1]"_s, u"device.dictionary"_s};
    const SResult result = run(QStringList{u"remove"_s, u"--json"_s, FileName} + paths);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json(), QJsonObject({{u"removed"_s, QJsonArray::fromStringList(paths)}}));
}

void tst_vrndevice_items::filters_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("set") << QStringList{u"set"_s, FileName, u"device.comment"_s, u"ü"_s};
    QTest::newRow("add") << QStringList{u"add"_s, FileName, u"files[a]"_s};
    QTest::newRow("remove") << QStringList{u"remove"_s, FileName, u"drive[1]"_s};
}

void tst_vrndevice_items::filters()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(run(arguments).exitCode, 0);
    QVERIFY(bytes() != m_example);
    arguments[1] = u"-"_s;
    const SResult result = run(arguments, m_example);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output.toUtf8(), bytes());
    QCOMPARE(result.errors, QString());
}

void tst_vrndevice_items::fullDisk_data()
{
    filters_data();
}

void tst_vrndevice_items::fullDisk()
{
    QFETCH(QStringList, arguments);
    const FullDisk disk(1000);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(FileName), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
    QCOMPARE(bytes(), m_example);
    QCOMPARE(Files::names(m_directory->path()), QStringList{FileName});
}

REGISTER_GUILESS_TEST(tst_vrndevice_items)
#include "tst_vrndevice_items.moc"
