#include "commissioning/report/ReportPage.h"

#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"

using ConfigurationReportTexts::Texts;
using Element = HtmlWriter::Element;

namespace {

/** What has a column each; the name is the head of the row. */
QVector<SShownItem> itemsOf(const CConfigurationOverview::SPlugin &plugin)
{
    return ShownItems::of(ConfigurationShape::pluginItems(), plugin.plugin, plugin.item,
                          {QStringLiteral("name")});
}

} // namespace

void ReportPage::writePlugins()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Plug-ins"), QStringLiteral("plugins"));
    const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
    writeFindings({ShapePaths::list(ConfigurationShape::EEntry::PLUGIN),
                   QStringLiteral("device.executionPlugin")});
    if (m_overview.plugins().isEmpty()) {
        m_out.element("p", Texts::tr("The device has no plug-ins."),
                      {{"class", QStringLiteral("soft")}});
        return;
    }
    QStringList columns;
    for (const SShownItem &item : itemsOf(m_overview.plugins().constFirst())) {
        columns.append(item.title);
    }
    const Element table(m_out, "table", {{"class", QStringLiteral("files")}});
    {
        const Element group(m_out, "colgroup");
        m_out.empty("col", {{"class", QStringLiteral("what")}});
        for (int i = 0; i < columns.size(); ++i) {
            m_out.empty("col", {{"class", QStringLiteral("number")}});
        }
        m_out.empty("col");
        m_out.empty("col");
    }
    writeColumnHeads(QStringList{Texts::tr("Plug-in")} + columns
                     + QStringList{Texts::tr("On the device"), Texts::tr("In the project")});
    const Element body(m_out, "tbody");
    for (const CConfigurationOverview::SPlugin &plugin : m_overview.plugins()) {
        m_out.lineBreak();
        writePlugin(plugin);
        writeFindingsRow(plugin.item, columns.size() + 3);
    }
}

void ReportPage::writePlugin(const CConfigurationOverview::SPlugin &plugin)
{
    const Element row(
        m_out, "tr",
        {{"class", hasFindings({plugin.item}) ? QStringLiteral("concerned") : QString()}});
    {
        const Element name(m_out, "th", {{"scope", QStringLiteral("row")}});
        m_out.element("bdi", orDash(plugin.plugin.name()), {{"class", QStringLiteral("file")}});
        if (plugin.isExecuted) {
            m_out.element("span", Texts::tr("Runs the application"),
                          {{"class", QStringLiteral("badge active")}});
        }
        if (!plugin.library.isNull()) {
            const Element library(m_out, "div", {{"class", QStringLiteral("soft")}});
            m_out.element("bdi", plugin.library.fileName());
        }
    }
    for (const SShownItem &item : itemsOf(plugin)) {
        const Element cell(m_out, "td", {{"data-label", item.title}});
        m_out.element("bdi", orDash(item.value));
    }
    writeDirectory(Texts::tr("On the device"), plugin.library.devicePath());
    writeDirectory(Texts::tr("In the project"), plugin.library.projectPath());
}

void ReportPage::writeOptions()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Start options"), QStringLiteral("options"));
    const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
    writeFindings({ShapePaths::list(ConfigurationShape::EEntry::OPTION)});
    if (m_overview.options().isEmpty()) {
        m_out.element("p", Texts::tr("The device starts without options."),
                      {{"class", QStringLiteral("soft")}});
        return;
    }
    const Element list(m_out, "ul", {{"class", QStringLiteral("chips")}});
    for (const CConfigurationOverview::SOption &option : m_overview.options()) {
        const Element entry(
            m_out, "li",
            {{"class", hasFindings({option.item}) ? QStringLiteral("concerned") : QString()}});
        m_out.element("code", option.text, {{"dir", QStringLiteral("auto")}});
        writeFindings({option.item});
    }
}
