#include "imported/xml/CXmlSettings.h"

#include "imported/CDomDoc.h"

#include <QDomDocument>

#include <limits>

namespace {

const QLatin1String ParamTag("Param");
const QLatin1String NameAttribute("name");
const QLatin1String TypeAttribute("type");
const QLatin1String UnitAttribute("unit");
const QLatin1String CommentAttribute("comment");
const QLatin1String TrueText("TRUE");
const QLatin1String FalseText("FALSE");

struct TypeName {
    QMetaType::Type type;
    QLatin1String name;
};

const TypeName TypeNames[] = {
    {QMetaType::SChar, QLatin1String("INT8")},     {QMetaType::Short, QLatin1String("INT16")},
    {QMetaType::Int, QLatin1String("INT32")},      {QMetaType::LongLong, QLatin1String("INT64")},
    {QMetaType::UChar, QLatin1String("UINT8")},    {QMetaType::UShort, QLatin1String("UINT16")},
    {QMetaType::UInt, QLatin1String("UINT32")},    {QMetaType::ULongLong, QLatin1String("UINT64")},
    {QMetaType::QString, QLatin1String("STRING")}, {QMetaType::Bool, QLatin1String("BOOLEAN")},
    {QMetaType::Double, QLatin1String("REAL64")},
};

template <typename Number>
QVariant boundedNumber(const QString &text)
{
    bool ok = false;
    const qlonglong value = text.toLongLong(&ok);
    const bool fits = ok && value >= std::numeric_limits<Number>::min()
        && value <= std::numeric_limits<Number>::max();
    return fits ? QVariant::fromValue(static_cast<Number>(value)) : QVariant();
}

QVariant fromText(const QString &text, QMetaType::Type type)
{
    bool ok = false;
    switch (type) {
    case QMetaType::SChar:
        return boundedNumber<signed char>(text);
    case QMetaType::Short:
        return boundedNumber<short>(text);
    case QMetaType::Int:
        return boundedNumber<int>(text);
    case QMetaType::UChar:
        return boundedNumber<unsigned char>(text);
    case QMetaType::UShort:
        return boundedNumber<unsigned short>(text);
    case QMetaType::UInt:
        return boundedNumber<unsigned int>(text);
    case QMetaType::LongLong: {
        const qlonglong value = text.toLongLong(&ok);
        return ok ? QVariant(value) : QVariant();
    }
    case QMetaType::ULongLong: {
        const qulonglong value = text.toULongLong(&ok);
        return ok ? QVariant(value) : QVariant();
    }
    case QMetaType::Double: {
        const double value = text.toDouble(&ok);
        return ok ? QVariant(value) : QVariant();
    }
    case QMetaType::Bool:
        return text == TrueText ? QVariant(true)
                                : (text == FalseText ? QVariant(false) : QVariant());
    case QMetaType::QString:
        return text;
    default:
        return QVariant();
    }
}

QString toText(const QVariant &value, QMetaType::Type type)
{
    if (type == QMetaType::Bool) {
        return value.toBool() ? TrueText : FalseText;
    }
    if (type == QMetaType::Double) {
        return QString::number(value.toDouble(), 'g', std::numeric_limits<double>::max_digits10);
    }
    if (type == QMetaType::SChar || type == QMetaType::UChar) {
        return QString::number(value.toInt());
    }
    return value.toString();
}

} // namespace

ICXmlSettings::~ICXmlSettings() = default;

ICXmlSettings *ICXmlSettings::instance(const QDomElement &element)
{
    return new CXmlSettings(element);
}

CXmlSettings::CXmlSettings(const QDomElement &element) : m_element(element) { }

CXmlSettings::~CXmlSettings() = default;

QStringList CXmlSettings::names() const
{
    QStringList result;
    for (QDomElement e = m_element.firstChildElement(ParamTag); !e.isNull();
         e = e.nextSiblingElement(ParamTag)) {
        result << e.attribute(NameAttribute);
    }
    return result;
}

QVariant CXmlSettings::value(const QString &name) const
{
    const QDomElement element = find(name);
    const QString typeName = element.attribute(TypeAttribute);
    for (const TypeName &candidate : TypeNames) {
        if (typeName == candidate.name) {
            return fromText(CDomDoc::text(element), candidate.type);
        }
    }
    return QVariant();
}

bool CXmlSettings::setValue(const QString &name, const QVariant &value)
{
    if (name.isEmpty() || m_element.isNull()) {
        return false;
    }
    for (const TypeName &candidate : TypeNames) {
        if (value.userType() == candidate.type) {
            QDomElement element = find(name);
            if (element.isNull()) {
                element = m_element.ownerDocument().createElement(ParamTag);
                element.setAttribute(NameAttribute, name);
                m_element.appendChild(element);
            }
            element.setAttribute(TypeAttribute, candidate.name);
            CDomDoc::setText(toText(value, candidate.type), element);
            return true;
        }
    }
    return false;
}

QString CXmlSettings::unit(const QString &name) const
{
    return find(name).attribute(UnitAttribute);
}

void CXmlSettings::setUnit(const QString &name, const QString &unit)
{
    find(name).setAttribute(UnitAttribute, unit);
}

QString CXmlSettings::comment(const QString &name) const
{
    return find(name).attribute(CommentAttribute);
}

void CXmlSettings::setComment(const QString &name, const QString &comment)
{
    find(name).setAttribute(CommentAttribute, comment);
}

bool CXmlSettings::remove(const QString &name)
{
    const QDomElement element = find(name);
    return !element.isNull() && !m_element.removeChild(element).isNull();
}

QDomElement CXmlSettings::find(const QString &name) const
{
    QDomElement e = m_element.firstChildElement(ParamTag);
    while (!e.isNull() && e.attribute(NameAttribute) != name) {
        e = e.nextSiblingElement(ParamTag);
    }
    return e;
}
