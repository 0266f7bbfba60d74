#include "support/LargeConfiguration.h"
#include "support/ReportPages.h"
#include "support/TestProgram.h"

#include <QRectF>
#include <QRegularExpression>
#include <QTest>

using namespace ReportPages;

Q_DECLARE_METATYPE(CDeviceElement)

namespace {

const QChar Ellipsis(0x2026);

} // namespace

/** The drawing of the device. */
class tst_cconfigurationreport_drawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawing_data();
    void drawing();
    void marksInTheDrawing();
    void textsInTheDrawingAreShortened();
};

void tst_cconfigurationreport_drawing::drawing_data()
{
    QTest::addColumn<int>("driveCount");
    for (const int count : {0, 1, 3, 4, 5, 12, 16, 17, 254, 255}) {
        QTest::addRow("%d drives", count) << count;
    }
}

/** Nothing reaches out of the drawing, and no module lies on another one. */
void tst_cconfigurationreport_drawing::drawing()
{
    QFETCH(int, driveCount);
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, LargeConfiguration::device(0, driveCount)));
    const Page page(file);
    const QList<QDomElement> drawings = page.all(u"svg"_s, u"drawing"_s);
    QCOMPARE(drawings.size(), 2);
    for (const QDomElement &svg : drawings) {
        const QStringList viewBox = svg.attribute(u"viewBox"_s).split(QLatin1Char(' '));
        const QRectF area(0, 0, viewBox.at(2).toDouble(), viewBox.at(3).toDouble());
        QList<QRectF> boxes;
        QStringList targets;
        for (const QDomElement &link : Page::all(svg, u"a"_s)) {
            const QDomElement group = link.firstChildElement(u"g"_s);
            static const QRegularExpression translation(u"^translate\\((\\d+) (\\d+)\\)$"_s);
            const auto place = translation.match(group.attribute(u"transform"_s));
            QVERIFY(place.hasMatch());
            const QDomElement rect = group.firstChildElement(u"rect"_s);
            boxes.append({place.captured(1).toDouble(), place.captured(2).toDouble(),
                          number(rect, "width"), number(rect, "height")});
            targets.append(link.attribute(u"href"_s));
            QVERIFY(!group.firstChildElement(u"title"_s).text().isEmpty());
            for (const QDomElement &text : Page::all(group, u"text"_s)) {
                QVERIFY(number(text, "y") < number(rect, "height"));
                QVERIFY(number(text, "x") < number(rect, "width"));
            }
        }
        QCOMPARE(boxes.size(), driveCount + 1);
        for (int i = 0; i < boxes.size(); ++i) {
            QVERIFY(area.contains(boxes.at(i)));
            // In reading order, so that each one needs to be compared with its neighbour alone.
            QVERIFY(i < 2 || boxes.at(i - 1).right() < boxes.at(i).left()
                    || boxes.at(i - 1).bottom() < boxes.at(i).top());
            QVERIFY(i == 0 || !boxes.first().intersects(boxes.at(i)));
            QCOMPARE(targets.at(i), i == 0 ? u"#device"_s : u"#drive-%1"_s.arg(i - 1));
        }
        QCOMPARE(Page::all(svg, u"path"_s, u"bus"_s).size(), driveCount == 0 ? 0 : 1);
        QCOMPARE(svg.text().contains(u"No drives"_s), driveCount == 0);
        if (driveCount > 0) {
            // A line down to each module, in the middle of it.
            const QString bus = Page::all(svg, u"path"_s, u"bus"_s).first().attribute(u"d"_s);
            for (const QRectF &box : boxes.mid(1)) {
                QVERIFY(bus.contains(u"M%1 %2v20"_s.arg(QString::number(box.center().x()),
                                                        QString::number(box.top() - 20))));
            }
        }
    }
}

void tst_cconfigurationreport_drawing::marksInTheDrawing()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, LargeConfiguration::device(0, 4)));
    const Page page(file,
                    {finding(u"drive[1].param.name"_s, SConfigurationFinding::WARNING),
                     finding(u"drive[2].name"_s, SConfigurationFinding::WARNING),
                     finding(u"drive[2].param"_s, SConfigurationFinding::ERROR),
                     finding(u"drive[3].name"_s, SConfigurationFinding::ERROR),
                     finding(u"drive[3].param"_s, SConfigurationFinding::WARNING),
                     finding(u"drive"_s), finding(u"device.options"_s)});
    for (const QDomElement &svg : page.all(u"svg"_s, u"drawing"_s)) {
        QStringList marks;
        QStringList titles;
        for (const QDomElement &link : Page::all(svg, u"a"_s)) {
            QString mark;
            for (const QDomElement &use : Page::all(link, u"use"_s)) {
                if (use.attribute(u"href"_s).startsWith(u"#mark-"_s)) {
                    mark = use.attribute(u"href"_s);
                }
            }
            marks.append(mark);
            titles.append(link.firstChildElement(u"g"_s).firstChildElement(u"title"_s).text());
        }
        QCOMPARE(marks,
                 (QStringList{QString(), QString(), u"#mark-warning"_s, u"#mark-error"_s,
                              u"#mark-error"_s}));
        QCOMPARE(titles.at(1), u"Drive 0: Axis 0, series KD3. Bus ID 1000."_s);
        QVERIFY(titles.at(2).endsWith(u"It has warnings."_s));
        QVERIFY(titles.at(3).endsWith(u"It has errors."_s));
    }
    const Page device(file, {finding(u"device.name"_s)});
    QCOMPARE(device.html().count("href=\"#mark-error\""), 2);
}

void tst_cconfigurationreport_drawing::textsInTheDrawingAreShortened()
{
    const QString accented = QString(u"e\u0301"_s).repeated(60);
    CDeviceElement device;
    device.setName(u"A name that is far too long to stand in the drawing of a controller"_s);
    const QStringList names = {QString(100, QLatin1Char('W')), accented, u"Gripper"_s,
                               QString(u"\U0001F680"_s).repeated(50),
                               QString(u"很"_s).repeated(50)};
    for (const QString &name : names) {
        CSubDeviceKD3Element drive;
        drive.setName(name);
        drive.setBusId(4294967295u);
        device.insertSubDevice(drive);
    }
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, device));
    const Page page(file);
    for (const QDomElement &svg : page.all(u"svg"_s, u"drawing"_s)) {
        const QList<QDomElement> links = Page::all(svg, u"a"_s);
        for (int i = 0; i < names.size(); ++i) {
            const QDomElement link = links.at(i + 1);
            const QString text = Page::all(link, u"text"_s, u"name"_s).first().text();
            const QString &name = names.at(i);
            QVERIFY(Page::all(link, u"title"_s).first().text().contains(name));
            if (name == u"Gripper"_s) {
                QCOMPARE(text, name);
                continue;
            }
            QVERIFY2(text.endsWith(Ellipsis) && text.size() > 3 && text.size() < 50,
                     qPrintable(text));
            QVERIFY(name.startsWith(text.chopped(1)));
            // Not cut between a letter and what stands on it, nor within a character.
            QVERIFY(!name.mid(text.size() - 1).startsWith(QChar(0x301)));
            QVERIFY(!name.at(text.size() - 1).isLowSurrogate());
            // A number is not shortened: the words before it are left out.
            QCOMPARE(Page::all(link, u"text"_s, u"detail"_s).first().text(), u"4294967295"_s);
        }
        QVERIFY(Page::all(links.first(), u"text"_s, u"name"_s).first().text().endsWith(Ellipsis));
    }
}

REGISTER_GUILESS_TEST(tst_cconfigurationreport_drawing)
#include "tst_cconfigurationreport_drawing.moc"
