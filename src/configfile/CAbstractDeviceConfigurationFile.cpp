#include "configfile/CAbstractDeviceConfigurationFile.h"

#include "configfile/ElementOrder.h"
#include "configfile/ItemElements.h"
#include "imported/CDomDoc.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/TextTables.h"

#include <QDomDocument>

using namespace NVornXmlTags;

namespace {

template <typename Value>
QMap<QString, Value> valuesByText(const TextTables::Table<Value> &table)
{
    QMap<QString, Value> values;
    for (const TextTables::SRow<Value> &row : table) {
        values.insert(row.text, row.value);
    }
    return values;
}

/** One "File" or "Plugin" that is written: a present one is filled again, a new one is built. */
class Entry
{
public:
    /** @p parent if it is an element of the given kind already, else a new one at its end. */
    Entry(const QDomElement &parent, const QString &tag)
        : m_document(parent.ownerDocument()), m_element(parent),
          m_isNew(parent.tagName() != tag && parent.tagName() != TAG_FILE)
    {
        if (m_isNew) {
            m_element = m_document.createElement(tag);
            QDomElement(parent).appendChild(m_element);
        }
    }

    template <typename Element>
    void setItems(const QVector<ConfigurationShape::SField<Element>> &rows, const Element &element)
    {
        for (const ConfigurationShape::SField<Element> &row : rows) {
            if (row.isAttribute) {
                m_element.setAttribute(row.tag, row.get(element));
            } else {
                setValue(row.tag, row.get(element));
            }
        }
    }

    void setValue(const QString &tag, const QString &value)
    {
        if (!m_isNew) {
            CDomDoc::setText(value, ElementOrder::child(tag, m_element));
            return;
        }
        // A new one has no such child yet: there is nothing to look for.
        const QDomElement child = m_document.createElement(tag);
        m_element.appendChild(child);
        CDomDoc::setText(value, child);
    }

private:
    QDomDocument m_document;
    QDomElement m_element;
    const bool m_isNew;
};

bool isFilled(const QDomElement &element, const QString &tag)
{
    return element.tagName() == tag && element.hasChildNodes();
}

/** The first child element named @p tag for which @p matches holds; null if there is none. */
template <typename Predicate>
QDomElement findChild(const QDomElement &parent, const QString &tag, Predicate matches)
{
    QDomElement child = parent.firstChildElement(tag);
    while (!child.isNull() && !matches(child)) {
        child = child.nextSiblingElement(tag);
    }
    return child;
}

} // namespace

CAbstractDeviceConfigurationFile::CAbstractDeviceConfigurationFile(ICLogfile *logfile)
    : ICDeviceConfigurationFile(logfile),
      m_paramFileTypes(valuesByText(TextTables::paramFileTypes())),
      m_deviceClasses(valuesByText(TextTables::deviceClasses()))
{
}

CAbstractDeviceConfigurationFile::~CAbstractDeviceConfigurationFile() = default;

QDomElement CAbstractDeviceConfigurationFile::findDeviceElement(const QDomElement &element) const
{
    return existingDomElement(TAG_DEVICE, element);
}

QDomElement CAbstractDeviceConfigurationFile::findConfigElement(const QDomElement &element) const
{
    const QDomElement device = element.isNull() ? findDeviceElement() : element;
    return device.firstChildElement(TAG_CONFIG);
}

QDomElement
CAbstractDeviceConfigurationFile::findElementInConfigElement(const QString &tag,
                                                             const QDomElement &element) const
{
    const QDomElement config =
        element.tagName() == TAG_CONFIG ? element : findConfigElement(element);
    // For QDom an empty name is any name, here it is none.
    return tag.isEmpty() ? QDomElement() : config.firstChildElement(tag);
}

QDomElement
CAbstractDeviceConfigurationFile::findParamFilesElement(const QDomElement &element) const
{
    return (element.isNull() ? findConfigElement() : element).firstChildElement(TAG_PARAMETERFILES);
}

QDomElement CAbstractDeviceConfigurationFile::findFilesElement(const QDomElement &element) const
{
    return (element.isNull() ? findConfigElement() : element).firstChildElement(TAG_FILES);
}

QDomElement CAbstractDeviceConfigurationFile::findPluginsElement(const QDomElement &element) const
{
    return (element.isNull() ? findConfigElement() : element).firstChildElement(TAG_PLUGINS);
}

QDomElement
CAbstractDeviceConfigurationFile::findDescriptionElement(const QDomElement &element) const
{
    return existingDomElement(TAG_DESCRIPTION, element);
}

QDomElement CAbstractDeviceConfigurationFile::findOpcUAElement(const QDomElement &element) const
{
    return findElementInConfigElement(TAG_OPCUA, element);
}

QDomElement
CAbstractDeviceConfigurationFile::findEtherCatMasterElement(const QDomElement &element) const
{
    return findElementInConfigElement(TAG_ETHERCATMASTER, element);
}

QDomElement CAbstractDeviceConfigurationFile::deviceDomElement()
{
    return domElement(TAG_DEVICE, QDomElement());
}

QDomElement CAbstractDeviceConfigurationFile::configDomElement(QDomElement device)
{
    const QDomElement parent = device.isNull() ? deviceDomElement() : device;
    return ElementOrder::child(TAG_CONFIG, parent);
}

QDomElement CAbstractDeviceConfigurationFile::paramFilesDomElement(QDomElement element)
{
    const QDomElement parent = element.isNull() ? configDomElement(element) : element;
    return ElementOrder::child(TAG_PARAMETERFILES, parent);
}

QDomElement CAbstractDeviceConfigurationFile::pluginsDomElement(QDomElement element)
{
    const QDomElement parent = element.isNull() ? configDomElement(element) : element;
    return ElementOrder::child(TAG_PLUGINS, parent);
}

void CAbstractDeviceConfigurationFile::appendFileElement(const CFileElement &file,
                                                         QDomElement parent)
{
    if (!parent.isNull()) {
        Entry(parent, TAG_FILE).setItems(ConfigurationShape::fileItems(), file);
    }
}

void CAbstractDeviceConfigurationFile::insertFileElement(const CFileElement &file,
                                                         QDomElement parent)
{
    if (file.isNull()) {
        return;
    }
    const QDomElement present = findChild(parent, TAG_FILE, [&](const QDomElement &entry) {
        CFileElement candidate;
        fileElement(candidate, entry);
        return candidate == file;
    });
    appendFileElement(file, present.isNull() ? parent : present);
}

void CAbstractDeviceConfigurationFile::fileElement(CFileElement &file,
                                                   const QDomElement &element) const
{
    file.clear();
    if (isFilled(element, TAG_FILE)) {
        ItemElements::read(ConfigurationShape::fileItems(), element, file);
    }
}

void CAbstractDeviceConfigurationFile::fileElements(QList<CFileElement> &files,
                                                    const QDomElement &element) const
{
    files.clear();
    CFileElement file;
    for (QDomElement entry = element.firstChildElement(TAG_FILE); !entry.isNull();
         entry = entry.nextSiblingElement(TAG_FILE)) {
        fileElement(file, entry);
        if (!file.isNull()) {
            files.append(file);
        }
    }
}

void CAbstractDeviceConfigurationFile::insertPluginElement(const CPluginElement &plugin,
                                                           QDomElement parent)
{
    const QDomElement present = findChild(parent, TAG_PLUGIN, [&](const QDomElement &entry) {
        return getNodeValue(TAG_NAME, entry) == plugin.name();
    });
    appendPluginElement(plugin, present.isNull() ? parent : present);
}

void CAbstractDeviceConfigurationFile::pluginElement(CPluginElement &plugin,
                                                     const QDomElement &element) const
{
    plugin.clear();
    if (isFilled(element, TAG_PLUGIN)) {
        ItemElements::read(ConfigurationShape::pluginItems(), element, plugin);
    }
}

void CAbstractDeviceConfigurationFile::appendParamFileElement(const CParamFileElement &file,
                                                              QDomElement parent)
{
    if (file.isValid() && !parent.isNull()) {
        Entry(parent, TAG_FILE).setItems(ConfigurationShape::parameterFileItems(), file);
    }
}

void CAbstractDeviceConfigurationFile::insertParamFileElement(const CParamFileElement &file,
                                                              QDomElement parent)
{
    const QDomElement present = findChild(parent, TAG_FILE, [&](const QDomElement &entry) {
        return getNodeValue(TAG_NAME, entry) == file.name();
    });
    appendParamFileElement(file, present.isNull() ? parent : present);
}

void CAbstractDeviceConfigurationFile::paramFileElement(CParamFileElement &file,
                                                        const QDomElement &element) const
{
    file.clear();
    if (isFilled(element, TAG_FILE)) {
        ItemElements::read(ConfigurationShape::parameterFileItems(), element, file);
    }
}

QString CAbstractDeviceConfigurationFile::typeToStr(NvrnGlobal::EParamFileType type) const
{
    return TextTables::text(TextTables::paramFileTypes(), type);
}

NvrnGlobal::EParamFileType CAbstractDeviceConfigurationFile::strToType(const QString &text) const
{
    return m_paramFileTypes.value(text, NvrnGlobal::PARAM_FILE_UNDEFINED);
}

QString
CAbstractDeviceConfigurationFile::deviceClassToStr(NDeviceConf::EDeviceClass deviceClass) const
{
    return TextTables::text(TextTables::deviceClasses(), deviceClass);
}

NDeviceConf::EDeviceClass
CAbstractDeviceConfigurationFile::strToDeviceClass(const QString &text) const
{
    return m_deviceClasses.value(text, NDeviceConf::DEVICE_CLASS_UNDEFINED);
}

void CAbstractDeviceConfigurationFile::appendFileString(const QString &fileName, QDomElement parent)
{
    if (!parent.isNull()) {
        Entry(parent, TAG_FILE).setValue(TAG_NAME, fileName);
    }
}

void CAbstractDeviceConfigurationFile::fileStrings(QStringList &fileNames,
                                                   const QDomElement &element) const
{
    fileNames.clear();
    for (QDomElement entry = element.firstChildElement(TAG_FILE); !entry.isNull();
         entry = entry.nextSiblingElement(TAG_FILE)) {
        QString fileName;
        fileString(fileName, entry);
        fileNames.append(fileName);
    }
}

void CAbstractDeviceConfigurationFile::appendPluginElement(const CPluginElement &plugin,
                                                           QDomElement parent)
{
    if (!parent.isNull()) {
        Entry(parent, TAG_PLUGIN).setItems(ConfigurationShape::pluginItems(), plugin);
    }
}

void CAbstractDeviceConfigurationFile::setFileElements(const QList<CFileElement> &files,
                                                       const QString &tag, QDomElement parent)
{
    if (parent.isNull()) {
        return;
    }
    const QDomElement list = parent.ownerDocument().createElement(tag);
    for (const CFileElement &file : files) {
        appendFileElement(file, list);
    }
    replaceChildElement(list, parent);
}

void CAbstractDeviceConfigurationFile::setFileStringList(const QStringList &fileNames,
                                                         const QString &tag, QDomElement parent)
{
    if (parent.isNull()) {
        return;
    }
    const QDomElement list = parent.ownerDocument().createElement(tag);
    for (const QString &fileName : fileNames) {
        appendFileString(fileName, list);
    }
    replaceChildElement(list, parent);
}

void CAbstractDeviceConfigurationFile::fileString(QString &fileName,
                                                  const QDomElement &element) const
{
    fileName = isFilled(element, TAG_FILE) ? getNodeValue(TAG_NAME, element) : QString();
}

void CAbstractDeviceConfigurationFile::replaceChildElement(const QDomElement &element,
                                                           QDomElement parent)
{
    const QDomElement present = parent.firstChildElement(element.tagName());
    if (present.isNull()) {
        parent.appendChild(element);
    } else {
        parent.replaceChild(element, present);
    }
}
