#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/RecordingLog.h"
#include "support/SampleXmlFile.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

using namespace SampleXmlFile;

/** What is written, and what stays when it cannot be. */
class tst_cxmlabstractvornfile_saving : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void layout();
    void markupSetByHandle_data();
    void markupSetByHandle();
    void unwritableText_data();
    void unwritableText();
    void manyUnwritableCharacters();

    void limitsOfSaving_data();
    void limitsOfSaving();

    void sectionsAreCountedAsTheyAreSplit();
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

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cxmlabstractvornfile_saving::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cxmlabstractvornfile_saving::layout()
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

void tst_cxmlabstractvornfile_saving::markupSetByHandle_data()
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

void tst_cxmlabstractvornfile_saving::markupSetByHandle()
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

void tst_cxmlabstractvornfile_saving::unwritableText_data()
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

void tst_cxmlabstractvornfile_saving::unwritableText()
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
void tst_cxmlabstractvornfile_saving::manyUnwritableCharacters()
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

void tst_cxmlabstractvornfile_saving::limitsOfSaving_data()
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
void tst_cxmlabstractvornfile_saving::limitsOfSaving()
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

void tst_cxmlabstractvornfile_saving::sectionsAreCountedAsTheyAreSplit()
{
    TestFile file;
    QVERIFY(file.openBytes(document(" <Device/>\n")));
    file.root().firstChildElement().appendChild(
        file.domDocument().createCDATASection(text("a]]>b]]>c")));
    // The root and its attribute, an element and three sections.
    SXmlLimits limits;
    limits.nodes = 6;
    file.setLimits(limits);
    const QByteArray saved = file.bytes();
    QCOMPARE(saved.count("<![CDATA["), 3);
    TestFile reopened;
    reopened.setLimits(limits);
    QVERIFY(reopened.openBytes(saved));

    limits.nodes = 5;
    file.setLimits(limits);
    const MessageCatcher catcher;
    QByteArray buffer;
    QString error;
    QVERIFY(!file.save(buffer, error));
    QVERIFY2(error.contains(text("more than 5 nodes")), qPrintable(error));
}

void tst_cxmlabstractvornfile_saving::saveTwice()
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

void tst_cxmlabstractvornfile_saving::saveAfterChange_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no device") << QByteArray();
    QTest::newRow("empty device") << QByteArray(" <Device/>\n");
    QTest::newRow("device with blank text") << QByteArray(" <Device>\n </Device>\n");
    QTest::newRow("device with a comment alone")
        << QByteArray(" <Device>\n  <!-- c -->\n </Device>\n");
    QTest::newRow("device with an element") << QByteArray(" <Device>\n  <A/>\n </Device>\n");
}

void tst_cxmlabstractvornfile_saving::saveAfterChange()
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

void tst_cxmlabstractvornfile_saving::saveReplacesFile()
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

void tst_cxmlabstractvornfile_saving::saveWithOtherName()
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

void tst_cxmlabstractvornfile_saving::saveWithOtherNameFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << text("a b");
    QTest::newRow("digit in front") << text("1a");
    QTest::newRow("mark") << text("a><b");
}

void tst_cxmlabstractvornfile_saving::saveWithOtherNameFails()
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

void tst_cxmlabstractvornfile_saving::saveWithoutDocument()
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

void tst_cxmlabstractvornfile_saving::saveFails_data()
{
    QTest::addColumn<QString>("relativePath");

    QTest::newRow("missing directory") << text("missing/a.3deco");
    QTest::newRow("directory in place of file") << text("directory");
    QTest::newRow("file in place of directory") << text("file/a.3deco");
}

void tst_cxmlabstractvornfile_saving::saveFails()
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

void tst_cxmlabstractvornfile_saving::saveOnFullDisk()
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

void tst_cxmlabstractvornfile_saving::saveThroughLink()
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

void tst_cxmlabstractvornfile_saving::saveIntoReadOnlyDirectory()
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

void tst_cxmlabstractvornfile_saving::saveReadOnlyFile()
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

void tst_cxmlabstractvornfile_saving::saveThatFailsAtTheLastStep()
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

void tst_cxmlabstractvornfile_saving::permissions_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("owner alone") << 0x6000;
    QTest::newRow("owner and group") << 0x6040;
    QTest::newRow("everybody reads") << 0x6044;
    QTest::newRow("everybody writes") << 0x6066;
}

void tst_cxmlabstractvornfile_saving::permissions()
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

void tst_cxmlabstractvornfile_saving::permissionsOfOldFileStay()
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

REGISTER_GUILESS_TEST(tst_cxmlabstractvornfile_saving)
#include "tst_cxmlabstractvornfile_saving.moc"
