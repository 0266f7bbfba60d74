#include "elements/CPluginElement.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(CPluginElement)

namespace {

const int NoPriority = std::numeric_limits<qint32>::min();

CPluginElement plugin(const QString &name, const QString &version, int priority = NoPriority)
{
    CPluginElement result;
    result.setName(name);
    result.setVersion(version);
    result.setPriority(priority);
    return result;
}

class Renamed : public CPluginElement
{
public:
    QString name() const override { return u"other"_s; }
    QString version() const override { return u"9"_s; }
};

} // namespace

class tst_cpluginelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void null_data();
    void null();
    void equality_data();
    void equality();
    void fileName_data();
    void fileName();
    void fileNameCallsVirtualAccessors();
    void streamForm_data();
    void streamForm();
};

void tst_cpluginelement::defaults()
{
    const CPluginElement element;
    QVERIFY(element.isNull());
    QVERIFY(element.name().isEmpty());
    QVERIFY(!element.name().isNull());
    QCOMPARE(element.priority(), -2147483647 - 1);
    QVERIFY(element.version().isEmpty());
    QVERIFY(!element.version().isNull());
}

void tst_cpluginelement::null_data()
{
    QTest::addColumn<CPluginElement>("element");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("default") << CPluginElement() << true;
    QTest::newRow("null texts") << plugin(QString(), QString()) << true;
    QTest::newRow("name") << plugin(u"n"_s, u""_s) << false;
    QTest::newRow("version") << plugin(u""_s, u"1"_s) << false;
    QTest::newRow("priority 0") << plugin(u""_s, u""_s, 0) << false;
    QTest::newRow("lowest priority but one") << plugin(u""_s, u""_s, NoPriority + 1) << false;
}

void tst_cpluginelement::null()
{
    QFETCH(CPluginElement, element);
    QFETCH(bool, isNull);

    QCOMPARE(element.isNull(), isNull);
    QCOMPARE(element == CPluginElement(), isNull);
    element.clear();
    QVERIFY(element.isNull());
    QVERIFY(!element.name().isNull());
    QVERIFY(!element.version().isNull());
}

void tst_cpluginelement::equality_data()
{
    QTest::addColumn<CPluginElement>("left");
    QTest::addColumn<CPluginElement>("right");
    QTest::addColumn<bool>("equal");

    const CPluginElement full = plugin(u"n"_s, u"1"_s, 5);
    QTest::newRow("same data") << full << full << true;
    QTest::newRow("same fields") << full << plugin(u"n"_s, u"1"_s, 5) << true;
    QTest::newRow("name in another case") << full << plugin(u"N"_s, u"1"_s, 5) << false;
    QTest::newRow("version") << full << plugin(u"n"_s, u"1.0"_s, 5) << false;
    QTest::newRow("priority") << full << plugin(u"n"_s, u"1"_s, 6) << false;
    QTest::newRow("no priority") << full << plugin(u"n"_s, u"1"_s) << false;
}

void tst_cpluginelement::equality()
{
    QFETCH(CPluginElement, left);
    QFETCH(CPluginElement, right);
    QFETCH(bool, equal);

    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

void tst_cpluginelement::fileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("fileName");

    const auto row = [](const char *rowName, const QString &name, const QString &version,
                        const QString &fileName) {
        QTest::newRow(rowName) << name << version << fileName;
    };
    row("one number", u"motion"_s, u"2"_s, u"pi_motion.so.2"_s);
    row("two numbers", u"ecat"_s, u"1.3"_s, u"pi_ecat.so.1.3"_s);
    row("prefixed", u"pi_x"_s, u"1"_s, u"pi_x.so.1"_s);
    row("prefixed twice", u"pi_pi_x"_s, u"1"_s, u"pi_pi_x.so.1"_s);
    row("prefix alone", u"pi_"_s, u"1"_s, u"pi_.so.1"_s);
    row("half a prefix", u"pi"_s, u"1"_s, u"pi_pi.so.1"_s);
    row("prefix in another case", u"PI_x"_s, u"1"_s, u"pi_PI_x.so.1"_s);
    row("prefix inside", u"x_pi_"_s, u"1"_s, u"pi_x_pi_.so.1"_s);
    row("no version", u"x"_s, u""_s, u"pi_x.so."_s);
    row("null version", u"x"_s, QString(), u"pi_x.so."_s);
    row("nothing", u""_s, u""_s, u"pi_.so."_s);
    row("place marker in the name", u"a%2b"_s, u"1"_s, u"pi_a%2b.so.1"_s);
    row("place marker in the version", u"a"_s, u"%1"_s, u"pi_a.so.%1"_s);
}

void tst_cpluginelement::fileName()
{
    QFETCH(QString, name);
    QFETCH(QString, version);
    QTEST(plugin(name, version).fileName(), "fileName");
}

void tst_cpluginelement::fileNameCallsVirtualAccessors()
{
    QCOMPARE(Renamed().fileName(), u"pi_other.so.9"_s);
}

void tst_cpluginelement::streamForm_data()
{
    QTest::addColumn<CPluginElement>("element");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("default: empty, not null")
        << CPluginElement() << QByteArray::fromHex("00000000 80000000 00000000");
    QTest::newRow("null texts") << plugin(QString(), QString(), 0)
                                << QByteArray::fromHex("ffffffff 00000000 ffffffff");
    QTest::newRow("all fields") << plugin(u"n"_s, u"1.2"_s, 258)
                                << QByteArray::fromHex("00000002 006e"
                                                       "00000102"
                                                       "00000006 0031 002e 0032");
    QTest::newRow("negative priority")
        << plugin(u"n"_s, u""_s, -2) << QByteArray::fromHex("00000002 006e fffffffe 00000000");
}

void tst_cpluginelement::streamForm()
{
    QFETCH(CPluginElement, element);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));

    CPluginElement read = plugin(u"old"_s, u"old"_s, 1);
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == element);
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

REGISTER_APPLESS_TEST(tst_cpluginelement)
#include "tst_cpluginelement.moc"
