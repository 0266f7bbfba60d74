#include "commissioning/check/Findings.h"

#include "commissioning/Texts.h"

using namespace ConfigurationRules;
using namespace FaultTexts;

namespace {

using ConfigurationCheckTexts::Texts;

/** More than anybody reads, and no more than memory holds. */
const int MostFindings = 100000;

} // namespace

void Findings::report(ERule rule, const SPlace &place, const SFaultText &text)
{
    if (m_findings.size() < MostFindings) {
        append(rule, place, text);
    } else if (m_findings.size() == MostFindings) {
        append(FINDINGS_LEFT_OUT, place,
               {Texts::tr("Too many findings; the remaining ones are left out."), QString(),
                QString(), Texts::tr("Correct the reported findings, then check again.")});
    }
}

void Findings::report(const SFault &fault, const SPlace &place)
{
    report(fault.rule, place, fault.text);
}

void Findings::report(const std::optional<SFault> &fault, const SPlace &place)
{
    if (fault) {
        report(*fault, place);
    }
}

void Findings::append(ERule rule, const SPlace &place, const SFaultText &text)
{
    SConfigurationFinding finding;
    finding.rule = id(rule);
    finding.severity = severity(rule);
    finding.item = place.item;
    finding.position = m_file.position(place.element);
    finding.message = text.message;
    finding.found = shown(text.found);
    finding.expected = text.expected;
    finding.hint = text.hint.isEmpty() ? hint(rule) : text.hint;
    m_findings.append(finding);
}
