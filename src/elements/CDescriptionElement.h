#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QDate>
#include <QSharedDataPointer>
#include <QString>

class CDescriptionElementData;

/**
 * The description of a configuration: name, comment, version text, and the days of its creation
 * and last revision.
 *
 * A default-constructed description bears today's date twice, and null is compared with one built
 * at the moment of asking: a description that was null yesterday is not null today.
 *
 * Copies share their data until one of them is changed. Thread-safe as every value: see
 * docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CDescriptionElement
{
public:
    /** Version "1.0", both dates today, texts empty. */
    CDescriptionElement();
    CDescriptionElement(const CDescriptionElement &other);
    virtual ~CDescriptionElement();

    /** Version text of the configuration, "1.0" by default; not the version of the document. */
    virtual QString version() const;
    virtual void setVersion(const QString &version);

    /** Invalid when not known. */
    virtual QDate creationDate() const;
    virtual void setCreationDate(const QDate &creationDate);

    /** Invalid when not known. */
    virtual QDate revisionDate() const;
    virtual void setRevisionDate(const QDate &revisionDate);

    /** Name shown to the user. */
    QString name() const;
    void setName(const QString &name);

    /** Free comment. */
    QString comment() const;
    void setComment(const QString &comment);

    CDescriptionElement &operator=(const CDescriptionElement &other);

    bool operator==(const CDescriptionElement &other) const;
    bool operator!=(const CDescriptionElement &other) const;

    /** Whether the description equals one that is constructed now. */
    bool isNull() const;
    /** Assigns a default-constructed description; both dates become today. */
    void clear();

private:
    QSharedDataPointer<CDescriptionElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CDescriptionElement &description);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CDescriptionElement &description);
};

/** Stream form: name, comment, version (QString), creation date, revision date (QDate). */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const CDescriptionElement &description);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDescriptionElement &description);
