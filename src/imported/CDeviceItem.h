#pragma once

#include "imported/VrnImportedExport.h"

#include <QtGlobal>

/** A device as it stands in a list of devices; of it, only the kind of its address is needed here.
 */
class VRNCORE_EXPORT CDeviceItem
{
public:
    CDeviceItem() = delete;

    /** Kind of a host address. On a data stream it is a signed 32-bit number. */
    enum EHostAddrType : qint32 {
        /** Not set; the address itself shows whether it is IPv4 or IPv6. */
        HOST_ADDRESS_UNDEFINED = 0,
        HOST_ADDRESS_IPV4 = 1,
        HOST_ADDRESS_IPV6 = 2,
        /** A host name that is looked up when the connection is made. */
        HOST_ADDRESS_NAME = 3
    };
};
