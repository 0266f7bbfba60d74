#include "configfile/ItemValue.h"
#include "support/Literals.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace ItemValue;

Q_DECLARE_METATYPE(ConfigurationShape::EValue)
Q_DECLARE_METATYPE(ItemValue::EReading)

/** What each kind of value accepts, and what readers make of it. */
class tst_itemvalue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void absentValues();
    void choicesAreValues_data();
    void choicesAreValues();
    void unwritable_data();
    void unwritable();
    void texts_data();
    void texts();

private:
    static void addKinds();
};

void tst_itemvalue::values_data()
{
    QTest::addColumn<EValue>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<EReading>("expected");
    QTest::addColumn<QString>("canonical");
    QTest::addColumn<bool>("isAccepted");

    const auto row = [](const char *name, EValue kind, const QString &text, EReading expected,
                        const QString &canonical, bool isAccepted) {
        QTest::newRow(name) << kind << text << expected << canonical << isAccepted;
    };
    const EReading empty = EReading::EMPTY;
    const EReading value = EReading::VALUE;
    const EReading invalid = EReading::INVALID;
    const EReading open = EReading::UNDEFINED;

    row("no text", EValue::TEXT, u""_s, empty, u""_s, true);
    row("text", EValue::TEXT, u" a  b "_s, value, u" a  b "_s, true);

    row("no date", EValue::DATE, u""_s, empty, u""_s, true);
    row("date", EValue::DATE, u"2024-02-29"_s, value, u"2024-02-29"_s, true);
    row("day that is missing", EValue::DATE, u"2025-02-29"_s, invalid, u""_s, false);
    row("date with time", EValue::DATE, u"2026-11-21T10:00:00"_s, value, u"2026-11-21"_s, false);
    row("word as date", EValue::DATE, u"today"_s, invalid, u""_s, false);

    row("no class", EValue::DEVICE_CLASS, u""_s, empty, u"Undefined"_s, false);
    row("class", EValue::DEVICE_CLASS, u"kd3"_s, value, u"kd3"_s, true);
    row("class in capitals", EValue::DEVICE_CLASS, u"KD3"_s, invalid, u"Undefined"_s, false);
    row("open class", EValue::DEVICE_CLASS, u"Undefined"_s, open, u"Undefined"_s, true);

    row("no identity", EValue::HARDWARE_ID, u""_s, empty, u""_s, true);
    row("identity", EValue::HARDWARE_ID, u"A:B:65535:0:1"_s, value, u"A:B:65535:0:1"_s, true);
    row("large platform", EValue::HARDWARE_ID, u"A:B:65536:0:1"_s, invalid, u""_s, false);
    row("short identity", EValue::HARDWARE_ID, u"A:B:1:2"_s, invalid, u""_s, false);

    row("no flag", EValue::BOOLEAN, u""_s, empty, u"false"_s, false);
    row("true", EValue::BOOLEAN, u"true"_s, value, u"true"_s, true);
    row("false", EValue::BOOLEAN, u"false"_s, value, u"false"_s, true);
    row("flag in capitals", EValue::BOOLEAN, u"TRUE"_s, invalid, u"false"_s, false);

    row("no number", EValue::UNSIGNED_NUMBER, u""_s, empty, u"0"_s, false);
    row("largest number", EValue::UNSIGNED_NUMBER, u"4294967295"_s, value, u"4294967295"_s, true);
    row("too large", EValue::UNSIGNED_NUMBER, u"4294967296"_s, invalid, u"0"_s, false);
    row("negative", EValue::UNSIGNED_NUMBER, u"-1"_s, invalid, u"0"_s, false);
    row("leading zeros", EValue::UNSIGNED_NUMBER, u"007"_s, value, u"7"_s, false);

    row("no priority", EValue::SIGNED_NUMBER, u""_s, empty, u""_s, false);
    row("priority", EValue::SIGNED_NUMBER, u"2147483647"_s, value, u"2147483647"_s, true);
    row("unset priority", EValue::SIGNED_NUMBER, u"-2147483648"_s, value, u""_s, true);
    row("too small", EValue::SIGNED_NUMBER, u"-2147483649"_s, invalid, u""_s, false);
    row("signed zero", EValue::SIGNED_NUMBER, u"-0"_s, value, u"0"_s, false);

    row("parameters", EValue::PARAMETER_FILE_TYPE, u"VornParameters"_s, value, u"VornParameters"_s,
        true);
    row("parameters in small letters", EValue::PARAMETER_FILE_TYPE, u"vornparameters"_s, invalid,
        u"Undefined"_s, false);
    row("open type", EValue::PARAMETER_FILE_TYPE, u"Undefined"_s, open, u"Undefined"_s, true);

    row("no drive type", EValue::DRIVE_TYPE, u""_s, empty, u"KD3_drive"_s, false);
    row("KD2 drive", EValue::DRIVE_TYPE, u"KD2_drive"_s, value, u"KD2_drive"_s, true);
    row("open drive type", EValue::DRIVE_TYPE, u"UNKNOWN_drive"_s, open, u"KD3_drive"_s, false);
    row("other drive", EValue::DRIVE_TYPE, u"kd2_drive"_s, invalid, u"KD3_drive"_s, false);

    row("no drive number", EValue::KEY_DRIVE_NUMBER, u""_s, empty, u""_s, false);
    row("highest number", EValue::KEY_DRIVE_NUMBER, u"254"_s, value, u"254"_s, true);
    row("unassigned number", EValue::KEY_DRIVE_NUMBER, u"255"_s, open, u"255"_s, false);
    row("number above all", EValue::KEY_DRIVE_NUMBER, u"256"_s, invalid, u"256"_s, false);
    row("number with zeros", EValue::KEY_DRIVE_NUMBER, u"007"_s, value, u"7"_s, false);
    row("word as number", EValue::KEY_DRIVE_NUMBER, u"x"_s, invalid, u"x"_s, false);

    row("no name", EValue::KEY_NAME, u""_s, empty, u""_s, false);
    row("name", EValue::KEY_NAME, u"a b"_s, value, u"a b"_s, true);
    row("no image", EValue::ACTIVE_FPGA_FILE, u""_s, empty, u""_s, false);
    row("image", EValue::ACTIVE_FPGA_FILE, u"a.bit"_s, value, u"a.bit"_s, true);

    row("option", EValue::KEY_OPTION, u"-a"_s, value, u"-a"_s, true);
    row("hyphen", EValue::KEY_OPTION, u"-"_s, invalid, u"-"_s, false);
    row("two words", EValue::KEY_OPTION, u"-a b"_s, invalid, u"-a b"_s, false);
    row("no hyphen", EValue::KEY_OPTION, u"a"_s, invalid, u"a"_s, false);
    row("no argument", EValue::OPTION_ARGUMENT, u""_s, empty, u""_s, true);
    row("argument", EValue::OPTION_ARGUMENT, u"a b=-1"_s, value, u"a b=-1"_s, true);
    row("option in it", EValue::OPTION_ARGUMENT, u"a -b"_s, value, u"a -b"_s, false);
    row("two spaces", EValue::OPTION_ARGUMENT, u"a  b"_s, value, u"a b"_s, false);

    row("device directory", EValue::DEVICE_DIRECTORY, u"velkor\\conf"_s, value, u"/velkor/conf/"_s,
        true);
    row("project directory", EValue::PROJECT_DIRECTORY, u"Line\\conf"_s, value, u"Line/conf/"_s,
        true);
}

void tst_itemvalue::values()
{
    QFETCH(EValue, kind);
    QFETCH(QString, text);
    QFETCH(EReading, expected);
    QFETCH(QString, canonical);
    QFETCH(bool, isAccepted);
    QCOMPARE(reading(kind, text), expected);
    QCOMPARE(read(kind, text), canonical);
    QCOMPARE(accepts(kind, text), isAccepted);
    // What is stored is read as what was given, and stays so.
    if (isAccepted) {
        QCOMPARE(read(kind, stored(kind, text)), canonical);
        QVERIFY(accepts(kind, stored(kind, text)));
    }
    QCOMPARE(read(kind, canonical), canonical);
}

void tst_itemvalue::absentValues()
{
    // An item whose element is absent is read with the value of a new element.
    const CDeviceElement device;
    for (const auto &row : ConfigurationShape::deviceItems()) {
        QCOMPARE(absentValue(row), row.get(device));
    }
    for (const auto &row : ConfigurationShape::opcUaItems()) {
        QCOMPARE(absentValue(row), row.get(device));
    }
}

void tst_itemvalue::addKinds()
{
    QTest::addColumn<EValue>("kind");
    QTest::newRow("class") << EValue::DEVICE_CLASS;
    QTest::newRow("parameter file") << EValue::PARAMETER_FILE_TYPE;
    QTest::newRow("drive") << EValue::DRIVE_TYPE;
    QTest::newRow("flag") << EValue::BOOLEAN;
}

void tst_itemvalue::choicesAreValues_data()
{
    addKinds();
}

void tst_itemvalue::choicesAreValues()
{
    QFETCH(EValue, kind);
    QVERIFY(choices(kind).size() >= 2);
    for (const QString &choice : choices(kind)) {
        QCOMPARE(reading(kind, choice), EReading::VALUE);
        QCOMPARE(read(kind, choice), choice);
        QVERIFY(accepts(kind, choice));
        QVERIFY(expected(kind).contains(choice));
    }
    QVERIFY(!choices(kind).contains(undefined(kind)));
}

void tst_itemvalue::unwritable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");
    QTest::newRow("control character") << u"a\u0001"_s << u"0001"_s;
    QTest::newRow("null character") << QString(QChar(0)) << u"0000"_s;
    QTest::newRow("not a character") << u"\ufffe"_s << u"FFFE"_s;
    QTest::newRow("half of a pair") << QString(QChar(0xd83d)) << u"D83D"_s;
    QTest::newRow("white space") << u"\t\r\n "_s << QString();
    QTest::newRow("pair") << u"\U0001F600"_s << QString();
}

void tst_itemvalue::unwritable()
{
    QFETCH(QString, text);
    QFETCH(QString, code);
    QCOMPARE(unwritableText(text),
             code.isEmpty()
                 ? QString()
                 : u"The character U+%1 cannot be stored in a configuration."_s.arg(code));
    for (const EValue kind : {EValue::TEXT, EValue::KEY_NAME, EValue::DEVICE_DIRECTORY}) {
        QCOMPARE(accepts(kind, text), code.isEmpty());
    }
}

void tst_itemvalue::texts_data()
{
    QTest::addColumn<EValue>("kind");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("wanted");
    const auto row = [](EValue kind, const QString &message, const QString &wanted) {
        QTest::newRow(qPrintable(message)) << kind << message << wanted;
    };
    row(EValue::DATE, u"'x' is not a valid date."_s, u"a date such as 2026-11-21"_s);
    row(EValue::DEVICE_CLASS, u"'x' is not a valid device class."_s, u"kc2, kd3"_s);
    row(EValue::HARDWARE_ID, u"'x' is not a valid hardware identity."_s,
        u"PREFIX:NAME:PLATFORM:VERSION:REVISION"_s);
    row(EValue::BOOLEAN, u"'x' is neither true nor false."_s, u"true, false"_s);
    row(EValue::SIGNED_NUMBER, u"'x' is not a valid number."_s,
        u"a number from -2147483648 to 2147483647"_s);
    row(EValue::DRIVE_TYPE, u"'x' is not a valid type of a drive."_s, u"KD2_drive, KD3_drive"_s);
    row(EValue::KEY_DRIVE_NUMBER, u"'x' is not a valid drive number."_s,
        u"a number from 0 to 254"_s);
    row(EValue::KEY_OPTION, u"'x' is not a valid start option."_s,
        u"a word that begins with '-'"_s);
    row(EValue::KEY_NAME, u"The name is empty."_s, u"a name"_s);
}

void tst_itemvalue::texts()
{
    QFETCH(EValue, kind);
    QFETCH(QString, message);
    QFETCH(QString, wanted);
    QCOMPARE(invalidText(kind, u"x"_s), message);
    QCOMPARE(expected(kind), wanted);
}

REGISTER_APPLESS_TEST(tst_itemvalue)
#include "tst_itemvalue.moc"
