#include "elements/CDescriptionElement.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <ctime>

using Change = void (*)(CDescriptionElement &);
Q_DECLARE_METATYPE(CDescriptionElement)
Q_DECLARE_METATYPE(Change)

namespace {

/** Two time zones whose clocks are 26 hours apart, so that their dates always differ. */
const char FarWest[] = "WEST+12";
const char FarEast[] = "EAST-14";

/** Another time zone while it lives. */
class TimeZone
{
public:
    explicit TimeZone(const char *name)
        : m_previous(qgetenv("TZ")), m_wasSet(qEnvironmentVariableIsSet("TZ"))
    {
        set(name);
    }

    ~TimeZone()
    {
        if (m_wasSet) {
            set(m_previous);
        } else {
            qunsetenv("TZ");
            tzset();
        }
    }

    void set(const QByteArray &name)
    {
        qputenv("TZ", name);
        tzset();
    }

private:
    Q_DISABLE_COPY(TimeZone)

    const QByteArray m_previous;
    const bool m_wasSet;
};

CDescriptionElement full()
{
    CDescriptionElement result;
    result.setName(u"n"_s);
    result.setComment(u"c"_s);
    result.setVersion(u"2"_s);
    result.setCreationDate(QDate(2000, 1, 1));
    result.setRevisionDate(QDate(2000, 1, 2));
    return result;
}

} // namespace

class tst_cdescriptionelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void changedField_data();
    void changedField();
    void equality_data();
    void equality();
    void nullLastsForADay();
    void clearTakesTheDayOfTheCall();
    void streamForm_data();
    void streamForm();
};

void tst_cdescriptionelement::defaults()
{
    const QDate before = QDate::currentDate();
    const CDescriptionElement element;
    const QDate after = QDate::currentDate();
    QVERIFY(element.name().isNull());
    QVERIFY(element.comment().isNull());
    QCOMPARE(element.version(), u"1.0"_s);
    // The two differ when midnight is between them.
    QVERIFY(element.creationDate() == before || element.creationDate() == after);
    QVERIFY(element.revisionDate() == before || element.revisionDate() == after);
    if (before == after && QDate::currentDate() == before) {
        QVERIFY(element.isNull() || QDate::currentDate() != before);
    }
}

void tst_cdescriptionelement::changedField_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("name", [](CDescriptionElement &d) { d.setName(u"n"_s); });
    row("comment", [](CDescriptionElement &d) { d.setComment(u"c"_s); });
    row("version", [](CDescriptionElement &d) { d.setVersion(u"1"_s); });
    row("no version", [](CDescriptionElement &d) { d.setVersion(QString()); });
    row("creation date", [](CDescriptionElement &d) { d.setCreationDate(QDate(2000, 2, 29)); });
    row("no creation date", [](CDescriptionElement &d) { d.setCreationDate(QDate()); });
    row("revision date", [](CDescriptionElement &d) { d.setRevisionDate(QDate(2000, 2, 29)); });
    row("no revision date", [](CDescriptionElement &d) { d.setRevisionDate(QDate()); });
}

void tst_cdescriptionelement::changedField()
{
    QFETCH(Change, change);

    CDescriptionElement element;
    const CDescriptionElement original(element);
    change(element);
    QVERIFY(!element.isNull());
    QVERIFY(element != original);
    QVERIFY(!(element == original));

    element.clear();
    const QDate today = element.creationDate();
    QVERIFY(element.isNull() || QDate::currentDate() != today);
    QCOMPARE(element.version(), u"1.0"_s);
}

void tst_cdescriptionelement::equality_data()
{
    QTest::addColumn<CDescriptionElement>("right");
    QTest::addColumn<bool>("equal");

    QTest::newRow("same fields") << full() << true;
    const auto row = [](const char *name, Change change) {
        CDescriptionElement element = full();
        change(element);
        QTest::newRow(name) << element << false;
    };
    row("name", [](CDescriptionElement &d) { d.setName(u"N"_s); });
    row("comment", [](CDescriptionElement &d) { d.setComment(u"C"_s); });
    row("version", [](CDescriptionElement &d) { d.setVersion(u"2.0"_s); });
    row("creation date", [](CDescriptionElement &d) { d.setCreationDate(QDate(2000, 1, 2)); });
    row("revision date", [](CDescriptionElement &d) { d.setRevisionDate(QDate(2000, 1, 1)); });
}

void tst_cdescriptionelement::equality()
{
    QFETCH(CDescriptionElement, right);
    QFETCH(bool, equal);

    QCOMPARE(full() == right, equal);
    QCOMPARE(right == full(), equal);
    QCOMPARE(full() != right, !equal);
}

void tst_cdescriptionelement::nullLastsForADay()
{
    TimeZone zone(FarWest);
    const QDate firstDay = QDate::currentDate();
    const CDescriptionElement element;
    zone.set(FarEast);
    QVERIFY(QDate::currentDate() != firstDay);

    // Deliberate: a description from another day is no longer null.
    QVERIFY(!element.isNull());
    QVERIFY(element != CDescriptionElement());

    CDescriptionElement created;
    created.setCreationDate(element.creationDate());
    QVERIFY(!created.isNull());
    CDescriptionElement revised;
    revised.setRevisionDate(element.revisionDate());
    QVERIFY(!revised.isNull());
}

void tst_cdescriptionelement::clearTakesTheDayOfTheCall()
{
    TimeZone zone(FarWest);
    CDescriptionElement element;
    const QDate firstDay = element.creationDate();
    zone.set(FarEast);
    element.clear();
    QVERIFY(element.creationDate() > firstDay);
    QVERIFY(element.revisionDate() > firstDay);
}

void tst_cdescriptionelement::streamForm_data()
{
    QTest::addColumn<CDescriptionElement>("element");
    QTest::addColumn<QByteArray>("bytes");

    // A date is its Julian day, in 64 bits.
    QTest::newRow("all fields") << full()
                                << QByteArray::fromHex("00000002 006e"
                                                       "00000002 0063"
                                                       "00000002 0032"
                                                       "0000000000256859"
                                                       "000000000025685a");
    CDescriptionElement nothing;
    nothing.setVersion(u""_s);
    nothing.setCreationDate(QDate());
    nothing.setRevisionDate(QDate());
    QTest::newRow("nothing") << nothing
                             << QByteArray::fromHex("ffffffff ffffffff 00000000"
                                                    "8000000000000000"
                                                    "8000000000000000");
    CDescriptionElement defaults;
    defaults.setCreationDate(QDate(1858, 11, 17));
    defaults.setRevisionDate(QDate(1858, 11, 17));
    QTest::newRow("default texts") << defaults
                                   << QByteArray::fromHex("ffffffff ffffffff"
                                                          "00000006 0031 002e 0030"
                                                          "000000000024 9f01"
                                                          "000000000024 9f01");
}

void tst_cdescriptionelement::streamForm()
{
    QFETCH(CDescriptionElement, element);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));

    CDescriptionElement read;
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == element);
    QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
}

REGISTER_APPLESS_TEST(tst_cdescriptionelement)
#include "tst_cdescriptionelement.moc"
