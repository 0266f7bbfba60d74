#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CConfigurationReport.h"
#include "support/LargeConfiguration.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"

#include <QDir>
#include <QDomDocument>
#include <QRectF>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <functional>

Q_DECLARE_METATYPE(CDeviceElement)

namespace {

const QChar Ellipsis(0x2026);

SConfigurationFinding
finding(const QString &item,
        SConfigurationFinding::ESeverity severity = SConfigurationFinding::ERROR)
{
    SConfigurationFinding result;
    result.rule = u"some-rule"_s;
    result.severity = severity;
    result.item = item;
    result.position.line = 12;
    result.position.column = 34;
    result.message = u"What is wrong with '%1'."_s.arg(item);
    result.found = u"found <this>"_s;
    result.expected = u"expected & that"_s;
    result.hint = u"Do \"it\" again."_s;
    return result;
}

/** A page, as XML. */
class Page
{
public:
    Page(const CDeviceConfigurationFile10 &file, const QList<SConfigurationFinding> &findings = {})
    {
        const CConfigurationOverview overview(file);
        m_html = CConfigurationReport(overview, findings).toHtml();
        QString error;
        if (!m_document.setContent(m_html, &error)) {
            qWarning("%s", qPrintable(error));
        }
    }

    QByteArray html() const { return m_html; }
    QDomElement root() const { return m_document.documentElement(); }
    bool isWellFormed() const { return root().tagName() == u"html"_s; }

    using Visit = std::function<void(const QDomElement &)>;

    void visit(const Visit &visit) const { visitBelow(root(), visit); }

    static void visitBelow(const QDomElement &element, const Visit &visit)
    {
        visit(element);
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            visitBelow(child, visit);
        }
    }

    static QList<QDomElement> all(const QDomElement &element, const QString &tag,
                                  const QString &cssClass = QString())
    {
        QList<QDomElement> result;
        visitBelow(element, [&](const QDomElement &candidate) {
            const QStringList classes = candidate.attribute(u"class"_s).split(QLatin1Char(' '));
            if (candidate.tagName() == tag && (cssClass.isEmpty() || classes.contains(cssClass))) {
                result.append(candidate);
            }
        });
        return result;
    }

    QList<QDomElement> all(const QString &tag, const QString &cssClass = QString()) const
    {
        return all(root(), tag, cssClass);
    }

    QDomElement byId(const QString &id) const
    {
        QDomElement result;
        visit([&](const QDomElement &candidate) {
            if (candidate.attribute(u"id"_s) == id) {
                result = candidate;
            }
        });
        return result;
    }

    /** The rows in which a file of that name stands. */
    QList<QDomElement> rows(const QString &fileName) const
    {
        QList<QDomElement> result;
        for (const QDomElement &row : all(u"tr"_s)) {
            const QList<QDomElement> names = all(row, u"bdi"_s, u"file"_s);
            if (!names.isEmpty() && names.first().text() == fileName) {
                result.append(row);
            }
        }
        return result;
    }

private:
    QByteArray m_html;
    QDomDocument m_document;
};

QStringList cells(const QDomElement &row)
{
    QStringList result;
    for (const QDomElement &cell : Page::all(row, u"td"_s)) {
        result.append(cell.text());
    }
    return result;
}

/** @p text as the page shows it on one line. */
QString shown(QString text)
{
    for (QChar &c : text) {
        if (c < QLatin1Char(' ')) {
            c = QChar(0x2400 + c.unicode());
        }
    }
    return text;
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? u"–"_s : text;
}

bool isInside(QDomElement element, const std::function<bool(const QDomElement &)> &matches)
{
    for (; !element.isNull(); element = element.parentNode().toElement()) {
        if (matches(element)) {
            return true;
        }
    }
    return false;
}

/** The heading of the card or section in which @p element stands. */
QString headingAbove(QDomElement element)
{
    for (; !element.isNull(); element = element.parentNode().toElement()) {
        for (const char *tag : {"h3", "h2"}) {
            const QDomElement heading = element.firstChildElement(QString::fromLatin1(tag));
            if (!heading.isNull()) {
                return heading.text();
            }
        }
    }
    return QString();
}

/** The first row that stands above the row in which @p element stands and shows an entry. */
QString rowAbove(QDomElement element)
{
    while (!element.isNull() && element.tagName() != u"tr"_s) {
        element = element.parentNode().toElement();
    }
    return Page::all(element.previousSiblingElement(), u"bdi"_s, u"file"_s).value(0).text();
}

double number(const QDomElement &element, const char *attribute)
{
    return element.attribute(QString::fromLatin1(attribute)).toDouble();
}

const QList<QString> NastyTexts = {
    u"<script>alert(1)</script>"_s,
    u"</title></style><b>&amp;"_s,
    u"a & b \"quoted\" 'single' `back`"_s,
    u"]]><!-- -->"_s,
    u"\u202Eright to left\u202C \u200Fmark"_s,
    u"مرحبا"_s,
    u"很长的驱动器名称很长的驱动器名称"_s,
    u"\U0001F680\U0001F680"_s,
    QString(300, QLatin1Char('W')),
    u"tab\tand\nnew line"_s,
    u"javascript:alert(1)"_s,
};

CDeviceElement nastyDevice()
{
    CDeviceElement device;
    device.setName(NastyTexts.at(2));
    device.setComment(NastyTexts.at(0));
    QList<CFileElement> files;
    QList<CPluginElement> plugins;
    quint8 number = 0;
    for (const QString &text : NastyTexts) {
        files.append(SampleConfiguration::file(text, text, text, text));
        plugins.append(SampleConfiguration::plugin(text, text, 1));
        CSubDeviceKD3Element drive;
        drive.setName(text);
        drive.setComment(text);
        drive.setBusId(4294967295u);
        drive.setParameterFile(SampleConfiguration::file(text, text, text, text));
        device.insertSubDevice(drive, number++);
    }
    device.setAdditionalFiles(files);
    device.setOpcUaFiles(files);
    device.setFpgaFiles(NastyTexts);
    device.setPlugins(plugins);
    return device;
}

/** Puts every text of a page between quotation marks. */
class QuotingTranslator : public QTranslator
{
public:
    QuotingTranslator() { QCoreApplication::installTranslator(this); }
    ~QuotingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return u"\"%1\""_s.arg(QString::fromUtf8(sourceText));
    }
};

bool setDevice(CDeviceConfigurationFile10 &file, const CDeviceElement &device)
{
    return file.createNewDocument() && file.setConfiguration(device);
}

bool setSample(CDeviceConfigurationFile10 &file)
{
    return setDevice(file, SampleConfiguration::device())
        && file.setDescription(SampleConfiguration::description());
}

QList<SConfigurationFinding> findingsEverywhere()
{
    QList<SConfigurationFinding> findings;
    for (const char *item :
         {"", "description.name", "device.name", "device.options[-v]",
          "device.parameterFiles[Machine].type", "device.dictionary.name",
          "device.fpgaFiles[main.bit]", "device.opcUaFiles", "device.plugins[Motion].version",
          "drive[0].kd2Logic.name", "drive[7].busId", "drive", "files[recipe 1.csv].comment"}) {
        findings.append(finding(QString::fromLatin1(item)));
        findings.append(finding(QString::fromLatin1(item), SConfigurationFinding::WARNING));
    }
    return findings;
}

} // namespace

class tst_CConfigurationReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void page_data();
    void page();
    void header();
    void everyFileWithItsPlaces();
    void kindsAndMarks();
    void drives();
    void pluginsAndOptions();
    void emptyLists();
    void findingsStandBesideTheirItems_data();
    void findingsStandBesideTheirItems();
    void findingsOfTheCheck_data();
    void findingsOfTheCheck();
    void findingIsTold();
    void severities();
    void longSummaryIsFolded();
    void nothingFound();
    void drawing_data();
    void drawing();
    void marksInTheDrawing();
    void textsInTheDrawingAreShortened();
    void nastyTexts();
    void controlCharactersOfFindings();
    void sameBytes();
    void texts();
    void styleSheet();
    void manyFiles();
};

void tst_CConfigurationReport::page_data()
{
    QTest::addColumn<CDeviceElement>("device");
    QTest::addColumn<bool>("hasDevice");
    QTest::addColumn<bool>("hasFindings");
    QTest::newRow("nothing") << CDeviceElement() << false << false;
    QTest::newRow("nothing but findings") << CDeviceElement() << false << true;
    QTest::newRow("empty device") << CDeviceElement() << true << false;
    QTest::newRow("empty device, findings") << CDeviceElement() << true << true;
    QTest::newRow("sample") << SampleConfiguration::device() << true << false;
    QTest::newRow("sample, findings") << SampleConfiguration::device() << true << true;
    QTest::newRow("nasty texts") << nastyDevice() << true << true;
    QTest::newRow("all drives") << LargeConfiguration::device(0, 256) << true << true;
}

/** What holds for each page. */
void tst_CConfigurationReport::page()
{
    QFETCH(CDeviceElement, device);
    QFETCH(bool, hasDevice);
    QFETCH(bool, hasFindings);
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(!hasDevice || file.setConfiguration(device));
    const QList<SConfigurationFinding> findings =
        hasFindings ? findingsEverywhere() : QList<SConfigurationFinding>();
    const MessageCatcher catcher;
    const Page page(file, findings);

    QVERIFY(page.html().startsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    QVERIFY(page.isWellFormed());

    QSet<QString> ids;
    QStringList targets;
    int level = 0;
    page.visit([&](const QDomElement &element) {
        const QString tag = element.tagName();
        QVERIFY2(!QStringList({u"script"_s, u"link"_s, u"img"_s, u"iframe"_s, u"object"_s,
                               u"image"_s, u"base"_s, u"form"_s})
                      .contains(tag),
                 qPrintable(tag));
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            const QString name = attributes.item(i).nodeName();
            QVERIFY2(name != u"src"_s && name != u"style"_s && !name.startsWith(u"on"_s),
                     qPrintable(name));
        }
        if (element.hasAttribute(u"href"_s)) {
            const QString target = element.attribute(u"href"_s);
            QVERIFY2(target.startsWith(QLatin1Char('#')), qPrintable(target));
            targets.append(target.mid(1));
        }
        const QString id = element.attribute(u"id"_s);
        QVERIFY2(id.isEmpty() || !ids.contains(id), qPrintable(id));
        ids.insert(id);
        static const QRegularExpression heading(u"^h[1-6]$"_s);
        if (heading.match(tag).hasMatch()) {
            const int next = tag.midRef(1).toInt();
            QVERIFY2(next <= level + 1, qPrintable(element.text()));
            level = next;
        }
    });
    for (const QString &target : targets) {
        QVERIFY2(ids.contains(target), qPrintable(target));
    }
    QVERIFY(page.html().contains("<meta http-equiv=\"Content-Security-Policy\" "
                                 "content=\"default-src 'none'; style-src 'unsafe-inline'\"/>"));
    QCOMPARE(page.all(u"h1"_s).size(), 1);
    QCOMPARE(page.all(u"main"_s).size(), 1);
    for (const QDomElement &svg : page.all(u"svg"_s, u"drawing"_s)) {
        QCOMPARE(svg.attribute(u"role"_s), u"img"_s);
        QVERIFY(!svg.firstChildElement(u"title"_s).text().isEmpty());
    }

    // Each finding once in the list at the top and once at its item, wherever that is.
    for (int i = 1; i <= findings.size(); ++i) {
        const QString id = u"finding-%1"_s.arg(i);
        QCOMPARE(targets.count(id), 1);
        QVERIFY(page.byId(id).text().contains(findings.at(i - 1).message));
    }
    QCOMPARE(page.all(u"li"_s, u"error"_s).size() + page.all(u"li"_s, u"warning"_s).size(),
             findings.isEmpty() ? 0 : findings.size() + 2);
}

void tst_CConfigurationReport::header()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    file.setMetaData(SampleConfiguration::metaData());
    const Page page(file);
    QCOMPARE(page.all(u"h1"_s).first().text(), u"Packaging line"_s);
    QVERIFY(page.all(u"title"_s).first().text().startsWith(u"Packaging line"_s));
    QVERIFY(page.all(u"header"_s).first().text().contains(u"Hall 3"_s));

    QMap<QString, QString> facts;
    const QDomElement list = page.all(u"dl"_s).first();
    for (const QDomElement &fact : Page::all(list, u"div"_s)) {
        facts.insert(fact.firstChildElement(u"dt"_s).text(),
                     fact.firstChildElement(u"dd"_s).text());
    }
    QCOMPARE(facts.value(u"Name"_s), u"Press"_s);
    QCOMPARE(facts.value(u"Comment"_s), u"the big one"_s);
    QCOMPARE(facts.value(u"Class"_s), u"kd3"_s);
    QCOMPARE(facts.value(u"Product"_s), u"Servo Drive 8A"_s);
    QCOMPARE(facts.value(u"Platform, version, revision"_s), u"3 · 2 · 1"_s);
    QCOMPARE(facts.value(u"Hardware identity"_s), u"KD3:Servo Drive 8A:3:2:1"_s);
    QCOMPARE(facts.value(u"Configuration name"_s), u"production"_s);
    QCOMPARE(facts.value(u"Version of the configuration"_s), u"2.1"_s);
    QCOMPARE(facts.value(u"Created"_s), u"2025-12-24"_s);
    QCOMPARE(facts.value(u"Last revision"_s), u"2026-01-30"_s);
    QCOMPARE(facts.value(u"Written by"_s), u"A. Engineer"_s);
    QCOMPARE(facts.value(u"Written on"_s), u"2026-01-31"_s);

    QStringList tiles;
    for (const QDomElement &tile : Page::all(page.all(u"ul"_s, u"tiles"_s).first(), u"li"_s)) {
        tiles.append(tile.text());
    }
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    QCOMPARE(tiles,
             (QStringList{u"0Errors"_s, u"0Warnings"_s, u"2Drives"_s,
                          u"%1Files"_s.arg(device.allFiles().size() + 1), u"2Plug-ins"_s}));
}

void tst_CConfigurationReport::everyFileWithItsPlaces()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    const Page page(file);

    QList<CFileElement> plugins = device.pluginFileElements();
    QList<CFileElement> files = device.allFiles();
    files.append(device.configurationFile());
    QCOMPARE(files.size(), 19);
    for (const CFileElement &expected : files) {
        if (plugins.contains(expected)) {
            continue;
        }
        const QList<QDomElement> rows = page.rows(expected.fileName());
        QCOMPARE(rows.size(), 1);
        QCOMPARE(cells(rows.first()).mid(1),
                 (QStringList{orDash(expected.devicePath()), orDash(expected.projectPath())}));
        if (!expected.comment().isEmpty()) {
            QVERIFY(rows.first().text().contains(expected.comment()));
        }
    }
    for (const CFileElement &plugin : plugins) {
        const auto rows = page.all(u"tr"_s);
        QVERIFY(std::any_of(rows.begin(), rows.end(), [&](const QDomElement &row) {
            return row.text().contains(plugin.fileName())
                && row.text().contains(plugin.devicePath() + plugin.projectPath());
        }));
    }
}

void tst_CConfigurationReport::kindsAndMarks()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    const auto row = [&page](const QString &fileName) { return page.rows(fileName).value(0); };
    QCOMPARE(cells(row(u"Machine.3param"_s)).first(), u"Parameter values, VornParameters"_s);
    QCOMPARE(cells(row(u"Machine.3pdef"_s)).first(), u"Parameter definition, VornParameters"_s);
    QVERIFY(row(u"Machine.3param"_s).text().contains(u"all axes"_s));
    QCOMPARE(cells(row(u"KD3_Dictionary_V1.xml"_s)).first(), u"Object dictionary"_s);
    QCOMPARE(cells(row(u"firmware.bin"_s)).first(), u"Firmware"_s);
    QCOMPARE(headingAbove(row(u"recipe 1.csv"_s)), u"Additional files"_s);
    QCOMPARE(headingAbove(row(u"kd3NodeSet.xml"_s)), u"OPC UA models Enabled"_s);
    QCOMPARE(Page::all(row(u"main.bit"_s), u"span"_s).first().text(), u"Active"_s);
    QVERIFY(Page::all(row(u"spare.bit"_s), u"span"_s).isEmpty());
}

void tst_CConfigurationReport::drives()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    QCOMPARE(page.all(u"article"_s, u"drive"_s).size(), 2);
    const QDomElement old = page.byId(u"drive-0"_s);
    QCOMPARE(old.firstChildElement(u"h3"_s).text(), u"0FeedKD2"_s);
    QVERIFY(old.text().contains(u"left"_s));
    QVERIFY(old.text().contains(u"1001"_s));
    QVERIFY(old.text().contains(u"KD2:Feed Drive:1:0:2"_s));
    QCOMPARE(Page::all(Page::all(old, u"tbody"_s).first(), u"tr"_s).size(), 4);
    const QDomElement other = page.byId(u"drive-7"_s);
    QCOMPARE(other.firstChildElement(u"h3"_s).text(), u"7CutterKD3"_s);
    QVERIFY(other.text().contains(u"4294967295"_s));
}

void tst_CConfigurationReport::pluginsAndOptions()
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device = SampleConfiguration::device();
    device.setPlugins(device.plugins() << CPluginElement());
    QVERIFY(setDevice(file, device));
    const Page page(file);
    const QDomElement motion = page.rows(u"Motion"_s).value(0);
    QVERIFY(motion.text().contains(u"Runs the application"_s));
    QVERIFY(motion.text().contains(u"pi_Motion.so.1.2.3"_s));
    QCOMPARE(cells(motion).mid(0, 2), (QStringList{u"1.2.3"_s, u"10"_s}));
    const QDomElement master = page.rows(u"CECatMaster"_s).value(0);
    QVERIFY(!master.text().contains(u"Runs the application"_s));
    QCOMPARE(cells(master).mid(0, 2), (QStringList{u"4"_s, u"-1"_s}));
    const QDomElement unnamed = page.rows(u"–"_s).value(0);
    QCOMPARE(cells(unnamed), (QStringList{u"–"_s, u"–"_s, u"–"_s, u"–"_s}));

    QStringList options;
    for (const QDomElement &option : Page::all(page.all(u"ul"_s, u"chips"_s).value(0), u"code"_s)) {
        options.append(option.text());
    }
    QCOMPARE(options, SampleConfiguration::options());
}

void tst_CConfigurationReport::emptyLists()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, CDeviceElement()));
    const Page page(file);
    QCOMPARE(page.all(u"h1"_s).first().text(), u"Configuration without a name"_s);
    for (const QString &text : {u"The device has no drives."_s, u"The device has no plug-ins."_s,
                                u"The device starts without options."_s}) {
        QVERIFY2(page.root().text().contains(text), qPrintable(text));
    }
    QVERIFY(!page.root().text().contains(u"FPGA images"_s));
    // An empty entry of a list is one all the same.
    CDeviceElement device;
    device.setFpgaFiles({QString()});
    QVERIFY(setDevice(file, device));
    QCOMPARE(rowAbove(Page(file, {finding(u"device.fpgaFiles[]"_s)}).byId(u"finding-1"_s)), u"–"_s);
    QVERIFY(setDevice(file, CDeviceElement()));
    // What is empty has a heading all the same when something about it was found.
    const Page found(file, {finding(u"device.fpgaFiles"_s)});
    QCOMPARE(headingAbove(found.byId(u"finding-1"_s)), u"FPGA images"_s);
}

void tst_CConfigurationReport::findingsStandBesideTheirItems_data()
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
    row("device.opcUaEnabled", "OPC UA models Enabled");
    row("device.opcUaFiles[kd3NodeSet.xml].name", "OPC UA models Enabled", "kd3NodeSet.xml");
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

void tst_CConfigurationReport::findingsStandBesideTheirItems()
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

void tst_CConfigurationReport::findingsOfTheCheck_data()
{
    QTest::addColumn<QString>("path");
    int count = 0;
    for (const QString &folder : {u"valid"_s, u"invalid"_s}) {
        const QDir directory(QStringLiteral(VRN_TEST_DATA_DIR "/check/") + folder);
        for (const QFileInfo &file : directory.entryInfoList(QDir::Files, QDir::Name)) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
            ++count;
        }
    }
    QVERIFY(count > 50);
}

/** Whatever the check finds has its place, and none but that of the whole document at the top. */
void tst_CConfigurationReport::findingsOfTheCheck()
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

void tst_CConfigurationReport::findingIsTold()
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

void tst_CConfigurationReport::severities()
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

void tst_CConfigurationReport::longSummaryIsFolded()
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

void tst_CConfigurationReport::nothingFound()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    QVERIFY(page.root().text().contains(u"The check found no errors and no warnings"_s));
    QVERIFY(page.all(u"div"_s, u"summary"_s).isEmpty());
    const Page found(file, {finding(QString())});
    QVERIFY(!found.root().text().contains(u"The check found no errors and no warnings"_s));
}

void tst_CConfigurationReport::drawing_data()
{
    QTest::addColumn<int>("driveCount");
    for (const int count : {0, 1, 3, 4, 5, 12, 16, 17, 255, 256}) {
        QTest::addRow("%d drives", count) << count;
    }
}

/** Nothing reaches out of the drawing, and no module lies on another one. */
void tst_CConfigurationReport::drawing()
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

void tst_CConfigurationReport::marksInTheDrawing()
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

void tst_CConfigurationReport::textsInTheDrawingAreShortened()
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

void tst_CConfigurationReport::nastyTexts()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, nastyDevice()));
    CDescriptionElement description;
    description.setName(NastyTexts.at(1));
    description.setComment(NastyTexts.at(9));
    QVERIFY(file.setDescription(description));
    const Page page(file);
    QVERIFY(page.isWellFormed());
    QCOMPARE(page.all(u"h1"_s).first().text(), NastyTexts.at(1));
    // Lines of a comment stay lines.
    QCOMPARE(Page::all(page.all(u"header"_s).first(), u"div"_s).first().text(), NastyTexts.at(9));
    for (int i = 0; i < NastyTexts.size(); ++i) {
        const QString text = shown(NastyTexts.at(i));
        // Additional file, OPC UA model, FPGA image, plug-in, and the parameters of the drive.
        QCOMPARE(page.rows(text).size(), 5);
        const QDomElement heading = page.byId(u"drive-%1"_s.arg(i)).firstChildElement(u"h3"_s);
        QCOMPARE(heading.firstChildElement(u"bdi"_s).text(), text);
    }
    // Each name is in an element that keeps its direction to itself.
    page.visit([](const QDomElement &element) {
        for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
            if (child.isText() && child.nodeValue().contains(QChar(0x202E))) {
                QVERIFY2(isInside(element,
                                  [](const QDomElement &around) {
                                      return around.tagName() == u"bdi"_s
                                          || around.tagName() == u"text"_s
                                          || around.tagName() == u"title"_s
                                          || around.attribute(u"dir"_s) == u"auto"_s;
                                  }),
                         qPrintable(element.tagName()));
            }
        }
    });
}

/** The document can carry few of them; a finding may quote whatever there is. */
void tst_CConfigurationReport::controlCharactersOfFindings()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    SConfigurationFinding nasty = finding(u"device.name"_s);
    nasty.message = u"a\u0001b\u001Bc\u007Fd\u0085e\uFFFEf\uFFFFg\nh\r"_s + QChar(0xD800)
        + QLatin1Char('i') + QChar(0xDC00) + QChar(u'\0') + u"\uFDD0\U0001FFFE\U0001F680"_s;
    const Page page(file, {nasty});
    QVERIFY(page.isWellFormed());
    QVERIFY(page.byId(u"finding-1"_s)
                .text()
                .contains(u"a\u2401b\u241Bc\u2421d\uFFFDe\uFFFDf\uFFFDg\u240Ah\u240D\uFFFDi"
                          u"\uFFFD\u2400\uFFFD\uFFFD\U0001F680"_s));
}

void tst_CConfigurationReport::sameBytes()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, nastyDevice()));
    const QByteArray bytes = Page(file, findingsEverywhere()).html();
    QByteArray buffer;
    QString error;
    QVERIFY(file.save(buffer, error));
    CDeviceConfigurationFile10 again(nullptr);
    QVERIFY(again.load(buffer));
    QCOMPARE(Page(again, findingsEverywhere()).html(), bytes);

    // A configuration without dates gets none of today.
    QVERIFY(again.load("<VornDeviceConfig version=\"1.0\"><Device/></VornDeviceConfig>"));
    const QByteArray today = QDate::currentDate().toString(Qt::ISODate).toLatin1();
    QVERIFY(!Page(again).html().contains(today));
}

void tst_CConfigurationReport::texts()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const auto collect = [](const Page &page) {
        QStringList texts;
        for (const char *tag : {"h2", "dt", "th", "a", "summary", "p"}) {
            for (const QDomElement &element : page.all(QString::fromLatin1(tag))) {
                texts.append(element.text());
            }
        }
        return texts;
    };
    const QStringList plain = collect(Page(file));
    {
        const QuotingTranslator translator;
        const Page page(file);
        QVERIFY(page.isWellFormed());
        QCOMPARE(page.root().attribute(u"lang"_s), u"\"en\""_s);
    }
    const MarkingTranslator translator("CConfigurationReport");
    const Page page(file);
    QVERIFY(page.isWellFormed());
    QCOMPARE(page.root().attribute(u"lang"_s), u"<en>"_s);
    const QStringList translated = collect(page);
    QCOMPARE(translated.size(), plain.size());
    for (const char *text : {"Findings", "Device", "Drives", "Hardware identity", "On the device",
                             "In the project", "Start options", "Sections of this page"}) {
        const QString marked = u"<%1>"_s.arg(QString::fromLatin1(text));
        QVERIFY2(translated.contains(marked)
                     || page.all(u"nav"_s).first().attribute(u"aria-label"_s) == marked,
                 text);
    }
}

void tst_CConfigurationReport::styleSheet()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    const QString css = page.all(u"style"_s).first().text();
    for (const QString &part : {u"@media print"_s, u"prefers-color-scheme: dark"_s,
                                u"max-width: 760px"_s, u"break-inside: avoid"_s}) {
        QVERIFY2(css.contains(part), qPrintable(part));
    }
    QVERIFY(!css.contains(u"url("_s));
    QVERIFY(!css.contains(u"@import"_s));
    QVERIFY(!page.html().contains("http://"));
    QVERIFY(!page.html().contains("https://"));
    QCOMPARE(css.count(QLatin1Char('{')), css.count(QLatin1Char('}')));
    // Each class that the page uses is styled.
    page.visit([&css](const QDomElement &element) {
        for (const QString &name :
             element.attribute(u"class"_s).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            QVERIFY2(css.contains(QLatin1Char('.') + name), qPrintable(name));
        }
    });
}

void tst_CConfigurationReport::manyFiles()
{
    const int count = 10000;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setDevice(file, LargeConfiguration::device(count)));
    QList<SConfigurationFinding> findings;
    for (int i = 0; i < count; ++i) {
        findings.append(finding(u"files[%1].name"_s.arg(LargeConfiguration::file(i).fileName())));
    }
    const CConfigurationOverview overview(file);
    const QByteArray html = CConfigurationReport(overview, findings).toHtml();
    QDomDocument document;
    QVERIFY(document.setContent(html));
    QCOMPARE(html.count("class=\"file\""), count + 1);
    QCOMPARE(html.count("id=\"finding-"), count);
    QVERIFY(html.size() < 2000 * count);
}

QTEST_GUILESS_MAIN(tst_CConfigurationReport)
#include "tst_cconfigurationreport.moc"
