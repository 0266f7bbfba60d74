#pragma once

#include "elements/CDeviceBaseElement.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QString>
#include <QStringList>

/**
 * The directory layout of a device; the one place that knows where something lies on it.
 *
 * There are two trees. The sm tree holds the log files, the configuration directory and one
 * directory for each device configuration with its sub-devices. The opt tree holds the installed
 * software: plug-ins, a configuration area, and for each device configuration its autostart,
 * binary and configuration directories.
 *
 * Static operations take the name of the configuration, and of a sub-device its number; their
 * const twins take the name from the device that the object holds a copy of. Directories are
 * absolute and end in a separator. For an empty configuration name the directory of the
 * configuration is empty, and everything below it is only its own last part: check the name first.
 *
 * Nothing here touches a disk. Thread-safe as every value: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CDeviceFileSystem
{
public:
    explicit CDeviceFileSystem(const CDeviceBaseElement &device);
    virtual ~CDeviceFileSystem();

    // The sm tree

    /** Root of the sm tree. */
    static QString smPath();
    /** Configuration directory of the device itself. */
    static QString smConfPath();
    /** Log files. */
    static QString smLogPath();
    /** Holds the directories of the device configurations. */
    static QString smConfigurationsPath();
    /** Directory of one device configuration; empty for an empty name. */
    static QString smDevicePath(const QString &name);
    QString smDevicePath() const;
    /** Configuration directory of a device configuration. */
    static QString smDeviceConfPath(const QString &name);
    QString smDeviceConfPath() const;
    /** Parameter directory, relative to that of the device configuration. */
    static QString smRelDeviceParamPath();
    /** Parameter directory of a device configuration. */
    static QString smDeviceParamPath(const QString &name);
    QString smDeviceParamPath() const;
    /** Holds the directories of the sub-devices. */
    static QString smSubDevicesPath(const QString &name);
    QString smSubDevicesPath() const;
    /** Directory of sub-device @p n (not padded), relative to that of the configuration. */
    static QString smRelSubDevicePath(int n);
    /** Directory of sub-device @p n, counted from 0. */
    static QString smSubDevicePath(const QString &name, int n);
    QString smSubDevicePath(int n) const;
    /** Firmware of sub-device @p n. */
    static QString smSubDeviceFirmwarePath(const QString &name, int n);
    QString smSubDeviceFirmwarePath(int n) const;
    /** Logic (FPGA images) of sub-device @p n. */
    static QString smSubDeviceLogicPath(const QString &name, int n);
    QString smSubDeviceLogicPath(int n) const;
    /** Parameters of sub-device @p n, relative to the directory of the configuration. */
    static QString smRelSubDeviceParamPath(int n);
    /** Parameters of sub-device @p n. */
    static QString smSubDeviceParamPath(const QString &name, int n);
    QString smSubDeviceParamPath(int n) const;

    // The opt tree

    /** Root of the opt tree. */
    static QString optSMPath();
    /** Configuration area that all device configurations share. */
    static QString optSMEtcConfPath();
    /** Holds all plug-ins. */
    static QString optSMPluginsBasePath();
    /** Plug-ins of the application. */
    static QString optSMPluginsPath();
    /** Holds the directories of the device configurations. */
    static QString optSMConfigurationsPath();
    /** Directory of one device configuration; empty for an empty name. */
    static QString optSMDevicePath(const QString &name);
    QString optSMDevicePath() const;
    /** What a device configuration starts by itself. */
    static QString optSMDeviceAutostartPath(const QString &name);
    QString optSMDeviceAutostartPath() const;
    /** Binaries of a device configuration. */
    static QString optSMDeviceBinPath(const QString &name);
    QString optSMDeviceBinPath() const;
    /** Configuration directory of a device configuration. */
    static QString optSMDeviceConfPath(const QString &name);
    QString optSMDeviceConfPath() const;

    // Where each kind of file is kept

    /** Object dictionary: optSMDeviceConfPath(). */
    static QString stdObjectDictionaryPath(const QString &name);
    QString stdObjectDictionaryPath() const;
    /** Fault texts: optSMDeviceConfPath(). */
    static QString stdFaultTextFilePath(const QString &name);
    QString stdFaultTextFilePath() const;
    /**
     * The configuration area of the opt tree for the databases of device, firmware, logic and
     * option modules, which all configurations share; else the configuration's own parameters.
     */
    static QString stdParamFilePath(NvrnGlobal::EParamFileType type, const QString &name);
    QString stdParamFilePath(NvrnGlobal::EParamFileType type) const;
    /** FPGA images: optSMEtcConfPath(). */
    static QString stdFpgaPath();
    /** Plug-ins: optSMPluginsPath(). */
    static QString stdPluginPath();
    /** OPC UA models: smDeviceConfPath(). */
    static QString stdOpcUaFilePath(const QString &name);
    QString stdOpcUaFilePath() const;
    /** Bus configuration of the EtherCAT master: smDeviceParamPath(). */
    static QString stdEtherCatMasterFilePath(const QString &name);
    QString stdEtherCatMasterFilePath() const;

    /**
     * Every directory of a configuration in the sm tree, parents first; for each sub-device its
     * own directory, firmware, logic and parameters. Empty when the name is empty.
     */
    static QStringList smPathList(const QString &name, unsigned int subDeviceCount);
    /** The same for the held device and all of its sub-devices; empty if the device is null. */
    QStringList smPathList() const;
    /** Every directory of a configuration in the opt tree; empty when the name is empty. */
    static QStringList optSMPathList(const QString &name);
    /** The same for the held device; empty if it is null. */
    QStringList optSMPathList() const;

    /**
     * Where a project keeps what lies at @p path on the device: a path that begins with the name
     * of @p device.
     *
     * A path that holds the name of the device's configuration loses that name and the directory
     * of the configurations; it must lie in one of the maker's directories, and the device must
     * not be null. Any other path must lie in the opt tree. Runs of separators become one.
     *
     * The name is looked for anywhere in the path, not as a directory: a configuration that is
     * named like a part of the fixed directories ("conf", "opt") is found, and removed, there too.
     * @return empty for a path that lies nowhere on the device; an empty configuration name counts
     *         as not found in the path
     */
    static QString toRelativeProjectPath(const QString &path, const CDeviceBaseElement &device);
    /** The same for the held device. */
    QString toRelativeProjectPath(const QString &path) const;

private:
    CDeviceBaseElement m_device;
};
