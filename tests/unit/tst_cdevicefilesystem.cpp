#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CDeviceElement.h"
#include "imported/CFTPath.h"
#include "imported/CPath.h"
#include "support/Literals.h"
#include "support/TestProgram.h"

#include <QTest>

#include <type_traits>

using StaticPath = QString (*)();
using NamedPath = QString (*)(const QString &);
using NumberedPath = QString (*)(const QString &, int);
using MemberPath = QString (CDeviceFileSystem::*)() const;
using NumberedMemberPath = QString (CDeviceFileSystem::*)(int) const;
Q_DECLARE_METATYPE(StaticPath)
Q_DECLARE_METATYPE(NamedPath)
Q_DECLARE_METATYPE(NumberedPath)
Q_DECLARE_METATYPE(MemberPath)
Q_DECLARE_METATYPE(NumberedMemberPath)

namespace {

using Fs = CDeviceFileSystem;

CDeviceElement device(const QString &name, const QString &configurationName)
{
    CDeviceElement result;
    result.setName(name);
    result.setConfigurationName(configurationName);
    return result;
}

NvrnGlobal::EParamFileType toType(int value)
{
    return static_cast<NvrnGlobal::EParamFileType>(value);
}

} // namespace

class tst_cdevicefilesystem : public QObject
{
    Q_OBJECT

private slots:
    void directoryNames_data();
    void directoryNames();
    void staticPath_data();
    void staticPath();
    void namedPath_data();
    void namedPath();
    void numberedPath_data();
    void numberedPath();
    void relativePaths_data();
    void relativePaths();
    void parameterFilePath_data();
    void parameterFilePath();
    void holdsACopy();
    void smPathList_data();
    void smPathList();
    void optPathList_data();
    void optPathList();
    void listsOfADevice();
    void listsOfANullDevice();
    void listsOfADeviceWithoutConfiguration();
    void toRelativeProjectPath_data();
    void toRelativeProjectPath();
    void relativeProjectPathOfANullDevice_data();
    void relativeProjectPathOfANullDevice();
    void entryPointsLieInTheTrees();
};

void tst_cdevicefilesystem::directoryNames_data()
{
    QTest::addColumn<QString>("directory");

    QTest::newRow("company") << CPath::CPATH_COMPANY;
    QTest::newRow("configuration") << CPath::CPATH_CONF;
    QTest::newRow("log") << CPath::CPATH_LOG;
    QTest::newRow("plug-ins") << CPath::CPATH_PLUGINS;
    QTest::newRow("configuration area") << CPath::CPATH_CCONF;
    QTest::newRow("configurations") << CFTPath::PATH_CONFIGURATIONS;
    QTest::newRow("per-configuration configuration") << CFTPath::PATH_CONF;
    QTest::newRow("parameters") << CFTPath::PATH_PARAM;
    QTest::newRow("sub-devices") << CFTPath::PATH_SUBDEVICES;
    QTest::newRow("firmware") << CFTPath::PATH_FIRMWARE;
    QTest::newRow("logic") << CFTPath::PATH_LOGIC;
    QTest::newRow("autostart") << CFTPath::PATH_AUTOSTART;
    QTest::newRow("binaries") << CFTPath::PATH_BIN;
}

void tst_cdevicefilesystem::directoryNames()
{
    // Directories are composed by concatenation, so each name brings the separator at its end.
    QFETCH(QString, directory);

    QVERIFY(directory.size() > 1);
    QVERIFY(directory.endsWith(QLatin1Char('/')));
    QVERIFY(!directory.startsWith(QLatin1Char('/')));
    QVERIFY(!directory.contains(u"//"_s));
}

void tst_cdevicefilesystem::staticPath_data()
{
    QTest::addColumn<StaticPath>("operation");
    QTest::addColumn<QString>("path");

    const auto row = [](const char *name, StaticPath operation, const QString &path) {
        QTest::newRow(name) << operation << path;
    };
    row("smPath", &Fs::smPath, u"/velkor/"_s);
    row("smConfPath", &Fs::smConfPath, u"/velkor/conf/"_s);
    row("smLogPath", &Fs::smLogPath, u"/velkor/log/"_s);
    row("smConfigurationsPath", &Fs::smConfigurationsPath, u"/velkor/configurations/"_s);
    row("smRelDeviceParamPath", &Fs::smRelDeviceParamPath, u"param/"_s);
    row("optSMPath", &Fs::optSMPath, u"/opt/velkor/"_s);
    row("optSMEtcConfPath", &Fs::optSMEtcConfPath, u"/opt/velkor/etc/conf/"_s);
    row("optSMPluginsBasePath", &Fs::optSMPluginsBasePath, u"/opt/velkor/plugins/"_s);
    row("optSMPluginsPath", &Fs::optSMPluginsPath, u"/opt/velkor/plugins/app/"_s);
    row("optSMConfigurationsPath", &Fs::optSMConfigurationsPath, u"/opt/velkor/configurations/"_s);
    row("stdFpgaPath", &Fs::stdFpgaPath, u"/opt/velkor/etc/conf/"_s);
    row("stdPluginPath", &Fs::stdPluginPath, u"/opt/velkor/plugins/app/"_s);
}

void tst_cdevicefilesystem::staticPath()
{
    QFETCH(StaticPath, operation);
    QTEST(operation(), "path");
}

void tst_cdevicefilesystem::namedPath_data()
{
    QTest::addColumn<NamedPath>("operation");
    QTest::addColumn<MemberPath>("member");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("withoutName");

    const auto row = [](const char *name, NamedPath operation, MemberPath member,
                        const QString &path, const QString &withoutName) {
        QTest::newRow(name) << operation << member << path << withoutName;
    };
#define ROW(operation, path, withoutName) \
    row(#operation, qOverload<const QString &>(&Fs::operation), qConstOverload<>(&Fs::operation), \
        path, withoutName)
    const QString inSm = u"/velkor/configurations/a b/"_s;
    const QString inOpt = u"/opt/velkor/configurations/a b/"_s;
    ROW(smDevicePath, inSm, QString());
    ROW(smDeviceConfPath, inSm + u"conf/"_s, u"conf/"_s);
    ROW(smDeviceParamPath, inSm + u"param/"_s, u"param/"_s);
    ROW(smSubDevicesPath, inSm + u"subdevices/"_s, u"subdevices/"_s);
    ROW(optSMDevicePath, inOpt, QString());
    ROW(optSMDeviceAutostartPath, inOpt + u"autostart/"_s, u"autostart/"_s);
    ROW(optSMDeviceBinPath, inOpt + u"bin/"_s, u"bin/"_s);
    ROW(optSMDeviceConfPath, inOpt + u"conf/"_s, u"conf/"_s);
    ROW(stdObjectDictionaryPath, inOpt + u"conf/"_s, u"conf/"_s);
    ROW(stdFaultTextFilePath, inOpt + u"conf/"_s, u"conf/"_s);
    ROW(stdOpcUaFilePath, inSm + u"conf/"_s, u"conf/"_s);
    ROW(stdEtherCatMasterFilePath, inSm + u"param/"_s, u"param/"_s);
#undef ROW
}

void tst_cdevicefilesystem::namedPath()
{
    QFETCH(NamedPath, operation);
    QFETCH(MemberPath, member);
    QFETCH(QString, path);
    QFETCH(QString, withoutName);

    QCOMPARE(operation(u"a b"_s), path);
    QCOMPARE(operation(QString()), withoutName);
    QCOMPARE(operation(u""_s), withoutName);

    const Fs named(device(u"device"_s, u"a b"_s));
    QCOMPARE((named.*member)(), path);
    const Fs unnamed(device(u"device"_s, QString()));
    QCOMPARE((unnamed.*member)(), withoutName);
    // Also a null device has a configuration.
    const Fs null{CDeviceElement()};
    QCOMPARE((null.*member)(), operation(u"STD"_s));
}

void tst_cdevicefilesystem::numberedPath_data()
{
    QTest::addColumn<NumberedPath>("operation");
    QTest::addColumn<NumberedMemberPath>("member");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("suffix");

    const auto row = [](const char *name, NumberedPath operation, NumberedMemberPath member,
                        const QString &suffix) {
        for (const int number : {0, 2, 9, 10, 254, 1000}) {
            QTest::addRow("%s %d", name, number)
                << operation << member << number
                << u"subdevices/"_s + QString::number(number) + u"/"_s + suffix;
        }
    };
#define ROW(operation, suffix) \
    row(#operation, qOverload<const QString &, int>(&Fs::operation), \
        qConstOverload<int>(&Fs::operation), suffix)
    ROW(smSubDevicePath, QString());
    ROW(smSubDeviceFirmwarePath, u"firmware/"_s);
    ROW(smSubDeviceLogicPath, u"logic/"_s);
    ROW(smSubDeviceParamPath, u"param/"_s);
#undef ROW
}

void tst_cdevicefilesystem::numberedPath()
{
    QFETCH(NumberedPath, operation);
    QFETCH(NumberedMemberPath, member);
    QFETCH(int, number);
    QFETCH(QString, suffix);

    const QString path = u"/velkor/configurations/x/"_s + suffix;
    QCOMPARE(operation(u"x"_s, number), path);
    QCOMPARE(operation(QString(), number), suffix);
    QCOMPARE((Fs(device(u"device"_s, u"x"_s)).*member)(number), path);
    QCOMPARE((Fs(device(u"device"_s, QString())).*member)(number), suffix);
}

void tst_cdevicefilesystem::relativePaths_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("subDevice");
    QTest::addColumn<QString>("parameters");

    QTest::newRow("0") << 0 << u"subdevices/0/"_s << u"subdevices/0/param/"_s;
    QTest::newRow("not padded") << 10 << u"subdevices/10/"_s << u"subdevices/10/param/"_s;
    QTest::newRow("no thousands separator")
        << 12345 << u"subdevices/12345/"_s << u"subdevices/12345/param/"_s;
}

void tst_cdevicefilesystem::relativePaths()
{
    QFETCH(int, number);
    QTEST(Fs::smRelSubDevicePath(number), "subDevice");
    QTEST(Fs::smRelSubDeviceParamPath(number), "parameters");
}

void tst_cdevicefilesystem::parameterFilePath_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("shared");

    for (int type = -2; type <= 13; ++type) {
        QTest::addRow("type %d", type)
            << type << (type == 4 || type == 6 || type == 7 || type == 11);
    }
}

void tst_cdevicefilesystem::parameterFilePath()
{
    QFETCH(int, type);
    QFETCH(bool, shared);

    const QString area = u"/opt/velkor/etc/conf/"_s;
    const QString own = shared ? area : u"/velkor/configurations/x/param/"_s;
    QCOMPARE(Fs::stdParamFilePath(toType(type), u"x"_s), own);
    QCOMPARE(Fs(device(u"device"_s, u"x"_s)).stdParamFilePath(toType(type)), own);
    QCOMPARE(Fs::stdParamFilePath(toType(type), QString()), shared ? area : u"param/"_s);
}

void tst_cdevicefilesystem::holdsACopy()
{
    CDeviceElement original = device(u"device"_s, u"x"_s);
    const Fs fs(original);
    original.setConfigurationName(u"y"_s);
    QCOMPARE(fs.smDevicePath(), u"/velkor/configurations/x/"_s);
    QVERIFY(!std::is_default_constructible<Fs>::value);
    QVERIFY(std::has_virtual_destructor<Fs>::value);
}

void tst_cdevicefilesystem::smPathList_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<unsigned int>("subDevices");
    QTest::addColumn<QStringList>("paths");

    const QStringList none = {u"/velkor/"_s,
                              u"/velkor/log/"_s,
                              u"/velkor/configurations/"_s,
                              u"/velkor/configurations/x/"_s,
                              u"/velkor/configurations/x/conf/"_s,
                              u"/velkor/configurations/x/param/"_s,
                              u"/velkor/configurations/x/subdevices/"_s};
    const QStringList first = {u"/velkor/configurations/x/subdevices/0/"_s,
                               u"/velkor/configurations/x/subdevices/0/firmware/"_s,
                               u"/velkor/configurations/x/subdevices/0/logic/"_s,
                               u"/velkor/configurations/x/subdevices/0/param/"_s};
    const QStringList second = {u"/velkor/configurations/x/subdevices/1/"_s,
                                u"/velkor/configurations/x/subdevices/1/firmware/"_s,
                                u"/velkor/configurations/x/subdevices/1/logic/"_s,
                                u"/velkor/configurations/x/subdevices/1/param/"_s};
    QTest::newRow("null name") << QString() << 2u << QStringList();
    QTest::newRow("empty name") << u""_s << 2u << QStringList();
    QTest::newRow("no sub-device") << u"x"_s << 0u << none;
    QTest::newRow("one sub-device") << u"x"_s << 1u << none + first;
    QTest::newRow("two sub-devices") << u"x"_s << 2u << none + first + second;
}

void tst_cdevicefilesystem::smPathList()
{
    QFETCH(QString, name);
    QFETCH(unsigned int, subDevices);
    QTEST(Fs::smPathList(name, subDevices), "paths");
}

void tst_cdevicefilesystem::optPathList_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("paths");

    QTest::newRow("null name") << QString() << QStringList();
    QTest::newRow("empty name") << u""_s << QStringList();
    QTest::newRow("name") << u"x"_s
                          << QStringList{u"/opt/velkor/"_s,
                                         u"/opt/velkor/configurations/"_s,
                                         u"/opt/velkor/configurations/x/"_s,
                                         u"/opt/velkor/configurations/x/autostart/"_s,
                                         u"/opt/velkor/configurations/x/bin/"_s,
                                         u"/opt/velkor/configurations/x/conf/"_s};
}

void tst_cdevicefilesystem::optPathList()
{
    QFETCH(QString, name);
    QTEST(Fs::optSMPathList(name), "paths");
}

void tst_cdevicefilesystem::listsOfADevice()
{
    CDeviceElement element = device(QString(), u"x"_s);
    QCOMPARE(Fs(element).smPathList(), Fs::smPathList(u"x"_s, 0));
    QCOMPARE(Fs(element).smPathList().size(), 7);
    QCOMPARE(Fs(element).optSMPathList(), Fs::optSMPathList(u"x"_s));

    // What counts is how many there are, not their numbers.
    element.insertSubDevice(CSubDeviceElement(CSubDeviceKD2Element()), 5);
    element.insertSubDevice(CSubDeviceElement(CSubDeviceKD3Element()), 9);
    QCOMPARE(Fs(element).smPathList(), Fs::smPathList(u"x"_s, 2));
    QCOMPARE(Fs(element).smPathList().size(), 15);
}

void tst_cdevicefilesystem::listsOfANullDevice()
{
    const Fs fs{CDeviceElement()};
    QVERIFY(fs.smPathList().isEmpty());
    QVERIFY(fs.optSMPathList().isEmpty());
}

void tst_cdevicefilesystem::listsOfADeviceWithoutConfiguration()
{
    const Fs fs(device(u"device"_s, QString()));
    QVERIFY(fs.smPathList().isEmpty());
    QVERIFY(fs.optSMPathList().isEmpty());
}

void tst_cdevicefilesystem::toRelativeProjectPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("configurationName");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *rowName, const QString &configurationName, const QString &path,
                        const QString &result) {
        QTest::newRow(rowName) << u"Dev"_s << configurationName << path << result;
    };
    row("sm tree", u"STD"_s, u"/velkor/configurations/STD/param/"_s, u"Dev/velkor/param/"_s);
    row("sm tree, file", u"STD"_s, u"/velkor/configurations/STD/conf/a.xml"_s,
        u"Dev/velkor/conf/a.xml"_s);
    row("configuration in the opt tree", u"STD"_s, u"/opt/velkor/configurations/STD/conf/"_s,
        u"Dev/opt/velkor/conf/"_s);
    row("sub-device", u"STD"_s, u"/velkor/configurations/STD/subdevices/1/param/"_s,
        u"Dev/velkor/subdevices/1/param/"_s);
    row("opt tree", u"STD"_s, u"/opt/velkor/etc/conf/"_s, u"Dev/opt/velkor/etc/conf/"_s);
    row("opt tree, several separators in front", u"STD"_s, u"///opt/velkor/plugins/"_s,
        u"Dev/opt/velkor/plugins/"_s);
    row("opt tree below something else", u"STD"_s, u"/mnt/opt/velkor/plugins/"_s,
        u"Dev/mnt/opt/velkor/plugins/"_s);
    row("opt tree keeps the configurations", u"STD"_s, u"/opt/velkor/configurations/x/"_s,
        u"Dev/opt/velkor/configurations/x/"_s);
    row("double separators", u"STD"_s, u"/velkor//configurations/STD//param///a"_s,
        u"Dev/velkor/param/a"_s);
    row("mixed separators", u"STD"_s, u"/velkor/configurations/STD/\\param\\/a\\\\b"_s,
        u"Dev/velkor/param/a/b"_s);
    row("single back-slash stays", u"STD"_s, u"/velkor/configurations/STD/param\\a"_s,
        u"Dev/velkor/param\\a"_s);
    row("opt tree, double separators", u"STD"_s, u"/opt/velkor/a//b\\/c\\d"_s,
        u"Dev/opt/velkor/a/b/c\\d"_s);
    row("every occurrence of the name", u"STD"_s, u"/velkor/configurations/STD/aSTDb/STD"_s,
        u"Dev/velkor/ab/"_s);
    row("every occurrence of the configurations", u"STD"_s,
        u"/velkor/configurations/configurations/STD/a"_s, u"Dev/velkor/a"_s);
    row("name within the sm root word", u"elk"_s, u"/velkor/param/"_s, u"Dev/vor/param/"_s);
    row("dot in the name is no pattern", u"S.D"_s, u"/velkor/configurations/STD/"_s, QString());
    row("another case", u"STD"_s, u"/velkor/configurations/std/"_s, QString());
    row("another configuration", u"STD"_s, u"/velkor/configurations/x/"_s, QString());
    row("outside", u"STD"_s, u"/tmp/a"_s, QString());
    row("empty path", u"STD"_s, u""_s, QString());
    row("null path", u"STD"_s, QString(), QString());
    row("name without the sm root word", u"STD"_s, u"/tmp/STD/a"_s, QString());
    row("name without the sm root word in its case", u"STD"_s, u"/Velkor/STD/a"_s, QString());
    row("opt tree without the last separator", u"STD"_s, u"/opt/velkor"_s, QString());
    row("opt tree in another case", u"STD"_s, u"/Opt/velkor/a"_s, QString());
    row("empty configuration name, sm tree", QString(), u"/velkor/configurations/STD/param/"_s,
        QString());
    row("empty configuration name, opt tree", QString(), u"/opt/velkor/etc/conf/"_s,
        u"Dev/opt/velkor/etc/conf/"_s);
    row("configuration name with the opt tree", u"opt"_s, u"/opt/velkor/etc/"_s,
        u"Dev/velkor/etc/"_s);

    QTest::newRow("no device name")
        << QString() << u"x"_s << u"/velkor/configurations/x/param/"_s << u"/velkor/param/"_s;
    QTest::newRow("device name with separators")
        << u"a//b"_s << u"x"_s << u"/velkor/configurations/x/param/"_s << u"a/b/velkor/param/"_s;
}

void tst_cdevicefilesystem::toRelativeProjectPath()
{
    QFETCH(QString, name);
    QFETCH(QString, configurationName);
    QFETCH(QString, path);
    QFETCH(QString, result);

    const CDeviceElement element = device(name, configurationName);
    QCOMPARE(Fs::toRelativeProjectPath(path, element), result);
    QCOMPARE(Fs(element).toRelativeProjectPath(path), result);
}

void tst_cdevicefilesystem::relativeProjectPathOfANullDevice_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");

    QTest::newRow("with its configuration") << u"/velkor/configurations/STD/param/"_s << QString();
    QTest::newRow("with its configuration in the opt tree")
        << u"/opt/velkor/configurations/STD/conf/"_s << QString();
    QTest::newRow("opt tree") << u"/opt/velkor/etc/conf/"_s << u"/opt/velkor/etc/conf/"_s;
    QTest::newRow("outside") << u"/tmp/"_s << QString();
}

void tst_cdevicefilesystem::relativeProjectPathOfANullDevice()
{
    QFETCH(QString, path);
    QTEST(Fs::toRelativeProjectPath(path, CDeviceElement()), "result");
}

void tst_cdevicefilesystem::entryPointsLieInTheTrees()
{
    QCOMPARE(CFTPath::toPath(static_cast<CFTPath::EEntryPoint>(4)), Fs::optSMPath());
    QCOMPARE(CFTPath::fromPath(Fs::optSMPluginsPath()), CFTPath::ENTRY_POINT_OPT_PLUGINS);
    QCOMPARE(CFTPath::fromPath(Fs::smDevicePath(u"x"_s)), CFTPath::ENTRY_POINT_SM_CONFIGURATIONS);
    QCOMPARE(CFTPath::fromPath(Fs::optSMDevicePath(u"x"_s)),
             CFTPath::ENTRY_POINT_OPT_CONFIGURATIONS);
    QCOMPARE(CFTPath::fromPath(Fs::smLogPath()), CFTPath::ENTRY_POINT_SM_LOG);
    QCOMPARE(CFTPath::fromPath(Fs::smConfPath()), CFTPath::ENTRY_POINT_SM);
}

REGISTER_APPLESS_TEST(tst_cdevicefilesystem)
#include "tst_cdevicefilesystem.moc"
