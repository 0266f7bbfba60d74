#include "commissioning/check/OptionCheck.h"

#include "commissioning/check/ValueChecks.h"
#include "commissioning/Texts.h"
#include "imported/CDomDoc.h"
#include "vocabulary/NVornXmlTags.h"

#include <QSet>

#include <algorithm>

using namespace ConfigurationRules;
using namespace FaultTexts;
using namespace NVornXmlTags;

namespace {

using ConfigurationCheckTexts::Texts;

const QString OptionList = QStringLiteral("device.options");

bool hasSpace(const QString &word)
{
    return std::any_of(word.cbegin(), word.cend(), [](QChar c) { return c.isSpace(); });
}

bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
}

QString expectedOptions()
{
    return Texts::tr("options such as -trace, separated by single spaces");
}

} // namespace

void OptionCheck::checkOptions(const Fields &config)
{
    const QDomElement element = config.element(TAG_OPTIONS);
    // What stands before the first option is not one, but is listed as one.
    const QList<StartOptions::SOption> options =
        StartOptions(CDomDoc::text(element), StartOptions::SEPARATOR_SPACE).options();
    checkSeparators(options, {element, OptionList});
    QSet<QStringList> known;
    for (const StartOptions::SOption &option : options) {
        const SPlace place = {element, m_context.entryPaths.next(OptionList, option.name())};
        if (option.name() == StartOptions::opcUa() && m_opcUaOption.element.isNull()) {
            m_opcUaOption = place;
        }
        checkForm(option, known.contains(option.words), place);
        known.insert(option.words);
    }
}

void OptionCheck::checkSeparators(const QList<StartOptions::SOption> &options, const SPlace &place)
{
    for (const StartOptions::SOption &option : options) {
        const auto badWord = std::find_if(option.words.cbegin(), option.words.cend(), hasSpace);
        if (badWord != option.words.cend()) {
            m_context.findings.report(
                OPTION_INVALID, place,
                {Texts::tr("Options are separated by something other than a space."), *badWord,
                 expectedOptions(), Texts::tr("The device reads this as one word.")});
            return;
        }
    }
}

void OptionCheck::checkForm(const StartOptions::SOption &option, bool isKnown, const SPlace &place)
{
    const QString text = option.text();
    if (option.name() == QLatin1String("-")) {
        m_context.findings.report(
            OPTION_INVALID, place,
            {Texts::tr("An option has a hyphen but no name."), text, expectedOptions(), QString()});
    } else if (!StartOptions::isOption(option.name()) && !isBlank(text)) {
        m_context.findings.report(
            OPTION_INVALID, place,
            {Texts::tr("'%1' is neither an option nor the value of one.").arg(shown(text)), text,
             expectedOptions(),
             Texts::tr("An option begins with a hyphen; the words after it are its argument.")});
    } else if (isKnown) {
        m_context.findings.report(
            OPTION_TWICE, place,
            {Texts::tr("The option '%1' occurs more than once.").arg(shown(text)), text, QString(),
             Texts::tr("Remove all but one.")});
    }
}

void OptionCheck::checkOpcUa(const Fields &opcUa)
{
    const QString text = opcUa.text(TAG_OPCUA_ENABLED);
    m_opcUaFlag = {opcUa.element(TAG_OPCUA_ENABLED), QStringLiteral("device.opcUaEnabled")};
    m_isOpcUaEnabled = text == VALUE_TRUE;
    const std::optional<SFault> fault = ValueChecks::of(ConfigurationShape::EValue::BOOLEAN, text);
    m_isOpcUaFlagValid = !fault;
    m_context.findings.report(fault, m_opcUaFlag);
}

void OptionCheck::finish()
{
    const QString option = StartOptions::opcUa();
    const bool hasOption = !m_opcUaOption.element.isNull();
    if (!m_isOpcUaFlagValid || m_isOpcUaEnabled == hasOption) {
        return;
    }
    if (m_isOpcUaEnabled) {
        m_context.findings.report(
            OPC_UA_MISMATCH, m_opcUaFlag,
            {Texts::tr("The OPC UA server is enabled, but the option %1 is missing.").arg(option),
             VALUE_TRUE, VALUE_FALSE,
             Texts::tr("Add the option %1, or disable the server.").arg(option)});
    } else {
        m_context.findings.report(
            OPC_UA_MISMATCH, m_opcUaOption,
            {Texts::tr("The option %1 is present, but the OPC UA server is not enabled.")
                 .arg(option),
             option, QString(),
             Texts::tr("Enable the server, or remove the option %1.").arg(option)});
    }
}
