#include "tools/ConfigurationJson.h"

#include "configfile/ShapePaths.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"

using namespace ConfigurationShape;

namespace {

QJsonValue toJson(EValue kind, const QString &text)
{
    switch (kind) {
    case EValue::BOOLEAN:
        return text == NVornXmlTags::VALUE_TRUE;
    case EValue::UNSIGNED_NUMBER:
    case EValue::SIGNED_NUMBER:
    case EValue::KEY_DRIVE_NUMBER:
        return text.toLongLong();
    default:
        return text;
    }
}

template <typename Element>
void insert(const QVector<SField<Element>> &rows, const Element &element, QJsonObject &object)
{
    for (const SField<Element> &row : rows) {
        object.insert(row.word, toJson(row.value, row.get(element)));
    }
}

template <typename Element>
QJsonObject toJson(const QVector<SField<Element>> &rows, const Element &element)
{
    QJsonObject object;
    insert(rows, element, object);
    return object;
}

template <typename Element>
QJsonArray toJson(const QVector<SField<Element>> &rows, const QList<Element> &elements)
{
    QJsonArray array;
    for (const Element &element : elements) {
        array.append(toJson(rows, element));
    }
    return array;
}

QJsonArray toJson(const QList<CPluginElement> &plugins)
{
    QJsonArray array;
    for (const CPluginElement &plugin : plugins) {
        QJsonObject object = toJson(pluginItems(), plugin);
        object.insert(QStringLiteral("fileName"), plugin.fileName());
        array.append(object);
    }
    return array;
}

QJsonArray toJson(const QList<CSubDeviceElement> &drives)
{
    QJsonArray array;
    for (const CSubDeviceElement &drive : drives) {
        array.append(toJson(drive));
    }
    return array;
}

QJsonArray entries(EEntry entry, const CDeviceElement &device)
{
    switch (entry) {
    case EEntry::DRIVE:
        return toJson(device.subDevices());
    case EEntry::PARAMETER_FILE:
        return toJson(parameterFileItems(), device.parameterFiles());
    case EEntry::FILE:
        return toJson(fileItems(), device.additionalFiles());
    case EEntry::FPGA_FILE:
        return QJsonArray::fromStringList(device.fpgaFiles());
    case EEntry::OPC_UA_FILE:
        return toJson(fileItems(), device.opcUaFiles());
    case EEntry::PLUGIN:
        return toJson(device.plugins());
    case EEntry::OPTION:
        return QJsonArray::fromStringList(device.options());
    case EEntry::NONE:
        break;
    }
    return {};
}

void insertLists(const SNode &node, const CDeviceElement &device, QJsonObject &object)
{
    for (const SNode &child : node.children) {
        if (child.kind == EKind::GROUP) {
            insertLists(child, device, object);
        } else if (child.isList()) {
            object.insert(child.word, entries(child.entry, device));
        }
    }
}

QJsonObject toJson(const CDeviceElement &device)
{
    QJsonObject object = toJson(deviceItems(), device);
    insert(configItems(), device, object);
    insert(opcUaItems(), device, object);
    for (const SFileField<CDeviceElement> &row : deviceFiles()) {
        object.insert(row.word, toJson(row.get(device)));
    }
    insertLists(*ShapePaths::find(QStringLiteral("device")), device, object);
    return object;
}

} // namespace

QJsonObject toJson(const CFileElement &file)
{
    return toJson(fileItems(), file);
}

QString subDeviceTypeName(const CSubDeviceElement &subDevice)
{
    return subDevice.isKD2() ? DriveTypes::kd2() : DriveTypes::kd3();
}

QJsonObject toJson(const CSubDeviceElement &subDevice)
{
    QJsonObject object = toJson(driveItems(), subDevice);
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        if (subDevice.isKD2() || !row.isOfKd2Only) {
            object.insert(row.word, toJson(row.get(subDevice)));
        }
    }
    return object;
}

QJsonObject toJson(const SConfigurationFinding &finding)
{
    return {{QStringLiteral("rule"), finding.rule},
            {QStringLiteral("severity"),
             finding.severity == SConfigurationFinding::ERROR ? QStringLiteral("error")
                                                              : QStringLiteral("warning")},
            {QStringLiteral("item"), finding.item},
            {QStringLiteral("line"), finding.position.line},
            {QStringLiteral("column"), finding.position.column},
            {QStringLiteral("message"), finding.message},
            {QStringLiteral("found"), finding.found},
            {QStringLiteral("expected"), finding.expected},
            {QStringLiteral("hint"), finding.hint}};
}

QJsonObject toJson(const CDeviceConfigurationFile10 &file)
{
    CDeviceElement device;
    file.configuration(device);
    return {{QStringLiteral("version"), file.currentFileVersion()},
            {QStringLiteral("description"), toJson(descriptionItems(), file.description())},
            {QStringLiteral("device"), toJson(device)}};
}
