#include "commissioning/check/DocumentCheck.h"

#include "commissioning/CConfigurationItems.h"
#include "commissioning/items/ItemFinder.h"

using namespace DocumentStructure;

namespace {

/** UTF-16 units. A longer key is no help for anybody, and may stand in many findings. */
const int LongestKey = 1000;

} // namespace

QString EntryPaths::next(const QString &list, const QString &key)
{
    if (key.size() > LongestKey) {
        return list;
    }
    const int occurrence = ++m_counts[CConfigurationItems::entryPath(list, key)];
    return CConfigurationItems::entryPath(list, key, occurrence);
}

DocumentCheck::DocumentCheck(const CDeviceConfigurationFile10 &file, const QString &version,
                             const QString &projectDirectory)
    : m_version(version), m_context{file, Findings(file), EntryPaths(), CDeviceElement()},
      m_structure(m_context.findings), m_device(m_context), m_options(m_context),
      m_files(m_context, projectDirectory), m_fileLists(m_context, m_files),
      m_plugins(m_context, m_files), m_drives(m_context)
{
}

QList<SConfigurationFinding> DocumentCheck::run()
{
    m_files.readManifest();
    visit(m_context.file.domDocument().documentElement(), root(), QString());
    return m_context.findings.all();
}

void DocumentCheck::visit(const QDomElement &element, const SElement &type, const QString &path)
{
    const Fields fields(element, type);
    const QString item = itemOf(fields, path);
    m_structure.check(fields, item);
    checkMeaning(fields, item);
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        visitChild(child, fields, item);
    }
    if (type.meaning == MEANING_CONFIG) {
        m_options.finish();
        m_plugins.finish(fields, item);
    }
}

void DocumentCheck::visitChild(const QDomElement &child, const Fields &parent, const QString &item)
{
    const SElement &type = parent.type();
    const int index = parent.indexOf(child.tagName());
    if (index < 0) {
        if (type.isReadDeep) {
            visitDeep(child, type, item);
        }
        return;
    }
    const SChild &known = type.children.at(index);
    if (known.isRepeated || child == parent.element(known.element->tag)) {
        const bool isBelow = known.item.isEmpty() || known.item.startsWith(QLatin1Char('.'));
        visit(child, *known.element, isBelow ? item + known.item : known.item);
    }
}

void DocumentCheck::visitDeep(const QDomElement &element, const SElement &list, const QString &path)
{
    const SElement &entry = *list.children.constFirst().element;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == entry.tag) {
            visit(child, entry, path);
        } else {
            visitDeep(child, list, path);
        }
    }
}

QString DocumentCheck::itemOf(const Fields &fields, const QString &path)
{
    const ConfigurationShape::SNode *const list = fields.type().list;
    if (list == nullptr) {
        return path;
    }
    const QString text = fields.text(list->key().tag);
    // What readers pass over has no path of its own: it is shown at its list.
    if (text.isEmpty() && !ItemFinder::isEntry(m_context.file, *list, fields.parent())) {
        return path;
    }
    return m_context.entryPaths.next(path, ItemFinder::key(*list, text));
}

void DocumentCheck::checkMeaning(const Fields &fields, const QString &item)
{
    switch (fields.type().meaning) {
    case MEANING_NONE:
        break;
    case MEANING_ROOT:
        m_device.checkRoot(fields, m_version);
        break;
    case MEANING_HEAD:
        m_device.checkHead(fields);
        break;
    case MEANING_DESCRIPTION:
        m_device.checkDescription(fields);
        break;
    case MEANING_DEVICE:
        m_device.checkDevice(fields, item);
        m_files.claim(m_context.device.configurationFile(), {fields.parent(), item});
        break;
    case MEANING_CONFIG:
        m_options.checkOptions(fields);
        break;
    case MEANING_OPC_UA:
        m_options.checkOpcUa(fields);
        break;
    case MEANING_ETHERCAT_MASTER:
        m_plugins.noteEtherCatFile(fields, item);
        break;
    case MEANING_PARAMETER_FILE:
        m_fileLists.checkParameterFile(fields, item);
        break;
    case MEANING_FPGA_FILE:
        m_fileLists.checkFpgaFile(fields, item);
        break;
    case MEANING_PLUGIN:
        m_plugins.check(fields, item);
        break;
    case MEANING_FILE:
        m_files.check(fields, item, false);
        break;
    case MEANING_FILE_OF_DEVICE:
        m_files.check(fields, item, true);
        break;
    case MEANING_DRIVE:
        m_drives.check(fields, item);
        break;
    }
}
