#pragma once

#include "fuzz/Check.h"
#include "fuzz/Utf16.h"
#include "imported/CDeviceHardwareId.h"

#include <algorithm>

namespace Fuzz {

inline void checkHardwareIdText(const CDeviceHardwareId &id)
{
    const QString text = id.hardwareId();
    FUZZ_CHECK(text.isEmpty() == id.isNull());
    FUZZ_CHECK(CDeviceHardwareId(text) == id);
    FUZZ_CHECK(CDeviceHardwareId(text).hardwareId() == text);
    // It has to fit into an XML document; at the start a byte-order mark would be none of its own.
    const QString content = QLatin1Char('>') + text;
    FUZZ_CHECK(QString::fromUtf8(content.toUtf8()) == content);
    FUZZ_CHECK(std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.unicode() >= 0xfffe;
    }));
}

inline void fuzzHardwareId(const QByteArray &bytes)
{
    for (const QString &text : {QString::fromUtf8(bytes), fromUtf16Bytes(bytes)}) {
        checkHardwareIdText(CDeviceHardwareId(text));

        CDeviceHardwareId id;
        id.setPrefix(text.left(text.size() / 2));
        id.setName(text.mid(text.size() / 2));
        id.setRevision(static_cast<quint16>(text.size()));
        checkHardwareIdText(id);
    }
}

} // namespace Fuzz
