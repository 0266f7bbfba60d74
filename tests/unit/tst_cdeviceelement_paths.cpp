#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/SampleDevice.h"

#include <QTest>

using namespace SampleDevice;

Q_DECLARE_METATYPE(CDeviceElement)
using namespace NvrnDeviceCore;

namespace {

QStringList projectPaths(const CDeviceElement &device)
{
    QStringList result;
    for (const CParamFileElement &element : device.parameterFiles()) {
        result << element.projectPath();
    }
    result << device.odictFile().projectPath() << device.faultTextFile().projectPath();
    for (const CFileElement &element : device.additionalFiles() + device.opcUaFiles()) {
        result << element.projectPath();
    }
    result << device.etherCatMasterFile().projectPath();
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        for (const CFileElement &element : subDevice.allFiles()) {
            result << element.projectPath();
        }
    }
    return result;
}

} // namespace

/** All files of a device, and where they are after a change of names. */
class tst_cdeviceelement_paths : public QObject
{
    Q_OBJECT

private slots:
    void allFiles_data();
    void allFiles();
    void allFilesLeavesOutNullAndRepeatedOnes();
    void allFilesLeavesOutWhatCannotExist();
    void allFilesWithoutAConfigurationName();
    void allFilesTellsPlaces();

    void renamingMovesEveryProjectPath();
    void renamingKeepsNamesAndDevicePaths();
    void adaptingPathsLeavesTheName();
    void renamingWithoutAName_data();
    void renamingWithoutAName();
    void settingTheNameLeavesPaths();
    void renamingTheConfigurationMovesDirectories();
    void renamingTheConfigurationWithoutAName();
    void settingTheConfigurationLeavesPaths();
};

void tst_cdeviceelement_paths::allFiles_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<QStringList>("names");

    const auto row = [](const char *name, int kinds, const QStringList &names) {
        QTest::newRow(name) << kinds << names;
    };
    row("none", DEVICE_FILE_NONE, {});
    row("all", DEVICE_FILE_ALL,
        {u"params.3param"_s, u"params.3pdef"_s, u"odict"_s, u"faults"_s, u"add1"_s, u"add2"_s,
         u"pi_motion.so.2"_s, u"fpga1"_s, u"fpga2"_s, u"opc"_s, u"bus"_s, u"sub"_s, u"firmware"_s,
         u"logic"_s, u"kd2"_s, u"sub3"_s});
    row("parameters", DEVICE_FILE_PARAMETER, {u"params.3param"_s, u"params.3pdef"_s});
    row("parameter values", DEVICE_FILE_PARAMETER_VALUES, {u"params.3param"_s});
    row("parameter definitions", DEVICE_FILE_PARAMETER_DEFINITION, {u"params.3pdef"_s});
    row("object dictionary", DEVICE_FILE_OBJECT_DICTIONARY, {u"odict"_s});
    row("fault texts", DEVICE_FILE_FAULT_TEXTS, {u"faults"_s});
    row("additional", DEVICE_FILE_ADDITIONAL, {u"add1"_s, u"add2"_s});
    row("plug-ins", DEVICE_FILE_PLUGIN, {u"pi_motion.so.2"_s});
    row("FPGA", DEVICE_FILE_FPGA, {u"fpga1"_s, u"fpga2"_s});
    row("OPC UA", DEVICE_FILE_OPC_UA, {u"opc"_s});
    row("EtherCAT master", DEVICE_FILE_ETHERCAT_MASTER, {u"bus"_s});
    row("sub-devices", DEVICE_FILE_SUB_DEVICE,
        {u"sub"_s, u"firmware"_s, u"logic"_s, u"kd2"_s, u"sub3"_s});
    row("sub-device parameters", DEVICE_FILE_SUB_DEVICE_PARAMETERS, {u"sub"_s, u"sub3"_s});
    row("KD2 firmware", DEVICE_FILE_KD2_FIRMWARE, {u"firmware"_s});
    row("KD2 logic", DEVICE_FILE_KD2_LOGIC, {u"logic"_s});
    row("KD2 parameters", DEVICE_FILE_KD2_PARAMETERS, {u"kd2"_s});
    row("two kinds in the order of the fields", DEVICE_FILE_OPC_UA | DEVICE_FILE_FAULT_TEXTS,
        {u"faults"_s, u"opc"_s});
}

void tst_cdeviceelement_paths::allFiles()
{
    QFETCH(int, kinds);
    QFETCH(QStringList, names);

    const CDeviceElement device = deviceWithFiles();
    const EDeviceFiles flags = EDeviceFiles(QFlag(kinds));
    QCOMPARE(fileNames(device.allFiles(flags)), names);
    if (kinds == DEVICE_FILE_ALL) {
        QVERIFY(device.allFiles() == device.allFiles(flags));
        QVERIFY(static_cast<const CDeviceBaseElement &>(device).allFiles() == device.allFiles());
    }
}

void tst_cdeviceelement_paths::allFilesLeavesOutNullAndRepeatedOnes()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setAdditionalFiles({CFileElement(), file(u"a"_s), file({}, u"p"_s, u"d"_s),
                               file(u"a"_s, {}, {}, u"comment"_s), file(u"a"_s, u"p"_s),
                               file(u"a"_s, {}, u"d"_s)});
    device.setFpgaFiles({u""_s, u"f"_s, u"f"_s});
    device.setOpcUaFiles({file(u"a"_s, u"p"_s), file(u"b"_s)});
    device.setEtherCatMasterFile(file(u"b"_s));
    CSubDeviceKD3Element subDevice;
    subDevice.setParameterFile(file(u"b"_s));
    device.insertSubDevice(CSubDeviceElement(subDevice));
    device.insertSubDevice(CSubDeviceElement());
    QCOMPARE(fileNames(device.allFiles()), (QStringList{u"a"_s, u"a"_s, u"a"_s, u"f"_s, u"b"_s}));
    for (const CFileElement &element : device.allFiles()) {
        QVERIFY(!element.isNull());
    }
}

void tst_cdeviceelement_paths::allFilesLeavesOutWhatCannotExist()
{
    // Without a name they would still give ".3param" and "pi_.so.2".
    CDeviceElement device;
    device.setParameterFiles({paramFile(QString()), paramFile(u"p"_s)});
    device.setPlugins({plugin(QString(), u"2"_s), plugin(u"m"_s, u"2"_s), plugin(u"m"_s, u"2"_s)});
    device.setFpgaFiles({QString(), u"f"_s, u"f"_s});
    QCOMPARE(fileNames(device.allFiles()),
             (QStringList{u"p.3param"_s, u"p.3pdef"_s, u"pi_m.so.2"_s, u"f"_s}));
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_ALL)), QStringList{u"f"_s});
    QCOMPARE(fileNames(device.pluginFileElements()), QStringList{u"pi_m.so.2"_s});
}

void tst_cdeviceelement_paths::allFilesWithoutAConfigurationName()
{
    CDeviceElement device;
    device.setConfigurationName(QString());
    device.setParameterFiles({paramFile(u"own"_s, 2), paramFile(u"shared"_s, 4)});
    const Files files = device.parameterFiles(DEVICE_FILE_PARAMETER_VALUES);
    QCOMPARE(files.size(), 2);
    QVERIFY(files.at(0).devicePath().isEmpty());
    QCOMPARE(files.at(1).devicePath(), CDeviceFileSystem::optSMEtcConfPath());
}

void tst_cdeviceelement_paths::allFilesTellsPlaces()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setConfigurationName(u"x"_s);
    CParamFileElement withProject = paramFile(u"b"_s);
    withProject.setProjectPath(u"own"_s);
    CParamFileElement withDevice = paramFile(u"c"_s);
    withDevice.setDevicePath(u"/opt/velkor/own"_s);
    device.setParameterFiles({paramFile(u"a"_s), withProject, withDevice});
    device.setOdictFile(file(u"o"_s));
    const Files files =
        device.allFiles(EDeviceFiles(DEVICE_FILE_PARAMETER_VALUES) | DEVICE_FILE_OBJECT_DICTIONARY);
    const QString param = u"/velkor/configurations/x/param"_s;
    QCOMPARE(files.size(), 4);
    QVERIFY(files.at(0) == file(u"a.3param"_s, u"dev/velkor/param"_s, param));
    QVERIFY(files.at(1) == file(u"b.3param"_s, u"own"_s, param));
    QVERIFY(files.at(2) == file(u"c.3param"_s, u"dev/opt/velkor/own"_s, u"/opt/velkor/own"_s));
    QVERIFY(files.at(3) == file(u"o"_s));
}

void tst_cdeviceelement_paths::renamingMovesEveryProjectPath()
{
    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setNameAndAdaptProjectPaths(u"new"_s);
    QCOMPARE(device.name(), u"new"_s);

    QStringList expected;
    for (const QString &path : before) {
        QVERIFY(path.contains(u"old/"_s));
        expected << QString(path).replace(u"old/"_s, u"new/"_s);
    }
    QCOMPARE(projectPaths(device), expected);
    QCOMPARE(expected.size(), 12);
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        QCOMPARE(subDevice.deviceName(), u"new"_s);
    }

    // And back.
    device.setNameAndAdaptProjectPaths(u"old"_s);
    QVERIFY(device == deviceWithFiles());
}

void tst_cdeviceelement_paths::renamingKeepsNamesAndDevicePaths()
{
    const CDeviceElement before = deviceWithFiles();
    CDeviceElement device(before);
    device.setNameAndAdaptProjectPaths(u"new"_s);
    const Files files = device.allFiles();
    QCOMPARE(fileNames(files), fileNames(before.allFiles()));
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(files.at(i).deviceFilePath(), before.allFiles().at(i).deviceFilePath());
    }
    QVERIFY(before == deviceWithFiles());
}

void tst_cdeviceelement_paths::adaptingPathsLeavesTheName()
{
    CDeviceElement device = deviceWithFiles();
    device.adaptProjectPaths(u"new"_s);
    QCOMPARE(device.name(), u"old"_s);
    QCOMPARE(device.subDevice(0).deviceName(), u"old"_s);
    QCOMPARE(device.subDevice(0).parameterFile().projectPath(), u"new/g/"_s);
    QCOMPARE(device.odictFile().projectPath(), u"new/b/"_s);
    device.setName(u"new"_s);
    CDeviceElement renamed = deviceWithFiles();
    renamed.setNameAndAdaptProjectPaths(u"new"_s);
    QVERIFY(device == renamed);
}

void tst_cdeviceelement_paths::renamingWithoutAName_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");

    QTest::newRow("no old name") << QString() << u"new"_s;
    QTest::newRow("no new name") << u"old"_s << QString();
    QTest::newRow("no name at all") << QString() << QString();
    QTest::newRow("same name") << u"old"_s << u"old"_s;
}

void tst_cdeviceelement_paths::renamingWithoutAName()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);

    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setName(oldName);
    device.setNameAndAdaptProjectPaths(newName);
    QCOMPARE(device.name(), newName);
    QCOMPARE(projectPaths(device), before);
}

void tst_cdeviceelement_paths::settingTheNameLeavesPaths()
{
    CDeviceElement device = deviceWithFiles();
    const QStringList before = projectPaths(device);
    device.setName(u"new"_s);
    QCOMPARE(projectPaths(device), before);
}

void tst_cdeviceelement_paths::renamingTheConfigurationMovesDirectories()
{
    const CDeviceElement before = deviceWithFiles();
    CDeviceElement device(before);
    device.setConfigurationNameAndAdaptPaths(u"new"_s);
    QCOMPARE(device.configurationName(), u"new"_s);
    QCOMPARE(device.name(), u"old"_s);

    const QString sm = u"/velkor/configurations/new/"_s;
    QCOMPARE(device.parameterFiles().first().devicePath(), QString(sm + u"param/"_s));
    QCOMPARE(device.odictFile().devicePath(), u"/opt/velkor/configurations/new/conf/"_s);
    QCOMPARE(device.faultTextFile().devicePath(), u"/tmp/conf/"_s);
    QCOMPARE(device.additionalFile(0).devicePath(), sm);
    QCOMPARE(device.additionalFile(1).projectPath(), u"p/old/new/d/"_s);
    QCOMPARE(device.opcUaFiles().first().devicePath(), QString(sm + u"conf/"_s));
    QCOMPARE(device.etherCatMasterFile().devicePath(), QString(sm + u"param/"_s));
    QCOMPARE(device.subDevice(0).parameterFile().devicePath(),
             QString(sm + u"subdevices/0/param/"_s));
    QCOMPARE(device.subDevice(1).configurationName(), u"new"_s);
    QCOMPARE(fileNames(device.allFiles()), fileNames(before.allFiles()));
    QVERIFY(before == deviceWithFiles());

    device.setConfigurationNameAndAdaptPaths(u"conf"_s);
    QVERIFY(device == before);
}

void tst_cdeviceelement_paths::renamingTheConfigurationWithoutAName()
{
    CDeviceElement device = deviceWithFiles();
    device.setConfigurationNameAndAdaptPaths(QString());
    QVERIFY(device.configurationName().isEmpty());
    device.setConfigurationNameAndAdaptPaths(u"conf"_s);
    QVERIFY(device == deviceWithFiles());
}

void tst_cdeviceelement_paths::settingTheConfigurationLeavesPaths()
{
    CDeviceElement device = deviceWithFiles();
    device.setConfigurationName(u"new"_s);
    device.setConfigurationName(u"conf"_s);
    QVERIFY(device == deviceWithFiles());
}

QTEST_APPLESS_MAIN(tst_cdeviceelement_paths)
#include "tst_cdeviceelement_paths.moc"
