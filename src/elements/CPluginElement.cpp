#include "elements/CPluginElement.h"

#include "elements/FieldList.h"

#include <limits>

class CPluginElementData : public QSharedData
{
public:
    virtual ~CPluginElementData() = default;

    // Empty but not null: the two differ on a data stream.
    QString name = QLatin1String("");
    qint32 priority = std::numeric_limits<qint32>::min();
    QString version = QLatin1String("");

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.name, self.priority, self.version);
    }
};

CPluginElement::CPluginElement() : d(new CPluginElementData) { }
CPluginElement::CPluginElement(const CPluginElement &other) = default;
CPluginElement::~CPluginElement() = default;
CPluginElement &CPluginElement::operator=(const CPluginElement &other) = default;

QString CPluginElement::name() const
{
    return d->name;
}

void CPluginElement::setName(const QString &name)
{
    d->name = name;
}

int CPluginElement::priority() const
{
    return d->priority;
}

void CPluginElement::setPriority(int priority)
{
    d->priority = priority;
}

QString CPluginElement::version() const
{
    return d->version;
}

void CPluginElement::setVersion(const QString &version)
{
    d->version = version;
}

QString CPluginElement::fileName() const
{
    const QLatin1String prefix("pi_");
    // Both at once: a name that holds a place marker must not be taken for one.
    const QString result = QStringLiteral("%1.so.%2").arg(name(), version());
    return result.startsWith(prefix) ? result : prefix + result;
}

bool CPluginElement::operator==(const CPluginElement &other) const
{
    return FieldList::equal(d, other.d);
}

bool CPluginElement::operator!=(const CPluginElement &other) const
{
    return !(*this == other);
}

bool CPluginElement::isNull() const
{
    return FieldList::isDefault(d);
}

void CPluginElement::clear()
{
    *this = CPluginElement();
}

QDataStream &operator<<(QDataStream &stream, const CPluginElement &plugin)
{
    return FieldList::write(stream, plugin.d);
}

QDataStream &operator>>(QDataStream &stream, CPluginElement &plugin)
{
    return FieldList::read(stream, plugin.d);
}
