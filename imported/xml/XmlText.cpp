#include "imported/xml/XmlText.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace XmlText {

bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
            || c == QLatin1Char('\r');
    });
}

bool holdsText(const QDomElement &element)
{
    bool hasBlankText = false;
    bool hasChildElements = false;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection() || (node.isText() && !isBlank(node.nodeValue()))) {
            return true;
        }
        hasBlankText = hasBlankText || node.isText();
        hasChildElements = hasChildElements || node.isElement();
    }
    return hasBlankText && !hasChildElements;
}

bool isName(const QString &text)
{
    QXmlStreamReader reader(QLatin1Char('<') + text + QLatin1String("/>"));
    reader.setNamespaceProcessing(false);
    return reader.readNextStartElement() && reader.qualifiedName() == text
        && reader.attributes().isEmpty();
}

} // namespace XmlText
