#include "commissioning/rules/FileRules.h"

#include "commissioning/Texts.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/FilePlaces.h"

#include <algorithm>

using namespace ConfigurationRules;
using namespace FaultTexts;

namespace {

using ConfigurationCheckTexts::Texts;

const QLatin1Char Separator('/');
const QLatin1String Up("..");

bool leadsUp(const QString &path)
{
    return path.split(Separator).contains(Up);
}

bool isAbsolute(const QString &path)
{
    const bool hasDrive =
        path.size() >= 2 && path.at(0).isLetter() && path.at(1) == QLatin1Char(':');
    return path.startsWith(Separator) || hasDrive;
}

bool isName(const QString &name)
{
    const auto isForbidden = [](QChar c) {
        return c == Separator || c == QLatin1Char('\\') || c.category() == QChar::Other_Control;
    };
    return std::none_of(name.cbegin(), name.cend(), isForbidden) && FilePlaces::isStorable(name);
}

QString shortNames()
{
    return Texts::tr("names of at most %1 bytes").arg(FilePlaces::LongestName);
}

QString deviceTrees()
{
    return Texts::tr("a directory below %1 or %2")
        .arg(CDeviceFileSystem::smPath(), CDeviceFileSystem::optSMPath());
}

} // namespace

namespace FileRules {

std::optional<SFault> ofName(const QString &name)
{
    if (name.isEmpty()) {
        return SFault{FILE_NAME_MISSING,
                      {Texts::tr("The file has no name."), QString(), Texts::tr("a name"),
                       Texts::tr("Remove the entry if no file is meant.")}};
    }
    if (!isName(name)) {
        const bool isTooLong = name.toUtf8().size() > FilePlaces::LongestName;
        return SFault{FILE_NAME_INVALID,
                      {Texts::tr("'%1' is not a valid file name.").arg(shown(name)), name,
                       isTooLong ? shortNames()
                                 : Texts::tr("a name without directories, slashes and line breaks"),
                       QString()}};
    }
    return {};
}

std::optional<SFault> ofDeviceDirectory(const CFileElement &file, const QString &written)
{
    if (file.devicePath().isEmpty()) {
        return SFault{
            DEVICE_PATH_MISSING,
            {Texts::tr("The file '%1' has no directory on the device.").arg(shown(file.fileName())),
             QString(), deviceTrees(), QString()}};
    }
    if (leadsUp(file.devicePath())) {
        return SFault{DEVICE_PATH_CLIMBS,
                      {Texts::tr("The directory '%1' contains '..'.").arg(shown(written)), written,
                       Texts::tr("a directory without '..'"), QString()}};
    }
    if (CFTPath::fromPath(FilePlaces::deviceDirectory(file)) == CFTPath::ENTRY_POINT_UNKNOWN) {
        return SFault{DEVICE_PATH_OUTSIDE,
                      {Texts::tr("The directory '%1' is outside the directory trees of the device.")
                           .arg(shown(written)),
                       written, deviceTrees(), QString()}};
    }
    const QString path = FilePlaces::deviceDirectory(file) + file.fileName();
    if (isName(file.fileName()) && !FilePlaces::isStorable(path.mid(1))) {
        return SFault{
            DEVICE_PATH_OUTSIDE,
            {Texts::tr("The directory '%1' cannot be stored on the device.").arg(shown(written)),
             written, shortNames(), Texts::tr("Choose shorter names.")}};
    }
    return {};
}

std::optional<SFault> ofProjectDirectory(const CFileElement &file)
{
    const QString path = file.projectPath();
    const QString clean = FilePlaces::cleaned(path);
    if (isAbsolute(path)) {
        return SFault{PROJECT_PATH_ABSOLUTE,
                      {Texts::tr("The directory '%1' is an absolute path.").arg(shown(path)), path,
                       Texts::tr("a directory relative to the project"), QString()}};
    }
    if (clean == Up || clean.startsWith(QLatin1String("../"))) {
        return SFault{PROJECT_PATH_OUTSIDE,
                      {Texts::tr("The directory '%1' is outside the project.").arg(shown(path)),
                       path, Texts::tr("a directory in the project"), QString()}};
    }
    if (leadsUp(path)) {
        return SFault{PROJECT_PATH_OUTSIDE,
                      {Texts::tr("The directory '%1' contains '..'.").arg(shown(path)), path,
                       Texts::tr("a directory without '..'"),
                       Texts::tr("After a symbolic link, '..' leads to another directory.")}};
    }
    return {};
}

std::optional<SFault> ofProjectFile(const CFileElement &file, const ProjectFiles::SFile &inProject)
{
    const QString path = FilePlaces::inProject(file);
    const QString name = shown(path);
    const QString &found = inProject.found;
    switch (inProject.state) {
    case ProjectFiles::STATE_PRESENT:
        break;
    case ProjectFiles::STATE_MISSING:
        return SFault{
            PROJECT_FILE_MISSING,
            {Texts::tr("The file '%1' is not in the project.").arg(name), found, path,
             found.isEmpty()
                 ? QString()
                 : Texts::tr("The symbolic link of that name points to a missing file.")}};
    case ProjectFiles::STATE_OTHER_CASE:
        return SFault{
            PROJECT_FILE_OTHER_CASE,
            {Texts::tr("The file '%1' is named '%2' in the project.").arg(name, shown(found)),
             found, path, Texts::tr("File names on the device are case-sensitive.")}};
    case ProjectFiles::STATE_OUTSIDE:
        return SFault{
            PROJECT_FILE_OUTSIDE,
            {Texts::tr("A symbolic link on the path '%1' leads out of the project.").arg(name),
             found, Texts::tr("a file in the project"),
             Texts::tr("A copy of the project does not contain the file.")}};
    case ProjectFiles::STATE_NOT_REGULAR:
        return SFault{PROJECT_FILE_NOT_REGULAR,
                      {Texts::tr("'%1' is not a regular file.").arg(name), path,
                       Texts::tr("a regular file"), QString()}};
    case ProjectFiles::STATE_UNREADABLE:
        return unreadable(path, found);
    case ProjectFiles::STATE_EMPTY:
        return SFault{PROJECT_FILE_EMPTY,
                      {Texts::tr("The file '%1' is empty.").arg(name), Texts::tr("0 bytes"),
                       QString(), QString()}};
    }
    return {};
}

SFault unreadable(const QString &path, const QString &reason)
{
    return {PROJECT_FILE_UNREADABLE,
            {Texts::tr("The file '%1' cannot be read: %2").arg(shown(path), reason), reason,
             Texts::tr("a readable file"), QString()}};
}

SFault samePlace(const CFileElement &file, const QString &other)
{
    return {DEVICE_FILE_CONFLICT,
            {Texts::tr("The file '%1' has the same place on the device as %2.")
                 .arg(shown(file.fileName()), other),
             FilePlaces::onDevice(file), Texts::tr("a unique place"),
             Texts::tr("The file that is transferred last overwrites the other one.")}};
}

} // namespace FileRules
