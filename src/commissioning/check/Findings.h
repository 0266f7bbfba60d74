#pragma once

#include "commissioning/rules/Fault.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QList>

#include <optional>

/** Where something stands, and how it is called. */
struct SPlace {
    QDomElement element;
    QString item;
};

/** What was found in one document, up to a limit. */
class Findings
{
public:
    /** @param file holds the document, with positions */
    explicit Findings(const CDeviceConfigurationFile10 &file) : m_file(file) { }

    void report(ConfigurationRules::ERule rule, const SPlace &place, const SFaultText &text);
    void report(const SFault &fault, const SPlace &place);
    /** Reports nothing without a fault. */
    void report(const std::optional<SFault> &fault, const SPlace &place);

    /** In the order in which they were reported. */
    const QList<SConfigurationFinding> &all() const { return m_findings; }

private:
    void append(ConfigurationRules::ERule rule, const SPlace &place, const SFaultText &text);

    const CDeviceConfigurationFile10 &m_file;
    QList<SConfigurationFinding> m_findings;
};
