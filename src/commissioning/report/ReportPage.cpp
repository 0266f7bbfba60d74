#include "commissioning/report/ReportPage.h"

#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"

#include <QFile>

using ConfigurationReportTexts::Texts;
using Element = HtmlWriter::Element;

namespace {

/** Items whose findings stand beside the list that they belong to. */
const QStringList ItemsOfLists = {QStringLiteral("device.activeFpgaFile"),
                                  QStringLiteral("device.opcUaEnabled"),
                                  QStringLiteral("device.executionPlugin")};

/** The items of a group, and the lists and single files in it: they have places of their own. */
void addPaths(const QVector<const ConfigurationShape::SNode *> &nodes, const QString &path,
              QStringList &items)
{
    for (const ConfigurationShape::SNode *const node : nodes) {
        const QString nodePath = path.isEmpty() ? node->word : path + QLatin1Char('.') + node->word;
        if (!node->isItem() || ItemsOfLists.contains(nodePath)) {
            items.append(nodePath);
        }
        if (node->kind == ConfigurationShape::EKind::GROUP) {
            addPaths(ShapePaths::below(*node), nodePath, items);
        }
    }
}

/** The items beside which findings can stand. */
QStringList shownItems(const CConfigurationOverview &overview)
{
    if (!overview.hasDevice()) {
        return {QStringLiteral("description")};
    }
    QStringList items;
    addPaths(ShapePaths::top(), QString(), items);
    const auto add = [&items](const auto &entries) {
        for (const auto &entry : entries) {
            items.append(entry.item);
        }
    };
    add(overview.parameterFiles());
    add(overview.fpgaFiles());
    add(overview.opcUaFiles());
    add(overview.additionalFiles());
    add(overview.plugins());
    add(overview.options());
    for (const CConfigurationOverview::SDrive &drive : overview.drives()) {
        items.append(drive.item);
        add(drive.files);
    }
    return items;
}

} // namespace

QString orDash(const QString &text)
{
    return text.isEmpty() ? QString(QChar(0x2013)) : text;
}

ReportPage::ReportPage(const CConfigurationOverview &overview,
                       const QList<SConfigurationFinding> &findings)
    : m_overview(overview), m_findings(findings, shownItems(overview))
{
}

QByteArray ReportPage::write()
{
    m_out.raw(QStringLiteral("<!DOCTYPE html>\n"));
    {
        //: The code of the language that these texts are translated into, as "de" or "pt-BR".
        const Element html(m_out, "html", {{"lang", Texts::tr("en")}});
        writeHead();
        const Element body(m_out, "body");
        m_out.lineBreak();
        DeviceDrawing::writeShapes(m_out);
        writePageHeader();
        {
            const Element main(m_out, "main");
            writeFindings();
            if (m_overview.hasDevice()) {
                writeDrawing();
                writeDevice();
                writeDrives();
                writeFiles();
                writePlugins();
                writeOptions();
            }
        }
        m_out.element(
            "footer",
            Texts::tr(
                "Created from the configuration; the page loads nothing else when it is opened."));
    }
    m_out.lineBreak();
    return m_out.html().toUtf8();
}

QString ReportPage::title() const
{
    if (!m_overview.description().name().isEmpty()) {
        return m_overview.description().name();
    }
    return m_overview.device().name().isEmpty() ? Texts::tr("Configuration without a name")
                                                : m_overview.device().name();
}

void ReportPage::writeHead()
{
    const Element head(m_out, "head");
    m_out.empty("meta", {{"charset", QStringLiteral("utf-8")}});
    m_out.empty("meta",
                {{"name", QStringLiteral("viewport")},
                 {"content", QStringLiteral("width=device-width, initial-scale=1")}});
    // Names come from anywhere: should one ever get past the escaping, it still cannot do anything.
    m_out.empty("meta",
                {{"http-equiv", QStringLiteral("Content-Security-Policy")},
                 {"content",
                  QStringLiteral("default-src 'none'; style-src 'unsafe-inline'; base-uri 'none'; "
                                 "form-action 'none'")}});
    m_out.element("title", Texts::tr("%1 – configuration report").arg(title()));
    m_out.lineBreak();
    QFile css(QStringLiteral(":/vrnCommissioning/report.css"));
    css.open(QIODevice::ReadOnly);
    const Element style(m_out, "style");
    m_out.raw(QString::fromUtf8(css.readAll()));
}

void ReportPage::writePageHeader()
{
    const CDescriptionElement &description = m_overview.description();
    {
        const Element header(m_out, "header", {{"class", QStringLiteral("page")}});
        m_out.element("p", Texts::tr("Configuration report"),
                      {{"class", QStringLiteral("eyebrow")}});
        {
            const Element heading(m_out, "h1");
            m_out.element("bdi", title());
        }
        writeComment(description.comment());
        writeTiles();
        writeNavigation();
    }
    m_out.lineBreak();
}

void ReportPage::writeTile(const QString &label, int number, const char *cssClass)
{
    const Element tile(m_out, "li",
                       {{"class", number > 0 ? QString::fromLatin1(cssClass) : QString()}});
    m_out.element("strong", QString::number(number));
    m_out.text(label);
}

void ReportPage::writeTiles()
{
    const Element tiles(m_out, "ul", {{"class", QStringLiteral("tiles")}});
    writeTile(Texts::tr("Errors"), m_findings.count(SConfigurationFinding::ERROR), "error");
    writeTile(Texts::tr("Warnings"), m_findings.count(SConfigurationFinding::WARNING), "warning");
    writeTile(Texts::tr("Drives"), m_overview.drives().size(), nullptr);
    writeTile(Texts::tr("Files"), m_overview.fileCount(), nullptr);
    writeTile(Texts::tr("Plug-ins"), m_overview.plugins().size(), nullptr);
}

void ReportPage::writeNavigation()
{
    QList<QPair<QString, QString>> targets = {{QStringLiteral("#findings"), Texts::tr("Findings")}};
    if (m_overview.hasDevice()) {
        targets += {{QStringLiteral("#device"), Texts::tr("Device")},
                    {QStringLiteral("#drives"), Texts::tr("Drives")},
                    {QStringLiteral("#files"), Texts::tr("Files of the device")},
                    {QStringLiteral("#plugins"), Texts::tr("Plug-ins")},
                    {QStringLiteral("#options"), Texts::tr("Start options")}};
    }
    const Element navigation(m_out, "nav", {{"aria-label", Texts::tr("Sections of this page")}});
    const Element list(m_out, "ul");
    for (const auto &target : targets) {
        const Element entry(m_out, "li");
        m_out.element("a", target.second, {{"href", target.first}});
    }
}

// Parts of sections

void ReportPage::writeFact(const QString &name, const QString &value, bool isCode)
{
    const Element group(m_out, "div");
    m_out.element("dt", name);
    const Element description(m_out, "dd");
    const Element content(
        m_out, isCode ? "code" : "bdi",
        {{"class", QStringLiteral("multiline")}, {"dir", QStringLiteral("auto")}});
    m_out.lines(orDash(value));
}

void ReportPage::writeFact(const SShownItem &item)
{
    writeFact(item.title, item.value, item.kind == ConfigurationShape::EValue::HARDWARE_ID);
}

/** A line for each that has another value than one that is absent. */
void ReportPage::writeOthers(const QVector<SShownItem> &items)
{
    for (const SShownItem &item : items) {
        if (!item.isDefault) {
            const Element line(
                m_out, "div",
                {{"class", QStringLiteral("multiline soft")}, {"dir", QStringLiteral("auto")}});
            m_out.lines(QStringLiteral("%1: %2").arg(item.title, item.value));
        }
    }
}

void ReportPage::writeComment(const QString &comment)
{
    if (!comment.isEmpty()) {
        const Element paragraph(
            m_out, "div",
            {{"class", QStringLiteral("comment multiline soft")}, {"dir", QStringLiteral("auto")}});
        m_out.lines(comment);
    }
}

void ReportPage::writeHeading(const QString &text, const QString &id)
{
    m_out.lineBreak();
    m_out.element("h2", text, {{"id", id}});
    m_out.lineBreak();
}
