#include "commissioning/stage/TreeMaker.h"

#include "commissioning/stage/DeviceArchive.h"
#include "commissioning/stage/TreeComparison.h"
#include "commissioning/stage/TreeConstants.h"
#include "commissioning/Texts.h"
#include "storage/CanonicalName.h"
#include "storage/Descriptor.h"
#include "storage/FileStorage.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using StagedTreeTexts::Texts;

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
        return canonicalName(name);
    }
    const QByteArray parent = parentOf(name);
    const QByteArray directory = canonicalName(parent.isEmpty() ? QByteArray(".") : parent);
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

/** Whether the directory has no entries; false when they cannot be read. */
bool isEmpty(int root)
{
    DIR *const directory = fdopendir(openat(root, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory == nullptr) {
        return false;
    }
    bool result = true;
    while (const dirent *const entry = readdir(directory)) {
        result = result && (qstrcmp(entry->d_name, ".") == 0 || qstrcmp(entry->d_name, "..") == 0);
    }
    closedir(directory);
    return result;
}

} // namespace

TreeMaker::TreeMaker(const CStagingPlan &plan, const CStagedTree::Progress &progress)
    : m_plan(plan), m_progress(progress)
{
}

bool TreeMaker::make(const CStagedTree::STarget &target)
{
    return findRoot(target) && findArchive(target) && measureAll(target) && makeTree()
        && makeArchive() && step(0) && putInPlace();
}

bool TreeMaker::findRoot(const CStagedTree::STarget &target)
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

/** Notes that the tree in @p root is replaced; what is not in its manifest would be lost. */
bool TreeMaker::isReplaceable(int root, const QString &path)
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
            return fail(Texts::tr("%1 contains more than a device tree and cannot be replaced: %2")
                            .arg(path, difference.message));
        }
    }
    m_isReplacing = true;
    return true;
}

bool TreeMaker::findArchive(const CStagedTree::STarget &target)
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
        return fail(
            cannotBeWritten(target.archive, Texts::tr("The archive would be inside the tree.")));
    }
    for (const CStagingPlan::SFile &file : m_plan.files()) {
        if (file.source == m_archive) {
            return fail(
                cannotBeWritten(target.archive, Texts::tr("The file belongs to the project.")));
        }
    }
    return true;
}

bool TreeMaker::measureAll(const CStagedTree::STarget &target)
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

bool TreeMaker::read(const CStagingPlan::SFile &file, const Take &take)
{
    if (!file.content.isNull()) {
        return take(file.content.constData(), file.content.size());
    }
    const Descriptor source(
        open(file.source.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW));
    struct stat status = {};
    if (!source.isOpen() || fstat(source.get(), &status) != 0) {
        return fail(cannotBeRead(file.projectPath, qt_error_string(errno)));
    }
    if (!S_ISREG(status.st_mode)) {
        return fail(cannotBeRead(file.projectPath, Texts::tr("This is not a regular file.")));
    }
    QByteArray block(BlockSize, Qt::Uninitialized);
    for (;;) {
        const ssize_t size = ::read(source.get(), block.data(), static_cast<size_t>(block.size()));
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
bool TreeMaker::copy(const CStagingPlan::SFile &file, const Take &take)
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

bool TreeMaker::makeTree()
{
    if (m_root.isEmpty()) {
        return true;
    }
    m_tree = std::make_unique<StagingArea>(parentOf(m_root), StagingArea::DIRECTORY);
    if (!m_tree->isOpen()) {
        return failTree(errno);
    }
    const auto json = [&](const Take &take) { return take(m_json.constData(), m_json.size()); };
    return makeDirectories() && makeFiles() && makeFile(CDeviceManifest::fileName().toUtf8(), json)
        && finishTree();
}

bool TreeMaker::makeDirectories()
{
    for (const QString &directory : m_manifest.directories()) {
        const QByteArray name = directory.toUtf8();
        // The umask may have taken something.
        if (mkdirat(m_tree->get(), name.constData(), DirectoryMode) != 0
            || fchmodat(m_tree->get(), name.constData(), DirectoryMode, 0) != 0) {
            return failTree(errno);
        }
    }
    return true;
}

bool TreeMaker::makeFiles()
{
    for (const CStagingPlan::SFile &file : m_plan.files()) {
        const auto source = [&](const Take &take) { return copy(file, take); };
        if (!makeFile(file.devicePath.toUtf8(), source)) {
            return false;
        }
    }
    return true;
}

bool TreeMaker::makeFile(const QByteArray &name, const Source &source)
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
bool TreeMaker::finishTree()
{
    const QStringList directories = m_manifest.directories();
    for (auto directory = directories.crbegin(); directory != directories.crend(); ++directory) {
        if (setTime(m_tree->get(), directory->toUtf8()) != 0) {
            return failTree(errno);
        }
    }
    // All at once: one by one takes minutes for thousands of files.
    return (fchmod(m_tree->get(), DirectoryMode) == 0 && setTime(m_tree->get(), ".") == 0
            && syncfs(m_tree->get()) == 0)
        || failTree(errno);
}

bool TreeMaker::makeArchive()
{
    if (m_archive.isEmpty()) {
        return true;
    }
    m_packed = std::make_unique<StagingArea>(parentOf(m_archive), StagingArea::FILE);
    if (!m_packed->isOpen()) {
        return failArchive(qt_error_string(errno));
    }
    ArchiveWriter writer(m_packed->get());
    if (!packAll(writer)) {
        return false;
    }
    if (!writer.finish()) {
        return failArchive(writer.errorText());
    }
    return (fchmod(m_packed->get(), FileMode) == 0 && syncAll(m_packed->get()) == 0)
        || failArchive(qt_error_string(errno));
}

/** Directories, files and the manifest, in the order of their names. */
bool TreeMaker::packAll(ArchiveWriter &writer)
{
    QMap<QString, std::function<bool()>> all;
    for (const QString &directory : m_manifest.directories()) {
        all.insert(directory, [this, &writer, directory]() {
            return writer.addDirectory(directory.toUtf8()) || failArchive(writer.errorText());
        });
    }
    for (const CStagingPlan::SFile &file : m_plan.files()) {
        all.insert(file.devicePath, [this, &writer, file]() {
            const qint64 size = m_sums.value(file.devicePath).size;
            return packFile(writer, file.devicePath, size,
                            [&](const Take &take) { return copy(file, take); });
        });
    }
    all.insert(CDeviceManifest::fileName(), [this, &writer]() {
        return packFile(writer, CDeviceManifest::fileName(), m_json.size(),
                        [&](const Take &take) { return take(m_json.constData(), m_json.size()); });
    });
    return std::all_of(all.cbegin(), all.cend(), [](const auto &pack) { return pack(); });
}

bool TreeMaker::packFile(ArchiveWriter &writer, const QString &name, qint64 size,
                         const Source &source)
{
    if (!writer.addFile(name.toUtf8(), size)) {
        return failArchive(writer.errorText());
    }
    return source([&](const char *bytes, int count) {
        return writer.write(bytes, count) || failArchive(writer.errorText());
    });
}

bool TreeMaker::putInPlace()
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

bool TreeMaker::step(qint64 bytes)
{
    m_done += bytes;
    m_isCancelled = m_progress && !m_progress(qMin(m_done, m_total), m_total);
    return !m_isCancelled || fail(Texts::tr("The operation was cancelled."));
}

bool TreeMaker::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

bool TreeMaker::failNotEmpty(const QString &root)
{
    return fail(Texts::tr("%1 already exists and is not empty.").arg(root));
}

bool TreeMaker::failTree(int error)
{
    return fail(cannotBeWritten(shown(m_root), qt_error_string(error)));
}

bool TreeMaker::failArchive(const QString &reason)
{
    return fail(cannotBeWritten(shown(m_archive), reason));
}
