#include "settings/CDeviceSettingsFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/Places.h"
#include "support/RecordingLog.h"
#include "support/SampleSettings.h"
#include "support/SettingsDocuments.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace SettingsDocuments;

Q_DECLARE_METATYPE(CDeviceSettings)
Q_DECLARE_METATYPE(NvrnGlobal::EFileResult)

namespace {

using NvrnGlobal::FILE_RESULT_VERSION_MISMATCH;
using SampleSettings::document;

struct ValidFile {
    const char *name;
    CDeviceSettings settings;
};

QList<ValidFile> validFiles()
{
    const CDeviceSettings press = settings(u"Press"_s, {{0, u"Feed"_s}, {7, u"Cutter"_s}});
    return {
        {"byte-order-mark", press},         {"drive-numbers-to-skip", press},
        {"full", fullSettings()},           {"no-final-newline", press},
        {"nothing-set", CDeviceSettings()}, {"one-line", press},
        {"root-alone", CDeviceSettings()},  {"same-drive-number-twice", press},
        {"unknown-content", press},         {"windows-line-ends", press},
        {"without-declaration", press},     {"without-device", CDeviceSettings()},
        {"without-header", press},
    };
}

struct InvalidFile {
    const char *name;
    EFileResult result;
};

/** The files of the directory "invalid", named after their fault. */
const InvalidFile InvalidFiles[] = {
    {"configuration-document", FILE_RESULT_FAILURE},
    {"control-character-reference", FILE_RESULT_FAILURE},
    {"empty", FILE_RESULT_FAILURE},
    {"entity-expansion", FILE_RESULT_FAILURE},
    {"external-entity", FILE_RESULT_FAILURE},
    {"higher-version", FILE_RESULT_VERSION_MISMATCH},
    {"invalid-utf8", FILE_RESULT_FAILURE},
    {"lower-version", FILE_RESULT_VERSION_MISMATCH},
    {"mismatched-end-tag", FILE_RESULT_FAILURE},
    {"nested-too-deep", FILE_RESULT_FAILURE},
    {"no-xml", FILE_RESULT_FAILURE},
    {"null-character", FILE_RESULT_FAILURE},
    {"only-blanks", FILE_RESULT_FAILURE},
    {"only-declaration", FILE_RESULT_FAILURE},
    {"same-version-in-other-words", FILE_RESULT_VERSION_MISMATCH},
    {"second-root", FILE_RESULT_FAILURE},
    {"settings-below-another-root", FILE_RESULT_FAILURE},
    {"text-behind-root", FILE_RESULT_FAILURE},
    {"truncated-before-root-end", FILE_RESULT_FAILURE},
    {"truncated-in-tag", FILE_RESULT_FAILURE},
    {"truncated-in-text", FILE_RESULT_FAILURE},
    {"version-empty", FILE_RESULT_FAILURE},
    {"version-is-no-revision", FILE_RESULT_FAILURE},
    {"version-missing", FILE_RESULT_FAILURE},
    {"wrong-case-of-document-type", FILE_RESULT_FAILURE},
};

QStringList filesOf(const QString &directory)
{
    return Files::names(Places::data("settings/") + directory);
}

} // namespace

class tst_cdevicesettingsfile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void defaults();
    void openValidFile_data();
    void openValidFile();
    void everyValidFileIsTested();
    void openInvalidFile_data();
    void openInvalidFile();
    void everyInvalidFileIsTested();
    void openFails_data();
    void openFails();
    void openPipe();
    void openUnreadable();
    void garbage_data();
    void garbage();
    void manySubDevices();
    void openAgain();
    void versionMessage();
    void unknownVersion_data();
    void unknownVersion();

    void withoutLog();

private:
    QString path(const QString &name = u"settings.3conf"_s) const
    {
        return m_directory->filePath(name);
    }

    QStringList names() const { return Files::names(m_directory->path()); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdevicesettingsfile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdevicesettingsfile::defaults()
{
    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceSettingsFile file(&log);
    QCOMPARE(file.defaultFileName(), u"settings.3conf"_s);
    QVERIFY(file.deviceSettings().isNull());
    file.setDeviceSettings(Previous);
    QVERIFY(file.deviceSettings() == Previous);
    file.setDeviceSettings(CDeviceSettings());
    QVERIFY(file.deviceSettings().isNull());
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());
    QVERIFY(std::has_virtual_destructor<CDeviceSettingsFile>::value);
}

void tst_cdevicesettingsfile::openValidFile_data()
{
    QTest::addColumn<CDeviceSettings>("expected");

    for (const ValidFile &row : validFiles()) {
        QTest::newRow(row.name) << row.settings;
    }
}

void tst_cdevicesettingsfile::openValidFile()
{
    QFETCH(CDeviceSettings, expected);

    const QString source = dataPath(u"valid/"_s + QString::fromLatin1(QTest::currentDataTag()));
    const QByteArray bytes = Files::read(source);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(Files::write(path(), bytes));

    WatchedFile fromFile;
    QCOMPARE(fromFile->open(path(), Version), FILE_RESULT_SUCCESS);
    QVERIFY(fromFile->deviceSettings() == expected);
    QVERIFY(fromFile.isSilent());
    QCOMPARE(Files::read(path()), bytes);
    QCOMPARE(names(), QStringList{u"settings.3conf"_s});
    // What was read is kept, and not the file.
    QVERIFY(QFile::remove(path()));
    QVERIFY(fromFile->deviceSettings() == expected);

    WatchedFile fromBuffer;
    QCOMPARE(fromBuffer->openFromBuffer(bytes, Version), FILE_RESULT_SUCCESS);
    QVERIFY(fromBuffer->deviceSettings() == expected);
    QVERIFY(fromBuffer.isSilent());
}

void tst_cdevicesettingsfile::everyValidFileIsTested()
{
    QStringList tested;
    for (const ValidFile &row : validFiles()) {
        tested << QString::fromLatin1(row.name) + u".3conf"_s;
    }
    QCOMPARE(filesOf(u"valid"_s), tested);
    // That these two are what their names say is all they are for.
    QVERIFY(Files::read(dataPath(u"valid/windows-line-ends"_s)).contains("\r\n"));
    QVERIFY(Files::read(dataPath(u"valid/byte-order-mark"_s)).startsWith("\xef\xbb\xbf"));
}

void tst_cdevicesettingsfile::openInvalidFile_data()
{
    QTest::addColumn<EFileResult>("result");

    for (const InvalidFile &row : InvalidFiles) {
        QTest::newRow(row.name) << row.result;
    }
}

void tst_cdevicesettingsfile::openInvalidFile()
{
    QFETCH(EFileResult, result);

    const QString source = dataPath(u"invalid/"_s + QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(QFile::exists(source));
    {
        WatchedFile fromFile;
        QCOMPARE(fromFile->open(source, Version), result);
        QVERIFY(fromFile.hasFailedOnce());
    }
    {
        WatchedFile fromBuffer;
        QCOMPARE(fromBuffer->openFromBuffer(Files::read(source), Version), result);
        QVERIFY(fromBuffer.hasFailedOnce());
    }
}

void tst_cdevicesettingsfile::everyInvalidFileIsTested()
{
    QStringList tested;
    for (const InvalidFile &row : InvalidFiles) {
        tested << QString::fromLatin1(row.name) + u".3conf"_s;
    }
    QCOMPARE(filesOf(u"invalid"_s), tested);
}

void tst_cdevicesettingsfile::openFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing file") << u"missing.3conf"_s;
    QTest::newRow("missing directory") << u"missing/settings.3conf"_s;
    QTest::newRow("directory in place of the file") << u"directory"_s;
    QTest::newRow("directory with separator") << u"directory/"_s;
    QTest::newRow("file in place of the directory") << u"file/settings.3conf"_s;
    QTest::newRow("link to nothing") << u"nowhere"_s;
    QTest::newRow("link to itself") << u"loop"_s;
    QTest::newRow("name with place markers") << u"%1 %2.3conf"_s;
}

void tst_cdevicesettingsfile::openFails()
{
    QFETCH(QString, name);

    QVERIFY(QDir(m_directory->path()).mkdir(u"directory"_s));
    QVERIFY(Files::write(path(u"file"_s), document("")));
    QVERIFY(QFile::link(path(u"missing.3conf"_s), path(u"nowhere"_s)));
    QVERIFY(QFile::link(path(u"loop"_s), path(u"loop"_s)));
    const QStringList before = names();

    WatchedFile watched;
    QCOMPARE(watched->open(path(name), Version), FILE_RESULT_FAILURE);
    QVERIFY(watched.hasFailedOnce());
    QVERIFY2(watched.criticals().constFirst().contains(path(name)),
             qPrintable(watched.criticals().constFirst()));
    QCOMPARE(names(), before);

    WatchedFile unnamed;
    QCOMPARE(unnamed->open(QString(), Version), FILE_RESULT_FAILURE);
    QVERIFY(unnamed->deviceSettings() == Previous);
}

void tst_cdevicesettingsfile::openPipe()
{
    // Nobody ever writes into it: whoever waits for a document waits for ever.
    QCOMPARE(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    WatchedFile watched;
    QCOMPARE(watched->open(path(), Version), FILE_RESULT_FAILURE);
    QVERIFY(watched.hasFailedOnce());
    QCOMPARE(names(), QStringList{u"settings.3conf"_s});
}

void tst_cdevicesettingsfile::openUnreadable()
{
    QVERIFY(Files::write(path(), document("")));
    const OrdinaryUser user(m_directory->path(), {u"settings.3conf"_s});
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::WriteOwner));
    WatchedFile watched;
    QCOMPARE(watched->open(path(), Version), FILE_RESULT_FAILURE);
    QVERIFY(watched.hasFailedOnce());
}

void tst_cdevicesettingsfile::garbage_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const int size = 4 * 1024 * 1024;
    QByteArray noise(size, '\0');
    quint32 state = 1;
    for (char &byte : noise) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<char>(state >> 24);
    }
    const QByteArray good = document(" <Device>\n  <Name>Press</Name>\n </Device>\n");
    QTest::newRow("noise") << noise;
    QTest::newRow("zeros") << QByteArray(size, '\0');
    QTest::newRow("letters") << QByteArray(size, 'x');
    QTest::newRow("blanks") << QByteArray(size, ' ');
    QTest::newRow("line ends") << QByteArray(size, '\n');
    QTest::newRow("opening marks") << QByteArray(size, '<');
    QTest::newRow("ampersands in a text")
        << document(" <Device><Name>" + QByteArray(size, '&') + "</Name></Device>");
    QTest::newRow("start tags") << QByteArray("<A>").repeated(size / 3);
    QTest::newRow("noise behind a document") << good + noise;
    QTest::newRow("noise in a text") << QByteArray(good).replace("Press", noise);
    QTest::newRow("text without end")
        << "<VornDeviceSettings version=\"1.0\"><Device><Name>" + QByteArray(size, 'x');
    QTest::newRow("comment without end")
        << "<VornDeviceSettings version=\"1.0\"><!--" + QByteArray(size, 'x');
    QTest::newRow("attribute without end")
        << "<VornDeviceSettings version=\"" + QByteArray(size, 'x');
}

void tst_cdevicesettingsfile::garbage()
{
    QFETCH(QByteArray, bytes);

    {
        WatchedFile fromBuffer;
        QCOMPARE(fromBuffer->openFromBuffer(bytes, Version), FILE_RESULT_FAILURE);
        QVERIFY(fromBuffer.hasFailedOnce());
        // Nobody wants to read all of it in a message.
        QVERIFY(fromBuffer.criticals().constFirst().size() < 1000);
    }
    QVERIFY(Files::write(path(), bytes));
    WatchedFile fromFile;
    QCOMPARE(fromFile->open(path(), Version), FILE_RESULT_FAILURE);
    QVERIFY(fromFile.hasFailedOnce());
}

void tst_cdevicesettingsfile::manySubDevices()
{
    QByteArray content = " <Device>\n  <Name>Press</Name>\n";
    for (int i = 0; i < 100000; ++i) {
        const QByteArray number = QByteArray::number(i);
        content +=
            "<SubDevice><DriveNo>" + number + "</DriveNo><Name>" + number + "</Name></SubDevice>\n";
    }
    WatchedFile watched;
    QCOMPARE(watched->openFromBuffer(document(content + " </Device>\n"), Version),
             FILE_RESULT_SUCCESS);
    QVERIFY(watched.isSilent());
    // Every drive number came hundreds of times, and the last name counts.
    CDeviceSettings expected = settings(u"Press"_s);
    for (int i = 100000 - 256; i < 100000; ++i) {
        expected.setSubDeviceName(QString::number(i), static_cast<quint8>(i % 256));
    }
    QVERIFY(watched->deviceSettings() == expected);
}

void tst_cdevicesettingsfile::openAgain()
{
    // Each opening replaces everything, or nothing.
    const MessageCatcher catcher;
    CDeviceSettingsFile file(nullptr);
    QCOMPARE(file.open(dataPath(u"valid/full"_s), Version), FILE_RESULT_SUCCESS);
    QVERIFY(file.deviceSettings() == fullSettings());
    QCOMPARE(file.open(dataPath(u"invalid/second-root"_s), Version), FILE_RESULT_FAILURE);
    QVERIFY(file.deviceSettings() == fullSettings());
    QCOMPARE(file.open(dataPath(u"invalid/higher-version"_s), Version),
             FILE_RESULT_VERSION_MISMATCH);
    QVERIFY(file.deviceSettings() == fullSettings());
    QCOMPARE(file.open(dataPath(u"valid/one-line"_s), u"1.1"_s), FILE_RESULT_FAILURE);
    QVERIFY(file.deviceSettings() == fullSettings());
    QCOMPARE(file.open(dataPath(u"valid/without-header"_s), Version), FILE_RESULT_SUCCESS);
    QVERIFY(file.deviceSettings() == settings(u"Press"_s, {{0, u"Feed"_s}, {7, u"Cutter"_s}}));
    QCOMPARE(file.open(dataPath(u"valid/without-device"_s), Version), FILE_RESULT_SUCCESS);
    QVERIFY(file.deviceSettings().isNull());
}

void tst_cdevicesettingsfile::versionMessage()
{
    WatchedFile watched;
    QCOMPARE(watched->open(dataPath(u"invalid/higher-version"_s), Version),
             FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(
        watched.criticals(),
        QStringList{u"Device settings file version error: required 1000000, existing 2000000"_s});
}

void tst_cdevicesettingsfile::unknownVersion_data()
{
    QTest::addColumn<QString>("version");

    QTest::newRow("higher") << u"1.1"_s;
    QTest::newRow("much higher") << u"2.0"_s;
    QTest::newRow("lower") << u"0.9"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("the same in other words") << u"1"_s;
    QTest::newRow("the same with a third number") << u"1.0.0"_s;
    QTest::newRow("the same with zeros in front") << u"01.0"_s;
    QTest::newRow("ten") << u"1.00"_s;
    QTest::newRow("blank behind") << u"1.0 "_s;
    QTest::newRow("blank in front") << u" 1.0"_s;
    QTest::newRow("comma") << u"1,0"_s;
    QTest::newRow("letter in front") << u"V1.0"_s;
    QTest::newRow("no revision") << u"new"_s;
}

void tst_cdevicesettingsfile::unknownVersion()
{
    QFETCH(QString, version);

    const QByteArray old = document(" <Device>\n  <Name>Press</Name>\n </Device>\n",
                                    " version=\"" + version.toUtf8() + "\"");
    QVERIFY(Files::write(path(), old));
    QByteArray buffer = "old";
    WatchedFile watched;
    // Also when the document is of that very version, or when there is no document.
    QCOMPARE(watched->open(path(), version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->open(path(u"missing"_s), version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->openFromBuffer(old, version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->openFromBuffer("no document", version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->save(path(), version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->save(path(u"new"_s), version), FILE_RESULT_FAILURE);
    QCOMPARE(watched->saveToBuffer(buffer, version), FILE_RESULT_FAILURE);
    QVERIFY(watched.isSilent());
    QVERIFY(watched->deviceSettings() == Previous);
    QCOMPARE(Files::read(path()), old);
    QCOMPARE(names(), QStringList{u"settings.3conf"_s});
    QCOMPARE(buffer, QByteArray("old"));

    // The next operation is not concerned.
    QCOMPARE(watched->open(dataPath(u"valid/full"_s), Version), FILE_RESULT_SUCCESS);
    QVERIFY(watched->deviceSettings() == fullSettings());
}

void tst_cdevicesettingsfile::withoutLog()
{
    const MessageCatcher catcher;
    CDeviceSettingsFile file(nullptr);
    QCOMPARE(file.open(path(), Version), FILE_RESULT_FAILURE);
    QCOMPARE(file.open(dataPath(u"invalid/higher-version"_s), Version),
             FILE_RESULT_VERSION_MISMATCH);
    QCOMPARE(file.save(path(u"missing/a"_s), Version), FILE_RESULT_FAILURE);
    QCOMPARE(catcher.criticals().size(), 3);
    for (const MessageCatcher::Message &message : catcher.messages()) {
        QVERIFY(message.log == nullptr);
    }
}

REGISTER_GUILESS_TEST(tst_cdevicesettingsfile)
#include "tst_cdevicesettingsfile.moc"
