#pragma once

#include "commissioning/check/Findings.h"
#include "elements/CDeviceElement.h"

#include <QHash>

/** The paths of the entries of all lists of a document. */
class EntryPaths
{
public:
    /** The path of the next entry of @p list with @p key; that of the list for a key too long. */
    QString next(const QString &list, const QString &key);

private:
    QHash<QString, int> m_counts;
};

/** What the checks of one document share. */
struct CheckContext {
    const CDeviceConfigurationFile10 &file;
    Findings findings;
    EntryPaths entryPaths;
    /** What the device says of itself, without lists; set when the walk comes to the device. */
    CDeviceElement device;
};
