#include "devicefiles/CDeviceOSReleaseFile.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/FileSavers.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "support/TestProgram.h"

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

class Umask
{
public:
    explicit Umask(int mask) : m_previous(umask(static_cast<mode_t>(mask))) { }
    ~Umask() { umask(m_previous); }

private:
    Q_DISABLE_COPY(Umask)

    const mode_t m_previous;
};

/** While it lives, the super-user is in one more group, and so is every user he becomes. */
class OrdinaryGroup
{
public:
    explicit OrdinaryGroup(gid_t group) : m_previous(100)
    {
        const int count = getgroups(static_cast<int>(m_previous.size()), m_previous.data());
        m_previous.resize(static_cast<size_t>(qMax(count, 0)));
        m_isOk = count >= 0 && setgroups(1, &group) == 0;
    }

    ~OrdinaryGroup()
    {
        if (m_isOk && setgroups(m_previous.size(), m_previous.data()) != 0) {
            qFatal("The groups of the super-user cannot be taken back.");
        }
    }

    bool isOk() const { return m_isOk; }

private:
    Q_DISABLE_COPY(OrdinaryGroup)

    std::vector<gid_t> m_previous;
    bool m_isOk = false;
};

} // namespace

Q_DECLARE_METATYPE(SSaver)

class tst_replacingfiles : public FileSaverTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void replaces_data();
    void replaces();
    void unchangedIsNotWritten_data();
    void unchangedIsNotWritten();
    void permissionsOfUnchanged();
    void causes_data();
    void causes();
    void relativePath_data() { addSavers(); }
    void relativePath();
    void links_data();
    void links();
    void linksThatLeadNowhere_data();
    void linksThatLeadNowhere();
    void modeStays_data();
    void modeStays();
    void modeOfAnOrdinaryUserStays_data() { modeStays_data(); }
    void modeOfAnOrdinaryUserStays();
    void modeOfNewFile_data();
    void modeOfNewFile();
    void ownerStays_data() { addSavers(); }
    void ownerStays();
    void groupStays_data() { addSavers(); }
    void groupStays();
    void hardLink_data() { addSavers(); }
    void hardLink();
    void fullDisk_data();
    void fullDisk();
    void newFileOnFullDisk_data() { addSavers(); }
    void newFileOnFullDisk();
    void lastStepFails_data() { addSavers(); }
    void lastStepFails();
    void names_data();
    void names();
    void longestName_data() { addSavers(); }
    void longestName();
    void manyThreads();
};

void tst_replacingfiles::replaces_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<QByteArray>("old");

    for (const SSaver &saver : Savers) {
        const auto row = [&saver](const char *name, const QByteArray &old) {
            QTest::addRow("%s, %s", saver.name, name) << saver << old;
        };
        row("new", QByteArray());
        row("empty", "");
        row("shorter", "old");
        row("longer", QByteArray(5000, 'x'));
        row("the same", saver.text());
    }
}

void tst_replacingfiles::replaces()
{
    QFETCH(SSaver, saver);
    QFETCH(QByteArray, old);

    QVERIFY(saver.text().size() > MaxFileSize);
    QVERIFY(old.isNull() || Files::write(path(), old));
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(Files::read(path()), saver.text());
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles::unchangedIsNotWritten_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<bool>("isChanged");

    for (const SSaver &saver : Savers) {
        for (const bool isLink : {false, true}) {
            for (const bool isChanged : {false, true}) {
                QTest::addRow("%s, %s%s", saver.name, isChanged ? "changed" : "unchanged",
                              isLink ? ", through a link" : "")
                    << saver << isLink << isChanged;
            }
        }
    }
}

void tst_replacingfiles::unchangedIsNotWritten()
{
    QFETCH(SSaver, saver);
    QFETCH(bool, isLink);
    QFETCH(bool, isChanged);

    QByteArray old = saver.text();
    if (isChanged) {
        old.back() = ' '; // as many bytes
    }
    QVERIFY(Files::write(path(), old));
    const timespec longAgo[] = {{1000, 5}, {2000, 7}};
    QCOMPARE(utimensat(AT_FDCWD, native(path()).constData(), longAgo, 0), 0);
    QVERIFY(!isLink || QFile::link(u"file"_s, path(u"link"_s)));
    const ino_t number = statusOf(path()).st_ino;

    QCOMPARE(saver.save(path(isLink ? u"link"_s : u"file"_s)), 0);
    QCOMPARE(Files::read(path()), saver.text());
    const struct stat status = statusOf(path());
    QCOMPARE(status.st_ino == number, !isChanged);
    QCOMPARE(status.st_mtim.tv_sec == 2000 && status.st_mtim.tv_nsec == 7, !isChanged);
    QCOMPARE(entries().size(), isLink ? 2 : 1);
}

void tst_replacingfiles::permissionsOfUnchanged()
{
    QVERIFY(Files::write(path(), xmlText()));
    QVERIFY(setMode(path(), 0600));
    const ino_t number = statusOf(path()).st_ino;
    XmlFile file;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther);
    QString error;
    QVERIFY2(file.save(path(), error), qPrintable(error));
    QCOMPARE(modeOf(path()), 0604);
    QCOMPARE(statusOf(path()).st_ino, number);
}

void tst_replacingfiles::causes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("cause");

    QTest::newRow("no directory") << u"nothing/file"_s << ENOENT;
    QTest::newRow("directory") << u"."_s << EISDIR;
    QTest::newRow("no name") << u""_s << ENOENT;
    QTest::newRow("disk that is full") << u"/dev/full"_s << ENOSPC;
}

/** The small files tell by a number that they failed, and by a text of the system why. */
void tst_replacingfiles::causes()
{
    QFETCH(QString, name);
    QFETCH(int, cause);

    const QString fileName = name.isEmpty() || name.startsWith(u'/') ? name : path(name);
    CNetworkSettingsFile network;
    CDeviceOSReleaseFile release;
    fill(release);
    QVERIFY(network.errorText().isEmpty());
    QVERIFY(release.errorText().isEmpty());
    QVERIFY(network.save(fileName) != NvrnGlobal::FILE_RESULT_SUCCESS);
    QVERIFY(release.save(fileName) != NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(network.errorText(), qt_error_string(cause));
    QCOMPARE(release.errorText(), qt_error_string(cause));

    // A success takes the text back; what is read fails in the same words.
    QCOMPARE(network.save(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(release.save(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(network.errorText(), QString());
    QCOMPARE(release.errorText(), QString());
    if (cause != ENOSPC) {
        QVERIFY(network.open(fileName) != NvrnGlobal::FILE_RESULT_SUCCESS);
        QVERIFY(release.open(fileName) != NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(network.errorText(), qt_error_string(cause));
        QCOMPARE(release.errorText(), qt_error_string(cause));
    }
}

void tst_replacingfiles::relativePath()
{
    QFETCH(SSaver, saver);

    const QString before = QDir::currentPath();
    QVERIFY(QDir(path(u"."_s)).mkdir(u"directory"_s));
    QVERIFY(QDir::setCurrent(path(u"directory"_s)));
    const int result = saver.save(u"file"_s);
    const int again = saver.save(u"file"_s);
    const int above = saver.save(u"../file"_s);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(result, 0);
    QCOMPARE(again, 0);
    QCOMPARE(above, 0);
    QCOMPARE(Files::read(path(u"directory/file"_s)), saver.text());
    QCOMPARE(Files::read(path()), saver.text());
    QCOMPARE(entries(), (QStringList{u"directory"_s, u"file"_s}));
    QCOMPARE(entries(u"directory"_s), QStringList{u"file"_s});
}

void tst_replacingfiles::links_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("exists");

    for (const SSaver &saver : Savers) {
        for (const char *link : {"absolute", "relative", "sub/up", "chain", "directory/file"}) {
            const QString name = QString::fromLatin1(link);
            QTest::addRow("%s, %s", saver.name, link) << saver << name << true;
            QTest::addRow("%s, %s, dangling", saver.name, link) << saver << name << false;
        }
    }
}

void tst_replacingfiles::links()
{
    QFETCH(SSaver, saver);
    QFETCH(QString, link);
    QFETCH(bool, exists);

    QDir directory(path(u"."_s));
    QVERIFY(directory.mkdir(u"real"_s));
    QVERIFY(directory.mkdir(u"sub"_s));
    const QList<QPair<QString, QString>> all = {
        {u"absolute"_s, path(u"real/file"_s)},
        {u"relative"_s, u"real/file"_s},
        {u"sub/up"_s, u"../real/file"_s},
        // Each one is relative to where it lies, not to where the first one does.
        {u"chain"_s, u"sub/second"_s},
        {u"sub/second"_s, u"../real/third"_s},
        {u"real/third"_s, u"file"_s},
        {u"directory"_s, u"real"_s},
    };
    for (const auto &one : all) {
        QCOMPARE(symlink(native(one.second).constData(), native(path(one.first)).constData()), 0);
    }
    const QString target = path(u"real/file"_s);
    QVERIFY(!exists || Files::write(target, "old"));
    QVERIFY(!exists || setMode(target, 0604));
    const QStringList names = entries();

    QCOMPARE(saver.save(path(link)), 0);
    QCOMPARE(Files::read(target), saver.text());
    QVERIFY(S_ISREG(statusOf(target).st_mode));
    QVERIFY(!exists || modeOf(target) == 0604);
    for (const auto &one : all) {
        QCOMPARE(linkTarget(path(one.first)), native(one.second));
    }
    QCOMPARE(entries(), names);
    QCOMPARE(entries(u"real"_s), (QStringList{u"file"_s, u"third"_s}));
    QCOMPARE(entries(u"sub"_s), (QStringList{u"second"_s, u"up"_s}));
}

void tst_replacingfiles::linksThatLeadNowhere_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<QString>("target");

    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, to itself", saver.name) << saver << u"link"_s;
        QTest::addRow("%s, to each other", saver.name) << saver << u"other"_s;
        QTest::addRow("%s, missing directory", saver.name) << saver << u"missing/file"_s;
        QTest::addRow("%s, directory", saver.name) << saver << u"."_s;
        QTest::addRow("%s, below a file", saver.name) << saver << u"file/file"_s;
    }
}

void tst_replacingfiles::linksThatLeadNowhere()
{
    QFETCH(SSaver, saver);
    QFETCH(QString, target);

    QVERIFY(Files::write(path(), "old"));
    QCOMPARE(symlink(native(target).constData(), native(path(u"link"_s)).constData()), 0);
    QCOMPARE(symlink("link", native(path(u"other"_s)).constData()), 0);
    QCOMPARE(saver.save(path(u"link"_s)), saver.notOpened);
    QCOMPARE(linkTarget(path(u"link"_s)), native(target));
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(entries(), (QStringList{u"file"_s, u"link"_s, u"other"_s}));
}

void tst_replacingfiles::modeStays_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("mode");

    for (const SSaver &saver : Savers) {
        for (const int mode : {0600, 0640, 0644, 0666, 0755, 0200, 04755, 02750, 06711}) {
            QTest::addRow("%s, 0%o", saver.name, static_cast<unsigned>(mode)) << saver << mode;
        }
    }
}

void tst_replacingfiles::modeStays()
{
    QFETCH(SSaver, saver);
    QFETCH(int, mode);

    QVERIFY(Files::write(path(), "old"));
    QVERIFY(setMode(path(), mode));
    const Umask strict(077);
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(modeOf(path()), mode);
    QVERIFY(setMode(path(), 0600));
    QCOMPARE(Files::read(path()), saver.text());
}

void tst_replacingfiles::modeOfAnOrdinaryUserStays()
{
    QFETCH(SSaver, saver);
    QFETCH(int, mode);

    QVERIFY(Files::write(path(), "old"));
    int result = -1;
    {
        const OrdinaryUser user(m_directory->path(), {u"file"_s});
        QVERIFY(user.isOk());
        QVERIFY(setMode(path(), mode));
        result = saver.save(path());
    }
    QCOMPARE(result, 0);
    QCOMPARE(modeOf(path()), mode);
}

void tst_replacingfiles::modeOfNewFile_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("mode");

    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, 0", saver.name) << saver << 0 << 0666;
        QTest::addRow("%s, 022", saver.name) << saver << 022 << 0644;
        QTest::addRow("%s, 027", saver.name) << saver << 027 << 0640;
        QTest::addRow("%s, 077", saver.name) << saver << 077 << 0600;
    }
}

void tst_replacingfiles::modeOfNewFile()
{
    QFETCH(SSaver, saver);
    QFETCH(int, mask);
    QFETCH(int, mode);

    const Umask set(mask);
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(modeOf(path()), mode);
}

void tst_replacingfiles::ownerStays()
{
    QFETCH(SSaver, saver);

    QVERIFY(Files::write(path(), "old"));
    if (geteuid() != 0) {
        QSKIP("Only the super-user can give files away.", 0);
    }
    QCOMPARE(chown(native(path()).constData(), 1234, 2345), 0);
    QVERIFY(setMode(path(), 0640));
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(statusOf(path()).st_uid, uid_t(1234));
    QCOMPARE(statusOf(path()).st_gid, gid_t(2345));
    QCOMPARE(modeOf(path()), 0640);
    QCOMPARE(Files::read(path()), saver.text());
}

void tst_replacingfiles::groupStays()
{
    QFETCH(SSaver, saver);

    QVERIFY(Files::write(path(), "old"));
    if (geteuid() != 0) {
        QSKIP("Only the super-user can set up a file of somebody else.", 0);
    }
    // The owner cannot stay: the file is somebody else's, the group one of the user's.
    QCOMPARE(chown(native(path()).constData(), 1234, 2345), 0);
    QVERIFY(setMode(path(), 0660));
    const OrdinaryGroup group(2345);
    QVERIFY(group.isOk());
    {
        const OrdinaryUser user(m_directory->path());
        QVERIFY(user.isOk());
        QCOMPARE(saver.save(path()), 0);
    }
    QVERIFY(statusOf(path()).st_uid != 1234);
    QCOMPARE(statusOf(path()).st_gid, gid_t(2345));
    QCOMPARE(modeOf(path()), 0660);
    QCOMPARE(Files::read(path()), saver.text());
}

void tst_replacingfiles::hardLink()
{
    QFETCH(SSaver, saver);

    QVERIFY(Files::write(path(), "old"));
    QCOMPARE(link(native(path()).constData(), native(path(u"other"_s)).constData()), 0);
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(Files::read(path()), saver.text());
    QCOMPARE(Files::read(path(u"other"_s)), QByteArray("old"));
}

void tst_replacingfiles::fullDisk_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<int>("oldSize");
    QTest::addColumn<int>("space");

    for (const SSaver &saver : Savers) {
        QTest::addRow("%s, shorter", saver.name) << saver << 50 << MaxFileSize;
        QTest::addRow("%s, longer", saver.name) << saver << 5000 << MaxFileSize;
        QTest::addRow("%s, empty", saver.name) << saver << 0 << MaxFileSize;
        QTest::addRow("%s, no space at all", saver.name) << saver << 50 << 0;
        QTest::addRow("%s, one byte short", saver.name) << saver << 50 << saver.text().size() - 1;
    }
}

void tst_replacingfiles::fullDisk()
{
    QFETCH(SSaver, saver);
    QFETCH(int, oldSize);
    QFETCH(int, space);

    const QByteArray old(oldSize, 'o');
    QVERIFY(Files::write(path(), old));
    int result = 0;
    {
        const FullDisk full(static_cast<rlim_t>(space));
        result = saver.save(path());
    }
    QCOMPARE(result, saver.notFinished);
    QCOMPARE(Files::read(path()), old);
    QCOMPARE(entries(), QStringList{u"file"_s});
    // As soon as there is space it can be saved.
    QCOMPARE(saver.save(path()), 0);
    QCOMPARE(Files::read(path()), saver.text());
}

void tst_replacingfiles::newFileOnFullDisk()
{
    QFETCH(SSaver, saver);

    int result = 0;
    {
        const FullDisk full(MaxFileSize);
        result = saver.save(path());
    }
    QCOMPARE(result, saver.notFinished);
    QCOMPARE(entries(), QStringList());
}

void tst_replacingfiles::lastStepFails()
{
    QFETCH(SSaver, saver);

    // In a sticky directory everybody may add files, but replace only their own.
    QVERIFY(Files::write(path(), "old"));
    QVERIFY(setMode(path(), 0666));
    QVERIFY(setMode(path(u"."_s), 01777));
    bool wasSuperUser = false;
    int result = 0;
    {
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        wasSuperUser = user.wasSuperUser();
        result = saver.save(path());
    }
    if (!wasSuperUser) {
        QSKIP("Only the super-user can set up a file of somebody else.", 0);
    }
    QCOMPARE(result, saver.notFinished);
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

void tst_replacingfiles::names_data()
{
    QTest::addColumn<SSaver>("saver");
    QTest::addColumn<QString>("name");

    for (const SSaver &saver : Savers) {
        const auto row = [&saver](const char *rowName, const QString &name) {
            QTest::addRow("%s, %s", saver.name, rowName) << saver << name;
        };
        row("null", QString());
        row("empty", u""_s);
        row("this directory", u"."_s);
        row("directory above", u".."_s);
        row("directory", u"directory"_s);
        row("directory with slash", u"directory/"_s);
        row("new file with slash", u"new/"_s);
        row("old file with slash", u"file/"_s);
        row("below a file", u"file/new"_s);
        row("missing directory", u"missing/new"_s);
        row("name too long", QString(256, QLatin1Char('x')));
        row("path too long", u"./"_s.repeated(3000) + u"new"_s);
        row("null character", u"\u0000"_s);
        row("null character inside", u"new\u0000.conf"_s);
        row("null character behind an old name", u"file\u0000"_s);
    }
}

void tst_replacingfiles::names()
{
    QFETCH(SSaver, saver);
    QFETCH(QString, name);

    const QString before = QDir::currentPath();
    QVERIFY(QDir(path(u"."_s)).mkdir(u"directory"_s));
    QVERIFY(Files::write(path(), "old"));
    QVERIFY(QDir::setCurrent(path(u"."_s)));
    const int result = saver.save(name);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(result, saver.notOpened);
    QCOMPARE(entries(), (QStringList{u"directory"_s, u"file"_s}));
    QCOMPARE(entries(u"directory"_s), QStringList());
    QCOMPARE(Files::read(path()), QByteArray("old"));
}

void tst_replacingfiles::longestName()
{
    QFETCH(SSaver, saver);

    const QString name(255, QLatin1Char('x'));
    QCOMPARE(saver.save(path(name)), 0);
    QCOMPARE(saver.save(path(name)), 0);
    QCOMPARE(Files::read(path(name)), saver.text());
    QCOMPARE(entries(), QStringList{name});
}

void tst_replacingfiles::manyThreads()
{
    const int count = 4;
    const int turns = 25;
    std::vector<CNetworkSettingsFile> files(count);
    QList<QByteArray> texts;
    for (int i = 0; i < count; ++i) {
        // Of different lengths, so that a mixture of two would show.
        CNetworkSettingsFile &file = files.at(static_cast<size_t>(i));
        QVERIFY(file.setValue(u"NTP_TIMESERVER"_s, QString(2000 * i, QLatin1Char('x'))));
        QByteArray text;
        file.saveToBuffer(text);
        texts << text;
    }
    QCOMPARE(int(files.front().save(path())), 0);

    std::atomic<int> failures{0};
    std::atomic<int> running{count};
    std::vector<std::thread> threads;
    for (CNetworkSettingsFile &file : files) {
        threads.emplace_back([&] {
            for (int turn = 0; turn < turns; ++turn) {
                failures += file.save(path()) == 0 ? 0 : 1;
            }
            --running;
        });
    }
    int mixtures = 0;
    do {
        mixtures += texts.contains(Files::read(path())) ? 0 : 1;
    } while (running > 0);
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(failures.load(), 0);
    QCOMPARE(mixtures, 0);
    QVERIFY(texts.contains(Files::read(path())));
    QCOMPARE(entries(), QStringList{u"file"_s});
}

REGISTER_APPLESS_TEST(tst_replacingfiles)
#include "tst_replacingfiles.moc"
