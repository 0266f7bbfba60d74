#pragma once

#include "imported/SXmlLimits.h"
#include "imported/SXmlPosition.h"
#include "imported/xml/CXmlPositions.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/**
 * Where and why a document was refused: the character that could not be taken, or the beginning of
 * what asked for too much or was never closed. Without a position the document as a whole is meant.
 */
struct SXmlError {
    SXmlPosition position;
    QString reason;
};

/** Turns bytes into a DOM tree; the one seam through which documents come in. */
class IXmlReader
{
public:
    virtual ~IXmlReader() = default;

    /**
     * Reads one complete document. Text of elements that hold no child elements is kept exactly;
     * white space between elements is layout and is dropped.
     * @param positions receives the position of each element; may be null, which is faster
     * @return false, with @p error filled and @p document empty, when the bytes are refused
     */
    virtual bool read(const QByteArray &bytes, const SXmlLimits &limits, QDomDocument &document,
                      CXmlPositions *positions, SXmlError &error) const = 0;
};
