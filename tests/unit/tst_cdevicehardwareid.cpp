#include "imported/CDeviceHardwareId.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QtTest>

Q_DECLARE_METATYPE(CDeviceHardwareId)

namespace {

CDeviceHardwareId identity(const QString &prefix, const QString &name, quint16 platform,
                           quint16 version, quint16 revision)
{
    CDeviceHardwareId id;
    id.setPrefix(prefix);
    id.setName(name);
    id.setPlatform(platform);
    id.setVersion(version);
    id.setRevision(revision);
    return id;
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

CDeviceHardwareId sample()
{
    return identity(text("KD3"), text("Servo Drive 8A"), 3, 2, 1);
}

/** Arbitrary UTF-16: marks of the text form, lone and paired surrogates, controls, and the rest. */
QString randomText(QRandomGenerator &random)
{
    static const ushort special[] = {0,      '\t',   '\n',   '\r',   0x1b,   ' ',    '%',
                                     ':',    '0',    'A',    '<',    '&',    0x7f,   0x85,
                                     0xd800, 0xdbff, 0xdc00, 0xdfff, 0xfeff, 0xfffd, 0xfffe,
                                     0xffff, 0x2028, 0x20ac, 0x8ef8};
    const int count = int(sizeof special / sizeof special[0]);
    QString result;
    for (int length = random.bounded(12); length > 0; --length) {
        result += random.bounded(2) == 0 ? QChar(special[random.bounded(count)])
                                         : QChar(static_cast<ushort>(random.bounded(0x10000)));
    }
    return result;
}

quint16 randomNumber(QRandomGenerator &random)
{
    return random.bounded(3) == 0 ? quint16(0) : static_cast<quint16>(random.bounded(0x10000));
}

} // namespace

class tst_cdevicehardwareid : public QObject
{
    Q_OBJECT

private slots:
    void null();
    void setters();
    void comparison_data();
    void comparison();
    void accept_data();
    void accept();
    void reject_data();
    void reject();
    void writtenForm_data();
    void writtenForm();
    void randomRoundTrip();
    void textStandsInXml();
    void stream();
    void streamForm();
};

void tst_cdevicehardwareid::null()
{
    const CDeviceHardwareId id;
    QVERIFY(id.isNull());
    QVERIFY(id.prefix().isEmpty());
    QVERIFY(id.name().isEmpty());
    QCOMPARE(id.platform(), quint16(0));
    QCOMPARE(id.version(), quint16(0));
    QCOMPARE(id.revision(), quint16(0));
    QVERIFY(id.hardwareId().isEmpty());
    QVERIFY(CDeviceHardwareId(QString()).isNull());
    QVERIFY(CDeviceHardwareId(QStringLiteral("")).isNull());

    CDeviceHardwareId cleared = sample();
    QVERIFY(!cleared.isNull());
    cleared.clear();
    QVERIFY(cleared.isNull());
    QCOMPARE(cleared, id);
}

void tst_cdevicehardwareid::setters()
{
    CDeviceHardwareId id = sample();
    const CDeviceHardwareId copy = id;
    QCOMPARE(id.prefix(), text("KD3"));
    QCOMPARE(id.name(), text("Servo Drive 8A"));
    QCOMPARE(id.platform(), quint16(3));
    QCOMPARE(id.version(), quint16(2));
    QCOMPARE(id.revision(), quint16(1));
    QCOMPARE(id.hardwareId(), text("KD3:Servo Drive 8A:3:2:1"));

    id.setName(text("Other"));
    QCOMPARE(copy, sample());
    QCOMPARE(id.hardwareId(), text("KD3:Other:3:2:1"));
}

void tst_cdevicehardwareid::comparison_data()
{
    QTest::addColumn<CDeviceHardwareId>("other");

    QTest::newRow("prefix") << identity(text("KD2"), text("Servo Drive 8A"), 3, 2, 1);
    QTest::newRow("case of the prefix") << identity(text("kd3"), text("Servo Drive 8A"), 3, 2, 1);
    QTest::newRow("name") << identity(text("KD3"), text("Servo Drive 8"), 3, 2, 1);
    QTest::newRow("platform") << identity(text("KD3"), text("Servo Drive 8A"), 4, 2, 1);
    QTest::newRow("version") << identity(text("KD3"), text("Servo Drive 8A"), 3, 3, 1);
    QTest::newRow("revision") << identity(text("KD3"), text("Servo Drive 8A"), 3, 2, 2);
}

void tst_cdevicehardwareid::comparison()
{
    QFETCH(CDeviceHardwareId, other);
    QVERIFY(other != sample());
    QVERIFY(!(other == sample()));
    QVERIFY(other.hardwareId() != sample().hardwareId());
    QVERIFY(sample() == sample());
    QVERIFY(!(sample() != sample()));
}

void tst_cdevicehardwareid::accept_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<CDeviceHardwareId>("id");

    QTest::newRow("plain") << text("KD3:Servo Drive 8A:3:2:1") << sample();
    QTest::newRow("no texts") << text("::1:2:3") << identity(QString(), QString(), 1, 2, 3);
    QTest::newRow("no prefix") << text(":n:0:0:0") << identity(QString(), text("n"), 0, 0, 0);
    QTest::newRow("no name") << text("p::0:0:0") << identity(text("p"), QString(), 0, 0, 0);
    QTest::newRow("all as by default") << text("::0:0:0") << CDeviceHardwareId();
    QTest::newRow("largest numbers")
        << text("p:n:65535:65535:65535") << identity(text("p"), text("n"), 65535, 65535, 65535);
    QTest::newRow("zeros in front")
        << text("p:n:00001:0:000000000002") << identity(text("p"), text("n"), 1, 0, 2);
    QTest::newRow("blanks in the texts")
        << text(" p : n :1:2:3") << identity(text(" p "), text(" n "), 1, 2, 3);
    QTest::newRow("non-Latin") << text("\xe8\xbb\xb8:\xc3\xa4\xf0\x9f\x98\x80:1:2:3")
                               << identity(text("\xe8\xbb\xb8"), text("\xc3\xa4\xf0\x9f\x98\x80"),
                                           1, 2, 3);
    QTest::newRow("escaped marks")
        << text("a%003Ab:c%0025d:1:2:3") << identity(text("a:b"), text("c%d"), 1, 2, 3);
    QTest::newRow("escapes in lower case")
        << text("a%003ab:c:1:2:3") << identity(text("a:b"), text("c"), 1, 2, 3);
    QTest::newRow("escape without need")
        << text("%0041:n:1:2:3") << identity(text("A"), text("n"), 1, 2, 3);
    QTest::newRow("escape followed by a digit")
        << text("%00250025:n:1:2:3") << identity(text("%0025"), text("n"), 1, 2, 3);
    QTest::newRow("escaped surrogate pair")
        << text("%D83D%DE00:n:1:2:3") << identity(text("\xf0\x9f\x98\x80"), text("n"), 1, 2, 3);
}

void tst_cdevicehardwareid::accept()
{
    QFETCH(QString, form);
    QFETCH(CDeviceHardwareId, id);

    QCOMPARE(CDeviceHardwareId(form), id);
    CDeviceHardwareId assigned = identity(text("x"), text("y"), 7, 8, 9);
    assigned = form;
    QCOMPARE(assigned, id);
    QCOMPARE(CDeviceHardwareId(id.hardwareId()), id);
}

void tst_cdevicehardwareid::reject_data()
{
    QTest::addColumn<QString>("form");

    const auto row = [](const char *name, const char *form) { QTest::newRow(name) << text(form); };
    row("blank", " ");
    row("text alone", "KD3");
    row("separators alone", "::::");
    row("four parts", "KD3:Servo Drive 8A:3:2");
    row("six parts", "KD3:Servo Drive 8A:3:2:1:0");
    row("separator at end", "KD3:Servo Drive 8A:3:2:1:");
    row("separator at start", ":KD3:Servo Drive 8A:3:2:1");
    row("platform empty", "KD3:n::2:1");
    row("version empty", "KD3:n:3::1");
    row("revision empty", "KD3:n:3:2:");
    row("platform one too large", "KD3:n:65536:2:1");
    row("version one too large", "KD3:n:3:65536:1");
    row("revision one too large", "KD3:n:3:2:65536");
    row("revision overflows to zero", "KD3:n:3:2:4294967296");
    row("revision very long", "KD3:n:3:2:99999999999999999999999");
    row("negative platform", "KD3:n:-1:2:1");
    row("negative zero", "KD3:n:-0:2:1");
    row("plus", "KD3:n:+3:2:1");
    row("blank in front of a number", "KD3:n: 3:2:1");
    row("blank behind a number", "KD3:n:3 :2:1");
    row("text behind the last number", "KD3:n:3:2:1x");
    row("blank behind the last number", "KD3:n:3:2:1 ");
    row("line break behind the last number", "KD3:n:3:2:1\n");
    row("hexadecimal number", "KD3:n:0x3:2:1");
    row("fraction", "KD3:n:3.0:2:1");
    row("Arabic digit", "KD3:n:\xd9\xa3:2:1");
    row("full-width digit", "KD3:n:\xef\xbc\x93:2:1");
    row("escape mark alone", "KD3:n%:3:2:1");
    row("escape one digit short", "KD3:n%003:3:2:1");
    row("escape with a letter beyond F", "KD3:n%00G5:3:2:1");
    row("escape with a blank", "KD3:n% 025:3:2:1");
    row("escape with a sign", "KD3:n%+025:3:2:1");
    row("escape with a full-width digit",
        "KD3:n%\xef\xbc\x90"
        "025:3:2:1");
    row("escape cut by the separator", "KD%00:3A:3:2:1");
    row("escape in a number", "KD3:n:%0033:2:1");
    row("other separator", "KD3;n;3;2;1");
    row("full-width separator", "KD3\xef\xbc\x9an:3:2:1");
}

void tst_cdevicehardwareid::reject()
{
    QFETCH(QString, form);

    QVERIFY(CDeviceHardwareId(form).isNull());
    // Nothing of what was there may be left, nor anything of what did parse.
    CDeviceHardwareId id = sample();
    id = form;
    QVERIFY(id.isNull());
    QCOMPARE(id, CDeviceHardwareId());
    QVERIFY(id.hardwareId().isEmpty());
}

void tst_cdevicehardwareid::writtenForm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");

    QTest::newRow("plain") << text("abc 1.2-3_") << text("abc 1.2-3_");
    QTest::newRow("separator") << text("a:b") << text("a%003Ab");
    QTest::newRow("escape mark") << text("a%b") << text("a%0025b");
    QTest::newRow("looks escaped") << text("%003A") << text("%0025003A");
    QTest::newRow("tab") << text("\t") << text("%0009");
    QTest::newRow("line breaks") << text("\r\n") << text("%000D%000A");
    QTest::newRow("null character") << QString(QChar(QChar::Null)) << text("%0000");
    QTest::newRow("delete") << QString(QChar(0x7f)) << text("%007F");
    QTest::newRow("high control") << QString(QChar(0x85)) << text("%0085");
    QTest::newRow("surrogate pair") << text("\xf0\x9f\x98\x80") << text("\xf0\x9f\x98\x80");
    QTest::newRow("high surrogate") << QString(QChar(0xd800)) << text("%D800");
    QTest::newRow("low surrogate") << QString(QChar(0xdfff)) << text("%DFFF");
    QTest::newRow("reversed pair") << QString(QChar(0xde00)) + QChar(0xd83d) << text("%DE00%D83D");
    QTest::newRow("high surrogate before a pair")
        << QChar(0xd800) + text("\xf0\x9f\x98\x80") << text("%D800\xf0\x9f\x98\x80");
    QTest::newRow("low surrogate behind a pair")
        << text("\xf0\x9f\x98\x80") + QChar(0xdc00) << text("\xf0\x9f\x98\x80%DC00");
    QTest::newRow("no characters") << QString(QChar(0xfffe)) + QChar(0xffff) << text("%FFFE%FFFF");
    QTest::newRow("last character") << QString(QChar(0xfffd)) << QString(QChar(0xfffd));
}

void tst_cdevicehardwareid::writtenForm()
{
    QFETCH(QString, name);
    QFETCH(QString, written);

    const CDeviceHardwareId asName = identity(QString(), name, 1, 2, 3);
    QCOMPARE(asName.hardwareId(), QStringLiteral(":%1:1:2:3").arg(written));
    QCOMPARE(CDeviceHardwareId(asName.hardwareId()), asName);

    const CDeviceHardwareId asPrefix = identity(name, QString(), 1, 2, 3);
    QCOMPARE(asPrefix.hardwareId(), QStringLiteral("%1::1:2:3").arg(written));
    QCOMPARE(CDeviceHardwareId(asPrefix.hardwareId()), asPrefix);
}

void tst_cdevicehardwareid::randomRoundTrip()
{
    QRandomGenerator random(20260131u);
    QHash<QString, CDeviceHardwareId> byForm;
    for (int i = 0; i < 20000; ++i) {
        const CDeviceHardwareId id =
            identity(randomText(random), randomText(random), randomNumber(random),
                     randomNumber(random), randomNumber(random));
        const QString form = id.hardwareId();
        const CDeviceHardwareId back(form);
        QVERIFY2(back == id, qPrintable(form));
        QCOMPARE(back.hardwareId(), form);
        QCOMPARE(form.isEmpty(), id.isNull());
        // Different identities never share a text.
        QVERIFY(!byForm.contains(form) || byForm.value(form) == id);
        byForm.insert(form, id);
    }
}

void tst_cdevicehardwareid::textStandsInXml()
{
    QRandomGenerator random(42u);
    for (int i = 0; i < 3000; ++i) {
        const CDeviceHardwareId id = identity(randomText(random), randomText(random), 1, 2, 3);
        QDomDocument document;
        QDomElement root = document.createElement(QStringLiteral("R"));
        root.appendChild(document.createTextNode(id.hardwareId()));
        document.appendChild(root);

        QXmlStreamReader reader(document.toByteArray(-1));
        QVERIFY(reader.readNextStartElement());
        const QString read = reader.readElementText();
        QVERIFY2(!reader.hasError(), qPrintable(id.hardwareId()));
        QCOMPARE(CDeviceHardwareId(read), id);
    }
}

void tst_cdevicehardwareid::stream()
{
    QRandomGenerator random(7u);
    for (int i = 0; i < 1000; ++i) {
        const CDeviceHardwareId id =
            identity(randomText(random), randomText(random), randomNumber(random),
                     randomNumber(random), randomNumber(random));
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << id;
        CDeviceHardwareId back = sample();
        QDataStream in(bytes);
        in >> back;
        QCOMPARE(back, id);
        QVERIFY(in.atEnd());
        QCOMPARE(in.status(), QDataStream::Ok);
    }
}

void tst_cdevicehardwareid::streamForm()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << identity(text("K"), text("n"), 0x0102, 0x0304, 0x0506);
    QCOMPARE(bytes.toHex(),
             QByteArray("00000002004b"
                        "00000002006e"
                        "0102"
                        "0304"
                        "0506"));
}

QTEST_GUILESS_MAIN(tst_cdevicehardwareid)
#include "tst_cdevicehardwareid.moc"
