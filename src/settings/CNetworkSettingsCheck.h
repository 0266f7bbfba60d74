#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

/**
 * Reports what is wrong with a "network.conf", which CNetworkSettingsFile reads without a
 * complaint. All members are static and may be used from any thread.
 */
class VRNDEVICECORE_EXPORT CNetworkSettingsCheck
{
public:
    CNetworkSettingsCheck() = delete;

    enum EFinding : qint32 {
        /** A line that is neither "KEY=value" nor a comment. */
        FINDING_NO_ASSIGNMENT,
        /** A line that begins a section, in which no key is read. */
        FINDING_SECTION,
        FINDING_UNKNOWN_KEY,
        FINDING_REPEATED_KEY,
        /** A key that belongs to a quotation mark or backslash before it. */
        FINDING_NOT_READ,
        FINDING_BAD_VALUE,
        /** The mode is STATIC, and there is no address. */
        FINDING_NO_ADDRESS,
        /** The gateway is not in the subnet of the static address. */
        FINDING_OTHER_SUBNET
    };

    struct SFinding {
        EFinding finding;
        /** Counted from 1; 0 for what has no line of its own. */
        int line;
        /** The key concerned, as it stands in the file; empty when there is none. */
        QString key;
        /** What is wrong and what is expected, for the user. */
        QString message;
    };

    /**
     * Every finding in the content of a file, in the order of lines: lines that do not have the
     * form "KEY=value", sections, unknown and repeated keys, keys that are not read because of a
     * quotation mark or backslash before them, invalid values, a static address that is missing,
     * and one whose gateway lies in another subnet. A gateway "0.0.0.0" means that there is no
     * gateway. Keys in a section are not checked.
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
