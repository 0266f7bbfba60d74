#include "elements/DriveNumbers.h"
#include "settings/CDeviceSettingsFile.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/SmallFiles.h"

#include <QFileInfo>

namespace {

const QString NameOption = QStringLiteral("name");
const QString DriveOption = QStringLiteral("drive");
const QString CreateOption = QStringLiteral("create");

/** Sets the name in "NUMBER=NAME". @return whether @p text has this form */
bool setDriveName(const QString &assignment, CDeviceSettings &settings)
{
    const int equals = assignment.indexOf(QLatin1Char('='));
    bool isNumber = false;
    const uint number = assignment.left(equals).toUInt(&isNumber);
    const bool isAssignment = equals > 0 && isNumber && number <= DriveNumbers::Highest;
    if (isAssignment) {
        settings.setSubDeviceName(assignment.mid(equals + 1), static_cast<quint8>(number));
    }
    return isAssignment;
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The settings document to change."));
    line.setFileNames({QStringLiteral("*.3conf")});
    line.addOption(NameOption, Texts::tr("Name of the device."), QStringLiteral("NAME"));
    line.addOption(DriveOption,
                   Texts::tr("Name of the drive with the given number, 0 to 254; may be repeated."),
                   QStringLiteral("NUMBER=NAME"));
    line.addOption(CreateOption, Texts::tr("Start a new document if the file does not exist."));
    line.addExample(
        QStringLiteral("settings.3conf --name Wrapper --drive 0=Infeed --drive 1=Knife"));
}

int run(const CommandLine &line)
{
    CDeviceSettings changes;
    for (const QString &assignment : line.values(DriveOption)) {
        if (!setDriveName(assignment, changes)) {
            return line.badUsage(
                Texts::tr("--drive must be a number from 0 to 254, '=' and a name."));
        }
    }
    if (!line.isSet(NameOption) && changes.isNull()) {
        return line.badUsage(Texts::tr("Neither --name nor --drive is given."));
    }

    const QString path = line.argument(0);
    const bool isNew = line.isSet(CreateOption) && !QFileInfo::exists(path);
    CDeviceSettingsFile file(nullptr);
    if (!isNew && file.open(path, settingsVersion()) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return EXIT_UNREADABLE_INPUT;
    }
    CDeviceSettings settings = file.deviceSettings();
    if (line.isSet(NameOption)) {
        settings.setDeviceName(line.value(NameOption));
    }
    const QMap<quint8, QString> names = changes.subDeviceNameMap();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name) {
        settings.setSubDeviceName(name.value(), name.key());
    }
    file.setDeviceSettings(settings);
    if (file.save(path, settingsVersion()) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return EXIT_NOT_DONE; // the library has reported why
    }
    return printContent(settings, line.wantsJson());
}

const CommandRegistration
    Registration("settings set",
                 QT_TRANSLATE_NOOP("vrndevice", "Set the names of a device and its drives."),
                 describe, run);

} // namespace
