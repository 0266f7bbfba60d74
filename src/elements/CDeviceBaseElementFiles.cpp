// The files of a device: which there are, and where they lie. All else is in
// CDeviceBaseElement.cpp.
#include "elements/CDeviceBaseElement.h"

#include "devicefiles/CDeviceFileSystem.h"
#include "elements/DeviceBaseElementData.h"
#include "elements/FileCollector.h"
#include "vocabulary/NvrFileNames.h"

#include <QFileInfo>

#include <algorithm>

namespace {

template <typename Item>
bool removeIndex(QList<Item> &list, int index)
{
    if (index < 0 || index >= list.size()) {
        return false;
    }
    list.removeAt(index);
    return true;
}

/** Index of the first item for which @p matches holds; -1 when there is none. */
template <typename List, typename Predicate>
int indexOf(const List &list, Predicate matches)
{
    const auto found = std::find_if(list.cbegin(), list.cend(), matches);
    return found == list.cend() ? -1 : static_cast<int>(std::distance(list.cbegin(), found));
}

/** A parameter file, placed where the directory layout puts it unless it tells its directories. */
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

QString CDeviceBaseElement::fpgaFile(int index) const
{
    return d->fpgaFiles.value(index);
}

QStringList CDeviceBaseElement::fpgaFiles() const
{
    return d->fpgaFiles;
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
