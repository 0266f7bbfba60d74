#include "commissioning/check/FileCheck.h"

#include "commissioning/rules/FileRules.h"
#include "commissioning/Texts.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/FilePlaces.h"
#include "vocabulary/NVornXmlTags.h"

using namespace ConfigurationRules;
using namespace FaultTexts;
using namespace NVornXmlTags;

namespace {

using ConfigurationCheckTexts::Texts;

const QLatin1Char Separator('/');

} // namespace

FileCheck::FileCheck(CheckContext &context, const QString &projectDirectory)
    : m_context(context), m_projectDirectory(projectDirectory)
{
    if (!projectDirectory.isEmpty()) {
        m_project = std::make_unique<ProjectFiles>(projectDirectory);
    }
}

void FileCheck::readManifest()
{
    if (m_project != nullptr) {
        m_context.findings.report(m_manifest.read(m_projectDirectory), SPlace());
    }
}

void FileCheck::check(const Fields &fields, const QString &item, bool isOfDevice)
{
    CFileElement file;
    m_context.file.fileElement(file, fields.parent());
    // The null file, as the library writes that there is none; in a list nobody wants it.
    const bool isSingle = fields.type().list == nullptr;
    if (isSingle && file.isNull()) {
        return;
    }
    const bool isNamed = checkName(fields, item);
    if (isNamed || !file.devicePath().isEmpty()) {
        checkDevicePath(file, fields, item);
    }
    const SPlace projectPlace = {fields.element(TAG_PROJECT_DIR),
                                 item + QStringLiteral(".projectDir")};
    const bool isInProject = checkProjectPath(file, projectPlace, isOfDevice);
    if (isNamed) {
        const SPlace place = {fields.parent(), item};
        claim(file, place);
        if (isInProject) {
            checkInProject(file, place);
        }
    }
}

bool FileCheck::checkName(const Fields &fields, const QString &item)
{
    const std::optional<SFault> fault = FileRules::ofName(fields.text(TAG_NAME));
    m_context.findings.report(fault, {fields.place(TAG_NAME), item});
    return !fault;
}

void FileCheck::checkDevicePath(const CFileElement &file, const Fields &fields, const QString &item)
{
    const QString text = fields.text(TAG_DEVICE_DIR);
    const SPlace place = {fields.place(TAG_DEVICE_DIR), item + QStringLiteral(".deviceDir")};
    const std::optional<SFault> fault = FileRules::ofDeviceDirectory(file, text);
    if (fault) {
        // A configuration name that no directory can have was reported where it stands.
        const QString name = m_context.device.configurationName();
        const bool isOfName = !FilePlaces::isStorable(name)
            && file.devicePath().contains(Separator + name + Separator);
        m_context.findings.report(isOfName ? std::optional<SFault>() : fault, place);
        return;
    }
    if (!text.startsWith(Separator) && !text.startsWith(QLatin1Char('\\'))) {
        m_context.findings.report(
            DEVICE_PATH_RELATIVE, place,
            {Texts::tr("The directory '%1' does not begin with a slash.").arg(shown(text)), text,
             shown(file.devicePath()),
             Texts::tr("It is read as '%1'.").arg(shown(file.devicePath()))});
    }
    checkConfiguration(file, place, text);
}

void FileCheck::checkConfiguration(const CFileElement &file, const SPlace &place,
                                   const QString &text)
{
    const QString path = FilePlaces::deviceDirectory(file);
    const QString own = m_context.device.configurationName();
    for (const QString &configurations : {CDeviceFileSystem::smConfigurationsPath(),
                                          CDeviceFileSystem::optSMConfigurationsPath()}) {
        if (!path.startsWith(configurations) || own.isEmpty()) {
            continue;
        }
        const QString name = path.mid(configurations.size()).section(Separator, 0, 0);
        if (!name.isEmpty() && name != own) {
            m_context.findings.report(
                DEVICE_PATH_OTHER_CONFIGURATION, place,
                {Texts::tr("The directory '%1' belongs to the configuration '%2'.")
                     .arg(shown(text), shown(name)),
                 text, Texts::tr("a directory of '%1'").arg(shown(own)), QString()});
        }
    }
}

bool FileCheck::checkProjectPath(CFileElement &file, const SPlace &place, bool isOfDevice)
{
    const std::optional<SFault> fault = FileRules::ofProjectDirectory(file);
    if (fault) {
        m_context.findings.report(fault, place);
        return false;
    }
    const QString path = file.projectPath();
    const QString own = m_context.device.name() + Separator;
    if (isOfDevice && !path.isEmpty() && !m_context.device.name().isEmpty()
        && !path.startsWith(own)) {
        m_context.findings.report(
            PROJECT_PATH_IGNORED, place,
            {Texts::tr("The directory '%1' is not below the directory of the device.")
                 .arg(shown(path)),
             path, Texts::tr("a directory below '%1'").arg(shown(own)),
             Texts::tr("It is removed when the device is read.")});
        file.setProjectPath(QString());
    }
    return true;
}

void FileCheck::checkPlaced(const QList<CFileElement> &files, const SPlace &place)
{
    bool isClaimed = true;
    for (const CFileElement &file : files) {
        if (file.fileName().isEmpty()) {
            continue;
        }
        // It is longer than that of the entry, which was found good.
        const std::optional<SFault> fault = FileRules::ofName(file.fileName());
        if (fault) {
            m_context.findings.report(fault, place);
            return;
        }
        // Two entries of one name have all their files in common; once is enough.
        isClaimed = isClaimed && claim(file, place);
        // Without the names of device and configuration the directories are not known.
        if (!m_context.device.name().isEmpty() && !file.devicePath().isEmpty()) {
            checkInProject(file, place);
        }
    }
}

bool FileCheck::claim(const CFileElement &file, const SPlace &place)
{
    const QString onDevice = FilePlaces::onDevice(file);
    const QPair<QString, QString> key(onDevice, FilePlaces::inProject(file));
    if (m_files.contains(key)) {
        m_context.findings.report(
            FILE_TWICE, place,
            {Texts::tr("The file '%1' is listed more than once with the same directories.")
                 .arg(shown(file.fileName())),
             file.fileName(), QString(), Texts::tr("Remove all but one.")});
        return false;
    }
    m_files.insert(key);
    const QString other = m_claims.value(onDevice);
    if (!onDevice.isEmpty() && !other.isEmpty()) {
        m_context.findings.report(FileRules::samePlace(file, other), place);
        return false;
    }
    m_claims.insert(onDevice, place.item);
    return true;
}

void FileCheck::checkInProject(const CFileElement &file, const SPlace &place)
{
    if (m_project == nullptr) {
        return;
    }
    const ProjectFiles::SFile inProject = m_project->find(file);
    m_context.findings.report(inProject.state == ProjectFiles::STATE_PRESENT
                                  ? m_manifest.compare(FilePlaces::inProject(file))
                                  : FileRules::ofProjectFile(file, inProject),
                              place);
}
