#include "commissioning/ConfigurationRules.h"

#include <QCoreApplication>

namespace ConfigurationRules {

namespace {

struct SRow {
    ERule rule;
    const char *id;
    SConfigurationFinding::ESeverity severity;
    const char *description;
};

constexpr auto ERROR = SConfigurationFinding::ERROR;
constexpr auto WARNING = SConfigurationFinding::WARNING;

constexpr SRow Rows[] = {
    {VERSION_MISSING, "version-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document does not tell its version.")},
    {VERSION_INVALID, "version-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The version of the document is no version.")},
    {VERSION_OTHER, "version-other", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document was created with a previous or a later version.")},
    {ELEMENT_UNKNOWN, "element-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Nobody knows an element of that name.")},
    {ELEMENT_MISPLACED, "element-misplaced", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands where it is not looked for, and is passed over.")},
    {ELEMENT_REPEATED, "element-repeated", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands more than once, but only the first one counts.")},
    {ATTRIBUTE_UNKNOWN, "attribute-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An element has an attribute that nobody reads.")},
    {TEXT_UNEXPECTED, "text-unexpected", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Text stands between elements, where nobody reads it.")},
    {DATE_INVALID, "date-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A date is none.")},
    {DATE_ORDER, "date-order", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The configuration was revised before it was created.")},

    {FINDINGS_LEFT_OUT, "findings-left-out", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "So much was found that the rest is left out.")},
    {DEVICE_MISSING, "device-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document has no device.")},
    {DEVICE_CLASS_MISSING, "device-class-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no class.")},
    {DEVICE_CLASS_UNDEFINED, "device-class-undefined", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The class of the device is left open.")},
    {DEVICE_CLASS_UNKNOWN, "device-class-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such class of devices.")},
    {DEVICE_NAME_MISSING, "device-name-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no name.")},
    {CONFIG_MISSING, "config-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no configuration block.")},
    {CONFIGURATION_NAME_MISSING, "configuration-name-missing", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The device does not tell the name of its configuration.")},
    {CONFIGURATION_NAME_EMPTY, "configuration-name-empty", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The name of the configuration is empty.")},
    {CONFIGURATION_NAME_RESERVED, "configuration-name-reserved", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is one that the device keeps for itself.")},
    {CONFIGURATION_NAME_INVALID, "configuration-name-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is not one that can be entered.")},
    {HARDWARE_ID_INVALID, "hardware-id-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A hardware identity is none.")},
    {HARDWARE_ID_MISMATCH, "hardware-id-mismatch", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The hardware identity of a drive does not fit that of the device.")},

    {OPTION_INVALID, "option-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A start option is none, or not separated by a blank.")},
    {OPTION_TWICE, "option-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A start option stands more than once.")},
    {OPC_UA_FLAG_INVALID, "opc-ua-flag-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server is neither true nor false.")},
    {OPC_UA_MISMATCH, "opc-ua-mismatch", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server and the option -opc contradict each other.")},

    {PARAMETER_TYPE_MISSING, "parameter-type-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file has no type.")},
    {PARAMETER_TYPE_UNDEFINED, "parameter-type-undefined", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a parameter file is left open.")},
    {PARAMETER_TYPE_UNKNOWN, "parameter-type-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of parameter files.")},
    {PARAMETER_FILE_TWICE, "parameter-file-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file stands more than once.")},
    {FPGA_FILE_TWICE, "fpga-file-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An FPGA image stands more than once.")},
    {PLUGIN_NAME_MISSING, "plugin-name-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no name.")},
    {PLUGIN_VERSION_MISSING, "plugin-version-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no version.")},
    {PLUGIN_VERSION_INVALID, "plugin-version-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The version of a plug-in is not made of numbers and dots.")},
    {PLUGIN_TWICE, "plugin-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in stands more than once.")},
    {PRIORITY_INVALID, "priority-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The priority of a plug-in is no number, or out of range.")},
    {EXECUTION_PLUGIN_UNKNOWN, "execution-plugin-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The plug-in that runs the application is not among the plug-ins.")},
    {ETHERCAT_FILE_MISSING, "ethercat-file-missing", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is the plug-in of the EtherCAT master, but no file for it.")},
    {ETHERCAT_PLUGIN_MISSING, "ethercat-plugin-missing", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is a file for the EtherCAT master, but not its plug-in.")},

    {DRIVE_TYPE_MISSING, "drive-type-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no type.")},
    {DRIVE_TYPE_UNDEFINED, "drive-type-undefined", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a drive is left open.")},
    {DRIVE_TYPE_UNKNOWN, "drive-type-unknown", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of drives.")},
    {DRIVE_TYPE_MISMATCH, "drive-type-mismatch", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A drive that is not read as KD2 has a file of KD2 drives.")},
    {DRIVE_NUMBER_MISSING, "drive-number-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no number.")},
    {DRIVE_NUMBER_INVALID, "drive-number-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The number of a drive is no number, or out of range.")},
    {DRIVE_NUMBER_TWICE, "drive-number-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same number.")},
    {DRIVE_NAME_MISSING, "drive-name-missing", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no name.")},
    {DRIVE_NAME_TWICE, "drive-name-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same name.")},
    {BUS_ID_INVALID, "bus-id-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The bus identifier of a drive is no number, or out of range.")},
    {BUS_ID_TWICE, "bus-id-twice", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same bus identifier.")},

    {FILE_NAME_MISSING, "file-name-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no name.")},
    {FILE_NAME_INVALID, "file-name-invalid", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of a file is a path, or has characters that no name has.")},
    {FILE_TWICE, "file-twice", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file stands more than once.")},
    {DEVICE_FILE_CONFLICT, "device-file-conflict", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Two files would overwrite each other on the device.")},
    {DEVICE_PATH_MISSING, "device-path-missing", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no directory on the device.")},
    {DEVICE_PATH_RELATIVE, "device-path-relative", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device does not begin with a slash.")},
    {DEVICE_PATH_CLIMBS, "device-path-climbs", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device leads upwards with \"..\".")},
    {DEVICE_PATH_OUTSIDE, "device-path-outside", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device lies outside the device's trees.")},
    {DEVICE_PATH_OTHER_CONFIGURATION, "device-path-other-configuration", WARNING,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device belongs to another configuration.")},
    {PROJECT_PATH_ABSOLUTE, "project-path-absolute", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is absolute, and holds on one computer only.")},
    {PROJECT_PATH_OUTSIDE, "project-path-outside", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project leads out of the project.")},
    {PROJECT_PATH_IGNORED, "project-path-ignored", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is not below that of the device, and is removed "
                       "when the device is read.")},

    {PROJECT_FILE_MISSING, "project-file-missing", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file is not in the project.")},
    {PROJECT_FILE_OTHER_CASE, "project-file-other-case", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file is in the project with capital and small letters interchanged.")},
    {PROJECT_FILE_OUTSIDE, "project-file-outside", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A symbolic link leads out of the project.")},
    {PROJECT_FILE_NOT_REGULAR, "project-file-not-regular", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "What is in the project is no regular file.")},
    {PROJECT_FILE_UNREADABLE, "project-file-unreadable", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project cannot be read.")},
    {PROJECT_FILE_EMPTY, "project-file-empty", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project is empty.")},
    {PROJECT_FILE_CHANGED, "project-file-changed", ERROR,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file in the project is not the one that the manifest tells.")},
    {MANIFEST_INVALID, "manifest-invalid", ERROR,
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
