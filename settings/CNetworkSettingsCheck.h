#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

/**
 * Tells what is wrong with a "network.conf", which CNetworkSettingsFile reads without a complaint.
 * All members are static and may be used from any thread.
 */
class VRNDEVICECORE_EXPORT CNetworkSettingsCheck
{
public:
    CNetworkSettingsCheck() = delete;

    struct SFinding {
        /** Counted from 1; 0 for what has no line of its own. */
        int line;
        /** The key concerned, as it stands in the file; empty when there is none. */
        QString key;
        /** What is wrong and what is expected, for the user. */
        QString message;
    };

    /**
     * Every finding in the content of a file, in the order of lines: lines that are no
     * "KEY=value", sections, unknown and repeated keys, keys that are not read because of a
     * quotation mark or backslash before them, values that are none, a static address that is
     * missing, and one whose gateway lies in another subnet. A gateway "0.0.0.0" is none.
     */
    static QList<SFinding> check(const QByteArray &content);

    /**
     * What is wrong with @p value as the value of @p key: a mode must be one of those that there
     * are, an address or mask must match its pattern in NvrnGlobal, a port be 1 to 65535, a kernel
     * log level 0 to 7. The address of the time server may be empty.
     * @return empty when nothing is wrong
     */
    static QString problem(const QString &key, const QString &value);
};
