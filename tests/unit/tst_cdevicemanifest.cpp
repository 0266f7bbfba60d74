#include "commissioning/CDeviceManifest.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

using SEntry = CDeviceManifest::SEntry;

const QByteArray Sum = QByteArray(64, 'a');
const QByteArray OtherSum = QByteArray(64, '0');

CDeviceManifest sample()
{
    CDeviceManifest manifest;
    manifest.setEntries({{u"velkor/b.xml"_s, u"P/b.xml"_s, 12, Sum},
                         {u"opt/a \"quoted\".xml"_s, QString(), 0, OtherSum},
                         {u"velkor/Ünit-B.xml"_s, u"P/Ü\\b\n.xml"_s, 9007199254740991, Sum}});
    manifest.setDirectories({u"velkor"_s, u"opt"_s, u"velkor/log"_s});
    return manifest;
}

QByteArray manifestOf(const QByteArray &directories, const QByteArray &files)
{
    return R"({"format":"vrn-device-manifest","version":1,"directories":[)" + directories
        + R"(],"files":[)" + files + "]}";
}

QByteArray file(const QByteArray &devicePath, const QByteArray &projectPath = "",
                const QByteArray &size = "1", const QByteArray &sum = Sum)
{
    return R"({"devicePath":")" + devicePath + R"(","projectPath":")" + projectPath
        + R"(","sha256":")" + sum + R"(","size":)" + size + "}";
}

bool isEqual(const CDeviceManifest &a, const CDeviceManifest &b)
{
    const QList<SEntry> left = a.entries();
    const QList<SEntry> right = b.entries();
    return a.directories() == b.directories()
        && std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const SEntry &x, const SEntry &y) {
                          return x.devicePath == y.devicePath && x.projectPath == y.projectPath
                              && x.size == y.size && x.sha256 == y.sha256;
                      });
}

} // namespace

class tst_cdevicemanifest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst()
    {
        const CDeviceManifest manifest;
        QVERIFY(manifest.entries().isEmpty());
        QVERIFY(manifest.directories().isEmpty());
        QCOMPARE(manifest.toJson(),
                 QByteArray("{\n"
                            "    \"format\": \"vrn-device-manifest\",\n"
                            "    \"version\": 1,\n"
                            "    \"directories\": [],\n"
                            "    \"files\": []\n"
                            "}\n"));
        QCOMPARE(CDeviceManifest::fileName(), u"manifest.json"_s);
    }

    void sorts()
    {
        const CDeviceManifest manifest = sample();
        QCOMPARE(manifest.entries().at(0).devicePath, u"opt/a \"quoted\".xml"_s);
        QCOMPARE(manifest.entries().at(1).devicePath, u"velkor/b.xml"_s);
        QCOMPARE(manifest.entries().at(2).devicePath, u"velkor/Ünit-B.xml"_s);
        QCOMPARE(manifest.directories(), QStringList({u"opt"_s, u"velkor"_s, u"velkor/log"_s}));
    }

    void isWrittenOneEntryALine()
    {
        CDeviceManifest manifest;
        manifest.setEntries({{u"b"_s, u"P/b"_s, 12, Sum}, {u"a/Ü"_s, QString(), 0, OtherSum}});
        manifest.setDirectories({u"a"_s});
        QCOMPARE(manifest.toJson(),
                 QByteArray(
                     "{\n"
                     "    \"format\": \"vrn-device-manifest\",\n"
                     "    \"version\": 1,\n"
                     "    \"directories\": [\n"
                     "        \"a\"\n"
                     "    ],\n"
                     "    \"files\": [\n"
                     "        {\"devicePath\": \"a/\u00dc\", \"projectPath\": \"\", \"sha256\": \"")
                     + OtherSum
                     + QByteArray("\", \"size\": 0},\n"
                                  "        {\"devicePath\": \"b\", \"projectPath\": \"P/b\", "
                                  "\"sha256\": \"")
                     + Sum
                     + QByteArray("\", \"size\": 12}\n"
                                  "    ]\n"
                                  "}\n"));
    }

    void readsWhatItWrote()
    {
        const QByteArray json = sample().toJson();
        CDeviceManifest manifest;
        QString error;
        QVERIFY2(manifest.readJson(json, error), qPrintable(error));
        QVERIFY(isEqual(manifest, sample()));
        QCOMPARE(manifest.toJson(), json);
    }

    void namesMayBeginAlike()
    {
        const QByteArray json = manifestOf(
            R"("a","a-b","a.xml.d")", file("a.xml") + ',' + file("a.xml.bak") + ',' + file("a/b"));
        CDeviceManifest manifest;
        QString error;
        QVERIFY2(manifest.readJson(json, error), qPrintable(error));
        QCOMPARE(manifest.entries().size(), 3);
    }

    void whiteSpaceIsFree_data()
    {
        QTest::addColumn<QByteArray>("json");
        const QByteArray json = sample().toJson();
        QTest::newRow("lines of Windows") << QByteArray(json).replace("\n", "\r\n");
        QTest::newRow("tabs") << QByteArray(json).replace("    ", "\t");
        QTest::newRow("nothing at the end") << json.trimmed();
        QTest::newRow("something at the start") << " \n" + json;
    }

    void whiteSpaceIsFree()
    {
        QFETCH(const QByteArray, json);
        CDeviceManifest manifest;
        QString error;
        QVERIFY2(manifest.readJson(json, error), qPrintable(error));
        QVERIFY(isEqual(manifest, sample()));
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("reason");
        const QByteArray json = sample().toJson();
        const auto changed = [&](const char *before, const char *after) {
            return QByteArray(json).replace(before, after);
        };
        const auto row = [](const char *name, const QByteArray &bytes, const char *reason) {
            QTest::newRow(name) << bytes << QString::fromUtf8(reason);
        };
        row("nothing", "", "not JSON");
        row("no JSON", "manifest", "not JSON");
        row("cut off", json.chopped(3), "not JSON");
        row("something behind it", json + "{}", "not JSON");
        row("a list", "[]", "not a manifest of a device tree");
        row("other JSON", "{}", "not a manifest of a device tree");
        row("another format", changed("vrn-device-manifest", "manifest"), "not a manifest");
        row("a format that is no text", changed("\"vrn-device-manifest\"", "1"), "not a manifest");
        row("a later version", changed("\"version\": 1", "\"version\": 2"),
            "version 1 is required");
        row("a version as text", changed("\"version\": 1", "\"version\": \"1\""),
            "version 1 is required");
        row("a version with a fraction", changed("\"version\": 1", "\"version\": 1.5"), "version");
        row("no files", changed("\"files\"", "\"fils\""), "key \"files\" is missing");
        row("no directories", changed("\"directories\"", "\"dirs\""), "\"directories\" is missing");
        row("an unknown key", changed("\"version\": 1,", "\"version\": 1, \"extra\": 1,"),
            "unknown");
        row("files are no list",
            R"({"format":"vrn-device-manifest","version":1,"directories":[],)"
            R"("files":{}})",
            "must be lists");
        row("directories are no list",
            R"({"format":"vrn-device-manifest","version":1,)"
            R"("directories":"","files":[]})",
            "must be lists");
        row("an entry that is none", manifestOf("", "1"), "\"devicePath\" is missing");
        row("an entry with an unknown key", manifestOf("", "{\"a\":1," + file("a").mid(1)),
            "\"a\"");
        row("an entry without size",
            manifestOf("",
                       R"({"devicePath":"a","projectPath":"",)"
                       R"("sha256":""})"),
            "\"size\" is missing");
        row("a device path that is no text",
            manifestOf("", QByteArray(file("a")).replace("\"a\"", "1")), "not a valid path");
        row("a directory that is no text", manifestOf("1", ""), "not a valid path on a device");
        row("a negative size", manifestOf("", file("a", "", "-1")), "size of \"a\"");
        row("a size with a fraction", manifestOf("", file("a", "", "1.5")), "size of \"a\"");
        row("a size as text", manifestOf("", file("a", "", "\"1\"")), "size of \"a\"");
        row("a size that is too large", manifestOf("", file("a", "", "9007199254740994")), "size");
        row("a size that is just too large", manifestOf("", file("a", "", "9007199254740992")),
            "size");
        row("a size beyond all", manifestOf("", file("a", "", "1e300")), "size of \"a\"");
        row("a size in another form", manifestOf("", file("a", "", "1e0")), "changed");
        row("a sum that is too short", manifestOf("", file("a", "", "1", Sum.mid(1))),
            "sum of \"a\"");
        row("a sum that is too long", manifestOf("", file("a", "", "1", Sum + 'a')),
            "sum of \"a\"");
        row("a sum in upper case", manifestOf("", file("a", "", "1", Sum.toUpper())),
            "sum of \"a\"");
        row("a sum with another letter", manifestOf("", file("a", "", "1", 'g' + Sum.mid(1))),
            "sum");
        row("a sum with a wide digit",
            manifestOf("", file("a", "", "1", QByteArray("\xEF\xBC\x91") + Sum.mid(1))), "sum");
        row("a file twice", manifestOf("", file("a") + ',' + file("a")),
            "\"a\" occurs more than once");
        row("a directory twice", manifestOf(R"("a","a")", ""), "\"a\" occurs more than once");
        row("a file and a directory", manifestOf(R"("a")", file("a")),
            "\"a\" occurs more than once");
        row("a file in a file", manifestOf("", file("a") + ',' + file("a-b") + ',' + file("a/b")),
            "\"a\" is both");
        row("a directory in a file", manifestOf(R"("a/b/c")", file("a/b")), "\"a/b\" is both");
        row("another order", manifestOf("", file("b") + ',' + file("a")), "changed");
        row("another order of directories", manifestOf(R"("b","a")", ""), "changed");
        row("another order of keys",
            R"({"version":1,"format":"vrn-device-manifest","directories":[],"files":[]})",
            "changed");
        row("a key twice",
            manifestOf("", QByteArray(file("a")).replace("\"size\":1", "\"size\":1,\"size\":1")),
            "changed");
        row("another form of a text", manifestOf("", file("\\u0061")), "changed");
        row("half a pair", manifestOf("", file("\\ud800")), "");
        row("an absolute project path", manifestOf("", file("a", "/b")), "The project path");
        row("a project path that leads up", manifestOf("", file("a", "b/../../c")),
            "The project path");
        row("a project path that is no text",
            manifestOf(
                "", QByteArray(file("a")).replace("\"projectPath\":\"\"", "\"projectPath\":null")),
            "The project path");
        row("deeply nested", QByteArray(100000, '['), "not JSON");
        row("a byte-order mark", "\xEF\xBB\xBF" + json, "");
        row("too long", json + QByteArray(static_cast<int>(CDeviceManifest::maximumSize()), ' '),
            "larger than");
    }

    void refuses()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const QString, reason);
        CDeviceManifest manifest = sample();
        QString error;
        QVERIFY(!manifest.readJson(json, error));
        QVERIFY2(error.contains(reason) && !error.isEmpty(), qPrintable(error));
        QVERIFY(isEqual(manifest, sample()));
    }

    void devicePaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("expected");
        QTest::newRow("file") << u"velkor/conf/a.xml"_s << true;
        QTest::newRow("hidden") << u".a"_s << true;
        QTest::newRow("three dots") << u"a/.../b"_s << true;
        QTest::newRow("brackets and spaces") << u"a ]/[\\b"_s << true;
        QTest::newRow("line feed") << u"a\nb"_s << true;
        QTest::newRow("not ASCII") << u"Ünit/ЖѪ"_s << true;
        QTest::newRow("longest name") << QString(255, u'a') << true;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("absolute") << u"/velkor/a"_s << false;
        QTest::newRow("slash at the end") << u"velkor/"_s << false;
        QTest::newRow("two slashes") << u"velkor//a"_s << false;
        QTest::newRow("dot") << u"velkor/./a"_s << false;
        QTest::newRow("dots") << u"velkor/../a"_s << false;
        QTest::newRow("dots alone") << u".."_s << false;
        QTest::newRow("NUL") << (u"a"_s + QChar(QChar::Null)) << false;
        QTest::newRow("half a pair") << QString(QChar(0xD800)) << false;
        QTest::newRow("name too long") << QString(256, u'a') << false;
        QTest::newRow("name too long in UTF-8") << QString(128, QChar(0xDC)) << false;
        QTest::newRow("path too long") << u"a/"_s.repeated(2048) + u'a' << false;
        QTest::newRow("longest path") << u"a/"_s.repeated(2047) + u'a' << true;
        QTest::newRow("the manifest") << u"manifest.json"_s << false;
        QTest::newRow("below the manifest") << u"manifest.json/a"_s << false;
        QTest::newRow("another manifest") << u"velkor/manifest.json"_s << true;
    }

    void devicePaths()
    {
        QFETCH(const QString, path);
        QFETCH(const bool, expected);
        QCOMPARE(CDeviceManifest::isDevicePath(path), expected);

        CDeviceManifest written;
        written.setEntries({{path, QString(), 1, Sum}});
        CDeviceManifest read;
        QString error;
        QCOMPARE(read.readJson(written.toJson(), error), expected);
        written.setEntries({});
        written.setDirectories({path});
        QCOMPARE(read.readJson(written.toJson(), error), expected);
    }

    void measures()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(u"file"_s);
        QVERIFY(Files::write(path, "abc"));
        qint64 size = 0;
        QByteArray sum;
        QString error;
        QVERIFY(CDeviceManifest::measure(path, size, sum, error));
        QCOMPARE(size, 3);
        QCOMPARE(sum,
                 QByteArray("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));

        QVERIFY(Files::write(path, QByteArray(1000000, 'a')));
        QVERIFY(CDeviceManifest::measure(path, size, sum, error));
        QCOMPARE(size, 1000000);
        QCOMPARE(sum,
                 QByteArray("cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"));
    }

    void measuresOnlyRegularFiles()
    {
        const QTemporaryDir directory;
        const QString pipe = directory.filePath(u"pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString &path :
             {directory.path(), pipe, u"/dev/zero"_s, directory.filePath(u"none"_s), QString(),
              directory.path() + QChar(QChar::Null)}) {
            qint64 size = 7;
            QByteArray sum = "before";
            QString error;
            QVERIFY(!CDeviceManifest::measure(path, size, sum, error));
            QVERIFY(!error.isEmpty());
            QCOMPARE(size, 7);
            QCOMPARE(sum, QByteArray("before"));
        }
    }

    void measuresInSmallMemory()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(u"file"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(16 * 1024 * 1024));
        qint64 size = 0;
        QByteArray sum;
        QString error;
        AllocationCounter::start();
        QVERIFY(CDeviceManifest::measure(path, size, sum, error));
        QVERIFY(AllocationCounter::counts().peakBytes < 1024 * 1024);
        QCOMPARE(size, 16 * 1024 * 1024);
    }

    void manyEntriesFitIn()
    {
        const int count = 20000;
        QList<SEntry> entries;
        for (int i = 0; i < count; ++i) {
            const QString path = u"velkor/configurations/STD/conf/%1.xml"_s.arg(count - i);
            entries.append({path, u"Line/"_s + path, i, Sum});
        }
        CDeviceManifest written;
        written.setEntries(entries);
        const QByteArray json = written.toJson();
        QVERIFY(json.size() < CDeviceManifest::maximumSize());
        CDeviceManifest read;
        QString error;
        QVERIFY2(read.readJson(json, error), qPrintable(error));
        QVERIFY(isEqual(read, written));
    }
};

REGISTER_GUILESS_TEST(tst_cdevicemanifest)
#include "tst_cdevicemanifest.moc"
