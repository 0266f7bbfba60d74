#pragma once

#include "imported/VrnImportedExport.h"

#include <QDomElement>
#include <QString>
#include <QStringList>
#include <QVariant>

/**
 * Typed, named values kept in an element of an XML document.
 *
 * Each value is a child element "Param" with the attributes "name", "type" (INT8 to INT64, UINT8 to
 * UINT64, REAL64, BOOLEAN, STRING), optionally "unit" and "comment", and the value as its text; the
 * texts of booleans are "TRUE" and "FALSE", numbers are written in the C locale so that they read
 * back exactly.
 *
 * Thread-safe as every file object: see docs/architecture.md.
 */
class VRNXML_EXPORT ICXmlSettings
{
public:
    virtual ~ICXmlSettings();

    /** The names of all values, in document order. */
    virtual QStringList names() const = 0;

    /**
     * The value named @p name, of the type that the document states; invalid if there is none, its
     * type is unknown, or its text does not fit its type.
     */
    virtual QVariant value(const QString &name) const = 0;

    /**
     * Stores @p value under @p name, replacing a value of that name and keeping its unit and
     * comment.
     * @return false, and nothing is changed, when the name is empty or the value's type is not one
     *         of the above
     */
    virtual bool setValue(const QString &name, const QVariant &value) = 0;

    /** Unit and comment; empty when there is none. Setting does nothing for an unknown name. */
    virtual QString unit(const QString &name) const = 0;
    virtual void setUnit(const QString &name, const QString &unit) = 0;
    virtual QString comment(const QString &name) const = 0;
    virtual void setComment(const QString &name, const QString &comment) = 0;

    /** Removes a value; false when there is none of that name. */
    virtual bool remove(const QString &name) = 0;

    /** The settings in @p element, whose document must outlive them; the caller owns the object. */
    static ICXmlSettings *instance(const QDomElement &element);

protected:
    ICXmlSettings() = default;

private:
    Q_DISABLE_COPY(ICXmlSettings)
};
