#pragma once

#include "commissioning/check/ConfigurationRules.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QList>
#include <QStringList>

#include <optional>

/** Where something stands, and how it is called. */
struct SPlace {
    QDomElement element;
    QString item;
};

/** What is wrong, in words; see SConfigurationFinding. Without a hint that of the rule stands. */
struct SFaultText {
    QString message;
    QString found;
    QString expected;
    QString hint;
};

/** What a rule found, without a place. */
struct SFault {
    ConfigurationRules::ERule rule;
    SFaultText text;
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

/** Parts of the texts of findings. */
namespace FindingTexts {

/** @p text as it stands in messages: shortened when it is very long. */
QString shown(const QString &text);
QString inWords(const QStringList &texts);
/** Of the texts that are allowed, the one meant by @p text; empty when there is none. */
QString meant(const QString &text, const QStringList &allowed);
/** Tells to write @p rightText, from which a text differs in capital and small letters. */
QString caseHint(const QString &rightText);

} // namespace FindingTexts
