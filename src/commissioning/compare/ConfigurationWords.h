#pragma once

#include "commissioning/compare/ConfigurationSnapshot.h"

#include <QString>

/** How engineers call what has a path, for texts of one line. */
namespace ConfigurationWords {

/** The entry or part that a path is, or that its item stands in: "drive 2", "plug-in motion". */
QString subject(const SItemPath &path);
/** An entry or part itself, with its name: "drive 2 (Gripper)". */
QString subject(const SItemPath &path, const QString &name);
/** The item that a path names: "bus identifier", "comment". */
QString item(const SItemPath &path);
/** An item below an entry or part: "bus identifier", "parameter file: comment". */
QString item(const SItemPath &path, const QString &below);
/** A value or key: in quotation marks with escapes where it would not be clear otherwise. */
QString shown(const QString &text);

} // namespace ConfigurationWords
