#include "elements/CSubDeviceElement.h"

CSubDeviceElement::CSubDeviceElement() = default;

CSubDeviceElement::CSubDeviceElement(const CSubDeviceKD2Element &subDevice)
    : m_subDevice(std::make_unique<CSubDeviceKD2Element>(subDevice))
{
}

CSubDeviceElement::CSubDeviceElement(const CSubDeviceKD3Element &subDevice)
    : m_subDevice(std::make_unique<CSubDeviceKD3Element>(subDevice))
{
}

CSubDeviceElement::CSubDeviceElement(const CSubDeviceElement &other)
{
    *this = other;
}

CSubDeviceElement::~CSubDeviceElement() = default;

bool CSubDeviceElement::isKD2() const
{
    return m_subDevice && m_subDevice->isKD2SubDevice();
}

bool CSubDeviceElement::isKD3() const
{
    return m_subDevice && m_subDevice->isKD3SubDevice();
}

CSubDeviceKD2Element CSubDeviceElement::toKD2() const
{
    return m_subDevice ? m_subDevice->toKD2SubDevice() : CSubDeviceKD2Element();
}

CSubDeviceKD3Element CSubDeviceElement::toKD3() const
{
    return m_subDevice ? m_subDevice->toKD3SubDevice() : CSubDeviceKD3Element();
}

bool CSubDeviceElement::isNull() const
{
    return !m_subDevice || m_subDevice->isNull();
}

NvrnDeviceCore::EElementType CSubDeviceElement::type() const
{
    return m_subDevice ? m_subDevice->type() : NvrnDeviceCore::ELEMENT_UNKNOWN;
}

void CSubDeviceElement::clear()
{
    if (m_subDevice) {
        m_subDevice->clear();
    }
}

unsigned int CSubDeviceElement::deviceSerial() const
{
    return m_subDevice ? m_subDevice->deviceSerial() : 0;
}

void CSubDeviceElement::setDeviceSerial(unsigned int deviceSerial)
{
    if (m_subDevice) {
        m_subDevice->setDeviceSerial(deviceSerial);
    }
}

QString CSubDeviceElement::deviceName() const
{
    return m_subDevice ? m_subDevice->deviceName() : QString();
}

void CSubDeviceElement::setDeviceName(const QString &deviceName)
{
    if (m_subDevice) {
        m_subDevice->setDeviceName(deviceName);
    }
}

void CSubDeviceElement::setDeviceNameAndAdaptPaths(const QString &deviceName)
{
    if (m_subDevice) {
        m_subDevice->setDeviceNameAndAdaptPaths(deviceName);
    }
}

void CSubDeviceElement::adaptProjectPaths(const QString &deviceName)
{
    if (m_subDevice) {
        m_subDevice->adaptProjectPaths(deviceName);
    }
}

QString CSubDeviceElement::name() const
{
    return m_subDevice ? m_subDevice->name() : QString();
}

QString CSubDeviceElement::comment() const
{
    return m_subDevice ? m_subDevice->comment() : QString();
}

void CSubDeviceElement::setComment(const QString &comment)
{
    if (m_subDevice) {
        m_subDevice->setComment(comment);
    }
}

QString CSubDeviceElement::configurationName() const
{
    return m_subDevice ? m_subDevice->configurationName() : QString();
}

void CSubDeviceElement::setConfigurationName(const QString &configurationName)
{
    if (m_subDevice) {
        m_subDevice->setConfigurationName(configurationName);
    }
}

void CSubDeviceElement::setConfigurationNameAndAdaptPaths(const QString &configurationName)
{
    if (m_subDevice) {
        m_subDevice->setConfigurationNameAndAdaptPaths(configurationName);
    }
}

CDeviceHardwareId CSubDeviceElement::hardwareId() const
{
    return m_subDevice ? m_subDevice->hardwareId() : CDeviceHardwareId();
}

QString CSubDeviceElement::hardwareIdStr() const
{
    return m_subDevice ? m_subDevice->hardwareIdStr() : QString();
}

void CSubDeviceElement::setHardwareId(const CDeviceHardwareId &hardwareId)
{
    if (m_subDevice) {
        m_subDevice->setHardwareId(hardwareId);
    }
}

void CSubDeviceElement::setHardwareId(const QString &hardwareId)
{
    if (m_subDevice) {
        m_subDevice->setHardwareId(hardwareId);
    }
}

quint8 CSubDeviceElement::driveId() const
{
    return m_subDevice ? m_subDevice->driveId() : quint8(0);
}

void CSubDeviceElement::setDriveId(unsigned char driveId)
{
    if (m_subDevice) {
        m_subDevice->setDriveId(driveId);
    }
}

QString CSubDeviceElement::parameterFileName() const
{
    return m_subDevice ? m_subDevice->parameterFileName() : QString();
}

void CSubDeviceElement::setParameterFileName(const QString &fileName)
{
    if (m_subDevice) {
        m_subDevice->setParameterFileName(fileName);
    }
}

CFileElement CSubDeviceElement::parameterFile() const
{
    return m_subDevice ? m_subDevice->parameterFile() : CFileElement();
}

void CSubDeviceElement::setParameterFile(const CFileElement &file)
{
    if (m_subDevice) {
        m_subDevice->setParameterFile(file);
    }
}

QList<CFileElement> CSubDeviceElement::allFiles() const
{
    return m_subDevice ? m_subDevice->allFiles() : QList<CFileElement>();
}

void CSubDeviceElement::setName(const QString &name)
{
    if (m_subDevice) {
        m_subDevice->setName(name);
    }
}

unsigned int CSubDeviceElement::busId() const
{
    return m_subDevice ? m_subDevice->busId() : 0;
}

void CSubDeviceElement::setBusId(unsigned int busId)
{
    if (m_subDevice) {
        m_subDevice->setBusId(busId);
    }
}

CSubDeviceElement &CSubDeviceElement::operator=(const CSubDeviceElement &other)
{
    if (this == &other) {
        return *this;
    }
    switch (other.type()) {
    case NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE:
        return *this = other.toKD2();
    case NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE:
        return *this = other.toKD3();
    default:
        m_subDevice.reset();
        return *this;
    }
}

CSubDeviceElement &CSubDeviceElement::operator=(const CSubDeviceKD2Element &subDevice)
{
    m_subDevice = std::make_unique<CSubDeviceKD2Element>(subDevice);
    return *this;
}

CSubDeviceElement &CSubDeviceElement::operator=(const CSubDeviceKD3Element &subDevice)
{
    m_subDevice = std::make_unique<CSubDeviceKD3Element>(subDevice);
    return *this;
}

bool CSubDeviceElement::operator==(const CSubDeviceElement &other) const
{
    if (!m_subDevice || !other.m_subDevice) {
        return false;
    }
    switch (other.type()) {
    case NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE:
        return isKD2() && toKD2() == other.toKD2();
    case NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE:
        return isKD3() && toKD3() == other.toKD3();
    default:
        return false;
    }
}

bool CSubDeviceElement::operator!=(const CSubDeviceElement &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CSubDeviceElement &subDevice)
{
    switch (subDevice.type()) {
    case NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE:
        return stream << static_cast<qint32>(subDevice.type()) << subDevice.toKD2();
    case NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE:
        return stream << static_cast<qint32>(subDevice.type()) << subDevice.toKD3();
    default:
        return stream;
    }
}

QDataStream &operator>>(QDataStream &stream, CSubDeviceElement &subDevice)
{
    qint32 type = NvrnDeviceCore::ELEMENT_UNKNOWN;
    stream >> type;
    if (type == NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE) {
        CSubDeviceKD2Element kd2;
        stream >> kd2;
        subDevice = kd2;
    } else if (type == NvrnDeviceCore::ELEMENT_KD3_SUB_DEVICE) {
        CSubDeviceKD3Element kd3;
        stream >> kd3;
        subDevice = kd3;
    }
    return stream;
}
