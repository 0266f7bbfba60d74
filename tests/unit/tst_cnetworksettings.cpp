#include "settings/CNetworkSettings.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <type_traits>

Q_DECLARE_METATYPE(CNetworkSettings)

using Change = void (*)(CNetworkSettings &);
using TextGetter = QString (CNetworkSettings::*)() const;
using TextSetter = void (CNetworkSettings::*)(const QString &);
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(TextGetter)
Q_DECLARE_METATYPE(TextSetter)

namespace {

using S = CNetworkSettings;

/** The only way to texts that are empty: the setters put their fall-backs in place of these. */
S withoutTexts()
{
    return StreamBytes::fromBytes<S>(
        QByteArray::fromHex("00000000 00000000 00000000 00000000 00000000 00000000"
                            "00000000 00000000 00000000 00000000"));
}

struct SField {
    const char *name;
    Change change;
    /** Whether a value in which it alone is set is null. */
    bool leavesNull;
};

const SField Fields[] = {
    {"mode", [](S &s) { s.setMode(S::NETWORK_MODE_DHCP); }, false},
    {"address", [](S &s) { s.setAddress(u"1"_s); }, false},
    {"subnet mask", [](S &s) { s.setSubnetMask(u"2"_s); }, false},
    {"gateway", [](S &s) { s.setGateway(u"3"_s); }, true},
    {"system log", [](S &s) { s.setSyslogAddress(u"4"_s); }, false},
    {"NTP server", [](S &s) { s.setNtpAddress(u"5"_s); }, false},
    {"NTP mode", [](S &s) { s.setNtpMode(S::NTP_MODE_DAEMON); }, false},
    {"console address", [](S &s) { s.setNetConsoleAddress(u"6"_s); }, true},
    {"console port", [](S &s) { s.setNetConsolePort(7); }, true},
    {"kernel log level", [](S &s) { s.setKernelLogLevel(u"0"_s); }, true},
};

S changed()
{
    S settings;
    for (const SField &field : Fields) {
        field.change(settings);
    }
    return settings;
}

} // namespace

class tst_cnetworksettings : public QObject
{
    Q_OBJECT

private slots:
    void kind();
    void defaults();
    void enumerators();
    void modeText_data();
    void modeText();
    void ntpModeText_data();
    void ntpModeText();
    void setModeStr_data();
    void setModeStr();
    void setNtpModeStr_data();
    void setNtpModeStr();
    void addresses_data();
    void addresses();
    void consolePort();
    void kernelLogLevel_data();
    void kernelLogLevel();
    void null_data();
    void null();
    void defaultIsNotNull();
    void clear();
    void changes_data();
    void changes();
    void textsAreComparedExactly();
    void streamForm_data();
    void streamForm();
    void streamThatEndsEarly();
};

void tst_cnetworksettings::kind()
{
    QVERIFY(std::is_polymorphic<S>::value);
    QVERIFY(std::has_virtual_destructor<S>::value);
}

void tst_cnetworksettings::defaults()
{
    const S settings;
    QCOMPARE(int(settings.mode()), 0);
    QCOMPARE(settings.modeStr(), u"UNKNOWN"_s);
    QCOMPARE(settings.address(), u"000.000.000.000"_s);
    QCOMPARE(settings.subnetMask(), u"255.255.000.000"_s);
    QCOMPARE(settings.gateway(), u"000.000.000.000"_s);
    QCOMPARE(settings.syslogAddress(), u"000.000.000.000"_s);
    QVERIFY(settings.ntpAddress().isNull());
    QCOMPARE(int(settings.ntpMode()), 0);
    QCOMPARE(settings.ntpModeStr(), u"UNKNOWN"_s);
    QCOMPARE(settings.netConsoleAddress(), u"000.000.000.000"_s);
    QCOMPARE(settings.netConsolePort(), 6666u);
    QCOMPARE(settings.kernelLogLevel(), u"4"_s);
}

void tst_cnetworksettings::enumerators()
{
    QCOMPARE(int(S::NETWORK_MODE_UNKNOWN), 0);
    QCOMPARE(int(S::NETWORK_MODE_DISABLED), 1);
    QCOMPARE(int(S::NETWORK_MODE_STATIC), 2);
    QCOMPARE(int(S::NETWORK_MODE_ID_SWITCH), 3);
    QCOMPARE(int(S::NETWORK_MODE_DHCP), 4);
    QCOMPARE(int(S::NTP_MODE_UNKNOWN), 0);
    QCOMPARE(int(S::NTP_MODE_DISABLE), 1);
    QCOMPARE(int(S::NTP_MODE_DAEMON), 2);
    QCOMPARE(int(S::NTP_MODE_SET_ON_STARTUP), 3);
}

void tst_cnetworksettings::modeText_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");

    const auto row = [](int mode, const QString &text) {
        QTest::addRow("%d", mode) << mode << text;
    };
    row(0, u"UNKNOWN"_s);
    row(1, u"DISABLED"_s);
    row(2, u"STATIC"_s);
    row(3, u"ID_SWITCH"_s);
    row(4, u"DHCP"_s);
    row(5, u"UNKNOWN"_s);
    row(-1, u"UNKNOWN"_s);
    row(258, u"UNKNOWN"_s);
    row(2147483647, u"UNKNOWN"_s);
}

void tst_cnetworksettings::modeText()
{
    QFETCH(int, mode);

    S settings;
    settings.setMode(static_cast<S::ENetworkMode>(mode));
    QCOMPARE(int(settings.mode()), mode);
    QTEST(settings.modeStr(), "text");
    QCOMPARE(settings.ntpModeStr(), u"UNKNOWN"_s);
}

void tst_cnetworksettings::ntpModeText_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");

    const auto row = [](int mode, const QString &text) {
        QTest::addRow("%d", mode) << mode << text;
    };
    row(0, u"UNKNOWN"_s);
    row(1, u"NTP_DISABLE"_s);
    row(2, u"NTP_DAEMON"_s);
    row(3, u"NTP_SET_ON_STARTUP"_s);
    row(4, u"UNKNOWN"_s);
    row(-1, u"UNKNOWN"_s);
    row(257, u"UNKNOWN"_s);
}

void tst_cnetworksettings::ntpModeText()
{
    QFETCH(int, mode);

    S settings;
    settings.setNtpMode(static_cast<S::ENtpMode>(mode));
    QCOMPARE(int(settings.ntpMode()), mode);
    QTEST(settings.ntpModeStr(), "text");
    QCOMPARE(settings.modeStr(), u"UNKNOWN"_s);
}

void tst_cnetworksettings::setModeStr_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mode");

    const auto row = [](const char *name, const QString &text, int mode) {
        QTest::newRow(name) << text << mode;
    };
    row("DISABLED", u"DISABLED"_s, 1);
    row("STATIC", u"STATIC"_s, 2);
    row("ID_SWITCH", u"ID_SWITCH"_s, 3);
    row("DHCP", u"DHCP"_s, 4);
    // The lower-case forms have an "i", which is another letter in a Turkish locale.
    row("disabled, lower case", u"disabled"_s, 1);
    row("static, lower case", u"static"_s, 2);
    row("id_switch, lower case", u"id_switch"_s, 3);
    row("dhcp, lower case", u"dhcp"_s, 4);
    row("mixed case", u"Id_Switch"_s, 3);
    row("unknown", u"UNKNOWN"_s, 0);
    row("empty", u""_s, 0);
    row("null", QString(), 0);
    row("number", u"2"_s, 0);
    row("blank behind", u"DHCP "_s, 0);
    row("blank in front", u" DHCP"_s, 0);
    row("beginning", u"DHC"_s, 0);
    row("more behind", u"DHCP6"_s, 0);
    row("NTP mode", u"NTP_DAEMON"_s, 0);
    row("Turkish capital I with dot", u"D\u0130SABLED"_s, 0);
    row("Turkish i without dot", u"d\u0131sabled"_s, 0);
}

void tst_cnetworksettings::setModeStr()
{
    QFETCH(QString, text);
    QFETCH(int, mode);

    S settings;
    // Whatever the text, nothing of an old mode remains.
    settings.setMode(S::NETWORK_MODE_DISABLED);
    settings.setModeStr(text);
    QCOMPARE(int(settings.mode()), mode);
    settings.setMode(S::NETWORK_MODE_DHCP);
    settings.setModeStr(text);
    QCOMPARE(int(settings.mode()), mode);
    QCOMPARE(int(settings.ntpMode()), 0);
}

void tst_cnetworksettings::setNtpModeStr_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mode");

    const auto row = [](const char *name, const QString &text, int mode) {
        QTest::newRow(name) << text << mode;
    };
    row("NTP_DISABLE", u"NTP_DISABLE"_s, 1);
    row("NTP_DAEMON", u"NTP_DAEMON"_s, 2);
    row("NTP_SET_ON_STARTUP", u"NTP_SET_ON_STARTUP"_s, 3);
    row("ntp_disable, lower case", u"ntp_disable"_s, 1);
    row("ntp_daemon, lower case", u"ntp_daemon"_s, 2);
    row("mixed case", u"Ntp_Set_on_Startup"_s, 3);
    row("unknown", u"UNKNOWN"_s, 0);
    row("empty", u""_s, 0);
    row("null", QString(), 0);
    row("as of the network mode", u"DISABLED"_s, 0);
    row("with the letter of the network mode", u"NTP_DISABLED"_s, 0);
    row("without prefix", u"DAEMON"_s, 0);
    row("number", u"1"_s, 0);
    row("blank behind", u"NTP_DAEMON "_s, 0);
    row("Turkish capital I with dot", u"NTP_D\u0130SABLE"_s, 0);
}

void tst_cnetworksettings::setNtpModeStr()
{
    QFETCH(QString, text);
    QFETCH(int, mode);

    S settings;
    settings.setNtpMode(S::NTP_MODE_DISABLE);
    settings.setNtpModeStr(text);
    QCOMPARE(int(settings.ntpMode()), mode);
    settings.setNtpMode(S::NTP_MODE_SET_ON_STARTUP);
    settings.setNtpModeStr(text);
    QCOMPARE(int(settings.ntpMode()), mode);
    QCOMPARE(int(settings.mode()), 0);
}

void tst_cnetworksettings::addresses_data()
{
    QTest::addColumn<TextSetter>("set");
    QTest::addColumn<TextGetter>("get");
    QTest::addColumn<QString>("emptyBecomes");

    const QString address = u"000.000.000.000"_s;
    const QString mask = u"255.255.000.000"_s;
    QTest::newRow("address") << &S::setAddress << &S::address << address;
    QTest::newRow("gateway") << &S::setGateway << &S::gateway << address;
    QTest::newRow("subnet mask") << &S::setSubnetMask << &S::subnetMask << mask;
    // Not the text that they have by default.
    QTest::newRow("system log") << &S::setSyslogAddress << &S::syslogAddress << mask;
    QTest::newRow("console") << &S::setNetConsoleAddress << &S::netConsoleAddress << mask;
    QTest::newRow("NTP server") << &S::setNtpAddress << &S::ntpAddress << u""_s;
}

void tst_cnetworksettings::addresses()
{
    QFETCH(TextSetter, set);
    QFETCH(TextGetter, get);
    QFETCH(QString, emptyBecomes);

    S settings;
    for (const QString &text : {u"192.168.1.10"_s, u"010.0.0.1"_s, u"no address"_s, u" "_s,
                                u"0.0.0.0"_s, u"999.1"_s, u"\u0661"_s}) {
        (settings.*set)(text);
        QCOMPARE((settings.*get)(), text);
        S other;
        (other.*set)(text);
        QVERIFY(settings == other);
    }
    (settings.*set)(u""_s);
    QCOMPARE((settings.*get)(), emptyBecomes);
    (settings.*set)(u"other"_s);
    (settings.*set)(QString());
    QCOMPARE((settings.*get)(), emptyBecomes);
}

void tst_cnetworksettings::consolePort()
{
    S settings;
    for (const unsigned int port : {0u, 1u, 65535u, 65536u, 2147483648u, 4294967295u}) {
        settings.setNetConsolePort(port);
        QCOMPARE(settings.netConsolePort(), port);
    }
}

void tst_cnetworksettings::kernelLogLevel_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<bool>("accepted");

    const auto row = [](const char *name, const QString &level, bool accepted) {
        QTest::newRow(name) << level << accepted;
    };
    for (const char *level : {"0", "1", "2", "3", "4", "5", "6", "7"}) {
        row(level, QString::fromLatin1(level), true);
    }
    // What is accepted is stored as it is.
    row("leading zeros", u"007"_s, true);
    row("octal look", u"010"_s, false);
    row("blank in front", u" 5"_s, true);
    row("blank behind", u"5 "_s, true);
    row("plus sign", u"+5"_s, true);
    row("8", u"8"_s, false);
    row("-1", u"-1"_s, false);
    row("-7", u"-7"_s, false);
    row("2^32", u"4294967296"_s, false);
    row("2^32 + 1", u"4294967297"_s, false);
    row("2^31", u"2147483648"_s, false);
    row("lowest number", u"-2147483648"_s, false);
    row("hexadecimal", u"0x4"_s, false);
    row("letter", u"a"_s, false);
    row("fraction", u"4.0"_s, false);
    row("exponent", u"1e0"_s, false);
    row("more behind", u"4x"_s, false);
    row("Arabic digit", u"\u0664"_s, false);
    row("empty", u""_s, false);
    row("null", QString(), false);
}

void tst_cnetworksettings::kernelLogLevel()
{
    QFETCH(QString, level);
    QFETCH(bool, accepted);

    for (const QString &previous : {u"3"_s, u"6"_s}) {
        S settings;
        settings.setKernelLogLevel(previous);
        settings.setKernelLogLevel(level);
        QCOMPARE(settings.kernelLogLevel(), accepted ? level : previous);
    }
}

void tst_cnetworksettings::null_data()
{
    QTest::addColumn<CNetworkSettings>("settings");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("nothing") << withoutTexts() << true;
    for (const SField &field : Fields) {
        S settings = withoutTexts();
        field.change(settings);
        QTest::newRow(field.name) << settings << field.leavesNull;
    }
    S settings = withoutTexts();
    for (const SField &field : Fields) {
        if (field.leavesNull) {
            field.change(settings);
        }
    }
    QTest::newRow("all that do not take part") << settings << true;
}

void tst_cnetworksettings::null()
{
    QFETCH(CNetworkSettings, settings);
    QTEST(settings.isNull(), "isNull");
}

void tst_cnetworksettings::defaultIsNotNull()
{
    QVERIFY(!S().isNull());
}

void tst_cnetworksettings::clear()
{
    S settings = changed();
    const S copy = settings;
    settings.clear();
    QVERIFY(settings == S());
    QCOMPARE(settings.subnetMask(), u"255.255.000.000"_s);
    QVERIFY(settings.ntpAddress().isNull());
    QVERIFY(copy == changed());
}

void tst_cnetworksettings::changes_data()
{
    QTest::addColumn<Change>("change");

    for (const SField &field : Fields) {
        QTest::newRow(field.name) << field.change;
    }
    QTest::newRow("mode by its text") << Change([](S &s) { s.setModeStr(u"DHCP"_s); });
    QTest::newRow("NTP mode by its text") << Change([](S &s) { s.setNtpModeStr(u"NTP_DAEMON"_s); });
}

void tst_cnetworksettings::changes()
{
    QFETCH(Change, change);

    const S original;
    S copy = original;
    QVERIFY(copy == original);
    QVERIFY(!(copy != original));
    change(copy);
    // Each field counts, and a copy that is changed is on its own.
    QVERIFY(!(copy == original));
    QVERIFY(copy != original);
    QVERIFY(original == S());

    S assigned;
    assigned = copy;
    QVERIFY(assigned == copy);
    change(assigned);
    QVERIFY(assigned == copy);
    S built;
    change(built);
    QVERIFY(built == copy);
}

void tst_cnetworksettings::textsAreComparedExactly()
{
    S left;
    S right;
    left.setAddress(u"010.0.0.1"_s);
    right.setAddress(u"10.0.0.1"_s);
    QVERIFY(left != right);
    right.setAddress(left.address());
    QVERIFY(left == right);
    left.setNtpAddress(u"ntp"_s);
    right.setNtpAddress(u"NTP"_s);
    QVERIFY(left != right);
    right.setNtpAddress(left.ntpAddress());
    left.setKernelLogLevel(u"07"_s);
    right.setKernelLogLevel(u"7"_s);
    QVERIFY(left != right);
}

void tst_cnetworksettings::streamForm_data()
{
    QTest::addColumn<CNetworkSettings>("settings");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray noAddress = "0000001e 003000300030 002e 003000300030 002e 003000300030 002e"
                                 "003000300030";
    const QByteArray mask = "0000001e 003200350035 002e 003200350035 002e 003000300030 002e"
                            "003000300030";
    QTest::newRow("default: the NTP server is null")
        << S()
        << QByteArray::fromHex("00000000" + noAddress + mask + noAddress + noAddress + "ffffffff"
                               + "00000000" + noAddress + "00001a0a" + "00000002 0034");
    QTest::newRow("all fields") << changed()
                                << QByteArray::fromHex("00000004"
                                                       "00000002 0031"
                                                       "00000002 0032"
                                                       "00000002 0033"
                                                       "00000002 0034"
                                                       "00000002 0035"
                                                       "00000002"
                                                       "00000002 0036"
                                                       "00000007"
                                                       "00000002 0030");
    QTest::newRow("without texts")
        << withoutTexts()
        << QByteArray::fromHex("00000000 00000000 00000000 00000000 00000000 00000000"
                               "00000000 00000000 00000000 00000000");
    S extreme = withoutTexts();
    extreme.setMode(static_cast<S::ENetworkMode>(-2));
    extreme.setNtpMode(static_cast<S::ENtpMode>(1000000));
    extreme.setNetConsolePort(4294967295u);
    QTest::newRow("numbers that are no mode")
        << extreme
        << QByteArray::fromHex("fffffffe 00000000 00000000 00000000 00000000 00000000"
                               "000f4240 00000000 ffffffff 00000000");
}

void tst_cnetworksettings::streamForm()
{
    QFETCH(CNetworkSettings, settings);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(settings).toHex(' '), bytes.toHex(' '));

    for (S read : {S(), changed()}) {
        const QByteArray before = StreamBytes::toBytes(read);
        const S copy = read;
        QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
        QVERIFY(read == settings);
        QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
        QCOMPARE(StreamBytes::toBytes(copy).toHex(' '), before.toHex(' '));
    }
}

void tst_cnetworksettings::streamThatEndsEarly()
{
    const QByteArray whole = StreamBytes::toBytes(changed());
    for (int size = 0; size < whole.size(); ++size) {
        S settings;
        QCOMPARE(StreamBytes::read(whole.left(size), settings), qint64(-1));
    }
}

REGISTER_APPLESS_TEST(tst_cnetworksettings)
#include "tst_cnetworksettings.moc"
