#pragma once

#include "imported/CDeviceHardwareId.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QSharedDataPointer>
#include <QString>

class CBaseElementData;
class CDeviceBaseElement;
class CDeviceElement;
class CSubDeviceBaseElement;
class CSubDeviceKD2Element;
class CSubDeviceKD3Element;

/**
 * What a device and its sub-devices have in common: name, comment, hardware identity, the
 * configuration they belong to, and a drive number; and the questions by which code that holds
 * some element finds out what it is.
 *
 * An element is null from construction until one of its fields differs from the default. Copies
 * share their data until one of them is changed; setters store what they are given. Thread-safe as
 * every value: see docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CBaseElement
{
public:
    /** A null element: configuration "STD", drive number 255, everything else empty. */
    CBaseElement();
    CBaseElement(const CBaseElement &other);
    virtual ~CBaseElement();

    /** What the element is; ELEMENT_UNKNOWN here. */
    virtual NvrnDeviceCore::EElementType type() const;

    /** Whether the element equals a default-constructed one of its class. */
    virtual bool isNull() const;
    /** Makes the element null; copies of it keep their values. */
    virtual void clear();

    /** Name shown to the user. */
    virtual QString name() const;
    virtual void setName(const QString &name);

    /** Free comment. */
    virtual QString comment() const;
    virtual void setComment(const QString &comment);

    /** Hardware identity; valid until the element is changed or destroyed. */
    virtual const CDeviceHardwareId &hardwareId() const;
    /** Hardware identity as text. */
    virtual QString hardwareIdStr() const;
    virtual void setHardwareId(const CDeviceHardwareId &hardwareId);
    /** Parses @p hardwareId; text that does not parse gives a null identity. */
    virtual void setHardwareId(const QString &hardwareId);

    /** The platform number of the hardware identity. */
    virtual quint16 productId() const;
    virtual void setProductId(unsigned short productId);

    /** The version number of the hardware identity. */
    virtual quint16 productVersion() const;
    virtual void setProductVersion(unsigned short productVersion);

    /** The revision number of the hardware identity. */
    virtual quint16 productRevision() const;
    virtual void setProductRevision(unsigned short productRevision);

    /** The name in the hardware identity. */
    virtual QString productName() const;
    virtual void setProductName(const QString &productName);

    /** Name of the on-device configuration that the element belongs to; "STD" by default. */
    virtual QString configurationName() const;
    virtual void setConfigurationName(const QString &configurationName);

    /** Drive number 0..254; 255 when none is assigned. */
    virtual quint8 driveId() const;
    virtual void setDriveId(unsigned char driveId);

    /** Whether the element is a CDeviceBaseElement. */
    virtual bool isDevice() const;
    /** Whether the element is a CSubDeviceBaseElement. */
    virtual bool isSubDevice() const;
    /** Whether the element is a CSubDeviceKD2Element. */
    virtual bool isKD2SubDevice() const;
    /** Whether the element is a CSubDeviceKD3Element. */
    virtual bool isKD3SubDevice() const;

    /**
     * @name Casts
     * By value: a copy as that class if the element is of it, else a null element of that class.
     * By pointer: this element, still owned by whoever owns it, or a null pointer.
     */
    ///@{
    virtual CDeviceElement toDevice() const;
    virtual CDeviceElement *toDevicePtr() const;
    virtual CDeviceBaseElement toBaseDevice() const;
    virtual CDeviceBaseElement *toBaseDevicePtr() const;
    virtual CSubDeviceBaseElement toBaseSubDevice() const;
    virtual CSubDeviceBaseElement *toBaseSubDevicePtr() const;
    virtual CSubDeviceKD2Element toKD2SubDevice() const;
    virtual CSubDeviceKD2Element *toKD2SubDevicePtr() const;
    virtual CSubDeviceKD3Element toKD3SubDevice() const;
    virtual CSubDeviceKD3Element *toKD3SubDevicePtr() const;
    ///@}

    CBaseElement &operator=(const CBaseElement &other);

    /**
     * Compares name, comment, hardware identity, configuration name and drive number, and nothing
     * that a derived class adds; each class has its own comparison, which is not virtual.
     */
    bool operator==(const CBaseElement &other) const;
    bool operator!=(const CBaseElement &other) const;

    /**
     * Replaces one directory in a file path: the last component of its directory part that matches
     * @p oldPart is replaced by @p newPart.
     *
     * @p oldPart is a pattern (QRegExp, case-sensitive) that must match a whole component; quote a
     * name with QRegExp::escape() to have it taken literally. When a component was replaced, the
     * result is the directory alone: the file name is not part of it. Otherwise the result is
     * @p filePath unchanged. So "p/DRIVE-1/params/a.par" with "params" and "p2" gives
     * "p/DRIVE-1/p2".
     */
    QString replacePartOfFilePath(const QString &filePath, const QString &oldPart,
                                  const QString &newPart) const;
    /** replacePartOfFilePath(), where the device gets another name. */
    QString adaptFilePathToDeviceName(const QString &filePath, const QString &oldName,
                                      const QString &newName) const;
    /** replacePartOfFilePath(), where the configuration gets another name. */
    QString adaptFilePathToConfigurationName(const QString &filePath, const QString &oldName,
                                             const QString &newName) const;

private:
    QSharedDataPointer<CBaseElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CBaseElement &element);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CBaseElement &element);
};

/**
 * Stream form: name, comment (QString), hardware identity, configuration name (QString), drive
 * number (8 bit). Reading does not check the stream's status.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CBaseElement &element);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CBaseElement &element);
