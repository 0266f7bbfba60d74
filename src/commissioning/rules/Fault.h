#pragma once

#include "commissioning/rules/ConfigurationRules.h"

#include <QString>
#include <QStringList>

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

/** Parts of the texts of faults. */
namespace FaultTexts {

/** @p text as it stands in messages: shortened when it is very long. */
QString shown(const QString &text);
QString inWords(const QStringList &texts);
/** Of the texts that are allowed, the one meant by @p text; empty when there is none. */
QString meant(const QString &text, const QStringList &allowed);
/** Tells to write @p rightText, from which a text differs in capital and small letters. */
QString caseHint(const QString &rightText);

} // namespace FaultTexts
