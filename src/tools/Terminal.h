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

/** The number of @p style in an escape sequence. */
int code(EStyle style);

/** A text in a style, if that is wanted. */
struct SStyled {
    QString text;
    EStyle style = STYLE_BOLD;
    bool isWanted = false;
};

} // namespace Terminal
