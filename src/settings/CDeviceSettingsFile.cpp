#include "settings/CDeviceSettingsFile.h"

#include "imported/CXMLMetaData.h"
#include "settings/CDeviceSettingsFileV10.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/NvrFileNames.h"

using NvrnGlobal::EFileResult;
using NvrnGlobal::FILE_RESULT_FAILURE;
using NvrnGlobal::FILE_RESULT_SUCCESS;

class CDeviceSettingsFilePrivate
{
public:
    CDeviceSettingsFilePrivate(CDeviceSettingsFile *facade, ICLogfile *log)
        : q(facade), logfile(log)
    {
    }

    /** The class that reads and writes documents of @p version; null when there is none. */
    CDeviceSettingsFileBase *createFileClass(const QString &version)
    {
        deleteFile();
        if (version == CDeviceSettingsFileV10::fileVersionText()) {
            file = std::make_unique<CDeviceSettingsFileV10>(logfile);
        }
        return file.get();
    }

    void deleteFile() { file.reset(); }

    /** @p openFile reads the document: CDeviceSettingsFileBase & -> EFileResult. */
    template <typename OpenFile>
    EFileResult open(const QString &version, OpenFile openFile)
    {
        if (createFileClass(version) == nullptr) {
            return FILE_RESULT_FAILURE;
        }
        const EFileResult result = openFile(*file);
        if (result == FILE_RESULT_SUCCESS) {
            q->setDeviceSettings(file->deviceSettings());
        }
        deleteFile();
        return result;
    }

    /** @p saveFile writes the document: CDeviceSettingsFileBase & -> EFileResult. */
    template <typename SaveFile>
    EFileResult save(const QString &version, SaveFile saveFile)
    {
        if (createFileClass(version) == nullptr) {
            return FILE_RESULT_FAILURE;
        }
        CXMLMetaData metaData;
        metaData.setAuthor(QStringLiteral("Application"));
        metaData.setDate(QDate::currentDate());
        metaData.setComment(QStringLiteral("This file contains global device settings"));

        file->createNewDocument(NVornXmlTags::TAG_ROOT_DEVICESETTINGS, version);
        file->setMetaData(metaData);
        file->setDeviceSettings(settings);
        const EFileResult result = saveFile(*file);
        deleteFile();
        return result;
    }

    CDeviceSettingsFile *const q;
    ICLogfile *const logfile;
    // Only while an operation runs.
    std::unique_ptr<CDeviceSettingsFileBase> file;
    CDeviceSettings settings;
};

CDeviceSettingsFile::CDeviceSettingsFile(ICLogfile *logfile)
    : d(std::make_unique<CDeviceSettingsFilePrivate>(this, logfile))
{
}

CDeviceSettingsFile::~CDeviceSettingsFile() = default;

QString CDeviceSettingsFile::defaultFileName() const
{
    return NvrFileNames::DEVICE_SETTINGS_FILENAME;
}

CDeviceSettings CDeviceSettingsFile::deviceSettings() const
{
    return d->settings;
}

void CDeviceSettingsFile::setDeviceSettings(const CDeviceSettings &settings)
{
    d->settings = settings;
}

EFileResult CDeviceSettingsFile::open(const QString &fileName, const QString &version)
{
    return d->open(version,
                   [&](CDeviceSettingsFileBase &file) { return file.open(fileName, version); });
}

EFileResult CDeviceSettingsFile::openFromBuffer(const QByteArray &buffer, const QString &version)
{
    return d->open(version, [&](CDeviceSettingsFileBase &file) {
        return file.openFromBuffer(buffer, version);
    });
}

EFileResult CDeviceSettingsFile::save(const QString &fileName, const QString &version)
{
    return d->save(version,
                   [&](CDeviceSettingsFileBase &file) { return file.save(fileName, version); });
}

EFileResult CDeviceSettingsFile::saveToBuffer(QByteArray &buffer, const QString &version)
{
    return d->save(
        version, [&](CDeviceSettingsFileBase &file) { return file.saveToBuffer(buffer, version); });
}
