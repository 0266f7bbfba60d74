#include "tools/Input.h"

#include "storage/FileStorage.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QFile>

#include <sys/stat.h>

namespace {

bool isDevice(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0
        && (S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode));
}

bool fail(const QFile &input, QString &reason)
{
    reason = input.errorString();
    return false;
}

/** Reads to the end, or as far as shows that there is too much. */
bool readAll(QFile &input, qint64 maximumSize, QByteArray &content, QString &reason)
{
    content = input.read(maximumSize + 1);
    const bool isTooLarge = content.size() > maximumSize;
    if (!isTooLarge && input.error() == QFileDevice::NoError) {
        return true;
    }
    content.clear();
    reason = isTooLarge ? FileStorage::tooLarge(maximumSize) : input.errorString();
    return false;
}

} // namespace

bool isStandardStream(const QString &path)
{
    return path == QLatin1String("-");
}

QString shownName(const QString &path)
{
    return isStandardStream(path) ? Texts::tr("standard input") : path;
}

bool isReadOnce(const QString &path)
{
    return isStandardStream(path) || isDevice(path);
}

bool readFile(const QString &path, EAccess access, qint64 maximumSize, QByteArray &content,
              QString &reason)
{
    if (access == EAccess::READ && isDevice(path)) {
        QFile input(path);
        return input.open(QIODevice::ReadOnly) ? readAll(input, maximumSize, content, reason)
                                               : fail(input, reason);
    }
    const FileStorage::SResult result = FileStorage::read(path, content, maximumSize);
    reason = result.reason;
    return static_cast<bool>(result);
}

bool readInput(const QString &path, QByteArray &content, QString &reason, EAccess access)
{
    const qint64 largest = SXmlLimits().fileSize;
    if (!isStandardStream(path)) {
        return readFile(path, access, largest, content, reason);
    }
    QFile input;
    return input.open(stdin, QIODevice::ReadOnly) ? readAll(input, largest, content, reason)
                                                  : fail(input, reason);
}

bool openConfiguration(const QString &path, CDeviceConfigurationFile10 &file, EAccess access)
{
    const bool isBuffered = isStandardStream(path) || (access == EAccess::READ && isDevice(path));
    if (!isBuffered) {
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

bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device,
                EAccess access)
{
    if (!openConfiguration(path, file, access)) {
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
