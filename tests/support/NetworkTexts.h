#pragma once

#include "settings/CNetworkSettings.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"

#include <QByteArray>
#include <QList>
#include <QString>

/** Settings and the files that hold them. */
namespace NetworkTexts {

using S = CNetworkSettings;

/** What a file without any key gives. */
inline S missing()
{
    S settings;
    settings.setMode(S::NETWORK_MODE_DISABLED);
    settings.setAddress(u"0.0.0.0"_s);
    settings.setSubnetMask(u"255.255.0.0"_s);
    settings.setGateway(u"0.0.0.0"_s);
    settings.setSyslogAddress(u"0.0.0.0"_s);
    settings.setNtpAddress(u"0.0.0.0"_s);
    settings.setNtpMode(S::NTP_MODE_UNKNOWN);
    settings.setNetConsoleAddress(u"0.0.0.0"_s);
    settings.setNetConsolePort(6666);
    settings.setKernelLogLevel(u"4"_s);
    return settings;
}

/** Each field differs from its defaults and from the others. */
inline S full()
{
    S settings;
    settings.setMode(S::NETWORK_MODE_STATIC);
    settings.setAddress(u"192.168.001.010"_s);
    settings.setSubnetMask(u"255.255.255.000"_s);
    settings.setGateway(u"192.168.001.001"_s);
    settings.setSyslogAddress(u"192.168.001.002"_s);
    settings.setNtpAddress(u"192.168.001.003"_s);
    settings.setNtpMode(S::NTP_MODE_SET_ON_STARTUP);
    settings.setNetConsoleAddress(u"192.168.001.004"_s);
    settings.setNetConsolePort(51234);
    settings.setKernelLogLevel(u"7"_s);
    return settings;
}

/** The values of a file in the order of its keys, between the lines that are always the same. */
inline QByteArray fileText(const QList<QByteArray> &values)
{
    const QList<QByteArray> lines = {
        "# KD3/KC2 Ethernet configuration",
        "",
        "# Mode: Mode of IP-Setting",
        "# Available options: STATIC, DHCP, DISABLED (default), ID_SWITCH",
        "MODE=" + values.at(0),
        "",
        "# Address, subnet mask and gateway are only relevant in STATIC or ID_SWITCH mode",
        "ADDRESS=" + values.at(1),
        "SUBNETMASK=" + values.at(2),
        "GATEWAY=" + values.at(3),
        "",
        "# Syslog Receiver IP Address",
        "SYSLOGTARGET=" + values.at(4),
        "",
        "",
        "# NTP Time Server",
        "NTP_TIMESERVER=" + values.at(5),
        "",
        "# Available modes are:",
        "#   NTP_DISABLE, Disable (default)",
        "#   NTP_DAEMON, Run as daemon",
        "#   NTP_SET_ON_STARTUP, Set time on system start up",
        "NTP_MODE=" + values.at(6),
        "",
        "# Network Console Receiver IP and Port",
        "NETCON_TARGET=" + values.at(7),
        "NETCON_PORT=" + values.at(8),
        "",
        "# Kernel log",
        "KERNEL_LOGLEVEL=" + values.at(9),
        "",
    };
    QByteArray text;
    for (const QByteArray &line : lines) {
        text += line + '\n';
    }
    return text;
}

inline QByteArray fullText()
{
    return fileText({"STATIC", "192.168.001.010", "255.255.255.000", "192.168.001.001",
                     "192.168.001.002", "192.168.001.003", "NTP_SET_ON_STARTUP", "192.168.001.004",
                     "51234", "7"});
}

inline QByteArray reference(const QString &name)
{
    return Files::read(Places::data("network/valid/") + name);
}

} // namespace NetworkTexts
