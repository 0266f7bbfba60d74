#pragma once

#include "commissioning/check/CheckContext.h"
#include "commissioning/check/Fields.h"
#include "elements/StartOptions.h"

/** Checks the start options, and the flag of the OPC UA server, which has an option of its own. */
class OptionCheck
{
public:
    explicit OptionCheck(CheckContext &context) : m_context(context) { }

    void checkOptions(const Fields &config);
    void checkOpcUa(const Fields &opcUa);
    /** To be called behind both: whether they contradict each other. */
    void finish();

private:
    void checkSeparators(const QList<StartOptions::SOption> &options, const SPlace &place);
    void checkForm(const StartOptions::SOption &option, bool isKnown, const SPlace &place);

    CheckContext &m_context;
    SPlace m_opcUaFlag;
    SPlace m_opcUaOption;
    bool m_isOpcUaFlagValid = true;
    bool m_isOpcUaEnabled = false;
};
