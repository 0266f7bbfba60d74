#include "configfile/CDeviceConfigurationFileBase.h"

#include "imported/CMessageBoardHelper.h"
#include "imported/CStr.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/TextTables.h"

#include <QCoreApplication>
#include <QDomDocument>

#include <bitset>

using namespace NVornXmlTags;

namespace {

const QLatin1Char OptionSeparator(' ');
const int DriveNumbers = 256;

/** The texts of this class, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceConfigurationFile)
};

/** Gives each sub-device a drive number of its own, whatever the document says. */
class DriveNumberKeeper
{
public:
    /** Takes the number told by @p text; -1 when that is no drive number or is taken. */
    int take(const QString &text)
    {
        bool ok = false;
        const uint id = text.toUInt(&ok);
        if (!ok || id >= DriveNumbers || m_used.test(id)) {
            return -1;
        }
        m_used.set(id);
        return static_cast<int>(id);
    }

    /** Takes the number above all used ones, or the lowest free one; -1 when all are used. */
    int takeNext()
    {
        // 255 is left to documents that ask for it: elsewhere it means "no drive number".
        int id = DriveNumbers - 1;
        while (id > 0 && !m_used.test(static_cast<size_t>(id - 1))) {
            --id;
        }
        if (id == DriveNumbers - 1) {
            id = 0;
            while (id < DriveNumbers && m_used.test(static_cast<size_t>(id))) {
                ++id;
            }
        }
        if (id == DriveNumbers) {
            return -1;
        }
        m_used.set(static_cast<size_t>(id));
        return id;
    }

private:
    std::bitset<DriveNumbers> m_used;
};

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
    if (element.isNull()) {
        return;
    }
    setNodeValue(TAG_NAME, description.name(), element);
    setNodeValue(TAG_COMMENT, description.comment(), element);
    setNodeValue(TAG_VERSION, description.version(), element);
    setNodeValue(TAG_CREATIONDATE, description.creationDate().toString(Qt::ISODate), element);
    setNodeValue(TAG_REVISIONDATE, description.revisionDate().toString(Qt::ISODate), element);
}

void CDeviceConfigurationFileBase::descriptionElement(CDescriptionElement &description,
                                                      const QDomElement &element) const
{
    description.clear();
    if (element.tagName() != TAG_DESCRIPTION) {
        return;
    }
    const auto date = [&](const QString &tag) {
        return QDate::fromString(getNodeValue(tag, element), Qt::ISODate);
    };
    description.setName(getNodeValue(TAG_NAME, element));
    description.setComment(getNodeValue(TAG_COMMENT, element));
    description.setVersion(getNodeValue(TAG_VERSION, element));
    description.setCreationDate(date(TAG_CREATIONDATE));
    description.setRevisionDate(date(TAG_REVISIONDATE));
}

QDomElement CDeviceConfigurationFileBase::createSubDeviceDomElement(QDomElement device)
{
    if (device.isNull()) {
        return QDomElement();
    }
    QDomElement element = device.ownerDocument().createElement(TAG_SUB_DEVICE);
    element.setAttribute(
        ATTR_TYPE, TextTables::text(TextTables::subDeviceTypes(), NvrnDeviceCore::ELEMENT_UNKNOWN));
    device.appendChild(element);
    return element;
}

void CDeviceConfigurationFileBase::setDeviceElement(const CDeviceElement &device,
                                                    QDomElement element)
{
    if (element.isNull()) {
        return;
    }
    setNodeValue(TAG_HARDWAREID, device.hardwareIdStr(), element);
    setNodeValue(TAG_CLASS, deviceClassToStr(device.deviceClass()), element);
    setNodeValue(TAG_NAME, device.name(), element);
    setNodeValue(TAG_COMMENT, device.comment(), element);
    setNodeValue(TAG_CONFIGNAME, device.configurationName(), element);
    setConfigElement(device, configDomElement(element));
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        appendSubDeviceElement(subDevice, element);
    }
}

void CDeviceConfigurationFileBase::setConfigElement(const CDeviceElement &device,
                                                    QDomElement config)
{
    if (!device.options().isEmpty()) {
        setNodeValue(TAG_OPTIONS, device.options().join(OptionSeparator), config);
    }
    if (!device.parameterFiles().isEmpty()) {
        setParamFileElementList(device.parameterFiles(), config);
    }
    setSingleFile(device.odictFile(), TAG_DICTIONARY, config);
    setSingleFile(device.faultTextFile(), TAG_FAULTTEXT_FILE, config);
    if (device.fpgaFileCount() > 0) {
        setFileStringList(device.fpgaFiles(), TAG_FPGA_FILES, config);
    }
    if (device.isOpcUaEnabled() || !device.opcUaFiles().isEmpty()) {
        setOpcUaFlag(device.isOpcUaEnabled(), config);
        setFileElements(device.opcUaFiles(), TAG_OPCUA_FILES, findOpcUAElement(config));
    }
    setSingleFile(device.etherCatMasterFile(), TAG_ETHERCATMASTER, config);
    if (device.additionalFileCount() > 0) {
        setFileElements(device.additionalFiles(), TAG_FILES, config);
    }
    if (!device.plugins().isEmpty()) {
        setPluginElementList(device.plugins(), config);
    }
    if (!device.executionPlugin().isEmpty()) {
        setNodeValue(TAG_EXECUTIONPLUGIN, device.executionPlugin(), config);
    }
}

void CDeviceConfigurationFileBase::appendSubDeviceElement(const CSubDeviceElement &subDevice,
                                                          QDomElement device)
{
    if (subDevice.type() == NvrnDeviceCore::ELEMENT_UNKNOWN || device.isNull()) {
        return;
    }
    QDomElement element = createSubDeviceDomElement(device);
    element.setAttribute(ATTR_TYPE,
                         TextTables::text(TextTables::subDeviceTypes(), subDevice.type()));
    setNodeValue(TAG_HARDWAREID, subDevice.hardwareIdStr(), element);
    setNodeValue(TAG_NAME, subDevice.name(), element);
    setNodeValue(TAG_COMMENT, subDevice.comment(), element);
    setNodeValue(TAG_DRIVE_NO, QString::number(subDevice.driveId()), element);
    setNodeValue(TAG_BUS_ID, QString::number(subDevice.busId()), element);
    setSingleFile(subDevice.parameterFile(), TAG_PARAM, element);
    if (subDevice.isKD2()) {
        appendKD2SubDeviceElement(subDevice.toKD2(), element);
    }
}

void CDeviceConfigurationFileBase::appendKD2SubDeviceElement(const CSubDeviceKD2Element &subDevice,
                                                             QDomElement element)
{
    if (element.isNull()) {
        return;
    }
    setSingleFile(subDevice.kd2ParameterFile(), TAG_KD2_PARAM, element);
    setSingleFile(subDevice.kd2LogicFile(), TAG_KD2_LOGIC, element);
    setSingleFile(subDevice.kd2FirmwareFile(), TAG_KD2_FIRMWARE, element);
}

void CDeviceConfigurationFileBase::deviceElement(CDeviceElement &device,
                                                 const QDomElement &element) const
{
    device.clear();
    if (element.tagName() != TAG_DEVICE) {
        return;
    }
    device.setHardwareId(hardwareIdIn(element));
    device.setDeviceClass(strToDeviceClass(getNodeValue(TAG_CLASS, element)));
    device.setName(getNodeValue(TAG_NAME, element));
    device.setComment(getNodeValue(TAG_COMMENT, element));
    const QDomElement configurationName = element.firstChildElement(TAG_CONFIGNAME);
    if (!configurationName.isNull()) {
        device.setConfigurationName(getNodeValue(configurationName));
    }
    configElement(device, findConfigElement(element));

    QList<CSubDeviceElement> subDevices;
    subDeviceElements(subDevices, element);
    device.setSubDevices(subDevices);
}

void CDeviceConfigurationFileBase::configElement(CDeviceElement &device,
                                                 const QDomElement &config) const
{
    // The flag before the options: it adds its option, and the document tells all there are.
    device.setOpcUaEnabled(opcUaFlag(config));
    device.setOptions(optionList(config));

    QList<CParamFileElement> paramFiles;
    paramFileElementList(paramFiles, config.firstChildElement(TAG_PARAMETERFILES));
    device.setParameterFiles(paramFiles);

    device.setOdictFile(singleFile(TAG_DICTIONARY, config));
    device.setFaultTextFile(singleFile(TAG_FAULTTEXT_FILE, config));

    QStringList fpgaFiles;
    fileStrings(fpgaFiles, config.firstChildElement(TAG_FPGA_FILES));
    device.setFpgaFiles(fpgaFiles);

    QList<CFileElement> files;
    fileElements(files, config.firstChildElement(TAG_OPCUA).firstChildElement(TAG_OPCUA_FILES));
    device.setOpcUaFiles(files);

    device.setEtherCatMasterFile(singleFile(TAG_ETHERCATMASTER, config));

    fileElements(files, config.firstChildElement(TAG_FILES));
    device.setAdditionalFiles(files);

    QList<CPluginElement> plugins;
    pluginElementList(plugins, config.firstChildElement(TAG_PLUGINS));
    device.setPlugins(plugins);

    device.setExecutionPlugin(getNodeValue(config.firstChildElement(TAG_EXECUTIONPLUGIN)));
}

void CDeviceConfigurationFileBase::subDeviceElements(QList<CSubDeviceElement> &subDevices,
                                                     const QDomElement &element) const
{
    subDevices.clear();
    DriveNumberKeeper numbers;
    QList<int> withoutNumber;
    for (QDomElement child = element.firstChildElement(TAG_SUB_DEVICE); !child.isNull();
         child = child.nextSiblingElement(TAG_SUB_DEVICE)) {
        CSubDeviceElement subDevice = subDeviceElement(child);
        const int id = numbers.take(getNodeValue(TAG_DRIVE_NO, child));
        if (id < 0) {
            withoutNumber.append(subDevices.size());
        } else {
            subDevice.setDriveId(static_cast<quint8>(id));
        }
        subDevices.append(subDevice);
    }
    // Last, so that none of them takes a number that another one has in the document.
    QList<int> withoutPlace;
    for (const int index : withoutNumber) {
        CSubDeviceElement &subDevice = subDevices[index];
        const int id = numbers.takeNext();
        if (id < 0) {
            withoutPlace.prepend(index);
            CMessageBoardHelper::setDebugWarning(
                Texts::tr("The drive '%1' is left out: all drive numbers are in use.")
                    .arg(subDevice.name()),
                logfile());
            continue;
        }
        subDevice.setDriveId(static_cast<quint8>(id));
        CMessageBoardHelper::setDebugWarning(
            Texts::tr("The drive '%1' has no unique drive number and gets %2.")
                .arg(subDevice.name(), QString::number(id)),
            logfile());
    }
    for (const int index : withoutPlace) {
        subDevices.removeAt(index);
    }
}

CSubDeviceElement CDeviceConfigurationFileBase::subDeviceElement(const QDomElement &element) const
{
    const QString kd2 =
        TextTables::text(TextTables::subDeviceTypes(), NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE);
    if (element.attribute(ATTR_TYPE) == kd2) {
        CSubDeviceKD2Element subDevice;
        readSubDevice(subDevice, element);
        subDevice.setKd2ParameterFile(singleFile(TAG_KD2_PARAM, element));
        subDevice.setKd2LogicFile(singleFile(TAG_KD2_LOGIC, element));
        subDevice.setKd2FirmwareFile(singleFile(TAG_KD2_FIRMWARE, element));
        return subDevice;
    }
    CSubDeviceKD3Element subDevice;
    readSubDevice(subDevice, element);
    return subDevice;
}

template <typename SubDevice>
void CDeviceConfigurationFileBase::readSubDevice(SubDevice &subDevice,
                                                 const QDomElement &element) const
{
    subDevice.setHardwareId(hardwareIdIn(element));
    subDevice.setName(getNodeValue(TAG_NAME, element));
    subDevice.setComment(getNodeValue(TAG_COMMENT, element));
    subDevice.setBusId(getNodeValue(TAG_BUS_ID, element).toUInt());
    subDevice.setParameterFile(singleFile(TAG_PARAM, element));
}

CDeviceHardwareId CDeviceConfigurationFileBase::hardwareIdIn(const QDomElement &element) const
{
    const QString text = getNodeValue(TAG_HARDWAREID, element);
    CDeviceHardwareId id(text);
    if (id.isNull() && !text.isEmpty()) {
        CMessageBoardHelper::setDebugWarning(
            Texts::tr("The hardware identity '%1' of '%2' is not valid.")
                .arg(text, getNodeValue(TAG_NAME, element)),
            logfile());
    }
    return id;
}

void CDeviceConfigurationFileBase::paramFileElementList(QList<CParamFileElement> &files,
                                                        const QDomElement &element) const
{
    files.clear();
    const QDomNodeList entries = element.elementsByTagName(TAG_FILE);
    for (int i = 0; i < entries.size(); ++i) {
        CParamFileElement file;
        paramFileElement(file, entries.at(i).toElement());
        if (!file.isNull()) {
            files.append(file);
        }
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
    if (parent.isNull()) {
        return;
    }
    QDomElement holder = parent.firstChildElement(tag);
    if (holder.isNull() && file.isNull()) {
        return;
    }
    if (holder.isNull()) {
        holder = domElement(tag, parent);
    }
    // The first entry is filled again rather than replaced: what else it holds stays.
    QDomElement entry = file.isNull() ? QDomElement() : holder.firstChildElement(TAG_FILE);
    for (QDomElement child = holder.firstChildElement(TAG_FILE); !child.isNull();) {
        const QDomElement next = child.nextSiblingElement(TAG_FILE);
        if (child != entry) {
            holder.removeChild(child);
        }
        child = next;
    }
    if (!file.isNull()) {
        appendFileElement(file, entry.isNull() ? holder : entry);
    }
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
    setNodeValue(TAG_OPCUA_ENABLED, enabled ? VALUE_TRUE : VALUE_FALSE,
                 domElement(TAG_OPCUA, config));
}

bool CDeviceConfigurationFileBase::opcUaFlag(const QDomElement &config) const
{
    const QDomElement opcUa = config.firstChildElement(TAG_OPCUA);
    return getNodeValue(opcUa.firstChildElement(TAG_OPCUA_ENABLED)) == VALUE_TRUE;
}

QStringList CDeviceConfigurationFileBase::optionList(const QDomElement &config) const
{
    return getNodeValue(config.firstChildElement(TAG_OPTIONS))
        .split(OptionSeparator, Qt::SkipEmptyParts);
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
