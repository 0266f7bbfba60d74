#pragma once

#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"

/**
 * Reads the file @p path into @p settings and checks it.
 * @return false when it cannot be read; nothing has been printed, and the settings contain the
 * reason
 */
bool readFindings(const QString &path, CNetworkSettingsFile &settings,
                  QList<CNetworkSettingsCheck::SFinding> &findings);

/** "path:line: key: message", without what the finding does not have. */
QString toText(const QString &path, const CNetworkSettingsCheck::SFinding &finding);
