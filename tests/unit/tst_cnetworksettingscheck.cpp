#include "settings/CNetworkSettingsCheck.h"
#include "support/Files.h"
#include "support/Garbage.h"
#include "support/Literals.h"
#include "support/MarkingTranslator.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <type_traits>

using Check = CNetworkSettingsCheck;

namespace {

/** Each finding as "line KEY: message". */
QStringList told(const QByteArray &content)
{
    QStringList result;
    for (const Check::SFinding &finding : Check::check(content)) {
        result << u"%1 %2: %3"_s.arg(QString::number(finding.line), finding.key, finding.message);
    }
    return result;
}

QString directory(const QString &name)
{
    return Places::data("network/") + name;
}

QByteArray staticAddress(const QByteArray &address, const QByteArray &mask,
                         const QByteArray &gateway)
{
    return "MODE=STATIC\nADDRESS=" + address + "\nSUBNETMASK=" + mask + "\nGATEWAY=" + gateway
        + "\n";
}

struct SInvalid {
    const char *name;
    QList<int> lines;
};

/** The lines of the findings in the files of the directory "invalid", named after their fault. */
const SInvalid InvalidFiles[] = {
    {"address-missing-in-static", {0}},
    {"address-of-five-numbers", {2}},
    {"address-too-high", {3}},
    {"backslash-before-key", {2, 3}},
    {"byte-order-mark-and-unknown-key", {2}},
    {"colon-instead-of-equals-sign", {1}},
    {"console-port-zero", {2}},
    {"gateway-in-other-subnet", {3}},
    {"key-in-lower-case", {1}},
    {"key-repeated", {3}},
    {"level-too-high", {1}},
    {"many-faults", {1, 3, 4, 5, 7, 8, 9}},
    {"mask-with-gap", {2}},
    {"mode-unknown", {3}},
    {"ntp-mode-of-network", {1}},
    {"ntp-server-is-a-name", {1}},
    {"quotation-not-closed", {2, 3, 4}},
    {"section", {3}},
    {"word-alone", {2}},
};

const QString NotRead =
    u"This line is ignored: it belongs to a quotation mark or backslash before it."_s;

} // namespace

class tst_cnetworksettingscheck : public QObject
{
    Q_OBJECT

private slots:
    void kind();
    void valid_data();
    void valid();
    void defaultSettingsHaveNoModes();
    void messages_data();
    void messages();
    void kinds_data();
    void kinds();
    void invalidFiles_data();
    void invalidFiles();
    void everyInvalidFileIsTested();
    void notRead_data();
    void notRead();
    void sections_data();
    void sections();
    void linesOfAllKinds_data();
    void linesOfAllKinds();
    void subnet_data();
    void subnet();
    void subnetOnlyWhenStatic_data();
    void subnetOnlyWhenStatic();
    void problem_data();
    void problem();
    void translated_data();
    void translated();
    void garbage_data();
    void garbage();
};

void tst_cnetworksettingscheck::kind()
{
    QVERIFY(!std::is_default_constructible<Check>::value);
}

void tst_cnetworksettingscheck::valid_data()
{
    QTest::addColumn<QByteArray>("content");

    const auto row = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content;
    };
    row("as written", Files::read(directory(u"valid/full.conf"_s)));
    row("empty", "");
    row("byte-order mark alone", "\xEF\xBB\xBF");
    row("byte-order mark", "\xEF\xBB\xBFMODE=DHCP\n");
    row("blank lines", "\n\r\n \n\t\n");
    row("comments", "# MODE=x\n; MODE=y\n  # [x]\n\t; x\n#\n;\n");
    row("quotation marks in comments", "; \"\nMODE=DHCP\n# 19\" rack\nNETCON_PORT=1\n");
    row("backslashes behind comments", "; \\\nMODE=DHCP\n# \\\nNETCON_PORT=1\n");
    row("no line feed at the end", "MODE=DHCP");
    row("blanks around key and value", " MODE = DHCP \n");
    row("comment behind the value", "MODE=DHCP ; as ever\n");
    row("quoted value", "MODE=\"DHCP\"\n");
    row("modes in lower case", "MODE=id_switch\nNTP_MODE=ntp_disable\n");
    row("section General", "[General]\nMODE=DHCP\n");
    row("section general", "[gENERAL]\nMODE=DHCP\n");
    row("key again in a section General", "[General]\nMODE=DHCP\n[General]\nNETCON_PORT=1\n");
    row("no time server", "NTP_TIMESERVER=\n");
    row("not used", "SYSLOGTARGET=0.0.0.0\nNETCON_TARGET=000.000.000.000\n");
    row("static", staticAddress("192.168.1.10", "255.255.255.0", "192.168.1.1"));
    row("static without gateway", "MODE=STATIC\nADDRESS=192.168.1.10\n");
    row("not static without address", "MODE=DHCP\nADDRESS=0.0.0.0\n");
}

void tst_cnetworksettingscheck::valid()
{
    QFETCH(QByteArray, content);

    QVERIFY2(!content.isNull(), "The file is missing.");
    QCOMPARE(told(content), QStringList());
}

void tst_cnetworksettingscheck::defaultSettingsHaveNoModes()
{
    const QByteArray content = Files::read(directory(u"valid/default.conf"_s));
    QCOMPARE(told(content),
             (QStringList{u"5 MODE: 'UNKNOWN' is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s,
                          u"23 NTP_MODE: 'UNKNOWN' is not one of NTP_DISABLE, NTP_DAEMON, "
                          "NTP_SET_ON_STARTUP."_s}));
}

void tst_cnetworksettingscheck::messages_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("findings");

    const auto row = [](const char *name, const QByteArray &content, const QStringList &findings) {
        QTest::newRow(name) << content << findings;
    };
    const QString modes = u" is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s;

    row("no assignment", "MODE=DHCP\nx\n", {u"2 : This is neither KEY=value nor a comment."_s});
    row("key alone", "MODE\n", {u"1 : This is neither KEY=value nor a comment."_s});
    row("section", "MODE=DHCP\n[x]\n", {u"2 : A section begins here; its keys are ignored."_s});
    row("unknown key", "\n\nWLAN = 1\n", {u"3 WLAN: Unknown key."_s});
    row("key in other case", "Mode=DHCP\n", {u"1 Mode: Unknown key."_s});
    row("no key", "=1\n", {u"1 : Unknown key."_s});
    row("repeated key", "MODE=DHCP\n\nMODE=DHCP\n",
        {u"3 MODE: This overrides the value in line 1."_s});
    row("key three times", "MODE=DHCP\nMODE=DHCP\nMODE=DHCP\n",
        {u"2 MODE: This overrides the value in line 1."_s,
         u"3 MODE: This overrides the value in line 2."_s});
    row("not read", "x=\"\nMODE=DHCP\n", {u"1 x: Unknown key."_s, u"2 MODE: "_s + NotRead});

    row("mode", "\nMODE=AUTO\n", {u"2 MODE: 'AUTO'"_s + modes});
    row("empty mode", "MODE=\n", {u"1 MODE: ''"_s + modes});
    row("place marker", "MODE=%2\n", {u"1 MODE: '%2'"_s + modes});
    row("not ASCII", "MODE=\xC3\xB6\n", {u"1 MODE: '\u00f6'"_s + modes});
    row("NTP mode", "NTP_MODE=DISABLED\n",
        {u"1 NTP_MODE: 'DISABLED' is not one of NTP_DISABLE, NTP_DAEMON, NTP_SET_ON_STARTUP."_s});
    row("address", "ADDRESS=1.2.3\n",
        {u"1 ADDRESS: '1.2.3' is not a valid IPv4 address; write one such as 192.168.1.10."_s});
    row("gateway", "GATEWAY=x\n",
        {u"1 GATEWAY: 'x' is not a valid IPv4 address; write one such as 192.168.1.10."_s});
    row("system log", "SYSLOGTARGET=\n",
        {u"1 SYSLOGTARGET: '' is not a valid IPv4 address; write one such as 192.168.1.10."_s});
    row("console", "NETCON_TARGET=1.1.1.1,2.2.2.2\n",
        {u"1 NETCON_TARGET: '1.1.1.1,2.2.2.2' is not a valid IPv4 address; write one such as "
         u"192.168.1.10."_s});
    row("time server", "NTP_TIMESERVER=x\n",
        {u"1 NTP_TIMESERVER: 'x' is not a valid IPv4 address; write one such as 192.168.1.10."_s});
    row("mask", "SUBNETMASK=255.0.255.0\n",
        {u"1 SUBNETMASK: '255.0.255.0' is not a valid subnet mask; write one such as "
         u"255.255.255.0."_s});
    row("port", "NETCON_PORT=65536\n",
        {u"1 NETCON_PORT: '65536' is not a valid port number; write a number from 1 to 65535."_s});
    row("level", "KERNEL_LOGLEVEL=8\n",
        {u"1 KERNEL_LOGLEVEL: '8' is not a valid kernel log level; write a number from 0 to 7."_s});

    row("no address", "MODE=STATIC\n", {u"0 ADDRESS: The mode STATIC needs an address."_s});
    row("address 0", "MODE=STATIC\nADDRESS=000.000.000.000\n",
        {u"2 ADDRESS: The mode STATIC needs an address."_s});
    row("gateway elsewhere", staticAddress("192.168.1.10", "255.255.255.0", "192.168.2.1"),
        {u"4 GATEWAY: The gateway 192.168.2.1 is not in the subnet of the address 192.168.1.10, "
         "mask 255.255.255.0."_s});

    row("order of lines", "KERNEL_LOGLEVEL=8\nADDRESS=x\n[x]\nMODE=x\nx\n",
        {u"1 KERNEL_LOGLEVEL: '8' is not a valid kernel log level; write a number from 0 to 7."_s,
         u"2 ADDRESS: 'x' is not a valid IPv4 address; write one such as 192.168.1.10."_s,
         u"3 : A section begins here; its keys are ignored."_s,
         u"5 : This is neither KEY=value nor a comment."_s});
    row("repeated with a bad value", "MODE=DHCP\nMODE=x\n",
        {u"2 MODE: This overrides the value in line 1."_s, u"2 MODE: 'x'"_s + modes});
    row("escaped character in a key", "%4DODE=x\n", {u"1 MODE: 'x'"_s + modes});
    row("no-break space in a key", "MODE\xC2\xA0=x\n", {u"1 MODE\u00A0: Unknown key."_s});
    row("bad value that is replaced", "MODE=x\nMODE=DHCP\n",
        {u"2 MODE: This overrides the value in line 1."_s});
}

void tst_cnetworksettingscheck::messages()
{
    QFETCH(QByteArray, content);
    QTEST(told(content), "findings");
}

void tst_cnetworksettingscheck::kinds_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("kind");

    const auto row = [](const char *name, const QByteArray &content, Check::EFinding kind) {
        QTest::newRow(name) << content << int(kind);
    };
    row("no assignment", "x\n", Check::FINDING_NO_ASSIGNMENT);
    row("section", "[x]\n", Check::FINDING_SECTION);
    row("unknown key", "x=1\n", Check::FINDING_UNKNOWN_KEY);
    row("repeated key", "MODE=DHCP\nMODE=DHCP\n", Check::FINDING_REPEATED_KEY);
    row("not read", "[General \"\nMODE=DHCP\n", Check::FINDING_NOT_READ);
    row("mode", "MODE=x\n", Check::FINDING_BAD_VALUE);
    row("address", "ADDRESS=x\n", Check::FINDING_BAD_VALUE);
    row("no address", "MODE=STATIC\n", Check::FINDING_NO_ADDRESS);
    row("gateway elsewhere", staticAddress("1.1.1.1", "255.0.0.0", "2.1.1.1"),
        Check::FINDING_OTHER_SUBNET);
}

void tst_cnetworksettingscheck::kinds()
{
    QFETCH(QByteArray, content);

    const QList<Check::SFinding> findings = Check::check(content);
    QCOMPARE(findings.size(), 1);
    QTEST(int(findings.first().finding), "kind");
}

void tst_cnetworksettingscheck::invalidFiles_data()
{
    QTest::addColumn<QList<int>>("lines");

    for (const SInvalid &file : InvalidFiles) {
        QTest::newRow(file.name) << file.lines;
    }
}

void tst_cnetworksettingscheck::invalidFiles()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag()) + u".conf"_s;
    const QByteArray content = Files::read(directory(u"invalid/"_s) + name);
    QVERIFY(!content.isEmpty());
    QList<int> lines;
    for (const Check::SFinding &finding : Check::check(content)) {
        lines << finding.line;
    }
    QTEST(lines, "lines");
}

void tst_cnetworksettingscheck::everyInvalidFileIsTested()
{
    QStringList names;
    for (const SInvalid &file : InvalidFiles) {
        names << QString::fromLatin1(file.name) + u".conf"_s;
    }
    names.sort();
    QStringList existing = Files::names(directory(u"invalid"_s));
    existing.sort();
    QCOMPARE(existing, names);
}

void tst_cnetworksettingscheck::notRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("findings");

    const auto row = [](const char *name, const QByteArray &content, const QStringList &findings) {
        QTest::newRow(name) << content << findings;
    };
    const QString mode = u" MODE: "_s + NotRead;
    const QString port = u" NETCON_PORT: "_s + NotRead;
    const QString noKey = u": Unknown key."_s;

    row("quotation mark", "x=\"\nMODE=DHCP\nNETCON_PORT=1\n",
        {u"1 x"_s + noKey, u"2"_s + mode, u"3"_s + port});
    row("until it is closed", "x=\"\nMODE=DHCP\ny=\"\nNETCON_PORT=1\n",
        {u"1 x"_s + noKey, u"2"_s + mode, u"3 y"_s + noKey});
    row("quotation mark in a known value", "SYSLOGTARGET=\"1.1.1.1\nMODE=DHCP\n",
        {u"1 SYSLOGTARGET: '1.1.1.1\nMODE=DHCP\n' is not a valid IPv4 address; write one such "
         u"as 192.168.1.10."_s,
         u"2"_s + mode});
    row("backslash", "x=1\\\nMODE=DHCP\nNETCON_PORT=1\n", {u"1 x"_s + noKey, u"2"_s + mode});
    row("backslash before two characters", "x=1\\\r\nMODE=DHCP\r\n",
        {u"1 x"_s + noKey, u"2"_s + mode});
    row("two backslashes", "x=1\\\\\nMODE=DHCP\n", {u"1 x"_s + noKey});
    row("with a bad value", "x=\"\nMODE=x\n", {u"1 x"_s + noKey, u"2"_s + mode});
    row("static address in it", "MODE=STATIC\nx=\"\nADDRESS=1.1.1.1\n",
        {u"0 ADDRESS: The mode STATIC needs an address."_s, u"2 x"_s + noKey,
         u"3 ADDRESS: "_s + NotRead});

    // The line before it is the one that counts.
    row("again in a quotation", "MODE=DHCP\nx=\"\nMODE=DISABLED\n",
        {u"2 x"_s + noKey, u"3"_s + mode});
    row("again in a quotation, bad value before", "MODE=x\ny=\"\nMODE=DISABLED\n",
        {u"1 MODE: 'x' is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s, u"2 y"_s + noKey,
         u"3"_s + mode});
    row("again behind a backslash", "MODE=DHCP\nx=\\\nMODE=DISABLED\n",
        {u"2 x"_s + noKey, u"3"_s + mode});
    row("first in a quotation, then again", "x=\"\nMODE=DISABLED\ny=\"\nMODE=DHCP\n",
        {u"1 x"_s + noKey, u"2"_s + mode, u"3 y"_s + noKey});
}

void tst_cnetworksettingscheck::notRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, findings);

    // Which of two findings in one line comes first does not matter.
    QStringList found = told(content);
    found.sort();
    QCOMPARE(found, findings);
}

void tst_cnetworksettingscheck::sections_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("findings");

    const auto row = [](const char *name, const QByteArray &content, const QStringList &findings) {
        QTest::newRow(name) << content << findings;
    };
    const QString section = u" : A section begins here; its keys are ignored."_s;
    const QString mode = u" MODE: 'x' is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s;
    const QString noKey = u": Unknown key."_s;

    // One finding is enough for a whole section.
    row("nothing in it counts", "[a]\nMODE=x\nx=1\nMODE=DHCP\n", {u"1"_s + section});
    row("words in it are none of an INI file", "[a]\nx\n",
        {u"1"_s + section, u"2 : This is neither KEY=value nor a comment."_s});
    row("two", "[a]\n[b]\n", {u"1"_s + section, u"2"_s + section});
    row("same key before it", "MODE=DHCP\n[a]\nMODE=x\n", {u"2"_s + section});
    row("back in General", "[a]\nMODE=DHCP\n[General]\nMODE=x\n",
        {u"1"_s + section, u"4"_s + mode});
    row("empty name", "[]\nMODE=x\n", {u"1"_s + section});
    row("escaped name", "[%General]\nMODE=x\n", {u"1"_s + section});
    row("blanks around it", "  [a]  \nMODE=x\n", {u"1"_s + section});

    // To the parser these are the section General, too.
    row("General with blanks", "[ General ]\nMODE=x\n", {u"2"_s + mode});
    row("General with a comment", "[General] ; x\nMODE=x\n", {u"2"_s + mode});
    // And this is no section.
    row("in a quotation", "x=\"\n[a]\ny=\"\nMODE=x\n",
        {u"1 x"_s + noKey, u"3 y"_s + noKey, u"4"_s + mode});
    // Nobody closes it, but it is one.
    row("open", "[a\nMODE=x\n", {u"1"_s + section});
    row("open General", "[General\nMODE=x\n", {u"2"_s + mode});
}

void tst_cnetworksettingscheck::sections()
{
    QFETCH(QByteArray, content);
    QTEST(told(content), "findings");
}

void tst_cnetworksettingscheck::linesOfAllKinds_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("line feed") << QByteArray("a=1\n\n# x\nMODE=x\nb=1\n");
    QTest::newRow("carriage return and line feed")
        << QByteArray("a=1\r\n\r\n# x\r\nMODE=x\r\nb=1\r\n");
    QTest::newRow("carriage return") << QByteArray("a=1\r\r# x\rMODE=x\rb=1\r");
    QTest::newRow("mixed") << QByteArray("a=1\r\n\r# x\nMODE=x\rb=1");
    QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a=1\n\n# x\nMODE=x\nb=1\n");
    // Other programs see a line break in these.
    QTest::newRow("form feed, next line, separators")
        << QByteArray("a=1\n#\f\xC2\x85\xE2\x80\xA8\xE2\x80\xA9\n# x\nMODE=x\nb=1\n");
}

void tst_cnetworksettingscheck::linesOfAllKinds()
{
    QFETCH(QByteArray, content);

    QCOMPARE(told(content),
             (QStringList{u"1 a: Unknown key."_s,
                          u"4 MODE: 'x' is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s,
                          u"5 b: Unknown key."_s}));
}

void tst_cnetworksettingscheck::subnet_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QByteArray>("mask");
    QTest::addColumn<QByteArray>("gateway");
    QTest::addColumn<bool>("isSame");

    const auto row = [](const char *name, const QByteArray &address, const QByteArray &mask,
                        const QByteArray &gateway, bool isSame) {
        QTest::newRow(name) << address << mask << gateway << isSame;
    };
    row("same", "192.168.1.10", "255.255.255.0", "192.168.1.1", true);
    row("third number", "192.168.1.10", "255.255.255.0", "192.168.2.1", false);
    row("third number, wide mask", "192.168.1.10", "255.255.0.0", "192.168.2.1", true);
    row("first number", "192.168.1.10", "255.0.0.0", "193.168.1.1", false);
    row("first bit", "1.1.1.1", "128.0.0.0", "129.1.1.1", false);
    row("all but the first bit", "1.1.1.1", "128.0.0.0", "127.255.255.255", true);
    row("in the middle of a number", "10.0.0.65", "255.255.255.192", "10.0.0.126", true);
    row("in the middle of a number, other", "10.0.0.65", "255.255.255.192", "10.0.0.1", false);
    row("mask of ones: itself", "10.0.0.1", "255.255.255.255", "10.0.0.1", true);
    row("mask of ones: last bit", "10.0.0.2", "255.255.255.255", "10.0.0.3", false);
    row("mask of zeros", "10.0.0.1", "0.0.0.0", "200.1.2.3", true);
    row("padded mask of zeros", "10.0.0.1", "000.000.000.000", "200.1.2.3", true);
    row("no gateway", "10.0.0.1", "255.255.255.255", "0.0.0.0", true);
    row("no gateway, padded", "10.0.0.1", "255.255.255.0", "000.000.000.000", true);
    row("leading zeros are decimal", "10.0.0.1", "255.255.255.255", "010.000.000.001", true);
    row("leading zeros are not octal", "8.0.0.1", "255.0.0.0", "010.0.0.1", false);
    row("numbers octal cannot have", "192.168.009.1", "255.255.255.0", "192.168.9.2", true);
    row("padded mask", "192.168.1.10", "255.255.000.000", "192.168.2.1", true);
}

void tst_cnetworksettingscheck::subnet()
{
    QFETCH(QByteArray, address);
    QFETCH(QByteArray, mask);
    QFETCH(QByteArray, gateway);
    QFETCH(bool, isSame);

    QStringList findings;
    if (!isSame) {
        findings << u"4 GATEWAY: The gateway %1 is not in the subnet of the address %2, mask %3."_s
                        .arg(QString::fromLatin1(gateway), QString::fromLatin1(address),
                             QString::fromLatin1(mask));
    }
    QCOMPARE(told(staticAddress(address, mask, gateway)), findings);
}

void tst_cnetworksettingscheck::subnetOnlyWhenStatic_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("count");

    const QByteArray other = "ADDRESS=10.0.0.1\nSUBNETMASK=255.255.255.0\nGATEWAY=10.0.1.1\n";
    const auto row = [](const char *name, const QByteArray &content, int count) {
        QTest::newRow(name) << content << count;
    };
    row("static", "MODE=STATIC\n" + other, 1);
    row("static in lower case", "MODE=static\n" + other, 1);
    row("mode last", other + "MODE=STATIC\n", 1);
    row("disabled", "MODE=DISABLED\n" + other, 0);
    row("host number from the switch", "MODE=ID_SWITCH\n" + other, 0);
    row("dynamic", "MODE=DHCP\n" + other, 0);
    row("no mode", other, 0);
    // The mask that a file without one has, 255.255.0.0.
    row("no mask, other", "MODE=STATIC\nADDRESS=10.0.0.1\nGATEWAY=10.1.0.1\n", 1);
    row("no mask, same", "MODE=STATIC\nADDRESS=10.0.0.1\nGATEWAY=10.0.9.1\n", 0);
    // What is no address lies nowhere: one finding, about that.
    row("bad address", staticAddress("10.0.0", "255.255.255.0", "10.0.1.1"), 1);
    row("bad mask", staticAddress("10.0.0.1", "255.0.255.0", "10.0.1.1"), 1);
    row("bad gateway", staticAddress("10.0.0.1", "255.255.255.0", "10.0.1.256"), 1);
    row("no address, gateway", staticAddress("0.0.0.0", "255.255.255.0", "10.0.1.1"), 1);
}

void tst_cnetworksettingscheck::subnetOnlyWhenStatic()
{
    QFETCH(QByteArray, content);
    QTEST(told(content).size(), "count");
}

void tst_cnetworksettingscheck::problem_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("message");

    const auto row = [](const QString &key, const QString &value, const QString &message) {
        QTest::newRow(qPrintable(key + u"="_s + value)) << key << value << message;
    };
    const auto accept = [row](const QString &key, const QStringList &values) {
        for (const QString &value : values) {
            row(key, value, QString());
        }
    };
    const auto reject = [row](const QString &key, const QString &message,
                              const QStringList &values) {
        for (const QString &value : values) {
            row(key, value, u"'"_s + value + u"'"_s + message);
        }
    };

    accept(u"MODE"_s,
           {u"DISABLED"_s, u"STATIC"_s, u"ID_SWITCH"_s, u"DHCP"_s, u"static"_s, u"Id_Switch"_s});
    reject(u"MODE"_s, u" is not one of DISABLED, STATIC, ID_SWITCH, DHCP."_s,
           {u"UNKNOWN"_s, u""_s, u"2"_s, u"STATIC "_s, u"NTP_DAEMON"_s, u"%1 %2"_s});

    accept(u"NTP_MODE"_s,
           {u"NTP_DISABLE"_s, u"NTP_DAEMON"_s, u"NTP_SET_ON_STARTUP"_s, u"ntp_disable"_s});
    reject(u"NTP_MODE"_s, u" is not one of NTP_DISABLE, NTP_DAEMON, NTP_SET_ON_STARTUP."_s,
           {u"UNKNOWN"_s, u""_s, u"DISABLED"_s, u"NTP_DISABLED"_s});

    const QString noAddress = u" is not a valid IPv4 address; write one such as 192.168.1.10."_s;
    for (const QString &key :
         {u"ADDRESS"_s, u"GATEWAY"_s, u"SYSLOGTARGET"_s, u"NETCON_TARGET"_s, u"NTP_TIMESERVER"_s}) {
        accept(key,
               {u"192.168.1.10"_s, u"000.000.000.000"_s, u"0.0.0.0"_s, u"255.255.255.255"_s,
                u"010.001.1.09"_s});
        reject(key, noAddress,
               {u"256.1.1.1"_s, u"1.1.1"_s, u"1.1.1.1.1"_s, u"1.1.1.1 "_s, u" 1.1.1.1"_s,
                u"1.1.1.1\n"_s, u"0001.1.1.1"_s, u"x"_s, u"::1"_s, u"1.1.1.1,2.2.2.2"_s});
    }
    for (const QString &key : {u"ADDRESS"_s, u"GATEWAY"_s, u"SYSLOGTARGET"_s, u"NETCON_TARGET"_s}) {
        reject(key, noAddress, {u""_s});
    }
    accept(u"NTP_TIMESERVER"_s, {u""_s});
    QTest::newRow("NTP_TIMESERVER null") << u"NTP_TIMESERVER"_s << QString() << QString();

    accept(u"SUBNETMASK"_s,
           {u"255.255.255.0"_s, u"255.255.000.000"_s, u"0.0.0.0"_s, u"255.255.255.255"_s,
            u"255.254.0.0"_s, u"128.0.0.0"_s});
    reject(u"SUBNETMASK"_s, u" is not a valid subnet mask; write one such as 255.255.255.0."_s,
           {u""_s, u"255.0.255.0"_s, u"0.0.0.255"_s, u"255.255.253.0"_s, u"192.168.1.1"_s,
            u"255.255.255"_s, u"24"_s});

    accept(u"NETCON_PORT"_s, {u"1"_s, u"6666"_s, u"65535"_s, u"010"_s});
    reject(u"NETCON_PORT"_s, u" is not a valid port number; write a number from 1 to 65535."_s,
           {u"0"_s, u"65536"_s, u"-1"_s, u"4294967297"_s, u""_s, u"x"_s, u"0x10"_s, u"6666.0"_s});

    accept(u"KERNEL_LOGLEVEL"_s, {u"0"_s, u"4"_s, u"7"_s, u"007"_s});
    reject(u"KERNEL_LOGLEVEL"_s, u" is not a valid kernel log level; write a number from 0 to 7."_s,
           {u"8"_s, u"-1"_s, u""_s, u"x"_s, u"4.0"_s, u"4294967296"_s});

    for (const QString &key : {u"WLAN"_s, u"mode"_s, u""_s, u"MODE "_s}) {
        row(key, u"DHCP"_s, u"Unknown key."_s);
    }
}

void tst_cnetworksettingscheck::problem()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QTEST(Check::problem(key, value), "message");
}

void tst_cnetworksettingscheck::translated_data()
{
    messages_data();
}

void tst_cnetworksettingscheck::translated()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, findings);

    for (QString &finding : findings) {
        finding.replace(finding.indexOf(u": "_s), 2, u": <"_s);
        finding += u">"_s;
    }
    const MarkingTranslator translator("CNetworkSettingsCheck");
    QCOMPARE(told(content), findings);
    QCOMPARE(Check::problem(u"x"_s, u"1"_s), u"<Unknown key.>"_s);
    QCOMPARE(Check::problem(u"NETCON_PORT"_s, u"x"_s),
             u"<'x' is not a valid port number; write a number from 1 to 65535.>"_s);
    QCOMPARE(Check::problem(u"NETCON_PORT"_s, u"1"_s), QString());
}

void tst_cnetworksettingscheck::garbage_data()
{
    Garbage::addRows();
}

void tst_cnetworksettingscheck::garbage()
{
    QFETCH(QByteArray, content);

    int previous = 0;
    int bad = 0;
    const int lines = content.count('\n') + content.count('\r') + 1;
    for (const Check::SFinding &finding : Check::check(content)) {
        bad += finding.line < previous || finding.line > lines || finding.message.isEmpty() ? 1 : 0;
        previous = finding.line;
    }
    QCOMPARE(bad, 0);
}

REGISTER_GUILESS_TEST(tst_cnetworksettingscheck)
#include "tst_cnetworksettingscheck.moc"
