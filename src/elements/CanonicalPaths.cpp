#include "elements/CanonicalPaths.h"

#include <QDir>

namespace CanonicalPaths {

QString of(const QString &path)
{
    return QDir::cleanPath(path);
}

QString onDevice(const CFileElement &file)
{
    return file.devicePath().isEmpty() ? QString() : of(file.deviceFilePath());
}

QString inProject(const CFileElement &file)
{
    return of(file.projectFilePath());
}

QString deviceDirectory(const CFileElement &file)
{
    return of(file.devicePath()) + QLatin1Char('/');
}

} // namespace CanonicalPaths
