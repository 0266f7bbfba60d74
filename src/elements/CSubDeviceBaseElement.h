#pragma once

#include "elements/CBaseElement.h"
#include "elements/CFileElement.h"

#include <QList>

class CSubDeviceBaseElementData;

/**
 * What the sub-devices (drives) of both series have in common. Beside what every element has, a
 * sub-device knows the serial number and the name of the device that carries it, its place on the
 * fieldbus, and its parameter file.
 *
 * Copies share their data until one of them is changed; thread-safe as every value: see
 * docs/architecture.md. The virtual operations stand in the order that binary compatibility
 * demands.
 */
class VRNDEVICECORE_EXPORT CSubDeviceBaseElement : public CBaseElement
{
public:
    CSubDeviceBaseElement();
    CSubDeviceBaseElement(const CSubDeviceBaseElement &other);
    ~CSubDeviceBaseElement() override;

    bool isNull() const override;
    void clear() override;

    bool isSubDevice() const override;
    CSubDeviceBaseElement toBaseSubDevice() const override;
    CSubDeviceBaseElement *toBaseSubDevicePtr() const override;

    /** Serial number of the device that carries the sub-device; 0 when not known. */
    virtual unsigned int deviceSerial() const;
    virtual void setDeviceSerial(unsigned int deviceSerial);

    /** Name of the device that carries the sub-device. */
    virtual QString deviceName() const;
    /** Sets the device's name and leaves the project paths as they are. */
    virtual void setDeviceName(const QString &deviceName);
    /** Moves the project paths to the device's new name and sets it. */
    virtual void setDeviceNameAndAdaptPaths(const QString &deviceName);
    /**
     * Moves the project paths of the sub-device's files from the directory of deviceName() to the
     * one of @p deviceName, without setting the name. Nothing moves when either name is empty.
     */
    virtual void adaptProjectPaths(const QString &deviceName);

    /**
     * Sets the name of the configuration and moves the directories of the sub-device's files, in
     * the project and on the device. Nothing moves when the old or the new name is empty.
     */
    virtual void setConfigurationNameAndAdaptPaths(const QString &configurationName);

    /** Name of the parameter file; setting it leaves the file's directories as they are. */
    virtual QString parameterFileName() const;
    virtual void setParameterFileName(const QString &fileName);
    virtual CFileElement parameterFile() const;
    virtual void setParameterFile(const CFileElement &file);

    /** Every file of the sub-device that has a name, without duplicates. */
    virtual QList<CFileElement> allFiles() const;

    /** Identifier on the fieldbus; 0 when none is assigned. */
    unsigned int busId() const;
    void setBusId(unsigned int busId);

    CSubDeviceBaseElement &operator=(const CSubDeviceBaseElement &other);

    /** Compares the base element's fields and those of this class. */
    bool operator==(const CSubDeviceBaseElement &other) const;
    bool operator!=(const CSubDeviceBaseElement &other) const;

private:
    QSharedDataPointer<CSubDeviceBaseElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CSubDeviceBaseElement &subDevice);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CSubDeviceBaseElement &subDevice);
};

/**
 * Stream form: the base element, device serial (32 bit), device name (QString), parameter file, bus
 * identifier (32 bit).
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const CSubDeviceBaseElement &subDevice);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CSubDeviceBaseElement &subDevice);
