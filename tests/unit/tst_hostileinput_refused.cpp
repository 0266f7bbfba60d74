#include "configfile/CDeviceConfigurationFile10.h"
#include "settings/CDeviceSettingsFile.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/HostileDocuments.h"
#include "support/MarkedText.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

using namespace HostileDocuments;

/** Content that is made only when its row runs: some of it is large. */
using Maker = std::function<QByteArray()>;

Q_DECLARE_METATYPE(Maker)

namespace {

/** A configuration file with a document in hand, which a failed opening must drop. */
std::unique_ptr<CDeviceConfigurationFile10> filledFile()
{
    auto file = std::make_unique<CDeviceConfigurationFile10>(nullptr);
    file->createNewDocument();
    file->setConfiguration(SampleConfiguration::device());
    return file;
}

bool holdsNothing(CDeviceConfigurationFile10 &file)
{
    CDeviceElement device;
    QByteArray bytes;
    QString error;
    const MessageCatcher catcher;
    return file.domDocument().isNull() && file.currentFileVersion().isEmpty()
        && file.openResult() == NvrnGlobal::FILE_RESULT_FAILURE && !file.configuration(device)
        && device.isNull() && !file.save(bytes, error) && bytes.isEmpty();
}

/** Adds rows of documents that are refused; where the place is certain, it is marked with "|". */
class RefusedRows
{
public:
    RefusedRows()
    {
        QTest::addColumn<Maker>("make");
        QTest::addColumn<int>("firstLine");
        QTest::addColumn<int>("firstColumn");
        QTest::addColumn<int>("lastLine");
        QTest::addColumn<int>("lastColumn");
    }

    void add(const char *name, const QByteArray &marked) const
    {
        const MarkedText text(marked);
        add(
            name, [text]() { return text.bytes(); }, text.first(), text.last());
    }

    /** The place may be anywhere in it. */
    void addUnmarked(const char *name, const Maker &make) const
    {
        add(name, make, MarkedText::SPlace(), MarkedText::SPlace());
    }

    void add(const char *name, const Maker &make, MarkedText::SPlace first,
             MarkedText::SPlace last) const
    {
        QTest::newRow(name) << make << first.line << first.column << last.line << last.column;
    }
};

void addLargeRows(const RefusedRows &rows)
{
    const auto depth = [&](const char *name, int levels) {
        // The first level too many is the 257th, the 256th "<A>" of the second line.
        rows.add(name, [levels]() { return nested(levels); }, {2, 255 * 3 + 1}, {2, 256 * 3 + 1});
    };
    depth("257 elements deep", 257);
    depth("10,000 elements deep", 10000);
    depth("1,000,000 elements deep", 1000000);
    rows.add("1,000,000 elements deep, never closed",
             []() { return QByteArray("<A>").repeated(1000000); }, {1, 256 * 3 + 1},
             {1, 257 * 3 + 1});
    rows.add("50,000 attributes", []() { return document(attributes(50000, " a%=\"\"")); }, {2, 1},
             {2, 1 << 30});
    rows.add("50,000 equal attributes", []() { return document(attributes(50000, " a=\"%\"")); },
             {2, 1}, {2, 2 + 7 + 1});
    rows.add("name of 1 MB", []() { return document("<" + QByteArray(Megabyte, 'n') + "/>"); },
             {2, 1}, {2, 2});
    rows.add("name of 1 MB of an attribute",
             []() { return document("<A " + QByteArray(Megabyte, 'n') + "=\"\"/>"); }, {2, 1},
             {2, 4});
    rows.addUnmarked("name of 1 MB of an instruction",
                     []() { return document("<?" + QByteArray(Megabyte, 'n') + "?>"); });
    rows.addUnmarked("name of 1 MB of the document type",
                     []() { return document("", "<!DOCTYPE " + QByteArray(Megabyte, 'n') + ">"); });
    rows.addUnmarked("name of 1 MB of an entity",
                     []() { return named("&" + QByteArray(Megabyte, 'n') + ";"); });
    rows.addUnmarked("comment of 10 MB, not closed",
                     []() { return named("<!--" + QByteArray(10 * Megabyte, '-')); });
    rows.addUnmarked("1,000,000 brackets", []() { return named(QByteArray(1000000, '<')); });
    rows.addUnmarked("1,000,000 ampersands", []() { return named(QByteArray(1000000, '&')); });
    rows.addUnmarked("10 MB of zeros", []() { return QByteArray(10 * Megabyte, '\0'); });
    rows.addUnmarked("10 MB of blanks", []() { return QByteArray(10 * Megabyte, ' '); });
    rows.addUnmarked("10 MB of brackets in the document type",
                     []() { return "<!DOCTYPE a [" + QByteArray("<!-- -->").repeated(Megabyte); });
}

void addEntityRows(const RefusedRows &rows)
{
    rows.add("entity bomb, ten to the ninth",
             []() {
                 QByteArray type = "<!DOCTYPE VornDeviceConfig [\n<!ENTITY a0 \"lol\">\n";
                 for (int i = 1; i < 10; ++i) {
                     const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
                     type += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10)
                         + "\">\n";
                 }
                 return type + "]>\n" + named("&a9;");
             },
             {1, 1}, {2, 19});
    rows.add("entity bomb, quadratic",
             []() {
                 return "<!DOCTYPE VornDeviceConfig [<!ENTITY a \"" + QByteArray(50000, 'a')
                     + "\">]>\n" + named(QByteArray("&a;").repeated(50000));
             },
             {1, 1}, {1, 50050});
    rows.add("entity bomb in parameter entities",
             "|<!DOCTYPE VornDeviceConfig [<!ENTITY % a '&#37;b;'><!ENTITY % b '&#37;a;'>%a;|]>\n"
                 + document(""));
    rows.add("entity of itself",
             "|<!DOCTYPE VornDeviceConfig [<!ENTITY a \"&a;\">|]>\n" + named("&a;"));
    rows.add("entity that is not used",
             "|<!DOCTYPE VornDeviceConfig [<!ENTITY a \"b\">|]>\n" + document(""));
    rows.add("entity that is not parsed",
             "|<!DOCTYPE VornDeviceConfig [<!NOTATION n SYSTEM \"n\">"
             "<!ENTITY a SYSTEM \"b\" NDATA n>|]>\n"
                 + document(""));
    rows.add("entity with half an element",
             "|<!DOCTYPE VornDeviceConfig [<!ENTITY a \"<Name>\">|]>\n" + document("&a;</Name>"));
    rows.add("predefined entity with another meaning",
             "|<!DOCTYPE VornDeviceConfig [<!ENTITY lt \"x\">|]>\n" + named("&lt;"));
    rows.add("undeclared entity", named("a|&nope|;b"));
    rows.add("undeclared entity behind text that is not Latin", named("\xe8\xbb\xb8|&nope|;"));
    rows.add("undeclared entity in an attribute", document("|<Name a=\"&nope|;\"/>"));
    const QByteArray external = "<!DOCTYPE VornDeviceConfig SYSTEM \"x.dtd\">\n";
    rows.add("undeclared entity with an external document type", external + named("a|&nope|;b"));
    rows.add("undeclared entity in an attribute with an external document type",
             external + document("|<Name a=\"&nope|;\"/>"));
    rows.add("undeclared entity in a later attribute with an external document type",
             external + document("|<Name a=\"&lt;&#65;\" b=\"x\" c=\"&amp;&l|;\"/>"));
    rows.add("undeclared entity in the root's attribute with an external document type",
             external + "|<VornDeviceConfig version=\"1.0&nope|;\"/>");
    rows.add("undeclared entity with an external document type and public identifier",
             "<!DOCTYPE VornDeviceConfig PUBLIC \"p\" \"x.dtd\">\n" + named("|&nope|;"));
    rows.addUnmarked("undeclared entity with an external document type, in UTF-16", []() {
        return utf16(QChar(QChar::ByteOrderMark)
                         + u"<!DOCTYPE VornDeviceConfig SYSTEM \"x.dtd\">\n"
                           "<VornDeviceConfig version=\"&nope;\"/>"_s,
                     ByteOrder::Little);
    });
    rows.add("entity without semicolon", named("&lt| |b"));
    rows.add("entity without name", named("&|;"));
    rows.add("ampersand alone", named("a &| b"));
    rows.add("entity in other case", named("|&LT|;"));
}

void addEncodingRows(const RefusedRows &rows)
{
    struct SBytes {
        const char *name;
        const char *bytes;
    };
    static const SBytes invalid[] = {
        {"overlong form of two bytes", "\xC0\x80"},
        {"overlong form of a bracket", "\xC0\xBC"},
        {"highest overlong form of two bytes", "\xC1\xBF"},
        {"overlong form of three bytes", "\xE0\x80\x80"},
        {"highest overlong form of three bytes", "\xE0\x9F\xBF"},
        {"overlong form of four bytes", "\xF0\x80\x80\x80"},
        {"highest overlong form of four bytes", "\xF0\x8F\xBF\xBF"},
        {"first surrogate", "\xED\xA0\x80"},
        {"last surrogate", "\xED\xBF\xBF"},
        {"pair of surrogates", "\xED\xA0\xBD\xED\xB8\x80"},
        {"beyond the last character", "\xF4\x90\x80\x80"},
        {"far beyond the last character", "\xF7\xBF\xBF\xBF"},
        {"form of five bytes", "\xF8\x88\x80\x80\x80"},
        {"form of six bytes", "\xFC\x84\x80\x80\x80\x80"},
        {"byte FE", "\xFE"},
        {"byte FF", "\xFF"},
        {"continuation alone", "\x80"},
        {"last continuation alone", "\xBF"},
        {"cut after one of two bytes", "\xC3"},
        {"cut after one of three bytes", "\xE2"},
        {"cut after two of three bytes", "\xE2\x82"},
        {"cut after three of four bytes", "\xF0\x9F\x98"},
        {"U+FFFE", "\xEF\xBF\xBE"},
        {"U+FFFF", "\xEF\xBF\xBF"},
        {"U+0001", "\x01"},
        {"U+0008", "\x08"},
        {"U+000B", "\x0B"},
        {"U+000C", "\x0C"},
        {"U+001F", "\x1F"},
    };
    struct SContext {
        const char *name;
        const char *before;
        const char *behind;
    };
    static const SContext contexts[] = {
        {"text", "<Name>", "</Name>\n"},
        {"attribute", "<Name a=\"", "\"/>\n"},
        {"comment", "<!-- ", " -->\n"},
        {"instruction", "<?p ", " ?>\n"},
        {"section", "<Name><![CDATA[", "]]>\n"},
        {"name", "<Na", "/>\n"},
        {"name of an attribute", "<Name a", "=\"\"/>"},
    };
    for (const SContext &context : contexts) {
        const auto row = [&](const char *name, const QByteArray &bytes) {
            const QByteArray rowName = QByteArray(name) + " in " + context.name;
            const QByteArray before = context.before;
            const int column = before.size() + 1;
            const bool isName = QByteArray(context.name).startsWith("name");
            rows.add(rowName.constData(),
                     [=]() { return document(before + bytes + context.behind); },
                     {2, isName ? 1 : column}, {2, column});
        };
        for (const SBytes &bytes : invalid) {
            row(bytes.name, bytes.bytes);
        }
        row("U+0000", QByteArray(1, '\0'));
    }

    struct SReference {
        const char *name;
        const char *text;
    };
    static const SReference references[] = {
        {"reference to U+0000", "&#0;"},
        {"reference to U+0000 in hexadecimal", "&#x0;"},
        {"reference to U+0001", "&#1;"},
        {"reference to U+000B", "&#xB;"},
        {"reference to U+001F", "&#31;"},
        {"reference to the first surrogate", "&#xD800;"},
        {"reference to the last surrogate", "&#xDFFF;"},
        {"references to a pair of surrogates", "&#xD83D;&#xDE00;"},
        {"reference to U+FFFE", "&#xFFFE;"},
        {"reference to U+FFFF", "&#65535;"},
        {"reference beyond the last character", "&#x110000;"},
        {"reference far beyond the last character", "&#99999999999;"},
        {"reference that wraps around 32 bits to a letter", "&#4294967361;"},
        {"reference that wraps around 64 bits to a letter", "&#x10000000000000041;"},
    };
    for (const SReference &reference : references) {
        const QByteArray name = reference.name;
        rows.add(name.constData(), named(QByteArray("ab|") + reference.text));
        rows.add((name + " in an attribute").constData(),
                 document(QByteArray("<Name a=\"ab|") + reference.text + "\"/>"));
    }
    rows.add("reference without number", named("&#|;"));
    rows.add("reference without hexadecimal number", named("&#x|;"));
    rows.add("reference with a letter", named("&#1|a;"));
    rows.add("reference with a letter that is no hexadecimal digit", named("&#x|g;"));
    rows.add("reference with a sign", named("&#|-1;"));
    rows.add("reference with a capital X", named("&#|X41;"));

    for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
        const auto row = [&](const char *name, const QByteArray &bytes) {
            const QByteArray rowName =
                QByteArray(name) + (order == ByteOrder::Little ? ", UTF-16LE" : ", UTF-16BE");
            rows.addUnmarked(rowName.constData(), [bytes]() { return bytes; });
        };
        const QChar high(0xD83D);
        const QChar low(0xDE00);
        row("high surrogate alone", utf16Document(high + u"x"_s, order));
        row("low surrogate alone", utf16Document(low + u"x"_s, order));
        row("two high surrogates", utf16Document(QString(high) + high + low, order));
        row("surrogates the wrong way round", utf16Document(QString(low) + high, order));
        row("wide U+FFFE", utf16Document(QChar(0xFFFE), order));
        row("wide U+FFFF", utf16Document(QChar(0xFFFF), order));
        row("wide U+0000", utf16Document(QChar(0), order));
        row("wide U+0001", utf16Document(QChar(1), order));
        const QByteArray whole = utf16Document(u"a"_s, order);
        // The line feed at the end is no part of the root.
        row("half a character at the end", whole.left(whole.size() - 1));
        row("half of it", whole.left(whole.size() / 2));
        row("half of it and half a character", whole.left(whole.size() / 2 - 1));
        row("mark alone", whole.left(2));
        row("first character alone", whole.left(4));
        row("UTF-8 behind the mark", whole.left(2) + named("a"));
        row("surrogate as last character", whole + utf16(high, order));
        row("surrogate declared as name", utf16Document(u"<"_s + low + u"/>"_s, order));
    }
    rows.add("wide lines of several kinds",
             []() {
                 return utf16(QChar(QChar::ByteOrderMark)
                                  + u"<VornDeviceConfig version=\"1.0\">\r\n"
                                    u"<Name>\u00e9\U0001F600\r\n\r\n\nab"_s
                                  + QChar(0xD83D),
                              ByteOrder::Little);
             },
             {5, 3}, {5, 3});
    rows.addUnmarked("byte order of the other kind inside", []() {
        return utf16Document(u"a"_s, ByteOrder::Little) + utf16(u"<!-- -->"_s, ByteOrder::Big);
    });

    rows.addUnmarked("ISO-8859-1 bytes as UTF-8", []() { return declared("UTF-8", "\xE9"); });
    rows.addUnmarked("UTF-16 declared, UTF-8 found", []() { return declared("UTF-16", "a"); });
    for (const char *encoding : {"ISO-8859-1", "windows-1252"}) {
        rows.addUnmarked(encoding + QByteArray(" declared behind a mark of UTF-8"),
                         [encoding]() { return "\xEF\xBB\xBF" + declared(encoding, "a"); });
    }
    rows.addUnmarked("UTF-16LE declared, UTF-8 found", []() { return declared("UTF-16LE", "a"); });
    rows.addUnmarked("US-ASCII declared, more found",
                     []() { return declared("US-ASCII", "\xC3\xA9"); });
    rows.addUnmarked("UTF-8 declared, UTF-16 found", []() {
        return utf16(QChar(QChar::ByteOrderMark) + QString::fromLatin1(declared("UTF-8", "a")),
                     ByteOrder::Little);
    });
    rows.addUnmarked("ISO-8859-1 declared, UTF-16 found", []() {
        return utf16(QChar(QChar::ByteOrderMark) + QString::fromLatin1(declared("ISO-8859-1", "a")),
                     ByteOrder::Big);
    });
    for (const char *encoding : {"x-unknown", "UTF-9", "utf8 ", "windows-12520"}) {
        rows.addUnmarked((QByteArray("encoding ") + encoding).constData(),
                         [encoding]() { return declared(encoding, "a"); });
    }
    rows.add("encoding without name", "<?xml version=\"1.0\" encoding=\"|\"|?>" + document(""));
    rows.addUnmarked("encoding with a name of 1 MB",
                     []() { return declared(QByteArray(Megabyte, 'n'), "a"); });
    for (const char byte : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'}) {
        const QByteArray name =
            "byte " + QByteArray(1, byte).toHex().toUpper() + " of windows-1252";
        rows.add(name.constData(),
                 [byte]() { return declared("windows-1252", QByteArray(1, byte)); }, {3, 7},
                 {3, 7});
    }
}

void addStructureRows(const RefusedRows &rows)
{
    rows.addUnmarked("empty", []() { return QByteArray(); });
    rows.add("only blanks", "| \n\t \r\n|");
    rows.addUnmarked("only a byte order mark", []() { return QByteArray("\xEF\xBB\xBF"); });
    rows.addUnmarked("two byte order marks",
                     []() { return "\xEF\xBB\xBF\xEF\xBB\xBF" + document(""); });
    rows.add("only a declaration", "<?xml version=\"1.0\"?>|");
    rows.add("only a comment", "|<!-- -->|");
    rows.add("no XML", "|Name: Press\n");
    rows.add("two roots", document("") + "|<VornDeviceConfig/>");
    rows.add("text before the root", "|x|" + document(""));
    rows.add("text behind the root", document("") + "|x");
    rows.add("reference behind the root", document("") + "|&#32;");
    rows.add("section before the root", "|<!|[CDATA[ ]]>" + document(""));
    rows.add("section behind the root", document("") + "|<![CDATA[|");
    rows.add("end tag behind the root", document("") + "|</|VornDeviceConfig>");
    rows.add("end tag alone", "<|/a>");
    rows.add("attribute twice", document("<Name a=\"1\" b=\"2\" |a=\"1\"/>"));
    rows.add("version twice", "<VornDeviceConfig version=\"1.0\" |version=\"1.0\"/>");
    rows.add("section end in text", named("a|]]|>"));
    rows.add("two hyphens in a comment", document("<!-- a -|-| b -->"));
    rows.add("three hyphens at the end of a comment", document("<!-- a -|-|->"));
    rows.add("bracket in an attribute", attribute("a|<b"));
    rows.add("attribute without quotes", document("<Name a=|1/>"));
    rows.add("attribute without value", document("<Name a|/>"));
    rows.add("attributes without blank", document("<Name a=\"1\"|b=\"2\"/>"));
    rows.add("attribute that is not closed", "<VornDeviceConfig version=\"1.0>\n|<|Name/>\n");
    rows.add("attribute that is not closed, to the end", "|<VornDeviceConfig version=\"1.0>\n|");
    rows.add("quotes of two kinds", "|<VornDeviceConfig version=\"1.0'/>|");
    rows.add("digit before a name", document("<|1a/>"));
    rows.add("hyphen before a name", document("<|-a/>"));
    rows.add("blank before a name", document("<| a/>"));
    rows.add("blank in the end of an empty tag", document("<a/| |>"));
    rows.add("element without name", document("<|>"));
    rows.add("wrong end tag", document("<a>\n <b>\n </|c|>\n</a>"));
    rows.add("wrong case of an end tag", document("<Name></|n|ame>"));
    rows.add("overlapping elements", document("<a><b></|a|></b>"));
    rows.add("end tag with attribute", document("<a></a |b=\"\">"));
    rows.add("not closed", "<VornDeviceConfig>\n<Name>\n|");
    rows.add("not closed within a tag", "<VornDeviceConfig>\n|<Name|");
    rows.add("not closed within a text", "<VornDeviceConfig>\n|<Name>abc|");
    rows.add("not closed within a comment", "<VornDeviceConfig>\n|<!-- abc|");
    rows.add("not closed within a section", "<VornDeviceConfig>\n|<![CDATA[ abc|");
    rows.add("not closed within an instruction", "<VornDeviceConfig>\n|<?p abc|");
    rows.add("not closed within a reference", "<VornDeviceConfig>\n|&am|");
    rows.add("not closed within a document type", "|<!DOCTYPE a|");
    rows.add("section that is not one", document("<![CDAT|[a]]>"));
    rows.add("declaration behind a blank", " |<?xml version=\"1.0\"?|>" + document(""));
    rows.add("declaration behind a line feed", "\n|<?xml version=\"1.0\"?|>" + document(""));
    rows.add("declaration behind a comment", "<!-- -->|<?xml version=\"1.0\"?|>" + document(""));
    rows.add("declaration inside", document("|<?xml version=\"1.0\"?|>"));
    rows.add("declaration behind the root", document("") + "|<?xml version=\"1.0\"?|>");
    rows.add("declaration twice",
             "<?xml version=\"1.0\"?>|<?xml version=\"1.0\"?|>" + document(""));
    rows.add("XML 1.1", "|<?xml version=\"1.1\"?|>" + document(""));
    rows.add("XML 2.0", "|<?xml version=\"2.0\"?|>" + document(""));
    rows.add("XML 1", "|<?xml version=\"1\"?|>" + document(""));
    rows.add("declaration without version", "|<?xml encoding=\"UTF-8\"?|>" + document(""));
    rows.add("declaration with encoding first",
             "|<?xml encoding=\"UTF-8\" version=\"1.0\"?|>" + document(""));
    rows.add("declaration with something else",
             "|<?xml version=\"1.0\" compact=\"yes\"?|>" + document(""));
    rows.add("standalone of another value",
             "|<?xml version=\"1.0\" standalone=\"maybe\"?|>" + document(""));
    rows.add("declaration that is not closed", "|<?xml version=\"1.0\"\n<a/>|");
    rows.add("instruction XML", document("|<?XML| a?>"));
    rows.add("instruction Xml", document("|<?Xml| a?>"));
    rows.add("instruction xml", document("|<?xml| a?>"));
    rows.add("instruction without name", document("<?| a?>"));
    rows.add("document type behind the root", document("") + "|<!|DOCTYPE a>");
    rows.add("document type inside", document("<!|D|OCTYPE a>"));
    rows.add("document type twice", "<!DOCTYPE a>|<!DOCTYPE| a>" + document(""));
    rows.add("document type in lower case", "|<!d|octype a>" + document(""));
    rows.add("document type without name", "<!DOCTYPE|>" + document(""));
    rows.add("internal subset", "|<!DOCTYPE a [<!ELEMENT a ANY>|]>" + document(""));
    rows.add("internal subset with a default of an attribute",
             "|<!DOCTYPE VornDeviceConfig [<!ATTLIST VornDeviceConfig version CDATA '1.0'>|]>"
             "<VornDeviceConfig/>");
    rows.add("empty internal subset", "|<!DOCTYPE VornDeviceConfig [|]>" + document(""));
}

} // namespace

/** What is refused, with its place and reason. */
class tst_hostileinput_refused : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void refused_data();
    void refused();

private:
    QString path(const QString &name = u"a"_s) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_hostileinput_refused::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostileinput_refused::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_hostileinput_refused::refused_data()
{
    const RefusedRows rows;
    addLargeRows(rows);
    addEntityRows(rows);
    addEncodingRows(rows);
    addStructureRows(rows);
}

void tst_hostileinput_refused::refused()
{
    QFETCH(Maker, make);
    QFETCH(int, firstLine);
    QFETCH(int, firstColumn);
    QFETCH(int, lastLine);
    QFETCH(int, lastColumn);
    const QByteArray bytes = make();

    const auto file = filledFile();
    {
        const MessageCatcher catcher;
        QElapsedTimer time;
        time.start();
        AllocationCounter::start();
        const bool loaded = file->load(bytes);
        const qint64 peak = AllocationCounter::counts().peakBytes;
        if (bytes.size() >= Megabyte) {
            qDebug("%d bytes: %lld ms, %lld bytes of heap", bytes.size(), time.elapsed(), peak);
        }
        QVERIFY(!loaded);
        QVERIFY(holdsNothing(*file));
        QVERIFY2(peak <= qint64(MemoryFactor) * bytes.size() + SmallChange,
                 QByteArray::number(peak).constData());
        if (!bytes.isEmpty()) {
            QCOMPARE(catcher.criticals().size(), 2);
            const QString error = catcher.criticals().constFirst();
            const MarkedText::SPlace place = placeIn(error);
            QVERIFY2(place.line > 0, qPrintable(error));
            QVERIFY2(place.line <= bytes.count('\n') + 1, qPrintable(error));
            if (firstLine > 0) {
                const MarkedText::SPlace first{firstLine, firstColumn};
                const MarkedText::SPlace last{lastLine, lastColumn};
                QVERIFY2(first <= place && place <= last, qPrintable(error));
            }
        }
    }
    {
        const MessageCatcher catcher;
        QVERIFY(Files::write(path(), bytes));
        const auto other = filledFile();
        QVERIFY(!other->open(path()));
        QVERIFY(holdsNothing(*other));
        const QString prefix = path() + u":"_s;
        QVERIFY2(catcher.criticals().constFirst().startsWith(prefix),
                 qPrintable(catcher.criticals().constFirst()));
        QVERIFY(placeIn(catcher.criticals().constFirst().mid(prefix.size())).line > 0);
    }
    {
        // The other kind of document comes in through the same reader, and is told the same way.
        const MessageCatcher catcher;
        CDeviceSettingsFile settings(nullptr);
        settings.setDeviceSettings(SampleSettings::settings(u"before"_s));
        QByteArray document = bytes;
        document.replace("VornDeviceConfig", "VornDeviceSettings");
        QCOMPARE(settings.openFromBuffer(document, Version), NvrnGlobal::FILE_RESULT_FAILURE);
        QVERIFY(settings.deviceSettings() == SampleSettings::settings(u"before"_s));
        QCOMPARE(catcher.criticals().size(), 1);
    }
}

REGISTER_GUILESS_TEST(tst_hostileinput_refused)
#include "tst_hostileinput_refused.moc"
