#pragma once

#include "imported/xml/IXmlReader.h"

/** Builds the DOM tree from the tokens of QXmlStreamReader. */
class CStreamXmlReader : public IXmlReader
{
public:
    bool read(const QByteArray &bytes, QDomDocument &document, SXmlError &error) const override;
};
