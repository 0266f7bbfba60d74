#include "commissioning/check/ManifestComparison.h"

#include "commissioning/rules/FileRules.h"
#include "commissioning/Texts.h"
#include "storage/FileStorage.h"

#include <QDir>
#include <QFileInfo>

using namespace ConfigurationRules;
using FaultTexts::shown;

namespace {

using ConfigurationCheckTexts::Texts;

SFault invalid(const QString &reason)
{
    return {MANIFEST_INVALID,
            {Texts::tr("The manifest of the project cannot be read: %1").arg(reason),
             CDeviceManifest::fileName(), Texts::tr("a manifest written by staging"),
             Texts::tr("Create the manifest again; the files are not compared with this one.")}};
}

SFault changed(const QString &path, const CDeviceManifest::SEntry &measured,
               const CDeviceManifest::SEntry &recorded)
{
    const auto inBytes = [](qint64 size) {
        return Texts::tr("%1 bytes").arg(QString::number(size));
    };
    const auto sum = [](const QByteArray &sha256) {
        return QStringLiteral("SHA-256 ") + QString::fromLatin1(sha256);
    };
    const bool isSize = measured.size != recorded.size;
    return {PROJECT_FILE_CHANGED,
            {Texts::tr("The file '%1' differs from the manifest.").arg(shown(path)),
             isSize ? inBytes(measured.size) : sum(measured.sha256),
             isSize ? inBytes(recorded.size) : sum(recorded.sha256),
             Texts::tr("Restore the file, or create the manifest again.")}};
}

} // namespace

std::optional<SFault> ManifestComparison::read(const QString &projectDirectory)
{
    m_directory = QDir(projectDirectory).absolutePath();
    const QFileInfo info(QDir(m_directory).filePath(CDeviceManifest::fileName()));
    if (!info.exists() && !info.isSymLink()) {
        return {};
    }
    QByteArray content;
    const FileStorage::SResult read =
        FileStorage::read(info.filePath(), content, CDeviceManifest::maximumSize());
    QString errorText = read.reason;
    CDeviceManifest manifest;
    if (!read || !manifest.readJson(content, errorText)) {
        return invalid(errorText);
    }
    for (const CDeviceManifest::SEntry &entry : manifest.entries()) {
        if (!entry.projectPath.isEmpty()) {
            m_recorded.insert(entry.projectPath, entry);
        }
    }
    return {};
}

std::optional<SFault> ManifestComparison::compare(const QString &relativePath) const
{
    const auto recorded = m_recorded.constFind(relativePath);
    if (recorded == m_recorded.cend()) {
        return {};
    }
    const QString path = QDir(m_directory).filePath(relativePath);
    CDeviceManifest::SEntry measured;
    measured.size = QFileInfo(path).size();
    // A file of another size is changed, whatever it holds: it need not be read.
    if (measured.size == recorded->size) {
        QString reason;
        if (!CDeviceManifest::measure(path, measured.size, measured.sha256, reason)) {
            return FileRules::unreadable(relativePath, reason);
        }
    }
    const bool isSame = measured.size == recorded->size && measured.sha256 == recorded->sha256;
    return isSame ? std::optional<SFault>() : changed(relativePath, measured, *recorded);
}
