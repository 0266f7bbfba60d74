#include "commissioning/CStagedTree.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "support/StagedTrees.h"

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace StagedTrees;

/** What is left when a tree cannot be made: sources that change, full disks, other runs. */
class tst_cstagedtree_failures : public StagedTreeTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

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
};

QTEST_GUILESS_MAIN(tst_cstagedtree_failures)
#include "tst_cstagedtree_failures.moc"
