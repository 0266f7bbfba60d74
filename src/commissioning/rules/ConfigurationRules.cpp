#include "commissioning/rules/ConfigurationRules.h"

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
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document does not tell its version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document is read as one of version 1.0; write 'version=\"1.0\"', or "
                       "save it with a tool.")},
    {VERSION_INVALID, ERROR, "version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The version of the document is no version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A version is one to three numbers with dots between them; the document is "
                       "read as one of version 1.0.")},
    {VERSION_OTHER, WARNING, "version-other",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document was created with a previous or a later version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The document is read as one of version 1.0: look whether everything in it "
                       "is known here, then save it anew.")},
    {ELEMENT_UNKNOWN, ERROR, "element-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Nobody knows an element of that name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Mend the name, or remove the element. Capital and small letters matter.")},
    {ELEMENT_MISPLACED, ERROR, "element-misplaced",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands where it is not looked for, and is passed over."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Move the element to where it is looked for; the finding tells where that is.")},
    {ELEMENT_REPEATED, ERROR, "element-repeated",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An element stands more than once, but only the first one counts."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove all but the one that is meant: it is the first one that is read.")},
    {ATTRIBUTE_UNKNOWN, ERROR, "attribute-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An element has an attribute that nobody reads."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove the attribute, or mend its name. Names that belong to XML itself, "
                       "like 'xmlns' and 'xml:lang', are no findings.")},
    {TEXT_UNEXPECTED, ERROR, "text-unexpected",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Text stands between elements, where nobody reads it."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove the text, or put it into the element for which it is meant.")},
    {DATE_INVALID, ERROR, "date-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A date is none."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write year, month and day: '2026-09-14'. An empty date is none, and allowed.")},
    {DATE_ORDER, WARNING, "date-order",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The configuration was revised before it was created."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "One of the two dates is wrong, or they are interchanged.")},

    {FINDINGS_LEFT_OUT, ERROR, "findings-left-out",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "So much was found that the rest is left out."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Mend what is told, then check again: of one document 100,000 findings are "
                       "told at most.")},
    {DEVICE_MISSING, ERROR, "device-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The document has no device."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Without a device there is nothing to be commissioned; add the element 'Device'.")},
    {DEVICE_CLASS_MISSING, ERROR, "device-class-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no class."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write 'kc2' or 'kd3'.")},
    {DEVICE_CLASS_UNDEFINED, ERROR, "device-class-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The class of the device is left open."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write 'kc2' or 'kd3'.")},
    {DEVICE_CLASS_UNKNOWN, ERROR, "device-class-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such class of devices."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write 'kc2' or 'kd3', in small letters; anything else is read as 'Undefined'.")},
    {DEVICE_NAME_MISSING, ERROR, "device-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no name."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give the device a name. It is also that of the device's directory in the project.")},
    {CONFIG_MISSING, ERROR, "config-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The device has no configuration block."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Add the element 'Config'; without it the device has no options, files and plug-ins.")},
    {CONFIGURATION_NAME_MISSING, WARNING, "configuration-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The device does not tell the name of its configuration."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The name is read as 'STD'; write it down.")},
    {CONFIGURATION_NAME_EMPTY, ERROR, "configuration-name-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The name of the configuration is empty."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give the configuration a name: without one it has no directories on the device.")},
    {CONFIGURATION_NAME_RESERVED, ERROR, "configuration-name-reserved",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is one that the device keeps for itself."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Choose a name without 'setup', 'failsafe' and 'mount error'.")},
    {CONFIGURATION_NAME_INVALID, ERROR, "configuration-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of the configuration is not one that can be entered."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Use letters from A to Z, digits, '_', '-' and '+'; a number in parentheses may follow.")},
    {HARDWARE_ID_INVALID, ERROR, "hardware-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A hardware identity is none."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'PREFIX:NAME:PLATFORM:VERSION:REVISION'; the last three are numbers "
                       "from 0 to 65535. What is none is read as empty.")},
    {HARDWARE_ID_MISMATCH, ERROR, "hardware-id-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The hardware identity of a drive does not fit that of the device."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Prefix, name and platform of a drive are those of its device; version and "
                       "revision may differ. Was the drive copied from another device?")},

    {OPTION_INVALID, ERROR, "option-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A start option is none, or not separated by a blank."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "An option begins with a hyphen, and what follows it is its argument. "
                       "Options are separated by blanks; a line break is none.")},
    {OPTION_TWICE, ERROR, "option-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A start option stands more than once."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Remove all but one. The same option with different arguments is no finding.")},
    {OPC_UA_FLAG_INVALID, ERROR, "opc-ua-flag-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server is neither true nor false."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write 'true' or 'false', in small letters; anything else is read as 'false'.")},
    {OPC_UA_MISMATCH, ERROR, "opc-ua-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The flag of the OPC UA server and the option -opc contradict each other."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the option '-opc', or disable the server.")},

    {PARAMETER_TYPE_MISSING, ERROR, "parameter-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file has no type."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Tell the type with the attribute 'type'; it decides where the file lies.")},
    {PARAMETER_TYPE_UNDEFINED, ERROR, "parameter-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a parameter file is left open."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Tell the type; it decides where the file lies.")},
    {PARAMETER_TYPE_UNKNOWN, ERROR, "parameter-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of parameter files."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Mend the type; it is read as 'Undefined'. Capital and small letters matter.")},
    {PARAMETER_FILE_TWICE, ERROR, "parameter-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A parameter file stands more than once."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Remove all but one. Files of one name, but different types, may stand side by side.")},
    {FPGA_FILE_TWICE, ERROR, "fpga-file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "An FPGA image stands more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Remove all but one; the first image is the active one.")},
    {PLUGIN_NAME_MISSING, ERROR, "plugin-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Name the plug-in, or remove the entry.")},
    {PLUGIN_VERSION_MISSING, ERROR, "plugin-version-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in has no version."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Tell the version: it is the end of the file's name.")},
    {PLUGIN_VERSION_INVALID, ERROR, "plugin-version-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The version of a plug-in is not made of numbers and dots."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write numbers with dots between them, like '1.3': the version is the end "
                       "of the file's name.")},
    {PLUGIN_TWICE, ERROR, "plugin-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A plug-in stands more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Remove all but one.")},
    {PRIORITY_INVALID, ERROR, "priority-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The priority of a plug-in is no number, or out of range."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write a number from -2147483648 to 2147483647; otherwise the plug-in has no priority.")},
    {EXECUTION_PLUGIN_UNKNOWN, ERROR, "execution-plugin-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The plug-in that runs the application is not among the plug-ins."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Add the plug-in, or name one of those that are there.")},
    {ETHERCAT_FILE_MISSING, WARNING, "ethercat-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is the plug-in of the EtherCAT master, but no file for it."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Add the bus configuration, or remove the plug-in.")},
    {ETHERCAT_PLUGIN_MISSING, WARNING, "ethercat-plugin-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "There is a file for the EtherCAT master, but not its plug-in."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Add the plug-in 'CECatMaster', or remove the file.")},

    {DRIVE_TYPE_MISSING, ERROR, "drive-type-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no type."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Write 'KD2_drive' or 'KD3_drive'; without a type the drive is read as 'KD3_drive'.")},
    {DRIVE_TYPE_UNDEFINED, ERROR, "drive-type-undefined",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of a drive is left open."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'KD2_drive' or 'KD3_drive'; the drive is read as 'KD3_drive'.")},
    {DRIVE_TYPE_UNKNOWN, ERROR, "drive-type-unknown",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "There is no such type of drives."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write 'KD2_drive' or 'KD3_drive'; anything else, also in small letters, is "
                       "read as 'KD3_drive'.")},
    {DRIVE_TYPE_MISMATCH, ERROR, "drive-type-mismatch",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A drive that is not read as KD2 has a file of KD2 drives."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Remove the file, or make the drive a 'KD2_drive'.")},
    {DRIVE_NUMBER_MISSING, ERROR, "drive-number-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no number."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from 0 to 254; otherwise the drive gets the next one that "
                       "no other drive has.")},
    {DRIVE_NUMBER_INVALID, ERROR, "drive-number-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The number of a drive is no number, or out of range."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from 0 to 254; otherwise the drive gets the next one that "
                       "no other drive has. 255 means that no number is assigned.")},
    {DRIVE_NUMBER_TWICE, ERROR, "drive-number-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same number."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Give each drive a number of its own; otherwise all but the first get the "
                       "next ones that no other drive has.")},
    {DRIVE_NAME_MISSING, WARNING, "drive-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A drive has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Name the drive; otherwise it is named after its number.")},
    {DRIVE_NAME_TWICE, ERROR, "drive-name-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Give each drive a name of its own.")},
    {BUS_ID_INVALID, ERROR, "bus-id-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The bus identifier of a drive is no number, or out of range."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write a number from 0 to 4294967295; anything else is read as 0, which "
                       "means that none is assigned.")},
    {BUS_ID_TWICE, WARNING, "bus-id-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Two drives have the same bus identifier."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Look whether both drives are on the same bus; there each has an identifier of its own.")},

    {FILE_NAME_MISSING, ERROR, "file-name-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no name."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Name the file, or remove the entry.")},
    {FILE_NAME_INVALID, ERROR, "file-name-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "The name of a file is a path, or has characters that no name has."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Write the name alone; directories have elements of their own. A line break "
                       "in the element belongs to the name, too.")},
    {FILE_TWICE, ERROR, "file-twice",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file stands more than once."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Remove all but one.")},
    {DEVICE_FILE_CONFLICT, ERROR, "device-file-conflict",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Two files would overwrite each other on the device."),
     QT_TRANSLATE_NOOP(
         "CConfigurationCheck",
         "Give one of the two another name or another directory on the device. Parameter files, "
         "FPGA images, plug-ins and the configuration itself have their places, too.")},
    {DEVICE_PATH_MISSING, WARNING, "device-path-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file has no directory on the device."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Tell where on the device the file belongs.")},
    {DEVICE_PATH_RELATIVE, WARNING, "device-path-relative",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device does not begin with a slash."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Begin with a slash; the directory is read as if there were one.")},
    {DEVICE_PATH_CLIMBS, ERROR, "device-path-climbs",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device leads upwards with \"..\"."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write the directory that is meant, without '..'.")},
    {DEVICE_PATH_OUTSIDE, ERROR, "device-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device lies outside the device's trees."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Choose a directory below '/velkor/' or '/opt/velkor/'.")},
    {DEVICE_PATH_OTHER_CONFIGURATION, WARNING, "device-path-other-configuration",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory on the device belongs to another configuration."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Was the configuration renamed? Then the directory has to follow.")},
    {PROJECT_PATH_ABSOLUTE, ERROR, "project-path-absolute",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is absolute, and holds on one computer only."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Write the directory relative to the project.")},
    {PROJECT_PATH_OUTSIDE, ERROR, "project-path-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project leads out of the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Move the file into the project.")},
    {PROJECT_PATH_IGNORED, ERROR, "project-path-ignored",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A directory in the project is not below that of the device, and is removed "
                       "when the device is read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Object dictionary and fault texts lie below the directory that is called "
                       "as the device.")},

    {PROJECT_FILE_MISSING, ERROR, "project-file-missing",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file is not in the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Put the file into the project, or mend its name or directory. For a "
                       "parameter file, an FPGA image and a plug-in the directory follows from its "
                       "kind; 'vrndevice place' shows it.")},
    {PROJECT_FILE_OTHER_CASE, ERROR, "project-file-other-case",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file is in the project with capital and small letters interchanged."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Call the file in the project and in the configuration the same: on the "
                       "device capital and small letters matter.")},
    {PROJECT_FILE_OUTSIDE, ERROR, "project-file-outside",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A symbolic link leads out of the project."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Replace the symbolic link by the file: whoever gets the project does not "
                       "get what lies outside.")},
    {PROJECT_FILE_NOT_REGULAR, ERROR, "project-file-not-regular",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "What is in the project is no regular file."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Replace the directory, pipe or device of that name by the file.")},
    {PROJECT_FILE_UNREADABLE, ERROR, "project-file-unreadable",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project cannot be read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Look at the permissions of the file.")},
    {PROJECT_FILE_EMPTY, ERROR, "project-file-empty",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "A file in the project is empty."),
     QT_TRANSLATE_NOOP("CConfigurationCheck", "Fill the file, or remove the entry.")},
    {PROJECT_FILE_CHANGED, ERROR, "project-file-changed",
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "A file in the project is not the one that the manifest tells."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Put back the file with the size and the SHA-256 sum that 'manifest.json' "
                       "tells, or make the manifest anew.")},
    {MANIFEST_INVALID, ERROR, "manifest-invalid",
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The manifest of the project cannot be read."),
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "Make the manifest anew. Until then the files are not compared with it.")},
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
