#include "configfile/CDeviceConfigurationFile10.h"
#include "support/ComparedDocuments.h"
#include "support/MessageCatcher.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QJsonArray>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace ComparedDocuments;
using Tool::SResult;

namespace {

const QByteArray Gripper = ">Gluer<|>GRIPPER<";
const QByteArray Clamp = ">Gluer<|>CLAMP<";
const QByteArray Stacker = ">Infeed<|>Stacker<";

QByteArray withFile(const QByteArray &name)
{
    return "   </Files>\n|    <File>\n     <Name>" + name + "</Name>\n    </File>\n   </Files>\n";
}

/** Runs a program with an environment in which only @p directory tells it anything. */
SResult runProgram(const QString &directory, const QString &program, const QStringList &arguments,
                   const QByteArray &input = QByteArray())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList variables = environment.keys();
    for (const QString &variable : variables) {
        if (variable.startsWith(u"GIT_"_s)) {
            environment.remove(variable);
        }
    }
    environment.insert(u"HOME"_s, directory);
    environment.insert(u"XDG_CONFIG_HOME"_s, directory);
    environment.insert(u"GIT_CONFIG_NOSYSTEM"_s, u"1"_s);
    environment.insert(u"GIT_TERMINAL_PROMPT"_s, u"0"_s);
    environment.insert(u"GIT_PAGER"_s, u"cat"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    SResult result;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

} // namespace

/** The commands that compare, patch and merge configurations, also as git runs them. */
class tst_vrndevice_compare : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void usage_data();
    void usage();
    void unreadable_data();
    void unreadable();
    void diffOfEqualOnesIsEmpty();
    void diffTellsChanges();
    void diffPrintsAPatch();
    void diffReadsStandardInput();
    void standardInputIsLimited();
    void applyMakesTheChanges();
    void applyReadsStandardInput_data();
    void applyReadsStandardInput();
    void applySavesElsewhere();
    void applyToAnotherConfiguration();
    void applyTriesOnly();
    void applyThatCannotSave();
    void mergeIntoOurs();
    void mergeThatTakesNothing();
    void mergeElsewhere();
    void mergeToStandardOutput();
    void mergeWithConflicts();
    void mergeThatCannotSave();
    void gitMergesWhatLinesCannot();
    void gitReportsAConflict();
    void gitKeepsOursThatCannotBeRead();
    void gitShowsItems();
    void gitShowsDifferences();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    void write(const QString &name, const QList<QByteArray> &replacements) const
    {
        const QByteArray content = changed(example(), replacements);
        QVERIFY(!content.isEmpty() && Files::write(path(name), content));
    }
    SResult run(const QStringList &arguments, const QByteArray &input = QByteArray()) const
    {
        return runProgram(m_directory->path(), Tool::program(), arguments, input);
    }
    SResult git(const QStringList &arguments) const
    {
        return runProgram(m_directory->path(), u"git"_s, arguments);
    }
    bool commit(const QList<QByteArray> &replacements) const;
    bool startRepository() const;
    bool branch(const QList<QByteArray> &ours, const QList<QByteArray> &theirs) const;

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_vrndevice_compare::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void tst_vrndevice_compare::usage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("errors");

    QTest::newRow("diff of one") << u"diff a"_s << u"The argument AFTER is missing."_s;
    QTest::newRow("diff of standard input twice") << u"diff - -"_s << u"standard input"_s;
    QTest::newRow("apply without file") << u"apply p"_s << u"The argument FILE is missing."_s;
    QTest::newRow("apply from standard input twice") << u"apply - -"_s << u"standard input"_s;
    QTest::newRow("apply, check and output") << u"apply --check -o x p a"_s << u"--check"_s;
    QTest::newRow("apply, two outputs") << u"apply --json p -"_s << u"--json"_s;
    QTest::newRow("merge of two") << u"merge a b"_s << u"The argument THEIRS is missing."_s;
    QTest::newRow("merge of standard input twice") << u"merge - a -"_s << u"standard input"_s;
    QTest::newRow("merge, two outputs") << u"merge --json a - b"_s << u"--json"_s;
    QTest::newRow("merge, two outputs by option") << u"merge --json -o - a b c"_s << u"--json"_s;
}

void tst_vrndevice_compare::usage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, errors);
    const SResult result = run(arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
}

void tst_vrndevice_compare::unreadable_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("errors");

    QTest::newRow("diff, before") << u"diff none a"_s << u"none"_s;
    QTest::newRow("diff, after") << u"diff a none"_s << u"none"_s;
    QTest::newRow("diff of no configuration") << u"diff a bad"_s << u"bad:1:1: "_s;
    QTest::newRow("diff of a directory") << u"diff a ."_s << u"."_s;
    QTest::newRow("apply, patch") << u"apply none a"_s << u"none: "_s;
    QTest::newRow("apply, no patch") << u"apply bad a"_s << u"bad: This is not JSON"_s;
    QTest::newRow("apply, file") << u"apply patch none"_s << u"none"_s;
    QTest::newRow("merge, base") << u"merge none a a"_s << u"none"_s;
    QTest::newRow("merge, ours") << u"merge a bad a"_s << u"bad:1:1: "_s;
    QTest::newRow("merge, theirs") << u"merge a a bad"_s << u"bad:1:1: "_s;
}

void tst_vrndevice_compare::unreadable()
{
    QFETCH(QString, arguments);
    QFETCH(QString, errors);
    write(u"a"_s, {});
    QVERIFY(Files::write(path(u"bad"_s), "bad"));
    QVERIFY(Files::write(path(u"patch"_s),
                         "{\"format\":\"vrn-configuration-patch\",\"version\":1,\"changes\":[]}"));
    const SResult result = run(arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
    QCOMPARE(Files::read(path(u"a"_s)), example());
    QCOMPARE(Files::read(path(u"bad"_s)), QByteArray("bad"));
    QCOMPARE(Files::names(m_directory->path()), QStringList({u"a"_s, u"bad"_s, u"patch"_s}));
}

void tst_vrndevice_compare::diffOfEqualOnesIsEmpty()
{
    write(u"a"_s, {});
    write(u"b"_s, {"<Device>|<!-- a comment -->\n\n<Device>"});
    const SResult result = run({u"diff"_s, u"a"_s, u"b"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, QString());
    const SResult json = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s});
    QCOMPARE(json.exitCode, 0);
    QCOMPARE(json.json().value(u"changes"_s), QJsonValue(QJsonArray()));
}

void tst_vrndevice_compare::diffTellsChanges()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper, "-trace |", withFile("größe.csv")});
    const SResult result = run({u"diff"_s, u"a"_s, u"b"_s});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output,
             u"option -trace removed\n"
             u"drive 2: name Gluer -> GRIPPER\n"
             u"file größe.csv added\n"_s);
    QCOMPARE(result.errors, QString());
}

void tst_vrndevice_compare::diffPrintsAPatch()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper});
    const SResult result = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s});
    QCOMPARE(result.exitCode, 1);
    const QJsonObject patch = result.json();
    QCOMPARE(patch.value(u"format"_s).toString(), u"vrn-configuration-patch"_s);
    QCOMPARE(patch.value(u"version"_s).toInt(), 1);
    const QJsonArray changes = patch.value(u"changes"_s).toArray();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).toObject().value(u"path"_s).toString(), u"drive[2].name"_s);
}

void tst_vrndevice_compare::diffReadsStandardInput()
{
    write(u"a"_s, {});
    const QByteArray other = changed(example(), {Gripper});
    SResult result = run({u"diff"_s, u"a"_s, u"-"_s}, other);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, u"drive 2: name Gluer -> GRIPPER\n"_s);
    result = run({u"diff"_s, u"-"_s, u"a"_s}, other);
    QCOMPARE(result.output, u"drive 2: name GRIPPER -> Gluer\n"_s);
}

void tst_vrndevice_compare::standardInputIsLimited()
{
    write(u"a"_s, {});
    // It takes no space on the disk.
    QFile large(path(u"large"_s));
    const qint64 limit = SXmlLimits().fileSize;
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(limit + 1));
    QProcess process;
    process.setStandardInputFile(large.fileName());
    const SResult result = Tool::run(process, m_directory->path(), {u"diff"_s, u"a"_s, u"-"_s});
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.errors,
             u"vrndevice: error: standard input: The file is larger than %1 bytes.\n"_s.arg(limit));
}

void tst_vrndevice_compare::applyMakesTheChanges()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper, withFile("r.csv")});
    write(u"c"_s, {Stacker, "<Device>|<!--mine-->\n <Device>"});
    const SResult patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s});
    QVERIFY(Files::write(path(u"p.json"_s), patch.output.toUtf8()));

    const SResult result = run({u"apply"_s, u"p.json"_s, u"c"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"drive 2: name Gluer -> GRIPPER\nfile r.csv added\n"_s);
    QCOMPARE(result.errors, QString());
    QCOMPARE(Files::read(path(u"c"_s)).contains("<!--mine-->"), true);
    const SResult left = run({u"diff"_s, u"c"_s, u"b"_s});
    QCOMPARE(left.output, u"drive 0: name Stacker -> Infeed\n"_s);

    write(u"c"_s, {});
    const SResult json = run({u"apply"_s, u"--json"_s, u"p.json"_s, u"c"_s});
    QCOMPARE(json.exitCode, 0);
    QCOMPARE(json.json(),
             QJsonObject({{u"applicable"_s, true},
                          {u"saved"_s, true},
                          {u"changes"_s, 2},
                          {u"mismatches"_s, QJsonArray()}}));
}

void tst_vrndevice_compare::applyReadsStandardInput_data()
{
    QTest::addColumn<bool>("isPatch");
    QTest::newRow("the patch") << true;
    QTest::newRow("the configuration") << false;
}

void tst_vrndevice_compare::applyReadsStandardInput()
{
    QFETCH(bool, isPatch);
    write(u"a"_s, {});
    write(u"b"_s, {Gripper});
    const QByteArray patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s}).output.toUtf8();
    if (isPatch) {
        QCOMPARE(run({u"apply"_s, u"-"_s, u"a"_s}, patch).exitCode, 0);
        QCOMPARE(Files::read(path(u"a"_s)), Files::read(path(u"b"_s)));
    } else {
        QVERIFY(Files::write(path(u"p"_s), patch));
        const SResult result = run({u"apply"_s, u"p"_s, u"-"_s}, example());
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output.toUtf8(), Files::read(path(u"b"_s)));
    }
}

void tst_vrndevice_compare::applySavesElsewhere()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper});
    const QByteArray patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s}).output.toUtf8();
    QCOMPARE(run({u"apply"_s, u"--output"_s, u"c"_s, u"-"_s, u"a"_s}, patch).exitCode, 0);
    QCOMPARE(Files::read(path(u"a"_s)), example());
    QCOMPARE(Files::read(path(u"c"_s)), Files::read(path(u"b"_s)));
    const SResult printed = run({u"apply"_s, u"-o"_s, u"-"_s, u"-"_s, u"a"_s}, patch);
    QCOMPARE(printed.exitCode, 0);
    QCOMPARE(printed.output.toUtf8(), Files::read(path(u"b"_s)));
}

void tst_vrndevice_compare::applyToAnotherConfiguration()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper, Stacker});
    write(u"c"_s, {Clamp, ">Infeed<|>Inlet<"});
    const QByteArray before = Files::read(path(u"c"_s));
    const QByteArray patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s}).output.toUtf8();
    const QStringList mismatches = {u"drive 0: name is Inlet, but Infeed is expected."_s,
                                    u"drive 2: name is CLAMP, but Gluer is expected."_s};

    const SResult result = run({u"apply"_s, u"-"_s, u"c"_s}, patch);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QString());
    for (const QString &mismatch : mismatches) {
        QVERIFY2(result.errors.contains(u"c: "_s + mismatch), qPrintable(result.errors));
    }
    const SResult json = run({u"apply"_s, u"--json"_s, u"-"_s, u"c"_s}, patch);
    QCOMPARE(json.exitCode, 1);
    QCOMPARE(json.json(),
             QJsonObject({{u"applicable"_s, false},
                          {u"saved"_s, false},
                          {u"changes"_s, 2},
                          {u"mismatches"_s, QJsonArray::fromStringList(mismatches)}}));
    QCOMPARE(Files::read(path(u"c"_s)), before);
}

void tst_vrndevice_compare::applyTriesOnly()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper});
    const QByteArray patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s}).output.toUtf8();
    SResult result = run({u"apply"_s, u"--check"_s, u"--json"_s, u"-"_s, u"a"_s}, patch);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json().value(u"applicable"_s).toBool(), true);
    QCOMPARE(result.json().value(u"saved"_s).toBool(), false);
    QCOMPARE(Files::read(path(u"a"_s)), example());
    result = run({u"apply"_s, u"--check"_s, u"-"_s, u"b"_s}, patch);
    QCOMPARE(result.exitCode, 1);
    // It prints no configuration, so that one from standard input leaves room for the JSON.
    QVERIFY(Files::write(path(u"p"_s), patch));
    result = run({u"apply"_s, u"--check"_s, u"--json"_s, u"p"_s, u"-"_s}, example());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json().value(u"applicable"_s).toBool(), true);
}

void tst_vrndevice_compare::applyThatCannotSave()
{
    write(u"a"_s, {});
    write(u"b"_s, {Gripper});
    const QByteArray patch = run({u"diff"_s, u"--json"_s, u"a"_s, u"b"_s}).output.toUtf8();
    const SResult result = run({u"apply"_s, u"--output"_s, u"none/c"_s, u"-"_s, u"a"_s}, patch);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains(u"none/c"_s));
    QCOMPARE(result.output, QString());
}

void tst_vrndevice_compare::mergeIntoOurs()
{
    write(u"base"_s, {});
    write(u"ours"_s, {Stacker});
    write(u"theirs"_s, {Gripper, withFile("r.csv")});
    const QByteArray theirs = Files::read(path(u"theirs"_s));
    const SResult result = run({u"merge"_s, u"base"_s, u"ours"_s, u"theirs"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"drive 2: name Gluer -> GRIPPER\nfile r.csv added\n"_s);
    QCOMPARE(result.errors, QString());
    QCOMPARE(Files::read(path(u"base"_s)), example());
    QCOMPARE(Files::read(path(u"theirs"_s)), theirs);
    write(u"expected"_s, {Stacker, Gripper, withFile("r.csv")});
    QCOMPARE(run({u"diff"_s, u"ours"_s, u"expected"_s}).exitCode, 0);
}

void tst_vrndevice_compare::mergeThatTakesNothing()
{
    write(u"base"_s, {});
    write(u"ours"_s, {"<Device>|<Device   >", Stacker});
    const QByteArray ours = Files::read(path(u"ours"_s));
    const SResult result = run({u"merge"_s, u"--json"_s, u"base"_s, u"ours"_s, u"base"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json(), QJsonObject({{u"taken"_s, 0}, {u"conflicts"_s, QJsonArray()}}));
    QCOMPARE(Files::read(path(u"ours"_s)), ours);
}

void tst_vrndevice_compare::mergeElsewhere()
{
    write(u"base"_s, {});
    write(u"ours"_s, {Stacker});
    const QByteArray ours = Files::read(path(u"ours"_s));
    const SResult result =
        run({u"merge"_s, u"--output"_s, u"out"_s, u"base"_s, u"ours"_s, u"base"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(Files::read(path(u"ours"_s)), ours);
    QCOMPARE(Files::read(path(u"out"_s)), ours);
}

void tst_vrndevice_compare::mergeToStandardOutput()
{
    write(u"base"_s, {});
    write(u"theirs"_s, {Gripper});
    const SResult result =
        run({u"merge"_s, u"base"_s, u"-"_s, u"theirs"_s}, changed(example(), {Clamp}));
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output.toUtf8(), changed(example(), {Clamp}));
    QVERIFY(result.errors.contains(u"drive 2: name: base Gluer, ours CLAMP, theirs GRIPPER"_s));
}

void tst_vrndevice_compare::mergeWithConflicts()
{
    write(u"base"_s, {});
    write(u"ours"_s, {Gripper});
    write(u"theirs"_s, {Clamp, Stacker});
    const QString told = u"drive 2: name: base Gluer, ours GRIPPER, theirs CLAMP"_s;
    const SResult json = run({u"merge"_s, u"--json"_s, u"base"_s, u"ours"_s, u"theirs"_s});
    QCOMPARE(json.exitCode, 1);
    QVERIFY2(json.errors.contains(told), qPrintable(json.errors));
    QCOMPARE(json.json(),
             QJsonObject({{u"taken"_s, 1},
                          {u"conflicts"_s,
                           QJsonArray{QJsonObject({{u"conflict"_s, u"differentValues"_s},
                                                   {u"path"_s, u"drive[2].name"_s},
                                                   {u"base"_s, u"Gluer"_s},
                                                   {u"ours"_s, u"GRIPPER"_s},
                                                   {u"theirs"_s, u"CLAMP"_s},
                                                   {u"details"_s, QJsonArray()}})}}}));
    QCOMPARE(Files::read(path(u"ours"_s)), changed(example(), {Gripper, Stacker}));

    write(u"ours"_s, {"<Name>recipes.csv|<Name>r.csv"});
    write(u"theirs"_s, {"Box formats|All"});
    const SResult removed = run({u"merge"_s, u"--json"_s, u"base"_s, u"ours"_s, u"theirs"_s});
    QCOMPARE(removed.exitCode, 1);
    const QJsonObject conflict = removed.json().value(u"conflicts"_s).toArray().at(0).toObject();
    QCOMPARE(conflict,
             QJsonObject(
                 {{u"conflict"_s, u"removedByOurs"_s},
                  {u"path"_s, u"files[recipes.csv]"_s},
                  {u"details"_s, QJsonArray{u"file recipes.csv: comment Box formats -> All"_s}}}));
}

void tst_vrndevice_compare::mergeThatCannotSave()
{
    write(u"base"_s, {});
    write(u"theirs"_s, {Gripper});
    const SResult result =
        run({u"merge"_s, u"--output"_s, u"none/x"_s, u"base"_s, u"base"_s, u"theirs"_s});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains(u"none/x"_s));
    QCOMPARE(Files::read(path(u"base"_s)), example());
}

bool tst_vrndevice_compare::commit(const QList<QByteArray> &replacements) const
{
    const QByteArray content = changed(example(), replacements);
    return !content.isEmpty() && Files::write(path(u"line.3deco"_s), content)
        && git({u"add"_s, u"-A"_s}).exitCode == 0
        && git({u"commit"_s, u"-q"_s, u"-m"_s, u"Change"_s}).exitCode == 0;
}

/** A repository that is set up as docs/merging.md tells, with the example in it. */
bool tst_vrndevice_compare::startRepository() const
{
    const QString tool = u"'%1'"_s.arg(Tool::program());
    const QList<QStringList> settings = {
        {u"user.name"_s, u"A. Engineer"_s},
        {u"user.email"_s, u"engineer@example.com"_s},
        {u"commit.gpgSign"_s, u"false"_s},
        {u"merge.vrndevice.name"_s, u"Configurations of servo drives"_s},
        {u"merge.vrndevice.driver"_s, tool + u" merge %O %A %B"_s},
        {u"diff.vrndevice.textconv"_s, tool + u" get"_s},
        {u"difftool.vrndevice.cmd"_s, tool + u" diff \"$LOCAL\" \"$REMOTE\""_s},
    };
    bool isStarted = git({u"init"_s, u"-q"_s, u"."_s}).exitCode == 0;
    for (const QStringList &setting : settings) {
        isStarted = isStarted && git(QStringList{u"config"_s} + setting).exitCode == 0;
    }
    return isStarted
        && Files::write(path(u".gitattributes"_s), "*.3deco merge=vrndevice diff=vrndevice\n")
        && commit({}) && git({u"branch"_s, u"-M"_s, u"ours"_s}).exitCode == 0;
}

/** Two branches that start from the example; "ours" is in hand. */
bool tst_vrndevice_compare::branch(const QList<QByteArray> &ours,
                                   const QList<QByteArray> &theirs) const
{
    return startRepository() && git({u"checkout"_s, u"-q"_s, u"-b"_s, u"theirs"_s}).exitCode == 0
        && commit(theirs) && git({u"checkout"_s, u"-q"_s, u"ours"_s}).exitCode == 0 && commit(ours);
}

#define NEED_GIT() \
    if (QStandardPaths::findExecutable(u"git"_s).isEmpty()) { \
        QSKIP("git is not installed", 0); \
    }

void tst_vrndevice_compare::gitMergesWhatLinesCannot()
{
    NEED_GIT()
    QVERIFY(branch({withFile("ours.csv")}, {withFile("theirs.csv")}));
    // By lines it would be a conflict: both have something new at the same place.
    QVERIFY(Files::write(path(u".git/info/attributes"_s), "*.3deco merge=text\n"));
    QVERIFY(git({u"merge"_s, u"--no-edit"_s, u"theirs"_s}).exitCode != 0);
    QCOMPARE(git({u"merge"_s, u"--abort"_s}).exitCode, 0);
    QVERIFY(QFile::remove(path(u".git/info/attributes"_s)));

    const SResult result = git({u"merge"_s, u"--no-edit"_s, u"theirs"_s});
    QVERIFY2(result.exitCode == 0, qPrintable(result.output + result.errors));
    QVERIFY(result.output.contains(u"file theirs.csv added\n"_s));
    QCOMPARE(git({u"status"_s, u"--porcelain"_s}).output, QString());
    write(u"expected"_s, {withFile("ours.csv"), withFile("theirs.csv")});
    QCOMPARE(run({u"diff"_s, u"line.3deco"_s, u"expected"_s}).output, QString());
}

void tst_vrndevice_compare::gitReportsAConflict()
{
    NEED_GIT()
    QVERIFY(branch({Gripper}, {Clamp, Stacker}));
    const SResult result = git({u"merge"_s, u"--no-edit"_s, u"theirs"_s});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.output.contains(u"CONFLICT (content): Merge conflict in line.3deco"_s),
             qPrintable(result.output));
    QVERIFY2(result.errors.contains(u"drive 2: name: base Gluer, ours GRIPPER, theirs CLAMP"_s),
             qPrintable(result.errors));
    QCOMPARE(git({u"status"_s, u"--porcelain"_s}).output, u"UU line.3deco\n"_s);
    QCOMPARE(Files::read(path(u"line.3deco"_s)), changed(example(), {Gripper, Stacker}));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(path(u"line.3deco"_s)));
}

void tst_vrndevice_compare::gitKeepsOursThatCannotBeRead()
{
    NEED_GIT()
    QVERIFY(branch({Gripper}, {"<Device>|<Devic>"}));
    const SResult result = git({u"merge"_s, u"--no-edit"_s, u"theirs"_s});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.output.contains(u"CONFLICT"_s), qPrintable(result.output));
    QCOMPARE(Files::read(path(u"line.3deco"_s)), changed(example(), {Gripper}));
}

void tst_vrndevice_compare::gitShowsItems()
{
    NEED_GIT()
    QVERIFY(startRepository());
    write(u"line.3deco"_s, {Gripper});
    const SResult result = git({u"diff"_s, u"-U0"_s});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.endsWith(u"-drive[2].name = Gluer\n+drive[2].name = GRIPPER\n"_s),
             qPrintable(result.output));
}

void tst_vrndevice_compare::gitShowsDifferences()
{
    NEED_GIT()
    QVERIFY(startRepository());
    write(u"line.3deco"_s, {Gripper});
    const SResult result = git({u"difftool"_s, u"-y"_s, u"-t"_s, u"vrndevice"_s});
    QVERIFY2(result.output.contains(u"drive 2: name Gluer -> GRIPPER\n"_s),
             qPrintable(result.output + result.errors));
}

REGISTER_GUILESS_TEST(tst_vrndevice_compare)
#include "tst_vrndevice_compare.moc"
