#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/Garbage.h"
#include "support/Literals.h"
#include "support/NetworkTexts.h"
#include "support/OrdinaryUser.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <thread>
#include <type_traits>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

using namespace NetworkTexts;

using Change = void (*)(CNetworkSettings &);
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(CNetworkSettings)

namespace {

QByteArray textOf(const S &settings)
{
    CNetworkSettingsFile file;
    file.setNetworkSettings(settings);
    QByteArray buffer;
    file.saveToBuffer(buffer);
    return buffer;
}

} // namespace

class tst_cnetworksettingsfile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void kind();
    void defaults();
    void holdsAValue();
    void keys();
    void values_data();
    void values();
    void unknownKeys_data();
    void unknownKeys();

    void referenceIsRead_data();
    void referenceIsRead();
    void reads_data();
    void reads();
    void readsText_data();
    void readsText();
    void textsBuildNoObjects_data();
    void textsBuildNoObjects();
    void hugeObjectsAreTexts_data();
    void hugeObjectsAreTexts();
    void replacesWhatWasHeld();
    void levelHeldBeforeStays_data();
    void levelHeldBeforeStays();
    void garbage_data();
    void garbage();
    void readsWhatTheFileIsNow();
    void readsInManyThreads();
    void readsWithoutWriting();

private:
    QString path(const QString &name = u"network.conf"_s) const
    {
        return m_directory->filePath(name);
    }

    /** What a file with this content gives; a default value when it cannot be read. */
    S read(const QByteArray &content) const
    {
        CNetworkSettingsFile file;
        return Files::write(path(), content) && file.open(path()) == 0 ? file.networkSettings()
                                                                       : S();
    }

    QString readNtpAddress(const QByteArray &value) const
    {
        return read("NTP_TIMESERVER=" + value + '\n').ntpAddress();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cnetworksettingsfile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cnetworksettingsfile::kind()
{
    QVERIFY(std::is_polymorphic<CNetworkSettingsFile>::value);
    QVERIFY(std::has_virtual_destructor<CNetworkSettingsFile>::value);
}

void tst_cnetworksettingsfile::defaults()
{
    const CNetworkSettingsFile file;
    QVERIFY(file.networkSettings() == S());
    QCOMPARE(file.defaultFileName(), u"network.conf"_s);
}

void tst_cnetworksettingsfile::holdsAValue()
{
    CNetworkSettingsFile file;
    S settings = full();
    file.setNetworkSettings(settings);
    settings.clear();
    QVERIFY(file.networkSettings() == full());
    S held = file.networkSettings();
    held.clear();
    QVERIFY(file.networkSettings() == full());
}

void tst_cnetworksettingsfile::keys()
{
    QCOMPARE(CNetworkSettingsFile::keys(),
             (QStringList{u"MODE"_s, u"ADDRESS"_s, u"SUBNETMASK"_s, u"GATEWAY"_s, u"SYSLOGTARGET"_s,
                          u"NTP_TIMESERVER"_s, u"NTP_MODE"_s, u"NETCON_TARGET"_s, u"NETCON_PORT"_s,
                          u"KERNEL_LOGLEVEL"_s}));
}

void tst_cnetworksettingsfile::values_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QString>("value");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("afterEmpty");

    const auto row = [](const char *key, const QString &defaultValue, const QString &value,
                        Change change, const QString &afterEmpty) {
        QTest::newRow(key) << QString::fromLatin1(key) << defaultValue << value << change
                           << afterEmpty;
    };
    const QString none = u"000.000.000.000"_s;
    const QString mask = u"255.255.000.000"_s;
    row(
        "MODE", u"UNKNOWN"_s, u"ID_SWITCH"_s, [](S &s) { s.setMode(S::NETWORK_MODE_ID_SWITCH); },
        u"UNKNOWN"_s);
    row(
        "ADDRESS", none, u"1.1.1.1"_s, [](S &s) { s.setAddress(u"1.1.1.1"_s); }, none);
    row(
        "SUBNETMASK", mask, u"255.0.0.0"_s, [](S &s) { s.setSubnetMask(u"255.0.0.0"_s); }, mask);
    row(
        "GATEWAY", none, u"1.1.1.3"_s, [](S &s) { s.setGateway(u"1.1.1.3"_s); }, none);
    row(
        "SYSLOGTARGET", none, u"1.1.1.4"_s, [](S &s) { s.setSyslogAddress(u"1.1.1.4"_s); }, mask);
    row(
        "NTP_TIMESERVER", QString(), u"1.1.1.5"_s, [](S &s) { s.setNtpAddress(u"1.1.1.5"_s); },
        QString());
    row(
        "NTP_MODE", u"UNKNOWN"_s, u"NTP_DISABLE"_s, [](S &s) { s.setNtpMode(S::NTP_MODE_DISABLE); },
        u"UNKNOWN"_s);
    row(
        "NETCON_TARGET", none, u"1.1.1.6"_s, [](S &s) { s.setNetConsoleAddress(u"1.1.1.6"_s); },
        mask);
    row(
        "NETCON_PORT", u"6666"_s, u"4294967295"_s, [](S &s) { s.setNetConsolePort(4294967295u); },
        u"0"_s);
    row(
        "KERNEL_LOGLEVEL", u"4"_s, u"2"_s, [](S &s) { s.setKernelLogLevel(u"2"_s); }, u"2"_s);
}

void tst_cnetworksettingsfile::values()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(Change, change);

    CNetworkSettingsFile file;
    QTEST(file.value(key), "defaultValue");
    QVERIFY(file.setValue(key, value));
    QCOMPARE(file.value(key), value);
    S expected;
    change(expected);
    QVERIFY(file.networkSettings() == expected);

    // From a file the same value has the same effect, and no other.
    expected = missing();
    change(expected);
    QVERIFY(read(key.toLatin1() + '=' + value.toLatin1() + '\n') == expected);

    QVERIFY(file.setValue(key, u""_s));
    QTEST(file.value(key), "afterEmpty");
}

void tst_cnetworksettingsfile::unknownKeys_data()
{
    QTest::addColumn<QString>("key");

    QTest::newRow("other") << u"WLAN"_s;
    QTest::newRow("lower case") << u"mode"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("blank behind") << u"MODE "_s;
    QTest::newRow("beginning") << u"MOD"_s;
    QTest::newRow("in a section") << u"General/MODE"_s;
}

void tst_cnetworksettingsfile::unknownKeys()
{
    QFETCH(QString, key);

    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QCOMPARE(file.value(key), QString());
    QVERIFY(!file.setValue(key, u"DHCP"_s));
    QVERIFY(file.networkSettings() == full());
}

void tst_cnetworksettingsfile::referenceIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<CNetworkSettings>("settings");

    S written;
    written.setNtpAddress(u""_s);
    QTest::newRow("default") << u"default.conf"_s << written;
    QTest::newRow("full") << u"full.conf"_s << full();
}

void tst_cnetworksettingsfile::referenceIsRead()
{
    QFETCH(QString, name);
    QFETCH(CNetworkSettings, settings);

    QVERIFY(read(reference(name)) == settings);
}

void tst_cnetworksettingsfile::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, const QByteArray &content, Change change) {
        QTest::newRow(name) << content << change;
    };
    const Change nothing = [](S &) {};
    const Change dhcp = [](S &s) { s.setMode(S::NETWORK_MODE_DHCP); };
    const Change dhcpWithPort = [](S &s) {
        s.setMode(S::NETWORK_MODE_DHCP);
        s.setNetConsolePort(1);
    };

    row("empty file", "", nothing);
    row("blank lines", "\n\n \n\t\n", nothing);
    row("only a byte-order mark", "\xEF\xBB\xBF", nothing);
    row("unknown key", "WLAN=1\nMODES=DHCP\n", nothing);
    row("key in lower case", "mode=DHCP\nMode=DHCP\n", nothing);

    row("mode in lower case", "MODE=dhcp\n", dhcp);
    row("unknown mode", "MODE=AUTO\n", [](S &s) { s.setMode(S::NETWORK_MODE_UNKNOWN); });
    row("empty mode", "MODE=\n", [](S &s) { s.setMode(S::NETWORK_MODE_UNKNOWN); });
    row("unknown NTP mode", "NTP_MODE=DISABLED\n", nothing);
    row("NTP mode in lower case", "NTP_MODE=ntp_disable\n",
        [](S &s) { s.setNtpMode(S::NTP_MODE_DISABLE); });
    row("empty address", "ADDRESS=\n", [](S &s) { s.setAddress(u"000.000.000.000"_s); });
    row("empty gateway", "GATEWAY=\n", [](S &s) { s.setGateway(u"000.000.000.000"_s); });
    row("empty mask", "SUBNETMASK=\n", [](S &s) { s.setSubnetMask(u"255.255.000.000"_s); });
    row("empty system log", "SYSLOGTARGET=\n",
        [](S &s) { s.setSyslogAddress(u"255.255.000.000"_s); });
    row("empty console", "NETCON_TARGET=\n",
        [](S &s) { s.setNetConsoleAddress(u"255.255.000.000"_s); });
    row("empty NTP server", "NTP_TIMESERVER=\n", [](S &s) { s.setNtpAddress(u""_s); });
    row("address that is none", "ADDRESS=press.local\n",
        [](S &s) { s.setAddress(u"press.local"_s); });
    row("port that is no number", "NETCON_PORT=x\n", [](S &s) { s.setNetConsolePort(0); });
    row("empty port", "NETCON_PORT=\n", [](S &s) { s.setNetConsolePort(0); });
    row("negative port", "NETCON_PORT=-1\n", [](S &s) { s.setNetConsolePort(0); });
    row("port with a leading zero", "NETCON_PORT=010\n", [](S &s) { s.setNetConsolePort(10); });
    row("hexadecimal port", "NETCON_PORT=0x10\n", [](S &s) { s.setNetConsolePort(0); });
    row("highest port", "NETCON_PORT=4294967295\n", [](S &s) { s.setNetConsolePort(4294967295u); });
    row("port too high by one", "NETCON_PORT=4294967296\n", [](S &s) { s.setNetConsolePort(0); });
    row("level 7", "KERNEL_LOGLEVEL=7\n", [](S &s) { s.setKernelLogLevel(u"7"_s); });
    row("level 0", "KERNEL_LOGLEVEL=0\n", [](S &s) { s.setKernelLogLevel(u"0"_s); });
    row("level 007", "KERNEL_LOGLEVEL=007\n", [](S &s) { s.setKernelLogLevel(u"007"_s); });
    row("level 8", "KERNEL_LOGLEVEL=8\n", nothing);
    row("level -1", "KERNEL_LOGLEVEL=-1\n", nothing);
    row("empty level", "KERNEL_LOGLEVEL=\n", nothing);

    row("no line feed at the end", "NETCON_PORT=1\nMODE=DHCP", dhcpWithPort);
    row("carriage return and line feed", "NETCON_PORT=1\r\nMODE=DHCP\r\n", dhcpWithPort);
    row("carriage return alone", "NETCON_PORT=1\rMODE=DHCP\r", dhcpWithPort);
    row("carriage return at the end", "NETCON_PORT=1\nMODE=DHCP\r", dhcpWithPort);
    row("byte-order mark", "\xEF\xBB\xBFMODE=DHCP\nNETCON_PORT=1\n", dhcpWithPort);
    row("blanks around key and value", " MODE = DHCP \n\tNETCON_PORT\t=\t1\t\n", dhcpWithPort);

    row("comments", "#NETCON_PORT=7\n;NETCON_PORT=8\nMODE=DHCP\nNETCON_PORT=1\n# NETCON_PORT=9\n",
        dhcpWithPort);
    row("comments behind blanks", "  #NETCON_PORT=7\n\t;NETCON_PORT=8\nMODE=DHCP\n", dhcp);
    row("quotation mark in a comment", "; \"\nMODE=DHCP\n", dhcp);
    row("quotation mark behind a hash", "# 19\" rack\nMODE=DHCP\n", dhcp);
    row("quotation mark behind blanks and a hash", "\t # \"\nMODE=DHCP\n", dhcp);
    row("backslash at the end of a comment", "; \\\nMODE=DHCP\n", dhcp);
    row("backslash behind a hash", "# \\\r\nMODE=DHCP\r\n", dhcp);
    row("assignment behind a hash", "MODE=DHCP\n#MODE=STATIC\n", dhcp);
    row("open section before a key", "[General\nMODE=DHCP\n", dhcp);
    row("open section of another name", "MODE=DHCP\n[x\nMODE=STATIC\n", dhcp);
    row("comment behind a value", "MODE=DHCP ; as ever\n", dhcp);
    row("hash behind a value", "MODE=DHCP # as ever\n",
        [](S &s) { s.setMode(S::NETWORK_MODE_UNKNOWN); });
    row("quoted value", "MODE=\"DHCP\"\n", dhcp);

    row("repeated key", "MODE=STATIC\nNETCON_PORT=2\nMODE=DHCP\n", [](S &s) {
        s.setMode(S::NETWORK_MODE_DHCP);
        s.setNetConsolePort(2);
    });
    row("repeated key, at last empty", "MODE=STATIC\nMODE=\n",
        [](S &s) { s.setMode(S::NETWORK_MODE_UNKNOWN); });
    row("repeated level, at last out of range", "KERNEL_LOGLEVEL=7\nKERNEL_LOGLEVEL=8\n", nothing);

    row("section General", "[General]\nMODE=DHCP\n", dhcp);
    row("section general", "[general]\nMODE=DHCP\n", dhcp);
    row("other section", "[Ethernet]\nMODE=DHCP\n", nothing);
    row("section with the name of a key", "[MODE]\nMODE=DHCP\n", nothing);
    row("keys before a section", "MODE=DHCP\n[Ethernet]\nMODE=STATIC\nNETCON_PORT=2\n", dhcp);
    row("back in General", "[Ethernet]\nMODE=STATIC\n[General]\nMODE=DHCP\n", dhcp);

    row("line without equals sign", "MODE\nNETCON_PORT=1\nDHCP\nMODE=DHCP\n", dhcpWithPort);
    row("line without key", "=DHCP\nMODE=DHCP\n", dhcp);
    row("lines in a quotation", "ADDRESS=\"1.1.1.1\nMODE=STATIC\n\"\nNETCON_PORT=2\n", [](S &s) {
        s.setAddress(u"1.1.1.1\nMODE=STATIC\n"_s);
        s.setNetConsolePort(2);
    });
    row("continued line", "ADDRESS=1.1.1\\\nMODE=STATIC\nNETCON_PORT=2\n", [](S &s) {
        s.setAddress(u"1.1.1MODE=STATIC"_s);
        s.setNetConsolePort(2);
    });
}

void tst_cnetworksettingsfile::reads()
{
    QFETCH(QByteArray, content);
    QFETCH(Change, change);

    QVERIFY(Files::write(path(), content));
    CNetworkSettingsFile file;
    QCOMPARE(int(file.open(path())), 0);
    S expected = missing();
    change(expected);
    QCOMPARE(textOf(file.networkSettings()), textOf(expected));
    QVERIFY(file.networkSettings() == expected);
}

void tst_cnetworksettingsfile::readsText_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QByteArray &value, const QString &text) {
        QTest::newRow(name) << value << text;
    };
    row("comma", "1,2", u"1,2"_s);
    row("commas", "a,b,c,d", u"a,b,c,d"_s);
    row("comma alone", ",", u","_s);
    row("comma at the end", "1,", u"1,"_s);
    row("comma in front", ",2", u",2"_s);
    row("comma in quotes", "\"1, 2\"", u"1, 2"_s);
    row("parts in quotes", "\"1\",\"2\"", u"1,2"_s);
    row("quotes", "\" a b \"", u" a b "_s);
    row("empty quotes", "\"\"", u""_s);
    row("quotation mark in quotes", "\"a\\\"b\"", u"a\"b"_s);
    row("semicolon in quotes", "\"a;b\"", u"a;b"_s);
    row("equals sign", "a=b=c", u"a=b=c"_s);
    row("brackets", "[General]", u"[General]"_s);
    row("backslash", "a\\\\b", u"a\\b"_s);
    row("tabulator", "a\\tb", u"a\tb"_s);
    row("hexadecimal", "\\x61\\x62", u"ab"_s);
    row("octal", "\\141\\142", u"ab"_s);
    row("percent sign", "100%25", u"100%25"_s);
    row("UTF-8",
        "gr\xC3\xB6\xC3\x9F"
        "e.\xE8\xBB\xB8",
        u"gr\u00f6\u00dfe.\u8ef8"_s);
    row("beyond the basic plane", "\xF0\x9F\x98\x80", u"\U0001F600"_s);
    row("UTF-8 in quotes", "\"\xC3\xB6 \xC3\xB6\"", u"\u00f6 \u00f6"_s);
    row("at sign", "admin@press", u"admin@press"_s);
}

void tst_cnetworksettingsfile::readsText()
{
    QFETCH(QByteArray, value);
    QTEST(readNtpAddress(value), "text");
}

void tst_cnetworksettingsfile::textsBuildNoObjects_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QByteArray &value, const QString &text) {
        QTest::newRow(name) << value << text;
    };
    const QString variant = u"@Variant(\u0000\u0000\u0000\u0001)"_s;
    row("variant", "@Variant(\\0\\0\\0\\x1)", variant);
    row("variant in quotes", "\"@Variant(\\0\\0\\0\\x1)\"", variant);
    row("hexadecimal at sign", "\\x40Variant(\\0\\0\\0\\x1)", variant);
    row("long hexadecimal at sign", "\\x000040Variant(\\0\\0\\0\\x1)", variant);
    row("hexadecimal at sign beyond 16 bits", "\\x10040Variant(\\0\\0\\0\\x1)", variant);
    row("hexadecimal at sign in quotes", "\"\\x40Variant(\\0\\0\\0\\x1)\"", variant);
    row("octal at sign", "\\100Variant(\\0\\0\\0\\x1)", variant);
    row("long octal at sign", "\\000100Variant(\\0\\0\\0\\x1)", variant);
    row("backslash, then at sign", "\\\\@Variant(\\0)", u"\\@Variant(\u0000)"_s);
    row("two at signs", "@@x", u"@@x"_s);
    row("two at signs before an object", "@@Invalid()", u"@@Invalid()"_s);
    row("mixed at signs", "\\x40@\\100", u"@@@"_s);
    row("at sign alone", "@", u"@"_s);
    row("invalid", "@Invalid()", u"@Invalid()"_s);
    row("bytes", "@ByteArray(abc)", u"@ByteArray(abc)"_s);
    row("string", "@String(abc)", u"@String(abc)"_s);
    row("rectangle", "@Rect(1 2 3 4)", u"@Rect(1 2 3 4)"_s);
    row("size", "@Size(1 2)", u"@Size(1 2)"_s);
    row("point", "@Point(1 2)", u"@Point(1 2)"_s);
    row("date and time", "@DateTime(\\0\\0)", u"@DateTime(\u0000\u0000)"_s);
    row("in a list", "a,@Invalid(),@@x", u"a,@Invalid(),@@x"_s);
    row("as a list", "@Invalid(),@ByteArray(x)", u"@Invalid(),@ByteArray(x)"_s);
    row("code of another character", "\\x400", u"\u0400"_s);
}

void tst_cnetworksettingsfile::textsBuildNoObjects()
{
    QFETCH(QByteArray, value);
    QTEST(readNtpAddress(value), "text");
}

void tst_cnetworksettingsfile::hugeObjectsAreTexts_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("size");

    const QByteArray list = "\\0\\0\\0\\x9";
    const QByteArray one = "\\0\\0\\0\\x1";
    const int levels = 100000;
    QTest::newRow("list in list in list") << (list + one).repeated(levels) << 8 * levels;
    QTest::newRow("list that claims to be long") << list + "\\x7f\\xff\\xff\\xff" << 8;
}

void tst_cnetworksettingsfile::hugeObjectsAreTexts()
{
    QFETCH(QByteArray, value);
    QFETCH(int, size);

    for (const QByteArray &start : {QByteArray("@Variant("), QByteArray("\\x40Variant(")}) {
        const QString text = readNtpAddress(start + value + ')');
        QCOMPARE(text.size(), size + 10);
        QVERIFY(text.startsWith(u"@Variant(\u0000\u0000\u0000\u0009"_s));
        QVERIFY(text.endsWith(u")"_s));
    }
}

void tst_cnetworksettingsfile::replacesWhatWasHeld()
{
    // What a file does not tell is not taken from the settings held before.
    QVERIFY(Files::write(path(), "NETCON_PORT=1\n"));
    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QCOMPARE(int(file.open(path())), 0);
    S expected = missing();
    expected.setNetConsolePort(1);
    QVERIFY(file.networkSettings() == expected);
}

void tst_cnetworksettingsfile::levelHeldBeforeStays_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("level");

    QTest::newRow("8") << QByteArray("KERNEL_LOGLEVEL=8\n") << u"6"_s;
    QTest::newRow("-1") << QByteArray("KERNEL_LOGLEVEL=-1\n") << u"6"_s;
    QTest::newRow("no number") << QByteArray("KERNEL_LOGLEVEL=x\n") << u"6"_s;
    QTest::newRow("empty") << QByteArray("KERNEL_LOGLEVEL=\n") << u"6"_s;
    QTest::newRow("5") << QByteArray("KERNEL_LOGLEVEL=5\n") << u"5"_s;
    QTest::newRow("missing") << QByteArray() << u"4"_s;
}

void tst_cnetworksettingsfile::levelHeldBeforeStays()
{
    QFETCH(QByteArray, content);

    QVERIFY(Files::write(path(), content));
    CNetworkSettingsFile file;
    QVERIFY(file.setValue(u"KERNEL_LOGLEVEL"_s, u"6"_s));
    QCOMPARE(int(file.open(path())), 0);
    QTEST(file.networkSettings().kernelLogLevel(), "level");
}

void tst_cnetworksettingsfile::garbage_data()
{
    Garbage::addRows();
}

void tst_cnetworksettingsfile::garbage()
{
    QFETCH(QByteArray, content);

    QVERIFY(Files::write(path(), content));
    CNetworkSettingsFile file;
    QCOMPARE(int(file.open(path())), 0);
    QVERIFY(file.networkSettings() == missing());
}

void tst_cnetworksettingsfile::readsWhatTheFileIsNow()
{
    // Neither size nor time tells that the file has changed.
    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QCOMPARE(int(file.save(path())), 0);
    QCOMPARE(int(file.open(path())), 0);
    QCOMPARE(file.networkSettings().address(), u"192.168.001.010"_s);

    const QByteArray name = QFile::encodeName(path());
    for (const char *address : {"192.168.001.011", "192.168.001.012"}) {
        struct stat status = {};
        QCOMPARE(stat(name.constData(), &status), 0);
        QByteArray content = fullText();
        content.replace("192.168.001.010", address);
        QCOMPARE(qint64(content.size()), qint64(status.st_size));
        QVERIFY(Files::write(path(), content));
        const timespec times[] = {status.st_atim, status.st_mtim};
        QCOMPARE(utimensat(AT_FDCWD, name.constData(), times, 0), 0);

        QCOMPARE(int(file.open(path())), 0);
        QCOMPARE(file.networkSettings().address(), QString::fromLatin1(address));
        QCOMPARE(CNetworkSettingsFile(path()).networkSettings().address(),
                 QString::fromLatin1(address));
    }
}

void tst_cnetworksettingsfile::readsInManyThreads()
{
    const int threads = 4;
    const int turns = 200;
    std::vector<int> wrong(threads, 0);
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) {
        const QString name = path(QString::number(i));
        // The same size for all, so that only the content tells them apart.
        QVERIFY(Files::write(name, "NETCON_PORT=" + QByteArray::number(1000 + i)));
        running.emplace_back([name, i, &wrong] {
            for (int turn = 0; turn < turns; ++turn) {
                const CNetworkSettingsFile file(name);
                if (file.networkSettings().netConsolePort() != 1000 + static_cast<unsigned>(i)) {
                    ++wrong[static_cast<size_t>(i)];
                }
            }
        });
    }
    for (std::thread &thread : running) {
        thread.join();
    }
    QCOMPARE(wrong, std::vector<int>(threads, 0));
}

void tst_cnetworksettingsfile::readsWithoutWriting()
{
    QVERIFY(Files::write(path(), "MODE=DHCP\nOTHER=\"\n"));
    const OrdinaryUser user(m_directory->path(), {u"network.conf"_s});
    QVERIFY(user.isOk());
    const QFileDevice::Permissions all = QFile::permissions(m_directory->path());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner));
    QVERIFY(
        QFile::setPermissions(m_directory->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    CNetworkSettingsFile file;
    const int result = file.open(path());
    QVERIFY(QFile::setPermissions(m_directory->path(), all));
    QCOMPARE(result, 0);
    QCOMPARE(file.networkSettings().modeStr(), u"DHCP"_s);
    QCOMPARE(Files::names(m_directory->path()), QStringList{u"network.conf"_s});
    QCOMPARE(Files::read(path()), QByteArray("MODE=DHCP\nOTHER=\"\n"));
}

QTEST_GUILESS_MAIN(tst_cnetworksettingsfile)
#include "tst_cnetworksettingsfile.moc"
