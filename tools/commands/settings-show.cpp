#include "settings/CDeviceSettingsFile.h"
#include "tools/Command.h"
#include "tools/SmallFiles.h"

namespace {

int run(const SCommand &command, const QStringList &arguments)
{
    CommandLine line(command);
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("The settings document to show."));
    line.addExample(QStringLiteral("settings.3conf"));
    if (!line.parse(arguments)) {
        return line.exitCode();
    }
    CDeviceSettingsFile file(nullptr);
    if (file.open(line.argument(0), settingsVersion()) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return EXIT_UNREADABLE_INPUT;
    }
    return printContent(file.deviceSettings(), line.wantsJson());
}

const CommandRegistration Registration("settings show", "Show the names that a device was given.",
                                       run);

} // namespace
