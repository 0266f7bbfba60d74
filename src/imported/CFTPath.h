#pragma once

#include "imported/VrnImportedExport.h"

#include <QString>

/**
 * The areas of a device's file system that files are transferred to, and the directory names
 * within a device configuration.
 *
 * The directory names follow the rules of CPath. All members are static and may be used from any
 * thread.
 */
class VRNCORE_EXPORT CFTPath
{
public:
    CFTPath() = delete;

    /** Directory of the device configurations, below the sm root and below the opt root. */
    static const QString PATH_CONFIGURATIONS;
    /** Configuration directory of one device configuration. */
    static const QString PATH_CONF;
    /** Parameter directory of a device configuration or of one of its sub-devices. */
    static const QString PATH_PARAM;
    /** Directory that holds the numbered sub-device directories. */
    static const QString PATH_SUBDEVICES;
    /** Firmware directory of a sub-device. */
    static const QString PATH_FIRMWARE;
    /** Logic (FPGA image) directory of a sub-device. */
    static const QString PATH_LOGIC;
    /** Autostart directory of a device configuration in the opt tree. */
    static const QString PATH_AUTOSTART;
    /** Binary directory of a device configuration in the opt tree. */
    static const QString PATH_BIN;

    /** A mounted area of the device's file system; toPath() gives its root directory. */
    enum EEntryPoint : qint32 {
        /** Outside every known area. */
        ENTRY_POINT_UNKNOWN = 0,
        /** The sm tree: everything that belongs to the configurations of the device. */
        ENTRY_POINT_SM = 1,
        /** The device configurations in the sm tree. */
        ENTRY_POINT_SM_CONFIGURATIONS = 2,
        /** The log files in the sm tree. */
        ENTRY_POINT_SM_LOG = 3,
        /** The opt tree: the installed software. */
        ENTRY_POINT_OPT = 4,
        /** The device configurations in the opt tree. */
        ENTRY_POINT_OPT_CONFIGURATIONS = 5,
        /** The plug-ins in the opt tree. */
        ENTRY_POINT_OPT_PLUGINS = 6
    };

    /**
     * The entry point in which @p path lies: of those whose root contains it, the one with the
     * longest root. A root contains itself, with or without its final separator.
     * ENTRY_POINT_UNKNOWN for a relative or empty path and for one outside every area.
     */
    static EEntryPoint fromPath(const QString &path);

    /** The root directory of an entry point, with a separator at its end; empty if unknown. */
    static QString toPath(EEntryPoint entryPoint);
};
