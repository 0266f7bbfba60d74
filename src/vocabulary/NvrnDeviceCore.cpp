#include "vocabulary/NvrnDeviceCore.h"

namespace NvrnDeviceCore {

const QString DEVICETXT_PRODUCT = QStringLiteral("PRODUCT");
const QString DEVICETXT_PLATFORM = QStringLiteral("PLATFORM");
const QString DEVICETXT_PTXDIST_VERSION = QStringLiteral("PTXDIST_VERSION");
const QString DEVICETXT_PTXDIST_BSP = QStringLiteral("PTXDIST_BSP");
const QString DEVICETXT_QT_VERSION = QStringLiteral("QT_VERSION");
const QString DEVICETXT_PRODUCT_NAME = QStringLiteral("PRODUCT_NAME");
const QString DEVICETXT_PRODUCT_ID = QStringLiteral("PRODUCT_ID");
const QString DEVICETXT_HW_VERSION = QStringLiteral("HW_VERSION");
const QString DEVICETXT_PRODUCT_VERSION = QStringLiteral("PRODUCT_VERSION");
const QString DEVICETXT_PRODUCT_REVISION = QStringLiteral("PRODUCT_REVISION");

const QString DEVICEHOOKTXT_REMOUNT_RW = QStringLiteral("REMOUNT_RW");
const QString DEVICEHOOKTXT_PRE_UPDATE_SCRIPT = QStringLiteral("PRE_UPDATE_SCRIPT");
const QString DEVICEHOOKTXT_POST_UPDATE_SCRIPT = QStringLiteral("POST_UPDATE_SCRIPT");

} // namespace NvrnDeviceCore
