#include "support/HostileDocuments.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/SampleXmlFile.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace HostileDocuments;
using SampleXmlFile::TestFile;

namespace {

const QString OtherEncoding =
    QStringLiteral("The document is not in the encoding that it declares.");
const QString NotUtf8 =
    QStringLiteral("This is not valid UTF-8 text, and the document declares no other encoding.");
const QString NotAllowed = QStringLiteral("This character is not allowed here.");
const QString Unknown = QStringLiteral("The encoding is unknown.");

QString wide(const QString &encoding)
{
    return QString::fromLatin1(declared("ENCODING", "\xE9")).replace(u"ENCODING"_s, encoding);
}

QString mark()
{
    return QChar(QChar::ByteOrderMark);
}

} // namespace

/** The encodings in which documents are read, under the names that other tools give them. */
class tst_cxmlabstractvornfile_encodings : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void readsWhole_data();
    void readsWhole();
    void refuses_data();
    void refuses();
    void singleBytes_data();
    void singleBytes();
};

void tst_cxmlabstractvornfile_encodings::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *encoding, const char *bytes, const QString &text) {
        QTest::newRow(encoding) << declared(encoding, bytes) << text;
    };
    for (const char *encoding : {"UTF-8", "utf8", "UTF8", "utf_8", "Utf-8"}) {
        add(encoding, "\xC3\xA9\xF0\x9F\x98\x80", u"\u00e9\U0001F600"_s);
    }
    for (const char *encoding : {"US-ASCII", "ascii", "ASCII", "us_ascii", "ISO646-US"}) {
        add(encoding, "abc&#8364;", u"abc\u20ac"_s);
    }
    for (const char *encoding : {"ISO-8859-1", "iso8859-1", "ISO_8859-1", "latin1", "Latin-1"}) {
        add(encoding, "\xE9\xA4\x80", u"\u00e9\u00a4\u0080"_s);
    }
    for (const char *encoding : {"ISO-8859-15", "iso8859-15", "latin9", "Latin-9"}) {
        add(encoding, "\xE9\xA4\xBD", u"\u00e9\u20ac\u0153"_s);
    }
    for (const char *encoding : {"windows-1252", "Windows-1252", "cp1252", "CP-1252"}) {
        add(encoding, "\xE9\x80\x84\x9F\xFF", u"\u00e9\u20ac\u201e\u0178\u00ff"_s);
    }
    add("windows-1250", "\x9E\xE8\xF8", u"\u017e\u010d\u0159"_s);
    add("windows-1251", "\xC6\xFF\x80", u"\u0416\u044f\u0402"_s);
    add("windows-1253", "\xE1\xD9\x80", u"\u03b1\u03a9\u20ac"_s);
    add("windows-1254", "\xFE\xD0", u"\u015f\u011e"_s);
    add("windows-1255", "\xE0\xFA", u"\u05d0\u05ea"_s);
    add("windows-1256", "\xC7\x81", u"\u0627\u067e"_s);
    add("windows-1257", "\xE0\xFE", u"\u0105\u017e"_s);
    add("windows-1258", "\xFE\xD5", u"\u20ab\u01a0"_s);
    for (const char *encoding :
         {"cp1250", "cp1251", "cp1253", "cp1254", "cp1255", "cp1256", "cp1257", "cp1258"}) {
        add(encoding, "\xA9", u"\u00a9"_s);
    }
}

void tst_cxmlabstractvornfile_encodings::reads()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), text);
    // What is saved is UTF-8, whatever it was.
    QVERIFY(file.bytes().startsWith(SampleXmlFile::Declaration));
    QVERIFY(TestFile().openBytes(file.bytes()));
}

void tst_cxmlabstractvornfile_encodings::readsWhole_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray utf8Mark = "\xEF\xBB\xBF";
    for (const char *encoding : {"utf8", "UTF-8"}) {
        QTest::addRow("mark, %s", encoding) << utf8Mark + declared(encoding, "\xC3\xA9");
    }
    for (const char *encoding : {"utf-16", "utf16", "UTF_16", "utf-16le", "UTF16LE"}) {
        const QString text = wide(QString::fromLatin1(encoding));
        QTest::addRow("little-endian, %s", encoding) << utf16(text, ByteOrder::Little);
        QTest::addRow("little-endian, %s, mark", encoding)
            << utf16(mark() + text, ByteOrder::Little);
    }
    for (const char *encoding : {"utf-16", "utf16", "utf-16be", "UTF16BE"}) {
        const QString text = wide(QString::fromLatin1(encoding));
        QTest::addRow("big-endian, %s", encoding) << utf16(text, ByteOrder::Big);
        QTest::addRow("big-endian, %s, mark", encoding) << utf16(mark() + text, ByteOrder::Big);
    }
}

void tst_cxmlabstractvornfile_encodings::readsWhole()
{
    QFETCH(QByteArray, bytes);
    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), u"\u00e9"_s);
}

void tst_cxmlabstractvornfile_encodings::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");

    const auto add = [](const char *name, const QByteArray &bytes, const char *place,
                        const QString &reason) {
        QTest::newRow(name) << bytes << QString::fromLatin1(place) + u": "_s + reason;
    };
    const QByteArray unmarked = "<?xml version=\"1.0\"?>\n";
    add("nothing declared, text", named("a\xE9z"), "2:8", NotUtf8);
    add("nothing declared, text begins", named("\xE9z"), "2:7", NotUtf8);
    add("nothing declared, attribute", attribute("a\xE9z"), "2:11", NotUtf8);
    add("nothing declared, comment", "<!--a\xE9z-->" + named("a"), "1:6", NotUtf8);
    add("nothing declared, instruction", "<?p a\xE9z?>" + named("a"), "1:6", NotUtf8);
    add("nothing declared, section", named("<![CDATA[a\xE9z]]>"), "2:17", NotUtf8);
    add("nothing declared, name", document("<N\xE9z/>\n"), "2:3", NotUtf8);
    add("nothing declared, before the root", "\xE9" + named("a"), "1:1", NotUtf8);
    add("nothing declared, behind the root", named("a") + "\xE9zz", "4:1", NotUtf8);
    add("declaration without encoding", unmarked + named("a\xE9z"), "3:8", NotUtf8);
    add("mark", "\xEF\xBB\xBF" + named("a\xE9z"), "2:8", NotUtf8);
    add("overlong", named("a\xC0\xAFz"), "2:8", NotUtf8);
    add("half of a pair", named("a\xED\xA0\x80z"), "2:8", NotUtf8);
    add("byte that follows none", named("a\x80z"), "2:8", NotUtf8);
    add("UTF-8 declared", declared("UTF-8", "a\xE9z"), "3:8", OtherEncoding);
    add("utf8 declared", declared("utf8", "a\xE9z"), "3:8", OtherEncoding);
    add("ascii declared", declared("ascii", "a\xE9z"), "3:8", OtherEncoding);
    add("US-ASCII declared", declared("US-ASCII", "a\xC3\xA9z"), "3:8", OtherEncoding);
    add("unused in cp1252", declared("cp1252", "a\x81z"), "3:8", OtherEncoding);
    add("unused in windows-1253", declared("windows-1253", "a\xD2z"), "3:8", OtherEncoding);
    add("mark, latin1 declared", "\xEF\xBB\xBF" + declared("latin1", "a"), "1:2", OtherEncoding);
    for (const char *encoding : {"UTF-16", "utf16", "utf-16le", "UTF16BE"}) {
        QTest::addRow("bytes, %s declared", encoding)
            << declared(encoding, "a") << u"1:1: "_s + OtherEncoding;
    }
    add("other byte order", utf16(wide(u"utf-16be"_s), ByteOrder::Little), "1:1", OtherEncoding);
    add("UTF-16, latin1 declared", utf16(wide(u"latin1"_s), ByteOrder::Big), "1:1", OtherEncoding);
    for (const char *encoding : {"utf-7", "utf8x", "ebcdic", "windows-1259", "cp125", "x"}) {
        QTest::addRow("%s declared", encoding) << declared(encoding, "a") << u"1:31: "_s + Unknown;
    }

    // These are characters, but not of XML.
    add("control character", named("a\x01z"), "2:8", NotAllowed);
    add("U+FFFF", named("a\xEF\xBF\xBFz"), "2:8", NotAllowed);
    add("U+FFFD in a name", document("<N\xEF\xBF\xBDz/>\n"), "2:3", NotAllowed);
    add("control character, latin1", declared("latin1", "a\x01z"), "3:8", NotAllowed);
    add("XML 1.1", "<?xml version=\"1.1\"?>\n" + named("a"), "1:1",
        u"The XML version '1.1' is unknown."_s);
    add("XML 1.1, utf8", "<?xml version=\"1.1\" encoding=\"utf8\"?>\n" + named("a"), "1:1",
        u"The XML version '1.1' is unknown."_s);
}

void tst_cxmlabstractvornfile_encodings::refuses()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);

    const MessageCatcher catcher;
    TestFile file;
    QString errorText;
    QVERIFY(!file.openBytes(bytes, &errorText));
    QCOMPARE(errorText, error);
    QVERIFY(file.root().isNull());
}

void tst_cxmlabstractvornfile_encodings::singleBytes_data()
{
    QTest::addColumn<QByteArray>("encoding");

    for (const char *encoding : {"ascii", "latin1", "iso8859-15", "cp1250", "cp1251", "cp1252",
                                 "cp1253", "cp1254", "cp1255", "cp1256", "cp1257", "cp1258"}) {
        QTest::newRow(encoding) << QByteArray(encoding);
    }
}

/** Each byte is one character that comes back, or is refused as none. */
void tst_cxmlabstractvornfile_encodings::singleBytes()
{
    QFETCH(QByteArray, encoding);
    const MessageCatcher catcher;
    int refused = 0;
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        TestFile file;
        QString error;
        const QByteArray text(1, static_cast<char>(byte));
        if (!file.openBytes(declared(encoding, text), &error)) {
            QCOMPARE(error, u"3:7: "_s + OtherEncoding);
            ++refused;
            continue;
        }
        const QString name = file.getNodeValue(u"Name"_s, QDomElement());
        QCOMPARE(name.size(), 1);
        QVERIFY(name.at(0).unicode() >= 0x80 && name.at(0) != QChar::ReplacementCharacter);
    }
    QVERIFY2(encoding == "ascii" ? refused == 128 : refused < 40,
             QByteArray::number(refused).constData());
}

REGISTER_GUILESS_TEST(tst_cxmlabstractvornfile_encodings)
#include "tst_cxmlabstractvornfile_encodings.moc"
