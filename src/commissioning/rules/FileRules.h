#pragma once

#include "commissioning/rules/Fault.h"
#include "commissioning/rules/ProjectFiles.h"
#include "elements/CFileElement.h"

#include <optional>

/**
 * Whether a file that a configuration names can be put on a device: its name, its two directories,
 * and what is in the project. Check and staging judge by these rules alone; where a file can be
 * understood in two ways, as one behind a ".." or one that is empty, it is refused.
 */
namespace FileRules {

/** The name alone, without directories; one that is empty is a fault. */
std::optional<SFault> ofName(const QString &name);

/** The directory on the device; @p written is how the document has it. */
std::optional<SFault> ofDeviceDirectory(const CFileElement &file, const QString &written);

/** The directory in the project. With a fault the file must not be looked for. */
std::optional<SFault> ofProjectDirectory(const CFileElement &file);

/** What is in the project in the place of @p file, as @p inProject reports it. */
std::optional<SFault> ofProjectFile(const CFileElement &file, const ProjectFiles::SFile &inProject);

/** The file @p path of the project cannot be read, because of @p reason. */
SFault unreadable(const QString &path, const QString &reason);

/** Two files have one place on the device; @p other names the one that had it first. */
SFault samePlace(const CFileElement &file, const QString &other);

} // namespace FileRules
