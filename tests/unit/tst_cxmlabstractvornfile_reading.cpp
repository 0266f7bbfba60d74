#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/SampleXmlFile.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace SampleXmlFile;

namespace {

QString invalidDirectory()
{
    return Places::data("configuration/invalid");
}

struct Malformed {
    const char *name;
    int line;
    int column;
};

/**
 * What is wrong in the files of the directory "invalid", named after their fault. Line and column
 * are those of the character that cannot stand where it does; of the last one when the document
 * ends too early; where the construct begins when that is cut off.
 */
const Malformed MalformedFiles[] = {
    {"ampersand-alone", 4, 12},
    {"attribute-twice", 3, 30},
    {"attribute-without-quotes", 3, 18},
    {"attribute-without-value", 3, 17},
    {"attributes-not-separated", 3, 29},
    {"blank-before-declaration", 1, 2},
    {"comment-with-two-hyphens", 3, 11},
    {"control-character", 4, 10},
    {"control-character-reference", 4, 10},
    {"empty", 1, 1},
    {"entity-declaration", 2, 28},
    {"entity-expansion", 2, 28},
    {"external-entity-declaration", 2, 28},
    {"less-than-in-attribute", 3, 19},
    {"mismatched-end-tag", 4, 15},
    {"name-starts-with-digit", 3, 3},
    {"nested-too-deep", 3, 766},
    {"no-xml", 1, 4},
    {"null-character", 4, 10},
    {"only-blanks", 3, 3},
    {"only-declaration", 2, 1},
    {"overlapping-elements", 3, 18},
    {"second-declaration", 3, 2},
    {"second-root", 4, 1},
    {"section-end-in-text", 4, 12},
    {"surrogate-reference", 4, 10},
    {"text-behind-root", 4, 1},
    {"truncated-before-root-end", 4, 1},
    {"truncated-in-cdata", 5, 1},
    {"truncated-in-comment", 3, 2},
    {"truncated-in-tag", 4, 3},
    {"truncated-in-text", 4, 13},
    {"undeclared-entity", 4, 10},
    {"unknown-encoding", 1, 31},
    {"unknown-xml-version", 1, 1},
    // The decoder works ahead of the parser, so only that there is a place is certain.
    {"invalid-utf8", -1, -1},
    // Nothing is wrong with these as XML: the failure has no place in the file.
    {"wrong-document-type", 0, 0},
    {"wrong-case-of-document-type", 0, 0},
};

} // namespace

/** What is read, and what is refused, with its place. */
class tst_cxmlabstractvornfile_reading : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void malformed_data();
    void malformed();
    void everyMalformedFileIsTested();
    void nesting_data();
    void nesting();
    void encodings_data();
    void encodings();

    void survives_data();
    void survives();
    void normalised_data();
    void normalised();
    void attributesAreSorted();
    void textsSurvive_data();
    void textsSurvive();

    void positions();
    void positionsOfOtherElements();

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cxmlabstractvornfile_reading::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cxmlabstractvornfile_reading::malformed_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    for (const Malformed &row : MalformedFiles) {
        QTest::newRow(row.name) << row.line << row.column;
    }
}

void tst_cxmlabstractvornfile_reading::malformed()
{
    QFETCH(int, line);
    QFETCH(int, column);

    const QString filePath =
        QStringLiteral("%1/%2.3deco").arg(invalidDirectory(), text(QTest::currentDataTag()));
    QString place;
    if (line < 0) {
        place = text("[1-9][0-9]*:[1-9][0-9]*: ");
    } else if (line > 0) {
        place = QStringLiteral("%1:%2: ").arg(line).arg(column);
    }

    const MessageCatcher catcher;
    TestFile file;
    QString error;
    QVERIFY(!file.open(filePath, Type, Version, error));
    const QRegularExpression expected(
        QStringLiteral("\\A%1: ?%2[^ :].+\\z").arg(QRegularExpression::escape(filePath), place));
    QVERIFY2(expected.match(error).hasMatch(), qPrintable(error));
    QCOMPARE(catcher.criticals(), QStringList{error});
    QVERIFY(file.domDocument().isNull());

    // From memory the same, without the file.
    QString bufferError;
    QVERIFY(QFile::exists(filePath));
    QVERIFY(!file.openBytes(Files::read(filePath), &bufferError));
    const int prefix = filePath.size() + (line == 0 ? 2 : 1);
    QCOMPARE(bufferError, error.mid(prefix));
}

void tst_cxmlabstractvornfile_reading::everyMalformedFileIsTested()
{
    QStringList tested;
    for (const Malformed &row : MalformedFiles) {
        tested << text(row.name) + text(".3deco");
    }
    tested.sort();
    QCOMPARE(QDir(invalidDirectory()).entryList(QDir::Files, QDir::Name), tested);
}

void tst_cxmlabstractvornfile_reading::nesting_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("root alone") << 1 << true;
    QTest::newRow("deepest") << 256 << true;
    QTest::newRow("one too deep") << 257 << false;
    QTest::newRow("far too deep") << 200000 << false;
}

void tst_cxmlabstractvornfile_reading::nesting()
{
    QFETCH(int, depth);
    QFETCH(bool, accepted);

    const MessageCatcher catcher;
    TestFile file;
    const QByteArray bytes = "<VornDeviceConfig version=\"1.0\">"
        + QByteArray("<A>").repeated(depth - 1) + QByteArray("</A>").repeated(depth - 1)
        + "</VornDeviceConfig>";
    QCOMPARE(file.openBytes(bytes), accepted);
    QCOMPARE(file.domDocument().isNull(), !accepted);
    QCOMPARE(catcher.criticals().size(), accepted ? 0 : 1);
}

void tst_cxmlabstractvornfile_reading::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray rest =
        "<VornDeviceConfig version=\"1.0\"><Name>\xc3\xbc</Name></VornDeviceConfig>";
    QTest::newRow("UTF-8 declared") << Declaration + rest;
    QTest::newRow("nothing declared") << rest;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + rest;
    QTest::newRow("Latin-1 declared")
        << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>")
            + QString::fromUtf8(rest).toLatin1();
    const QString wide = QChar(QChar::ByteOrderMark) + QString::fromUtf8(rest);
    QTest::newRow("UTF-16") << QByteArray(reinterpret_cast<const char *>(wide.utf16()),
                                          wide.size() * 2);
    QTest::newRow("Windows line ends") << Declaration.trimmed() + "\r\n" + rest + "\r\n";
}

void tst_cxmlabstractvornfile_reading::encodings()
{
    QFETCH(QByteArray, bytes);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.getNodeValue(text("Name"), QDomElement()), text("\xc3\xbc"));
    QCOMPARE(file.bytes(), document(" <Name>\xc3\xbc</Name>\n"));
}

void tst_cxmlabstractvornfile_reading::survives_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty root") << Declaration + "<VornDeviceConfig version=\"1.0\"/>\n";
    QTest::newRow("elements") << document(" <A>\n  <B/>\n  <B>\n   <C/>\n  </B>\n </A>\n");
    QTest::newRow("texts") << document(" <A>1</A>\n <B> 2 </B>\n <C>  </C>\n");
    QTest::newRow("attributes") << document(" <A a=\"1\" b=\"2\"/>\n <A b=\"\">3</A>\n");
    QTest::newRow("comments") << document(
        " <!-- 1 -->\n <A>\n  <!--2-->\n  <B/>\n </A>\n <!---->\n");
    QTest::newRow("comments around the root")
        << Declaration + "<!-- 1 -->\n<VornDeviceConfig version=\"1.0\"/>\n<!-- 2 -->\n";
    QTest::newRow("comment in text") << document(" <A>a<!-- c -->b</A>\n");
    QTest::newRow("comment alone") << document(" <A>\n  <!-- c -->\n </A>\n");
    QTest::newRow("instructions") << document(" <?p a=\"1\"?>\n <A>\n  <?q?>\n  <B/>\n </A>\n");
    QTest::newRow("instructions around the root") << Declaration
            + "<?xml-stylesheet href=\"a.xsl\"?>\n<VornDeviceConfig version=\"1.0\"/>\n<?p?>\n";
    QTest::newRow("section") << document(" <A><![CDATA[<a>&\n]]></A>\n");
    QTest::newRow("section beside text") << document(" <A>a<![CDATA[b]]>c</A>\n");
    QTest::newRow("sections side by side") << document(" <A><![CDATA[]]]]><![CDATA[>]]></A>\n");
    QTest::newRow("blank section beside an element") << document(" <A><![CDATA[ ]]><B/></A>\n");
    QTest::newRow("mixed content") << document(" <A>a<B>b</B>c</A>\n");
    QTest::newRow("elements in mixed content") << document(" <A>a<B>\n   <C/>\n  </B></A>\n");
    QTest::newRow("blanks in mixed content") << document(" <A>a <B/> <B/>\n <B/> c</A>\n");
    QTest::newRow("no-break space beside an element") << document(" <A>\xc2\xa0<B/></A>\n");
    QTest::newRow("names with prefix") << Declaration
            + "<VornDeviceConfig a:x=\"1\" b:x=\"2\" version=\"1.0\" xmlns:a=\"u\" xmlns:b=\"v\">\n"
              " <a:A/>\n</VornDeviceConfig>\n";
    QTest::newRow("prefix without declaration") << document(" <a:A a:b=\"1\"/>\n");
    QTest::newRow("default name space") << document(" <A xmlns=\"u\">\n  <B/>\n </A>\n");
    QTest::newRow("document type")
        << Declaration + "<!DOCTYPE VornDeviceConfig>\n<VornDeviceConfig version=\"1.0\"/>\n";
    QTest::newRow("document type with system identifier") << Declaration
            + "<!DOCTYPE VornDeviceConfig SYSTEM \"a.dtd\">\n<VornDeviceConfig version=\"1.0\"/>\n";
    QTest::newRow("document type with public identifier") << Declaration
            + "<!DOCTYPE VornDeviceConfig PUBLIC \"-//it's\" \"a.dtd\">\n"
              "<VornDeviceConfig version=\"1.0\"/>\n";
    QTest::newRow("document type with a quote") << Declaration
            + "<!DOCTYPE VornDeviceConfig SYSTEM 'a\"b'>\n<VornDeviceConfig version=\"1.0\"/>\n";
    QTest::newRow("non-Latin") << document(
        " <\xe8\xbb\xb8 \xc3\xa4=\"\xf0\x9f\x98\x80\">\xe8\xbb\xb8</\xe8\xbb\xb8>\n");
    QTest::newRow("marks in text") << document(" <A>&amp;amp; &lt;b&gt; ]]&gt; \"'</A>\n");
    QTest::newRow("marks in attributes") << document(" <A a=\"&amp;&lt;&gt;&#34;'\"/>\n");
    QTest::newRow("line breaks in text") << document(" <A>a\nb&#13;c\td</A>\n");
    QTest::newRow("line breaks in attributes") << document(" <A a=\"a&#10;b&#13;c&#9;d\"/>\n");
    QTest::newRow("no-break space") << document(" <A>\xc2\xa0</A>\n");
    QTest::newRow("characters that end lines elsewhere")
        << document(" <A>\xc2\x85\xe2\x80\xa8</A>\n");
}

void tst_cxmlabstractvornfile_reading::survives()
{
    QFETCH(QByteArray, bytes);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.bytes(), bytes);
}

void tst_cxmlabstractvornfile_reading::normalised_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("layout of its own") << document("<A><B/>\n\n\n<B>\t<C/></B></A>")
                                       << document(" <A>\n  <B/>\n  <B>\n   <C/>\n  </B>\n </A>\n");
    QTest::newRow("start and end tag") << document(" <A></A>\n") << document(" <A/>\n");
    QTest::newRow("single quotes") << document(" <A a='1'/>\n") << document(" <A a=\"1\"/>\n");
    QTest::newRow("blanks in tags")
        << document(" <A  a = \"1\" ></A >\n") << document(" <A a=\"1\"/>\n");
    QTest::newRow("character references")
        << document(" <A>&#65;&#x42;</A>\n") << document(" <A>AB</A>\n");
    const QByteArray external = "<!DOCTYPE VornDeviceConfig SYSTEM \"a.dtd\">\n";
    QTest::newRow("entities of XML in an attribute with an external document type") << external
            + document(" <A a=\"&lt;&gt;&amp;&quot;&apos;&#65;\"/>\n").mid(Declaration.size())
                                                                                    << Declaration
            + external + document(" <A a=\"&lt;&gt;&amp;&#34;'A\"/>\n").mid(Declaration.size());
    QTest::newRow("Windows line ends")
        << document(" <A>a\r\nb</A>\r\n") << document(" <A>a\nb</A>\n");
    QTest::newRow("line breaks in attributes are blanks")
        << document(" <A a=\"1\n2\t3\"/>\n") << document(" <A a=\"1 2 3\"/>\n");
}

void tst_cxmlabstractvornfile_reading::normalised()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(read, &error), qPrintable(error));
    QCOMPARE(file.bytes(), written);
    // And that is where it ends.
    QVERIFY(file.openBytes(written));
    QCOMPARE(file.bytes(), written);
}

void tst_cxmlabstractvornfile_reading::attributesAreSorted()
{
    // QDom keeps attributes in a hash, whose order differs from process to process.
    QStringList names;
    for (char c = 'a'; c <= 'z'; ++c) {
        names << QString(QLatin1Char(c)) << QString(QLatin1Char(c)).toUpper();
    }
    QByteArray expected;
    std::sort(names.begin(), names.end());
    for (const QString &name : names) {
        expected += ' ' + name.toLatin1() + "=\"1\"";
    }
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QDomElement element = file.domElement(text("A"), QDomElement());
    for (int i = 0; i < names.size(); ++i) {
        element.setAttribute(names.at((i * 7) % names.size()), text("1"));
    }
    QCOMPARE(file.bytes(), document(" <A" + expected + "/>\n"));
}

void tst_cxmlabstractvornfile_reading::textsSurvive_data()
{
    QTest::addColumn<QString>("value");

    const auto row = [](const char *name, const char *value) {
        QTest::newRow(name) << text(value);
    };
    row("plain", "abc");
    row("empty", "");
    row("blank", " ");
    row("blanks", "   ");
    row("tab", "\t");
    row("line feed", "\n");
    row("carriage return", "\r");
    row("Windows line end", "\r\n");
    row("blanks at both ends", "  a  ");
    row("line breaks at both ends", "\n a \r\n");
    row("all white space inside", "a \t\r\n b");
    row("marks", "<a href=\"b\">&amp;'</a>");
    row("end of a section", "]]>");
    row("start of a comment", "<!-- -->");
    row("looks like a reference", "&#13;");
    row("no-break space alone", "\xc2\xa0");
    row("next line", "\xc2\x85");
    row("line and paragraph separator", "\xe2\x80\xa8\xe2\x80\xa9");
    row("byte order mark", "\xef\xbb\xbf");
    row("non-Latin", "\xe8\xbb\xb8 \xd7\x90 \xf0\x9f\x98\x80");
    row("last character", "\xef\xbf\xbd");
    row("place markers", "%1 %2");
    QTest::newRow("long") << QString(200000, QLatin1Char('x')) + text(" \n<&>");
}

void tst_cxmlabstractvornfile_reading::textsSurvive()
{
    QFETCH(QString, value);

    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    file.setNodeValue(text("Text"), value, QDomElement());
    QDomElement element = file.domElement(text("Attribute"), QDomElement());
    element.setAttribute(text("a"), value);
    QDomElement section = file.domElement(text("Section"), QDomElement());
    section.appendChild(
        file.domDocument().createCDATASection(QString(value).remove(QLatin1Char('\r'))));
    QString error;
    QVERIFY2(file.save(path(), error), qPrintable(error));

    TestFile back;
    QVERIFY2(back.open(path(), Type, Version, error), qPrintable(error));
    QCOMPARE(back.getNodeValue(text("Text"), QDomElement()), value);
    QCOMPARE(back.existingDomElement(text("Attribute"), QDomElement()).attribute(text("a")), value);
    QCOMPARE(back.getNodeValue(text("Section"), QDomElement()),
             QString(value).remove(QLatin1Char('\r')));
    QCOMPARE(back.bytes(), Files::read(path()));
}

void tst_cxmlabstractvornfile_reading::positions()
{
    const QByteArray bytes = "<?xml version=\"1.0\"?>\n<!-- \xC3\xA9 -->\n"
                             "<VornDeviceConfig version=\"1.0\">\r\n"
                             "\t<A>\xC3\xA9\xF0\x9F\x98\x80</A><B\n a='&lt;'/>\n"
                             "<B><A/></B></VornDeviceConfig>";
    TestFile file;
    file.keepPositions(true);
    QVERIFY(file.openBytes(bytes));
    const QDomElement root = file.root();
    const auto place = [&file](const QDomElement &element) {
        const SXmlPosition position = file.position(element);
        return QPair<qint64, qint64>(position.line, position.column);
    };
    using Place = QPair<qint64, qint64>;
    const QDomElement a = root.firstChildElement(text("A"));
    const QDomElement firstB = root.firstChildElement(text("B"));
    const QDomElement secondB = firstB.nextSiblingElement(text("B"));
    QCOMPARE(place(root), Place(3, 1));
    QCOMPARE(place(a), Place(4, 2));
    QCOMPARE(place(firstB), Place(4, 11)); // characters, not bytes
    QCOMPARE(place(secondB), Place(6, 1));
    QCOMPARE(place(secondB.firstChildElement()), Place(6, 4));
    QVERIFY(file.position(a).isKnown());

    // The places are those in the file, whatever happens to the document.
    QDomElement parent = root;
    parent.insertBefore(secondB, a);
    parent.removeChild(firstB);
    QCOMPARE(place(secondB), Place(6, 1));
    QCOMPARE(place(firstB), Place(4, 11));
}

void tst_cxmlabstractvornfile_reading::positionsOfOtherElements()
{
    const MessageCatcher catcher;
    TestFile file;
    const auto isKnown = [&file](const QDomElement &element) {
        return file.position(element).isKnown();
    };
    QVERIFY(!isKnown(QDomElement()));
    QVERIFY(file.openBytes(document("<Device/>")));
    QVERIFY(!isKnown(file.root())); // not asked for

    file.keepPositions(true);
    QVERIFY(file.openBytes(document("<Device/>")));
    const QDomElement before = file.root();
    QVERIFY(isKnown(before));
    QVERIFY(!isKnown(file.domElement(text("New"), QDomElement())));
    // Many new ones after the read ones are gone: none may take the place of another in memory.
    file.root().removeChild(file.root().firstChildElement(text("Device")));
    for (int i = 0; i < 100; ++i) {
        QVERIFY(!isKnown(file.domElement(QStringLiteral("New%1").arg(i), QDomElement())));
    }

    QVERIFY(!file.openBytes("<VornDeviceConfig><A>"));
    QVERIFY(!isKnown(before));
    QVERIFY(file.openBytes(document("<Device/>")));
    QVERIFY(file.createNewDocument(Type, Version));
    QVERIFY(!isKnown(file.root()));
    file.keepPositions(false);
    QVERIFY(file.openBytes(document("<Device/>")));
    QVERIFY(!isKnown(file.root()));
}

REGISTER_GUILESS_TEST(tst_cxmlabstractvornfile_reading)
#include "tst_cxmlabstractvornfile_reading.moc"
