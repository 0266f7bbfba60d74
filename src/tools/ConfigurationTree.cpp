#include "tools/ConfigurationTree.h"

#include "tools/ConfigurationJson.h"
#include "tools/Texts.h"

namespace {

using SFile = CConfigurationOverview::SFile;
using SDrive = CConfigurationOverview::SDrive;

QString withComment(const QString &text, const QString &comment)
{
    return comment.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, comment);
}

QString text(const CFileElement &file)
{
    return withComment(file.fileName(), file.comment());
}

STreeNode titled(const QString &title, const QString &value, const QStringList &items)
{
    return {QStringLiteral("%1: %2").arg(title, value), items, {}, {}};
}

void addLine(QList<STreeNode> &nodes, const QString &title, const QString &value,
             const QString &item)
{
    if (!value.isEmpty()) {
        nodes.append(titled(title, value, {item}));
    }
}

void addFile(QList<STreeNode> &nodes, const QString &title, const SFile &file)
{
    const QString name = text(file.file);
    if (!name.isEmpty()) {
        nodes.append(titled(title, name, {file.item}));
        nodes.last().files = {file.file};
    }
}

void addGroup(QList<STreeNode> &nodes, const QString &title, const QStringList &items,
              const QList<STreeNode> &children)
{
    if (!children.isEmpty()) {
        nodes.append({title, items, {}, children});
    }
}

QList<STreeNode> leaves(const QList<SFile> &files)
{
    QList<STreeNode> nodes;
    for (const SFile &file : files) {
        nodes.append({text(file.file), {file.item}, {file.file}, {}});
    }
    return nodes;
}

QList<STreeNode> parameterFiles(const CConfigurationOverview &overview)
{
    QList<STreeNode> nodes;
    for (const CConfigurationOverview::SParameterFile &entry : overview.parameterFiles()) {
        STreeNode node = {
            withComment(QStringLiteral("%1, %2").arg(entry.parameters.name(), entry.typeText),
                        entry.parameters.comment()),
            {entry.item},
            {},
            {}};
        for (const SFile &file : entry.files) {
            node.files.append(file.file);
        }
        nodes.append(node);
    }
    return nodes;
}

QList<STreeNode> plugins(const CConfigurationOverview &overview)
{
    QList<STreeNode> nodes;
    for (const CConfigurationOverview::SPlugin &entry : overview.plugins()) {
        STreeNode node = {QStringLiteral("%1 %2").arg(entry.plugin.name(), entry.plugin.version()),
                          {entry.item},
                          {},
                          {}};
        if (!entry.library.isNull()) {
            node.files.append(entry.library);
        }
        nodes.append(node);
    }
    return nodes;
}

/** All options stand on one line. */
void addOptions(QList<STreeNode> &nodes, const CConfigurationOverview &overview)
{
    QStringList texts;
    QStringList items = {QStringLiteral("device.options")};
    for (const CConfigurationOverview::SOption &option : overview.options()) {
        texts.append(option.text);
        items.append(option.item);
    }
    if (!texts.isEmpty()) {
        nodes.append(titled(Texts::tr("Options"), texts.join(QLatin1Char(' ')), items));
    }
}

QString titleOf(NvrnDeviceCore::EDeviceFile kind)
{
    switch (kind) {
    case NvrnDeviceCore::DEVICE_FILE_KD2_FIRMWARE:
        return Texts::tr("Firmware");
    case NvrnDeviceCore::DEVICE_FILE_KD2_LOGIC:
        return Texts::tr("Logic");
    case NvrnDeviceCore::DEVICE_FILE_KD2_PARAMETERS:
        return Texts::tr("Drive parameters");
    default:
        return Texts::tr("Parameters");
    }
}

STreeNode driveNode(const SDrive &entry)
{
    const CSubDeviceElement &drive = entry.drive;
    STreeNode node = {withComment(QStringLiteral("%1: %2, %3")
                                      .arg(QString::number(drive.driveId()), drive.name(),
                                           subDeviceTypeName(drive)),
                                  drive.comment()),
                      {entry.item},
                      {},
                      {}};
    addLine(node.children, Texts::tr("Hardware"), drive.hardwareIdStr(),
            entry.item + QStringLiteral(".hardwareId"));
    if (drive.busId() != 0) {
        addLine(node.children, Texts::tr("Bus"), QString::number(drive.busId()),
                entry.item + QStringLiteral(".busId"));
    }
    for (const SFile &file : entry.files) {
        addFile(node.children, titleOf(file.kind), file);
    }
    return node;
}

STreeNode deviceNode(const CConfigurationOverview &overview)
{
    const CDeviceElement &device = overview.device();
    STreeNode node = {withComment(Texts::tr("Device %1, class %2")
                                      .arg(device.name(),
                                           CDeviceElement::deviceClassString(device.deviceClass())),
                                  device.comment()),
                      {QStringLiteral("device")},
                      {},
                      {}};
    QList<STreeNode> &children = node.children;
    addLine(children, Texts::tr("Hardware"), device.hardwareIdStr(),
            QStringLiteral("device.hardwareId"));
    addLine(children, Texts::tr("Configuration"), device.configurationName(),
            QStringLiteral("device.configurationName"));
    addOptions(children, overview);
    addGroup(children, Texts::tr("Parameter files"), {QStringLiteral("device.parameterFiles")},
             parameterFiles(overview));
    addFile(children, Texts::tr("Object dictionary"), overview.dictionary());
    addFile(children, Texts::tr("Fault texts"), overview.faultTexts());
    addGroup(children, Texts::tr("FPGA images, the active one first"),
             {QStringLiteral("device.fpgaFiles"), QStringLiteral("device.activeFpgaFile")},
             leaves(overview.fpgaFiles()));
    addGroup(children,
             device.isOpcUaEnabled() ? Texts::tr("OPC UA, enabled") : Texts::tr("OPC UA, disabled"),
             {QStringLiteral("device.opcUaFiles"), QStringLiteral("device.opcUaEnabled")},
             leaves(overview.opcUaFiles()));
    addFile(children, Texts::tr("EtherCAT master"), overview.etherCatMaster());
    addGroup(children, Texts::tr("Additional files"), {QStringLiteral("files")},
             leaves(overview.additionalFiles()));
    addGroup(children, Texts::tr("Plug-ins"), {QStringLiteral("device.plugins")},
             plugins(overview));
    addLine(children, Texts::tr("Execution plug-in"), device.executionPlugin(),
            QStringLiteral("device.executionPlugin"));
    QList<STreeNode> drives;
    for (const SDrive &drive : overview.drives()) {
        drives.append(driveNode(drive));
    }
    addGroup(children, Texts::tr("Drives"), {QStringLiteral("drive")}, drives);
    return node;
}

using Print = std::function<void(const STreeNode &, const QString &, const QString &)>;

void visitChildren(const QList<STreeNode> &nodes, const QString &indent, const Print &print)
{
    const QString line = QStringLiteral("│  ");
    const QString blank = QStringLiteral("   ");
    for (int i = 0; i < nodes.size(); ++i) {
        const bool isLast = i == nodes.size() - 1;
        const STreeNode &node = nodes.at(i);
        const QString below = indent + (isLast ? blank : line);
        print(node, indent + (isLast ? QStringLiteral("└─ ") : QStringLiteral("├─ ")),
              below + (node.children.isEmpty() ? blank : line));
        visitChildren(node.children, below, print);
    }
}

} // namespace

STreeNode configurationTree(const CConfigurationOverview &overview)
{
    const CDescriptionElement &description = overview.description();
    STreeNode root = {
        withComment(Texts::tr("Configuration %1").arg(description.name()), description.comment()),
        {QString(), QStringLiteral("description")},
        {},
        {}};
    if (overview.hasDevice()) {
        root.children.append(deviceNode(overview));
    }
    return root;
}

void visitTree(const STreeNode &root, const Print &print)
{
    print(root, QString(), root.children.isEmpty() ? QStringLiteral("   ") : QStringLiteral("│  "));
    visitChildren(root.children, QString(), print);
}
