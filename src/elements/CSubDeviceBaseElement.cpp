#include "elements/CSubDeviceBaseElement.h"

#include "elements/ElementPaths.h"
#include "elements/FieldList.h"
#include "elements/FileCollector.h"

class CSubDeviceBaseElementData : public QSharedData
{
public:
    virtual ~CSubDeviceBaseElementData() = default;

    quint32 deviceSerial = 0;
    QString deviceName;
    CFileElement parameterFile;
    quint32 busId = 0;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.deviceSerial, self.deviceName, self.parameterFile, self.busId);
    }
};

CSubDeviceBaseElement::CSubDeviceBaseElement() : d(new CSubDeviceBaseElementData) { }
CSubDeviceBaseElement::CSubDeviceBaseElement(const CSubDeviceBaseElement &other) = default;
CSubDeviceBaseElement::~CSubDeviceBaseElement() = default;
CSubDeviceBaseElement &
CSubDeviceBaseElement::operator=(const CSubDeviceBaseElement &other) = default;

bool CSubDeviceBaseElement::isNull() const
{
    return CBaseElement::isNull() && FieldList::isDefault(d);
}

void CSubDeviceBaseElement::clear()
{
    *this = CSubDeviceBaseElement();
}

bool CSubDeviceBaseElement::isSubDevice() const
{
    return true;
}

CSubDeviceBaseElement CSubDeviceBaseElement::toBaseSubDevice() const
{
    return *this;
}

CSubDeviceBaseElement *CSubDeviceBaseElement::toBaseSubDevicePtr() const
{
    return const_cast<CSubDeviceBaseElement *>(this);
}

unsigned int CSubDeviceBaseElement::deviceSerial() const
{
    return d->deviceSerial;
}

void CSubDeviceBaseElement::setDeviceSerial(unsigned int deviceSerial)
{
    d->deviceSerial = deviceSerial;
}

QString CSubDeviceBaseElement::deviceName() const
{
    return d->deviceName;
}

void CSubDeviceBaseElement::setDeviceName(const QString &deviceName)
{
    d->deviceName = deviceName;
}

void CSubDeviceBaseElement::setDeviceNameAndAdaptPaths(const QString &deviceName)
{
    adaptProjectPaths(deviceName);
    setDeviceName(deviceName);
}

void CSubDeviceBaseElement::adaptProjectPaths(const QString &deviceName)
{
    const ElementPaths::DeviceRenaming renaming(*this, this->deviceName(), deviceName);
    renaming.apply(d->parameterFile);
}

void CSubDeviceBaseElement::setConfigurationNameAndAdaptPaths(const QString &configurationName)
{
    const ElementPaths::ConfigurationRenaming renaming(*this, deviceName(), configurationName);
    renaming.apply(d->parameterFile);
    setConfigurationName(configurationName);
}

QString CSubDeviceBaseElement::parameterFileName() const
{
    return d->parameterFile.fileName();
}

void CSubDeviceBaseElement::setParameterFileName(const QString &fileName)
{
    d->parameterFile.setFileName(fileName);
}

CFileElement CSubDeviceBaseElement::parameterFile() const
{
    return d->parameterFile;
}

void CSubDeviceBaseElement::setParameterFile(const CFileElement &file)
{
    d->parameterFile = file;
}

QList<CFileElement> CSubDeviceBaseElement::allFiles() const
{
    FileCollector collector;
    collector.add(parameterFile());
    return collector.files();
}

unsigned int CSubDeviceBaseElement::busId() const
{
    return d->busId;
}

void CSubDeviceBaseElement::setBusId(unsigned int busId)
{
    d->busId = busId;
}

bool CSubDeviceBaseElement::operator==(const CSubDeviceBaseElement &other) const
{
    return CBaseElement::operator==(other) && FieldList::equal(d, other.d);
}

bool CSubDeviceBaseElement::operator!=(const CSubDeviceBaseElement &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CSubDeviceBaseElement &subDevice)
{
    return FieldList::write(stream << static_cast<const CBaseElement &>(subDevice), subDevice.d);
}

QDataStream &operator>>(QDataStream &stream, CSubDeviceBaseElement &subDevice)
{
    return FieldList::read(stream >> static_cast<CBaseElement &>(subDevice), subDevice.d);
}
