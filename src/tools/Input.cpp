#include "tools/Input.h"

#include "storage/FileStorage.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QFile>

bool isStandardStream(const QString &path)
{
    return path == QLatin1String("-");
}

QString shownName(const QString &path)
{
    return isStandardStream(path) ? Texts::tr("standard input") : path;
}

bool readInput(const QString &path, QByteArray &content, QString &reason)
{
    const qint64 largest = SXmlLimits().fileSize;
    if (!isStandardStream(path)) {
        const FileStorage::SResult result = FileStorage::read(path, content, largest);
        reason = result.reason;
        return static_cast<bool>(result);
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        reason = input.errorString();
        return false;
    }
    content = input.read(largest + 1);
    if (content.size() > largest) {
        content.clear();
        reason = FileStorage::tooLarge(largest);
        return false;
    }
    return true;
}

bool openConfiguration(const QString &path, CDeviceConfigurationFile10 &file)
{
    if (!isStandardStream(path)) {
        return file.open(path);
    }
    QByteArray content;
    QString reason;
    if (!readInput(path, content, reason)) {
        reportUnreadable(path, reason);
        return false;
    }
    return file.load(content);
}

int saveConfiguration(const QString &path, CDeviceConfigurationFile10 &file)
{
    if (!isStandardStream(path)) {
        return file.save(path) ? EXIT_DONE : EXIT_NOT_DONE;
    }
    QByteArray content;
    QString error;
    if (!file.save(content, error)) {
        return EXIT_NOT_DONE;
    }
    Output out;
    out.exact() << QString::fromUtf8(content);
    return out.finish();
}

bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device)
{
    if (!openConfiguration(path, file)) {
        return false;
    }
    if (!file.configuration(device)) {
        printError(Texts::tr("%1: The configuration has no device.").arg(shownName(path)));
        return false;
    }
    return true;
}

int reportUnreadable(const QString &path, const QString &reason)
{
    printError(QStringLiteral("%1: %2").arg(shownName(path), reason));
    return EXIT_UNREADABLE_INPUT;
}

int reportNotSaved(const QString &path, const QString &reason)
{
    printError(Texts::tr("%1: The file could not be saved: %2").arg(path, reason));
    return EXIT_NOT_DONE;
}
