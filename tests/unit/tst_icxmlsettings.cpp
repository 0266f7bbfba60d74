#include "imported/ICXmlSettings.h"
#include "vocabulary/NVornXmlTags.h"

#include <QDomDocument>
#include <QtTest>

#include <cstring>
#include <limits>
#include <memory>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

template <typename Number>
QVariant number(Number value)
{
    return QVariant::fromValue<Number>(value);
}

/** Settings in the root of a document of their own. */
struct Fixture {
    explicit Fixture(const QString &xml = QStringLiteral("<S/>"))
    {
        document.setContent(xml);
        settings.reset(ICXmlSettings::instance(document.documentElement()));
    }

    QString written() const { return document.toString(-1); }

    QDomElement param(const QString &name) const
    {
        QDomElement e = document.documentElement().firstChildElement(text("Param"));
        while (!e.isNull() && e.attribute(text("name")) != name) {
            e = e.nextSiblingElement(text("Param"));
        }
        return e;
    }

    QDomDocument document;
    std::unique_ptr<ICXmlSettings> settings;
};

const QString Sample = QStringLiteral("<S><!--c-->"
                                      "<Param comment=\"c\" name=\"a\" type=\"INT32\" unit=\"mm\">"
                                      "1</Param>"
                                      "<Other name=\"x\">2</Other>"
                                      "<Param name=\"b\" type=\"STRING\">t</Param>"
                                      "</S>");

} // namespace

class tst_icxmlsettings : public QObject
{
    Q_OBJECT

private slots:
    void typeNames_data();
    void typeNames();
    void roundTrip_data();
    void roundTrip();
    void read_data();
    void read();
    void unreadable_data();
    void unreadable();
    void refusedTypes_data();
    void refusedTypes();
    void refusedNames();
    void nullElement();
    void names();
    void replaces();
    void unitAndComment();
    void unknownName();
    void remove();
    void gettersChangeNothing();
};

void tst_icxmlsettings::typeNames_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("valueText");

    using namespace NVornXmlTags;
    QTest::newRow("INT8") << number<signed char>(-5) << text("INT8") << TAG_SETTINGS_TYPE_I8
                          << text("-5");
    QTest::newRow("INT16") << number<short>(-5) << text("INT16") << TAG_SETTINGS_TYPE_I16
                           << text("-5");
    QTest::newRow("INT32") << number<int>(-5) << text("INT32") << TAG_SETTINGS_TYPE_I32
                           << text("-5");
    QTest::newRow("INT64") << number<qlonglong>(-5) << text("INT64") << TAG_SETTINGS_TYPE_I64
                           << text("-5");
    QTest::newRow("UINT8") << number<unsigned char>(65) << text("UINT8") << TAG_SETTINGS_TYPE_U8
                           << text("65");
    QTest::newRow("UINT16") << number<unsigned short>(65) << text("UINT16") << TAG_SETTINGS_TYPE_U16
                            << text("65");
    QTest::newRow("UINT32") << number<unsigned int>(65) << text("UINT32") << TAG_SETTINGS_TYPE_U32
                            << text("65");
    QTest::newRow("UINT64") << number<qulonglong>(65) << text("UINT64") << TAG_SETTINGS_TYPE_U64
                            << text("65");
    QTest::newRow("REAL64") << number<double>(0.5) << text("REAL64") << TAG_SETTINGS_TYPE_F64
                            << text("0.5");
    QTest::newRow("STRING") << QVariant(text("a b")) << text("STRING") << TAG_SETTINGS_TYPE_STR
                            << text("a b");
    QTest::newRow("BOOLEAN true") << QVariant(true) << text("BOOLEAN") << TAG_SETTINGS_TYPE_BOOL
                                  << TAG_SETTINGS_VAL_TRUE;
    QTest::newRow("BOOLEAN false")
        << QVariant(false) << text("BOOLEAN") << TAG_SETTINGS_TYPE_BOOL << TAG_SETTINGS_VAL_FALSE;
}

void tst_icxmlsettings::typeNames()
{
    QFETCH(QVariant, value);
    QFETCH(QString, typeName);
    QFETCH(QString, constant);
    QFETCH(QString, valueText);

    QCOMPARE(constant, typeName);
    Fixture fixture;
    QVERIFY(fixture.settings->setValue(text("n"), value));
    QCOMPARE(fixture.document.documentElement().childNodes().size(), 1);
    const QDomElement element = fixture.document.documentElement().firstChildElement();
    QCOMPARE(element.tagName(), NVornXmlTags::TAG_PARAM);
    QCOMPARE(element.attribute(NVornXmlTags::ATTR_NAME), text("n"));
    QCOMPARE(element.attribute(NVornXmlTags::ATTR_SETTINGS_TYPE), typeName);
    QCOMPARE(element.attributes().size(), 2);
    QCOMPARE(element.text(), valueText);
}

void tst_icxmlsettings::roundTrip_data()
{
    QTest::addColumn<QVariant>("value");

    const auto limits = [](const char *name, auto one) {
        using Number = decltype(one);
        QTest::addRow("%s lowest", name) << number(std::numeric_limits<Number>::lowest());
        QTest::addRow("%s highest", name) << number(std::numeric_limits<Number>::max());
        QTest::addRow("%s zero", name) << number(Number());
        QTest::addRow("%s one", name) << number(one);
    };
    limits("INT8", static_cast<signed char>(1));
    limits("INT16", static_cast<short>(1));
    limits("INT32", 1);
    limits("INT64", qlonglong(1));
    limits("UINT8", static_cast<unsigned char>(1));
    limits("UINT16", static_cast<unsigned short>(1));
    limits("UINT32", 1u);
    limits("UINT64", qulonglong(1));
    limits("REAL64", 1.0);
    QTest::newRow("REAL64 one tenth") << number(0.1);
    QTest::newRow("REAL64 one third") << number(1.0 / 3.0);
    QTest::newRow("REAL64 next to one") << number(1.0 + std::numeric_limits<double>::epsilon());
    QTest::newRow("REAL64 smallest normal") << number(std::numeric_limits<double>::min());
    QTest::newRow("REAL64 infinite") << number(std::numeric_limits<double>::infinity());
    QTest::newRow("STRING empty") << QVariant(text(""));
    QTest::newRow("STRING blanks") << QVariant(text("  a  "));
    QTest::newRow("STRING marks") << QVariant(text("<a b=\"c\">&amp;]]>"));
    QTest::newRow("STRING non-Latin") << QVariant(text("\xe8\xbb\xb8\xf0\x9f\x98\x80"));
    QTest::newRow("STRING that looks like a number") << QVariant(text("007"));
    QTest::newRow("BOOLEAN true") << QVariant(true);
    QTest::newRow("BOOLEAN false") << QVariant(false);
}

void tst_icxmlsettings::roundTrip()
{
    QFETCH(QVariant, value);

    Fixture fixture;
    QVERIFY(fixture.settings->setValue(text("n"), value));
    const QVariant back = fixture.settings->value(text("n"));
    QVERIFY(back.isValid());
    QCOMPARE(back.userType(), value.userType());
    if (value.userType() == QMetaType::Double) {
        // QVariant compares doubles with tolerance; they must read back exactly.
        const double expected = value.toDouble();
        const double actual = back.toDouble();
        QVERIFY(std::memcmp(&expected, &actual, sizeof expected) == 0);
    } else {
        QVERIFY(back == value);
    }

    // Other settings on the same element see it, too.
    const std::unique_ptr<ICXmlSettings> other(
        ICXmlSettings::instance(fixture.document.documentElement()));
    QCOMPARE(other->value(text("n")).userType(), value.userType());
}

void tst_icxmlsettings::read_data()
{
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("valueText");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("INT8") << text("INT8") << text("-128") << number<signed char>(-128);
    QTest::newRow("zeros in front") << text("UINT8") << text("007") << number<unsigned char>(7);
    QTest::newRow("REAL64 without fraction") << text("REAL64") << text("2") << number(2.0);
    QTest::newRow("REAL64 with exponent") << text("REAL64") << text("-2.5e3") << number(-2500.0);
    QTest::newRow("STRING that looks like a boolean")
        << text("STRING") << text("TRUE") << QVariant(text("TRUE"));
}

void tst_icxmlsettings::read()
{
    QFETCH(QString, typeName);
    QFETCH(QString, valueText);
    QFETCH(QVariant, value);

    const Fixture fixture(
        QStringLiteral("<S><Param name=\"n\" type=\"%1\">%2</Param></S>").arg(typeName, valueText));
    const QVariant read = fixture.settings->value(text("n"));
    QCOMPARE(read.userType(), value.userType());
    QVERIFY(read == value);
}

void tst_icxmlsettings::unreadable_data()
{
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("valueText");

    const auto row = [](const char *name, const char *typeName, const char *valueText) {
        QTest::newRow(name) << text(typeName) << text(valueText);
    };
    row("no type", "", "1");
    row("unknown type", "INT128", "1");
    row("type in lower case", "int32", "1");
    row("type with a blank", "INT32 ", "1");
    row("INT8 one too large", "INT8", "128");
    row("INT8 one too small", "INT8", "-129");
    row("UINT8 one too large", "UINT8", "256");
    row("UINT8 negative", "UINT8", "-1");
    row("INT16 one too large", "INT16", "32768");
    row("INT16 one too small", "INT16", "-32769");
    row("UINT16 one too large", "UINT16", "65536");
    row("UINT16 negative", "UINT16", "-1");
    row("INT32 one too large", "INT32", "2147483648");
    row("INT32 one too small", "INT32", "-2147483649");
    row("UINT32 one too large", "UINT32", "4294967296");
    row("UINT32 negative", "UINT32", "-1");
    row("INT64 one too large", "INT64", "9223372036854775808");
    row("INT64 one too small", "INT64", "-9223372036854775809");
    row("UINT64 one too large", "UINT64", "18446744073709551616");
    row("UINT64 negative", "UINT64", "-1");
    row("number empty", "INT32", "");
    row("number with text behind", "INT32", "1x");
    row("number with fraction", "INT32", "1.0");
    row("number hexadecimal", "INT32", "0x10");
    row("number with thousands mark", "INT32", "1,000");
    row("REAL64 empty", "REAL64", "");
    row("REAL64 with a comma", "REAL64", "1,5");
    row("REAL64 with a unit", "REAL64", "1.5mm");
    row("BOOLEAN empty", "BOOLEAN", "");
    row("BOOLEAN in lower case", "BOOLEAN", "true");
    row("BOOLEAN as number", "BOOLEAN", "1");
}

void tst_icxmlsettings::unreadable()
{
    QFETCH(QString, typeName);
    QFETCH(QString, valueText);

    const Fixture fixture(
        QStringLiteral("<S><Param name=\"n\" type=\"%1\">%2</Param></S>").arg(typeName, valueText));
    QVERIFY(!fixture.settings->value(text("n")).isValid());
    QCOMPARE(fixture.settings->names(), QStringList{text("n")});
}

void tst_icxmlsettings::refusedTypes_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("invalid") << QVariant();
    QTest::newRow("float") << number(1.0f);
    QTest::newRow("list of texts") << QVariant(QStringList{text("a")});
    QTest::newRow("bytes") << QVariant(QByteArray("a"));
    QTest::newRow("date") << QVariant(QDate(2026, 1, 31));
    QTest::newRow("map") << QVariant(QVariantMap());
}

void tst_icxmlsettings::refusedTypes()
{
    QFETCH(QVariant, value);

    Fixture fixture(Sample);
    const QString before = fixture.written();
    QVERIFY(!fixture.settings->setValue(text("a"), value));
    QVERIFY(!fixture.settings->setValue(text("new"), value));
    QCOMPARE(fixture.written(), before);
}

void tst_icxmlsettings::refusedNames()
{
    Fixture fixture(Sample);
    const QString before = fixture.written();
    QVERIFY(!fixture.settings->setValue(QString(), QVariant(1)));
    QVERIFY(!fixture.settings->setValue(text(""), QVariant(1)));
    QCOMPARE(fixture.written(), before);
}

void tst_icxmlsettings::nullElement()
{
    const std::unique_ptr<ICXmlSettings> settings(ICXmlSettings::instance(QDomElement()));
    QVERIFY(settings != nullptr);
    QVERIFY(settings->names().isEmpty());
    QVERIFY(!settings->setValue(text("a"), QVariant(1)));
    QVERIFY(!settings->value(text("a")).isValid());
    QVERIFY(!settings->remove(text("a")));
}

void tst_icxmlsettings::names()
{
    Fixture fixture(Sample);
    QCOMPARE(fixture.settings->names(), (QStringList{text("a"), text("b")}));
    QVERIFY(fixture.settings->setValue(text("A"), QVariant(1)));
    QVERIFY(fixture.settings->setValue(text("a\" <&"), QVariant(2)));
    QCOMPARE(fixture.settings->names(),
             (QStringList{text("a"), text("b"), text("A"), text("a\" <&")}));
    QCOMPARE(fixture.settings->value(text("a\" <&")), QVariant(2));
    QCOMPARE(fixture.settings->value(text("A")), QVariant(1));
}

void tst_icxmlsettings::replaces()
{
    Fixture fixture(Sample);
    QVERIFY(fixture.settings->setValue(text("a"), QVariant(true)));
    QCOMPARE(fixture.settings->names(), (QStringList{text("a"), text("b")}));
    QCOMPARE(fixture.settings->value(text("a")), QVariant(true));
    QCOMPARE(fixture.settings->unit(text("a")), text("mm"));
    QCOMPARE(fixture.settings->comment(text("a")), text("c"));
    QCOMPARE(fixture.document.documentElement().firstChildElement(text("Other")).text(), text("2"));
    QVERIFY(fixture.document.documentElement().firstChild().isComment());
}

void tst_icxmlsettings::unitAndComment()
{
    Fixture fixture(Sample);
    QCOMPARE(fixture.settings->unit(text("a")), text("mm"));
    QCOMPARE(fixture.settings->comment(text("a")), text("c"));
    QVERIFY(fixture.settings->unit(text("b")).isEmpty());
    QVERIFY(fixture.settings->comment(text("b")).isEmpty());

    fixture.settings->setUnit(text("b"), text("\xc2\xb5m"));
    fixture.settings->setComment(text("b"), text("a \"quoted\" comment"));
    QCOMPARE(fixture.settings->unit(text("b")), text("\xc2\xb5m"));
    QCOMPARE(fixture.settings->comment(text("b")), text("a \"quoted\" comment"));
    QCOMPARE(fixture.param(text("b")).attribute(NVornXmlTags::ATTR_SETTINGS_UNIT),
             text("\xc2\xb5m"));
    QCOMPARE(fixture.param(text("b")).attribute(NVornXmlTags::ATTR_SETTINGS_COMMENT),
             text("a \"quoted\" comment"));
    QCOMPARE(fixture.settings->value(text("b")), QVariant(text("t")));
    QCOMPARE(fixture.settings->unit(text("a")), text("mm"));
}

void tst_icxmlsettings::unknownName()
{
    Fixture fixture(Sample);
    const QString before = fixture.written();
    const QString unknown = text("c");
    QVERIFY(!fixture.settings->value(unknown).isValid());
    QVERIFY(fixture.settings->unit(unknown).isEmpty());
    QVERIFY(fixture.settings->comment(unknown).isEmpty());
    fixture.settings->setUnit(unknown, text("mm"));
    fixture.settings->setComment(unknown, text("c"));
    QVERIFY(!fixture.settings->remove(unknown));
    QVERIFY(!fixture.settings->remove(text("x")));
    QCOMPARE(fixture.written(), before);
}

void tst_icxmlsettings::remove()
{
    Fixture fixture(Sample);
    QVERIFY(fixture.settings->remove(text("a")));
    QVERIFY(!fixture.settings->remove(text("a")));
    QCOMPARE(fixture.settings->names(), QStringList{text("b")});
    QVERIFY(!fixture.settings->value(text("a")).isValid());
    QVERIFY(!fixture.document.documentElement().firstChildElement(text("Other")).isNull());
}

void tst_icxmlsettings::gettersChangeNothing()
{
    const Fixture fixture(Sample);
    const QString before = fixture.written();
    fixture.settings->names();
    for (const QString &name : {text("a"), text("b"), text("c"), QString()}) {
        fixture.settings->value(name);
        fixture.settings->unit(name);
        fixture.settings->comment(name);
    }
    QCOMPARE(fixture.written(), before);
}

QTEST_GUILESS_MAIN(tst_icxmlsettings)
#include "tst_icxmlsettings.moc"
