#include "commissioning/CStagedTree.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "support/StagedTrees.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

#include <archive.h>
#include <archive_entry.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace StagedTrees;

namespace {

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

/** With the manifest {a: "content a", b: "content b"} before it. */
QByteArray archiveBehindManifest(const QList<SEntry> &entries)
{
    const QByteArray manifest = manifestOf(
        {{u"a"_s, QString(), 9, sumOf("content a")}, {u"b"_s, QString(), 9, sumOf("content b")}});
    return archiveOf(QList<SEntry>{{"manifest.json", manifest, S_IFREG, {}, -1}} + entries);
}

/** So long that it needs an extended header; only behind one do hard links have content. */
const QString LongName(120, u'a');

/** A file whose place is taken by a hard link that brings the same content along. */
QByteArray archiveWithFullHardLink()
{
    const QByteArray manifest = manifestOf({{LongName, QString(), 9, sumOf("content a")}});
    QByteArray tar = archiveOf(
        {regular("manifest.json", manifest), regular(LongName.toLatin1(), "content a")}, false);
    const int header = tar.indexOf("content a") - TarBlock;
    tar.replace(header + 156, 2, "1b"); // its type, and what it leads to
    seal(tar, header);
    return gzipOf(tar);
}

} // namespace

using Change = std::function<void(const QDir &root)>;
Q_DECLARE_METATYPE(Change)

/** What is missing, surplus or changed in a tree or an archive. */
class tst_cstagedtree_verify : public StagedTreeTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

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
        row("surplus directory of which another name goes on",
            [](const QDir &root) { QDir().mkpath(root.filePath(u"velkor/configurations/ST"_s)); },
            {u"surplus velkor/configurations/ST"_s});
        row("surplus manifest in a directory",
            [](const QDir &root) {
                Files::write(root.filePath(u"velkor/log/manifest.json"_s), "{}");
            },
            {u"surplus velkor/log/manifest.json"_s});
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

    void tooManyDifferencesInTree()
    {
        CStagedTree tree;
        QVERIFY(tree.write(plan({u"tiny"_s}), treeTarget()));
        const int most = 10000;
        const QByteArray surplus = system(root()) + "/a";
        for (int i = 0; i <= most; ++i) {
            QCOMPARE(mkdir((surplus + QByteArray::number(i)).constData(), 0700), 0);
        }
        const QStringList found = verified(root());
        QCOMPARE(found.size(), most);
        // What is behind them was not looked for.
        QCOMPARE(found.filter(u"missing"_s), QStringList());
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
        const QByteArray alike = manifestOf(
            {{u"a-b"_s, QString(), 1, sumOf("1")}, {u"a/c"_s, QString(), 1, sumOf("2")}});
        row("directory that its files alone tell, beside a name that begins alike",
            archiveOf({regular("manifest.json", alike),
                       regular("a-b", "1"),
                       {"a/", {}, S_IFDIR, {}, -1},
                       regular("a/c", "2")}),
            {});
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
        row("hard link with content", archiveWithFullHardLink(), {u"wrong-kind "_s + LongName});
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
};

REGISTER_GUILESS_TEST(tst_cstagedtree_verify)
#include "tst_cstagedtree_verify.moc"
