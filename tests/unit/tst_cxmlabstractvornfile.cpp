#include "imported/CXmlAbstractVornFile.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/RecordingLog.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

const QString Type = QStringLiteral("VornDeviceConfig");
const QString Version = QStringLiteral("1.0");

const QByteArray Declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/** A file that notes the version errors it is asked about, and accepts or refuses them. */
class TestFile : public CXmlAbstractVornFile
{
public:
    explicit TestFile(ICLogfile *log = nullptr) : CXmlAbstractVornFile(log) { }

    bool handleVersionError(const QString &required, const QString &existing) override
    {
        versionErrors << QStringLiteral("%1/%2").arg(required, existing);
        return acceptsVersions;
    }

    bool openBytes(const QByteArray &bytes, QString *error = nullptr)
    {
        QString errorText;
        const bool ok = open(bytes, Type, Version, errorText);
        if (error != nullptr) {
            *error = errorText;
        }
        return ok;
    }

    /** The bytes of the document; empty when it cannot be written. */
    QByteArray bytes()
    {
        QByteArray result;
        QString errorText;
        return save(result, errorText) ? result : QByteArray();
    }

    QDomElement root() const { return domDocument().documentElement(); }

    QStringList versionErrors;
    bool acceptsVersions = true;
};

/** A whole document around @p content; the indentation is that of saved documents. */
QByteArray document(const QByteArray &content)
{
    return Declaration + "<VornDeviceConfig version=\"1.0\">\n" + content + "</VornDeviceConfig>\n";
}

QString invalidDirectory()
{
    return QStringLiteral(VRN_TEST_DATA_DIR "/configuration/invalid");
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

class tst_CXmlAbstractVornFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void withoutDocument();
    void createNewDocument();
    void createNewDocumentReplaces();
    void createNewDocumentNames_data();
    void createNewDocumentNames();

    void openBuffer();
    void openFile();
    void openFileFails_data();
    void openFileFails();
    void wrongDocumentType_data();
    void wrongDocumentType();
    void version_data();
    void version();
    void versionRefused();
    void failedOpenDropsDocument_data();
    void failedOpenDropsDocument();
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
    void layout();
    void markupSetByHandle_data();
    void markupSetByHandle();
    void unwritableText_data();
    void unwritableText();
    void manyUnwritableCharacters();

    void positions();
    void positionsOfOtherElements();
    void limitsOfSaving_data();
    void limitsOfSaving();

    void saveTwice();
    void saveAfterChange_data();
    void saveAfterChange();
    void saveReplacesFile();
    void saveWithOtherName();
    void saveWithOtherNameFails_data();
    void saveWithOtherNameFails();
    void saveWithoutDocument();
    void saveFails_data();
    void saveFails();
    void saveOnFullDisk();
    void saveThroughLink();
    void saveIntoReadOnlyDirectory();
    void saveReadOnlyFile();
    void saveThatFailsAtTheLastStep();
    void permissions_data();
    void permissions();
    void permissionsOfOldFileStay();

    void metaData();
    void metaDataOfElement();
    void metaDataWithoutHead();
    void metaDataKeepsUnknown();
    void elements();
    void elementsWithoutDocument();
    void nodeValues();
    void gettersCreateNothing();

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_CXmlAbstractVornFile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_CXmlAbstractVornFile::withoutDocument()
{
    RecordingLog log;
    const TestFile file(&log);
    QCOMPARE(file.logfile(), static_cast<ICLogfile *>(&log));
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.metaData().isNull());
    QCOMPARE(file.permissions(), QFileDevice::Permissions());
    QVERIFY(TestFile().logfile() == nullptr);
    QVERIFY(log.entries().isEmpty());
}

void tst_CXmlAbstractVornFile::createNewDocument()
{
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QCOMPARE(file.bytes(), Declaration + "<VornDeviceConfig version=\"1.0\"/>\n");
    QVERIFY(file.metaData().isNull());
}

void tst_CXmlAbstractVornFile::createNewDocumentReplaces()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QVERIFY(file.createNewDocument(text("Other"), text("2.5")));
    QCOMPARE(file.bytes(), Declaration + "<Other version=\"2.5\"/>\n");
}

void tst_CXmlAbstractVornFile::createNewDocumentNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepted");

    const auto row = [](const char *rowName, const char *name, bool accepted) {
        QTest::newRow(rowName) << text(name) << accepted;
    };
    row("letters", "VornDeviceConfig", true);
    row("underscore", "C_SETTINGS_FORMAT", true);
    row("one letter", "a", true);
    row("digit behind", "a1", true);
    row("hyphen and dot behind", "a-b.c", true);
    row("underscore in front", "_a", true);
    row("non-Latin", "\xe8\xbb\xb8", true);
    row("empty", "", false);
    row("digit in front", "1a", false);
    row("hyphen in front", "-a", false);
    row("dot in front", ".a", false);
    row("blank inside", "a b", false);
    row("blank behind", "a ", false);
    row("line break behind", "a\n", false);
    row("mark", "a>b", false);
    row("slash", "a/", false);
    row("quote", "a\"b", false);
    row("superscript digit", "a\xc2\xb2", false);
    row("ordinal mark", "\xc2\xaa", false);
}

void tst_CXmlAbstractVornFile::createNewDocumentNames()
{
    QFETCH(QString, name);
    QFETCH(bool, accepted);

    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QCOMPARE(file.createNewDocument(name, Version), accepted);
    QCOMPARE(file.domDocument().isNull(), !accepted);
    if (accepted) {
        // What was accepted can be read again.
        QString errorText;
        QVERIFY2(TestFile().open(file.bytes(), name, Version, errorText), qPrintable(errorText));
    }
}

void tst_CXmlAbstractVornFile::openBuffer()
{
    const MessageCatcher catcher;
    TestFile file;
    QString error = text("not touched");
    QVERIFY(file.openBytes(document(" <Device/>\n"), &error));
    QCOMPARE(file.root().firstChildElement().tagName(), text("Device"));
    QVERIFY(file.versionErrors.isEmpty());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_CXmlAbstractVornFile::openFile()
{
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), document(" <Device/>\n")));
    TestFile file;
    QString error;
    QVERIFY(file.open(path(), Type, Version, error));
    QCOMPARE(file.root().firstChildElement().tagName(), text("Device"));
    QVERIFY(catcher.messages().isEmpty());
    // The document is in memory: the file may go away.
    QVERIFY(QFile::remove(path()));
    QCOMPARE(file.bytes(), document(" <Device/>\n"));
}

void tst_CXmlAbstractVornFile::openFileFails_data()
{
    QTest::addColumn<QString>("relativePath");

    QTest::newRow("missing file") << text("missing.3deco");
    QTest::newRow("missing directory") << text("missing/a.3deco");
    QTest::newRow("directory in place of file") << text(".");
    QTest::newRow("name with place markers") << text("%1 %2.3deco");
}

void tst_CXmlAbstractVornFile::openFileFails()
{
    QFETCH(QString, relativePath);

    RecordingLog log;
    const MessageCatcher catcher;
    TestFile file(&log);
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(!file.open(path(relativePath), Type, Version, error));
    QVERIFY(file.domDocument().isNull());

    const QString origin = path(relativePath) + text(": ");
    QVERIFY2(error.startsWith(origin), qPrintable(error));
    QVERIFY(error.size() > origin.size());
    QCOMPARE(catcher.criticals(), QStringList{error});
    QVERIFY(catcher.warnings().isEmpty());
    QCOMPARE(catcher.messages().first().log, static_cast<ICLogfile *>(&log));
    QCOMPARE(log.entries().size(), 1);
    QCOMPARE(log.entries().first().second, error);
    QCOMPARE(Files::names(m_directory->path()), QStringList());
}

void tst_CXmlAbstractVornFile::wrongDocumentType_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("other type") << QByteArray("<VornDeviceSettings version=\"1.0\"/>");
    QTest::newRow("lower case") << QByteArray("<vorndeviceconfig version=\"1.0\"/>");
    QTest::newRow("one character short") << QByteArray("<VornDeviceConfi version=\"1.0\"/>");
    QTest::newRow("one character more") << QByteArray("<VornDeviceConfig2 version=\"1.0\"/>");
    QTest::newRow("with a prefix") << QByteArray("<a:VornDeviceConfig xmlns:a=\"u\"/>");
    QTest::newRow("below another root") << QByteArray("<R><VornDeviceConfig version=\"1.0\"/></R>");
}

void tst_CXmlAbstractVornFile::wrongDocumentType()
{
    QFETCH(QByteArray, bytes);

    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), bytes));
    TestFile file;
    QString error;
    QVERIFY(!file.open(path(), Type, Version, error));
    QVERIFY2(error.startsWith(path() + text(": ")), qPrintable(error));
    QVERIFY(error.contains(Type));
    QCOMPARE(catcher.criticals(), QStringList{error});
    QVERIFY(file.domDocument().isNull());
    // The type is looked at first: a foreign document has no version of ours.
    QVERIFY(file.versionErrors.isEmpty());
}

void tst_CXmlAbstractVornFile::version_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QStringList>("versionErrors");

    const auto row = [](const char *name, const char *attributes, const char *versionError) {
        QTest::newRow(name) << QByteArray(attributes)
                            << (*versionError == '\0' ? QStringList()
                                                      : QStringList{text(versionError)});
    };
    row("same", " version=\"1.0\"", "");
    row("lower", " version=\"0.9\"", "1.0/0.9");
    row("higher", " version=\"1.10\"", "1.0/1.10");
    row("same number in other words", " version=\"1\"", "1.0/1");
    row("blank behind", " version=\"1.0 \"", "1.0/1.0 ");
    row("no revision", " version=\"new\"", "1.0/new");
    row("empty", " version=\"\"", "1.0/");
    row("missing", "", "1.0/");
    row("attribute in other case", " Version=\"1.0\"", "1.0/");
}

void tst_CXmlAbstractVornFile::version()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QStringList, versionErrors);

    const MessageCatcher catcher;
    TestFile file;
    QString error;
    QVERIFY(
        file.openBytes("<VornDeviceConfig" + attributes + "><Device/></VornDeviceConfig>", &error));
    QCOMPARE(file.versionErrors, versionErrors);
    QVERIFY(catcher.messages().isEmpty());
    // Once accepted it is a document of the required version.
    QCOMPARE(file.root().attribute(text("version")), Version);
}

void tst_CXmlAbstractVornFile::versionRefused()
{
    const MessageCatcher catcher;
    TestFile file;
    file.acceptsVersions = false;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QString error;
    QVERIFY(!file.openBytes("<VornDeviceConfig version=\"2.0\"/>", &error));
    QCOMPARE(file.versionErrors, QStringList{text("1.0/2.0")});
    QVERIFY(!error.isEmpty());
    QVERIFY(file.domDocument().isNull());
    // Whoever refuses says so himself.
    QVERIFY(catcher.messages().isEmpty());
}

void tst_CXmlAbstractVornFile::failedOpenDropsDocument_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("malformed") << QByteArray("<VornDeviceConfig>");
    QTest::newRow("malformed at the end") << document(" <Device/>\n") + "x";
    QTest::newRow("other type") << QByteArray("<Other/>");
}

void tst_CXmlAbstractVornFile::failedOpenDropsDocument()
{
    QFETCH(QByteArray, bytes);

    const MessageCatcher catcher;
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QVERIFY(!file.openBytes(bytes));
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.existingDomElement(text("Device"), QDomElement()).isNull());
    QVERIFY(file.bytes().isEmpty());
    // A failure does not stick.
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QCOMPARE(file.bytes(), document(" <Device/>\n"));
}

void tst_CXmlAbstractVornFile::malformed_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    for (const Malformed &row : MalformedFiles) {
        QTest::newRow(row.name) << row.line << row.column;
    }
}

void tst_CXmlAbstractVornFile::malformed()
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

void tst_CXmlAbstractVornFile::everyMalformedFileIsTested()
{
    QStringList tested;
    for (const Malformed &row : MalformedFiles) {
        tested << text(row.name) + text(".3deco");
    }
    tested.sort();
    QCOMPARE(QDir(invalidDirectory()).entryList(QDir::Files, QDir::Name), tested);
}

void tst_CXmlAbstractVornFile::nesting_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("root alone") << 1 << true;
    QTest::newRow("deepest") << 256 << true;
    QTest::newRow("one too deep") << 257 << false;
    QTest::newRow("far too deep") << 200000 << false;
}

void tst_CXmlAbstractVornFile::nesting()
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

void tst_CXmlAbstractVornFile::encodings_data()
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

void tst_CXmlAbstractVornFile::encodings()
{
    QFETCH(QByteArray, bytes);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.getNodeValue(text("Name"), QDomElement()), text("\xc3\xbc"));
    QCOMPARE(file.bytes(), document(" <Name>\xc3\xbc</Name>\n"));
}

void tst_CXmlAbstractVornFile::survives_data()
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

void tst_CXmlAbstractVornFile::survives()
{
    QFETCH(QByteArray, bytes);

    TestFile file;
    QString error;
    QVERIFY2(file.openBytes(bytes, &error), qPrintable(error));
    QCOMPARE(file.bytes(), bytes);
}

void tst_CXmlAbstractVornFile::normalised_data()
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
    QTest::newRow("Windows line ends")
        << document(" <A>a\r\nb</A>\r\n") << document(" <A>a\nb</A>\n");
    QTest::newRow("line breaks in attributes are blanks")
        << document(" <A a=\"1\n2\t3\"/>\n") << document(" <A a=\"1 2 3\"/>\n");
}

void tst_CXmlAbstractVornFile::normalised()
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

void tst_CXmlAbstractVornFile::attributesAreSorted()
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

void tst_CXmlAbstractVornFile::textsSurvive_data()
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

void tst_CXmlAbstractVornFile::textsSurvive()
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

void tst_CXmlAbstractVornFile::layout()
{
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    CXMLMetaData data;
    data.setAuthor(text("A. Engineer"));
    data.setDate(QDate(2026, 1, 31));
    data.setComment(text("For the press"));
    file.setMetaData(data);
    const QDomElement device = file.domElement(text("Device"), QDomElement());
    file.setNodeValue(text("Name"), text("Press"), device);
    file.setNodeValue(text("Comment"), QString(), device);
    QCOMPARE(file.bytes(),
             document(" <Head>\n"
                      "  <Author>A. Engineer</Author>\n"
                      "  <Date>2026-01-31</Date>\n"
                      "  <Comment>For the press</Comment>\n"
                      " </Head>\n"
                      " <Device>\n"
                      "  <Name>Press</Name>\n"
                      "  <Comment/>\n"
                      " </Device>\n"));
}

void tst_CXmlAbstractVornFile::markupSetByHandle_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("writable");

    const auto row = [](const char *name, const char *kind, const char *value, bool writable) {
        QTest::newRow(name) << text(kind) << text(value) << writable;
    };
    row("comment", "comment", " c ", true);
    row("comment with a hyphen", "comment", "a-b", true);
    row("comment with two hyphens", "comment", "a--b", false);
    row("comment that ends in a hyphen", "comment", "a-", false);
    row("comment with a control character", "comment", "\x01", false);
    row("instruction", "instruction", "a=\"1\"", true);
    row("instruction with a question mark", "instruction", "a?b>", true);
    row("instruction with its end", "instruction", "a?>b", false);
    row("instruction with a control character", "instruction", "\x01", false);
    row("section with its end", "section", "a]]>b", true);
    row("section with a control character", "section", "\x01", false);
    row("element name", "element", "Name", true);
    row("element name with a blank", "element", "a b", false);
    row("element name with a mark", "element", "a>b", false);
    row("attribute name", "attribute", "name", true);
    row("attribute name with a blank", "attribute", "a b", false);
    row("attribute name with a quote", "attribute", "a\"", false);
}

void tst_CXmlAbstractVornFile::markupSetByHandle()
{
    QFETCH(QString, kind);
    QFETCH(QString, value);
    QFETCH(bool, writable);

    const MessageCatcher catcher;
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QDomDocument handle = file.domDocument();
    QDomElement root = file.root();
    if (kind == text("comment")) {
        root.appendChild(handle.createComment(value));
    } else if (kind == text("instruction")) {
        root.appendChild(handle.createProcessingInstruction(text("p"), value));
    } else if (kind == text("section")) {
        root.appendChild(handle.createCDATASection(value));
    } else if (kind == text("element")) {
        root.appendChild(handle.createElement(value));
    } else {
        root.setAttribute(value, text("1"));
    }

    // Either it is refused, or what is written reads back the same.
    const QByteArray before = "untouched";
    QByteArray bytes = before;
    QString error;
    QCOMPARE(file.save(bytes, error), writable);
    if (writable) {
        TestFile back;
        QVERIFY2(back.openBytes(bytes, &error), qPrintable(error));
        QCOMPARE(back.bytes(), bytes);
    } else {
        QCOMPARE(bytes, before);
        QCOMPARE(catcher.criticals(), QStringList{error});
    }
}

void tst_CXmlAbstractVornFile::unwritableText_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("null character") << QString(QChar(QChar::Null));
    QTest::newRow("start of heading") << text("\x01");
    QTest::newRow("backspace inside") << text("a\x08"
                                              "b");
    QTest::newRow("vertical tab") << text("\x0b");
    QTest::newRow("form feed") << text("\x0c");
    QTest::newRow("escape") << text("\x1b[0m");
    QTest::newRow("unit separator") << text("\x1f");
    QTest::newRow("high surrogate") << QString(QChar(0xd800));
    QTest::newRow("high surrogate before a letter") << QString(QChar(0xdbff)) + text("a");
    QTest::newRow("low surrogate") << QString(QChar(0xdc00));
    QTest::newRow("reversed pair") << QString(QChar(0xde00)) + QChar(0xd83d);
    QTest::newRow("high surrogate before a pair") << QChar(0xd800) + text("\xf0\x9f\x98\x80");
    QTest::newRow("U+FFFE") << QString(QChar(0xfffe));
    QTest::newRow("U+FFFF") << QString(QChar(0xffff));
}

void tst_CXmlAbstractVornFile::unwritableText()
{
    QFETCH(QString, value);

    RecordingLog log;
    for (const bool inAttribute : {false, true}) {
        const MessageCatcher catcher;
        const QByteArray old = "the old file\n";
        QVERIFY(Files::write(path(), old));
        TestFile file(&log);
        QVERIFY(file.createNewDocument(Type, Version));
        QDomElement element = file.domElement(text("Name"), QDomElement());
        if (inAttribute) {
            element.setAttribute(text("a"), value);
        } else {
            file.setNodeValue(element, value);
        }
        QString error;
        QVERIFY(!file.save(path(), error));
        QVERIFY2(error.startsWith(path() + text(": ")), qPrintable(error));
        QVERIFY(error.contains(text("Name")));
        QCOMPARE(catcher.criticals(), QStringList{error});
        QCOMPARE(catcher.messages().first().log, static_cast<ICLogfile *>(&log));

        QByteArray buffer = old;
        QVERIFY(!file.save(buffer, error));
        QCOMPARE(buffer, old);

        QCOMPARE(Files::read(path()), old);
        QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
        // The document itself stays.
        QCOMPARE(inAttribute ? element.attribute(text("a")) : file.getNodeValue(element), value);
    }
}

/** Searched from the beginning of the text for each of them, this would not end. */
void tst_CXmlAbstractVornFile::manyUnwritableCharacters()
{
    const int half = 500000;
    TestFile file;
    QVERIFY(file.openBytes(document("<Name/>")));
    file.setNodeValue(text("Name"),
                      QString(half, QLatin1Char('a')) + QString(half, QLatin1Char('\x01')),
                      QDomElement());
    const MessageCatcher catcher;
    QByteArray buffer;
    QString error;
    QVERIFY(!file.save(buffer, error));
    QVERIFY2(error.contains(text("'Name' contains the character U+0001")), qPrintable(error));
    QVERIFY(buffer.isEmpty());
}

void tst_CXmlAbstractVornFile::positions()
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

void tst_CXmlAbstractVornFile::positionsOfOtherElements()
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

void tst_CXmlAbstractVornFile::limitsOfSaving_data()
{
    QTest::addColumn<int>("fileSize");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("attributes");
    QTest::addColumn<int>("nodes");
    QTest::addColumn<int>("nameLength");
    QTest::addColumn<QString>("reason");

    QTest::newRow("all just met") << 146 << 2 << 3 << 9 << 16 << QString();
    QTest::newRow("file size") << 145 << 2 << 3 << 9 << 16 << text("than 145 bytes");
    QTest::newRow("depth") << 146 << 1 << 3 << 9 << 16 << text("more than 1 deep");
    QTest::newRow("attributes") << 146 << 2 << 2 << 9 << 16
                                << text("'Device' has more than 2 attrib");
    QTest::newRow("nodes") << 146 << 2 << 3 << 8 << 16 << text("more than 8 nodes");
    QTest::newRow("name") << 146 << 2 << 3 << 9 << 15 << text("more than 15 char");
}

/** What could not be read again is not written. */
void tst_CXmlAbstractVornFile::limitsOfSaving()
{
    QFETCH(int, fileSize);
    QFETCH(int, depth);
    QFETCH(int, attributes);
    QFETCH(int, nodes);
    QFETCH(int, nameLength);
    QFETCH(QString, reason);

    TestFile file;
    // Two elements, four attributes with that of the root, a text, a section and a comment.
    QVERIFY(file.openBytes(document("<Device a=\"\" b=\"\" c=\"\">d<![CDATA[]]><!----></Device>")));
    SXmlLimits limits;
    limits.fileSize = fileSize;
    limits.depth = depth;
    limits.attributes = attributes;
    limits.nodes = nodes;
    limits.nameLength = nameLength;
    file.setLimits(limits);
    const MessageCatcher catcher;
    QByteArray buffer = "as it was";
    QString error;
    QCOMPARE(file.save(buffer, error), reason.isEmpty());
    if (reason.isEmpty()) {
        QCOMPARE(buffer.size(), fileSize);
        QVERIFY(file.openBytes(buffer));
    } else {
        QVERIFY2(error.contains(reason), qPrintable(error));
        QCOMPARE(catcher.criticals(), QStringList{error});
        QCOMPARE(buffer, QByteArray("as it was"));
    }
}

void tst_CXmlAbstractVornFile::saveTwice()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <A b=\"2\" a=\"1\">x</A>\n")));
    QString error;
    QVERIFY(file.save(path(text("1")), error));
    QVERIFY(file.save(path(text("2")), error));
    QVERIFY(file.save(path(text("1")), error));
    QVERIFY(!Files::read(path(text("1"))).isEmpty());
    QCOMPARE(Files::read(path(text("1"))), Files::read(path(text("2"))));
    QCOMPARE(Files::read(path(text("1"))), file.bytes());

    TestFile reopened;
    QVERIFY(reopened.open(path(text("1")), Type, Version, error));
    QCOMPARE(reopened.bytes(), file.bytes());
}

void tst_CXmlAbstractVornFile::saveAfterChange_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no device") << QByteArray();
    QTest::newRow("empty device") << QByteArray(" <Device/>\n");
    QTest::newRow("device with blank text") << QByteArray(" <Device>\n </Device>\n");
    QTest::newRow("device with a comment alone")
        << QByteArray(" <Device>\n  <!-- c -->\n </Device>\n");
    QTest::newRow("device with an element") << QByteArray(" <Device>\n  <A/>\n </Device>\n");
}

void tst_CXmlAbstractVornFile::saveAfterChange()
{
    QFETCH(QByteArray, content);

    // A document that was changed and saved is saved the same way when it was read again.
    TestFile file;
    QVERIFY(file.openBytes(document(content)));
    file.domElement(text("B"), file.domElement(text("Device"), QDomElement()));
    const QByteArray saved = file.bytes();
    TestFile reopened;
    QVERIFY(reopened.openBytes(saved));
    QCOMPARE(reopened.bytes(), saved);
}

void tst_CXmlAbstractVornFile::saveReplacesFile()
{
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), QByteArray(100000, 'x')));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(file.save(path(), error));
    QCOMPARE(Files::read(path()), file.bytes());
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
    QVERIFY(catcher.messages().isEmpty());
}

void tst_CXmlAbstractVornFile::saveWithOtherName()
{
    TestFile file;
    QVERIFY(file.openBytes(Declaration
                           + "<!DOCTYPE VornDeviceConfig SYSTEM \"a.dtd\">\n"
                             "<VornDeviceConfig version=\"1.0\">\n"
                             " <VornDeviceConfig/>\n"
                             "</VornDeviceConfig>\n"));
    const QByteArray before = file.bytes();
    QString error;
    QVERIFY(file.save(path(), text("VornBackupConfig"), error));
    QCOMPARE(Files::read(path()),
             Declaration
                 + "<!DOCTYPE VornBackupConfig SYSTEM \"a.dtd\">\n"
                   "<VornBackupConfig version=\"1.0\">\n"
                   " <VornDeviceConfig/>\n"
                   "</VornBackupConfig>\n");
    QCOMPARE(file.root().tagName(), Type);
    QCOMPARE(file.bytes(), before);
}

void tst_CXmlAbstractVornFile::saveWithOtherNameFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << text("a b");
    QTest::newRow("digit in front") << text("1a");
    QTest::newRow("mark") << text("a><b");
}

void tst_CXmlAbstractVornFile::saveWithOtherNameFails()
{
    QFETCH(QString, name);

    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), "old"));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(!file.save(path(), name, error));
    QCOMPARE(catcher.criticals(), QStringList{error});
    QCOMPARE(Files::read(path()), QByteArray("old"));
}

void tst_CXmlAbstractVornFile::saveWithoutDocument()
{
    RecordingLog log;
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), "old"));
    TestFile file(&log);
    QString error;
    QVERIFY(!file.save(path(), error));
    QVERIFY2(error.startsWith(path() + text(": ")), qPrintable(error));
    QVERIFY(!file.save(path(), Type, error));
    QByteArray buffer = "old";
    QString bufferError;
    QVERIFY(!file.save(buffer, bufferError));

    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(buffer, QByteArray("old"));
    QVERIFY(!bufferError.isEmpty());
    QCOMPARE(catcher.criticals().size(), 3);
    QCOMPARE(catcher.criticals().last(), bufferError);
    QCOMPARE(log.entries().size(), 3);
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});

    QVERIFY(!file.save(path(text("new.3deco")), error));
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
}

void tst_CXmlAbstractVornFile::saveFails_data()
{
    QTest::addColumn<QString>("relativePath");

    QTest::newRow("missing directory") << text("missing/a.3deco");
    QTest::newRow("directory in place of file") << text("directory");
    QTest::newRow("file in place of directory") << text("file/a.3deco");
}

void tst_CXmlAbstractVornFile::saveFails()
{
    QFETCH(QString, relativePath);

    const MessageCatcher catcher;
    QVERIFY(QDir(m_directory->path()).mkdir(text("directory")));
    QVERIFY(Files::write(path(text("file")), "old"));
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QString error;
    QVERIFY(!file.save(path(relativePath), error));
    const QString origin = path(relativePath) + text(": ");
    QVERIFY2(error.startsWith(origin), qPrintable(error));
    QVERIFY(error.size() > origin.size());
    QCOMPARE(catcher.criticals(), QStringList{error});
    QCOMPARE(Files::names(m_directory->path()), (QStringList{text("directory"), text("file")}));
    QCOMPARE(Files::names(path(text("directory"))), QStringList());
    QCOMPARE(Files::read(path(text("file"))), QByteArray("old"));
    // The document is still there to be saved elsewhere.
    QVERIFY(file.save(path(text("elsewhere")), error));
    QCOMPARE(Files::read(path(text("elsewhere"))), document(" <Device/>\n"));
}

void tst_CXmlAbstractVornFile::saveOnFullDisk()
{
    const MessageCatcher catcher;
    const QByteArray old = document(" <Old/>\n");
    QVERIFY(Files::write(path(), old));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    file.setNodeValue(text("Name"), QString(100000, QLatin1Char('x')), QDomElement());
    QString error;
    bool saved = true;
    bool savedNew = true;
    {
        const FullDisk fullDisk(50000);
        saved = file.save(path(), error);
        savedNew = file.save(path(text("new.3deco")), error);
    }
    QVERIFY(!saved);
    QVERIFY(!savedNew);
    QCOMPARE(catcher.criticals().size(), 2);
    QCOMPARE(Files::read(path()), old);
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
}

void tst_CXmlAbstractVornFile::saveThroughLink()
{
    QVERIFY(QDir(m_directory->path()).mkdir(text("directory")));
    const QString target = path(text("directory/target.3deco"));
    QVERIFY(Files::write(target, "old"));
    QVERIFY(QFile::link(target, path(text("link.3deco"))));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(file.save(path(text("link.3deco")), error));
    QVERIFY(QFileInfo(path(text("link.3deco"))).isSymLink());
    QCOMPARE(Files::read(target), file.bytes());
    QCOMPARE(Files::names(path(text("directory"))), QStringList{text("target.3deco")});
}

void tst_CXmlAbstractVornFile::saveIntoReadOnlyDirectory()
{
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), QByteArray(1000, 'x')));
    const OrdinaryUser user(m_directory->path(), {text("a.3deco")});
    QVERIFY(user.isOk());
    const QFileDevice::Permissions all = QFile::permissions(m_directory->path());
    QVERIFY(
        QFile::setPermissions(m_directory->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    const bool savedOld = file.save(path(), error);
    const bool savedNew = file.save(path(text("new.3deco")), error);
    QVERIFY(QFile::setPermissions(m_directory->path(), all));

    QVERIFY(savedOld);
    QCOMPARE(Files::read(path()), file.bytes());
    QVERIFY(!savedNew);
    QCOMPARE(catcher.criticals().size(), 1);
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
}

void tst_CXmlAbstractVornFile::saveReadOnlyFile()
{
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), "old"));
    const OrdinaryUser user(m_directory->path(), {text("a.3deco")});
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(!file.save(path(), error));
    QCOMPARE(catcher.criticals(), QStringList{error});
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
}

void tst_CXmlAbstractVornFile::saveThatFailsAtTheLastStep()
{
    // In a sticky directory everybody may add files, but replace only their own: the new content is
    // complete beside the old, and cannot take its name.
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), "old"));
    QCOMPARE(chmod(QFile::encodeName(path()).constData(), 0666), 0);
    QCOMPARE(chmod(QFile::encodeName(m_directory->path()).constData(), 01777), 0);
    bool wasSuperUser = false;
    bool saved = false;
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    {
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        wasSuperUser = user.wasSuperUser();
        saved = file.save(path(), error);
    }
    if (!wasSuperUser) {
        QSKIP("Only the super-user can set up a file of somebody else.", 0);
    }
    QVERIFY(!saved);
    QCOMPARE(catcher.criticals(), QStringList{error});
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(Files::names(m_directory->path()), QStringList{text("a.3deco")});
}

void tst_CXmlAbstractVornFile::permissions_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("owner alone") << 0x6000;
    QTest::newRow("owner and group") << 0x6040;
    QTest::newRow("everybody reads") << 0x6044;
    QTest::newRow("everybody writes") << 0x6066;
}

void tst_CXmlAbstractVornFile::permissions()
{
    QFETCH(int, mode);
    const QFileDevice::Permissions wanted(mode);
    const QFileDevice::Permissions mask(0x7077);

    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    file.setPermissions(wanted);
    QCOMPARE(file.permissions(), wanted);
    QString error;
    QVERIFY(file.save(path(), error));
    QCOMPARE(QFile::permissions(path()) & mask, wanted);

    // An old file gets them, too.
    QVERIFY(Files::write(path(text("old")), "old"));
    QVERIFY(QFile::setPermissions(path(text("old")),
                                  QFileDevice::ReadOwner | QFileDevice::WriteOwner
                                      | QFileDevice::ExeOther));
    QVERIFY(file.save(path(text("old")), error));
    QCOMPARE(QFile::permissions(path(text("old"))) & mask, wanted);
}

void tst_CXmlAbstractVornFile::permissionsOfOldFileStay()
{
    const QFileDevice::Permissions mask(0x7077);
    const QFileDevice::Permissions old(0x6020);
    QVERIFY(Files::write(path(), "old"));
    QVERIFY(QFile::setPermissions(path(), old));
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QString error;
    QVERIFY(file.save(path(), error));
    QCOMPARE(QFile::permissions(path()) & mask, old);
}

void tst_CXmlAbstractVornFile::metaData()
{
    CXMLMetaData data;
    data.setAuthor(text("A. Engineer"));
    data.setDate(QDate(2026, 1, 31));
    data.setComment(text(" For the\npress "));

    TestFile file;
    file.setMetaData(data);
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.metaData().isNull());

    QVERIFY(file.openBytes(document(" <!-- c -->\n <Device/>\n")));
    file.setMetaData(data);
    QCOMPARE(file.metaData(), data);
    QCOMPARE(file.root().firstChild().nodeName(), text("Head"));

    TestFile back;
    QVERIFY(back.openBytes(file.bytes()));
    QCOMPARE(back.metaData(), data);

    // A second time changes it in place.
    data.setAuthor(QString());
    data.setDate(QDate());
    back.setMetaData(data);
    QCOMPARE(back.metaData(), data);
    QCOMPARE(back.root().elementsByTagName(text("Head")).size(), 1);
}

void tst_CXmlAbstractVornFile::metaDataOfElement()
{
    CXMLMetaData data;
    data.setComment(text("of the device"));
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device>\n  <Name/>\n </Device>\n")));
    const QDomElement device = file.existingDomElement(text("Device"), QDomElement());
    bool ok = true;
    QVERIFY(file.metaData(device, &ok).isNull());
    QVERIFY(!ok);

    file.setMetaData(data, device);
    QCOMPARE(file.metaData(device, &ok), data);
    QVERIFY(ok);
    QCOMPARE(file.metaData(device, nullptr), data);
    QCOMPARE(device.firstChildElement().tagName(), text("Head"));
    // That of the document is another one.
    QVERIFY(file.metaData().isNull());
    QVERIFY(file.metaData(QDomElement(), &ok).isNull());
    QVERIFY(!ok);
}

void tst_CXmlAbstractVornFile::metaDataWithoutHead()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Author>x</Author>\n")));
    QVERIFY(file.metaData().isNull());
    bool ok = false;
    QVERIFY(file.openBytes(document(" <Head>\n  <Date>yesterday</Date>\n </Head>\n")));
    QVERIFY(file.metaData(QDomElement(), &ok).isNull());
    QVERIFY(ok);
}

void tst_CXmlAbstractVornFile::metaDataKeepsUnknown()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Head a=\"1\">\n"
                                    "  <Tool>x</Tool>\n"
                                    "  <Author b=\"2\">A</Author>\n"
                                    "  <!-- c -->\n"
                                    " </Head>\n")));
    CXMLMetaData data;
    data.setAuthor(text("B"));
    file.setMetaData(data);
    QCOMPARE(file.bytes(),
             document(" <Head a=\"1\">\n"
                      "  <Tool>x</Tool>\n"
                      "  <Author b=\"2\">B</Author>\n"
                      "  <!-- c -->\n"
                      "  <Date/>\n"
                      "  <Comment/>\n"
                      " </Head>\n"));
}

void tst_CXmlAbstractVornFile::elements()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <A>1</A>\n <A>2</A>\n <B>\n  <C/>\n </B>\n")));
    QCOMPARE(file.existingDomElement(text("A"), QDomElement()).text(), text("1"));
    QVERIFY(file.existingDomElement(text("C"), QDomElement()).isNull());
    const QDomElement b = file.existingDomElement(text("B"), file.root());
    QCOMPARE(file.existingDomElement(text("C"), b).tagName(), text("C"));

    QCOMPARE(file.domElement(text("A"), QDomElement()).text(), text("1"));
    const QDomElement created = file.domElement(text("D"), QDomElement());
    QCOMPARE(created.parentNode().toElement(), file.root());
    QCOMPARE(file.domElement(text("D"), QDomElement()), created);
    QCOMPARE(file.domElement(text("E"), b).parentNode().toElement(), b);
    QCOMPARE(file.bytes(), document(" <A>1</A>\n <A>2</A>\n <B>\n  <C/>\n  <E/>\n </B>\n <D/>\n"));
}

void tst_CXmlAbstractVornFile::elementsWithoutDocument()
{
    TestFile file;
    QVERIFY(file.domElement(text("A"), QDomElement()).isNull());
    QVERIFY(file.existingDomElement(text("A"), QDomElement()).isNull());
    file.setNodeValue(text("A"), text("1"), QDomElement());
    file.setNodeValue(QDomElement(), text("1"));
    file.setNodeValue(QDomElement(), 1);
    QVERIFY(file.getNodeValue(text("A"), QDomElement()).isEmpty());
    QVERIFY(file.getNodeValue(QDomElement()).isEmpty());
    QVERIFY(file.domDocument().isNull());
}

void tst_CXmlAbstractVornFile::nodeValues()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <A b=\"1\">old<!-- c --><B>below</B></A>\n")));
    const QDomElement a = file.domElement(text("A"), QDomElement());
    QCOMPARE(file.getNodeValue(a), text("old"));
    QCOMPARE(file.getNodeValue(text("A"), QDomElement()), text("old"));
    QCOMPARE(file.getNodeValue(text("B"), a), text("below"));
    QVERIFY(file.getNodeValue(text("C"), a).isEmpty());

    file.setNodeValue(a, text("new"));
    file.setNodeValue(text("C"), text("created"), a);
    file.setNodeValue(file.domElement(text("B"), a), std::numeric_limits<int>::min());
    QCOMPARE(file.bytes(),
             document(" <A b=\"1\">new<!-- c --><B>-2147483648</B><C>created</C></A>\n"));
    file.setNodeValue(text("A"), QString(), QDomElement());
    QVERIFY(file.getNodeValue(a).isEmpty());
    QCOMPARE(file.getNodeValue(text("B"), a), text("-2147483648"));
}

void tst_CXmlAbstractVornFile::gettersCreateNothing()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <A/>\n")));
    const QByteArray before = file.bytes();
    bool ok = true;
    file.metaData();
    file.metaData(file.root(), &ok);
    file.existingDomElement(text("B"), QDomElement());
    file.getNodeValue(text("B"), QDomElement());
    file.getNodeValue(text("Head"), file.existingDomElement(text("A"), QDomElement()));
    file.domDocument();
    QCOMPARE(file.bytes(), before);
}

QTEST_GUILESS_MAIN(tst_CXmlAbstractVornFile)
#include "tst_cxmlabstractvornfile.moc"
