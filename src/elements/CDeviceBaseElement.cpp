#include "elements/CDeviceBaseElement.h"

#include "devicefiles/CDeviceFileSystem.h"
#include "elements/ElementPaths.h"
#include "elements/FieldList.h"
#include "elements/FileCollector.h"
#include "vocabulary/NvrFileNames.h"
#include "vocabulary/TextTables.h"

#include <QFileInfo>
#include <QRegExp>

#include <algorithm>

class CDeviceBaseElementData : public QSharedData
{
public:
    virtual ~CDeviceBaseElementData() = default;

    quint32 serial = 0;
    NDeviceConf::EDeviceClass deviceClass = NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QStringList options;
    QList<CParamFileElement> parameterFiles;
    CFileElement odictFile;
    CFileElement faultTextFile;
    QList<CFileElement> additionalFiles;
    QList<CPluginElement> plugins;
    QString executionPlugin;
    QStringList fpgaFiles;
    bool opcUaEnabled = false;
    QList<CFileElement> opcUaFiles;
    CFileElement etherCatMasterFile;
    CDeviceItem::EHostAddrType hostAddressType = CDeviceItem::HOST_ADDRESS_UNDEFINED;
    QHostAddress hostAddress;
    quint16 port = 0;
    qint32 preferredDeviceListNumber = -1;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.serial, self.deviceClass, self.options, self.parameterFiles,
                        self.odictFile, self.faultTextFile, self.additionalFiles, self.plugins,
                        self.executionPlugin, self.fpgaFiles, self.opcUaEnabled, self.opcUaFiles,
                        self.etherCatMasterFile, self.hostAddressType, self.hostAddress, self.port,
                        self.preferredDeviceListNumber);
    }
};

namespace {

const quint8 NoDriveId = 255;

const QString OpcUaOption = QStringLiteral("-opc");

bool isOption(const QString &text)
{
    return text.startsWith(QLatin1Char('-'));
}

template <typename Item>
bool removeIndex(QList<Item> &list, int index)
{
    if (index < 0 || index >= list.size()) {
        return false;
    }
    list.removeAt(index);
    return true;
}

/** Index of the first item for which @p matches holds; -1 if there is none. */
template <typename List, typename Predicate>
int indexOf(const List &list, Predicate matches)
{
    const auto found = std::find_if(list.cbegin(), list.cend(), matches);
    return found == list.cend() ? -1 : static_cast<int>(std::distance(list.cbegin(), found));
}

/**
 * A parameter file, placed where the directory layout puts it unless it has directories of its own.
 */
CParamFileElement placed(const CParamFileElement &file, const CDeviceBaseElement &device)
{
    CParamFileElement result = file;
    const QString standardPath = device.stdParameterFileDevicePath(file.type());
    // Without a configuration name most types have no place, only the end of a path.
    if (result.devicePath().isEmpty() && standardPath.startsWith(QLatin1Char('/'))) {
        result.setDevicePath(standardPath);
    }
    if (result.projectPath().isEmpty()) {
        result.setProjectPath(
            CDeviceFileSystem::toRelativeProjectPath(result.devicePath(), device));
    }
    return result;
}

void collect(const CParamFileElement &file, QFlags<NvrnDeviceCore::EDeviceFile> kinds,
             const CDeviceBaseElement &device, FileCollector &collector)
{
    if (!file.isValid()) {
        return;
    }
    const CParamFileElement atPlace = placed(file, device);
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_PARAMETER_VALUES)) {
        collector.add(atPlace.valueFile());
    }
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_PARAMETER_DEFINITION)) {
        collector.add(atPlace.defFile());
    }
}

void collect(const CSubDeviceElement &subDevice, QFlags<NvrnDeviceCore::EDeviceFile> kinds,
             FileCollector &collector)
{
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_SUB_DEVICE_PARAMETERS)) {
        collector.add(subDevice.parameterFile());
    }
    const CSubDeviceKD2Element kd2 = subDevice.toKD2();
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_KD2_FIRMWARE)) {
        collector.add(kd2.kd2FirmwareFile());
    }
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_KD2_LOGIC)) {
        collector.add(kd2.kd2LogicFile());
    }
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_KD2_PARAMETERS)) {
        collector.add(kd2.kd2ParameterFile());
    }
}

} // namespace

CDeviceBaseElement::CDeviceBaseElement() : d(new CDeviceBaseElementData) { }
CDeviceBaseElement::CDeviceBaseElement(const CDeviceBaseElement &other) = default;
CDeviceBaseElement::~CDeviceBaseElement() = default;
CDeviceBaseElement &CDeviceBaseElement::operator=(const CDeviceBaseElement &other) = default;

template <typename Change>
void CDeviceBaseElement::changeSubDevices(Change change)
{
    for (auto it = m_subDevices.begin(); it != m_subDevices.end(); ++it) {
        change(it.value());
    }
}

template <typename Change>
void CDeviceBaseElement::changeFiles(Change change)
{
    std::for_each(d->parameterFiles.begin(), d->parameterFiles.end(), change);
    change(d->odictFile);
    change(d->faultTextFile);
    std::for_each(d->additionalFiles.begin(), d->additionalFiles.end(), change);
    std::for_each(d->opcUaFiles.begin(), d->opcUaFiles.end(), change);
    change(d->etherCatMasterFile);
}

bool CDeviceBaseElement::isNull() const
{
    return CBaseElement::isNull() && m_subDevices.isEmpty() && FieldList::isDefault(d);
}

void CDeviceBaseElement::clear()
{
    *this = CDeviceBaseElement();
}

void CDeviceBaseElement::setName(const QString &name)
{
    CBaseElement::setName(name);
    changeSubDevices([&name](CSubDeviceElement &sub) { sub.setDeviceName(name); });
}

void CDeviceBaseElement::setHardwareId(const CDeviceHardwareId &hardwareId)
{
    CBaseElement::setHardwareId(hardwareId);
    changeSubDevices([id = hardwareIdStr()](CSubDeviceElement &sub) { sub.setHardwareId(id); });
}

void CDeviceBaseElement::setHardwareId(const QString &hardwareId)
{
    setHardwareId(CDeviceHardwareId(hardwareId));
}

void CDeviceBaseElement::setConfigurationName(const QString &configurationName)
{
    CBaseElement::setConfigurationName(configurationName);
    changeSubDevices([&configurationName](CSubDeviceElement &sub) {
        sub.setConfigurationName(configurationName);
    });
}

quint8 CDeviceBaseElement::driveId() const
{
    return NoDriveId;
}

void CDeviceBaseElement::setDriveId(unsigned char driveId)
{
    Q_UNUSED(driveId)
}

bool CDeviceBaseElement::isDevice() const
{
    return true;
}

CDeviceBaseElement CDeviceBaseElement::toBaseDevice() const
{
    return *this;
}

CDeviceBaseElement *CDeviceBaseElement::toBaseDevicePtr() const
{
    return const_cast<CDeviceBaseElement *>(this);
}

void CDeviceBaseElement::setNameAndAdaptProjectPaths(const QString &name)
{
    adaptProjectPaths(name);
    setName(name);
}

void CDeviceBaseElement::adaptProjectPaths(const QString &name)
{
    const ElementPaths::DeviceRenaming renaming(*this, this->name(), name);
    changeFiles([&renaming](auto &file) { renaming.apply(file); });
    changeSubDevices([&name](CSubDeviceElement &sub) { sub.adaptProjectPaths(name); });
}

void CDeviceBaseElement::setConfigurationNameAndAdaptPaths(const QString &configurationName)
{
    const ElementPaths::ConfigurationRenaming renaming(*this, name(), configurationName);
    changeFiles([&renaming](auto &file) { renaming.apply(file); });
    changeSubDevices([&configurationName](CSubDeviceElement &sub) {
        sub.setConfigurationNameAndAdaptPaths(configurationName);
    });
    setConfigurationName(configurationName);
}

bool CDeviceBaseElement::isParameterHardwareIdCompatible(const CDeviceHardwareId &hardwareId,
                                                         NvrnGlobal::EParamFileType type) const
{
    const CDeviceHardwareId &own = this->hardwareId();
    const bool sameProduct = hardwareId.prefix() == own.prefix() && hardwareId.name() == own.name()
        && hardwareId.platform() == own.platform();
    const bool tiedToHardwareState = type == NvrnGlobal::PARAM_FILE_FIRMWARE_DATABASE
        || type == NvrnGlobal::PARAM_FILE_LOGIC_DATABASE;
    return sameProduct && (!tiedToHardwareState || hardwareId == own);
}

unsigned int CDeviceBaseElement::serial() const
{
    return d->serial;
}

void CDeviceBaseElement::setSerial(unsigned int serial)
{
    d->serial = serial;
    changeSubDevices([serial](CSubDeviceElement &sub) { sub.setDeviceSerial(serial); });
}

NDeviceConf::EDeviceClass CDeviceBaseElement::deviceClass() const
{
    return d->deviceClass;
}

void CDeviceBaseElement::setDeviceClass(NDeviceConf::EDeviceClass deviceClass)
{
    d->deviceClass = deviceClass;
}

bool CDeviceBaseElement::addParameterFile(const CParamFileElement &file)
{
    if (!file.isValid()) {
        return false;
    }
    QList<CParamFileElement> &files = d->parameterFiles;
    const int index = indexOf(files, [&file](const CParamFileElement &candidate) {
        return candidate.name() == file.name() && candidate.type() == file.type()
            && candidate.driveId() == file.driveId();
    });
    if (index < 0) {
        files.append(file);
    } else {
        files[index] = file;
    }
    return true;
}

bool CDeviceBaseElement::addParameterFile(const QString &name, NvrnGlobal::EParamFileType type)
{
    CParamFileElement file;
    file.setName(name);
    file.setType(type);
    return addParameterFile(file);
}

bool CDeviceBaseElement::removeParameterFile(const CParamFileElement &file)
{
    return d->parameterFiles.removeOne(file);
}

bool CDeviceBaseElement::removeParameterFile(const QString &name, NvrnGlobal::EParamFileType type)
{
    const auto matches = [&name, type](const CParamFileElement &file) {
        return file.name() == name && file.type() == type;
    };
    return removeIndex(d->parameterFiles, indexOf(d->parameterFiles, matches));
}

CFileElement CDeviceBaseElement::odictFile() const
{
    return d->odictFile;
}

void CDeviceBaseElement::setOdictFile(const CFileElement &file)
{
    d->odictFile = file;
}

QString CDeviceBaseElement::odictFileName() const
{
    return d->odictFile.fileName();
}

void CDeviceBaseElement::setOdictFileName(const QString &fileName)
{
    CFileElement &file = d->odictFile;
    file.setFileName(fileName);
    file.setDevicePath(CDeviceFileSystem(*this).optSMDeviceConfPath());
    file.setProjectPath(QString());
}

void CDeviceBaseElement::setFaultTextFile(const CFileElement &file)
{
    d->faultTextFile = file;
}

CFileElement CDeviceBaseElement::faultTextFile() const
{
    return d->faultTextFile;
}

QString CDeviceBaseElement::fpgaFile(int index) const
{
    return d->fpgaFiles.value(index);
}

QStringList CDeviceBaseElement::fpgaFiles() const
{
    return d->fpgaFiles;
}

quint8 CDeviceBaseElement::insertSubDevice(CSubDeviceElement &subDevice, unsigned char id)
{
    if (id == NoDriveId && !m_subDevices.contains(NoDriveId)) {
        id = nextFreeDriveID();
    }
    fitSubDevice(subDevice, id, hardwareIdStr());
    m_subDevices.insert(id, subDevice);
    return id;
}

quint8 CDeviceBaseElement::insertSubDevice(const CSubDeviceElement &subDevice, unsigned char id)
{
    CSubDeviceElement copy(subDevice);
    return insertSubDevice(copy, id);
}

void CDeviceBaseElement::fitSubDevice(CSubDeviceElement &subDevice, unsigned char id,
                                      const QString &hardwareId) const
{
    subDevice.setDriveId(id);
    subDevice.setDeviceSerial(serial());
    subDevice.setDeviceName(name());
    subDevice.setHardwareId(hardwareId);
    subDevice.setConfigurationName(configurationName());
    if (subDevice.name().isEmpty()) {
        const QString pattern = deviceClass() == NDeviceConf::DEVICE_CLASS_KC2
            ? QStringLiteral("Sub-Device %1")
            : QStringLiteral("DRIVE-%1");
        subDevice.setName(pattern.arg(id));
    }
}

CFileElement CDeviceBaseElement::configurationFile() const
{
    return fileAt(NvrFileNames::DEVICE_CONFIG_FILENAME,
                  CDeviceFileSystem(*this).smDeviceConfPath());
}

CFileElement CDeviceBaseElement::fileAt(const QString &fileName, const QString &devicePath) const
{
    CFileElement file;
    file.setFileName(fileName);
    file.setDevicePath(devicePath);
    file.setProjectPath(CDeviceFileSystem::toRelativeProjectPath(devicePath, *this));
    return file;
}

QList<CFileElement> CDeviceBaseElement::allFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds) const
{
    using namespace NvrnDeviceCore;
    FileCollector collector;
    collector.add(parameterFiles(kinds));
    if (kinds.testFlag(DEVICE_FILE_OBJECT_DICTIONARY)) {
        collector.add(odictFile());
    }
    if (kinds.testFlag(DEVICE_FILE_FAULT_TEXTS)) {
        collector.add(faultTextFile());
    }
    if (kinds.testFlag(DEVICE_FILE_ADDITIONAL)) {
        collector.add(additionalFiles());
    }
    if (kinds.testFlag(DEVICE_FILE_PLUGIN)) {
        collector.add(pluginFileElements());
    }
    collector.add(fpgaFiles(kinds));
    if (kinds.testFlag(DEVICE_FILE_OPC_UA)) {
        collector.add(opcUaFiles());
    }
    if (kinds.testFlag(DEVICE_FILE_ETHERCAT_MASTER)) {
        collector.add(etherCatMasterFile());
    }
    for (const CSubDeviceElement &sub : m_subDevices) {
        collect(sub, kinds, collector);
    }
    return collector.files();
}

QString CDeviceBaseElement::deviceClassString(NDeviceConf::EDeviceClass deviceClass)
{
    return TextTables::text(TextTables::deviceClasses(), deviceClass);
}

QStringList CDeviceBaseElement::options() const
{
    return d->options;
}

QString CDeviceBaseElement::option(int index) const
{
    return d->options.value(index);
}

void CDeviceBaseElement::setOptions(const QStringList &options)
{
    d->options = options;
}

void CDeviceBaseElement::setOptions(const QString &options)
{
    d->options.clear();
    const QStringList pieces =
        options.split(QRegExp(QStringLiteral("((^|\\s+)-)")), Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        appendOption(QLatin1Char('-') + piece);
    }
}

void CDeviceBaseElement::appendOption(const QString &option)
{
    if (isOption(option) && !options().contains(option)) {
        d->options.append(option);
    }
}

bool CDeviceBaseElement::removeOption(const QString &option)
{
    if (!isOption(option)) {
        return false;
    }
    // indexOf() matches whole entries, so that "-op" does not remove "-opc".
    const QRegExp pattern(QStringLiteral("^%1\\b(\\s.*)?").arg(option));
    const int index = options().indexOf(pattern);
    return index >= 0 && removeIndex<QString>(d->options, index);
}

QList<CFileElement> CDeviceBaseElement::fpgaFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds) const
{
    FileCollector collector;
    if (kinds.testFlag(NvrnDeviceCore::DEVICE_FILE_FPGA)) {
        for (int i = 0; i < fpgaFileCount(); ++i) {
            collector.add(fpgaFileElement(i));
        }
    }
    return collector.files();
}

CFileElement CDeviceBaseElement::fpgaFileElement(int index) const
{
    const QString fileName = fpgaFile(index);
    return fileName.isEmpty() ? CFileElement() : fileAt(fileName, stdFpgaDevicePath());
}

int CDeviceBaseElement::fpgaFileCount() const
{
    return d->fpgaFiles.size();
}

void CDeviceBaseElement::setFpgaFiles(const QStringList &fileNames)
{
    d->fpgaFiles = fileNames;
}

void CDeviceBaseElement::appendFpgaFile(const QString &fileName)
{
    d->fpgaFiles.append(fileName);
}

bool CDeviceBaseElement::removeFpgaFile(const QString &fileName)
{
    return d->fpgaFiles.removeOne(fileName);
}

bool CDeviceBaseElement::removeFpgaFile(int index)
{
    return removeIndex<QString>(d->fpgaFiles, index);
}

void CDeviceBaseElement::clearFpgaFiles()
{
    d->fpgaFiles.clear();
}

QString CDeviceBaseElement::activeFpgaFile() const
{
    return fpgaFile(0);
}

void CDeviceBaseElement::setActiveFpgaFile(const QString &fileName)
{
    if (fileName.isEmpty()) {
        return;
    }
    QStringList &files = d->fpgaFiles;
    const auto isThisOne = [&fileName](const QString &other) {
        return isSameFpgaFile(fileName, other);
    };
    files.erase(std::remove_if(files.begin(), files.end(), isThisOne), files.end());
    files.prepend(fileName);
}

bool CDeviceBaseElement::isSameFpgaFile(const QString &left, const QString &right)
{
    return QFileInfo(left).fileName() == QFileInfo(right).fileName();
}

QList<CParamFileElement> CDeviceBaseElement::parameterFiles() const
{
    return d->parameterFiles;
}

QList<CParamFileElement> CDeviceBaseElement::parameterFiles(NvrnGlobal::EParamFileType type) const
{
    QList<CParamFileElement> files;
    for (const CParamFileElement &file : d->parameterFiles) {
        if (file.type() == type) {
            files.append(file);
        }
    }
    return files;
}

QList<CFileElement>
CDeviceBaseElement::parameterFiles(QFlags<NvrnDeviceCore::EDeviceFile> kinds) const
{
    FileCollector collector;
    for (const CParamFileElement &file : d->parameterFiles) {
        collect(file, kinds, *this, collector);
    }
    return collector.files();
}

QList<CFileElement> CDeviceBaseElement::parameterFileElements(NvrnGlobal::EParamFileType type) const
{
    FileCollector collector;
    for (const CParamFileElement &file : parameterFiles(type)) {
        collect(file, NvrnDeviceCore::DEVICE_FILE_PARAMETER, *this, collector);
    }
    return collector.files();
}

void CDeviceBaseElement::setParameterFiles(const QList<CParamFileElement> &files)
{
    d->parameterFiles = files;
}

bool CDeviceBaseElement::containsParameterFile(const CParamFileElement &file) const
{
    return d->parameterFiles.contains(file);
}

QList<CFileElement> CDeviceBaseElement::additionalFiles() const
{
    return d->additionalFiles;
}

CFileElement CDeviceBaseElement::additionalFile(int index) const
{
    return d->additionalFiles.value(index);
}

int CDeviceBaseElement::additionalFileCount() const
{
    return d->additionalFiles.size();
}

void CDeviceBaseElement::setAdditionalFiles(const QList<CFileElement> &files)
{
    d->additionalFiles = files;
}

void CDeviceBaseElement::appendAdditionalFile(const CFileElement &file)
{
    d->additionalFiles.append(file);
}

bool CDeviceBaseElement::removeAdditionalFile(const CFileElement &file)
{
    return d->additionalFiles.removeOne(file);
}

bool CDeviceBaseElement::removeAdditionalFile(int index)
{
    return removeIndex(d->additionalFiles, index);
}

void CDeviceBaseElement::clearAdditionalFiles()
{
    d->additionalFiles.clear();
}

QList<CPluginElement> CDeviceBaseElement::plugins() const
{
    return d->plugins;
}

void CDeviceBaseElement::setPlugins(const QList<CPluginElement> &plugins)
{
    d->plugins = plugins;
}

QList<CFileElement> CDeviceBaseElement::pluginFileElements() const
{
    FileCollector collector;
    for (const CPluginElement &plugin : d->plugins) {
        if (!plugin.name().isEmpty()) {
            collector.add(fileAt(plugin.fileName(), stdAppPluginDevicePath()));
        }
    }
    return collector.files();
}

QString CDeviceBaseElement::executionPlugin() const
{
    return d->executionPlugin;
}

void CDeviceBaseElement::setExecutionPlugin(const QString &name)
{
    d->executionPlugin = name;
}

bool CDeviceBaseElement::isOpcUaEnabled() const
{
    return d->opcUaEnabled;
}

void CDeviceBaseElement::setOpcUaEnabled(bool enabled)
{
    d->opcUaEnabled = enabled;
    if (enabled) {
        appendOption(OpcUaOption);
    } else {
        removeOption(OpcUaOption);
    }
}

QList<CFileElement> CDeviceBaseElement::opcUaFiles() const
{
    return d->opcUaFiles;
}

void CDeviceBaseElement::setOpcUaFiles(const QList<CFileElement> &files)
{
    d->opcUaFiles = files;
}

void CDeviceBaseElement::appendOpcUaFile(const CFileElement &file)
{
    d->opcUaFiles.append(file);
}

CFileElement CDeviceBaseElement::etherCatMasterFile() const
{
    return d->etherCatMasterFile;
}

void CDeviceBaseElement::setEtherCatMasterFile(const CFileElement &file)
{
    d->etherCatMasterFile = file;
}

CDeviceItem::EHostAddrType CDeviceBaseElement::hostAddressType() const
{
    return d->hostAddressType;
}

void CDeviceBaseElement::setHostAddressType(CDeviceItem::EHostAddrType type)
{
    d->hostAddressType = type;
}

QHostAddress CDeviceBaseElement::hostAddress() const
{
    return d->hostAddress;
}

void CDeviceBaseElement::setHostAddress(const QHostAddress &address)
{
    d->hostAddress = address;
}

quint16 CDeviceBaseElement::port() const
{
    return d->port;
}

void CDeviceBaseElement::setPort(unsigned short port)
{
    d->port = port;
}

int CDeviceBaseElement::preferredDeviceListNumber() const
{
    return d->preferredDeviceListNumber;
}

void CDeviceBaseElement::setPreferredDeviceListNumber(int number)
{
    d->preferredDeviceListNumber = number;
}

QList<CSubDeviceElement> CDeviceBaseElement::subDevices() const
{
    return m_subDevices.values();
}

CSubDeviceElement CDeviceBaseElement::subDevice(unsigned char id) const
{
    return m_subDevices.value(id);
}

int CDeviceBaseElement::subDeviceCount() const
{
    return m_subDevices.size();
}

void CDeviceBaseElement::setSubDevices(const QList<CSubDeviceElement> &subDevices)
{
    m_subDevices.clear();
    for (CSubDeviceElement sub : subDevices) {
        if (sub.type() == NvrnDeviceCore::ELEMENT_UNKNOWN) {
            continue;
        }
        const QString own = sub.hardwareIdStr();
        fitSubDevice(sub, sub.driveId(), own.isEmpty() ? hardwareIdStr() : own);
        m_subDevices.insert(sub.driveId(), sub);
    }
}

bool CDeviceBaseElement::removeSubDevice(unsigned char id)
{
    return m_subDevices.remove(id) > 0;
}

quint8 CDeviceBaseElement::nextFreeDriveID() const
{
    return m_subDevices.isEmpty() ? quint8(0) : static_cast<quint8>(m_subDevices.lastKey() + 1);
}

QString CDeviceBaseElement::stdAppPluginDevicePath() const
{
    return CDeviceFileSystem::stdPluginPath();
}

QString CDeviceBaseElement::stdEtherCatMasterFileDevicePath() const
{
    return CDeviceFileSystem::stdEtherCatMasterFilePath(configurationName());
}

QString CDeviceBaseElement::stdFaultTextFileDevicePath() const
{
    return CDeviceFileSystem::stdFaultTextFilePath(configurationName());
}

QString CDeviceBaseElement::stdFpgaDevicePath() const
{
    return CDeviceFileSystem::stdFpgaPath();
}

QString CDeviceBaseElement::stdObjectDictionaryDevicePath() const
{
    return CDeviceFileSystem::stdObjectDictionaryPath(configurationName());
}

QString CDeviceBaseElement::stdOpcUaFileDevicePath() const
{
    return CDeviceFileSystem::stdOpcUaFilePath(configurationName());
}

QString CDeviceBaseElement::stdParameterFileDevicePath(NvrnGlobal::EParamFileType type) const
{
    return CDeviceFileSystem::stdParamFilePath(type, configurationName());
}

bool CDeviceBaseElement::operator==(const CDeviceBaseElement &other) const
{
    return CBaseElement::operator==(other) && FieldList::equal(d, other.d)
        && m_subDevices == other.m_subDevices;
}

bool CDeviceBaseElement::operator!=(const CDeviceBaseElement &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CDeviceBaseElement &device)
{
    QMap<unsigned char, CSubDeviceElement> subDevices = device.m_subDevices;
    for (auto it = device.m_subDevices.cbegin(); it != device.m_subDevices.cend(); ++it) {
        if (it.value().type() == NvrnDeviceCore::ELEMENT_UNKNOWN) {
            subDevices.remove(it.key());
        }
    }
    stream << static_cast<const CBaseElement &>(device);
    return FieldList::write(stream, device.d) << subDevices;
}

QDataStream &operator>>(QDataStream &stream, CDeviceBaseElement &device)
{
    stream >> static_cast<CBaseElement &>(device);
    FieldList::read(stream, device.d);
    FieldList::readField(stream, device.m_subDevices);
    return stream;
}
