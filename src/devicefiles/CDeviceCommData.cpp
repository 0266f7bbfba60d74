#include "devicefiles/CDeviceCommData.h"

#include "elements/FieldList.h"
#include "vocabulary/TextTables.h"

class CDeviceCommSharedData : public QSharedData
{
public:
    QUuid refId;
    QString name;
    QString comment;
    quint32 serial = 0;
    CDeviceItem::EHostAddrType hostAddressType = CDeviceItem::HOST_ADDRESS_UNDEFINED;
    QHostAddress hostAddress;
    quint16 port = 0;
    QString accessDescription;
    NvrnGlobal::EConnectionState connectionState = NvrnGlobal::CONNECTION_STATE_UNKNOWN;
    qint32 preferredDeviceListNumber = -1;
    QString configurationName;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.refId, self.name, self.comment, self.serial, self.hostAddressType,
                        self.hostAddress, self.port, self.accessDescription, self.connectionState,
                        self.preferredDeviceListNumber, self.configurationName);
    }

    /** Everything but the connection state, which does not make it another device. */
    static auto identity(const CDeviceCommSharedData &self)
    {
        return std::tie(self.refId, self.name, self.comment, self.serial, self.hostAddressType,
                        self.hostAddress, self.port, self.accessDescription,
                        self.preferredDeviceListNumber, self.configurationName);
    }
};

CDeviceCommData::CDeviceCommData() : d(new CDeviceCommSharedData) { }
CDeviceCommData::CDeviceCommData(const CDeviceCommData &other) = default;
CDeviceCommData::~CDeviceCommData() = default;
CDeviceCommData &CDeviceCommData::operator=(const CDeviceCommData &other) = default;

bool CDeviceCommData::operator==(const CDeviceCommData &other) const
{
    return FieldList::equalIdentity(d, other.d);
}

bool CDeviceCommData::operator!=(const CDeviceCommData &other) const
{
    return !(*this == other);
}

bool CDeviceCommData::isNull() const
{
    return *this == CDeviceCommData();
}

void CDeviceCommData::clear()
{
    *this = CDeviceCommData();
}

QUuid CDeviceCommData::refId() const
{
    return d->refId;
}

void CDeviceCommData::setRefId(const QUuid &refId)
{
    d->refId = refId;
}

QString CDeviceCommData::name() const
{
    return d->name;
}

void CDeviceCommData::setName(const QString &name)
{
    d->name = name;
}

QString CDeviceCommData::comment() const
{
    return d->comment;
}

void CDeviceCommData::setComment(const QString &comment)
{
    d->comment = comment;
}

quint32 CDeviceCommData::serial() const
{
    return d->serial;
}

void CDeviceCommData::setSerial(unsigned int serial)
{
    d->serial = serial;
}

CDeviceItem::EHostAddrType CDeviceCommData::hostAddressType() const
{
    return d->hostAddressType;
}

void CDeviceCommData::setHostAddressType(CDeviceItem::EHostAddrType type)
{
    d->hostAddressType = type;
}

QString CDeviceCommData::hostAddressTypeStr(CDeviceItem::EHostAddrType type)
{
    return TextTables::text(TextTables::hostAddressTypes(), type);
}

QHostAddress CDeviceCommData::hostAddress() const
{
    return d->hostAddress;
}

void CDeviceCommData::setHostAddress(const QHostAddress &address)
{
    d->hostAddress = address;
}

quint16 CDeviceCommData::port() const
{
    return d->port;
}

void CDeviceCommData::setPort(unsigned short port)
{
    d->port = port;
}

QString CDeviceCommData::accessDescription() const
{
    return d->accessDescription;
}

void CDeviceCommData::setAccessDescription(const QString &description)
{
    d->accessDescription = description;
}

NvrnGlobal::EConnectionState CDeviceCommData::connectionState() const
{
    return d->serial == 0 ? NvrnGlobal::CONNECTION_STATE_UNKNOWN : d->connectionState;
}

void CDeviceCommData::setConnectionState(NvrnGlobal::EConnectionState state)
{
    d->connectionState = state;
}

QString CDeviceCommData::connectionStateStr(NvrnGlobal::EConnectionState state)
{
    return TextTables::text(TextTables::connectionStates(), state);
}

qint32 CDeviceCommData::preferredDeviceListNumber() const
{
    return d->preferredDeviceListNumber;
}

void CDeviceCommData::setPreferredDeviceListNumber(int number)
{
    d->preferredDeviceListNumber = number;
}

QString CDeviceCommData::configurationName() const
{
    return d->configurationName;
}

void CDeviceCommData::setConfigurationName(const QString &name)
{
    d->configurationName = name;
}

QDataStream &operator<<(QDataStream &stream, const CDeviceCommData &data)
{
    return FieldList::write(stream, data.d);
}

QDataStream &operator>>(QDataStream &stream, CDeviceCommData &data)
{
    return FieldList::read(stream, data.d);
}
