#include "commissioning/ConfigurationRules.h"

#include <QCoreApplication>

namespace ConfigurationRules {

namespace {

struct SRow {
    ERule rule;
    SConfigurationFinding::ESeverity severity;
    const char *id;
    const char *description;
};

constexpr auto ERROR = SConfigurationFinding::ERROR;
constexpr auto WARNING = SConfigurationFinding::WARNING;

constexpr SRow Rows[] = {
    {VERSION_MISSING, ERROR, "version-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document does not tell its version.")},
    {VERSION_INVALID, ERROR, "version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The version of the document is no version.")},
    {VERSION_OTHER, WARNING, "version-other",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document was created with a previous or a later version.")},
    {ELEMENT_UNKNOWN, ERROR, "element-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Nobody knows an element of that name.")},
    {ELEMENT_MISPLACED, ERROR, "element-misplaced",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands where it is not looked for, and is passed over.")},
    {ELEMENT_REPEATED, ERROR, "element-repeated",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands more than once, but only the first one counts.")},
    {ATTRIBUTE_UNKNOWN, ERROR, "attribute-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An element has an attribute that nobody reads.")},
    {TEXT_UNEXPECTED, ERROR, "text-unexpected",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Text stands between elements, where nobody reads it.")},
    {DATE_INVALID, ERROR, "date-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A date is none.")},
    {DATE_ORDER, WARNING, "date-order",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The configuration was revised before it was created.")},

    {FINDINGS_LEFT_OUT, ERROR, "findings-left-out",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "So much was found that the rest is left out.")},
    {DEVICE_MISSING, ERROR, "device-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document has no device.")},
    {DEVICE_CLASS_MISSING, ERROR, "device-class-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no class.")},
    {DEVICE_CLASS_UNDEFINED, ERROR, "device-class-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The class of the device is left open.")},
    {DEVICE_CLASS_UNKNOWN, ERROR, "device-class-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such class of devices.")},
    {DEVICE_NAME_MISSING, ERROR, "device-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no name.")},
    {CONFIG_MISSING, ERROR, "config-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no configuration block.")},
    {CONFIGURATION_NAME_MISSING, WARNING, "configuration-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The device does not tell the name of its configuration.")},
    {CONFIGURATION_NAME_EMPTY, ERROR, "configuration-name-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The name of the configuration is empty.")},
    {CONFIGURATION_NAME_RESERVED, ERROR, "configuration-name-reserved",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is one that the device keeps for itself.")},
    {CONFIGURATION_NAME_INVALID, ERROR, "configuration-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is not one that can be entered.")},
    {HARDWARE_ID_INVALID, ERROR, "hardware-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A hardware identity is none.")},
    {HARDWARE_ID_MISMATCH, ERROR, "hardware-id-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The hardware identity of a drive does not fit that of the device.")},

    {OPTION_INVALID, ERROR, "option-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A start option is none, or not separated by a blank.")},
    {OPTION_TWICE, ERROR, "option-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A start option stands more than once.")},
    {OPC_UA_FLAG_INVALID, ERROR, "opc-ua-flag-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server is neither true nor false.")},
    {OPC_UA_MISMATCH, ERROR, "opc-ua-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server and the option -opc contradict each other.")},

    {PARAMETER_TYPE_MISSING, ERROR, "parameter-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file has no type.")},
    {PARAMETER_TYPE_UNDEFINED, ERROR, "parameter-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a parameter file is left open.")},
    {PARAMETER_TYPE_UNKNOWN, ERROR, "parameter-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of parameter files.")},
    {PARAMETER_FILE_TWICE, ERROR, "parameter-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file stands more than once.")},
    {FPGA_FILE_TWICE, ERROR, "fpga-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An FPGA image stands more than once.")},
    {PLUGIN_NAME_MISSING, ERROR, "plugin-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no name.")},
    {PLUGIN_VERSION_MISSING, ERROR, "plugin-version-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no version.")},
    {PLUGIN_VERSION_INVALID, ERROR, "plugin-version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The version of a plug-in is not made of numbers and dots.")},
    {PLUGIN_TWICE, ERROR, "plugin-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in stands more than once.")},
    {PRIORITY_INVALID, ERROR, "priority-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The priority of a plug-in is no number, or out of range.")},
    {EXECUTION_PLUGIN_UNKNOWN, ERROR, "execution-plugin-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The plug-in that runs the application is not among the plug-ins.")},
    {ETHERCAT_FILE_MISSING, WARNING, "ethercat-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is the plug-in of the EtherCAT master, but no file for it.")},
    {ETHERCAT_PLUGIN_MISSING, WARNING, "ethercat-plugin-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is a file for the EtherCAT master, but not its plug-in.")},

    {DRIVE_TYPE_MISSING, ERROR, "drive-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no type.")},
    {DRIVE_TYPE_UNDEFINED, ERROR, "drive-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a drive is left open.")},
    {DRIVE_TYPE_UNKNOWN, ERROR, "drive-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of drives.")},
    {DRIVE_TYPE_MISMATCH, ERROR, "drive-type-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A drive that is not read as KD2 has a file of KD2 drives.")},
    {DRIVE_NUMBER_MISSING, ERROR, "drive-number-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no number.")},
    {DRIVE_NUMBER_INVALID, ERROR, "drive-number-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The number of a drive is no number, or out of range.")},
    {DRIVE_NUMBER_TWICE, ERROR, "drive-number-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same number.")},
    {DRIVE_NAME_MISSING, WARNING, "drive-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no name.")},
    {DRIVE_NAME_TWICE, ERROR, "drive-name-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same name.")},
    {BUS_ID_INVALID, ERROR, "bus-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The bus identifier of a drive is no number, or out of range.")},
    {BUS_ID_TWICE, WARNING, "bus-id-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same bus identifier.")},

    {FILE_NAME_MISSING, ERROR, "file-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no name.")},
    {FILE_NAME_INVALID, ERROR, "file-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of a file is a path, or has characters that no name has.")},
    {FILE_TWICE, ERROR, "file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file stands more than once.")},
    {DEVICE_FILE_CONFLICT, ERROR, "device-file-conflict",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Two files would overwrite each other on the device.")},
    {DEVICE_PATH_MISSING, WARNING, "device-path-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no directory on the device.")},
    {DEVICE_PATH_RELATIVE, WARNING, "device-path-relative",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device does not begin with a slash.")},
    {DEVICE_PATH_CLIMBS, ERROR, "device-path-climbs",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device leads upwards with \"..\".")},
    {DEVICE_PATH_OUTSIDE, ERROR, "device-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device lies outside the device's trees.")},
    {DEVICE_PATH_OTHER_CONFIGURATION, WARNING, "device-path-other-configuration",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device belongs to another configuration.")},
    {PROJECT_PATH_ABSOLUTE, ERROR, "project-path-absolute",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is absolute, and holds on one computer only.")},
    {PROJECT_PATH_OUTSIDE, ERROR, "project-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project leads out of the project.")},
    {PROJECT_PATH_IGNORED, ERROR, "project-path-ignored",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is not below that of the device, and is removed "
                       "when the device is read.")},

    {PROJECT_FILE_MISSING, ERROR, "project-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file is not in the project.")},
    {PROJECT_FILE_OTHER_CASE, ERROR, "project-file-other-case",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file is in the project with capital and small letters interchanged.")},
    {PROJECT_FILE_OUTSIDE, ERROR, "project-file-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A symbolic link leads out of the project.")},
    {PROJECT_FILE_NOT_REGULAR, ERROR, "project-file-not-regular",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "What is in the project is no regular file.")},
    {PROJECT_FILE_UNREADABLE, ERROR, "project-file-unreadable",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project cannot be read.")},
    {PROJECT_FILE_EMPTY, ERROR, "project-file-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project is empty.")},
    {PROJECT_FILE_CHANGED, ERROR, "project-file-changed",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file in the project is not the one that the manifest tells.")},
    {MANIFEST_INVALID, ERROR, "manifest-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The manifest of the project cannot be read.")},
};

static_assert(sizeof Rows / sizeof Rows[0] == RULE_COUNT, "Each rule has a row.");

constexpr bool isInOrder()
{
    int expected = 0;
    for (const SRow &row : Rows) {
        if (row.rule != expected) {
            return false;
        }
        ++expected;
    }
    return true;
}
static_assert(isInOrder(), "A rule is the index of its row.");

} // namespace

QString id(ERule rule)
{
    return QString::fromLatin1(Rows[rule].id);
}

SConfigurationFinding::ESeverity severity(ERule rule)
{
    return Rows[rule].severity;
}

QString description(ERule rule)
{
    return QCoreApplication::translate("CConfigurationCheck", Rows[rule].description);
}

} // namespace ConfigurationRules
