#include "commissioning/stage/TreeComparison.h"

#include "commissioning/stage/DeviceArchive.h"
#include "commissioning/stage/TreeConstants.h"
#include "commissioning/Texts.h"
#include "storage/Descriptor.h"
#include "storage/FileStorage.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using StagedTreeTexts::Texts;

const int MostDifferences = 10000;
const QChar Nul(QChar::Null);

QString keyOf(QString path)
{
    return path.replace(QLatin1Char('/'), Nul);
}

QByteArray manifestName()
{
    return CDeviceManifest::fileName().toUtf8();
}

int openIn(int directory, const QByteArray &name, int mode)
{
    return openat(directory, name.constData(),
                  O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | mode);
}

/** Reads on, whatever interrupts it. */
ssize_t readSome(int fd, QByteArray &block)
{
    ssize_t size = 0;
    do {
        size = read(fd, block.data(), static_cast<size_t>(block.size()));
    } while (size < 0 && errno == EINTR);
    return size;
}

/** Lets the differences of a tree be found, directory by directory. */
class TreeWalk
{
public:
    TreeWalk(bool contents, TreeComparison &comparison)
        : m_contents(contents), m_comparison(comparison)
    {
    }

    /** @param name of the directory, empty for the root; takes over its descriptor */
    bool walk(int opened, const QByteArray &name)
    {
        QList<QByteArray> names;
        DIR *const directory = opened < 0 ? nullptr : fdopendir(opened);
        if (directory == nullptr) {
            addUnreadable(name, errno);
            const Descriptor closed(opened);
            return true;
        }
        for (;;) {
            errno = 0;
            const dirent *const entry = readdir(directory);
            if (entry == nullptr) {
                break;
            }
            names.append(entry->d_name);
        }
        if (errno != 0) {
            addUnreadable(name, errno);
        }
        std::sort(names.begin(), names.end());
        bool goesOn = true;
        for (const QByteArray &child : qAsConst(names)) {
            const bool isManifest = name.isEmpty() && child == manifestName();
            if (goesOn && child != "." && child != ".." && !isManifest) {
                goesOn = look(dirfd(directory), child, name.isEmpty() ? child : name + '/' + child);
            }
        }
        closedir(directory);
        return goesOn;
    }

private:
    void addUnreadable(const QByteArray &name, int error)
    {
        m_comparison.add(TreeComparison::EKind::UNREADABLE, name,
                         Texts::tr("%1 cannot be read: %2")
                             .arg(QString::fromUtf8(name), qt_error_string(error)));
    }

    bool look(int parent, const QByteArray &child, const QByteArray &name)
    {
        const TreeComparison::EExpected expected = m_comparison.expected(name);
        if (expected == TreeComparison::NOTHING) {
            m_comparison.addSurplus(name);
            return !m_comparison.isFull();
        }
        m_comparison.find(name);
        struct stat status = {};
        if (fstatat(parent, child.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            addUnreadable(name, errno);
            return true;
        }
        const bool isDirectory = expected == TreeComparison::DIRECTORY;
        if (isDirectory ? !S_ISDIR(status.st_mode) : !S_ISREG(status.st_mode)) {
            m_comparison.addWrongKind(name, expected);
            return true;
        }
        if (!isDirectory && !m_contents) {
            return true;
        }
        if (isDirectory) {
            return walk(openIn(parent, child, O_DIRECTORY), name);
        }
        const CDeviceManifest::SEntry &entry = m_comparison.entry(name);
        if (status.st_size != entry.size) {
            m_comparison.addChanged(name);
            return m_comparison.step(entry.size);
        }
        return compare(Descriptor(openIn(parent, child, 0)), name, entry.sha256);
    }

    bool compare(const Descriptor &file, const QByteArray &name, const QByteArray &sha256)
    {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        for (;;) {
            const ssize_t size = readSome(file.get(), m_block);
            if (size < 0) {
                addUnreadable(name, errno);
                return true;
            }
            if (size == 0) {
                break;
            }
            hash.addData(m_block.constData(), static_cast<int>(size));
            if (!m_comparison.step(size)) {
                return false;
            }
        }
        if (hash.result().toHex() != sha256) {
            m_comparison.addChanged(name);
        }
        return true;
    }

    const bool m_contents;
    TreeComparison &m_comparison;
    QByteArray m_block{BlockSize, Qt::Uninitialized};
};

/** Lets the differences of an archive be found, entry by entry. */
class ArchiveWalk
{
public:
    ArchiveWalk(int fd, TreeComparison &comparison) : m_reader(fd), m_comparison(comparison) { }

    bool walk()
    {
        for (;;) {
            switch (m_reader.next()) {
            case ArchiveReader::END:
                return true;
            case ArchiveReader::BROKEN:
                addBroken(m_reader.errorText());
                return false;
            case ArchiveReader::ENTRY:
                break;
            }
            if (!look()) {
                return false;
            }
            if (m_comparison.isFull()) {
                addBroken(Texts::tr("There are too many differences."));
                return false;
            }
        }
    }

private:
    void addBroken(const QString &reason)
    {
        m_comparison.add(TreeComparison::EKind::BROKEN, QByteArray(),
                         Texts::tr("The archive is damaged: %1").arg(reason));
    }

    bool look()
    {
        const QByteArray name = m_reader.name();
        const TreeComparison::EExpected expected = m_comparison.expected(name);
        if (name == manifestName() && !m_hasManifest) {
            m_hasManifest = true;
            return true;
        }
        if (expected == TreeComparison::NOTHING) {
            m_comparison.addSurplus(name);
            return true;
        }
        if (!m_comparison.find(name)) {
            m_comparison.add(
                TreeComparison::EKind::SURPLUS, name,
                Texts::tr("%1 occurs more than once in the archive.").arg(QString::fromUtf8(name)));
            return true;
        }
        const bool isDirectory = expected == TreeComparison::DIRECTORY;
        if (m_reader.kind() != (isDirectory ? ArchiveReader::DIRECTORY : ArchiveReader::FILE)) {
            m_comparison.addWrongKind(name, expected);
            return true;
        }
        return isDirectory || compare(name);
    }

    bool compare(const QByteArray &name)
    {
        const CDeviceManifest::SEntry &entry = m_comparison.entry(name);
        if (m_reader.size() != entry.size) {
            m_comparison.addChanged(name);
            return m_comparison.step(entry.size);
        }
        QCryptographicHash hash(QCryptographicHash::Sha256);
        const bool isRead = m_reader.read([&](const char *bytes, int size) {
            hash.addData(bytes, size);
            return m_comparison.step(size);
        });
        if (!isRead) {
            if (!m_comparison.isCancelled()) {
                addBroken(m_reader.errorText());
            }
            return false;
        }
        if (hash.result().toHex() != entry.sha256) {
            m_comparison.addChanged(name);
        }
        return true;
    }

    ArchiveReader m_reader;
    TreeComparison &m_comparison;
    bool m_hasManifest = false;
};

QString noManifest(const QString &reason)
{
    return Texts::tr("%1 cannot be read: %2").arg(CDeviceManifest::fileName(), reason);
}

} // namespace

TreeComparison::TreeComparison(const CDeviceManifest &manifest, const Step &step)
    : m_entries(manifest.entries()), m_step(step)
{
    for (const QString &directory : manifest.directories()) {
        m_nodes.push_back({keyOf(directory), directory, -1, false});
    }
    for (int i = 0; i < m_entries.size(); ++i) {
        const QString path = m_entries.at(i).devicePath;
        m_nodes.push_back({keyOf(path), path, i, false});
        m_total += qMin(m_entries.at(i).size, std::numeric_limits<qint64>::max() - m_total);
    }
    std::sort(m_nodes.begin(), m_nodes.end(),
              [](const SNode &a, const SNode &b) { return a.key < b.key; });
}

std::vector<TreeComparison::SNode>::const_iterator
TreeComparison::lowerBound(const QString &key) const
{
    return std::lower_bound(m_nodes.begin(), m_nodes.end(), key,
                            [](const SNode &node, const QString &k) { return node.key < k; });
}

TreeComparison::EExpected TreeComparison::expected(const QByteArray &name) const
{
    const QString path = QString::fromUtf8(name);
    // A name that is no UTF-8 would be another one here.
    if (path.toUtf8() != name || !CDeviceManifest::isDevicePath(path)) {
        return NOTHING;
    }
    const QString key = keyOf(path);
    const auto node = lowerBound(key);
    if (node != m_nodes.end() && node->key == key) {
        return node->entry < 0 ? DIRECTORY : FILE;
    }
    return node != m_nodes.end() && node->key.startsWith(key + Nul) ? DIRECTORY : NOTHING;
}

const CDeviceManifest::SEntry &TreeComparison::entry(const QByteArray &name) const
{
    return m_entries.at(lowerBound(keyOf(QString::fromUtf8(name)))->entry);
}

bool TreeComparison::find(const QByteArray &name)
{
    const QString key = keyOf(QString::fromUtf8(name));
    const auto found = lowerBound(key);
    // A directory that the manifest tells only by what is in it.
    if (found == m_nodes.end() || found->key != key) {
        return true;
    }
    SNode &node = m_nodes[static_cast<size_t>(found - m_nodes.cbegin())];
    const bool isFirst = !node.isFound;
    node.isFound = true;
    return isFirst;
}

void TreeComparison::add(EKind kind, const QByteArray &name, const QString &message)
{
    m_differences.append({kind, QString::fromUtf8(name), message});
}

void TreeComparison::addSurplus(const QByteArray &name)
{
    const QString path = QString::fromUtf8(name);
    add(EKind::SURPLUS, name,
        CDeviceManifest::isDevicePath(path)
            ? Texts::tr("%1 is not in the manifest.").arg(path)
            : Texts::tr("\"%1\" is not a valid path on a device.").arg(path));
}

void TreeComparison::addWrongKind(const QByteArray &name, EExpected should)
{
    const QString path = QString::fromUtf8(name);
    add(EKind::WRONG_KIND, name,
        should == DIRECTORY ? Texts::tr("%1 is not a directory.").arg(path)
                            : Texts::tr("%1 is not a regular file.").arg(path));
}

void TreeComparison::addChanged(const QByteArray &name)
{
    add(EKind::CHANGED, name, Texts::tr("%1 has changed.").arg(QString::fromUtf8(name)));
}

bool TreeComparison::step(qint64 bytes)
{
    m_done += qMin(bytes, m_total - m_done);
    m_isCancelled = m_isCancelled || (m_step && !m_step(m_done, m_total));
    return !m_isCancelled;
}

bool TreeComparison::isFull() const
{
    return m_differences.size() >= MostDifferences;
}

QList<CStagedTree::SDifference> TreeComparison::differences(bool isComplete) const
{
    QList<CStagedTree::SDifference> result = m_differences;
    for (const SNode &node : m_nodes) {
        if (isComplete && !node.isFound) {
            result.append({EKind::MISSING, node.path, Texts::tr("%1 is missing.").arg(node.path)});
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const CStagedTree::SDifference &a, const CStagedTree::SDifference &b) {
                         return a.path < b.path;
                     });
    return result;
}

bool compareTree(int root, bool contents, TreeComparison &comparison)
{
    // Another one, for it is closed in the end.
    const int opened = openIn(root, ".", O_DIRECTORY);
    return TreeWalk(contents, comparison).walk(opened, QByteArray());
}

bool compareArchive(int fd, TreeComparison &comparison)
{
    if (!ArchiveWalk(fd, comparison).walk()) {
        return false;
    }
    QString errorText;
    const auto step = [&] { return comparison.step(0); };
    if (!isWholeGzip(fd, step, errorText) && !comparison.isCancelled()) {
        comparison.add(TreeComparison::EKind::BROKEN, QByteArray(),
                       Texts::tr("The archive is damaged: %1").arg(errorText));
    }
    return true;
}

bool readTreeManifest(int root, CDeviceManifest &manifest, QString &errorText)
{
    const Descriptor file(openIn(root, manifestName(), 0));
    struct stat status = {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0) {
        errorText = noManifest(qt_error_string(errno));
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        errorText = noManifest(Texts::tr("This is not a regular file."));
        return false;
    }
    if (status.st_size > CDeviceManifest::maximumSize()) {
        errorText = noManifest(FileStorage::tooLarge(CDeviceManifest::maximumSize()));
        return false;
    }
    QByteArray json;
    QByteArray block(BlockSize, Qt::Uninitialized);
    for (;;) {
        const ssize_t size = readSome(file.get(), block);
        if (size < 0) {
            errorText = noManifest(qt_error_string(errno));
            return false;
        }
        if (size == 0 || json.size() > CDeviceManifest::maximumSize()) {
            break;
        }
        json.append(block.constData(), static_cast<int>(size));
    }
    QString reason;
    if (!manifest.readJson(json, reason)) {
        errorText = noManifest(reason);
        return false;
    }
    return true;
}

bool readArchiveManifest(int fd, CDeviceManifest &manifest, bool &isBroken, QString &errorText)
{
    isBroken = false;
    ArchiveReader reader(fd);
    for (;;) {
        const ArchiveReader::EStep step = reader.next();
        if (step == ArchiveReader::BROKEN) {
            isBroken = true;
            errorText = Texts::tr("The archive is damaged: %1").arg(reader.errorText());
            return false;
        }
        if (step == ArchiveReader::END) {
            errorText = Texts::tr("%1 is missing in the archive.").arg(CDeviceManifest::fileName());
            return false;
        }
        if (reader.name() == manifestName()) {
            break;
        }
    }
    if (reader.kind() != ArchiveReader::FILE || reader.size() > CDeviceManifest::maximumSize()) {
        errorText = noManifest(reader.kind() != ArchiveReader::FILE
                                   ? Texts::tr("This is not a regular file.")
                                   : FileStorage::tooLarge(CDeviceManifest::maximumSize()));
        return false;
    }
    QByteArray json;
    const bool isRead = reader.read([&](const char *bytes, int size) {
        json.append(bytes, size);
        return json.size() <= CDeviceManifest::maximumSize();
    });
    if (!isRead) {
        isBroken = true;
        errorText = Texts::tr("The archive is damaged: %1").arg(reader.errorText());
        return false;
    }
    QString reason;
    if (!manifest.readJson(json, reason)) {
        errorText = noManifest(reason);
        return false;
    }
    return true;
}
