#include "elements/CSubDeviceKD3Element.h"

CSubDeviceKD3Element::CSubDeviceKD3Element() = default;
CSubDeviceKD3Element::CSubDeviceKD3Element(const CSubDeviceKD3Element &other) = default;
CSubDeviceKD3Element::~CSubDeviceKD3Element() = default;
CSubDeviceKD3Element &CSubDeviceKD3Element::operator=(const CSubDeviceKD3Element &other) = default;

NvrnDeviceCore::EElementType CSubDeviceKD3Element::type() const
{
    return NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE;
}

bool CSubDeviceKD3Element::isKD3SubDevice() const
{
    return true;
}

CSubDeviceKD3Element CSubDeviceKD3Element::toKD3SubDevice() const
{
    return *this;
}

CSubDeviceKD3Element *CSubDeviceKD3Element::toKD3SubDevicePtr() const
{
    return const_cast<CSubDeviceKD3Element *>(this);
}

QDataStream &operator<<(QDataStream &stream, const CSubDeviceKD3Element &subDevice)
{
    return stream << static_cast<const CSubDeviceBaseElement &>(subDevice);
}

QDataStream &operator>>(QDataStream &stream, CSubDeviceKD3Element &subDevice)
{
    return stream >> static_cast<CSubDeviceBaseElement &>(subDevice);
}
