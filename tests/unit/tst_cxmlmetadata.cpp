#include "imported/CXMLMetaData.h"

#include <QtTest>

Q_DECLARE_METATYPE(CXMLMetaData)

namespace {

CXMLMetaData metaData(const QString &author, const QDate &date, const QString &comment)
{
    CXMLMetaData result;
    result.setAuthor(author);
    result.setDate(date);
    result.setComment(comment);
    return result;
}

const QString Author = QStringLiteral("A. Engineer");
const QString Comment = QStringLiteral("For the press");

} // namespace

class tst_cxmlmetadata : public QObject
{
    Q_OBJECT

private slots:
    void accessors();
    void null_data();
    void null();
    void comparison_data();
    void comparison();
    void copy();
};

void tst_cxmlmetadata::accessors()
{
    const QDate date(2026, 1, 31);
    const CXMLMetaData data = metaData(Author, date, Comment);
    QCOMPARE(data.author(), Author);
    QCOMPARE(data.date(), date);
    QCOMPARE(data.comment(), Comment);
}

void tst_cxmlmetadata::null_data()
{
    QTest::addColumn<CXMLMetaData>("data");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("default") << CXMLMetaData() << true;
    QTest::newRow("empty texts") << metaData(QStringLiteral(""), QDate(), QStringLiteral(""))
                                 << true;
    QTest::newRow("invalid date") << metaData(QString(), QDate(2026, 2, 30), QString()) << true;
    QTest::newRow("author") << metaData(Author, QDate(), QString()) << false;
    QTest::newRow("date") << metaData(QString(), QDate(2026, 1, 31), QString()) << false;
    QTest::newRow("comment") << metaData(QString(), QDate(), Comment) << false;
    QTest::newRow("blank") << metaData(QStringLiteral(" "), QDate(), QString()) << false;
}

void tst_cxmlmetadata::null()
{
    QFETCH(CXMLMetaData, data);
    QFETCH(bool, isNull);
    QCOMPARE(data.isNull(), isNull);
    QCOMPARE(data == CXMLMetaData(), isNull);
    QCOMPARE(data != CXMLMetaData(), !isNull);
}

void tst_cxmlmetadata::comparison_data()
{
    QTest::addColumn<CXMLMetaData>("other");

    const QDate date(2026, 1, 31);
    QTest::newRow("author") << metaData(QStringLiteral("a. engineer"), date, Comment);
    QTest::newRow("date") << metaData(Author, date.addDays(1), Comment);
    QTest::newRow("no date") << metaData(Author, QDate(), Comment);
    QTest::newRow("comment") << metaData(Author, date, Comment + QLatin1Char(' '));
    QTest::newRow("author and comment exchanged") << metaData(Comment, date, Author);
}

void tst_cxmlmetadata::comparison()
{
    QFETCH(CXMLMetaData, other);
    const CXMLMetaData data = metaData(Author, QDate(2026, 1, 31), Comment);
    QVERIFY(data == data);
    QVERIFY(!(data != data));
    QVERIFY(data != other);
    QVERIFY(!(data == other));
}

void tst_cxmlmetadata::copy()
{
    const CXMLMetaData data = metaData(Author, QDate(2026, 1, 31), Comment);
    CXMLMetaData changed = data;
    QVERIFY(changed == data);
    changed.setAuthor(QString());
    QVERIFY(changed != data);
    QCOMPARE(data.author(), Author);
}

QTEST_GUILESS_MAIN(tst_cxmlmetadata)
#include "tst_cxmlmetadata.moc"
