#pragma once

#include "imported/xml/IXmlReader.h"

/**
 * Builds the DOM tree from the events of expat, which checks that the document is well-formed. Read
 * are UTF-8 and UTF-16, with or without byte-order mark, and the other XmlEncodings. A document
 * type declaration may name an external subset, which is never read; one with an internal subset is
 * refused.
 */
class CExpatXmlReader : public IXmlReader
{
public:
    bool read(const QByteArray &bytes, const SXmlLimits &limits, QDomDocument &document,
              CXmlPositions *positions, SXmlError &error) const override;
};
