#pragma once

#include <QString>

/** Text that somebody else wrote, on its way to people: to a terminal, and into lines. */
namespace PrintableText {

/**
 * Whether @p c would not be shown but obeyed: a control character, a line feed included, an end of
 * a line or a paragraph, or a mark that changes the direction of what stands beside it.
 */
bool isCommand(QChar c);

/** An escape sequence as in C: "\n", or "\u001b". */
QString escaped(QChar c);

/**
 * @p text on one line, with escape sequences for what a terminal would obey. A backslash stays as
 * it is, so that paths are readable: nobody can get the exact text back.
 */
QString of(const QString &text);

} // namespace PrintableText
