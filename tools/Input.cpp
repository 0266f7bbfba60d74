#include "tools/Input.h"

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
