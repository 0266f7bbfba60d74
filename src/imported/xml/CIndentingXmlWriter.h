#pragma once

#include "imported/xml/IXmlWriter.h"

/**
 * Writes UTF-8 with an XML declaration, one element a line, indented by one space per level.
 * Attributes stand in the order of their names. An element with text is written on one line, with
 * its text exactly as it is.
 */
class CIndentingXmlWriter : public IXmlWriter
{
public:
    bool write(const QDomDocument &document, const QString &rootName, const SXmlLimits &limits,
               QByteArray &bytes, QString &reason) const override;
};
