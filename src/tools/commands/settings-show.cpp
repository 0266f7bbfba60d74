#include "settings/CDeviceSettingsFile.h"
#include "tools/Command.h"
#include "tools/SmallFiles.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The settings document to show."));
    line.setFileNames({QStringLiteral("*.3conf")});
    line.addExample(QStringLiteral("settings.3conf"));
}

int run(const CommandLine &line)
{
    CDeviceSettingsFile file(nullptr);
    if (file.open(line.argument(0), settingsVersion()) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return EXIT_UNREADABLE_INPUT;
    }
    return printContent(file.deviceSettings(), line.wantsJson());
}

const CommandRegistration
    Registration("settings show",
                 QT_TRANSLATE_NOOP("vrndevice", "Show the names of a device and its drives."),
                 describe, run);

} // namespace
