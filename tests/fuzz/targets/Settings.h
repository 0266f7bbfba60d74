#pragma once

#include "fuzz/Check.h"
#include "settings/CDeviceSettingsFile.h"

#include <QDate>

namespace Fuzz {

inline QByteArray savedBytes(CDeviceSettingsFile &file, const QString &version)
{
    QByteArray bytes;
    FUZZ_CHECK(file.saveToBuffer(bytes, version) == NvrnGlobal::FILE_RESULT_SUCCESS);
    return bytes;
}

inline void fuzzSettings(const QByteArray &bytes)
{
    const QString version = QStringLiteral("1.0");
    CDeviceSettings before;
    before.setDeviceName(QStringLiteral("before"));
    CDeviceSettingsFile file(nullptr);
    file.setDeviceSettings(before);
    const NvrnGlobal::EFileResult result = file.openFromBuffer(bytes, version);
    if (result != NvrnGlobal::FILE_RESULT_SUCCESS) {
        FUZZ_CHECK(result == NvrnGlobal::FILE_RESULT_FAILURE
                   || result == NvrnGlobal::FILE_RESULT_VERSION_MISMATCH);
        FUZZ_CHECK(file.deviceSettings() == before);
        return;
    }
    const QDate today = QDate::currentDate();
    const QByteArray saved = savedBytes(file, version);
    CDeviceSettingsFile again(nullptr);
    FUZZ_CHECK(again.openFromBuffer(saved, version) == NvrnGlobal::FILE_RESULT_SUCCESS);
    FUZZ_CHECK(again.deviceSettings() == file.deviceSettings());
    const QByteArray savedAgain = savedBytes(again, version);
    // The document tells the date on which it was saved.
    FUZZ_CHECK(savedAgain == saved || QDate::currentDate() != today);
}

} // namespace Fuzz
