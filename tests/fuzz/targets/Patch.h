#pragma once

#include "commissioning/CConfigurationPatch.h"
#include "fuzz/Check.h"
#include "fuzz/targets/Configuration.h"

#include <algorithm>

namespace Fuzz {

/** A document in which patches find something to change. */
inline std::unique_ptr<CDeviceConfigurationFile10> patchedFile()
{
    auto file = std::make_unique<CDeviceConfigurationFile10>(nullptr);
    FUZZ_CHECK(file->createNewDocument());
    file->setMetaData(SampleConfiguration::metaData());
    FUZZ_CHECK(file->setDescription(SampleConfiguration::description()));
    FUZZ_CHECK(file->setConfiguration(SampleConfiguration::device()));
    return file;
}

/** What is read is kept, is told in lines, and is made in a document as a whole or not at all. */
inline void fuzzPatch(const QByteArray &bytes)
{
    CConfigurationPatch patch;
    QString error;
    if (!patch.readJson(bytes, error)) {
        FUZZ_CHECK(!error.isEmpty() && patch.isEmpty());
        return;
    }
    FUZZ_CHECK(error.isEmpty());

    CConfigurationPatch again;
    FUZZ_CHECK(again.readJson(patch.toJson(), error));
    FUZZ_CHECK(again.toJson() == patch.toJson());

    const QStringList lines = patch.describe();
    FUZZ_CHECK(lines.size() >= patch.changes().size());
    for (const QString &line : lines) {
        FUZZ_CHECK(std::none_of(line.begin(), line.end(), [](QChar c) {
            return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line;
        }));
    }

    const auto file = patchedFile();
    const QByteArray before = savedBytes(*file);
    QStringList mismatches;
    const bool isPossible = patch.check(*file, mismatches);
    FUZZ_CHECK(savedBytes(*file) == before);
    FUZZ_CHECK(patch.apply(*file, mismatches) == isPossible);
    FUZZ_CHECK(mismatches.isEmpty() == isPossible);
    if (isPossible) {
        checkConfigurationRoundTrip(*file);
    } else {
        FUZZ_CHECK(savedBytes(*file) == before);
    }
}

} // namespace Fuzz
