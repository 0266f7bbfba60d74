#include "configfile/CDeviceConfigurationFileBase.h"

#include "configfile/ElementOrder.h"
#include "configfile/ItemElements.h"
#include "configfile/ItemValue.h"
#include "elements/DriveNumbers.h"
#include "elements/StartOptions.h"
#include "imported/CDomDoc.h"
#include "imported/CMessageBoardHelper.h"
#include "imported/CStr.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/Texts.h"

#include <QDomDocument>

#include <algorithm>

using namespace ConfigurationShape;
using namespace NVornXmlTags;

namespace {

const QLatin1Char OptionSeparator(' ');

using DeviceConfigurationFileTexts::Texts;

template <typename Element>
void setItems(const QVector<SField<Element>> &rows, const Element &element, QDomElement parent)
{
    for (const SField<Element> &row : rows) {
        if (row.isAttribute) {
            parent.setAttribute(row.tag, row.get(element));
        } else {
            CDomDoc::setText(row.get(element), ElementOrder::child(row.tag, parent));
        }
    }
}

/** For ItemElements::read(): the hardware identity alone is worth a warning. */
auto warnOfIdentity(const CXmlAbstractVornFile &file, const QDomElement &parent)
{
    return [&file, parent](const SItem &item, const QString &text) {
        if (item.value == EValue::HARDWARE_ID) {
            CMessageBoardHelper::setDebugWarning(
                Texts::tr("The hardware identity '%1' of '%2' is not valid.")
                    .arg(text, file.getNodeValue(TAG_NAME, parent)),
                file.logfile());
        }
    };
}

/** Nothing of an old entry stays; what else its holder has does. */
void replaceFile(CDeviceConfigurationFileBase &file, const CFileElement &value, const QString &tag,
                 const QDomElement &parent)
{
    QDomElement holder = ElementOrder::child(tag, parent);
    while (!holder.removeChild(holder.firstChildElement(TAG_FILE)).isNull()) { }
    file.appendFileElement(value, holder);
}

// What stands in the "Config" element, and the files of a drive. An item, a file, a list or a group
// without any value is left out.

void setConfigItem(CXmlAbstractVornFile &file, const SNode &node, const CDeviceElement &device,
                   const QDomElement &parent)
{
    const QString value = find(configItems(), node.tag)->get(device);
    if (value != ItemValue::absentValue(node.item)) {
        file.setNodeValue(node.tag, value, parent);
    }
}

void setFile(CDeviceConfigurationFileBase &file, const CFileElement &value, const QString &tag,
             const QDomElement &parent)
{
    if (!value.isNull()) {
        replaceFile(file, value, tag, parent);
    }
}

void setList(CDeviceConfigurationFileBase &file, const SNode &list, const CDeviceElement &device,
             const QDomElement &parent)
{
    switch (list.entry) {
    case EEntry::OPTION:
        if (!device.options().isEmpty()) {
            file.setNodeValue(list.tag, device.options().join(OptionSeparator), parent);
        }
        break;
    case EEntry::PARAMETER_FILE:
        if (!device.parameterFiles().isEmpty()) {
            file.setParamFileElementList(device.parameterFiles(), parent);
        }
        break;
    case EEntry::FPGA_FILE:
        if (device.fpgaFileCount() > 0) {
            file.setFileStringList(device.fpgaFiles(), list.tag, parent);
        }
        break;
    case EEntry::OPC_UA_FILE:
        file.setFileElements(device.opcUaFiles(), list.tag, parent);
        break;
    case EEntry::FILE:
        if (device.additionalFileCount() > 0) {
            file.setFileElements(device.additionalFiles(), list.tag, parent);
        }
        break;
    case EEntry::PLUGIN:
        if (!device.plugins().isEmpty()) {
            file.setPluginElementList(device.plugins(), parent);
        }
        break;
    case EEntry::DRIVE:
    case EEntry::NONE:
        break;
    }
}

void readList(const CDeviceConfigurationFileBase &file, const SNode &list,
              const QDomElement &element, CDeviceElement &device)
{
    const auto read = [&](auto entries, auto reader, auto setter) {
        (file.*reader)(entries, element);
        (device.*setter)(entries);
    };
    using File = CDeviceConfigurationFileBase;
    using Device = CDeviceElement;
    switch (list.entry) {
    case EEntry::OPTION:
        device.setOptions(StartOptions::deviceWords(file.getNodeValue(element)));
        break;
    case EEntry::PARAMETER_FILE:
        read(QList<CParamFileElement>(), &File::paramFileElementList, &Device::setParameterFiles);
        break;
    case EEntry::FPGA_FILE:
        read(QStringList(), &File::fileStrings, &Device::setFpgaFiles);
        break;
    case EEntry::OPC_UA_FILE:
        read(QList<CFileElement>(), &File::fileElements, &Device::setOpcUaFiles);
        break;
    case EEntry::FILE:
        read(QList<CFileElement>(), &File::fileElements, &Device::setAdditionalFiles);
        break;
    case EEntry::PLUGIN:
        read(QList<CPluginElement>(), &File::pluginElementList, &Device::setPlugins);
        break;
    case EEntry::DRIVE:
    case EEntry::NONE:
        break;
    }
}

/** The one group: its items say whether OPC UA is used, and its list is written with them. */
void setOpcUa(CDeviceConfigurationFileBase &file, const SNode &group, const CDeviceElement &device,
              const QDomElement &parent)
{
    const bool isUsed = std::any_of(opcUaItems().begin(), opcUaItems().end(), [&](const auto &row) {
        return row.get(device) != ItemValue::absentValue(row);
    });
    if (!isUsed && device.opcUaFiles().isEmpty()) {
        return;
    }
    const QDomElement element = ElementOrder::child(group.tag, parent);
    setItems(opcUaItems(), device, element);
    for (const SNode &node : group.children) {
        setList(file, node, device, element);
    }
}

void readOpcUa(const CDeviceConfigurationFileBase &file, const SNode &group,
               const QDomElement &element, CDeviceElement &device)
{
    ItemElements::read(opcUaItems(), element, device);
    for (const SNode &node : group.children) {
        readList(file, node, element.firstChildElement(node.tag), device);
    }
}

} // namespace

CDeviceConfigurationFileBase::CDeviceConfigurationFileBase(ICLogfile *logfile)
    : CAbstractDeviceConfigurationFile(logfile)
{
}

CDeviceConfigurationFileBase::~CDeviceConfigurationFileBase() = default;

bool CDeviceConfigurationFileBase::handleVersionError(const QString &required,
                                                      const QString &existing)
{
    return warnOfVersion(
        required, existing,
        Texts::tr("The device configuration file was created with a previous version"),
        Texts::tr("The device configuration file was created with a later version"));
}

bool CDeviceConfigurationFileBase::warnOfVersion(const QString &required, const QString &existing,
                                                 const QString &previousText,
                                                 const QString &laterText)
{
    bool requiredIsRevision = false;
    bool existingIsRevision = false;
    const quint32 requiredRevision = CStr::stringToRevision(required, &requiredIsRevision);
    const quint32 existingRevision = CStr::stringToRevision(existing, &existingIsRevision);
    if (requiredIsRevision && existingIsRevision) {
        if (requiredRevision > existingRevision) {
            CMessageBoardHelper::setDebugWarning(previousText, logfile());
        } else if (requiredRevision < existingRevision) {
            CMessageBoardHelper::setDebugWarning(laterText, logfile());
        }
        setCurrentFileVersion(existing);
    }
    return true;
}

QString CDeviceConfigurationFileBase::currentFileVersion() const
{
    return m_currentFileVersion;
}

void CDeviceConfigurationFileBase::setDescriptionElement(const CDescriptionElement &description,
                                                         QDomElement element)
{
    if (!element.isNull()) {
        setItems(descriptionItems(), description, element);
    }
}

void CDeviceConfigurationFileBase::descriptionElement(CDescriptionElement &description,
                                                      const QDomElement &element) const
{
    description.clear();
    if (element.tagName() == TAG_DESCRIPTION) {
        ItemElements::read(descriptionItems(), element, description);
    }
}

QDomElement CDeviceConfigurationFileBase::createSubDeviceDomElement(QDomElement device)
{
    if (device.isNull()) {
        return QDomElement();
    }
    QDomElement element = device.ownerDocument().createElement(TAG_SUB_DEVICE);
    element.setAttribute(ATTR_TYPE, DriveTypes::unknown());
    device.appendChild(element);
    return element;
}

void CDeviceConfigurationFileBase::setDeviceElement(const CDeviceElement &device,
                                                    QDomElement element)
{
    if (element.isNull()) {
        return;
    }
    setItems(deviceItems(), device, element);
    setConfigElement(device, configDomElement(element));
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        appendSubDeviceElement(subDevice, element);
    }
}

void CDeviceConfigurationFileBase::setConfigElement(const CDeviceElement &device,
                                                    QDomElement parent)
{
    for (const SNode &node : config().children) {
        switch (node.kind) {
        case EKind::ITEM:
            setConfigItem(*this, node, device, parent);
            break;
        case EKind::SINGLE_FILE:
            setFile(*this, find(deviceFiles(), node.tag)->get(device), node.tag, parent);
            break;
        case EKind::LIST:
        case EKind::OPTIONS:
            setList(*this, node, device, parent);
            break;
        case EKind::GROUP:
            setOpcUa(*this, node, device, parent);
            break;
        case EKind::ALIAS:
            break;
        }
    }
}

void CDeviceConfigurationFileBase::appendSubDeviceElement(const CSubDeviceElement &subDevice,
                                                          QDomElement device)
{
    if (subDevice.type() == NvrnDeviceCore::ELEMENT_UNKNOWN || device.isNull()) {
        return;
    }
    const QDomElement element = createSubDeviceDomElement(device);
    setItems(driveItems(), subDevice, element);
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        if (!row.isOfKd2Only) {
            setFile(*this, row.get(subDevice), row.tag, element);
        }
    }
    if (subDevice.isKD2()) {
        appendKD2SubDeviceElement(subDevice.toKD2(), element);
    }
}

void CDeviceConfigurationFileBase::appendKD2SubDeviceElement(const CSubDeviceKD2Element &subDevice,
                                                             QDomElement element)
{
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        if (row.isOfKd2Only) {
            setFile(*this, row.get(subDevice), row.tag, element);
        }
    }
}

void CDeviceConfigurationFileBase::deviceElement(CDeviceElement &device,
                                                 const QDomElement &element) const
{
    device.clear();
    if (element.tagName() != TAG_DEVICE) {
        return;
    }
    ItemElements::read(deviceItems(), element, device, warnOfIdentity(*this, element));
    configElement(device, findConfigElement(element));

    QList<CSubDeviceElement> subDevices;
    subDeviceElements(subDevices, element);
    device.setSubDevices(subDevices);
}

void CDeviceConfigurationFileBase::configElement(CDeviceElement &device,
                                                 const QDomElement &parent) const
{
    // The groups before the options: the flag for OPC UA adds its option, and the document has all
    // the options there are.
    for (const SNode &node : config().children) {
        if (node.kind == EKind::GROUP) {
            readOpcUa(*this, node, parent.firstChildElement(node.tag), device);
        }
    }
    ItemElements::read(configItems(), parent, device);
    for (const SFileField<CDeviceElement> &row : deviceFiles()) {
        row.set(device, singleFile(row.tag, parent));
    }
    for (const SNode &node : config().children) {
        if (node.isList()) {
            readList(*this, node, parent.firstChildElement(node.tag), device);
        }
    }
}

void CDeviceConfigurationFileBase::subDeviceElements(QList<CSubDeviceElement> &subDevices,
                                                     const QDomElement &element) const
{
    subDevices.clear();
    QStringList numberTexts;
    for (QDomElement child = element.firstChildElement(TAG_SUB_DEVICE); !child.isNull();
         child = child.nextSiblingElement(TAG_SUB_DEVICE)) {
        subDevices.append(subDeviceElement(child));
        numberTexts.append(getNodeValue(TAG_DRIVE_NO, child));
    }
    const QVector<DriveNumbers::SAssigned> numbers = DriveNumbers::assigned(numberTexts);
    QList<int> withoutPlace;
    for (int index = 0; index < numbers.size(); ++index) {
        CSubDeviceElement &subDevice = subDevices[index];
        const DriveNumbers::SAssigned &assigned = numbers.at(index);
        if (assigned.number < 0) {
            withoutPlace.prepend(index);
            CMessageBoardHelper::setDebugWarning(
                Texts::tr("The drive '%1' is left out: all drive numbers are in use.")
                    .arg(subDevice.name()),
                logfile());
            continue;
        }
        subDevice.setDriveId(static_cast<quint8>(assigned.number));
        if (!assigned.isOwn) {
            CMessageBoardHelper::setDebugWarning(
                Texts::tr("The drive '%1' has no unique drive number and gets %2.")
                    .arg(subDevice.name(), QString::number(assigned.number)),
                logfile());
        }
    }
    for (const int index : withoutPlace) {
        subDevices.removeAt(index);
    }
}

CSubDeviceElement CDeviceConfigurationFileBase::subDeviceElement(const QDomElement &element) const
{
    CSubDeviceElement subDevice;
    ItemElements::read(driveItems(), element, subDevice, warnOfIdentity(*this, element));
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        if (!row.isOfKd2Only || subDevice.isKD2()) {
            row.set(subDevice, singleFile(row.tag, element));
        }
    }
    return subDevice;
}

void CDeviceConfigurationFileBase::paramFileElementList(QList<CParamFileElement> &files,
                                                        const QDomElement &element) const
{
    files.clear();
    const QDomNodeList entries = element.elementsByTagName(TAG_FILE);
    for (int i = 0; i < entries.size(); ++i) {
        CParamFileElement file;
        paramFileElement(file, entries.at(i).toElement());
        files.append(file);
    }
}

void CDeviceConfigurationFileBase::setParamFileElementList(const QList<CParamFileElement> &files,
                                                           QDomElement config)
{
    if (config.isNull()) {
        return;
    }
    const QDomElement list = config.ownerDocument().createElement(TAG_PARAMETERFILES);
    for (const CParamFileElement &file : files) {
        appendParamFileElement(file, list);
    }
    replaceChildElement(list, config);
}

void CDeviceConfigurationFileBase::pluginElementList(QList<CPluginElement> &plugins,
                                                     const QDomElement &element) const
{
    plugins.clear();
    const QDomNodeList entries = element.elementsByTagName(TAG_PLUGIN);
    for (int i = 0; i < entries.size(); ++i) {
        CPluginElement plugin;
        pluginElement(plugin, entries.at(i).toElement());
        plugins.append(plugin);
    }
}

void CDeviceConfigurationFileBase::setPluginElementList(const QList<CPluginElement> &plugins,
                                                        QDomElement config)
{
    if (config.isNull()) {
        return;
    }
    const QDomElement list = config.ownerDocument().createElement(TAG_PLUGINS);
    for (const CPluginElement &plugin : plugins) {
        appendPluginElement(plugin, list);
    }
    replaceChildElement(list, config);
}

void CDeviceConfigurationFileBase::setSingleFile(const CFileElement &file, const QString &tag,
                                                 QDomElement parent)
{
    replaceFile(*this, file, tag, parent);
}

CFileElement CDeviceConfigurationFileBase::singleFile(const QString &tag,
                                                      const QDomElement &parent) const
{
    CFileElement file;
    fileElement(file, parent.firstChildElement(tag).firstChildElement(TAG_FILE));
    return file;
}

void CDeviceConfigurationFileBase::setOpcUaFlag(bool enabled, QDomElement config)
{
    const QDomElement opcUa = ElementOrder::child(TAG_OPCUA, config);
    setNodeValue(ElementOrder::child(TAG_OPCUA_ENABLED, opcUa), enabled ? VALUE_TRUE : VALUE_FALSE);
}

bool CDeviceConfigurationFileBase::opcUaFlag(const QDomElement &config) const
{
    const QDomElement opcUa = config.firstChildElement(TAG_OPCUA);
    return getNodeValue(opcUa.firstChildElement(TAG_OPCUA_ENABLED)) == VALUE_TRUE;
}

QStringList CDeviceConfigurationFileBase::optionList(const QDomElement &config) const
{
    return StartOptions::deviceWords(getNodeValue(config.firstChildElement(TAG_OPTIONS)));
}

void CDeviceConfigurationFileBase::setCurrentFileVersion(const QString &version)
{
    m_currentFileVersion = version;
}

void CDeviceConfigurationFileBase::setOpenResult(NvrnGlobal::EFileResult result)
{
    m_openResult = result;
}

NvrnGlobal::EFileResult CDeviceConfigurationFileBase::openResult() const
{
    return m_openResult;
}
