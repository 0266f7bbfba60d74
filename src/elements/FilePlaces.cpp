#include "elements/FilePlaces.h"

#include <QDir>

namespace FilePlaces {

namespace {

/** In bytes of UTF-8. */
const int LongestPath = 4095;

} // namespace

QString cleaned(const QString &path)
{
    return QDir::cleanPath(path);
}

QString onDevice(const CFileElement &file)
{
    return file.devicePath().isEmpty() ? QString() : cleaned(file.deviceFilePath());
}

QString inProject(const CFileElement &file)
{
    return cleaned(file.projectFilePath());
}

QString deviceDirectory(const CFileElement &file)
{
    return cleaned(file.devicePath()) + QLatin1Char('/');
}

bool isStorable(const QString &path)
{
    const QByteArray bytes = path.toUtf8();
    // Half of a surrogate pair does not come back.
    if (bytes.size() > LongestPath || bytes.contains('\0') || QString::fromUtf8(bytes) != path) {
        return false;
    }
    for (const QByteArray &name : bytes.split('/')) {
        if (name.isEmpty() || name == "." || name == ".." || name.size() > LongestName) {
            return false;
        }
    }
    return true;
}

} // namespace FilePlaces
