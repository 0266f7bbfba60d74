#include "tools/Input.h"

#include "tools/Command.h"
#include "tools/Output.h"

bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device)
{
    if (!file.open(path)) {
        return false;
    }
    if (!file.configuration(device)) {
        printError(QStringLiteral("%1: The configuration has no device.").arg(path));
        return false;
    }
    return true;
}

int reportUnreadable(const QString &path, const QString &reason)
{
    printError(QStringLiteral("%1: %2").arg(path, reason));
    return EXIT_UNREADABLE_INPUT;
}

int reportNotSaved(const QString &path, const QString &reason)
{
    printError(QStringLiteral("%1: The file could not be saved: %2").arg(path, reason));
    return EXIT_NOT_DONE;
}
