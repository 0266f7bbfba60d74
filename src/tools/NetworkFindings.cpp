#include "tools/NetworkFindings.h"

#include <QFile>

bool readFindings(const QString &path, CNetworkSettingsFile &settings,
                  QList<CNetworkSettingsCheck::SFinding> &findings)
{
    // First as settings: that refuses endless or oversized input, and reports why.
    QFile file(path);
    if (settings.open(path) != NvrnGlobal::FILE_RESULT_SUCCESS || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    findings = CNetworkSettingsCheck::check(file.readAll());
    return true;
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
