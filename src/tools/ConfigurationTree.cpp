#include "tools/ConfigurationTree.h"

#include "commissioning/report/OverviewFiles.h"
#include "configfile/ShownItems.h"
#include "tools/ConfigurationJson.h"
#include "tools/Texts.h"

using namespace ConfigurationShape;

namespace {

using SFile = CConfigurationOverview::SFile;
using SDrive = CConfigurationOverview::SDrive;

const QString NameItem = QStringLiteral("name");
const QString CommentItem = QStringLiteral("comment");
const QString TypeItem = QStringLiteral("type");
const QString OpcUaItem = QStringLiteral("opcUaEnabled");
const QString DevicePath = QStringLiteral("device.");

QString withComment(const QString &text, const QString &comment)
{
    return comment.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, comment);
}

/** A line without anything below it. */
STreeNode leaf(const QString &text, const QString &item)
{
    return {text, {item}, {}, {}};
}

QString titled(const QString &title, const QString &value)
{
    return QStringLiteral("%1: %2").arg(title, value);
}

/** A line for each item that has another value than one that is absent. */
QList<STreeNode> lines(const QVector<SShownItem> &items)
{
    QList<STreeNode> nodes;
    for (const SShownItem &item : items) {
        if (!item.isDefault) {
            nodes.append(leaf(titled(item.title, item.value), item.path));
        }
    }
    return nodes;
}

/** @param title of its line, before a colon; empty in a list of files */
STreeNode fileNode(const SFile &file, const QString &title = QString())
{
    const QString name = withComment(file.file.fileName(), file.file.comment());
    STreeNode node = leaf(title.isEmpty() ? name : titled(title, name), file.item);
    node.files = {file.file};
    // Its directories stand in the places.
    node.children = lines(ShownItems::of(
        fileItems(), file.file, file.item,
        {NameItem, CommentItem, QStringLiteral("deviceDir"), QStringLiteral("projectDir")}));
    return node;
}

/** A file without any text is not shown. */
void addFile(QList<STreeNode> &nodes, const SFile &file)
{
    if (!withComment(file.file.fileName(), file.file.comment()).isEmpty()) {
        nodes.append(fileNode(file, capitalized(ShapePaths::noun(file.kind))));
    }
}

QList<STreeNode> fileNodes(const QList<SFile> &files)
{
    QList<STreeNode> nodes;
    for (const SFile &file : files) {
        nodes.append(fileNode(file));
    }
    return nodes;
}

QList<STreeNode> parameterFileNodes(const CConfigurationOverview &overview)
{
    QList<STreeNode> nodes;
    for (const CConfigurationOverview::SParameterFile &entry : overview.parameterFiles()) {
        STreeNode node =
            leaf(withComment(QStringLiteral("%1, %2").arg(entry.parameters.name(), entry.typeText),
                             entry.parameters.comment()),
                 entry.item);
        for (const SFile &file : entry.files) {
            node.files.append(file.file);
        }
        node.children = lines(ShownItems::of(parameterFileItems(), entry.parameters, entry.item,
                                             {NameItem, TypeItem, CommentItem}));
        nodes.append(node);
    }
    return nodes;
}

QList<STreeNode> pluginNodes(const CConfigurationOverview &overview)
{
    QList<STreeNode> nodes;
    for (const CConfigurationOverview::SPlugin &entry : overview.plugins()) {
        STreeNode node = leaf(
            QStringLiteral("%1 %2").arg(entry.plugin.name(), entry.plugin.version()), entry.item);
        if (!entry.library.isNull()) {
            node.files.append(entry.library);
        }
        node.children = lines(ShownItems::of(pluginItems(), entry.plugin, entry.item,
                                             {NameItem, QStringLiteral("version")}));
        nodes.append(node);
    }
    return nodes;
}

STreeNode driveNode(const SDrive &entry)
{
    const CSubDeviceElement &drive = entry.drive;
    const QString title =
        QStringLiteral("%1: %2, %3")
            .arg(QString::number(drive.driveId()), drive.name(), subDeviceTypeName(drive));
    STreeNode node = leaf(withComment(title, drive.comment()), entry.item);
    node.children =
        lines(ShownItems::of(driveItems(), drive, entry.item,
                             {QStringLiteral("driveNo"), NameItem, TypeItem, CommentItem}));
    for (const SFile &file : entry.files) {
        addFile(node.children, file);
    }
    return node;
}

QList<STreeNode> driveNodes(const CConfigurationOverview &overview)
{
    QList<STreeNode> nodes;
    for (const SDrive &drive : overview.drives()) {
        nodes.append(driveNode(drive));
    }
    return nodes;
}

/** Makes the lines below the device, in the order of the document. */
class DeviceLines
{
public:
    explicit DeviceLines(const CConfigurationOverview &overview)
        : m_overview(overview), m_files(OverviewFiles::singleFiles(overview)),
          // These stand in the title of the device, and beside the list that they belong to.
          m_items(lines(ShownItems::ofDevice(
              overview.device(), {NameItem, CommentItem, QStringLiteral("class"), OpcUaItem})))
    {
    }

    QList<STreeNode> make(const SNode &node)
    {
        addChildren(node);
        return m_lines;
    }

private:
    void addChildren(const SNode &node)
    {
        for (const SNode &child : node.children) {
            switch (child.kind) {
            case EKind::GROUP:
                addChildren(child);
                break;
            case EKind::ITEM:
                addItem(child);
                break;
            case EKind::SINGLE_FILE:
                addSingleFile(child);
                break;
            case EKind::LIST:
                addList(child);
                break;
            case EKind::OPTIONS:
                addOptions(child);
                break;
            case EKind::ALIAS:
                break;
            }
        }
    }

    void addItem(const SNode &node)
    {
        const QString path = DevicePath + node.word;
        for (const STreeNode &line : m_items) {
            if (line.items.contains(path)) {
                m_lines.append(line);
            }
        }
    }

    void addSingleFile(const SNode &node)
    {
        for (const SFile &file : m_files) {
            if (file.kind == node.file) {
                addFile(m_lines, file);
            }
        }
    }

    /** All options stand on one line. */
    void addOptions(const SNode &node)
    {
        QStringList texts;
        QStringList items = {ShapePaths::list(node.entry)};
        for (const CConfigurationOverview::SOption &option : m_overview.options()) {
            texts.append(option.text);
            items.append(option.item);
        }
        if (!texts.isEmpty()) {
            m_lines.append(
                {titled(title(node.heading), texts.join(QLatin1Char(' '))), items, {}, {}});
        }
    }

    void addList(const SNode &node)
    {
        const QList<STreeNode> children = entries(node.entry);
        const bool isOpcUa = node.entry == EEntry::OPC_UA_FILE;
        if (!children.isEmpty() || (isOpcUa && m_overview.device().isOpcUaEnabled())) {
            QStringList items = {ShapePaths::list(node.entry)};
            if (isOpcUa) {
                items.append(DevicePath + OpcUaItem);
            } else if (node.entry == EEntry::FPGA_FILE) {
                items.append(DevicePath + ShapePaths::word(EValue::ACTIVE_FPGA_FILE));
            }
            m_lines.append({heading(node), items, {}, children});
        }
    }

    QList<STreeNode> entries(EEntry entry) const
    {
        switch (entry) {
        case EEntry::PARAMETER_FILE:
            return parameterFileNodes(m_overview);
        case EEntry::FPGA_FILE:
            return fileNodes(m_overview.fpgaFiles());
        case EEntry::OPC_UA_FILE:
            return fileNodes(m_overview.opcUaFiles());
        case EEntry::FILE:
            return fileNodes(m_overview.additionalFiles());
        case EEntry::PLUGIN:
            return pluginNodes(m_overview);
        case EEntry::DRIVE:
            return driveNodes(m_overview);
        case EEntry::OPTION:
        case EEntry::NONE:
            break;
        }
        return {};
    }

    QString heading(const SNode &node) const
    {
        switch (node.entry) {
        case EEntry::FPGA_FILE:
            return Texts::tr("FPGA images, the active one first");
        case EEntry::OPC_UA_FILE:
            return m_overview.device().isOpcUaEnabled() ? Texts::tr("OPC UA, enabled")
                                                        : Texts::tr("OPC UA, disabled");
        default:
            return title(node.heading);
        }
    }

    const CConfigurationOverview &m_overview;
    const QList<SFile> m_files;
    const QList<STreeNode> m_items;
    QList<STreeNode> m_lines;
};

STreeNode deviceNode(const CConfigurationOverview &overview)
{
    const CDeviceElement &device = overview.device();
    const QString title =
        Texts::tr("Device %1, class %2")
            .arg(device.name(), CDeviceElement::deviceClassString(device.deviceClass()));
    STreeNode node = leaf(withComment(title, device.comment()), QStringLiteral("device"));
    node.children = DeviceLines(overview).make(*ShapePaths::find(QStringLiteral("device")));
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
    const QString path = QStringLiteral("description");
    STreeNode root = {
        withComment(Texts::tr("Configuration %1").arg(description.name()), description.comment()),
        {QString(), path},
        {},
        lines(ShownItems::of(descriptionItems(), description, path, {NameItem, CommentItem}))};
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
