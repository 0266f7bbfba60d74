#pragma once

#include "fuzz/Check.h"
#include "fuzz/Utf16.h"
#include "imported/CStr.h"

#include <QStringList>

namespace Fuzz {

/** The revision number of @p text, digit by digit; -1 when it is none. */
inline qint64 expectedRevision(const QString &text)
{
    const int highest[] = {4293, 999, 999};
    const QStringList parts = text.split(QLatin1Char('.'));
    qint64 revision = 0;
    for (int i = 0; i < 3; ++i) {
        int number = 0;
        for (const QChar c : parts.value(i)) {
            if (c < QLatin1Char('0') || c > QLatin1Char('9')) {
                return -1;
            }
            number = qMin(number * 10 + c.digitValue(), highest[i] + 1);
        }
        if (number > highest[i] || (i < parts.size() && parts.at(i).isEmpty())) {
            return -1;
        }
        revision = revision * 1000 + number;
    }
    return parts.size() <= 3 ? revision : -1;
}

inline void fuzzRevision(const QByteArray &bytes)
{
    for (const QString &text : {QString::fromUtf8(bytes), fromUtf16Bytes(bytes)}) {
        const qint64 expected = expectedRevision(text);
        bool isRevision = expected < 0;
        const quint32 revision = CStr::stringToRevision(text, &isRevision);
        FUZZ_CHECK(isRevision == (expected >= 0));
        FUZZ_CHECK(revision == static_cast<quint32>(qMax(expected, qint64(0))));
        FUZZ_CHECK(CStr::stringToRevision(text) == revision);
    }
}

} // namespace Fuzz
