#pragma once

#include "imported/CXmlAbstractVornFile.h"
#include "settings/CDeviceSettings.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

/**
 * A settings document of one version; what does not depend on the version.
 *
 * The operations that open and save take the version that the caller asked for, and return results
 * as CDeviceSettingsFile describes them. The text of an error goes to the message board alone.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CDeviceSettingsFileBase : public CXmlAbstractVornFile
{
public:
    explicit CDeviceSettingsFileBase(ICLogfile *logfile);
    ~CDeviceSettingsFileBase() override;

    using CXmlAbstractVornFile::open;

    /**
     * Refuses the document with a critical message that contains both versions as revision numbers,
     * 0 for an invalid text. The open result becomes FILE_RESULT_VERSION_MISMATCH when
     * @p existing is a revision, else FILE_RESULT_FAILURE.
     * @return false
     */
    bool handleVersionError(const QString &required, const QString &existing) override;

    /** Reads a document; openFile() does the work. */
    virtual NvrnGlobal::EFileResult open(const QString &fileName, const QString &version);
    // The base's save() is hidden on purpose: a version in a variable would match its error text.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
    /** Writes the document in hand; saveFile() does the work. */
    virtual NvrnGlobal::EFileResult save(const QString &fileName, const QString &version);
#pragma GCC diagnostic pop

    /** Writes the settings into the document in hand; nothing here. */
    virtual void setDeviceSettings(const CDeviceSettings &settings);
    /** The settings in the document in hand; null here. */
    virtual CDeviceSettings deviceSettings() const;

    virtual NvrnGlobal::EFileResult openFile(const QString &fileName, const QString &version) = 0;
    virtual NvrnGlobal::EFileResult saveFile(const QString &fileName, const QString &version) = 0;
    virtual NvrnGlobal::EFileResult openBuffer(const QByteArray &buffer,
                                               const QString &version) = 0;
    virtual NvrnGlobal::EFileResult saveBuffer(QByteArray &buffer, const QString &version) = 0;

    /** As open(), from memory; openBuffer() does the work. */
    NvrnGlobal::EFileResult openFromBuffer(const QByteArray &buffer, const QString &version);
    /** As save(), into memory, which is unchanged on failure; saveBuffer() does the work. */
    NvrnGlobal::EFileResult saveToBuffer(QByteArray &buffer, const QString &version);

    /** Result of the last opening; FILE_RESULT_FAILURE before the first. */
    NvrnGlobal::EFileResult openResult() const;
    /** The version that the document last opened carried; empty when it was not read so far. */
    QString fileVersion() const;

protected:
    /** Opens a settings document that must be of @p requiredVersion, and keeps the result. */
    NvrnGlobal::EFileResult openDocument(const QString &fileName, const QString &requiredVersion);
    NvrnGlobal::EFileResult openDocument(const QByteArray &buffer, const QString &requiredVersion);

private:
    template <typename Source>
    NvrnGlobal::EFileResult openSource(const Source &source, const QString &requiredVersion);

    QString m_fileVersion;
    NvrnGlobal::EFileResult m_openResult = NvrnGlobal::FILE_RESULT_FAILURE;
};
