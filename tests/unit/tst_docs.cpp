#include "elements/CFileElement.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

const QString Root = Places::source();

QString read(const QString &path)
{
    return QString::fromUtf8(Files::read(Root + QLatin1Char('/') + path));
}

/** All files of a suffix below @p directory, relative to the root of the sources, sorted. */
QStringList files(const QString &directory, const QString &suffix)
{
    QStringList result;
    QDirIterator found(Root + QLatin1Char('/') + directory, {u"*."_s + suffix}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (found.hasNext()) {
        result << QDir(Root).relativeFilePath(found.next());
    }
    result.sort();
    return result;
}

/** The pages at the root, of docs/ and of the examples. */
QStringList pages()
{
    QStringList result = files(u"docs"_s, u"md"_s) + files(u"examples"_s, u"md"_s);
    const QStringList names = QDir(Root).entryList({u"*.md"_s}, QDir::Files, QDir::Name);
    return result + names;
}

/** Without what stands in code blocks, where brackets are no links. */
QString withoutCode(const QString &page)
{
    static const QRegularExpression blocks(u"^```.*?^```$|^    .*?$|`[^`\n]*`"_s,
                                           QRegularExpression::MultilineOption
                                               | QRegularExpression::DotMatchesEverythingOption);
    QString text = page;
    // The text of a link may be code; its target is none.
    static const QRegularExpression codeLinks(u"\\[`[^`\n]*`\\]"_s);
    return text.replace(codeLinks, u"[]"_s).remove(blocks);
}

QStringList linkTargets(const QString &page)
{
    static const QRegularExpression link(u"\\]\\(([^)\\s]+)\\)"_s);
    QStringList targets;
    auto matches = link.globalMatch(withoutCode(page));
    while (matches.hasNext()) {
        targets << matches.next().captured(1);
    }
    return targets;
}

bool isRemote(const QString &target)
{
    return target.contains(u"://"_s) || target.startsWith(u"mailto:"_s);
}

/** Where a link of a page leads, relative to the root of the sources; without its anchor. */
QString resolved(const QString &page, const QString &target)
{
    const QString path = target.section(QLatin1Char('#'), 0, 0);
    if (path.isEmpty()) {
        return page;
    }
    const QString directory = QFileInfo(page).path();
    return QDir::cleanPath(directory == u"."_s ? path : directory + QLatin1Char('/') + path);
}

/** The name by which a heading of a page can be linked to. */
QString anchor(const QString &heading)
{
    QString result = heading.toLower();
    result.remove(
        QRegularExpression(u"[^\\w\\- ]"_s, QRegularExpression::UseUnicodePropertiesOption));
    return result.replace(QLatin1Char(' '), QLatin1Char('-'));
}

QStringList anchors(const QString &page)
{
    static const QRegularExpression heading(u"^#+ (.*)$"_s, QRegularExpression::MultilineOption);
    QStringList result;
    auto matches = heading.globalMatch(page);
    while (matches.hasNext()) {
        result << anchor(matches.next().captured(1));
    }
    return result;
}

/** The names of the commands as their sources have them: "settings-show". */
QStringList commands()
{
    QStringList result;
    for (const QString &source : files(u"src/tools/commands"_s, u"cpp"_s)) {
        result << QFileInfo(source).completeBaseName();
    }
    return result;
}

} // namespace

/** The pages hold together, and tell of nothing that is not there. */
class tst_docs : public QObject
{
    Q_OBJECT

private slots:
    void links_data();
    void links();
    void everyPageIsReachable();
    void paths_data();
    void paths();
    void publicHeadersExist();
    void jsonSchemas_data();
    void jsonSchemas();
    void everyCommandHasASchema();
    void bytesOfTheStream();
    void rulesSeeWhatIsWrong();
};

void tst_docs::links_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : pages()) {
        QTest::newRow(qPrintable(page)) << page;
    }
}

void tst_docs::links()
{
    QFETCH(QString, page);
    const QString text = read(page);
    QVERIFY(!text.isEmpty());
    for (const QString &target : linkTargets(text)) {
        if (isRemote(target)) {
            continue;
        }
        const QString path = resolved(page, target);
        QVERIFY2(QFileInfo::exists(Root + QLatin1Char('/') + path), qPrintable(target));
        QVERIFY2(!path.startsWith(u".."_s), qPrintable(target));
        if (target.contains(QLatin1Char('#'))) {
            QVERIFY2(anchors(read(path)).contains(target.section(QLatin1Char('#'), 1)),
                     qPrintable(target));
        }
    }
}

void tst_docs::everyPageIsReachable()
{
    QStringList toRead = {u"docs/README.md"_s};
    QSet<QString> reached = {toRead.constFirst()};
    while (!toRead.isEmpty()) {
        const QString page = toRead.takeLast();
        for (const QString &target : linkTargets(read(page))) {
            const QString path = resolved(page, target);
            if (!isRemote(target) && path.endsWith(u".md"_s) && !reached.contains(path)) {
                reached.insert(path);
                toRead << path;
            }
        }
    }
    for (const QString &page : files(u"docs"_s, u"md"_s)) {
        QVERIFY2(reached.contains(page), qPrintable(page));
    }
    QVERIFY(reached.size() > 10);
}

void tst_docs::paths_data()
{
    links_data();
}

/** What looks like a path of ours in back-quotes is one. */
void tst_docs::paths()
{
    QFETCH(QString, page);
    static const QRegularExpression path(QStringLiteral(
        "`((?:cmake|docs|examples|packaging|schemas|scripts|src|tests|translations"
        "|commissioning|configfile|devicefiles|elements|imported|settings|storage|tools"
        "|vocabulary)/[^`\\s]*)`"));
    // The rooms below src/ are also named as in includes.
    const QDir root(Root);
    const QDir sources(root.filePath(u"src"_s));
    auto matches = path.globalMatch(read(page));
    while (matches.hasNext()) {
        const QString found = matches.next().captured(1);
        // A name in capitals stands for any; what a build writes is not there.
        static const QRegularExpression anyName(u"NAME|COMMAND|ARCHITECTURE|[*…]"_s);
        if (found.contains(anyName) || found == u"docs/html"_s) {
            continue;
        }
        QVERIFY2(root.exists(found) || sources.exists(found), qPrintable(found));
    }
}

/** The list of public headers, which the pages of Doxygen are made from, names only what is there.
 */
void tst_docs::publicHeadersExist()
{
    static const QRegularExpression header(u"^ +([a-z]+/\\w+\\.h)$"_s,
                                           QRegularExpression::MultilineOption);
    auto matches = header.globalMatch(read(u"cmake/VrnInstall.cmake"_s));
    int count = 0;
    while (matches.hasNext()) {
        const QString path = u"src/"_s + matches.next().captured(1);
        QVERIFY2(QFileInfo::exists(Root + QLatin1Char('/') + path), qPrintable(path));
        ++count;
    }
    QVERIFY(count > 50);

    // Nor does any page tell of a header that is gone.
    static const QRegularExpression name(u"\\b(?:C|IC|N|S)[A-Z]\\w+\\.h\\b"_s);
    QSet<QString> known;
    for (const QString &file : files(u"."_s, u"h"_s)) {
        known.insert(QFileInfo(file).fileName());
    }
    for (const QString &page : pages()) {
        auto names = name.globalMatch(read(page));
        while (names.hasNext()) {
            const QString found = names.next().captured();
            QVERIFY2(known.contains(found), qPrintable(page + u": "_s + found));
        }
    }
}

void tst_docs::jsonSchemas_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : files(u"schemas"_s, u"json"_s)) {
        QTest::newRow(qPrintable(path)) << path;
    }
}

void tst_docs::jsonSchemas()
{
    QFETCH(QString, path);
    QVERIFY2(path.endsWith(u".schema.json"_s), "The name does not tell that it is a schema.");
    QJsonParseError error;
    const QJsonDocument schema = QJsonDocument::fromJson(read(path).toUtf8(), &error);
    QVERIFY2(schema.isObject(), qPrintable(error.errorString()));
    QCOMPARE(schema.object().value(u"$schema"_s).toString(),
             u"https://json-schema.org/draft/2020-12/schema"_s);
    QVERIFY(!schema.object().value(u"title"_s).toString().isEmpty());

    const QString name = QFileInfo(path).fileName().section(QLatin1Char('.'), 0, 0);
    const bool isFormat = QFileInfo::exists(Root + u"/docs/formats/"_s + name + u".md"_s);
    QVERIFY2(name == u"common"_s || isFormat || commands().contains(name),
             "There is neither a command nor a format of that name.");
}

void tst_docs::everyCommandHasASchema()
{
    QVERIFY(commands().size() > 10);
    for (const QString &command : commands()) {
        // What prints text by its nature has none.
        const bool printsJson =
            !read(u"src/tools/commands/"_s + command + u".cpp"_s).contains(u"withoutJson()"_s);
        QVERIFY2(QFileInfo::exists(Root + u"/schemas/"_s + command + u".schema.json"_s)
                     == printsJson,
                 qPrintable(command));
    }
}

/** The example of docs/formats/streams.md. */
void tst_docs::bytesOfTheStream()
{
    static const QRegularExpression line(u"^    ((?:[0-9a-f]{2} +)+) "_s,
                                         QRegularExpression::MultilineOption);
    QByteArray bytes;
    auto matches = line.globalMatch(read(u"docs/formats/streams.md"_s));
    while (matches.hasNext()) {
        bytes += QByteArray::fromHex(matches.next().captured(1).toLatin1());
    }
    CFileElement file;
    file.setFileName(u"a.xml"_s);
    QCOMPARE(bytes.toHex(), StreamBytes::toBytes(file).toHex());
}

void tst_docs::rulesSeeWhatIsWrong()
{
    QCOMPARE(linkTargets(u"[a](b.md) `[c](d)` and\n\n    [e](f)\n\n[`g`](h.h#i)"_s),
             (QStringList{u"b.md"_s, u"h.h#i"_s}));
    QCOMPARE(linkTargets(u"```\n[a](b)\n```\n[c](d)"_s), QStringList{u"d"_s});
    QCOMPARE(resolved(u"docs/formats/a.md"_s, u"../../README.md#x"_s), u"README.md"_s);
    QCOMPARE(resolved(u"README.md"_s, u"docs/"_s), u"docs"_s);
    QCOMPARE(resolved(u"docs/a.md"_s, u"#x"_s), u"docs/a.md"_s);
    QCOMPARE(anchor(u"How it's `read`, once"_s), u"how-its-read-once"_s);
}

REGISTER_APPLESS_TEST(tst_docs)
#include "tst_docs.moc"
