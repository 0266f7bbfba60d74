#pragma once

#include "elements/CSubDeviceBaseElement.h"

/**
 * A drive of the KD3 series. It has nothing beyond what every sub-device has; the rules are those
 * of CSubDeviceBaseElement.
 */
class VRNDEVICECORE_EXPORT CSubDeviceKD3Element : public CSubDeviceBaseElement
{
public:
    CSubDeviceKD3Element();
    CSubDeviceKD3Element(const CSubDeviceKD3Element &other);
    ~CSubDeviceKD3Element() override;

    NvrnDeviceCore::EElementType type() const override;

    bool isKD3SubDevice() const override;
    CSubDeviceKD3Element toKD3SubDevice() const override;
    CSubDeviceKD3Element *toKD3SubDevicePtr() const override;

    CSubDeviceKD3Element &operator=(const CSubDeviceKD3Element &other);
};

/** Stream form: that of CSubDeviceBaseElement. */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const CSubDeviceKD3Element &subDevice);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CSubDeviceKD3Element &subDevice);
