#pragma once

#include "elements/CFileElement.h"
#include "elements/CSubDeviceKD2Element.h"
#include "elements/CSubDeviceKD3Element.h"
#include "imported/CDeviceHardwareId.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QList>
#include <QString>

#include <memory>

/**
 * Holds one sub-device of either series, or none; the one type under which a device keeps its
 * sub-devices.
 *
 * Every operation is that of the same name of the held sub-device. In an empty container setters do
 * nothing and getters give zero or an empty value. Copying copies the sub-device. Thread-safe as
 * every value: see docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CSubDeviceElement
{
public:
    /** An empty container. */
    CSubDeviceElement();
    // Not explicit: a sub-device of either series is meant to pass for a container.
    CSubDeviceElement(const CSubDeviceKD2Element &subDevice);
    CSubDeviceElement(const CSubDeviceKD3Element &subDevice);
    CSubDeviceElement(const CSubDeviceElement &other);
    virtual ~CSubDeviceElement();

    virtual bool isKD2() const;
    virtual bool isKD3() const;
    /** A copy of the held sub-device; a null one if the container holds none of that series. */
    virtual CSubDeviceKD2Element toKD2() const;
    virtual CSubDeviceKD3Element toKD3() const;

    /** Whether the held sub-device is null; true for an empty container. */
    virtual bool isNull() const;
    /** ELEMENT_UNKNOWN for an empty container. */
    virtual NvrnDeviceCore::EElementType type() const;
    /** Clears the held sub-device and keeps it; the container does not become empty. */
    virtual void clear();

    virtual unsigned int deviceSerial() const;
    virtual void setDeviceSerial(unsigned int deviceSerial);
    virtual QString deviceName() const;
    virtual void setDeviceName(const QString &deviceName);
    virtual void setDeviceNameAndAdaptPaths(const QString &deviceName);
    virtual void adaptProjectPaths(const QString &deviceName);

    virtual QString name() const;
    virtual QString comment() const;
    virtual void setComment(const QString &comment);

    virtual QString configurationName() const;
    virtual void setConfigurationName(const QString &configurationName);
    virtual void setConfigurationNameAndAdaptPaths(const QString &configurationName);

    virtual CDeviceHardwareId hardwareId() const;
    virtual QString hardwareIdStr() const;
    virtual void setHardwareId(const CDeviceHardwareId &hardwareId);
    virtual void setHardwareId(const QString &hardwareId);

    /** 0 for an empty container, which is also the number of a first drive: check isNull() first.
     */
    virtual quint8 driveId() const;
    virtual void setDriveId(unsigned char driveId);

    virtual QString parameterFileName() const;
    virtual void setParameterFileName(const QString &fileName);
    virtual CFileElement parameterFile() const;
    virtual void setParameterFile(const CFileElement &file);

    virtual QList<CFileElement> allFiles() const;

    void setName(const QString &name);
    unsigned int busId() const;
    void setBusId(unsigned int busId);

    /** Drops the held sub-device and copies the one of @p other; self-assignment keeps it. */
    CSubDeviceElement &operator=(const CSubDeviceElement &other);
    CSubDeviceElement &operator=(const CSubDeviceKD2Element &subDevice);
    CSubDeviceElement &operator=(const CSubDeviceKD3Element &subDevice);

    /**
     * Compares the held sub-devices; those of different series are unequal. An empty container is
     * unequal to every other, also to another empty one: no sub-device is not the same sub-device.
     */
    bool operator==(const CSubDeviceElement &other) const;
    bool operator!=(const CSubDeviceElement &other) const;

private:
    std::unique_ptr<CSubDeviceBaseElement> m_subDevice;
};

/**
 * Stream form: the type (signed 32 bit), then the held sub-device. An empty container writes
 * nothing at all, while reading always takes the type: do not stream containers that may be empty.
 * A type other than the two series reads nothing more and leaves the container as it is.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const CSubDeviceElement &subDevice);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CSubDeviceElement &subDevice);
