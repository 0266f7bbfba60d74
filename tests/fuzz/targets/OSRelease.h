#pragma once

#include "devicefiles/CDeviceOSReleaseFile.h"
#include "fuzz/Check.h"

namespace Fuzz {

/** What is saved after @p bytes were read. */
inline QByteArray readAndSaved(const QByteArray &bytes)
{
    CDeviceOSReleaseFile file;
    FUZZ_CHECK(file.openFromBuffer(bytes) == NvrnGlobal::FILE_RESULT_SUCCESS);
    QByteArray saved;
    FUZZ_CHECK(file.saveToBuffer(saved) == NvrnGlobal::FILE_RESULT_SUCCESS);
    FUZZ_CHECK(file.isNull() == saved.isEmpty());
    return saved;
}

inline void fuzzOSRelease(const QByteArray &bytes)
{
    CDeviceOSReleaseFile file(bytes, nullptr);
    // A text in another encoding, which is told by its byte-order mark, may have "=" in any form.
    const bool isOtherEncoding = bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")
        || bytes.startsWith(QByteArray("\0\0\xFE\xFF", 4));
    FUZZ_CHECK(isOtherEncoding || file.isNull() != bytes.contains('='));

    // A saved file is one line, so it gives one key; and that is saved as it is, unless it begins
    // with what marks the encoding or ends with what belongs to a line end.
    const QByteArray line = readAndSaved(readAndSaved(bytes));
    FUZZ_CHECK(line.isEmpty() == file.isNull());
    FUZZ_CHECK(line.startsWith("\xEF\xBB\xBF") || line.endsWith('\r')
               || readAndSaved(line) == line);

    const QString value = QString::fromUtf8(bytes);
    const QString platform = file.platform();
    file.setProduct(value);
    FUZZ_CHECK(file.product() == value && file.platform() == platform && !file.isNull());
}

} // namespace Fuzz
