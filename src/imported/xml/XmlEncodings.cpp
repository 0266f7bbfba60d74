#include "imported/xml/XmlEncodings.h"

#include "storage/XmlCharacters.h"

#include <QtEndian>
#include <QTextCodec>

#include <algorithm>
#include <cctype>
#include <iterator>

namespace XmlEncodings {

namespace {

const int AsciiSize = 0x80;

// Qt has no codec of this name in every build, and needs none.
const char Ascii[] = "US-ASCII";

const SEncoding Encodings[] = {
    {"utf8", UTF_8, nullptr},
    {"utf16", UTF_16, nullptr},
    {"utf16le", UTF_16_LE, nullptr},
    {"utf16be", UTF_16_BE, nullptr},
    {"usascii", SINGLE_BYTE, Ascii},
    {"ascii", SINGLE_BYTE, Ascii},
    {"iso646us", SINGLE_BYTE, Ascii},
    {"iso88591", SINGLE_BYTE, "ISO-8859-1"},
    {"latin1", SINGLE_BYTE, "ISO-8859-1"},
    {"iso885915", SINGLE_BYTE, "ISO-8859-15"},
    {"latin9", SINGLE_BYTE, "ISO-8859-15"},
    {"windows1250", SINGLE_BYTE, "windows-1250"},
    {"cp1250", SINGLE_BYTE, "windows-1250"},
    {"windows1251", SINGLE_BYTE, "windows-1251"},
    {"cp1251", SINGLE_BYTE, "windows-1251"},
    {"windows1252", SINGLE_BYTE, "windows-1252"},
    {"cp1252", SINGLE_BYTE, "windows-1252"},
    {"windows1253", SINGLE_BYTE, "windows-1253"},
    {"cp1253", SINGLE_BYTE, "windows-1253"},
    {"windows1254", SINGLE_BYTE, "windows-1254"},
    {"cp1254", SINGLE_BYTE, "windows-1254"},
    {"windows1255", SINGLE_BYTE, "windows-1255"},
    {"cp1255", SINGLE_BYTE, "windows-1255"},
    {"windows1256", SINGLE_BYTE, "windows-1256"},
    {"cp1256", SINGLE_BYTE, "windows-1256"},
    {"windows1257", SINGLE_BYTE, "windows-1257"},
    {"cp1257", SINGLE_BYTE, "windows-1257"},
    {"windows1258", SINGLE_BYTE, "windows-1258"},
    {"cp1258", SINGLE_BYTE, "windows-1258"},
};

/** Some builds of Qt decode an unused byte to a placeholder, others to a character for private use.
 */
bool isCharacter(QChar decoded, bool hasControls)
{
    const ushort code = decoded.unicode();
    const bool isControl = code >= 0x80 && code <= 0x9F;
    const bool isPrivate = code >= 0xE000 && code <= 0xF8FF;
    return code != QChar::ReplacementCharacter && !isPrivate && (hasControls || !isControl);
}

} // namespace

const SEncoding *find(const QByteArray &name)
{
    QByteArray plain;
    for (const char c : name) {
        if (std::isalnum(static_cast<uchar>(c)) != 0) {
            plain += static_cast<char>(std::tolower(static_cast<uchar>(c)));
        }
    }
    const auto *const found =
        std::find_if(std::begin(Encodings), std::end(Encodings),
                     [&plain](const SEncoding &encoding) { return plain == encoding.name; });
    return found == std::end(Encodings) ? nullptr : found;
}

Characters characters(const SEncoding &encoding)
{
    Characters result;
    result.fill(-1);
    const QTextCodec *const codec =
        encoding.codec == Ascii ? nullptr : QTextCodec::codecForName(encoding.codec);
    if (codec == nullptr && encoding.codec != Ascii) {
        return result;
    }
    // The first half is the same in all of them.
    for (int i = 0; i < AsciiSize; ++i) {
        result[static_cast<size_t>(i)] = i;
    }
    const bool hasControls = QByteArray(encoding.codec).startsWith("ISO");
    for (size_t i = AsciiSize; i < result.size() && codec != nullptr; ++i) {
        const QString decoded = codec->toUnicode(QByteArray(1, static_cast<char>(i)));
        if (decoded.size() == 1 && isCharacter(decoded.at(0), hasControls)) {
            result[i] = decoded.at(0).unicode();
        }
    }
    return result;
}

EByteOrder byteOrderOfUtf16(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith(QByteArray("<\0", 2))) {
        return EByteOrder::Little;
    }
    if (bytes.startsWith("\xFE\xFF") || bytes.startsWith(QByteArray("\0<", 2))) {
        return EByteOrder::Big;
    }
    return EByteOrder::None;
}

QByteArray fromUtf16(const QByteArray &bytes, EByteOrder order, bool &complete)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    if (order == EByteOrder::Big) {
        qFromBigEndian<quint16>(bytes.constData(), text.size(), text.data());
    } else {
        qFromLittleEndian<quint16>(bytes.constData(), text.size(), text.data());
    }
    const int lone = XmlCharacters::indexOfLoneSurrogate(text);
    const int end = lone < 0 ? text.size() : lone;
    complete = lone < 0 && bytes.size() % 2 == 0;
    const int start = text.startsWith(QChar::ByteOrderMark) ? 1 : 0;
    return text.midRef(start, end - start).toUtf8();
}

bool beginsWithUtf8(const QByteArray &bytes)
{
    const int longest = 4;
    const QByteArray replacement("\xEF\xBF\xBD");
    const QString decoded = QString::fromUtf8(bytes.constData(), qMin(bytes.size(), longest));
    return !decoded.startsWith(QChar::ReplacementCharacter) || bytes.startsWith(replacement);
}

} // namespace XmlEncodings
