#pragma once

#include "devicefiles/COptionModuleFileName.h"
#include "fuzz/Check.h"
#include "fuzz/Utf16.h"

namespace Fuzz {

inline void checkModuleName(const QString &path)
{
    const COptionModuleFileName name(path);
    FUZZ_CHECK(name.isNull() != COptionModuleFileName::isValid(path));
    FUZZ_CHECK(name.isNull() != name.isValid());
    FUZZ_CHECK(!name.slotDescription().isEmpty() && !name.interfaceDescription().isEmpty());
    FUZZ_CHECK(name.hardwareVersionAsInt() >= -1);
    FUZZ_CHECK(name.softwareMajorVersionAsInt() >= -1);
    FUZZ_CHECK(name.softwareMinorVersionAsInt() >= -1);
    if (name.isNull()) {
        FUZZ_CHECK(name.fileName().isEmpty());
        return;
    }
    FUZZ_CHECK(path == name.fileName() || path.endsWith(QLatin1Char('/') + name.fileName()));
    FUZZ_CHECK(COptionModuleFileName(name.fileName()) == name);

    COptionModuleFileName parts;
    FUZZ_CHECK(parts.setSlot(name.slot()) && parts.setInterface(name.interface()));
    FUZZ_CHECK(parts.setHardwareVersion(name.hardwareVersion()));
    FUZZ_CHECK(parts.setSoftwareVersion(name.softwareVersion()));
    parts.setText(name.text());
    parts.setSuffix(name.suffix());
    FUZZ_CHECK(parts == name);
}

inline void fuzzModuleName(const QByteArray &bytes)
{
    checkModuleName(QString::fromUtf8(bytes));
    checkModuleName(fromUtf16Bytes(bytes));
}

} // namespace Fuzz
