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

/** The node of files of that kind: a single file, or a list; null for a kind without one. */
const ConfigurationShape::SNode *find(NvrnDeviceCore::EDeviceFile kind);

} // namespace ShapePaths
