#include "tools/ConfigurationJson.h"

#include "vocabulary/DriveTypes.h"

namespace {

QJsonObject toJson(const CPluginElement &plugin)
{
    return {{QStringLiteral("name"), plugin.name()},
            {QStringLiteral("version"), plugin.version()},
            {QStringLiteral("priority"), plugin.priority()},
            {QStringLiteral("fileName"), plugin.fileName()}};
}

QJsonObject toJson(const CParamFileElement &file, const CDeviceConfigurationFile10 &texts)
{
    return {{QStringLiteral("name"), file.name()},
            {QStringLiteral("type"), texts.typeToStr(file.type())},
            {QStringLiteral("comment"), file.comment()}};
}

QJsonObject toJson(const CDescriptionElement &description)
{
    return {{QStringLiteral("name"), description.name()},
            {QStringLiteral("comment"), description.comment()},
            {QStringLiteral("version"), description.version()},
            {QStringLiteral("creationDate"), description.creationDate().toString(Qt::ISODate)},
            {QStringLiteral("revisionDate"), description.revisionDate().toString(Qt::ISODate)}};
}

template <typename List>
QJsonArray toJsonArray(const List &list)
{
    QJsonArray array;
    for (const auto &item : list) {
        array.append(toJson(item));
    }
    return array;
}

} // namespace

QJsonObject toJson(const CFileElement &file)
{
    return {{QStringLiteral("name"), file.fileName()},
            {QStringLiteral("comment"), file.comment()},
            {QStringLiteral("deviceDir"), file.devicePath()},
            {QStringLiteral("projectDir"), file.projectPath()}};
}

QString subDeviceTypeName(const CSubDeviceElement &subDevice)
{
    return subDevice.isKD2() ? DriveTypes::kd2() : DriveTypes::kd3();
}

QJsonObject toJson(const CSubDeviceElement &subDevice)
{
    return {
        {QStringLiteral("driveId"), subDevice.driveId()},
        {QStringLiteral("type"), subDeviceTypeName(subDevice)},
        {QStringLiteral("name"), subDevice.name()},
        {QStringLiteral("comment"), subDevice.comment()},
        {QStringLiteral("hardwareId"), subDevice.hardwareIdStr()},
        {QStringLiteral("busId"), static_cast<qint64>(subDevice.busId())},
        {QStringLiteral("files"), toJsonArray(subDevice.allFiles())},
    };
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

    QJsonArray parameterFiles;
    for (const CParamFileElement &parameterFile : device.parameterFiles()) {
        parameterFiles.append(toJson(parameterFile, file));
    }
    const QJsonObject deviceObject = {
        {QStringLiteral("name"), device.name()},
        {QStringLiteral("class"), file.deviceClassToStr(device.deviceClass())},
        {QStringLiteral("hardwareId"), device.hardwareIdStr()},
        {QStringLiteral("comment"), device.comment()},
        {QStringLiteral("configurationName"), device.configurationName()},
        {QStringLiteral("options"), QJsonArray::fromStringList(device.options())},
        {QStringLiteral("parameterFiles"), parameterFiles},
        {QStringLiteral("dictionary"), toJson(device.odictFile())},
        {QStringLiteral("faultTextFile"), toJson(device.faultTextFile())},
        {QStringLiteral("fpgaFiles"), QJsonArray::fromStringList(device.fpgaFiles())},
        {QStringLiteral("opcUaEnabled"), device.isOpcUaEnabled()},
        {QStringLiteral("opcUaFiles"), toJsonArray(device.opcUaFiles())},
        {QStringLiteral("etherCatMasterFile"), toJson(device.etherCatMasterFile())},
        {QStringLiteral("files"), toJsonArray(device.additionalFiles())},
        {QStringLiteral("plugins"), toJsonArray(device.plugins())},
        {QStringLiteral("executionPlugin"), device.executionPlugin()},
        {QStringLiteral("subDevices"), toJsonArray(device.subDevices())},
    };
    return {{QStringLiteral("version"), file.currentFileVersion()},
            {QStringLiteral("description"), toJson(file.description())},
            {QStringLiteral("device"), deviceObject}};
}
