#pragma once

#include "commissioning/CDeviceManifest.h"
#include "fuzz/Check.h"

namespace Fuzz {

/** What is read is a tree that can be on a device, and is written as it was. */
inline void fuzzManifest(const QByteArray &bytes)
{
    CDeviceManifest manifest;
    QString errorText;
    if (!manifest.readJson(bytes, errorText)) {
        FUZZ_CHECK(!errorText.isEmpty());
        FUZZ_CHECK(manifest.entries().isEmpty() && manifest.directories().isEmpty());
        return;
    }
    for (const CDeviceManifest::SEntry &entry : manifest.entries()) {
        FUZZ_CHECK(CDeviceManifest::isDevicePath(entry.devicePath));
        FUZZ_CHECK(entry.size >= 0 && entry.sha256.size() == 64);
    }
    const QByteArray written = manifest.toJson();
    CDeviceManifest again;
    FUZZ_CHECK(again.readJson(written, errorText));
    FUZZ_CHECK(again.toJson() == written);
}

} // namespace Fuzz
