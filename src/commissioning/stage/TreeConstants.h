#pragma once

#include <ctime>

/**
 * What every file and directory of a device tree has, so that two trees of one project are equal.
 * The modes are those of NvrnGlobal, whatever the umask.
 */
const unsigned int FileMode = 0644;
const unsigned int DirectoryMode = 0755;
/** Modification: 1980-01-01 00:00:00 UTC, the earliest time that every file system can tell. */
const std::time_t TreeTime = 315532800;

/** Bytes that are read and written at a time. */
const int BlockSize = 64 * 1024;
