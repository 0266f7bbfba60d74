#include "elements/CDeviceElement.h"

CDeviceElement::CDeviceElement() = default;
CDeviceElement::CDeviceElement(const CDeviceElement &other) = default;
CDeviceElement::~CDeviceElement() = default;
CDeviceElement &CDeviceElement::operator=(const CDeviceElement &other) = default;

NvrnDeviceCore::EElementType CDeviceElement::type() const
{
    return NvrnDeviceCore::ELEMENT_DEVICE;
}

bool CDeviceElement::isNull() const
{
    return CDeviceBaseElement::isNull();
}

void CDeviceElement::clear()
{
    *this = CDeviceElement();
}

CDeviceElement CDeviceElement::toDevice() const
{
    return *this;
}

CDeviceElement *CDeviceElement::toDevicePtr() const
{
    return const_cast<CDeviceElement *>(this);
}

quint8 CDeviceElement::insertSubDevice(CSubDeviceElement &subDevice, unsigned char id)
{
    return CDeviceBaseElement::insertSubDevice(subDevice, id);
}

quint8 CDeviceElement::insertSubDevice(const CSubDeviceElement &subDevice, unsigned char id)
{
    return CDeviceBaseElement::insertSubDevice(subDevice, id);
}

bool CDeviceElement::operator==(const CDeviceElement &other) const
{
    return CDeviceBaseElement::operator==(other);
}

bool CDeviceElement::operator!=(const CDeviceElement &other) const
{
    return !(*this == other);
}
