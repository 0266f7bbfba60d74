#pragma once

#include "configfile/ICDeviceConfigurationFile.h"
#include "fuzz/Check.h"
#include "support/SampleConfiguration.h"

#include <QXmlStreamReader>

#include <memory>

namespace Fuzz {

inline std::unique_ptr<ICDeviceConfigurationFile> newConfigurationFile()
{
    return std::unique_ptr<ICDeviceConfigurationFile>(ICDeviceConfigurationFile::instance(nullptr));
}

inline QByteArray savedBytes(ICDeviceConfigurationFile &file)
{
    QByteArray bytes;
    QString error;
    FUZZ_CHECK(static_cast<CXmlAbstractVornFile &>(file).save(bytes, error));
    FUZZ_CHECK(error.isEmpty());
    return bytes;
}

/**
 * Whether another parser than the library's own takes @p bytes for XML. It is stricter with names:
 * none may begin or end in a colon.
 */
inline bool isTakenByOthers(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return !reader.hasError();
}

/** What is saved must be read as the same, and must be saved as the same. */
inline QByteArray checkConfigurationRoundTrip(ICDeviceConfigurationFile &file)
{
    const auto items = ConfigurationItems::read(file);
    QByteArray saved = savedBytes(file);
    FUZZ_CHECK(ConfigurationItems::read(file) == items);

    const auto again = newConfigurationFile();
    FUZZ_CHECK(again->load(saved));
    FUZZ_CHECK(ConfigurationItems::read(*again) == items);
    FUZZ_CHECK(savedBytes(*again) == saved);
    return saved;
}

inline void fuzzConfiguration(const QByteArray &bytes)
{
    const auto file = newConfigurationFile();
    if (!file->load(bytes)) {
        CDeviceElement device;
        FUZZ_CHECK(file->domDocument().isNull());
        FUZZ_CHECK(file->currentFileVersion().isEmpty());
        FUZZ_CHECK(!file->configuration(device) && device.isNull());
        return;
    }
    FUZZ_CHECK(file->currentFileVersion() == file->requiredFileVersion());
    const QByteArray saved = checkConfigurationRoundTrip(*file);
    FUZZ_CHECK(isTakenByOthers(saved) || !isTakenByOthers(bytes));

    CDeviceElement device;
    if (!file->configuration(device)) {
        FUZZ_CHECK(device.isNull());
        return;
    }
    const CDescriptionElement description = file->description();
    FUZZ_CHECK(file->setConfiguration(device));
    FUZZ_CHECK(file->setDescription(description));
    CDeviceElement again;
    FUZZ_CHECK(file->configuration(again));
    FUZZ_CHECK(again == device);
    FUZZ_CHECK(file->description() == description);
    checkConfigurationRoundTrip(*file);
}

} // namespace Fuzz
