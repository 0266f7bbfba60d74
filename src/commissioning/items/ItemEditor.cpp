#include "commissioning/items/ItemEditor.h"

#include "commissioning/items/EntryTexts.h"
#include "commissioning/Texts.h"
#include "configfile/ElementOrder.h"
#include "configfile/ItemValue.h"
#include "elements/CDeviceElement.h"
#include "vocabulary/NVornXmlTags.h"

using namespace ConfigurationShape;
using ConfigurationItemsTexts::Texts;
using namespace NVornXmlTags;

ItemEditor::ItemEditor(CDeviceConfigurationFile10 &file) : ItemReader(file), m_file(file) { }

bool ItemEditor::setValue(const QString &path, const QString &value)
{
    SItemPlace place;
    if (!find(path, place)) {
        return false;
    }
    if (!place.hasValue() || (place.isBareEntry() && !value.isEmpty())) {
        return failWithoutValue(place);
    }
    if (!accepts(place, value)) {
        return false;
    }
    const EValue kind = place.node->value();
    const QString stored = ItemValue::stored(kind, value);
    if (place.option >= 0) {
        setOption(place, stored);
    } else if (place.node->isAttribute()) {
        created(place).setAttribute(place.node->shape->tag, stored);
    } else if (kind == EValue::ACTIVE_FPGA_FILE) {
        m_file.setActiveFpgaFile(stored);
    } else if (!place.isEntry) {
        m_file.setNodeValue(created(place), stored);
    }
    return true;
}

bool ItemEditor::accepts(const SItemPlace &place, const QString &value)
{
    if (!acceptsValue(place.node->value(), place.path, value)) {
        return false;
    }
    return !place.node->isKey() || value == place.entry.key || isKeyFree(place, value);
}

bool ItemEditor::acceptsValue(EValue kind, const QString &path, const QString &value)
{
    if (ItemValue::accepts(kind, value)) {
        return true;
    }
    const QString unwritable = ItemValue::unwritableText(value);
    if (!unwritable.isEmpty()) {
        return fail(QStringLiteral("%1: %2").arg(path, unwritable));
    }
    return fail(Texts::tr("%1: %2 Expected: %3.")
                    .arg(path, ItemValue::invalidText(kind, value), ItemValue::expected(kind)));
}

bool ItemEditor::isKeyFree(const SItemPlace &place, const QString &key)
{
    SItemPlace other;
    const bool isTaken = find(CConfigurationItems::entryPath(place.listPath, key), other);
    // That there is no such entry is no failure.
    fail(isTaken ? EntryTexts::present(place.list->shape->entry, other.path) : QString());
    return !isTaken;
}

bool ItemEditor::add(const QString &path)
{
    SItemPlace place;
    if (!find(path, place, true)) {
        return false;
    }
    if (!place.isEntry) {
        return fail(Texts::tr("%1: only list entries can be added").arg(place.path));
    }
    if (!place.isAbsent) {
        return fail(EntryTexts::present(place.node->shape->entry, place.path));
    }
    if (place.entry.occurrence > 1) {
        return fail(
            Texts::tr("%1: a second entry with the same key cannot be added").arg(place.path));
    }
    const EValue key = place.node->key().value();
    if (!acceptsValue(key, place.path, place.entry.key)) {
        return false;
    }
    addEntry(place);
    return true;
}

bool ItemEditor::remove(const QString &path)
{
    SItemPlace place;
    if (!find(path, place)) {
        return false;
    }
    if (!place.isEntry && (place.node->kind() == EKind::GROUP || place.node->isList())) {
        return fail(Texts::tr("%1: only single items, list entries and files can be removed")
                        .arg(place.path));
    }
    if (place.node->isKey()) {
        return fail(Texts::tr("%1: the entry cannot exist without this item").arg(place.path));
    }
    if (!place.isThere()) {
        return failAbsent(place);
    }
    if (place.option >= 0) {
        removeOption(place);
    } else {
        removeElement(place);
    }
    return true;
}

/** Of a single file, all the elements in its holder. */
void ItemEditor::removeElement(const SItemPlace &place)
{
    QDomElement element = place.element();
    QDomNode parent = element.parentNode();
    if (place.node->isAttribute()) {
        element.removeAttribute(place.node->shape->tag);
    } else if (place.node->value() == EValue::ACTIVE_FPGA_FILE) {
        parent.parentNode().removeChild(parent);
    } else if (place.node->kind() == EKind::SINGLE_FILE) {
        const QString tag = element.tagName();
        while (!parent.removeChild(parent.firstChildElement(tag)).isNull()) { }
    } else {
        parent.removeChild(element);
    }
}

QDomElement ItemEditor::created(const SItemPlace &place)
{
    QDomElement element = place.anchor;
    for (const QString &tag : place.tags) {
        element = child(element, tag);
    }
    return element;
}

/** The child @p tag of @p parent; a new one stands where the document has such elements. */
QDomElement ItemEditor::child(const QDomElement &parent, const QString &tag)
{
    const QDomElement present = parent.firstChildElement(tag);
    if (!present.isNull()) {
        return present;
    }
    if (tag == TAG_DESCRIPTION) {
        return createdDescription(parent);
    }
    if (tag == TAG_FILE) {
        // With all that a file has, as everywhere else.
        m_file.appendFileElement(CFileElement(), parent);
    }
    return ElementOrder::child(tag, parent);
}

QDomElement ItemEditor::createdDescription(QDomElement root)
{
    const QDomElement description = ElementOrder::child(TAG_DESCRIPTION, root);
    root.insertBefore(root.ownerDocument().createComment(QStringLiteral("Project description")),
                      description);
    return description;
}

void ItemEditor::setOption(const SItemPlace &place, const QString &value)
{
    const StartOptions text = options(place);
    const StartOptions::SOption option = text.options().at(place.option);
    m_file.setNodeValue(place.element(),
                        place.isEntry ? text.replaced(option, option.name(), value)
                                      : text.replaced(option, value, option.argument));
}

void ItemEditor::removeOption(const SItemPlace &place)
{
    const StartOptions text = options(place);
    m_file.setNodeValue(place.element(), text.without(text.options().at(place.option)));
}

void ItemEditor::addEntry(const SItemPlace &place)
{
    const QString &key = place.entry.key;
    const QDomElement list = created(place);
    switch (place.node->shape->entry) {
    case EEntry::DRIVE:
        addDrive(static_cast<quint8>(key.toUInt()));
        break;
    case EEntry::PARAMETER_FILE: {
        CParamFileElement entry;
        entry.setName(key);
        entry.setType(NvrnGlobal::PARAM_FILE_PARAMETERS);
        m_file.appendParamFileElement(entry, list);
        break;
    }
    case EEntry::FILE:
    case EEntry::OPC_UA_FILE: {
        CFileElement entry;
        entry.setFileName(key);
        m_file.appendFileElement(entry, list);
        break;
    }
    case EEntry::FPGA_FILE:
        m_file.appendFileString(key, list);
        break;
    case EEntry::PLUGIN: {
        CPluginElement entry;
        entry.setName(key);
        entry.setPriority(0);
        m_file.appendPluginElement(entry, list);
        break;
    }
    case EEntry::OPTION:
        m_file.setNodeValue(list, options(place).with(key));
        break;
    case EEntry::NONE:
        break;
    }
}

void ItemEditor::addDrive(quint8 number)
{
    CDeviceElement device;
    const QDomElement element = m_file.deviceDomElement();
    device.setDeviceClass(m_file.strToDeviceClass(m_file.getNodeValue(TAG_CLASS, element)));
    device.setHardwareId(m_file.getNodeValue(TAG_HARDWAREID, element));
    CSubDeviceElement drive = CSubDeviceKD3Element();
    device.insertSubDevice(drive, number);
    m_file.appendSubDeviceElement(drive, element);
}
