#include "commissioning/CItemFindings.h"
#include "support/Literals.h"

#include <QTest>

namespace {

SConfigurationFinding
finding(const QString &item,
        SConfigurationFinding::ESeverity severity = SConfigurationFinding::ERROR)
{
    SConfigurationFinding result;
    result.rule = u"rule"_s;
    result.severity = severity;
    result.item = item;
    return result;
}

} // namespace

class tst_citemfindings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void above_data();
    void above();
    void nearestShownItem_data();
    void nearestShownItem();
    void orderIsKept();
    void severitiesAreCounted();
    void absentPositions();
};

void tst_citemfindings::above_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("one word") << u"drive"_s << QString();
    QTest::newRow("word of a word") << u"device.name"_s << u"device"_s;
    QTest::newRow("entry") << u"drive[2]"_s << u"drive"_s;
    QTest::newRow("item of an entry") << u"drive[2].name"_s << u"drive[2]"_s;
    QTest::newRow("second entry of a key") << u"files[a][2]"_s << u"files[a]"_s;
    QTest::newRow("item of a second entry") << u"files[a][2].name"_s << u"files[a][2]"_s;
    QTest::newRow("dot in a key") << u"files[a.xml]"_s << u"files"_s;
    QTest::newRow("bracket in a key") << u"files[a[b.c]"_s << u"files"_s;
    QTest::newRow("escaped bracket") << u"files[a\\].b[c]"_s << u"files"_s;
    QTest::newRow("escaped back-slash") << u"files[a\\\\].name"_s << u"files[a\\\\]"_s;
    QTest::newRow("key that does not end") << u"files[a.b"_s << u"files"_s;
    QTest::newRow("back-slash at the end") << u"files[a\\"_s << u"files"_s;
}

void tst_citemfindings::above()
{
    QFETCH(QString, path);
    QTEST(CItemFindings::above(path), "expected");
}

void tst_citemfindings::nearestShownItem_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole document") << QString() << QString();
    QTest::newRow("itself") << u"drive[2]"_s << u"drive[2]"_s;
    QTest::newRow("item below") << u"drive[2].name"_s << u"drive[2]"_s;
    QTest::newRow("shown item below") << u"drive[2].param.name"_s << u"drive[2].param"_s;
    QTest::newRow("entry that is not shown") << u"drive[3].name"_s << u"drive"_s;
    QTest::newRow("number that begins alike") << u"drive[21]"_s << u"drive"_s;
    QTest::newRow("second entry of a key") << u"files[a][2].comment"_s << u"files[a][2]"_s;
    QTest::newRow("third entry of a key") << u"files[a][3].comment"_s << u"files[a]"_s;
    QTest::newRow("key with all signs") << u"files[\\].\\\\[].comment"_s << u"files[\\].\\\\[]"_s;
    QTest::newRow("nothing above is shown") << u"device.name"_s << QString();
    QTest::newRow("no path") << u"...[["_s << QString();
}

void tst_citemfindings::nearestShownItem()
{
    QFETCH(QString, item);
    QFETCH(QString, expected);
    const CItemFindings findings({finding(item)},
                                 {u"drive"_s, u"drive[2]"_s, u"drive[2].param"_s, u"files[a]"_s,
                                  u"files[a][2]"_s, u"files[\\].\\\\[]"_s});
    QCOMPARE(findings.place(0), expected);
    QCOMPARE(findings.at(expected), QList<int>{0});
}

void tst_citemfindings::orderIsKept()
{
    const CItemFindings findings({finding(u"drive[2].name"_s), finding(u"device"_s),
                                  finding(u"drive[2]"_s), finding(u"drive[2].busId"_s)},
                                 {u"drive[2]"_s});
    QCOMPARE(findings.at(u"drive[2]"_s), (QList<int>{0, 2, 3}));
    QCOMPARE(findings.at(QString()), QList<int>{1});
    QCOMPARE(findings.all().size(), 4);
    QCOMPARE(findings.at(3).item, u"drive[2].busId"_s);
}

void tst_citemfindings::severitiesAreCounted()
{
    const CItemFindings findings({finding(u"a"_s, SConfigurationFinding::WARNING),
                                  finding(u"b"_s, SConfigurationFinding::ERROR),
                                  finding(u"c"_s, SConfigurationFinding::WARNING)},
                                 {});
    QCOMPARE(findings.count(SConfigurationFinding::ERROR), 1);
    QCOMPARE(findings.count(SConfigurationFinding::WARNING), 2);
}

void tst_citemfindings::absentPositions()
{
    const CItemFindings findings({finding(u"a"_s)}, {});
    QVERIFY(findings.at(1).rule.isEmpty());
    QVERIFY(findings.at(-1).rule.isEmpty());
    QVERIFY(findings.place(1).isEmpty());
    QVERIFY(findings.at(u"a"_s).isEmpty());
}

QTEST_APPLESS_MAIN(tst_citemfindings)
#include "tst_citemfindings.moc"
