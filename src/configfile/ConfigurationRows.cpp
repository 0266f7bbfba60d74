#include "configfile/ConfigurationShape.h"

#include "elements/DriveNumbers.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/TextTables.h"

#include <QCoreApplication>
#include <QDate>

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
    const int number = DriveNumbers::read(text);
    value = number < 0 ? value : static_cast<quint8>(number);
    return number >= 0;
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

// Accessors are kept in lambdas, whose types stay in this file: what std::function knows of other
// types would be exported.

/** The row of what @p get reads from an element and @p set puts into it. */
template <typename Element, typename Get, typename Set>
SField<Element> field(const SItem &item, Get get, Set set)
{
    SField<Element> result;
    static_cast<SItem &>(result) = item;
    result.get = [get](const Element &element) { return toText(std::invoke(get, element)); };
    using Value = std::decay_t<std::invoke_result_t<Get, const Element &>>;
    if constexpr (std::is_same_v<Value, QString>) {
        result.set = [set](Element &element, const QString &text) {
            std::invoke(set, element, text);
            return true;
        };
    } else {
        result.set = [get, set](Element &element, const QString &text) {
            Value value = std::invoke(get, element);
            const bool isRead = fromText(text, value);
            if (isRead) {
                std::invoke(set, element, value);
            }
            return isRead;
        };
    }
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

SField<CSubDeviceElement> driveTypeField()
{
    SField<CSubDeviceElement> result;
    static_cast<SItem &>(result) = typeItem(EValue::DRIVE_TYPE);
    result.get = [](const CSubDeviceElement &drive) { return DriveTypes::text(drive.type()); };
    result.set = [](CSubDeviceElement &drive, const QString &text) {
        if (DriveTypes::isKd2(text)) {
            drive = CSubDeviceKD2Element();
        } else {
            drive = CSubDeviceKD3Element();
        }
        return true;
    };
    return result;
}

template <typename Element, typename Get, typename Set>
SFileField<Element> fileField(const char *word, const QString &tag, const char *text,
                              EDeviceFile kind, Get get, Set set)
{
    SFileField<Element> result;
    result.word = QString::fromLatin1(word);
    result.tag = tag;
    result.text = text;
    result.kind = kind;
    result.get = [get](const Element &element) { return std::invoke(get, element); };
    result.set = [set](Element &element, const CFileElement &file) {
        std::invoke(set, element, file);
    };
    return result;
}

/** The reader wants it below the device's own directory in the project. */
template <typename Element>
SFileField<Element> ofDevice(SFileField<Element> field)
{
    field.isBelowDevice = true;
    return field;
}

template <typename Get, typename Set>
SFileField<CSubDeviceElement> kd2File(const char *word, const QString &tag, const char *text,
                                      EDeviceFile kind, Get get, Set set)
{
    auto result = fileField<CSubDeviceElement>(
        word, tag, text, kind,
        [get](const CSubDeviceElement &drive) { return (drive.toKD2().*get)(); },
        [set](CSubDeviceElement &drive, const CFileElement &file) {
            CSubDeviceKD2Element kd2 = drive.toKD2();
            (kd2.*set)(file);
            drive = kd2;
        });
    result.isOfKd2Only = true;
    return result;
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
        ofDevice(fileField<Element>("dictionary", TAG_DICTIONARY,
                                    QT_TRANSLATE_NOOP("ConfigurationShape", "object dictionary"),
                                    DEVICE_FILE_OBJECT_DICTIONARY, &Element::odictFile,
                                    &Element::setOdictFile)),
        ofDevice(fileField<Element>("faultTextFile", TAG_FAULTTEXT_FILE,
                                    QT_TRANSLATE_NOOP("ConfigurationShape", "fault texts"),
                                    DEVICE_FILE_FAULT_TEXTS, &Element::faultTextFile,
                                    &Element::setFaultTextFile)),
        fileField<Element>("etherCatMasterFile", TAG_ETHERCATMASTER,
                           QT_TRANSLATE_NOOP("ConfigurationShape", "EtherCAT master file"),
                           DEVICE_FILE_ETHERCAT_MASTER, &Element::etherCatMasterFile,
                           &Element::setEtherCatMasterFile),
    };
    return rows;
}

const QVector<SField<CSubDeviceElement>> &ConfigurationShape::driveItems()
{
    using Element = CSubDeviceElement;
    static const QVector<SField<Element>> rows = {
        driveTypeField(),
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
    return rows;
}

const QVector<SFileField<CSubDeviceElement>> &ConfigurationShape::driveFiles()
{
    using Kd2 = CSubDeviceKD2Element;
    static const QVector<SFileField<CSubDeviceElement>> rows = {
        fileField<CSubDeviceElement>(
            "param", TAG_PARAM, QT_TRANSLATE_NOOP("ConfigurationShape", "parameter file"),
            DEVICE_FILE_SUB_DEVICE_PARAMETERS, &CSubDeviceElement::parameterFile,
            &CSubDeviceElement::setParameterFile),
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
