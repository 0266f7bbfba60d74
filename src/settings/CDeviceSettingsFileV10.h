#pragma once

#include "settings/CDeviceSettingsFileBase.h"

/**
 * A settings document of version 1.0. Below its root stands one "Device" with the "Name" of the
 * device and a "SubDevice" for each sub-device, with its "DriveNo" and "Name".
 *
 * Whatever version the operations that open and save are given, the document is one of version 1.0.
 */
class VRNDEVICECORE_EXPORT CDeviceSettingsFileV10 : public CDeviceSettingsFileBase
{
public:
    explicit CDeviceSettingsFileV10(ICLogfile *logfile);
    ~CDeviceSettingsFileV10() override;

    /** "1.0" */
    static QString fileVersionText();

    /**
     * Adds the sub-devices to those that the document holds: it is meant for a new document.
     * Nothing happens without a document.
     */
    void setDeviceSettings(const CDeviceSettings &settings) override;
    /**
     * Null without a "Device". Of a drive number only the low 8 bits count ("256" is drive 0); a
     * sub-device whose number is missing or none is left out; of two with one number the later
     * counts.
     */
    CDeviceSettings deviceSettings() const override;

    NvrnGlobal::EFileResult openFile(const QString &fileName, const QString &version) override;
    NvrnGlobal::EFileResult saveFile(const QString &fileName, const QString &version) override;
    NvrnGlobal::EFileResult openBuffer(const QByteArray &buffer, const QString &version) override;
    NvrnGlobal::EFileResult saveBuffer(QByteArray &buffer, const QString &version) override;
};
