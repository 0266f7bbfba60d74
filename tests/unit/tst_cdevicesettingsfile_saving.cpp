#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "support/SettingsDocuments.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace SettingsDocuments;

Q_DECLARE_METATYPE(CDeviceSettings)
Q_DECLARE_METATYPE(NvrnGlobal::EFileResult)

namespace {

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

/** What is written, and what stays when it cannot be. */
class tst_cdevicesettingsfile_saving : public QObject
{
    Q_OBJECT

private slots:
    void init();

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

private:
    QString path(const QString &name = u"settings.3conf"_s) const
    {
        return m_directory->filePath(name);
    }

    QStringList names() const { return Files::names(m_directory->path()); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdevicesettingsfile_saving::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdevicesettingsfile_saving::save_data()
{
    QTest::addColumn<CDeviceSettings>("saved");
    QTest::addColumn<QString>("reference");

    QTest::newRow("full") << fullSettings() << u"valid/full"_s;
    QTest::newRow("nothing set") << CDeviceSettings() << u"valid/nothing-set"_s;
}

void tst_cdevicesettingsfile_saving::save()
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

void tst_cdevicesettingsfile_saving::savedDocumentIsNew()
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

void tst_cdevicesettingsfile_saving::saveTwice()
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

void tst_cdevicesettingsfile_saving::roundTrip_data()
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

void tst_cdevicesettingsfile_saving::roundTrip()
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

void tst_cdevicesettingsfile_saving::saveFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing directory") << u"missing/settings.3conf"_s;
    QTest::newRow("directory in place of the file") << u"directory"_s;
    QTest::newRow("file in place of the directory") << u"file/settings.3conf"_s;
    QTest::newRow("pipe in place of the file") << u"pipe"_s;
    QTest::newRow("missing directory with place markers") << u"%1/%2"_s;
}

void tst_cdevicesettingsfile_saving::saveFails()
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

void tst_cdevicesettingsfile_saving::saveIntoReadOnlyDirectory()
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

void tst_cdevicesettingsfile_saving::saveOnFullDisk()
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

void tst_cdevicesettingsfile_saving::unwritableText_data()
{
    QTest::addColumn<CDeviceSettings>("value");

    QTest::newRow("control character in the device name") << settings(u"a\u0001b"_s);
    QTest::newRow("null character in the device name") << settings(QString(QChar(QChar::Null)));
    QTest::newRow("control character in a sub-device name")
        << settings(u"n"_s, {{3, u"a\u001b[0m"_s}});
    QTest::newRow("half a surrogate pair") << settings(u"n"_s, {{3, QString(QChar(0xd800))}});
}

void tst_cdevicesettingsfile_saving::unwritableText()
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

QTEST_GUILESS_MAIN(tst_cdevicesettingsfile_saving)
#include "tst_cdevicesettingsfile_saving.moc"
