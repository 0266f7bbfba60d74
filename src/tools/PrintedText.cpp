#include "tools/PrintedText.h"

#include "storage/PrintableText.h"

PrintedText &PrintedText::operator<<(const QString &text)
{
    m_stream << PrintableText::of(text);
    return *this;
}

PrintedText &PrintedText::operator<<(const Terminal::SStyled &text)
{
    if (!text.isWanted) {
        return *this << text.text;
    }
    m_stream << "\x1b[" << Terminal::code(text.style) << 'm' << PrintableText::of(text.text)
             << "\x1b[0m";
    return *this;
}

PrintedText &PrintedText::operator<<(char own)
{
    m_stream << own;
    return *this;
}

PrintedText &PrintedText::operator<<(int number)
{
    m_stream << number;
    return *this;
}
