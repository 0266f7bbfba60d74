#include "imported/CDeviceHardwareId.h"

#include "storage/BoundedStream.h"

#include <QStringList>

#include <algorithm>

namespace {

const QLatin1Char Separator(':');
const QLatin1Char EscapeMark('%');
const int EscapeDigits = 4;
const int FieldCount = 5;

bool isSurrogateWithPartner(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate()) {
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    }
    return c.isLowSurrogate() && i > 0 && text.at(i - 1).isHighSurrogate();
}

bool mustEscape(const QString &text, int i)
{
    const QChar c = text.at(i);
    return c == Separator || c == EscapeMark || c.category() == QChar::Other_Control
        || c.unicode() >= 0xfffe || (c.isSurrogate() && !isSurrogateWithPartner(text, i));
}

QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (mustEscape(text, i)) {
            result += EscapeMark;
            result += QString::number(text.at(i).unicode(), 16)
                          .toUpper()
                          .rightJustified(EscapeDigits, QLatin1Char('0'));
        } else {
            result += text.at(i);
        }
    }
    return result;
}

bool isHexDigit(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
        || (c >= QLatin1Char('a') && c <= QLatin1Char('f'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('F'));
}

bool unescape(const QString &text, QString &result)
{
    result.clear();
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != EscapeMark) {
            result += text.at(i);
            continue;
        }
        const QStringRef digits = text.midRef(i + 1, EscapeDigits);
        if (digits.size() != EscapeDigits
            || !std::all_of(digits.cbegin(), digits.cend(), isHexDigit)) {
            return false;
        }
        result += QChar(digits.toUShort(nullptr, 16));
        i += EscapeDigits;
    }
    return true;
}

bool parseNumber(const QString &text, quint16 &number)
{
    const auto isDecimalDigit = [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    };
    bool ok = false;
    number = text.toUShort(&ok, 10);
    return ok && std::all_of(text.cbegin(), text.cend(), isDecimalDigit);
}

} // namespace

CDeviceHardwareId::CDeviceHardwareId(const QString &text)
{
    *this = text;
}

CDeviceHardwareId &CDeviceHardwareId::operator=(const QString &text)
{
    CDeviceHardwareId parsed;
    const QStringList fields = text.split(Separator);
    const bool ok = fields.size() == FieldCount && unescape(fields.at(0), parsed.m_prefix)
        && unescape(fields.at(1), parsed.m_name) && parseNumber(fields.at(2), parsed.m_platform)
        && parseNumber(fields.at(3), parsed.m_version)
        && parseNumber(fields.at(4), parsed.m_revision);
    *this = ok ? parsed : CDeviceHardwareId();
    return *this;
}

QString CDeviceHardwareId::hardwareId() const
{
    if (isNull()) {
        return QString();
    }
    const QStringList fields = {escaped(m_prefix), escaped(m_name), QString::number(m_platform),
                                QString::number(m_version), QString::number(m_revision)};
    return fields.join(Separator);
}

QString CDeviceHardwareId::prefix() const
{
    return m_prefix;
}

void CDeviceHardwareId::setPrefix(const QString &prefix)
{
    m_prefix = prefix;
}

QString CDeviceHardwareId::name() const
{
    return m_name;
}

void CDeviceHardwareId::setName(const QString &name)
{
    m_name = name;
}

quint16 CDeviceHardwareId::platform() const
{
    return m_platform;
}

void CDeviceHardwareId::setPlatform(quint16 platform)
{
    m_platform = platform;
}

quint16 CDeviceHardwareId::version() const
{
    return m_version;
}

void CDeviceHardwareId::setVersion(quint16 version)
{
    m_version = version;
}

quint16 CDeviceHardwareId::revision() const
{
    return m_revision;
}

void CDeviceHardwareId::setRevision(quint16 revision)
{
    m_revision = revision;
}

bool CDeviceHardwareId::isNull() const
{
    return *this == CDeviceHardwareId();
}

void CDeviceHardwareId::clear()
{
    *this = CDeviceHardwareId();
}

bool CDeviceHardwareId::operator==(const CDeviceHardwareId &other) const
{
    return m_prefix == other.m_prefix && m_name == other.m_name && m_platform == other.m_platform
        && m_version == other.m_version && m_revision == other.m_revision;
}

bool CDeviceHardwareId::operator!=(const CDeviceHardwareId &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CDeviceHardwareId &id)
{
    return stream << id.prefix() << id.name() << id.platform() << id.version() << id.revision();
}

QDataStream &operator>>(QDataStream &stream, CDeviceHardwareId &id)
{
    QString prefix;
    QString name;
    quint16 platform = 0;
    quint16 version = 0;
    quint16 revision = 0;
    BoundedStream::read(stream, prefix);
    BoundedStream::read(stream, name);
    stream >> platform >> version >> revision;
    id.setPrefix(prefix);
    id.setName(name);
    id.setPlatform(platform);
    id.setVersion(version);
    id.setRevision(revision);
    return stream;
}
