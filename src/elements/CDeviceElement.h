#pragma once

#include "elements/CDeviceBaseElement.h"

/**
 * A device as callers create it; see CDeviceBaseElement. It adds only its type and the casts to
 * itself.
 */
class VRNDEVICECORE_EXPORT CDeviceElement : public CDeviceBaseElement
{
public:
    CDeviceElement();
    CDeviceElement(const CDeviceElement &other);
    ~CDeviceElement() override;

    NvrnDeviceCore::EElementType type() const override;

    bool isNull() const override;
    void clear() override;

    CDeviceElement toDevice() const override;
    CDeviceElement *toDevicePtr() const override;

    quint8 insertSubDevice(CSubDeviceElement &subDevice, unsigned char id = 255) override;
    quint8 insertSubDevice(const CSubDeviceElement &subDevice, unsigned char id = 255) override;

    CDeviceElement &operator=(const CDeviceElement &other);

    bool operator==(const CDeviceElement &other) const;
    bool operator!=(const CDeviceElement &other) const;
};
