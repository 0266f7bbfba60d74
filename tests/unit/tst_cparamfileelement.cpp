#include "elements/CParamFileElement.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <type_traits>

using Change = void (*)(CParamFileElement &);
Q_DECLARE_METATYPE(CParamFileElement)
Q_DECLARE_METATYPE(Change)

namespace {

NvrnGlobal::EParamFileType toType(int value)
{
    return static_cast<NvrnGlobal::EParamFileType>(value);
}

CParamFileElement paramFile(const QString &name, int type = -1)
{
    CParamFileElement result;
    result.setName(name);
    result.setType(toType(type));
    return result;
}

CParamFileElement fullParamFile()
{
    CParamFileElement result = paramFile(u"n"_s, 258);
    result.setComment(u"c"_s);
    result.setDriveId(3);
    result.setDevicePath(u"d"_s);
    result.setProjectPath(u"p"_s);
    return result;
}

bool touch(const QString &path)
{
    return QFile(path).open(QIODevice::WriteOnly);
}

} // namespace

class tst_cparamfileelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void changedField_data();
    void changedField();
    void commentIsNotCompared();
    void validity_data();
    void validity();
    void directories_data();
    void directories();
    void subDeviceIdIsTheDriveId();
    void fileNames_data();
    void fileNames();
    void filesCarryTheDirectories();
    void filesAreNormalised();
    void exits_data();
    void exits();
    void streamForm_data();
    void streamForm();
    void readingDoesNotCheck();
    void hasNoVirtualOperations();
};

void tst_cparamfileelement::defaults()
{
    const CParamFileElement element;
    QVERIFY(element.isNull());
    QVERIFY(!element.isValid());
    QVERIFY(element.name().isNull());
    QVERIFY(element.comment().isNull());
    QCOMPARE(element.type(), NvrnGlobal::PARAM_FILE_UNDEFINED);
    QCOMPARE(element.driveId(), -1);
    QCOMPARE(element.subDeviceId(), -1);
    QVERIFY(element.devicePath().isNull());
    QVERIFY(element.projectPath().isNull());
}

void tst_cparamfileelement::changedField_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("isEqual");

    const auto row = [](const char *name, Change change, bool isNull, bool isEqual) {
        QTest::newRow(name) << change << isNull << isEqual;
    };
    row(
        "name", [](CParamFileElement &f) { f.setName(u"n"_s); }, false, false);
    row(
        "empty name", [](CParamFileElement &f) { f.setName(u""_s); }, true, true);
    row(
        "comment", [](CParamFileElement &f) { f.setComment(u"c"_s); }, false, true);
    row(
        "type 0", [](CParamFileElement &f) { f.setType(toType(0)); }, false, false);
    row(
        "type -2", [](CParamFileElement &f) { f.setType(toType(-2)); }, false, false);
    row(
        "type 42", [](CParamFileElement &f) { f.setType(toType(42)); }, false, false);
    row(
        "drive number", [](CParamFileElement &f) { f.setDriveId(0); }, true, false);
    row(
        "device directory", [](CParamFileElement &f) { f.setDevicePath(u"d"_s); }, true, false);
    row(
        "project directory", [](CParamFileElement &f) { f.setProjectPath(u"p"_s); }, true, false);
}

void tst_cparamfileelement::changedField()
{
    QFETCH(Change, change);
    QFETCH(bool, isNull);
    QFETCH(bool, isEqual);

    CParamFileElement element;
    change(element);
    QCOMPARE(element.isNull(), isNull);
    QCOMPARE(element == CParamFileElement(), isEqual);
    QCOMPARE(CParamFileElement() == element, isEqual);
    QCOMPARE(element != CParamFileElement(), !isEqual);

    element.clear();
    QVERIFY(element.isNull());
    QVERIFY(element == CParamFileElement());
    QVERIFY(element.comment().isNull());
}

void tst_cparamfileelement::commentIsNotCompared()
{
    CParamFileElement other = fullParamFile();
    other.setComment(u"in other words"_s);
    QVERIFY(other == fullParamFile());
    QVERIFY(!(other != fullParamFile()));
    other.setName(u"N"_s);
    QVERIFY(other != fullParamFile());
}

void tst_cparamfileelement::validity_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("no name, undefined") << QString() << -1 << false;
    QTest::newRow("no name, parameters") << QString() << 2 << false;
    QTest::newRow("empty name") << u""_s << 2 << false;
    QTest::newRow("undefined passes") << u"drive1"_s << -1 << true;
    QTest::newRow("first type") << u"drive1"_s << 0 << true;
    QTest::newRow("reserved type") << u"drive1"_s << 10 << true;
    QTest::newRow("unknown type") << u"drive1"_s << 42 << true;
    QTest::newRow("highest type") << u"drive1"_s << std::numeric_limits<int>::max() << true;
    QTest::newRow("below undefined") << u"drive1"_s << -2 << false;
    QTest::newRow("lowest type") << u"drive1"_s << std::numeric_limits<int>::min() << false;
    QTest::newRow("blank name") << u" "_s << 2 << true;
}

void tst_cparamfileelement::validity()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(bool, isValid);

    QCOMPARE(paramFile(name, type).isValid(), isValid);
    QCOMPARE(paramFile(name, type).isNull(), name.isEmpty() && type == -1);
}

void tst_cparamfileelement::directories_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("project");

    QTest::newRow("back-slashes") << u"a\\b"_s << u"/a/b/"_s << u"a/b/"_s;
    QTest::newRow("complete") << u"/x/"_s << u"/x/"_s << u"/x/"_s;
    QTest::newRow("neither start nor end") << u"x"_s << u"/x/"_s << u"x/"_s;
    QTest::newRow("root") << u"/"_s << u"/"_s << u"/"_s;
    QTest::newRow("empty") << u""_s << QString() << QString();
    QTest::newRow("null") << QString() << QString() << QString();
}

void tst_cparamfileelement::directories()
{
    QFETCH(QString, path);
    QFETCH(QString, device);
    QFETCH(QString, project);

    CParamFileElement element = fullParamFile();
    element.setDevicePath(path);
    element.setProjectPath(path);
    QCOMPARE(element.devicePath(), device);
    QCOMPARE(element.projectPath(), project);
    QCOMPARE(element.devicePath().isNull(), device.isNull());
    QCOMPARE(element.projectPath().isNull(), project.isNull());
}

void tst_cparamfileelement::subDeviceIdIsTheDriveId()
{
    CParamFileElement element;
    element.setSubDeviceId(3);
    QCOMPARE(element.driveId(), 3);
    element.setDriveId(-7);
    QCOMPARE(element.subDeviceId(), -7);
    element.setSubDeviceId(70000);
    QCOMPARE(element.driveId(), 70000);
}

void tst_cparamfileelement::fileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("valueFile");
    QTest::addColumn<QString>("definitionFile");

    const auto row = [](const char *rowName, const QString &name, int type,
                        const QString &valueFile, const QString &definitionFile) {
        QTest::newRow(rowName) << name << type << valueFile << definitionFile;
    };
    row("KC2 parameters", u"p"_s, 0, u"p.xml"_s, QString());
    row("KC2 compensation", u"p"_s, 1, u"p"_s, QString());
    row("KC2 compensation with extension", u"p.txt"_s, 1, u"p.txt"_s, QString());
    row("undefined", u"drive1"_s, -1, u"drive1.3param"_s, u"drive1.3pdef"_s);
    for (int type = 2; type <= 12; ++type) {
        QTest::addRow("type %d", type) << u"p"_s << type << u"p.3param"_s << u"p.3pdef"_s;
    }
    row("below undefined", u"p"_s, -2, u"p.3param"_s, u"p.3pdef"_s);
    row("lowest type", u"p"_s, std::numeric_limits<int>::min(), u"p.3param"_s, u"p.3pdef"_s);
    row("highest type", u"p"_s, std::numeric_limits<int>::max(), u"p.3param"_s, u"p.3pdef"_s);
    row("dots in the name", u"a.b"_s, 2, u"a.b.3param"_s, u"a.b.3pdef"_s);
    row("place marker in the name", u"%1"_s, 2, u"%1.3param"_s, u"%1.3pdef"_s);
}

void tst_cparamfileelement::fileNames()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(QString, valueFile);
    QFETCH(QString, definitionFile);

    const CParamFileElement element = paramFile(name, type);
    QCOMPARE(element.valueFileName(), valueFile);
    QCOMPARE(element.defFileName(), definitionFile);
    QCOMPARE(element.valueFile().fileName(), valueFile);
    QCOMPARE(element.defFile().fileName(), definitionFile);
}

void tst_cparamfileelement::filesCarryTheDirectories()
{
    const CParamFileElement element = fullParamFile();
    for (const CFileElement &file : {element.valueFile(), element.defFile()}) {
        QCOMPARE(file.devicePath(), u"/d/"_s);
        QCOMPARE(file.projectPath(), u"p/"_s);
        QVERIFY(file.comment().isEmpty());
    }
    QCOMPARE(element.valueFile().projectFilePath(), u"p/n.3param"_s);
    QCOMPARE(element.defFile().deviceFilePath(), u"/d/n.3pdef"_s);
}

void tst_cparamfileelement::filesAreNormalised()
{
    // From a stream, directories come as they are.
    const auto element = StreamBytes::fromBytes<CParamFileElement>(
        QByteArray::fromHex("00000002 006e ffffffff 00000002 ffffffff"
                            "00000006 0061 005c 0062 00000002 0070"));
    QCOMPARE(element.devicePath(), u"a\\b"_s);
    QCOMPARE(element.valueFile().devicePath(), u"/a/b/"_s);
    QCOMPARE(element.defFile().devicePath(), u"/a/b/"_s);
    QCOMPARE(element.valueFile().projectPath(), u"p/"_s);
}

void tst_cparamfileelement::exits_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("expected");

    QTest::newRow("none") << 2 << QStringList() << false;
    QTest::newRow("both") << 2 << QStringList{u"p.3param"_s, u"p.3pdef"_s} << true;
    QTest::newRow("both, undefined type") << -1 << QStringList{u"p.3param"_s, u"p.3pdef"_s} << true;
    QTest::newRow("value file alone") << 2 << QStringList{u"p.3param"_s} << false;
    QTest::newRow("definition file alone") << 2 << QStringList{u"p.3pdef"_s} << false;
    QTest::newRow("KC2 parameters") << 0 << QStringList{u"p.xml"_s} << false;
    QTest::newRow("KC2 parameters with both")
        << 0 << QStringList{u"p.xml"_s, u"p.3param"_s, u"p.3pdef"_s} << false;
    QTest::newRow("KC2 compensation") << 1 << QStringList{u"p"_s} << false;
}

void tst_cparamfileelement::exits()
{
    QFETCH(int, type);
    QFETCH(QStringList, files);
    QFETCH(bool, expected);

    const QTemporaryDir directory;
    QVERIFY(directory.isValid());
    for (const QString &file : files) {
        QVERIFY(touch(directory.filePath(file)));
    }
    CParamFileElement element = paramFile(u"p"_s, type);
    QVERIFY(!element.exits());
    element.setDevicePath(directory.path());
    QVERIFY(!element.exits());
    element.setProjectPath(directory.path());
    QCOMPARE(element.exits(), expected);
}

void tst_cparamfileelement::streamForm_data()
{
    QTest::addColumn<CParamFileElement>("element");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("null") << CParamFileElement()
                          << QByteArray::fromHex("ffffffff ffffffff ffffffff ffffffff"
                                                 "ffffffff ffffffff");
    QTest::newRow("all fields") << fullParamFile()
                                << QByteArray::fromHex("00000002 006e 00000002 0063"
                                                       "00000102 00000003"
                                                       "00000006 002f 0064 002f"
                                                       "00000004 0070 002f");
    CParamFileElement low = paramFile(u""_s, std::numeric_limits<int>::min());
    low.setDriveId(-2);
    QTest::newRow("negative numbers") << low
                                      << QByteArray::fromHex("00000000 ffffffff"
                                                             "80000000 fffffffe"
                                                             "ffffffff ffffffff");
}

void tst_cparamfileelement::streamForm()
{
    QFETCH(CParamFileElement, element);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));

    CParamFileElement read = fullParamFile();
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == element);
    QCOMPARE(read.comment(), element.comment());
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

void tst_cparamfileelement::readingDoesNotCheck()
{
    const QByteArray bytes = QByteArray::fromHex("00000002 006e ffffffff 0000002a 00000100"
                                                 "00000002 0064 00000002 005c");
    const auto element = StreamBytes::fromBytes<CParamFileElement>(bytes);
    QCOMPARE(static_cast<int>(element.type()), 42);
    QCOMPARE(element.driveId(), 256);
    QCOMPARE(element.devicePath(), u"d"_s);
    QCOMPARE(element.projectPath(), u"\\"_s);
    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));
}

void tst_cparamfileelement::hasNoVirtualOperations()
{
    QVERIFY(!std::is_polymorphic<CParamFileElement>::value);
    QCOMPARE(sizeof(CParamFileElement), sizeof(void *));
}

REGISTER_APPLESS_TEST(tst_cparamfileelement)
#include "tst_cparamfileelement.moc"
