#include "configfile/CDeviceConfigurationFile10.h"
#include "settings/CDeviceSettingsFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/PseudoTerminal.h"
#include "support/TestProgram.h"
#include "support/Tool.h"
#include "vocabulary/NVornXmlTags.h"

#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <iterator>

namespace {

using Tool::SResult;

/** A document can carry these: a sequence for terminals, ends of lines, changes of direction. */
const QString Hostile = u"\u009b31m\u007f\u0085\u2028\u2029\n\r\t\u061c\u200e\u200f\u202a\u202b"
                        "\u202c\u202d\u202e\u2066\u2067\u2068\u2069"_s;
/** Names of files, and files that are not XML, can carry these, too. */
const QString Worst = u"\x1b[31m\x07\x08\x1b]0;title\x1b\\\\"_s + Hostile;

/** What a row of the test expects beside a harmless output. */
enum EExpectation {
    /** Hostile text was printed, in escape sequences. */
    SHOWN,
    /** Nothing hostile comes into it. */
    NOT_SHOWN,
    /** As SHOWN; further lines of a value begin with a tab. */
    SHOWN_WITH_TABS,
    /** As SHOWN; the command colours its output. */
    SHOWN_IN_COLOURS,
    /** Programs read the output, so that it is exact; messages are harmless. */
    EXACT
};

} // namespace

Q_DECLARE_METATYPE(EExpectation)

namespace {

struct SRow {
    /** A command line; words behind "@" are names or texts, see initTestCase(). */
    const char *line;
    EExpectation expectation;
};

const SRow Rows[] = {
    {"--help", NOT_SHOWN},
    {"@text", SHOWN},
    {"settings @text", SHOWN},
    {"show @text --@text", SHOWN},
    {"show -@text", SHOWN},
    {"show @doc @text", SHOWN},
    {"add @doc files[@value]", SHOWN},
    {"add @other files[@value] files[@value].comment @value", SHOWN_WITH_TABS},
    {"add @other @text", SHOWN},
    {"add @missing files[a]", SHOWN},
    {"add-drive @doc --type KD3_drive --name @value", SHOWN},
    {"add-drive @doc --type KD3_drive --id 1", SHOWN},
    {"add-drive @missing --type KD3_drive", SHOWN},
    {"apply @patch @other", SHOWN},
    {"apply @mismatch @other", SHOWN},
    {"apply --check @patch @other", SHOWN},
    {"apply @missing @other", SHOWN},
    {"apply @doc @other", SHOWN},
    {"check @doc", SHOWN},
    {"check @broken @missing", SHOWN},
    {"check @doc --project @tree", SHOWN},
    {"check @doc --project @missing", SHOWN},
    {"completion bash", EXACT},
    {"completion @text", NOT_SHOWN},
    {"diff @other @doc", SHOWN},
    {"diff @doc @missing", SHOWN},
    {"fmt @doc", SHOWN},
    {"fmt --check @doc", SHOWN},
    {"fmt @missing", SHOWN},
    {"get @doc", SHOWN_WITH_TABS},
    {"get @doc device.name", EXACT},
    {"get @doc @text", SHOWN},
    {"get @missing", SHOWN},
    {"manual", EXACT},
    {"merge @other @other @doc", SHOWN},
    {"merge @other @doc @other", NOT_SHOWN},
    {"merge @missing @other @other", SHOWN},
    {"merge @other @doc @third", SHOWN},
    {"merge -o @new @other @other @doc", SHOWN},
    {"merge -o @missing/x @other @other @doc", SHOWN},
    {"message @text", SHOWN},
    {"message 1098", NOT_SHOWN},
    {"module @text", SHOWN},
    {"module OM1_EC_H2_V1_3_@text.bin", SHOWN},
    {"module /@text/OM1_EC_H2_V1_3.bin", NOT_SHOWN},
    {"network check @network", SHOWN},
    {"network show @network", SHOWN},
    {"network set @network MODE=DHCP", SHOWN},
    {"network set @network MODE=@text", SHOWN},
    {"network set @network @text", SHOWN},
    {"network check @missing", SHOWN},
    {"new @new --class kd3 --name @value", SHOWN},
    {"new @new --class kd3 --name @text", SHOWN},
    {"new @doc --class kd3 --name a", SHOWN},
    {"new @new --template @missing --name a", SHOWN},
    {"new @new --template @doc --class kc2 --name a", SHOWN},
    {"os-release show @release", SHOWN},
    {"os-release show @missing", SHOWN},
    {"place @doc", SHOWN},
    {"place @missing", SHOWN},
    {"remove @doc device.faultTexts @text", SHOWN},
    {"remove @other drive[0]", NOT_SHOWN},
    {"remove @missing drive[0]", SHOWN},
    {"report @doc", EXACT},
    {"report @doc -o @new", SHOWN},
    {"report @doc -o @missing/x", SHOWN},
    {"rules", NOT_SHOWN},
    {"set @other device.name @value", SHOWN_WITH_TABS},
    {"set @other device.name @text", NOT_SHOWN},
    {"set @other @text a", SHOWN},
    {"settings show @settings", SHOWN},
    {"settings set @settings --name @value", SHOWN},
    {"settings set @settings --drive @text", NOT_SHOWN},
    {"settings show @missing", SHOWN},
    {"show @doc", SHOWN},
    {"show @broken", SHOWN},
    {"stage @doc --project @project --to @new", SHOWN},
    {"stage @other --project @missing --to @new", SHOWN},
    {"stage @other --project @project --to @tree", SHOWN},
    {"stage @missing --project @project --to @new", SHOWN},
    {"tree @doc", SHOWN},
    {"tree @doc --color always", SHOWN_IN_COLOURS},
    {"tree @doc --color @text", NOT_SHOWN},
    {"tree @missing", SHOWN},
    {"verify @tree", SHOWN},
    {"verify @doc @missing", SHOWN},
};

/** Told apart here once more, by number and not by what Qt knows of them. */
bool isHarmless(const QString &text, bool mayHaveTabs)
{
    static const QRegularExpression command(
        u"[\\x00-\\x08\\x0b-\\x1f\\x7f-\\x9f\\x{061c}\\x{200e}\\x{200f}\\x{2028}-\\x{202e}"
        "\\x{2066}-\\x{2069}]"_s);
    return !command.match(text).hasMatch() && (mayHaveTabs || !text.contains(u'\t'));
}

QProcessEnvironment environment()
{
    QProcessEnvironment result = Tool::englishEnvironment();
    // In which names have all characters.
    result.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    result.remove(u"NO_COLOR"_s);
    result.insert(u"TERM"_s, u"xterm"_s);
    return result;
}

bool hasElements(const QDomElement &element)
{
    return !element.firstChildElement().isNull();
}

/** Appends @p addition to each text below @p element, but for those that must be what they are. */
void appendToTexts(const QDomElement &element, const QString &addition)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const bool isKept = child.tagName() == NVornXmlTags::TAG_CLASS
            || child.tagName() == NVornXmlTags::TAG_DRIVE_NO;
        if (hasElements(child)) {
            appendToTexts(child, addition);
        } else if (!isKept) {
            child.appendChild(child.ownerDocument().createTextNode(addition));
        }
    }
}

} // namespace

/** What commands print for people, of files and of names that would command a terminal. */
class tst_vrndevice_printing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void nothingCommandsTheTerminal_data();
    void nothingCommandsTheTerminal();
    void everyCommandIsTested();
    void valueForAScript();
    void valueOnATerminal();
    void jsonIsExact();
    void reportNamesNoPathOfThisComputer();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory->path(), arguments, environment());
    }
    QString filled(QString argument) const;
    void writeDocuments();
    void writeSmallFiles();
    void writeTree();

    QScopedPointer<QTemporaryDir> m_directory;
    /** What each test starts from. */
    QScopedPointer<QTemporaryDir> m_template;
    /** What stands for them in the rows, with an "@" in front. */
    QMap<QString, QString> m_names;
};

void tst_vrndevice_printing::initTestCase()
{
    const QString name = u"\x1b[2J\n\u009b1m\u202e"_s;
    if (QFile::decodeName(QFile::encodeName(name)) != name) {
        QSKIP("Names of files do not have these characters in this locale.", 0);
    }
    for (const QString &word : {u"doc"_s, u"settings"_s, u"network"_s, u"release"_s, u"patch"_s,
                                u"mismatch"_s, u"missing"_s, u"new"_s, u"tree"_s, u"broken"_s}) {
        m_names.insert(word, name + word);
    }
    m_names.insert(u"other"_s, u"other.3deco"_s);
    m_names.insert(u"third"_s, u"third.3deco"_s);
    m_names.insert(u"project"_s, Tool::exampleDirectory().path());
    m_names.insert(u"text"_s, u"x"_s + Worst);
    m_names.insert(u"value"_s, u"x"_s + Hostile);
    init();
    m_template.swap(m_directory);
}

/** The words behind "@" in @p argument as the names that they stand for. */
QString tst_vrndevice_printing::filled(QString argument) const
{
    for (auto name = m_names.cbegin(); name != m_names.cend(); ++name) {
        argument.replace(u'@' + name.key(), name.value());
    }
    return argument;
}

void tst_vrndevice_printing::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
    if (m_template) {
        QCOMPARE(QProcess::execute(u"cp"_s, {u"-R"_s, m_template->filePath(u"."_s), path(u"."_s)}),
                 0);
        return;
    }
    writeDocuments();
    writeSmallFiles();
    writeTree();
}

void tst_vrndevice_printing::writeDocuments()
{
    QVERIFY(Tool::copyExample(u"DeviceConfiguration.3deco"_s, m_directory->path()));
    QVERIFY(QFile::rename(path(u"DeviceConfiguration.3deco"_s), path(m_names[u"other"_s])));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(path(m_names[u"other"_s])));
    const QDomElement name = file.findDeviceElement().firstChildElement(NVornXmlTags::TAG_NAME);
    const QString oldName = file.getNodeValue(name);
    file.setNodeValue(name, u"third"_s);
    QVERIFY(file.save(path(m_names[u"third"_s])));
    file.setNodeValue(name, oldName);
    appendToTexts(file.domDocument().documentElement(), Hostile);
    const QString document = path(m_names[u"doc"_s]);
    QVERIFY(file.save(document));
    // Not as it would be saved.
    QVERIFY(Files::write(document, Files::read(document) + '\n'));
    QVERIFY(Files::write(path(m_names[u"broken"_s]), "<VornDeviceConfig><\xe2\x80\xae\xc2\x9b>"));
    const SResult diff = run({u"diff"_s, u"--json"_s, m_names[u"other"_s], m_names[u"doc"_s]});
    QVERIFY(Files::write(path(m_names[u"patch"_s]), diff.output.toUtf8()));
    const SResult back = run({u"diff"_s, u"--json"_s, m_names[u"doc"_s], m_names[u"other"_s]});
    QVERIFY(Files::write(path(m_names[u"mismatch"_s]), back.output.toUtf8()));
}

void tst_vrndevice_printing::writeSmallFiles()
{
    CDeviceSettings names;
    names.setDeviceName(u"x"_s + Hostile);
    names.setSubDeviceName(u"x"_s + Hostile, 1);
    CDeviceSettingsFile settings(nullptr);
    settings.setDeviceSettings(names);
    QCOMPARE(settings.save(path(m_names[u"settings"_s]), u"1.0"_s),
             NvrnGlobal::FILE_RESULT_SUCCESS);
    QByteArray bad = Worst.toUtf8();
    bad.replace('\n', "").replace('\r', "");
    QVERIFY(Files::write(path(m_names[u"network"_s]),
                         "MODE=" + bad + "\nADDRESS=" + bad + "\nUNKNOWN" + bad + "=1\n" + bad));
    QVERIFY(Files::write(path(m_names[u"release"_s]),
                         "PRODUCT=\"" + bad + "\"\nPTXDIST_VERSION=" + bad + "\nNAME=" + bad
                             + "\nID=" + bad + "\nVERSION=" + bad + "\nPLATFORM=" + bad));
}

void tst_vrndevice_printing::writeTree()
{
    const QString document = Tool::exampleDirectory().filePath(u"DeviceConfiguration.3deco"_s);
    const SResult staged = run({u"stage"_s, document, u"--project"_s, m_names[u"project"_s],
                                u"--to"_s, m_names[u"tree"_s]});
    QCOMPARE(staged.exitCode, 0);
    QVERIFY(Files::write(path(m_names[u"tree"_s]) + u"/surplus"_s + m_names[u"new"_s], "x"));
}

void tst_vrndevice_printing::nothingCommandsTheTerminal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<EExpectation>("expectation");
    for (const SRow &row : Rows) {
        QTest::newRow(row.line) << QString::fromLatin1(row.line).split(u' ') << row.expectation;
    }
}

void tst_vrndevice_printing::nothingCommandsTheTerminal()
{
    QFETCH(QStringList, arguments);
    QFETCH(EExpectation, expectation);
    for (QString &argument : arguments) {
        argument = filled(argument);
    }
    SResult result = run(arguments);
    QVERIFY(result.exitCode >= 0);
    if (expectation == SHOWN_IN_COLOURS) {
        static const QRegularExpression colour(u"\x1b\\[[0-9]+m"_s);
        const QString plain = QString(result.output).remove(colour);
        QVERIFY(plain.size() < result.output.size());
        result.output = plain;
    }
    QVERIFY2(isHarmless(result.errors, false), qPrintable(result.errors));
    for (const QString &line : result.errors.split(u'\n', Qt::SkipEmptyParts)) {
        QVERIFY2(line.startsWith(u"vrndevice: "_s), qPrintable(line));
    }
    if (expectation == EXACT) {
        return;
    }
    QVERIFY2(isHarmless(result.output, expectation == SHOWN_WITH_TABS), qPrintable(result.output));
    QCOMPARE((result.output + result.errors).contains(u"\\u"_s), expectation != NOT_SHOWN);
}

/** A new command needs rows of its own. */
void tst_vrndevice_printing::everyCommandIsTested()
{
    const QString help = run({u"--help"_s}).output;
    static const QRegularExpression command(u"^  ([a-z][a-z-]*(?: [a-z]+)?)  "_s,
                                            QRegularExpression::MultilineOption);
    int count = 0;
    for (auto found = command.globalMatch(help); found.hasNext(); ++count) {
        const QString name = found.next().captured(1);
        const bool isTested = std::any_of(std::begin(Rows), std::end(Rows), [&](const SRow &row) {
            return (QString::fromLatin1(row.line) + u' ').startsWith(name + u' ');
        });
        QVERIFY2(isTested, qPrintable(name));
    }
    QVERIFY(count > 20);
}

void tst_vrndevice_printing::valueForAScript()
{
    QString value;
    {
        const MessageCatcher catcher;
        CDeviceConfigurationFile10 file(nullptr);
        QVERIFY(file.open(path(m_names[u"doc"_s])));
        CDeviceElement device;
        QVERIFY(file.configuration(device));
        value = device.name();
    }
    QVERIFY(value.endsWith(Hostile));
    QCOMPARE(run({u"get"_s, m_names[u"doc"_s], u"device.name"_s}).output, value + u'\n');
}

void tst_vrndevice_printing::valueOnATerminal()
{
    const PseudoTerminal terminal;
    if (!terminal.isOpen()) {
        QSKIP("There are no pseudo-terminals here.", 0);
    }
    QProcess process;
    process.setWorkingDirectory(m_directory->path());
    process.setProcessEnvironment(environment());
    process.setStandardOutputFile(terminal.name());
    process.start(Tool::program(), {u"get"_s, m_names[u"doc"_s], u"device.name"_s});
    QVERIFY(process.waitForFinished());
    // The terminal itself writes a carriage return before each line feed.
    const QString output = QString::fromUtf8(terminal.read()).replace(u"\r\n"_s, u"\n"_s);
    QVERIFY(output.startsWith(u"PackagingLine\\u009b31m\\u007f\\u0085\\u2028\\u2029\\n\\r\\t"_s));
    QVERIFY2(isHarmless(output, false), qPrintable(output));
}

void tst_vrndevice_printing::jsonIsExact()
{
    const SResult shown = run({u"show"_s, m_names[u"doc"_s], u"--json"_s});
    const QString name = shown.json()[u"device"_s].toObject()[u"name"_s].toString();
    QVERIFY2(name.endsWith(Hostile), qPrintable(name));
    const SResult created = run({u"module"_s, m_names[u"text"_s], u"--json"_s});
    QVERIFY(created.output.contains(u"\\u001b[31m"_s));
}

void tst_vrndevice_printing::reportNamesNoPathOfThisComputer()
{
    const QTemporaryDir elsewhere;
    QVERIFY(Files::write(elsewhere.filePath(u"outside.xml"_s), "x"));
    const QString project = path(u"project"_s);
    QVERIFY(QDir().mkdir(project));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(path(m_names[u"other"_s])));
    QList<CFileElement> files;
    for (const QString &name : {u"outside.xml"_s, u"nothing.xml"_s}) {
        CFileElement element;
        element.setFileName(name);
        files.append(element);
        QVERIFY(QFile::link(elsewhere.filePath(name), QDir(project).filePath(name)));
    }
    QVERIFY(file.setAdditionalFiles(files));
    QVERIFY(file.save(path(u"linked.3deco"_s)));

    const SResult report = run({u"report"_s, path(u"linked.3deco"_s), u"--project"_s, project});
    QCOMPARE(report.exitCode, 0);
    for (const char *rule : {"project-file-outside", "project-file-missing"}) {
        QVERIFY2(report.output.contains(QLatin1String(rule)), rule);
    }
    for (const QString &directory :
         {elsewhere.path(), m_directory->path(), m_names[u"project"_s], QDir::homePath()}) {
        QVERIFY2(!report.output.contains(directory), qPrintable(directory));
    }
}

REGISTER_GUILESS_TEST(tst_vrndevice_printing)

#include "tst_vrndevice_printing.moc"
