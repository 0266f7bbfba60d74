#pragma once

#include "settings/CDeviceSettings.h"
#include "vocabulary/NvrnGlobal.h"

#include <QByteArray>

#include <memory>

class CDeviceSettingsFilePrivate;
class ICLogfile;

/**
 * The settings document of a device, "settings.3conf": reads it into, and writes it from, the
 * settings that the file object holds.
 *
 * Each operation names the version of the document; the only one there is is "1.0". Results are
 * FILE_RESULT_SUCCESS; FILE_RESULT_VERSION_MISMATCH when the document is of another version; and
 * FILE_RESULT_FAILURE for every other failure, also for a document whose version is not a valid
 * revision and for an unknown @p version, which touches no file and posts no message. All other
 * failures are posted as critical messages to the message board together with the log.
 *
 * Thread-safe as every file object: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CDeviceSettingsFile
{
public:
    /** Null settings. @p logfile is not owned, may be null, and must outlive the file. */
    explicit CDeviceSettingsFile(ICLogfile *logfile);
    virtual ~CDeviceSettingsFile();

    /** "settings.3conf" */
    QString defaultFileName() const;

    CDeviceSettings deviceSettings() const;
    void setDeviceSettings(const CDeviceSettings &settings);

    /** Reads the file @p fileName; on failure the settings stay as they were. */
    NvrnGlobal::EFileResult open(const QString &fileName, const QString &version);
    /** Opens from memory. */
    NvrnGlobal::EFileResult openFromBuffer(const QByteArray &buffer, const QString &version);

    /**
     * Replaces the file @p fileName by a new document with the settings and today's date; what else
     * an old document held is gone. On failure the old file is still there, whole; see
     * CXmlAbstractVornFile::save().
     */
    NvrnGlobal::EFileResult save(const QString &fileName, const QString &version);
    /** Saves into memory; @p buffer is unchanged on failure. */
    NvrnGlobal::EFileResult saveToBuffer(QByteArray &buffer, const QString &version);

private:
    Q_DISABLE_COPY(CDeviceSettingsFile)

    const std::unique_ptr<CDeviceSettingsFilePrivate> d;
};
