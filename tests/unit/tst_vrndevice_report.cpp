#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CConfigurationReport.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/PseudoTerminal.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace {

using Tool::SResult;

const QString FileName = u"DeviceConfiguration.3deco"_s;
const QLatin1Char Escape('\x1b');

/** What a command is started with, beside its arguments. */
struct SSurroundings {
    QByteArray input;
    QMap<QString, QString> environment;
    /** A terminal as standard output. */
    bool isTerminal = false;
};

SResult runIn(const QString &directory, const QStringList &arguments, const SSurroundings &around)
{
    QProcess process;
    process.setWorkingDirectory(directory);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"NO_COLOR"_s);
    environment.insert(u"TERM"_s, u"xterm"_s);
    for (auto entry = around.environment.begin(); entry != around.environment.end(); ++entry) {
        environment.insert(entry.key(), entry.value());
    }
    process.setProcessEnvironment(environment);
    const PseudoTerminal terminal;
    if (around.isTerminal) {
        process.setStandardOutputFile(terminal.name());
    }
    process.start(Tool::program(), arguments);
    process.write(around.input);
    process.closeWriteChannel();
    SResult result;
    QByteArray output;
    // A terminal holds little: the writer waits until it is read.
    while (!process.waitForFinished(10) && process.state() != QProcess::NotRunning) {
        output += terminal.read();
    }
    output += terminal.read();
    if (process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.output = QString::fromUtf8(around.isTerminal ? output : process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

/** The line of @p text in which @p part stands first, and those that follow it. */
QStringList linesFrom(const QString &text, const QString &part)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).contains(part)) {
            return lines.mid(i);
        }
    }
    return {};
}

QStringList allTexts(const QJsonObject &node, const QString &list, const QString &key)
{
    QStringList result;
    for (const QJsonValue &value : node.value(list).toArray()) {
        result.append(value.toObject().value(key).toString());
    }
    for (const QJsonValue &child : node.value(u"children"_s).toArray()) {
        result += allTexts(child.toObject(), list, key);
    }
    return result;
}

bool eachHasItems(const QJsonObject &node)
{
    const QJsonArray children = node.value(u"children"_s).toArray();
    return !node.value(u"items"_s).toArray().isEmpty()
        && std::all_of(children.begin(), children.end(),
                       [](const QJsonValue &child) { return eachHasItems(child.toObject()); });
}

} // namespace

/** The commands that show a configuration with its findings: report and tree. */
class tst_vrndevice_report : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void reportIsThatOfTheLibrary();
    void reportToStandardOutput();
    void reportAsJson();
    void reportReplacesAFile();
    void reportKeepsTheFileThatItCannotReplace();
    void reportFindsMissingFiles();
    void treeNamesEveryPlace();
    void treeShowsFindings();
    void treeOfUnusualTexts();
    void treeAsJson();
    void treeWithoutDevice();
    void showIsTheSameTree();
    void colours_data();
    void colours();
    void standardInput();
    void warningsStandInTheFindings();
    void usage_data();
    void usage();
    void unreadableInput_data();
    void unreadableInput();

private:
    QString path() const { return m_directory->filePath(FileName); }
    SResult run(const QStringList &arguments, const SSurroundings &around = {}) const
    {
        return runIn(m_directory->path(), arguments, around);
    }
    void copyExample();
    /** Replaces @p before, which stands in the example. */
    void changeExample(const QByteArray &before, const QByteArray &after);
    QByteArray libraryPage() const;

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_vrndevice_report::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void tst_vrndevice_report::copyExample()
{
    QVERIFY(Tool::copyExample(FileName, m_directory->path()));
}

void tst_vrndevice_report::changeExample(const QByteArray &before, const QByteArray &after)
{
    if (!QFile::exists(path())) {
        copyExample();
    }
    QByteArray content = Files::read(path());
    QVERIFY2(content.contains(before), before.constData());
    QVERIFY(Files::write(path(), content.replace(before, after)));
}

QByteArray tst_vrndevice_report::libraryPage() const
{
    CDeviceConfigurationFile10 file(nullptr);
    CConfigurationCheck check;
    if (!file.open(path()) || !check.open(path())) {
        return QByteArray();
    }
    const CConfigurationOverview overview(file);
    return CConfigurationReport(overview, check.findings()).toHtml();
}

void tst_vrndevice_report::reportIsThatOfTheLibrary()
{
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    const SResult result = run({u"report"_s, FileName, u"-o"_s, u"out.html"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"Wrote out.html. Errors: 1, warnings: 0.\n"_s);
    QVERIFY(result.errors.isEmpty());
    const MessageCatcher catcher;
    const QByteArray page = Files::read(m_directory->filePath(u"out.html"_s));
    QVERIFY(page.contains("drive-number-twice"));
    QVERIFY(page == libraryPage());
}

void tst_vrndevice_report::reportToStandardOutput()
{
    copyExample();
    const QString page = QString::fromUtf8(libraryPage());
    const SResult result = run({u"report"_s, FileName});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!page.isEmpty());
    QVERIFY(result.output == page);
    QVERIFY(run({u"report"_s, FileName, u"-o"_s, u"-"_s}).output == page);
    QCOMPARE(Files::names(m_directory->path()), QStringList{FileName});
}

void tst_vrndevice_report::reportAsJson()
{
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    const SResult result = run({u"report"_s, FileName, u"--output"_s, u"out.html"_s, u"--json"_s});
    QCOMPARE(result.exitCode, 0);
    const QJsonObject expected = {{u"output"_s, u"out.html"_s},
                                  {u"drives"_s, 3},
                                  {u"files"_s, 29},
                                  {u"errors"_s, 1},
                                  {u"warnings"_s, 0}};
    QCOMPARE(result.json(), expected);
    QVERIFY(QFile::exists(m_directory->filePath(u"out.html"_s)));
}

void tst_vrndevice_report::reportReplacesAFile()
{
    copyExample();
    const QString out = m_directory->filePath(u"out.html"_s);
    QVERIFY(Files::write(out, "old"));
    QCOMPARE(run({u"report"_s, FileName, u"-o"_s, out}).exitCode, 0);
    QVERIFY(Files::read(out) == libraryPage());
    QCOMPARE(Files::names(m_directory->path()), (QStringList{FileName, u"out.html"_s}));
}

void tst_vrndevice_report::reportKeepsTheFileThatItCannotReplace()
{
    copyExample();
    const SResult missing = run({u"report"_s, FileName, u"-o"_s, u"missing/out.html"_s});
    QCOMPARE(missing.exitCode, 1);
    QVERIFY(missing.output.isEmpty());
    QVERIFY2(missing.errors.contains(u"missing/out.html: The file could not be saved"_s),
             qPrintable(missing.errors));
    const SResult directory = run({u"report"_s, FileName, u"-o"_s, u"."_s});
    QCOMPARE(directory.exitCode, 1);
    QCOMPARE(Files::names(m_directory->path()), QStringList{FileName});
}

void tst_vrndevice_report::reportFindsMissingFiles()
{
    const QString project = Tool::exampleDirectory().path();
    const QString file = Tool::exampleDirectory().filePath(FileName);
    const SResult complete =
        run({u"report"_s, file, u"--project"_s, project, u"-o"_s, u"out.html"_s, u"--json"_s});
    QCOMPARE(complete.json().value(u"errors"_s).toInt(-1), 0);
    const SResult empty = run({u"report"_s, file, u"--project"_s, m_directory->path(), u"-o"_s,
                               u"out.html"_s, u"--json"_s});
    QCOMPARE(empty.exitCode, 0);
    QVERIFY(empty.json().value(u"errors"_s).toInt() > 0);
    const SResult tree = run({u"tree"_s, file, u"--project"_s, m_directory->path()});
    QCOMPARE(tree.exitCode, 0);
    QVERIFY(linesFrom(tree.output, u"recipes.csv"_s).value(3).contains(u"error:"_s));
}

void tst_vrndevice_report::treeNamesEveryPlace()
{
    copyExample();
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));
    const SResult result = run({u"tree"_s, FileName});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.isEmpty());
    QVERIFY(!result.output.contains(Escape));
    const QList<CFileElement> files = device.allFiles();
    QCOMPARE(files.size(), 28);
    QCOMPARE(result.output.count(u" device: "_s), files.size());
    for (const CFileElement &expected : files) {
        const QString place = u" device: "_s + expected.deviceFilePath() + QLatin1Char('\n');
        QVERIFY2(result.output.contains(place), qPrintable(place));
        QVERIFY(linesFrom(result.output, place.trimmed())
                    .value(1)
                    .endsWith(u" project: "_s + expected.projectFilePath()));
    }
}

void tst_vrndevice_report::treeShowsFindings()
{
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    changeExample("<Class>kd3</Class>", "<Class>kd4</Class>");
    changeExample("<OpcUaEnabled>true", "<OpcUaEnabled>perhaps");
    changeExample("<ExecutionPlugin>motion", "<ExecutionPlugin>none");
    changeExample("PackagingLine/velkor/conf/</ProjectDir>\n    </File>\n   </Files>",
                  "/velkor/</ProjectDir>\n    </File>\n   </Files>");
    const SResult result = run({u"tree"_s, FileName});
    QCOMPARE(result.exitCode, 0);
    const QStringList drive = linesFrom(result.output, u"└─ 3: Gluer"_s);
    QVERIFY2(drive.value(1).startsWith(u"         │  error: "_s), qPrintable(drive.value(1)));
    QVERIFY(drive.value(1).contains(u"[drive-number-twice] (line "_s));
    QVERIFY(drive.value(2).startsWith(u"         │    "_s));
    QVERIFY(
        linesFrom(result.output, u"└─ Device"_s).value(1).contains(u"[device-class-unknown]"_s));
    const QStringList file = linesFrom(result.output, u"recipes.csv (Box formats)"_s);
    QVERIFY2(file.value(3).startsWith(u"   │        error: "_s), qPrintable(file.value(3)));
    QVERIFY(linesFrom(result.output, u"├─ OPC UA"_s).value(1).startsWith(u"   │  │  error: "_s));
    QVERIFY(linesFrom(result.output, u"Execution plug-in: none"_s).value(1).contains(u"'none'"_s));
    QCOMPARE(result.output.count(u"error: "_s), 5);
}

void tst_vrndevice_report::treeOfUnusualTexts()
{
    changeExample("<Comment>Gantry axis</Comment>",
                  "<Comment>two\nlines, \xC2\x9B"
                  "31m and \xE5\xBE\x88\xE9\x95\xBF</Comment>");
    changeExample("<DeviceDir>/velkor/configurations/STD/conf/</DeviceDir>\n"
                  "     <ProjectDir>PackagingLine/velkor/conf/</ProjectDir>\n"
                  "    </File>\n   </Files>",
                  "</File>\n   </Files>");
    changeExample("<Comment>Box formats</Comment>", "<Comment>a\nb</Comment>");
    const SResult result = run({u"tree"_s, FileName});
    QVERIFY(result.output.contains(u"recipes.csv (a\\nb)\n"_s));
    QVERIFY(result.output.contains(u"(two\\nlines, \\u009b31m and 很长)\n"_s));
    const QStringList file = linesFrom(result.output, u"recipes.csv"_s);
    QVERIFY(file.value(1).endsWith(u"device: -"_s));
    QVERIFY(file.value(2).endsWith(u"project: -"_s));
}

void tst_vrndevice_report::treeAsJson()
{
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    const MessageCatcher catcher;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));
    const SResult result = run({u"tree"_s, FileName, u"--json"_s, u"--color"_s, u"always"_s});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!result.output.contains(Escape));
    const QJsonObject root = result.json();
    QCOMPARE(root.value(u"text"_s).toString(),
             u"Configuration Packaging line (Commissioned with two new drives)"_s);
    QCOMPARE(allTexts(root, u"files"_s, u"name"_s).size(), device.allFiles().size());
    for (const CFileElement &expected : device.allFiles()) {
        QVERIFY(allTexts(root, u"files"_s, u"deviceDir"_s).contains(expected.devicePath()));
        QVERIFY(allTexts(root, u"files"_s, u"projectDir"_s).contains(expected.projectPath()));
    }
    QVERIFY(eachHasItems(root));
    QCOMPARE(allTexts(root, u"findings"_s, u"rule"_s), QStringList{u"drive-number-twice"_s});
    QCOMPARE(allTexts(root, u"findings"_s, u"severity"_s), QStringList{u"error"_s});
    QCOMPARE(allTexts(root, u"findings"_s, u"item"_s), QStringList{u"drive[2][2].driveNo"_s});
}

void tst_vrndevice_report::treeWithoutDevice()
{
    QVERIFY(Files::write(path(), "<VornDeviceConfig version=\"1.0\"/>"));
    const SResult tree = run({u"tree"_s, FileName});
    QCOMPARE(tree.exitCode, 0);
    QVERIFY(tree.output.startsWith(u"Configuration \n"_s));
    QVERIFY(tree.output.contains(u"[device-missing]"_s));
    const SResult report = run({u"report"_s, FileName});
    QCOMPARE(report.exitCode, 0);
    QVERIFY(report.output.contains(u"device-missing"_s));
}

/** Without the places and the findings it is what show prints, line by line. */
void tst_vrndevice_report::showIsTheSameTree()
{
    if (!PseudoTerminal().isOpen()) {
        QSKIP("There are no pseudo-terminals here.", 0);
    }
    copyExample();
    QStringList lines;
    for (const QString &line : run({u"tree"_s, FileName}).output.split(QLatin1Char('\n'))) {
        if (!line.contains(u" device: "_s) && !line.contains(u" project: "_s)) {
            lines.append(line);
        }
    }
    SSurroundings terminal;
    terminal.isTerminal = true;
    SResult show = run({u"show"_s, FileName}, terminal);
    QCOMPARE(show.output.remove(QLatin1Char('\r')), lines.join(QLatin1Char('\n')));
}

void tst_vrndevice_report::colours_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("isTerminal");
    QTest::addColumn<QString>("noColor");
    QTest::addColumn<bool>("expected");
    const QStringList none;
    const QStringList always = {u"--color"_s, u"always"_s};
    const QStringList never = {u"--color"_s, u"never"_s};
    const QStringList automatic = {u"--color"_s, u"auto"_s};
    QTest::newRow("file") << none << false << QString() << false;
    QTest::newRow("file, auto") << automatic << false << QString() << false;
    QTest::newRow("file, always") << always << false << QString() << true;
    QTest::newRow("file, always, NO_COLOR") << always << false << u"1"_s << true;
    QTest::newRow("terminal") << none << true << QString() << true;
    QTest::newRow("terminal, auto") << automatic << true << QString() << true;
    QTest::newRow("terminal, never") << never << true << QString() << false;
    QTest::newRow("terminal, NO_COLOR") << none << true << u"1"_s << false;
    QTest::newRow("terminal, auto, NO_COLOR") << automatic << true << u"1"_s << false;
    QTest::newRow("terminal, NO_COLOR empty") << none << true << u""_s << true;
}

void tst_vrndevice_report::colours()
{
    QFETCH(QStringList, options);
    QFETCH(bool, isTerminal);
    QFETCH(QString, noColor);
    QFETCH(bool, expected);
    if (isTerminal && !PseudoTerminal().isOpen()) {
        QSKIP("There are no pseudo-terminals here.", 0);
    }
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    SSurroundings around;
    around.isTerminal = isTerminal;
    if (!noColor.isNull()) {
        around.environment.insert(u"NO_COLOR"_s, noColor);
    }
    const SResult result = run(QStringList{u"tree"_s, FileName} + options, around);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output.contains(Escape), expected);
    QCOMPARE(result.output.contains(u"\x1b[31merror:\x1b[0m"_s), expected);
    QCOMPARE(result.output.contains(u"\x1b[1mDrives\x1b[0m"_s), expected);
    QVERIFY(result.output.contains(u"drive-number-twice"_s));
}

void tst_vrndevice_report::standardInput()
{
    copyExample();
    SSurroundings around;
    around.input = Files::read(path());
    for (const QString &command : {u"report"_s, u"tree"_s}) {
        const SResult result = run({command, u"-"_s}, around);
        QCOMPARE(result.exitCode, 0);
        QVERIFY(result.output == run({command, FileName}).output);
    }
}

/** What reading tells on standard error elsewhere stands beside the item here. */
void tst_vrndevice_report::warningsStandInTheFindings()
{
    changeExample("<DriveNo>1</DriveNo>", "<DriveNo>2</DriveNo>");
    changeExample("PackagingLine/opt/velkor/conf/", "Elsewhere/");
    for (const QString &command : {u"report"_s, u"tree"_s}) {
        const SResult result = run({command, FileName});
        QCOMPARE(result.exitCode, 0);
        QVERIFY2(result.errors.isEmpty(), qPrintable(result.errors));
        QVERIFY(result.output.contains(u"Elsewhere/"_s));
    }
}

void tst_vrndevice_report::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errors");
    QTest::newRow("report without a file")
        << QStringList{u"report"_s} << u"The argument FILE is missing."_s;
    QTest::newRow("tree without a file")
        << QStringList{u"tree"_s} << u"The argument FILE is missing."_s;
    QTest::newRow("JSON and page on one stream")
        << QStringList{u"report"_s, FileName, u"--json"_s} << u"--json requires --output"_s;
    QTest::newRow("JSON and page on standard output")
        << QStringList{u"report"_s, FileName, u"--json"_s, u"-o"_s, u"-"_s}
        << u"--json requires --output"_s;
    QTest::newRow("output without a name") << QStringList{u"report"_s, FileName, u"--output="_s}
                                           << u"The file name of --output is empty"_s;
    QTest::newRow("page in place of the configuration")
        << QStringList{u"report"_s, FileName, u"-o"_s, u"./"_s + FileName}
        << u"would overwrite the configuration"_s;
    QTest::newRow("page in place of the configuration, by a link")
        << QStringList{u"report"_s, FileName, u"-o"_s, u"link"_s}
        << u"would overwrite the configuration"_s;
    QTest::newRow("unknown colour")
        << QStringList{u"tree"_s, FileName, u"--color"_s, u"red"_s} << u"--color must be"_s;
}

void tst_vrndevice_report::usage()
{
    QFETCH(QStringList, arguments);
    copyExample();
    QVERIFY(QFile::link(path(), m_directory->filePath(u"link"_s)));
    const QByteArray before = Files::read(path());
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.output.isEmpty());
    QFETCH(QString, errors);
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QCOMPARE(Files::read(path()), before);
}

void tst_vrndevice_report::unreadableInput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errors");
    for (const QString &command : {u"report"_s, u"tree"_s}) {
        const QByteArray name = command.toLatin1();
        QTest::addRow("missing, %s", name.constData())
            << QStringList{command, u"missing"_s} << u"No such file"_s;
        QTest::addRow("broken, %s", name.constData())
            << QStringList{command, u"broken"_s} << u"broken:2:"_s;
        QTest::addRow("other document, %s", name.constData())
            << QStringList{command, u"other"_s} << u"'VornParameters'"_s;
        QTest::addRow("empty standard input, %s", name.constData())
            << QStringList{command, u"-"_s} << u"could not be"_s;
        QTest::addRow("project is missing, %s", name.constData())
            << QStringList{command, FileName, u"--project"_s, u"missing"_s}
            << u"The directory does not exist"_s;
    }
}

void tst_vrndevice_report::unreadableInput()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, errors);
    copyExample();
    QVERIFY(Files::write(m_directory->filePath(u"broken"_s), "<VornDeviceConfig>\n<Device>"));
    QVERIFY(Files::write(m_directory->filePath(u"other"_s), "<VornParameters version=\"1.0\"/>"));
    if (arguments.constFirst() == u"report"_s) {
        arguments += {u"-o"_s, u"out.html"_s};
    }
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 3);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QVERIFY(!QFile::exists(m_directory->filePath(u"out.html"_s)));
}

REGISTER_GUILESS_TEST(tst_vrndevice_report)
#include "tst_vrndevice_report.moc"
