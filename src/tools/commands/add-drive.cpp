#include "elements/DriveNumbers.h"
#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/Output.h"
#include "vocabulary/DriveTypes.h"

namespace {

const QString TypeOption = QStringLiteral("type");
const QString NameOption = QStringLiteral("name");
const QString IdOption = QStringLiteral("id");

/** A new drive of the type named @p type; an empty container for any other text. */
CSubDeviceElement newDrive(const QString &type)
{
    for (const CSubDeviceElement &drive :
         {CSubDeviceElement(CSubDeviceKD2Element()), CSubDeviceElement(CSubDeviceKD3Element())}) {
        if (subDeviceTypeName(drive) == type) {
            return drive;
        }
    }
    return CSubDeviceElement();
}

/** The number that a reader would give a drive behind all others; -1 when all are in use. */
int freeNumber(const CDeviceElement &device)
{
    QList<quint8> numbers;
    for (const CSubDeviceElement &drive : device.subDevices()) {
        numbers.append(drive.driveId());
    }
    return DriveNumbers::nextFree(numbers);
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The configuration to change."));
    line.setFileNames({QStringLiteral("*.3deco")});
    line.addOption(TypeOption, Texts::tr("Series of the drive."), QStringLiteral("TYPE"),
                   DriveTypes::all());
    line.addOption(NameOption,
                   Texts::tr("Name of the drive; by default derived from its drive number."),
                   QStringLiteral("NAME"));
    line.addOption(IdOption, Texts::tr("Drive number 0 to 254; by default the next free one."),
                   QStringLiteral("NUMBER"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --type KD3_drive --name Gripper"));
}

int run(const CommandLine &line)
{
    CSubDeviceElement drive = newDrive(line.value(TypeOption));
    if (drive.type() == NvrnDeviceCore::ELEMENT_UNKNOWN) {
        return line.badUsage(Texts::tr("--type must be KD2_drive or KD3_drive."));
    }
    bool isNumber = true;
    const uint id = line.isSet(IdOption) ? line.value(IdOption).toUInt(&isNumber) : 0;
    if (!isNumber || id > DriveNumbers::Highest) {
        return line.badUsage(Texts::tr("--id must be a number from 0 to 254."));
    }

    const QString path = line.argument(0);
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!readDevice(path, file, device, EAccess::CHANGE)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const int number = line.isSet(IdOption) ? static_cast<int>(id) : freeNumber(device);
    if (number < 0) {
        printError(Texts::tr("%1: All drive numbers are in use.").arg(path));
        return EXIT_NOT_DONE;
    }
    const auto used = static_cast<quint8>(number);
    if (device.subDevice(used).type() != NvrnDeviceCore::ELEMENT_UNKNOWN) {
        printError(
            Texts::tr("%1: The drive number %2 is in use.").arg(path, QString::number(number)));
        return EXIT_NOT_DONE;
    }
    drive.setName(line.value(NameOption));
    device.insertSubDevice(drive, used);
    // Only the new drive is written: the rest of the document stays as it is.
    file.appendSubDeviceElement(drive, file.deviceDomElement());
    const int exitCode = saveConfiguration(path, file);
    if (exitCode != EXIT_DONE || isStandardStream(path)) {
        return exitCode;
    }

    file.configuration(device);
    const CSubDeviceElement added = device.subDevice(used);
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(added));
    } else {
        out.text() << Texts::tr("Added drive %1: %2, %3")
                          .arg(QString::number(used), added.name(), subDeviceTypeName(added))
                   << '\n';
    }
    return out.finish();
}

const CommandRegistration Registration("add-drive",
                                       QT_TRANSLATE_NOOP("vrndevice", "Add a drive to the device."),
                                       describe, run);

} // namespace
