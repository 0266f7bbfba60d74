#include "imported/CStr.h"

#include <QtTest>

class tst_cstr : public QObject
{
    Q_OBJECT

private slots:
    void revision_data();
    void revision();
    void order_data();
    void order();
    void reject_data();
    void reject();
    void withoutOk();
};

void tst_cstr::revision_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("number");

    QTest::newRow("zero") << QStringLiteral("0") << 0u;
    QTest::newRow("one part") << QStringLiteral("1") << 1000000u;
    QTest::newRow("two parts") << QStringLiteral("1.0") << 1000000u;
    QTest::newRow("three parts") << QStringLiteral("1.0.0") << 1000000u;
    QTest::newRow("second part") << QStringLiteral("1.10") << 1010000u;
    QTest::newRow("third part") << QStringLiteral("1.2.3") << 1002003u;
    QTest::newRow("zeros in front") << QStringLiteral("01.002.0003") << 1002003u;
    QTest::newRow("many zeros in front")
        << QString(40, QLatin1Char('0')) + QLatin1Char('7') << 7000000u;
    QTest::newRow("only zeros") << QStringLiteral("0000.0000.0000") << 0u;
    QTest::newRow("largest") << QStringLiteral("4293.999.999") << 4293999999u;
}

void tst_cstr::revision()
{
    QFETCH(QString, text);
    bool ok = false;
    QTEST(CStr::stringToRevision(text, &ok), "number");
    QVERIFY(ok);
}

void tst_cstr::order_data()
{
    QTest::addColumn<QString>("lower");
    QTest::addColumn<QString>("higher");

    const char *const ascending[] = {"0",          "0.0.1", "0.1",    "0.9.999",     "0.10", "1.0",
                                     "1.0.1",      "1.0.9", "1.0.10", "1.1",         "1.9",  "1.10",
                                     "1.99",       "1.100", "1.999",  "2.0",         "9",    "10",
                                     "99.999.999", "100",   "4293",   "4293.999.999"};
    const char *lower = nullptr;
    for (const char *const higher : ascending) {
        if (lower != nullptr) {
            QTest::addRow("%s before %s", lower, higher)
                << QString::fromLatin1(lower) << QString::fromLatin1(higher);
        }
        lower = higher;
    }
}

void tst_cstr::order()
{
    QFETCH(QString, lower);
    QFETCH(QString, higher);
    bool lowerOk = false;
    bool higherOk = false;
    QVERIFY(CStr::stringToRevision(lower, &lowerOk) < CStr::stringToRevision(higher, &higherOk));
    QVERIFY(lowerOk);
    QVERIFY(higherOk);
}

void tst_cstr::reject_data()
{
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(text);
    };
    QTest::newRow("null") << QString();
    row("empty", "");
    row("blank", " ");
    row("dot alone", ".");
    row("dot at end", "1.");
    row("dot at start", ".1");
    row("two dots", "1..2");
    row("dot behind three parts", "1.2.3.");
    row("four parts", "1.2.3.4");
    row("minus", "-1.0");
    row("minus in second part", "1.-1");
    row("plus", "+1.0");
    row("blank in front", " 1.0");
    row("blank behind", "1.0 ");
    row("blank inside", "1. 0");
    row("line break behind", "1.0\n");
    row("comma", "1,0");
    row("letter in front", "v1.0");
    row("letter behind", "1.0a");
    row("hexadecimal", "0x1");
    row("exponent", "1e3");
    row("name", "latest");
    row("Arabic digits", "\xd9\xa1.\xd9\xa0");
    row("full-width digits", "\xef\xbc\x91");
    row("first part one too large", "4294");
    row("first part overflows", "4294967296");
    row("first part with five digits", "10000");
    row("second part one too large", "1.1000");
    row("third part one too large", "1.0.1000");
    row("very long", "99999999999999999999999999999999");
    QTest::newRow("null character behind") << QStringLiteral("1.0") + QChar(QChar::Null);
}

void tst_cstr::reject()
{
    QFETCH(QString, text);
    bool ok = true;
    QCOMPARE(CStr::stringToRevision(text, &ok), 0u);
    QVERIFY(!ok);
}

void tst_cstr::withoutOk()
{
    QCOMPARE(CStr::stringToRevision(QStringLiteral("2.3")), 2003000u);
    QCOMPARE(CStr::stringToRevision(QStringLiteral("2.3x")), 0u);
}

QTEST_GUILESS_MAIN(tst_cstr)
#include "tst_cstr.moc"
