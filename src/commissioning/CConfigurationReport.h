#pragma once

#include "commissioning/CConfigurationOverview.h"
#include "commissioning/SConfigurationFinding.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QByteArray>
#include <QList>

/**
 * A configuration as one HTML page for people: project and device, a drawing of the device with its
 * drives, every file with its two places, plug-ins, options, and the findings of a check beside
 * what they concern.
 *
 * The page is UTF-8 and complete in itself: it loads nothing and runs nothing, can be printed, and
 * follows the reader's choice of light or dark. It is XML, too. The same configuration and findings
 * give the same bytes; texts, and the language that the page declares, are those of the installed
 * translation.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationReport
{
public:
    /** @param overview must outlive the report */
    explicit CConfigurationReport(const CConfigurationOverview &overview,
                                  const QList<SConfigurationFinding> &findings = {});

    QByteArray toHtml() const;

private:
    const CConfigurationOverview &m_overview;
    const QList<SConfigurationFinding> m_findings;
};
