#pragma once

#include <QDomElement>

#include <algorithm>

/** What is text and what only layout; reader and writer must agree on it. */
namespace XmlText {

/** Whether there is nothing but what XML calls white space; a no-break space is not. */
inline bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
            || c == QLatin1Char('\r');
    });
}

/**
 * Whether the element's own text says something. Blank text beside child elements does not: it only
 * indents them, unless there is other text between them as well.
 */
inline bool holdsText(const QDomElement &element)
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

} // namespace XmlText
