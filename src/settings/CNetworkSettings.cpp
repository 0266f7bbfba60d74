#include "settings/CNetworkSettings.h"

#include "elements/FieldList.h"
#include "settings/NetworkText.h"

namespace {

const int HighestKernelLogLevel = 7;

QString noAddress()
{
    return QStringLiteral("000.000.000.000");
}

QString defaultMask()
{
    return QStringLiteral("255.255.000.000");
}

QString orFallback(const QString &text, const QString &fallback)
{
    return text.isEmpty() ? fallback : text;
}

} // namespace

class CNetworkSettingsData : public QSharedData
{
public:
    virtual ~CNetworkSettingsData() = default;

    CNetworkSettings::ENetworkMode mode = CNetworkSettings::NETWORK_MODE_UNKNOWN;
    QString address = noAddress();
    QString subnetMask = defaultMask();
    QString gateway = noAddress();
    QString syslogAddress = noAddress();
    QString ntpAddress;
    CNetworkSettings::ENtpMode ntpMode = CNetworkSettings::NTP_MODE_UNKNOWN;
    QString netConsoleAddress = noAddress();
    quint32 netConsolePort = 6666;
    QString kernelLogLevel = QStringLiteral("4");

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.mode, self.address, self.subnetMask, self.gateway, self.syslogAddress,
                        self.ntpAddress, self.ntpMode, self.netConsoleAddress, self.netConsolePort,
                        self.kernelLogLevel);
    }
};

CNetworkSettings::CNetworkSettings() : d(new CNetworkSettingsData) { }
CNetworkSettings::CNetworkSettings(const CNetworkSettings &other) = default;
CNetworkSettings::~CNetworkSettings() = default;
CNetworkSettings &CNetworkSettings::operator=(const CNetworkSettings &other) = default;

bool CNetworkSettings::operator==(const CNetworkSettings &other) const
{
    return FieldList::equal(d, other.d);
}

bool CNetworkSettings::operator!=(const CNetworkSettings &other) const
{
    return !(*this == other);
}

bool CNetworkSettings::isNull() const
{
    return d->mode == NETWORK_MODE_UNKNOWN && d->ntpMode == NTP_MODE_UNKNOWN && d->address.isEmpty()
        && d->subnetMask.isEmpty() && d->syslogAddress.isEmpty() && d->ntpAddress.isEmpty();
}

void CNetworkSettings::clear()
{
    *this = CNetworkSettings();
}

CNetworkSettings::ENetworkMode CNetworkSettings::mode() const
{
    return d->mode;
}

void CNetworkSettings::setMode(ENetworkMode mode)
{
    d->mode = mode;
}

QString CNetworkSettings::modeStr() const
{
    return TextTables::text(NetworkText::modes(), d->mode);
}

void CNetworkSettings::setModeStr(const QString &mode)
{
    d->mode = TextTables::value(NetworkText::modes(), mode, Qt::CaseInsensitive);
}

QString CNetworkSettings::address() const
{
    return d->address;
}

void CNetworkSettings::setAddress(const QString &address)
{
    d->address = orFallback(address, noAddress());
}

QString CNetworkSettings::subnetMask() const
{
    return d->subnetMask;
}

void CNetworkSettings::setSubnetMask(const QString &mask)
{
    d->subnetMask = orFallback(mask, defaultMask());
}

QString CNetworkSettings::gateway() const
{
    return d->gateway;
}

void CNetworkSettings::setGateway(const QString &gateway)
{
    d->gateway = orFallback(gateway, noAddress());
}

QString CNetworkSettings::syslogAddress() const
{
    return d->syslogAddress;
}

void CNetworkSettings::setSyslogAddress(const QString &address)
{
    // The fall-back is that of a mask on purpose; see the header.
    d->syslogAddress = orFallback(address, defaultMask());
}

QString CNetworkSettings::ntpAddress() const
{
    return d->ntpAddress;
}

void CNetworkSettings::setNtpAddress(const QString &address)
{
    d->ntpAddress = address;
}

CNetworkSettings::ENtpMode CNetworkSettings::ntpMode() const
{
    return d->ntpMode;
}

void CNetworkSettings::setNtpMode(ENtpMode mode)
{
    d->ntpMode = mode;
}

QString CNetworkSettings::ntpModeStr() const
{
    return TextTables::text(NetworkText::ntpModes(), d->ntpMode);
}

void CNetworkSettings::setNtpModeStr(const QString &mode)
{
    d->ntpMode = TextTables::value(NetworkText::ntpModes(), mode, Qt::CaseInsensitive);
}

QString CNetworkSettings::netConsoleAddress() const
{
    return d->netConsoleAddress;
}

void CNetworkSettings::setNetConsoleAddress(const QString &address)
{
    // The fall-back is that of a mask on purpose; see the header.
    d->netConsoleAddress = orFallback(address, defaultMask());
}

unsigned int CNetworkSettings::netConsolePort() const
{
    return d->netConsolePort;
}

void CNetworkSettings::setNetConsolePort(unsigned int port)
{
    d->netConsolePort = port;
}

QString CNetworkSettings::kernelLogLevel() const
{
    return d->kernelLogLevel;
}

void CNetworkSettings::setKernelLogLevel(const QString &level)
{
    bool isNumber = false;
    const int number = level.toInt(&isNumber);
    if (isNumber && number >= 0 && number <= HighestKernelLogLevel) {
        d->kernelLogLevel = level;
    }
}

QDataStream &operator<<(QDataStream &stream, const CNetworkSettings &settings)
{
    return FieldList::write(stream, settings.d);
}

QDataStream &operator>>(QDataStream &stream, CNetworkSettings &settings)
{
    return FieldList::read(stream, settings.d);
}
