#include "commissioning/CStagedTree.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "vocabulary/NvrnGlobal.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <clocale>
#include <functional>
#include <memory>

#include <archive.h>
#include <archive_entry.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using EKind = CStagedTree::SDifference::EKind;

const QString Conf = u"velkor/configurations/STD/conf/"_s;
const QByteArray Large = QByteArray(200000, 'x') + QByteArray(100000, 'y');

QByteArray system(const QString &path)
{
    return QFile::encodeName(path);
}

/** "kind path" for each difference. */
QStringList told(const CStagedTree &tree)
{
    const QStringList names = {u"missing"_s,    u"surplus"_s,     u"changed"_s, u"wrong-kind"_s,
                               u"unreadable"_s, u"no-manifest"_s, u"broken"_s};
    QStringList result;
    for (const CStagedTree::SDifference &difference : tree.differences()) {
        result << names.at(difference.kind) + u' ' + difference.path;
    }
    return result;
}

/** Everything that can be told of a tree: names, kinds, modes, times and contents. */
QStringList portrait(const QString &root)
{
    QStringList result;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    QStringList paths = {root};
    while (it.hasNext()) {
        paths << it.next();
    }
    for (const QString &path : qAsConst(paths)) {
        struct stat status = {};
        if (lstat(system(path).constData(), &status) != 0) {
            return {};
        }
        result << QStringLiteral("%1 %2 %3.%4 %5")
                      .arg(path.mid(root.size()), QString::number(status.st_mode, 8),
                           QString::number(status.st_mtim.tv_sec),
                           QString::number(status.st_mtim.tv_nsec),
                           QString::fromLatin1(Files::read(path).toHex()));
    }
    result.sort();
    return result;
}

/** An entry of an archive that is made by hand. */
struct SEntry {
    QByteArray name;
    QByteArray content;
    mode_t type = S_IFREG;
    QByteArray link;
    qint64 claimedSize = -1;
};

/** An archive as somebody else may make it; an entry that claims more than it has ends it. */
QByteArray archiveOf(const QList<SEntry> &entries, bool compressed = true)
{
    QByteArray bytes(1 << 20, Qt::Uninitialized);
    size_t used = 0;
    archive *const written = archive_write_new();
    archive_write_set_format_pax_restricted(written);
    if (compressed) {
        archive_write_add_filter_gzip(written);
    }
    archive_write_open_memory(written, bytes.data(), static_cast<size_t>(bytes.size()), &used);
    for (const SEntry &entry : entries) {
        archive_entry *const header = archive_entry_new();
        archive_entry_set_pathname(header, entry.name.constData());
        archive_entry_set_filetype(header, entry.type);
        archive_entry_set_perm(header, 0644);
        archive_entry_set_size(header,
                               entry.claimedSize < 0 ? entry.content.size() : entry.claimedSize);
        if (entry.type == S_IFLNK) {
            archive_entry_set_symlink(header, entry.link.constData());
        } else if (!entry.link.isEmpty()) {
            archive_entry_set_hardlink(header, entry.link.constData());
        }
        archive_write_header(written, header);
        archive_write_data(written, entry.content.constData(),
                           static_cast<size_t>(entry.content.size()));
        archive_entry_free(header);
        if (entry.claimedSize > entry.content.size()) {
            archive_write_fail(written);
        }
    }
    archive_write_close(written);
    archive_write_free(written);
    bytes.truncate(static_cast<int>(used));
    return bytes;
}

/** What gzip makes of it; null when that fails. */
QByteArray unpacked(const QByteArray &compressed)
{
    const std::unique_ptr<archive, int (*)(archive *)> read(archive_read_new(), archive_read_free);
    archive_read_support_filter_gzip(read.get());
    archive_read_support_format_raw(read.get());
    archive_entry *entry = nullptr;
    if (archive_read_open_memory(read.get(), compressed.constData(),
                                 static_cast<size_t>(compressed.size()))
            != ARCHIVE_OK
        || archive_read_next_header(read.get(), &entry) != ARCHIVE_OK) {
        return QByteArray();
    }
    QByteArray result;
    QByteArray block(1 << 16, Qt::Uninitialized);
    for (;;) {
        const la_ssize_t size =
            archive_read_data(read.get(), block.data(), static_cast<size_t>(block.size()));
        if (size <= 0) {
            return size == 0 ? result : QByteArray();
        }
        result.append(block.constData(), static_cast<int>(size));
    }
}

QByteArray sumOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

QByteArray manifestOf(const QList<CDeviceManifest::SEntry> &entries)
{
    CDeviceManifest manifest;
    manifest.setEntries(entries);
    return manifest.toJson();
}

/** With the manifest {a: "content a", b: "content b"} before it. */
QByteArray archiveBehindManifest(const QList<SEntry> &entries)
{
    const QByteArray manifest = manifestOf(
        {{u"a"_s, QString(), 9, sumOf("content a")}, {u"b"_s, QString(), 9, sumOf("content b")}});
    return archiveOf(QList<SEntry>{{"manifest.json", manifest, S_IFREG, {}, -1}} + entries);
}

SEntry regular(const QByteArray &name, const QByteArray &content)
{
    return {name, content, S_IFREG, QByteArray(), -1};
}

} // namespace

using Change = std::function<void(const QDir &root)>;
Q_DECLARE_METATYPE(Change)

class tst_CStagedTree : public QObject
{
    Q_OBJECT

    // A project with a few files, from which "root" and "out.tar.gz" beside it are made.
    std::unique_ptr<QTemporaryDir> m_directory;

    QString at(const QString &path) const { return m_directory->filePath(path); }
    QString root() const { return at(u"work/root"_s); }
    QString archive() const { return at(u"work/out.tar.gz"_s); }
    QStringList beside() const { return Files::names(at(u"work"_s)); }

    CStagingPlan plan(const QStringList &names = {u"a.xml"_s, u"large"_s, u"tiny"_s,
                                                  u"Ünit-Ж.xml"_s}) const
    {
        CDeviceElement device;
        device.setName(u"Line"_s);
        device.setConfigurationName(u"STD"_s);
        for (const QString &name : names) {
            CFileElement file;
            file.setFileName(name);
            file.setDevicePath(u'/' + Conf);
            file.setProjectPath(u"Line"_s);
            device.appendAdditionalFile(file);
        }
        return CStagingPlan(device, {"<document/>", QString()}, at(u"project"_s));
    }

    CStagedTree::STarget treeTarget(bool mayReplace = false) const
    {
        return {root(), mayReplace, QString()};
    }
    CStagedTree::STarget archiveTarget() const { return {QString(), false, archive()}; }

    QStringList verified(const QString &path)
    {
        CStagedTree tree;
        return tree.verify(path) ? told(tree) : QStringList{tree.errorText()};
    }

    bool writeProject(const QString &name, const QByteArray &content) const
    {
        return Files::write(at(u"project/Line/"_s + name), content);
    }

private slots:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(at(u"project/Line"_s)));
        QVERIFY(QDir().mkpath(at(u"work"_s)));
        QVERIFY(writeProject(u"a.xml"_s, "content of a"));
        QVERIFY(writeProject(u"large"_s, Large));
        QVERIFY(writeProject(u"tiny"_s, "x"));
        // The file's own name is UTF-8 in every locale.
        const QByteArray name = system(at(u"project/Line"_s)) + "/" + u"Ünit-Ж.xml"_s.toUtf8();
        const int fd = open(name.constData(), O_WRONLY | O_CREAT, 0600);
        QCOMPARE(write(fd, "unit", 4), 4);
        QCOMPARE(close(fd), 0);
        QVERIFY(plan().problems().isEmpty());
    }

    void stagesTree()
    {
        CStagedTree tree;
        QVERIFY2(tree.write(plan(), treeTarget()), qPrintable(tree.errorText()));
        QCOMPARE(tree.errorText(), QString());
        QCOMPARE(beside(), QStringList{u"root"_s});
        QCOMPARE(Files::read(root() + u'/' + Conf + u"a.xml"_s), QByteArray("content of a"));
        QCOMPARE(Files::read(root() + u'/' + Conf + u"large"_s), Large);
        QCOMPARE(Files::read(root() + u'/' + Conf + u"tiny"_s), QByteArray("x"));
        QCOMPARE(Files::read(root() + u'/' + Conf + u"DeviceConfiguration.3deco"_s),
                 QByteArray("<document/>"));
        for (const QString &directory : plan().directories()) {
            QVERIFY(QFileInfo(root() + u'/' + directory).isDir());
        }
        QCOMPARE(Files::read(root() + u"/manifest.json"_s), tree.manifest().toJson());
        QCOMPARE(tree.manifest().entries().size(), 5);
        QCOMPARE(tree.manifest().entries().at(1).projectPath, u"Line/a.xml"_s);
        QCOMPARE(verified(root()), QStringList());
    }

    void stagesEmptyDocument()
    {
        CDeviceElement device;
        device.setConfigurationName(u"STD"_s);
        const CStagingPlan empty(device, {QByteArray(), QString()}, at(u"project"_s));
        QVERIFY(empty.problems().isEmpty());
        CStagedTree tree;
        QVERIFY2(tree.write(empty, {root(), false, archive()}), qPrintable(tree.errorText()));
        QCOMPARE(QFileInfo(root() + u'/' + Conf + u"DeviceConfiguration.3deco"_s).size(), 0);
        QCOMPARE(tree.manifest().entries().at(0).size, 0);
        QCOMPARE(verified(root()), QStringList());
        QCOMPARE(verified(archive()), QStringList());
    }

    void treeHasFixedModesAndTimes()
    {
        const mode_t before = umask(0777);
        CStagedTree tree;
        const bool isMade = tree.write(plan(), treeTarget());
        umask(before);
        QVERIFY2(isMade, qPrintable(tree.errorText()));
        const QStringList lines = portrait(root());
        QCOMPARE(lines.size(), plan().directories().size() + 5 + 2);
        for (const QString &line : lines) {
            QVERIFY2(line.contains(u" 40755 315532800.0 "_s)
                         || line.contains(u" 100644 315532800.0 "_s),
                     qPrintable(line));
        }
        // The rights of whoever asks are none of the file's.
        const auto fromOwner = [](QFileDevice::Permissions permissions) {
            return permissions
                & ~(QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser);
        };
        QCOMPARE(fromOwner(QFileInfo(root() + u"/manifest.json"_s).permissions()),
                 fromOwner(NvrnGlobal::FILE_PERMISSIONS));
        QCOMPARE(fromOwner(QFileInfo(root() + u"/velkor"_s).permissions()),
                 fromOwner(NvrnGlobal::PATH_PERMISSIONS));
    }

    void isReproducible()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan(), {root(), false, archive()}));
        const QStringList firstTree = portrait(root());
        const QByteArray firstArchive = Files::read(archive());
        QVERIFY(!firstArchive.isEmpty());
        // Other times of the sources, another order in the configuration, umask and locale.
        QVERIFY(writeProject(u"a.xml"_s, "content of a"));
        const mode_t mask = umask(077);
        const QByteArray locale = std::setlocale(LC_ALL, nullptr);
        std::setlocale(LC_ALL, "C");
        const QString other = at(u"work/other"_s);
        const bool isMade = tree.write(plan({u"Ünit-Ж.xml"_s, u"tiny"_s, u"large"_s, u"a.xml"_s}),
                                       {other, false, other + u".tar.gz"_s});
        std::setlocale(LC_ALL, locale.constData());
        umask(mask);
        QVERIFY2(isMade, qPrintable(tree.errorText()));
        QCOMPARE(portrait(other), firstTree);
        QCOMPARE(Files::read(other + u".tar.gz"_s), firstArchive);
        // Neither time nor name in the head of the compression.
        QCOMPARE(firstArchive.left(10).toHex(), QByteArray("1f8b0800000000000003"));
    }

    void archiveHoldsTheTree()
    {
        CStagedTree tree;
        QVERIFY2(tree.write(plan(), archiveTarget()), qPrintable(tree.errorText()));
        QCOMPARE(beside(), QStringList{u"out.tar.gz"_s});
        QCOMPARE(verified(archive()), QStringList());
        struct stat status = {};
        QCOMPARE(stat(system(archive()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777u, 0644u);

        QProcess tar;
        tar.setProcessEnvironment([] {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
            environment.insert(u"TZ"_s, u"UTC"_s);
            return environment;
        }());
        tar.start(u"tar"_s,
                  {u"--quoting-style=literal"_s, u"--numeric-owner"_s, u"-tvzf"_s, archive()});
        QVERIFY(tar.waitForFinished());
        const QStringList lines =
            QString::fromUtf8(tar.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), plan().directories().size() + 5 + 1);
        QStringList names;
        for (const QString &line : lines) {
            const bool isDirectory = line.endsWith(u'/');
            QVERIFY2(line.startsWith(isDirectory ? u"drwxr-xr-x 0/0 "_s : u"-rw-r--r-- 0/0 "_s),
                     qPrintable(line));
            QVERIFY2(line.contains(u" 1980-01-01 00:00 "_s), qPrintable(line));
            names << line.section(u" 00:00 "_s, 1);
        }
        QStringList sorted = names;
        sorted.sort();
        QCOMPARE(names, sorted);
        QCOMPARE(names.first(), u"manifest.json"_s);
        QVERIFY(names.contains(Conf + u"Ünit-Ж.xml"_s));
        QVERIFY(names.contains(u"velkor/log/"_s));
    }

    void treeAndArchiveHaveOneManifest()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan(), {root(), false, archive()}));
        QCOMPARE(beside(), QStringList({u"out.tar.gz"_s, u"root"_s}));
        CStagedTree ofArchive;
        QVERIFY(ofArchive.verify(archive()));
        QCOMPARE(ofArchive.manifest().toJson(), Files::read(root() + u"/manifest.json"_s));
        QVERIFY(told(ofArchive).isEmpty());
    }

    void refusesPlan()
    {
        CStagedTree tree;
        const CStagingPlan broken = plan({u"none"_s});
        QVERIFY(!tree.write(broken, treeTarget()));
        QCOMPARE(tree.errorText(), broken.problems().at(0).message);
        QVERIFY(!tree.write(CStagingPlan(), treeTarget()));
        QVERIFY(!tree.errorText().isEmpty());
        QVERIFY(!tree.write(plan(), {}));
        QVERIFY(!tree.errorText().isEmpty());
        QCOMPARE(beside(), QStringList());
    }

    void emptyRootIsTaken()
    {
        QVERIFY(QDir().mkpath(root()));
        CStagedTree tree;
        QVERIFY2(tree.write(plan(), {root() + u"//"_s, false, QString()}),
                 qPrintable(tree.errorText()));
        QCOMPARE(verified(root()), QStringList());
    }

    void linkedRootIsFollowed()
    {
        QVERIFY(QDir().mkpath(at(u"elsewhere/root"_s)));
        QVERIFY(QFile::link(at(u"elsewhere/root"_s), root()));
        CStagedTree tree;
        QVERIFY2(tree.write(plan(), treeTarget()), qPrintable(tree.errorText()));
        QVERIFY(QFileInfo(root()).isSymLink());
        QCOMPARE(verified(at(u"elsewhere/root"_s)), QStringList());
    }

    void refusesRoot_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("mayReplace");
        for (const bool mayReplace : {false, true}) {
            const char *const suffix = mayReplace ? ", may be replaced" : "";
            const auto row = [&](const char *name, const QString &path) {
                QTest::addRow("%s%s", name, suffix) << path << mayReplace;
            };
            row("a file", u"work/file"_s);
            row("a directory with a file", u"work/full"_s);
            row("a link to nothing", u"work/dangling"_s);
            row("without a parent", u"work/none/root"_s);
            row("in a file", u"work/file/root"_s);
            row("above", u"work/none/.."_s);
            row("a device tree with a broken manifest", u"work/broken"_s);
        }
        QTest::newRow("a device tree") << u"work/tree"_s << false;
    }

    void refusesRoot()
    {
        QFETCH(const QString, path);
        QFETCH(const bool, mayReplace);
        QVERIFY(QDir().mkpath(at(u"work/full"_s)));
        QVERIFY(QDir().mkpath(at(u"work/broken"_s)));
        QVERIFY(Files::write(at(u"work/file"_s), "precious"));
        QVERIFY(Files::write(at(u"work/full/.file"_s), "precious"));
        QVERIFY(Files::write(at(u"work/broken/manifest.json"_s), "{}"));
        QVERIFY(QFile::link(at(u"work/nothing"_s), at(u"work/dangling"_s)));
        CStagedTree tree;
        QVERIFY(tree.write(plan(), {at(u"work/tree"_s), false, QString()}));
        const QStringList before = portrait(at(u"work"_s)).mid(1);

        QVERIFY(!tree.write(plan(), {at(path), mayReplace, QString()}));
        QVERIFY(!tree.errorText().isEmpty());
        QCOMPARE(portrait(at(u"work"_s)).mid(1), before);
    }

    void replacesTree()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        QVERIFY(writeProject(u"a.xml"_s, "new"));
        QVERIFY2(tree.write(plan({u"a.xml"_s}), treeTarget(true)), qPrintable(tree.errorText()));
        QCOMPARE(beside(), QStringList{u"root"_s});
        QCOMPARE(verified(root()), QStringList());
        QCOMPARE(Files::read(root() + u'/' + Conf + u"a.xml"_s), QByteArray("new"));
        QVERIFY(!QFileInfo::exists(root() + u'/' + Conf + u"large"_s));
        // What is not there need not be replaced.
        QVERIFY(tree.write(plan(), {at(u"work/other"_s), true, QString()}));
    }

    void replacesDamagedTree()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        QVERIFY(Files::write(root() + u'/' + Conf + u"a.xml"_s, "damaged"));
        QVERIFY(QFile::remove(root() + u'/' + Conf + u"large"_s));
        QVERIFY2(tree.write(plan(), treeTarget(true)), qPrintable(tree.errorText()));
        QCOMPARE(verified(root()), QStringList());
    }

    void replacesNothingThatIsNotOurs_data()
    {
        QTest::addColumn<QString>("surplus");
        QTest::newRow("file in the root") << u"notes.txt"_s;
        QTest::newRow("hidden file") << Conf + u".notes"_s;
        QTest::newRow("file in a directory") << u"project/notes.txt"_s;
    }

    void replacesNothingThatIsNotOurs()
    {
        QFETCH(const QString, surplus);
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        const QString path = root() + u'/' + surplus;
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(Files::write(path, "precious"));
        QVERIFY(!tree.write(plan(), treeTarget(true)));
        QVERIFY2(tree.errorText().contains(surplus.section(u'/', 0, 0)),
                 qPrintable(tree.errorText()));
        QCOMPARE(Files::read(path), QByteArray("precious"));
        QCOMPARE(beside(), QStringList{u"root"_s});
    }

    void replacesArchive()
    {
        QVERIFY(Files::write(archive(), "old"));
        CStagedTree tree;
        QVERIFY2(tree.write(plan(), archiveTarget()), qPrintable(tree.errorText()));
        QCOMPARE(verified(archive()), QStringList());
        QCOMPARE(beside(), QStringList{u"out.tar.gz"_s});
    }

    void refusesArchive_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a directory") << u"work"_s;
        QTest::newRow("in no directory") << u"work/none/out.tar.gz"_s;
        QTest::newRow("in the tree") << u"work/root/out.tar.gz"_s;
        QTest::newRow("the tree") << u"work/root"_s;
        QTest::newRow("a file of the project") << u"project/Line/a.xml"_s;
        QTest::newRow("a link to one") << u"work/link"_s;
        QTest::newRow("a pipe") << u"work/pipe"_s;
    }

    void refusesArchive()
    {
        QFETCH(const QString, path);
        QVERIFY(QFile::link(at(u"project/Line/a.xml"_s), at(u"work/link"_s)));
        QCOMPARE(mkfifo(system(at(u"work/pipe"_s)).constData(), 0600), 0);
        const QStringList before = beside();
        CStagedTree tree;
        QVERIFY(!tree.write(plan(), {root(), false, at(path)}));
        QVERIFY(!tree.errorText().isEmpty());
        QCOMPARE(beside(), before);
        QCOMPARE(Files::read(at(u"project/Line/a.xml"_s)), QByteArray("content of a"));
    }

    void changedSourceIsNoticed_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("toArchive");
        for (const bool toArchive : {false, true}) {
            const char *const where = toArchive ? "archive" : "tree";
            QByteArray flipped = Large;
            flipped[150000] = 'z';
            QTest::addRow("flipped, %s", where) << flipped << toArchive;
            QTest::addRow("longer, %s", where) << Large + Large << toArchive;
            QTest::addRow("shorter, %s", where) << Large.left(100000) << toArchive;
            QTest::addRow("empty, %s", where) << QByteArray("") << toArchive;
            QTest::addRow("removed, %s", where) << QByteArray() << toArchive;
        }
    }

    void changedSourceIsNoticed()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const bool, toArchive);
        const qint64 measured = plan().totalSize();
        bool isChanged = false;
        CStagedTree tree;
        // As soon as everything has been measured, while the first file is copied.
        tree.setProgress([&](qint64 done, qint64 total) {
            if (total != 2 * measured) {
                return false;
            }
            if (done > measured && !isChanged) {
                isChanged = content.isNull() ? QFile::remove(at(u"project/Line/large"_s))
                                             : writeProject(u"large"_s, content);
            }
            return true;
        });
        QVERIFY(!tree.write(plan(), toArchive ? archiveTarget() : treeTarget()));
        QVERIFY(isChanged);
        QVERIFY2(tree.errorText().contains(u"Line/large"_s), qPrintable(tree.errorText()));
        QVERIFY(!tree.wasCancelled());
        QCOMPARE(beside(), QStringList());
    }

    void progressGoesOnToTheEnd()
    {
        qint64 last = -1;
        qint64 lastTotal = 0;
        bool isAscending = true;
        CStagedTree tree;
        tree.setProgress([&](qint64 done, qint64 total) {
            isAscending = isAscending && done >= last;
            last = done;
            lastTotal = total;
            return true;
        });
        QVERIFY(tree.write(plan(), {root(), false, archive()}));
        QVERIFY(isAscending);
        QCOMPARE(last, 3 * plan().totalSize());
        QCOMPARE(lastTotal, last);
        for (const QString &path : {root(), archive()}) {
            last = -1;
            QVERIFY(tree.verify(path));
            QVERIFY(isAscending);
            QCOMPARE(last, plan().totalSize());
            QCOMPARE(lastTotal, last);
        }
    }

    void canBeCancelled()
    {
        int steps = 0;
        CStagedTree tree;
        tree.setProgress([&](qint64, qint64) {
            ++steps;
            return true;
        });
        QVERIFY(tree.write(plan(), {root(), false, archive()}));
        const int all = steps;
        QVERIFY(all > 10);
        QVERIFY(QDir(root()).removeRecursively() && QFile::remove(archive()));
        for (int limit = 0; limit < all; ++limit) {
            steps = 0;
            tree.setProgress([&](qint64, qint64) { return steps++ < limit; });
            QVERIFY(!tree.write(plan(), {root(), false, archive()}));
            QVERIFY(tree.wasCancelled());
            QVERIFY(!tree.errorText().isEmpty());
            QCOMPARE(beside(), QStringList());
        }
        tree.setProgress({});
        QVERIFY(tree.write(plan(), {root(), false, archive()}));
        QVERIFY(!tree.wasCancelled());
        tree.setProgress([](qint64, qint64) { return false; });
        for (const QString &path : {root(), archive()}) {
            QVERIFY(!tree.verify(path));
            QVERIFY(tree.wasCancelled());
        }
    }

    void fullDiskLeavesNothing_data()
    {
        QTest::addColumn<qint64>("limit");
        QTest::addColumn<bool>("toArchive");
        for (const qint64 limit : {0, 5, 200, 70000, 299999}) {
            QTest::addRow("tree, %lld bytes", limit) << limit << false;
        }
        for (const qint64 limit : {0, 5, 500}) {
            QTest::addRow("archive, %lld bytes", limit) << limit << true;
        }
    }

    void fullDiskLeavesNothing()
    {
        QFETCH(const qint64, limit);
        QFETCH(const bool, toArchive);
        CStagedTree tree;
        bool isMade = false;
        {
            const FullDisk full(static_cast<rlim_t>(limit));
            isMade = tree.write(plan(), toArchive ? archiveTarget() : treeTarget());
        }
        QVERIFY(!isMade);
        QVERIFY2(tree.errorText().contains(qt_error_string(EFBIG)), qPrintable(tree.errorText()));
        QCOMPARE(beside(), QStringList());
    }

    void readOnlyTarget()
    {
        QCOMPARE(chmod(system(at(u"work"_s)).constData(), 0555), 0);
        QCOMPARE(chmod(system(m_directory->path()).constData(), 0755), 0);
        CStagedTree tree;
        const CStagingPlan made = plan();
        bool isTree = true;
        bool isArchive = true;
        QString reason;
        {
            const OrdinaryUser user;
            QVERIFY(user.isOk());
            isTree = tree.write(made, treeTarget());
            reason = tree.errorText();
            isArchive = tree.write(made, archiveTarget());
        }
        QVERIFY(!isTree && !isArchive);
        QVERIFY2(reason.contains(qt_error_string(EACCES)), qPrintable(reason));
        QVERIFY(tree.errorText().contains(qt_error_string(EACCES)));
        QCOMPARE(chmod(system(at(u"work"_s)).constData(), 0755), 0);
        QCOMPARE(beside(), QStringList());
    }

    void leftoversAreRemoved()
    {
        const QString leftover = at(u"work/.vrn-stage-0123456789abcdef"_s);
        QVERIFY(QDir().mkpath(leftover + u"/velkor/conf"_s));
        QVERIFY(Files::write(leftover + u"/velkor/conf/a"_s, "half"));
        QVERIFY(Files::write(at(u"work/.vrn-stage-0123456789abcdee"_s), "half an archive"));
        QVERIFY(QDir().mkpath(at(u"work/.vrn-stage-0123456789abcded.old/velkor"_s)));
        const QStringList others = {u".vrn-stage-0123456789ABCDEF"_s, u".vrn-stage-0123"_s,
                                    u".vrn-stage-0123456789abcdef0"_s, u"vrn"_s};
        for (const QString &name : others) {
            QVERIFY(QDir().mkpath(at(u"work/"_s + name)));
        }
        CStagedTree tree;
        QVERIFY(tree.write(plan(), archiveTarget()));
        QStringList expected = others;
        expected << u"out.tar.gz"_s;
        expected.sort();
        QStringList found = beside();
        found.sort();
        QCOMPARE(found, expected);
    }

    void leftoverOfARunInProgressStays()
    {
        const QString other = at(u"work/.vrn-stage-0123456789abcdef"_s);
        QVERIFY(QDir().mkpath(other));
        const int fd = open(system(other).constData(), O_RDONLY | O_DIRECTORY);
        QCOMPARE(flock(fd, LOCK_EX), 0);
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        QVERIFY(QFileInfo(other).isDir());
        close(fd);
        QVERIFY(tree.write(plan(), treeTarget(true)));
        QVERIFY(!QFileInfo::exists(other));
    }

    void linkLikeALeftoverIsNotFollowed()
    {
        const QString target = at(u"precious"_s);
        QVERIFY(QDir().mkpath(target + u"/sub"_s));
        QVERIFY(QFile::link(target, at(u"work/.vrn-stage-0123456789abcdef"_s)));
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        QVERIFY(QFileInfo(target + u"/sub"_s).isDir());
    }

    void twoRunsAtATime()
    {
        CStagedTree inner;
        CStagedTree outer;
        bool isInnerMade = false;
        bool isDone = false;
        outer.setProgress([&](qint64 done, qint64 total) {
            // While the outer tree is half made.
            if (!isDone && done > total / 2 + 1000) {
                isDone = true;
                isInnerMade = inner.write(plan(), {at(u"work/other"_s), false, QString()});
            }
            return true;
        });
        QVERIFY2(outer.write(plan(), treeTarget()), qPrintable(outer.errorText()));
        QVERIFY(isInnerMade);
        QCOMPARE(verified(root()), QStringList());
        QCOMPARE(verified(at(u"work/other"_s)), QStringList());
        QCOMPARE(beside(), QStringList({u"other"_s, u"root"_s}));
    }

    void rootThatAppearsMeanwhileStays()
    {
        CStagedTree inner;
        CStagedTree outer;
        bool isDone = false;
        outer.setProgress([&](qint64 done, qint64 total) {
            if (!isDone && done > total / 2 + 1000) {
                isDone = inner.write(plan({u"a.xml"_s}), treeTarget());
            }
            return true;
        });
        QVERIFY(!outer.write(plan(), treeTarget()));
        QVERIFY(isDone);
        QVERIFY(!outer.errorText().isEmpty());
        QCOMPARE(verified(root()), QStringList());
        QVERIFY(!QFileInfo::exists(root() + u'/' + Conf + u"large"_s));
        QCOMPARE(beside(), QStringList{u"root"_s});
    }

    void verifyFindsInTree_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const Change &change, const QStringList &expected) {
            QTest::newRow(name) << change << expected;
        };
        const QString a = Conf + u"a.xml"_s;
        const QString large = Conf + u"large"_s;
        row("nothing", [](const QDir &) {}, {});
        row("flipped byte",
            [=](const QDir &root) {
                QByteArray content = Large;
                content[299999] = 'z';
                Files::write(root.filePath(large), content);
            },
            {u"changed "_s + large});
        row("truncated",
            [=](const QDir &root) { Files::write(root.filePath(large), Large.chopped(1)); },
            {u"changed "_s + large});
        row("longer", [=](const QDir &root) { Files::write(root.filePath(large), Large + 'y'); },
            {u"changed "_s + large});
        row("missing", [=](const QDir &root) { QFile::remove(root.filePath(a)); },
            {u"missing "_s + a});
        row("missing empty directory",
            [](const QDir &root) { QDir().rmdir(root.filePath(u"velkor/log"_s)); },
            {u"missing velkor/log"_s});
        row("surplus", [=](const QDir &root) { Files::write(root.filePath(u"velkor/x"_s), "x"); },
            {u"surplus velkor/x"_s});
        row("hidden surplus", [=](const QDir &root) { Files::write(root.filePath(u".x"_s), "x"); },
            {u"surplus .x"_s});
        row("surplus directory",
            [](const QDir &root) { QDir().mkpath(root.filePath(u"velkor/x/y"_s)); },
            {u"surplus velkor/x"_s});
        row("surplus beside a name that begins alike",
            [=](const QDir &root) { QDir().mkpath(root.filePath(u"velkor-x"_s)); },
            {u"surplus velkor-x"_s});
        row("swapped",
            [=](const QDir &root) {
                QFile::rename(root.filePath(a), root.filePath(u"t"_s));
                QFile::rename(root.filePath(large), root.filePath(a));
                QFile::rename(root.filePath(u"t"_s), root.filePath(large));
            },
            {u"changed "_s + a, u"changed "_s + large});
        row("renamed",
            [=](const QDir &root) {
                QFile::rename(root.filePath(a), root.filePath(Conf + u"A.xml"_s));
            },
            {u"surplus "_s + Conf + u"A.xml"_s, u"missing "_s + a});
        row("directory for a file",
            [=](const QDir &root) {
                QFile::remove(root.filePath(a));
                QDir().mkpath(root.filePath(a));
            },
            {u"wrong-kind "_s + a});
        row("link for a file",
            [=](const QDir &root) {
                QFile::rename(root.filePath(a), root.filePath(u"../a"_s));
                QFile::link(root.absoluteFilePath(u"../a"_s), root.filePath(a));
            },
            {u"wrong-kind "_s + a});
        row("pipe for a file",
            [=](const QDir &root) {
                QFile::remove(root.filePath(a));
                mkfifo(system(root.filePath(a)).constData(), 0600);
            },
            {u"wrong-kind "_s + a});
        row("file for a directory",
            [](const QDir &root) {
                QDir().rmdir(root.filePath(u"velkor/log"_s));
                Files::write(root.filePath(u"velkor/log"_s), "x");
            },
            {u"wrong-kind velkor/log"_s});
        row("link for a directory",
            [](const QDir &root) {
                QDir().rename(root.filePath(u"velkor/log"_s), root.filePath(u"../log"_s));
                QFile::link(root.absoluteFilePath(u"../log"_s), root.filePath(u"velkor/log"_s));
            },
            {u"wrong-kind velkor/log"_s});
        row("no manifest",
            [](const QDir &root) { QFile::remove(root.filePath(u"manifest.json"_s)); },
            {u"no-manifest manifest.json"_s});
        row("broken manifest",
            [](const QDir &root) { Files::write(root.filePath(u"manifest.json"_s), "{"); },
            {u"no-manifest manifest.json"_s});
        row("huge manifest",
            [](const QDir &root) {
                QFile::resize(root.filePath(u"manifest.json"_s), Q_INT64_C(1) << 40);
            },
            {u"no-manifest manifest.json"_s});
        row("link for a manifest",
            [](const QDir &root) {
                QFile::rename(root.filePath(u"manifest.json"_s), root.filePath(u"../m"_s));
                QFile::link(root.absoluteFilePath(u"../m"_s), root.filePath(u"manifest.json"_s));
            },
            {u"no-manifest manifest.json"_s});
        row("directory for a manifest",
            [](const QDir &root) {
                QFile::remove(root.filePath(u"manifest.json"_s));
                QDir().mkpath(root.filePath(u"manifest.json"_s));
            },
            {u"no-manifest manifest.json"_s});
        row("name that is no UTF-8",
            [](const QDir &root) {
                const QByteArray name = system(root.filePath(u"velkor"_s)) + "/\xFF";
                mkdir(name.constData(), 0700);
            },
            {u"surplus velkor/\uFFFD"_s});
    }

    void verifyFindsInTree()
    {
        QFETCH(const Change, change);
        QFETCH(const QStringList, expected);
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        change(QDir(root()));
        QCOMPARE(verified(root()), expected);
    }

    void verifyTellsWhatItCannotRead()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        QCOMPARE(chmod(system(m_directory->path()).constData(), 0755), 0);
        QCOMPARE(chmod(system(root() + u'/' + Conf + u"a.xml"_s).constData(), 0), 0);
        QCOMPARE(chmod(system(root() + u"/velkor/log"_s).constData(), 0), 0);
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        QCOMPARE(verified(root()),
                 QStringList({u"unreadable "_s + Conf + u"a.xml"_s, u"unreadable velkor/log"_s}));
    }

    void verifyRefuses()
    {
        QCOMPARE(mkfifo(system(at(u"pipe"_s)).constData(), 0600), 0);
        CStagedTree tree;
        for (const QString &path : {at(u"none"_s), at(u"pipe"_s), u"/dev/zero"_s, QString(),
                                    at(u"work"_s) + QChar(QChar::Null)}) {
            QVERIFY(!tree.verify(path));
            QVERIFY(!tree.errorText().isEmpty());
            QVERIFY(tree.differences().isEmpty());
        }
    }

    void verifyFindsInArchive_data()
    {
        QTest::addColumn<QByteArray>("archive");
        QTest::addColumn<QStringList>("expected");
        const SEntry a = regular("a", "content a");
        const SEntry b = regular("b", "content b");
        const QByteArray manifest = manifestOf({{u"a"_s, QString(), 9, sumOf("content a")}});
        const QString broken = u"broken "_s;
        const auto row = [](const char *name, const QByteArray &bytes,
                            const QStringList &expected) {
            QTest::newRow(name) << bytes << expected;
        };
        const auto tail = [](const QList<SEntry> &entries) {
            return archiveBehindManifest(entries);
        };
        row("nothing", tail({a, b}), {});
        row("manifest at the end", archiveOf({a, regular("manifest.json", manifest)}), {});
        row("changed", tail({regular("a", "content A"), b}), {u"changed a"_s});
        row("another size", tail({a, regular("b", "content")}), {u"changed b"_s});
        row("swapped", tail({regular("b", "content a"), regular("a", "content b")}),
            {u"changed a"_s, u"changed b"_s});
        row("missing", tail({a}), {u"missing b"_s});
        row("surplus", tail({a, b, regular("c", "x")}), {u"surplus c"_s});
        row("surplus directory", tail({a, b, {"c/", {}, S_IFDIR, {}, -1}}), {u"surplus c"_s});
        row("twice", tail({a, b, a}), {u"surplus a"_s});
        row("absolute", tail({a, b, regular("/etc/passwd", "x")}), {u"surplus /etc/passwd"_s});
        row("leading up", tail({a, b, regular("../x", "x")}), {u"surplus ../x"_s});
        row("with a detour", tail({b, regular("./a", "content a")}),
            {u"surplus ./a"_s, u"missing a"_s});
        row("symbolic link", tail({b, {"a", {}, S_IFLNK, "/etc/passwd", -1}}), {u"wrong-kind a"_s});
        row("hard link", tail({b, {"a", {}, S_IFREG, "b", -1}}), {u"wrong-kind a"_s});
        row("device", tail({b, {"a", {}, S_IFCHR, {}, -1}}), {u"wrong-kind a"_s});
        row("directory for a file", tail({b, {"a/", {}, S_IFDIR, {}, -1}}), {u"wrong-kind a"_s});
        row("two manifests", tail({a, b, regular("manifest.json", manifest)}),
            {u"surplus manifest.json"_s});
        row("no manifest", archiveOf({a, b}), {u"no-manifest manifest.json"_s});
        row("broken manifest", archiveOf({regular("manifest.json", "{")}),
            {u"no-manifest manifest.json"_s});
        row("link for a manifest", archiveOf({{"manifest.json", {}, S_IFLNK, "x", -1}}),
            {u"no-manifest manifest.json"_s});
        row("huge manifest", archiveOf({{"manifest.json", "x", S_IFREG, {}, Q_INT64_C(1) << 60}}),
            {u"no-manifest manifest.json"_s});
        row("huge entry", tail({{"a", "x", S_IFREG, {}, Q_INT64_C(1) << 60}}),
            {broken, u"changed a"_s});
        row("not compressed", archiveOf({a, regular("manifest.json", manifest)}, false), {broken});
        row("empty file", QByteArray(""), {broken});
        row("text", "This is no archive.", {broken});
        row("gzip of nothing", QByteArray::fromHex("1f8b080000000000000303000000000000000000"),
            {broken});
        row("gzip that ends in its head", QByteArray::fromHex("1f8b0800000000"), {broken});
        const QByteArray good = tail({a, b});
        row("garbage behind it", good + "garbage", {broken});
        QByteArray wrongSum = good;
        wrongSum[good.size() - 8] = static_cast<char>(good.at(good.size() - 8) ^ 1);
        row("wrong sum", wrongSum, {broken});
        QByteArray wrongLength = good;
        wrongLength[good.size() - 1] = static_cast<char>(good.at(good.size() - 1) ^ 1);
        row("wrong length", wrongLength, {broken});
        QList<SEntry> many = {a, b};
        for (int i = 0; i < 20000; ++i) {
            many << regular("x" + QByteArray::number(i), "");
        }
        QTest::newRow("too many to be told") << tail(many) << QStringList();
    }

    void verifyFindsInArchive()
    {
        QFETCH(const QByteArray, archive);
        QFETCH(const QStringList, expected);
        const QString path = at(u"archive"_s);
        QVERIFY(Files::write(path, archive));
        AllocationCounter::start();
        const QStringList found = verified(path);
        QVERIFY(AllocationCounter::counts().peakBytes < 32 * 1024 * 1024);
        if (qstrcmp(QTest::currentDataTag(), "too many to be told") == 0) {
            QCOMPARE(found.size(), 10001);
            QCOMPARE(found.first(), u"broken "_s);
        } else {
            QVERIFY2(found == expected, qPrintable(found.join(u" | "_s)));
        }
        QCOMPARE(Files::names(m_directory->path()),
                 QStringList({u"archive"_s, u"project"_s, u"work"_s}));
    }

    void everyTruncationOfAnArchiveIsFound()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan({u"a.xml"_s}), archiveTarget()));
        const QByteArray whole = Files::read(archive());
        QVERIFY(whole.size() > 500);
        for (int size = 0; size < whole.size(); ++size) {
            QVERIFY(Files::write(archive(), whole.left(size)));
            QVERIFY2(!verified(archive()).isEmpty(), qPrintable(QString::number(size)));
        }
    }

    void flippedBytesOfAnArchiveAreFound()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan({u"a.xml"_s}), archiveTarget()));
        const QByteArray whole = Files::read(archive());
        const QByteArray content = unpacked(whole);
        QVERIFY(!content.isEmpty());
        const int head = 10; // where a name or time would stand
        int same = 0;
        for (int i = head; i < whole.size(); ++i) {
            QByteArray flipped = whole;
            flipped[i] = static_cast<char>(flipped.at(i) ^ (1 << (i % 8)));
            QVERIFY(Files::write(archive(), flipped));
            // A copy from another place may give the same.
            if (unpacked(flipped) == content) {
                ++same;
                continue;
            }
            QVERIFY2(!verified(archive()).isEmpty(), qPrintable(QString::number(i)));
        }
        QVERIFY(same < whole.size() / 4);
    }

    void holesCostNothing()
    {
        // A sparse entry of GNU tar: a petabyte of nothing in a few hundred bytes.
        QByteArray header(512, '\0');
        const auto put = [&](int offset, const QByteArray &text) {
            header.replace(offset, text.size(), text);
        };
        const qint64 size = Q_INT64_C(1) << 50;
        put(0, "a");
        put(100, "0000644");
        put(124, "00000000000");
        put(136, "00000000000");
        put(148, "        ");
        put(156, "S");
        put(257, "ustar  ");
        put(386, "0000000000000000000000000"); // no piece
        QByteArray real(12, '\0');
        real[0] = '\x80';
        for (int i = 0; i < 8; ++i) {
            real[11 - i] = static_cast<char>(size >> (8 * i));
        }
        put(483, real);
        int sum = 0;
        for (const char c : qAsConst(header)) {
            sum += static_cast<unsigned char>(c);
        }
        put(148, QByteArray::number(sum, 8).rightJustified(6, '0') + QByteArray("\0 ", 2));

        const QByteArray manifest = manifestOf({{u"a"_s, QString(), size, sumOf("")}});
        QProcess gzip;
        const QByteArray tar = [&] {
            QByteArray bytes = archiveOf({regular("manifest.json", manifest)}, false);
            // Before the end of the archive.
            const int end = 512 + (manifest.size() + 511) / 512 * 512;
            return bytes.left(end) + header + QByteArray(1024, '\0');
        }();
        gzip.start(u"gzip"_s, {u"-nc"_s});
        gzip.write(tar);
        gzip.closeWriteChannel();
        QVERIFY(gzip.waitForFinished());
        QVERIFY(Files::write(archive(), gzip.readAllStandardOutput()));
        QVERIFY(!verified(archive()).isEmpty());
    }

    void manyFiles()
    {
        const int side = 100;
        CDeviceElement device;
        device.setConfigurationName(u"STD"_s);
        QList<CFileElement> files;
        for (int i = 0; i < side; ++i) {
            const QString name = u"%1.xml"_s.arg(i);
            QVERIFY(writeProject(name, name.toUtf8()));
            for (int j = 0; j < side; ++j) {
                CFileElement file;
                file.setFileName(name);
                file.setDevicePath(u"/velkor/%1"_s.arg(j));
                file.setProjectPath(u"Line"_s);
                files << file;
            }
        }
        device.setAdditionalFiles(files);
        const CStagingPlan many(device, {"<document/>", QString()}, at(u"project"_s));
        CStagedTree tree;
        QVERIFY2(tree.write(many, {root(), false, archive()}), qPrintable(tree.errorText()));
        QCOMPARE(tree.manifest().entries().size(), side * side + 1);
        QCOMPARE(verified(root()), QStringList());
        QCOMPARE(verified(archive()), QStringList());
    }

    void deepPaths()
    {
        QString directory = u"/velkor/"_s;
        while (directory.size() < 1000) {
            directory += QString(100, u'd') + u'/';
        }
        CDeviceElement device;
        device.setConfigurationName(u"STD"_s);
        CFileElement file;
        file.setFileName(u"a.xml"_s);
        file.setDevicePath(directory);
        file.setProjectPath(u"Line"_s);
        device.appendAdditionalFile(file);
        const CStagingPlan deep(device, {"<document/>", QString()}, at(u"project"_s));
        CStagedTree tree;
        QVERIFY2(tree.write(deep, {root(), false, archive()}), qPrintable(tree.errorText()));
        QCOMPARE(verified(root()), QStringList());
        QCOMPARE(verified(archive()), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_CStagedTree)
#include "tst_cstagedtree.moc"
