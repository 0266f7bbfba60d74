#include "devicefiles/COptionModuleFileName.h"
#include "settings/CDeviceSettingsFile.h"
#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"
#include "support/WithoutProc.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using Tool::SResult;

namespace {

const QString Settings = QStringLiteral("settings.3conf");
const QString Network = QStringLiteral("network.conf");
const QString Release = QStringLiteral("os-release");
const QStringList Names = {Settings, Network, Release};

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '));
}

} // namespace

/** The commands on the files that a device keeps for itself. */
class tst_vrndevice_smallfiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void usage_data();
    void usage();
    void unreadableInput_data();
    void unreadableInput();

    void settingsShow();
    void settingsSet();
    void settingsSetKeepsTheRest();
    void settingsCreate();
    void settingsNotSaved();
    void networkShow();
    void networkSet();
    void networkSetCreates();
    void networkSetWarnsOfAnotherSubnet();
    void networkSetLosesNoLine_data();
    void networkSetLosesNoLine();
    void networkNotSaved_data();
    void networkNotSaved();
    void networkCheck();
    void networkCheckFindsNothing();
    void networkWithoutProc_data();
    void networkWithoutProc();
    void osReleaseShow();
    void osReleaseThatIsNotValid();
    void module();
    void moduleJson();
    void modulesThatAreNone_data();
    void modulesThatAreNone();
    void message_data();
    void message();
    void messageJson();
    void exampleIsInOrder();

private:
    SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory->path(), arguments);
    }
    SResult run(const QString &arguments) const { return run(words(arguments)); }
    QString path(const QString &name) const { return m_directory->filePath(name); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_vrndevice_smallfiles::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
    for (const QString &name : Names) {
        QVERIFY(Tool::copyExample(name, m_directory->path()));
    }
}

void tst_vrndevice_smallfiles::usage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("errors");

    const auto row = [](const QString &arguments, const QString &errors) {
        QTest::newRow(qPrintable(arguments)) << arguments << errors;
    };
    row(u"settings show"_s, u"The argument FILE is missing."_s);
    row(u"settings set settings.3conf"_s, u"Neither --name nor --drive"_s);
    row(u"settings set settings.3conf --drive 1"_s, u"--drive must be"_s);
    row(u"settings set settings.3conf --drive =x"_s, u"--drive must be"_s);
    row(u"settings set settings.3conf --drive 255=x"_s, u"0 to 254"_s);
    row(u"settings set settings.3conf --drive -1=x"_s, u"--drive must be"_s);
    row(u"settings set settings.3conf --drive x=x --name N"_s, u"--drive must be"_s);
    row(u"network set network.conf"_s, u"The argument KEY=VALUE is missing."_s);
    row(u"network set network.conf MODE"_s, u"'MODE' does not have the form KEY=VALUE"_s);
    row(u"network set network.conf mode=DHCP"_s, u"mode: Unknown key"_s);
    row(u"network set network.conf MODE=UNKNOWN"_s, u"MODE: 'UNKNOWN' is not one of"_s);
    row(u"network set network.conf MODE=DHCP ADDRESS=1.2.3"_s,
        u"ADDRESS: '1.2.3' is not a valid IPv4"_s);
    row(u"network set network.conf ADDRESS="_s, u"ADDRESS: '' is not a valid IPv4"_s);
    row(u"network set network.conf NETCON_PORT=65536"_s,
        u"NETCON_PORT: '65536' is not a valid port"_s);
    row(u"network set network.conf KERNEL_LOGLEVEL=8"_s, u"KERNEL_LOGLEVEL: '8' is not a valid"_s);
    row(u"module"_s, u"The argument NAME is missing."_s);
    row(u"message"_s, u"The argument CODE is missing."_s);
    row(u"message 1024 400x"_s, u"'400x' is not a valid code"_s);
    row(u"message 4294968320"_s, u"'4294968320' is not a valid code"_s);
    row(u"message 0x"_s, u"'0x' is not a valid code"_s);
    row(u"message 4a"_s, u"'4a' is not a valid code"_s);
}

void tst_vrndevice_smallfiles::usage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, errors);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    for (const QString &name : Names) {
        QCOMPARE(Files::read(path(name)), Files::read(Tool::exampleDirectory().filePath(name)));
    }
}

void tst_vrndevice_smallfiles::unreadableInput_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("errors");

    const QString missing = u"No such file"_s;
    const QString directory = u"s a directory"_s;
    for (const QString &command :
         {u"settings show %1"_s, u"settings set %1 --name N"_s, u"network show %1"_s,
          u"network set %1 MODE=DHCP"_s, u"network check %1"_s, u"os-release show %1"_s}) {
        const QString what = command.arg(u"FILE"_s);
        QTest::addRow("%s, missing", qPrintable(what)) << command.arg(u"x"_s) << missing;
        QTest::addRow("%s, directory", qPrintable(what)) << command.arg(u"."_s) << directory;
    }
    QTest::newRow("settings show, no document")
        << u"settings show os-release"_s << u"os-release:1:"_s;
    QTest::newRow("network set --create, directory")
        << u"network set . MODE=DHCP --create"_s << directory;
}

void tst_vrndevice_smallfiles::unreadableInput()
{
    QFETCH(QString, arguments);
    QFETCH(QString, errors);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 3);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.startsWith(u"vrndevice: error: "_s), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QCOMPARE(Files::names(m_directory->path()).size(), Names.size());
}

void tst_vrndevice_smallfiles::settingsShow()
{
    const SResult text = run(u"settings show settings.3conf"_s);
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.output,
             u"Device   Folding box line 4\nDrive 0  Infeed\nDrive 1  Folder\nDrive 2  Gluer\n"_s);

    const QJsonObject json = run(u"settings show settings.3conf --json"_s).json();
    QCOMPARE(json.value(u"deviceName"_s).toString(), u"Folding box line 4"_s);
    const QJsonArray drives = json.value(u"drive"_s).toArray();
    QCOMPARE(drives.size(), 3);
    QCOMPARE(drives.at(2).toObject(), (QJsonObject{{u"driveNo"_s, 2}, {u"name"_s, u"Gluer"_s}}));
}

void tst_vrndevice_smallfiles::settingsSet()
{
    const SResult result = run({u"settings"_s, u"set"_s, Settings, u"--name=Hügel"_s, u"--drive"_s,
                                u"2=Leim = Kleber"_s, u"--drive"_s, u"254="_s});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.isEmpty());
    QCOMPARE(result.output, run(u"settings show settings.3conf"_s).output);

    CDeviceSettingsFile file(nullptr);
    QCOMPARE(file.open(path(Settings), u"1.0"_s), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.deviceSettings().deviceName(), u"Hügel"_s);
    const QMap<quint8, QString> names = {
        {0, u"Infeed"_s}, {1, u"Folder"_s}, {2, u"Leim = Kleber"_s}, {254, QString()}};
    QCOMPARE(file.deviceSettings().subDeviceNameMap(), names);
}

void tst_vrndevice_smallfiles::settingsSetKeepsTheRest()
{
    QCOMPARE(run(u"settings set settings.3conf --drive 0=In"_s).exitCode, 0);
    CDeviceSettingsFile file(nullptr);
    QCOMPARE(file.open(path(Settings), u"1.0"_s), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.deviceSettings().deviceName(), u"Folding box line 4"_s);
    QCOMPARE(file.deviceSettings().subDeviceName(1), u"Folder"_s);
}

void tst_vrndevice_smallfiles::settingsCreate()
{
    QVERIFY(QFile::remove(path(Settings)));
    const SResult result = run(u"settings set settings.3conf --create --name=New --json"_s);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json(), (QJsonObject{{u"deviceName"_s, u"New"_s}, {u"drive"_s, QJsonArray()}}));

    // A second time nothing that is there is lost.
    QCOMPARE(run(u"settings set settings.3conf --create --drive=3=D"_s).exitCode, 0);
    CDeviceSettingsFile file(nullptr);
    QCOMPARE(file.open(path(Settings), u"1.0"_s), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.deviceSettings().deviceName(), u"New"_s);
    QCOMPARE(file.deviceSettings().subDeviceName(3), u"D"_s);
}

void tst_vrndevice_smallfiles::settingsNotSaved()
{
    const SResult result = run(u"settings set missing/x --create --name=N"_s);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(u"missing/x: No such file"_s), qPrintable(result.errors));
}

void tst_vrndevice_smallfiles::networkShow()
{
    const SResult text = run(u"network show network.conf"_s);
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.output,
             u"MODE             STATIC\n"
             "ADDRESS          192.168.1.10\n"
             "SUBNETMASK       255.255.255.0\n"
             "GATEWAY          192.168.1.1\n"
             "SYSLOGTARGET     192.168.1.20\n"
             "NTP_TIMESERVER   192.168.1.1\n"
             "NTP_MODE         NTP_DAEMON\n"
             "NETCON_TARGET    0.0.0.0\n"
             "NETCON_PORT      6666\n"
             "KERNEL_LOGLEVEL  4\n"_s);
    const QJsonObject json = run(u"network show --json network.conf"_s).json();
    QCOMPARE(json.keys().size(), 10);
    QCOMPARE(json.value(u"ADDRESS"_s).toString(), u"192.168.1.10"_s);
}

void tst_vrndevice_smallfiles::networkSet()
{
    const SResult result =
        run(u"network set network.conf MODE=dhcp NTP_TIMESERVER= KERNEL_LOGLEVEL=7"_s);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.isEmpty());
    QCOMPARE(result.output, run(u"network show network.conf"_s).output);

    QByteArray expected = Files::read(Tool::exampleDirectory().filePath(Network));
    expected.replace("MODE=STATIC", "MODE=DHCP");
    expected.replace("NTP_TIMESERVER=192.168.1.1", "NTP_TIMESERVER=");
    expected.replace("KERNEL_LOGLEVEL=4", "KERNEL_LOGLEVEL=7");
    QCOMPARE(Files::read(path(Network)), expected);
}

void tst_vrndevice_smallfiles::networkSetCreates()
{
    QVERIFY(QFile::remove(path(Network)));
    const SResult result =
        run(u"network set network.conf --create --json MODE=DHCP NTP_MODE=NTP_DISABLE"_s);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.json().value(u"MODE"_s).toString(), u"DHCP"_s);
    CNetworkSettingsFile file(path(Network));
    QCOMPARE(file.networkSettings().address(), u"000.000.000.000"_s);
    QCOMPARE(file.networkSettings().ntpMode(), CNetworkSettings::NTP_MODE_DISABLE);
}

void tst_vrndevice_smallfiles::networkSetWarnsOfAnotherSubnet()
{
    const SResult result = run(u"network set network.conf GATEWAY=192.168.2.1"_s);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.errors.startsWith(
                 u"vrndevice: warning: network.conf:10: GATEWAY: The gateway 192.168.2.1 is not"_s),
             qPrintable(result.errors));
    QVERIFY(Files::read(path(Network)).contains("GATEWAY=192.168.2.1\n"));
}

void tst_vrndevice_smallfiles::networkSetLosesNoLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("errors");

    QTest::newRow("unknown key") << QByteArray("VLAN=3\n") << u"network.conf:32: VLAN: "_s;
    QTest::newRow("section") << QByteArray("[x]\n") << u"network.conf:32: A section"_s;
    QTest::newRow("no assignment") << QByteArray("VLAN 3\n") << u"network.conf:32: This is"_s;
}

void tst_vrndevice_smallfiles::networkSetLosesNoLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, errors);
    const QByteArray content = Files::read(path(Network)) + line;
    QVERIFY(Files::write(path(Network), content));
    const SResult result = run(u"network set network.conf MODE=DHCP"_s);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QVERIFY(result.errors.contains(u"would be lost"_s));
    QCOMPARE(Files::read(path(Network)), content);
}

void tst_vrndevice_smallfiles::networkNotSaved_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no directory") << u"missing/x"_s << u"No such file or directory"_s;
    QTest::newRow("too long a name") << QString(300, u'x') << u"File name too long"_s;
}

void tst_vrndevice_smallfiles::networkNotSaved()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);

    const SResult result = run(u"network set %1 --create MODE=DHCP"_s.arg(file));
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.isEmpty());
    QCOMPARE(result.errors,
             u"vrndevice: error: %1: The file could not be saved: %2\n"_s.arg(file, reason));
}

void tst_vrndevice_smallfiles::networkCheck()
{
    QVERIFY(Files::write(path(Network),
                         "MODE=STATIC\nADRESS=1.2.3.4\nADDRESS=1.2.3.4\nGATEWAY=1.2.300.1\n"));
    const SResult text = run(u"network check network.conf"_s);
    QCOMPARE(text.exitCode, 1);
    QVERIFY(text.errors.isEmpty());
    const QStringList lines = text.output.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), u"network.conf:2: ADRESS: Unknown key."_s);
    QVERIFY(lines.at(1).startsWith(
        u"network.conf:4: GATEWAY: '1.2.300.1' is not a valid IPv4 address"_s));

    const SResult json = run(u"network check network.conf --json"_s);
    QCOMPARE(json.exitCode, 1);
    const QJsonArray findings = json.json().value(u"findings"_s).toArray();
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings.at(0).toObject().value(u"line"_s).toInt(), 2);
    QCOMPARE(findings.at(1).toObject().value(u"key"_s).toString(), u"GATEWAY"_s);
    QVERIFY(findings.at(1).toObject().value(u"message"_s).toString().contains(u"1.2.300.1"_s));

    // What is missing has no line.
    QVERIFY(Files::write(path(Network), "MODE=STATIC\n"));
    QCOMPARE(run(u"network check network.conf"_s).output,
             u"network.conf: ADDRESS: The mode STATIC needs an address.\n"_s);
}

void tst_vrndevice_smallfiles::networkCheckFindsNothing()
{
    const SResult text = run(u"network check network.conf"_s);
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.output, u"network.conf: nothing is wrong\n"_s);
    const SResult json = run(u"network check network.conf --json"_s);
    QCOMPARE(json.exitCode, 0);
    QCOMPARE(json.json(), (QJsonObject{{u"findings"_s, QJsonArray()}}));
}

void tst_vrndevice_smallfiles::networkWithoutProc_data()
{
    QTest::addColumn<QString>("arguments");

    QTest::newRow("show") << u"network show network.conf"_s;
    QTest::newRow("check") << u"network check network.conf"_s;
    QTest::newRow("set") << u"network set network.conf MODE=DHCP"_s;
}

void tst_vrndevice_smallfiles::networkWithoutProc()
{
    QFETCH(QString, arguments);
    if (WithoutProc::run(m_directory->path(), {u"--version"_s}).exitCode != 0) {
        QSKIP("/proc cannot be hidden here, or a sanitizer needs it.", 0);
    }
    QVERIFY(Files::write(path(Network), "MODE=STATIC\nADDRESS=192.168.1.10\nNETCON_PORT=0\n"));
    const SResult hidden = WithoutProc::run(m_directory->path(), words(arguments));
    const QByteArray left = Files::read(path(Network));

    QVERIFY(Files::write(path(Network), "MODE=STATIC\nADDRESS=192.168.1.10\nNETCON_PORT=0\n"));
    const SResult usual = run(arguments);
    QCOMPARE(hidden.exitCode, usual.exitCode);
    QCOMPARE(hidden.output, usual.output);
    QCOMPARE(hidden.errors, usual.errors);
    QCOMPARE(left, Files::read(path(Network)));
}

void tst_vrndevice_smallfiles::osReleaseShow()
{
    const SResult text = run(u"os-release show os-release"_s);
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.output,
             u"Product        KD3\n"
             "Platform       KD3 i686\n"
             "PTXdist        2017.07.0\n"
             "Board support  KD3-3.4.1\n"
             "Built          2026-01-15T09:30:00+0000\n"
             "Toolchain      i586-unknown-linux-gnu gcc 5.4\n"
             "Kernel         linux-4.9.47-rt37\n"
             "Qt             5.15.2\n"_s);
    const QJsonObject json = run(u"os-release show os-release --json"_s).json();
    QCOMPARE(json,
             (QJsonObject{{u"valid"_s, true},
                          {u"product"_s, u"KD3"_s},
                          {u"platform"_s, u"KD3 i686"_s},
                          {u"ptxdistVersion"_s, u"2017.07.0"_s},
                          {u"ptxdistBsp"_s, u"KD3-3.4.1"_s},
                          {u"buildDate"_s, u"2026-01-15T09:30:00+0000"_s},
                          {u"toolchainVersion"_s, u"i586-unknown-linux-gnu gcc 5.4"_s},
                          {u"kernelImage"_s, u"linux-4.9.47-rt37"_s},
                          {u"qtVersion"_s, u"5.15.2"_s}}));
}

void tst_vrndevice_smallfiles::osReleaseThatIsNotValid()
{
    QVERIFY(Files::write(path(Release), "PRODUCT=\n"));
    const SResult result = run(u"os-release show os-release --json"_s);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!result.json().value(u"valid"_s).toBool(true));
}

void tst_vrndevice_smallfiles::module()
{
    const SResult result = run(u"module OM1_EC_H2_V1_3.bin some/where/OM12_XY_H1_V10_0_a_b.hex"_s);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.isEmpty());
    const QStringList lines = result.output.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    const auto cells = [&lines](int line) {
        return lines.at(line).split(QRegExp(u"  +"_s), Qt::SkipEmptyParts);
    };
    QCOMPARE(cells(0),
             (QStringList{u"FILE"_s, u"SLOT"_s, u"INTERFACE"_s, u"HARDWARE"_s, u"SOFTWARE"_s,
                          u"TEXT"_s}));
    QCOMPARE(cells(1),
             (QStringList{u"OM1_EC_H2_V1_3.bin"_s, u"OM1, Option Modul slot 1"_s, u"EC, EtherCAT"_s,
                          u"H2"_s, u"V1_3"_s}));
    QCOMPARE(cells(2),
             (QStringList{u"OM12_XY_H1_V10_0_a_b.hex"_s, u"OM12, Option Modul slot 12"_s,
                          u"XY, Unknown interface"_s, u"H1"_s, u"V10_0"_s, u"a_b"_s}));
}

void tst_vrndevice_smallfiles::moduleJson()
{
    const SResult result = run(u"module --json OM1_EC_H2_V1_3.bin OM1.bin"_s);
    QCOMPARE(result.exitCode, 1);
    const QJsonArray modules = result.json().value(u"modules"_s).toArray();
    QCOMPARE(modules.size(), 2);
    const QJsonObject valid = modules.at(0).toObject();
    QVERIFY(valid.value(u"valid"_s).toBool());
    QCOMPARE(valid.value(u"parts"_s).toObject(),
             (QJsonObject{{u"slot"_s, u"OM1"_s},
                          {u"slotDescription"_s, u"Option Modul slot 1"_s},
                          {u"interface"_s, u"EC"_s},
                          {u"interfaceDescription"_s, u"EtherCAT"_s},
                          {u"hardwareVersion"_s, u"H2"_s},
                          {u"softwareVersion"_s, u"V1_3"_s},
                          {u"text"_s, QString()},
                          {u"suffix"_s, u"bin"_s}}));
    const QJsonObject invalid = modules.at(1).toObject();
    QVERIFY(!invalid.value(u"valid"_s).toBool(true));
    QVERIFY(invalid.value(u"reason"_s).toString().startsWith(u"The interface is missing"_s));
}

void tst_vrndevice_smallfiles::modulesThatAreNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");

    const auto row = [](const QString &name, const QString &reason) {
        QTest::newRow(qPrintable(name)) << name << reason;
    };
    row(u"om1_EC_H2_V1_3.bin"_s, u"'om1' is not a valid slot; write OM and a number"_s);
    row(u"OM_EC_H2_V1_3.bin"_s, u"'OM' is not a valid slot"_s);
    row(u"_EC_H2_V1_3.bin"_s, u"The slot is missing"_s);
    row(u"OM1_E_H2_V1_3.bin"_s, u"'E' is not a valid interface; write two letters or more"_s);
    row(u"OM1_EC.bin"_s, u"The hardware version is missing"_s);
    row(u"OM1_EC_2_V1_3.bin"_s, u"'2' is not a valid hardware version; write H and a number"_s);
    row(u"OM1_EC_H2.bin"_s, u"The software version is missing"_s);
    row(u"OM1_EC_H2_V1.bin"_s, u"'V1' is not a valid software version; write V and two numbers"_s);
    row(u"OM1_EC_H2_V1_x.bin"_s, u"'V1_x' is not a valid software version"_s);
    row(u"OM1_EC_H2_V1_3"_s, u"The suffix is missing, such as .bin"_s);
    row(u"OM1_EC_H2_V1_3."_s, u"The suffix is missing"_s);
    row(u"OM1_EC_H2_V1_3_.bin"_s, u"After the versions"_s);
    row(u"OM1_EC_H2_V1_3_a-b.bin"_s, u"After the versions"_s);
    row(u"OM1_EC_H2_V1_3.b-n"_s, u"After the versions"_s);
}

void tst_vrndevice_smallfiles::modulesThatAreNone()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(!COptionModuleFileName::isValid(name));
    const SResult result = run({u"module"_s, name});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.startsWith(u"vrndevice: error: %1: %2"_s.arg(name, reason)),
             qPrintable(result.errors));
}

void tst_vrndevice_smallfiles::message_data()
{
    QTest::addColumn<QString>("codes");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");

    QTest::newRow("decimal") << u"1024"_s << 0
                             << u"1024 (0x400): System: Mount Error\n"
                                "  APP partition can not be mounted.\n"_s
                             << QString();
    QTest::newRow("hexadecimal, two lines")
        << u"0x403"_s << 0
        << u"1027 (0x403): Critical boot error\n"
           "  Critical error discovered on startup. Firmware is not started.\n"
           "  See '/var/log/handleBootError.log' or '/var/log/boot_err'.\n"_s
        << QString();
    QTest::newRow("several, in the order given")
        << u"1125 0X44A"_s << 0
        << u"1125 (0x465): Signal 32: SIGRTMIN+6\n  Real-time 6.\n"
           "1098 (0x44a): Signal 11: SIGSEGV\n  Invalid memory reference.\n"_s
        << QString();
    QTest::newRow("without text") << u"1030"_s << 0 << u"1030 (0x406): 1030\n"_s << QString();
    QTest::newRow("none, and one")
        << u"1023 1151"_s << 1 << u"1151 (0x47f): Signal 64: SIGRTMAX\n  Real-time 31 (Max).\n"_s
        << u"vrndevice: error: 1023 is not the code of a system message; write a number from "
           u"1024 to 1151.\n"_s;
}

void tst_vrndevice_smallfiles::message()
{
    QFETCH(QString, codes);
    const SResult result = run(u"message "_s + codes);
    QTEST(result.exitCode, "exitCode");
    QTEST(result.output, "output");
    QTEST(result.errors, "errors");
}

void tst_vrndevice_smallfiles::messageJson()
{
    const SResult result = run(u"message --json 1026 1152"_s);
    QCOMPARE(result.exitCode, 1);
    const QJsonArray messages = {
        QJsonObject{{u"code"_s, 1026},
                    {u"message"_s, u"Too much errors"_s},
                    {u"description"_s, u"Application start: execution_counter > 5."_s}}};
    QCOMPARE(result.json().value(u"messages"_s).toArray(), messages);
}

void tst_vrndevice_smallfiles::exampleIsInOrder()
{
    const QDir project = Tool::exampleDirectory();
    const QByteArray network = Files::read(project.filePath(Network));
    QVERIFY(CNetworkSettingsCheck::check(network).isEmpty());
    // In the form in which the library writes it.
    CNetworkSettingsFile file(project.filePath(Network));
    QByteArray saved;
    QCOMPARE(file.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(saved, network);

    const QStringList modules = QDir(project.filePath(u"options"_s)).entryList(QDir::Files);
    QCOMPARE(modules.size(), 2);
    for (const QString &module : modules) {
        QVERIFY2(COptionModuleFileName::isValid(module), qPrintable(module));
    }
}

REGISTER_GUILESS_TEST(tst_vrndevice_smallfiles)
#include "tst_vrndevice_smallfiles.moc"
