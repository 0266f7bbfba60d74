// Long because it lists every constant with its value.
#include "configfile/CAbstractDeviceConfigurationFile.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/TestProgram.h"
#include "vocabulary/NDeviceConf.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/NvrFileNames.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/NvrnGlobal.h"

#include <QFile>
#include <QHostAddress>
#include <QRegExp>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <limits>
#include <memory>

#include <dlfcn.h>

Q_DECLARE_METATYPE(const QString *)
Q_DECLARE_METATYPE(QRegExp)

namespace {

struct Constant {
    const char *name;
    const QString *constant;
    QString value;
};

using Constants = QList<Constant>;

Constant makeConstant(const char *name, const QString &constant, const QString &value)
{
    return {name, &constant, value};
}

#define CONSTANT(name, value) makeConstant(#name, name, QStringLiteral(value))

Constants mimeTypes()
{
    using namespace NvrnGlobal;
    return {
        CONSTANT(CAPPOBJECT_MIME_TYPE, "application/x-vrappobject"),
        CONSTANT(CAPPONLINEOBJECT_MIME_TYPE, "application/x-vrapponlineobject"),
        CONSTANT(COBJECTBROWSEROBJECT_MIME_TYPE, "application/x-vrobjectbrowserobject"),
        CONSTANT(CSCOPEOBJECT_MIME_TYPE, "application/x-vrscopeobject"),
        CONSTANT(CPROJECTOBJECT_MIME_TYPE, "application/x-vrprojectobject"),
        CONSTANT(CPROJECTGUI_TREEITEM_MIME_TYPE, "application/x-vrprojectguitreeitem"),
        CONSTANT(CDEVICEDATABASEGUI_DEVICE_MIME_TYPE, "application/x-vrndevicedatabasedevice"),
        CONSTANT(CDEVICEDATABASEGUI_FIRMWARE_MIME_TYPE, "application/x-vrndevicedatabasefirmware"),
        CONSTANT(CDEVICEDATABASEGUI_FPGA_MIME_TYPE, "application/x-vrndevicedatabasefpga"),
        CONSTANT(CFILETRANSFER_TARGETFILE_MIME_TYPE, "application/vrFileTransferTargetFile"),
    };
}

Constants logLevels()
{
    using namespace NvrnGlobal;
    return {
        CONSTANT(SYSLOG_EMERG_STR, "emerg"),  CONSTANT(SYSLOG_ALERT_STR, "alert"),
        CONSTANT(SYSLOG_CRIT_STR, "crit"),    CONSTANT(SYSLOG_ERR_STR, "error"),
        CONSTANT(SYSLOG_WARNING_STR, "warn"), CONSTANT(SYSLOG_NOTICE_STR, "notice"),
        CONSTANT(SYSLOG_INFO_STR, "info"),    CONSTANT(SYSLOG_DEBUG_STR, "debug"),
        CONSTANT(RESULT_ENTRY_OK, "[ OK ]"),  CONSTANT(RESULT_ENTRY_FAILED, "[ FAILED ]"),
    };
}

Constants documentTypes()
{
    using namespace NVornXmlTags;
    return {
        CONSTANT(TAG_ROOT_SHM, "VornSharedMemoryConfig"),
        CONSTANT(TAG_ROOT_SERVER, "VornObjectServerConfig"),
        CONSTANT(TAG_ROOT_APP, "VornAppObjectConfig"),
        CONSTANT(TAG_ROOT_DRIVE_LIST, "VornDeviceListConfig"),
        CONSTANT(TAG_ROOT_PROJECT, "VornProjectFile"),
        CONSTANT(TAG_ROOT_DEVICECONFIG, "VornDeviceConfig"),
        CONSTANT(TAG_ROOT_PARAM_DEF, "VornParamDefinition"),
        CONSTANT(TAG_ROOT_PARAMETERS, "VornParameters"),
        CONSTANT(TAG_ROOT_CONST, "VornConst"),
        CONSTANT(TAG_ROOT_MOTOR_PARAMETERS, "VornMotorParameters"),
        CONSTANT(TAG_ROOT_DEVICESETTINGS, "VornDeviceSettings"),
        CONSTANT(TAG_ROOT_CDB_PLUGINS, "VornConfigDatabasePlugins"),
        CONSTANT(TAG_ROOT_APP_COLORS, "VornApplicationColors"),
        CONSTANT(TAG_ROOT_CONF_PARAM, "VornConfigParams"),
        CONSTANT(TAG_ROOT_DEVICE_DB, "VornDeviceDatabase"),
        CONSTANT(TAG_ROOT_PLUGIN_PARAM, "VornPluginParameters"),
        CONSTANT(TAG_ROOT_FIRMWARE_DB, "VornFirmwareDataBase"),
        CONSTANT(TAG_ROOT_LOGIC_DB, "VornLogicDataBase"),
        CONSTANT(TAG_ROOT_BACKUP_CONFIG, "VornBackupConfig"),
        CONSTANT(TAG_ROOT_OEM_PARAMETERS, "VornOemParameters"),
        CONSTANT(TAG_ROOT_FAULT_TEXTS, "VornFaultTexts"),
        CONSTANT(TAG_ROOT_DRIVESETUP_STEPS, "VornDriveSetupSteps"),
        CONSTANT(TAG_ROOT_TYPEPLATE_DATA, "VornTypePlateData"),
        CONSTANT(TAG_ROOT_OPCUA_PROJECT, "VornOpcUaProject"),
        CONSTANT(TAG_ROOT_OPTION_MODUL_DB, "VornOptionModulDatabase"),
        CONSTANT(TAG_ROOT_PARAMETER_IMGSRC, "VornParameterImageSource"),
        CONSTANT(TAG_ROOT_XML_SETTINGS, "C_SETTINGS_FORMAT"),
        CONSTANT(TAG_ROOT_C_COMPENSATION, "C_COMPENSATION_FORMAT"),
    };
}

Constants elementNames()
{
    using namespace NVornXmlTags;
    return {
        CONSTANT(TAG_HEAD, "Head"),
        CONSTANT(TAG_DATE, "Date"),
        CONSTANT(TAG_AUTHOR, "Author"),
        CONSTANT(TAG_COMMENT, "Comment"),
        CONSTANT(TAG_ARRAY_INDEX, "ArrayIndex"),
        CONSTANT(TAG_ARRAY_LENGTH, "ArrayLength"),
        CONSTANT(TAG_BIN, "Bin"),
        CONSTANT(TAG_BINARIES, "Binaries"),
        CONSTANT(TAG_BIT, "Bit"),
        CONSTANT(TAG_BITSET, "BitSet"),
        CONSTANT(TAG_BLOCK, "Block"),
        CONSTANT(TAG_BODY, "Body"),
        CONSTANT(TAG_BRUSH, "Brush"),
        CONSTANT(TAG_BUS_ID, "BusId"),
        CONSTANT(TAG_CHECK, "Check"),
        CONSTANT(TAG_CHECKED, "Checked"),
        CONSTANT(TAG_CLASS, "Class"),
        CONSTANT(TAG_COLOR, "Color"),
        CONSTANT(TAG_CONF, "Conf"),
        CONSTANT(TAG_CONFIG, "Config"),
        CONSTANT(TAG_CONFIGNAME, "ConfigurationName"),
        CONSTANT(TAG_CONSTCONF, "ConstConf"),
        CONSTANT(TAG_COUNT, "Count"),
        CONSTANT(TAG_CREATIONDATE, "CreationDate"),
        CONSTANT(TAG_DATA, "Data"),
        CONSTANT(TAG_DEF_VAL, "DefVal"),
        CONSTANT(TAG_DEPENDENCIES, "Dependencies"),
        CONSTANT(TAG_DESCRIPTION, "Description"),
        CONSTANT(TAG_DEVICE, "Device"),
        CONSTANT(TAG_DEVICE_DB_DEF, "DeviceDbDef"),
        CONSTANT(TAG_DEVICE_DB_PARAM, "DeviceDbParam"),
        CONSTANT(TAG_DEVICE_DIR, "DeviceDir"),
        CONSTANT(TAG_DEVICE_ENTRYPOINT, "DeviceEntryPoint"),
        CONSTANT(TAG_DEVICE_LIST, "DeviceList"),
        CONSTANT(TAG_DEVICE_UUID, "DeviceUuid"),
        CONSTANT(TAG_DICTIONARY, "Dictionary"),
        CONSTANT(TAG_DIMENSION, "Dimension"),
        CONSTANT(TAG_DIR_NAME, "DirName"),
        CONSTANT(TAG_DRIVE_NO, "DriveNo"),
        CONSTANT(TAG_DROPBOX, "DropBox"),
        CONSTANT(TAG_ENTRYPOINT, "EntryPoint"),
        CONSTANT(TAG_ENUM, "Enum"),
        CONSTANT(TAG_ETHERCATMASTER, "EtherCatMaster"),
        CONSTANT(TAG_EXECUTIONPLUGIN, "ExecutionPlugin"),
        CONSTANT(TAG_FACTOR, "Factor"),
        CONSTANT(TAG_FAULTTEXT_FILE, "FaultTextFile"),
        CONSTANT(TAG_FILE, "File"),
        CONSTANT(TAG_FILES, "Files"),
        CONSTANT(TAG_FIRMWARE, "Firmware"),
        CONSTANT(TAG_FIRMWARES, "Firmwares"),
        CONSTANT(TAG_FPGA_FILES, "FPGA_FileNames"),
        CONSTANT(TAG_GROUP, "Group"),
        CONSTANT(TAG_HARDWARE, "Hardware"),
        CONSTANT(TAG_HARDWAREID, "HardwareId"),
        CONSTANT(TAG_HINT, "Hint"),
        CONSTANT(TAG_HOST, "Host"),
        CONSTANT(TAG_INCLUDE, "Include"),
        CONSTANT(TAG_ITEM, "Item"),
        CONSTANT(TAG_ITEMS, "Items"),
        CONSTANT(TAG_LINK, "Link"),
        CONSTANT(TAG_LOGIC, "Logic"),
        CONSTANT(TAG_LOGICS, "Logics"),
        CONSTANT(TAG_MAX_OBJ, "MaxObj"),
        CONSTANT(TAG_MAX_VAL, "MaxVal"),
        CONSTANT(TAG_MESSAGE, "Message"),
        CONSTANT(TAG_MIN_OBJ, "MinObj"),
        CONSTANT(TAG_MIN_VAL, "MinVal"),
        CONSTANT(TAG_NAME, "Name"),
        CONSTANT(TAG_OBJECT, "Object"),
        CONSTANT(TAG_OPCUA, "OpcUa"),
        CONSTANT(TAG_OPCUA_ENABLED, "OpcUaEnabled"),
        CONSTANT(TAG_OPCUA_FILES, "OpcUaFiles"),
        CONSTANT(TAG_OPTIONMODULE, "OptionModule"),
        CONSTANT(TAG_OPTIONS, "Options"),
        CONSTANT(TAG_PARAM, "Param"),
        CONSTANT(TAG_PARAM_DEF, "ParamDef"),
        CONSTANT(TAG_PARAMETERFILES, "ParameterFiles"),
        CONSTANT(TAG_PARAMETERS, "Parameters"),
        CONSTANT(TAG_PLUGINS, "Plugins"),
        CONSTANT(TAG_PLUGIN, "Plugin"),
        CONSTANT(TAG_PORT, "Port"),
        CONSTANT(TAG_PRIORITY, "Priority"),
        CONSTANT(TAG_PRODUCT_NAME, "ProductName"),
        CONSTANT(TAG_PRODUCT_ID, "ProductId"),
        CONSTANT(TAG_PRODUCT_VERSION, "ProductVersion"),
        CONSTANT(TAG_PRODUCT_REVISION, "ProductRevision"),
        CONSTANT(TAG_PROJECT, "Project"),
        CONSTANT(TAG_PROJECT_DIR, "ProjectDir"),
        CONSTANT(TAG_RADIO, "Radio"),
        CONSTANT(TAG_RW_BYTECOUNT, "ReadWriteByteCount"),
        CONSTANT(TAG_REQUIRED, "Required"),
        CONSTANT(TAG_REQUIREMENTS, "Requirements"),
        CONSTANT(TAG_REVISIONDATE, "RevisionDate"),
        CONSTANT(TAG_KD2_FIRMWARE, "KD2Firmware"),
        CONSTANT(TAG_KD2_LOGIC, "KD2Logic"),
        CONSTANT(TAG_KD2_PARAM, "KD2Param"),
        CONSTANT(TAG_SELECTION, "Selection"),
        CONSTANT(TAG_SERIAL, "Serial"),
        CONSTANT(TAG_SHARED_MEMORY, "SharedMemory"),
        CONSTANT(TAG_SIZE, "Size"),
        CONSTANT(TAG_SUB_DEVICE, "SubDevice"),
        CONSTANT(TAG_TYPE, "Type"),
        CONSTANT(TAG_UNCHECKED, "Unchecked"),
        CONSTANT(TAG_UNDEFINED, "Undefined"),
        CONSTANT(TAG_UNIT, "Unit"),
        CONSTANT(TAG_UNIT_FILE, "Unit"),
        CONSTANT(TAG_UNIT_DEF_FILE, "UnitDef"),
        CONSTANT(TAG_UNITNAME, "UnitName"),
        CONSTANT(TAG_UNITSCALE_MACHINE, "UnitScale"),
        CONSTANT(TAG_UNITSCALE_TYPE, "UnitScaleType"),
        CONSTANT(TAG_UNITSCALE_USER, "F_UnitScale"),
        CONSTANT(TAG_BRANKWERK, "Brankwerk"),
        CONSTANT(TAG_UUID, "Uuid"),
        CONSTANT(TAG_VERSION, "Version"),
        CONSTANT(TAG_VALUE, "Value"),
        CONSTANT(TAG_VISIBLE_VALUES, "VisibleValues"),
    };
}

Constants settingsKeywords()
{
    using namespace NVornXmlTags;
    return {
        CONSTANT(TAG_SETTINGS_TYPE_I8, "INT8"),
        CONSTANT(TAG_SETTINGS_TYPE_I16, "INT16"),
        CONSTANT(TAG_SETTINGS_TYPE_I32, "INT32"),
        CONSTANT(TAG_SETTINGS_TYPE_I64, "INT64"),
        CONSTANT(TAG_SETTINGS_TYPE_U8, "UINT8"),
        CONSTANT(TAG_SETTINGS_TYPE_U16, "UINT16"),
        CONSTANT(TAG_SETTINGS_TYPE_U32, "UINT32"),
        CONSTANT(TAG_SETTINGS_TYPE_U64, "UINT64"),
        CONSTANT(TAG_SETTINGS_TYPE_STR, "STRING"),
        CONSTANT(TAG_SETTINGS_TYPE_BOOL, "BOOLEAN"),
        CONSTANT(TAG_SETTINGS_TYPE_F64, "REAL64"),
        CONSTANT(TAG_SETTINGS_VAL_TRUE, "TRUE"),
        CONSTANT(TAG_SETTINGS_VAL_FALSE, "FALSE"),
        CONSTANT(TAG_COMPENSATION_HEADER, "HEADER"),
        CONSTANT(TAG_COMPENSATION_POINTLIST, "POINTLIST"),
        CONSTANT(TAG_COMPENSATION_POINT, "POINT"),
        CONSTANT(TAG_COMPENSATION_POSITION, "POSITION"),
        CONSTANT(TAG_COMPENSATION_ADJUST, "ADJUST"),
        CONSTANT(TAG_COMPENSATION_ERROR, "ERROR"),
        CONSTANT(TAG_COMPENSATION_MIN, "MIN"),
        CONSTANT(TAG_COMPENSATION_MAX, "MAX"),
    };
}

Constants attributeNames()
{
    using namespace NVornXmlTags;
    return {
        CONSTANT(ATTR_BLOCK, "block"),
        CONSTANT(ATTR_COUNT, "count"),
        CONSTANT(ATTR_EDIT, "edit"),
        CONSTANT(ATTR_ELEMENT_SIZE, "elementsize"),
        CONSTANT(ATTR_LANGUAGE, "language"),
        CONSTANT(ATTR_HARDWAREID, "hardwareId"),
        CONSTANT(ATTR_ID, "id"),
        CONSTANT(ATTR_INVERT, "invert"),
        CONSTANT(ATTR_NAME, "name"),
        CONSTANT(ATTR_MODE, "mode"),
        CONSTANT(ATTR_OFFSET, "offset"),
        CONSTANT(ATTR_POS, "pos"),
        CONSTANT(ATTR_REF_ID, "refId"),
        CONSTANT(ATTR_SERIAL_NO, "serialNo"),
        CONSTANT(ATTR_SIZE, "size"),
        CONSTANT(ATTR_SUBDIR, "subdir"),
        CONSTANT(ATTR_TYPE, "type"),
        CONSTANT(ATTR_VALUE, "value"),
        CONSTANT(ATTR_VERSION, "version"),
        CONSTANT(ATTR_SETTINGS_VERSION, "Version"),
        CONSTANT(ATTR_SETTINGS_UNIT, "unit"),
        CONSTANT(ATTR_SETTINGS_COMMENT, "comment"),
        CONSTANT(ATTR_LEVEL_READ, "r"),
        CONSTANT(ATTR_LEVEL_WRITE, "w"),
        CONSTANT(ATTR_LEVEL_VISIBLE, "v"),
        CONSTANT(ATTR_SETTINGS_TYPE, "type"),
    };
}

Constants attributeValues()
{
    using namespace NVornXmlTags;
    return {
        CONSTANT(VALUE_TRUE, "true"),         CONSTANT(VALUE_FALSE, "false"),
        CONSTANT(VALUE_UNSIGNED, "unsigned"), CONSTANT(VALUE_SIGNED, "signed"),
        CONSTANT(VALUE_FLOAT, "float"),       CONSTANT(VALUE_STRING, "string"),
        CONSTANT(VALUE_DEVICE, "Device"),     CONSTANT(VALUE_POWER_SUPPLY, "PowerSupply"),
        CONSTANT(VALUE_DRIVE, "Drive"),
    };
}

Constants fileNames()
{
    using namespace NvrFileNames;
    return {
        CONSTANT(DEFAULT_DEVICE_CONF_CURRENT, "configuration.3conf"),
        CONSTANT(DEFAULT_DEVICE_COMMAND_LINE, "commandline.3conf"),
        CONSTANT(DEVICE_SETTINGS_FILENAME, "settings.3conf"),
        CONSTANT(DEVICE_CONFIG_FILENAME, "DeviceConfiguration.3deco"),
        CONSTANT(CONFIG_DB_PLUNGINS_FILENAME, "cdbplugins.3xml"),
        CONSTANT(DEVICE_DB_DEVICE_DEF_FILENAME, "UnitParams.3pdef"),
        CONSTANT(DEVICE_DB_DEVICE_PARAM_FILENAME, "UnitParams.3param"),
        CONSTANT(DEVICE_DB_FIRMWARE_DEF_FILENAME, "FirmwareParams.3pdef"),
        CONSTANT(DEVICE_DB_FIRMWARE_PARAM_FILENAME, "FirmwareParams.3param"),
        CONSTANT(DEVICE_DB_FPGA_DEF_FILENAME, "FpgaParams.3pdef"),
        CONSTANT(DEVICE_DB_FPGA_PARAM_FILENAME, "FpgaParams.3param"),
        CONSTANT(OPTION_MODULE_DB_DEVICE_DEF_FILENAME, "options.3pdef"),
        CONSTANT(OPTION_MODULE_DEVICE_PARAM_FILENAME, "options.3param"),
        CONSTANT(DEVICE_INITIALISATION_DEF_FILENAME, "InitialisationParams.3pdef"),
        CONSTANT(DEVICE_INITIALISATION_PARAM_FILENAME, "InitialisationParams.3param"),
        CONSTANT(DEVICE_CONFIGURATION_DEF_FILENAME, "ConfigurationParams.3pdef"),
        CONSTANT(DEVICE_CONFIGURATION_PARAM_FILENAME, "ConfigurationParams.3param"),
        CONSTANT(DEFAULT_DEVICE_NETWORK_CONF, "network.conf"),
        CONSTANT(DEFAULT_DEVICE_WLAN_CONF, "wlan.conf"),
        CONSTANT(DEFAULT_DEVICE_USBNETWORK_CONF, "usbudhcpd.conf"),
        CONSTANT(DEFAULT_ETHERCAT_MASTER_CONF_FILENAME, "EC_BusConfiguration.xml"),
        CONSTANT(DEFAULT_MESSAGES_FILENAME, "KD3_Messages_int.xml"),
        CONSTANT(DEFAULT_ODICT_FILENAME, "VelkorDictionary_V1.xml"),
        CONSTANT(DEFAULT_KD3_ODICT_FILENAME, "KD3_Dictionary_V1.xml"),
        CONSTANT(DEFAULT_PARAMETER_IMGSOURCE_FILENAME, "parameterImageSource.xml"),
        CONSTANT(DEVICE_BACKUP_HARDWARE_FILENAME, "device.txt"),
        CONSTANT(DEVICE_BACKUP_HARDWARE_HOOK_FILENAME, "device_hook.txt"),
        CONSTANT(DEVICE_HISTORY_FILENAME, "history.log"),
        CONSTANT(DEVICE_OPCUA_NODESET_FILENAME, "kd3NodeSet.xml"),
        CONSTANT(DEVICE_OPCUA_SUBSYSTEM_FILENAME, "kd3SubSystem.xml"),
        CONSTANT(DEVICE_OS_RELEASE_FILENAME, "os-release"),
        CONSTANT(DEVICE_TIMEZONE_FILENAME, "timezone.conf"),
        CONSTANT(KC2_COMMON_PARAMETER_FILENAME, "parameter.xml"),
        CONSTANT(KC2_TYPEPLATE_FILENAME, "eeprom.xml"),
        CONSTANT(KD3_HW_FILENAME, "HW.xml"),
        CONSTANT(KD3_TYPEPLATE_FILEBASENAME, "typeplate"),
        CONSTANT(DEVICE_DB_DEVICE_BASEFILENAME, "UnitParams"),
        CONSTANT(DEVICE_DB_FIRMWARE_BASEFILENAME, "FirmwareParams"),
        CONSTANT(DEVICE_DB_FPGA_BASEFILENAME, "FpgaParams"),
        CONSTANT(OPTION_MODULE_DB_BASEFILENAME, "options"),
        CONSTANT(DEVICE_INITIALISATION_BASEFILENAME, "InitialisationParams"),
        CONSTANT(DEVICE_CONFIGURATION_BASEFILENAME, "ConfigurationParams"),
        CONSTANT(PARAMETER_VALUE_EXTENSION, "3param"),
        CONSTANT(PARAMETER_DEFINITION_EXTENSION, "3pdef"),
    };
}

Constants configurationNames()
{
    using namespace NDeviceConf;
    return {
        CONSTANT(FACTORY_CONFIGURATION_NAME, "setup"),
        CONSTANT(PLUGIN_NAME_ETHERCAT_MASTER, "CECatMaster"),
        CONSTANT(FACTORY_CONFIGURATION_PATTERN, ".*(setup){1,}.*"),
        CONSTANT(FAILSAFE_CONFIGURATION_PATTERN, ".*(failsafe){1,}.*"),
        CONSTANT(MOUNTERROR_CONFIGURATION_PATTERN, ".*(mount error){1,}.*"),
        CONSTANT(NAME_CHECK_PATTERN, ".*(setup|failsafe|mount error){1,}.*"),
        CONSTANT(NAME_INPUT_PATTERN, "([0-9a-zA-Z_\\-\\+]+)([\\(][0-9]+[\\)])?(\\t\\r|$)"),
    };
}

Constants deviceTextKeys()
{
    using namespace NvrnDeviceCore;
    return {
        CONSTANT(DEVICETXT_PRODUCT, "PRODUCT"),
        CONSTANT(DEVICETXT_PLATFORM, "PLATFORM"),
        CONSTANT(DEVICETXT_PTXDIST_VERSION, "PTXDIST_VERSION"),
        CONSTANT(DEVICETXT_PTXDIST_BSP, "PTXDIST_BSP"),
        CONSTANT(DEVICETXT_QT_VERSION, "QT_VERSION"),
        CONSTANT(DEVICETXT_PRODUCT_NAME, "PRODUCT_NAME"),
        CONSTANT(DEVICETXT_PRODUCT_ID, "PRODUCT_ID"),
        CONSTANT(DEVICETXT_HW_VERSION, "HW_VERSION"),
        CONSTANT(DEVICETXT_PRODUCT_VERSION, "PRODUCT_VERSION"),
        CONSTANT(DEVICETXT_PRODUCT_REVISION, "PRODUCT_REVISION"),
        CONSTANT(DEVICEHOOKTXT_REMOUNT_RW, "REMOUNT_RW"),
        CONSTANT(DEVICEHOOKTXT_PRE_UPDATE_SCRIPT, "PRE_UPDATE_SCRIPT"),
        CONSTANT(DEVICEHOOKTXT_POST_UPDATE_SCRIPT, "POST_UPDATE_SCRIPT"),
    };
}

Constants prefixes()
{
    using namespace NvrnGlobal;
    return {
        CONSTANT(PREFIX_CONFIG_PARAMS, "I"),        CONSTANT(PREFIX_DEVICE_CONFIGURATION, "C"),
        CONSTANT(PREFIX_DEVICE_DATABASE, "U"),      CONSTANT(PREFIX_EXTENSION_CONTROLLER, "S"),
        CONSTANT(PREFIX_FIRMWARE_DATABASE, "F"),    CONSTANT(PREFIX_LOGIC_DATABASE, "L"),
        CONSTANT(PREFIX_OPTIONMODUL_DATABASE, "O"), CONSTANT(PREFIX_PARAMETER, "D"),
    };
}

Constants all()
{
    return mimeTypes() + logLevels() + documentTypes() + elementNames() + settingsKeywords()
        + attributeNames() + attributeValues() + fileNames() + configurationNames()
        + deviceTextKeys() + prefixes();
}

// Read before main(): the constants are there as soon as the library is loaded.
const QString CopiedWhileLoading = NVornXmlTags::TAG_ROOT_DEVICECONFIG;

bool matches(const QString &pattern, const QString &text)
{
    return QRegExp(pattern).exactMatch(text);
}

std::unique_ptr<ICDeviceConfigurationFile> textForms()
{
    return std::unique_ptr<ICDeviceConfigurationFile>(ICDeviceConfigurationFile::instance(nullptr));
}

/** Whether the four octets are one bits followed by zero bits only. */
bool isMask(const QList<int> &octets)
{
    quint32 bits = 0;
    for (const int octet : octets) {
        bits = bits << 8 | static_cast<quint32>(octet);
    }
    const quint32 zeros = ~bits;
    return (zeros & (zeros + 1)) == 0;
}

QString dotted(const QList<int> &octets, int width = 0)
{
    QStringList texts;
    for (const int octet : octets) {
        texts << QStringLiteral("%1").arg(octet, width, 10, QLatin1Char('0'));
    }
    return texts.join(QLatin1Char('.'));
}

void acceptRow(const char *name, const QString &text)
{
    QTest::newRow(name) << text << true;
}

void rejectRow(const char *name, const QString &text)
{
    QTest::newRow(name) << text << false;
}

} // namespace

class tst_vocabulary : public QObject
{
    Q_OBJECT

private slots:
    void constantsExistOnce();
    void constant_data();
    void constant();
    void everyDeclaredConstantHasARow_data();
    void everyDeclaredConstantHasARow();
    void constantsAreThereBeforeMain();
    void unitAndUnitFileAreTwoConstants();
    void settingsVersionIsCapitalised();
    void prefixesAreTheEightLetters();

    void configurationExpression_data();
    void configurationExpression();
    void reservedName_data();
    void reservedName();
    void nameInput_data();
    void nameInput();

    void mac_data();
    void mac();
    void macInput_data();
    void macInput();
    void ipv4_data();
    void ipv4();
    void ipv4Octets();
    void ipv4Input_data();
    void ipv4Input();
    void subnet_data();
    void subnet();
    void subnetOctets();
    void ipv6_data();
    void ipv6();
    void ipv6Groups();

    void permissions_data();
    void permissions();
    void enumerationValue_data();
    void enumerationValue();
    void paramFileType_data();
    void paramFileType();
    void unknownParamFileType_data();
    void unknownParamFileType();
    void unknownParamFileText_data();
    void unknownParamFileText();
    void deviceClass_data();
    void deviceClass();
    void unknownDeviceClass_data();
    void unknownDeviceClass();
    void unknownDeviceClassText_data();
    void unknownDeviceClassText();
};

void tst_vocabulary::constant_data()
{
    QTest::addColumn<const QString *>("constant");
    QTest::addColumn<QString>("value");

    for (const Constant &row : all()) {
        QTest::newRow(row.name) << row.constant << row.value;
    }
}

void tst_vocabulary::constant()
{
    QFETCH(const QString *, constant);
    QFETCH(QString, value);

    QCOMPARE(*constant, value);
}

void tst_vocabulary::everyDeclaredConstantHasARow_data()
{
    QTest::addColumn<QString>("header");

    for (const char *header : {"NvrnGlobal.h", "NVornXmlTags.h", "NvrFileNames.h", "NDeviceConf.h",
                               "NvrnDeviceCore.h"}) {
        QTest::newRow(header) << QString::fromLatin1(header);
    }
}

void tst_vocabulary::everyDeclaredConstantHasARow()
{
    QFETCH(QString, header);

    // The address patterns are tested by what they accept.
    QSet<QString> tested = {u"MAC_PATTERN"_s,        u"MAC_INPUT_PATTERN"_s,   u"IPV4_PATTERN"_s,
                            u"IPV4_INPUT_PATTERN"_s, u"IPV4_SUBNET_PATTERN"_s, u"IPV6_PATTERN"_s};
    for (const Constant &row : all()) {
        tested.insert(QString::fromLatin1(row.name));
    }

    QFile file(Places::source("src/vocabulary/") + header);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    const QString text = QString::fromUtf8(file.readAll());

    int declared = 0;
    const QRegularExpression declaration(u"const QString ([A-Z0-9_]+);"_s);
    for (auto it = declaration.globalMatch(text); it.hasNext(); ++declared) {
        const QString name = it.next().captured(1);
        QVERIFY2(tested.contains(name), qPrintable(name));
    }
    QVERIFY(declared > 0);
}

void tst_vocabulary::constantsAreThereBeforeMain()
{
    QCOMPARE(CopiedWhileLoading, u"VornDeviceConfig"_s);
}

void tst_vocabulary::unitAndUnitFileAreTwoConstants()
{
    QCOMPARE(NVornXmlTags::TAG_UNIT, NVornXmlTags::TAG_UNIT_FILE);
    QVERIFY(&NVornXmlTags::TAG_UNIT != &NVornXmlTags::TAG_UNIT_FILE);
}

void tst_vocabulary::settingsVersionIsCapitalised()
{
    QVERIFY(NVornXmlTags::ATTR_SETTINGS_VERSION != NVornXmlTags::ATTR_VERSION);
    QCOMPARE(NVornXmlTags::ATTR_SETTINGS_VERSION.toLower(), NVornXmlTags::ATTR_VERSION);
}

void tst_vocabulary::prefixesAreTheEightLetters()
{
    QStringList letters;
    for (const Constant &row : prefixes()) {
        letters << *row.constant;
    }
    letters.sort();
    QCOMPARE(letters.join(QString()), u"CDFILOSU"_s);
}

void tst_vocabulary::configurationExpression_data()
{
    QTest::addColumn<QRegExp>("expression");
    QTest::addColumn<QString>("pattern");

    QTest::newRow("factory") << NDeviceConf::FACTORY_CONFIGURATION_REGEXP
                             << NDeviceConf::FACTORY_CONFIGURATION_PATTERN;
    QTest::newRow("failsafe") << NDeviceConf::FAILSAFE_CONFIGURATION_REGEXP
                              << NDeviceConf::FAILSAFE_CONFIGURATION_PATTERN;
    QTest::newRow("mount error") << NDeviceConf::MOUNTERROR_CONFIGURATION_REGEXP
                                 << NDeviceConf::MOUNTERROR_CONFIGURATION_PATTERN;
    QTest::newRow("name check") << NDeviceConf::NAME_CHECK_REGEXP
                                << NDeviceConf::NAME_CHECK_PATTERN;
}

void tst_vocabulary::configurationExpression()
{
    QFETCH(QRegExp, expression);
    QFETCH(QString, pattern);

    QVERIFY(expression.isValid());
    QCOMPARE(expression.pattern(), pattern);
    QCOMPARE(expression.caseSensitivity(), Qt::CaseSensitive);
    QCOMPARE(expression.patternSyntax(), QRegExp::RegExp);
}

void tst_vocabulary::reservedName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("factory");
    QTest::addColumn<bool>("failsafe");
    QTest::addColumn<bool>("mountError");

    const auto row = [](const char *name, const QString &text, bool factory, bool failsafe,
                        bool mountError) {
        QTest::newRow(name) << text << factory << failsafe << mountError;
    };
    row("factory name", NDeviceConf::FACTORY_CONFIGURATION_NAME, true, false, false);
    row("factory name twice", u"setupsetup"_s, true, false, false);
    row("factory name inside", u"my setup 2"_s, true, false, false);
    row("factory name at the end", u"presetup"_s, true, false, false);
    row("failsafe alone", u"failsafe"_s, false, true, false);
    row("failsafe inside", u"a-failsafe-b"_s, false, true, false);
    row("mount error alone", u"mount error"_s, false, false, true);
    row("mount error inside", u"(mount error 5)"_s, false, false, true);
    row("all three", u"setup failsafe mount error"_s, true, true, true);
    row("empty", u""_s, false, false, false);
    row("ordinary name", u"STD"_s, false, false, false);
    row("one letter short", u"setu"_s, false, false, false);
    row("first letter missing", u"etup"_s, false, false, false);
    row("capital letter", u"Setup"_s, false, false, false);
    row("capital failsafe", u"FAILSAFE"_s, false, false, false);
    row("failsafe in two words", u"fail safe"_s, false, false, false);
    row("mount error without blank", u"mounterror"_s, false, false, false);
    row("mount error with two blanks", u"mount  error"_s, false, false, false);
    row("mount error with an underscore", u"mount_error"_s, false, false, false);
}

void tst_vocabulary::reservedName()
{
    QFETCH(QString, text);
    QFETCH(bool, factory);
    QFETCH(bool, failsafe);
    QFETCH(bool, mountError);

    QCOMPARE(QRegExp(NDeviceConf::FACTORY_CONFIGURATION_REGEXP).exactMatch(text), factory);
    QCOMPARE(QRegExp(NDeviceConf::FAILSAFE_CONFIGURATION_REGEXP).exactMatch(text), failsafe);
    QCOMPARE(QRegExp(NDeviceConf::MOUNTERROR_CONFIGURATION_REGEXP).exactMatch(text), mountError);
    QCOMPARE(QRegExp(NDeviceConf::NAME_CHECK_REGEXP).exactMatch(text),
             factory || failsafe || mountError);
}

void tst_vocabulary::nameInput_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("letters", u"STD"_s);
    acceptRow("one digit", u"7"_s);
    acceptRow("every kind of character", u"aZ09_-+"_s);
    acceptRow("number in parentheses", u"STD(2)"_s);
    acceptRow("long number in parentheses", u"a(00123)"_s);
    acceptRow("tabulator and return at the end", u"STD\t\r"_s);
    acceptRow("parentheses, tabulator and return", u"STD(1)\t\r"_s);
    rejectRow("empty", u""_s);
    rejectRow("blank", u"my name"_s);
    rejectRow("leading blank", u" STD"_s);
    rejectRow("trailing blank", u"STD "_s);
    rejectRow("dot", u"a.b"_s);
    rejectRow("slash", u"a/b"_s);
    rejectRow("back-slash", u"a\\b"_s);
    rejectRow("umlaut", u"\u00e4"_s);
    rejectRow("parentheses alone", u"(2)"_s);
    rejectRow("empty parentheses", u"STD()"_s);
    rejectRow("letter in parentheses", u"STD(a)"_s);
    rejectRow("minus in parentheses", u"STD(-1)"_s);
    rejectRow("unclosed parenthesis", u"STD(2"_s);
    rejectRow("text behind parentheses", u"STD(2)x"_s);
    rejectRow("parentheses twice", u"STD(2)(3)"_s);
    rejectRow("return alone at the end", u"STD\r"_s);
    rejectRow("tabulator alone at the end", u"STD\t"_s);
    rejectRow("line feed at the end", u"STD\n"_s);
}

void tst_vocabulary::nameInput()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NDeviceConf::NAME_INPUT_PATTERN, text), expected);
}

void tst_vocabulary::mac_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("zeros", u"00:00:00:00:00:00"_s);
    acceptRow("lower case", u"00:1a:2b:3c:4d:5e"_s);
    acceptRow("upper case", u"FF:EE:DD:CC:BB:AA"_s);
    acceptRow("mixed case", u"aF:Fa:09:90:0a:A0"_s);
    rejectRow("empty", u""_s);
    rejectRow("five pairs", u"00:1a:2b:3c:4d"_s);
    rejectRow("seven pairs", u"00:1a:2b:3c:4d:5e:6f"_s);
    rejectRow("one digit short", u"00:1a:2b:3c:4d:5"_s);
    rejectRow("one digit too many", u"00:1a:2b:3c:4d:5e0"_s);
    rejectRow("three digits in the middle", u"00:1a:2bb:3c:4d:5e"_s);
    rejectRow("letter behind f", u"00:1a:2b:3c:4d:5g"_s);
    rejectRow("hyphens", u"00-1a-2b-3c-4d-5e"_s);
    rejectRow("one hyphen", u"00:1a:2b-3c:4d:5e"_s);
    rejectRow("no separators", u"001a2b3c4d5e"_s);
    rejectRow("dots", u"00.1a.2b.3c.4d.5e"_s);
    rejectRow("leading blank", u" 00:1a:2b:3c:4d:5e"_s);
    rejectRow("trailing blank", u"00:1a:2b:3c:4d:5e "_s);
    rejectRow("trailing colon", u"00:1a:2b:3c:4d:5e:"_s);
    rejectRow("leading colon", u":00:1a:2b:3c:4d:5e"_s);
    rejectRow("line feed at the end", u"00:1a:2b:3c:4d:5e\n"_s);
    rejectRow("second line", u"00:1a:2b:3c:4d:5e\nx"_s);
}

void tst_vocabulary::mac()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::MAC_PATTERN, text), expected);
    QCOMPARE(QRegExp(NvrnGlobal::MAC_PATTERN).indexIn(text) >= 0, expected);
}

void tst_vocabulary::macInput_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("colons", u"00:1a:2B:3c:4d:5e"_s);
    acceptRow("hyphens", u"00-1a-2B-3c-4d-5e"_s);
    acceptRow("no separators", u"001a2B3c4d5e"_s);
    rejectRow("empty", u""_s);
    rejectRow("both separators", u"00:1a:2b-3c-4d-5e"_s);
    rejectRow("one separator left out", u"00:1a:2b3c:4d:5e"_s);
    rejectRow("one separator alone", u"001a2b:3c4d5e"_s);
    rejectRow("eleven digits", u"001a2b3c4d5"_s);
    rejectRow("thirteen digits", u"001a2b3c4d5e6"_s);
    rejectRow("five pairs", u"00-1a-2b-3c-4d"_s);
    rejectRow("seven pairs", u"00-1a-2b-3c-4d-5e-6f"_s);
    rejectRow("letter behind f", u"001a2b3c4d5g"_s);
    rejectRow("blanks", u"00 1a 2b 3c 4d 5e"_s);
    rejectRow("trailing hyphen", u"00-1a-2b-3c-4d-5e-"_s);
}

void tst_vocabulary::macInput()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::MAC_INPUT_PATTERN, text), expected);
}

void tst_vocabulary::ipv4_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("zeros", u"0.0.0.0"_s);
    acceptRow("padded zeros", u"000.000.000.000"_s);
    acceptRow("highest", u"255.255.255.255"_s);
    acceptRow("private", u"192.168.1.10"_s);
    acceptRow("padded", u"192.168.001.010"_s);
    acceptRow("two digits with a zero", u"01.02.03.04"_s);
    acceptRow("around the borders", u"199.200.249.250"_s);
    rejectRow("empty", u""_s);
    rejectRow("three numbers", u"1.2.3"_s);
    rejectRow("five numbers", u"1.2.3.4.5"_s);
    rejectRow("first too high", u"256.0.0.0"_s);
    rejectRow("second too high", u"0.256.0.0"_s);
    rejectRow("third too high", u"0.0.256.0"_s);
    rejectRow("last too high", u"0.0.0.256"_s);
    rejectRow("260", u"260.0.0.0"_s);
    rejectRow("300", u"0.0.0.300"_s);
    rejectRow("four digits", u"0000.0.0.0"_s);
    rejectRow("missing number", u"1..2.3"_s);
    rejectRow("missing first number", u".1.2.3"_s);
    rejectRow("trailing dot", u"1.2.3.4."_s);
    rejectRow("missing last number", u"1.2.3."_s);
    rejectRow("leading blank", u" 1.2.3.4"_s);
    rejectRow("trailing blank", u"1.2.3.4 "_s);
    rejectRow("inner blank", u"1.2. 3.4"_s);
    rejectRow("minus", u"-1.2.3.4"_s);
    rejectRow("plus", u"+1.2.3.4"_s);
    rejectRow("commas", u"1,2,3,4"_s);
    rejectRow("any character for the dot", u"1a2a3a4"_s);
    rejectRow("letter", u"1.2.3.a"_s);
    rejectRow("hexadecimal", u"0x1.2.3.4"_s);
    rejectRow("Arabic digits", u"\u0661.\u0662.\u0663.\u0664"_s);
    rejectRow("port", u"1.2.3.4:80"_s);
    rejectRow("mask length", u"1.2.3.4/8"_s);
    rejectRow("line feed at the end", u"1.2.3.4\n"_s);
}

void tst_vocabulary::ipv4()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::IPV4_PATTERN, text), expected);
    QCOMPARE(QRegExp(NvrnGlobal::IPV4_PATTERN).indexIn(text) >= 0, expected);
    if (expected) {
        QCOMPARE(QHostAddress(text).protocol(), QAbstractSocket::IPv4Protocol);
    }
}

void tst_vocabulary::ipv4Octets()
{
    for (int number = 0; number < 1000; ++number) {
        for (int place = 0; place < 4; ++place) {
            QList<int> octets = {1, 2, 3, 4};
            octets[place] = number;
            const QString text = dotted(octets);
            QVERIFY2(matches(NvrnGlobal::IPV4_PATTERN, text) == (number <= 255), qPrintable(text));
            QVERIFY2(QHostAddress(text).isNull() == (number > 255), qPrintable(text));
        }
    }
}

void tst_vocabulary::ipv4Input_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("plain", u"192.168.1.10"_s);
    acceptRow("padded", u"192.168.001.010"_s);
    acceptRow("leading blank", u" 1.2.3.4"_s);
    acceptRow("trailing blanks", u"1.2.3.4  "_s);
    acceptRow("tabulator and line feed", u"\t1.2.3.4\n"_s);
    rejectRow("empty", u""_s);
    rejectRow("blanks alone", u"  "_s);
    rejectRow("inner blank", u"1.2. 3.4"_s);
    rejectRow("three numbers", u"1.2.3"_s);
    rejectRow("number too high", u"1.2.3.256"_s);
    rejectRow("five numbers", u"1.2.3.4.5"_s);
    rejectRow("two addresses", u"1.2.3.4 1.2.3.4"_s);
}

void tst_vocabulary::ipv4Input()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::IPV4_INPUT_PATTERN, text), expected);
}

void tst_vocabulary::subnet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    for (int length = 0; length <= 32; ++length) {
        const quint64 bits = (Q_UINT64_C(0xffffffff) << (32 - length)) & 0xffffffff;
        QList<int> octets;
        for (int shift = 24; shift >= 0; shift -= 8) {
            octets << static_cast<int>((bits >> shift) & 0xff);
        }
        QTest::addRow("/%d", length) << dotted(octets) << true;
        QTest::addRow("/%d padded", length) << dotted(octets, 3) << true;
    }
    acceptRow("zeros of different length", u"255.00.000.0"_s);
    rejectRow("empty", u""_s);
    rejectRow("gap in an octet", u"255.255.253.0"_s);
    rejectRow("ones behind zeros", u"255.0.255.0"_s);
    rejectRow("ones behind a partial octet", u"255.254.255.0"_s);
    rejectRow("two partial octets", u"255.128.128.0"_s);
    rejectRow("one bit at the end", u"0.0.0.1"_s);
    rejectRow("inverted", u"0.0.0.255"_s);
    rejectRow("low bits in an octet", u"255.255.127.0"_s);
    rejectRow("too high", u"256.0.0.0"_s);
    rejectRow("three numbers", u"255.255.0"_s);
    rejectRow("five numbers", u"255.255.0.0.0"_s);
    rejectRow("four digits", u"255.255.0000.0"_s);
    rejectRow("leading zero", u"0255.255.0.0"_s);
    rejectRow("leading blank", u" 255.255.0.0"_s);
    rejectRow("trailing blank", u"255.255.0.0 "_s);
    rejectRow("trailing dot", u"255.255.0.0."_s);
    rejectRow("any character for the dot", u"255a255a0a0"_s);
    rejectRow("line feed at the end", u"255.255.0.0\n"_s);
}

void tst_vocabulary::subnet()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::IPV4_SUBNET_PATTERN, text), expected);
    QCOMPARE(QRegExp(NvrnGlobal::IPV4_SUBNET_PATTERN).indexIn(text) >= 0, expected);
}

void tst_vocabulary::subnetOctets()
{
    const QRegExp pattern(NvrnGlobal::IPV4_SUBNET_PATTERN);
    const QList<int> octets = {0, 1, 127, 128, 191, 192, 224, 240, 248, 252, 254, 255};
    for (const int first : octets) {
        for (const int second : octets) {
            for (const int third : octets) {
                for (const int fourth : octets) {
                    const QList<int> mask = {first, second, third, fourth};
                    QVERIFY2(pattern.exactMatch(dotted(mask)) == isMask(mask),
                             qPrintable(dotted(mask)));
                }
            }
        }
    }
}

void tst_vocabulary::ipv6_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    acceptRow("eight groups", u"1:2:3:4:5:6:7:8"_s);
    acceptRow("four digits", u"2001:0db8:0000:0000:0000:0000:0000:0001"_s);
    acceptRow("upper case", u"FE80::ABCD:EF01"_s);
    acceptRow("unspecified", u"::"_s);
    acceptRow("loopback", u"::1"_s);
    acceptRow("prefix", u"2001:db8::"_s);
    acceptRow("shortened in the middle", u"2001:db8::8:800:200c:417a"_s);
    acceptRow("one group shortened", u"1:2:3::5:6:7:8"_s);
    acceptRow("first group shortened", u"::2:3:4:5:6:7:8"_s);
    acceptRow("last group shortened", u"1:2:3:4:5:6:7::"_s);
    acceptRow("mapped IPv4", u"::ffff:192.168.1.10"_s);
    acceptRow("compatible IPv4", u"::192.168.1.10"_s);
    acceptRow("six groups and IPv4", u"1:2:3:4:5:6:1.2.3.4"_s);
    acceptRow("five groups, shortened, IPv4", u"1:2:3:4:5::1.2.3.4"_s);
    acceptRow("highest IPv4", u"64:ff9b::255.255.255.255"_s);
    rejectRow("empty", u""_s);
    rejectRow("one colon", u":"_s);
    rejectRow("three colons", u":::"_s);
    rejectRow("one group", u"1"_s);
    rejectRow("seven groups", u"1:2:3:4:5:6:7"_s);
    rejectRow("nine groups", u"1:2:3:4:5:6:7:8:9"_s);
    rejectRow("eight groups and a shortening", u"1:2:3:4::5:6:7:8"_s);
    rejectRow("eight groups, shortened in front", u"::1:2:3:4:5:6:7:8"_s);
    rejectRow("eight groups, shortened at the end", u"1:2:3:4:5:6:7:8::"_s);
    rejectRow("two shortenings", u"1::2::3"_s);
    rejectRow("leading colon", u":1:2:3:4:5:6:7:8"_s);
    rejectRow("leading colon, seven groups", u":2:3:4:5:6:7:8"_s);
    rejectRow("trailing colon", u"1:2:3:4:5:6:7:"_s);
    rejectRow("trailing colon behind eight", u"1:2:3:4:5:6:7:8:"_s);
    rejectRow("five digits", u"12345::1"_s);
    rejectRow("letter behind f", u"::g"_s);
    rejectRow("seven groups and IPv4", u"1:2:3:4:5:6:7:1.2.3.4"_s);
    rejectRow("five groups and IPv4", u"1:2:3:4:5:1.2.3.4"_s);
    rejectRow("six groups, shortened, IPv4", u"1:2:3:4:5:6::1.2.3.4"_s);
    rejectRow("IPv4 number too high", u"::256.0.0.1"_s);
    rejectRow("IPv4 of three numbers", u"::1.2.3"_s);
    rejectRow("IPv4 in front", u"1.2.3.4::"_s);
    rejectRow("IPv4 in the middle", u"::1.2.3.4:5"_s);
    rejectRow("IPv4 alone", u"1.2.3.4"_s);
    rejectRow("brackets", u"[::1]"_s);
    rejectRow("mask length", u"::1/64"_s);
    rejectRow("leading blank", u" ::1"_s);
    rejectRow("trailing blank", u"::1 "_s);
    rejectRow("line feed at the end", u"::1\n"_s);
}

void tst_vocabulary::ipv6()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);

    QCOMPARE(matches(NvrnGlobal::IPV6_PATTERN, text), expected);
    QCOMPARE(QRegExp(NvrnGlobal::IPV6_PATTERN).indexIn(text) >= 0, expected);
    // Qt trims, and takes a shortening of no groups at the end.
    if (text == text.trimmed() && text != u"1:2:3:4:5:6:7:8::"_s) {
        QCOMPARE(QHostAddress(text).protocol() == QAbstractSocket::IPv6Protocol, expected);
    }
    QVERIFY(!matches(NvrnGlobal::IPV6_PATTERN, text + u"%eth0"_s));
}

void tst_vocabulary::ipv6Groups()
{
    const QStringList groups = {u"1"_s, u"22"_s, u"333"_s, u"4444"_s, u"abcd"_s,
                                u"E"_s, u"0"_s,  u"00f"_s, u"9999"_s, u"8"_s};
    for (const QString &ipv4 : {QString(), u"192.168.1.10"_s}) {
        const int ipv4Groups = ipv4.isEmpty() ? 0 : 2;
        for (int left = 0; left <= 9; ++left) {
            for (int right = -1; right <= 9; ++right) {
                const bool shortened = right >= 0;
                QStringList head = groups.mid(0, left);
                QStringList tail = groups.mid(0, qMax(right, 0));
                if (!ipv4.isEmpty()) {
                    (shortened ? tail : head) << ipv4;
                }
                const QString colon(QLatin1Char(':'));
                const QString text =
                    shortened ? head.join(colon) + u"::"_s + tail.join(colon) : head.join(colon);
                const int count = left + qMax(right, 0) + ipv4Groups;
                const bool expected = shortened ? count <= 7 : count == 8;
                QVERIFY2(matches(NvrnGlobal::IPV6_PATTERN, text) == expected, qPrintable(text));
                // Qt takes a shortening of no groups at the end.
                const bool emptyShortening = left >= 8 && right == 0 && ipv4.isEmpty();
                if (!emptyShortening) {
                    const QHostAddress address(text);
                    QVERIFY2((address.protocol() == QAbstractSocket::IPv6Protocol) == expected,
                             qPrintable(text));
                }
            }
        }
    }
}

void tst_vocabulary::permissions_data()
{
    QTest::addColumn<int>("permissions");
    QTest::addColumn<int>("mode");

    QTest::newRow("files") << static_cast<int>(NvrnGlobal::FILE_PERMISSIONS) << 0x6644;
    QTest::newRow("directories") << static_cast<int>(NvrnGlobal::PATH_PERMISSIONS) << 0x7755;
}

void tst_vocabulary::permissions()
{
    // One hexadecimal digit each for owner, user, group and others, as QFileDevice has them.
    QFETCH(int, permissions);
    QFETCH(int, mode);

    QCOMPARE(permissions, mode);
}

void tst_vocabulary::enumerationValue_data()
{
    QTest::addColumn<int>("enumerator");
    QTest::addColumn<int>("value");

    const auto row = [](const char *name, int enumerator, int value) {
        QTest::newRow(name) << enumerator << value;
    };
    row("undefined parameter file", NvrnGlobal::PARAM_FILE_UNDEFINED, -1);
    row("KC2 parameters", NvrnGlobal::PARAM_FILE_KC2_PARAMETERS, 0);
    row("KC2 compensation", NvrnGlobal::PARAM_FILE_KC2_COMPENSATION, 1);
    row("parameters", NvrnGlobal::PARAM_FILE_PARAMETERS, 2);
    row("configuration parameters", NvrnGlobal::PARAM_FILE_CONFIG_PARAMETERS, 3);
    row("device data base", NvrnGlobal::PARAM_FILE_DEVICE_DATABASE, 4);
    row("plug-in parameters", NvrnGlobal::PARAM_FILE_PLUGIN_PARAMETERS, 5);
    row("firmware data base", NvrnGlobal::PARAM_FILE_FIRMWARE_DATABASE, 6);
    row("logic data base", NvrnGlobal::PARAM_FILE_LOGIC_DATABASE, 7);
    row("OEM parameters", NvrnGlobal::PARAM_FILE_OEM_PARAMETERS, 8);
    row("motor parameters", NvrnGlobal::PARAM_FILE_MOTOR_PARAMETERS, 9);
    row("reserved", NvrnGlobal::PARAM_FILE_RESERVED, 10);
    row("option module data base", NvrnGlobal::PARAM_FILE_OPTION_MODULE_DATABASE, 11);
    row("disconnected", NvrnGlobal::CONNECTION_STATE_DISCONNECTED, 0);
    row("connected", NvrnGlobal::CONNECTION_STATE_CONNECTED, 1);
    row("unknown connection", NvrnGlobal::CONNECTION_STATE_UNKNOWN, 2);
    row("undefined device class", NDeviceConf::DEVICE_CLASS_UNDEFINED, 0);
    row("device class KC2", NDeviceConf::DEVICE_CLASS_KC2, 1);
    row("device class KD3", NDeviceConf::DEVICE_CLASS_KD3, 2);
    row("unknown element", NvrnDeviceCore::ELEMENT_UNKNOWN, 0);
    row("device element", NvrnDeviceCore::ELEMENT_DEVICE, 1);
    row("KD2 sub-device", NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE, 2);
    row("KD3 sub-device", NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE, 3);
}

void tst_vocabulary::enumerationValue()
{
    QFETCH(int, enumerator);
    QFETCH(int, value);

    QCOMPARE(enumerator, value);
    Q_STATIC_ASSERT(sizeof(NvrnGlobal::EParamFileType) == 4);
    Q_STATIC_ASSERT(sizeof(NvrnGlobal::EConnectionState) == 4);
    Q_STATIC_ASSERT(sizeof(NDeviceConf::EDeviceClass) == 4);
    Q_STATIC_ASSERT(sizeof(NvrnDeviceCore::EElementType) == 4);
}

void tst_vocabulary::paramFileType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << -1 << u"Undefined"_s;
    QTest::newRow("KC2 parameters") << 0 << u"KC2Parameters"_s;
    QTest::newRow("KC2 compensation") << 1 << u"KC2Compensation"_s;
    QTest::newRow("parameters") << 2 << u"VornParameters"_s;
    QTest::newRow("configuration parameters") << 3 << u"VornConfigParams"_s;
    QTest::newRow("device data base") << 4 << u"VornDeviceDatabase"_s;
    QTest::newRow("plug-in parameters") << 5 << u"VornPluginParameters"_s;
    QTest::newRow("firmware data base") << 6 << u"VornFirmwareDataBase"_s;
    QTest::newRow("logic data base") << 7 << u"VornLogicDataBase"_s;
    QTest::newRow("OEM parameters") << 8 << u"VornOemParameters"_s;
    QTest::newRow("motor parameters") << 9 << u"VornMotorParameters"_s;
    QTest::newRow("option module data base") << 11 << u"VornOptionModulDatabase"_s;
}

void tst_vocabulary::paramFileType()
{
    QFETCH(int, type);
    QFETCH(QString, text);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    QCOMPARE(forms->typeToStr(static_cast<NvrnGlobal::EParamFileType>(type)), text);
    QCOMPARE(static_cast<int>(forms->strToType(text)), type);
}

void tst_vocabulary::unknownParamFileType_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("below undefined") << -2;
    QTest::newRow("reserved") << 10;
    QTest::newRow("behind the last") << 12;
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_vocabulary::unknownParamFileType()
{
    QFETCH(int, type);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    QCOMPARE(forms->typeToStr(static_cast<NvrnGlobal::EParamFileType>(type)), u"Undefined"_s);
}

void tst_vocabulary::unknownParamFileText_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("lower case") << u"undefined"_s;
    QTest::newRow("wrong case") << u"vornParameters"_s;
    QTest::newRow("data base like the others") << u"VornDeviceDataBase"_s;
    QTest::newRow("leading blank") << u" KC2Parameters"_s;
    QTest::newRow("trailing blank") << u"KC2Parameters "_s;
    QTest::newRow("one letter short") << u"KC2Parameter"_s;
    QTest::newRow("number") << u"2"_s;
    QTest::newRow("another document type") << u"VornParamDefinition"_s;
}

void tst_vocabulary::unknownParamFileText()
{
    QFETCH(QString, text);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    QCOMPARE(static_cast<int>(forms->strToType(text)), -1);
}

void tst_vocabulary::deviceClass_data()
{
    QTest::addColumn<int>("deviceClass");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << 0 << u"Undefined"_s;
    QTest::newRow("KC2") << 1 << u"kc2"_s;
    QTest::newRow("KD3") << 2 << u"kd3"_s;
}

void tst_vocabulary::deviceClass()
{
    QFETCH(int, deviceClass);
    QFETCH(QString, text);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    const auto value = static_cast<NDeviceConf::EDeviceClass>(deviceClass);
    QCOMPARE(forms->deviceClassToStr(value), text);
    QCOMPARE(CDeviceElement::deviceClassString(value), text);
    QCOMPARE(static_cast<int>(forms->strToDeviceClass(text)), deviceClass);
}

void tst_vocabulary::unknownDeviceClass_data()
{
    QTest::addColumn<int>("deviceClass");

    QTest::newRow("below") << -1;
    QTest::newRow("behind the last") << 3;
}

void tst_vocabulary::unknownDeviceClass()
{
    QFETCH(int, deviceClass);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    const auto value = static_cast<NDeviceConf::EDeviceClass>(deviceClass);
    QCOMPARE(forms->deviceClassToStr(value), u"Undefined"_s);
    QCOMPARE(CDeviceElement::deviceClassString(value), u"Undefined"_s);
}

void tst_vocabulary::unknownDeviceClassText_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("upper case") << u"KD3"_s;
    QTest::newRow("capitalised") << u"Kc2"_s;
    QTest::newRow("another series") << u"kd2"_s;
    QTest::newRow("trailing blank") << u"kd3 "_s;
}

void tst_vocabulary::unknownDeviceClassText()
{
    QFETCH(QString, text);

    const auto file = textForms();
    const auto *forms = dynamic_cast<const CAbstractDeviceConfigurationFile *>(file.get());
    QVERIFY(forms);
    QCOMPARE(static_cast<int>(forms->strToDeviceClass(text)), 0);
}

void tst_vocabulary::constantsExistOnce()
{
    // What this program sees is the object in the library, not a copy of its own.
    QCOMPARE(dlsym(RTLD_DEFAULT, "_ZN12NVornXmlTags8TAG_HEADE"),
             static_cast<const void *>(&NVornXmlTags::TAG_HEAD));
    QCOMPARE(dlsym(RTLD_DEFAULT, "_ZN11NDeviceConf17NAME_CHECK_REGEXPE"),
             static_cast<const void *>(&NDeviceConf::NAME_CHECK_REGEXP));
}

REGISTER_APPLESS_TEST(tst_vocabulary)
#include "tst_vocabulary.moc"
