#include "commissioning/CConfigurationCheck.h"
#include "support/BrokenDocuments.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/ReportPages.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QTest>

using namespace ReportPages;

/** Where the page shows what the check found. */
class tst_cconfigurationreport_findings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingsStandBesideTheirItems_data();
    void findingsStandBesideTheirItems();
    void findingsOfTheCheck_data();
    void findingsOfTheCheck();
    void findingIsTold();
    void severities();
    void longSummaryIsFolded();
    void nothingFound();
};

void tst_cconfigurationreport_findings::findingsStandBesideTheirItems_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("row");
    const auto row = [](const char *item, const char *heading, const char *rowAbove = "") {
        QTest::newRow(item) << QString::fromUtf8(item) << QString::fromUtf8(heading)
                            << QString::fromUtf8(rowAbove);
    };
    row("", "The configuration as a whole");
    row("nowhere", "The configuration as a whole");
    row("description.name", "The configuration as a whole");
    row("device", "Device");
    row("device.class", "Device");
    row("device.options", "Start options");
    row("device.options[-log]", "Start options");
    row("device.options[-none]", "Start options");
    row("device.parameterFiles", "Parameter files");
    row("device.parameterFiles[None]", "Parameter files");
    row("device.parameterFiles[Machine].type", "Parameter files", "Machine.3pdef");
    row("device.parameterFiles[Legacy]", "Parameter files", "Legacy.xml");
    row("device.dictionary.projectDir", "Object dictionary, fault texts, bus configuration",
        "KD3_Dictionary_V1.xml");
    row("device.faultTextFile", "Object dictionary, fault texts, bus configuration",
        "KD3_Messages_int.xml");
    row("device.etherCatMasterFile.name", "Object dictionary, fault texts, bus configuration",
        "EC_BusConfiguration.xml");
    row("device.fpgaFiles", "FPGA images");
    row("device.activeFpgaFile", "FPGA images");
    row("device.fpgaFiles[spare.bit]", "FPGA images", "spare.bit");
    row("device.opcUaEnabled", "OPC UA files Enabled");
    row("device.opcUaFiles[kd3NodeSet.xml].name", "OPC UA files Enabled", "kd3NodeSet.xml");
    row("device.plugins", "Plug-ins");
    row("device.executionPlugin", "Plug-ins");
    row("device.plugins[CECatMaster].priority", "Plug-ins", "CECatMaster");
    row("drive", "Drives");
    row("drive[1]", "Drives");
    row("drive[7].name", "7CutterKD3");
    row("drive[7].param.comment", "7CutterKD3", "Cutter.3param");
    row("drive[0].kd2Logic.name", "0FeedKD2", "logic.bit");
    row("files", "Additional files");
    row("files[recipe 1.csv].deviceDir", "Additional files", "recipe 1.csv");
    row("files[Größe <&>.txt]", "Additional files", "Größe <&>.txt");
}

void tst_cconfigurationreport_findings::findingsStandBesideTheirItems()
{
    QFETCH(QString, item);
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file, {finding(item)});
    const QDomElement element = page.byId(u"finding-1"_s);
    QTEST(headingAbove(element), "heading");
    QTEST(rowAbove(element), "row");
    const QDomElement chip = element.parentNode().parentNode().toElement();
    if (item == u"device.options[-log]"_s) {
        QCOMPARE(chip.firstChildElement(u"code"_s).text(), u"-log"_s);
    }
}

void tst_cconfigurationreport_findings::findingsOfTheCheck_data()
{
    QTest::addColumn<QString>("path");
    int count = 0;
    for (const QString &folder : {Places::data("check/valid"), BrokenDocuments::directory()}) {
        const QDir directory(folder);
        for (const QFileInfo &file : directory.entryInfoList(QDir::Files, QDir::Name)) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
            ++count;
        }
    }
    QVERIFY(count > 50);
}

/** Whatever the check finds has its place, and none but that of the whole document at the top. */
void tst_cconfigurationreport_findings::findingsOfTheCheck()
{
    QFETCH(QString, path);
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    CConfigurationCheck check;
    QVERIFY(file.open(path));
    QVERIFY(check.open(path));
    const QList<SConfigurationFinding> findings = check.findings();
    const Page page(file, findings);
    QVERIFY(page.isWellFormed());
    const bool hasDevice = !page.byId(u"device"_s).isNull();
    for (int i = 0; i < findings.size(); ++i) {
        const QDomElement element = page.byId(u"finding-%1"_s.arg(i + 1));
        QVERIFY2(!element.isNull(), qPrintable(findings.at(i).item));
        const QString &item = findings.at(i).item;
        const bool isOfWhole = item.isEmpty() || item.startsWith(u"description"_s) || !hasDevice;
        QVERIFY2((headingAbove(element) == u"The configuration as a whole"_s) == isOfWhole,
                 qPrintable(item));
        const QString drive = item.section(QLatin1Char('.'), 0, 0);
        if (drive.startsWith(u"drive["_s)) {
            QVERIFY2(isInside(element,
                              [](const QDomElement &around) {
                                  return around.attribute(u"class"_s) == u"card drive"_s;
                              }),
                     qPrintable(item));
        }
    }
}

void tst_cconfigurationreport_findings::findingIsTold()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    SConfigurationFinding quoted = finding(u"device.name"_s);
    quoted.found = u"wrong"_s;
    SConfigurationFinding bare;
    bare.rule = u"bare-rule"_s;
    bare.message = u"Bare."_s;
    const Page page(file, {finding(u"device.name"_s), quoted, bare});
    const QString text = page.byId(u"finding-1"_s).text();
    for (const QString &part :
         {u"Error"_s, u"What is wrong with 'device.name'."_s, u"Found:found <this>"_s,
          u"Expected:expected & that"_s, u"Hint:Do \"it\" again."_s,
          u"some-rule · device.name · line 12, column 34"_s}) {
        QVERIFY2(text.contains(part), qPrintable(part));
    }
    QVERIFY(!page.byId(u"finding-2"_s).text().contains(u"Found:"_s));
    QCOMPARE(page.byId(u"finding-3"_s).text().simplified(), u"ErrorBare.bare-rule"_s);

    const QList<QDomElement> summary = Page::all(page.all(u"div"_s, u"summary"_s).first(), u"li"_s);
    QCOMPARE(summary.size(), 3);
    QCOMPARE(summary.first().text(),
             u"ErrorWhat is wrong with 'device.name'.device.nameline 12, column 34"_s);
}

void tst_cconfigurationreport_findings::severities()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file,
                    {finding(u"device"_s, SConfigurationFinding::WARNING),
                     finding(u"device"_s, SConfigurationFinding::ERROR),
                     finding(u"drive"_s, SConfigurationFinding::WARNING)});
    QCOMPARE(page.byId(u"finding-1"_s).attribute(u"class"_s), u"warning"_s);
    QVERIFY(page.byId(u"finding-1"_s).text().contains(u"Warning"_s));
    QCOMPARE(page.byId(u"finding-2"_s).attribute(u"class"_s), u"error"_s);
    QVERIFY(page.byId(u"finding-2"_s).text().contains(u"Error"_s));
    const QList<QDomElement> tiles = Page::all(page.all(u"ul"_s, u"tiles"_s).first(), u"li"_s);
    QCOMPARE(tiles.at(0).text(), u"1Errors"_s);
    QCOMPARE(tiles.at(1).text(), u"2Warnings"_s);
}

void tst_cconfigurationreport_findings::longSummaryIsFolded()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    QList<SConfigurationFinding> findings;
    for (int i = 0; i < 12; ++i) {
        findings.append(finding(u"device.name"_s));
    }
    QVERIFY(Page(file, findings).all(u"details"_s).isEmpty());
    findings.append(findings.first());
    const Page page(file, findings);
    const QDomElement details = page.all(u"details"_s).value(0);
    QCOMPARE(details.firstChildElement(u"summary"_s).text(), u"Further findings: 1"_s);
    QCOMPARE(Page::all(details, u"a"_s).size(), 1);
    QCOMPARE(Page::all(details, u"a"_s).first().attribute(u"href"_s), u"#finding-13"_s);
    QCOMPARE(details.firstChildElement(u"ol"_s).attribute(u"start"_s), u"13"_s);
    QCOMPARE(Page::all(page.all(u"div"_s, u"summary"_s).first(), u"a"_s).size(), 13);
}

void tst_cconfigurationreport_findings::nothingFound()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    QVERIFY(page.root().text().contains(u"The check found no errors and no warnings"_s));
    QVERIFY(page.all(u"div"_s, u"summary"_s).isEmpty());
    const Page found(file, {finding(QString())});
    QVERIFY(!found.root().text().contains(u"The check found no errors and no warnings"_s));
}

REGISTER_GUILESS_TEST(tst_cconfigurationreport_findings)
#include "tst_cconfigurationreport_findings.moc"
