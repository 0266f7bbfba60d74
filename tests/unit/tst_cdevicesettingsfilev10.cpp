#include "settings/CDeviceSettingsFileV10.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"
#include "support/SampleSettings.h"
#include "support/SettingsFileV10.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <type_traits>

using namespace SettingsFileV10;

using NvrnGlobal::EFileResult;
using NvrnGlobal::FILE_RESULT_FAILURE;
using NvrnGlobal::FILE_RESULT_READ_FAILURE;
using NvrnGlobal::FILE_RESULT_SUCCESS;
using NvrnGlobal::FILE_RESULT_VERSION_MISMATCH;
using NvrnGlobal::FILE_RESULT_WRITE_FAILURE;
using SampleSettings::document;
using SampleSettings::settings;
Q_DECLARE_METATYPE(CDeviceSettings)
Q_DECLARE_METATYPE(NvrnGlobal::EFileResult)

namespace {

/** A version whose operations note what they are called with, each with a result of its own. */
class NotingFile : public CDeviceSettingsFileBase
{
public:
    explicit NotingFile(ICLogfile *log = nullptr) : CDeviceSettingsFileBase(log) { }

    EFileResult openFile(const QString &fileName, const QString &version) override
    {
        calls << QStringLiteral("openFile %1 %2").arg(fileName, version);
        return FILE_RESULT_READ_FAILURE;
    }

    EFileResult saveFile(const QString &fileName, const QString &version) override
    {
        calls << QStringLiteral("saveFile %1 %2").arg(fileName, version);
        return FILE_RESULT_WRITE_FAILURE;
    }

    EFileResult openBuffer(const QByteArray &buffer, const QString &version) override
    {
        calls << QStringLiteral("openBuffer %1 %2").arg(QString::fromLatin1(buffer), version);
        return FILE_RESULT_VERSION_MISMATCH;
    }

    EFileResult saveBuffer(QByteArray &buffer, const QString &version) override
    {
        calls << QStringLiteral("saveBuffer %1 %2").arg(QString::fromLatin1(buffer), version);
        buffer = "saved";
        return FILE_RESULT_SUCCESS;
    }

    QStringList calls;
};

/** One way of opening the same bytes. */
struct Opening {
    const char *name;
    std::function<EFileResult(CDeviceSettingsFileV10 &file, const QString &path,
                              const QString &version)>
        open;
};

QList<Opening> openings()
{
    using File = CDeviceSettingsFileV10;
    return {
        {"open",
         [](File &file, const QString &path, const QString &version) {
             return file.open(path, version);
         }},
        {"openFile",
         [](File &file, const QString &path, const QString &version) {
             return file.openFile(path, version);
         }},
        {"openFromBuffer",
         [](File &file, const QString &path, const QString &version) {
             return file.openFromBuffer(Files::read(path), version);
         }},
        {"openBuffer",
         [](File &file, const QString &path, const QString &version) {
             return file.openBuffer(Files::read(path), version);
         }},
    };
}

QString versionMessage(const QString &required, const QString &existing)
{
    return QStringLiteral("Device settings file version error: required %1, existing %2")
        .arg(required, existing);
}

} // namespace

class tst_cdevicesettingsfilev10 : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void baseCallsOperationsOfVersion();
    void baseWithoutVersion();
    void versionError_data();
    void versionError();
    void versionMessageIsTranslated();
    void openResult();

    void withoutDocument();
    void openVersion_data();
    void openVersion();
    void openFails_data();
    void openFails();
    void wantedVersionDoesNotMatter_data();
    void wantedVersionDoesNotMatter();

    void write_data();
    void write();
    void save();
    void saveWithVersionInVariable();
    void saveFails();

private:
    QString path(const QString &name = u"settings.3conf"_s) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdevicesettingsfilev10::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdevicesettingsfilev10::baseCallsOperationsOfVersion()
{
    const MessageCatcher catcher;
    NotingFile file;
    QByteArray buffer = "old";
    // Whatever the version gives is the result.
    QCOMPARE(file.open(u"a"_s, u"v"_s), FILE_RESULT_READ_FAILURE);
    QCOMPARE(file.save(u"b"_s, u"w"_s), FILE_RESULT_WRITE_FAILURE);
    QCOMPARE(file.openFromBuffer("c", u"x"_s), FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(file.saveToBuffer(buffer, u"y"_s), FILE_RESULT_SUCCESS);
    QCOMPARE(buffer, QByteArray("saved"));
    QCOMPARE(file.calls,
             (QStringList{u"openFile a v"_s, u"saveFile b w"_s, u"openBuffer c x"_s,
                          u"saveBuffer old y"_s}));
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cdevicesettingsfilev10::baseWithoutVersion()
{
    RecordingLog log;
    NotingFile file(&log);
    QCOMPARE(file.logfile(), static_cast<ICLogfile *>(&log));
    QVERIFY(NotingFile().logfile() == nullptr);
    QVERIFY(file.fileVersion().isEmpty());

    // It can open a document, and does not know where the settings stand in it.
    const QByteArray bytes = document(" <Device>\n  <Name>Press</Name>\n </Device>\n");
    QString errorText;
    QVERIFY2(file.open(bytes, u"VornDeviceSettings"_s, Version, errorText), qPrintable(errorText));
    QVERIFY(file.deviceSettings().isNull());
    file.setDeviceSettings(settings(u"n"_s, {{3, u"a"_s}}));
    QVERIFY(file.deviceSettings().isNull());
    QCOMPARE(bytesOf(file), bytes);
    QCOMPARE(file.calls, QStringList());
    QVERIFY(log.entries().isEmpty());
}

void tst_cdevicesettingsfilev10::versionError_data()
{
    QTest::addColumn<QString>("required");
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QString>("requiredRevision");
    QTest::addColumn<QString>("existingRevision");
    QTest::addColumn<EFileResult>("result");

    const auto row = [](const char *name, const QString &required, const QString &existing,
                        const QString &requiredRevision, const QString &existingRevision,
                        EFileResult result) {
        QTest::newRow(name) << required << existing << requiredRevision << existingRevision
                            << result;
    };
    const EFileResult mismatch = FILE_RESULT_VERSION_MISMATCH;
    row("higher", u"1.0"_s, u"1.1"_s, u"1000000"_s, u"1001000"_s, mismatch);
    row("lower", u"2.0"_s, u"1.0"_s, u"2000000"_s, u"1000000"_s, mismatch);
    row("three numbers", u"1.2.3"_s, u"4.5.6"_s, u"1002003"_s, u"4005006"_s, mismatch);
    row("highest", u"1.0"_s, u"4293.999.999"_s, u"1000000"_s, u"4293999999"_s, mismatch);
    row("zero is a revision", u"1.0"_s, u"0"_s, u"1000000"_s, u"0"_s, mismatch);
    row("existing none", u"1.0"_s, u"new"_s, u"1000000"_s, u"0"_s, FILE_RESULT_FAILURE);
    row("existing empty", u"1.0"_s, u""_s, u"1000000"_s, u"0"_s, FILE_RESULT_FAILURE);
    row("existing too high", u"1.0"_s, u"4294.0"_s, u"1000000"_s, u"0"_s, FILE_RESULT_FAILURE);
    row("required none", u"new"_s, u"2.0"_s, u"0"_s, u"2000000"_s, mismatch);
    row("both none", u"new"_s, u"old"_s, u"0"_s, u"0"_s, FILE_RESULT_FAILURE);
    row("place markers", u"%2"_s, u"%1"_s, u"0"_s, u"0"_s, FILE_RESULT_FAILURE);
}

void tst_cdevicesettingsfilev10::versionError()
{
    QFETCH(QString, required);
    QFETCH(QString, existing);
    QFETCH(QString, requiredRevision);
    QFETCH(QString, existingRevision);
    QFETCH(EFileResult, result);

    RecordingLog log;
    const MessageCatcher catcher;
    NotingFile file(&log);
    QVERIFY(!file.handleVersionError(required, existing));
    QCOMPARE(file.openResult(), result);
    QCOMPARE(file.fileVersion(), existing);
    QCOMPARE(catcher.criticals(), QStringList{versionMessage(requiredRevision, existingRevision)});
    QCOMPARE(catcher.messages().size(), 1);
    QCOMPARE(catcher.messages().constFirst().log, static_cast<ICLogfile *>(&log));
    QCOMPARE(log.entries().size(), 1);
    QCOMPARE(log.entries().constFirst().second, catcher.criticals().constFirst());
}

void tst_cdevicesettingsfilev10::versionMessageIsTranslated()
{
    const MarkingTranslator translator("CDeviceSettingsFileBase");
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openBuffer(document("", " version=\"2.0\""), Version),
             FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(catcher.criticals(),
             QStringList{u"<%1>"_s.arg(versionMessage(u"1000000"_s, u"2000000"_s))});
}

void tst_cdevicesettingsfilev10::openResult()
{
    // Each opening starts afresh.
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openResult(), FILE_RESULT_FAILURE);
    QVERIFY(file.fileVersion().isEmpty());

    const auto check = [&file](const QByteArray &bytes, EFileResult result,
                               const QString &fileVersion) {
        QCOMPARE(file.openBuffer(bytes, Version), result);
        QCOMPARE(file.openResult(), result);
        QCOMPARE(file.fileVersion(), fileVersion);
    };
    const QByteArray good = document("");
    const QByteArray higher = document("", " version=\"2.0\"");
    check(good, FILE_RESULT_SUCCESS, u"1.0"_s);
    check(higher, FILE_RESULT_VERSION_MISMATCH, u"2.0"_s);
    check("no document", FILE_RESULT_FAILURE, QString());
    check(higher, FILE_RESULT_VERSION_MISMATCH, u"2.0"_s);
    check("<Other version=\"1.0\"/>", FILE_RESULT_FAILURE, QString());
    check(good, FILE_RESULT_SUCCESS, u"1.0"_s);
    check(document("", " version=\"new\""), FILE_RESULT_FAILURE, u"new"_s);
    check(higher, FILE_RESULT_VERSION_MISMATCH, u"2.0"_s);
    check(good, FILE_RESULT_SUCCESS, u"1.0"_s);
    check(QByteArray(), FILE_RESULT_FAILURE, QString());

    // The same with files; saving leaves it as it is.
    QVERIFY(Files::write(path(), higher));
    QCOMPARE(file.openFile(path(), Version), FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(file.openResult(), FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(file.openFile(path(u"missing"_s), Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.openResult(), FILE_RESULT_FAILURE);
    QVERIFY(Files::write(path(), good));
    QCOMPARE(file.openFile(path(), Version), FILE_RESULT_SUCCESS);
    QCOMPARE(file.saveFile(path(u"missing/a"_s), Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.openResult(), FILE_RESULT_SUCCESS);
}

void tst_cdevicesettingsfilev10::withoutDocument()
{
    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(&log);
    QCOMPARE(CDeviceSettingsFileV10::fileVersionText(), u"1.0"_s);
    QCOMPARE(file.logfile(), static_cast<ICLogfile *>(&log));
    QVERIFY(file.deviceSettings().isNull());
    file.setDeviceSettings(settings(u"n"_s, {{3, u"a"_s}}));
    QVERIFY(file.domDocument().isNull());
    QVERIFY(file.deviceSettings().isNull());
    QVERIFY(catcher.messages().isEmpty());

    QByteArray buffer = "old";
    QCOMPARE(file.saveBuffer(buffer, Version), FILE_RESULT_FAILURE);
    QCOMPARE(buffer, QByteArray("old"));
    QCOMPARE(file.saveFile(path(), Version), FILE_RESULT_FAILURE);
    QCOMPARE(Files::names(m_directory->path()), QStringList());
    QCOMPARE(catcher.criticals().size(), 2);
    QCOMPARE(log.entries().size(), 2);
}

void tst_cdevicesettingsfilev10::openVersion_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QString>("existingRevision");
    QTest::addColumn<EFileResult>("result");

    const auto row = [](const char *name, const QByteArray &attributes, const QString &existing,
                        const QString &existingRevision, EFileResult result) {
        QTest::newRow(name) << attributes << existing << existingRevision << result;
    };
    const EFileResult mismatch = FILE_RESULT_VERSION_MISMATCH;
    row("higher", " version=\"1.1\"", u"1.1"_s, u"1001000"_s, mismatch);
    row("ten", " version=\"1.10\"", u"1.10"_s, u"1010000"_s, mismatch);
    row("lower", " version=\"0.9\"", u"0.9"_s, u"9000"_s, mismatch);
    row("the same in other words", " version=\"1\"", u"1"_s, u"1000000"_s, mismatch);
    row("the same with a third number", " version=\"1.0.0\"", u"1.0.0"_s, u"1000000"_s, mismatch);
    row("blank behind", " version=\"1.0 \"", u"1.0 "_s, u"0"_s, FILE_RESULT_FAILURE);
    row("no revision", " version=\"new\"", u"new"_s, u"0"_s, FILE_RESULT_FAILURE);
    row("empty", " version=\"\"", u""_s, u"0"_s, FILE_RESULT_FAILURE);
    row("missing", "", u""_s, u"0"_s, FILE_RESULT_FAILURE);
    row("attribute in another case", " Version=\"1.0\"", u""_s, u"0"_s, FILE_RESULT_FAILURE);
}

void tst_cdevicesettingsfilev10::openVersion()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QString, existing);
    QFETCH(QString, existingRevision);
    QFETCH(EFileResult, result);

    const QByteArray bytes = document(" <Device>\n  <Name>Press</Name>\n </Device>\n", attributes);
    QVERIFY(Files::write(path(), bytes));
    RecordingLog log;
    for (const Opening &opening : openings()) {
        const MessageCatcher catcher;
        CDeviceSettingsFileV10 file(&log);
        QVERIFY2(opening.open(file, path(), Version) == result, opening.name);
        QCOMPARE(file.openResult(), result);
        QCOMPARE(file.fileVersion(), existing);
        // There is this message and no other.
        QCOMPARE(catcher.messages().size(), 1);
        QCOMPARE(catcher.criticals(), QStringList{versionMessage(u"1000000"_s, existingRevision)});
        QCOMPARE(catcher.messages().constFirst().log, static_cast<ICLogfile *>(&log));
        // Nothing of the document can be got at.
        QVERIFY(file.domDocument().isNull());
        QVERIFY(file.deviceSettings().isNull());
    }
    QCOMPARE(Files::read(path()), bytes);
}

void tst_cdevicesettingsfilev10::openFails_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("Press");
    QTest::newRow("truncated") << document("").chopped(5);
    QTest::newRow("another type") << QByteArray("<VornDeviceConfig version=\"1.0\"/>");
    QTest::newRow("another type and version") << QByteArray("<VornDeviceConfig version=\"2.0\"/>");
    QTest::newRow("type in another case") << QByteArray("<VornDevicesettings version=\"1.0\"/>");
    QTest::newRow("another version, truncated") << document("", " version=\"2.0\"").chopped(5);
}

void tst_cdevicesettingsfilev10::openFails()
{
    QFETCH(QByteArray, bytes);

    QVERIFY(Files::write(path(), bytes));
    RecordingLog log;
    for (const Opening &opening : openings()) {
        CDeviceSettingsFileV10 file(&log);
        QCOMPARE(file.openBuffer(document(" <Device>\n  <Name>n</Name>\n </Device>\n"), Version),
                 FILE_RESULT_SUCCESS);
        const MessageCatcher catcher;
        QVERIFY2(opening.open(file, path(), Version) == FILE_RESULT_FAILURE, opening.name);
        QCOMPARE(file.openResult(), FILE_RESULT_FAILURE);
        QVERIFY(file.fileVersion().isEmpty());
        QVERIFY(file.deviceSettings().isNull());
        QCOMPARE(catcher.messages().size(), 1);
        QCOMPARE(catcher.criticals().size(), 1);
        QVERIFY(!catcher.criticals().constFirst().contains(u"version error"_s));
        QCOMPARE(catcher.messages().constFirst().log, static_cast<ICLogfile *>(&log));
    }
}

void tst_cdevicesettingsfilev10::wantedVersionDoesNotMatter_data()
{
    QTest::addColumn<QString>("version");

    QTest::newRow("higher") << u"2.0"_s;
    QTest::newRow("no revision") << u"new"_s;
    QTest::newRow("empty") << QString();
}

void tst_cdevicesettingsfilev10::wantedVersionDoesNotMatter()
{
    QFETCH(const QString, version);

    // Which class is taken has decided already.
    const QByteArray bytes = document(" <Device>\n  <Name>Press</Name>\n </Device>\n");
    const QByteArray higher = document("", " version=\"2.0\"");
    const MessageCatcher catcher;
    for (const Opening &opening : openings()) {
        QVERIFY(Files::write(path(), bytes));
        CDeviceSettingsFileV10 file(nullptr);
        QVERIFY2(opening.open(file, path(), version) == FILE_RESULT_SUCCESS, opening.name);
        QCOMPARE(file.openResult(), FILE_RESULT_SUCCESS);
        QCOMPARE(file.fileVersion(), u"1.0"_s);
        QVERIFY(file.deviceSettings() == settings(u"Press"_s));
        QVERIFY(catcher.messages().isEmpty());

        QCOMPARE(file.saveFile(path(u"1"_s), version), FILE_RESULT_SUCCESS);
        QCOMPARE(file.save(path(u"2"_s), version), FILE_RESULT_SUCCESS);
        QByteArray buffer;
        QCOMPARE(file.saveBuffer(buffer, version), FILE_RESULT_SUCCESS);
        QByteArray other;
        QCOMPARE(file.saveToBuffer(other, version), FILE_RESULT_SUCCESS);
        QCOMPARE(Files::read(path(u"1"_s)), bytes);
        QCOMPARE(Files::read(path(u"2"_s)), bytes);
        QCOMPARE(buffer, bytes);
        QCOMPARE(other, bytes);
    }
    for (const Opening &opening : openings()) {
        QVERIFY(Files::write(path(), higher));
        CDeviceSettingsFileV10 file(nullptr);
        QVERIFY2(opening.open(file, path(), version) == FILE_RESULT_VERSION_MISMATCH, opening.name);
    }
    QCOMPARE(catcher.criticals().size(), openings().size());
    QCOMPARE(catcher.criticals().constLast(), versionMessage(u"1000000"_s, u"2000000"_s));
}

void tst_cdevicesettingsfilev10::write_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<CDeviceSettings>("value");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const char *before, const CDeviceSettings &value,
                        const char *after) {
        QTest::newRow(name) << QByteArray(before) << value << QByteArray(after);
    };
    row("nothing set", "", CDeviceSettings(), " <Device>\n  <Name/>\n </Device>\n");
    row("name", "", settings(u"a & b"_s), " <Device>\n  <Name>a &amp; b</Name>\n </Device>\n");
    row("sub-devices, by number", "", settings(u"n"_s, {{255, u"c"_s}, {10, u"b"_s}, {9, u""_s}}),
        " <Device>\n"
        "  <Name>n</Name>\n"
        "  <SubDevice>\n   <DriveNo>9</DriveNo>\n   <Name/>\n  </SubDevice>\n"
        "  <SubDevice>\n   <DriveNo>10</DriveNo>\n   <Name>b</Name>\n  </SubDevice>\n"
        "  <SubDevice>\n   <DriveNo>255</DriveNo>\n   <Name>c</Name>\n  </SubDevice>\n"
        " </Device>\n");
    row("behind a header", " <Head/>\n", settings(u"n"_s),
        " <Head/>\n <Device>\n  <Name>n</Name>\n </Device>\n");
    row("into the device that is there",
        " <Device a=\"1\">\n  <Name>old</Name>\n </Device>\n <B/>\n", settings(u"n"_s),
        " <Device a=\"1\">\n  <Name>n</Name>\n </Device>\n <B/>\n");
    row("name behind what the device holds", " <Device>\n  <A/>\n </Device>\n", settings(u"n"_s),
        " <Device>\n  <A/>\n  <Name>n</Name>\n </Device>\n");
    row("empty name in place of the old one", " <Device>\n  <Name>old</Name>\n </Device>\n",
        CDeviceSettings(), " <Device>\n  <Name/>\n </Device>\n");
    row("old sub-devices stay, also of the same number",
        " <Device>\n"
        "  <Name>old</Name>\n"
        "  <SubDevice>\n   <DriveNo>9</DriveNo>\n   <Name>old</Name>\n  </SubDevice>\n"
        " </Device>\n",
        settings(u"n"_s, {{3, u"a"_s}, {9, u"b"_s}}),
        " <Device>\n"
        "  <Name>n</Name>\n"
        "  <SubDevice>\n   <DriveNo>9</DriveNo>\n   <Name>old</Name>\n  </SubDevice>\n"
        "  <SubDevice>\n   <DriveNo>3</DriveNo>\n   <Name>a</Name>\n  </SubDevice>\n"
        "  <SubDevice>\n   <DriveNo>9</DriveNo>\n   <Name>b</Name>\n  </SubDevice>\n"
        " </Device>\n");
}

void tst_cdevicesettingsfilev10::write()
{
    QFETCH(QByteArray, before);
    QFETCH(CDeviceSettings, value);
    QFETCH(QByteArray, after);

    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openBuffer(document(before), Version), FILE_RESULT_SUCCESS);
    file.setDeviceSettings(value);
    QCOMPARE(bytesOf(file), document(after));
    QCOMPARE(file.deviceSettings().deviceName(), value.deviceName());
    for (const quint8 driveNo : value.subDeviceNameMap().keys()) {
        QCOMPARE(file.deviceSettings().subDeviceName(driveNo), value.subDeviceName(driveNo));
    }
}

void tst_cdevicesettingsfilev10::save()
{
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QVERIFY(file.createNewDocument(u"VornDeviceSettings"_s, Version));
    file.setDeviceSettings(settings(u"n"_s));
    const QByteArray expected = document(" <Device>\n  <Name>n</Name>\n </Device>\n");
    QCOMPARE(file.saveFile(path(u"1"_s), Version), FILE_RESULT_SUCCESS);
    QCOMPARE(file.save(path(u"2"_s), Version), FILE_RESULT_SUCCESS);
    QByteArray buffer = "old";
    QCOMPARE(file.saveBuffer(buffer, Version), FILE_RESULT_SUCCESS);
    QByteArray other = "old";
    QCOMPARE(file.saveToBuffer(other, Version), FILE_RESULT_SUCCESS);
    QCOMPARE(Files::read(path(u"1"_s)), expected);
    QCOMPARE(Files::read(path(u"2"_s)), expected);
    QCOMPARE(buffer, expected);
    QCOMPARE(other, expected);
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cdevicesettingsfilev10::saveWithVersionInVariable()
{
    // The base class saves with a text that it may write an error into; what is a version to the
    // caller must not be taken for that.
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QVERIFY(file.createNewDocument(u"VornDeviceSettings"_s, Version));
    QString version = Version;
    const auto result = file.save(path(u"missing/a"_s), version);
    const bool isResult = std::is_same<decltype(result), const EFileResult>::value;
    QVERIFY(isResult);
    QVERIFY(result == FILE_RESULT_FAILURE);
    QCOMPARE(version, Version);
}

void tst_cdevicesettingsfilev10::saveFails()
{
    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(&log);
    QVERIFY(file.createNewDocument(u"VornDeviceSettings"_s, Version));
    file.setDeviceSettings(settings(u"a\u0001b"_s));
    QVERIFY(Files::write(path(), "old"));
    QByteArray buffer = "old";
    QCOMPARE(file.saveFile(path(), Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.save(path(), Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.saveBuffer(buffer, Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.saveToBuffer(buffer, Version), FILE_RESULT_FAILURE);
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(buffer, QByteArray("old"));
    QCOMPARE(catcher.criticals().size(), 4);
    QCOMPARE(catcher.messages().size(), 4);
    for (const MessageCatcher::Message &message : catcher.messages()) {
        QCOMPARE(message.log, static_cast<ICLogfile *>(&log));
    }
}

QTEST_GUILESS_MAIN(tst_cdevicesettingsfilev10)
#include "tst_cdevicesettingsfilev10.moc"
