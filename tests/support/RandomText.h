#pragma once

#include "Literals.h"

#include <QString>

#include <random>

/** Texts of every kind that XML can carry, the same ones in every run. */
class RandomText
{
public:
    explicit RandomText(quint32 seed) : m_generator(seed) { }

    /** A text of up to a dozen pieces; now and then it is empty, blank or long. */
    QString next()
    {
        QString text;
        const uint pieces = below(13);
        const bool isBlank = below(16) == 0;
        for (uint i = 0; i < pieces; ++i) {
            text += isBlank ? piece(Blanks) : piece(below(KindCount));
        }
        return below(64) == 0 ? text.repeated(200) : text;
    }

private:
    enum Kind : uint { Blanks, Markup, Ascii, Latin, Any, Supplementary, Special, KindCount };

    // Not by a distribution, whose results the C++ library chooses.
    uint below(uint limit) { return static_cast<uint>(m_generator()) % limit; }

    QString piece(uint kind)
    {
        static const QString blanks[] = {u" "_s,  u"\t"_s,   u"\n"_s,  u"\r"_s,
                                         u"  "_s, u"\r\n"_s, u"\n\r"_s};
        static const QString markup[] = {
            u"<"_s,       u">"_s,   u"&"_s,  u"\""_s,    u"'"_s,         u"]]>"_s,   u"--"_s,
            u"<!--"_s,    u"-->"_s, u"?>"_s, u"&amp;"_s, u"<![CDATA["_s, u"&#13;"_s, u"<?xml?>"_s,
            u"</Name>"_s, u"]"_s,   u"%1"_s, u"\\"_s,    u"/"_s,         u":"_s,     u"|"_s,
        };
        // The outermost characters of each range, and what other formats treat in a special way.
        static const QString special[] = {
            u"\u007f"_s, u"\u0080"_s,     u"\u0085"_s,     u"\u009f"_s,     u"\u00a0"_s,
            u"\u2028"_s, u"\u2029"_s,     u"\u200b"_s,     u"\u202e"_s,     u"\u0301"_s,
            u"\ud7ff"_s, u"\ue000"_s,     u"\ufdd0"_s,     u"\ufeff"_s,     u"\ufffd"_s,
            u"\u0130"_s, u"\U00010000"_s, u"\U0001ffff"_s, u"\U0010ffff"_s,
        };
        switch (kind) {
        case Blanks:
            return blanks[below(std::size(blanks))];
        case Markup:
            return markup[below(std::size(markup))];
        case Special:
            return special[below(std::size(special))];
        case Ascii:
            return QChar(0x20 + below(0x5f));
        case Latin:
            return QChar(0xa0 + below(0x160));
        case Supplementary:
            return character(0x10000 + below(0x100000));
        default: {
            // The basic plane without what stands before the blank, surrogates, U+FFFE and U+FFFF.
            const uint code = 0x20 + below(0xfffe - 0x20 - 0x800);
            return character(code < 0xd800 ? code : code + 0x800);
        }
        }
    }

    static QString character(uint code) { return QString::fromUcs4(&code, 1); }

    std::mt19937 m_generator;
};
