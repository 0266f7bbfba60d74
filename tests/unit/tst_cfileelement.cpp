#include "elements/CFileElement.h"
#include "imported/CPath.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

Q_DECLARE_METATYPE(CFileElement)

namespace {

/** A class that overrides accessors; composed paths must follow. */
class Relocated : public CFileElement
{
public:
    QString fileName() const override { return u"other.txt"_s; }
    QString devicePath() const override { return QLatin1Char('/') + CPath::CPATH_COMPANY; }
    QString projectPath() const override { return u"elsewhere/"_s; }
};

CFileElement file(const QString &name, const QString &devicePath, const QString &projectPath = {},
                  const QString &comment = {})
{
    CFileElement result;
    result.setFileName(name);
    result.setDevicePath(devicePath);
    result.setProjectPath(projectPath);
    result.setComment(comment);
    return result;
}

} // namespace

class tst_cfileelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void directories_data();
    void directories();
    void textsAreStoredAsGiven();
    void null_data();
    void null();
    void equality_data();
    void equality();
    void composedPaths_data();
    void composedPaths();
    void composedPathsCallVirtualAccessors();
    void deviceEntryPoint_data();
    void deviceEntryPoint();
    void relativeDeviceFilePath_data();
    void relativeDeviceFilePath();
    void streamForm_data();
    void streamForm();
    void readingDoesNotNormalise();
};

void tst_cfileelement::defaults()
{
    const CFileElement element;
    QVERIFY(element.isNull());
    QVERIFY(element.fileName().isNull());
    QVERIFY(element.devicePath().isNull());
    QVERIFY(element.projectPath().isNull());
    QVERIFY(element.comment().isNull());
    QVERIFY(element.projectFilePath().isEmpty());
    QVERIFY(element.deviceFilePath().isEmpty());
    QCOMPARE(element.deviceEntryPoint(), CFTPath::ENTRY_POINT_UNKNOWN);
}

void tst_cfileelement::directories_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("project");

    const auto row = [](const char *name, const QString &path, const QString &device,
                        const QString &project) {
        QTest::newRow(name) << path << device << project;
    };
    row("back-slashes", u"a\\b"_s, u"/a/b/"_s, u"a/b/"_s);
    row("project parameters", u"proj\\params"_s, u"/proj/params/"_s, u"proj/params/"_s);
    row("complete", u"/x/"_s, u"/x/"_s, u"/x/"_s);
    row("neither start nor end", u"x"_s, u"/x/"_s, u"x/"_s);
    row("no start", u"x/"_s, u"/x/"_s, u"x/"_s);
    row("no end", u"/x"_s, u"/x/"_s, u"/x/"_s);
    row("root", u"/"_s, u"/"_s, u"/"_s);
    row("back-slash alone", u"\\"_s, u"/"_s, u"/"_s);
    row("back-slashes around", u"\\x\\"_s, u"/x/"_s, u"/x/"_s);
    row("drive letter", u"C:\\proj"_s, u"/C:/proj/"_s, u"C:/proj/"_s);
    row("double separators stay", u"a//b"_s, u"/a//b/"_s, u"a//b/"_s);
    row("dots stay", u"../a/./b"_s, u"/../a/./b/"_s, u"../a/./b/"_s);
    row("blanks stay", u" a "_s, u"/ a /"_s, u" a /"_s);
}

void tst_cfileelement::directories()
{
    QFETCH(QString, path);
    QFETCH(QString, device);
    QFETCH(QString, project);

    CFileElement element;
    element.setDevicePath(path);
    element.setProjectPath(path);
    QCOMPARE(element.devicePath(), device);
    QCOMPARE(element.projectPath(), project);

    // Once more changes nothing, and the empty text takes the directory away.
    element.setDevicePath(element.devicePath());
    element.setProjectPath(element.projectPath());
    QCOMPARE(element.devicePath(), device);
    QCOMPARE(element.projectPath(), project);
    element.setDevicePath(u""_s);
    element.setProjectPath(u""_s);
    QVERIFY(element.devicePath().isNull());
    QVERIFY(element.projectPath().isNull());
    element.setDevicePath(QString());
    element.setProjectPath(QString());
    QVERIFY(element.devicePath().isNull());
    QVERIFY(element.projectPath().isNull());
}

void tst_cfileelement::textsAreStoredAsGiven()
{
    CFileElement element;
    element.setFileName(u" a\\b/c "_s);
    element.setComment(u" x\\y\n"_s);
    QCOMPARE(element.fileName(), u" a\\b/c "_s);
    QCOMPARE(element.comment(), u" x\\y\n"_s);
    element.setFileName(u""_s);
    element.setComment(u""_s);
    QVERIFY(element.fileName().isEmpty() && !element.fileName().isNull());
    QVERIFY(element.comment().isEmpty() && !element.comment().isNull());
}

void tst_cfileelement::null_data()
{
    QTest::addColumn<CFileElement>("element");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("default") << CFileElement() << true;
    QTest::newRow("empty texts") << file(u""_s, u""_s, u""_s, u""_s) << true;
    QTest::newRow("file name") << file(u"a"_s, {}) << false;
    QTest::newRow("device directory") << file({}, u"a"_s) << false;
    QTest::newRow("project directory") << file({}, {}, u"a"_s) << false;
    QTest::newRow("comment") << file({}, {}, {}, u"a"_s) << false;
}

void tst_cfileelement::null()
{
    QFETCH(CFileElement, element);
    QFETCH(bool, isNull);

    QCOMPARE(element.isNull(), isNull);
    QCOMPARE(element == CFileElement(), isNull);
    element.clear();
    QVERIFY(element.isNull());
}

void tst_cfileelement::equality_data()
{
    QTest::addColumn<CFileElement>("left");
    QTest::addColumn<CFileElement>("right");
    QTest::addColumn<bool>("equal");

    const CFileElement full = file(u"f"_s, u"d"_s, u"p"_s, u"c"_s);
    QTest::newRow("same data") << full << full << true;
    QTest::newRow("same fields") << full << file(u"f"_s, u"/d/"_s, u"p/"_s, u"c"_s) << true;
    QTest::newRow("file name") << full << file(u"F"_s, u"d"_s, u"p"_s, u"c"_s) << false;
    QTest::newRow("device directory") << full << file(u"f"_s, u"D"_s, u"p"_s, u"c"_s) << false;
    QTest::newRow("project directory") << full << file(u"f"_s, u"d"_s, u"P"_s, u"c"_s) << false;
    QTest::newRow("comment") << full << file(u"f"_s, u"d"_s, u"p"_s, u"C"_s) << false;
    QTest::newRow("no comment") << full << file(u"f"_s, u"d"_s, u"p"_s) << false;
}

void tst_cfileelement::equality()
{
    QFETCH(CFileElement, left);
    QFETCH(CFileElement, right);
    QFETCH(bool, equal);

    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

void tst_cfileelement::composedPaths_data()
{
    QTest::addColumn<CFileElement>("element");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("project");

    QTest::newRow("complete") << file(u"f.txt"_s, u"d"_s, u"p"_s) << u"/d/f.txt"_s << u"p/f.txt"_s;
    QTest::newRow("no file name") << file({}, u"d"_s, u"p/"_s) << u"/d/"_s << QString();
    QTest::newRow("empty file name") << file(u""_s, u"d"_s, u"p/"_s) << u"/d/"_s << QString();
    QTest::newRow("no directories") << file(u"f.txt"_s, {}) << u"f.txt"_s << u"f.txt"_s;
    QTest::newRow("absolute file name")
        << file(u"/f.txt"_s, u"d"_s, u"p"_s) << u"/d//f.txt"_s << u"p//f.txt"_s;
}

void tst_cfileelement::composedPaths()
{
    QFETCH(CFileElement, element);
    QFETCH(QString, device);
    QFETCH(QString, project);

    QCOMPARE(element.deviceFilePath(), device);
    QCOMPARE(element.projectFilePath(), project);
}

void tst_cfileelement::composedPathsCallVirtualAccessors()
{
    const Relocated relocated;
    const CFileElement &element = relocated;
    QCOMPARE(element.deviceFilePath(), u"/velkor/other.txt"_s);
    QCOMPARE(element.projectFilePath(), u"elsewhere/other.txt"_s);
    QCOMPARE(element.deviceEntryPoint(), CFTPath::ENTRY_POINT_SM);
    QCOMPARE(element.relativeDeviceFilePath(CFTPath::ENTRY_POINT_SM), u"other.txt"_s);
    QCOMPARE(element.relativeDeviceFilePath(CFTPath::ENTRY_POINT_UNKNOWN), u"/velkor/other.txt"_s);
}

void tst_cfileelement::deviceEntryPoint_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("entryPoint");

    const auto row = [](const char *name, const QString &path, CFTPath::EEntryPoint entryPoint) {
        QTest::newRow(name) << path << static_cast<int>(entryPoint);
    };
    row("none", QString(), CFTPath::ENTRY_POINT_UNKNOWN);
    row("outside", u"/tmp"_s, CFTPath::ENTRY_POINT_UNKNOWN);
    row("longer name", u"/velkor2"_s, CFTPath::ENTRY_POINT_UNKNOWN);
    row("sm root without start", u"velkor"_s, CFTPath::ENTRY_POINT_SM);
    row("sm root with back-slashes", u"\\velkor\\x"_s, CFTPath::ENTRY_POINT_SM);
    row("configuration", u"/velkor/configurations/STD/conf"_s,
        CFTPath::ENTRY_POINT_SM_CONFIGURATIONS);
    row("log", u"/velkor/log/"_s, CFTPath::ENTRY_POINT_SM_LOG);
    row("opt", u"/opt/velkor/etc"_s, CFTPath::ENTRY_POINT_OPT);
    row("plug-ins", u"/opt/velkor/plugins/app"_s, CFTPath::ENTRY_POINT_OPT_PLUGINS);
}

void tst_cfileelement::deviceEntryPoint()
{
    QFETCH(QString, path);
    QFETCH(int, entryPoint);

    QCOMPARE(static_cast<int>(file(u"f"_s, path).deviceEntryPoint()), entryPoint);
}

void tst_cfileelement::relativeDeviceFilePath_data()
{
    QTest::addColumn<CFileElement>("element");
    QTest::addColumn<int>("entryPoint");
    QTest::addColumn<QString>("path");

    const auto row = [](const char *name, const CFileElement &element, int entryPoint,
                        const QString &path) {
        QTest::newRow(name) << element << entryPoint << path;
    };
    const CFileElement inSm = file(u"f"_s, u"/velkor/configurations/STD/param"_s);
    row("sm", inSm, CFTPath::ENTRY_POINT_SM, u"configurations/STD/param/f"_s);
    row("configurations", inSm, CFTPath::ENTRY_POINT_SM_CONFIGURATIONS, u"STD/param/f"_s);
    row("another area", inSm, CFTPath::ENTRY_POINT_SM_LOG, u"../configurations/STD/param/f"_s);
    row("opt", inSm, CFTPath::ENTRY_POINT_OPT, u"../../velkor/configurations/STD/param/f"_s);
    row("unknown", inSm, CFTPath::ENTRY_POINT_UNKNOWN, u"/velkor/configurations/STD/param/f"_s);
    row("unheard of", inSm, 99, u"/velkor/configurations/STD/param/f"_s);
    row("in the root", file(u"f"_s, u"/velkor"_s), CFTPath::ENTRY_POINT_SM, u"f"_s);
    row("directory in an unknown area", file({}, u"/velkor"_s), CFTPath::ENTRY_POINT_UNKNOWN,
        u"/velkor/"_s);
}

void tst_cfileelement::relativeDeviceFilePath()
{
    QFETCH(CFileElement, element);
    QFETCH(int, entryPoint);
    QFETCH(QString, path);

    QCOMPARE(element.relativeDeviceFilePath(static_cast<CFTPath::EEntryPoint>(entryPoint)), path);
}

void tst_cfileelement::streamForm_data()
{
    QTest::addColumn<CFileElement>("element");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("null") << CFileElement()
                          << QByteArray::fromHex("ffffffff ffffffff ffffffff ffffffff");
    QTest::newRow("all fields") << file(u"f"_s, u"d"_s, u"p"_s, u"\u20ac"_s)
                                << QByteArray::fromHex("00000002 0066"
                                                       "00000006 002f 0064 002f"
                                                       "00000004 0070 002f"
                                                       "00000002 20ac");
    // Empty directories are stored as null, the other texts as they come.
    QTest::newRow("empty texts") << file(u""_s, u""_s, u""_s, u""_s)
                                 << QByteArray::fromHex("00000000 ffffffff ffffffff 00000000");
}

void tst_cfileelement::streamForm()
{
    QFETCH(CFileElement, element);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));

    CFileElement read = file(u"o"_s, u"l"_s, u"d"_s, u"!"_s);
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == element);
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

void tst_cfileelement::readingDoesNotNormalise()
{
    const QByteArray bytes = QByteArray::fromHex("00000002 0066"
                                                 "00000006 0061 005c 0062"
                                                 "00000002 0070"
                                                 "ffffffff");
    const auto element = StreamBytes::fromBytes<CFileElement>(bytes);
    QCOMPARE(element.devicePath(), u"a\\b"_s);
    QCOMPARE(element.projectPath(), u"p"_s);
    QCOMPARE(element.deviceFilePath(), u"a\\bf"_s);
    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));
}

REGISTER_APPLESS_TEST(tst_cfileelement)
#include "tst_cfileelement.moc"
