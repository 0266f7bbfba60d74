#include "tools/Command.h"
#include "tools/NetworkFindings.h"
#include "tools/SmallFiles.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The network.conf to show."));
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
    return printContent(file, line.wantsJson());
}

const CommandRegistration Registration(
    "network show",
    QT_TRANSLATE_NOOP("vrndevice", "Show the Ethernet settings that a device reads from a file."),
    describe, run);

} // namespace
