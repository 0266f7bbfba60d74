#include "commissioning/CStagedTree.h"

#include "commissioning/stage/DeviceArchive.h"
#include "commissioning/stage/StagingArea.h"
#include "commissioning/stage/TreeComparison.h"
#include "commissioning/stage/TreeConstants.h"
#include "storage/Descriptor.h"
#include "storage/FileStorage.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QHash>
#include <QMap>

#include <cerrno>
#include <cstdlib>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CStagedTree)
};

using Take = std::function<bool(const char *bytes, int size)>;

QString shown(const QByteArray &name)
{
    return QFile::decodeName(name);
}

QString cannotBeWritten(const QString &path, const QString &reason)
{
    return Texts::tr("%1 cannot be written: %2").arg(path, reason);
}

QString cannotBeRead(const QString &path, const QString &reason)
{
    return Texts::tr("%1 cannot be read: %2").arg(path, reason);
}

/** Without links; empty, with errno, when nothing is there. */
QByteArray canonical(const QByteArray &name)
{
    char *const resolved = realpath(name.constData(), nullptr);
    const int error = errno;
    QByteArray result(resolved);
    std::free(resolved);
    errno = error;
    return result;
}

QByteArray parentOf(const QByteArray &name)
{
    return name.left(name.lastIndexOf('/') + 1);
}

/**
 * Where @p path is, or would be, without links: what is there, or a new name in a directory that is
 * there. Empty, with errno, on failure.
 */
QByteArray placeOf(const QString &path)
{
    QByteArray name = QFile::encodeName(path);
    while (name.size() > 1 && name.endsWith('/')) {
        name.chop(1);
    }
    if (name.isEmpty() || name.contains('\0')) {
        errno = ENOENT;
        return QByteArray();
    }
    struct stat status = {};
    if (lstat(name.constData(), &status) == 0) {
        return canonical(name);
    }
    const QByteArray parent = parentOf(name);
    const QByteArray directory = canonical(parent.isEmpty() ? QByteArray(".") : parent);
    if (errno != ENOENT && directory.isEmpty()) {
        return QByteArray();
    }
    const QByteArray own = name.mid(parent.size());
    if (directory.isEmpty() || own == "." || own == "..") {
        errno = ENOENT;
        return QByteArray();
    }
    return directory.endsWith('/') ? directory + own : directory + '/' + own;
}

int setTime(int directory, const QByteArray &name)
{
    const timespec times[2] = {{TreeTime, 0}, {TreeTime, 0}};
    return utimensat(directory, name.constData(), times, AT_SYMLINK_NOFOLLOW);
}

/** Carries out one plan. */
class TreeMaker
{
public:
    TreeMaker(const CStagingPlan &plan, const CStagedTree::Progress &progress)
        : m_plan(plan), m_progress(progress)
    {
    }

    bool make(const CStagedTree::STarget &target)
    {
        return findRoot(target) && findArchive(target) && measureAll(target) && makeTree()
            && makeArchive() && step(0) && putInPlace();
    }

    CDeviceManifest manifest() const { return m_manifest; }
    QString errorText() const { return m_errorText; }
    bool isCancelled() const { return m_isCancelled; }

private:
    bool fail(const QString &text)
    {
        m_errorText = text;
        return false;
    }

    bool step(qint64 bytes)
    {
        m_done += bytes;
        m_isCancelled = m_progress && !m_progress(qMin(m_done, m_total), m_total);
        return !m_isCancelled || fail(Texts::tr("The operation was cancelled."));
    }

    bool findRoot(const CStagedTree::STarget &target)
    {
        if (target.root.isEmpty()) {
            return true;
        }
        m_root = placeOf(target.root);
        if (m_root.isEmpty()) {
            return fail(cannotBeWritten(target.root, qt_error_string(errno)));
        }
        const Descriptor root(open(m_root.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!root.isOpen()) {
            return errno == ENOENT || fail(cannotBeWritten(target.root, qt_error_string(errno)));
        }
        return isEmpty(root.get())
            || (target.mayReplaceRoot ? isReplaceable(root.get(), target.root)
                                      : failNotEmpty(target.root));
    }

    bool failNotEmpty(const QString &root)
    {
        return fail(Texts::tr("%1 already exists and is not empty.").arg(root));
    }

    static bool isEmpty(int root)
    {
        DIR *const directory = fdopendir(openat(root, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (directory == nullptr) {
            return false;
        }
        bool result = true;
        while (const dirent *const entry = readdir(directory)) {
            result =
                result && (qstrcmp(entry->d_name, ".") == 0 || qstrcmp(entry->d_name, "..") == 0);
        }
        closedir(directory);
        return result;
    }

    /** What is not ours would be lost. */
    bool isReplaceable(int root, const QString &path)
    {
        CDeviceManifest manifest;
        QString reason;
        if (!readTreeManifest(root, manifest, reason)) {
            return fail(
                Texts::tr("%1 is not a device tree that can be replaced: %2").arg(path, reason));
        }
        TreeComparison comparison(manifest, {});
        compareTree(root, false, comparison);
        for (const CStagedTree::SDifference &difference : comparison.differences(true)) {
            if (difference.kind != CStagedTree::SDifference::MISSING) {
                return fail(
                    Texts::tr("%1 contains more than a device tree and cannot be replaced: %2")
                        .arg(path, difference.message));
            }
        }
        m_isReplacing = true;
        return true;
    }

    bool findArchive(const CStagedTree::STarget &target)
    {
        if (target.archive.isEmpty()) {
            return true;
        }
        m_archive = placeOf(target.archive);
        if (m_archive.isEmpty()) {
            return fail(cannotBeWritten(target.archive, qt_error_string(errno)));
        }
        struct stat status = {};
        if (stat(m_archive.constData(), &status) == 0 && !S_ISREG(status.st_mode)) {
            return fail(cannotBeWritten(target.archive,
                                        S_ISDIR(status.st_mode)
                                            ? qt_error_string(EISDIR)
                                            : Texts::tr("This is not a regular file.")));
        }
        if (!m_root.isEmpty() && (m_archive + '/').startsWith(m_root + '/')) {
            return fail(cannotBeWritten(target.archive,
                                        Texts::tr("The archive would be inside the tree.")));
        }
        for (const CStagingPlan::SFile &file : m_plan.files()) {
            if (file.source == m_archive) {
                return fail(
                    cannotBeWritten(target.archive, Texts::tr("The file belongs to the project.")));
            }
        }
        return true;
    }

    bool measureAll(const CStagedTree::STarget &target)
    {
        const int passes = 1 + (target.root.isEmpty() ? 0 : 1) + (target.archive.isEmpty() ? 0 : 1);
        m_total = m_plan.totalSize() * passes;
        QList<CDeviceManifest::SEntry> entries;
        for (const CStagingPlan::SFile &file : m_plan.files()) {
            CDeviceManifest::SEntry entry = {file.devicePath, file.projectPath, 0, QByteArray()};
            QCryptographicHash hash(QCryptographicHash::Sha256);
            const bool isRead = read(file, [&](const char *bytes, int size) {
                hash.addData(bytes, size);
                entry.size += size;
                return step(size);
            });
            if (!isRead) {
                return false;
            }
            entry.sha256 = hash.result().toHex();
            entries.append(entry);
            m_sums.insert(entry.devicePath, entry);
        }
        m_manifest.setDirectories(m_plan.directories());
        m_manifest.setEntries(entries);
        m_json = m_manifest.toJson();
        return m_json.size() <= CDeviceManifest::maximumSize()
            || fail(cannotBeWritten(CDeviceManifest::fileName(),
                                    FileStorage::tooLarge(CDeviceManifest::maximumSize())));
    }

    bool read(const CStagingPlan::SFile &file, const Take &take)
    {
        if (!file.content.isNull()) {
            return take(file.content.constData(), file.content.size());
        }
        const Descriptor source(open(file.source.constData(),
                                     O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW));
        struct stat status = {};
        if (!source.isOpen() || fstat(source.get(), &status) != 0) {
            return fail(cannotBeRead(file.projectPath, qt_error_string(errno)));
        }
        if (!S_ISREG(status.st_mode)) {
            return fail(cannotBeRead(file.projectPath, Texts::tr("This is not a regular file.")));
        }
        QByteArray block(BlockSize, Qt::Uninitialized);
        for (;;) {
            const ssize_t size =
                ::read(source.get(), block.data(), static_cast<size_t>(block.size()));
            if (size < 0 && errno != EINTR) {
                return fail(cannotBeRead(file.projectPath, qt_error_string(errno)));
            }
            if (size == 0) {
                return true;
            }
            if (size > 0 && !take(block.constData(), static_cast<int>(size))) {
                return false;
            }
        }
    }

    /** Reads a file once more; it must be as it was measured. */
    bool copy(const CStagingPlan::SFile &file, const Take &take)
    {
        const CDeviceManifest::SEntry entry = m_sums.value(file.devicePath);
        QCryptographicHash hash(QCryptographicHash::Sha256);
        qint64 done = 0;
        bool isLonger = false;
        const bool isRead = read(file, [&](const char *bytes, int size) {
            hash.addData(bytes, size);
            done += size;
            isLonger = done > entry.size;
            return !isLonger && take(bytes, size) && step(size);
        });
        if (!isRead && !isLonger) {
            return false;
        }
        return (done == entry.size && hash.result().toHex() == entry.sha256)
            || fail(Texts::tr("%1 changed while it was copied.").arg(file.projectPath));
    }

    bool makeTree()
    {
        if (m_root.isEmpty()) {
            return true;
        }
        m_tree = std::make_unique<StagingArea>(parentOf(m_root), StagingArea::DIRECTORY);
        if (!m_tree->isOpen()) {
            return failTree(errno);
        }
        for (const QString &directory : m_manifest.directories()) {
            const QByteArray name = directory.toUtf8();
            // The umask may have taken something.
            if (mkdirat(m_tree->get(), name.constData(), DirectoryMode) != 0
                || fchmodat(m_tree->get(), name.constData(), DirectoryMode, 0) != 0) {
                return failTree(errno);
            }
        }
        for (const CStagingPlan::SFile &file : m_plan.files()) {
            const auto source = [&](const Take &take) { return copy(file, take); };
            if (!makeFile(file.devicePath.toUtf8(), source)) {
                return false;
            }
        }
        const auto json = [&](const Take &take) { return take(m_json.constData(), m_json.size()); };
        return makeFile(CDeviceManifest::fileName().toUtf8(), json) && finishTree();
    }

    bool failTree(int error)
    {
        return fail(cannotBeWritten(shown(m_root), qt_error_string(error)));
    }

    bool makeFile(const QByteArray &name, const std::function<bool(const Take &)> &source)
    {
        Descriptor file(openat(m_tree->get(), name.constData(),
                               O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, FileMode));
        if (!file.isOpen()) {
            return failTree(errno);
        }
        const bool isCopied = source([&](const char *bytes, int size) {
            return writeAll(file.get(), bytes, size) == 0 || failTree(errno);
        });
        if (!isCopied) {
            return false;
        }
        return (fchmod(file.get(), FileMode) == 0 && file.close() == 0
                && setTime(m_tree->get(), name) == 0)
            || failTree(errno);
    }

    /** Everything must be on the disk before the tree gets its name. */
    bool finishTree()
    {
        const QStringList directories = m_manifest.directories();
        for (auto directory = directories.crbegin(); directory != directories.crend();
             ++directory) {
            if (setTime(m_tree->get(), directory->toUtf8()) != 0) {
                return failTree(errno);
            }
        }
        // All at once: one by one takes minutes for thousands of files.
        return (fchmod(m_tree->get(), DirectoryMode) == 0 && setTime(m_tree->get(), ".") == 0
                && syncfs(m_tree->get()) == 0)
            || failTree(errno);
    }

    bool makeArchive()
    {
        if (m_archive.isEmpty()) {
            return true;
        }
        m_packed = std::make_unique<StagingArea>(parentOf(m_archive), StagingArea::FILE);
        if (!m_packed->isOpen()) {
            return failArchive(qt_error_string(errno));
        }
        // Null stands for a directory.
        QMap<QString, const CStagingPlan::SFile *> all;
        for (const QString &directory : m_manifest.directories()) {
            all.insert(directory, nullptr);
        }
        const QList<CStagingPlan::SFile> files = m_plan.files();
        for (const CStagingPlan::SFile &file : files) {
            all.insert(file.devicePath, &file);
        }
        CStagingPlan::SFile manifest;
        manifest.content = m_json;
        all.insert(CDeviceManifest::fileName(), &manifest);

        ArchiveWriter writer(m_packed->get());
        for (auto it = all.constBegin(); it != all.constEnd(); ++it) {
            const QByteArray name = it.key().toUtf8();
            const bool isManifest = it.value() == &manifest;
            if (it.value() == nullptr
                    ? !writer.addDirectory(name)
                    : !writer.addFile(name,
                                      isManifest ? m_json.size() : m_sums.value(it.key()).size)) {
                return failArchive(writer.errorText());
            }
            const Take take = [&](const char *bytes, int size) {
                return writer.write(bytes, size) || failArchive(writer.errorText());
            };
            if (it.value() != nullptr
                && !(isManifest ? read(manifest, take) : copy(*it.value(), take))) {
                return false;
            }
        }
        if (!writer.finish()) {
            return failArchive(writer.errorText());
        }
        return (fchmod(m_packed->get(), FileMode) == 0 && syncAll(m_packed->get()) == 0)
            || failArchive(qt_error_string(errno));
    }

    bool failArchive(const QString &reason)
    {
        return fail(cannotBeWritten(shown(m_archive), reason));
    }

    bool putInPlace()
    {
        if (m_tree && (m_isReplacing ? m_tree->exchange(m_root) : m_tree->rename(m_root)) != 0) {
            return failTree(errno);
        }
        if (m_packed && m_packed->rename(m_archive) != 0) {
            return failArchive(qt_error_string(errno));
        }
        const bool isSynced = (!m_tree || syncDirectory(parentOf(m_root)) == 0)
            && (!m_packed || syncDirectory(parentOf(m_archive)) == 0);
        return isSynced
            || fail(Texts::tr("%1; all files are in place, but a power failure may undo this")
                        .arg(qt_error_string(errno)));
    }

    const CStagingPlan &m_plan;
    const CStagedTree::Progress m_progress;
    qint64 m_done = 0;
    qint64 m_total = 0;
    bool m_isCancelled = false;
    QString m_errorText;

    /** Places without links; empty for what is not made. */
    QByteArray m_root;
    QByteArray m_archive;
    bool m_isReplacing = false;
    std::unique_ptr<StagingArea> m_tree;
    std::unique_ptr<StagingArea> m_packed;

    CDeviceManifest m_manifest;
    QByteArray m_json;
    QHash<QString, CDeviceManifest::SEntry> m_sums;
};

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
    bool isComplete = true;
    if (isTree) {
        compareTree(opened.get(), true, comparison);
    } else {
        isComplete = compareArchive(opened.get(), comparison);
    }
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
