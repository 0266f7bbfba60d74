#include "settings/CDeviceSettingsFile.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/RecordingLog.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <type_traits>

#include <sys/stat.h>

using NvrnGlobal::EFileResult;
using NvrnGlobal::FILE_RESULT_FAILURE;
using NvrnGlobal::FILE_RESULT_SUCCESS;
using NvrnGlobal::FILE_RESULT_VERSION_MISMATCH;
using SampleSettings::document;
using SampleSettings::settings;

using Names = QMap<quint8, QString>;

Q_DECLARE_METATYPE(CDeviceSettings)
Q_DECLARE_METATYPE(NvrnGlobal::EFileResult)

namespace {

const QString Version = QStringLiteral("1.0");

QString dataPath(const QString &name)
{
    return QStringLiteral(VRN_TEST_DATA_DIR "/settings/%1.3conf").arg(name);
}

/** What the file "full" of the directory "valid" holds. */
CDeviceSettings fullSettings()
{
    return settings(u"Press <3> & Größe"_s,
                    {{10, u""_s}, {255, u" spare "_s}, {0, u"Feed"_s}, {7, u"軸 <7>"_s}});
}

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
    return Files::names(QStringLiteral(VRN_TEST_DATA_DIR "/settings/") + directory);
}

const CDeviceSettings Previous =
    settings(QStringLiteral("previous"), {{3, QStringLiteral("previous")}});

/** A file that holds Previous, and what it tells while it works. */
class WatchedFile
{
public:
    WatchedFile() { m_file.setDeviceSettings(Previous); }

    CDeviceSettingsFile *operator->() { return &m_file; }

    /** Whether the last operation, the first one so far, failed as it should, and said so once. */
    bool hasFailedOnce() const
    {
        return m_file.deviceSettings() == Previous && m_catcher.messages().size() == 1
            && m_catcher.criticals().size() == 1 && !m_catcher.criticals().constFirst().isEmpty()
            && m_catcher.messages().constFirst().log == &m_log && m_log.entries().size() == 1;
    }

    /** Whether nothing was said so far. */
    bool isSilent() const { return m_catcher.messages().isEmpty() && m_log.entries().isEmpty(); }

    QStringList criticals() const { return m_catcher.criticals(); }

private:
    // Its author is not that of the documents.
    RecordingLog m_log{QStringLiteral("A. Engineer")};
    MessageCatcher m_catcher;
    CDeviceSettingsFile m_file{&m_log};
};

/** Replaces the date of today in the header of @p saved by that of the files with references. */
QByteArray withDateOfReference(QByteArray saved, QDate earliest)
{
    const QByteArray tag = "  <Date>";
    const int start = saved.indexOf(tag) + tag.size();
    const QDate date = QDate::fromString(QString::fromLatin1(saved.mid(start, 10)), Qt::ISODate);
    if (date >= earliest && date <= QDate::currentDate()) {
        saved.replace(start, 10, "2026-01-31");
    }
    return saved;
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

    void save_data();
    void save();
    void savedDocumentIsNew();
    void saveTwice();
    void roundTrip_data();
    void roundTrip();
    void saveFails_data();
    void saveFails();
    void saveIntoReadOnlyDirectory();
    void saveOnFullDisk();
    void unwritableText_data();
    void unwritableText();
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

void tst_cdevicesettingsfile::save_data()
{
    QTest::addColumn<CDeviceSettings>("saved");
    QTest::addColumn<QString>("reference");

    QTest::newRow("full") << fullSettings() << u"valid/full"_s;
    QTest::newRow("nothing set") << CDeviceSettings() << u"valid/nothing-set"_s;
}

void tst_cdevicesettingsfile::save()
{
    QFETCH(CDeviceSettings, saved);
    QFETCH(QString, reference);

    const QByteArray expected = Files::read(dataPath(reference));
    const QDate today = QDate::currentDate();
    WatchedFile watched;
    watched->setDeviceSettings(saved);
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_SUCCESS);
    QByteArray buffer = "old";
    QCOMPARE(watched->saveToBuffer(buffer, Version), FILE_RESULT_SUCCESS);

    QCOMPARE(withDateOfReference(Files::read(path()), today), expected);
    QCOMPARE(withDateOfReference(buffer, today), expected);
    QCOMPARE(names(), QStringList{u"settings.3conf"_s});
    QVERIFY(watched->deviceSettings() == saved);
    QVERIFY(watched.isSilent());
}

void tst_cdevicesettingsfile::savedDocumentIsNew()
{
    // Nothing of a document that was read, or that lies at the place, is in the one that is saved.
    QVERIFY(QFile::copy(dataPath(u"valid/unknown-content"_s), path()));
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    const QDate today = QDate::currentDate();
    WatchedFile watched;
    QCOMPARE(watched->open(path(), Version), FILE_RESULT_SUCCESS);
    watched->setDeviceSettings(fullSettings());
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_SUCCESS);
    QCOMPARE(withDateOfReference(Files::read(path()), today),
             Files::read(dataPath(u"valid/full"_s)));

    // Nor a longer content.
    QVERIFY(Files::write(path(), QByteArray(100000, 'x')));
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_SUCCESS);
    QCOMPARE(withDateOfReference(Files::read(path()), today),
             Files::read(dataPath(u"valid/full"_s)));
}

void tst_cdevicesettingsfile::saveTwice()
{
    const QDate today = QDate::currentDate();
    WatchedFile watched;
    watched->setDeviceSettings(fullSettings());
    QByteArray first;
    QByteArray second;
    QCOMPARE(watched->saveToBuffer(first, Version), FILE_RESULT_SUCCESS);
    QCOMPARE(watched->saveToBuffer(second, Version), FILE_RESULT_SUCCESS);
    QVERIFY(!first.isEmpty());
    QCOMPARE(withDateOfReference(second, today), withDateOfReference(first, today));
}

void tst_cdevicesettingsfile::roundTrip_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"Press"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("blank") << u" "_s;
    QTest::newRow("blanks at both ends") << u"  a  b  "_s;
    QTest::newRow("line breaks") << u"\na\r\nb\r"_s;
    QTest::newRow("marks") << u"<a href=\"b\">&amp;'</a> ]]>"_s;
    QTest::newRow("looks like an element") << u"<SubDevice><DriveNo>1</DriveNo></SubDevice>"_s;
    QTest::newRow("non-Latin") << u"Größe 軸 א 😀"_s;
    QTest::newRow("dotless and dotted i") << u"ıİiI"_s;
    QTest::newRow("place markers") << u"%1 %2"_s;
    QTest::newRow("long") << QString(20000, QLatin1Char('x'));
}

void tst_cdevicesettingsfile::roundTrip()
{
    QFETCH(QString, name);

    CDeviceSettings saved = settings(name);
    for (int driveNo = 0; driveNo < 256; ++driveNo) {
        saved.setSubDeviceName(driveNo % 5 == 0 ? name : QString::number(driveNo),
                               static_cast<quint8>(driveNo));
    }
    WatchedFile watched;
    watched->setDeviceSettings(saved);
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_SUCCESS);
    QByteArray buffer;
    QCOMPARE(watched->saveToBuffer(buffer, Version), FILE_RESULT_SUCCESS);

    watched->setDeviceSettings(Previous);
    QCOMPARE(watched->open(path(), Version), FILE_RESULT_SUCCESS);
    QVERIFY(watched->deviceSettings() == saved);
    watched->setDeviceSettings(Previous);
    QCOMPARE(watched->openFromBuffer(buffer, Version), FILE_RESULT_SUCCESS);
    QVERIFY(watched->deviceSettings() == saved);
    QVERIFY(watched.isSilent());
}

void tst_cdevicesettingsfile::saveFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing directory") << u"missing/settings.3conf"_s;
    QTest::newRow("directory in place of the file") << u"directory"_s;
    QTest::newRow("file in place of the directory") << u"file/settings.3conf"_s;
    QTest::newRow("pipe in place of the file") << u"pipe"_s;
    QTest::newRow("missing directory with place markers") << u"%1/%2"_s;
}

void tst_cdevicesettingsfile::saveFails()
{
    QFETCH(QString, name);

    QVERIFY(QDir(m_directory->path()).mkdir(u"directory"_s));
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    QVERIFY(Files::write(path(u"file"_s), "old"));
    const QStringList before = names();

    WatchedFile watched;
    QCOMPARE(watched->save(path(name), Version), FILE_RESULT_FAILURE);
    QVERIFY(watched.hasFailedOnce());
    QVERIFY2(watched.criticals().constFirst().contains(path(name)),
             qPrintable(watched.criticals().constFirst()));
    QCOMPARE(names(), before);
    QCOMPARE(Files::names(path(u"directory"_s)), QStringList());
    QCOMPARE(Files::read(path(u"file"_s)), QByteArray("old"));

    // The settings can still be saved elsewhere.
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_SUCCESS);
    QCOMPARE(watched->open(path(), Version), FILE_RESULT_SUCCESS);
    QVERIFY(watched->deviceSettings() == Previous);
}

void tst_cdevicesettingsfile::saveIntoReadOnlyDirectory()
{
    const QStringList fileNames = {u"read-only.3conf"_s, u"writable.3conf"_s};
    QVERIFY(Files::write(path(fileNames.at(0)), "old"));
    QVERIFY(Files::write(path(fileNames.at(1)), "old"));
    const OrdinaryUser user(m_directory->path(), fileNames);
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(fileNames.at(0)), QFileDevice::ReadOwner));
    const QFileDevice::Permissions all = QFile::permissions(m_directory->path());
    QVERIFY(
        QFile::setPermissions(m_directory->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));

    bool newFails = false;
    bool readOnlyFails = false;
    {
        WatchedFile watched;
        newFails = watched->save(path(u"new.3conf"_s), Version) == FILE_RESULT_FAILURE
            && watched.hasFailedOnce();
    }
    {
        WatchedFile watched;
        readOnlyFails = watched->save(path(fileNames.at(0)), Version) == FILE_RESULT_FAILURE
            && watched.hasFailedOnce();
    }
    WatchedFile watched;
    // This one is written in place.
    const EFileResult writable = watched->save(path(fileNames.at(1)), Version);
    QVERIFY(QFile::setPermissions(m_directory->path(), all));

    QVERIFY(newFails);
    QVERIFY(readOnlyFails);
    QCOMPARE(writable, FILE_RESULT_SUCCESS);
    QVERIFY(watched.isSilent());
    QCOMPARE(names(), fileNames);
    QCOMPARE(Files::read(path(fileNames.at(0))), QByteArray("old"));
    QCOMPARE(watched->open(path(fileNames.at(1)), Version), FILE_RESULT_SUCCESS);
    QVERIFY(watched->deviceSettings() == Previous);
}

void tst_cdevicesettingsfile::saveOnFullDisk()
{
    const QByteArray old = Files::read(dataPath(u"valid/full"_s));
    QVERIFY(Files::write(path(), old));
    for (const QString &name : {u"settings.3conf"_s, u"new.3conf"_s}) {
        WatchedFile watched;
        const CDeviceSettings large = settings(u"x"_s, {{3, QString(100000, QLatin1Char('x'))}});
        watched->setDeviceSettings(large);
        EFileResult result = FILE_RESULT_SUCCESS;
        {
            const FullDisk fullDisk(50000);
            result = watched->save(path(name), Version);
        }
        QCOMPARE(result, FILE_RESULT_FAILURE);
        QCOMPARE(watched.criticals().size(), 1);
        QVERIFY(watched->deviceSettings() == large);
        QCOMPARE(Files::read(path()), old);
        QCOMPARE(names(), QStringList{u"settings.3conf"_s});
    }
}

void tst_cdevicesettingsfile::unwritableText_data()
{
    QTest::addColumn<CDeviceSettings>("value");

    QTest::newRow("control character in the device name") << settings(u"a\u0001b"_s);
    QTest::newRow("null character in the device name") << settings(QString(QChar(QChar::Null)));
    QTest::newRow("control character in a sub-device name")
        << settings(u"n"_s, {{3, u"a\u001b[0m"_s}});
    QTest::newRow("half a surrogate pair") << settings(u"n"_s, {{3, QString(QChar(0xd800))}});
}

void tst_cdevicesettingsfile::unwritableText()
{
    QFETCH(CDeviceSettings, value);

    // XML has no way to tell these characters.
    const QByteArray old = Files::read(dataPath(u"valid/full"_s));
    QVERIFY(Files::write(path(), old));
    QByteArray buffer = "old";
    WatchedFile watched;
    watched->setDeviceSettings(value);
    QCOMPARE(watched->save(path(), Version), FILE_RESULT_FAILURE);
    QCOMPARE(watched.criticals().size(), 1);
    QCOMPARE(watched->saveToBuffer(buffer, Version), FILE_RESULT_FAILURE);
    QCOMPARE(watched.criticals().size(), 2);
    QCOMPARE(Files::read(path()), old);
    QCOMPARE(names(), QStringList{u"settings.3conf"_s});
    QCOMPARE(buffer, QByteArray("old"));
    QVERIFY(watched->deviceSettings() == value);
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
