#include "commissioning/CStagedTree.h"

#include "commissioning/stage/TreeComparison.h"
#include "commissioning/stage/TreeMaker.h"
#include "commissioning/Texts.h"
#include "storage/Descriptor.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

using StagedTreeTexts::Texts;

} // namespace

void CStagedTree::setProgress(const Progress &progress)
{
    m_progress = progress;
}

bool CStagedTree::write(const CStagingPlan &plan, const STarget &target)
{
    m_differences.clear();
    m_manifest = CDeviceManifest();
    m_wasCancelled = false;
    m_errorText.clear();
    if (!plan.problems().isEmpty() || plan.files().isEmpty()) {
        m_errorText = plan.problems().isEmpty() ? Texts::tr("The plan contains no files.")
                                                : plan.problems().constFirst().message;
        return false;
    }
    if (target.root.isEmpty() && target.archive.isEmpty()) {
        m_errorText = Texts::tr("Neither a directory nor an archive is given.");
        return false;
    }
    TreeMaker maker(plan, m_progress);
    const bool isMade = maker.make(target);
    if (isMade) {
        m_manifest = maker.manifest();
    }
    m_errorText = maker.errorText();
    m_wasCancelled = maker.isCancelled();
    return isMade;
}

bool CStagedTree::verify(const QString &path)
{
    m_differences.clear();
    m_manifest = CDeviceManifest();
    m_wasCancelled = false;
    m_errorText.clear();

    const QByteArray name = QFile::encodeName(path);
    const Descriptor opened(
        name.contains('\0') ? -1
                            : open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status = {};
    if (!opened.isOpen() || fstat(opened.get(), &status) != 0) {
        m_errorText = qt_error_string(errno);
        return false;
    }
    const bool isTree = S_ISDIR(status.st_mode);
    if (!isTree && !S_ISREG(status.st_mode)) {
        m_errorText = Texts::tr("This is neither a directory nor a regular file.");
        return false;
    }
    QString reason;
    bool isBroken = false;
    if (isTree ? !readTreeManifest(opened.get(), m_manifest, reason)
               : !readArchiveManifest(opened.get(), m_manifest, isBroken, reason)) {
        m_differences = {{isBroken ? SDifference::BROKEN : SDifference::NO_MANIFEST,
                          isBroken ? QString() : CDeviceManifest::fileName(), reason}};
        return true;
    }
    TreeComparison comparison(m_manifest, m_progress);
    const bool isComplete = isTree ? compareTree(opened.get(), true, comparison)
                                   : compareArchive(opened.get(), comparison);
    m_wasCancelled = comparison.isCancelled();
    if (m_wasCancelled) {
        m_errorText = Texts::tr("The operation was cancelled.");
        return false;
    }
    m_differences = comparison.differences(isComplete);
    return true;
}

QList<CStagedTree::SDifference> CStagedTree::differences() const
{
    return m_differences;
}

CDeviceManifest CStagedTree::manifest() const
{
    return m_manifest;
}

QString CStagedTree::errorText() const
{
    return m_errorText;
}

bool CStagedTree::wasCancelled() const
{
    return m_wasCancelled;
}
