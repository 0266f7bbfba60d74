#include "commissioning/rules/ProjectFiles.h"

#include "elements/FilePlaces.h"
#include "storage/CanonicalName.h"
#include "storage/Descriptor.h"

#include <QFile>

#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

const QLatin1Char Separator('/');

QString joined(const QString &directory, const QString &name)
{
    return directory.isEmpty() ? name : directory + Separator + name;
}

/** The names in a directory, sorted. @return whether it can be listed */
bool list(const QByteArray &directory, QStringList &names)
{
    DIR *const entries = opendir(directory.constData());
    if (entries == nullptr) {
        return false;
    }
    bool isComplete = false;
    for (;;) {
        errno = 0;
        const dirent *const entry = readdir(entries);
        if (entry == nullptr) {
            isComplete = errno == 0;
            break;
        }
        names.append(QString::fromUtf8(entry->d_name));
    }
    closedir(entries);
    names.sort();
    return isComplete;
}

/** What is left to be said of a file that is in its place. */
void judge(ProjectFiles::SFile &file)
{
    const auto unreadable = [&file] {
        file.state = ProjectFiles::STATE_UNREADABLE;
        file.found = qt_error_string(errno);
    };
    struct stat status = {};
    if (stat(file.source.constData(), &status) != 0) {
        unreadable();
        return;
    }
    // Others are not opened: that may wait for somebody at the other end, or do something.
    if (!S_ISREG(status.st_mode)) {
        file.state = ProjectFiles::STATE_NOT_REGULAR;
        return;
    }
    const int mode = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW;
    const Descriptor opened(open(file.source.constData(), mode));
    if (!opened.isOpen() || fstat(opened.get(), &status) != 0) {
        unreadable();
        return;
    }
    // Another one may have taken its place meanwhile.
    if (!S_ISREG(status.st_mode)) {
        file.state = ProjectFiles::STATE_NOT_REGULAR;
        return;
    }
    file.size = status.st_size;
    file.state = file.size == 0 ? ProjectFiles::STATE_EMPTY : ProjectFiles::STATE_PRESENT;
}

} // namespace

ProjectFiles::ProjectFiles(const QString &directory)
    : m_root(canonicalName(QFile::encodeName(directory)))
{
    if (m_root.isEmpty()) {
        m_errorText = qt_error_string(errno);
    } else if (!m_root.endsWith('/')) {
        m_root += '/';
    }
}

ProjectFiles::SFile ProjectFiles::find(const CFileElement &file)
{
    const QString path = FilePlaces::inProject(file);
    const auto known = m_files.constFind(path);
    return known != m_files.cend() ? *known : m_files.insert(path, look(path)).value();
}

QString ProjectFiles::relativePath(const QByteArray &source) const
{
    const bool isInside = !m_root.isEmpty() && source.startsWith(m_root);
    return isInside ? QString::fromUtf8(source.mid(m_root.size())) : QString();
}

const ProjectFiles::SDirectory &ProjectFiles::directory(const QString &relativePath)
{
    const auto known = m_directories.constFind(relativePath);
    if (known != m_directories.cend()) {
        return *known;
    }
    SDirectory result;
    result.canonicalPath = canonicalName(inProject(relativePath));
    QStringList names;
    result.isListed = list(inProject(relativePath), names);
    for (const QString &name : qAsConst(names)) {
        result.names.insert(name);
        result.namesByFoldedName.insert(name.toCaseFolded(), name);
    }
    return m_directories.insert(relativePath, result).value();
}

/** The path as the directories have it, which may differ in case; empty when it is not there. */
QString ProjectFiles::spelled(const QString &relativePath)
{
    QString result;
    for (const QString &component : relativePath.split(Separator)) {
        const SDirectory &listed = directory(result);
        QString name = component;
        if (listed.isListed && !listed.names.contains(component)) {
            name = listed.namesByFoldedName.value(component.toCaseFolded());
            if (name.isEmpty()) {
                return QString();
            }
        }
        result = joined(result, name);
    }
    return result;
}

/** Without links; empty, with errno, when it leads to nothing. */
QByteArray ProjectFiles::resolved(const QString &relativePath)
{
    const int nameAt = relativePath.lastIndexOf(Separator) + 1;
    const QByteArray parent = directory(relativePath.left(qMax(nameAt - 1, 0))).canonicalPath;
    const QByteArray name = inProject(relativePath);
    struct stat status = {};
    if (lstat(name.constData(), &status) != 0) {
        return QByteArray();
    }
    // Most files are no links, and most directories have many files.
    if (parent.isEmpty() || S_ISLNK(status.st_mode)) {
        return canonicalName(name);
    }
    return (parent.endsWith('/') ? parent : parent + '/') + relativePath.mid(nameAt).toUtf8();
}

ProjectFiles::SFile ProjectFiles::look(const QString &relativePath)
{
    SFile file;
    // The system takes a name only as far as its first NUL.
    const QString found =
        relativePath.contains(QChar(QChar::Null)) ? QString() : spelled(relativePath);
    if (found.isEmpty()) {
        return file;
    }
    if (found != relativePath) {
        file.state = STATE_OTHER_CASE;
        file.found = found;
        return file;
    }
    const QByteArray source = resolved(relativePath);
    if (source.isEmpty()) {
        const int error = errno;
        const QByteArray name = inProject(relativePath);
        if (error == ENOENT || error == ENOTDIR || error == ELOOP) {
            file.found = QFile::symLinkTarget(QFile::decodeName(name));
        } else {
            file.state = STATE_UNREADABLE;
            file.found = qt_error_string(error);
        }
    } else if (!source.startsWith(m_root)) {
        file.state = STATE_OUTSIDE;
        file.found = QString::fromUtf8(source);
    } else {
        file.source = source;
        judge(file);
    }
    return file;
}

QByteArray ProjectFiles::inProject(const QString &relativePath) const
{
    return m_root + relativePath.toUtf8();
}
