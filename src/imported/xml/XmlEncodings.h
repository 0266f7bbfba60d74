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

/** Whether valid UTF-8 stands at the beginning of @p bytes: one whole character. */
bool beginsWithUtf8(const QByteArray &bytes);

} // namespace XmlEncodings
