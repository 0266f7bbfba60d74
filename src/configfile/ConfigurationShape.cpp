#include "configfile/ConfigurationShape.h"

#include "vocabulary/NVornXmlTags.h"

#include <QCoreApplication>

#include <algorithm>

using namespace ConfigurationShape;
using namespace NVornXmlTags;
using namespace NvrnDeviceCore;

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
Nodes listedFileNodes(EValue key = EValue::KEY_NAME)
{
    Nodes result = nodes(fileItems());
    result.first().item.value = key;
    return result;
}

/** An entry that has nothing but its name. */
Nodes nameNodes(EValue key = EValue::KEY_NAME)
{
    return listedFileNodes(key).mid(0, 1);
}

template <typename Element>
SNode node(const SFileField<Element> &field)
{
    SNode result;
    result.kind = EKind::SINGLE_FILE;
    result.tag = field.tag;
    result.word = field.word;
    result.text = field.text;
    result.entryTag = TAG_FILE;
    result.isOfKd2Only = field.isOfKd2Only;
    result.isBelowDevice = field.isBelowDevice;
    result.file = field.kind;
    result.children = nodes(fileItems());
    return result;
}

template <typename Element>
SNode fileNode(const QVector<SFileField<Element>> &fields, const QString &tag)
{
    return node(*find(fields, tag));
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

const SNode &child(const SNode &node, const QString &tag)
{
    return *std::find_if(node.children.begin(), node.children.end(),
                         [&tag](const SNode &candidate) { return candidate.tag == tag; });
}

SNode optionsNode()
{
    SNode result =
        list(TAG_OPTIONS, "options", QT_TRANSLATE_NOOP("ConfigurationShape", "option %1"),
             QT_TRANSLATE_NOOP("ConfigurationShape", "start options"), EEntry::OPTION, QString(),
             nameNodes(EValue::KEY_OPTION));
    result.kind = EKind::OPTIONS;
    result.item.value = EValue::OPTION_ARGUMENT;
    return result;
}

SNode activeFpgaFileNode()
{
    SItem item;
    item.word = QStringLiteral("activeFpgaFile");
    item.tag = TAG_FPGA_FILES;
    item.value = EValue::ACTIVE_FPGA_FILE;
    item.text = QT_TRANSLATE_NOOP("ConfigurationShape", "active FPGA image");
    SNode result = node(item);
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
                     TAG_FILE, nameNodes()),
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
    Nodes children = nodes(driveItems());
    for (const SFileField<CSubDeviceElement> &file : driveFiles()) {
        children.append(node(file));
    }
    SNode result =
        atTop(list(QString(), "drive", QT_TRANSLATE_NOOP("ConfigurationShape", "drive %1"),
                   QT_TRANSLATE_NOOP("ConfigurationShape", "drives"), EEntry::DRIVE, TAG_SUB_DEVICE,
                   children));
    result.listedFirst = QStringList(result.key().word);
    return result;
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

const SNode &ConfigurationShape::device()
{
    static const SNode &node = child(root(), TAG_DEVICE);
    return node;
}

const SNode &ConfigurationShape::config()
{
    static const SNode &node = child(device(), TAG_CONFIG);
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
