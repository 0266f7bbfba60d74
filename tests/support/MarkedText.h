#pragma once

#include <QByteArray>

/**
 * Bytes in which places are marked with "|", which stands for nothing else: one mark is the place
 * before which it stands, two are the first and the last place that will do.
 */
class MarkedText
{
public:
    /** Counts from 1, columns in characters of UTF-8; 0 without a mark. */
    struct SPlace {
        int line = 0;
        int column = 0;

        bool operator<=(const SPlace &other) const
        {
            return line < other.line || (line == other.line && column <= other.column);
        }
    };

    explicit MarkedText(const QByteArray &marked)
    {
        SPlace here{1, 1};
        for (const char c : marked) {
            if (c == '|') {
                m_first = isMarked() ? m_first : here;
                m_last = here;
                continue;
            }
            m_bytes += c;
            if (c == '\n') {
                here = {here.line + 1, 1};
            } else if ((static_cast<unsigned char>(c) & 0xC0u) != 0x80u) {
                ++here.column;
            }
        }
    }

    QByteArray bytes() const { return m_bytes; }
    bool isMarked() const { return m_first.line > 0; }
    SPlace first() const { return m_first; }
    SPlace last() const { return m_last; }

private:
    QByteArray m_bytes;
    SPlace m_first;
    SPlace m_last;
};
