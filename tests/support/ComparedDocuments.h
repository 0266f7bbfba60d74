#pragma once

#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"

#include <memory>

/** Documents for the tests that compare, patch and merge. */
namespace ComparedDocuments {

using File = std::unique_ptr<CDeviceConfigurationFile10>;

inline QByteArray example()
{
    return Files::read(Places::source("examples/packaging-line/DeviceConfiguration.3deco"));
}

/** Null when it cannot be loaded. */
inline File load(const QByteArray &content)
{
    auto file = std::make_unique<CDeviceConfigurationFile10>(nullptr);
    return file->load(content) ? std::move(file) : nullptr;
}

/** Empty on failure. */
inline QByteArray saved(CDeviceConfigurationFile10 &file)
{
    QByteArray content;
    QString error;
    return file.save(content, error) ? content : QByteArray();
}

/** @p content with replacements "old|new", of which the old texts must be there; or empty. */
inline QByteArray changed(QByteArray content, const QList<QByteArray> &replacements)
{
    for (const QByteArray &replacement : replacements) {
        const int bar = replacement.indexOf('|');
        const int at = content.indexOf(replacement.left(bar));
        if (bar < 0 || at < 0) {
            return QByteArray();
        }
        content.replace(at, bar, replacement.mid(bar + 1));
    }
    return content;
}

} // namespace ComparedDocuments
