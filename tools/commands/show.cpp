#include "configfile/CDeviceConfigurationFile10.h"
#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

/** A node of the printed tree. */
struct SNode {
    QString text;
    QList<SNode> children;
};

void print(const QList<SNode> &nodes, const QString &indent, QTextStream &out)
{
    for (int i = 0; i < nodes.size(); ++i) {
        const bool last = i == nodes.size() - 1;
        out << indent << (last ? QStringLiteral("└─ ") : QStringLiteral("├─ ")) << nodes.at(i).text
            << '\n';
        print(nodes.at(i).children, indent + (last ? QStringLiteral("   ") : QStringLiteral("│  ")),
              out);
    }
}

QString withComment(const QString &text, const QString &comment)
{
    return comment.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, comment);
}

QString text(const CFileElement &file)
{
    return withComment(file.fileName(), file.comment());
}

void addGroup(QList<SNode> &nodes, const QString &title, const QList<SNode> &children)
{
    if (!children.isEmpty()) {
        nodes.append({title, children});
    }
}

void addLine(QList<SNode> &nodes, const QString &title, const QString &value)
{
    if (!value.isEmpty()) {
        nodes.append({QStringLiteral("%1: %2").arg(title, value), {}});
    }
}

template <typename List, typename ToText>
QList<SNode> leaves(const List &list, ToText toText)
{
    QList<SNode> nodes;
    for (const auto &item : list) {
        nodes.append({toText(item), {}});
    }
    return nodes;
}

SNode subDeviceNode(const CSubDeviceElement &subDevice)
{
    SNode node = {withComment(QStringLiteral("%1: %2, %3")
                                  .arg(subDevice.driveId())
                                  .arg(subDevice.name(), subDeviceTypeName(subDevice)),
                              subDevice.comment()),
                  {}};
    addLine(node.children, QStringLiteral("Hardware"), subDevice.hardwareIdStr());
    if (subDevice.busId() != 0) {
        addLine(node.children, QStringLiteral("Bus"), QString::number(subDevice.busId()));
    }
    addLine(node.children, QStringLiteral("Parameters"), text(subDevice.parameterFile()));
    const CSubDeviceKD2Element kd2 = subDevice.toKD2();
    addLine(node.children, QStringLiteral("Firmware"), text(kd2.kd2FirmwareFile()));
    addLine(node.children, QStringLiteral("Logic"), text(kd2.kd2LogicFile()));
    addLine(node.children, QStringLiteral("Drive parameters"), text(kd2.kd2ParameterFile()));
    return node;
}

SNode deviceNode(const CDeviceElement &device, const CDeviceConfigurationFile10 &texts)
{
    SNode node = {withComment(QStringLiteral("Device %1, class %2")
                                  .arg(device.name(), texts.deviceClassToStr(device.deviceClass())),
                              device.comment()),
                  {}};
    QList<SNode> &children = node.children;
    addLine(children, QStringLiteral("Hardware"), device.hardwareIdStr());
    addLine(children, QStringLiteral("Configuration"), device.configurationName());
    addLine(children, QStringLiteral("Options"), device.options().join(QLatin1Char(' ')));
    addGroup(children, QStringLiteral("Parameter files"),
             leaves(device.parameterFiles(), [&texts](const CParamFileElement &file) {
                 return withComment(
                     QStringLiteral("%1, %2").arg(file.name(), texts.typeToStr(file.type())),
                     file.comment());
             }));
    addLine(children, QStringLiteral("Object dictionary"), text(device.odictFile()));
    addLine(children, QStringLiteral("Fault texts"), text(device.faultTextFile()));
    addGroup(children, QStringLiteral("FPGA images, the active one first"),
             leaves(device.fpgaFiles(), [](const QString &fileName) { return fileName; }));
    addGroup(
        children,
        QStringLiteral("OPC UA, %1")
            .arg(device.isOpcUaEnabled() ? QStringLiteral("enabled") : QStringLiteral("disabled")),
        leaves(device.opcUaFiles(), text));
    addLine(children, QStringLiteral("EtherCAT master"), text(device.etherCatMasterFile()));
    addGroup(children, QStringLiteral("Additional files"), leaves(device.additionalFiles(), text));
    addGroup(children, QStringLiteral("Plug-ins"),
             leaves(device.plugins(), [](const CPluginElement &plugin) {
                 return QStringLiteral("%1 %2").arg(plugin.name(), plugin.version());
             }));
    addLine(children, QStringLiteral("Execution plug-in"), device.executionPlugin());
    QList<SNode> subDevices;
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        subDevices.append(subDeviceNode(subDevice));
    }
    addGroup(children, QStringLiteral("Sub-devices"), subDevices);
    return node;
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("The configuration to show."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
}

int run(const CommandLine &line)
{
    CDeviceConfigurationFile10 file(nullptr);
    if (!openConfiguration(line.argument(0), file)) {
        return EXIT_UNREADABLE_INPUT;
    }
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(file));
        return out.finish();
    }
    const CDescriptionElement description = file.description();
    out.stream() << withComment(QStringLiteral("Configuration %1").arg(description.name()),
                                description.comment())
                 << '\n';
    CDeviceElement device;
    if (file.configuration(device)) {
        print({deviceNode(device, file)}, QString(), out.stream());
    }
    return out.finish();
}

const CommandRegistration
    Registration("show", QT_TRANSLATE_NOOP("vrndevice", "Show a configuration as a tree."),
                 describe, run);

} // namespace
