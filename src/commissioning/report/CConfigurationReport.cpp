#include "commissioning/CConfigurationReport.h"

#include "commissioning/report/ReportPage.h"

CConfigurationReport::CConfigurationReport(const CConfigurationOverview &overview,
                                           const QList<SConfigurationFinding> &findings)
    : m_overview(overview), m_findings(findings)
{
}

QByteArray CConfigurationReport::toHtml() const
{
    return ReportPage(m_overview, m_findings).write();
}
