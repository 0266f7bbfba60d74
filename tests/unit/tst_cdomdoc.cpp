#include "imported/CDomDoc.h"

#include <QDomDocument>
#include <QtTest>

namespace {

/** A document from its text; blank text between elements is kept as it stands. */
QDomDocument parsed(const QString &xml)
{
    QXmlStreamReader reader(xml);
    QDomDocument document;
    // A null document takes no children; creating any node ends that.
    document.createComment(QString());
    QDomNode current = document;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            current = current.appendChild(document.createElement(reader.name().toString()));
            break;
        case QXmlStreamReader::EndElement:
            current = current.parentNode();
            break;
        case QXmlStreamReader::Characters:
            if (reader.isCDATA()) {
                current.appendChild(document.createCDATASection(reader.text().toString()));
            } else {
                current.appendChild(document.createTextNode(reader.text().toString()));
            }
            break;
        case QXmlStreamReader::Comment:
            current.appendChild(document.createComment(reader.text().toString()));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            current.appendChild(document.createProcessingInstruction(
                reader.processingInstructionTarget().toString(),
                reader.processingInstructionData().toString()));
            break;
        default:
            break;
        }
    }
    return document;
}

QString written(const QDomDocument &document)
{
    // Even without indentation QDom ends comments and instructions with a line break.
    return document.toString(-1).remove(QLatin1Char('\n'));
}

} // namespace

class tst_cdomdoc : public QObject
{
    Q_OBJECT

private slots:
    void existingChild_data();
    void existingChild();
    void existingChildCreatesNothing();
    void child();
    void childOfNull();
    void text_data();
    void text();
    void setText_data();
    void setText();
    void setTextOfNull();
    void setTextKeepsSections();
};

void tst_cdomdoc::existingChild_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("foundText");

    const auto row = [](const char *name, const char *xml, const char *tag, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(xml) << QString::fromUtf8(tag)
                            << QString::fromUtf8(text);
    };
    row("only child", "<R><A>1</A></R>", "A", "1");
    row("behind others", "<R><B>1</B><A>2</A></R>", "A", "2");
    row("first of several", "<R><A>1</A><A>2</A></R>", "A", "1");
    row("behind a comment", "<R><!-- c --><A>1</A></R>", "A", "1");
    row("no child", "<R/>", "A", "");
    row("only text", "<R>A</R>", "A", "");
    row("lower case", "<R><a>1</a></R>", "A", "");
    row("one character more", "<R><Ab>1</Ab></R>", "A", "");
    row("grandchild", "<R><B><A>1</A></B></R>", "A", "");
    row("the parent itself", "<R>1</R>", "R", "");
    row("no tag", "<R><A>1</A></R>", "", "");
}

void tst_cdomdoc::existingChild()
{
    QFETCH(QString, xml);
    QFETCH(QString, tag);
    QFETCH(QString, foundText);

    const QDomDocument document = parsed(xml);
    const QDomElement found = CDomDoc::existingChild(tag, document.documentElement());
    QCOMPARE(found.isNull(), foundText.isEmpty());
    QCOMPARE(found.text(), foundText);
    if (!found.isNull()) {
        QCOMPARE(found.tagName(), tag);
        QCOMPARE(found.parentNode().toElement(), document.documentElement());
    }
}

void tst_cdomdoc::existingChildCreatesNothing()
{
    const QDomDocument document = parsed(QStringLiteral("<R><A/></R>"));
    const QString before = written(document);
    QVERIFY(CDomDoc::existingChild(QStringLiteral("B"), document.documentElement()).isNull());
    QCOMPARE(written(document), before);
    QVERIFY(CDomDoc::existingChild(QStringLiteral("B"), QDomElement()).isNull());
}

void tst_cdomdoc::child()
{
    const QDomDocument document = parsed(QStringLiteral("<R><A/><!-- c --></R>"));
    const QDomElement root = document.documentElement();

    const QDomElement present = CDomDoc::child(QStringLiteral("A"), root);
    QCOMPARE(present, root.firstChildElement());
    const QDomElement created = CDomDoc::child(QStringLiteral("B"), root);
    QCOMPARE(created.tagName(), QStringLiteral("B"));
    QCOMPARE(CDomDoc::child(QStringLiteral("B"), root), created);
    QCOMPARE(written(document), QStringLiteral("<R><A/><!-- c --><B/></R>"));
}

void tst_cdomdoc::childOfNull()
{
    QVERIFY(CDomDoc::child(QStringLiteral("A"), QDomElement()).isNull());
}

void tst_cdomdoc::text_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *xml, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(xml) << QString::fromUtf8(text);
    };
    row("empty", "<R/>", "");
    row("text", "<R>abc</R>", "abc");
    row("blanks at both ends", "<R>  abc \n</R>", "  abc \n");
    row("blanks alone", "<R>  </R>", "  ");
    row("section", "<R><![CDATA[<a>&]]></R>", "<a>&");
    row("text and section", "<R>a<![CDATA[b]]>c</R>", "abc");
    row("around a comment", "<R>a<!-- no -->b</R>", "ab");
    row("around an instruction", "<R>a<?p no?>b</R>", "ab");
    row("without that of elements", "<R>a<B>no</B>b</R>", "ab");
}

void tst_cdomdoc::text()
{
    QFETCH(QString, xml);
    const QDomDocument document = parsed(xml);
    QTEST(CDomDoc::text(document.documentElement()), "text");
    QVERIFY(CDomDoc::text(QDomElement()).isEmpty());
}

void tst_cdomdoc::setText_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *name, const char *before, const char *text, const char *after) {
        QTest::newRow(name) << QString::fromUtf8(before) << QString::fromUtf8(text)
                            << QString::fromUtf8(after);
    };
    row("into an empty element", "<R/>", "a", "<R>a</R>");
    row("replaces", "<R>abc</R>", "a", "<R>a</R>");
    row("removes", "<R>abc</R>", "", "<R/>");
    row("nothing to remove", "<R/>", "", "<R/>");
    row("replaces a section", "<R><![CDATA[abc]]></R>", "a", "<R>a</R>");
    row("replaces several pieces", "<R>a<![CDATA[b]]>c</R>", "x", "<R>x</R>");
    row("keeps elements", "<R>a<B>b</B>c</R>", "x", "<R>x<B>b</B></R>");
    row("keeps comments", "<R><!--1-->a<!--2--></R>", "x", "<R>x<!--1--><!--2--></R>");
    row("keeps instructions", "<R>a<?p q?></R>", "x", "<R>x<?p q?></R>");
    row("keeps the rest when removed", "<R>a<B/><!--1--></R>", "", "<R><B/><!--1--></R>");
    row("marks are text", "<R/>", "<a>&", "<R>&lt;a>&amp;</R>");
    row("blanks are kept", "<R>a</R>", "  ", "<R>  </R>");
    row("same text in another order is another text", "<R>ab</R>", "ba", "<R>ba</R>");
}

void tst_cdomdoc::setText()
{
    QFETCH(QString, before);
    QFETCH(QString, text);

    const QDomDocument document = parsed(before);
    CDomDoc::setText(text, document.documentElement());
    QTEST(written(document), "after");
    QCOMPARE(CDomDoc::text(document.documentElement()), text);
}

void tst_cdomdoc::setTextOfNull()
{
    QDomElement element;
    CDomDoc::setText(QStringLiteral("a"), element);
    QVERIFY(element.isNull());
}

void tst_cdomdoc::setTextKeepsSections()
{
    // Setting the text that is there already does not rewrite it in another form.
    const QString xml = QStringLiteral("<R>a<![CDATA[b]]><!--1-->c</R>");
    const QDomDocument document = parsed(xml);
    CDomDoc::setText(QStringLiteral("abc"), document.documentElement());
    QCOMPARE(written(document), xml);
}

QTEST_GUILESS_MAIN(tst_cdomdoc)
#include "tst_cdomdoc.moc"
