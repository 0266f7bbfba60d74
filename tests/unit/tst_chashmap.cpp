#include "devicefiles/CHashMap.h"
#include "support/Literals.h"
#include "support/TestProgram.h"

#include <QPair>
#include <QStringList>
#include <QTest>

#include <type_traits>

namespace {

using Map = CHashMap<QString, QString>;
using Pairs = QList<QPair<QString, QString>>;

/** Has no qHash(). */
struct SKey {
    int first;
    int second;
    bool operator==(const SKey &other) const
    {
        return first == other.first && second == other.second;
    }
};

Map mapOf(const Pairs &pairs)
{
    Map result;
    for (const auto &pair : pairs) {
        result.insert(pair.first, pair.second);
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Pairs)

class tst_chashmap : public QObject
{
    Q_OBJECT

private slots:
    void empty();
    void insert_data();
    void insert();
    void value_data();
    void value();
    void clear();
    void copies();
    void otherTypes();
    void fields();
    void ofLists();
    void virtualDestructor();
};

void tst_chashmap::empty()
{
    const Map map;
    QVERIFY(map.isEmpty());
    QCOMPARE(map.keys(), QList<QString>());
    QCOMPARE(map.values(), QList<QString>());
    QCOMPARE(map.value(u"a"_s), QString());
}

void tst_chashmap::insert_data()
{
    QTest::addColumn<Pairs>("inserted");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("values");

    const auto row = [](const char *name, const Pairs &inserted, const QStringList &keys,
                        const QStringList &values) {
        QTest::newRow(name) << inserted << keys << values;
    };
    row("one", {{u"a"_s, u"1"_s}}, {u"a"_s}, {u"1"_s});
    row("not sorted", {{u"z"_s, u"1"_s}, {u"a"_s, u"3"_s}, {u"m"_s, u"2"_s}},
        {u"z"_s, u"a"_s, u"m"_s}, {u"1"_s, u"3"_s, u"2"_s});
    row("first replaced", {{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}, {u"a"_s, u"3"_s}}, {u"a"_s, u"b"_s},
        {u"3"_s, u"2"_s});
    row("last replaced", {{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}, {u"b"_s, u"3"_s}}, {u"a"_s, u"b"_s},
        {u"1"_s, u"3"_s});
    row("replaced by an empty value", {{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}, {u"a"_s, u""_s}},
        {u"a"_s, u"b"_s}, {u""_s, u"2"_s});
    row("replaced, then another", {{u"a"_s, u"1"_s}, {u"a"_s, u"2"_s}, {u"b"_s, u"3"_s}},
        {u"a"_s, u"b"_s}, {u"2"_s, u"3"_s});
    row("replaced by the same", {{u"a"_s, u"1"_s}, {u"a"_s, u"1"_s}}, {u"a"_s}, {u"1"_s});
    row("equal values", {{u"a"_s, u"1"_s}, {u"b"_s, u"1"_s}}, {u"a"_s, u"b"_s}, {u"1"_s, u"1"_s});
    row("case counts", {{u"key"_s, u"v"_s}, {u"KEY"_s, u"V"_s}, {u"Key"_s, u"V"_s}},
        {u"key"_s, u"KEY"_s, u"Key"_s}, {u"v"_s, u"V"_s, u"V"_s});
    row("blanks count", {{u"a"_s, u"1"_s}, {u" a"_s, u"2"_s}, {u"a "_s, u"3"_s}},
        {u"a"_s, u" a"_s, u"a "_s}, {u"1"_s, u"2"_s, u"3"_s});
    row("compositions count", {{u"\u00e9"_s, u"1"_s}, {u"e\u0301"_s, u"2"_s}},
        {u"\u00e9"_s, u"e\u0301"_s}, {u"1"_s, u"2"_s});
    row("empty key", {{u"a"_s, u"1"_s}, {u""_s, u"2"_s}}, {u"a"_s, u""_s}, {u"1"_s, u"2"_s});
    row("null key equals empty key", {{QString(), u"1"_s}, {u""_s, u"2"_s}}, {u""_s}, {u"2"_s});
}

void tst_chashmap::insert()
{
    QFETCH(Pairs, inserted);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, values);

    const Map map = mapOf(inserted);
    QCOMPARE(QStringList(map.keys()), keys);
    QCOMPARE(QStringList(map.values()), values);
    QVERIFY(!map.isEmpty());
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(map.value(keys.at(i)), values.at(i));
    }
}

void tst_chashmap::value_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    QTest::newRow("first") << u"a"_s << u"1"_s;
    QTest::newRow("last") << u"c"_s << u"3"_s;
    QTest::newRow("empty value") << u"b"_s << u""_s;
    QTest::newRow("unknown") << u"d"_s << u""_s;
    QTest::newRow("another case") << u"A"_s << u""_s;
    QTest::newRow("longer than a key") << u"aa"_s << u""_s;
    QTest::newRow("a value") << u"1"_s << u""_s;
    QTest::newRow("null") << QString() << u""_s;
}

void tst_chashmap::value()
{
    QFETCH(QString, key);

    const Map map = mapOf({{u"a"_s, u"1"_s}, {u"b"_s, u""_s}, {u"c"_s, u"3"_s}});
    QTEST(map.value(key), "value");
    QCOMPARE(QStringList(map.keys()), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

void tst_chashmap::clear()
{
    Map map = mapOf({{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}});
    map.clear();
    QVERIFY(map.isEmpty());
    QVERIFY(map.keys().isEmpty());
    QVERIFY(map.values().isEmpty());
    QCOMPARE(map.value(u"a"_s), QString());

    // Nothing of the old order is left.
    map.insert(u"b"_s, u"3"_s);
    map.insert(u"a"_s, u"4"_s);
    QCOMPARE(QStringList(map.keys()), (QStringList{u"b"_s, u"a"_s}));
    QCOMPARE(QStringList(map.values()), (QStringList{u"3"_s, u"4"_s}));
}

void tst_chashmap::copies()
{
    Map original = mapOf({{u"a"_s, u"1"_s}});
    Map copy(original);
    Map assigned = mapOf({{u"x"_s, u"9"_s}, {u"y"_s, u"8"_s}});
    assigned = original;
    original.insert(u"a"_s, u"2"_s);
    copy.insert(u"b"_s, u"3"_s);

    QCOMPARE(QStringList(original.keys()), QStringList(u"a"_s));
    QCOMPARE(original.value(u"a"_s), u"2"_s);
    QCOMPARE(QStringList(copy.keys()), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(copy.value(u"a"_s), u"1"_s);
    QCOMPARE(QStringList(assigned.keys()), QStringList(u"a"_s));
    QCOMPARE(assigned.value(u"a"_s), u"1"_s);
    QCOMPARE(assigned.value(u"x"_s), QString());
}

void tst_chashmap::otherTypes()
{
    CHashMap<int, int> map;
    map.insert(7, 70);
    map.insert(-1, 10);
    map.insert(7, 71);
    QCOMPARE(map.keys(), (QList<int>{7, -1}));
    QCOMPARE(map.values(), (QList<int>{71, 10}));
    QCOMPARE(map.value(8), 0);

    // A key has to be comparable, and nothing more.
    CHashMap<SKey, QString> comparable;
    comparable.insert({1, 2}, u"a"_s);
    comparable.insert({1, 3}, u"b"_s);
    comparable.insert({1, 2}, u"c"_s);
    QCOMPARE(comparable.value({1, 2}), u"c"_s);
    QCOMPARE(comparable.value({1, 3}), u"b"_s);
    QCOMPARE(comparable.keys().size(), 2);
}

void tst_chashmap::fields()
{
    // The keys and the values, in this order, and no more.
    struct SFields {
        virtual ~SFields() = default;
        QList<QString> keys;
        QList<QString> values;
    };
    QCOMPARE(sizeof(Map), sizeof(SFields));
}

void tst_chashmap::ofLists()
{
    Map map({u"b"_s, u"a"_s}, {u"1"_s, u"2"_s});
    QCOMPARE(map.value(u"b"_s), u"1"_s);
    QCOMPARE(map.value(u"a"_s), u"2"_s);
    map.insert(u"c"_s, u"3"_s);
    map.insert(u"b"_s, u"4"_s);
    QCOMPARE(QStringList(map.keys()), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    QCOMPARE(QStringList(map.values()), (QStringList{u"4"_s, u"2"_s, u"3"_s}));
    QVERIFY(Map(QList<QString>(), QList<QString>()).isEmpty());
}

void tst_chashmap::virtualDestructor()
{
    QVERIFY(std::has_virtual_destructor<Map>::value);
}

REGISTER_APPLESS_TEST(tst_chashmap)
#include "tst_chashmap.moc"
