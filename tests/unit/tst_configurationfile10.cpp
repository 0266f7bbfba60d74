#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/FullDocument.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace FullDocument;

namespace {

const QString Context = QStringLiteral("CDeviceConfigurationFile10");
const QString NotOpened = QStringLiteral("The device configuration file could not be opened: %1");

const QString NotLoaded =
    QStringLiteral("The device configuration file buffer could not be loaded.");

const QString PathRemoved =
    QStringLiteral("The project path of '%1' is invalid and will be removed.");

} // namespace

class tst_configurationfile10 : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void fresh();
    void createNewDocument_data();
    void createNewDocument();
    void createNewDocumentReplaces();

    void open();
    void load();
    void openThroughInterface();
    void openFails_data();
    void openFails();
    void loadFails_data();
    void loadFails();
    void failureLeavesNullHandle();
    void failureLeavesHandlesOfCallers();
    void failureDoesNotStick();

    void save();
    void saveFails_data();
    void saveFails();
    void saveKeepsOldFile();

    void translations_data();
    void translations();
    void translationOfBase();

    void projectPaths_data();
    void projectPaths();
    void projectPathMessages();

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_configurationfile10::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_configurationfile10::fresh()
{
    RecordingLog log;
    CDeviceConfigurationFile10 file(&log);
    QCOMPARE(file.logfile(), static_cast<ICLogfile *>(&log));
    QCOMPARE(file.requiredFileVersion(), u"1.0"_s);
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_FAILURE);
    QVERIFY(isWithoutDocument(file));
}

void tst_configurationfile10::createNewDocument_data()
{
    QTest::addColumn<bool>("withLog");
    QTest::addColumn<QString>("author");

    QTest::newRow("no log") << false << QString();
    QTest::newRow("author") << true << u"A. <Engineer>"_s;
    QTest::newRow("log without author") << true << QString();
}

void tst_configurationfile10::createNewDocument()
{
    QFETCH(bool, withLog);
    QFETCH(QString, author);

    RecordingLog log(author);
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(withLog ? &log : nullptr);
    QVERIFY(file.createNewDocument());

    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(file.metaData().comment(), u"Device Configuration File"_s);
    QCOMPARE(file.metaData().author(), author);
    // The same on every day.
    QVERIFY(file.metaData().date().isNull());

    // Nothing but the meta data.
    QDomElement root = file.domDocument().documentElement();
    QCOMPARE(root.tagName(), u"VornDeviceConfig"_s);
    QCOMPARE(root.attribute(u"version"_s), u"1.0"_s);
    QCOMPARE(root.attributes().size(), 1);
    QCOMPARE(root.childNodes().size(), 1);
    root.removeChild(root.firstChild());
    QCOMPARE(bytesOf(file), emptyDocument());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_configurationfile10::createNewDocumentReplaces()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    QVERIFY(file.createNewDocument());
    QVERIFY(file.findDeviceElement().isNull());
    QVERIFY(file.findDescriptionElement().isNull());
    QCOMPARE(file.metaData().author(), QString());
}

void tst_configurationfile10::open()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(dataPath(u"valid/full.3deco"_s)));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(bytesOf(file), fullDocument());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_configurationfile10::load()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(bytesOf(file), fullDocument());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_configurationfile10::openThroughInterface()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file->createNewDocument());
    QVERIFY(file->setConfiguration(SampleConfiguration::device()));
    QVERIFY(file->save(path()));
    const std::unique_ptr<ICDeviceConfigurationFile> other(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(other->open(path()));
    CDeviceElement device;
    QVERIFY(other->configuration(device));
    QVERIFY(device == SampleConfiguration::device());
    QVERIFY(other->load(fullDocument()));
    QCOMPARE(other->requiredFileVersion(), u"1.0"_s);
    QCOMPARE(other->currentFileVersion(), u"1.0"_s);
}

void tst_configurationfile10::openFails_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("empty path") << u""_s;
    QTest::newRow("null path") << QString();
    QTest::newRow("missing file") << u"/missing/DeviceConfiguration.3deco"_s;
    QTest::newRow("place markers") << u"/missing/%1 %2"_s;
    QTest::newRow("directory") << dataPath(u"valid"_s);
    const QDir invalid(dataPath(u"invalid"_s));
    for (const QString &name : invalid.entryList(QDir::Files, QDir::Name)) {
        QTest::newRow(qPrintable(name)) << invalid.filePath(name);
    }
}

void tst_configurationfile10::openFails()
{
    QFETCH(QString, fileName);

    RecordingLog log;
    for (const bool holdsDocument : {false, true}) {
        CDeviceConfigurationFile10 file(&log);
        if (holdsDocument) {
            QVERIFY(file.load(fullDocument()));
        }
        const MessageCatcher catcher;
        QVERIFY(!file.open(fileName));
        QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_FAILURE);
        QVERIFY(!catcher.criticals().isEmpty());
        QCOMPARE(catcher.criticals().last(), NotOpened.arg(fileName));
        QCOMPARE(catcher.criticals().size(), fileName.isEmpty() ? 1 : 2);
        QVERIFY(catcher.warnings().isEmpty());
        for (const MessageCatcher::Message &message : catcher.messages()) {
            QCOMPARE(message.log, static_cast<ICLogfile *>(&log));
        }
        QVERIFY(isWithoutDocument(file));
    }
}

void tst_configurationfile10::loadFails_data()
{
    QTest::addColumn<QByteArray>("buffer");

    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no XML") << QByteArray("KEY=value");
    QTest::newRow("cut off") << fullDocument().chopped(2);
    QTest::newRow("other document type") << QByteArray("<VornDeviceSettings version=\"1.0\"/>");
    QTest::newRow("zero bytes behind") << emptyDocument() + QByteArray(2, '\0');
}

void tst_configurationfile10::loadFails()
{
    QFETCH(QByteArray, buffer);

    RecordingLog log;
    for (const bool holdsDocument : {false, true}) {
        CDeviceConfigurationFile10 file(&log);
        if (holdsDocument) {
            QVERIFY(file.load(fullDocument()));
        }
        const MessageCatcher catcher;
        QVERIFY(!file.load(buffer));
        QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_FAILURE);
        QVERIFY(!catcher.criticals().isEmpty());
        QCOMPARE(catcher.criticals().last(), NotLoaded);
        QVERIFY(catcher.warnings().isEmpty());
        for (const MessageCatcher::Message &message : catcher.messages()) {
            QCOMPARE(message.log, static_cast<ICLogfile *>(&log));
        }
        QVERIFY(isWithoutDocument(file));
    }
}

void tst_configurationfile10::failureLeavesNullHandle()
{
    // Whatever the reason, the handle on the document is null when there is none.
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    QVERIFY(!file.open(u"/missing"_s));
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.load(fullDocument()));
    QVERIFY(!file.open(QString()));
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.load(fullDocument()));
    QVERIFY(!file.load(QByteArray()));
    QVERIFY(file.domDocument().isNull());
}

void tst_configurationfile10::failureLeavesHandlesOfCallers()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    const QDomDocument document = file.domDocument();
    QVERIFY(!file.open(QString()));
    QVERIFY(!document.documentElement().firstChildElement(u"Device"_s).isNull());
}

void tst_configurationfile10::failureDoesNotStick()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(!file.open(QString()));
    QVERIFY(file.load(fullDocument()));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QVERIFY(!file.load(QByteArray()));
    QVERIFY(file.open(dataPath(u"valid/full.3deco"_s)));
    QCOMPARE(bytesOf(file), fullDocument());
    QVERIFY(!file.open(u"/missing"_s));
    QVERIFY(file.createNewDocument());
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
}

void tst_configurationfile10::save()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    file.setCurrentFileVersion(u"0.5"_s);
    QVERIFY(file.save(path()));
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(Files::read(path()), fullDocument());
    QVERIFY(file.save(path()));
    QCOMPARE(Files::read(path()), fullDocument());
    QCOMPARE(Files::names(m_directory->path()), QStringList{u"a.3deco"_s});
    QVERIFY(catcher.messages().isEmpty());
}

void tst_configurationfile10::saveFails_data()
{
    QTest::addColumn<QString>("relativePath");
    QTest::addColumn<bool>("hasDocument");

    QTest::newRow("no document") << u"a.3deco"_s << false;
    QTest::newRow("missing directory") << u"missing/a.3deco"_s << true;
    QTest::newRow("directory") << u"."_s << true;
}

void tst_configurationfile10::saveFails()
{
    QFETCH(QString, relativePath);
    QFETCH(bool, hasDocument);

    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(&log);
    if (hasDocument) {
        QVERIFY(file.load(fullDocument()));
    }
    QVERIFY(!file.save(path(relativePath)));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_FAILURE);
    QCOMPARE(catcher.criticals().size(), 1);
    QVERIFY(catcher.criticals().constFirst().startsWith(path(relativePath)));
    QCOMPARE(catcher.messages().constFirst().log, static_cast<ICLogfile *>(&log));
    QCOMPARE(Files::names(m_directory->path()), QStringList());
    // What was in hand still is.
    QCOMPARE(bytesOf(file), hasDocument ? fullDocument() : QByteArray());
}

void tst_configurationfile10::saveKeepsOldFile()
{
    const MessageCatcher catcher;
    QVERIFY(Files::write(path(), fullDocument()));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(!file.save(path()));
    QVERIFY(file.open(path()));
    QVERIFY(file.setExecutionPlugin(u"a\x01"_s));
    QVERIFY(!file.save(path()));
    QCOMPARE(Files::read(path()), fullDocument());
    QCOMPARE(Files::names(m_directory->path()), QStringList{u"a.3deco"_s});
}

void tst_configurationfile10::translations_data()
{
    QTest::addColumn<QString>("occasion");
    QTest::addColumn<QString>("message");

    QTest::newRow("open") << u"open"_s << NotOpened.arg(u"/missing"_s);
    QTest::newRow("load") << u"load"_s << NotLoaded;
    QTest::newRow("previous version") << u"previous"_s << Previous;
    QTest::newRow("later version") << u"later"_s << Later;
    QTest::newRow("project path") << u"path"_s << PathRemoved.arg(u"odict.xml"_s);
}

void tst_configurationfile10::translations()
{
    QFETCH(QString, occasion);
    QFETCH(QString, message);

    const MarkingTranslator translator(Context.toLatin1());
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    if (occasion == u"open"_s) {
        QVERIFY(!file.open(u"/missing"_s));
    } else if (occasion == u"load"_s) {
        QVERIFY(!file.load(QByteArray()));
    } else if (occasion == u"previous"_s) {
        QVERIFY(file.load(documentOfVersion(" version=\"0.1\"")));
    } else if (occasion == u"later"_s) {
        QVERIFY(file.load(documentOfVersion(" version=\"2\"")));
    } else {
        QVERIFY(file.load("<VornDeviceConfig version=\"1.0\"><Device><Name>Press</Name><Config>"
                          "<Dictionary><File><Name>odict.xml</Name><ProjectDir>Other</ProjectDir>"
                          "</File></Dictionary></Config></Device></VornDeviceConfig>"));
        CDeviceElement device;
        QVERIFY(file.configuration(device));
    }
    QCOMPARE(catcher.messages().last().text, QStringLiteral("<%1>").arg(message));
}

void tst_configurationfile10::translationOfBase()
{
    const MarkingTranslator translator("CDeviceConfigurationFile");
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    file.CDeviceConfigurationFileBase::handleVersionError(u"1.0"_s, u"0.9"_s);
    file.CDeviceConfigurationFileBase::handleVersionError(u"1.0"_s, u"1.1"_s);
    file.handleVersionError(u"1.0"_s, u"1.1"_s);
    QCOMPARE(catcher.warnings(),
             (QStringList{u"<The device configuration file was created with a previous version>"_s,
                          u"<The device configuration file was created with a later version>"_s,
                          Later}));
}

void tst_configurationfile10::projectPaths_data()
{
    QTest::addColumn<QString>("deviceName");
    QTest::addColumn<QString>("projectPath");
    QTest::addColumn<bool>("valid");

    QTest::newRow("the device's directory") << u"Press"_s << u"Press/"_s << true;
    QTest::newRow("without final separator") << u"Press"_s << u"Press"_s << true;
    QTest::newRow("below it") << u"Press"_s << u"Press/velkor/conf/"_s << true;
    QTest::newRow("with back-slashes") << u"Press"_s << u"Press\\conf"_s << true;
    QTest::newRow("no path") << u"Press"_s << QString() << true;
    QTest::newRow("device without name") << QString() << u"Other/"_s << true;
    QTest::newRow("name with blanks") << u"The Press 1"_s << u"The Press 1/conf/"_s << true;
    QTest::newRow("name that is a pattern") << u"P.*[1]"_s << u"P.*[1]/conf/"_s << true;

    QTest::newRow("other device") << u"Press"_s << u"Other/conf/"_s << false;
    QTest::newRow("lower case") << u"Press"_s << u"press/conf/"_s << false;
    QTest::newRow("name that begins the same") << u"Press"_s << u"Press2/conf/"_s << false;
    QTest::newRow("one character short") << u"Press"_s << u"Pres/"_s << false;
    QTest::newRow("absolute") << u"Press"_s << u"/Press/conf/"_s << false;
    QTest::newRow("below another directory") << u"Press"_s << u"a/Press/"_s << false;
    QTest::newRow("blank in front") << u"Press"_s << u" Press/"_s << false;
    QTest::newRow("name as a pattern") << u"P.*"_s << u"Press/"_s << false;
}

void tst_configurationfile10::projectPaths()
{
    QFETCH(QString, deviceName);
    QFETCH(QString, projectPath);
    QFETCH(bool, valid);

    CDeviceElement device;
    device.setName(deviceName);
    const CFileElement odict =
        SampleConfiguration::file(u"odict.xml"_s, u"c"_s, u"/d/"_s, projectPath);
    const CFileElement faultText =
        SampleConfiguration::file(u"%1 fault.xml"_s, u"c"_s, u"/d/"_s, projectPath);
    device.setOdictFile(odict);
    device.setFaultTextFile(faultText);
    device.setAdditionalFiles({odict});
    device.setOpcUaFiles({odict});
    device.setEtherCatMasterFile(odict);
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    const QByteArray before = bytesOf(file);

    const MessageCatcher catcher;
    CDeviceElement read;
    QVERIFY(file.configuration(read));
    if (valid) {
        QVERIFY(catcher.messages().isEmpty());
        QVERIFY(read == device);
    } else {
        QCOMPARE(
            catcher.warnings(),
            (QStringList{PathRemoved.arg(u"odict.xml"_s), PathRemoved.arg(u"%1 fault.xml"_s)}));
        QVERIFY(catcher.criticals().isEmpty());
        // Only the path goes; the other kinds of files keep theirs.
        CDeviceElement expected = device;
        CFileElement withoutPath = odict;
        withoutPath.setProjectPath(QString());
        expected.setOdictFile(withoutPath);
        withoutPath.setFileName(faultText.fileName());
        expected.setFaultTextFile(withoutPath);
        QVERIFY(read == expected);
    }
    // The document is as it was, and the single getters tell what stands in it.
    QCOMPARE(bytesOf(file), before);
    QVERIFY(file.odictFile() == odict);
    QVERIFY(file.faultTextFile() == faultText);
}

void tst_configurationfile10::projectPathMessages()
{
    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(&log);
    CDeviceElement device;
    device.setName(u"Press"_s);
    device.setFaultTextFile(SampleConfiguration::file(u"f.xml"_s, QString(), QString(), u"x"_s));
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    QVERIFY(file.configuration(device));
    QCOMPARE(catcher.messages().size(), 1);
    QCOMPARE(catcher.messages().constFirst().log, static_cast<ICLogfile *>(&log));
    QCOMPARE(log.entries().constFirst().second, PathRemoved.arg(u"f.xml"_s));
}

REGISTER_GUILESS_TEST(tst_configurationfile10)
#include "tst_configurationfile10.moc"
