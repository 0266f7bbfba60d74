#include "configfile/ICDeviceConfigurationFile.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CDeviceElement.h"
#include "support/Literals.h"
#include "support/SampleDevice.h"

#include <QTest>

#include <limits>

using namespace SampleDevice;

Q_DECLARE_METATYPE(CDeviceElement)
using namespace NvrnDeviceCore;

/** The lists of files of a device. */
class tst_cdeviceelement_files : public QObject
{
    Q_OBJECT

private slots:
    void fpgaFileAt_data();
    void fpgaFileAt();
    void fpgaFileList();
    void setActiveFpgaFile_data();
    void setActiveFpgaFile();
    void isSameFpgaFile_data();
    void isSameFpgaFile();
    void fpgaFileElements();

    void addParameterFile();
    void addInvalidParameterFile_data();
    void addInvalidParameterFile();
    void removeParameterFile();
    void parameterFilesOfAType();
    void parameterFileElements_data();
    void parameterFileElements();
    void additionalFiles();
    void opcUaFiles();
    void pluginFiles();
    void odictFileName_data();
    void odictFileName();
    void configurationFile_data();
    void configurationFile();
    void standardDirectories();
};

void tst_cdeviceelement_files::fpgaFileAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("left");

    const QStringList all = {u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("first") << 0 << u"a"_s << QStringList{u"b"_s, u"c"_s};
    QTest::newRow("last") << 2 << u"c"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("behind the end") << 3 << QString() << all;
    QTest::newRow("far behind the end") << 1000000 << QString() << all;
    QTest::newRow("negative") << -1 << QString() << all;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << QString() << all;
}

void tst_cdeviceelement_files::fpgaFileAt()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(QStringList, left);

    CDeviceElement device;
    device.setFpgaFiles({u"a"_s, u"b"_s, u"c"_s});
    QCOMPARE(device.fpgaFile(index), name);
    QCOMPARE(device.fpgaFileElement(index).fileName(), name);
    QCOMPARE(device.fpgaFileElement(index).isNull(), name.isEmpty());
    QCOMPARE(device.removeFpgaFile(index), !name.isEmpty());
    QCOMPARE(device.fpgaFiles(), left);
}

void tst_cdeviceelement_files::fpgaFileList()
{
    CDeviceElement device;
    QVERIFY(!device.removeFpgaFile(0));
    QVERIFY(!device.removeFpgaFile(u"a"_s));
    device.appendFpgaFile(u"a"_s);
    device.appendFpgaFile(u"b"_s);
    device.appendFpgaFile(u"a"_s);
    QCOMPARE(device.fpgaFiles(), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    QCOMPARE(device.fpgaFileCount(), 3);
    QCOMPARE(device.activeFpgaFile(), u"a"_s);
    QVERIFY(!device.removeFpgaFile(u"A"_s));
    QVERIFY(!device.removeFpgaFile(u"x/a"_s));
    QVERIFY(device.removeFpgaFile(u"a"_s));
    QCOMPARE(device.fpgaFiles(), (QStringList{u"b"_s, u"a"_s}));
    QCOMPARE(device.activeFpgaFile(), u"b"_s);
    device.clearFpgaFiles();
    QCOMPARE(device.fpgaFileCount(), 0);
    QVERIFY(device.activeFpgaFile().isEmpty());
}

void tst_cdeviceelement_files::setActiveFpgaFile_data()
{
    QTest::addColumn<QString>("active");
    QTest::addColumn<QStringList>("files");

    QTest::newRow("first") << u"a"_s << QStringList{u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("last") << u"c"_s << QStringList{u"c"_s, u"a"_s, u"dir/b"_s};
    QTest::newRow("new") << u"d"_s << QStringList{u"d"_s, u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("with another directory")
        << u"other/c"_s << QStringList{u"other/c"_s, u"a"_s, u"dir/b"_s};
    QTest::newRow("without its directory") << u"b"_s << QStringList{u"b"_s, u"a"_s, u"c"_s};
    QTest::newRow("another case") << u"A"_s << QStringList{u"A"_s, u"a"_s, u"dir/b"_s, u"c"_s};
    QTest::newRow("empty") << u""_s << QStringList{u"a"_s, u"dir/b"_s, u"c"_s};
}

void tst_cdeviceelement_files::setActiveFpgaFile()
{
    QFETCH(QString, active);
    QFETCH(QStringList, files);

    CDeviceElement device;
    device.setFpgaFiles({u"a"_s, u"dir/b"_s, u"c"_s});
    device.setActiveFpgaFile(active);
    QCOMPARE(device.fpgaFiles(), files);
    QCOMPARE(device.activeFpgaFile(), files.first());
    device.setActiveFpgaFile(active);
    QCOMPARE(device.fpgaFiles(), files);
}

void tst_cdeviceelement_files::isSameFpgaFile_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("same");

    QTest::newRow("equal") << u"a"_s << u"a"_s << true;
    QTest::newRow("one with a directory") << u"a"_s << u"x/a"_s << true;
    QTest::newRow("two directories") << u"/x/y/a"_s << u"z/a"_s << true;
    QTest::newRow("other names") << u"x/a"_s << u"x/b"_s << false;
    QTest::newRow("another case") << u"a"_s << u"A"_s << false;
    QTest::newRow("name and directory") << u"a"_s << u"a/x"_s << false;
}

void tst_cdeviceelement_files::isSameFpgaFile()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST(CDeviceBaseElement::isSameFpgaFile(left, right), "same");
    QTEST(CDeviceBaseElement::isSameFpgaFile(right, left), "same");
}

void tst_cdeviceelement_files::fpgaFileElements()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setFpgaFiles({u"a"_s, u"b"_s});
    const CFileElement first =
        file(u"a"_s, u"dev/opt/velkor/etc/conf"_s, u"/opt/velkor/etc/conf"_s);
    QVERIFY(device.fpgaFileElement(0) == first);
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_FPGA)), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(fileNames(device.fpgaFiles(DEVICE_FILE_ALL)), (QStringList{u"a"_s, u"b"_s}));
    QVERIFY(device.fpgaFiles(DEVICE_FILE_ALL).first() == first);
    QVERIFY(device.fpgaFiles(EDeviceFiles(DEVICE_FILE_ALL) & ~EDeviceFiles(DEVICE_FILE_FPGA))
                .isEmpty());
    QVERIFY(device.fpgaFiles(DEVICE_FILE_NONE).isEmpty());
}

void tst_cdeviceelement_files::addParameterFile()
{
    CDeviceElement device;
    QVERIFY(device.addParameterFile(u"a"_s, toType(2)));
    QVERIFY(device.addParameterFile(u"a"_s, toType(3)));
    QVERIFY(device.addParameterFile(paramFile(u"a"_s, 2, 0)));
    QVERIFY(device.addParameterFile(u"A"_s, toType(2)));
    QVERIFY(device.addParameterFile(u"b"_s, toType(-1)));
    QCOMPARE(device.parameterFiles().size(), 5);
    QVERIFY(device.parameterFiles().first() == paramFile(u"a"_s));

    // The same name, type and drive number again replaces it where it stands.
    CParamFileElement replacement = paramFile(u"a"_s, 3);
    replacement.setComment(u"new"_s);
    replacement.setProjectPath(u"p"_s);
    QVERIFY(device.addParameterFile(replacement));
    QCOMPARE(device.parameterFiles().size(), 5);
    QCOMPARE(device.parameterFiles().at(1).comment(), u"new"_s);
    QCOMPARE(device.parameterFiles().at(1).projectPath(), u"p/"_s);
    QVERIFY(device.containsParameterFile(replacement));
    replacement.setComment(u"in other words"_s);
    QVERIFY(device.containsParameterFile(replacement));
    replacement.setDriveId(9);
    QVERIFY(!device.containsParameterFile(replacement));
}

void tst_cdeviceelement_files::addInvalidParameterFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");

    QTest::newRow("no name") << QString() << 2;
    QTest::newRow("below undefined") << u"a"_s << -2;
}

void tst_cdeviceelement_files::addInvalidParameterFile()
{
    QFETCH(QString, name);
    QFETCH(int, type);

    CDeviceElement device;
    QVERIFY(!device.addParameterFile(paramFile(name, type)));
    QVERIFY(!device.addParameterFile(name, toType(type)));
    QVERIFY(device.isNull());
    QVERIFY(device.parameterFiles().isEmpty());
}

void tst_cdeviceelement_files::removeParameterFile()
{
    CDeviceElement device;
    const QList<CParamFileElement> all = {paramFile(u"a"_s, 2), paramFile(u"a"_s, 3),
                                          paramFile(u"a"_s, 3, 5), paramFile(u"b"_s, 2)};
    device.setParameterFiles(all);
    QVERIFY(!device.removeParameterFile(paramFile(u"a"_s, 4)));
    QVERIFY(!device.removeParameterFile(paramFile(u"b"_s, 2, 1)));
    QVERIFY(!device.removeParameterFile(u"b"_s, toType(3)));
    QVERIFY(!device.removeParameterFile(u"B"_s, toType(2)));
    QVERIFY(device.parameterFiles() == all);

    CParamFileElement commented = paramFile(u"b"_s, 2);
    commented.setComment(u"comment"_s);
    QVERIFY(device.removeParameterFile(commented));
    QVERIFY(device.parameterFiles() == all.mid(0, 3));
    QVERIFY(device.removeParameterFile(u"a"_s, toType(3)));
    QVERIFY(device.parameterFiles()
            == (QList<CParamFileElement>{paramFile(u"a"_s, 2), paramFile(u"a"_s, 3, 5)}));
    QVERIFY(device.removeParameterFile(u"a"_s, toType(3)));
    QVERIFY(!device.removeParameterFile(u"a"_s, toType(3)));
}

void tst_cdeviceelement_files::parameterFilesOfAType()
{
    CDeviceElement device;
    device.setParameterFiles(
        {paramFile(u"a"_s, 2), paramFile(u"b"_s, -1), paramFile(u"c"_s, 2), paramFile(u"d"_s, 10)});
    QVERIFY(device.parameterFiles(toType(2))
            == (QList<CParamFileElement>{paramFile(u"a"_s, 2), paramFile(u"c"_s, 2)}));
    QVERIFY(device.parameterFiles(toType(-1)) == QList<CParamFileElement>{paramFile(u"b"_s, -1)});
    QVERIFY(device.parameterFiles(toType(3)).isEmpty());
}

void tst_cdeviceelement_files::parameterFileElements_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("devicePath");
    QTest::addColumn<QString>("projectPath");

    const QStringList pair = {u"a.3param"_s, u"a.3pdef"_s};
    const QString own = u"/velkor/configurations/x1/param/"_s;
    const QString ownProject = u"dev/velkor/param/"_s;
    const QString area = u"/opt/velkor/etc/conf/"_s;
    const QString areaProject = u"dev/opt/velkor/etc/conf/"_s;
    QTest::newRow("KC2 parameters") << 0 << QStringList{u"a.xml"_s} << own << ownProject;
    QTest::newRow("KC2 compensation") << 1 << QStringList{u"a"_s} << own << ownProject;
    QTest::newRow("parameters") << 2 << pair << own << ownProject;
    QTest::newRow("undefined") << -1 << pair << own << ownProject;
    QTest::newRow("device data base") << 4 << pair << area << areaProject;
    QTest::newRow("option module data base") << 11 << pair << area << areaProject;
}

void tst_cdeviceelement_files::parameterFileElements()
{
    QFETCH(int, type);
    QFETCH(QStringList, names);
    QFETCH(QString, devicePath);
    QFETCH(QString, projectPath);

    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setConfigurationName(u"x1"_s);
    device.setParameterFiles({paramFile(u"other"_s, 3), paramFile(u"a"_s, type)});
    const Files files = device.parameterFileElements(toType(type));
    QCOMPARE(fileNames(files), names);
    for (const CFileElement &element : files) {
        QCOMPARE(element.devicePath(), devicePath);
        QCOMPARE(element.projectPath(), projectPath);
    }
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER).mid(2), files);
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER_VALUES).mid(1), files.mid(0, 1));
    QCOMPARE(device.parameterFiles(DEVICE_FILE_PARAMETER_DEFINITION).mid(1), files.mid(1));
    QVERIFY(device.parameterFiles(DEVICE_FILE_NONE).isEmpty());
    QVERIFY(device.parameterFiles(DEVICE_FILE_FPGA).isEmpty());
}

void tst_cdeviceelement_files::additionalFiles()
{
    CDeviceElement device;
    QVERIFY(device.additionalFile(0).isNull());
    QVERIFY(!device.removeAdditionalFile(0));
    device.setAdditionalFiles({file(u"a"_s), file(u"b"_s)});
    device.appendAdditionalFile(file(u"a"_s));
    QCOMPARE(fileNames(device.additionalFiles()), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    QCOMPARE(device.additionalFileCount(), 3);
    QVERIFY(device.additionalFile(1) == file(u"b"_s));
    QVERIFY(device.additionalFile(3).isNull());
    QVERIFY(device.additionalFile(-1).isNull());

    QVERIFY(!device.removeAdditionalFile(file(u"a"_s, u"x"_s)));
    QVERIFY(!device.removeAdditionalFile(file(u"a"_s, {}, {}, u"comment"_s)));
    QVERIFY(device.removeAdditionalFile(file(u"a"_s)));
    QCOMPARE(fileNames(device.additionalFiles()), (QStringList{u"b"_s, u"a"_s}));
    QVERIFY(!device.removeAdditionalFile(2));
    QVERIFY(!device.removeAdditionalFile(-1));
    QVERIFY(device.removeAdditionalFile(0));
    QCOMPARE(fileNames(device.additionalFiles()), QStringList{u"a"_s});
    device.clearAdditionalFiles();
    QCOMPARE(device.additionalFileCount(), 0);
    QVERIFY(device.isNull());
}

void tst_cdeviceelement_files::opcUaFiles()
{
    CDeviceElement device;
    device.setOpcUaFiles({file(u"a"_s)});
    device.appendOpcUaFile(file(u"b"_s));
    QCOMPARE(fileNames(device.opcUaFiles()), (QStringList{u"a"_s, u"b"_s}));
    QVERIFY(!device.isOpcUaEnabled());
    device.setOpcUaFiles({});
    QVERIFY(device.isNull());
}

void tst_cdeviceelement_files::pluginFiles()
{
    CDeviceElement device;
    device.setName(u"dev"_s);
    device.setPlugins({plugin(u"motion"_s, u"2"_s), plugin(u"pi_ecat"_s, u"1.3"_s)});
    const QString onDevice = u"/opt/velkor/plugins/app"_s;
    const QString inProject = u"dev/opt/velkor/plugins/app"_s;
    QVERIFY(device.pluginFileElements()
            == (Files{file(u"pi_motion.so.2"_s, inProject, onDevice),
                      file(u"pi_ecat.so.1.3"_s, inProject, onDevice)}));
    QCOMPARE(device.plugins().size(), 2);
    device.setPlugins({});
    QVERIFY(device.pluginFileElements().isEmpty());
}

void tst_cdeviceelement_files::odictFileName_data()
{
    QTest::addColumn<QString>("configurationName");
    QTest::addColumn<QString>("devicePath");

    QTest::newRow("default") << u"STD"_s << u"/opt/velkor/configurations/STD/conf/"_s;
    QTest::newRow("named") << u"a b"_s << u"/opt/velkor/configurations/a b/conf/"_s;
    QTest::newRow("none") << QString() << u"/conf/"_s;
}

void tst_cdeviceelement_files::odictFileName()
{
    QFETCH(QString, configurationName);
    QFETCH(QString, devicePath);

    CDeviceElement device;
    device.setConfigurationName(configurationName);
    device.setOdictFile(file(u"old"_s, u"project"_s, u"device"_s, u"comment"_s));
    device.setOdictFileName(u"new"_s);
    QCOMPARE(device.odictFileName(), u"new"_s);
    QVERIFY(device.odictFile() == file(u"new"_s, QString(), devicePath, u"comment"_s));
    QVERIFY(device.odictFile().projectPath().isNull());
}

void tst_cdeviceelement_files::configurationFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("configurationName");
    QTest::addColumn<QString>("devicePath");
    QTest::addColumn<QString>("projectPath");

    QTest::newRow("named") << u"dev"_s << u"x"_s << u"/velkor/configurations/x/conf/"_s
                           << u"dev/velkor/conf/"_s;
    QTest::newRow("null device") << QString() << u"STD"_s << u"/velkor/configurations/STD/conf/"_s
                                 << QString();
    QTest::newRow("no configuration") << u"dev"_s << QString() << u"/conf/"_s << QString();
}

void tst_cdeviceelement_files::configurationFile()
{
    QFETCH(QString, name);
    QFETCH(QString, configurationName);

    CDeviceElement device;
    device.setName(name);
    device.setConfigurationName(configurationName);
    const CFileElement element = device.configurationFile();
    QCOMPARE(element.fileName(), u"DeviceConfiguration.3deco"_s);
    QCOMPARE(element.fileName(), ICDeviceConfigurationFile::defaultFileName());
    QTEST(element.devicePath(), "devicePath");
    QTEST(element.projectPath(), "projectPath");
    QVERIFY(element.comment().isEmpty());
}

void tst_cdeviceelement_files::standardDirectories()
{
    CDeviceElement device;
    device.setConfigurationName(u"x"_s);
    QCOMPARE(device.stdAppPluginDevicePath(), u"/opt/velkor/plugins/app/"_s);
    QCOMPARE(device.stdEtherCatMasterFileDevicePath(), u"/velkor/configurations/x/param/"_s);
    QCOMPARE(device.stdFaultTextFileDevicePath(), u"/opt/velkor/configurations/x/conf/"_s);
    QCOMPARE(device.stdFpgaDevicePath(), u"/opt/velkor/etc/conf/"_s);
    QCOMPARE(device.stdObjectDictionaryDevicePath(), u"/opt/velkor/configurations/x/conf/"_s);
    QCOMPARE(device.stdOpcUaFileDevicePath(), u"/velkor/configurations/x/conf/"_s);
    for (int type = -2; type <= 12; ++type) {
        QCOMPARE(device.stdParameterFileDevicePath(toType(type)),
                 CDeviceFileSystem::stdParamFilePath(toType(type), u"x"_s));
    }
}

QTEST_APPLESS_MAIN(tst_cdeviceelement_files)
#include "tst_cdeviceelement_files.moc"
