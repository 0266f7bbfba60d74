#pragma once

#include "imported/CDeviceItem.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QHostAddress>
#include <QSharedDataPointer>
#include <QString>
#include <QUuid>

class CDeviceCommSharedData;

/**
 * How a tool reaches a device in the network, and what it knows of it.
 *
 * Null means equal to a default-constructed record. Copies share their data until one of them is
 * changed; setters store what they are given. Thread-safe as every value: see docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CDeviceCommData
{
public:
    /** A null record: state CONNECTION_STATE_UNKNOWN, list number -1, everything else 0 or empty.
     */
    CDeviceCommData();
    CDeviceCommData(const CDeviceCommData &other);
    virtual ~CDeviceCommData();

    /** Name of the device configuration that the device runs. */
    virtual void setConfigurationName(const QString &name);
    QString configurationName() const;

    CDeviceCommData &operator=(const CDeviceCommData &other);

    /**
     * Compares everything but the connection state, on purpose: a device stays the same when it
     * goes off line, so code that waits for a change of state must compare the states.
     */
    bool operator==(const CDeviceCommData &other) const;
    bool operator!=(const CDeviceCommData &other) const;

    /** True also when nothing but the connection state was set. */
    bool isNull() const;
    void clear();

    /** Id under which other records refer to this one; null when there is none. */
    QUuid refId() const;
    void setRefId(const QUuid &refId);

    QString name() const;
    void setName(const QString &name);

    /** Free comment. */
    QString comment() const;
    void setComment(const QString &comment);

    /** Serial number of the device; 0 when it is not known. */
    quint32 serial() const;
    void setSerial(unsigned int serial);

    CDeviceItem::EHostAddrType hostAddressType() const;
    void setHostAddressType(CDeviceItem::EHostAddrType type);
    /** Name of a type, such as "IPv4"; "Undefined" for every other number. */
    static QString hostAddressTypeStr(CDeviceItem::EHostAddrType type);

    /** Address of the device; null when it is not known. */
    QHostAddress hostAddress() const;
    void setHostAddress(const QHostAddress &address);

    /** Port of the device, 0 when it is not known. */
    quint16 port() const;
    void setPort(unsigned short port);

    /** Free text on how to get at the device. */
    QString accessDescription() const;
    void setAccessDescription(const QString &description);

    /** Always CONNECTION_STATE_UNKNOWN while serial() is 0; the state that was set shows after. */
    NvrnGlobal::EConnectionState connectionState() const;
    void setConnectionState(NvrnGlobal::EConnectionState state);
    /** Name of a state, such as "Connected"; "Unknown" for every other number. */
    static QString connectionStateStr(NvrnGlobal::EConnectionState state);

    /** Place in the user's list of preferred devices; -1 when it is not in it. */
    qint32 preferredDeviceListNumber() const;
    void setPreferredDeviceListNumber(int number);

private:
    QSharedDataPointer<CDeviceCommSharedData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CDeviceCommData &data);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDeviceCommData &data);
};

/**
 * Stream form: reference id (QUuid), name, comment (QString each), serial (unsigned 32 bit), type
 * of the address (signed 32 bit), address (QHostAddress), port (unsigned 16 bit), access
 * description (QString), connection state as stored (signed 32 bit), list number (signed 32 bit),
 * configuration name (QString).
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CDeviceCommData &data);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDeviceCommData &data);
