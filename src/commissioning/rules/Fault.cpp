#include "commissioning/rules/Fault.h"

#include "commissioning/Texts.h"

#include <algorithm>

namespace {

using ConfigurationCheckTexts::Texts;

const int LongestShownText = 200;

} // namespace

namespace FaultTexts {

QString shown(const QString &text)
{
    return text.size() <= LongestShownText ? text : text.left(LongestShownText) + QChar(0x2026);
}

QString inWords(const QStringList &texts)
{
    return texts.join(QStringLiteral(", "));
}

QString meant(const QString &text, const QStringList &allowed)
{
    const auto found =
        std::find_if(allowed.cbegin(), allowed.cend(), [&text](const QString &candidate) {
            return candidate.compare(text, Qt::CaseInsensitive) == 0;
        });
    return found == allowed.cend() ? QString() : *found;
}

QString caseHint(const QString &rightText)
{
    return Texts::tr("Write '%1'; upper and lower case are distinguished.").arg(rightText);
}

} // namespace FaultTexts
