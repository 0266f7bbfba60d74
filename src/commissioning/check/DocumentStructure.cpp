#include "commissioning/check/DocumentStructure.h"

#include "vocabulary/NVornXmlTags.h"

#include <QHash>

#include <deque>

using namespace ConfigurationShape;
using namespace NVornXmlTags;

namespace DocumentStructure {

namespace {

/** The elements of the description, with the head, which belongs to the base of all XML files. */
class Structure
{
public:
    Structure()
    {
        const SNode &shape = ConfigurationShape::root();
        SElement root = parent(shape.tag, MEANING_ROOT);
        root.attributes.append(ATTR_VERSION);
        root.children.append({head(), QString()});
        for (const SNode &child : shape.children) {
            root.children.append({group(child), child.word});
        }
        m_root = kept(root);
    }
    Q_DISABLE_COPY(Structure)

    const SElement &root() const { return *m_root; }

private:
    static SElement parent(const QString &tag, EMeaning meaning = MEANING_NONE)
    {
        SElement element;
        element.tag = tag;
        element.meaning = meaning;
        return element;
    }

    const SElement *kept(const SElement &element)
    {
        m_elements.push_back(element);
        return &m_elements.back();
    }

    const SElement *text(const QString &tag)
    {
        SElement element = parent(tag);
        element.hasText = true;
        return kept(element);
    }

    const SElement *head()
    {
        SElement element = parent(TAG_HEAD, MEANING_HEAD);
        for (const QString &tag : {TAG_AUTHOR, TAG_DATE, TAG_COMMENT}) {
            element.children.append({text(tag), QString()});
        }
        return kept(element);
    }

    static EMeaning meaningOfGroup(const SNode &node)
    {
        if (&node == &ConfigurationShape::device()) {
            return MEANING_DEVICE;
        }
        if (&node == &ConfigurationShape::config()) {
            return MEANING_CONFIG;
        }
        return node.word.isEmpty() ? MEANING_OPC_UA : MEANING_DESCRIPTION;
    }

    static EMeaning meaningOfEntry(EEntry entry)
    {
        switch (entry) {
        case EEntry::DRIVE:
            return MEANING_DRIVE;
        case EEntry::PARAMETER_FILE:
            return MEANING_PARAMETER_FILE;
        case EEntry::FPGA_FILE:
            return MEANING_FPGA_FILE;
        case EEntry::PLUGIN:
            return MEANING_PLUGIN;
        case EEntry::FILE:
        case EEntry::OPC_UA_FILE:
            return MEANING_FILE;
        case EEntry::OPTION:
        case EEntry::NONE:
            break;
        }
        return MEANING_NONE;
    }

    const SElement *group(const SNode &node)
    {
        SElement element = parent(node.tag, meaningOfGroup(node));
        appendChildren(node, element);
        return kept(element);
    }

    const SElement *singleFile(const SNode &node)
    {
        SElement file =
            parent(node.entryTag, node.isBelowDevice ? MEANING_FILE_OF_DEVICE : MEANING_FILE);
        appendChildren(node, file);
        const bool isOfMaster = node.file == NvrnDeviceCore::DEVICE_FILE_ETHERCAT_MASTER;
        SElement holder = parent(node.tag, isOfMaster ? MEANING_ETHERCAT_MASTER : MEANING_NONE);
        holder.children.append({kept(file), QString()});
        return kept(holder);
    }

    const SElement *entry(const SNode &list)
    {
        SElement element = parent(list.entryTag, meaningOfEntry(list.entry));
        element.list = &list;
        appendChildren(list, element);
        return kept(element);
    }

    const SElement *list(const SNode &node)
    {
        SElement holder = parent(node.tag);
        holder.isReadDeep = node.isReadDeep;
        holder.children.append({entry(node), QString(), true});
        return kept(holder);
    }

    void appendChildren(const SNode &node, SElement &element)
    {
        for (const SNode &child : node.children) {
            const QString item =
                child.word.isEmpty() || child.isAtTop ? child.word : QLatin1Char('.') + child.word;
            switch (child.kind) {
            case EKind::GROUP:
                element.children.append({group(child), item});
                break;
            case EKind::ITEM:
                if (child.item.isAttribute) {
                    element.attributes.append(child.tag);
                } else {
                    element.children.append({text(child.tag), item});
                }
                break;
            case EKind::SINGLE_FILE:
                element.children.append({singleFile(child), item});
                break;
            case EKind::LIST:
                // Without an element of its own its entries stand among the others.
                element.children.append(child.tag.isEmpty() ? SChild{entry(child), item, true}
                                                            : SChild{list(child), item});
                break;
            case EKind::OPTIONS:
                element.children.append({text(child.tag), item});
                break;
            case EKind::ALIAS:
                break;
            }
        }
    }

    /** Elements point at each other, so that they stay where they are. */
    std::deque<SElement> m_elements;
    const SElement *m_root = nullptr;
};

using Parents = QHash<QString, QStringList>;

void collect(const SElement &element, Parents &parents)
{
    for (const SChild &child : element.children) {
        QStringList &list = parents[child.element->tag];
        if (!list.contains(element.tag)) {
            list.append(element.tag);
        }
        collect(*child.element, parents);
    }
}

Parents allParents()
{
    Parents parents;
    collect(root(), parents);
    return parents;
}

QHash<QString, QString> tagsByFoldedTag()
{
    QHash<QString, QString> tags;
    const Parents parents = allParents();
    for (auto it = parents.cbegin(); it != parents.cend(); ++it) {
        tags.insert(it.key().toCaseFolded(), it.key());
    }
    return tags;
}

} // namespace

const SElement &root()
{
    static const Structure structure;
    return structure.root();
}

QStringList parents(const QString &tag)
{
    static const Parents parents = allParents();
    return parents.value(tag);
}

QString similar(const QString &tag)
{
    static const QHash<QString, QString> tags = tagsByFoldedTag();
    return tags.value(tag.toCaseFolded());
}

} // namespace DocumentStructure
