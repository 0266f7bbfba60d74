#include "commissioning/CStagedTree.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/StagedTrees.h"
#include "support/TestProgram.h"
#include "vocabulary/NvrnGlobal.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace StagedTrees;

namespace {

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

} // namespace

class tst_cstagedtree : public StagedTreeTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

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
        QTest::newRow("another manifest") << u"velkor/log/manifest.json"_s;
        QTest::newRow("directory in place of a file") << Conf + u"tiny/notes.txt"_s;
        QTest::newRow("file in place of a directory") << u"velkor/log"_s;
        QTest::newRow("file in a directory that begins alike")
            << u"velkor/configurations/ST/notes.txt"_s;
    }

    void replacesNothingThatIsNotOurs()
    {
        QFETCH(const QString, surplus);
        CStagedTree tree;
        QVERIFY(tree.write(plan(), treeTarget()));
        const QString path = root() + u'/' + surplus;
        QFile::remove(QFileInfo(path).path());
        QDir().rmdir(path);
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
        put(156, "S");
        put(257, "ustar  ");
        put(386, "0000000000000000000000000"); // no piece
        QByteArray real(12, '\0');
        real[0] = '\x80';
        for (int i = 0; i < 8; ++i) {
            real[11 - i] = static_cast<char>(size >> (8 * i));
        }
        put(483, real);
        seal(header);

        const QByteArray manifest = manifestOf({{u"a"_s, QString(), size, sumOf("")}});
        const QByteArray tar = archiveOf({regular("manifest.json", manifest)}, false);
        const QByteArray sparse =
            tar.left(sizeInArchive(manifest)) + header + QByteArray(1024, '\0');
        QVERIFY(Files::write(archive(), gzipOf(sparse)));
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

REGISTER_GUILESS_TEST(tst_cstagedtree)
#include "tst_cstagedtree.moc"
