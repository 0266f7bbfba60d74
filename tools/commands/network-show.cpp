#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/SmallFiles.h"

namespace {

int run(const SCommand &command, const QStringList &arguments)
{
    CommandLine line(command);
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("The network.conf to show."));
    line.addExample(QStringLiteral("network.conf"));
    if (!line.parse(arguments)) {
        return line.exitCode();
    }
    const QString path = line.argument(0);
    CNetworkSettingsFile file;
    if (file.open(path) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return reportUnreadable(path, file.errorText());
    }
    return printContent(file, line.wantsJson());
}

const CommandRegistration
    Registration("network show", "Show the Ethernet settings that a device reads from a file.",
                 run);

} // namespace
