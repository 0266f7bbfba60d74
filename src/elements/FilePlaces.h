#pragma once

#include "elements/CFileElement.h"

/**
 * The places of a file in the one form in which they are compared: "." and superfluous separators
 * are left out, and ".." takes back the directory before it where there is one.
 */
namespace FilePlaces {

/** No name of a file or directory can be longer; in bytes of UTF-8. */
constexpr int LongestName = 255;

/** @p path in that form, without a separator at its end. */
QString cleaned(const QString &path);

/** Directory and name on the device; null without a directory. */
QString onDevice(const CFileElement &file);
/** Directory and name in the project; empty without a name. */
QString inProject(const CFileElement &file);

/** The directory on the device, with a separator at its end. */
QString deviceDirectory(const CFileElement &file);

/** Whether @p path is relative, has no detours, and can be stored by any file system. */
bool isStorable(const QString &path);

} // namespace FilePlaces
