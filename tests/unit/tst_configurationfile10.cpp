#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString Context = QStringLiteral("CDeviceConfigurationFile10");

const QString NotOpened = QStringLiteral("The device configuration file could not be opened: %1");
const QString NotLoaded =
    QStringLiteral("The device configuration file buffer could not be loaded.");
const QString Previous =
    QStringLiteral("The configuration file was created with a previous version");
const QString Later = QStringLiteral("The configuration file was created with a later version");
const QString PathRemoved =
    QStringLiteral("The project path of '%1' is invalid and will be removed.");

QByteArray bytesOf(CXmlAbstractVornFile &file)
{
    QByteArray bytes;
    QString error;
    return file.save(bytes, error) ? bytes : QByteArray();
}

QString dataPath(const QString &name)
{
    return QStringLiteral(VRN_TEST_DATA_DIR "/configuration/") + name;
}

QByteArray fullDocument()
{
    return Files::read(dataPath(u"valid/full.3deco"_s));
}

QByteArray emptyDocument()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\"/>\n";
}

QByteArray documentOfVersion(const QByteArray &attribute)
{
    return "<VornDeviceConfig" + attribute
        + "><Device><Name>Press</Name></Device></VornDeviceConfig>";
}

/** Whether the file holds no document, and says so in every way it can. */
bool isWithoutDocument(CDeviceConfigurationFile10 &file)
{
    CDeviceConfigurationFile10 fresh(nullptr);
    const MessageCatcher catcher;
    return !file.domDocument().hasChildNodes() && bytesOf(file).isEmpty()
        && file.currentFileVersion().isEmpty() && file.metaData().isNull()
        && ConfigurationItems::read(file) == ConfigurationItems::read(fresh);
}

} // namespace

class tst_ConfigurationFile10 : public QObject
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

    void versions_data();
    void versions();
    void versionIsSaved();
    void versionErrorDirectly_data();
    void versionErrorDirectly();
    void versionErrorOfBase_data();
    void versionErrorOfBase();

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

    void gettersCreateNothing_data();
    void gettersCreateNothing();
    void gettersWithoutDocument();
    void settersWithoutDocument_data();
    void settersWithoutDocument();
    void settersFromNothing();
    void configurationDetour();

    void description();
    void singleFiles_data();
    void singleFiles();
    void paramFiles();
    void paramFilesAreIdentified();
    void paramFilesRefused();
    void fpgaFiles();
    void setActiveFpgaFile_data();
    void setActiveFpgaFile();
    void additionalFiles();
    void plugins();
    void executionPlugin();
    void opcUa();

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_ConfigurationFile10::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_ConfigurationFile10::fresh()
{
    RecordingLog log;
    CDeviceConfigurationFile10 file(&log);
    QCOMPARE(file.logfile(), static_cast<ICLogfile *>(&log));
    QCOMPARE(file.requiredFileVersion(), u"1.0"_s);
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_FAILURE);
    QVERIFY(isWithoutDocument(file));
}

void tst_ConfigurationFile10::createNewDocument_data()
{
    QTest::addColumn<bool>("withLog");
    QTest::addColumn<QString>("author");

    QTest::newRow("no log") << false << QString();
    QTest::newRow("author") << true << u"A. <Engineer>"_s;
    QTest::newRow("log without author") << true << QString();
}

void tst_ConfigurationFile10::createNewDocument()
{
    QFETCH(bool, withLog);
    QFETCH(QString, author);

    RecordingLog log(author);
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(withLog ? &log : nullptr);
    const QDate before = QDate::currentDate();
    QVERIFY(file.createNewDocument());
    const QDate after = QDate::currentDate();

    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(file.metaData().comment(), u"Device Configuration File"_s);
    QCOMPARE(file.metaData().author(), author);
    const QDate date = file.metaData().date();
    QVERIFY(before <= date);
    QVERIFY(date <= after);

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

void tst_ConfigurationFile10::createNewDocumentReplaces()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    QVERIFY(file.createNewDocument());
    QVERIFY(file.findDeviceElement().isNull());
    QVERIFY(file.findDescriptionElement().isNull());
    QCOMPARE(file.metaData().author(), QString());
}

void tst_ConfigurationFile10::open()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(dataPath(u"valid/full.3deco"_s)));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(bytesOf(file), fullDocument());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationFile10::load()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QCOMPARE(bytesOf(file), fullDocument());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationFile10::openThroughInterface()
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

void tst_ConfigurationFile10::openFails_data()
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

void tst_ConfigurationFile10::openFails()
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

void tst_ConfigurationFile10::loadFails_data()
{
    QTest::addColumn<QByteArray>("buffer");

    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no XML") << QByteArray("KEY=value");
    QTest::newRow("cut off") << fullDocument().chopped(2);
    QTest::newRow("other document type") << QByteArray("<VornDeviceSettings version=\"1.0\"/>");
    QTest::newRow("zero bytes behind") << emptyDocument() + QByteArray(2, '\0');
}

void tst_ConfigurationFile10::loadFails()
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

void tst_ConfigurationFile10::failureLeavesNullHandle()
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

void tst_ConfigurationFile10::failureLeavesHandlesOfCallers()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(fullDocument()));
    const QDomDocument document = file.domDocument();
    QVERIFY(!file.open(QString()));
    QVERIFY(!document.documentElement().firstChildElement(u"Device"_s).isNull());
}

void tst_ConfigurationFile10::failureDoesNotStick()
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

void tst_ConfigurationFile10::versions_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    QTest::newRow("same") << QByteArray(" version=\"1.0\"") << none;
    QTest::newRow("previous") << QByteArray(" version=\"0.9\"") << QStringList{Previous};
    QTest::newRow("just before") << QByteArray(" version=\"0.999.999\"") << QStringList{Previous};
    QTest::newRow("zero") << QByteArray(" version=\"0\"") << QStringList{Previous};
    QTest::newRow("later") << QByteArray(" version=\"1.1\"") << QStringList{Later};
    QTest::newRow("later with two digits") << QByteArray(" version=\"1.10\"") << QStringList{Later};
    QTest::newRow("just behind") << QByteArray(" version=\"1.0.1\"") << QStringList{Later};
    QTest::newRow("much later") << QByteArray(" version=\"10\"") << QStringList{Later};
    QTest::newRow("same in one part") << QByteArray(" version=\"1\"") << none;
    QTest::newRow("same in three parts") << QByteArray(" version=\"1.0.0\"") << none;
    QTest::newRow("no revision") << QByteArray(" version=\"new\"") << none;
    QTest::newRow("blank behind") << QByteArray(" version=\"2.0 \"") << none;
    QTest::newRow("too large") << QByteArray(" version=\"5000.0\"") << none;
    QTest::newRow("empty") << QByteArray(" version=\"\"") << none;
    QTest::newRow("missing") << QByteArray() << none;
}

void tst_ConfigurationFile10::versions()
{
    QFETCH(QByteArray, attribute);
    QFETCH(QStringList, warnings);

    const QByteArray bytes = documentOfVersion(attribute);
    QVERIFY(Files::write(path(), bytes));
    RecordingLog log;
    for (const bool fromBuffer : {false, true}) {
        const MessageCatcher catcher;
        CDeviceConfigurationFile10 file(&log);
        QVERIFY(fromBuffer ? file.load(bytes) : file.open(path()));
        QCOMPARE(catcher.warnings(), warnings);
        QVERIFY(catcher.criticals().isEmpty());
        for (const MessageCatcher::Message &message : catcher.messages()) {
            QCOMPARE(message.log, static_cast<ICLogfile *>(&log));
        }
        // A version never refuses a document, which is one of version 1.0 from then on.
        QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(file.currentFileVersion(), u"1.0"_s);
        CDeviceElement device;
        QVERIFY(file.configuration(device));
        QCOMPARE(device.name(), u"Press"_s);
    }
}

void tst_ConfigurationFile10::versionIsSaved()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(documentOfVersion(" version=\"2.5\"")));
    QVERIFY(bytesOf(file).contains("<VornDeviceConfig version=\"1.0\">"));
    QVERIFY(file.save(path()));
    CDeviceConfigurationFile10 again(nullptr);
    QVERIFY(again.open(path()));
    QCOMPARE(catcher.warnings(), QStringList{Later});
}

void tst_ConfigurationFile10::versionErrorDirectly_data()
{
    QTest::addColumn<QString>("required");
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<bool>("converts");

    const QStringList none;
    QTest::newRow("previous") << u"1.10"_s << u"1.9"_s << QStringList{Previous} << true;
    QTest::newRow("later") << u"1.9"_s << u"1.10"_s << QStringList{Later} << true;
    QTest::newRow("same") << u"1.0"_s << u"1"_s << none << true;
    QTest::newRow("existing is no revision") << u"1.0"_s << u"x"_s << none << false;
    QTest::newRow("existing is empty") << u"1.0"_s << QString() << none << false;
    QTest::newRow("required is no revision") << u"x"_s << u"1.0"_s << none << false;
    QTest::newRow("neither is a revision") << u"x"_s << u"y"_s << none << false;
}

void tst_ConfigurationFile10::versionErrorDirectly()
{
    QFETCH(QString, required);
    QFETCH(QString, existing);
    QFETCH(QStringList, warnings);
    QFETCH(bool, converts);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    file.setCurrentFileVersion(u"before"_s);
    QVERIFY(file.handleVersionError(required, existing));
    QCOMPARE(catcher.warnings(), warnings);
    QCOMPARE(catcher.messages().size(), warnings.size());
    QCOMPARE(file.currentFileVersion(), converts ? existing : u"before"_s);
}

void tst_ConfigurationFile10::versionErrorOfBase_data()
{
    versionErrorDirectly_data();
}

void tst_ConfigurationFile10::versionErrorOfBase()
{
    QFETCH(QString, required);
    QFETCH(QString, existing);
    QFETCH(QStringList, warnings);
    QFETCH(bool, converts);

    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(&log);
    file.setCurrentFileVersion(u"before"_s);
    QVERIFY(file.CDeviceConfigurationFileBase::handleVersionError(required, existing));
    QStringList expected;
    for (const QString &warning : warnings) {
        expected << (warning == Previous
                         ? u"The device configuration file was created with a previous version"_s
                         : u"The device configuration file was created with a later version"_s);
    }
    QCOMPARE(catcher.warnings(), expected);
    QCOMPARE(log.entries().size(), expected.size());
    QCOMPARE(file.currentFileVersion(), converts ? existing : u"before"_s);
}

void tst_ConfigurationFile10::save()
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

void tst_ConfigurationFile10::saveFails_data()
{
    QTest::addColumn<QString>("relativePath");
    QTest::addColumn<bool>("hasDocument");

    QTest::newRow("no document") << u"a.3deco"_s << false;
    QTest::newRow("missing directory") << u"missing/a.3deco"_s << true;
    QTest::newRow("directory") << u"."_s << true;
}

void tst_ConfigurationFile10::saveFails()
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

void tst_ConfigurationFile10::saveKeepsOldFile()
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

void tst_ConfigurationFile10::translations_data()
{
    QTest::addColumn<QString>("occasion");
    QTest::addColumn<QString>("message");

    QTest::newRow("open") << u"open"_s << NotOpened.arg(u"/missing"_s);
    QTest::newRow("load") << u"load"_s << NotLoaded;
    QTest::newRow("previous version") << u"previous"_s << Previous;
    QTest::newRow("later version") << u"later"_s << Later;
    QTest::newRow("project path") << u"path"_s << PathRemoved.arg(u"odict.xml"_s);
}

void tst_ConfigurationFile10::translations()
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

void tst_ConfigurationFile10::translationOfBase()
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

void tst_ConfigurationFile10::projectPaths_data()
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

void tst_ConfigurationFile10::projectPaths()
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

void tst_ConfigurationFile10::projectPathMessages()
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

void tst_ConfigurationFile10::gettersCreateNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty root") << emptyDocument();
    QTest::newRow("empty device") << QByteArray(
        "<VornDeviceConfig version=\"1.0\"><Device/></VornDeviceConfig>");
    QTest::newRow("empty configuration block")
        << QByteArray("<VornDeviceConfig version=\"1.0\"><Device><Config/></Device>"
                      "</VornDeviceConfig>");
    QTest::newRow("empty items") << QByteArray(
        "<VornDeviceConfig version=\"1.0\"><Head/><Description/><Device>"
        "<Config><Options/><ParameterFiles/><Dictionary/><FaultTextFile/>"
        "<FPGA_FileNames/><OpcUa/><EtherCatMaster/><Files/><Plugins/>"
        "<ExecutionPlugin/></Config><SubDevice/></Device></VornDeviceConfig>");
    QTest::newRow("everything") << fullDocument();
    QTest::newRow("unknown content") << Files::read(dataPath(u"valid/unknown-content.3deco"_s));
}

void tst_ConfigurationFile10::gettersCreateNothing()
{
    QFETCH(QByteArray, bytes);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(bytes));
    const QByteArray before = bytesOf(file);
    QVERIFY(!before.isEmpty());
    ConfigurationItems::read(file);
    file.metaData();
    file.openResult();
    file.currentFileVersion();
    file.findDeviceElement();
    file.findConfigElement();
    file.findParamFilesElement();
    file.findFilesElement();
    file.findPluginsElement();
    file.findDescriptionElement();
    file.findOpcUAElement();
    file.findEtherCatMasterElement();
    QCOMPARE(bytesOf(file), before);
}

void tst_ConfigurationFile10::gettersWithoutDocument()
{
    const MessageCatcher catcher;
    const CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device = SampleConfiguration::device();
    QVERIFY(!file.configuration(device));
    QVERIFY(device.isNull());
    QVERIFY(file.description() == CDescriptionElement());
    QVERIFY(file.odictFile().isNull());
    QVERIFY(file.faultTextFile().isNull());
    QVERIFY(file.paramFiles().isEmpty());
    QList<CParamFileElement> paramFiles = SampleConfiguration::paramFiles();
    QVERIFY(!file.paramFiles(paramFiles));
    QVERIFY(paramFiles.isEmpty());
    QVERIFY(!file.containsParamFile(SampleConfiguration::paramFiles().constFirst()));
    QVERIFY(file.fpgaFiles().isEmpty());
    QVERIFY(!file.containsFpgaFile(u"main.bit"_s));
    QVERIFY(file.activeFpgaFile().isEmpty());
    QVERIFY(file.additionalFiles().isEmpty());
    QVERIFY(!file.containsAdditionalFile(SampleConfiguration::odictFile()));
    QVERIFY(file.plugins().isEmpty());
    QList<CPluginElement> plugins = SampleConfiguration::plugins();
    QVERIFY(!file.plugins(plugins));
    QVERIFY(plugins.isEmpty());
    QVERIFY(file.executionPlugin().isEmpty());
    QVERIFY(!file.isOpcUaEnabled());
    QList<CFileElement> opcUaFiles = SampleConfiguration::opcUaFiles();
    QVERIFY(!file.opcUaFiles(opcUaFiles));
    QVERIFY(opcUaFiles.isEmpty());
    QVERIFY(file.etherCatMasterFile().isNull());
    QVERIFY(file.options().isEmpty());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_ConfigurationFile10::settersWithoutDocument_data()
{
    QTest::addColumn<int>("index");

    const QList<ConfigurationItems::Setter> setters = ConfigurationItems::setters();
    for (int i = 0; i < setters.size(); ++i) {
        QTest::newRow(setters.at(i).name) << i;
    }
    QTest::newRow("setConfiguration") << -1;
}

void tst_ConfigurationFile10::settersWithoutDocument()
{
    QFETCH(int, index);
    const auto set = [index](ICDeviceConfigurationFile &file) {
        return index < 0 ? file.setConfiguration(SampleConfiguration::device())
                         : ConfigurationItems::setters().at(index).set(file);
    };

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(!set(file));
    QVERIFY(isWithoutDocument(file));
    // The same after a document was lost again.
    QVERIFY(file.load(fullDocument()));
    QVERIFY(!file.open(QString()));
    QVERIFY(!set(file));
    QVERIFY(isWithoutDocument(file));
}

void tst_ConfigurationFile10::settersFromNothing()
{
    // In a new document every setter creates what it needs; those that remove find nothing.
    for (const ConfigurationItems::Setter &setter : ConfigurationItems::setters()) {
        CDeviceConfigurationFile10 file(nullptr);
        QVERIFY(file.createNewDocument());
        const bool removes = QByteArray(setter.name).startsWith("remove");
        QVERIFY2(setter.set(file) == !removes, setter.name);
        CDeviceConfigurationFile10 reopened(nullptr);
        QVERIFY2(reopened.load(bytesOf(file)), setter.name);
        QVERIFY2(ConfigurationItems::read(reopened) == ConfigurationItems::read(file), setter.name);
        QCOMPARE(bytesOf(reopened), bytesOf(file));
    }
}

void tst_ConfigurationFile10::configurationDetour()
{
    // What the document does not carry comes back as by default.
    CDeviceElement device = SampleConfiguration::device();
    device.setSerial(4711);
    device.setHostAddressType(CDeviceItem::HOST_ADDRESS_IPV4);
    device.setHostAddress(QHostAddress(u"192.168.1.2"_s));
    device.setPort(1234);
    device.setPreferredDeviceListNumber(3);
    CParamFileElement paramFile = SampleConfiguration::paramFiles().constFirst();
    paramFile.setDriveId(3);
    paramFile.setDevicePath(u"/d/"_s);
    device.setParameterFiles(
        {paramFile, SampleConfiguration::paramFiles().at(1), CParamFileElement()});
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(device));
    CDeviceElement read;
    QVERIFY(file.configuration(read));
    QVERIFY(read == SampleConfiguration::device());
}

void tst_ConfigurationFile10::description()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.description() == CDescriptionElement());
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QVERIFY(file.description() == SampleConfiguration::description());
    CDescriptionElement other;
    other.setVersion(QString());
    other.setCreationDate(QDate());
    QVERIFY(file.setDescription(other));
    QVERIFY(file.description() == other);
    QCOMPARE(bytesOf(file).count("<Description>"), 1);
    QCOMPARE(bytesOf(file).count("<!--Project description-->"), 1);
}

void tst_ConfigurationFile10::singleFiles_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QByteArray>("tag");

    QTest::newRow("object dictionary") << 0 << QByteArray("Dictionary");
    QTest::newRow("fault texts") << 1 << QByteArray("FaultTextFile");
    QTest::newRow("EtherCAT master") << 2 << QByteArray("EtherCatMaster");
}

void tst_ConfigurationFile10::singleFiles()
{
    QFETCH(int, which);
    QFETCH(QByteArray, tag);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(emptyDocument()));
    const auto set = [&](const CFileElement &value) {
        switch (which) {
        case 0:
            return file.setOdictFile(value);
        case 1:
            return file.setFaultTextFile(value);
        default:
            return file.setEtherCatMasterFile(value);
        }
    };
    const auto get = [&]() {
        switch (which) {
        case 0:
            return file.odictFile();
        case 1:
            return file.faultTextFile();
        default:
            return file.etherCatMasterFile();
        }
    };
    const CFileElement first = SampleConfiguration::odictFile();
    const CFileElement second = SampleConfiguration::etherCatMasterFile();
    for (const CFileElement &value : {first, second, CFileElement(), first}) {
        QVERIFY(set(value));
        QVERIFY(get() == value);
    }
    QCOMPARE(bytesOf(file).count("<" + tag + ">"), 1);
    QCOMPARE(bytesOf(file).count("<File>"), 1);
    CFileElement bare;
    bare.setComment(u"comment alone"_s);
    QVERIFY(set(bare));
    QVERIFY(get() == bare);
}

void tst_ConfigurationFile10::paramFiles()
{
    using SampleConfiguration::paramFile;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CParamFileElement> list;
    QVERIFY(!file.paramFiles(list));

    QVERIFY(file.addParamFile(paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s)));
    QVERIFY(file.addParamFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS));
    QVERIFY(file.paramFiles(list));
    QVERIFY(
        list
        == (QList<CParamFileElement>{paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
                                     paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS)}));
    QCOMPARE(list.constFirst().comment(), u"c"_s);

    // A file of that name is replaced where it stands, its type and comment too.
    QVERIFY(file.addParamFile(u"b"_s, NvrnGlobal::PARAM_FILE_DEVICE_DATABASE));
    QCOMPARE(file.paramFiles().size(), 2);
    QVERIFY(file.paramFiles().constFirst()
            == paramFile(u"b"_s, NvrnGlobal::PARAM_FILE_DEVICE_DATABASE));
    QVERIFY(file.paramFiles().constFirst().comment().isEmpty());

    QVERIFY(file.setParamFiles({paramFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
                                CParamFileElement(),
                                paramFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS)}));
    QCOMPARE(file.paramFiles().size(), 2);
    QVERIFY(file.removeParamFile(u"x"_s, NvrnGlobal::PARAM_FILE_PARAMETERS));
    QCOMPARE(file.paramFiles().size(), 1);
    QVERIFY(file.setParamFiles({}));
    QVERIFY(file.paramFiles(list));
    QVERIFY(list.isEmpty());
}

void tst_ConfigurationFile10::paramFilesAreIdentified()
{
    using SampleConfiguration::paramFile;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    CParamFileElement present = paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s);
    QVERIFY(file.addParamFile(present));
    const QByteArray before = bytesOf(file);

    for (const CParamFileElement &other :
         {paramFile(u"A"_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
          paramFile(u"a "_s, NvrnGlobal::PARAM_FILE_PARAMETERS),
          paramFile(u"a"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS),
          paramFile(QString(), NvrnGlobal::PARAM_FILE_PARAMETERS)}) {
        QVERIFY(!file.containsParamFile(other));
        QVERIFY(!file.removeParamFile(other));
        QVERIFY(!file.removeParamFile(other.name(), other.type()));
    }
    QCOMPARE(bytesOf(file), before);

    // Name and type are what counts.
    present.setComment(u"other"_s);
    present.setDriveId(3);
    present.setDevicePath(u"/d/"_s);
    QVERIFY(file.containsParamFile(present));
    QVERIFY(file.removeParamFile(present));
    QVERIFY(!file.containsParamFile(present));
}

void tst_ConfigurationFile10::paramFilesRefused()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    const QByteArray before = bytesOf(file);
    QVERIFY(!file.addParamFile(CParamFileElement()));
    QVERIFY(!file.addParamFile(QString(), NvrnGlobal::PARAM_FILE_PARAMETERS));
    QVERIFY(!file.addParamFile(u"a"_s, static_cast<NvrnGlobal::EParamFileType>(-2)));
    QCOMPARE(bytesOf(file), before);
    QVERIFY(file.addParamFile(u"a"_s, NvrnGlobal::PARAM_FILE_UNDEFINED));
}

void tst_ConfigurationFile10::fpgaFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.activeFpgaFile().isEmpty());
    QVERIFY(file.appendFpgaFile(u"a.bit"_s));
    QVERIFY(file.appendFpgaFile(u"b.bit"_s));
    QVERIFY(file.appendFpgaFile(u"a.bit"_s));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"a.bit"_s, u"b.bit"_s, u"a.bit"_s}));
    QCOMPARE(file.activeFpgaFile(), u"a.bit"_s);
    QVERIFY(file.containsFpgaFile(u"b.bit"_s));
    QVERIFY(!file.containsFpgaFile(u"B.bit"_s));
    QVERIFY(!file.containsFpgaFile(u"dir/b.bit"_s));

    // Only the first of that name goes.
    QVERIFY(file.removeFpgaFile(u"a.bit"_s));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"b.bit"_s, u"a.bit"_s}));
    QVERIFY(!file.removeFpgaFile(u"c.bit"_s));
    QVERIFY(!file.removeFpgaFile(u"A.bit"_s));
    QVERIFY(file.setFpgaFiles({u"z"_s, u"y"_s}));
    QCOMPARE(file.fpgaFiles(), (QStringList{u"z"_s, u"y"_s}));
    QVERIFY(file.setFpgaFiles({}));
    QVERIFY(file.fpgaFiles().isEmpty());
}

void tst_ConfigurationFile10::setActiveFpgaFile_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("after");

    QTest::newRow("empty list") << QStringList() << u"a"_s << QStringList{u"a"_s};
    QTest::newRow("new") << QStringList{u"a"_s, u"b"_s} << u"c"_s
                         << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("last") << QStringList{u"a"_s, u"b"_s, u"c"_s} << u"c"_s
                          << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("first") << QStringList{u"a"_s, u"b"_s} << u"a"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("twice in the list")
        << QStringList{u"a"_s, u"b"_s, u"a"_s} << u"a"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("given with a directory")
        << QStringList{u"a"_s, u"b"_s} << u"dir/b"_s << QStringList{u"dir/b"_s, u"a"_s};
    QTest::newRow("listed with a directory")
        << QStringList{u"a"_s, u"dir/b"_s} << u"b"_s << QStringList{u"b"_s, u"a"_s};
    QTest::newRow("listed in another directory")
        << QStringList{u"a"_s, u"x/b"_s} << u"y/b"_s << QStringList{u"y/b"_s, u"a"_s};
    QTest::newRow("upper case is another")
        << QStringList{u"a"_s, u"b"_s} << u"B"_s << QStringList{u"B"_s, u"a"_s, u"b"_s};
    QTest::newRow("name that ends the same")
        << QStringList{u"ab"_s} << u"b"_s << QStringList{u"b"_s, u"ab"_s};
}

void tst_ConfigurationFile10::setActiveFpgaFile()
{
    QFETCH(QStringList, before);
    QFETCH(QString, name);
    QFETCH(QStringList, after);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setFpgaFiles(before));
    const QByteArray bytes = bytesOf(file);
    QVERIFY(!file.setActiveFpgaFile(QString()));
    QCOMPARE(bytesOf(file), bytes);
    QVERIFY(file.setActiveFpgaFile(name));
    QCOMPARE(file.fpgaFiles(), after);
    QCOMPARE(file.activeFpgaFile(), name);
}

void tst_ConfigurationFile10::additionalFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    const CFileElement a = SampleConfiguration::odictFile();
    CFileElement b = a;
    b.setComment(u"other"_s);
    QVERIFY(!file.appendAdditionalFile(CFileElement()));
    QVERIFY(!file.removeAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(CFileElement()));
    QVERIFY(file.appendAdditionalFile(a));
    QVERIFY(file.appendAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(b));
    QVERIFY(!file.removeAdditionalFile(b));
    QVERIFY(file.appendAdditionalFile(b));
    // Appending does not look for an equal one, and removing takes the first.
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, a, b}));
    QVERIFY(file.containsAdditionalFile(a));
    QVERIFY(file.removeAdditionalFile(a));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, b}));
    QVERIFY(file.removeAdditionalFile(a));
    QVERIFY(!file.containsAdditionalFile(a));
    QVERIFY(file.setAdditionalFiles({b, a, b}));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{b, a, b}));
    QVERIFY(file.removeAdditionalFile(b));
    QVERIFY(file.additionalFiles() == (QList<CFileElement>{a, b}));
    QVERIFY(!file.removeAdditionalFile(CFileElement()));
    QVERIFY(file.setAdditionalFiles({}));
    QVERIFY(file.additionalFiles().isEmpty());
}

void tst_ConfigurationFile10::plugins()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CPluginElement> list;
    QVERIFY(!file.plugins(list));
    const QList<CPluginElement> plugins = {SampleConfiguration::plugin(u"b"_s, u"1"_s, 0),
                                           SampleConfiguration::plugin(u"a"_s, QString(), -5),
                                           SampleConfiguration::plugin(u"b"_s, u"1"_s, 0)};
    QVERIFY(file.setPlugins(plugins));
    QVERIFY(file.plugins() == plugins);
    QVERIFY(file.plugins(list));
    QVERIFY(list == plugins);
    QVERIFY(file.setPlugins({}));
    QVERIFY(file.plugins(list));
    QVERIFY(list.isEmpty());
}

void tst_ConfigurationFile10::executionPlugin()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    for (const QString &name : {u"Motion"_s, u" a <b> "_s, QString(), u"x"_s}) {
        QVERIFY(file.setExecutionPlugin(name));
        QCOMPARE(file.executionPlugin(), name);
    }
    QCOMPARE(bytesOf(file).count("<ExecutionPlugin>"), 1);
}

void tst_ConfigurationFile10::opcUa()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QList<CFileElement> list;
    QVERIFY(!file.opcUaFiles(list));
    QVERIFY(file.setOpcUaFiles(SampleConfiguration::opcUaFiles()));
    QVERIFY(!file.isOpcUaEnabled());
    QVERIFY(file.setOpcUaEnabled(true));
    QVERIFY(file.isOpcUaEnabled());
    QVERIFY(file.opcUaFiles(list));
    QVERIFY(list == SampleConfiguration::opcUaFiles());
    QVERIFY(file.setOpcUaFiles({}));
    QVERIFY(file.opcUaFiles(list));
    QVERIFY(list.isEmpty());
    QVERIFY(file.isOpcUaEnabled());
    QVERIFY(file.setOpcUaEnabled(false));
    QVERIFY(!file.isOpcUaEnabled());
    // The options are not touched: they are the device's business.
    QVERIFY(file.options().isEmpty());
}

REGISTER_GUILESS_TEST(tst_ConfigurationFile10)
#include "tst_configurationfile10.moc"
