#include "tools/NetworkFindings.h"

#include <QFile>
#include <QFileInfo>

bool readFindings(const QString &path, QList<CNetworkSettingsCheck::SFinding> &findings)
{
    QFile file(path);
    // As the library: a pipe might never come to an end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return false;
    }
    findings = CNetworkSettingsCheck::check(content);
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
