#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// Texts for users, and the pages and headers, are in plain technical English: no phrases that have
// to be deciphered, and one word for one thing.

namespace {

struct SPhrase {
    const char *pattern;
    const char *instead;
};

/** Nowhere: neither in texts for users nor in pages and public headers. */
const SPhrase Phrases[] = {
    {R"(\btells?\b|\btold\b)", "say, report, contain, state, show"},
    {R"(\bnobody\b)", "unknown, ignored"},
    {R"((?<!there )\b(?:is|are|was|were) none\b)", "is not valid"},
    {R"((?<!there )\b(?:is|are) no (?!longer\b))", "is not a valid"},
    {R"(\bmend(?:s|ed|ing)?\b)", "correct"},
    {R"(\bpass(?:ed|es)? over\b)", "ignore"},
    {R"(\banew\b)", "again"},
    {R"(\bas good as none\b)", "count as absent"},
    {R"(\bcheck sums?\b)", "checksum"},
    {R"(\bfield bus)", "fieldbus"},
    {R"(\bdata bases?\b)", "database"},
    {R"(\bback-slash|\bback slash)", "backslash"},
    {R"(\bplace holders?\b)", "placeholder"},
    {R"(\bblanks?\b)", "space, empty line, white space"},
};

/** Not in texts for users. Pages and headers may refer to what stands before, or to classes. */
const SPhrase PhrasesForUsers[] = {
    {R"(\bthere (?:is|are) no(?:ne)?\b)", "does not exist, unknown, missing"},
    {R"(\bas above\b|\bof these\b)", "a sentence that is understood alone"},
    {R"(\bwhoever\b)", "a concrete subject"},
    {R"(\blooked for\b)", "expected"},
    {R"(\bleft open\b)", "undefined"},
    {R"(\bcapital\b|\bsmall letters\b)", "case-sensitive, upper case, lower case"},
    {R"(\bsub-devices?\b)", "drive"},
    {R"((?-i:\b[Bb]us ids?\b))", "bus identifier; bus ID where there is little room"},
    {R"(\bmakes? no sense\b)", "cannot be combined"},
};

/** What is wrong with @p text, as "found -> instead"; empty when nothing is. */
QStringList complaints(const QString &text, bool isForUsers)
{
    QStringList result;
    const auto look = [&](const SPhrase &phrase) {
        const QRegularExpression pattern(QString::fromLatin1(phrase.pattern),
                                         QRegularExpression::CaseInsensitiveOption);
        auto matches = pattern.globalMatch(text);
        while (matches.hasNext()) {
            result.append(u"'%1' -> %2"_s.arg(matches.next().captured(),
                                              QString::fromLatin1(phrase.instead)));
        }
    };
    for (const SPhrase &phrase : Phrases) {
        look(phrase);
    }
    if (isForUsers) {
        for (const SPhrase &phrase : PhrasesForUsers) {
            look(phrase);
        }
    }
    return result;
}

/** Comments of a header or the text of a page, as one line: phrases may be broken over lines. */
QString prose(const QString &path)
{
    QString text = QString::fromUtf8(Files::read(path));
    if (path.endsWith(u".h"_s)) {
        static const QRegularExpression comment(u"/\\*(?:.|\n)*?\\*/|//[^\n]*"_s);
        QString comments;
        auto matches = comment.globalMatch(text);
        while (matches.hasNext()) {
            comments += matches.next().captured().remove(QRegularExpression(u"\n *\\*"_s)) + u'\n';
        }
        text = comments;
    }
    return text.simplified();
}

/** Public headers, and the pages; relative to the root. */
QStringList documents()
{
    const QDir root(Places::source());
    QStringList result = {u"README.md"_s, u"CONTRIBUTING.md"_s, u"CHANGELOG.md"_s,
                          u"translations/README.md"_s};
    QDirIterator pages(root.filePath(u"docs"_s), {u"*.md"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (pages.hasNext()) {
        result.append(root.relativeFilePath(pages.next()));
    }
    for (const QString &room : {u"elements"_s, u"devicefiles"_s, u"settings"_s, u"configfile"_s,
                                u"vocabulary"_s, u"imported"_s, u"commissioning"_s}) {
        const QString folder = u"src/"_s + room;
        for (const QString &header :
             QDir(root.filePath(folder)).entryList({u"*.h"_s}, QDir::Files, QDir::Name)) {
            result.append(folder + u'/' + header);
        }
    }
    return result;
}

} // namespace

class tst_vrndevice_english : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void phrases_data();
    void phrases();
    void catalogue_data();
    void catalogue();
    void toolOutput_data();
    void toolOutput();
    void document_data();
    void document();

private:
    QTemporaryDir m_directory;
};

void tst_vrndevice_english::phrases_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("everywhere");
    QTest::addColumn<int>("forUsers");

    const auto row = [](const char *text, int everywhere, int forUsers) {
        QTest::newRow(text) << QString::fromLatin1(text) << everywhere << forUsers;
    };
    row("A date is none.", 1, 1);
    row("'x' is no date.", 1, 1);
    row("The files are no lists.", 1, 1);
    row("Nobody knows an element of that name.", 1, 1);
    row("Make the changes that 'diff --json' told.", 1, 1);
    row("The document does not tell its version.", 1, 1);
    row("Tell the type, and mend the name.", 2, 2);
    row("It is passed over; save it anew.", 2, 2);
    row("An empty item is as good as none.", 1, 1);
    row("The check sum is wrong.", 1, 1);
    row("Drives on the field bus share a data base.", 2, 2);
    row("Back-slashes and blanks", 2, 2);
    row("a place holder", 1, 1);
    row("There is no such drive.", 0, 1);
    row("The first of these, as above", 0, 2);
    row("Whoever gets the project", 0, 1);
    row("It is not looked for, and left open.", 0, 2);
    row("Capital and small letters matter.", 0, 2);
    row("Sub-devices with a bus id", 0, 2);
    row("--output makes no sense.", 0, 1);

    row("The date is not valid.", 0, 0);
    row("The file is no longer there.", 0, 0);
    row("'x' is neither an option nor the value of one.", 0, 0);
    row("The fieldbus, the database, the checksum, a backslash, a placeholder", 0, 0);
    row("None of the drives has a bus identifier; no file is missing.", 0, 0);
    row("Retell, recommend, blanket, bodies, renew", 0, 0);
    row("Names are case-sensitive.", 0, 0);
}

void tst_vrndevice_english::phrases()
{
    QFETCH(QString, text);
    QFETCH(int, everywhere);
    QFETCH(int, forUsers);
    QCOMPARE(complaints(text, false).size(), everywhere);
    QCOMPARE(complaints(text, true).size(), forUsers);
}

void tst_vrndevice_english::catalogue_data()
{
    QTest::addColumn<QString>("file");
    const QDir translations(Places::source("translations"));
    for (const QString &file : translations.entryList({u"*_de.ts"_s}, QDir::Files)) {
        QTest::newRow(qPrintable(file)) << translations.filePath(file);
    }
}

void tst_vrndevice_english::catalogue()
{
    QFETCH(QString, file);
    QDomDocument document;
    QVERIFY(document.setContent(Files::read(file)));
    const QDomNodeList sources = document.elementsByTagName(u"source"_s);
    QVERIFY(sources.size() > 100);
    QStringList found;
    for (int i = 0; i < sources.size(); ++i) {
        const QString text = sources.at(i).toElement().text();
        for (const QString &complaint : complaints(text, true)) {
            found.append(text + u"\n    "_s + complaint);
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(u"\n"_s + found.join(u'\n')));
}

void tst_vrndevice_english::toolOutput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList{u"--help"_s};
    QTest::newRow("manual") << QStringList{u"manual"_s};
    QTest::newRow("rules") << QStringList{u"rules"_s};
}

void tst_vrndevice_english::toolOutput()
{
    QFETCH(QStringList, arguments);
    const Tool::SResult result = Tool::run(m_directory.path(), arguments);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.size() > 1000);
    const QStringList found = complaints(result.output.simplified(), true);
    QVERIFY2(found.isEmpty(), qPrintable(u"\n"_s + found.join(u'\n')));
}

void tst_vrndevice_english::document_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = documents();
    QVERIFY(files.size() > 50);
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << file;
    }
}

void tst_vrndevice_english::document()
{
    QFETCH(QString, file);
    const QString text = prose(Places::source() + u'/' + file);
    QVERIFY(!text.isEmpty());
    const QStringList found = complaints(text, false);
    QVERIFY2(found.isEmpty(), qPrintable(u"\n"_s + found.join(u'\n')));
}

REGISTER_GUILESS_TEST(tst_vrndevice_english)
#include "tst_vrndevice_english.moc"
