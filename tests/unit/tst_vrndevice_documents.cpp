#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using Tool::SResult;

/** What the tool tells of itself to man(1) and to shells. */
class tst_vrndevice_documents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void manualIsWellFormed();
    void manualHoldsTheHelp();
    void manualEscapesWhatRoffReads();
    void documentsAreTheSame_data();
    void documentsAreTheSame();
    void noJson_data();
    void noJson();
    void syntax_data();
    void syntax();
    void completion_data();
    void completion();

private:
    SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory.path(), arguments);
    }
    QStringList offered(const QString &shell, const QString &line) const;
    QStringList offeredByBash(const QString &line) const;
    QStringList offeredByFish(const QString &line) const;
    QStringList offeredByZsh(const QString &line) const;
    QString execute(const QString &program, const QStringList &arguments) const;

    QTemporaryDir m_directory;
};

namespace {

const QStringList Shells = {u"bash"_s, u"fish"_s, u"zsh"_s};

bool isThere(const QString &program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

/** In one line, as roff gets it. */
QString inRoff(QString text)
{
    return text.replace(u'-', u"\\-"_s)
        .replace(u'\'', u"\\(aq"_s)
        .replace(u'~', u"\\(ti"_s)
        .simplified();
}

} // namespace

void tst_vrndevice_documents::initTestCase()
{
    QVERIFY(m_directory.isValid());
    const QDir directory(m_directory.path());
    QVERIFY(directory.mkpath(u"sub"_s));
    for (const QString &name : {u"a.3deco"_s, u"b c.3deco"_s, u"n.txt"_s, u"network.conf"_s,
                                u"sub/network.conf"_s, u"s.3conf"_s}) {
        QVERIFY(Files::write(directory.filePath(name), "x"));
    }
    for (const QString &shell : Shells) {
        const SResult script = run({u"completion"_s, shell});
        QCOMPARE(script.exitCode, 0);
        QVERIFY(Files::write(directory.filePath(u"sub/_"_s + shell), script.output.toUtf8()));
    }
}

QString tst_vrndevice_documents::execute(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_directory.path());
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"TERM"_s, u"dumb"_s);
    environment.insert(u"ZDOTDIR"_s, m_directory.filePath(u"sub"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_directory.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.closeWriteChannel();
    return process.waitForFinished(60000) ? QString::fromUtf8(process.readAll()) : u"did not end"_s;
}

void tst_vrndevice_documents::manualIsWellFormed()
{
    if (!isThere(u"mandoc"_s)) {
        QSKIP("There is no mandoc here.", 0);
    }
    for (const QString &language : {u"en"_s, u"de"_s}) {
        QProcessEnvironment environment = Tool::englishEnvironment();
        environment.insert(u"LANGUAGE"_s, language);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        const SResult manual = Tool::run(m_directory.path(), {u"manual"_s}, environment);
        QCOMPARE(manual.exitCode, 0);
        const QString path = m_directory.filePath(u"sub/vrndevice.1"_s);
        QVERIFY(Files::write(path, manual.output.toUtf8()));
        QCOMPARE(execute(u"mandoc"_s, {u"-T"_s, u"lint"_s, path}), QString());
    }
}

void tst_vrndevice_documents::manualHoldsTheHelp()
{
    const QString manual = run({u"manual"_s}).output.simplified();
    const QString help = run({u"--help"_s}).output;
    const QStringList names = Tool::commandNames();
    QVERIFY(names.size() >= 14);
    for (const QString &name : names) {
        const QString subsection = u".SS %1 \\fBvrndevice %1\\fR"_s.arg(inRoff(name));
        QVERIFY2(manual.contains(subsection), qPrintable(subsection));
        // Each explanation of an option or argument, and each example, stands there, too.
        const QString own = run(name.split(u' ') << u"--help"_s).output;
        const QString page = manual.mid(manual.indexOf(subsection)).section(u" .SS "_s, 0, 0);
        const QStringList lines = own.split(u'\n');
        static const QRegularExpression row(u"^  (\\S+(?: \\S+)*)(?:  +(.+))?$"_s);
        for (const QString &line : lines.mid(lines.indexOf(QString()))) {
            const QRegularExpressionMatch match = row.match(line);
            const QString text =
                match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
            if (match.hasMatch() && !line.contains(u"--help"_s) && !text.contains(u'<')) {
                QVERIFY2(page.contains(inRoff(text)), qPrintable(name + u": "_s + line));
            }
        }
    }
    for (const QString &section :
         {u"NAME"_s, u"SYNOPSIS"_s, u"DESCRIPTION"_s, u"OPTIONS"_s, u"COMMANDS"_s, u"EXIT STATUS"_s,
          u"ENVIRONMENT"_s, u"FILES"_s, u"EXAMPLES"_s, u"SEE ALSO"_s}) {
        QVERIFY2(manual.contains(u" .SH "_s + section), qPrintable(section));
    }
    QVERIFY(manual.contains(
        u"\\fB0\\fR done .TP \\fB1\\fR not done, findings or differences .TP \\fB2\\fR bad usage "
        ".TP \\fB3\\fR unreadable input .SH"_s));
    QVERIFY(help.simplified().contains(u"Exit codes: 0 done, 1 not done, findings or differences, "
                                       "2 bad usage, 3 unreadable input."_s));
    QVERIFY(manual.contains(u"\\fBNO_COLOR\\fR"_s));
    QVERIFY(manual.contains(u"\\fBLANGUAGE\\fR"_s));
    QVERIFY(manual.contains(u"\\fB\\-\\-type\\fR \\fBKD2_drive\\fR|\\fBKD3_drive\\fR"_s));
    QVERIFY(manual.contains(u"\\fB\\-\\-name\\fR \\fINAME\\fR"_s));
}

void tst_vrndevice_documents::manualEscapesWhatRoffReads()
{
    static const QRegularExpression escape(
        u"\\\\(?:-|e|&|f[BIR]|\\([a-z]{2}|\\[u[0-9A-F]{4,}\\])"_s);
    for (QString line : run({u"manual"_s}).output.split(u'\n')) {
        QVERIFY2(line.size() <= 80 || line.startsWith(u"vrndevice "_s), qPrintable(line));
        const bool isRequest = line.startsWith(u'.');
        QVERIFY2(!line.startsWith(u'\''), qPrintable(line));
        line.remove(escape);
        QVERIFY2(!line.contains(u'\\') && !line.contains(u'\''), qPrintable(line));
        QVERIFY2(isRequest || !line.contains(u'-'), qPrintable(line));
        for (const QChar character : line) {
            QVERIFY2(character.unicode() >= 0x20 && character.unicode() < 0x7f, qPrintable(line));
        }
    }
}

void tst_vrndevice_documents::documentsAreTheSame_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("manual") << QStringList{u"manual"_s};
    for (const QString &shell : Shells) {
        QTest::newRow(qPrintable(shell)) << QStringList{u"completion"_s, shell};
    }
}

void tst_vrndevice_documents::documentsAreTheSame()
{
    QFETCH(QStringList, arguments);
    const SResult first = run(arguments);
    QCOMPARE(first.exitCode, 0);
    QVERIFY(first.errors.isEmpty());
    QVERIFY(first.output.endsWith(u'\n'));
    QCOMPARE(run(arguments).output, first.output);
}

void tst_vrndevice_documents::noJson_data()
{
    documentsAreTheSame_data();
}

void tst_vrndevice_documents::noJson()
{
    QFETCH(QStringList, arguments);
    const SResult result = run(arguments + QStringList{u"--json"_s});
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(u"Unknown option '--json'"_s), qPrintable(result.errors));
    QVERIFY(!run({arguments.first(), u"--help"_s}).output.contains(u"--json"_s));
}

void tst_vrndevice_documents::syntax_data()
{
    QTest::addColumn<QString>("shell");
    for (const QString &shell : Shells) {
        QTest::newRow(qPrintable(shell)) << shell;
    }
}

void tst_vrndevice_documents::syntax()
{
    QFETCH(QString, shell);
    if (!isThere(shell)) {
        QSKIP("There is no such shell here.", 0);
    }
    QCOMPARE(execute(shell, {u"-n"_s, m_directory.filePath(u"sub/_"_s + shell)}), QString());
    if (shell == u"bash"_s && isThere(u"shellcheck"_s)) {
        QCOMPARE(execute(u"shellcheck"_s, {u"-s"_s, u"bash"_s, u"sub/_bash"_s}), QString());
    }
}

QStringList tst_vrndevice_documents::offeredByBash(const QString &line) const
{
    // As readline does: "=" is a word, and so is the empty one behind a blank.
    QStringList words;
    for (const QString &word : line.split(u' ')) {
        const int equals = word.indexOf(u'=');
        words.append(equals < 0 ? word : word.left(equals));
        if (equals >= 0) {
            words.append(u"="_s);
            if (equals + 1 < word.size()) {
                words.append(word.mid(equals + 1));
            }
        }
    }
    const QString script = u"source sub/_bash\nCOMP_WORDS=(\"$@\")\nCOMP_CWORD=$(($# - 1))\n"
                           "\"$(complete -p vrndevice | sed 's/.*-F \\([^ ]*\\).*/\\1/')\"\n"
                           "[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\""_s;
    return execute(u"bash"_s, QStringList{u"--norc"_s, u"-c"_s, script, u"bash"_s} + words)
        .split(u'\n', Qt::SkipEmptyParts);
}

QStringList tst_vrndevice_documents::offeredByFish(const QString &line) const
{
    QStringList result;
    const QString script = u"source sub/_fish; complete -C '%1'"_s.arg(line);
    for (QString &offer :
         execute(u"fish"_s, {u"--no-config"_s, u"-c"_s, script}).split(u'\n', Qt::SkipEmptyParts)) {
        // "--type=" is repeated, directories end in a slash, explanations follow a tabulator.
        offer = offer.section(u'\t', 0, 0);
        if (offer.endsWith(u'/')) {
            offer.chop(1);
        }
        result.append(offer.startsWith(u"--"_s) && offer.contains(u'=') ? offer.section(u'=', 1)
                                                                        : offer);
    }
    return result;
}

QStringList tst_vrndevice_documents::offeredByZsh(const QString &line) const
{
    // Completion works only on a terminal: an interactive shell in a pseudo terminal, which tells
    // when it reads keys, and everything that is handed to its compadd.
    const char start[] = R"(PROMPT= RPROMPT=
autoload -Uz compinit && compinit -u -d sub/zcompdump && source sub/_zsh
compadd() {
    if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then
        builtin compadd "$@"
        return $?
    fi
    local -a matches
    local match
    builtin compadd -A matches "$@"
    for match in $matches; do print -r -- "<offer>${(Q)match}"; done
    builtin compadd "$@"
}
finish() { zle complete-word; print -r -- "<end>"; exit }
zle -N finish
bindkey "^I" finish
zstyle ":completion:*" insert-tab false
ready() { print -r -- "<ready>" }
zle -N zle-line-init ready
)";
    const char driver[] = R"(zmodload zsh/zpty || exit 1
zpty shell "exec zsh -d -i"
zpty -r shell output '*<ready>*'
zpty -w -n shell "$1"$'\t'
zpty -r shell output '*<end>*'
print -r -- $output
)";
    if (!Files::write(m_directory.filePath(u"sub/.zshrc"_s), start)
        || !Files::write(m_directory.filePath(u"sub/driver"_s), driver)) {
        return {u"not written"_s};
    }
    QStringList result;
    static const QRegularExpression offer(u"<offer>([^\r\n]*)"_s);
    auto matches = offer.globalMatch(execute(u"zsh"_s, {u"-f"_s, u"sub/driver"_s, line}));
    while (matches.hasNext()) {
        result.append(matches.next().captured(1));
    }
    return result;
}

QStringList tst_vrndevice_documents::offered(const QString &shell, const QString &line) const
{
    QStringList result = shell == u"bash"_s ? offeredByBash(line)
        : shell == u"fish"_s                ? offeredByFish(line)
                                            : offeredByZsh(line);
    result.sort();
    return result;
}

void tst_vrndevice_documents::completion_data()
{
    QTest::addColumn<QString>("shell");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QStringList>("unwanted");

    const auto row = [](const QString &line, const char *wanted, const char *unwanted) {
        for (const QString &shell : Shells) {
            QTest::newRow(qPrintable(shell + u": "_s + line))
                << shell << line << QString::fromLatin1(wanted).split(u'|', Qt::SkipEmptyParts)
                << QString::fromLatin1(unwanted).split(u'|', Qt::SkipEmptyParts);
        }
    };
    row(u"vrndevice "_s, "add-drive|completion|network|show",
        "network show|KD2_drive|a.3deco|n.txt");
    row(u"vrndevice ne"_s, "network|new", "show|network.conf");
    row(u"vrndevice --v"_s, "--version", "--json|show");
    row(u"vrndevice network "_s, "check|set|show", "network.conf|place|network");
    row(u"vrndevice network s"_s, "set|show", "check|settings");
    row(u"vrndevice add-drive "_s, "a.3deco|b c.3deco", "show|KD2_drive");
    row(u"vrndevice add-drive n"_s, "n.txt", "a.3deco|new|network");
    row(u"vrndevice add-drive --t"_s, "--type", "--json");
    row(u"vrndevice add-drive --"_s, "--type|--name|--id|--json|--help", "--create|--version");
    row(u"vrndevice add-drive --type "_s, "KD2_drive|KD3_drive", "a.3deco|--json");
    row(u"vrndevice add-drive --type="_s, "KD2_drive|KD3_drive", "a.3deco");
    row(u"vrndevice add-drive --type=KD3"_s, "KD3_drive", "KD2_drive");
    row(u"vrndevice add-drive --name "_s, "", "a.3deco|KD2_drive|add-drive");
    row(u"vrndevice add-drive --type KD3_drive a"_s, "a.3deco", "n.txt|KD3_drive");
    row(u"vrndevice add-drive --type=KD3_drive a"_s, "a.3deco", "n.txt|KD3_drive");
    row(u"vrndevice new --template "_s, "kd3-drive|a.3deco", "new|--json");
    row(u"vrndevice new --class "_s, "kc2|kd3", "a.3deco|new");
    row(u"vrndevice network set n"_s, "network.conf", "");
    row(u"vrndevice network set --"_s, "--create|--json|--help", "--type");
    row(u"vrndevice settings show "_s, "s.3conf", "set|settings");
    row(u"vrndevice completion "_s, "bash|fish|zsh", "a.3deco|tcsh");
    row(u"vrndevice manual "_s, "", "a.3deco|show");
    row(u"vrndevice nosuch "_s, "", "show|--json");
}

void tst_vrndevice_documents::completion()
{
    QFETCH(QString, shell);
    QFETCH(QString, line);
    QFETCH(QStringList, wanted);
    QFETCH(QStringList, unwanted);
    if (!isThere(shell)) {
        QSKIP("There is no such shell here.", 0);
    }
    const QStringList found = offered(shell, line);
    const QString all = found.join(u", "_s);
    for (const QString &word : wanted) {
        const auto isWord = [&word](QString offer) {
            // zsh and fish hand names over as they are typed.
            return offer.remove(u'\\') == word;
        };
        QVERIFY2(std::any_of(found.begin(), found.end(), isWord),
                 qPrintable(word + u" is not in: "_s + all));
    }
    for (const QString &word : unwanted) {
        QVERIFY2(!found.contains(word), qPrintable(word + u" is in: "_s + all));
    }
}

REGISTER_GUILESS_TEST(tst_vrndevice_documents)
#include "tst_vrndevice_documents.moc"
