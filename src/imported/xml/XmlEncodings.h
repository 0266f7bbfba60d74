#pragma once

#include <QByteArray>

#include <array>

/** The encodings in which documents are read, under the names that tools give them. */
namespace XmlEncodings {

enum EKind { UTF_8, UTF_16, UTF_16_LE, UTF_16_BE, SINGLE_BYTE };

struct SEncoding {
    /** In lower case, without hyphens and the like: "ISO-8859-1", "iso8859-1" are "iso88591". */
    const char *name;
    EKind kind;
    /** Of single bytes alone: as Qt calls it. */
    const char *codec;
};

/** The encoding of that name, in any spelling; null for an unknown one. */
const SEncoding *find(const QByteArray &name);

/** What each byte stands for: a code point, or -1 for a byte that stands for none. */
using Characters = std::array<int, 256>;

/** The characters of an encoding of single bytes; all -1 where Qt does not have it. */
Characters characters(const SEncoding &encoding);

/** Of documents in UTF-16; None for all others. */
enum class EByteOrder { None, Little, Big };

/** By the byte-order mark, or by the "<" that a document without one begins with. */
EByteOrder byteOrderOfUtf16(const QByteArray &bytes);

/**
 * The text in UTF-8, without a byte-order mark and up to the first invalid unit; @p complete is set
 * to whether that is all.
 */
QByteArray fromUtf16(const QByteArray &bytes, EByteOrder order, bool &complete);

/** Whether valid UTF-8 stands at the beginning of @p bytes: one whole character. */
bool beginsWithUtf8(const QByteArray &bytes);

} // namespace XmlEncodings
