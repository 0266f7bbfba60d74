#include "elements/CDeviceBaseElement.h"

#include "elements/DeviceBaseElementData.h"
#include "elements/DriveNumbers.h"
#include "elements/ElementPaths.h"
#include "elements/FieldList.h"
#include "elements/StartOptions.h"
#include "vocabulary/TextTables.h"

#include <QRegExp>

#include <algorithm>

CDeviceBaseElement::CDeviceBaseElement() : d(new CDeviceBaseElementData) { }
CDeviceBaseElement::CDeviceBaseElement(const CDeviceBaseElement &other) = default;
CDeviceBaseElement::~CDeviceBaseElement() = default;
CDeviceBaseElement &CDeviceBaseElement::operator=(const CDeviceBaseElement &other) = default;

template <typename Change>
void CDeviceBaseElement::changeSubDevices(Change change)
{
    for (auto it = m_subDevices.begin(); it != m_subDevices.end(); ++it) {
        change(it.value());
    }
}

template <typename Change>
void CDeviceBaseElement::changeFiles(Change change)
{
    std::for_each(d->parameterFiles.begin(), d->parameterFiles.end(), change);
    change(d->odictFile);
    change(d->faultTextFile);
    std::for_each(d->additionalFiles.begin(), d->additionalFiles.end(), change);
    std::for_each(d->opcUaFiles.begin(), d->opcUaFiles.end(), change);
    change(d->etherCatMasterFile);
}

bool CDeviceBaseElement::isNull() const
{
    return CBaseElement::isNull() && m_subDevices.isEmpty() && FieldList::isDefault(d);
}

void CDeviceBaseElement::clear()
{
    *this = CDeviceBaseElement();
}

void CDeviceBaseElement::setName(const QString &name)
{
    CBaseElement::setName(name);
    changeSubDevices([&name](CSubDeviceElement &sub) { sub.setDeviceName(name); });
}

void CDeviceBaseElement::setHardwareId(const CDeviceHardwareId &hardwareId)
{
    CBaseElement::setHardwareId(hardwareId);
    changeSubDevices([id = hardwareIdStr()](CSubDeviceElement &sub) { sub.setHardwareId(id); });
}

void CDeviceBaseElement::setHardwareId(const QString &hardwareId)
{
    setHardwareId(CDeviceHardwareId(hardwareId));
}

void CDeviceBaseElement::setConfigurationName(const QString &configurationName)
{
    CBaseElement::setConfigurationName(configurationName);
    changeSubDevices([&configurationName](CSubDeviceElement &sub) {
        sub.setConfigurationName(configurationName);
    });
}

quint8 CDeviceBaseElement::driveId() const
{
    return DriveNumbers::None;
}

void CDeviceBaseElement::setDriveId(unsigned char driveId)
{
    Q_UNUSED(driveId)
}

bool CDeviceBaseElement::isDevice() const
{
    return true;
}

CDeviceBaseElement CDeviceBaseElement::toBaseDevice() const
{
    return *this;
}

CDeviceBaseElement *CDeviceBaseElement::toBaseDevicePtr() const
{
    return const_cast<CDeviceBaseElement *>(this);
}

void CDeviceBaseElement::setNameAndAdaptProjectPaths(const QString &name)
{
    adaptProjectPaths(name);
    setName(name);
}

void CDeviceBaseElement::adaptProjectPaths(const QString &name)
{
    const ElementPaths::DeviceRenaming renaming(*this, this->name(), name);
    changeFiles([&renaming](auto &file) { renaming.apply(file); });
    changeSubDevices([&name](CSubDeviceElement &sub) { sub.adaptProjectPaths(name); });
}

void CDeviceBaseElement::setConfigurationNameAndAdaptPaths(const QString &configurationName)
{
    const ElementPaths::ConfigurationRenaming renaming(*this, name(), configurationName);
    changeFiles([&renaming](auto &file) { renaming.apply(file); });
    changeSubDevices([&configurationName](CSubDeviceElement &sub) {
        sub.setConfigurationNameAndAdaptPaths(configurationName);
    });
    setConfigurationName(configurationName);
}

bool CDeviceBaseElement::isParameterHardwareIdCompatible(const CDeviceHardwareId &hardwareId,
                                                         NvrnGlobal::EParamFileType type) const
{
    const CDeviceHardwareId &own = this->hardwareId();
    const bool sameProduct = hardwareId.prefix() == own.prefix() && hardwareId.name() == own.name()
        && hardwareId.platform() == own.platform();
    const bool tiedToHardwareState = type == NvrnGlobal::PARAM_FILE_FIRMWARE_DATABASE
        || type == NvrnGlobal::PARAM_FILE_LOGIC_DATABASE;
    return sameProduct && (!tiedToHardwareState || hardwareId == own);
}

unsigned int CDeviceBaseElement::serial() const
{
    return d->serial;
}

void CDeviceBaseElement::setSerial(unsigned int serial)
{
    d->serial = serial;
    changeSubDevices([serial](CSubDeviceElement &sub) { sub.setDeviceSerial(serial); });
}

NDeviceConf::EDeviceClass CDeviceBaseElement::deviceClass() const
{
    return d->deviceClass;
}

void CDeviceBaseElement::setDeviceClass(NDeviceConf::EDeviceClass deviceClass)
{
    d->deviceClass = deviceClass;
}

quint8 CDeviceBaseElement::insertSubDevice(CSubDeviceElement &subDevice, unsigned char id)
{
    if (id == DriveNumbers::None && !m_subDevices.contains(DriveNumbers::None)) {
        id = nextFreeDriveID();
    }
    fitSubDevice(subDevice, id, hardwareIdStr());
    m_subDevices.insert(id, subDevice);
    return id;
}

quint8 CDeviceBaseElement::insertSubDevice(const CSubDeviceElement &subDevice, unsigned char id)
{
    CSubDeviceElement copy(subDevice);
    return insertSubDevice(copy, id);
}

void CDeviceBaseElement::fitSubDevice(CSubDeviceElement &subDevice, unsigned char id,
                                      const QString &hardwareId) const
{
    subDevice.setDriveId(id);
    subDevice.setDeviceSerial(serial());
    subDevice.setDeviceName(name());
    subDevice.setHardwareId(hardwareId);
    subDevice.setConfigurationName(configurationName());
    if (subDevice.name().isEmpty()) {
        const QString pattern = deviceClass() == NDeviceConf::DEVICE_CLASS_KC2
            ? QStringLiteral("Sub-Device %1")
            : QStringLiteral("DRIVE-%1");
        subDevice.setName(pattern.arg(id));
    }
}

QString CDeviceBaseElement::deviceClassString(NDeviceConf::EDeviceClass deviceClass)
{
    return TextTables::text(TextTables::deviceClasses(), deviceClass);
}

QStringList CDeviceBaseElement::options() const
{
    return d->options;
}

QString CDeviceBaseElement::option(int index) const
{
    return d->options.value(index);
}

void CDeviceBaseElement::setOptions(const QStringList &options)
{
    d->options = options;
}

void CDeviceBaseElement::setOptions(const QString &options)
{
    d->options.clear();
    const QStringList pieces =
        options.split(QRegExp(QStringLiteral("((^|\\s+)-)")), Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        appendOption(QLatin1Char('-') + piece);
    }
}

void CDeviceBaseElement::appendOption(const QString &option)
{
    if (StartOptions::isOption(option) && !options().contains(option)) {
        d->options.append(option);
    }
}

bool CDeviceBaseElement::removeOption(const QString &option)
{
    if (!StartOptions::isOption(option)) {
        return false;
    }
    // indexOf() matches whole entries, so that "-op" does not remove "-opc".
    const QRegExp pattern(QStringLiteral("^%1\\b(\\s.*)?").arg(option));
    const int index = options().indexOf(pattern);
    if (index < 0) {
        return false;
    }
    d->options.removeAt(index);
    return true;
}

QList<CPluginElement> CDeviceBaseElement::plugins() const
{
    return d->plugins;
}

void CDeviceBaseElement::setPlugins(const QList<CPluginElement> &plugins)
{
    d->plugins = plugins;
}

QString CDeviceBaseElement::executionPlugin() const
{
    return d->executionPlugin;
}

void CDeviceBaseElement::setExecutionPlugin(const QString &name)
{
    d->executionPlugin = name;
}

bool CDeviceBaseElement::isOpcUaEnabled() const
{
    return d->opcUaEnabled;
}

void CDeviceBaseElement::setOpcUaEnabled(bool enabled)
{
    d->opcUaEnabled = enabled;
    if (enabled) {
        appendOption(StartOptions::opcUa());
    } else {
        // Not removeOption(), which takes one entry only, and one with an argument as well.
        d->options.removeAll(StartOptions::opcUa());
    }
}

CDeviceItem::EHostAddrType CDeviceBaseElement::hostAddressType() const
{
    return d->hostAddressType;
}

void CDeviceBaseElement::setHostAddressType(CDeviceItem::EHostAddrType type)
{
    d->hostAddressType = type;
}

QHostAddress CDeviceBaseElement::hostAddress() const
{
    return d->hostAddress;
}

void CDeviceBaseElement::setHostAddress(const QHostAddress &address)
{
    d->hostAddress = address;
}

quint16 CDeviceBaseElement::port() const
{
    return d->port;
}

void CDeviceBaseElement::setPort(unsigned short port)
{
    d->port = port;
}

int CDeviceBaseElement::preferredDeviceListNumber() const
{
    return d->preferredDeviceListNumber;
}

void CDeviceBaseElement::setPreferredDeviceListNumber(int number)
{
    d->preferredDeviceListNumber = number;
}

QList<CSubDeviceElement> CDeviceBaseElement::subDevices() const
{
    return m_subDevices.values();
}

CSubDeviceElement CDeviceBaseElement::subDevice(unsigned char id) const
{
    return m_subDevices.value(id);
}

int CDeviceBaseElement::subDeviceCount() const
{
    return m_subDevices.size();
}

void CDeviceBaseElement::setSubDevices(const QList<CSubDeviceElement> &subDevices)
{
    m_subDevices.clear();
    for (CSubDeviceElement sub : subDevices) {
        if (sub.type() == NvrnDeviceCore::ELEMENT_UNKNOWN) {
            continue;
        }
        const QString own = sub.hardwareIdStr();
        fitSubDevice(sub, sub.driveId(), own.isEmpty() ? hardwareIdStr() : own);
        m_subDevices.insert(sub.driveId(), sub);
    }
}

bool CDeviceBaseElement::removeSubDevice(unsigned char id)
{
    return m_subDevices.remove(id) > 0;
}

quint8 CDeviceBaseElement::nextFreeDriveID() const
{
    return DriveNumbers::behind(m_subDevices.isEmpty() ? -1 : m_subDevices.lastKey());
}

bool CDeviceBaseElement::operator==(const CDeviceBaseElement &other) const
{
    return CBaseElement::operator==(other) && FieldList::equal(d, other.d)
        && m_subDevices == other.m_subDevices;
}

bool CDeviceBaseElement::operator!=(const CDeviceBaseElement &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CDeviceBaseElement &device)
{
    stream << static_cast<const CBaseElement &>(device);
    return FieldList::write(stream, device.d) << device.m_subDevices;
}

QDataStream &operator>>(QDataStream &stream, CDeviceBaseElement &device)
{
    stream >> static_cast<CBaseElement &>(device);
    FieldList::read(stream, device.d);
    FieldList::readField(stream, device.m_subDevices);
    return stream;
}
