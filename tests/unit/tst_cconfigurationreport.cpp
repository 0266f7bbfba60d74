#include "commissioning/CConfigurationReport.h"
#include "support/LargeConfiguration.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCatcher.h"
#include "support/ReportPages.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace ReportPages;

Q_DECLARE_METATYPE(CDeviceElement)

namespace {

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

class tst_cconfigurationreport : public QObject
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
    void nastyTexts();
    void controlCharactersOfFindings();
    void sameBytes();
    void texts();
    void styleSheet();
    void manyFiles();
};

void tst_cconfigurationreport::page_data()
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
    QTest::newRow("all drives") << LargeConfiguration::device(0, 255) << true << true;
}

/** What holds for each page. */
void tst_cconfigurationreport::page()
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
                                 "content=\"default-src 'none'; style-src 'unsafe-inline'; "
                                 "base-uri 'none'; form-action 'none'\"/>"));
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

void tst_cconfigurationreport::header()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    file.setMetaData(SampleConfiguration::metaData());
    const Page page(file);
    QCOMPARE(page.all(u"h1"_s).first().text(), u"Packaging line"_s);
    QVERIFY(page.all(u"title"_s).first().text().startsWith(u"Packaging line"_s));
    QVERIFY(page.all(u"header"_s).first().text().contains(u"Hall 3"_s));

    QMap<QString, QString> facts;
    // Those of the device, and those of the description.
    for (const QDomElement &list : page.all(u"dl"_s).mid(0, 2)) {
        for (const QDomElement &fact : Page::all(list, u"div"_s)) {
            facts.insert(fact.firstChildElement(u"dt"_s).text(),
                         fact.firstChildElement(u"dd"_s).text());
        }
    }
    QCOMPARE(facts.value(u"Name"_s), u"Press"_s);
    QCOMPARE(facts.value(u"Comment"_s), u"the big one"_s);
    QCOMPARE(facts.value(u"Class"_s), u"kd3"_s);
    QCOMPARE(facts.value(u"Product"_s), u"Servo Drive 8A"_s);
    QCOMPARE(facts.value(u"Platform, version, revision"_s), u"3 · 2 · 1"_s);
    QCOMPARE(facts.value(u"Hardware identity"_s), u"KD3:Servo Drive 8A:3:2:1"_s);
    QCOMPARE(facts.value(u"Configuration name"_s), u"production"_s);
    QCOMPARE(facts.value(u"Execution plug-in"_s), u"Motion"_s);
    QCOMPARE(facts.value(u"OPC UA enabled"_s), u"true"_s);
    QCOMPARE(facts.value(u"Version"_s), u"2.1"_s);
    QCOMPARE(facts.value(u"Creation date"_s), u"2025-12-24"_s);
    QCOMPARE(facts.value(u"Revision date"_s), u"2026-01-30"_s);
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

void tst_cconfigurationreport::everyFileWithItsPlaces()
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

void tst_cconfigurationreport::kindsAndMarks()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(setSample(file));
    const Page page(file);
    const auto row = [&page](const QString &fileName) { return page.rows(fileName).value(0); };
    QCOMPARE(cells(row(u"Machine.3param"_s)).first(), u"Parameter values, VornParameters"_s);
    QCOMPARE(cells(row(u"Machine.3pdef"_s)).first(), u"Parameter definition, VornParameters"_s);
    QVERIFY(row(u"Machine.3param"_s).text().contains(u"all axes"_s));
    QCOMPARE(cells(row(u"KD3_Dictionary_V1.xml"_s)).first(), u"Object dictionary"_s);
    QCOMPARE(cells(row(u"firmware.bin"_s)).first(), u"KD2 firmware"_s);
    QCOMPARE(headingAbove(row(u"recipe 1.csv"_s)), u"Additional files"_s);
    QCOMPARE(headingAbove(row(u"kd3NodeSet.xml"_s)), u"OPC UA files Enabled"_s);
    QCOMPARE(Page::all(row(u"main.bit"_s), u"span"_s).first().text(), u"Active"_s);
    QVERIFY(Page::all(row(u"spare.bit"_s), u"span"_s).isEmpty());
}

void tst_cconfigurationreport::drives()
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

void tst_cconfigurationreport::pluginsAndOptions()
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

void tst_cconfigurationreport::emptyLists()
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

void tst_cconfigurationreport::nastyTexts()
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
void tst_cconfigurationreport::controlCharactersOfFindings()
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

void tst_cconfigurationreport::sameBytes()
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

void tst_cconfigurationreport::texts()
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
    const MarkingTranslator words("ConfigurationShape");
    const Page page(file);
    QVERIFY(page.isWellFormed());
    QCOMPARE(page.root().attribute(u"lang"_s), u"<en>"_s);
    const QStringList translated = collect(page);
    QCOMPARE(translated.size(), plain.size());
    for (const char *text : {"Findings", "Device", "Drives", "hardware identity", "On the device",
                             "In the project", "Start options", "Sections of this page"}) {
        const QString marked = u"<%1>"_s.arg(QString::fromLatin1(text));
        QVERIFY2(translated.contains(marked)
                     || page.all(u"nav"_s).first().attribute(u"aria-label"_s) == marked,
                 text);
    }
}

void tst_cconfigurationreport::styleSheet()
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

void tst_cconfigurationreport::manyFiles()
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

REGISTER_GUILESS_TEST(tst_cconfigurationreport)
#include "tst_cconfigurationreport.moc"
