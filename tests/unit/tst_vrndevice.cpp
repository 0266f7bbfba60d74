#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/TestProgram.h"
#include "support/Tool.h"
#include "vocabulary/NVornXmlTags.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

namespace {

using NVornXmlTags::TAG_DRIVE_NO;
using NVornXmlTags::TAG_SUB_DEVICE;
using Tool::SResult;

const QString FileName = QStringLiteral("DeviceConfiguration.3deco");

} // namespace

/** The commands on the configuration document, and what all commands have in common. */
class tst_vrndevice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void usage_data();
    void usage();
    void helpOfEveryCommand();
    void newCreatesAConfiguration();
    void lastOfSeveralOptionsCounts();
    void newKeepsAnExistingFile();
    void newReportsWhatCannotBeWritten();
    void showPrintsATree();
    void showPrintsJson();
    void addDriveTakesTheNextFreeNumber();
    void addDriveWithNumberAndName();
    void addDriveRefusesANumberInUse();
    void addDriveNeverTakesTheNumberOfNone_data();
    void addDriveNeverTakesTheNumberOfNone();
    void driveWithTheNumberOfNone();
    void addDriveKeepsTheRestOfTheDocument();
    void placeListsEveryFile();
    void unreadableInput_data();
    void unreadableInput();
    void exampleIsComplete();

private:
    SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory->path(), arguments);
    }
    QString path() const { return m_directory->filePath(FileName); }
    void copyExample();

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_vrndevice::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void tst_vrndevice::copyExample()
{
    QVERIFY(Tool::copyExample(FileName, m_directory->path()));
}

void tst_vrndevice::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");

    const auto row = [](const char *name, const char *arguments, int exitCode, const char *output,
                        const char *errors) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '),
                                                                    Qt::SkipEmptyParts)
                            << exitCode << QString::fromLatin1(output)
                            << QString::fromLatin1(errors);
    };
    row("nothing", "", 2, "", "The command is missing");
    row("help", "--help", 0, "add-drive", "");
    row("version", "--version", 0, "vrndevice 1.0.0\n", "");
    row("unknown command", "shwo x", 2, "", "Unknown command 'shwo'");
    row("mistyped command", "shwo x", 2, "", "Unknown command 'shwo'. Did you mean 'show'?");
    row("mistyped group", "netwrok show x", 2, "", "'netwrok'. Did you mean 'network'?");
    row("mistyped command of a group", "network shwo x", 2, "", "Did you mean 'network show'?");
    row("command in capitals", "SHOW x", 2, "", "Did you mean 'show'?");
    row("command like none", "frobnicate", 2, "", "'frobnicate'. Try 'vrndevice --help'.");
    row("unknown option", "show x --verbose", 2, "", "option '--verbose'. Try");
    row("mistyped option", "show x --jsn", 2, "", "'--jsn'. Did you mean '--json'?");
    row("one hyphen too few", "show x -json", 2, "", "'-json'. Did you mean '--json'?");
    row("unknown letter", "show x -x", 2, "", "option '-x'. Try");
    row("unknown letter behind a known one", "show x -hx", 2, "", "option '-x'. Try");
    row("no name of an option", "show x --=1", 2, "", "option '--'. Try");
    row("letter with two hyphens", "show --h", 2, "", "option '--h'");
    row("value for a switch", "show x --json=1", 2, "", "show: --json takes no value.");
    row("empty value for a switch", "show x --json=", 2, "", "--json takes no value.");
    row("value for a letter", "show x -h=1", 2, "", "-h takes no value.");
    row("value missing", "new x --name", 2, "", "new: The value of --name is missing.");
    row("argument that is none of the choices", "completion tcsh", 2, "",
        "completion: SHELL must be bash, zsh or fish.");
    row("neither a choice nor a file", "new x --template y --name N", 3, "",
        "'y' is neither a built-in template nor a file");
    row("hyphens alone before an option", "show -- --json x", 2, "", "Unexpected argument 'x'");
    row("help in spite of what is missing", "add-drive -h --type KD4_drive", 0, "Usage: ", "");
    row("no help after what is unknown", "show --jsn --help", 2, "", "'--jsn'");
    row("group alone", "network", 2, "", "The command of 'network' is missing.");
    row("unknown command of a group", "network shwo x", 2, "", "Unknown command 'network shwo'");
    row("help of a group", "network --help", 0, "  network check  Report", "");
    row("help on a group", "--help", 0, "  network check  ", "");
    row("argument missing", "show", 2, "", "show: The argument FILE is missing.");
    row("argument too many", "show a b", 2, "", "show: Unexpected argument 'b'.");
    row("class missing", "new x --name N", 2, "", "--class must be kc2 or kd3");
    row("class in capitals", "new x --class KD3 --name N", 2, "", "--class must be");
    row("class Undefined", "new x --class Undefined --name N", 2, "", "--class must be");
    row("name missing", "new x --class kd3", 2, "", "--name is missing");
    row("drive type missing", "add-drive x", 2, "", "--type must be");
    row("drive type in lower case", "add-drive x --type kd3_drive", 2, "", "--type must be");
    row("empty drive type", "add-drive x --type=", 2, "",
        "add-drive: --type must be KD2_drive or KD3_drive.");
    row("unknown drive", "add-drive x --type UNKNOWN_drive", 2, "", "--type must be");
    row("number too high", "add-drive x --type KD3_drive --id 255", 2, "", "0 to 254");
    row("number below 0", "add-drive x --type KD3_drive --id=-1", 2, "", "0 to 254");
    row("no number", "add-drive x --type KD3_drive --id first", 2, "", "0 to 254");
}

void tst_vrndevice::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(result.output.contains(output), qPrintable(result.output));
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QCOMPARE(result.output.isEmpty(), output.isEmpty());
    QCOMPARE(result.errors.isEmpty(), errors.isEmpty());
    QVERIFY(QDir(m_directory->path()).isEmpty());
}

void tst_vrndevice::helpOfEveryCommand()
{
    for (const char *name :
         {"add",           "add-drive",     "apply",        "check",   "diff",
          "fmt",           "get",           "merge",        "message", "module",
          "network check", "network set",   "network show", "new",     "os-release show",
          "place",         "remove",        "report",       "rules",   "set",
          "settings set",  "settings show", "show",         "stage",   "tree",
          "verify"}) {
        const QString command = QString::fromLatin1(name);
        const SResult result = run(command.split(QLatin1Char(' ')) << QStringLiteral("--help"));
        QCOMPARE(result.exitCode, 0);
        QVERIFY(result.output.startsWith(QStringLiteral("Usage: vrndevice %1 ").arg(command)));
        const QString example = QStringLiteral(":\n  vrndevice ") + command;
        QVERIFY(result.output.contains(QStringLiteral("Example") + example)
                || result.output.contains(QStringLiteral("Examples") + example));
        QVERIFY(result.output.contains(QStringLiteral("--json")));
    }
}

void tst_vrndevice::newCreatesAConfiguration()
{
    const SResult result =
        run({QStringLiteral("new"), path(), QStringLiteral("--class"), QStringLiteral("kc2"),
             QStringLiteral("--name"), QStringLiteral("Hügel")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.isEmpty());

    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));
    QCOMPARE(device.name(), QStringLiteral("Hügel"));
    QCOMPARE(device.deviceClass(), NDeviceConf::DEVICE_CLASS_KC2);
    QCOMPARE(file.description().name(), QStringLiteral("Hügel"));
}

void tst_vrndevice::lastOfSeveralOptionsCounts()
{
    const SResult result =
        run({QStringLiteral("new"), path(), QStringLiteral("--name=First"),
             QStringLiteral("--class=kc2"), QStringLiteral("--name"), QStringLiteral("Last"),
             QStringLiteral("--class"), QStringLiteral("kd3")});
    QCOMPARE(result.exitCode, 0);
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));
    QCOMPARE(device.name(), QStringLiteral("Last"));
    QCOMPARE(device.deviceClass(), NDeviceConf::DEVICE_CLASS_KD3);
}

void tst_vrndevice::newKeepsAnExistingFile()
{
    copyExample();
    const QByteArray before = Files::read(path());
    const SResult result = run(
        {QStringLiteral("new"), path(), QStringLiteral("--class=kd3"), QStringLiteral("--name=N")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains(QStringLiteral("already exists")));
    QCOMPARE(Files::read(path()), before);
}

void tst_vrndevice::newReportsWhatCannotBeWritten()
{
    const SResult result = run({QStringLiteral("new"), QStringLiteral("missing/x.3deco"),
                                QStringLiteral("--class=kd3"), QStringLiteral("--name=N")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.startsWith(QStringLiteral("vrndevice: error: missing/x.3deco: ")));
    QVERIFY(result.output.isEmpty());
}

void tst_vrndevice::showPrintsATree()
{
    copyExample();
    const SResult result = run({QStringLiteral("show"), path()});
    QCOMPARE(result.exitCode, 0);
    for (const char *line :
         {"├─ Version: 1.2\n", "└─ Device PackagingLine, class kd3 (Folding box line 4, hall B)\n",
          "   │  ├─ UnitParams, VornDeviceDatabase (Unit data of the controller)\n",
          "   ├─ OPC UA, enabled\n", "   │  └─ motion 2\n   │     └─ Priority: 20\n",
          "      ├─ 0: Infeed, KD3_drive\n",
          "      └─ 2: Gluer, KD2_drive (Old drive, kept from line 2)\n",
          "         ├─ KD2 firmware: kd2_fw_4_7.bin\n"}) {
        QVERIFY2(result.output.contains(QString::fromUtf8(line)), line);
    }
}

void tst_vrndevice::showPrintsJson()
{
    copyExample();
    const SResult result = run({QStringLiteral("show"), QStringLiteral("--json"), path()});
    QCOMPARE(result.exitCode, 0);
    const QJsonObject device = result.json().value(QStringLiteral("device")).toObject();
    QCOMPARE(device.value(QStringLiteral("class")).toString(), QStringLiteral("kd3"));
    const QJsonArray drives = device.value(QStringLiteral("drive")).toArray();
    QCOMPARE(drives.size(), 3);
    const QJsonObject old = drives.at(2).toObject();
    QCOMPARE(old.value(QStringLiteral("type")).toString(), QStringLiteral("KD2_drive"));
    for (const auto &file : {QStringLiteral("param"), QStringLiteral("kd2Param"),
                             QStringLiteral("kd2Logic"), QStringLiteral("kd2Firmware")}) {
        QVERIFY(!old.value(file)[QStringLiteral("name")].toString().isEmpty());
        QCOMPARE(drives.at(0).toObject().contains(file), file == QStringLiteral("param"));
    }
}

void tst_vrndevice::addDriveTakesTheNextFreeNumber()
{
    copyExample();
    const SResult result =
        run({QStringLiteral("add-drive"), path(), QStringLiteral("--type=KD3_drive")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QStringLiteral("Added drive 3: DRIVE-3, KD3_drive\n"));

    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));
    QCOMPARE(device.subDeviceCount(), 4);
    QCOMPARE(device.subDevice(3).name(), QStringLiteral("DRIVE-3"));
    QVERIFY(device.subDevice(3).isKD3());
}

void tst_vrndevice::addDriveWithNumberAndName()
{
    copyExample();
    const SResult result =
        run({QStringLiteral("add-drive"), path(), QStringLiteral("--type=KD2_drive"),
             QStringLiteral("--id=9"), QStringLiteral("--name=Gripper"), QStringLiteral("--json")});
    QCOMPARE(result.exitCode, 0);
    const QJsonObject drive = result.json();
    QCOMPARE(drive.value(QStringLiteral("driveNo")).toInt(), 9);
    QCOMPARE(drive.value(QStringLiteral("name")).toString(), QStringLiteral("Gripper"));
    QCOMPARE(drive.value(QStringLiteral("type")).toString(), QStringLiteral("KD2_drive"));
}

void tst_vrndevice::addDriveRefusesANumberInUse()
{
    copyExample();
    const QByteArray before = Files::read(path());
    const SResult result = run({QStringLiteral("add-drive"), path(),
                                QStringLiteral("--type=KD3_drive"), QStringLiteral("--id=1")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains(QStringLiteral("The drive number 1 is in use.")));
    QCOMPARE(Files::read(path()), before);
}

void tst_vrndevice::addDriveNeverTakesTheNumberOfNone_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("text");

    QTest::newRow("behind 253") << QStringLiteral("253") << 0 << QStringLiteral("Added drive 254:");
    QTest::newRow("behind 254") << QStringLiteral("254") << 0 << QStringLiteral("Added drive 0:");
    QTest::newRow("behind none") << QStringLiteral("255") << 0 << QStringLiteral("Added drive 4:");
    QTest::newRow("behind all") << QString() << 1
                                << QStringLiteral("All drive numbers are in use.");
}

void tst_vrndevice::addDriveNeverTakesTheNumberOfNone()
{
    QFETCH(QString, first);
    QFETCH(int, exitCode);
    QFETCH(QString, text);
    copyExample();
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(path()));
    if (first.isEmpty()) {
        CDeviceElement device;
        QVERIFY(file.configuration(device));
        while (device.subDeviceCount() < 255) {
            device.insertSubDevice(CSubDeviceElement(CSubDeviceKD3Element()));
        }
        QVERIFY(file.setConfiguration(device));
    } else {
        const QDomElement drive = file.findDeviceElement().firstChildElement(TAG_SUB_DEVICE);
        file.setNodeValue(TAG_DRIVE_NO, first, drive);
    }
    QVERIFY(file.save(path()));
    const QByteArray before = Files::read(path());

    const SResult result =
        run({QStringLiteral("add-drive"), path(), QStringLiteral("--type=KD3_drive")});
    QCOMPARE(result.exitCode, exitCode);
    const QString &told = exitCode == 0 ? result.output : result.errors;
    QVERIFY2(told.contains(text), qPrintable(told));
    QCOMPARE(Files::read(path()) == before, exitCode != 0);
}

void tst_vrndevice::driveWithTheNumberOfNone()
{
    copyExample();
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.open(path()));
    const QDomElement drive = file.findDeviceElement().firstChildElement(TAG_SUB_DEVICE);
    const QString name = file.getNodeValue(QStringLiteral("Name"), drive);
    file.setNodeValue(TAG_DRIVE_NO, QStringLiteral("255"), drive);
    QVERIFY(file.save(path()));

    const QString warning =
        QStringLiteral("The drive '%1' has no unique drive number and gets 3.").arg(name);
    const SResult shown = run({QStringLiteral("show"), path(), QStringLiteral("--json")});
    QCOMPARE(shown.exitCode, 0);
    QVERIFY2(shown.errors.contains(warning), qPrintable(shown.errors));
    const QJsonArray drives =
        shown.json()[QStringLiteral("device")].toObject()[QStringLiteral("drive")].toArray();
    QCOMPARE(drives.last().toObject()[QStringLiteral("name")].toString(), name);
    QCOMPARE(drives.last().toObject()[QStringLiteral("driveNo")].toInt(), 3);

    const SResult checked = run({QStringLiteral("check"), path()});
    QCOMPARE(checked.exitCode, 1);
    for (const char *text :
         {"drive-number-invalid", "the drive is read with the next free number"}) {
        QVERIFY2(checked.output.contains(QLatin1String(text)), qPrintable(checked.output));
    }
}

void tst_vrndevice::addDriveKeepsTheRestOfTheDocument()
{
    copyExample();
    QByteArray content = Files::read(path());
    const QByteArray foreign = "  <Foreign by=\"hand\">kept</Foreign>\n  <!--kept, too-->\n";
    QVERIFY(content.contains(" <Device>\n"));
    content.replace(" <Device>\n", " <Device>\n" + foreign);
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    QCOMPARE(
        run({QStringLiteral("add-drive"), path(), QStringLiteral("--type=KD3_drive")}).exitCode, 0);
    const QByteArray added = "  <SubDevice type=\"KD3_drive\">\n"
                             "   <HardwareId>KD3:KD3 Controller 8A:3:2:1</HardwareId>\n"
                             "   <Name>DRIVE-3</Name>\n"
                             "   <Comment/>\n"
                             "   <DriveNo>3</DriveNo>\n"
                             "   <BusId>0</BusId>\n"
                             "  </SubDevice>\n";
    content.replace(" </Device>\n", added + " </Device>\n");
    QCOMPARE(Files::read(path()), content);
}

void tst_vrndevice::placeListsEveryFile()
{
    copyExample();
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(path()));
    QVERIFY(file.configuration(device));

    const SResult text = run({QStringLiteral("place"), path()});
    QCOMPARE(text.exitCode, 0);
    const SResult json = run({QStringLiteral("place"), path(), QStringLiteral("--json")});
    QCOMPARE(json.exitCode, 0);
    const QJsonArray placed = json.json().value(QStringLiteral("files")).toArray();

    const QList<CFileElement> files = device.allFiles();
    QCOMPARE(files.size(), 28);
    QCOMPARE(placed.size(), files.size() + 1);
    QCOMPARE(text.output.count(QLatin1Char('\n')), placed.size() + 1);
    for (const CFileElement &expected : files) {
        QVERIFY(text.output.contains(expected.fileName()));
        const auto isExpected = [&expected](const QJsonValue &value) {
            const QJsonObject object = value.toObject();
            return object.value(QStringLiteral("name")).toString() == expected.fileName()
                && object.value(QStringLiteral("deviceDir")).toString() == expected.devicePath()
                && object.value(QStringLiteral("projectDir")).toString() == expected.projectPath();
        };
        QVERIFY2(std::any_of(placed.begin(), placed.end(), isExpected),
                 qPrintable(expected.fileName()));
    }
    QCOMPARE(placed.first().toObject().value(QStringLiteral("deviceDir")).toString(),
             QStringLiteral("/velkor/configurations/STD/conf/"));
}

void tst_vrndevice::unreadableInput_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("errors");
    for (const char *command : {"show", "place", "add-drive --type=KD3_drive"}) {
        const QString name = QString::fromLatin1(command);
        QTest::addRow("missing, %s", command) << name << QByteArray() << QStringLiteral("No such");
        QTest::addRow("broken, %s", command)
            << name << QByteArray("<VornDeviceConfig version=\"1.0\">\n<Device>\n</Devise>\n")
            << QStringLiteral(".3deco:3:");
        QTest::addRow("other document, %s", command)
            << name << QByteArray("<VornParameters version=\"1.0\"/>")
            << QStringLiteral("'VornParameters'");
    }
    for (const char *command : {"place", "add-drive --type=KD3_drive"}) {
        QTest::addRow("no device, %s", command)
            << QString::fromLatin1(command) << QByteArray("<VornDeviceConfig version=\"1.0\"/>")
            << QStringLiteral("has no device");
    }
}

void tst_vrndevice::unreadableInput()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, content);
    QFETCH(QString, errors);
    if (!content.isEmpty()) {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    const SResult result = run(command.split(QLatin1Char(' ')) << path());
    QCOMPARE(result.exitCode, 3);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QCOMPARE(Files::read(path()), content);
}

void tst_vrndevice::exampleIsComplete()
{
    const QDir project = Tool::exampleDirectory();
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    QVERIFY(file.open(project.filePath(FileName)));
    QVERIFY(file.configuration(device));
    for (const CFileElement &placed : device.allFiles()) {
        QVERIFY2(QFile::exists(project.filePath(placed.projectFilePath())),
                 qPrintable(placed.projectFilePath()));
    }
    // The example is in the form in which the library writes it.
    QByteArray saved;
    QString error;
    QVERIFY(file.save(saved, error));
    QCOMPARE(saved, Files::read(project.filePath(FileName)));
}

REGISTER_GUILESS_TEST(tst_vrndevice)
#include "tst_vrndevice.moc"
