#include "commissioning/CConfigurationCheck.h"
#include "support/BrokenDocuments.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/PseudoTerminal.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Tool::SResult;

QString validFile(const QString &name)
{
    return Places::data("check/valid/") + name + u".3deco"_s;
}

SResult check(const QStringList &arguments)
{
    return Tool::run(QDir::tempPath(), QStringList(u"check"_s) + arguments);
}

SResult checkInput(const QByteArray &input, const QStringList &arguments)
{
    QProcess process;
    process.start(Tool::program(), QStringList(u"check"_s) + arguments);
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

/** What the tool prints to a terminal with these variables in its environment. */
QByteArray onTerminal(const QStringList &arguments, const QMap<QString, QString> &variables)
{
    const PseudoTerminal terminal;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"NO_COLOR"_s);
    for (auto it = variables.cbegin(); it != variables.cend(); ++it) {
        environment.insert(it.key(), it.value());
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(terminal.name());
    process.start(Tool::program(), QStringList(u"check"_s) + arguments);
    process.waitForFinished();
    return terminal.read();
}

QString lastLine(const QString &text)
{
    return text.trimmed().section(QLatin1Char('\n'), -1);
}

} // namespace

/** What the command prints and returns; what it finds is tested with CConfigurationCheck. */
class tst_vrndevice_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exitCodes_data();
    void exitCodes();
    void textOfAFinding();
    void textOfAFindingWithoutPosition();
    void summary();
    void nothingIsWrong();
    void unreadableFilesAreTold();
    void standardInput();
    void standardInputThatIsUnreadable();
    void project();
    void projectThatIsNone();
    void json();
    void jsonOfUnreadableFiles();
    void controlCharactersAreNotPrinted();
    void colours();
    void thousandFiles();
    void help();
    void rules();
};

void tst_vrndevice_check::exitCodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    const QString valid = validFile(u"complete"_s);
    const QString warning = BrokenDocuments::path(u"revised-before-created"_s);
    const QString error = BrokenDocuments::path(u"file-twice"_s);
    const QString broken = Places::data("configuration/invalid/mismatched-end-tag.3deco");
    const auto row = [](const char *name, const QStringList &arguments, int exitCode) {
        QTest::newRow(name) << arguments << exitCode;
    };
    row("valid", {valid}, 0);
    row("valid, strict", {valid, u"--strict"_s}, 0);
    row("warning", {warning}, 0);
    row("warning, strict", {warning, u"--strict"_s}, 1);
    row("error", {error}, 1);
    row("error and valid", {error, valid}, 1);
    row("valid, warning and error", {valid, warning, error}, 1);
    row("warning and valid, strict", {warning, valid, u"--strict"_s}, 1);
    row("broken", {broken}, 3);
    row("broken between others", {error, broken, valid}, 3);
    row("missing", {u"/nowhere/a.3deco"_s}, 3);
    row("no file", {}, 2);
    row("unknown option", {valid, u"--stric"_s}, 2);
    row("project without directory", {valid, u"--project"_s}, 2);
}

void tst_vrndevice_check::exitCodes()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QCOMPARE(check(arguments).exitCode, exitCode);
    QCOMPARE(check(QStringList(u"--json"_s) + arguments).exitCode, exitCode);
}

void tst_vrndevice_check::textOfAFinding()
{
    const QString path = BrokenDocuments::path(u"class-in-capitals"_s);
    const SResult result = check({path});
    QCOMPARE(
        result.output,
        path
            + u":18:3: error: 'KD3' is not a valid device class. It is read as 'Undefined'. "
              "[device-class-unknown]\n    item: device.class\n    expected: kc2, kd3\n    "
              "hint: Write 'kd3'; upper and lower case are distinguished.\n1 error, 0 warnings "
              "in 1 file\n"_s);
    QCOMPARE(result.errors, QString());

    const SResult found = check({BrokenDocuments::path(u"attribute-unknown"_s)});
    QVERIFY2(found.output.contains(u"\n    found: mode=\"fast\"\n"_s), qPrintable(found.output));
}

void tst_vrndevice_check::textOfAFindingWithoutPosition()
{
    const QTemporaryDir directory;
    QVERIFY(Files::write(directory.filePath(u"manifest.json"_s), "{}"));
    const QString path = validFile(u"minimal"_s);
    const SResult result = check({path, u"--project"_s, directory.path()});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(
        result.output.startsWith(path + u": error: The manifest of the project cannot be read: "_s),
        qPrintable(result.output));
}

void tst_vrndevice_check::summary()
{
    const QString one = BrokenDocuments::path(u"revised-before-created"_s);
    const QString many = BrokenDocuments::path(u"many-faults"_s);
    const QString valid = validFile(u"complete"_s);
    QCOMPARE(lastLine(check({one}).output), u"0 errors, 1 warning in 1 file"_s);
    QCOMPARE(lastLine(check({many}).output), u"10 errors, 1 warning in 1 file"_s);
    QCOMPARE(lastLine(check({one, valid, one}).output), u"0 errors, 2 warnings in 3 files"_s);
    QCOMPARE(lastLine(check({valid, many, one}).output), u"10 errors, 2 warnings in 3 files"_s);
}

void tst_vrndevice_check::nothingIsWrong()
{
    const QString path = validFile(u"complete"_s);
    const QString minimal = validFile(u"minimal"_s);
    const SResult result = check({path, minimal});
    QCOMPARE(result.output, u"%1: nothing is wrong\n%2: nothing is wrong\n"_s.arg(path, minimal));
    QCOMPARE(result.errors, QString());
}

void tst_vrndevice_check::unreadableFilesAreTold()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"broken.3deco"_s);
    QVERIFY(Files::write(path, "<VornDeviceConfig>\n <Device>\n</VornDeviceConfig>\n"));
    const QString valid = validFile(u"complete"_s);
    const SResult result = check({path, valid, directory.filePath(u"none"_s)});
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.output, valid + u": nothing is wrong\n"_s);
    const QStringList lines = result.errors.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).startsWith(u"vrndevice: error: %1:3:3: "_s.arg(path)),
             qPrintable(result.errors));
    QVERIFY2(lines.at(1).startsWith(u"vrndevice: error: %1: "_s.arg(directory.filePath(u"none"_s))),
             qPrintable(result.errors));

    const SResult other = check({Tool::exampleDirectory().filePath(u"settings.3conf"_s)});
    QCOMPARE(other.exitCode, 3);
    QVERIFY2(other.errors.contains(u"The document type is 'VornDeviceSettings'"_s),
             qPrintable(other.errors));
}

void tst_vrndevice_check::standardInput()
{
    const SResult valid = checkInput(Files::read(validFile(u"complete"_s)), {u"-"_s});
    QCOMPARE(valid.exitCode, 0);
    QCOMPARE(valid.output, u"standard input: nothing is wrong\n"_s);

    const SResult invalid =
        checkInput(Files::read(BrokenDocuments::path(u"class-in-capitals"_s)), {u"-"_s});
    QCOMPARE(invalid.exitCode, 1);
    QVERIFY2(invalid.output.startsWith(u"standard input:18:3: error: "_s),
             qPrintable(invalid.output));
}

void tst_vrndevice_check::standardInputThatIsUnreadable()
{
    const SResult broken = checkInput("<VornDeviceConfig>", {u"-"_s});
    QCOMPARE(broken.exitCode, 3);
    QVERIFY2(broken.errors.startsWith(u"vrndevice: error: standard input:1:"_s),
             qPrintable(broken.errors));
    QCOMPARE(broken.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(broken.output, QString());

    const SResult other = checkInput("<a/>", {u"-"_s});
    QCOMPARE(other.errors,
             u"vrndevice: error: standard input: The document type is 'a', but 'VornDeviceConfig' "
             "is required.\n"_s);
}

void tst_vrndevice_check::project()
{
    const QDir example = Tool::exampleDirectory();
    const QString path = example.filePath(u"DeviceConfiguration.3deco"_s);
    const SResult complete = check({path, u"--project"_s, example.path()});
    QCOMPARE(complete.exitCode, 0);
    QCOMPARE(complete.output, path + u": nothing is wrong\n"_s);

    const QTemporaryDir empty;
    const SResult result = check({path, u"--project"_s, empty.path(), u"--json"_s});
    QCOMPARE(result.exitCode, 1);
    const QJsonObject json = result.json();
    QCOMPARE(json.value(u"errors"_s).toInt(), 28);
    for (const QJsonValue &finding : json.value(u"files"_s)[0][u"findings"_s].toArray()) {
        QCOMPARE(finding[u"rule"_s].toString(), u"project-file-missing"_s);
        QVERIFY(finding[u"line"_s].toInt() > 20);
    }
}

void tst_vrndevice_check::projectThatIsNone()
{
    const SResult result = check({validFile(u"complete"_s), u"--project"_s, u"/nowhere"_s});
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, u"vrndevice: error: /nowhere: The directory does not exist.\n"_s);
}

void tst_vrndevice_check::json()
{
    const QString path = BrokenDocuments::path(u"revised-before-created"_s);
    const QString valid = validFile(u"complete"_s);
    const QJsonObject finding = {
        {u"rule"_s, u"date-order"_s},
        {u"severity"_s, u"warning"_s},
        {u"item"_s, u"description.revisionDate"_s},
        {u"line"_s, 14},
        {u"column"_s, 3},
        {u"message"_s, u"The revision date is earlier than the creation date."_s},
        {u"found"_s, u"2026-03-01"_s},
        {u"expected"_s, u"2026-03-02 or later"_s},
        {u"hint"_s, u"Correct the wrong date; the two dates may be interchanged."_s}};
    const QJsonObject expected = {
        {u"files"_s,
         QJsonArray{
             QJsonObject{
                 {u"file"_s, path}, {u"error"_s, u""_s}, {u"findings"_s, QJsonArray{finding}}},
             QJsonObject{{u"file"_s, valid}, {u"error"_s, u""_s}, {u"findings"_s, QJsonArray()}}}},
        {u"errors"_s, 0},
        {u"warnings"_s, 1}};
    QCOMPARE(check({path, valid, u"--json"_s}).json(), expected);
}

void tst_vrndevice_check::jsonOfUnreadableFiles()
{
    const QString error = BrokenDocuments::path(u"file-twice"_s);
    const SResult result = check({u"/nowhere/a"_s, error, u"--json"_s});
    const QJsonArray files = result.json().value(u"files"_s).toArray();
    QCOMPARE(files.size(), 2);
    QVERIFY(files.at(0)[u"error"_s].toString().startsWith(u"/nowhere/a: "_s));
    QCOMPARE(files.at(0)[u"findings"_s].toArray(), QJsonArray());
    QCOMPARE(files.at(1)[u"error"_s].toString(), QString());
    QCOMPARE(files.at(1)[u"findings"_s].toArray().size(), 1);
    QCOMPARE(files.at(1)[u"findings"_s][0][u"severity"_s].toString(), u"error"_s);
    QVERIFY(result.errors.startsWith(u"vrndevice: error: /nowhere/a: "_s));
}

void tst_vrndevice_check::controlCharactersAreNotPrinted()
{
    const SResult lines = check({BrokenDocuments::path(u"file-name-with-line-break"_s)});
    QVERIFY2(lines.output.contains(u"    item: files[recipes.csv\\n     ]\n"_s),
             qPrintable(lines.output));
    // The control character 0x9B begins a sequence for terminals, as ESC and "[" do.
    const SResult escapes = checkInput(
        "<VornDeviceConfig version=\"&#x9B;31m\"><Device/></VornDeviceConfig>", {u"-"_s});
    QVERIFY(!escapes.output.contains(QChar(0x9b)));
    QVERIFY2(escapes.output.contains(u"\\u009b31m"_s), qPrintable(escapes.output));
}

void tst_vrndevice_check::colours()
{
    const QStringList arguments = {BrokenDocuments::path(u"class-in-capitals"_s)};
    const QByteArray red = "\x1b[31merror:\x1b[0m";
    const QString term = u"TERM"_s;
    if (!PseudoTerminal().isOpen()) {
        QSKIP("There are no pseudo-terminals here.", 0);
    }
    QVERIFY(onTerminal(arguments, {{term, u"xterm"_s}}).contains(red));
    QVERIFY(onTerminal({BrokenDocuments::path(u"revised-before-created"_s)},
                       {{term, u"xterm"_s}, {u"NO_COLOR"_s, QString()}})
                .contains("\x1b[33mwarning:\x1b[0m"));
    for (const QMap<QString, QString> &variables :
         {QMap<QString, QString>{{term, u"xterm"_s}, {u"NO_COLOR"_s, u"1"_s}},
          QMap<QString, QString>{{term, u"dumb"_s}}, QMap<QString, QString>{{term, QString()}}}) {
        const QByteArray output = onTerminal(arguments, variables);
        QVERIFY2(output.contains(": error: 'KD3'"), output.constData());
        QVERIFY(!output.contains('\x1b'));
    }
    QVERIFY(!check(arguments).output.contains(QChar(0x1b)));
}

void tst_vrndevice_check::thousandFiles()
{
    const int count = 1000;
    const QTemporaryDir directory;
    const QByteArray content = Files::read(BrokenDocuments::path(u"revised-before-created"_s));
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths << directory.filePath(u"%1.3deco"_s.arg(i));
        QVERIFY(Files::write(paths.constLast(), content));
    }
    const SResult result = check(paths);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(lastLine(result.output), u"0 errors, 1000 warnings in 1000 files"_s);
    QCOMPARE(result.output.count(u"[date-order]"_s), count);
    // In the order in which they were given.
    QVERIFY(result.output.indexOf(paths.at(998)) < result.output.indexOf(paths.at(999)));
    QVERIFY(!result.output.contains(QChar(QChar::Null)));
    QCOMPARE(check(paths + QStringList(u"--json"_s)).json().value(u"warnings"_s).toInt(), count);
}

void tst_vrndevice_check::help()
{
    const SResult result = check({u"--help"_s});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.startsWith(u"Usage: vrndevice check [options] FILE...\n"_s));
    for (const QString &text : {u"--project <DIR>"_s, u"--strict"_s, u"--json"_s,
                                u"  vrndevice check DeviceConfiguration.3deco\n"_s}) {
        QVERIFY2(result.output.contains(text), qPrintable(text));
    }
}

void tst_vrndevice_check::rules()
{
    const SResult text = Tool::run(QDir::tempPath(), {u"rules"_s});
    const SResult json = Tool::run(QDir::tempPath(), {u"rules"_s, u"--json"_s});
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(json.exitCode, 0);
    const QStringList lines = text.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QJsonArray array = json.json().value(u"rules"_s).toArray();
    const QList<CConfigurationCheck::SRule> rules = CConfigurationCheck::rules();
    QCOMPARE(lines.size(), rules.size());
    QCOMPARE(array.size(), rules.size());
    static const QRegularExpression gap(u"  +"_s);
    for (int i = 0; i < rules.size(); ++i) {
        const CConfigurationCheck::SRule &rule = rules.at(i);
        const QString severity =
            rule.severity == SConfigurationFinding::ERROR ? u"error"_s : u"warning"_s;
        QCOMPARE(lines.at(i).split(gap), QStringList({rule.id, severity, rule.description}));
        const QJsonObject expected = {{u"id"_s, rule.id},
                                      {u"severity"_s, severity},
                                      {u"description"_s, rule.description},
                                      {u"hint"_s, rule.hint}};
        QCOMPARE(array.at(i).toObject(), expected);
    }
    QCOMPARE(Tool::run(QDir::tempPath(), {u"rules"_s, u"x"_s}).exitCode, 2);
}

REGISTER_GUILESS_TEST(tst_vrndevice_check)

#include "tst_vrndevice_check.moc"
