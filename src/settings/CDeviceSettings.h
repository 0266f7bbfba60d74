#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QMap>
#include <QSharedDataPointer>
#include <QString>

class CDeviceSettingsData;

/**
 * The settings that the user of a device gives it: its name, and a name for each of its
 * sub-devices, by drive number.
 *
 * Null means no device name and no sub-device. Copies share their data until one of them is
 * changed. Thread-safe as every value: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CDeviceSettings
{
public:
    /** Null settings. */
    CDeviceSettings();
    CDeviceSettings(const CDeviceSettings &other);
    virtual ~CDeviceSettings();

    CDeviceSettings &operator=(const CDeviceSettings &other);

    bool operator==(const CDeviceSettings &other) const;
    bool operator!=(const CDeviceSettings &other) const;

    bool isNull() const;
    void clear();

    /** Name of the device; empty when none is set. */
    QString deviceName() const;
    /** The name; @p defaultName if no name is set. */
    QString deviceName(const QString &defaultName) const;
    void setDeviceName(const QString &name);

    /** Name of the sub-device with the drive number @p driveNo, 0 to 255; null when it has none. */
    QString subDeviceName(quint8 driveNo) const;
    /**
     * The name; @p defaultName if the drive has no name. A name that was set to the empty text
     * stays empty.
     */
    QString subDeviceName(quint8 driveNo, const QString &defaultName) const;
    /** All names, by drive number. */
    QMap<quint8, QString> subDeviceNameMap() const;
    /** An empty @p name is a name, too: nothing but clear() removes a sub-device. */
    void setSubDeviceName(const QString &name, quint8 driveNo);

private:
    QSharedDataPointer<CDeviceSettingsData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CDeviceSettings &settings);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CDeviceSettings &settings);
};

/**
 * Stream form: device name (QString), number of sub-devices (unsigned 32 bit), then each with its
 * drive number (unsigned 8 bit) and name (QString), from the highest drive number down. Reading
 * replaces what was there; of a list that breaks off, nothing is kept.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CDeviceSettings &settings);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDeviceSettings &settings);
