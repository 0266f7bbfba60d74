#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/**
 * Where and why a document was refused. Line and column count from 1; they are those of the
 * character that could not be taken, or of the last one when the document ends too early.
 */
struct SXmlError {
    qint64 line = 0;
    qint64 column = 0;
    QString reason;
};

/** Turns bytes into a DOM tree; the one seam through which documents come in. */
class IXmlReader
{
public:
    virtual ~IXmlReader() = default;

    /**
     * Reads one complete document. Text of elements that hold no child elements is kept exactly;
     * blank text between elements is layout and is dropped.
     * @return false, with @p error filled and @p document empty, when the bytes are refused
     */
    virtual bool read(const QByteArray &bytes, QDomDocument &document, SXmlError &error) const = 0;
};
