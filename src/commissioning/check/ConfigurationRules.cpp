#include "commissioning/check/ConfigurationRules.h"

#include <QCoreApplication>

namespace ConfigurationRules {

namespace {

struct SRow {
    ERule rule;
    SConfigurationFinding::ESeverity severity;
    const char *id;
    const char *description;
    const char *hint;
};

constexpr auto ERROR = SConfigurationFinding::ERROR;
constexpr auto WARNING = SConfigurationFinding::WARNING;

constexpr SRow Rows[] = {
    {VERSION_MISSING, ERROR, "version-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The version of the document is missing."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document is read as version 1.0; add 'version=\"1.0\"' to its first "
                       "element, or save it with a tool.")},
    {VERSION_INVALID, ERROR, "version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The version of the document is not valid."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A version consists of one to three numbers separated by dots; the document "
                       "is read as version 1.0.")},
    {VERSION_OTHER, WARNING, "version-other",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document was created with a previous or a later version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document is read as version 1.0. Check that this version knows "
                       "everything in it, then save it again.")},
    {ELEMENT_UNKNOWN, ERROR, "element-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unknown element."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Correct the name, or remove the element. Names are case-sensitive.")},
    {ELEMENT_MISPLACED, ERROR, "element-misplaced",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The element is in the wrong place and is ignored."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Move the element to the place that the finding names.")},
    {ELEMENT_REPEATED, ERROR, "element-repeated",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The element occurs more than once; only the first one is read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Keep the element that is meant, and remove the others.")},
    {ATTRIBUTE_UNKNOWN, ERROR, "attribute-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unknown attribute."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove the attribute, or correct its name. Names that belong to XML "
                       "itself, such as 'xmlns' and 'xml:lang', are not reported.")},
    {TEXT_UNEXPECTED, ERROR, "text-unexpected",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unexpected text between elements; it is ignored."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove the text, or move it into the element for which it is meant.")},
    {DATE_INVALID, ERROR, "date-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The date is not valid."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write year, month and day: '2026-09-14'. An empty date is allowed and "
                       "means that no date is set.")},
    {DATE_ORDER, WARNING, "date-order",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The revision date is earlier than the creation date."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Correct the wrong date; the two dates may be interchanged.")},

    {FINDINGS_LEFT_OUT, ERROR, "findings-left-out",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Too many findings; the remaining ones are left out."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Correct the reported findings, then check again: at most 100,000 findings "
                       "are reported for one document.")},
    {DEVICE_MISSING, ERROR, "device-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document has no device."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "A configuration without a device cannot be commissioned; add the element 'Device'.")},
    {DEVICE_CLASS_MISSING, ERROR, "device-class-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device class is missing."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write 'kc2' or 'kd3'.")},
    {DEVICE_CLASS_UNDEFINED, ERROR, "device-class-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device class is 'Undefined'."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write 'kc2' or 'kd3'.")},
    {DEVICE_CLASS_UNKNOWN, ERROR, "device-class-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unknown device class."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write 'kc2' or 'kd3' in lower case; anything else is read as 'Undefined'.")},
    {DEVICE_NAME_MISSING, ERROR, "device-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no name."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give the device a name. The directory of the device in the project has the same name.")},
    {CONFIG_MISSING, ERROR, "config-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no configuration block."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Add the element 'Config'; without it the device has no options, files or plug-ins.")},
    {CONFIGURATION_NAME_MISSING, WARNING, "configuration-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The configuration name is missing."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name is read as 'STD'. Add the name that is meant.")},
    {CONFIGURATION_NAME_EMPTY, ERROR, "configuration-name-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The configuration name is empty."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give the configuration a name: the directories on the device are named after it.")},
    {CONFIGURATION_NAME_RESERVED, ERROR, "configuration-name-reserved",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The configuration name is reserved by the device."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Choose a name without 'setup', 'failsafe' and 'mount error'.")},
    {CONFIGURATION_NAME_INVALID, ERROR, "configuration-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The configuration name is not valid."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Use letters from A to Z, digits, '_', '-' and '+'; a number in parentheses may follow.")},
    {HARDWARE_ID_INVALID, ERROR, "hardware-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The hardware identity is not valid."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'PREFIX:NAME:PLATFORM:VERSION:REVISION'; the last three are numbers "
                       "from 0 to 65535. An invalid hardware identity is read as empty.")},
    {HARDWARE_ID_MISMATCH, ERROR, "hardware-id-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The hardware identity of the drive does not match that of the device."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "A drive must have the prefix, name and platform of its device; version and revision may "
         "differ. Check whether the drive was copied from another device.")},

    {OPTION_INVALID, ERROR, "option-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The start option is not valid, or not separated by a space."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An option begins with a hyphen; the words after it are its argument. "
                       "Separate options by spaces, not by line breaks.")},
    {OPTION_TWICE, ERROR, "option-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The start option occurs more than once."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Remove all but one. The same option with different arguments is not reported.")},
    {OPC_UA_FLAG_INVALID, ERROR, "opc-ua-flag-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server is neither 'true' nor 'false'."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'true' or 'false' in lower case; anything else is read as 'false'.")},
    {OPC_UA_MISMATCH, ERROR, "opc-ua-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server and the option -opc contradict each other."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the option '-opc', or disable the server.")},

    {PARAMETER_TYPE_MISSING, ERROR, "parameter-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The parameter file has no type."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Specify the type with the attribute 'type'; it determines the directory of the file.")},
    {PARAMETER_TYPE_UNDEFINED, ERROR, "parameter-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of the parameter file is 'Undefined'."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Specify the type; it determines the directory of the file.")},
    {PARAMETER_TYPE_UNKNOWN, ERROR, "parameter-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unknown parameter file type."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Correct the type; it is read as 'Undefined'. Types are case-sensitive.")},
    {PARAMETER_FILE_TWICE, ERROR, "parameter-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The parameter file is listed more than once."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Remove all but one. Files of the same name but of different types are allowed.")},
    {FPGA_FILE_TWICE, ERROR, "fpga-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The FPGA image is listed more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove all but one; the first image is the active one.")},
    {PLUGIN_NAME_MISSING, ERROR, "plugin-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The plug-in has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Name the plug-in, or remove the entry.")},
    {PLUGIN_VERSION_MISSING, ERROR, "plugin-version-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The plug-in has no version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Specify the version; the file name ends with it.")},
    {PLUGIN_VERSION_INVALID, ERROR, "plugin-version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The version of the plug-in does not consist of numbers and dots."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write numbers separated by dots, such as '1.3'; the file name ends with the version.")},
    {PLUGIN_TWICE, ERROR, "plugin-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The plug-in is listed more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Remove all but one.")},
    {PRIORITY_INVALID, ERROR, "priority-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The priority of the plug-in is not a number, or is out of range."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from -2147483648 to 2147483647; otherwise the plug-in is "
                       "read without a priority.")},
    {EXECUTION_PLUGIN_UNKNOWN, ERROR, "execution-plugin-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The execution plug-in is not in the list of plug-ins."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the plug-in, or choose one from the list.")},
    {ETHERCAT_FILE_MISSING, WARNING, "ethercat-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The EtherCAT master plug-in has no bus configuration file."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the bus configuration, or remove the plug-in.")},
    {ETHERCAT_PLUGIN_MISSING, WARNING, "ethercat-plugin-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The bus configuration file has no EtherCAT master plug-in."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Add the plug-in 'CECatMaster', or remove the file.")},

    {DRIVE_TYPE_MISSING, ERROR, "drive-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive has no type."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write 'KD2_drive' or 'KD3_drive'; without a type the drive is read as 'KD3_drive'.")},
    {DRIVE_TYPE_UNDEFINED, ERROR, "drive-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of the drive is 'Undefined'."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'KD2_drive' or 'KD3_drive'; the drive is read as 'KD3_drive'.")},
    {DRIVE_TYPE_UNKNOWN, ERROR, "drive-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Unknown drive type."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'KD2_drive' or 'KD3_drive'; anything else, also in lower case, is "
                       "read as 'KD3_drive'.")},
    {DRIVE_TYPE_MISMATCH, ERROR, "drive-type-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file for KD2 drives belongs to a drive of another type."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove the file, or change the type of the drive to 'KD2_drive'.")},
    {DRIVE_NUMBER_MISSING, ERROR, "drive-number-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive number is missing."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write a number from 0 to 254; otherwise the drive gets the next free number.")},
    {DRIVE_NUMBER_INVALID, ERROR, "drive-number-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The drive number is not a number, or is out of range."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from 0 to 254; otherwise the drive gets the next free "
                       "number. 255 means that no number is assigned.")},
    {DRIVE_NUMBER_TWICE, ERROR, "drive-number-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same drive number."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Give each drive a unique number; otherwise all drives but the first get "
                       "the next free numbers.")},
    {DRIVE_NAME_MISSING, WARNING, "drive-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Name the drive; otherwise it is named after its number.")},
    {DRIVE_NAME_TWICE, ERROR, "drive-name-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Give each drive a unique name.")},
    {BUS_ID_INVALID, ERROR, "bus-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The bus identifier of the drive is not a number, or is out of range."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from 0 to 4294967295; anything else is read as 0, which "
                       "means that no bus identifier is assigned.")},
    {BUS_ID_TWICE, WARNING, "bus-id-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same bus identifier."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Check whether both drives are on the same fieldbus; drives on one fieldbus "
                       "need different bus identifiers.")},

    {FILE_NAME_MISSING, ERROR, "file-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Name the file, or remove the entry.")},
    {FILE_NAME_INVALID, ERROR, "file-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The file name is a path, or contains invalid characters."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write the name without a directory; directories have elements of their "
                       "own. A line break in the element is part of the name.")},
    {FILE_TWICE, ERROR, "file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file is listed more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Remove all but one.")},
    {DEVICE_FILE_CONFLICT, ERROR, "device-file-conflict",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Two files would overwrite each other on the device."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give one of the files another name or another directory on the device. Parameter files, "
         "FPGA images, plug-ins and the configuration itself also have places on the device.")},
    {DEVICE_PATH_MISSING, WARNING, "device-path-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file has no directory on the device."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Specify the directory of the file on the device.")},
    {DEVICE_PATH_RELATIVE, WARNING, "device-path-relative",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The directory on the device does not begin with a slash."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Begin the directory with a slash; it is read as if it began with one.")},
    {DEVICE_PATH_CLIMBS, ERROR, "device-path-climbs",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The directory on the device contains '..'."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write the directory that is meant without '..'.")},
    {DEVICE_PATH_OUTSIDE, ERROR, "device-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The directory on the device is outside the directory trees of the device."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Choose a directory below '/velkor/' or '/opt/velkor/'.")},
    {DEVICE_PATH_OTHER_CONFIGURATION, WARNING, "device-path-other-configuration",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The directory on the device belongs to another configuration."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "If the configuration was renamed, change the directory accordingly.")},
    {PROJECT_PATH_ABSOLUTE, ERROR, "project-path-absolute",
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "The directory in the project is an absolute path, which is valid on one computer only."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write the directory relative to the project.")},
    {PROJECT_PATH_OUTSIDE, ERROR, "project-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The directory in the project is outside the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Move the file into the project.")},
    {PROJECT_PATH_IGNORED, ERROR, "project-path-ignored",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The directory in the project is not below the directory of the device; it "
                       "is removed when the device is read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Move the object dictionary or the fault texts below the directory that has "
                       "the name of the device.")},

    {PROJECT_FILE_MISSING, ERROR, "project-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file is not in the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Put the file into the project, or correct its name or directory. The "
                       "directory of a parameter file, an FPGA image or a plug-in follows from its "
                       "kind; 'vrndevice place' shows it.")},
    {PROJECT_FILE_OTHER_CASE, ERROR, "project-file-other-case",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The file name in the project differs in upper and lower case."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Use the same file name in the project and in the configuration; file names "
                       "on the device are case-sensitive.")},
    {PROJECT_FILE_OUTSIDE, ERROR, "project-file-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A symbolic link leads out of the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Replace the symbolic link with the file; a copy of the project does not "
                       "contain what is outside.")},
    {PROJECT_FILE_NOT_REGULAR, ERROR, "project-file-not-regular",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file in the project is not a regular file."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Replace the directory, pipe or device of that name with a regular file.")},
    {PROJECT_FILE_UNREADABLE, ERROR, "project-file-unreadable",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file in the project cannot be read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Check the permissions of the file.")},
    {PROJECT_FILE_EMPTY, ERROR, "project-file-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file in the project is empty."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the content of the file, or remove the entry.")},
    {PROJECT_FILE_CHANGED, ERROR, "project-file-changed",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The file in the project differs from the manifest."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Restore the file with the size and the SHA-256 checksum in "
                       "'manifest.json', or create the manifest again.")},
    {MANIFEST_INVALID, ERROR, "manifest-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The manifest of the project cannot be read."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Create the manifest again. Until then the files are not compared with it.")},
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

QString hint(ERule rule)
{
    return QCoreApplication::translate("CConfigurationCheck", Rows[rule].hint);
}

} // namespace ConfigurationRules
