#include "elements/CDescriptionElement.h"

#include "elements/FieldList.h"

class CDescriptionElementData : public QSharedData
{
public:
    virtual ~CDescriptionElementData() = default;

    QString name;
    QString comment;
    QString version = QStringLiteral("1.0");
    QDate creationDate = QDate::currentDate();
    QDate revisionDate = QDate::currentDate();

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.name, self.comment, self.version, self.creationDate,
                        self.revisionDate);
    }
};

CDescriptionElement::CDescriptionElement() : d(new CDescriptionElementData) { }
CDescriptionElement::CDescriptionElement(const CDescriptionElement &other) = default;
CDescriptionElement::~CDescriptionElement() = default;
CDescriptionElement &CDescriptionElement::operator=(const CDescriptionElement &other) = default;

QString CDescriptionElement::version() const
{
    return d->version;
}

void CDescriptionElement::setVersion(const QString &version)
{
    d->version = version;
}

QDate CDescriptionElement::creationDate() const
{
    return d->creationDate;
}

void CDescriptionElement::setCreationDate(const QDate &creationDate)
{
    d->creationDate = creationDate;
}

QDate CDescriptionElement::revisionDate() const
{
    return d->revisionDate;
}

void CDescriptionElement::setRevisionDate(const QDate &revisionDate)
{
    d->revisionDate = revisionDate;
}

QString CDescriptionElement::name() const
{
    return d->name;
}

void CDescriptionElement::setName(const QString &name)
{
    d->name = name;
}

QString CDescriptionElement::comment() const
{
    return d->comment;
}

void CDescriptionElement::setComment(const QString &comment)
{
    d->comment = comment;
}

bool CDescriptionElement::operator==(const CDescriptionElement &other) const
{
    return FieldList::equal(d, other.d);
}

bool CDescriptionElement::operator!=(const CDescriptionElement &other) const
{
    return !(*this == other);
}

bool CDescriptionElement::isNull() const
{
    return FieldList::isDefault(d);
}

void CDescriptionElement::clear()
{
    *this = CDescriptionElement();
}

QDataStream &operator<<(QDataStream &stream, const CDescriptionElement &description)
{
    return FieldList::write(stream, description.d);
}

QDataStream &operator>>(QDataStream &stream, CDescriptionElement &description)
{
    return FieldList::read(stream, description.d);
}
