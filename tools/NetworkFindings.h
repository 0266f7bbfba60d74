#pragma once

#include "settings/CNetworkSettingsCheck.h"

/** Checks the file @p path. @return false when it cannot be read; nothing has been printed */
bool readFindings(const QString &path, QList<CNetworkSettingsCheck::SFinding> &findings);

/** "path:line: key: message", without what the finding does not have. */
QString toText(const QString &path, const CNetworkSettingsCheck::SFinding &finding);
