#include "support/Files.h"
#include "support/FileSavers.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace FileSavers;

namespace {

/** While it lives, a directory takes no new files from an ordinary user. */
class ReadOnlyDirectory
{
public:
    explicit ReadOnlyDirectory(const QString &path) : m_path(path), m_isOk(setMode(path, 0555)) { }
    ~ReadOnlyDirectory() { setMode(m_path, 0700); }

    bool isOk() const { return m_isOk; }

private:
    Q_DISABLE_COPY(ReadOnlyDirectory)

    const QString m_path;
    const bool m_isOk;
};

} // namespace

Q_DECLARE_METATYPE(SSaver)

/** What cannot be replaced and is written in place: read-only directories, devices, pipes. */
class tst_replacingfiles_inplace : public FileSaverTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void inPlace_data();
    void inPlace();
    void inPlaceThroughLink_data() { addSavers(); }
    void inPlaceThroughLink();
    void inPlaceOnFullDisk_data();
    void inPlaceOnFullDisk();
    void inPlaceWithoutReading_data() { addSavers(); }
    void inPlaceWithoutReading();
    void newFileInReadOnlyDirectory_data() { addSavers(); }
    void newFileInReadOnlyDirectory();
    void readOnlyFile_data();
    void readOnlyFile();
    void fullDevice_data() { addSavers(); }
    void fullDevice();
    void nullDevice_data() { addSavers(); }
    void nullDevice();
    void pipeWithoutReader_data() { addSavers(); }
    void pipeWithoutReader();
    void pipeWithReader_data() { addSavers(); }
    void pipeWithReader();
};

void tst_replacingfiles_inplace::inPlace_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("oldSize");

    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, empty", saver.name) << saver << 0;
        QTest::addRow("%s, shorter", saver.name) << saver << 50;
        QTest::addRow("%s, as long", saver.name) << saver << saver.text().size();
        QTest::addRow("%s, longer", saver.name) << saver << 5000;
    }
}

void tst_replacingfiles_inplace::inPlace()
{
    QFETCH(SSaver, saver);
    QFETCH(int, oldSize);

    QVERIFY(Files::write(path(), QByteArray(oldSize, 'o')));
    QVERIFY(setMode(path(), 0640));
    const ino_t file = statusOf(path()).st_ino;
    const OrdinaryUser user(m_directory->path(), {u"file"_s});
    QVERIFY(user.isOk());
    const ReadOnlyDirectory directory(m_directory->path());
    QVERIFY(directory.isOk());
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(Files::read(path()), saver.text());
    QCOMPARE(modeOf(path()), 0640);
    QVERIFY(statusOf(path()).st_ino == file);
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles_inplace::inPlaceThroughLink()
{
    QFETCH(SSaver, saver);

    // What counts is the directory of the file, not that of the link.
    QVERIFY(QDir(path(u"."_s)).mkdir(u"locked"_s));
    const QString locked = path(u"locked"_s);
    QVERIFY(Files::write(locked + u"/file"_s, QByteArray(5000, 'o')));
    QCOMPARE(symlink("locked/file", native(path(u"link"_s)).constData()), 0);
    const OrdinaryUser user(m_directory->path(), {u"locked"_s, u"locked/file"_s});
    QVERIFY(user.isOk());
    const ReadOnlyDirectory directory(locked);
    QVERIFY(directory.isOk());
    QCOMPARE(saver.save(path(u"link"_s)), 0);
    QCOMPARE(linkTarget(path(u"link"_s)), QByteArray("locked/file"));
    QCOMPARE(Files::read(locked + u"/file"_s), saver.text());
    QCOMPARE(entries(), (QStringList{u"link"_s, u"locked"_s}));
    QCOMPARE(entries(u"locked"_s), QStringList{u"file"_s});
}

void tst_replacingfiles_inplace::inPlaceOnFullDisk_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("oldSize");
    QTest::addColumn<int>("space");

    // What a file has already it keeps on a full disk, so the limit is never below the old size.
    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, empty", saver.name) << saver << 0 << MaxFileSize;
        QTest::addRow("%s, shorter", saver.name) << saver << 50 << MaxFileSize;
        QTest::addRow("%s, no space at all", saver.name) << saver << 50 << 50;
        QTest::addRow("%s, one byte short", saver.name) << saver << 50 << saver.text().size() - 1;
    }
}

void tst_replacingfiles_inplace::inPlaceOnFullDisk()
{
    QFETCH(SSaver, saver);
    QFETCH(int, oldSize);
    QFETCH(int, space);

    const QByteArray old(oldSize, 'o');
    QVERIFY(Files::write(path(), old));
    const OrdinaryUser user(m_directory->path(), {u"file"_s});
    QVERIFY(user.isOk());
    const ReadOnlyDirectory directory(m_directory->path());
    QVERIFY(directory.isOk());
    int result = 0;
    {
        const FullDisk full(static_cast<rlim_t>(space));
        result = saver.save(path());
    }
    QCOMPARE(result, saver.notFinished);
    QCOMPARE(Files::read(path()), old);
    QCOMPARE(entries(), QStringList{u"file"_s});
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(Files::read(path()), saver.text());
}

void tst_replacingfiles_inplace::inPlaceWithoutReading()
{
    QFETCH(SSaver, saver);

    // An old content that cannot be read could not be put back, either.
    QVERIFY(Files::write(path(), "old"));
    {
        const OrdinaryUser user(m_directory->path(), {u"file"_s});
        QVERIFY(user.isOk());
        QVERIFY(setMode(path(), 0200));
        const ReadOnlyDirectory directory(m_directory->path());
        QVERIFY(directory.isOk());
        QCOMPARE(saver.save(path()), saver.notOpened);
        QVERIFY(setMode(path(), 0600));
        QCOMPARE(Files::read(path()), QByteArray("old"));
    }
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles_inplace::newFileInReadOnlyDirectory()
{
    QFETCH(SSaver, saver);

    const OrdinaryUser user(m_directory->path());
    QVERIFY(user.isOk());
    const ReadOnlyDirectory directory(m_directory->path());
    QVERIFY(directory.isOk());
    QCOMPARE(saver.save(path()), saver.notOpened);
    QCOMPARE(entries(), QStringList());
}

void tst_replacingfiles_inplace::readOnlyFile_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("mode");

    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, readable", saver.name) << saver << 0444;
        QTest::addRow("%s, not even that", saver.name) << saver << 0;
    }
}

void tst_replacingfiles_inplace::readOnlyFile()
{
    QFETCH(SSaver, saver);
    QFETCH(int, mode);

    QVERIFY(Files::write(path(), "old"));
    const OrdinaryUser user(m_directory->path(), {u"file"_s});
    QVERIFY(user.isOk());
    QVERIFY(setMode(path(), mode));
    const ino_t file = statusOf(path()).st_ino;
    QCOMPARE(saver.save(path()), saver.notOpened);
    QCOMPARE(modeOf(path()), mode);
    QVERIFY(statusOf(path()).st_ino == file);
    QVERIFY(setMode(path(), 0600));
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles_inplace::fullDevice()
{
    QFETCH(SSaver, saver);

    const QString device = u"/dev/full"_s;
    if (!S_ISCHR(statusOf(device).st_mode)) {
        QSKIP("There is no such device.", 0);
    }
    // An ordinary user could not replace the device, whatever is tried.
    const OrdinaryUser user;
    QVERIFY(user.isOk());
    QCOMPARE(saver.save(device), saver.notFinished);
    QVERIFY(S_ISCHR(statusOf(device).st_mode));
}

void tst_replacingfiles_inplace::nullDevice()
{
    QFETCH(SSaver, saver);

    const QString device = u"/dev/null"_s;
    QVERIFY(S_ISCHR(statusOf(device).st_mode));
    const OrdinaryUser user;
    QVERIFY(user.isOk());
    QCOMPARE(saver.save(device), 0);
    QVERIFY(S_ISCHR(statusOf(device).st_mode));
}

void tst_replacingfiles_inplace::pipeWithoutReader()
{
    QFETCH(SSaver, saver);

    QCOMPARE(mkfifo(native(path()).constData(), 0666), 0);
    QCOMPARE(saver.save(path()), saver.notOpened);
    QVERIFY(S_ISFIFO(statusOf(path()).st_mode));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles_inplace::pipeWithReader()
{
    QFETCH(SSaver, saver);

    QCOMPARE(mkfifo(native(path()).constData(), 0666), 0);
    const int reader = open(native(path()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    const int result = saver.save(path());
    char byte = 0;
    const ssize_t size = read(reader, &byte, 1);
    close(reader);
    QCOMPARE(result, saver.notOpened);
    QVERIFY(size <= 0);
    QVERIFY(S_ISFIFO(statusOf(path()).st_mode));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

QTEST_APPLESS_MAIN(tst_replacingfiles_inplace)
#include "tst_replacingfiles_inplace.moc"
