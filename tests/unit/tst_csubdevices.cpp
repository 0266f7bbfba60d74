#include "elements/CSubDeviceBaseElement.h"
#include "elements/CSubDeviceKD2Element.h"
#include "elements/CSubDeviceKD2ElementEdit.h"
#include "elements/CSubDeviceKD3Element.h"
#include "elements/CSubDeviceKD3ElementEdit.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using SubDevicePointer = std::shared_ptr<CSubDeviceBaseElement>;
Q_DECLARE_METATYPE(SubDevicePointer)

namespace {

CFileElement file(const QString &name, const QString &projectPath = {},
                  const QString &devicePath = {})
{
    CFileElement result;
    result.setFileName(name);
    result.setDevicePath(devicePath);
    result.setProjectPath(projectPath);
    return result;
}

QStringList fileNames(const QList<CFileElement> &files)
{
    QStringList result;
    for (const CFileElement &element : files) {
        result << element.fileName();
    }
    return result;
}

/** Rows for the checks that hold for every class of sub-device. */
void addSubDevices()
{
    QTest::addColumn<SubDevicePointer>("subDevice");

    QTest::newRow("base") << std::make_shared<CSubDeviceBaseElement>();
    QTest::newRow("KD2") << SubDevicePointer(std::make_shared<CSubDeviceKD2Element>());
    QTest::newRow("KD3") << SubDevicePointer(std::make_shared<CSubDeviceKD3Element>());
    QTest::newRow("KD2 in editing")
        << SubDevicePointer(std::make_shared<CSubDeviceKD2ElementEdit>());
    QTest::newRow("KD3 in editing")
        << SubDevicePointer(std::make_shared<CSubDeviceKD3ElementEdit>());
}

/** The stream form of the base sub-device with its fields in one letter each. */
const char BaseBytes[] = "00000002 006e ffffffff"
                         "ffffffff ffffffff 0000 0000 0000"
                         "00000006 0053 0054 0044"
                         "02"
                         "01020304"
                         "00000002 0064"
                         "00000002 0070 ffffffff ffffffff ffffffff"
                         "05060708";

template <typename SubDevice>
SubDevice streamSample()
{
    SubDevice result;
    result.setName(u"n"_s);
    result.setDriveId(2);
    result.setDeviceSerial(0x01020304);
    result.setDeviceName(u"d"_s);
    result.setParameterFileName(u"p"_s);
    result.setBusId(0x05060708);
    return result;
}

template <typename SubDevice>
void checkStreamForm(const SubDevice &subDevice, const QByteArray &bytes)
{
    QCOMPARE(StreamBytes::toBytes(subDevice).toHex(' '), bytes.toHex(' '));
    SubDevice read;
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == subDevice);
}

template <typename Edit, typename Element>
void checkEditing()
{
    Element element;
    element.setName(u"before"_s);

    Edit edit(element);
    QVERIFY(!edit.isChanged());
    QVERIFY(edit == element);
    QVERIFY(edit.original() == element);

    edit.setName(u"after"_s);
    QVERIFY(edit.isChanged());
    QCOMPARE(edit.name(), u"after"_s);
    QCOMPARE(edit.original().name(), u"before"_s);
    QCOMPARE(element.name(), u"before"_s);

    Edit copy(edit);
    QVERIFY(copy.isChanged());
    copy.revert();
    QVERIFY(!copy.isChanged());
    QCOMPARE(copy.name(), u"before"_s);
    QCOMPARE(edit.name(), u"after"_s);

    const Element applied = edit.apply();
    QCOMPARE(applied.name(), u"after"_s);
    QVERIFY(!edit.isChanged());
    QCOMPARE(edit.original().name(), u"after"_s);
    edit.revert();
    QCOMPARE(edit.name(), u"after"_s);

    edit.setBusId(5);
    QVERIFY(edit.isChanged());
    edit.setBusId(0);
    QVERIFY(!edit.isChanged());

    edit.clear();
    QVERIFY(edit.isNull());
    QVERIFY(edit.isChanged());
    edit.revert();
    QCOMPARE(edit.name(), u"after"_s);

    const Edit fresh;
    QVERIFY(fresh.isNull());
    QVERIFY(!fresh.isChanged());
    QVERIFY(fresh.original().isNull());
}

} // namespace

class tst_csubdevices : public QObject
{
    Q_OBJECT

private slots:
    void defaults_data() { addSubDevices(); }
    void defaults();
    void fieldsAreStored_data() { addSubDevices(); }
    void fieldsAreStored();
    void parameterFileName_data() { addSubDevices(); }
    void parameterFileName();
    void deviceNameLeavesPaths_data() { addSubDevices(); }
    void deviceNameLeavesPaths();
    void deviceNameMovesPaths_data();
    void deviceNameMovesPaths();
    void adaptingPathsLeavesTheName();
    void configurationNameMovesPaths_data();
    void configurationNameMovesPaths();
    void configurationNameLeavesPaths();
    void kd2FilesMove();
    void kd2Fields();
    void allFiles_data();
    void allFiles();
    void equalityOfKD2();
    void streamForm();
    void streamFormOfKD2();
    void editing();
};

void tst_csubdevices::defaults()
{
    QFETCH(SubDevicePointer, subDevice);

    QVERIFY(subDevice->isNull());
    QVERIFY(subDevice->isSubDevice());
    QVERIFY(!subDevice->isDevice());
    QCOMPARE(subDevice->deviceSerial(), 0u);
    QVERIFY(subDevice->deviceName().isNull());
    QVERIFY(subDevice->parameterFile().isNull());
    QVERIFY(subDevice->parameterFileName().isNull());
    QCOMPARE(subDevice->busId(), 0u);
    QVERIFY(subDevice->allFiles().isEmpty());
    QCOMPARE(subDevice->configurationName(), u"STD"_s);
    QCOMPARE(subDevice->driveId(), quint8(255));
}

void tst_csubdevices::fieldsAreStored()
{
    QFETCH(SubDevicePointer, subDevice);

    subDevice->setDeviceSerial(0xffffffff);
    QVERIFY(!subDevice->isNull());
    QCOMPARE(subDevice->deviceSerial(), 0xffffffffu);
    subDevice->clear();
    QVERIFY(subDevice->isNull());
    subDevice->setDeviceName(u" a/b "_s);
    QVERIFY(!subDevice->isNull());
    QCOMPARE(subDevice->deviceName(), u" a/b "_s);
    subDevice->clear();
    QVERIFY(subDevice->isNull());
    subDevice->setBusId(0xffffffff);
    QVERIFY(!subDevice->isNull());
    QCOMPARE(subDevice->busId(), 0xffffffffu);
    subDevice->clear();
    QVERIFY(subDevice->isNull());
    subDevice->setParameterFile(file(u"p"_s, u"a"_s));
    QVERIFY(!subDevice->isNull());
    QVERIFY(subDevice->parameterFile() == file(u"p"_s, u"a"_s));
    subDevice->clear();
    QVERIFY(subDevice->isNull());
    subDevice->setName(u"n"_s);
    QVERIFY(!subDevice->isNull());
}

void tst_csubdevices::parameterFileName()
{
    QFETCH(SubDevicePointer, subDevice);

    subDevice->setParameterFile(file(u"p"_s, u"a"_s, u"b"_s));
    subDevice->setParameterFileName(u"q"_s);
    QCOMPARE(subDevice->parameterFileName(), u"q"_s);
    QVERIFY(subDevice->parameterFile() == file(u"q"_s, u"a"_s, u"b"_s));
}

void tst_csubdevices::deviceNameLeavesPaths()
{
    QFETCH(SubDevicePointer, subDevice);

    subDevice->setDeviceName(u"old"_s);
    subDevice->setParameterFile(file(u"p"_s, u"old/x"_s));
    subDevice->setDeviceName(u"new"_s);
    QCOMPARE(subDevice->deviceName(), u"new"_s);
    QCOMPARE(subDevice->parameterFile().projectPath(), u"old/x/"_s);
}

void tst_csubdevices::deviceNameMovesPaths_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const QString &oldName, const QString &newName,
                        const QString &path, const QString &result) {
        QTest::newRow(name) << oldName << newName << path << result;
    };
    row("the directory itself", u"old"_s, u"new"_s, u"old/"_s, u"new/"_s);
    row("below the directory", u"old"_s, u"new"_s, u"old/a/b/"_s, u"new/a/b/"_s);
    row("the first of two at the start", u"old"_s, u"new"_s, u"old/a/old/"_s, u"new/a/old/"_s);
    row("the last one elsewhere", u"old"_s, u"new"_s, u"p/old/a/old/b/"_s, u"p/old/a/new/b/"_s);
    row("absolute", u"old"_s, u"new"_s, u"/p/old/a/"_s, u"/p/new/a/"_s);
    row("last component", u"old"_s, u"new"_s, u"p/old/"_s, u"p/new/"_s);
    row("another directory", u"old"_s, u"new"_s, u"p/a/"_s, u"p/a/"_s);
    row("longer name", u"old"_s, u"new"_s, u"older/a/"_s, u"older/a/"_s);
    row("another case", u"old"_s, u"new"_s, u"Old/a/"_s, u"Old/a/"_s);
    row("dot is no pattern", u"o.d"_s, u"new"_s, u"p/old/"_s, u"p/old/"_s);
    row("dot in the name", u"o.d"_s, u"new"_s, u"p/o.d/a/"_s, u"p/new/a/"_s);
    row("parentheses in the name", u"STD(2)"_s, u"new"_s, u"p/STD(2)/"_s, u"p/new/"_s);
    row("bracket in the name", u"[x"_s, u"new"_s, u"p/[x/"_s, u"p/new/"_s);
    row("place marker in the new name", u"old"_s, u"%1"_s, u"p/old/"_s, u"p/%1/"_s);
    row("no path", u"old"_s, u"new"_s, QString(), QString());
    row("no old name", QString(), u"new"_s, u"p/a/"_s, u"p/a/"_s);
    row("no old name, absolute", QString(), u"new"_s, u"/a/"_s, u"/a/"_s);
    row("no new name", u"old"_s, QString(), u"old/a/"_s, u"old/a/"_s);
    row("same name", u"old"_s, u"old"_s, u"p/old/a/"_s, u"p/old/a/"_s);
}

void tst_csubdevices::deviceNameMovesPaths()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);
    QFETCH(QString, path);
    QFETCH(QString, result);

    CSubDeviceKD3Element subDevice;
    subDevice.setDeviceName(oldName);
    subDevice.setParameterFile(file(u"old"_s, path, u"/velkor/configurations/old/"_s));
    subDevice.setDeviceNameAndAdaptPaths(newName);
    QCOMPARE(subDevice.deviceName(), newName);
    QCOMPARE(subDevice.parameterFile().projectPath(), result);
    QCOMPARE(subDevice.parameterFileName(), u"old"_s);
    QCOMPARE(subDevice.parameterFile().devicePath(), u"/velkor/configurations/old/"_s);
}

void tst_csubdevices::adaptingPathsLeavesTheName()
{
    CSubDeviceKD3Element subDevice;
    subDevice.setDeviceName(u"old"_s);
    subDevice.setParameterFile(file(u"p"_s, u"old/a"_s));
    subDevice.adaptProjectPaths(u"new"_s);
    QCOMPARE(subDevice.deviceName(), u"old"_s);
    QCOMPARE(subDevice.parameterFile().projectPath(), u"new/a/"_s);
}

void tst_csubdevices::configurationNameMovesPaths_data()
{
    QTest::addColumn<QString>("projectPath");
    QTest::addColumn<QString>("devicePath");
    QTest::addColumn<QString>("newProjectPath");
    QTest::addColumn<QString>("newDevicePath");

    const auto row = [](const char *name, const QString &projectPath, const QString &devicePath,
                        const QString &newProjectPath, const QString &newDevicePath) {
        QTest::newRow(name) << projectPath << devicePath << newProjectPath << newDevicePath;
    };
    const QString none;
    row("nothing", none, none, none, none);
    row("sm tree", none, u"/velkor/configurations/old/param/"_s, none,
        u"/velkor/configurations/new/param/"_s);
    row("sm tree, the directory itself", none, u"/velkor/configurations/old/"_s, none,
        u"/velkor/configurations/new/"_s);
    row("opt tree", none, u"/opt/velkor/configurations/old/conf/"_s, none,
        u"/opt/velkor/configurations/new/conf/"_s);
    row("sm tree, another configuration", none, u"/velkor/configurations/older/"_s, none,
        u"/velkor/configurations/older/"_s);
    row("same name elsewhere on the device", none, u"/tmp/old/"_s, none, u"/tmp/old/"_s);
    row("same name below another configuration", none, u"/velkor/configurations/x/old/"_s, none,
        u"/velkor/configurations/x/old/"_s);
    row("project", u"dev/old/a/"_s, none, u"dev/new/a/"_s, none);
    row("project, the last of two", u"p/old/old/a/"_s, none, u"p/old/new/a/"_s, none);
    row("project without the device", u"old/a/"_s, none, u"new/a/"_s, none);
    row("project, another directory", u"dev/older/"_s, none, u"dev/older/"_s, none);
    row("both", u"dev/old/"_s, u"/velkor/configurations/old/param/"_s, u"dev/new/"_s,
        u"/velkor/configurations/new/param/"_s);
}

void tst_csubdevices::configurationNameMovesPaths()
{
    QFETCH(QString, projectPath);
    QFETCH(QString, devicePath);

    CSubDeviceKD3Element subDevice;
    subDevice.setDeviceName(u"dev"_s);
    subDevice.setConfigurationName(u"old"_s);
    subDevice.setParameterFile(file(u"old"_s, projectPath, devicePath));
    subDevice.setConfigurationNameAndAdaptPaths(u"new"_s);
    QCOMPARE(subDevice.configurationName(), u"new"_s);
    QCOMPARE(subDevice.parameterFileName(), u"old"_s);
    QTEST(subDevice.parameterFile().projectPath(), "newProjectPath");
    QTEST(subDevice.parameterFile().devicePath(), "newDevicePath");
}

void tst_csubdevices::configurationNameLeavesPaths()
{
    const CFileElement original = file(u"p"_s, u"old/a"_s, u"/velkor/configurations/old/param"_s);
    CSubDeviceKD3Element subDevice;
    subDevice.setDeviceName(u"old"_s);
    subDevice.setConfigurationName(u"old"_s);
    subDevice.setParameterFile(original);
    subDevice.setConfigurationName(u"new"_s);
    QVERIFY(subDevice.parameterFile() == original);

    // The device's own directory at the start of a project path stays, also under that name.
    subDevice.setConfigurationName(u"old"_s);
    subDevice.setConfigurationNameAndAdaptPaths(u"new"_s);
    QCOMPARE(subDevice.parameterFile().projectPath(), u"old/a/"_s);

    subDevice.setParameterFile(original);
    subDevice.setConfigurationName(u"old"_s);
    subDevice.setConfigurationNameAndAdaptPaths(QString());
    QVERIFY(subDevice.configurationName().isEmpty());
    QVERIFY(subDevice.parameterFile() == original);
    subDevice.setConfigurationNameAndAdaptPaths(u"new"_s);
    QCOMPARE(subDevice.configurationName(), u"new"_s);
    QVERIFY(subDevice.parameterFile() == original);
}

void tst_csubdevices::kd2FilesMove()
{
    CSubDeviceKD2Element subDevice;
    subDevice.setDeviceName(u"dev"_s);
    subDevice.setConfigurationName(u"old"_s);
    const QString onDevice = u"/velkor/configurations/old/subdevices/0/"_s;
    subDevice.setParameterFile(file(u"a"_s, u"dev/a"_s, onDevice + u"param"_s));
    subDevice.setKd2FirmwareFile(file(u"b"_s, u"dev/b"_s, onDevice + u"firmware"_s));
    subDevice.setKd2LogicFile(file(u"c"_s, u"dev/c"_s, onDevice + u"logic"_s));
    subDevice.setKd2ParameterFile(file(u"d"_s, u"dev/d"_s, onDevice + u"param"_s));

    subDevice.setDeviceNameAndAdaptPaths(u"drive"_s);
    subDevice.setConfigurationNameAndAdaptPaths(u"new"_s);

    const QString moved = u"/velkor/configurations/new/subdevices/0/"_s;
    QVERIFY(subDevice.parameterFile() == file(u"a"_s, u"drive/a"_s, moved + u"param"_s));
    QVERIFY(subDevice.kd2FirmwareFile() == file(u"b"_s, u"drive/b"_s, moved + u"firmware"_s));
    QVERIFY(subDevice.kd2LogicFile() == file(u"c"_s, u"drive/c"_s, moved + u"logic"_s));
    QVERIFY(subDevice.kd2ParameterFile() == file(u"d"_s, u"drive/d"_s, moved + u"param"_s));
    QCOMPARE(subDevice.deviceName(), u"drive"_s);
    QCOMPARE(subDevice.configurationName(), u"new"_s);
}

void tst_csubdevices::kd2Fields()
{
    CSubDeviceKD2Element subDevice;
    QVERIFY(subDevice.kd2FirmwareFile().isNull());
    QVERIFY(subDevice.kd2LogicFile().isNull());
    QVERIFY(subDevice.kd2ParameterFile().isNull());

    subDevice.setKd2FirmwareFile(file(u"f"_s));
    QVERIFY(!subDevice.isNull());
    subDevice.setKd2FirmwareFile(CFileElement());
    QVERIFY(subDevice.isNull());
    subDevice.setKd2LogicFile(file(u"l"_s));
    QVERIFY(!subDevice.isNull());
    subDevice.setKd2LogicFile(CFileElement());
    subDevice.setKd2ParameterFile(file(u"p"_s));
    QVERIFY(!subDevice.isNull());
    QVERIFY(subDevice.parameterFile().isNull());
}

void tst_csubdevices::allFiles_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<QString>("logic");
    QTest::addColumn<QString>("kd2Parameters");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("none") << QString() << QString() << QString() << QString() << QStringList();
    QTest::newRow("all") << u"p"_s << u"f"_s << u"l"_s << u"k"_s
                         << QStringList{u"p"_s, u"f"_s, u"l"_s, u"k"_s};
    QTest::newRow("some") << QString() << u"f"_s << u""_s << u"k"_s << QStringList{u"f"_s, u"k"_s};
    QTest::newRow("one file for two")
        << u"p"_s << u"f"_s << u"f"_s << u"p"_s << QStringList{u"p"_s, u"f"_s};
}

void tst_csubdevices::allFiles()
{
    QFETCH(QString, parameters);
    QFETCH(QString, firmware);
    QFETCH(QString, logic);
    QFETCH(QString, kd2Parameters);

    CSubDeviceKD2Element subDevice;
    subDevice.setParameterFile(file(parameters, u"x"_s));
    subDevice.setKd2FirmwareFile(file(firmware, u"x"_s));
    subDevice.setKd2LogicFile(file(logic, u"x"_s));
    subDevice.setKd2ParameterFile(file(kd2Parameters, u"x"_s));
    QTEST(fileNames(subDevice.allFiles()), "names");

    // The same name in another directory is another file.
    subDevice.setParameterFile(file(u"same"_s, u"x"_s));
    subDevice.setKd2FirmwareFile(file(u"same"_s, u"y"_s));
    subDevice.setKd2LogicFile(file(u"same"_s, u"x"_s, u"z"_s));
    subDevice.setKd2ParameterFile(CFileElement());
    QCOMPARE(subDevice.allFiles().size(), 3);
}

void tst_csubdevices::equalityOfKD2()
{
    const auto first = streamSample<CSubDeviceKD2Element>();
    CSubDeviceKD2Element second = first;
    second.setKd2LogicFile(file(u"l"_s));
    QVERIFY(first != second);
    // The base classes compare only what they know.
    QVERIFY(first.toBaseSubDevice() == second.toBaseSubDevice());
    second = first;
    second.setBusId(0);
    QVERIFY(first != second);
    QVERIFY(static_cast<const CBaseElement &>(first) == second);
}

void tst_csubdevices::streamForm()
{
    const QByteArray bytes = QByteArray::fromHex(BaseBytes);
    checkStreamForm(streamSample<CSubDeviceBaseElement>(), bytes);
    checkStreamForm(streamSample<CSubDeviceKD3Element>(), bytes);
}

void tst_csubdevices::streamFormOfKD2()
{
    auto subDevice = streamSample<CSubDeviceKD2Element>();
    subDevice.setKd2FirmwareFile(file(u"f"_s));
    subDevice.setKd2LogicFile(file(u"l"_s));
    subDevice.setKd2ParameterFile(file(u"k"_s));
    const QByteArray bytes = QByteArray::fromHex(BaseBytes)
        + QByteArray::fromHex("00000002 0066 ffffffff ffffffff ffffffff"
                              "00000002 006c ffffffff ffffffff ffffffff"
                              "00000002 006b ffffffff ffffffff ffffffff");
    checkStreamForm(subDevice, bytes);
}

void tst_csubdevices::editing()
{
    checkEditing<CSubDeviceKD2ElementEdit, CSubDeviceKD2Element>();
    checkEditing<CSubDeviceKD3ElementEdit, CSubDeviceKD3Element>();

    CSubDeviceKD2ElementEdit edit;
    edit.setKd2FirmwareFile(file(u"f"_s));
    QVERIFY(edit.isChanged());
    edit.revert();
    QVERIFY(edit.kd2FirmwareFile().isNull());
}

REGISTER_APPLESS_TEST(tst_csubdevices)
#include "tst_csubdevices.moc"
