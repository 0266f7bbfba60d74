#include "commissioning/check/ProjectFiles.h"

#include "storage/FileStorage.h"

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

bool ProjectFiles::readManifest(QString &errorText)
{
    const QFileInfo info(joined(m_root, CDeviceManifest::fileName()));
    if (!info.exists() && !info.isSymLink()) {
        return true;
    }
    QByteArray content;
    const FileStorage::SResult read =
        FileStorage::read(info.filePath(), content, CDeviceManifest::maximumSize());
    errorText = read.reason;
    CDeviceManifest manifest;
    if (!read || !manifest.readJson(content, errorText)) {
        return false;
    }
    for (const CDeviceManifest::SEntry &entry : manifest.entries()) {
        if (!entry.projectPath.isEmpty()) {
            m_recorded.insert(entry.projectPath, entry);
        }
    }
    return true;
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
    const QFileInfo info(joined(m_root, relativePath));
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
    } else {
        compare(relativePath, file);
    }
    return file;
}

void ProjectFiles::compare(const QString &relativePath, SFile &file) const
{
    const auto recorded = m_recorded.constFind(relativePath);
    if (recorded == m_recorded.cend()) {
        return;
    }
    const QString path = joined(m_root, relativePath);
    file.recorded = *recorded;
    file.measured.size = QFileInfo(path).size();
    // A file of another size is changed, whatever it holds: it need not be read.
    if (file.measured.size == recorded->size) {
        QString errorText;
        if (!CDeviceManifest::measure(path, file.measured.size, file.measured.sha256, errorText)) {
            file.state = STATE_UNREADABLE;
            file.found = errorText;
            return;
        }
    }
    if (file.measured.size != recorded->size || file.measured.sha256 != recorded->sha256) {
        file.state = STATE_CHANGED;
    }
}
