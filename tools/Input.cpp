#include "tools/Input.h"

#include "tools/Command.h"
#include "tools/Output.h"

#include <QFileInfo>

#include <cerrno>

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

int reportUnreadable(const QString &path)
{
    const QFileInfo file(path);
    QString reason = QStringLiteral("This is no regular file, or it cannot be read.");
    if (!file.exists()) {
        reason = qt_error_string(ENOENT);
    } else if (file.isDir()) {
        reason = qt_error_string(EISDIR);
    } else if (!file.isReadable()) {
        reason = qt_error_string(EACCES);
    }
    printError(QStringLiteral("%1: %2").arg(path, reason));
    return EXIT_UNREADABLE_INPUT;
}

int reportNotSaved(const QString &path)
{
    printError(QStringLiteral("%1: The file could not be saved; it is as it was.").arg(path));
    return EXIT_NOT_DONE;
}
