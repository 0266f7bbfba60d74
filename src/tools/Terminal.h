#pragma once

#include <QString>

#include <cstdio>

/** What the tool knows of the terminal that it may write to. */
namespace Terminal {

enum EStyle {
    STYLE_BOLD,
    /** Of errors. */
    STYLE_RED,
    /** Of warnings. */
    STYLE_YELLOW,
    STYLE_GREEN,
    STYLE_CYAN
};

/** Whether @p stream ends at a terminal, and not in a file or another program. */
bool isTerminal(FILE *stream);

/**
 * Whether what is written to @p stream should have colours: it is a terminal that knows them, and
 * the environment variable NO_COLOR is not set, or empty.
 */
bool wantsColours(FILE *stream);

/** @p text with the escape sequences of @p style around it; as it is without @p wanted. */
QString styled(const QString &text, EStyle style, bool wanted);

/** @p text on one line, and without what a terminal would take for a command. */
QString printable(const QString &text);

} // namespace Terminal
