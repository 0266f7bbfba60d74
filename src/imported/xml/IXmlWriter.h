#pragma once

#include "imported/SXmlLimits.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/** Turns a DOM tree into bytes; the one seam through which documents go out. */
class IXmlWriter
{
public:
    virtual ~IXmlWriter() = default;

    /**
     * Writes the document with @p rootName as the name of its root element; the document itself
     * stays as it is. The same document gives the same bytes in every process.
     * @return false, with @p reason filled, when the document cannot be written so that it would
     *         read back the same within the @p limits
     */
    virtual bool write(const QDomDocument &document, const QString &rootName,
                       const SXmlLimits &limits, QByteArray &bytes, QString &reason) const = 0;
};
