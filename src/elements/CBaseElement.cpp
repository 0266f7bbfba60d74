#include "elements/CBaseElement.h"

#include "elements/CDeviceElement.h"
#include "elements/CSubDeviceKD2Element.h"
#include "elements/CSubDeviceKD3Element.h"
#include "elements/DriveNumbers.h"
#include "elements/FieldList.h"

#include <QFileInfo>
#include <QRegExp>
#include <QStringList>

class CBaseElementData : public QSharedData
{
public:
    virtual ~CBaseElementData() = default;

    QString name;
    QString comment;
    CDeviceHardwareId hardwareId;
    QString configurationName = QStringLiteral("STD");
    quint8 driveId = DriveNumbers::None;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.name, self.comment, self.hardwareId, self.configurationName,
                        self.driveId);
    }
};

CBaseElement::CBaseElement() : d(new CBaseElementData) { }
CBaseElement::CBaseElement(const CBaseElement &other) = default;
CBaseElement::~CBaseElement() = default;
CBaseElement &CBaseElement::operator=(const CBaseElement &other) = default;

NvrnDeviceCore::EElementType CBaseElement::type() const
{
    return NvrnDeviceCore::ELEMENT_UNKNOWN;
}

bool CBaseElement::isNull() const
{
    return FieldList::isDefault(d);
}

void CBaseElement::clear()
{
    *this = CBaseElement();
}

QString CBaseElement::name() const
{
    return d->name;
}

void CBaseElement::setName(const QString &name)
{
    d->name = name;
}

QString CBaseElement::comment() const
{
    return d->comment;
}

void CBaseElement::setComment(const QString &comment)
{
    d->comment = comment;
}

const CDeviceHardwareId &CBaseElement::hardwareId() const
{
    return d->hardwareId;
}

QString CBaseElement::hardwareIdStr() const
{
    return d->hardwareId.hardwareId();
}

void CBaseElement::setHardwareId(const CDeviceHardwareId &hardwareId)
{
    d->hardwareId = hardwareId;
}

void CBaseElement::setHardwareId(const QString &hardwareId)
{
    d->hardwareId = hardwareId;
}

// The product setters go through setHardwareId(), so that a derived class which follows changes of
// the identity has to override only that.

quint16 CBaseElement::productId() const
{
    return d->hardwareId.platform();
}

void CBaseElement::setProductId(unsigned short productId)
{
    CDeviceHardwareId id = hardwareId();
    id.setPlatform(productId);
    setHardwareId(id);
}

quint16 CBaseElement::productVersion() const
{
    return d->hardwareId.version();
}

void CBaseElement::setProductVersion(unsigned short productVersion)
{
    CDeviceHardwareId id = hardwareId();
    id.setVersion(productVersion);
    setHardwareId(id);
}

quint16 CBaseElement::productRevision() const
{
    return d->hardwareId.revision();
}

void CBaseElement::setProductRevision(unsigned short productRevision)
{
    CDeviceHardwareId id = hardwareId();
    id.setRevision(productRevision);
    setHardwareId(id);
}

QString CBaseElement::productName() const
{
    return d->hardwareId.name();
}

void CBaseElement::setProductName(const QString &productName)
{
    CDeviceHardwareId id = hardwareId();
    id.setName(productName);
    setHardwareId(id);
}

QString CBaseElement::configurationName() const
{
    return d->configurationName;
}

void CBaseElement::setConfigurationName(const QString &configurationName)
{
    d->configurationName = configurationName;
}

quint8 CBaseElement::driveId() const
{
    return d->driveId;
}

void CBaseElement::setDriveId(unsigned char driveId)
{
    d->driveId = driveId;
}

bool CBaseElement::isDevice() const
{
    return false;
}

bool CBaseElement::isSubDevice() const
{
    return false;
}

bool CBaseElement::isKD2SubDevice() const
{
    return false;
}

bool CBaseElement::isKD3SubDevice() const
{
    return false;
}

CDeviceElement CBaseElement::toDevice() const
{
    return CDeviceElement();
}

CDeviceElement *CBaseElement::toDevicePtr() const
{
    return nullptr;
}

CDeviceBaseElement CBaseElement::toBaseDevice() const
{
    return CDeviceBaseElement();
}

CDeviceBaseElement *CBaseElement::toBaseDevicePtr() const
{
    return nullptr;
}

CSubDeviceBaseElement CBaseElement::toBaseSubDevice() const
{
    return CSubDeviceBaseElement();
}

CSubDeviceBaseElement *CBaseElement::toBaseSubDevicePtr() const
{
    return nullptr;
}

CSubDeviceKD2Element CBaseElement::toKD2SubDevice() const
{
    return CSubDeviceKD2Element();
}

CSubDeviceKD2Element *CBaseElement::toKD2SubDevicePtr() const
{
    return nullptr;
}

CSubDeviceKD3Element CBaseElement::toKD3SubDevice() const
{
    return CSubDeviceKD3Element();
}

CSubDeviceKD3Element *CBaseElement::toKD3SubDevicePtr() const
{
    return nullptr;
}

bool CBaseElement::operator==(const CBaseElement &other) const
{
    return FieldList::equal(d, other.d);
}

bool CBaseElement::operator!=(const CBaseElement &other) const
{
    return !(*this == other);
}

QString CBaseElement::replacePartOfFilePath(const QString &filePath, const QString &oldPart,
                                            const QString &newPart) const
{
    if (filePath.isEmpty()) {
        return filePath;
    }
    QStringList components = QFileInfo(filePath).path().split(QLatin1Char('/'));
    const QRegExp pattern(QStringLiteral(R"((^|[\\/])%1([\\/]|$))").arg(oldPart));
    const int index = components.lastIndexOf(pattern);
    if (index < 0) {
        return filePath;
    }
    components[index] = newPart;
    return components.join(QLatin1Char('/'));
}

QString CBaseElement::adaptFilePathToDeviceName(const QString &filePath, const QString &oldName,
                                                const QString &newName) const
{
    return replacePartOfFilePath(filePath, oldName, newName);
}

QString CBaseElement::adaptFilePathToConfigurationName(const QString &filePath,
                                                       const QString &oldName,
                                                       const QString &newName) const
{
    return replacePartOfFilePath(filePath, oldName, newName);
}

QDataStream &operator<<(QDataStream &stream, const CBaseElement &element)
{
    return FieldList::write(stream, element.d);
}

QDataStream &operator>>(QDataStream &stream, CBaseElement &element)
{
    return FieldList::read(stream, element.d);
}
