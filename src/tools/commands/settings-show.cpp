#include "settings/CDeviceSettingsFile.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/SmallFiles.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The settings document to show."));
    line.setFileNames({QStringLiteral("*.3conf")});
    line.addExample(QStringLiteral("settings.3conf"));
}

/** @return false when that fails; the reason has been printed */
bool open(const QString &path, CDeviceSettingsFile &file)
{
    if (!isReadOnce(path)) {
        return file.open(path, settingsVersion()) == NvrnGlobal::FILE_RESULT_SUCCESS;
    }
    QByteArray content;
    QString reason;
    if (!readFile(path, EAccess::READ, SXmlLimits().fileSize, content, reason)) {
        reportUnreadable(path, reason);
        return false;
    }
    return file.openFromBuffer(content, settingsVersion()) == NvrnGlobal::FILE_RESULT_SUCCESS;
}

int run(const CommandLine &line)
{
    CDeviceSettingsFile file(nullptr);
    if (!open(line.argument(0), file)) {
        return EXIT_UNREADABLE_INPUT;
    }
    return printContent(file.deviceSettings(), line.wantsJson());
}

const CommandRegistration
    Registration("settings show",
                 QT_TRANSLATE_NOOP("vrndevice", "Show the names of a device and its drives."),
                 describe, run);

} // namespace
