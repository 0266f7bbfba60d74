#include "configfile/ConfigurationShape.h"

#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/TextTables.h"

#include <QCoreApplication>
#include <QDate>

#include <algorithm>
#include <functional>
#include <limits>
#include <type_traits>

using namespace ConfigurationShape;
using namespace NVornXmlTags;
using namespace NvrnDeviceCore;

namespace {

// How the values of the element classes are written, and read again. A text that means nothing is
// false and leaves the value alone, but for enumerations and flags, which have a value for it.

QString toText(const QString &value)
{
    return value;
}

bool fromText(const QString &text, QString &value)
{
    value = text;
    return true;
}

QString toText(const QDate &value)
{
    return value.toString(Qt::ISODate);
}

bool fromText(const QString &text, QDate &value)
{
    value = QDate::fromString(text, Qt::ISODate);
    return true;
}

QString toText(const CDeviceHardwareId &value)
{
    return value.hardwareId();
}

/** An identity that cannot be read is the null one. */
bool fromText(const QString &text, CDeviceHardwareId &value)
{
    value = CDeviceHardwareId(text);
    return text.isEmpty() || !value.isNull();
}

QString toText(NDeviceConf::EDeviceClass value)
{
    return TextTables::text(TextTables::deviceClasses(), value);
}

bool fromText(const QString &text, NDeviceConf::EDeviceClass &value)
{
    value = TextTables::value(TextTables::deviceClasses(), text, Qt::CaseSensitive);
    return true;
}

QString toText(NvrnGlobal::EParamFileType value)
{
    return TextTables::text(TextTables::paramFileTypes(), value);
}

bool fromText(const QString &text, NvrnGlobal::EParamFileType &value)
{
    value = TextTables::value(TextTables::paramFileTypes(), text, Qt::CaseSensitive);
    return true;
}

QString toText(bool value)
{
    return value ? VALUE_TRUE : VALUE_FALSE;
}

bool fromText(const QString &text, bool &value)
{
    value = text == VALUE_TRUE;
    return true;
}

QString toText(int value)
{
    return QString::number(value);
}

bool fromText(const QString &text, int &value)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    value = isNumber ? number : value;
    return isNumber;
}

QString toText(unsigned int value)
{
    return QString::number(value);
}

bool fromText(const QString &text, unsigned int &value)
{
    value = text.toUInt();
    return true;
}

bool fromText(const QString &text, quint8 &value)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    const bool isInRange = isNumber && number <= std::numeric_limits<quint8>::max();
    value = isInRange ? static_cast<quint8>(number) : value;
    return isInRange;
}

/** A row without its accessors. */
SItem item(const char *word, const QString &tag, EValue value, const char *text)
{
    SItem result;
    result.word = QString::fromLatin1(word);
    result.tag = tag;
    result.value = value;
    result.text = text;
    return result;
}

SItem attribute(const char *word, const QString &name, EValue value, const char *text)
{
    SItem result = item(word, name, value, text);
    result.isAttribute = true;
    return result;
}

// Rows that several tables have.

SItem nameItem(EValue value = EValue::TEXT)
{
    return item("name", TAG_NAME, value, QT_TRANSLATE_NOOP("ConfigurationShape", "name"));
}

SItem commentItem()
{
    return item("comment", TAG_COMMENT, EValue::TEXT,
                QT_TRANSLATE_NOOP("ConfigurationShape", "comment"));
}

SItem versionItem()
{
    return item("version", TAG_VERSION, EValue::TEXT,
                QT_TRANSLATE_NOOP("ConfigurationShape", "version"));
}

SItem hardwareIdItem()
{
    return item("hardwareId", TAG_HARDWAREID, EValue::HARDWARE_ID,
                QT_TRANSLATE_NOOP("ConfigurationShape", "hardware identity"));
}

SItem typeItem(EValue value)
{
    return attribute("type", ATTR_TYPE, value, QT_TRANSLATE_NOOP("ConfigurationShape", "type"));
}

/** The row of what @p get reads from an element and @p set puts into it. */
template <typename Element, typename Get, typename Set>
SField<Element> field(const SItem &item, Get get, Set set)
{
    SField<Element> result;
    static_cast<SItem &>(result) = item;
    result.get = [get](const Element &element) { return toText(std::invoke(get, element)); };
    result.set = [get, set](Element &element, const QString &text) {
        std::decay_t<std::invoke_result_t<Get, const Element &>> value = std::invoke(get, element);
        const bool isRead = fromText(text, value);
        if (isRead) {
            std::invoke(set, element, value);
        }
        return isRead;
    };
    return result;
}

/** Among the setters of that name the one that takes an identity. */
template <typename Element>
SField<Element> hardwareIdField()
{
    return field<Element>(
        hardwareIdItem(), &Element::hardwareId,
        [](Element &element, const CDeviceHardwareId &id) { element.setHardwareId(id); });
}

QString driveType(const CSubDeviceElement &drive)
{
    return TextTables::text(TextTables::subDeviceTypes(), drive.type());
}

/** Every text but that of the KD2 series means a drive of the KD3 series. */
bool setDriveType(CSubDeviceElement &drive, const QString &text)
{
    if (text == TextTables::text(TextTables::subDeviceTypes(), ELEMENT_KD2_SUB_DEVICE)) {
        drive = CSubDeviceKD2Element();
    } else {
        drive = CSubDeviceKD3Element();
    }
    return true;
}

template <typename Get, typename Set>
SFileField<CSubDeviceElement> kd2File(const char *word, const QString &tag, const char *text,
                                      EDeviceFile kind, Get get, Set set)
{
    return {QString::fromLatin1(word),
            tag,
            text,
            kind,
            true,
            [get](const CSubDeviceElement &drive) { return (drive.toKD2().*get)(); },
            [set](CSubDeviceElement &drive, const CFileElement &file) {
                CSubDeviceKD2Element kd2 = drive.toKD2();
                (kd2.*set)(file);
                drive = kd2;
            }};
}

} // namespace

const QVector<SField<CDescriptionElement>> &ConfigurationShape::descriptionItems()
{
    using Element = CDescriptionElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(nameItem(), &Element::name, &Element::setName),
        field<Element>(commentItem(), &Element::comment, &Element::setComment),
        field<Element>(versionItem(), &Element::version, &Element::setVersion),
        field<Element>(item("creationDate", TAG_CREATIONDATE, EValue::DATE,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "creation date")),
                       &Element::creationDate, &Element::setCreationDate),
        field<Element>(item("revisionDate", TAG_REVISIONDATE, EValue::DATE,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "revision date")),
                       &Element::revisionDate, &Element::setRevisionDate),
    };
    return rows;
}

const QVector<SField<CDeviceElement>> &ConfigurationShape::deviceItems()
{
    using Element = CDeviceElement;
    static const QVector<SField<Element>> rows = [] {
        SItem configurationName =
            item("configurationName", TAG_CONFIGNAME, EValue::TEXT,
                 QT_TRANSLATE_NOOP("ConfigurationShape", "configuration name"));
        configurationName.absent = Element().configurationName();
        return QVector<SField<Element>>{
            hardwareIdField<Element>(),
            field<Element>(item("class", TAG_CLASS, EValue::DEVICE_CLASS,
                                QT_TRANSLATE_NOOP("ConfigurationShape", "class")),
                           &Element::deviceClass, &Element::setDeviceClass),
            field<Element>(nameItem(), &Element::name, &Element::setName),
            field<Element>(commentItem(), &Element::comment, &Element::setComment),
            field<Element>(configurationName, &Element::configurationName,
                           &Element::setConfigurationName),
        };
    }();
    return rows;
}

const QVector<SField<CDeviceElement>> &ConfigurationShape::configItems()
{
    using Element = CDeviceElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(item("executionPlugin", TAG_EXECUTIONPLUGIN, EValue::TEXT,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "execution plug-in")),
                       &Element::executionPlugin, &Element::setExecutionPlugin),
    };
    return rows;
}

const QVector<SField<CDeviceElement>> &ConfigurationShape::opcUaItems()
{
    using Element = CDeviceElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(item("opcUaEnabled", TAG_OPCUA_ENABLED, EValue::BOOLEAN,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "OPC UA enabled")),
                       &Element::isOpcUaEnabled, &Element::setOpcUaEnabled),
    };
    return rows;
}

const QVector<SFileField<CDeviceElement>> &ConfigurationShape::deviceFiles()
{
    using Element = CDeviceElement;
    static const QVector<SFileField<Element>> rows = {
        {QStringLiteral("dictionary"), TAG_DICTIONARY,
         QT_TRANSLATE_NOOP("ConfigurationShape", "object dictionary"),
         DEVICE_FILE_OBJECT_DICTIONARY, false, &Element::odictFile, &Element::setOdictFile},
        {QStringLiteral("faultTextFile"), TAG_FAULTTEXT_FILE,
         QT_TRANSLATE_NOOP("ConfigurationShape", "fault texts"), DEVICE_FILE_FAULT_TEXTS, false,
         &Element::faultTextFile, &Element::setFaultTextFile},
        {QStringLiteral("etherCatMasterFile"), TAG_ETHERCATMASTER,
         QT_TRANSLATE_NOOP("ConfigurationShape", "EtherCAT master file"),
         DEVICE_FILE_ETHERCAT_MASTER, false, &Element::etherCatMasterFile,
         &Element::setEtherCatMasterFile},
    };
    return rows;
}

const QVector<SField<CSubDeviceElement>> &ConfigurationShape::driveItems()
{
    using Element = CSubDeviceElement;
    static const QVector<SField<Element>> rows = [] {
        SField<Element> type;
        static_cast<SItem &>(type) = typeItem(EValue::DRIVE_TYPE);
        type.get = driveType;
        type.set = setDriveType;
        return QVector<SField<Element>>{
            type,
            hardwareIdField<Element>(),
            field<Element>(nameItem(), &Element::name, &Element::setName),
            field<Element>(commentItem(), &Element::comment, &Element::setComment),
            field<Element>(item("driveNo", TAG_DRIVE_NO, EValue::KEY_DRIVE_NUMBER,
                                QT_TRANSLATE_NOOP("ConfigurationShape", "drive number")),
                           &Element::driveId, &Element::setDriveId),
            field<Element>(item("busId", TAG_BUS_ID, EValue::UNSIGNED_NUMBER,
                                QT_TRANSLATE_NOOP("ConfigurationShape", "bus identifier")),
                           &Element::busId, &Element::setBusId),
        };
    }();
    return rows;
}

const QVector<SFileField<CSubDeviceElement>> &ConfigurationShape::driveFiles()
{
    using Kd2 = CSubDeviceKD2Element;
    static const QVector<SFileField<CSubDeviceElement>> rows = {
        {QStringLiteral("param"), TAG_PARAM,
         QT_TRANSLATE_NOOP("ConfigurationShape", "parameter file"),
         DEVICE_FILE_SUB_DEVICE_PARAMETERS, false, &CSubDeviceElement::parameterFile,
         &CSubDeviceElement::setParameterFile},
        kd2File("kd2Param", TAG_KD2_PARAM,
                QT_TRANSLATE_NOOP("ConfigurationShape", "KD2 parameter file"),
                DEVICE_FILE_KD2_PARAMETERS, &Kd2::kd2ParameterFile, &Kd2::setKd2ParameterFile),
        kd2File("kd2Logic", TAG_KD2_LOGIC, QT_TRANSLATE_NOOP("ConfigurationShape", "KD2 logic"),
                DEVICE_FILE_KD2_LOGIC, &Kd2::kd2LogicFile, &Kd2::setKd2LogicFile),
        kd2File("kd2Firmware", TAG_KD2_FIRMWARE,
                QT_TRANSLATE_NOOP("ConfigurationShape", "KD2 firmware"), DEVICE_FILE_KD2_FIRMWARE,
                &Kd2::kd2FirmwareFile, &Kd2::setKd2FirmwareFile),
    };
    return rows;
}

const QVector<SField<CFileElement>> &ConfigurationShape::fileItems()
{
    using Element = CFileElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(nameItem(), &Element::fileName, &Element::setFileName),
        field<Element>(commentItem(), &Element::comment, &Element::setComment),
        field<Element>(item("deviceDir", TAG_DEVICE_DIR, EValue::DEVICE_DIRECTORY,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "device directory")),
                       &Element::devicePath, &Element::setDevicePath),
        field<Element>(item("projectDir", TAG_PROJECT_DIR, EValue::PROJECT_DIRECTORY,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "project directory")),
                       &Element::projectPath, &Element::setProjectPath),
    };
    return rows;
}

const QVector<SField<CParamFileElement>> &ConfigurationShape::parameterFileItems()
{
    using Element = CParamFileElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(nameItem(EValue::KEY_NAME), &Element::name, &Element::setName),
        field<Element>(typeItem(EValue::PARAMETER_FILE_TYPE), &Element::type, &Element::setType),
        field<Element>(commentItem(), &Element::comment, &Element::setComment),
    };
    return rows;
}

const QVector<SField<CPluginElement>> &ConfigurationShape::pluginItems()
{
    using Element = CPluginElement;
    static const QVector<SField<Element>> rows = {
        field<Element>(nameItem(EValue::KEY_NAME), &Element::name, &Element::setName),
        field<Element>(versionItem(), &Element::version, &Element::setVersion),
        field<Element>(item("priority", TAG_PRIORITY, EValue::SIGNED_NUMBER,
                            QT_TRANSLATE_NOOP("ConfigurationShape", "priority")),
                       &Element::priority, &Element::setPriority),
    };
    return rows;
}

namespace {

using Nodes = QVector<SNode>;

SNode node(const SItem &item)
{
    SNode result;
    result.kind = EKind::ITEM;
    result.tag = item.tag;
    result.word = item.word;
    result.text = item.text;
    result.item = item;
    return result;
}

template <typename Element>
Nodes nodes(const QVector<SField<Element>> &fields)
{
    Nodes result;
    for (const SField<Element> &field : fields) {
        result.append(node(field));
    }
    return result;
}

/** The items of a "File" in a list, whose name is the key. */
Nodes listedFileNodes()
{
    Nodes result = nodes(fileItems());
    result.first().item.value = EValue::KEY_NAME;
    return result;
}

/** Of a drive, whose key is not its first element in the document. */
Nodes driveNodes()
{
    Nodes result = nodes(driveItems());
    const auto key = std::find_if(result.begin(), result.end(), [](const SNode &candidate) {
        return candidate.item.value == EValue::KEY_DRIVE_NUMBER;
    });
    std::rotate(result.begin(), key, key + 1);
    return result;
}

template <typename Element>
SNode node(const SFileField<Element> &field)
{
    SNode result;
    result.kind = EKind::SINGLE_FILE;
    result.tag = field.tag;
    result.word = field.word;
    result.text = field.text;
    result.isOfKd2Only = field.isOfKd2Only;
    result.file = field.kind;
    result.children = nodes(fileItems());
    return result;
}

template <typename Element>
SNode fileNode(const QVector<SFileField<Element>> &fields, const QString &tag)
{
    const auto field =
        std::find_if(fields.begin(), fields.end(),
                     [&tag](const SFileField<Element> &candidate) { return candidate.tag == tag; });
    return node(*field);
}

SNode group(const QString &tag, const char *word, const char *text, const Nodes &children)
{
    SNode result;
    result.tag = tag;
    result.word = QString::fromLatin1(word);
    result.text = text;
    result.children = children;
    return result;
}

SNode list(const QString &tag, const char *word, const char *text, const char *heading,
           EEntry entry, const QString &entryTag, const Nodes &children)
{
    SNode result = group(tag, word, text, children);
    result.kind = EKind::LIST;
    result.heading = heading;
    result.entry = entry;
    result.entryTag = entryTag;
    return result;
}

SNode readDeep(SNode list)
{
    list.isReadDeep = true;
    return list;
}

SNode ofFiles(SNode list, EDeviceFile kind)
{
    list.file = kind;
    return list;
}

SNode atTop(SNode node)
{
    node.isAtTop = true;
    return node;
}

SNode optionsNode()
{
    SNode result =
        list(TAG_OPTIONS, "options", QT_TRANSLATE_NOOP("ConfigurationShape", "option %1"),
             QT_TRANSLATE_NOOP("ConfigurationShape", "start options"), EEntry::OPTION, QString(),
             {node(nameItem(EValue::KEY_OPTION))});
    result.kind = EKind::OPTIONS;
    result.item.value = EValue::OPTION_ARGUMENT;
    return result;
}

SNode activeFpgaFileNode()
{
    SNode result = node(item("activeFpgaFile", TAG_FPGA_FILES, EValue::ACTIVE_FPGA_FILE,
                             QT_TRANSLATE_NOOP("ConfigurationShape", "active FPGA image")));
    result.kind = EKind::ALIAS;
    return result;
}

SNode opcUaNode()
{
    Nodes children = nodes(opcUaItems());
    children.append(ofFiles(list(TAG_OPCUA_FILES, "opcUaFiles",
                                 QT_TRANSLATE_NOOP("ConfigurationShape", "OPC UA file %1"),
                                 QT_TRANSLATE_NOOP("ConfigurationShape", "OPC UA files"),
                                 EEntry::OPC_UA_FILE, TAG_FILE, listedFileNodes()),
                            DEVICE_FILE_OPC_UA));
    return group(TAG_OPCUA, "", nullptr, children);
}

SNode configNode()
{
    const Nodes children = {
        optionsNode(),
        readDeep(ofFiles(list(TAG_PARAMETERFILES, "parameterFiles",
                              QT_TRANSLATE_NOOP("ConfigurationShape", "parameter file %1"),
                              QT_TRANSLATE_NOOP("ConfigurationShape", "parameter files"),
                              EEntry::PARAMETER_FILE, TAG_FILE, nodes(parameterFileItems())),
                         DEVICE_FILE_PARAMETER)),
        fileNode(deviceFiles(), TAG_DICTIONARY),
        fileNode(deviceFiles(), TAG_FAULTTEXT_FILE),
        ofFiles(list(TAG_FPGA_FILES, "fpgaFiles",
                     QT_TRANSLATE_NOOP("ConfigurationShape", "FPGA image %1"),
                     QT_TRANSLATE_NOOP("ConfigurationShape", "FPGA images"), EEntry::FPGA_FILE,
                     TAG_FILE, {node(nameItem(EValue::KEY_NAME))}),
                DEVICE_FILE_FPGA),
        activeFpgaFileNode(),
        opcUaNode(),
        fileNode(deviceFiles(), TAG_ETHERCATMASTER),
        atTop(ofFiles(list(TAG_FILES, "files", QT_TRANSLATE_NOOP("ConfigurationShape", "file %1"),
                           QT_TRANSLATE_NOOP("ConfigurationShape", "additional files"),
                           EEntry::FILE, TAG_FILE, listedFileNodes()),
                      DEVICE_FILE_ADDITIONAL)),
        readDeep(ofFiles(list(TAG_PLUGINS, "plugins",
                              QT_TRANSLATE_NOOP("ConfigurationShape", "plug-in %1"),
                              QT_TRANSLATE_NOOP("ConfigurationShape", "plug-ins"), EEntry::PLUGIN,
                              TAG_PLUGIN, nodes(pluginItems())),
                         DEVICE_FILE_PLUGIN)),
    };
    return group(TAG_CONFIG, "", nullptr, children + nodes(configItems()));
}

SNode driveNode()
{
    Nodes children = driveNodes();
    for (const SFileField<CSubDeviceElement> &file : driveFiles()) {
        children.append(node(file));
    }
    return atTop(list(QString(), "drive", QT_TRANSLATE_NOOP("ConfigurationShape", "drive %1"),
                      QT_TRANSLATE_NOOP("ConfigurationShape", "drives"), EEntry::DRIVE,
                      TAG_SUB_DEVICE, children));
}

SNode deviceNode()
{
    SNode result = group(TAG_DEVICE, "device", QT_TRANSLATE_NOOP("ConfigurationShape", "device"),
                         nodes(deviceItems()) + Nodes{configNode(), driveNode()});
    result.listedFirst = QStringList{QStringLiteral("name"),
                                     QStringLiteral("comment"),
                                     QStringLiteral("class"),
                                     QStringLiteral("hardwareId"),
                                     QStringLiteral("configurationName"),
                                     QStringLiteral("executionPlugin"),
                                     QStringLiteral("opcUaEnabled"),
                                     QStringLiteral("activeFpgaFile"),
                                     QStringLiteral("options"),
                                     QStringLiteral("parameterFiles"),
                                     QStringLiteral("dictionary"),
                                     QStringLiteral("faultTextFile"),
                                     QStringLiteral("etherCatMasterFile")};
    return result;
}

} // namespace

const SNode &ConfigurationShape::root()
{
    static const SNode node = [] {
        SNode result = group(TAG_ROOT_DEVICECONFIG, "", nullptr,
                             {group(TAG_DESCRIPTION, "description",
                                    QT_TRANSLATE_NOOP("ConfigurationShape", "description"),
                                    nodes(descriptionItems())),
                              deviceNode()});
        result.listedFirst = QStringList{QStringLiteral("description"), QStringLiteral("device"),
                                         QStringLiteral("drive")};
        return result;
    }();
    return node;
}

QString ConfigurationShape::label(const char *text)
{
    return QCoreApplication::translate("ConfigurationShape", text);
}

QString ConfigurationShape::title(const char *text)
{
    return capitalized(label(text));
}

QString ConfigurationShape::capitalized(const QString &text)
{
    return text.left(1).toUpper() + text.mid(1);
}
