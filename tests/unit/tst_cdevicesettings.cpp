#include "settings/CDeviceSettings.h"
#include "support/Literals.h"
#include "support/SampleSettings.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <type_traits>

using SampleSettings::settings;

using Names = QMap<quint8, QString>;

Q_DECLARE_METATYPE(CDeviceSettings)
Q_DECLARE_METATYPE(Names)

class tst_cdevicesettings : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void null_data();
    void null();
    void clear();
    void equality_data();
    void equality();
    void deviceName_data();
    void deviceName();
    void subDeviceName_data();
    void subDeviceName();
    void setSubDeviceName();
    void subDeviceNameMap();
    void copies();
    void streamForm_data();
    void streamForm();
    void everyDriveNumber();
    void readingReplaces();
    void hostileStream_data();
    void hostileStream();
    void cutOffStream();
};

void tst_cdevicesettings::defaults()
{
    const CDeviceSettings settings;
    QVERIFY(settings.isNull());
    QVERIFY(settings.deviceName().isEmpty());
    QVERIFY(!settings.deviceName().isNull());
    QVERIFY(settings.subDeviceNameMap().isEmpty());
    QVERIFY(std::has_virtual_destructor<CDeviceSettings>::value);
}

void tst_cdevicesettings::null_data()
{
    QTest::addColumn<CDeviceSettings>("value");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("default") << CDeviceSettings() << true;
    QTest::newRow("null device name") << settings(QString()) << true;
    QTest::newRow("empty device name") << settings(u""_s) << true;
    QTest::newRow("device name") << settings(u"n"_s) << false;
    QTest::newRow("blank device name") << settings(u" "_s) << false;
    QTest::newRow("sub-device") << settings(u""_s, {{3, u"n"_s}}) << false;
    QTest::newRow("sub-device 0 with an empty name") << settings(u""_s, {{0, u""_s}}) << false;
    QTest::newRow("sub-device with a null name") << settings(u""_s, {{3, QString()}}) << false;
    QTest::newRow("both") << settings(u"n"_s, {{3, u"n"_s}}) << false;
}

void tst_cdevicesettings::null()
{
    QFETCH(CDeviceSettings, value);
    QFETCH(bool, isNull);

    QCOMPARE(value.isNull(), isNull);
    QCOMPARE(value == CDeviceSettings(), isNull);
}

void tst_cdevicesettings::clear()
{
    CDeviceSettings value = settings(u"n"_s, {{3, u"a"_s}});
    const CDeviceSettings copy(value);
    value.clear();
    QVERIFY(value.isNull());
    QVERIFY(!value.deviceName().isNull());
    QVERIFY(value.subDeviceNameMap().isEmpty());
    QVERIFY(copy == settings(u"n"_s, {{3, u"a"_s}}));
}

void tst_cdevicesettings::equality_data()
{
    QTest::addColumn<CDeviceSettings>("left");
    QTest::addColumn<CDeviceSettings>("right");
    QTest::addColumn<bool>("equal");

    const CDeviceSettings full = settings(u"n"_s, {{3, u"a"_s}, {7, u"b"_s}});
    const auto row = [&](const char *name, const CDeviceSettings &right, bool equal) {
        QTest::newRow(name) << full << right << equal;
    };
    row("same data", full, true);
    row("same fields", settings(u"n"_s, {{3, u"a"_s}, {7, u"b"_s}}), true);
    row("another device name", settings(u"m"_s, {{3, u"a"_s}, {7, u"b"_s}}), false);
    row("device name in another case", settings(u"N"_s, {{3, u"a"_s}, {7, u"b"_s}}), false);
    row("another name", settings(u"n"_s, {{3, u"a"_s}, {7, u"c"_s}}), false);
    row("name in another case", settings(u"n"_s, {{3, u"a"_s}, {7, u"B"_s}}), false);
    row("another drive number", settings(u"n"_s, {{3, u"a"_s}, {8, u"b"_s}}), false);
    row("names exchanged", settings(u"n"_s, {{3, u"b"_s}, {7, u"a"_s}}), false);
    row("one less", settings(u"n"_s, {{3, u"a"_s}}), false);
    row("one more", settings(u"n"_s, {{3, u"a"_s}, {7, u"b"_s}, {8, u""_s}}), false);
}

void tst_cdevicesettings::equality()
{
    QFETCH(CDeviceSettings, left);
    QFETCH(CDeviceSettings, right);
    QFETCH(bool, equal);

    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

void tst_cdevicesettings::deviceName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nameOrDefault");

    QTest::newRow("set") << u"Press"_s << u"Press"_s;
    QTest::newRow("blank") << u" "_s << u" "_s;
    QTest::newRow("like the default") << u"default"_s << u"default"_s;
    QTest::newRow("empty") << u""_s << u"default"_s;
    QTest::newRow("null") << QString() << u"default"_s;
}

void tst_cdevicesettings::deviceName()
{
    QFETCH(QString, name);
    QFETCH(QString, nameOrDefault);

    CDeviceSettings value = settings(u"old"_s);
    value.setDeviceName(name);
    QCOMPARE(value.deviceName(), name);
    QCOMPARE(value.deviceName().isNull(), name.isNull());
    QCOMPARE(value.deviceName(u"default"_s), nameOrDefault);
    QCOMPARE(CDeviceSettings().deviceName(u"default"_s), u"default"_s);
    QCOMPARE(value.deviceName(), name);
}

void tst_cdevicesettings::subDeviceName_data()
{
    QTest::addColumn<int>("driveNo");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nameOrDefault");

    const auto row = [](const char *rowName, int driveNo, const QString &name,
                        const QString &nameOrDefault) {
        QTest::newRow(rowName) << driveNo << name << nameOrDefault;
    };
    row("lowest", 0, u"zero"_s, u"zero"_s);
    row("in the middle", 3, u"three"_s, u"three"_s);
    row("above the signed numbers", 128, u"128"_s, u"128"_s);
    row("highest", 255, u"last"_s, u"last"_s);
    row("empty", 4, u""_s, u""_s);
    row("null", 5, QString(), QString());
    row("blank", 6, u" "_s, u" "_s);
    row("absent", 1, QString(), u"default"_s);
    row("absent, behind the highest but one", 254, QString(), u"default"_s);
}

void tst_cdevicesettings::subDeviceName()
{
    QFETCH(int, driveNo);
    QFETCH(QString, name);
    QFETCH(QString, nameOrDefault);

    const CDeviceSettings value = settings(u"device"_s,
                                           {{0, u"zero"_s},
                                            {3, u"three"_s},
                                            {4, u""_s},
                                            {5, QString()},
                                            {6, u" "_s},
                                            {128, u"128"_s},
                                            {255, u"last"_s}});
    const quint8 key = static_cast<quint8>(driveNo);
    QCOMPARE(value.subDeviceName(key), name);
    QCOMPARE(value.subDeviceName(key).isNull(), name.isNull());
    QCOMPARE(value.subDeviceName(key, u"default"_s), nameOrDefault);
    // Asking adds nothing.
    QCOMPARE(value.subDeviceNameMap().size(), 7);
    QVERIFY(CDeviceSettings().subDeviceName(key).isNull());
    QCOMPARE(CDeviceSettings().subDeviceName(key, u"default"_s), u"default"_s);
}

void tst_cdevicesettings::setSubDeviceName()
{
    CDeviceSettings value = settings(u"device"_s);
    value.setSubDeviceName(u"first"_s, 3);
    value.setSubDeviceName(u"other"_s, 4);
    QCOMPARE(value.subDeviceName(3), u"first"_s);

    value.setSubDeviceName(u"second"_s, 3);
    QCOMPARE(value.subDeviceNameMap(), (Names{{3, u"second"_s}, {4, u"other"_s}}));
    // An empty name is stored like any other.
    value.setSubDeviceName(u""_s, 3);
    QCOMPARE(value.subDeviceNameMap(), (Names{{3, u""_s}, {4, u"other"_s}}));
    value.setSubDeviceName(QString(), 4);
    QCOMPARE(value.subDeviceNameMap(), (Names{{3, u""_s}, {4, QString()}}));
    QCOMPARE(value.deviceName(), u"device"_s);
}

void tst_cdevicesettings::subDeviceNameMap()
{
    CDeviceSettings value;
    for (const quint8 driveNo : {quint8(200), quint8(3), quint8(0), quint8(255), quint8(127)}) {
        value.setSubDeviceName(QString::number(driveNo), driveNo);
    }
    Names names = value.subDeviceNameMap();
    QCOMPARE(names.keys(), (QList<quint8>{0, 3, 127, 200, 255}));
    QCOMPARE(names.values(), (QStringList{u"0"_s, u"3"_s, u"127"_s, u"200"_s, u"255"_s}));
    // It is the caller's own.
    names.clear();
    QCOMPARE(value.subDeviceNameMap().size(), 5);
}

void tst_cdevicesettings::copies()
{
    const CDeviceSettings original = settings(u"n"_s, {{3, u"a"_s}});
    CDeviceSettings renamed(original);
    CDeviceSettings extended;
    extended = original;
    CDeviceSettings replaced = original;
    renamed.setDeviceName(u"m"_s);
    extended.setSubDeviceName(u"b"_s, 4);
    replaced.setSubDeviceName(u"c"_s, 3);
    QVERIFY(original == settings(u"n"_s, {{3, u"a"_s}}));
    QVERIFY(renamed == settings(u"m"_s, {{3, u"a"_s}}));
    QVERIFY(extended == settings(u"n"_s, {{3, u"a"_s}, {4, u"b"_s}}));
    QVERIFY(replaced == settings(u"n"_s, {{3, u"c"_s}}));
}

void tst_cdevicesettings::streamForm_data()
{
    QTest::addColumn<CDeviceSettings>("value");
    QTest::addColumn<QByteArray>("bytes");

    const auto row = [](const char *name, const CDeviceSettings &value, const char *bytes) {
        QTest::newRow(name) << value << QByteArray::fromHex(bytes);
    };
    row("default: empty, not null", CDeviceSettings(), "00000000 00000000");
    row("null device name", settings(QString()), "ffffffff 00000000");
    row("device name alone", settings(u"n"_s), "00000002 006e 00000000");
    row("one sub-device", settings(u""_s, {{7, u"a"_s}}), "00000000 00000001 07 00000002 0061");
    row("highest drive number first", settings(u"n"_s, {{0, u"a"_s}, {7, u"b"_s}, {255, u"c"_s}}),
        "00000002 006e 00000003"
        " ff 00000002 0063"
        " 07 00000002 0062"
        " 00 00000002 0061");
    row("empty and null names", settings(u""_s, {{1, u""_s}, {2, QString()}}),
        "00000000 00000002 02 ffffffff 01 00000000");
}

void tst_cdevicesettings::streamForm()
{
    QFETCH(CDeviceSettings, value);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(value).toHex(' '), bytes.toHex(' '));

    CDeviceSettings read = settings(u"old"_s, {{7, u"old"_s}, {9, u"old"_s}});
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == value);
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

void tst_cdevicesettings::everyDriveNumber()
{
    CDeviceSettings value = settings(u"n"_s);
    QByteArray expected = QByteArray::fromHex("00000002 006e 00000100");
    for (int driveNo = 0; driveNo < 256; ++driveNo) {
        value.setSubDeviceName(QString(QChar(0x100 + driveNo)), static_cast<quint8>(driveNo));
    }
    for (int driveNo = 255; driveNo >= 0; --driveNo) {
        const char low = static_cast<char>(driveNo);
        expected += low + QByteArray::fromHex("00000002 01") + low;
    }
    QCOMPARE(StreamBytes::toBytes(value).toHex(' '), expected.toHex(' '));
    QVERIFY(StreamBytes::fromBytes<CDeviceSettings>(expected) == value);
}

void tst_cdevicesettings::readingReplaces()
{
    CDeviceSettings value = settings(u"old"_s, {{3, u"old"_s}});
    const CDeviceSettings copy(value);
    StreamBytes::read(StreamBytes::toBytes(settings(u"n"_s, {{4, u"a"_s}})), value);
    QVERIFY(value == settings(u"n"_s, {{4, u"a"_s}}));
    QVERIFY(copy == settings(u"old"_s, {{3, u"old"_s}}));
}

void tst_cdevicesettings::hostileStream_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("complete");
    QTest::addColumn<CDeviceSettings>("value");

    const auto row = [](const char *name, const QByteArray &hex, bool complete,
                        const Names &names) {
        QTest::newRow(name) << QByteArray::fromHex("00000002 006e " + hex) << complete
                            << settings(u"n"_s, names);
    };
    row("count missing", "", false, {});
    row("count cut off", "000000", false, {});
    row("count without entries", "00000001", false, {});
    row("highest count without entries", "ffffffff", false, {});
    row("highest count, then an entry", "ffffffff 03 00000002 0061", false, {});
    row("highest signed count", "7fffffff 03 00000002 0061", false, {});
    row("name missing", "00000001 03", false, {});
    row("name cut off", "00000001 03 00000004 0061", false, {});
    row("name of the highest size", "00000001 03 fffffffe 0061", false, {});
    row("name of an odd size", "00000001 03 00000001 61", false, {});
    row("second of two entries missing", "00000002 03 00000002 0061", false, {});
    row("one key twice, the later counts", "00000002 03 00000002 0061 03 00000002 0062", true,
        {{3, u"b"_s}});
    row("one key twice, another between", "00000003 03 00000002 0061 04 00000000 03 ffffffff", true,
        {{3, QString()}, {4, u""_s}});
    row("lowest drive number first", "00000002 01 00000002 0061 02 00000002 0062", true,
        {{1, u"a"_s}, {2, u"b"_s}});
    row("more entries than there are keys",
        "00000200" + QByteArray("03 00000002 0061").repeated(512), true, {{3, u"a"_s}});
}

void tst_cdevicesettings::hostileStream()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, complete);
    QFETCH(CDeviceSettings, value);

    CDeviceSettings read = settings(u"old"_s, {{3, u"old"_s}, {9, u"old"_s}});
    QCOMPARE(StreamBytes::read(bytes, read), complete ? qint64(bytes.size()) : qint64(-1));
    QCOMPARE(read.subDeviceNameMap(), value.subDeviceNameMap());
    QCOMPARE(read.deviceName(), value.deviceName());
    // As any other value from here on: one entry for each key.
    read.setSubDeviceName(u"new"_s, 3);
    QCOMPARE(read.subDeviceNameMap().count(3), 1);
    QVERIFY(StreamBytes::fromBytes<CDeviceSettings>(StreamBytes::toBytes(read)) == read);
}

void tst_cdevicesettings::cutOffStream()
{
    const CDeviceSettings full = settings(u"n"_s, {{3, u"a"_s}, {7, u"b"_s}});
    const QByteArray bytes = StreamBytes::toBytes(full);
    for (int size = 0; size < bytes.size(); ++size) {
        CDeviceSettings value = settings(u"old"_s, {{3, u"old"_s}});
        QCOMPARE(StreamBytes::read(bytes.left(size), value), qint64(-1));
        QVERIFY2(value.subDeviceNameMap().isEmpty(), qPrintable(QString::number(size)));
    }
}

REGISTER_APPLESS_TEST(tst_cdevicesettings)
#include "tst_cdevicesettings.moc"
