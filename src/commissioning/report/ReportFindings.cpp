#include "commissioning/report/ReportPage.h"

#include "commissioning/rules/ConfigurationRules.h"
#include "commissioning/Texts.h"

#include <algorithm>

using ConfigurationReportTexts::Texts;
using Element = HtmlWriter::Element;

namespace {

/**
 * Where a link of the project leads is a path of this computer, which means nothing to the others
 * that the page is for.
 */
bool isPathOfThisComputer(const SConfigurationFinding &finding)
{
    return finding.rule == ConfigurationRules::id(ConfigurationRules::PROJECT_FILE_OUTSIDE)
        || finding.rule == ConfigurationRules::id(ConfigurationRules::PROJECT_FILE_MISSING);
}

/** Further ones are folded away, so that the drawing is not out of sight. */
const int SummaryLength = 12;

} // namespace

QString ReportPage::place(const SConfigurationFinding &finding) const
{
    return finding.position.isKnown()
        ? Texts::tr("line %1, column %2")
              .arg(QString::number(finding.position.line), QString::number(finding.position.column))
        : QString();
}

void ReportPage::writeFindings()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Findings"), QStringLiteral("findings"));
    if (m_findings.all().isEmpty()) {
        m_out.element("p", Texts::tr("The check found no errors and no warnings."),
                      {{"class", QStringLiteral("card none")}});
        return;
    }
    writeSummary();
    writeFindingsOfWhole();
}

void ReportPage::writeSummary()
{
    const int count = m_findings.all().size();
    const Element card(m_out, "div", {{"class", QStringLiteral("card summary")}});
    writeSummary(0, std::min(count, SummaryLength));
    if (count > SummaryLength) {
        const Element details(m_out, "details");
        m_out.element("summary", Texts::tr("Further findings: %1").arg(count - SummaryLength));
        writeSummary(SummaryLength, count);
    }
}

void ReportPage::writeSummary(int first, int end)
{
    const Element list(m_out, "ol", {{"start", QString::number(first + 1)}});
    for (int i = first; i < end; ++i) {
        const SConfigurationFinding finding = m_findings.at(i);
        m_out.lineBreak();
        const Element entry(m_out, "li");
        writeSeverity(finding);
        {
            const Element message(m_out, "div", {{"class", QStringLiteral("message")}});
            {
                const Element link(m_out, "a",
                                   {{"href", QStringLiteral("#finding-%1").arg(i + 1)}});
                m_out.element("bdi", finding.message);
            }
            if (!finding.item.isEmpty()) {
                m_out.element("code", finding.item, {{"dir", QStringLiteral("auto")}});
            }
        }
        m_out.element("span", place(finding), {{"class", QStringLiteral("where")}});
    }
}

void ReportPage::writeFindingsOfWhole()
{
    const QStringList items = {QString(), QStringLiteral("description")};
    if (hasFindings(items)) {
        const Element card(m_out, "div", {{"class", QStringLiteral("card group")}});
        m_out.element("h3", Texts::tr("The configuration as a whole"));
        writeFindings(items);
    }
}

void ReportPage::writeSeverity(const SConfigurationFinding &finding)
{
    const bool isError = finding.severity == SConfigurationFinding::ERROR;
    m_out.element(
        "span", isError ? Texts::tr("Error") : Texts::tr("Warning"),
        {{"class", isError ? QStringLiteral("badge error") : QStringLiteral("badge warning")}});
}

void ReportPage::writeFinding(int index)
{
    const SConfigurationFinding finding = m_findings.at(index);
    const bool isError = finding.severity == SConfigurationFinding::ERROR;
    m_out.lineBreak();
    const Element entry(m_out, "li",
                        {{"id", QStringLiteral("finding-%1").arg(index + 1)},
                         {"class", isError ? QStringLiteral("error") : QStringLiteral("warning")}});
    {
        const Element paragraph(m_out, "p");
        writeSeverity(finding);
        m_out.element("bdi", finding.message);
    }
    const auto line = [this](const QString &label, const QString &text) {
        if (!text.isEmpty()) {
            const Element paragraph(m_out, "p");
            m_out.element("span", label, {{"class", QStringLiteral("soft")}});
            m_out.raw(QStringLiteral(" "));
            m_out.element("bdi", text);
        }
    };
    // Most messages quote what was found.
    if (!finding.message.contains(finding.found) && !isPathOfThisComputer(finding)) {
        line(Texts::tr("Found:"), finding.found);
    }
    line(Texts::tr("Expected:"), finding.expected);
    line(Texts::tr("Hint:"), finding.hint);
    const Element paragraph(m_out, "p", {{"class", QStringLiteral("place")}});
    m_out.element("code", finding.rule);
    const auto part = [this](const QString &text) {
        if (!text.isEmpty()) {
            m_out.raw(QStringLiteral(" · "));
            m_out.element("bdi", text);
        }
    };
    part(finding.item);
    part(place(finding));
}

bool ReportPage::hasFindings(const QStringList &items) const
{
    return std::any_of(items.begin(), items.end(),
                       [this](const QString &item) { return !m_findings.at(item).isEmpty(); });
}

void ReportPage::writeFindings(const QStringList &items)
{
    if (!hasFindings(items)) {
        return;
    }
    const Element list(m_out, "ul", {{"class", QStringLiteral("findings")}});
    for (const QString &item : items) {
        for (const int index : m_findings.at(item)) {
            writeFinding(index);
        }
    }
}
