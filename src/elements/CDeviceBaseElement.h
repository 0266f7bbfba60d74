#pragma once

#include "elements/CBaseElement.h"
#include "elements/CFileElement.h"
#include "elements/CParamFileElement.h"
#include "elements/CPluginElement.h"
#include "elements/CSubDeviceElement.h"
#include "imported/CDeviceItem.h"
#include "vocabulary/NDeviceConf.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/NvrnGlobal.h"

#include <QHostAddress>
#include <QList>
#include <QMap>
#include <QStringList>

class CDeviceBaseElementData;

/**
 * A device (a controller or a drive) with everything that a configuration contains about it: its
 * files, plug-ins and start options, its address on the network, and the sub-devices it carries, by
 * drive number.
 *
 * The sub-devices follow the device: whenever its serial number, name, configuration name or
 * hardware identity is set, they get the same values that they get when they are inserted.
 *
 * Callers create a CDeviceElement. Copies share their data until one of them is changed;
 * thread-safe as every value: see docs/architecture.md. Positions in lists count from 0; one that
 * is negative or past the end is absent. The virtual operations stand in the order that binary
 * compatibility demands.
 */
class VRNDEVICECORE_EXPORT CDeviceBaseElement : public CBaseElement
{
public:
    CDeviceBaseElement();
    CDeviceBaseElement(const CDeviceBaseElement &other);
    ~CDeviceBaseElement() override;

    bool isNull() const override;
    void clear() override;

    void setName(const QString &name) override;
    using CBaseElement::setHardwareId;
    void setHardwareId(const CDeviceHardwareId &hardwareId) override;
    void setHardwareId(const QString &hardwareId) override;
    void setConfigurationName(const QString &configurationName) override;

    /** Always 255: only sub-devices have a drive number. */
    quint8 driveId() const override;
    /** Does nothing. */
    void setDriveId(unsigned char driveId) override;

    bool isDevice() const override;
    CDeviceBaseElement toBaseDevice() const override;
    CDeviceBaseElement *toBaseDevicePtr() const override;

    /** Sets the name and moves the project paths of all files to the directory of that name. */
    virtual void setNameAndAdaptProjectPaths(const QString &name);
    /**
     * Moves the project paths of all files, those of the sub-devices too, from the directory of
     * name() to the one of @p name, without setting the name. A path that begins with the device's
     * directory stays below it; in any other, the last directory of that name is replaced. File
     * names stay. Nothing moves when either name is empty.
     */
    virtual void adaptProjectPaths(const QString &name);
    /**
     * Sets the configuration name and moves the directories of all files: on the device, those in
     * the configuration's directory of the sm or the opt tree; in the project, the last directory
     * of the old name, except the device's own. File names stay. Nothing moves when the old or the
     * new name is empty.
     */
    virtual void setConfigurationNameAndAdaptPaths(const QString &configurationName);

    /**
     * Whether a parameter file that was made for @p hardwareId fits this device: prefix, name and
     * platform must be the same. Version and revision must be the same, too, for the firmware and
     * the logic database, whose images are built for one state of the hardware; all other types
     * hold values that later states of the hardware understand as well.
     */
    virtual bool isParameterHardwareIdCompatible(const CDeviceHardwareId &hardwareId,
                                                 NvrnGlobal::EParamFileType type) const;

    /** Serial number; 0 when not known. Not part of the configuration document. */
    virtual unsigned int serial() const;
    virtual void setSerial(unsigned int serial);

    virtual NDeviceConf::EDeviceClass deviceClass() const;
    virtual void setDeviceClass(NDeviceConf::EDeviceClass deviceClass);

    /**
     * Adds a parameter file. An existing one of the same name, type and drive number is replaced in
     * its position.
     * @return false, and nothing is changed, when @p file is not valid
     */
    virtual bool addParameterFile(const CParamFileElement &file);
    /**
     * Adds a parameter file of that base name and type that belongs to no drive, by the same rules.
     */
    virtual bool addParameterFile(const QString &name, NvrnGlobal::EParamFileType type);
    /** Removes the first equal parameter file; false if there is none. */
    virtual bool removeParameterFile(const CParamFileElement &file);
    /** Removes the first parameter file of that base name and type; false if there is none. */
    virtual bool removeParameterFile(const QString &name, NvrnGlobal::EParamFileType type);

    /** Object dictionary. */
    virtual CFileElement odictFile() const;
    virtual void setOdictFile(const CFileElement &file);
    virtual QString odictFileName() const;
    /**
     * Sets the name of the object dictionary, its device directory to the one that the directory
     * layout gives it, and its project directory to the empty text.
     */
    virtual void setOdictFileName(const QString &fileName);

    /** Fault texts. */
    virtual void setFaultTextFile(const CFileElement &file);
    virtual CFileElement faultTextFile() const;

    /** Name of one FPGA image; empty when absent. */
    virtual QString fpgaFile(int index) const;
    /** Names of the FPGA images; the first one is the active one. */
    virtual QStringList fpgaFiles() const;

    /**
     * Inserts a sub-device under the drive number @p id and fits it to the device: it gets the
     * drive number, the device's serial number, name, hardware identity and configuration name,
     * and, when it has no name, a name made from its drive number: "Sub-Device 0" on a KC2
     * controller, "DRIVE-0" on any other device.
     *
     * With 255 it gets nextFreeDriveID(), unless 255 itself is in use. A sub-device that has the
     * number already is replaced.
     * @param subDevice is changed as described
     * @return the drive number used
     */
    virtual quint8 insertSubDevice(CSubDeviceElement &subDevice, unsigned char id = 255);
    /** Inserts a copy by the same rules; @p subDevice keeps its values. */
    virtual quint8 insertSubDevice(const CSubDeviceElement &subDevice, unsigned char id = 255);

    /** The configuration document itself, where the directory layout puts it. */
    virtual CFileElement configurationFile() const;

    /**
     * Every file of the kinds asked for, in this order: parameter files (value, then definition
     * file), object dictionary, fault texts, additional files, plug-ins, FPGA images, OPC UA files,
     * EtherCAT master file, then the files of each sub-device. Entries without a name are left out,
     * and so are repetitions of a name in the same directories. Parameter files without a
     * directory, FPGA images and plug-ins lie where the directory layout puts them.
     */
    virtual QList<CFileElement>
    allFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds = NvrnDeviceCore::DEVICE_FILE_ALL) const;

    /** Text form of a device class; "Undefined" for an unknown one. */
    static QString deviceClassString(NDeviceConf::EDeviceClass deviceClass);

    // Start options: single words that begin with "-", in order, perhaps followed by an argument.

    QStringList options() const;
    /** Empty when absent. */
    QString option(int index) const;
    /** Replaces the list by @p options, as they are. */
    void setOptions(const QStringList &options);
    /**
     * Replaces the list by the options in @p options; a new one begins at each "-" at the start or
     * after white space, so "-a -b x" gives "-a" and "-b x".
     */
    void setOptions(const QString &options);
    /** Appends an option that begins with "-"; an existing one keeps its position. */
    void appendOption(const QString &option);
    /**
     * Removes the first entry that is @p option alone or followed by white space and an argument.
     * The option is taken as a pattern (QRegExp), and its last character must be a word character.
     * @return whether one was removed; false when @p option does not begin with "-"
     */
    bool removeOption(const QString &option);

    // FPGA images

    /** The FPGA images, if @p kinds contains DEVICE_FILE_FPGA, as allFiles() lists them. */
    QList<CFileElement> fpgaFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds) const;
    /** One FPGA image as a file at its place on the device and in the project; null when absent. */
    CFileElement fpgaFileElement(int index) const;
    int fpgaFileCount() const;
    void setFpgaFiles(const QStringList &fileNames);
    void appendFpgaFile(const QString &fileName);
    /** Removes the first entry equal to @p fileName; false if there is none. */
    bool removeFpgaFile(const QString &fileName);
    /** False when absent. */
    bool removeFpgaFile(int index);
    void clearFpgaFiles();
    /** The first entry; empty when there is none. */
    QString activeFpgaFile() const;
    /**
     * Puts @p fileName first. Entries of the same file name (the last component of a path) are
     * removed before; the others keep their order. An empty name changes nothing.
     */
    void setActiveFpgaFile(const QString &fileName);
    /** Whether two entries name one image: the last components of their paths are equal. */
    static bool isSameFpgaFile(const QString &left, const QString &right);

    // Parameter files

    QList<CParamFileElement> parameterFiles() const;
    QList<CParamFileElement> parameterFiles(NvrnGlobal::EParamFileType type) const;
    /** The value and definition files asked for by @p kinds, as allFiles() lists them. */
    QList<CFileElement> parameterFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds) const;
    /** The value and definition files of one type, as allFiles() lists them. */
    QList<CFileElement> parameterFileElements(NvrnGlobal::EParamFileType type) const;
    void setParameterFiles(const QList<CParamFileElement> &files);
    /** Whether an equal parameter file is there; the comment does not count. */
    bool containsParameterFile(const CParamFileElement &file) const;

    // Further files that are transferred with the device

    QList<CFileElement> additionalFiles() const;
    /** Null when absent. */
    CFileElement additionalFile(int index) const;
    int additionalFileCount() const;
    void setAdditionalFiles(const QList<CFileElement> &files);
    void appendAdditionalFile(const CFileElement &file);
    /** Removes the first equal file; false if there is none. */
    bool removeAdditionalFile(const CFileElement &file);
    /** False when absent. */
    bool removeAdditionalFile(int index);
    void clearAdditionalFiles();

    // Plug-ins

    QList<CPluginElement> plugins() const;
    void setPlugins(const QList<CPluginElement> &plugins);
    /** The libraries of the plug-ins, as allFiles() lists them. */
    QList<CFileElement> pluginFileElements() const;
    /** Name of the plug-in that runs the application; empty when there is none. */
    QString executionPlugin() const;
    void setExecutionPlugin(const QString &name);

    // OPC UA

    bool isOpcUaEnabled() const;
    /**
     * Also adds the option "-opc", or removes it however often it is there. An option that only
     * begins with it, such as "-opc 4840", stays.
     */
    void setOpcUaEnabled(bool enabled);
    QList<CFileElement> opcUaFiles() const;
    void setOpcUaFiles(const QList<CFileElement> &files);
    void appendOpcUaFile(const CFileElement &file);

    /** Bus configuration of the EtherCAT master; null if the device is not an EtherCAT master. */
    CFileElement etherCatMasterFile() const;
    void setEtherCatMasterFile(const CFileElement &file);

    // Network endpoint and list position; not part of the configuration document.

    CDeviceItem::EHostAddrType hostAddressType() const;
    void setHostAddressType(CDeviceItem::EHostAddrType type);
    /** A null address when not known. */
    QHostAddress hostAddress() const;
    void setHostAddress(const QHostAddress &address);
    /** 0 when not known. */
    quint16 port() const;
    void setPort(unsigned short port);
    /** Preferred position in the caller's list of devices; -1 for none. */
    int preferredDeviceListNumber() const;
    void setPreferredDeviceListNumber(int number);

    // Sub-devices

    /** In ascending order of their drive numbers. */
    QList<CSubDeviceElement> subDevices() const;
    /** A copy; an empty container when there is none of that number. */
    CSubDeviceElement subDevice(unsigned char id) const;
    int subDeviceCount() const;
    /**
     * Replaces all sub-devices, each under its own drive number, 255 included. They are fitted to
     * the device as by insertSubDevice(), except that one with a hardware identity keeps it. Of
     * several with one number the last one is kept; empty containers are left out.
     */
    void setSubDevices(const QList<CSubDeviceElement> &subDevices);
    /** Whether one was removed. */
    bool removeSubDevice(unsigned char id);
    /**
     * The highest number in use plus one; 0 when there are no sub-devices, and again after 255.
     * Gaps below are never used again, so that a drive keeps its number for good.
     */
    quint8 nextFreeDriveID() const;

    // Directories on the device in which the directory layout keeps the device's files

    QString stdAppPluginDevicePath() const;
    QString stdEtherCatMasterFileDevicePath() const;
    QString stdFaultTextFileDevicePath() const;
    QString stdFpgaDevicePath() const;
    QString stdObjectDictionaryDevicePath() const;
    QString stdOpcUaFileDevicePath() const;
    QString stdParameterFileDevicePath(NvrnGlobal::EParamFileType type) const;

    CDeviceBaseElement &operator=(const CDeviceBaseElement &other);

    /** Compares the base element, every field, and the sub-devices number by number. */
    bool operator==(const CDeviceBaseElement &other) const;
    bool operator!=(const CDeviceBaseElement &other) const;

private:
    template <typename Change>
    void changeSubDevices(Change change);
    template <typename Change>
    void changeFiles(Change change);
    void fitSubDevice(CSubDeviceElement &subDevice, unsigned char id,
                      const QString &hardwareId) const;
    CFileElement fileAt(const QString &fileName, const QString &devicePath) const;

    QSharedDataPointer<CDeviceBaseElementData> d;
    QMap<unsigned char, CSubDeviceElement> m_subDevices;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CDeviceBaseElement &device);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CDeviceBaseElement &device);
};

/**
 * Stream form: the base element; serial (32 bit); class (signed 32 bit); options; parameter files;
 * object dictionary; fault texts; additional files; plug-ins; execution plug-in; FPGA images; OPC
 * UA enabled (bool); OPC UA files; EtherCAT master file; kind of host address (signed 32 bit);
 * host address; port (16 bit); preferred position (signed 32 bit); the map of sub-devices by drive
 * number (8 bit), as Qt writes maps. An empty container among them is counted and has its number,
 * but nothing behind it, so what was written with one is read back as something else. Reading does
 * not check.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CDeviceBaseElement &device);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDeviceBaseElement &device);
