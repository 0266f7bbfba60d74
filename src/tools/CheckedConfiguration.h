#pragma once

#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CConfigurationOverview.h"
#include "commissioning/SConfigurationFinding.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "tools/Command.h"

#include <QList>

/** What the commands that show a configuration with its findings have in common. */
namespace CheckedConfiguration {

/** Adds the option that names the directory of the project. */
void describeProject(CommandLine &line);
/** Gives it to @p check. @return false when it cannot be read; the reason has been printed */
bool setProject(const CommandLine &line, CConfigurationCheck &check);

/**
 * Opens the configuration that is the first argument and checks it, together with the files of the
 * project if its directory is given.
 * @return EXIT_DONE, or EXIT_UNREADABLE_INPUT when that fails; the reason has been printed
 */
int open(const CommandLine &line, CDeviceConfigurationFile10 &file,
         QList<SConfigurationFinding> &findings);

/** The overview of a configuration; what reading it warns of stands in the findings. */
CConfigurationOverview overview(const CDeviceConfigurationFile10 &file);

} // namespace CheckedConfiguration
