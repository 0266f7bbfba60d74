#include "configfile/CDeviceConfigurationFile10.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "support/Files.h"
#include "support/ItemCommands.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace ItemCommands;

using Tool::SResult;

namespace {

QDir templateDirectory()
{
    return QDir(Places::source("src/tools/templates"), u"*.3deco"_s);
}

/** The document without its dates: what is made at midnight may have another one. */
QString undated(const QByteArray &document)
{
    static const QRegularExpression date(u">[0-9]{4}-[0-9]{2}-[0-9]{2}<"_s);
    return QString::fromUtf8(document).replace(date, u">DATE<"_s);
}

} // namespace

/** The command new. */
class tst_vrndevice_new : public ItemCommandTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void newListsTemplates();
    void newFromTemplate_data();
    void newFromTemplate();
    void newWithoutTemplate();
    void newFromAFile();
    void newKeepsWhatItDoesNotKnow();
    void newRefusesTemplates();
    void newPrintsTheDocument();
    void templatesAreInOrder_data();
    void templatesAreInOrder();
};

void tst_vrndevice_new::newListsTemplates()
{
    const SResult result = run({u"new"_s, u"--list-templates"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(
        result.output,
        u"kc2-kd2-drive  A KC2 controller with one KD2 drive\n"
        "kd3-drive      A single KD3 drive\n"
        "kd3-ethercat   A KD3 controller with two KD3 drives and an EtherCAT master plug-in\n"_s);
    QStringList names;
    const QJsonObject json = run({u"new"_s, u"--list-templates"_s, u"--json"_s}).json();
    for (const QJsonValue entry : json.value(u"templates"_s).toArray()) {
        QVERIFY(!entry[u"description"].toString().isEmpty());
        names << entry[u"name"].toString() + u".3deco"_s;
    }
    QCOMPARE(names, templateDirectory().entryList(QDir::Files, QDir::Name));
}

void tst_vrndevice_new::newFromTemplate_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("deviceClass");
    QTest::addColumn<QStringList>("drives");
    QTest::addColumn<QString>("plugins");
    QTest::newRow("controller KC2")
        << u"kc2-kd2-drive"_s << u"kc2"_s << QStringList{u"Sub-Device 0, KD2"_s} << QString();
    QTest::newRow("drive") << u"kd3-drive"_s << u"kd3"_s << QStringList{u"DRIVE-0, KD3"_s}
                           << QString();
    QTest::newRow("controller KD3")
        << u"kd3-ethercat"_s << u"kd3"_s << QStringList{u"DRIVE-0, KD3"_s, u"DRIVE-1, KD3"_s}
        << u"CECatMaster"_s;
}

void tst_vrndevice_new::newFromTemplate()
{
    QFETCH(QString, name);
    QFETCH(QString, deviceClass);
    QFETCH(QStringList, drives);
    QFETCH(QString, plugins);
    const QDate before = QDate::currentDate();
    const QString option = u"--template=%1"_s.arg(name);
    const SResult result = run({u"new"_s, u"made"_s, option, u"--name=Größe 1"_s});
    const QDate after = QDate::currentDate();
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"Created made: device Größe 1\n"_s);
    QCOMPARE(result.errors, QString());

    const MessageCatcher messages;
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path(u"made"_s)));
    QVERIFY(file.configuration(device));
    QVERIFY(messages.messages().isEmpty());
    QCOMPARE(device.name(), u"Größe 1"_s);
    QCOMPARE(file.deviceClassToStr(device.deviceClass()), deviceClass);
    QStringList found;
    for (const CSubDeviceElement &drive : device.subDevices()) {
        found << drive.name() + (drive.isKD2() ? u", KD2"_s : u", KD3"_s);
    }
    QCOMPARE(found, drives);
    QCOMPARE(device.plugins().value(0).name(), plugins);
    QCOMPARE(file.description().name(), u"Größe 1"_s);
    for (const QDate &date :
         {file.description().creationDate(), file.description().revisionDate()}) {
        QVERIFY(date >= before && date <= after);
    }
    QVERIFY(file.metaData().date().isNull());
    // The other directories are where the layout puts them.
    QCOMPARE(device.odictFile().projectPath(), u"Größe 1/opt/velkor/conf/"_s);
    QCOMPARE(device.subDevice(0).parameterFile().projectPath(),
             u"Größe 1/velkor/subdevices/0/param/"_s);
    QVERIFY(!Files::read(path(u"made"_s)).contains("NewDevice"));

    const SResult sameClass =
        run({u"new"_s, u"same"_s, option, u"--name=Größe 1"_s, u"--class"_s, deviceClass});
    QCOMPARE(sameClass.exitCode, 0);
    QCOMPARE(undated(Files::read(path(u"same"_s))), undated(Files::read(path(u"made"_s))));
    const QString otherClass = deviceClass == u"kd3"_s ? u"kc2"_s : u"kd3"_s;
    const SResult refused =
        run({u"new"_s, u"none"_s, option, u"--name=N"_s, u"--class"_s, otherClass});
    QCOMPARE(refused.exitCode, 1);
    QVERIFY2(refused.errors.contains(u"The template %1 is for the class '%2', not for %3."_s.arg(
                 name, deviceClass, otherClass)),
             qPrintable(refused.errors));
    QVERIFY(!QFileInfo::exists(path(u"none"_s)));
}

void tst_vrndevice_new::newWithoutTemplate()
{
    // The date of the description is the only one.
    QCOMPARE(run({u"new"_s, u"made"_s, u"--class=kd3"_s, u"--name=N"_s}).exitCode, 0);
    const QByteArray made = Files::read(path(u"made"_s));
    QVERIFY(made.contains(" <Head>\n  <Author/>\n  <Date/>\n"
                          "  <Comment>Device Configuration File</Comment>\n </Head>\n"));
    QCOMPARE(undated(made).count(u">DATE<"_s), 2);
}

void tst_vrndevice_new::newFromAFile()
{
    const QString option = u"--template=%1"_s.arg(FileName);
    const SResult result = run({u"new"_s, u"--json"_s, u"made"_s, option, u"--name=Line 2"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.json(), run({u"show"_s, u"--json"_s, u"made"_s}).json());
    QCOMPARE(bytes(), m_example);

    // It is the same but for names, directories in the project, dates and the author.
    QByteArray made = Files::read(path(u"made"_s));
    QVERIFY(!made.contains("PackagingLine"));
    QVERIFY(made.contains("<Author/>"));
    QCOMPARE(made.count("<ProjectDir>Line 2/"), m_example.count("<ProjectDir>PackagingLine/"));
    made.replace("Line 2/", "PackagingLine/")
        .replace("  <Name>Line 2</Name>\n  <Comment>Commissioned",
                 "  <Name>Packaging line</Name>\n"
                 "  <Comment>Commissioned")
        .replace("<Name>Line 2<", "<Name>PackagingLine<")
        .replace("<Author/>\n  <Date/>",
                 "<Author>Commissioning</Author>\n  <Date>2026-01-01</Date>");
    QCOMPARE(undated(made), undated(m_example));
}

void tst_vrndevice_new::newKeepsWhatItDoesNotKnow()
{
    QByteArray document = m_example;
    document.replace("  <Config>\n",
                     "  <!--kept-->\n  <Vendor note=\"1\">\n"
                     "   <ProjectDir>PackagingLine/</ProjectDir>\n  </Vendor>\n  <Config>\n");
    QVERIFY(Files::write(path(u"base"_s), document));
    QCOMPARE(run({u"new"_s, u"made"_s, u"--template=base"_s, u"--name=N"_s}).exitCode, 0);
    QVERIFY(Files::read(path(u"made"_s))
                .contains("  <!--kept-->\n  <Vendor note=\"1\">\n"
                          "   <ProjectDir>PackagingLine/</ProjectDir>\n  </Vendor>\n"));
}

void tst_vrndevice_new::newRefusesTemplates()
{
    const auto make = [this](const QString &from) {
        return run({u"new"_s, u"made"_s, u"--template"_s, from, u"--name=N"_s});
    };
    const SResult missing = make(u"kd3"_s);
    QCOMPARE(missing.exitCode, 3);
    QVERIFY2(missing.errors.contains(
                 u"'kd3' is neither a built-in template nor a file. The built-in templates are: "
                 "kc2-kd2-drive, kd3-drive, kd3-ethercat."_s),
             qPrintable(missing.errors));
    QVERIFY(Files::write(path(u"broken"_s), m_example.chopped(20)));
    QCOMPARE(make(u"broken"_s).exitCode, 3);
    QVERIFY(Files::write(path(u"empty"_s), "<VornDeviceConfig version=\"1.0\"/>"));
    const SResult empty = make(u"empty"_s);
    QCOMPARE(empty.exitCode, 3);
    QVERIFY(empty.errors.contains(u"empty: The configuration has no device."_s));
    const SResult control =
        run({u"new"_s, u"made"_s, u"--template=kd3-drive"_s, u"--name=a\u0001"_s});
    QCOMPARE(control.exitCode, 1);
    QVERIFY2(control.errors.contains(u"U+0001"_s), qPrintable(control.errors));
    QVERIFY(!QFileInfo::exists(path(u"made"_s)));

    const SResult present = run({u"new"_s, FileName, u"--template=kd3-drive"_s, u"--name=N"_s});
    QCOMPARE(present.exitCode, 1);
    QCOMPARE(bytes(), m_example);
    // A file that is called like a built-in template is named with its directory.
    QVERIFY(Files::write(path(u"kd3-drive"_s), m_example));
    QCOMPARE(make(u"./kd3-drive"_s).exitCode, 0);
    QCOMPARE(run({u"get"_s, u"made"_s, u"drive[2].name"_s}).output, u"Gluer\n"_s);
}

void tst_vrndevice_new::newPrintsTheDocument()
{
    const QStringList options = {u"--template=kd3-drive"_s, u"--name=N"_s};
    QCOMPARE(run(QStringList{u"new"_s, u"made"_s} + options).exitCode, 0);
    const SResult result = run(QStringList{u"new"_s, u"-"_s} + options);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(undated(result.output.toUtf8()), undated(Files::read(path(u"made"_s))));
    const SResult piped =
        run({u"new"_s, u"-"_s, u"--template=-"_s, u"--name=N"_s}, Files::read(path(u"made"_s)));
    QCOMPARE(undated(piped.output.toUtf8()), undated(result.output.toUtf8()));
}

void tst_vrndevice_new::templatesAreInOrder_data()
{
    QTest::addColumn<QString>("path");
    for (const QFileInfo &file : templateDirectory().entryInfoList(QDir::Files, QDir::Name)) {
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

void tst_vrndevice_new::templatesAreInOrder()
{
    QFETCH(QString, path);
    QCOMPARE(run({u"fmt"_s, u"--check"_s, path}).exitCode, 0);
    const MessageCatcher messages;
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path));
    QVERIFY(file.configuration(device));
    QVERIFY(messages.messages().isEmpty());
    QCOMPARE(file.currentFileVersion(), u"1.0"_s);
    QVERIFY(file.description().creationDate().isValid());
    QVERIFY(file.description().revisionDate().isValid());

    const CDeviceFileSystem layout(device);
    QCOMPARE(device.odictFile().devicePath(), layout.stdObjectDictionaryPath());
    QCOMPARE(device.faultTextFile().devicePath(), layout.stdFaultTextFilePath());
    if (!device.etherCatMasterFile().isNull()) {
        QCOMPARE(device.etherCatMasterFile().devicePath(), layout.stdEtherCatMasterFilePath());
    }
    for (const CSubDeviceElement &drive : device.subDevices()) {
        const int number = drive.driveId();
        QCOMPARE(drive.hardwareIdStr(), device.hardwareIdStr());
        QCOMPARE(drive.parameterFile().devicePath(), layout.smSubDeviceParamPath(number));
        if (drive.isKD2()) {
            const CSubDeviceKD2Element kd2 = drive.toKD2();
            QCOMPARE(kd2.kd2ParameterFile().devicePath(), layout.smSubDeviceParamPath(number));
            QCOMPARE(kd2.kd2LogicFile().devicePath(), layout.smSubDeviceLogicPath(number));
            QCOMPARE(kd2.kd2FirmwareFile().devicePath(), layout.smSubDeviceFirmwarePath(number));
        }
    }
    for (const CFileElement &entry : device.allFiles(
             NvrnDeviceCore::DEVICE_FILE_OBJECT_DICTIONARY | NvrnDeviceCore::DEVICE_FILE_FAULT_TEXTS
             | NvrnDeviceCore::DEVICE_FILE_ETHERCAT_MASTER
             | NvrnDeviceCore::DEVICE_FILE_SUB_DEVICE_PARAMETERS
             | NvrnDeviceCore::DEVICE_FILE_KD2_FIRMWARE | NvrnDeviceCore::DEVICE_FILE_KD2_LOGIC
             | NvrnDeviceCore::DEVICE_FILE_KD2_PARAMETERS)) {
        QCOMPARE(entry.projectPath(), layout.toRelativeProjectPath(entry.devicePath()));
    }
}

REGISTER_GUILESS_TEST(tst_vrndevice_new)
#include "tst_vrndevice_new.moc"
