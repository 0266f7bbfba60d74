#include "commissioning/CConfigurationCheck.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

bool isError(const CConfigurationCheck::SRule &rule)
{
    return rule.severity == SConfigurationFinding::ERROR;
}

void describe(CommandLine &line)
{
    line.addExample(QStringLiteral("--json"));
}

int run(const CommandLine &line)
{
    Output out;
    const QList<CConfigurationCheck::SRule> rules = CConfigurationCheck::rules();
    if (line.wantsJson()) {
        QJsonArray array;
        for (const CConfigurationCheck::SRule &rule : rules) {
            const QString severity =
                isError(rule) ? QStringLiteral("error") : QStringLiteral("warning");
            array.append(QJsonObject{{QStringLiteral("id"), rule.id},
                                     {QStringLiteral("severity"), severity},
                                     {QStringLiteral("description"), rule.description},
                                     {QStringLiteral("hint"), rule.hint}});
        }
        out.print({{QStringLiteral("rules"), array}});
        return out.finish();
    }
    QList<QStringList> rows;
    for (const CConfigurationCheck::SRule &rule : rules) {
        rows.append(
            {rule.id, isError(rule) ? Texts::tr("error") : Texts::tr("warning"), rule.description});
    }
    out.printColumns(rows);
    return out.finish();
}

const CommandRegistration
    Registration("rules", QT_TRANSLATE_NOOP("vrndevice", "List the rules that 'check' applies."),
                 describe, run);

} // namespace
