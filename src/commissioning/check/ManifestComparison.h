#pragma once

#include "commissioning/CDeviceManifest.h"
#include "commissioning/rules/Fault.h"

#include <QHash>

#include <optional>

/**
 * Compares the files of a project with its manifest, if it has one. Staging does not: it is what
 * makes the manifest anew.
 */
class ManifestComparison
{
public:
    /** @return what is wrong with the manifest; it is as if there were none, then */
    std::optional<SFault> read(const QString &projectDirectory);

    /** The file of that path in the project, which is there and can be read. */
    std::optional<SFault> compare(const QString &relativePath) const;

private:
    QString m_directory;
    QHash<QString, CDeviceManifest::SEntry> m_recorded;
};
