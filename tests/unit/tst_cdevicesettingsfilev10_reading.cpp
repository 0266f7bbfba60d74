#include "settings/CDeviceSettingsFileV10.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/SampleSettings.h"
#include "support/SettingsFileV10.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace SettingsFileV10;

using NvrnGlobal::FILE_RESULT_SUCCESS;
using SampleSettings::document;
using SampleSettings::settings;
using Names = QMap<quint8, QString>;
Q_DECLARE_METATYPE(CDeviceSettings)

/** How documents of version 1.0 are read. */
class tst_cdevicesettingsfilev10_reading : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void read_data();
    void read();
    void driveNumbers_data();
    void driveNumbers();
    void emptyNameIsNotNull();
    void readingChangesNothing();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdevicesettingsfilev10_reading::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdevicesettingsfilev10_reading::read_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<CDeviceSettings>("expected");

    const auto row = [](const char *name, const char *content, const CDeviceSettings &expected) {
        QTest::newRow(name) << QByteArray(content) << expected;
    };
    row("nothing", "", CDeviceSettings());
    row("no device", "<Head><Author>a</Author></Head>", CDeviceSettings());
    row("name and sub-device outside a device",
        "<Name>n</Name><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice>",
        CDeviceSettings());
    row("device in another case", "<device><Name>n</Name></device>", CDeviceSettings());
    row("device further down", "<A><Device><Name>n</Name></Device></A>", CDeviceSettings());
    row("empty device", "<Device/>", CDeviceSettings());
    row("empty name", "<Device><Name/></Device>", CDeviceSettings());
    row("name", "<Device><Name>n</Name></Device>", settings(u"n"_s));
    row("name with blanks", "<Device><Name>  n\n </Name></Device>", settings(u"  n\n "_s));
    row("name in another case", "<Device><name>n</name></Device>", CDeviceSettings());
    row("name further down", "<Device><A><Name>n</Name></A></Device>", CDeviceSettings());
    row("two names: the first", "<Device><Name>n</Name><Name>m</Name></Device>", settings(u"n"_s));
    row("two devices: the first",
        "<Device><Name>n</Name></Device>"
        "<Device><Name>m</Name><SubDevice><DriveNo>1</DriveNo></SubDevice></Device>",
        settings(u"n"_s));
    row("sub-device name is not that of the device",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice></Device>",
        settings(u""_s, {{1, u"a"_s}}));
    row("sub-device without name", "<Device><SubDevice><DriveNo>1</DriveNo></SubDevice></Device>",
        settings(u""_s, {{1, u""_s}}));
    row("sub-device with empty name",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name/></SubDevice></Device>",
        settings(u""_s, {{1, u""_s}}));
    row("sub-device without drive number", "<Device><SubDevice><Name>a</Name></SubDevice></Device>",
        CDeviceSettings());
    row("sub-device in another case",
        "<Device><Subdevice><DriveNo>1</DriveNo></Subdevice></Device>", CDeviceSettings());
    row("drive number in another case",
        "<Device><SubDevice><Driveno>1</Driveno></SubDevice></Device>", CDeviceSettings());
    row("drive number as attribute", "<Device><SubDevice DriveNo=\"1\"/></Device>",
        CDeviceSettings());
    row("drive number further down",
        "<Device><SubDevice><A><DriveNo>1</DriveNo></A></SubDevice></Device>", CDeviceSettings());
    row("two drive numbers: the first",
        "<Device><SubDevice><DriveNo>1</DriveNo><DriveNo>2</DriveNo></SubDevice></Device>",
        settings(u""_s, {{1, u""_s}}));
    row("same number twice: the later",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice>"
        "<SubDevice><DriveNo>1</DriveNo><Name>b</Name></SubDevice></Device>",
        settings(u""_s, {{1, u"b"_s}}));
    row("same number twice, the later without name",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice>"
        "<SubDevice><DriveNo>1</DriveNo></SubDevice></Device>",
        settings(u""_s, {{1, u""_s}}));
    row("same number twice, the later by its low bits",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice>"
        "<SubDevice><DriveNo>257</DriveNo><Name>b</Name></SubDevice></Device>",
        settings(u""_s, {{1, u"b"_s}}));
    row("one skipped between two",
        "<Device><SubDevice><DriveNo>2</DriveNo><Name>a</Name></SubDevice>"
        "<SubDevice><DriveNo>x1</DriveNo><Name>b</Name></SubDevice>"
        "<SubDevice><DriveNo>0</DriveNo><Name>c</Name></SubDevice></Device>",
        settings(u""_s, {{2, u"a"_s}, {0, u"c"_s}}));
    row("sub-devices before the name",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice><Name>n</Name></Device>",
        settings(u"n"_s, {{1, u"a"_s}}));
    row("sub-device further down",
        "<Device><A><B><SubDevice><DriveNo>1</DriveNo><Name>a</Name></SubDevice></B></A></Device>",
        settings(u""_s, {{1, u"a"_s}}));
    row("sub-device in a sub-device",
        "<Device><SubDevice><DriveNo>1</DriveNo><Name>a</Name>"
        "<SubDevice><DriveNo>2</DriveNo><Name>b</Name></SubDevice></SubDevice></Device>",
        settings(u""_s, {{1, u"a"_s}, {2, u"b"_s}}));
    row("sub-device in a sub-device with its number: the inner one begins later",
        "<Device><SubDevice><SubDevice><DriveNo>1</DriveNo><Name>b</Name></SubDevice>"
        "<DriveNo>1</DriveNo><Name>a</Name></SubDevice></Device>",
        settings(u""_s, {{1, u"b"_s}}));
    row("sections, comments and references",
        "<Device><Name>a<!-- c --><![CDATA[<b>]]>&#99;</Name></Device>", settings(u"a<b>c"_s));
}

void tst_cdevicesettingsfilev10_reading::read()
{
    QFETCH(QByteArray, content);
    QFETCH(CDeviceSettings, expected);

    // What is left out is left out without a word.
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openBuffer(document(content), Version), FILE_RESULT_SUCCESS);
    QVERIFY(file.deviceSettings() == expected);
    QCOMPARE(file.deviceSettings().isNull(), expected.isNull());
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cdevicesettingsfilev10_reading::driveNumbers_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QList<int>>("driveNumbers");

    const auto row = [](const char *name, const QByteArray &number,
                        const QList<int> &driveNumbers) {
        QTest::newRow(name) << number << driveNumbers;
    };
    row("lowest", "0", {0});
    row("one digit", "7", {7});
    row("above the signed numbers", "128", {128});
    row("highest", "255", {255});
    row("first of more than 8 bits", "256", {0});
    row("low 8 bits", "258", {2});
    row("low 8 bits of a large number", "65535", {255});
    row("above the signed 32-bit numbers", "2147483651", {3});
    row("highest 32-bit number", "4294967295", {255});
    row("no 32-bit number", "4294967296", {});
    row("huge", "99999999999999999999999999", {});
    row("zeros in front: not octal", "010", {10});
    row("empty", "", {});
    row("blank alone", " ", {});
    row("letter in front", "x1", {});
    row("letter behind", "1x", {});
    row("two numbers", "1 2", {});
    row("negative", "-1", {});
    row("with decimals", "1.0", {});
    row("with exponent", "1e1", {});
    row("hexadecimal", "0x10", {});
    row("hexadecimal digits", "1f", {});
    row("grouped", "1,000", {});
    row("grouped with a dot", "1.000", {});
    row("Arabic digit", "\xd9\xa1", {});
    row("full-width digit", "\xef\xbc\x91", {});
    row("in a section", "<![CDATA[5]]>", {5});
    row("with a comment inside", "1<!-- c -->2", {12});
}

void tst_cdevicesettingsfilev10_reading::driveNumbers()
{
    QFETCH(QByteArray, number);
    QFETCH(QList<int>, driveNumbers);

    Names names;
    for (const int driveNo : driveNumbers) {
        names.insert(static_cast<quint8>(driveNo), u"a"_s);
    }
    const MessageCatcher catcher;
    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openBuffer(document("<Device><SubDevice><DriveNo>" + number
                                      + "</DriveNo><Name>a</Name></SubDevice></Device>"),
                             Version),
             FILE_RESULT_SUCCESS);
    QCOMPARE(file.deviceSettings().subDeviceNameMap(), names);
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cdevicesettingsfilev10_reading::emptyNameIsNotNull()
{
    // The two are equal, but differ on a data stream.
    CDeviceSettingsFileV10 file(nullptr);
    QCOMPARE(file.openBuffer(document(" <Device>\n  <Name/>\n </Device>\n"), Version),
             FILE_RESULT_SUCCESS);
    QVERIFY(file.deviceSettings().deviceName().isEmpty());
    QVERIFY(!file.deviceSettings().deviceName().isNull());
}

void tst_cdevicesettingsfilev10_reading::readingChangesNothing()
{
    CDeviceSettingsFileV10 file(nullptr);
    for (const QByteArray &content : {QByteArray(), QByteArray(" <Device/>\n"),
                                      QByteArray(" <Device>\n  <SubDevice/>\n </Device>\n")}) {
        QCOMPARE(file.openBuffer(document(content), Version), FILE_RESULT_SUCCESS);
        const QByteArray before = bytesOf(file);
        file.deviceSettings();
        QCOMPARE(bytesOf(file), before);
    }
}

QTEST_GUILESS_MAIN(tst_cdevicesettingsfilev10_reading)
#include "tst_cdevicesettingsfilev10_reading.moc"
