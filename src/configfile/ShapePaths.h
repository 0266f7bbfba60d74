#pragma once

#include "configfile/ConfigurationShape.h"

/**
 * The nodes of the document by their paths. A path is the words from the top, joined by dots and
 * without the keys of entries: "drive.param.name" is the name of the parameter file of any drive.
 */
namespace ShapePaths {

/** With which a path can begin, in the order in which they are listed. */
const QVector<const ConfigurationShape::SNode *> &top();

/**
 * What paths reach directly below @p node, in the order in which it is listed: groups without a
 * word give their children, and what begins a path of its own is left out.
 */
QVector<const ConfigurationShape::SNode *> below(const ConfigurationShape::SNode &node);

/** Null for a path that does not exist. */
const ConfigurationShape::SNode *find(const QString &path);

/** The paths of all lists, in the order in which they are listed. */
const QStringList &lists();
/** That of the list of such entries. */
QString list(ConfigurationShape::EEntry entry);

/** The word of the item of a kind that no other item has, as DRIVE_TYPE or ACTIVE_FPGA_FILE. */
QString word(ConfigurationShape::EValue value);

/** That of the single file or list for files of that kind; empty for a kind without one. */
QString path(NvrnDeviceCore::EDeviceFile kind);
/**
 * How users call a file of that kind: "object dictionary", "FPGA image"; empty for one without a
 * path.
 */
QString noun(NvrnDeviceCore::EDeviceFile kind);

} // namespace ShapePaths
