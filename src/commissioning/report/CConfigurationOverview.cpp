#include "commissioning/CConfigurationOverview.h"

#include "commissioning/items/ItemPaths.h"
#include "configfile/ShapePaths.h"
#include "elements/DriveNumbers.h"
#include "elements/StartOptions.h"
#include "vocabulary/NVornXmlTags.h"

#include <QHash>

#include <algorithm>

using namespace NvrnDeviceCore;
using ConfigurationShape::EEntry;

/** What the constructor reads; see the accessors of the same names. */
class CConfigurationOverviewPrivate
{
public:
    CDescriptionElement description;
    CXMLMetaData metaData;
    bool hasDevice = false;
    CDeviceElement device;
    CConfigurationOverview::SFile configurationFile;
    QList<CConfigurationOverview::SDrive> drives;
    QList<CConfigurationOverview::SParameterFile> parameterFiles;
    CConfigurationOverview::SFile dictionary;
    CConfigurationOverview::SFile faultTexts;
    CConfigurationOverview::SFile etherCatMaster;
    QList<CConfigurationOverview::SFile> fpgaFiles;
    QList<CConfigurationOverview::SFile> opcUaFiles;
    QList<CConfigurationOverview::SFile> additionalFiles;
    QList<CConfigurationOverview::SPlugin> plugins;
    QList<CConfigurationOverview::SOption> options;
};

namespace {

using SFile = CConfigurationOverview::SFile;
using SDrive = CConfigurationOverview::SDrive;

/** Without a description in the document there is none: not one of today. */
CDescriptionElement description(const CDeviceConfigurationFile10 &file)
{
    CDescriptionElement result = file.description();
    if (file.findDescriptionElement().isNull()) {
        result.setVersion(QString());
        result.setCreationDate(QDate());
        result.setRevisionDate(QDate());
    }
    return result;
}

/** A device of that place in the directory layout, to ask it where one entry lies. */
CDeviceElement withoutFiles(const CDeviceElement &device)
{
    CDeviceElement result;
    result.setName(device.name());
    result.setConfigurationName(device.configurationName());
    result.setHardwareId(device.hardwareId());
    return result;
}

SFile singleFile(EDeviceFile kind, const CFileElement &file)
{
    return {ShapePaths::path(kind), kind, file};
}

QList<SFile> listedFiles(const QList<CFileElement> &files, EDeviceFile kind)
{
    ItemPaths paths(ShapePaths::path(kind));
    QList<SFile> result;
    for (const CFileElement &file : files) {
        result.append({paths.next(file.fileName()), kind, file});
    }
    return result;
}

QList<CConfigurationOverview::SParameterFile>
parameterFiles(const CDeviceElement &device, const CDeviceConfigurationFile10 &texts)
{
    ItemPaths paths(ShapePaths::list(EEntry::PARAMETER_FILE));
    CDeviceElement place = withoutFiles(device);
    QList<CConfigurationOverview::SParameterFile> result;
    for (const CParamFileElement &parameters : device.parameterFiles()) {
        CConfigurationOverview::SParameterFile entry = {
            paths.next(parameters.name()), parameters, texts.typeToStr(parameters.type()), {}};
        place.setParameterFiles({parameters});
        for (const EDeviceFile kind :
             {DEVICE_FILE_PARAMETER_VALUES, DEVICE_FILE_PARAMETER_DEFINITION}) {
            for (const CFileElement &file : place.parameterFiles(QFlags<EDeviceFile>(kind))) {
                entry.files.append({entry.item, kind, file});
            }
        }
        result.append(entry);
    }
    return result;
}

QList<SFile> fpgaFiles(const CDeviceElement &device)
{
    ItemPaths paths(ShapePaths::list(EEntry::FPGA_FILE));
    QList<SFile> result;
    for (int i = 0; i < device.fpgaFileCount(); ++i) {
        result.append(
            {paths.next(device.fpgaFile(i)), DEVICE_FILE_FPGA, device.fpgaFileElement(i)});
    }
    return result;
}

QList<CConfigurationOverview::SPlugin> plugins(const CDeviceElement &device)
{
    ItemPaths paths(ShapePaths::list(EEntry::PLUGIN));
    CDeviceElement place = withoutFiles(device);
    QList<CConfigurationOverview::SPlugin> result;
    for (const CPluginElement &plugin : device.plugins()) {
        place.setPlugins({plugin});
        result.append({paths.next(plugin.name()), plugin, place.pluginFileElements().value(0),
                       !plugin.name().isEmpty() && plugin.name() == device.executionPlugin()});
    }
    return result;
}

QList<CConfigurationOverview::SOption> options(const QStringList &words)
{
    ItemPaths paths(ShapePaths::list(EEntry::OPTION));
    QList<CConfigurationOverview::SOption> result;
    const StartOptions options(words.join(QLatin1Char(' ')), StartOptions::SEPARATOR_SPACE);
    for (const StartOptions::SOption &option : options.options()) {
        result.append({paths.next(option.name()), option.text()});
    }
    return result;
}

/** In the order of allFiles(). */
QList<SFile> driveFiles(const CSubDeviceElement &drive, const QString &item)
{
    QList<SFile> result;
    for (const auto &row : ConfigurationShape::driveFiles()) {
        const CFileElement file =
            drive.isKD2() || !row.isOfKd2Only ? row.get(drive) : CFileElement();
        if (!file.isNull()) {
            result.append({item + QLatin1Char('.') + row.word, row.kind, file});
        }
    }
    std::sort(result.begin(), result.end(),
              [](const SFile &left, const SFile &right) { return left.kind < right.kind; });
    return result;
}

/** The items of the drives, by the numbers with which the drives were read. */
QHash<int, QString> driveItems(const CDeviceConfigurationFile10 &file)
{
    QStringList texts;
    QStringList items;
    ItemPaths paths(ShapePaths::list(EEntry::DRIVE));
    const QString &tag = NVornXmlTags::TAG_SUB_DEVICE;
    for (QDomElement child = file.findDeviceElement().firstChildElement(tag); !child.isNull();
         child = child.nextSiblingElement(tag)) {
        texts.append(file.getNodeValue(NVornXmlTags::TAG_DRIVE_NO, child));
        items.append(paths.next(DriveNumbers::key(texts.constLast())));
    }
    const QVector<DriveNumbers::SAssigned> numbers = DriveNumbers::assigned(texts);
    QHash<int, QString> result;
    for (int i = 0; i < numbers.size(); ++i) {
        result.insert(numbers.at(i).number, items.at(i));
    }
    return result;
}

QList<SDrive> drives(const CDeviceConfigurationFile10 &file, const CDeviceElement &device)
{
    const QHash<int, QString> items = driveItems(file);
    QList<SDrive> result;
    for (const CSubDeviceElement &drive : device.subDevices()) {
        const QString item = items.value(drive.driveId());
        result.append({item, drive, driveFiles(drive, item)});
    }
    return result;
}

int named(const QList<SFile> &files)
{
    return static_cast<int>(std::count_if(files.begin(), files.end(), [](const SFile &file) {
        return !file.file.fileName().isEmpty();
    }));
}

} // namespace

CConfigurationOverview::CConfigurationOverview(const CDeviceConfigurationFile10 &file)
    : d(new CConfigurationOverviewPrivate)
{
    d->description = ::description(file);
    d->metaData = file.metaData();
    d->hasDevice = file.configuration(d->device);
    if (!d->hasDevice) {
        return;
    }
    const CDeviceElement &device = d->device;
    d->configurationFile = {QString(), DEVICE_FILE_NONE, device.configurationFile()};
    d->drives = ::drives(file, device);
    d->parameterFiles = ::parameterFiles(device, file);
    d->dictionary = singleFile(DEVICE_FILE_OBJECT_DICTIONARY, file.odictFile());
    d->faultTexts = singleFile(DEVICE_FILE_FAULT_TEXTS, file.faultTextFile());
    d->etherCatMaster = singleFile(DEVICE_FILE_ETHERCAT_MASTER, device.etherCatMasterFile());
    d->fpgaFiles = ::fpgaFiles(device);
    d->opcUaFiles = listedFiles(device.opcUaFiles(), DEVICE_FILE_OPC_UA);
    d->additionalFiles = listedFiles(device.additionalFiles(), DEVICE_FILE_ADDITIONAL);
    d->plugins = ::plugins(device);
    d->options = ::options(device.options());
}

CConfigurationOverview::~CConfigurationOverview() = default;

const CDescriptionElement &CConfigurationOverview::description() const
{
    return d->description;
}

const CXMLMetaData &CConfigurationOverview::metaData() const
{
    return d->metaData;
}

bool CConfigurationOverview::hasDevice() const
{
    return d->hasDevice;
}

const CDeviceElement &CConfigurationOverview::device() const
{
    return d->device;
}

const CConfigurationOverview::SFile &CConfigurationOverview::configurationFile() const
{
    return d->configurationFile;
}

const QList<CConfigurationOverview::SDrive> &CConfigurationOverview::drives() const
{
    return d->drives;
}

const QList<CConfigurationOverview::SParameterFile> &CConfigurationOverview::parameterFiles() const
{
    return d->parameterFiles;
}

const CConfigurationOverview::SFile &CConfigurationOverview::dictionary() const
{
    return d->dictionary;
}

const CConfigurationOverview::SFile &CConfigurationOverview::faultTexts() const
{
    return d->faultTexts;
}

const CConfigurationOverview::SFile &CConfigurationOverview::etherCatMaster() const
{
    return d->etherCatMaster;
}

const QList<CConfigurationOverview::SFile> &CConfigurationOverview::fpgaFiles() const
{
    return d->fpgaFiles;
}

const QList<CConfigurationOverview::SFile> &CConfigurationOverview::opcUaFiles() const
{
    return d->opcUaFiles;
}

const QList<CConfigurationOverview::SFile> &CConfigurationOverview::additionalFiles() const
{
    return d->additionalFiles;
}

const QList<CConfigurationOverview::SPlugin> &CConfigurationOverview::plugins() const
{
    return d->plugins;
}

const QList<CConfigurationOverview::SOption> &CConfigurationOverview::options() const
{
    return d->options;
}

int CConfigurationOverview::fileCount() const
{
    int count = named({d->configurationFile, d->dictionary, d->faultTexts, d->etherCatMaster})
        + named(d->fpgaFiles) + named(d->opcUaFiles) + named(d->additionalFiles);
    for (const SParameterFile &parameters : d->parameterFiles) {
        count += named(parameters.files);
    }
    for (const SDrive &drive : d->drives) {
        count += named(drive.files);
    }
    for (const SPlugin &plugin : d->plugins) {
        count += plugin.library.fileName().isEmpty() ? 0 : 1;
    }
    return count;
}
