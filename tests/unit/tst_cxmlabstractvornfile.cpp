#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"
#include "support/SampleXmlFile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace SampleXmlFile;

class tst_cxmlabstractvornfile : public QObject
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

void tst_cxmlabstractvornfile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cxmlabstractvornfile::withoutDocument()
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

void tst_cxmlabstractvornfile::createNewDocument()
{
    TestFile file;
    QVERIFY(file.createNewDocument(Type, Version));
    QCOMPARE(file.bytes(), Declaration + "<VornDeviceConfig version=\"1.0\"/>\n");
    QVERIFY(file.metaData().isNull());
}

void tst_cxmlabstractvornfile::createNewDocumentReplaces()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    QVERIFY(file.createNewDocument(text("Other"), text("2.5")));
    QCOMPARE(file.bytes(), Declaration + "<Other version=\"2.5\"/>\n");
}

void tst_cxmlabstractvornfile::createNewDocumentNames_data()
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

void tst_cxmlabstractvornfile::createNewDocumentNames()
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

void tst_cxmlabstractvornfile::openBuffer()
{
    const MessageCatcher catcher;
    TestFile file;
    QString error = text("not touched");
    QVERIFY(file.openBytes(document(" <Device/>\n"), &error));
    QCOMPARE(file.root().firstChildElement().tagName(), text("Device"));
    QVERIFY(file.versionErrors.isEmpty());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cxmlabstractvornfile::openFile()
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

void tst_cxmlabstractvornfile::openFileFails_data()
{
    QTest::addColumn<QString>("relativePath");

    QTest::newRow("missing file") << text("missing.3deco");
    QTest::newRow("missing directory") << text("missing/a.3deco");
    QTest::newRow("directory in place of file") << text(".");
    QTest::newRow("name with place markers") << text("%1 %2.3deco");
}

void tst_cxmlabstractvornfile::openFileFails()
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

void tst_cxmlabstractvornfile::wrongDocumentType_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("other type") << QByteArray("<VornDeviceSettings version=\"1.0\"/>");
    QTest::newRow("lower case") << QByteArray("<vorndeviceconfig version=\"1.0\"/>");
    QTest::newRow("one character short") << QByteArray("<VornDeviceConfi version=\"1.0\"/>");
    QTest::newRow("one character more") << QByteArray("<VornDeviceConfig2 version=\"1.0\"/>");
    QTest::newRow("with a prefix") << QByteArray("<a:VornDeviceConfig xmlns:a=\"u\"/>");
    QTest::newRow("below another root") << QByteArray("<R><VornDeviceConfig version=\"1.0\"/></R>");
}

void tst_cxmlabstractvornfile::wrongDocumentType()
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

void tst_cxmlabstractvornfile::version_data()
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

void tst_cxmlabstractvornfile::version()
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

void tst_cxmlabstractvornfile::versionRefused()
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

void tst_cxmlabstractvornfile::failedOpenDropsDocument_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("malformed") << QByteArray("<VornDeviceConfig>");
    QTest::newRow("malformed at the end") << document(" <Device/>\n") + "x";
    QTest::newRow("other type") << QByteArray("<Other/>");
}

void tst_cxmlabstractvornfile::failedOpenDropsDocument()
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

void tst_cxmlabstractvornfile::metaData()
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

void tst_cxmlabstractvornfile::metaDataOfElement()
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

void tst_cxmlabstractvornfile::metaDataWithoutHead()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Author>x</Author>\n")));
    QVERIFY(file.metaData().isNull());
    bool ok = false;
    QVERIFY(file.openBytes(document(" <Head>\n  <Date>yesterday</Date>\n </Head>\n")));
    QVERIFY(file.metaData(QDomElement(), &ok).isNull());
    QVERIFY(ok);
}

void tst_cxmlabstractvornfile::metaDataKeepsUnknown()
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

void tst_cxmlabstractvornfile::elements()
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

void tst_cxmlabstractvornfile::elementsWithoutDocument()
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

void tst_cxmlabstractvornfile::nodeValues()
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

void tst_cxmlabstractvornfile::gettersCreateNothing()
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

QTEST_GUILESS_MAIN(tst_cxmlabstractvornfile)
#include "tst_cxmlabstractvornfile.moc"
