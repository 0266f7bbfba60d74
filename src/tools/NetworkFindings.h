#pragma once

#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"
#include "tools/Input.h"

/**
 * Reads the file @p path into @p settings, which do not remember its name, and @p content.
 * @return false when it cannot be read; nothing has been printed, and @p reason says why
 */
bool readNetworkSettings(const QString &path, EAccess access, CNetworkSettingsFile &settings,
                         QByteArray &content, QString &reason);

/** "path:line: key: message", without what the finding does not have. */
QString toText(const QString &path, const CNetworkSettingsCheck::SFinding &finding);
