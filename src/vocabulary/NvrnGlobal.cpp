#include "vocabulary/NvrnGlobal.h"

namespace NvrnGlobal {

const QString CAPPOBJECT_MIME_TYPE = QStringLiteral("application/x-vrappobject");
const QString CAPPONLINEOBJECT_MIME_TYPE = QStringLiteral("application/x-vrapponlineobject");
const QString COBJECTBROWSEROBJECT_MIME_TYPE =
    QStringLiteral("application/x-vrobjectbrowserobject");
const QString CSCOPEOBJECT_MIME_TYPE = QStringLiteral("application/x-vrscopeobject");
const QString CPROJECTOBJECT_MIME_TYPE = QStringLiteral("application/x-vrprojectobject");
const QString CPROJECTGUI_TREEITEM_MIME_TYPE = QStringLiteral("application/x-vrprojectguitreeitem");
const QString CDEVICEDATABASEGUI_DEVICE_MIME_TYPE =
    QStringLiteral("application/x-vrndevicedatabasedevice");
const QString CDEVICEDATABASEGUI_FIRMWARE_MIME_TYPE =
    QStringLiteral("application/x-vrndevicedatabasefirmware");
const QString CDEVICEDATABASEGUI_FPGA_MIME_TYPE =
    QStringLiteral("application/x-vrndevicedatabasefpga");
const QString CFILETRANSFER_TARGETFILE_MIME_TYPE =
    QStringLiteral("application/vrFileTransferTargetFile");

const QString SYSLOG_EMERG_STR = QStringLiteral("emerg");
const QString SYSLOG_ALERT_STR = QStringLiteral("alert");
const QString SYSLOG_CRIT_STR = QStringLiteral("crit");
const QString SYSLOG_ERR_STR = QStringLiteral("error");
const QString SYSLOG_WARNING_STR = QStringLiteral("warn");
const QString SYSLOG_NOTICE_STR = QStringLiteral("notice");
const QString SYSLOG_INFO_STR = QStringLiteral("info");
const QString SYSLOG_DEBUG_STR = QStringLiteral("debug");
const QString RESULT_ENTRY_OK = QStringLiteral("[ OK ]");
const QString RESULT_ENTRY_FAILED = QStringLiteral("[ FAILED ]");

#define HEX_PAIR "[0-9a-fA-F]{2}"
#define IPV4_OCTET "(25[0-5]|2[0-4][0-9]|[01]?[0-9]?[0-9])"
#define IPV4_ADDRESS "(" IPV4_OCTET "\\.){3}" IPV4_OCTET
#define MASK_ZERO "0{1,3}"
#define MASK_PARTIAL "(255|254|252|248|240|224|192|128|" MASK_ZERO ")"
#define IPV6_GROUP "[0-9a-fA-F]{1,4}"

// One alternative a line is easier to check than what the formatter makes of it.
// clang-format off
const QString MAC_PATTERN = QStringLiteral("^(" HEX_PAIR ":){5}" HEX_PAIR "$");
const QString MAC_INPUT_PATTERN = QStringLiteral(
    "(" HEX_PAIR ":){5}" HEX_PAIR "|"
    "(" HEX_PAIR "-){5}" HEX_PAIR "|"
    "(" HEX_PAIR "){6}");
const QString IPV4_PATTERN = QStringLiteral("^" IPV4_ADDRESS "$");
const QString IPV4_INPUT_PATTERN = QStringLiteral("\\s*" IPV4_ADDRESS "\\s*");

const QString IPV4_SUBNET_PATTERN = QStringLiteral(
    "^("
    "(255\\.){3}" MASK_PARTIAL "|"
    "(255\\.){2}" MASK_PARTIAL "\\." MASK_ZERO "|"
    "255\\." MASK_PARTIAL "(\\." MASK_ZERO "){2}|"
    MASK_PARTIAL "(\\." MASK_ZERO "){3}"
    ")$");

// Each alternative has the "::" at another place; its tail may end in an IPv4 address, which
// stands for two groups.
const QString IPV6_PATTERN = QStringLiteral(
    "^("
    "(" IPV6_GROUP ":){7}(" IPV6_GROUP "|:)|"
    "(" IPV6_GROUP ":){6}(" IPV4_ADDRESS "|:" IPV6_GROUP "|:)|"
    "(" IPV6_GROUP ":){5}(:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,2}|:)|"
    "(" IPV6_GROUP ":){4}((:" IPV6_GROUP "){0,1}:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,3}|:)|"
    "(" IPV6_GROUP ":){3}((:" IPV6_GROUP "){0,2}:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,4}|:)|"
    "(" IPV6_GROUP ":){2}((:" IPV6_GROUP "){0,3}:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,5}|:)|"
    "(" IPV6_GROUP ":){1}((:" IPV6_GROUP "){0,4}:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,6}|:)|"
    ":((:" IPV6_GROUP "){0,5}:" IPV4_ADDRESS "|(:" IPV6_GROUP "){1,7}|:)"
    ")$");
// clang-format on

#undef HEX_PAIR
#undef IPV4_OCTET
#undef IPV4_ADDRESS
#undef MASK_ZERO
#undef MASK_PARTIAL
#undef IPV6_GROUP

const QFileDevice::Permissions FILE_PERMISSIONS = QFileDevice::ReadOwner | QFileDevice::WriteOwner
    | QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ReadGroup
    | QFileDevice::ReadOther;
const QFileDevice::Permissions PATH_PERMISSIONS = FILE_PERMISSIONS | QFileDevice::ExeOwner
    | QFileDevice::ExeUser | QFileDevice::ExeGroup | QFileDevice::ExeOther;

const QString PREFIX_CONFIG_PARAMS = QStringLiteral("I");
const QString PREFIX_DEVICE_CONFIGURATION = QStringLiteral("C");
const QString PREFIX_DEVICE_DATABASE = QStringLiteral("U");
const QString PREFIX_EXTENSION_CONTROLLER = QStringLiteral("S");
const QString PREFIX_FIRMWARE_DATABASE = QStringLiteral("F");
const QString PREFIX_LOGIC_DATABASE = QStringLiteral("L");
const QString PREFIX_OPTIONMODUL_DATABASE = QStringLiteral("O");
const QString PREFIX_PARAMETER = QStringLiteral("D");

} // namespace NvrnGlobal
