#pragma once

#include "tools/Terminal.h"

#include <QTextStream>

/**
 * The one way of texts for people to standard output. A QString may come from a file or be the name
 * of one: it is printed with escape sequences for what a terminal would obey, line feeds included.
 * Literals are the tool's own, and are printed as they are.
 */
class PrintedText
{
public:
    /** @p stream is not owned. */
    explicit PrintedText(QTextStream &stream) : m_stream(stream) { }

    PrintedText &operator<<(const QString &text);
    PrintedText &operator<<(const Terminal::SStyled &text);

    template <size_t Size>
    PrintedText &operator<<(const char (&own)[Size])
    {
        m_stream << QString::fromUtf8(own);
        return *this;
    }
    PrintedText &operator<<(char own);
    PrintedText &operator<<(int number);

private:
    Q_DISABLE_COPY(PrintedText)

    QTextStream &m_stream;
};
