#pragma once

#include "imported/VrnImportedExport.h"

#include <QDate>
#include <QString>

/**
 * Meta data of an XML document: who wrote it when, and what it is.
 *
 * A plain value. Null means that nothing is known: empty texts and an invalid date.
 */
class VRNXML_EXPORT CXMLMetaData
{
public:
    CXMLMetaData() = default;

    QString author() const;
    void setAuthor(const QString &author);

    /** Day of writing; invalid when not known. */
    QDate date() const;
    void setDate(const QDate &date);

    QString comment() const;
    void setComment(const QString &comment);

    bool isNull() const;
    bool operator==(const CXMLMetaData &other) const;
    bool operator!=(const CXMLMetaData &other) const;

private:
    QString m_author;
    QDate m_date;
    QString m_comment;
};
