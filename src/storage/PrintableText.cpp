#include "storage/PrintableText.h"

namespace PrintableText {

namespace {

const int Digits = 4;
const int Hexadecimal = 16;

/** Marks, embeddings, overrides and isolates. */
bool isDirection(ushort unit)
{
    return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E)
        || (unit >= 0x2066 && unit <= 0x2069);
}

} // namespace

bool isCommand(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return isDirection(c.unicode());
    }
}

QString escaped(QChar c)
{
    switch (c.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(static_cast<uint>(c.unicode()), Digits, Hexadecimal,
                                           QLatin1Char('0'));
    }
}

QString of(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (isCommand(c)) {
            result += escaped(c);
        } else {
            result += c;
        }
    }
    return result;
}

} // namespace PrintableText
