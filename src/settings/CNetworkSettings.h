#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QSharedDataPointer>
#include <QString>

class CNetworkSettingsData;

/**
 * The Ethernet settings of a device: how it gets its address, and where it sends its system log,
 * its network console and its questions for the time.
 *
 * Addresses are texts and are stored as they are given; CNetworkSettingsCheck reports what is wrong
 * with one. Copies share their data until one of them is changed. Thread-safe as every value: see
 * docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CNetworkSettings
{
public:
    /** How the device gets its address. On a data stream it is a signed 32-bit number. */
    enum ENetworkMode : qint32 {
        /** "UNKNOWN" */
        NETWORK_MODE_UNKNOWN = 0,
        /** "DISABLED": the interface is off. */
        NETWORK_MODE_DISABLED = 1,
        /** "STATIC": address, subnet mask and gateway are those of these settings. */
        NETWORK_MODE_STATIC = 2,
        /** "ID_SWITCH": as STATIC, with the host number from the switch on the device. */
        NETWORK_MODE_ID_SWITCH = 3,
        /** "DHCP": a server in the network assigns them. */
        NETWORK_MODE_DHCP = 4
    };

    /** How the device gets its time. On a data stream it is a signed 32-bit number. */
    enum ENtpMode : qint32 {
        /** "UNKNOWN" */
        NTP_MODE_UNKNOWN = 0,
        /** "NTP_DISABLE": not from the network. */
        NTP_MODE_DISABLE = 1,
        /** "NTP_DAEMON": a daemon keeps it right. */
        NTP_MODE_DAEMON = 2,
        /** "NTP_SET_ON_STARTUP": once, when the device starts. */
        NTP_MODE_SET_ON_STARTUP = 3
    };

    /**
     * Both modes unknown; the subnet mask "255.255.000.000", the other addresses
     * "000.000.000.000", but that of the NTP server null; console port 6666, log level "4".
     * Because of the addresses this is not null.
     */
    CNetworkSettings();
    CNetworkSettings(const CNetworkSettings &other);
    virtual ~CNetworkSettings();

    CNetworkSettings &operator=(const CNetworkSettings &other);

    /** Compares every field, texts exactly: "010.0.0.1" and "10.0.0.1" differ. */
    bool operator==(const CNetworkSettings &other) const;
    bool operator!=(const CNetworkSettings &other) const;

    /**
     * Whether both modes are unknown and address, subnet mask, system log address and NTP server
     * address are empty. The setters put their fall-backs in place of empty addresses, so that only
     * a value read from a data stream can be null; the default-constructed one is not.
     */
    bool isNull() const;
    /** Makes it a default-constructed value, which is not null. */
    void clear();

    ENetworkMode mode() const;
    void setMode(ENetworkMode mode);
    /** Text of the mode; "UNKNOWN" for every other number. */
    QString modeStr() const;
    /** Sets the mode with that text, in any case; NETWORK_MODE_UNKNOWN for any other text. */
    void setModeStr(const QString &mode);

    /** IPv4 address of the device. An empty one is stored as "000.000.000.000". */
    QString address() const;
    void setAddress(const QString &address);

    /** An empty mask is stored as "255.255.000.000". */
    QString subnetMask() const;
    void setSubnetMask(const QString &mask);

    /** Address of the router. An empty one is stored as "000.000.000.000": there is none. */
    QString gateway() const;
    void setGateway(const QString &gateway);

    /**
     * Where the system log is sent. An empty address is stored as "255.255.000.000", on purpose
     * like a mask and unlike the default, "000.000.000.000": to name no receiver, set the default's
     * text and not an empty one.
     */
    QString syslogAddress() const;
    void setSyslogAddress(const QString &address);

    /** Address of the time server; empty or null when there is none. */
    QString ntpAddress() const;
    void setNtpAddress(const QString &address);

    ENtpMode ntpMode() const;
    void setNtpMode(ENtpMode mode);
    /** Text of the mode; "UNKNOWN" for every other number. */
    QString ntpModeStr() const;
    /** Sets the mode with that text, in any case; NTP_MODE_UNKNOWN for any other text. */
    void setNtpModeStr(const QString &mode);

    /**
     * Where the kernel's messages are sent. An empty address is stored as "255.255.000.000", as
     * with the system log.
     */
    QString netConsoleAddress() const;
    void setNetConsoleAddress(const QString &address);

    /** UDP port of the network console, 1 to 65535; stored unchecked. */
    unsigned int netConsolePort() const;
    void setNetConsolePort(unsigned int port);

    /** Kernel messages below this level are shown: "0" (none but emergencies) to "7" (all). */
    QString kernelLogLevel() const;
    /** Stores the text of a number from 0 to 7 as it is; any other text changes nothing. */
    void setKernelLogLevel(const QString &level);

private:
    QSharedDataPointer<CNetworkSettingsData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CNetworkSettings &settings);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CNetworkSettings &settings);
};

/**
 * Stream form: mode (signed 32 bit), address, subnet mask, gateway, system log address, NTP server
 * address (QString each), NTP mode (signed 32 bit), network console address (QString) and port
 * (32 bit), kernel log level (QString). Reading takes every field as it comes.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CNetworkSettings &settings);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CNetworkSettings &settings);
