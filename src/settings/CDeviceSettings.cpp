#include "settings/CDeviceSettings.h"

#include "elements/FieldList.h"

class CDeviceSettingsData : public QSharedData
{
public:
    virtual ~CDeviceSettingsData() = default;

    // Empty but not null: the two differ on a data stream.
    QString deviceName = QLatin1String("");
    QMap<quint8, QString> subDeviceNames;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.deviceName, self.subDeviceNames);
    }
};

CDeviceSettings::CDeviceSettings() : d(new CDeviceSettingsData) { }
CDeviceSettings::CDeviceSettings(const CDeviceSettings &other) = default;
CDeviceSettings::~CDeviceSettings() = default;
CDeviceSettings &CDeviceSettings::operator=(const CDeviceSettings &other) = default;

bool CDeviceSettings::operator==(const CDeviceSettings &other) const
{
    return FieldList::equal(d, other.d);
}

bool CDeviceSettings::operator!=(const CDeviceSettings &other) const
{
    return !(*this == other);
}

bool CDeviceSettings::isNull() const
{
    return FieldList::isDefault(d);
}

void CDeviceSettings::clear()
{
    *this = CDeviceSettings();
}

QString CDeviceSettings::deviceName() const
{
    return d->deviceName;
}

QString CDeviceSettings::deviceName(const QString &defaultName) const
{
    return d->deviceName.isEmpty() ? defaultName : d->deviceName;
}

void CDeviceSettings::setDeviceName(const QString &name)
{
    d->deviceName = name;
}

QString CDeviceSettings::subDeviceName(quint8 driveNo) const
{
    return subDeviceName(driveNo, QString());
}

QString CDeviceSettings::subDeviceName(quint8 driveNo, const QString &defaultName) const
{
    return d->subDeviceNames.value(driveNo, defaultName);
}

QMap<quint8, QString> CDeviceSettings::subDeviceNameMap() const
{
    return d->subDeviceNames;
}

void CDeviceSettings::setSubDeviceName(const QString &name, quint8 driveNo)
{
    d->subDeviceNames.insert(driveNo, name);
}

QDataStream &operator<<(QDataStream &stream, const CDeviceSettings &settings)
{
    return FieldList::write(stream, settings.d);
}

QDataStream &operator>>(QDataStream &stream, CDeviceSettings &settings)
{
    return FieldList::read(stream, settings.d);
}
