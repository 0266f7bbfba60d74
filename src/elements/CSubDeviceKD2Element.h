#pragma once

#include "elements/CSubDeviceBaseElement.h"

class CSubDeviceKD2ElementData;

/**
 * A drive of the KD2 series: a sub-device with its own firmware, logic (FPGA image) and parameter
 * set, each in a file. The rules are those of CSubDeviceBaseElement.
 */
class VRNDEVICECORE_EXPORT CSubDeviceKD2Element : public CSubDeviceBaseElement
{
public:
    CSubDeviceKD2Element();
    CSubDeviceKD2Element(const CSubDeviceKD2Element &other);
    ~CSubDeviceKD2Element() override;

    NvrnDeviceCore::EElementType type() const override;

    bool isNull() const override;
    void clear() override;

    bool isKD2SubDevice() const override;
    CSubDeviceKD2Element toKD2SubDevice() const override;
    CSubDeviceKD2Element *toKD2SubDevicePtr() const override;

    void adaptProjectPaths(const QString &deviceName) override;
    void setConfigurationNameAndAdaptPaths(const QString &configurationName) override;

    QList<CFileElement> allFiles() const override;

    /** Firmware image of the drive. */
    CFileElement kd2FirmwareFile() const;
    void setKd2FirmwareFile(const CFileElement &file);

    /** Logic (FPGA) image of the drive. */
    CFileElement kd2LogicFile() const;
    void setKd2LogicFile(const CFileElement &file);

    /** Parameter set of the drive itself, beside parameterFile(). */
    CFileElement kd2ParameterFile() const;
    void setKd2ParameterFile(const CFileElement &file);

    CSubDeviceKD2Element &operator=(const CSubDeviceKD2Element &other);

    /** Compares what every sub-device has and the three files. */
    bool operator==(const CSubDeviceKD2Element &other) const;
    bool operator!=(const CSubDeviceKD2Element &other) const;

private:
    QSharedDataPointer<CSubDeviceKD2ElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CSubDeviceKD2Element &subDevice);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CSubDeviceKD2Element &subDevice);
};

/** Stream form: that of CSubDeviceBaseElement, then firmware, logic and parameter file. */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const CSubDeviceKD2Element &subDevice);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CSubDeviceKD2Element &subDevice);
