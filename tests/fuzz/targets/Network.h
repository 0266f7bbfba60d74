#pragma once

#include "fuzz/Check.h"
#include "fuzz/MemoryFile.h"
#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"

#include <algorithm>

namespace Fuzz {

inline CNetworkSettings readNetworkSettings(const QByteArray &bytes)
{
    const MemoryFile content(bytes);
    FUZZ_CHECK(content.isOk());
    CNetworkSettingsFile file;
    FUZZ_CHECK(file.open(content.name()) == NvrnGlobal::FILE_RESULT_SUCCESS);
    return file.networkSettings();
}

/**
 * Whether @p value stands in a file as it is. What QSettings gives a meaning to does not: quotation
 * marks, backslashes, comments, the blanks around a value and those around the parts of a list.
 */
inline bool isPlain(const QString &value)
{
    const auto isSpecial = [](QChar c) {
        return c.category() == QChar::Other_Control || c.isSurrogate() || c.isNonCharacter()
            || QStringLiteral("\"\\;").contains(c);
    };
    const QStringList parts = value.split(QLatin1Char(','));
    return std::none_of(value.begin(), value.end(), isSpecial)
        && std::all_of(parts.begin(), parts.end(),
                       [](const QString &part) { return part == part.trimmed(); });
}

inline void checkFindings(const QByteArray &bytes)
{
    const int lines = bytes.count('\n') + bytes.count('\r') + 1;
    int previousLine = 0;
    for (const auto &finding : CNetworkSettingsCheck::check(bytes)) {
        FUZZ_CHECK(finding.finding >= CNetworkSettingsCheck::FINDING_NO_ASSIGNMENT);
        FUZZ_CHECK(finding.finding <= CNetworkSettingsCheck::FINDING_OTHER_SUBNET);
        FUZZ_CHECK(finding.line >= previousLine && finding.line <= lines);
        FUZZ_CHECK(!finding.message.isEmpty());
        previousLine = finding.line;
    }
}

/** In a file that was saved only values can be wrong, and exactly those that are told to be so. */
inline void checkFindingsOfSaved(const CNetworkSettingsFile &file, const QByteArray &saved)
{
    QStringList bad;
    for (const auto &finding : CNetworkSettingsCheck::check(saved)) {
        FUZZ_CHECK(finding.finding >= CNetworkSettingsCheck::FINDING_BAD_VALUE);
        FUZZ_CHECK(finding.line > 0);
        if (finding.finding == CNetworkSettingsCheck::FINDING_BAD_VALUE) {
            bad << finding.key;
        }
    }
    for (const QString &key : CNetworkSettingsFile::keys()) {
        FUZZ_CHECK(CNetworkSettingsCheck::problem(key, file.value(key)).isEmpty()
                   != bad.contains(key));
    }
}

inline void fuzzNetwork(const QByteArray &bytes)
{
    checkFindings(bytes);
    CNetworkSettingsFile file;
    file.setNetworkSettings(readNetworkSettings(bytes));
    QByteArray saved;
    FUZZ_CHECK(file.saveToBuffer(saved) == NvrnGlobal::FILE_RESULT_SUCCESS);
    const CNetworkSettings again = readNetworkSettings(saved);

    const QStringList keys = CNetworkSettingsFile::keys();
    if (std::all_of(keys.begin(), keys.end(),
                    [&file](const QString &key) { return isPlain(file.value(key)); })) {
        FUZZ_CHECK(again == file.networkSettings());
        checkFindingsOfSaved(file, saved);
    } else {
        checkFindings(saved);
    }
}

} // namespace Fuzz
