#include "vocabulary/NvrFileNames.h"

namespace NvrFileNames {

const QString PARAMETER_VALUE_EXTENSION = QStringLiteral("3param");
const QString PARAMETER_DEFINITION_EXTENSION = QStringLiteral("3pdef");

const QString DEFAULT_DEVICE_CONF_CURRENT = QStringLiteral("configuration.3conf");
const QString DEFAULT_DEVICE_COMMAND_LINE = QStringLiteral("commandline.3conf");
const QString DEVICE_SETTINGS_FILENAME = QStringLiteral("settings.3conf");
const QString DEVICE_CONFIG_FILENAME = QStringLiteral("DeviceConfiguration.3deco");
const QString CONFIG_DB_PLUNGINS_FILENAME = QStringLiteral("cdbplugins.3xml");

const QString DEVICE_DB_DEVICE_BASEFILENAME = QStringLiteral("UnitParams");
const QString DEVICE_DB_FIRMWARE_BASEFILENAME = QStringLiteral("FirmwareParams");
const QString DEVICE_DB_FPGA_BASEFILENAME = QStringLiteral("FpgaParams");
const QString OPTION_MODULE_DB_BASEFILENAME = QStringLiteral("options");
const QString DEVICE_INITIALISATION_BASEFILENAME = QStringLiteral("InitialisationParams");
const QString DEVICE_CONFIGURATION_BASEFILENAME = QStringLiteral("ConfigurationParams");

const QString DEVICE_DB_DEVICE_DEF_FILENAME = QStringLiteral("UnitParams.3pdef");
const QString DEVICE_DB_DEVICE_PARAM_FILENAME = QStringLiteral("UnitParams.3param");
const QString DEVICE_DB_FIRMWARE_DEF_FILENAME = QStringLiteral("FirmwareParams.3pdef");
const QString DEVICE_DB_FIRMWARE_PARAM_FILENAME = QStringLiteral("FirmwareParams.3param");
const QString DEVICE_DB_FPGA_DEF_FILENAME = QStringLiteral("FpgaParams.3pdef");
const QString DEVICE_DB_FPGA_PARAM_FILENAME = QStringLiteral("FpgaParams.3param");
const QString OPTION_MODULE_DB_DEVICE_DEF_FILENAME = QStringLiteral("options.3pdef");
const QString OPTION_MODULE_DEVICE_PARAM_FILENAME = QStringLiteral("options.3param");
const QString DEVICE_INITIALISATION_DEF_FILENAME = QStringLiteral("InitialisationParams.3pdef");
const QString DEVICE_INITIALISATION_PARAM_FILENAME = QStringLiteral("InitialisationParams.3param");
const QString DEVICE_CONFIGURATION_DEF_FILENAME = QStringLiteral("ConfigurationParams.3pdef");
const QString DEVICE_CONFIGURATION_PARAM_FILENAME = QStringLiteral("ConfigurationParams.3param");

const QString DEFAULT_DEVICE_NETWORK_CONF = QStringLiteral("network.conf");
const QString DEFAULT_DEVICE_WLAN_CONF = QStringLiteral("wlan.conf");
const QString DEFAULT_DEVICE_USBNETWORK_CONF = QStringLiteral("usbudhcpd.conf");
const QString DEFAULT_ETHERCAT_MASTER_CONF_FILENAME = QStringLiteral("EC_BusConfiguration.xml");
const QString DEFAULT_MESSAGES_FILENAME = QStringLiteral("KD3_Messages_int.xml");
const QString DEFAULT_ODICT_FILENAME = QStringLiteral("VelkorDictionary_V1.xml");
const QString DEFAULT_KD3_ODICT_FILENAME = QStringLiteral("KD3_Dictionary_V1.xml");
const QString DEFAULT_PARAMETER_IMGSOURCE_FILENAME = QStringLiteral("parameterImageSource.xml");
const QString DEVICE_BACKUP_HARDWARE_FILENAME = QStringLiteral("device.txt");
const QString DEVICE_BACKUP_HARDWARE_HOOK_FILENAME = QStringLiteral("device_hook.txt");
const QString DEVICE_HISTORY_FILENAME = QStringLiteral("history.log");
const QString DEVICE_OPCUA_NODESET_FILENAME = QStringLiteral("kd3NodeSet.xml");
const QString DEVICE_OPCUA_SUBSYSTEM_FILENAME = QStringLiteral("kd3SubSystem.xml");
const QString DEVICE_OS_RELEASE_FILENAME = QStringLiteral("os-release");
const QString DEVICE_TIMEZONE_FILENAME = QStringLiteral("timezone.conf");
const QString KC2_COMMON_PARAMETER_FILENAME = QStringLiteral("parameter.xml");
const QString KC2_TYPEPLATE_FILENAME = QStringLiteral("eeprom.xml");
const QString KD3_HW_FILENAME = QStringLiteral("HW.xml");
const QString KD3_TYPEPLATE_FILEBASENAME = QStringLiteral("typeplate");

} // namespace NvrFileNames
