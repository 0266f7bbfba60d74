#pragma once

#include "imported/VrnImportedExport.h"

#include <QString>

/**
 * Directory names of the device's file system, and helpers for path texts.
 *
 * The directory names are relative and end in a separator, so that directories are composed by
 * plain concatenation. The separator is the forward slash on every platform. All members are
 * static and may be used from any thread.
 */
class VRNCORE_EXPORT CPath
{
public:
    CPath() = delete;

    /** The maker's directory: the root of the sm tree, and of the opt tree below "/opt/". */
    static const QString CPATH_COMPANY;
    /** Configuration directory below the sm root. */
    static const QString CPATH_CONF;
    /** Log directory below the sm root. */
    static const QString CPATH_LOG;
    /** Plug-in directory below the opt root. */
    static const QString CPATH_PLUGINS;
    /** Configuration area below the opt root. */
    static const QString CPATH_CCONF;

    /** The path with a separator at its end; an empty path becomes the separator alone. */
    static QString ensurePathSeparatorAtEnd(const QString &path);
    /** The path with a separator at its start; an empty path becomes the separator alone. */
    static QString ensurePathSeparatorAtStart(const QString &path);
    /** The path without any leading separators. */
    static QString removePathSeparatorAtStart(const QString &path);
};
