#include "elements/CSubDeviceKD2Element.h"

#include "elements/ElementPaths.h"
#include "elements/FieldList.h"
#include "elements/FileCollector.h"

class CSubDeviceKD2ElementData : public QSharedData
{
public:
    virtual ~CSubDeviceKD2ElementData() = default;

    CFileElement firmwareFile;
    CFileElement logicFile;
    CFileElement parameterFile;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.firmwareFile, self.logicFile, self.parameterFile);
    }
};

namespace {

template <typename Renaming>
void rename(CSubDeviceKD2ElementData &data, const Renaming &renaming)
{
    std::apply([&renaming](auto &...file) { (renaming.apply(file), ...); },
               CSubDeviceKD2ElementData::fields(data));
}

} // namespace

CSubDeviceKD2Element::CSubDeviceKD2Element() : d(new CSubDeviceKD2ElementData) { }
CSubDeviceKD2Element::CSubDeviceKD2Element(const CSubDeviceKD2Element &other) = default;
CSubDeviceKD2Element::~CSubDeviceKD2Element() = default;
CSubDeviceKD2Element &CSubDeviceKD2Element::operator=(const CSubDeviceKD2Element &other) = default;

NvrnDeviceCore::EElementType CSubDeviceKD2Element::type() const
{
    return NvrnDeviceCore::ELEMENT_KD2_SUB_DEVICE;
}

bool CSubDeviceKD2Element::isNull() const
{
    return CSubDeviceBaseElement::isNull() && FieldList::isDefault(d);
}

void CSubDeviceKD2Element::clear()
{
    *this = CSubDeviceKD2Element();
}

bool CSubDeviceKD2Element::isKD2SubDevice() const
{
    return true;
}

CSubDeviceKD2Element CSubDeviceKD2Element::toKD2SubDevice() const
{
    return *this;
}

CSubDeviceKD2Element *CSubDeviceKD2Element::toKD2SubDevicePtr() const
{
    return const_cast<CSubDeviceKD2Element *>(this);
}

void CSubDeviceKD2Element::adaptProjectPaths(const QString &deviceName)
{
    rename(*d, ElementPaths::DeviceRenaming(*this, this->deviceName(), deviceName));
    CSubDeviceBaseElement::adaptProjectPaths(deviceName);
}

void CSubDeviceKD2Element::setConfigurationNameAndAdaptPaths(const QString &configurationName)
{
    rename(*d, ElementPaths::ConfigurationRenaming(*this, deviceName(), configurationName));
    CSubDeviceBaseElement::setConfigurationNameAndAdaptPaths(configurationName);
}

QList<CFileElement> CSubDeviceKD2Element::allFiles() const
{
    FileCollector collector;
    collector.add(CSubDeviceBaseElement::allFiles());
    collector.add({kd2FirmwareFile(), kd2LogicFile(), kd2ParameterFile()});
    return collector.files();
}

CFileElement CSubDeviceKD2Element::kd2FirmwareFile() const
{
    return d->firmwareFile;
}

void CSubDeviceKD2Element::setKd2FirmwareFile(const CFileElement &file)
{
    d->firmwareFile = file;
}

CFileElement CSubDeviceKD2Element::kd2LogicFile() const
{
    return d->logicFile;
}

void CSubDeviceKD2Element::setKd2LogicFile(const CFileElement &file)
{
    d->logicFile = file;
}

CFileElement CSubDeviceKD2Element::kd2ParameterFile() const
{
    return d->parameterFile;
}

void CSubDeviceKD2Element::setKd2ParameterFile(const CFileElement &file)
{
    d->parameterFile = file;
}

bool CSubDeviceKD2Element::operator==(const CSubDeviceKD2Element &other) const
{
    return CSubDeviceBaseElement::operator==(other) && FieldList::equal(d, other.d);
}

bool CSubDeviceKD2Element::operator!=(const CSubDeviceKD2Element &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CSubDeviceKD2Element &subDevice)
{
    return FieldList::write(stream << static_cast<const CSubDeviceBaseElement &>(subDevice),
                            subDevice.d);
}

QDataStream &operator>>(QDataStream &stream, CSubDeviceKD2Element &subDevice)
{
    return FieldList::read(stream >> static_cast<CSubDeviceBaseElement &>(subDevice), subDevice.d);
}
