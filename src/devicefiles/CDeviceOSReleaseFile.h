#pragma once

#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QByteArray>
#include <QString>

#include <memory>

class CDeviceOSReleaseFilePrivate;
class ICLogfile;

/**
 * The file "os-release" of a device: lines KEY=value that describe what its operating system is
 * made of. Keys that have no accessor here are kept and saved, too.
 *
 * The text is UTF-8, with or without byte-order mark; lines end in a line feed, with or without
 * carriage return. Nothing is posted to the message board or written to the log.
 *
 * Thread-safe as every file object: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CDeviceOSReleaseFile
{
public:
    /** Bytes of the file or buffer; far more than a device needs. */
    static constexpr qint64 MaximumSize = Q_INT64_C(16) * 1024 * 1024;

    /** No keys. @p log is not owned, may be null, and is only kept for callers. */
    explicit CDeviceOSReleaseFile(ICLogfile *log = nullptr);
    /** Calls open(), whose result is not reported: a failure leaves isNull(). */
    CDeviceOSReleaseFile(const QString &fileName, ICLogfile *log);
    /** Calls openFromBuffer(). */
    CDeviceOSReleaseFile(const QByteArray &buffer, ICLogfile *log);
    virtual ~CDeviceOSReleaseFile();

    void setLogfile(ICLogfile *log);
    ICLogfile *logfile() const;

    /**
     * Reads the file @p fileName in place of what was there, which is gone also when that fails.
     *
     * A line is split at every "=": the first part is the key, as it stands, and the second the
     * value, without any double quote, parenthesis, caret and dollar sign in it; what follows a
     * second "=" is dropped. A line without "=" is skipped. A key that comes twice keeps its first
     * place and gets its last value.
     *
     * The name means what it means to QFile: ":/name" is a resource, and "prefix:name" is looked
     * for in Qt's search paths.
     *
     * @return FILE_RESULT_SUCCESS; or FILE_RESULT_READ_FAILURE if the file does not exist, is not a
     *         regular file, is larger than MaximumSize, or cannot be read
     */
    NvrnGlobal::EFileResult open(const QString &fileName);
    /**
     * Opens from memory.
     * @return FILE_RESULT_SUCCESS; or FILE_RESULT_READ_FAILURE, and no keys are left, if @p buffer
     * is larger than MaximumSize
     */
    NvrnGlobal::EFileResult openFromBuffer(const QByteArray &buffer);

    /**
     * Replaces the file @p fileName by the pairs KEY=value. They follow one another without quotes
     * and without any separator, on purpose: read again, the file is one line that gives the first
     * key alone, with the text up to the second "=" as its value. So a release file cannot be
     * changed in place; keep the original.
     *
     * @return FILE_RESULT_SUCCESS; or FILE_RESULT_WRITE_FAILURE, and the old file is still there,
     *         whole, or in the one case that the errorText() describes, the new one. Where the file
     *         can be written but its directory cannot, it is written in place, and a power cut
     *         half-way may damage it.
     */
    NvrnGlobal::EFileResult save(const QString &fileName);
    /** Saves to memory, in place of the content of @p buffer. @return FILE_RESULT_SUCCESS */
    NvrnGlobal::EFileResult saveToBuffer(QByteArray &buffer);

    /**
     * Why the last open(), openFromBuffer() or save() of a file failed, for the user and mostly in
     * the words of the system, like "No space left on device"; empty when it did not.
     */
    QString errorText() const;

    /** Whether there are no keys. */
    bool isNull() const;
    /** Whether no key and no value is empty; also true without keys. */
    bool isValid() const;

    // The value of each key; empty when the file does not have it. Setting one adds its key at the
    // end if it is not there. Values are texts: dates and versions are not interpreted.

    /** PRODUCT */
    QString product() const;
    void setProduct(const QString &value);
    /** PLATFORM */
    QString platform() const;
    void setPlatform(const QString &value);
    /** PTXDIST_VERSION */
    QString ptxdistVersion() const;
    void setPtxdistVersion(const QString &value);
    /** PTXDIST_BSP */
    QString ptxdistBsp() const;
    void setPtxdistBsp(const QString &value);
    /** BUILD_DATE */
    QString buildDate() const;
    void setBuildDate(const QString &value);
    /** TOOLCHAIN_VERSION */
    QString toolchainVersion() const;
    void setToolchainVersion(const QString &value);
    /** KERNEL_IMAGE */
    QString kernelImage() const;
    void setKernelImage(const QString &value);
    /** QT_VERSION */
    QString qtVersion() const;
    void setQtVersion(const QString &value);

private:
    Q_DISABLE_COPY(CDeviceOSReleaseFile)

    const std::unique_ptr<CDeviceOSReleaseFilePrivate> d;
};
