#pragma once

#include "commissioning/CConfigurationOverview.h"
#include "configfile/ConfigurationShape.h"
#include "configfile/ShapePaths.h"

#include <algorithm>

/** The files of an overview by the description of the document. */
namespace OverviewFiles {

/**
 * The files of which a device has one at most, in the order of the document; null for those that it
 * does not have.
 */
inline QList<CConfigurationOverview::SFile> singleFiles(const CConfigurationOverview &overview)
{
    using SFile = CConfigurationOverview::SFile;
    // As the overview shows them: with the project path that is in the document.
    const QList<SFile> known = {overview.dictionary(), overview.faultTexts(),
                                overview.etherCatMaster()};
    QList<SFile> result;
    for (const auto &row : ConfigurationShape::deviceFiles()) {
        const auto file = std::find_if(known.begin(), known.end(), [&row](const SFile &candidate) {
            return candidate.kind == row.kind;
        });
        result.append(file == known.end()
                          ? SFile{ShapePaths::path(row.kind), row.kind, row.get(overview.device())}
                          : *file);
    }
    return result;
}

} // namespace OverviewFiles
