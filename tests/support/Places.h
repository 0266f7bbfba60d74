#pragma once

#include <QString>

/**
 * Where the tests find what they read and run. No compiler gets these paths but for one source
 * file, so that a compiler's cache knows the other files again in another directory.
 */
namespace Places {

/** A file or directory of the project; relative to its root, and the root for an empty path. */
QString source(const char *path = "");

/** The same for tests/data. */
QString data(const char *path);

/** The tool that was built; empty without one. */
QString tool();

} // namespace Places
