#include "commissioning/CStagingPlan.h"

#include "commissioning/rules/FileRules.h"
#include "commissioning/Texts.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/FilePlaces.h"
#include "storage/CanonicalName.h"

#include <QFile>
#include <QMap>

#include <set>

namespace {

using StagingPlanTexts::Texts;

const QLatin1Char Separator('/');

/** @p path without superfluous separators: relative, and not ending in one. */
QString relative(const QString &path)
{
    return path.split(Separator, Qt::SkipEmptyParts).join(Separator);
}

} // namespace

/** Makes a plan and collects what is wrong with it. */
class StagingPlanner
{
public:
    StagingPlanner(const CDeviceElement &device, const QString &projectDirectory,
                   CStagingPlan &plan)
        : m_device(device), m_plan(plan), m_project(projectDirectory)
    {
        if (!m_project.errorText().isEmpty()) {
            addProblem(QStringLiteral("no-project"), {},
                       Texts::tr("The project directory %1 cannot be found: %2")
                           .arg(projectDirectory, m_project.errorText()));
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
        // A file's directory takes a backslash for a separator, so that files would lie elsewhere.
        const bool isName = !name.contains(Separator) && !name.contains(QLatin1Char('\\'))
            && FilePlaces::isStorable(name);
        if (!isName) {
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
            file.source = canonicalName(QFile::encodeName(document.path));
        }
        file.projectPath = m_project.relativePath(file.source);
        place(file, element);
    }

    void addFile(const CFileElement &element)
    {
        CStagingPlan::SFile file;
        file.devicePath = element.deviceFilePath();
        file.projectPath = element.projectFilePath();
        if (!accepts(FileRules::ofName(element.fileName()), file)) {
            return;
        }
        const bool hasPlace = m_hasPlaces
            && accepts(FileRules::ofDeviceDirectory(element, element.devicePath()), file);
        if (hasPlace) {
            file.devicePath = relative(FilePlaces::onDevice(element));
        }
        if (m_project.errorText().isEmpty()) {
            findSource(element, file);
        }
        if (hasPlace) {
            place(file, element);
        }
    }

    /** Whether there is no fault. */
    bool accepts(const std::optional<SFault> &fault, const CStagingPlan::SFile &file)
    {
        if (fault) {
            addProblem(ConfigurationRules::id(fault->rule), file, fault->text.message);
        }
        return !fault;
    }

    void findSource(const CFileElement &element, CStagingPlan::SFile &file)
    {
        if (!accepts(FileRules::ofProjectDirectory(element), file)) {
            return;
        }
        file.projectPath = FilePlaces::inProject(element);
        const ProjectFiles::SFile inProject = m_project.find(element);
        accepts(FileRules::ofProjectFile(element, inProject), file);
        file.source = inProject.source;
        file.size = inProject.size;
    }

    /** Two entries may mean one file, but two files cannot lie in one place. */
    void place(const CStagingPlan::SFile &file, const CFileElement &element)
    {
        const auto other = m_files.constFind(file.devicePath);
        if (other == m_files.constEnd()) {
            m_files.insert(file.devicePath, file);
            const int end = file.devicePath.lastIndexOf(Separator);
            addDirectory(file.devicePath.left(end));
            return;
        }
        // The document may be named by another path than that by which it was read.
        const bool isDocument = !other->content.isNull() && !file.source.isEmpty();
        const bool isSame =
            isDocument ? other->source == file.source : other->projectPath == file.projectPath;
        if (!isSame) {
            accepts(FileRules::samePlace(element, nameOf(*other)), file);
        }
    }

    /** For users: where the file comes from. */
    static QString nameOf(const CStagingPlan::SFile &file)
    {
        return FaultTexts::shown(file.projectPath.isEmpty() ? file.devicePath : file.projectPath);
    }

    const CDeviceElement &m_device;
    CStagingPlan &m_plan;
    ProjectFiles m_project;
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
