#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

// Every text has a translation in every language, which says the same in the same form, and no text
// goes around the catalogues.

namespace {

/** What scripts/update-translations takes for each catalogue. */
const QMap<QString, QStringList> Folders = {
    {u"vrnDeviceCore"_s,
     {u"storage"_s, u"imported"_s, u"vocabulary"_s, u"elements"_s, u"configfile"_s, u"settings"_s,
      u"devicefiles"_s, u"commissioning"_s}},
    {u"vrndevice"_s, {u"tools"_s}},
};

/** They write the code of other programs, or what people type. */
const QStringList WritersOfCode = {u"tools/commands/completion.cpp"_s};

struct SMessage {
    QString translation;
    /** "unfinished", "obsolete" or "vanished"; empty when all is well. */
    QString type;
    bool hasPlurals = false;
};

/** By context and source text, with a line feed between. */
using Catalogue = QMap<QString, SMessage>;

QString key(const QString &context, const QString &source)
{
    return context + u'\n' + source;
}

Catalogue readCatalogue(const QString &path)
{
    Catalogue catalogue;
    QDomDocument document;
    document.setContent(Files::read(path));
    const QDomNodeList messages = document.elementsByTagName(u"message"_s);
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QDomElement translation = message.firstChildElement(u"translation"_s);
        const QString context = message.parentNode().firstChildElement(u"name"_s).text();
        catalogue.insert(key(context, message.firstChildElement(u"source"_s).text()),
                         {translation.text(), translation.attribute(u"type"_s),
                          message.attribute(u"numerus"_s) == u"yes"_s});
    }
    return catalogue;
}

/** Everything that @p pattern finds, in order. */
QStringList found(const QString &text, const QString &pattern)
{
    QStringList result;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        result.append(matches.next().captured());
    }
    result.sort();
    return result;
}

/** What is wrong with a translation; empty when nothing is. */
QString complaint(const QString &source, const SMessage &message)
{
    struct SForm {
        const char *name;
        QString pattern;
    };
    const SForm forms[] = {
        {"places for values", u"%n|%L?[0-9]+"_s},
        {"line feeds", u"\n"_s},
        {"blanks at the beginning", u"^[ \t]+"_s},
        {"blanks at the end", u"[ \t]+$"_s},
        {"punctuation at the end", u"[.:;,!?…]+$"_s},
        {"options", u"(?<![\\w-])--[a-z][a-z-]*"_s},
        {"quotation marks", u"(?<![A-Za-z])'[^' ]*'"_s},
    };
    if (!message.type.isEmpty()) {
        return message.type;
    }
    // A number stands behind a colon, or where its noun is the same for all numbers.
    if (message.hasPlurals) {
        return u"plural forms, for which English has no catalogue"_s;
    }
    if (message.translation.isEmpty()) {
        return u"empty"_s;
    }
    for (const SForm &form : forms) {
        if (found(source, form.pattern) != found(message.translation, form.pattern)) {
            return u"other %1"_s.arg(QString::fromLatin1(form.name));
        }
    }
    return QString();
}

/** The sources in @p folders, relative to the root. */
QStringList sources(const QStringList &folders, const QStringList &names)
{
    const QDir root(Places::source("src"));
    QStringList result;
    for (const QString &folder : folders) {
        QDirIterator files(root.filePath(folder), names, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            result.append(root.relativeFilePath(files.next()));
        }
    }
    result.sort();
    return result;
}

/** The content of a source file without its comments and single characters; line feeds stay. */
QString code(const QString &file)
{
    const QString text = QString::fromUtf8(Files::read(Places::source("src/") + file));
    // A text is matched first, so that what looks like a comment within one stays.
    static const QRegularExpression commentOrText(
        u"R\"\\((?:.|\n)*?\\)\"|\"(?:[^\"\\\\\n]|\\\\.)*\"|'(?:[^'\\\\\n]|\\\\.)'|//[^\n]*|/\\*(?:.|\n)*?\\*/"_s);
    QString result;
    int position = 0;
    auto matches = commentOrText.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += text.mid(position, match.capturedStart() - position);
        if (match.captured().endsWith(u'"')) {
            result += match.captured();
        }
        position = match.capturedEnd();
    }
    return result + text.mid(position);
}

/** One text of a source, of adjacent literals, where @p literals matched. */
QString joined(const QString &literals)
{
    QString text;
    static const QRegularExpression literal(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    auto matches = literal.globalMatch(literals);
    while (matches.hasNext()) {
        text += matches.next().captured(1);
    }
    return text.replace(u"\\n"_s, u"\n"_s).replace(u"\\\""_s, u"\""_s).replace(u"\\\\"_s, u"\\"_s);
}

const QString Literals = u"((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"_s;

/** Every text that @p text hands to a translator, with its context, as key() has it. */
QStringList translatedTexts(const QString &text, const QString &otherwise)
{
    static const QRegularExpression declaration(u"Q_DECLARE_TR_FUNCTIONS\\((\\w+)\\)"_s);
    static const QRegularExpression inContext(
        u"(?:QT_TRANSLATE_NOOP|QCoreApplication::translate)\\(\\s*\"(\\w+)\",\\s*"_s + Literals);
    static const QRegularExpression withoutContext(u"\\btr\\(\\s*"_s + Literals);
    const QRegularExpressionMatch declared = declaration.match(text);
    const QString context = declared.hasMatch() ? declared.captured(1) : otherwise;
    QStringList result;
    auto matches = inContext.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result.append(key(match.captured(1), joined(match.captured(2))));
    }
    matches = withoutContext.globalMatch(text);
    while (matches.hasNext()) {
        result.append(key(context, joined(matches.next().captured(1))));
    }
    return result;
}

/**
 * The context of a source that does not declare it: the one that it names with "using
 * Context::Texts", else that of its own header or of the texts that it includes.
 */
QString contextOutside(const QString &file, const QString &otherwise)
{
    static const QRegularExpression taken(u"\\busing (\\w+)::Texts;"_s);
    static const QRegularExpression included(u"#include \"(\\S+/Texts\\.h)\""_s);
    const QString source = code(file);
    const QRegularExpressionMatch name = taken.match(source);
    const QString declared = name.hasMatch()
        ? u"\\bnamespace %1 \\{\\s*class Texts\\s*\\{\\s*"_s.arg(name.captured(1))
        : QString();
    const QRegularExpression context(declared + u"Q_DECLARE_TR_FUNCTIONS\\((\\w+)\\)"_s);
    QStringList headers = {included.match(source).captured(1)};
    if (!name.hasMatch()) {
        headers.prepend(QString(file).replace(QRegularExpression(u"\\.cpp$"_s), u".h"_s));
    }
    for (const QString &header : qAsConst(headers)) {
        const QRegularExpressionMatch match = context.match(code(header));
        if (match.hasMatch()) {
            return match.captured(1);
        }
    }
    return otherwise;
}

/** The texts in @p text that look like something to read, and that no translator gets. */
QStringList textsOutside(const QString &text)
{
    static const QRegularExpression words(u"(?<!\\w)[A-Za-z]{2,}[.,:;]? [A-Za-z]{2,}(?!\\w)"_s);
    // What stands before a text that is none for the user, or that is translated.
    static const QRegularExpression callers(
        u"(?:\\btr\\(|QT_TRANSLATE_NOOP\\(\\s*\"\\w+\",|addExample\\(\\s*QStringLiteral\\("
        u"|Registration\\(|#include)\\s*$"_s);
    QStringList result;
    static const QRegularExpression rawText(u"R\"\\((?:.|\n)*?\\)\""_s);
    const QString source = QString(text).remove(rawText);
    static const QRegularExpression literal(Literals);
    auto matches = literal.globalMatch(source);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QString shown = joined(match.captured());
        // QT_TRANSLATE_NOOP has two, of which the second is the text.
        const bool isForTranslator = callers.match(source.left(match.capturedStart())).hasMatch();
        // Command lines, and requests of the manual page.
        const bool isCode = shown.startsWith(u"vrndevice "_s) || shown.startsWith(u'.');
        if (!isForTranslator && !isCode && words.match(shown).hasMatch()) {
            result.append(shown);
        }
    }
    return result;
}

} // namespace

class tst_translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void catalogue_data();
    void catalogue();
    void everyLanguageHasEveryCatalogue();
    void contexts();
    void noTextOutside_data();
    void noTextOutside();
    void complaints_data();
    void complaints();
    void textsOutsideAreSeen();

private:
    /** What the sources hold now. */
    Catalogue extracted(const QString &name) const;

    QString m_extractor;
    QTemporaryDir m_directory;
};

void tst_translations::initTestCase()
{
    m_extractor = QStandardPaths::findExecutable(u"lupdate"_s, {u"/usr/lib/qt5/bin"_s});
    if (m_extractor.isEmpty()) {
        m_extractor = QStandardPaths::findExecutable(u"lupdate"_s);
    }
    QVERIFY(m_directory.isValid());
}

Catalogue tst_translations::extracted(const QString &name) const
{
    const QString path = m_directory.filePath(name + u".ts"_s);
    QProcess process;
    process.setWorkingDirectory(Places::source("src"));
    process.start(
        m_extractor,
        QStringList{u"-silent"_s, u"-locations"_s, u"none"_s, u"-I"_s, Places::source("src")}
            + sources(Folders.value(name), {u"*.h"_s, u"*.cpp"_s}) + QStringList{u"-ts"_s, path});
    return process.waitForFinished(120000) && process.exitCode() == 0 ? readCatalogue(path)
                                                                      : Catalogue();
}

void tst_translations::catalogue_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");

    const QDir translations(Places::source("translations"));
    for (auto name = Folders.keyBegin(); name != Folders.keyEnd(); ++name) {
        for (const QString &file : translations.entryList({*name + u"_*.ts"_s}, QDir::Files)) {
            QTest::newRow(qPrintable(file)) << *name << translations.filePath(file);
        }
    }
}

void tst_translations::catalogue()
{
    if (m_extractor.isEmpty()) {
        QSKIP("There is no lupdate here.", 0);
    }
    QFETCH(QString, name);
    QFETCH(QString, file);

    const Catalogue wanted = extracted(name);
    const Catalogue present = readCatalogue(file);
    QVERIFY(wanted.size() > 100);
    QStringList complaints;
    for (auto text = wanted.constBegin(); text != wanted.constEnd(); ++text) {
        const QString what = present.contains(text.key())
            ? complaint(text.key().section(u'\n', 1), present.value(text.key()))
            : u"missing"_s;
        if (!what.isEmpty()) {
            complaints.append(what + u": "_s + text.key());
        }
    }
    for (auto text = present.keyBegin(); text != present.keyEnd(); ++text) {
        if (!wanted.contains(*text)) {
            complaints.append(u"no longer in the sources: "_s + *text);
        }
    }
    QVERIFY2(complaints.isEmpty(),
             qPrintable(u"\nrun scripts/update-translations and translate:\n"_s
                        + complaints.join(u'\n')));
}

void tst_translations::everyLanguageHasEveryCatalogue()
{
    const QDir translations(Places::source("translations"));
    QMap<QString, QStringList> languages;
    for (auto name = Folders.keyBegin(); name != Folders.keyEnd(); ++name) {
        for (const QString &file : translations.entryList({*name + u"_*.ts"_s}, QDir::Files)) {
            languages[*name].append(file.mid(name->size()));
        }
    }
    QVERIFY(languages.value(u"vrndevice"_s).contains(u"_de.ts"_s));
    QCOMPARE(languages.value(u"vrnDeviceCore"_s), languages.value(u"vrndevice"_s));
}

void tst_translations::contexts()
{
    // lupdate guesses at C++. At run time the context is the one that a file declares.
    for (auto name = Folders.keyBegin(); name != Folders.keyEnd(); ++name) {
        const Catalogue present = readCatalogue(Places::source("translations/%1_de.ts").arg(*name));
        QSet<QString> seen;
        for (const QString &file : sources(Folders.value(*name), {u"*.h"_s, u"*.cpp"_s})) {
            const QString otherwise = contextOutside(file, *name);
            for (const QString &text : translatedTexts(code(file), otherwise)) {
                QVERIFY2(present.contains(text), qPrintable(file + u": "_s + text));
                seen.insert(text);
            }
        }
        QCOMPARE(seen.size(), present.size());
    }
}

void tst_translations::noTextOutside_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : sources({u"tools"_s}, {u"*.cpp"_s})) {
        if (!WritersOfCode.contains(file)) {
            QTest::newRow(qPrintable(file)) << file;
        }
    }
}

void tst_translations::noTextOutside()
{
    QFETCH(QString, file);
    const QStringList texts = textsOutside(code(file));
    QVERIFY2(texts.isEmpty(), qPrintable(u"not in Texts::tr():\n"_s + texts.join(u'\n')));
}

void tst_translations::complaints_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("what");

    const auto row = [](const char *name, const QString &source, const QString &translation,
                        const QString &what) {
        QTest::newRow(name) << source << translation << what;
    };
    row("good", u"%1: There is no '%2' for --json.\nTry."_s,
        u"Für --json gibt es '%2' nicht: %1\nNa."_s, QString());
    row("empty", u"Name"_s, QString(), u"empty"_s);
    row("place left out", u"%1 of %2"_s, u"%1"_s, u"other places for values"_s);
    row("place twice", u"%1"_s, u"%1 %1"_s, u"other places for values"_s);
    row("other place", u"%1"_s, u"%2"_s, u"other places for values"_s);
    row("full stop left out", u"A."_s, u"B"_s, u"other punctuation at the end"_s);
    row("colon for a full stop", u"A."_s, u"B:"_s, u"other punctuation at the end"_s);
    row("blank added", u"A"_s, u"B "_s, u"other blanks at the end"_s);
    row("blank left out", u" A"_s, u"B"_s, u"other blanks at the beginning"_s);
    row("line feed left out", u"A\nb"_s, u"A b"_s, u"other line feeds"_s);
    row("option translated", u"--name is missing"_s, u"--namen fehlt"_s, u"other options"_s);
    row("quoted word translated", u"Try 'show'"_s, u"Siehe 'zeigen'"_s, u"other quotation marks"_s);
}

void tst_translations::complaints()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(QString, what);
    QCOMPARE(complaint(source, {translation, QString(), false}), what);
    QCOMPARE(complaint(source, {translation, u"unfinished"_s, false}), u"unfinished"_s);
    QVERIFY(complaint(source, {translation, QString(), true}).startsWith(u"plural"_s));
}

void tst_translations::textsOutsideAreSeen()
{
    QCOMPARE(textsOutside(u"print(QStringLiteral(\"Two words.\"));"_s),
             QStringList{u"Two words."_s});
    QCOMPARE(textsOutside(u"out << \"nothing \"\n  \"wrong\" << x;"_s),
             QStringList{u"nothing wrong"_s});
    QCOMPARE(textsOutside(u"f(Texts::tr(\"Two words\"), \"and more\")"_s),
             QStringList{u"and more"_s});
    for (const QString &fine :
         {u"Texts::tr(\n   \"Two words \"\n \"and more\")"_s, u"QStringLiteral(\"projectDir\")"_s,
          u"QT_TRANSLATE_NOOP(\"vrndevice\",\n \"Two words.\")"_s,
          u"line.addExample(QStringLiteral(\"a.3deco --name Two words\"))"_s,
          u"Registration(\"network check\", x)"_s, u"\"%1: %2\""_s}) {
        QVERIFY2(textsOutside(fine).isEmpty(), qPrintable(fine));
    }
}

REGISTER_GUILESS_TEST(tst_translations)
#include "tst_translations.moc"
