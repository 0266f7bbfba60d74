#include "configfile/CDeviceConfigurationFile10.h"

#include "configfile/ConfigurationShape.h"
#include "configfile/ElementOrder.h"
#include "imported/CMessageBoardHelper.h"
#include "imported/ICLogfile.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/Texts.h"

#include <QDir>
#include <QDomDocument>

using namespace NVornXmlTags;

namespace {

using DeviceConfigurationFile10Texts::Texts;

/** Removes an element from its parent; false for a null one. */
bool remove(const QDomElement &element)
{
    return !element.isNull() && !element.parentNode().removeChild(element).isNull();
}

/** @p parent, where the child @p tag now has its place: what builds the list anew replaces it. */
QDomElement withChild(const QString &tag, const QDomElement &parent)
{
    ElementOrder::child(tag, parent);
    return parent;
}

} // namespace

CDeviceConfigurationFile10::CDeviceConfigurationFile10(ICLogfile *logfile)
    : CDeviceConfigurationFileBase(logfile)
{
}

CDeviceConfigurationFile10::~CDeviceConfigurationFile10() = default;

bool CDeviceConfigurationFile10::handleVersionError(const QString &required,
                                                    const QString &existing)
{
    return warnOfVersion(required, existing,
                         Texts::tr("The configuration file was created with a previous version"),
                         Texts::tr("The configuration file was created with a later version"));
}

bool CDeviceConfigurationFile10::createNewDocument()
{
    const bool created = createNewDocument(TAG_ROOT_DEVICECONFIG, requiredFileVersion());
    CXMLMetaData meta;
    meta.setComment(QStringLiteral("Device Configuration File"));
    if (logfile() != nullptr) {
        meta.setAuthor(logfile()->author());
    }
    setMetaData(meta);
    setOpenResult(NvrnGlobal::FILE_RESULT_SUCCESS);
    return finishOpening(created);
}

bool CDeviceConfigurationFile10::open(const QString &path)
{
    setOpenResult(NvrnGlobal::FILE_RESULT_FAILURE);
    bool opened = false;
    if (!path.isEmpty()) {
        setOpenResult(NvrnGlobal::FILE_RESULT_SUCCESS);
        QString error;
        opened = open(path, TAG_ROOT_DEVICECONFIG, requiredFileVersion(), error);
    }
    if (!opened) {
        CMessageBoardHelper::setDebugCritical(
            Texts::tr("The device configuration file could not be opened: %1")
                .arg(QDir::toNativeSeparators(path)),
            logfile());
    }
    return finishOpening(opened);
}

bool CDeviceConfigurationFile10::save(const QString &path)
{
    setCurrentFileVersion(requiredFileVersion());
    QString error;
    if (!save(path, error)) {
        setOpenResult(NvrnGlobal::FILE_RESULT_FAILURE);
        return false;
    }
    return true;
}

bool CDeviceConfigurationFile10::load(const QByteArray &buffer)
{
    setOpenResult(NvrnGlobal::FILE_RESULT_FAILURE);
    bool loaded = false;
    if (!buffer.isEmpty()) {
        setOpenResult(NvrnGlobal::FILE_RESULT_SUCCESS);
        QString error;
        loaded = open(buffer, TAG_ROOT_DEVICECONFIG, requiredFileVersion(), error);
    }
    if (!loaded) {
        CMessageBoardHelper::setDebugCritical(
            Texts::tr("The device configuration file buffer could not be loaded."), logfile());
    }
    return finishOpening(loaded);
}

bool CDeviceConfigurationFile10::finishOpening(bool opened)
{
    if (!opened) {
        dropDocument();
        setOpenResult(NvrnGlobal::FILE_RESULT_FAILURE);
        setCurrentFileVersion(QString());
    } else if (openResult() == NvrnGlobal::FILE_RESULT_SUCCESS) {
        setCurrentFileVersion(requiredFileVersion());
    }
    return opened;
}

void CDeviceConfigurationFile10::dropDocument()
{
    // No name gives no document. Handles that callers got before keep what they have.
    createNewDocument(QString(), QString());
}

bool CDeviceConfigurationFile10::hasDocument() const
{
    return !domDocument().documentElement().isNull();
}

QString CDeviceConfigurationFile10::requiredFileVersion() const
{
    return QStringLiteral("1.0");
}

bool CDeviceConfigurationFile10::setDescription(const CDescriptionElement &description)
{
    QDomDocument document = domDocument();
    QDomElement root = document.documentElement();
    if (root.isNull()) {
        return false;
    }
    const QDomElement element = ElementOrder::child(TAG_DESCRIPTION, root);
    const QString text = QStringLiteral("Project description");
    const QDomNode before = element.previousSibling();
    if (!before.isComment() || before.nodeValue().trimmed() != text) {
        root.insertBefore(document.createComment(text), element);
    }
    setDescriptionElement(description, element);
    return true;
}

CDescriptionElement CDeviceConfigurationFile10::description() const
{
    CDescriptionElement description;
    descriptionElement(description, findDescriptionElement());
    return description;
}

bool CDeviceConfigurationFile10::setConfiguration(const CDeviceElement &device)
{
    QDomDocument document = domDocument();
    QDomElement root = document.documentElement();
    if (root.isNull()) {
        return false;
    }
    while (remove(findDeviceElement())) { }
    const QDomElement element = document.createElement(TAG_DEVICE);
    root.appendChild(element);
    setDeviceElement(device, element);
    return true;
}

bool CDeviceConfigurationFile10::configuration(CDeviceElement &device) const
{
    const QDomElement element = findDeviceElement();
    deviceElement(device, element);
    for (const auto &row : ConfigurationShape::deviceFiles()) {
        if (row.isBelowDevice) {
            row.set(device, checkedProjectPath(row.get(device), device));
        }
    }
    return !element.isNull();
}

CFileElement CDeviceConfigurationFile10::checkedProjectPath(const CFileElement &file,
                                                            const CDeviceElement &device) const
{
    const QString path = file.projectPath();
    if (path.isEmpty() || device.name().isEmpty()
        || path.startsWith(device.name() + QLatin1Char('/'))) {
        return file;
    }
    CMessageBoardHelper::setDebugWarning(
        Texts::tr("The project path of '%1' is invalid and will be removed.").arg(file.fileName()),
        logfile());
    CFileElement checked = file;
    checked.setProjectPath(QString());
    return checked;
}

bool CDeviceConfigurationFile10::setConfigFile(const CFileElement &file, const QString &tag)
{
    if (!hasDocument()) {
        return false;
    }
    setSingleFile(file, tag, configDomElement(QDomElement()));
    return true;
}

bool CDeviceConfigurationFile10::setOdictFile(const CFileElement &file)
{
    return setConfigFile(file, TAG_DICTIONARY);
}

CFileElement CDeviceConfigurationFile10::odictFile() const
{
    return singleFile(TAG_DICTIONARY, findConfigElement());
}

bool CDeviceConfigurationFile10::setFaultTextFile(const CFileElement &file)
{
    return setConfigFile(file, TAG_FAULTTEXT_FILE);
}

CFileElement CDeviceConfigurationFile10::faultTextFile() const
{
    return singleFile(TAG_FAULTTEXT_FILE, findConfigElement());
}

QList<CParamFileElement> CDeviceConfigurationFile10::paramFiles() const
{
    QList<CParamFileElement> files;
    paramFiles(files);
    return files;
}

bool CDeviceConfigurationFile10::paramFiles(QList<CParamFileElement> &files) const
{
    const QDomElement list = findParamFilesElement();
    paramFileElementList(files, list);
    return !list.isNull();
}

bool CDeviceConfigurationFile10::setParamFiles(const QList<CParamFileElement> &files)
{
    if (!hasDocument()) {
        return false;
    }
    setParamFileElementList(files, withChild(TAG_PARAMETERFILES, configDomElement(QDomElement())));
    return true;
}

bool CDeviceConfigurationFile10::containsParamFile(const CParamFileElement &file) const
{
    return !findParamFile(file.name(), file.type()).isNull();
}

bool CDeviceConfigurationFile10::addParamFile(const CParamFileElement &file)
{
    if (!hasDocument() || !file.isValid()) {
        return false;
    }
    insertParamFileElement(file, paramFilesDomElement(QDomElement()));
    return true;
}

bool CDeviceConfigurationFile10::addParamFile(const QString &name, NvrnGlobal::EParamFileType type)
{
    CParamFileElement file;
    file.setName(name);
    file.setType(type);
    return addParamFile(file);
}

bool CDeviceConfigurationFile10::removeParamFile(const CParamFileElement &file)
{
    return removeParamFile(file.name(), file.type());
}

bool CDeviceConfigurationFile10::removeParamFile(const QString &name,
                                                 NvrnGlobal::EParamFileType type)
{
    return remove(findParamFile(name, type));
}

template <typename Matches>
QDomElement CDeviceConfigurationFile10::findFile(const QDomElement &list, Matches matches) const
{
    QDomElement entry = list.firstChildElement(TAG_FILE);
    while (!entry.isNull() && !matches(entry)) {
        entry = entry.nextSiblingElement(TAG_FILE);
    }
    return entry;
}

QDomElement CDeviceConfigurationFile10::findParamFile(const QString &name,
                                                      NvrnGlobal::EParamFileType type) const
{
    // At any depth below the list, as the list is read.
    const QDomNodeList entries = findParamFilesElement().elementsByTagName(TAG_FILE);
    for (int i = 0; i < entries.size(); ++i) {
        const QDomElement entry = entries.at(i).toElement();
        CParamFileElement file;
        paramFileElement(file, entry);
        if (file.name() == name && file.type() == type && file.isValid()) {
            return entry;
        }
    }
    return QDomElement();
}

QDomElement CDeviceConfigurationFile10::findAdditionalFile(const CFileElement &file) const
{
    return findFile(findFilesElement(), [&](const QDomElement &entry) {
        CFileElement candidate;
        fileElement(candidate, entry);
        return candidate == file && !file.isNull();
    });
}

QDomElement CDeviceConfigurationFile10::findFpgaFile(const QString &fileName) const
{
    return findFile(findElementInConfigElement(TAG_FPGA_FILES), [&](const QDomElement &entry) {
        QString candidate;
        fileString(candidate, entry);
        return candidate == fileName;
    });
}

QStringList CDeviceConfigurationFile10::fpgaFiles() const
{
    QStringList fileNames;
    fileStrings(fileNames, findElementInConfigElement(TAG_FPGA_FILES));
    return fileNames;
}

bool CDeviceConfigurationFile10::setFpgaFiles(const QStringList &fileNames)
{
    if (!hasDocument()) {
        return false;
    }
    setFileStringList(fileNames, TAG_FPGA_FILES,
                      withChild(TAG_FPGA_FILES, configDomElement(QDomElement())));
    return true;
}

bool CDeviceConfigurationFile10::containsFpgaFile(const QString &fileName) const
{
    return !findFpgaFile(fileName).isNull();
}

bool CDeviceConfigurationFile10::appendFpgaFile(const QString &fileName)
{
    if (!hasDocument()) {
        return false;
    }
    appendFileString(fileName,
                     ElementOrder::child(TAG_FPGA_FILES, configDomElement(QDomElement())));
    return true;
}

bool CDeviceConfigurationFile10::removeFpgaFile(const QString &fileName)
{
    return remove(findFpgaFile(fileName));
}

bool CDeviceConfigurationFile10::setActiveFpgaFile(const QString &fileName)
{
    if (!hasDocument() || fileName.isEmpty()) {
        return false;
    }
    QDomElement list = ElementOrder::child(TAG_FPGA_FILES, configDomElement(QDomElement()));
    const auto findSame = [&]() {
        return findFile(list, [&](const QDomElement &entry) {
            return CDeviceBaseElement::isSameFpgaFile(getNodeValue(TAG_NAME, entry), fileName);
        });
    };
    // The entry itself moves, with whatever else it holds.
    QDomElement active = findSame();
    if (active.isNull()) {
        active = list.ownerDocument().createElement(TAG_FILE);
    } else {
        list.removeChild(active);
    }
    while (remove(findSame())) { }
    list.insertBefore(active, list.firstChildElement(TAG_FILE));
    appendFileString(fileName, active);
    return true;
}

QString CDeviceConfigurationFile10::activeFpgaFile() const
{
    return fpgaFiles().value(0);
}

QList<CFileElement> CDeviceConfigurationFile10::additionalFiles() const
{
    QList<CFileElement> files;
    fileElements(files, findFilesElement());
    return files;
}

bool CDeviceConfigurationFile10::setAdditionalFiles(const QList<CFileElement> &files)
{
    if (!hasDocument()) {
        return false;
    }
    setFileElements(files, TAG_FILES, withChild(TAG_FILES, configDomElement(QDomElement())));
    return true;
}

bool CDeviceConfigurationFile10::containsAdditionalFile(const CFileElement &file) const
{
    return !findAdditionalFile(file).isNull();
}

bool CDeviceConfigurationFile10::appendAdditionalFile(const CFileElement &file)
{
    if (!hasDocument() || file.isNull()) {
        return false;
    }
    appendFileElement(file, ElementOrder::child(TAG_FILES, configDomElement(QDomElement())));
    return true;
}

bool CDeviceConfigurationFile10::removeAdditionalFile(const CFileElement &file)
{
    return remove(findAdditionalFile(file));
}

bool CDeviceConfigurationFile10::setPlugins(const QList<CPluginElement> &plugins)
{
    if (!hasDocument()) {
        return false;
    }
    setPluginElementList(plugins, withChild(TAG_PLUGINS, configDomElement(QDomElement())));
    return true;
}

QList<CPluginElement> CDeviceConfigurationFile10::plugins() const
{
    QList<CPluginElement> result;
    plugins(result);
    return result;
}

bool CDeviceConfigurationFile10::plugins(QList<CPluginElement> &plugins) const
{
    const QDomElement list = findPluginsElement();
    pluginElementList(plugins, list);
    return !list.isNull();
}

bool CDeviceConfigurationFile10::setExecutionPlugin(const QString &name)
{
    if (!hasDocument()) {
        return false;
    }
    setNodeValue(ElementOrder::child(TAG_EXECUTIONPLUGIN, configDomElement(QDomElement())), name);
    return true;
}

QString CDeviceConfigurationFile10::executionPlugin() const
{
    return getNodeValue(findElementInConfigElement(TAG_EXECUTIONPLUGIN));
}

bool CDeviceConfigurationFile10::setOpcUaEnabled(bool enabled)
{
    if (!hasDocument()) {
        return false;
    }
    setOpcUaFlag(enabled, configDomElement(QDomElement()));
    return true;
}

bool CDeviceConfigurationFile10::isOpcUaEnabled() const
{
    return opcUaFlag(findConfigElement());
}

bool CDeviceConfigurationFile10::setOpcUaFiles(const QList<CFileElement> &files)
{
    if (!hasDocument()) {
        return false;
    }
    const QDomElement opcUa = ElementOrder::child(TAG_OPCUA, configDomElement(QDomElement()));
    setFileElements(files, TAG_OPCUA_FILES, withChild(TAG_OPCUA_FILES, opcUa));
    return true;
}

bool CDeviceConfigurationFile10::opcUaFiles(QList<CFileElement> &files) const
{
    const QDomElement list = findOpcUAElement().firstChildElement(TAG_OPCUA_FILES);
    fileElements(files, list);
    return !list.isNull();
}

bool CDeviceConfigurationFile10::setEtherCatMasterFile(const CFileElement &file)
{
    return setConfigFile(file, TAG_ETHERCATMASTER);
}

CFileElement CDeviceConfigurationFile10::etherCatMasterFile() const
{
    return singleFile(TAG_ETHERCATMASTER, findConfigElement());
}

QStringList CDeviceConfigurationFile10::options() const
{
    return optionList(findConfigElement());
}
