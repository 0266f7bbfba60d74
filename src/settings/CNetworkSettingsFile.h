#pragma once

#include "settings/CNetworkSettings.h"
#include "vocabulary/NvrnGlobal.h"

#include <QByteArray>
#include <QStringList>
#include <QTextStream>

/**
 * The file "network.conf" of a device: reads it into, and writes it from, the settings that the
 * file object holds.
 *
 * The file is read as an INI file without sections, in UTF-8. Lines that begin with "#" or ";" are
 * comments. How quotation marks and backslashes are read is the business of QSettings, which a
 * value with such characters may not survive unchanged. It is written in one fixed form: comments
 * and keys that are not of that form are not kept. CNetworkSettingsCheck reports what is wrong with
 * a file, for reading never fails because of a bad value. Nothing is posted to the message board.
 *
 * Thread-safe as every file object: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CNetworkSettingsFile
{
public:
    /** Bytes of the file; far more than a device needs. */
    static constexpr qint64 MaximumSize = Q_INT64_C(16) * 1024 * 1024;

    /** Default settings, no file name. */
    CNetworkSettingsFile();
    /** Default settings, then open(); a failure is not reported and leaves the file name empty. */
    explicit CNetworkSettingsFile(const QString &fileName);
    virtual ~CNetworkSettingsFile();

    /** "network.conf" */
    QString defaultFileName() const;

    CNetworkSettings networkSettings() const;
    void setNetworkSettings(const CNetworkSettings &settings);

    /** The keys of the file, in its order. */
    static QStringList keys();
    /** The text that the file holds for @p key; empty for an unknown key. */
    QString value(const QString &key) const;
    /**
     * Sets what the file would set by "key=value": an invalid mode or address has the fall-backs of
     * CNetworkSettings.
     * @return false, and nothing changes, if @p key is not one of the keys()
     */
    bool setValue(const QString &key, const QString &value);

    /**
     * Reads the file @p fileName and remembers its name. A key that the file does not have gets its
     * default: MODE "DISABLED", the addresses "0.0.0.0", SUBNETMASK "255.255.0.0", NETCON_PORT
     * "6666", KERNEL_LOGLEVEL "4"; and NTP_MODE the text "DISABLED", which is not an NTP mode and
     * gives NTP_MODE_UNKNOWN. A kernel log level out of range leaves the one that was held before.
     *
     * @return FILE_RESULT_SUCCESS; or FILE_RESULT_FAILURE, and nothing changes, if the file does
     *         not exist, is not a regular file, is larger than MaximumSize, or cannot be read
     */
    NvrnGlobal::EFileResult open(const QString &fileName);

    /**
     * Replaces the file @p fileName by the held settings and remembers its name; a file that holds
     * them already is not written. On failure the old file is still there, whole, or in the one
     * case that the errorText() describes, the new one; the name is not remembered. Where the file
     * can be written but its directory cannot, it is written in place, and a power cut half-way may
     * damage it.
     *
     * @return FILE_RESULT_SUCCESS; FILE_RESULT_FAILURE when the file cannot be opened for writing;
     *         FILE_RESULT_WRITE_FAILURE when writing fails on the way, as on a full disk
     */
    NvrnGlobal::EFileResult save(const QString &fileName);
    /** Saves with the name of the file last opened or saved; FILE_RESULT_FAILURE without. */
    NvrnGlobal::EFileResult save();
    /**
     * Why the last open() or save() failed, for the user and mostly in the words of
     * the system, like "No space left on device"; empty when it did not.
     */
    QString errorText() const;

    /** Puts the text of the file in place of what @p buffer held. @return FILE_RESULT_SUCCESS */
    NvrnGlobal::EFileResult saveToBuffer(QByteArray &buffer);
    /** Writes the text of the file; the status of @p stream reports a failure. */
    void write(QTextStream &stream) const;

private:
    QString m_fileName;
    CNetworkSettings m_settings;
    QString m_errorText;
};
