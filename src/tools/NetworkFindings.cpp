#include "tools/NetworkFindings.h"

#include "storage/MemoryResource.h"

bool readNetworkSettings(const QString &path, EAccess access, CNetworkSettingsFile &settings,
                         QByteArray &content, QString &reason)
{
    if (!readFile(path, access, CNetworkSettingsFile::MaximumSize, content, reason)) {
        return false;
    }
    // They are read from a name only; a pipe cannot be read again under its own.
    const MemoryResource resource(content);
    const bool isRead = settings.open(resource.name()) == NvrnGlobal::FILE_RESULT_SUCCESS;
    reason = settings.errorText();
    return isRead;
}

QString toText(const QString &path, const CNetworkSettingsCheck::SFinding &finding)
{
    QString text = path;
    if (finding.line > 0) {
        text += QLatin1Char(':') + QString::number(finding.line);
    }
    text += QStringLiteral(": ");
    if (!finding.key.isEmpty()) {
        text += finding.key + QStringLiteral(": ");
    }
    return text + finding.message;
}
