#include "commissioning/CConfigurationItems.h"

#include "commissioning/items/ItemPath.h"
#include "commissioning/items/NearestName.h"
#include "elements/CDeviceElement.h"
#include "vocabulary/NVornXmlTags.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>

using namespace NVornXmlTags;
using ItemPath::joined;

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationItems)
};

const QLatin1Char Hyphen('-');

const QString Kd2Drive = QStringLiteral("KD2_drive");
const QString Kd3Drive = QStringLiteral("KD3_drive");
/** 255 means "no drive number" elsewhere. */
const uint LargestNewDriveNumber = 254;
const uint LargestDriveNumber = 255;

enum class EKind {
    /** An element with items in it. */
    GROUP,
    /** The "File" of a holder, which has no other entry. */
    SINGLE_FILE,
    LIST,
    /** A list that is one text. */
    OPTIONS,
    ITEM,
    /** An item that is an attribute of the element around it. */
    ATTRIBUTE_ITEM
};

/** What an item takes. */
enum class EValue {
    TEXT,
    DATE,
    DEVICE_CLASS,
    HARDWARE_ID,
    BOOLEAN,
    UNSIGNED_NUMBER,
    SIGNED_NUMBER,
    PARAM_FILE_TYPE,
    DRIVE_TYPE,
    DEVICE_DIRECTORY,
    PROJECT_DIRECTORY,
    ACTIVE_FPGA_FILE,
    /** The key of an entry, so that no other entry of the list may have it. */
    KEY_NAME,
    KEY_DRIVE_NUMBER
};

/** What the entries of a list are. */
enum class EEntry { NONE, DRIVE, PARAM_FILE, FILE, FPGA_FILE, OPC_UA_FILE, PLUGIN, OPTION };

/** One word of a path, and how the document holds what it names. */
struct SNode {
    QString word;
    EKind kind = EKind::ITEM;
    /** From the element of the node around it to its own, each the first child of that name. */
    QStringList tags;
    EValue value = EValue::TEXT;
    EEntry entry = EEntry::NONE;
    bool isOfKd2Only = false;
    /** Of a list: what each of its entries has, its key first. */
    QVector<SNode> children;

    bool isList() const { return kind == EKind::LIST || kind == EKind::OPTIONS; }
    bool isItem() const { return kind == EKind::ITEM || kind == EKind::ATTRIBUTE_ITEM; }
    bool isKey() const { return value == EValue::KEY_NAME || value == EValue::KEY_DRIVE_NUMBER; }
};

SNode item(const QString &word, const QStringList &tags, EValue value = EValue::TEXT)
{
    SNode node;
    node.word = word;
    node.tags = tags;
    node.value = value;
    return node;
}

SNode attribute(EValue value)
{
    SNode node = item(QStringLiteral("type"), {}, value);
    node.kind = EKind::ATTRIBUTE_ITEM;
    return node;
}

SNode nameItem(EValue value = EValue::TEXT)
{
    return item(QStringLiteral("name"), {TAG_NAME}, value);
}

SNode commentItem()
{
    return item(QStringLiteral("comment"), {TAG_COMMENT});
}

QVector<SNode> fileItems(EValue nameValue)
{
    return {nameItem(nameValue), commentItem(),
            item(QStringLiteral("deviceDir"), {TAG_DEVICE_DIR}, EValue::DEVICE_DIRECTORY),
            item(QStringLiteral("projectDir"), {TAG_PROJECT_DIR}, EValue::PROJECT_DIRECTORY)};
}

SNode group(const QString &word, const QStringList &tags, const QVector<SNode> &children)
{
    SNode node;
    node.word = word;
    node.kind = EKind::GROUP;
    node.tags = tags;
    node.children = children;
    return node;
}

SNode singleFile(const QString &word, const QStringList &holder)
{
    SNode node = group(word, holder + QStringList(TAG_FILE), fileItems(EValue::TEXT));
    node.kind = EKind::SINGLE_FILE;
    return node;
}

SNode kd2File(const QString &word, const QString &holder)
{
    SNode node = singleFile(word, {holder});
    node.isOfKd2Only = true;
    return node;
}

SNode list(const QString &word, const QStringList &tags, EEntry entry,
           const QVector<SNode> &children)
{
    SNode node = group(word, tags, children);
    node.kind = EKind::LIST;
    node.entry = entry;
    return node;
}

SNode optionList()
{
    SNode node = list(QStringLiteral("options"), {TAG_CONFIG, TAG_OPTIONS}, EEntry::OPTION,
                      {nameItem(EValue::KEY_NAME)});
    node.kind = EKind::OPTIONS;
    return node;
}

SNode descriptionNode()
{
    return group(QStringLiteral("description"), {TAG_DESCRIPTION},
                 {nameItem(), commentItem(), item(QStringLiteral("version"), {TAG_VERSION}),
                  item(QStringLiteral("creationDate"), {TAG_CREATIONDATE}, EValue::DATE),
                  item(QStringLiteral("revisionDate"), {TAG_REVISIONDATE}, EValue::DATE)});
}

SNode hardwareIdItem()
{
    return item(QStringLiteral("hardwareId"), {TAG_HARDWAREID}, EValue::HARDWARE_ID);
}

SNode deviceNode()
{
    return group(
        QStringLiteral("device"), {TAG_DEVICE},
        {nameItem(), commentItem(),
         item(QStringLiteral("class"), {TAG_CLASS}, EValue::DEVICE_CLASS), hardwareIdItem(),
         item(QStringLiteral("configurationName"), {TAG_CONFIGNAME}),
         item(QStringLiteral("executionPlugin"), {TAG_CONFIG, TAG_EXECUTIONPLUGIN}),
         item(QStringLiteral("opcUaEnabled"), {TAG_CONFIG, TAG_OPCUA, TAG_OPCUA_ENABLED},
              EValue::BOOLEAN),
         item(QStringLiteral("activeFpgaFile"), {TAG_CONFIG, TAG_FPGA_FILES, TAG_FILE, TAG_NAME},
              EValue::ACTIVE_FPGA_FILE),
         optionList(),
         list(QStringLiteral("parameterFiles"), {TAG_CONFIG, TAG_PARAMETERFILES},
              EEntry::PARAM_FILE,
              {nameItem(EValue::KEY_NAME), attribute(EValue::PARAM_FILE_TYPE), commentItem()}),
         singleFile(QStringLiteral("dictionary"), {TAG_CONFIG, TAG_DICTIONARY}),
         singleFile(QStringLiteral("faultTextFile"), {TAG_CONFIG, TAG_FAULTTEXT_FILE}),
         singleFile(QStringLiteral("etherCatMasterFile"), {TAG_CONFIG, TAG_ETHERCATMASTER}),
         list(QStringLiteral("fpgaFiles"), {TAG_CONFIG, TAG_FPGA_FILES}, EEntry::FPGA_FILE,
              {nameItem(EValue::KEY_NAME)}),
         list(QStringLiteral("opcUaFiles"), {TAG_CONFIG, TAG_OPCUA, TAG_OPCUA_FILES},
              EEntry::OPC_UA_FILE, fileItems(EValue::KEY_NAME)),
         list(QStringLiteral("plugins"), {TAG_CONFIG, TAG_PLUGINS}, EEntry::PLUGIN,
              {nameItem(EValue::KEY_NAME), item(QStringLiteral("version"), {TAG_VERSION}),
               item(QStringLiteral("priority"), {TAG_PRIORITY}, EValue::SIGNED_NUMBER)})});
}

SNode driveNode()
{
    return list(QStringLiteral("drive"), {TAG_DEVICE}, EEntry::DRIVE,
                {item(QStringLiteral("driveNo"), {TAG_DRIVE_NO}, EValue::KEY_DRIVE_NUMBER),
                 attribute(EValue::DRIVE_TYPE), hardwareIdItem(), nameItem(), commentItem(),
                 item(QStringLiteral("busId"), {TAG_BUS_ID}, EValue::UNSIGNED_NUMBER),
                 singleFile(QStringLiteral("param"), {TAG_PARAM}),
                 kd2File(QStringLiteral("kd2Param"), TAG_KD2_PARAM),
                 kd2File(QStringLiteral("kd2Logic"), TAG_KD2_LOGIC),
                 kd2File(QStringLiteral("kd2Firmware"), TAG_KD2_FIRMWARE)});
}

/** What a path can begin with. */
const SNode &model()
{
    static const SNode root =
        group(QString(), {},
              {descriptionNode(), deviceNode(), driveNode(),
               list(QStringLiteral("files"), {TAG_DEVICE, TAG_CONFIG, TAG_FILES}, EEntry::FILE,
                    fileItems(EValue::KEY_NAME))});
    return root;
}

QString missingEntry(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: the drive does not exist").arg(path);
    case EEntry::PARAM_FILE:
        return Texts::tr("%1: the parameter file does not exist").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: the FPGA image does not exist").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: the OPC UA file does not exist").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: the plug-in does not exist").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: the option does not exist").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: the file does not exist").arg(path);
}

QString presentEntry(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: the drive already exists").arg(path);
    case EEntry::PARAM_FILE:
        return Texts::tr("%1: the parameter file already exists").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: the FPGA image already exists").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: the OPC UA file already exists").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: the plug-in already exists").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: the option already exists").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: the file already exists").arg(path);
}

/** The first character that XML cannot carry; -1 when there is none. */
int indexOfUnwritable(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        const bool isControl = unit < ' ' && unit != '\t' && unit != '\n' && unit != '\r';
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isControl || unit == 0xFFFE || unit == 0xFFFF
            || (text.at(i).isSurrogate() && !isPair)) {
            return i;
        }
        i += isPair ? 1 : 0;
    }
    return -1;
}

/** The drive number that @p text tells, as readers of the document take it; else the text. */
QString driveKey(const QString &text)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    return isNumber && number <= LargestDriveNumber ? QString::number(number) : text;
}

/**
 * The start options in their one text, taken apart without losing how they stand there: each begins
 * at a "-" at the start or behind white space, and reaches to the next.
 */
class OptionText
{
public:
    struct SOption {
        QString name;
        QString argument;
        /** The name begins here, and all that belongs to the option ends there. */
        int begin = 0;
        int end = 0;
    };

    explicit OptionText(const QString &text) : m_text(text)
    {
        int index = skipBlanks(0);
        while (index < text.size()) {
            SOption option;
            option.begin = index;
            int end = wordEnd(index);
            option.name = text.mid(index, end - index);
            const int argument = skipBlanks(end);
            for (index = argument; index < text.size() && text.at(index) != Hyphen;) {
                end = wordEnd(index);
                index = skipBlanks(end);
            }
            option.end = end;
            option.argument = text.mid(argument, std::max(0, end - argument));
            m_options.append(option);
        }
    }

    QList<SOption> options() const { return m_options; }

    QString with(const QString &option) const
    {
        return m_text.isEmpty() ? option : m_text + QLatin1Char(' ') + option;
    }

    QString replaced(const SOption &option, const QString &name, const QString &argument) const
    {
        const QString text = argument.isEmpty() ? name : name + QLatin1Char(' ') + argument;
        return m_text.left(option.begin) + text + m_text.mid(option.end);
    }

    QString without(const SOption &option) const
    {
        // With the white space on one side, so that the others stand as they stood.
        const int next = skipBlanks(option.end);
        if (next < m_text.size()) {
            return m_text.left(option.begin) + m_text.mid(next);
        }
        int before = option.begin;
        while (before > 0 && m_text.at(before - 1).isSpace()) {
            --before;
        }
        return m_text.left(before);
    }

private:
    int skipBlanks(int index) const
    {
        while (index < m_text.size() && m_text.at(index).isSpace()) {
            ++index;
        }
        return index;
    }

    int wordEnd(int index) const
    {
        while (index < m_text.size() && !m_text.at(index).isSpace()) {
            ++index;
        }
        return index;
    }

    const QString m_text;
    QList<SOption> m_options;
};

QDomElement followed(QDomElement element, const QStringList &tags)
{
    for (const QString &tag : tags) {
        element = element.firstChildElement(tag);
    }
    return element;
}

/** The next element behind @p element in the document, inside @p top; null at the end. */
QDomElement nextInside(const QDomElement &top, const QDomElement &element)
{
    const QDomElement child = element.firstChildElement();
    if (!child.isNull()) {
        return child;
    }
    for (QDomElement current = element; current != top;
         current = current.parentNode().toElement()) {
        const QDomElement sibling = current.nextSiblingElement();
        if (!sibling.isNull()) {
            return sibling;
        }
    }
    return QDomElement();
}

bool isKd2(const QDomElement &drive)
{
    return drive.attribute(ATTR_TYPE) == Kd2Drive;
}

/** What a path names. */
struct SPlace {
    const SNode *node = nullptr;
    /** The list, when the node is the key of one of its entries. */
    const SNode *list = nullptr;
    /** As it is written, whatever way it was given. */
    QString path;
    /** That of the list in which the path led to an entry. */
    QString listPath;
    /** An element that is there, and the elements that lead on from it, there or not. */
    QDomElement anchor;
    QStringList tags;
    /** Whether the path ends in a key. */
    bool isEntry = false;
    /** That key, also when its entry is not there. */
    SItemPathStep entry;
    bool isAbsent = false;
    /** Of a start option or its name: its position among all of them. */
    int option = -1;

    QDomElement element() const { return followed(anchor, tags); }
    bool isFpgaEntry() const { return isEntry && node->entry == EEntry::FPGA_FILE; }
    bool hasValue() const { return node->isItem() || option >= 0 || isFpgaEntry(); }
};

} // namespace

class CConfigurationItemsPrivate
{
public:
    /** Where entries and items are collected; one that is null is not wanted. */
    struct SLists {
        QList<CConfigurationItems::SItem> *items = nullptr;
        QStringList *entries = nullptr;
    };

    explicit CConfigurationItemsPrivate(CDeviceConfigurationFile10 &configuration)
        : file(configuration)
    {
    }

    bool fail(const QString &text)
    {
        errorText = text;
        return false;
    }

    /**
     * Finds what a path names. @p entryMayBeAbsent lets the path of an entry that is not there
     * through, when its list could be there: the place is then that of the list.
     */
    bool resolve(const QString &path, SPlace &place, bool entryMayBeAbsent = false);
    bool isThere(const SPlace &place) const;
    QString text(const SPlace &place) const;

    void listChildren(const SNode &node, const QDomElement &element, const QString &path,
                      const SLists &lists) const;
    void listNode(const SNode &node, const QDomElement &element, const QString &path,
                  const SLists &lists) const;
    void listEntry(const SNode &node, const QDomElement &entry, const QString &path,
                   const SLists &lists) const;
    void list(const SPlace &place, const SLists &lists) const;

    bool failWithoutValue(const SPlace &place);
    bool failAbsent(const SPlace &place);

    /** Whether the item takes @p value, which is brought into the form in which it is stored. */
    bool accepts(const SPlace &place, QString &value);
    bool acceptsText(const QString &path, const QString &value);
    bool acceptsKey(const SNode &list, const QString &path, const QString &key);
    bool acceptsArgument(const QString &path, const QString &argument);
    bool isKeyFree(const SPlace &place, const QString &key);

    QDomElement created(const SPlace &place);
    void setOption(const SPlace &place, const QString &value);
    void addEntry(const SPlace &place);
    void addDrive(quint8 number);
    void removeOption(const SPlace &place);

    CDeviceConfigurationFile10 &file;
    QString errorText;

private:
    bool step(const SItemPathStep &given, SPlace &place, bool entryMayBeAbsent);
    bool findEntry(const SItemPathStep &segment, SPlace &place);
    bool failUnknownWord(const SPlace &place, const QString &path, const QString &word);
    QString key(const SNode &list, const QDomElement &entry) const;
    bool isEntry(const SNode &list, const QDomElement &element) const;
    template <typename Visit>
    void visitCandidates(const SNode &list, const QDomElement &element, Visit visit) const;
    template <typename Visit>
    void visitEntries(const SNode &list, const QDomElement &element, Visit visit) const;
    QDomElement child(const QDomElement &parent, const QString &tag);
};

QString CConfigurationItemsPrivate::key(const SNode &list, const QDomElement &entry) const
{
    const QString text = file.getNodeValue(followed(entry, list.children.first().tags));
    return list.entry == EEntry::DRIVE ? driveKey(text) : text;
}

/** Whether readers of the document take @p element for an entry of the list. */
bool CConfigurationItemsPrivate::isEntry(const SNode &list, const QDomElement &element) const
{
    switch (list.entry) {
    case EEntry::DRIVE:
        return element.tagName() == TAG_SUB_DEVICE;
    case EEntry::PLUGIN:
        return element.tagName() == TAG_PLUGIN;
    case EEntry::FPGA_FILE:
        return element.tagName() == TAG_FILE;
    case EEntry::PARAM_FILE: {
        CParamFileElement entry;
        file.paramFileElement(entry, element);
        return !entry.isNull();
    }
    case EEntry::FILE:
    case EEntry::OPC_UA_FILE: {
        CFileElement entry;
        file.fileElement(entry, element);
        return !entry.isNull();
    }
    case EEntry::OPTION:
    case EEntry::NONE:
        break;
    }
    return false;
}

/** Calls @p visit with what may be an entry, in the order of the document, until it returns false.
 */
template <typename Visit>
void CConfigurationItemsPrivate::visitCandidates(const SNode &list, const QDomElement &element,
                                                 Visit visit) const
{
    // Readers find these two at any depth below their list.
    const bool isDeep = list.entry == EEntry::PARAM_FILE || list.entry == EEntry::PLUGIN;
    QDomElement candidate = element.firstChildElement();
    while (!candidate.isNull() && visit(candidate)) {
        candidate = isDeep ? nextInside(element, candidate) : candidate.nextSiblingElement();
    }
}

/** As visitCandidates(), with the entries alone. */
template <typename Visit>
void CConfigurationItemsPrivate::visitEntries(const SNode &list, const QDomElement &element,
                                              Visit visit) const
{
    visitCandidates(list, element, [&](const QDomElement &candidate) {
        return !isEntry(list, candidate) || visit(candidate);
    });
}

bool CConfigurationItemsPrivate::failUnknownWord(const SPlace &place, const QString &path,
                                                 const QString &word)
{
    QStringList words;
    for (const SNode &child : place.node->children) {
        if (!child.isOfKd2Only || isKd2(place.element())) {
            words.append(child.word);
        }
    }
    if (words.isEmpty() || place.node->isItem()) {
        return fail(Texts::tr("%1: unknown item").arg(path));
    }
    const QString meant = nearestName(word, words);
    if (!meant.isEmpty()) {
        return fail(
            Texts::tr("%1: unknown item; did you mean %2?").arg(path, joined(place.path, meant)));
    }
    return fail(Texts::tr("%1: unknown item; expected is one of %2")
                    .arg(path, words.join(QStringLiteral(", "))));
}

bool CConfigurationItemsPrivate::findEntry(const SItemPathStep &segment, SPlace &place)
{
    const SNode &list = *place.node;
    const QDomElement element = place.element();
    int left = segment.occurrence;
    if (list.kind == EKind::OPTIONS) {
        const QList<OptionText::SOption> options = OptionText(file.getNodeValue(element)).options();
        for (int i = 0; i < options.size() && left > 0; ++i) {
            left -= options.at(i).name == segment.key ? 1 : 0;
            place.option = left == 0 ? i : -1;
        }
        return left == 0;
    }
    QDomElement found;
    visitCandidates(list, element, [&](const QDomElement &candidate) {
        // Its key first: to take a whole entry apart costs more.
        if (key(list, candidate) == segment.key && isEntry(list, candidate)) {
            --left;
            found = candidate;
        }
        return left > 0;
    });
    if (left == 0) {
        place.anchor = found;
        place.tags.clear();
    }
    return left == 0;
}

bool CConfigurationItemsPrivate::step(const SItemPathStep &given, SPlace &place,
                                      bool entryMayBeAbsent)
{
    SItemPathStep segment = given;
    const QString prefix = place.path;
    const QString path = joined(prefix, segment.text());
    if (place.node->isList() && !place.isEntry) {
        return fail(
            Texts::tr("%1: name an entry of the list, as in %2")
                .arg(path, CConfigurationItems::entryPath(place.path, QStringLiteral("…"))));
    }
    const auto &children = place.node->children;
    const auto child = std::find_if(children.cbegin(), children.cend(),
                                    [&](const SNode &node) { return node.word == segment.word; });
    if (child == children.cend()) {
        return failUnknownWord(place, path, segment.word);
    }
    if (child->isOfKd2Only && !isKd2(place.element())) {
        return fail(Texts::tr("%1: only a drive of the type KD2_drive has this file").arg(path));
    }
    place.list = place.isEntry ? place.node : nullptr;
    place.node = &*child;
    place.path = path;
    place.isEntry = segment.hasKey;
    if (segment.hasKey) {
        place.listPath = joined(prefix, segment.word);
    }
    if (place.option < 0) {
        place.tags += child->tags;
    }
    if (!segment.hasKey) {
        return true;
    }
    if (!child->isList()) {
        return fail(
            Texts::tr("%1: %2 is not a list and takes no brackets").arg(path, segment.word));
    }
    if (child->entry == EEntry::DRIVE) {
        segment.key = driveKey(segment.key);
        place.path = segment.text();
    }
    place.entry = segment;
    place.isAbsent = !findEntry(segment, place);
    return !place.isAbsent || entryMayBeAbsent || fail(missingEntry(child->entry, place.path));
}

bool CConfigurationItemsPrivate::resolve(const QString &path, SPlace &place, bool entryMayBeAbsent)
{
    errorText.clear();
    place = SPlace();
    place.node = &model();
    place.anchor = file.domDocument().documentElement();
    if (place.anchor.isNull()) {
        return fail(Texts::tr("The document contains no configuration."));
    }
    QList<SItemPathStep> segments;
    QString reason;
    if (!ItemPath::parse(path, segments, reason)) {
        return fail(reason);
    }
    for (int i = 0; i < segments.size(); ++i) {
        if (!step(segments.at(i), place, entryMayBeAbsent && i + 1 == segments.size())) {
            return false;
        }
    }
    return true;
}

bool CConfigurationItemsPrivate::isThere(const SPlace &place) const
{
    const QDomElement element = place.element();
    switch (place.node->kind) {
    case EKind::SINGLE_FILE:
        return element.hasChildNodes();
    case EKind::ATTRIBUTE_ITEM:
        return element.hasAttribute(ATTR_TYPE);
    case EKind::GROUP:
    case EKind::LIST:
    case EKind::OPTIONS:
    case EKind::ITEM:
        break;
    }
    return !element.isNull();
}

QString CConfigurationItemsPrivate::text(const SPlace &place) const
{
    if (place.option >= 0) {
        const OptionText::SOption option =
            OptionText(file.getNodeValue(place.element())).options().at(place.option);
        return place.isEntry ? option.argument : option.name;
    }
    if (place.isEntry) {
        return QString();
    }
    return place.node->kind == EKind::ATTRIBUTE_ITEM ? place.element().attribute(ATTR_TYPE)
                                                     : file.getNodeValue(place.element());
}

void CConfigurationItemsPrivate::listEntry(const SNode &node, const QDomElement &entry,
                                           const QString &path, const SLists &lists) const
{
    if (lists.entries != nullptr) {
        lists.entries->append(path);
    }
    if (lists.items != nullptr && node.entry == EEntry::FPGA_FILE) {
        lists.items->append({path, QString()});
    }
    listChildren(node, entry, path, lists);
}

void CConfigurationItemsPrivate::listChildren(const SNode &node, const QDomElement &element,
                                              const QString &path, const SLists &lists) const
{
    for (const SNode &child : node.children) {
        if (!child.isKey() && (!child.isOfKd2Only || isKd2(element))) {
            listNode(child, followed(element, child.tags), joined(path, child.word), lists);
        }
    }
}

void CConfigurationItemsPrivate::listNode(const SNode &node, const QDomElement &element,
                                          const QString &path, const SLists &lists) const
{
    QHash<QString, int> occurrences;
    const auto entryPath = [&](const QString &entryKey) {
        return CConfigurationItems::entryPath(path, entryKey, ++occurrences[entryKey]);
    };
    switch (node.kind) {
    case EKind::GROUP:
    case EKind::SINGLE_FILE:
        listChildren(node, element, path, lists);
        break;
    case EKind::LIST:
        visitEntries(node, element, [&](const QDomElement &entry) {
            listEntry(node, entry, entryPath(key(node, entry)), lists);
            return true;
        });
        break;
    case EKind::OPTIONS:
        for (const auto &option : OptionText(file.getNodeValue(element)).options()) {
            const QString optionPath = entryPath(option.name);
            if (lists.entries != nullptr) {
                lists.entries->append(optionPath);
            }
            if (lists.items != nullptr) {
                lists.items->append({optionPath, option.argument});
            }
        }
        break;
    case EKind::ITEM:
        if (lists.items != nullptr && !element.isNull()) {
            lists.items->append({path, file.getNodeValue(element)});
        }
        break;
    case EKind::ATTRIBUTE_ITEM:
        if (lists.items != nullptr && element.hasAttribute(ATTR_TYPE)) {
            lists.items->append({path, element.attribute(ATTR_TYPE)});
        }
        break;
    }
}

void CConfigurationItemsPrivate::list(const SPlace &place, const SLists &lists) const
{
    if (place.option >= 0) {
        lists.items->append({place.path, text(place)});
    } else if (place.isEntry) {
        listEntry(*place.node, place.element(), place.path, lists);
    } else {
        listNode(*place.node, place.element(), place.path, lists);
    }
}

bool CConfigurationItemsPrivate::acceptsText(const QString &path, const QString &value)
{
    const int index = indexOfUnwritable(value);
    if (index < 0) {
        return true;
    }
    const QString code = QString::number(value.at(index).unicode(), 16).toUpper();
    return fail(Texts::tr("%1: the character U+%2 cannot be stored in a configuration")
                    .arg(path, code.rightJustified(4, QLatin1Char('0'))));
}

bool CConfigurationItemsPrivate::acceptsArgument(const QString &path, const QString &argument)
{
    if (argument != argument.simplified()) {
        return fail(Texts::tr("%1: separate the words of an argument by single spaces").arg(path));
    }
    const QStringList words = argument.split(QLatin1Char(' '));
    const bool hasOption = std::any_of(words.cbegin(), words.cend(),
                                       [](const QString &word) { return word.startsWith(Hyphen); });
    if (hasOption) {
        return fail(Texts::tr("%1: a word in '%2' begins with '-' and would be read as an option")
                        .arg(path, argument));
    }
    return acceptsText(path, argument);
}

bool CConfigurationItemsPrivate::acceptsKey(const SNode &list, const QString &path,
                                            const QString &key)
{
    if (list.entry == EEntry::DRIVE) {
        bool isNumber = false;
        const uint number = key.toUInt(&isNumber);
        return (isNumber && number <= LargestNewDriveNumber && QString::number(number) == key)
            || fail(Texts::tr("%1: '%2' is not a valid drive number; write a number from 0 to %3")
                        .arg(path, key, QString::number(LargestNewDriveNumber)));
    }
    if (list.entry == EEntry::OPTION) {
        const auto isSpace = [](QChar c) { return c.isSpace(); };
        const bool isOption = key.startsWith(Hyphen) && key.size() > 1
            && std::none_of(key.cbegin(), key.cend(), isSpace);
        if (!isOption) {
            return fail(
                Texts::tr("%1: '%2' is not a valid option; write a word that begins with '-'")
                    .arg(path, key));
        }
    }
    if (key.isEmpty()) {
        return fail(Texts::tr("%1: the name must not be empty").arg(path));
    }
    return acceptsText(path, key);
}

bool CConfigurationItemsPrivate::isKeyFree(const SPlace &place, const QString &key)
{
    SPlace other;
    const bool isTaken = resolve(CConfigurationItems::entryPath(place.listPath, key), other);
    errorText.clear();
    return !isTaken || fail(presentEntry(place.list->entry, other.path));
}

bool CConfigurationItemsPrivate::accepts(const SPlace &place, QString &value)
{
    const QString &path = place.path;
    switch (place.node->value) {
    case EValue::TEXT:
        break;
    case EValue::DATE:
        if (!value.isEmpty()
            && QDate::fromString(value, Qt::ISODate).toString(Qt::ISODate) != value) {
            return fail(Texts::tr("%1: '%2' is not a valid date; write one such as 2026-11-21")
                            .arg(path, value));
        }
        break;
    case EValue::DEVICE_CLASS:
        if (file.deviceClassToStr(file.strToDeviceClass(value)) != value) {
            return fail(Texts::tr("%1: unknown device class '%2'; write kc2, kd3 or Undefined")
                            .arg(path, value));
        }
        break;
    case EValue::HARDWARE_ID:
        if (!value.isEmpty() && CDeviceHardwareId(value).isNull()) {
            return fail(Texts::tr("%1: '%2' is not a valid hardware identity; write "
                                  "PREFIX:NAME:PLATFORM:VERSION:REVISION")
                            .arg(path, value));
        }
        break;
    case EValue::BOOLEAN:
        if (value != VALUE_TRUE && value != VALUE_FALSE) {
            return fail(Texts::tr("%1: '%2' is neither true nor false").arg(path, value));
        }
        break;
    case EValue::UNSIGNED_NUMBER:
        if (QString::number(value.toUInt()) != value) {
            return fail(
                Texts::tr("%1: '%2' is not a whole number from 0 to 4294967295").arg(path, value));
        }
        break;
    case EValue::SIGNED_NUMBER:
        if (QString::number(value.toInt()) != value) {
            return fail(Texts::tr("%1: '%2' is not a whole number from -2147483648 to 2147483647")
                            .arg(path, value));
        }
        break;
    case EValue::PARAM_FILE_TYPE:
        if (file.typeToStr(file.strToType(value)) != value) {
            return fail(Texts::tr("%1: unknown parameter file type '%2'").arg(path, value));
        }
        break;
    case EValue::DRIVE_TYPE:
        if (value != Kd2Drive && value != Kd3Drive) {
            return fail(Texts::tr("%1: unknown drive type '%2'; write KD2_drive or KD3_drive")
                            .arg(path, value));
        }
        break;
    case EValue::DEVICE_DIRECTORY: {
        CFileElement directories;
        directories.setDevicePath(value);
        value = directories.devicePath();
        break;
    }
    case EValue::PROJECT_DIRECTORY: {
        CFileElement directories;
        directories.setProjectPath(value);
        value = directories.projectPath();
        break;
    }
    case EValue::ACTIVE_FPGA_FILE:
        if (value.isEmpty()) {
            return fail(Texts::tr("%1: the name must not be empty").arg(path));
        }
        break;
    case EValue::KEY_NAME:
    case EValue::KEY_DRIVE_NUMBER:
        if (!acceptsKey(*place.list, path, value)
            || (value != place.entry.key && !isKeyFree(place, value))) {
            return false;
        }
        break;
    }
    return acceptsText(path, value);
}

bool CConfigurationItemsPrivate::failWithoutValue(const SPlace &place)
{
    return fail(Texts::tr("%1: this path does not lead to a single value").arg(place.path));
}

bool CConfigurationItemsPrivate::failAbsent(const SPlace &place)
{
    return fail(Texts::tr("%1: the configuration does not contain this item").arg(place.path));
}

/** The child @p tag of @p parent; a new one stands where the document has such elements. */
QDomElement CConfigurationItemsPrivate::child(const QDomElement &parent, const QString &tag)
{
    const QDomElement present = parent.firstChildElement(tag);
    if (!present.isNull()) {
        return present;
    }
    if (tag == TAG_DESCRIPTION) {
        QDomElement root = parent;
        QDomDocument document = root.ownerDocument();
        const QDomElement description = document.createElement(tag);
        const QDomNode comment = document.createComment(QStringLiteral("Project description"));
        const QDomElement device = file.findDeviceElement();
        for (const QDomNode &node : {comment, QDomNode(description)}) {
            // A null device would put it first, but the description comes behind the head.
            device.isNull() ? root.appendChild(node) : root.insertBefore(node, device);
        }
        return description;
    }
    if (tag == TAG_FILE) {
        // With all that a file has, as everywhere else.
        file.appendFileElement(CFileElement(), parent);
    }
    return file.domElement(tag, parent);
}

QDomElement CConfigurationItemsPrivate::created(const SPlace &place)
{
    QDomElement element = place.anchor;
    for (const QString &tag : place.tags) {
        element = child(element, tag);
    }
    return element;
}

void CConfigurationItemsPrivate::setOption(const SPlace &place, const QString &value)
{
    const QDomElement element = place.element();
    const OptionText text(file.getNodeValue(element));
    const OptionText::SOption option = text.options().at(place.option);
    file.setNodeValue(element,
                      place.isEntry ? text.replaced(option, option.name, value)
                                    : text.replaced(option, value, option.argument));
}

void CConfigurationItemsPrivate::removeOption(const SPlace &place)
{
    const QDomElement element = place.element();
    const OptionText text(file.getNodeValue(element));
    file.setNodeValue(element, text.without(text.options().at(place.option)));
}

void CConfigurationItemsPrivate::addDrive(quint8 number)
{
    CDeviceElement device;
    const QDomElement element = file.deviceDomElement();
    device.setDeviceClass(file.strToDeviceClass(file.getNodeValue(TAG_CLASS, element)));
    device.setHardwareId(file.getNodeValue(TAG_HARDWAREID, element));
    CSubDeviceElement drive = CSubDeviceKD3Element();
    device.insertSubDevice(drive, number);
    file.appendSubDeviceElement(drive, element);
}

void CConfigurationItemsPrivate::addEntry(const SPlace &place)
{
    const QString &key = place.entry.key;
    const QDomElement list = created(place);
    switch (place.node->entry) {
    case EEntry::DRIVE:
        addDrive(static_cast<quint8>(key.toUInt()));
        break;
    case EEntry::PARAM_FILE: {
        CParamFileElement entry;
        entry.setName(key);
        entry.setType(NvrnGlobal::PARAM_FILE_PARAMETERS);
        file.appendParamFileElement(entry, list);
        break;
    }
    case EEntry::FILE:
    case EEntry::OPC_UA_FILE: {
        CFileElement entry;
        entry.setFileName(key);
        file.appendFileElement(entry, list);
        break;
    }
    case EEntry::FPGA_FILE:
        file.appendFileString(key, list);
        break;
    case EEntry::PLUGIN: {
        CPluginElement entry;
        entry.setName(key);
        entry.setPriority(0);
        file.appendPluginElement(entry, list);
        break;
    }
    case EEntry::OPTION:
        file.setNodeValue(list, OptionText(file.getNodeValue(list)).with(key));
        break;
    case EEntry::NONE:
        break;
    }
}

CConfigurationItems::CConfigurationItems(CDeviceConfigurationFile10 &file)
    : d(std::make_unique<CConfigurationItemsPrivate>(file))
{
}

CConfigurationItems::~CConfigurationItems() = default;

QList<CConfigurationItems::SItem> CConfigurationItems::items() const
{
    QList<SItem> result;
    d->errorText.clear();
    d->listChildren(model(), d->file.domDocument().documentElement(), QString(),
                    {&result, nullptr});
    return result;
}

QList<CConfigurationItems::SItem> CConfigurationItems::items(const QString &path) const
{
    QList<SItem> result;
    SPlace place;
    if (d->resolve(path, place)) {
        const bool isOptional = place.node->isItem() || place.node->kind == EKind::SINGLE_FILE;
        if (isOptional && !d->isThere(place)) {
            d->failAbsent(place);
        } else {
            d->list(place, {&result, nullptr});
        }
    }
    return result;
}

QStringList CConfigurationItems::entries() const
{
    QStringList result;
    d->errorText.clear();
    d->listChildren(model(), d->file.domDocument().documentElement(), QString(),
                    {nullptr, &result});
    return result;
}

bool CConfigurationItems::contains(const QString &path) const
{
    SPlace place;
    return d->resolve(path, place) && (d->isThere(place) || d->failAbsent(place));
}

bool CConfigurationItems::value(const QString &path, QString &value) const
{
    SPlace place;
    if (!d->resolve(path, place)) {
        return false;
    }
    if (!place.hasValue()) {
        return d->failWithoutValue(place);
    }
    if (!d->isThere(place)) {
        return d->failAbsent(place);
    }
    value = d->text(place);
    return true;
}

bool CConfigurationItems::setValue(const QString &path, const QString &value)
{
    SPlace place;
    if (!d->resolve(path, place)) {
        return false;
    }
    if (!place.hasValue() || (place.isFpgaEntry() && !value.isEmpty())) {
        return d->failWithoutValue(place);
    }
    QString stored = value;
    const bool isAccepted =
        place.isEntry ? d->acceptsArgument(place.path, value) : d->accepts(place, stored);
    if (!isAccepted) {
        return false;
    }
    if (place.option >= 0) {
        d->setOption(place, stored);
    } else if (place.node->kind == EKind::ATTRIBUTE_ITEM) {
        d->created(place).setAttribute(ATTR_TYPE, stored);
    } else if (place.node->value == EValue::ACTIVE_FPGA_FILE) {
        d->file.setActiveFpgaFile(stored);
    } else {
        d->file.setNodeValue(d->created(place), stored);
    }
    return true;
}

bool CConfigurationItems::add(const QString &path)
{
    SPlace place;
    if (!d->resolve(path, place, true)) {
        return false;
    }
    if (!place.isEntry) {
        return d->fail(Texts::tr("%1: only list entries can be added").arg(place.path));
    }
    if (!place.isAbsent) {
        return d->fail(presentEntry(place.node->entry, place.path));
    }
    if (place.entry.occurrence > 1) {
        return d->fail(
            Texts::tr("%1: a second entry with the same key cannot be added").arg(place.path));
    }
    if (!d->acceptsKey(*place.node, place.path, place.entry.key)) {
        return false;
    }
    d->addEntry(place);
    return true;
}

bool CConfigurationItems::remove(const QString &path)
{
    SPlace place;
    if (!d->resolve(path, place)) {
        return false;
    }
    const EKind kind = place.node->kind;
    if (!place.isEntry && (kind == EKind::GROUP || place.node->isList())) {
        return d->fail(Texts::tr("%1: only single items, list entries and files can be removed")
                           .arg(place.path));
    }
    if (place.node->isKey()) {
        return d->fail(Texts::tr("%1: the entry cannot exist without this item").arg(place.path));
    }
    if (!d->isThere(place)) {
        return d->failAbsent(place);
    }
    QDomElement element = place.element();
    QDomNode parent = element.parentNode();
    if (place.option >= 0) {
        d->removeOption(place);
    } else if (kind == EKind::ATTRIBUTE_ITEM) {
        element.removeAttribute(ATTR_TYPE);
    } else if (place.node->value == EValue::ACTIVE_FPGA_FILE) {
        parent.parentNode().removeChild(parent);
    } else if (kind == EKind::SINGLE_FILE) {
        while (!parent.removeChild(parent.firstChildElement(TAG_FILE)).isNull()) { }
    } else {
        parent.removeChild(element);
    }
    return true;
}

QDomElement CConfigurationItems::element(const QString &path) const
{
    SPlace place;
    return d->resolve(path, place) ? place.element() : QDomElement();
}

QString CConfigurationItems::errorText() const
{
    return d->errorText;
}

QString CConfigurationItems::entryPath(const QString &list, const QString &key, int occurrence)
{
    return SItemPathStep{list, key, occurrence, true}.text();
}
