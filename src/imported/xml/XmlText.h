#pragma once

#include <QDomElement>

/** What is text and what only layout; reader and writer must agree on it. */
namespace XmlText {

/** Whether there is nothing but what XML calls white space; a no-break space is not. */
bool isBlank(const QString &text);
bool isBlank(const char *utf8, int size);

/** Why neither reading nor writing can go on, for the user. */
QString outOfMemory();

/** The text of valid UTF-8, as it stands: QString drops a byte-order mark that it begins with. */
QString fromUtf8(const char *utf8, int size);

/**
 * Whether the element's own text has a meaning. White space beside child elements has none: it only
 * indents them, unless there is other text between them as well.
 */
bool holdsText(const QDomElement &element);

/** Whether @p text can be the name of an element or attribute, which is what the reader says. */
bool isName(const QString &text);

} // namespace XmlText
