#include "vocabulary/TextTables.h"

#include "vocabulary/NVornXmlTags.h"

namespace TextTables {

const Table<NvrnGlobal::EParamFileType> &paramFileTypes()
{
    using namespace NvrnGlobal;
    // PARAM_FILE_RESERVED has no row on purpose: it is written as "Undefined".
    static const Table<EParamFileType> table = {
        {PARAM_FILE_UNDEFINED, QStringLiteral("Undefined")},
        {PARAM_FILE_KC2_PARAMETERS, QStringLiteral("KC2Parameters")},
        {PARAM_FILE_KC2_COMPENSATION, QStringLiteral("KC2Compensation")},
        {PARAM_FILE_PARAMETERS, NVornXmlTags::TAG_ROOT_PARAMETERS},
        {PARAM_FILE_CONFIG_PARAMETERS, NVornXmlTags::TAG_ROOT_CONF_PARAM},
        {PARAM_FILE_DEVICE_DATABASE, NVornXmlTags::TAG_ROOT_DEVICE_DB},
        {PARAM_FILE_PLUGIN_PARAMETERS, NVornXmlTags::TAG_ROOT_PLUGIN_PARAM},
        {PARAM_FILE_FIRMWARE_DATABASE, NVornXmlTags::TAG_ROOT_FIRMWARE_DB},
        {PARAM_FILE_LOGIC_DATABASE, NVornXmlTags::TAG_ROOT_LOGIC_DB},
        {PARAM_FILE_OEM_PARAMETERS, NVornXmlTags::TAG_ROOT_OEM_PARAMETERS},
        {PARAM_FILE_MOTOR_PARAMETERS, NVornXmlTags::TAG_ROOT_MOTOR_PARAMETERS},
        {PARAM_FILE_OPTION_MODULE_DATABASE, NVornXmlTags::TAG_ROOT_OPTION_MODUL_DB},
    };
    return table;
}

const Table<NDeviceConf::EDeviceClass> &deviceClasses()
{
    using namespace NDeviceConf;
    static const Table<EDeviceClass> table = {
        {DEVICE_CLASS_UNDEFINED, QStringLiteral("Undefined")},
        {DEVICE_CLASS_KC2, QStringLiteral("kc2")},
        {DEVICE_CLASS_KD3, QStringLiteral("kd3")},
    };
    return table;
}

const Table<NvrnDeviceCore::EElementType> &subDeviceTypes()
{
    using namespace NvrnDeviceCore;
    static const Table<EElementType> table = {
        {ELEMENT_UNKNOWN, QStringLiteral("UNKNOWN_drive")},
        {ELEMENT_KD2_SUB_DEVICE, QStringLiteral("KD2_drive")},
        {ELEMENT_KD3_SUB_DEVICE, QStringLiteral("KD3_drive")},
    };
    return table;
}

const Table<NvrnGlobal::EConnectionState> &connectionStates()
{
    using namespace NvrnGlobal;
    // The default comes first: it stands for every number that is not a state.
    static const Table<EConnectionState> table = {
        {CONNECTION_STATE_UNKNOWN, QStringLiteral("Unknown")},
        {CONNECTION_STATE_DISCONNECTED, QStringLiteral("Disconnected")},
        {CONNECTION_STATE_CONNECTED, QStringLiteral("Connected")},
    };
    return table;
}

const Table<CDeviceItem::EHostAddrType> &hostAddressTypes()
{
    static const Table<CDeviceItem::EHostAddrType> table = {
        {CDeviceItem::HOST_ADDRESS_UNDEFINED, QStringLiteral("Undefined")},
        {CDeviceItem::HOST_ADDRESS_IPV4, QStringLiteral("IPv4")},
        {CDeviceItem::HOST_ADDRESS_IPV6, QStringLiteral("IPv6")},
        {CDeviceItem::HOST_ADDRESS_NAME, QStringLiteral("Name")},
    };
    return table;
}

} // namespace TextTables
