#include "commissioning/ProjectFiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QLatin1Char Separator('/');

QString joined(const QString &directory, const QString &name)
{
    return directory.isEmpty() ? name : directory + Separator + name;
}

} // namespace

ProjectFiles::ProjectFiles(const QString &directory)
    : m_root(QDir(directory).absolutePath()), m_canonicalRoot(QDir(directory).canonicalPath())
{
}

ProjectFiles::SFile ProjectFiles::find(const QString &relativePath)
{
    const auto known = m_files.constFind(relativePath);
    return known != m_files.cend() ? *known
                                   : m_files.insert(relativePath, look(relativePath)).value();
}

const ProjectFiles::SDirectory &ProjectFiles::directory(const QString &relativePath)
{
    const auto known = m_directories.constFind(relativePath);
    if (known != m_directories.cend()) {
        return *known;
    }
    SDirectory result;
    const QFileInfo info(joined(m_root, relativePath));
    result.canonicalPath = info.canonicalFilePath();
    result.isListed = info.isDir() && info.isReadable();
    const QStringList names =
        QDir(info.filePath())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    for (const QString &name : names) {
        result.names.insert(name);
        result.namesByFoldedName.insert(name.toCaseFolded(), name);
    }
    return m_directories.insert(relativePath, result).value();
}

bool ProjectFiles::isInside(const QString &canonicalPath) const
{
    return m_canonicalRoot == QLatin1String("/")
        || canonicalPath.startsWith(m_canonicalRoot + Separator);
}

ProjectFiles::SFile ProjectFiles::look(const QString &relativePath)
{
    SFile file;
    file.path = joined(m_root, relativePath);
    QString found;
    QString parent;
    const QStringList components = relativePath.split(Separator);
    for (const QString &component : components) {
        const SDirectory &listed = directory(found);
        QString name = component;
        if (listed.isListed && !listed.names.contains(component)) {
            name = listed.namesByFoldedName.value(component.toCaseFolded());
            if (name.isEmpty()) {
                file.state = STATE_MISSING;
                return file;
            }
        }
        parent = found;
        found = joined(found, name);
    }
    if (found != relativePath) {
        file.state = STATE_OTHER_CASE;
        file.found = found;
        return file;
    }
    const QFileInfo info(file.path);
    const QString canonicalPath = info.isSymLink()
        ? info.canonicalFilePath()
        : directory(parent).canonicalPath + Separator + info.fileName();
    if (!info.exists()) {
        file.state = STATE_MISSING;
        file.found = info.isSymLink() ? info.symLinkTarget() : QString();
    } else if (!isInside(canonicalPath)) {
        file.state = STATE_OUTSIDE;
        file.found = canonicalPath;
    } else if (!info.isFile()) {
        file.state = STATE_NOT_REGULAR;
    } else if (!info.isReadable()) {
        file.state = STATE_UNREADABLE;
    } else if (info.size() == 0) {
        file.state = STATE_EMPTY;
    }
    return file;
}
