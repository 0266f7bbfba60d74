#include "tools/Command.h"
#include "tools/NetworkFindings.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The network.conf to check."));
    line.setFileNames({QStringLiteral("network.conf")});
    line.addExample(QStringLiteral("network.conf"));
}

int run(const CommandLine &line)
{
    const QString path = line.argument(0);
    CNetworkSettingsFile file;
    QByteArray content;
    QString reason;
    if (!readNetworkSettings(path, EAccess::READ, file, content, reason)) {
        return reportUnreadable(path, reason);
    }
    const QList<CNetworkSettingsCheck::SFinding> findings = CNetworkSettingsCheck::check(content);
    Output out;
    if (line.wantsJson()) {
        QJsonArray array;
        for (const CNetworkSettingsCheck::SFinding &finding : findings) {
            array.append(QJsonObject{{QStringLiteral("line"), finding.line},
                                     {QStringLiteral("key"), finding.key},
                                     {QStringLiteral("message"), finding.message}});
        }
        out.print({{QStringLiteral("findings"), array}});
    } else if (findings.isEmpty()) {
        out.text() << Texts::tr("%1: nothing is wrong").arg(path) << '\n';
    }
    for (const CNetworkSettingsCheck::SFinding &finding : findings) {
        if (!line.wantsJson()) {
            out.text() << toText(path, finding) << '\n';
        }
    }
    const int exitCode = out.finish();
    return findings.isEmpty() ? exitCode : EXIT_NOT_DONE;
}

const CommandRegistration
    Registration("network check",
                 QT_TRANSLATE_NOOP("vrndevice", "Report errors in a network.conf."), describe, run);

} // namespace
