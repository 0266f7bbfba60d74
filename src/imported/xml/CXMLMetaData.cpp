#include "imported/CXMLMetaData.h"

QString CXMLMetaData::author() const
{
    return m_author;
}

void CXMLMetaData::setAuthor(const QString &author)
{
    m_author = author;
}

QDate CXMLMetaData::date() const
{
    return m_date;
}

void CXMLMetaData::setDate(const QDate &date)
{
    m_date = date;
}

QString CXMLMetaData::comment() const
{
    return m_comment;
}

void CXMLMetaData::setComment(const QString &comment)
{
    m_comment = comment;
}

bool CXMLMetaData::isNull() const
{
    return *this == CXMLMetaData();
}

bool CXMLMetaData::operator==(const CXMLMetaData &other) const
{
    return m_author == other.m_author && m_date == other.m_date && m_comment == other.m_comment;
}

bool CXMLMetaData::operator!=(const CXMLMetaData &other) const
{
    return !(*this == other);
}
