#include "configfile/CDeviceConfigurationFile10.h"
#include "devicefiles/CDeviceOSReleaseFile.h"
#include "imported/SXmlLimits.h"
#include "settings/CDeviceSettingsFile.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/AccessWatch.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
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

// Files that were made to do harm, and files that were damaged: each is read or refused, with a
// reason and its place, and costs no more than its size allows.

/** Content that is made only when its row runs: some of it is large. */
using Maker = std::function<QByteArray()>;
Q_DECLARE_METATYPE(Maker)

using Change = void (*)(SXmlLimits &);
Q_DECLARE_METATYPE(Change)

namespace {

const QString Type = u"VornDeviceConfig"_s;
const QString Version = u"1.0"_s;

const int Megabyte = 1000 * 1000;

/** Beside what the size of a document explains: tables of the parser, messages. */
const int SmallChange = 1024 * 1024;
/** The heap that reading may take, in sizes of what is read. */
const int MemoryFactor = 10;
/** The same for the small files: what is kept of a short line outweighs it. */
const int SmallFileFactor = 20;

QByteArray document(const QByteArray &content, const QByteArray &before = QByteArray())
{
    return before + "<VornDeviceConfig version=\"1.0\">\n" + content + "</VornDeviceConfig>\n";
}

QByteArray named(const QByteArray &text)
{
    return document("<Name>" + text + "</Name>\n");
}

QByteArray attribute(const QByteArray &value)
{
    return document("<Name a=\"" + value + "\"/>\n");
}

QByteArray declared(const QByteArray &encoding, const QByteArray &text)
{
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n" + named(text);
}

QByteArray nested(int depth)
{
    return document(QByteArray("<A>").repeated(depth - 1) + QByteArray("</A>").repeated(depth - 1));
}

QByteArray attributes(int count, const char *pattern)
{
    QByteArray text = "<A";
    for (int i = 0; i < count; ++i) {
        text += QByteArray(pattern).replace("%", QByteArray::number(i));
    }
    return text + "/>";
}

enum class ByteOrder { Little, Big };

QByteArray utf16(const QString &text, ByteOrder order)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const char cell = static_cast<char>(c.cell());
        const char row = static_cast<char>(c.row());
        bytes += order == ByteOrder::Little ? cell : row;
        bytes += order == ByteOrder::Little ? row : cell;
    }
    return bytes;
}

QByteArray utf16Document(const QString &name, ByteOrder order, bool hasMark = true)
{
    const QString text = QString::fromLatin1(document("<Name>%</Name>\n")).replace(u"%"_s, name);
    return utf16(hasMark ? QChar(QChar::ByteOrderMark) + text : text, order);
}

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

/** Where "line:column: reason" says that the fault is; unknown when it is not of that form. */
MarkedText::SPlace placeIn(const QString &error)
{
    const QRegularExpression form(u"\\A([1-9][0-9]*):([1-9][0-9]*): [^ ].+\\z"_s);
    const QRegularExpressionMatch match = form.match(error);
    return {match.captured(1).toInt(), match.captured(2).toInt()};
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

/** Settings behind each of the small files, as far as a text can be written and read again. */
bool isPlain(const CNetworkSettingsFile &file)
{
    for (const QString &key : CNetworkSettingsFile::keys()) {
        const QString value = file.value(key);
        if (value != value.trimmed()
            || value.contains(QRegularExpression(u"[\\\\\",;=@%\\x00-\\x1f]"_s))) {
            return false;
        }
    }
    return true;
}

/** How damaged each byte of a sample is in turn; 0 cuts the sample there. */
const int Damages[] = {0, 0xff, 0x20, 0x01};

QByteArray damaged(const QByteArray &bytes, int at, int damage)
{
    if (damage == 0) {
        return bytes.left(at);
    }
    QByteArray result = bytes;
    result[at] = static_cast<char>(result.at(at) ^ damage);
    return result;
}

void addDamages()
{
    QTest::addColumn<int>("damage");
    for (const int damage : Damages) {
        const QByteArray name = damage == 0
            ? QByteArray("cut")
            : "bits " + QByteArray::number(damage, 16).rightJustified(2, '0') + " flipped";
        QTest::newRow(name.constData()) << damage;
    }
}

/** Every element of a configuration document, each as short as it can be. */
QByteArray smallConfiguration()
{
    using namespace SampleConfiguration;
    CDeviceElement device;
    device.setHardwareId(u"KD3:S:3:2:1"_s);
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    device.setName(u"P"_s);
    device.setComment(u"\u00fc & \U0001F600"_s);
    device.setOpcUaEnabled(true);
    device.setParameterFiles({paramFile(u"M"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s)});
    device.setOdictFile(file(u"o"_s, u"c"_s, u"/d/"_s, u"P/o/"_s));
    device.setFaultTextFile(file(u"f"_s, QString(), u"/"_s, u"P/"_s));
    device.setFpgaFiles({u"b"_s});
    device.setOpcUaFiles({file(u"u"_s, QString(), u"/u/"_s, QString())});
    device.setEtherCatMasterFile(file(u"e"_s, QString(), u"/e/"_s, QString()));
    device.setAdditionalFiles({file(u"a"_s, u"\r\n"_s, QString(), QString())});
    device.setPlugins({plugin(u"m"_s, u"1"_s, 10)});
    device.setExecutionPlugin(u"m"_s);
    CSubDeviceKD2Element kd2;
    kd2.setHardwareId(u"KD2:F:1:0:2"_s);
    kd2.setName(u"F"_s);
    kd2.setDriveId(0);
    kd2.setBusId(17);
    kd2.setParameterFile(file(u"p"_s, QString(), QString(), QString()));
    kd2.setKd2ParameterFile(file(u"q"_s, QString(), QString(), QString()));
    kd2.setKd2LogicFile(file(u"l"_s, QString(), QString(), QString()));
    kd2.setKd2FirmwareFile(file(u"w"_s, QString(), QString(), QString()));
    device.setSubDevices({kd2});
    CDeviceConfigurationFile10 document(nullptr);
    document.createNewDocument();
    document.setMetaData(metaData());
    document.setDescription(description());
    document.setConfiguration(device);
    QByteArray bytes;
    QString error;
    document.save(bytes, error);
    return bytes;
}

} // namespace

class tst_hostileinput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void refused_data();
    void refused();
    void accepted_data();
    void accepted();
    void encodings_data();
    void encodings();
    void markInside_data();
    void markInside();
    void externalEntities_data();
    void externalEntities();
    void limits_data();
    void limits();
    void limitsOfFiles();
    void memory_data();
    void memory();
    void longLists_data();
    void longLists();

    void damagedConfiguration_data() { addDamages(); }
    void damagedConfiguration();
    void damagedSettings_data() { addDamages(); }
    void damagedSettings();
    void damagedNetworkSettings_data() { addDamages(); }
    void damagedNetworkSettings();
    void damagedReleaseFile_data() { addDamages(); }
    void damagedReleaseFile();
    void hostileSmallFiles_data();
    void hostileSmallFiles();

private:
    QString path(const QString &name = u"a"_s) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_hostileinput::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostileinput::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_hostileinput::refused_data()
{
    const RefusedRows rows;
    addLargeRows(rows);
    addEntityRows(rows);
    addEncodingRows(rows);
    addStructureRows(rows);
}

void tst_hostileinput::refused()
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

void tst_hostileinput::accepted_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("size");

    const auto row = [](const char *name, int size, const Maker &make) {
        QTest::newRow(name) << make << size;
    };
    row("256 elements deep", 0, []() { return nested(256); });
    row("256 attributes", 0, []() { return document(attributes(256, " a%=\"\"")); });
    row("attribute of 10 MB", 0, []() { return attribute(QByteArray(10 * Megabyte, 'a')); });
    row("text of 100 MB", 100 * Megabyte, []() { return named(QByteArray(100 * Megabyte, 'a')); });
    row("text of 10 MB of blanks", 10 * Megabyte,
        []() { return named(QByteArray(10 * Megabyte, ' ')); });
    row("text of 10 MB of line feeds", 10 * Megabyte,
        []() { return named(QByteArray(10 * Megabyte, '\n')); });
    row("10 MB of blanks between elements", 1,
        []() { return document(QByteArray(10 * Megabyte, ' ') + "<Name>a</Name>"); });
    row("text of 2,000,000 references", 2000000,
        []() { return named(QByteArray("&lt;").repeated(2000000)); });
    row("text of 1,000,000 three-byte characters", 1000000,
        []() { return named(QByteArray("\xE2\x82\xAC").repeated(1000000)); });
    row("section of 10 MB", 10 * Megabyte,
        []() { return named("<![CDATA[" + QByteArray(10 * Megabyte, ']') + "]]>"); });
    row("comment of 10 MB", 1,
        []() { return document("<!--" + QByteArray(10 * Megabyte, 'c') + "--><Name>a</Name>"); });
    row("instruction of 10 MB", 1,
        []() { return document("<?p " + QByteArray(10 * Megabyte, '?') + " ?><Name>a</Name>"); });
    row("document type with an identifier of 1 MB", 0, []() {
        return document(
            "", "<!DOCTYPE VornDeviceConfig SYSTEM \"" + QByteArray(Megabyte, 'x') + "\">\n");
    });
    row("version of 1 MB", 0,
        []() { return "<VornDeviceConfig version=\"" + QByteArray(Megabyte, '1') + "\"/>"; });
}

void tst_hostileinput::accepted()
{
    QFETCH(Maker, make);
    QFETCH(int, size);
    const QByteArray bytes = make();

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QElapsedTimer time;
    time.start();
    AllocationCounter::start();
    const bool loaded = file.load(bytes);
    const qint64 peak = AllocationCounter::counts().peakBytes;
    qDebug("%d bytes: %lld ms, %lld bytes of heap", bytes.size(), time.elapsed(), peak);
    QVERIFY2(loaded, qPrintable(catcher.criticals().join(u'\n')));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()).size(), size);
    QVERIFY2(peak <= qint64(MemoryFactor) * bytes.size() + SmallChange,
             QByteArray::number(peak).constData());
}

void tst_hostileinput::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");

    const QString all = u"\u00e9\u20ac\u201e \U0001F600"_s;
    const QByteArray allUtf8 = all.toUtf8();
    QTest::newRow("UTF-8") << named(allUtf8) << all;
    QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBF" + named(allUtf8) << all;
    QTest::newRow("UTF-8 with a mark, declared")
        << "\xEF\xBB\xBF" + declared("UTF-8", allUtf8) << all;
    QTest::newRow("UTF-8 in other case") << declared("utf-8", allUtf8) << all;
    QTest::newRow("UTF-16LE") << utf16Document(all, ByteOrder::Little) << all;
    QTest::newRow("UTF-16BE") << utf16Document(all, ByteOrder::Big) << all;
    for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
        const char *const name =
            order == ByteOrder::Little ? "UTF-16LE, declared" : "UTF-16BE, declared";
        const QString text = QString::fromLatin1(declared("UTF-16", "%")).replace(u"%"_s, all);
        QTest::newRow(name) << utf16(QChar(QChar::ByteOrderMark) + text, order) << all;
    }
    QTest::newRow("ISO-8859-1") << declared("ISO-8859-1", "\xE9\xA4") << u"\u00e9\u00a4"_s;
    QTest::newRow("ISO-8859-1 in lower case") << declared("iso-8859-1", "\xE9") << u"\u00e9"_s;
    QTest::newRow("windows-1252") << declared("windows-1252", "\xE9\x80\x84\x9F\xFF")
                                  << u"\u00e9\u20ac\u201e\u0178\u00ff"_s;
    QTest::newRow("windows-1252 in capitals") << declared("WINDOWS-1252", "\x80") << u"\u20ac"_s;
    QTest::newRow("US-ASCII") << declared("US-ASCII", "abc") << u"abc"_s;
    QTest::newRow("characters beyond the encoding")
        << declared("ISO-8859-1", "&#8364;&#x1F600;") << u"\u20ac\U0001F600"_s;
    QTest::newRow("U+007F, U+0085, U+009F, U+FFFD, U+10FFFF")
        << named("\x7F\xC2\x85\xC2\x9F\xEF\xBF\xBD\xF4\x8F\xBF\xBF")
        << u"\u007f\u0085\u009f\ufffd\U0010FFFF"_s;
    QTest::newRow("references to the outermost characters")
        << named("&#9;&#10;&#13;&#x20;&#xD7FF;&#xE000;&#xFFFD;&#x10000;&#x10FFFF;")
        << u"\t\n\r \ud7ff\ue000\ufffd\U00010000\U0010FFFF"_s;
    QTest::newRow("reference with leading zeros") << named("&#0000000000000000065;") << u"A"_s;
    QTest::newRow("entities of XML") << named("&lt;&gt;&amp;&quot;&apos;") << u"<>&\"'"_s;
    QTest::newRow("entities of XML with an external document type")
        << "<!DOCTYPE VornDeviceConfig SYSTEM \"x.dtd\">\n" + named("&lt;&#65;") << u"<A"_s;
}

void tst_hostileinput::encodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY2(file.load(bytes), qPrintable(catcher.criticals().join(u'\n')));
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), name);
    QVERIFY(catcher.messages().isEmpty());

    // What is saved is UTF-8, whatever it was.
    QByteArray saved;
    QString error;
    QVERIFY2(file.save(saved, error), qPrintable(error));
    CDeviceConfigurationFile10 other(nullptr);
    QVERIFY(other.load(saved));
    QCOMPARE(other.getNodeValue(u"Name"_s, QDomElement()), name);
}

void tst_hostileinput::markInside_data()
{
    QTest::addColumn<QByteArray>("content");

    // The character is a byte order mark only where the document begins.
    const QByteArray mark = "\xEF\xBB\xBF";
    QTest::newRow("text") << "<Name>" + mark + mark + "x</Name>";
    QTest::newRow("mark alone") << "<Name>" + mark + "</Name>";
    QTest::newRow("long text") << "<Name>" + mark + mark + QByteArray(1000, 'x') + "</Name>";
    QTest::newRow("section") << "<Name><![CDATA[" + mark + mark + "]]></Name>";
    QTest::newRow("attribute") << "<Name a=\"" + mark + mark + "x\"/>";
    QTest::newRow("comment") << "<!--" + mark + mark + "x-->";
    QTest::newRow("instruction") << "<?p " + mark + mark + "x?>";
}

void tst_hostileinput::markInside()
{
    QFETCH(QByteArray, content);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load("\xEF\xBB\xBF" + document(content)));
    QByteArray saved;
    QString error;
    QVERIFY2(file.save(saved, error), qPrintable(error));
    QVERIFY2(saved.contains(content), saved.constData());
}

void tst_hostileinput::externalEntities_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRead");

    const auto row = [](const char *name, const QByteArray &before, const QByteArray &content,
                        bool isRead = false) {
        QTest::newRow(name) << before << content << isRead;
    };
    row("general entity", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"file://%\">]>",
        "<Name>&e;</Name>");
    row("general entity by its path", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"%\">]>",
        "<Name>&e;</Name>");
    row("general entity with a public identifier",
        "<!DOCTYPE VornDeviceConfig [<!ENTITY e PUBLIC \"p\" \"%\">]>", "<Name>&e;</Name>");
    row("general entity in an attribute", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"%\">]>",
        "<Name a=\"&e;\"/>");
    row("parameter entity", "<!DOCTYPE VornDeviceConfig [<!ENTITY % p SYSTEM \"file://%\"> %p;]>",
        "");
    row("document type with entity", "<!DOCTYPE VornDeviceConfig SYSTEM \"file://%\">",
        "<Name>&e;</Name>");
    row("document type with entity in an attribute", "<!DOCTYPE VornDeviceConfig SYSTEM \"%\">",
        "<Name a=\"&e;\"/>");
    row("document type and no entity", "<!DOCTYPE VornDeviceConfig SYSTEM \"file://%\">",
        "<Name>a</Name>", true);
    row("document type with a public identifier and no entity",
        "<!DOCTYPE VornDeviceConfig PUBLIC \"p\" \"%\">", "<Name>a</Name>", true);
    row("standalone document",
        "<?xml version=\"1.0\" standalone=\"yes\"?>"
        "<!DOCTYPE VornDeviceConfig SYSTEM \"%\">",
        "<Name>a</Name>", true);
    row("schema", "",
        "<Name xsi:schemaLocation=\"u file://%\" "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">a</Name>",
        true);
    row("inclusion", "",
        "<xi:include href=\"file://%\" xmlns:xi=\"http://www.w3.org/2001/XInclude\"/>"
        "<Name>a</Name>",
        true);
    row("style sheet", "<?xml-stylesheet href=\"file://%\"?>", "<Name>a</Name>", true);
}

void tst_hostileinput::externalEntities()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, content);
    QFETCH(bool, isRead);

    const QString secret = path(u"secret"_s);
    QVERIFY(Files::write(secret, "<!ENTITY e \"content of the secret\">"));
    const AccessWatch watch(secret);
    QVERIFY(watch.isOk());
    QByteArray bytes = document(content, before);
    bytes.replace("file://%", "file://" + QFile::encodeName(secret));
    bytes.replace("\"%\"", '"' + QFile::encodeName(secret) + '"');
    QVERIFY(bytes.contains(QFile::encodeName(secret)));

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QCOMPARE(file.load(bytes), isRead);
    if (isRead) {
        QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), u"a"_s);
        QByteArray saved;
        QString error;
        QVERIFY(file.save(saved, error));
        QVERIFY(!saved.contains("content of the secret"));
    }
    QVERIFY(!watch.wasOpened());
    QVERIFY(!catcher.criticals().join(u' ').contains(u"content"_s));
    QCOMPARE(Files::read(secret).isEmpty(), false);
    QVERIFY(watch.wasOpened());
}

void tst_hostileinput::limits_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("accepted");
    QTest::addColumn<QByteArray>("refused");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("number");

    const auto row = [](const char *name, Change change, const QByteArray &accepted,
                        const QByteArray &refused, const char16_t *number,
                        const QString &place = QString()) {
        QString where = place;
        QByteArray refusedBytes = refused;
        if (place.isNull()) {
            const MarkedText marked(refused);
            where = u"%1:%2: "_s.arg(marked.first().line).arg(marked.first().column);
            refusedBytes = marked.bytes();
        }
        QTest::newRow(name) << change << accepted << refusedBytes << where
                            << QString::fromUtf16(number);
    };
    const QByteArray small = document("");
    row(
        "file size", [](SXmlLimits &l) { l.fileSize = 100; },
        small + QByteArray(100 - small.size(), ' '), small + QByteArray(101 - small.size(), ' '),
        u"100", u""_s);
    row(
        "root alone", [](SXmlLimits &l) { l.depth = 1; }, document(""), document(" |<A/>"), u"1");
    row(
        "depth", [](SXmlLimits &l) { l.depth = 3; }, document("<A><B/>\n<B/></A><A/>\n"),
        document("<A><B/>\n<B/></A><A>\n<B>|<C/></B></A>"), u"3");
    const QByteArray deeper =
        document(QByteArray("<A>").repeated(999) + "|<B/>" + QByteArray("</A>").repeated(999));
    row(
        "greatest depth", [](SXmlLimits &l) { l.depth = SXmlLimits::MaximumDepth; }, nested(1000),
        deeper, u"1000 deep");
    row(
        "more than the greatest depth", [](SXmlLimits &l) { l.depth = Megabyte; }, nested(1000),
        deeper, u"1000 deep");
    row(
        "no attribute", [](SXmlLimits &l) { l.attributes = 1; }, document("<A a=\"\"/>"),
        document("<A a=\"\"/>\n |<A a=\"\" b=\"\"/>"), u"1");
    row(
        "attributes", [](SXmlLimits &l) { l.attributes = 3; },
        document("<A a=\"\" b=\"\" c=\"\"><A a=\"\" b=\"\" c=\"\"/></A>"),
        document("<A a=\"\" b=\"\" c=\"\">\n|<A a=\"\" b=\"\" c=\"\" d=\"\"/></A>"), u"3");
    row(
        "more attributes", [](SXmlLimits &l) { l.attributes = 1000; },
        document(attributes(1000, " a%=\"\"")), document("|" + attributes(1001, " a%=\"\"")),
        u"1000");
    row(
        "nodes", [](SXmlLimits &l) { l.nodes = 5; }, document("<A b=\"\">c</A>\n "),
        document("<A b=\"\">c</A>\n |<!--d-->"), u"5 nodes");
    row(
        "nodes that are blank texts", [](SXmlLimits &l) { l.nodes = 5; }, document("<A> </A> <A/>"),
        document("<A> </A><A> |</A>"), u"5 nodes");
    row(
        "name", [](SXmlLimits &l) { l.nameLength = 20; }, document("<abcdefghijklmnopqrst/>"),
        document("\n  |<abcdefghijklmnopqrstu/>"), u"20");
    row(
        "name of an attribute", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<A abcdefghijklmnopqrst=\"\"/>"),
        document("\n  |<A abcdefghijklmnopqrstu=\"\"/>"), u"20");
    row(
        "name of an instruction", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<?abcdefghijklmnopqrst?>"), document("\n  |<?abcdefghijklmnopqrstu?>"), u"20");
    row(
        "name in UTF-16 units", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<" + QByteArray("\xC3\xA4").repeated(20) + "/>"),
        document("|<" + QByteArray("\xC3\xA4").repeated(21) + "/>"), u"20");
}

void tst_hostileinput::limits()
{
    QFETCH(Change, change);
    QFETCH(QByteArray, accepted);
    QFETCH(QByteArray, refused);
    QFETCH(QString, place);
    QFETCH(QString, number);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    SXmlLimits limits;
    change(limits);
    file.setLimits(limits);
    QVERIFY2(file.load(accepted), qPrintable(catcher.criticals().join(u'\n')));
    QVERIFY(catcher.messages().isEmpty());

    QString error;
    QVERIFY(!file.open(refused, Type, Version, error));
    QVERIFY2(error.startsWith(place), qPrintable(error));
    QVERIFY2(error.mid(place.size()).contains(number), qPrintable(error));
    QVERIFY(file.domDocument().isNull());

    QVERIFY(Files::write(path(), refused));
    QString fileError;
    QVERIFY(!file.open(path(), Type, Version, fileError));
    const QString prefix = path() + (place.isEmpty() ? u": "_s : u":"_s);
    QCOMPARE(fileError, prefix + error);
    QVERIFY(Files::write(path(), accepted));
    QVERIFY(file.open(path(), Type, Version, fileError));

    // It is the limit alone that refuses it, unless there is a greater one that nobody can lift.
    limits.fileSize = Megabyte;
    limits.depth = SXmlLimits::MaximumDepth;
    limits.attributes = Megabyte;
    limits.nodes = Megabyte;
    limits.nameLength = Megabyte;
    file.setLimits(limits);
    QCOMPARE(file.load(refused), place.isEmpty() || !number.startsWith(u"1000 d"_s));
}

void tst_hostileinput::limitsOfFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    const SXmlLimits defaults = file.limits();
    QCOMPARE(defaults.fileSize, SXmlLimits().fileSize);
    QCOMPARE(defaults.depth, 256);
    QCOMPARE(defaults.attributes, 256);
    QCOMPARE(defaults.nameLength, 1024);

    // A file that is larger is not even read: one without blocks on the disk costs nothing.
    const MessageCatcher catcher;
    QFile large(path());
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize(defaults.fileSize + 1));
    AllocationCounter::start();
    QVERIFY(!file.open(path()));
    QVERIFY(AllocationCounter::counts().peakBytes < SmallChange);
    QVERIFY(catcher.criticals().constFirst().startsWith(path() + u": "_s));
}

void tst_hostileinput::memory_data()
{
    QTest::addColumn<QByteArray>("part");

    const auto row = [](const char *name, const QByteArray &part) { QTest::newRow(name) << part; };
    row("empty elements", "<A/>");
    row("elements", "<A>a</A>");
    row("elements with attribute", "<A a=\"b\"/>");
    row("elements with their own names", "<A%/>");
    row("comments", "<!---->");
    row("instructions", "<?p?>");
    row("sections", "<![CDATA[]]>");
    row("sections of a letter", "<![CDATA[a]]>");
    row("texts between elements", "a<A/>");
    row("blanks between elements", " <A/>");
    row("references", "&lt;");
}

void tst_hostileinput::memory()
{
    QFETCH(QByteArray, part);

    // Many small parts: what the document tree keeps of each is told, and grows with their number
    // alone.
    const auto read = [&](int count) {
        QByteArray content;
        for (int i = 0; i < count; ++i) {
            content += QByteArray(part).replace("%", QByteArray::number(100000 + i));
        }
        const QByteArray bytes = document(content);
        CDeviceConfigurationFile10 file(nullptr);
        QElapsedTimer time;
        time.start();
        AllocationCounter::start();
        const bool ok = file.load(bytes);
        const AllocationCounter::SCounts counts = AllocationCounter::counts();
        qDebug("%d bytes: %lld ms, %lld bytes of heap", bytes.size(), time.elapsed(),
               counts.peakBytes);
        return ok ? counts : AllocationCounter::SCounts{-1, -1, -1};
    };
    const int count = 20000;
    const AllocationCounter::SCounts once = read(count);
    const AllocationCounter::SCounts fourTimes = read(4 * count);
    QVERIFY(once.allocations >= 0);
    QVERIFY(fourTimes.allocations <= 5 * once.allocations);
    QVERIFY(fourTimes.peakBytes <= 5 * once.peakBytes + SmallChange);
}

void tst_hostileinput::longLists_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("behind");

    const auto row = [](const char *name, const char *before, const char *part,
                        const char *behind) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(part) << QByteArray(behind);
    };
    row("devices", "", "<Device><Name>a</Name></Device>", "");
    row("sub-devices without number", "<Device>", "<SubDevice type=\"KD3_drive\"/>", "</Device>");
    row("sub-devices of one number", "<Device>", "<SubDevice><DriveNo>1</DriveNo></SubDevice>",
        "</Device>");
    row("options", "<Device><Config><Options>", "-a ", "</Options></Config></Device>");
    row("parameter files", "<Device><Config><ParameterFiles>", "<File><Name>a</Name></File>",
        "</ParameterFiles></Config></Device>");
    row("lists of parameter files", "<Device><Config>",
        "<ParameterFiles><File><Name>a</Name></File></ParameterFiles>", "</Config></Device>");
    row("plug-ins", "<Device><Config><Plugins>", "<Plugin><Name>a</Name></Plugin>",
        "</Plugins></Config></Device>");
    row("FPGA files", "<Device><Config><FPGA_FileNames>", "<File><Name>a</Name></File>",
        "</FPGA_FileNames></Config></Device>");
    row("additional files", "<Device><Config><Files>", "<File><Name>a</Name></File>",
        "</Files></Config></Device>");
    row("names of a device", "<Device>", "<Name>a</Name>", "</Device>");
    row("sections of a name", "<Device><Name>", "<![CDATA[a]]>", "</Name></Device>");
    row("comments in a name", "<Device><Name>", "a<!-- -->", "</Name></Device>");
    row("comments and blanks in a name", "<Device><Name>", " <!-- -->", "</Name></Device>");
}

void tst_hostileinput::longLists()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, behind);

    // To read, ask and save: the work grows with the number alone.
    const auto workFor = [&](int count) {
        const MessageCatcher catcher;
        const QByteArray bytes = document(before + part.repeated(count) + behind);
        CDeviceConfigurationFile10 file(nullptr);
        QElapsedTimer time;
        time.start();
        AllocationCounter::start();
        const bool loaded = file.load(bytes);
        CDeviceElement device;
        file.configuration(device);
        QByteArray saved;
        QString error;
        const bool isSaved = file.save(saved, error);
        qDebug("%d parts: %lld ms", count, time.elapsed());
        return loaded && isSaved ? AllocationCounter::counts().allocations : qint64(-1);
    };
    const qint64 once = workFor(5000);
    const qint64 fourTimes = workFor(20000);
    QVERIFY(once >= 0);
    QVERIFY(fourTimes <= 5 * once);
}

void tst_hostileinput::damagedConfiguration()
{
    QFETCH(int, damage);

    const QByteArray sample = smallConfiguration();
    const MessageCatcher catcher;
    int readCount = 0;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        CDeviceConfigurationFile10 file(nullptr);
        QString error;
        const QByteArray bytes = damaged(sample, at, damage);
        if (!file.open(bytes, Type, Version, error)) {
            const bool isPlaced = placeIn(error).line > 0;
            QVERIFY2(isPlaced || error.contains(u"document type"_s),
                     qPrintable(QString::fromLatin1(where) + error));
            QVERIFY2(file.domDocument().isNull(), where);
            continue;
        }
        ++readCount;
        QByteArray saved;
        QVERIFY2(file.save(saved, error), qPrintable(QString::fromLatin1(where) + error));
        CDeviceConfigurationFile10 other(nullptr);
        QVERIFY2(other.open(saved, Type, Version, error),
                 qPrintable(QString::fromLatin1(where) + error));
        QVERIFY2(ConfigurationItems::read(other) == ConfigurationItems::read(file), where);
        QVERIFY2(other.metaData() == file.metaData(), where);
        QByteArray again;
        QVERIFY2(other.save(again, error), where);
        QCOMPARE(again, saved);
    }
    // A cut document lacks its end tag; of the others many have only another text.
    QVERIFY(damage == 0 ? readCount <= 1 : readCount < sample.size() / 2);
    QVERIFY(damage == 0 || damage == 0xff || readCount > sample.size() / 10);
}

void tst_hostileinput::damagedSettings()
{
    QFETCH(int, damage);

    QByteArray sample;
    CDeviceSettingsFile file(nullptr);
    file.setDeviceSettings(SampleSettings::settings(u"P & \u00fc"_s, {{0, u"a"_s}, {255, u""_s}}));
    QCOMPARE(file.saveToBuffer(sample, Version), NvrnGlobal::FILE_RESULT_SUCCESS);
    const MessageCatcher catcher;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        const int criticals = catcher.criticals().size();
        const CDeviceSettings before = file.deviceSettings();
        const NvrnGlobal::EFileResult result =
            file.openFromBuffer(damaged(sample, at, damage), Version);
        if (result != NvrnGlobal::FILE_RESULT_SUCCESS) {
            QVERIFY2(result == NvrnGlobal::FILE_RESULT_FAILURE
                         || result == NvrnGlobal::FILE_RESULT_VERSION_MISMATCH,
                     where);
            QVERIFY2(catcher.criticals().size() == criticals + 1, where);
            QVERIFY2(file.deviceSettings() == before, where);
            continue;
        }
        QByteArray saved;
        QVERIFY2(file.saveToBuffer(saved, Version) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        CDeviceSettingsFile other(nullptr);
        QVERIFY2(other.openFromBuffer(saved, Version) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QVERIFY2(other.deviceSettings() == file.deviceSettings(), where);
    }
}

void tst_hostileinput::damagedNetworkSettings()
{
    QFETCH(int, damage);

    const QByteArray sample = "# Mode\n"
                              "MODE=STATIC\n"
                              "ADDRESS=192.168.001.010\n"
                              "SUBNETMASK=255.255.255.000\n"
                              "\n"
                              "NTP_TIMESERVER=\n"
                              "NTP_MODE=NTP_DAEMON\n"
                              "NETCON_PORT=51234\n"
                              "KERNEL_LOGLEVEL=7\n";
    int plain = 0;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        QVERIFY(Files::write(path(), damaged(sample, at, damage)));
        CNetworkSettingsFile file;
        QVERIFY2(file.open(path()) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QByteArray saved;
        QVERIFY2(file.saveToBuffer(saved) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QVERIFY(Files::write(path(), saved));
        CNetworkSettingsFile other;
        QVERIFY2(other.open(path()) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        if (isPlain(file)) {
            ++plain;
            QVERIFY2(other.networkSettings() == file.networkSettings(), where);
            QByteArray again;
            other.saveToBuffer(again);
            QCOMPARE(again, saved);
        }
    }
    QVERIFY(plain > sample.size() / 2);
}

void tst_hostileinput::damagedReleaseFile()
{
    QFETCH(int, damage);

    const QByteArray sample =
        Files::read(QStringLiteral(VRN_TEST_DATA_DIR "/os-release/os-release"));
    QVERIFY(!sample.isEmpty());
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray bytes = damaged(sample, at, damage);
        CDeviceOSReleaseFile file;
        QCOMPARE(file.openFromBuffer(bytes), NvrnGlobal::FILE_RESULT_SUCCESS);
        QByteArray saved;
        QCOMPARE(file.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
        QVERIFY(!saved.contains('\n'));
        // The same bytes mean the same, from memory and from a file.
        QVERIFY(Files::write(path(), bytes));
        CDeviceOSReleaseFile other;
        QCOMPARE(other.open(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
        QByteArray savedToo;
        QCOMPARE(other.saveToBuffer(savedToo), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(savedToo, saved);
        // All keys follow one another in one line, which keeps what stands before the second "=".
        QCOMPARE(other.openFromBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(other.isNull(), !saved.contains('='));
    }
}

void tst_hostileinput::hostileSmallFiles_data()
{
    QTest::addColumn<Maker>("make");

    const auto row = [](const char *name, const Maker &make) { QTest::newRow(name) << make; };
    row("empty", []() { return QByteArray(); });
    row("only a byte order mark", []() { return QByteArray("\xEF\xBB\xBF"); });
    row("10 MB of zeros", []() { return QByteArray(10 * Megabyte, '\0'); });
    row("10 MB of line feeds", []() { return QByteArray(10 * Megabyte, '\n'); });
    row("10 MB in one line", []() { return "MODE=" + QByteArray(10 * Megabyte, 'a'); });
    row("10 MB of keys", []() { return QByteArray("MODE=STATIC\n").repeated(Megabyte); });
    row("many keys", []() {
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i) {
            bytes += "KEY" + QByteArray::number(i) + "=a\n";
        }
        return bytes;
    });
    row("invalid UTF-8", []() { return QByteArray("MODE=\xC0\x80\xED\xA0\x80\xFF\n"); });
    row("UTF-16", []() {
        return utf16(QChar(QChar::ByteOrderMark) + u"MODE=STATIC\n"_s, ByteOrder::Little);
    });
}

void tst_hostileinput::hostileSmallFiles()
{
    QFETCH(Maker, make);
    const QByteArray bytes = make();

    QVERIFY(Files::write(path(), bytes));
    CNetworkSettingsFile network;
    AllocationCounter::start();
    QCOMPARE(network.open(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
    const qint64 networkPeak = AllocationCounter::counts().peakBytes;
    QVERIFY(networkPeak <= qint64(SmallFileFactor) * bytes.size() + SmallChange);
    QByteArray saved;
    QCOMPARE(network.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);

    CDeviceOSReleaseFile release;
    AllocationCounter::start();
    QCOMPARE(release.openFromBuffer(bytes), NvrnGlobal::FILE_RESULT_SUCCESS);
    const qint64 releasePeak = AllocationCounter::counts().peakBytes;
    QVERIFY(releasePeak <= qint64(SmallFileFactor) * bytes.size() + SmallChange);
    QCOMPARE(release.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
    qDebug("%d bytes: %lld and %lld bytes of heap", bytes.size(), networkPeak, releasePeak);
}

REGISTER_GUILESS_TEST(tst_hostileinput)
#include "tst_hostileinput.moc"
