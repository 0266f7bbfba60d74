#include "commissioning/CStagingPlan.h"

#include "commissioning/CDeviceManifest.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "storage/Descriptor.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>

#include <cerrno>
#include <cstdlib>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CStagingPlan)
};

const QLatin1Char Separator('/');

/** @p path without superfluous separators: relative, and not ending in one. */
QString relative(const QString &path)
{
    return path.split(Separator, Qt::SkipEmptyParts).join(Separator);
}

bool leadsUp(const QString &path)
{
    return path.split(Separator).contains(QStringLiteral(".."));
}

bool isBelow(const QByteArray &name, const QByteArray &directory)
{
    return name.startsWith(directory.endsWith('/') ? directory : directory + '/');
}

/** The name of what @p name leads to, without links; empty, with errno, when that is nothing. */
QByteArray canonical(const QByteArray &name)
{
    char *const resolved = realpath(name.constData(), nullptr);
    const int error = errno;
    QByteArray result(resolved);
    std::free(resolved);
    errno = error;
    return result;
}

/** A name that can stand between two separators. */
bool isName(const QString &name)
{
    return !name.contains(Separator) && CDeviceManifest::isDevicePath(QStringLiteral("x/") + name);
}

} // namespace

/** Makes a plan and collects what is wrong with it. */
class StagingPlanner
{
public:
    StagingPlanner(const CDeviceElement &device, const QString &projectDirectory,
                   CStagingPlan &plan)
        : m_device(device), m_plan(plan), m_project(canonical(QFile::encodeName(projectDirectory)))
    {
        if (m_project.isEmpty()) {
            const QString reason = qt_error_string(errno);
            addProblem(QStringLiteral("no-project"), {},
                       Texts::tr("The project directory %1 cannot be found: %2")
                           .arg(projectDirectory, reason));
        }
    }

    void make(const CStagingPlan::SDocument &document)
    {
        m_hasPlaces = checkName();
        if (m_hasPlaces) {
            addDirectories();
            addDocument(document);
        }
        for (const CFileElement &file : m_device.allFiles(NvrnDeviceCore::DEVICE_FILE_ALL)) {
            addFile(file);
        }
        for (const CStagingPlan::SFile &file : qAsConst(m_files)) {
            if (m_directories.count(file.devicePath) != 0) {
                addProblem(QStringLiteral("file-and-directory"), file,
                           Texts::tr("%1 would be both a file and a directory on the device.")
                               .arg(file.devicePath));
            }
        }
        for (const QString &directory : m_directories) {
            m_plan.m_directories.append(directory);
        }
        m_plan.m_files = m_files.values();
    }

private:
    void addProblem(const QString &rule, const CStagingPlan::SFile &file, const QString &message)
    {
        m_plan.m_problems.append({rule, file.devicePath, file.projectPath, message});
    }

    /** Whether there are directories at all. */
    bool checkName()
    {
        const QString name = m_device.configurationName();
        if (name.isEmpty()) {
            addProblem(QStringLiteral("no-configuration-name"), {},
                       Texts::tr("The device has no configuration name; the directories on the "
                                 "device are named after it."));
            return false;
        }
        // A file's directory takes a back-slash for a separator, so that files would lie elsewhere.
        if (!isName(name) || name.contains(QLatin1Char('\\'))) {
            addProblem(
                QStringLiteral("bad-configuration-name"), {},
                Texts::tr(
                    "The configuration name \"%1\" cannot be used as the name of a directory.")
                    .arg(name));
            return false;
        }
        return true;
    }

    void addDirectories()
    {
        const CDeviceFileSystem layout(m_device);
        QStringList paths = layout.smPathList() + layout.optSMPathList();
        // The lists count the drives; their files lie under the drives' own numbers.
        for (const CSubDeviceElement &drive : m_device.subDevices()) {
            const int number = drive.driveId();
            paths << layout.smSubDevicePath(number) << layout.smSubDeviceFirmwarePath(number)
                  << layout.smSubDeviceLogicPath(number) << layout.smSubDeviceParamPath(number);
        }
        for (const QString &path : qAsConst(paths)) {
            addDirectory(relative(path));
        }
    }

    /** With its parents, but for the root. */
    void addDirectory(QString path)
    {
        while (!path.isEmpty() && m_directories.insert(path).second) {
            path.truncate(qMax(path.lastIndexOf(Separator), 0));
        }
    }

    void addDocument(const CStagingPlan::SDocument &document)
    {
        const CFileElement element = m_device.configurationFile();
        CStagingPlan::SFile file;
        file.devicePath = relative(element.deviceFilePath());
        file.content = document.content.isNull() ? QByteArray("") : document.content;
        file.size = document.content.size();
        if (!document.path.isEmpty()) {
            file.source = canonical(QFile::encodeName(document.path));
        }
        if (!m_project.isEmpty() && isBelow(file.source, m_project)) {
            const QByteArray name = file.source.mid(m_project.size());
            file.projectPath = relative(QString::fromUtf8(name));
        }
        place(file);
    }

    void addFile(const CFileElement &element)
    {
        CStagingPlan::SFile file;
        file.devicePath = element.deviceFilePath();
        file.projectPath = element.projectFilePath();
        if (!isName(element.fileName())) {
            addProblem(QStringLiteral("bad-file-name"), file,
                       Texts::tr("\"%1\" is not a valid file name.").arg(element.fileName()));
            return;
        }
        const bool hasPlace = m_hasPlaces && findPlace(element, file);
        if (!m_project.isEmpty()) {
            findSource(file);
        }
        if (hasPlace) {
            place(file);
        }
    }

    bool findPlace(const CFileElement &element, CStagingPlan::SFile &file)
    {
        if (element.devicePath().isEmpty()) {
            addProblem(QStringLiteral("no-device-directory"), file,
                       Texts::tr("%1 has no directory on the device.").arg(element.fileName()));
            return false;
        }
        const QString path = relative(file.devicePath);
        const bool isInTree = isBelowRoot(path, CDeviceFileSystem::smPath())
            || isBelowRoot(path, CDeviceFileSystem::optSMPath());
        if (!isInTree || !CDeviceManifest::isDevicePath(path)) {
            addProblem(
                QStringLiteral("outside-device"), file,
                Texts::tr("%1 is outside the directory trees of the device.").arg(file.devicePath));
            return false;
        }
        file.devicePath = path;
        return true;
    }

    static bool isBelowRoot(const QString &path, const QString &root)
    {
        return path.startsWith(relative(root) + Separator);
    }

    /** Also when it cannot be read, the source tells this file from others. */
    void findSource(CStagingPlan::SFile &file)
    {
        file.source = file.projectPath.toUtf8();
        if (file.projectPath.startsWith(Separator) || leadsUp(file.projectPath)) {
            addOutsideProject(file);
            return;
        }
        QStringList names = file.projectPath.split(Separator, Qt::SkipEmptyParts);
        names.removeAll(QStringLiteral("."));
        file.projectPath = names.join(Separator);
        file.source = m_project + '/' + file.projectPath.toUtf8();
        const QByteArray source = canonical(file.source);
        if (source.isEmpty()) {
            const int error = errno;
            const bool isMissing = error == ENOENT || error == ENOTDIR;
            addProblem(isMissing ? QStringLiteral("missing") : QStringLiteral("unreadable"), file,
                       isMissing ? Texts::tr("%1 is not in the project.").arg(file.projectPath)
                                 : unreadable(file, error));
            return;
        }
        file.source = source;
        if (isBelow(source, m_project)) {
            look(file);
        } else {
            addOutsideProject(file);
        }
    }

    void addOutsideProject(const CStagingPlan::SFile &file)
    {
        addProblem(QStringLiteral("outside-project"), file,
                   Texts::tr("%1 leads out of the project.").arg(file.projectPath));
    }

    static QString unreadable(const CStagingPlan::SFile &file, int error)
    {
        return Texts::tr("%1 cannot be read: %2").arg(file.projectPath, qt_error_string(error));
    }

    void look(CStagingPlan::SFile &file)
    {
        const int mode = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW;
        const Descriptor opened(open(file.source.constData(), mode));
        struct stat status = {};
        // What cannot be opened for want of somebody at the other end is no regular file.
        const bool isUnconnected = !opened.isOpen() && errno == ENXIO;
        if (!isUnconnected && (!opened.isOpen() || fstat(opened.get(), &status) != 0)) {
            addProblem(QStringLiteral("unreadable"), file, unreadable(file, errno));
        } else if (!S_ISREG(status.st_mode)) {
            addProblem(QStringLiteral("not-regular"), file,
                       Texts::tr("%1 is not a regular file.").arg(file.projectPath));
        }
        file.size = status.st_size;
    }

    /** Two entries may mean one file, but two files cannot lie in one place. */
    void place(const CStagingPlan::SFile &file)
    {
        const auto other = m_files.constFind(file.devicePath);
        if (other == m_files.constEnd()) {
            m_files.insert(file.devicePath, file);
            const int end = file.devicePath.lastIndexOf(Separator);
            addDirectory(file.devicePath.left(end));
            return;
        }
        if (other->source != file.source) {
            addProblem(QStringLiteral("place-taken"), file,
                       Texts::tr("%1 and another file have the same place on the device: %2.")
                           .arg(file.projectPath, file.devicePath));
        }
    }

    const CDeviceElement &m_device;
    CStagingPlan &m_plan;
    /** Canonical; empty when there is none. */
    const QByteArray m_project;
    bool m_hasPlaces = false;
    std::set<QString> m_directories;
    QMap<QString, CStagingPlan::SFile> m_files;
};

CStagingPlan::CStagingPlan() = default;

CStagingPlan::CStagingPlan(const CDeviceElement &device, const SDocument &document,
                           const QString &projectDirectory)
{
    StagingPlanner(device, projectDirectory, *this).make(document);
}

QList<CStagingPlan::SProblem> CStagingPlan::problems() const
{
    return m_problems;
}

QStringList CStagingPlan::directories() const
{
    return m_directories;
}

QList<CStagingPlan::SFile> CStagingPlan::files() const
{
    return m_files;
}

qint64 CStagingPlan::totalSize() const
{
    qint64 size = 0;
    for (const SFile &file : m_files) {
        size += file.size;
    }
    return size;
}
