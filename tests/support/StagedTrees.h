#pragma once

#include "commissioning/CDeviceManifest.h"
#include "commissioning/CStagedTree.h"
#include "commissioning/CStagingPlan.h"
#include "elements/CFileElement.h"
#include "support/Files.h"
#include "support/Literals.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <unistd.h>

/** Archives made by hand, and how differences are written in tests. */
namespace StagedTrees {

const QString Conf = u"velkor/configurations/STD/conf/"_s;
const QByteArray Large = QByteArray(200000, 'x') + QByteArray(100000, 'y');

inline QByteArray system(const QString &path)
{
    return QFile::encodeName(path);
}

/** "kind path" for each difference. */
inline QStringList told(const CStagedTree &tree)
{
    const QStringList names = {u"missing"_s,    u"surplus"_s,     u"changed"_s, u"wrong-kind"_s,
                               u"unreadable"_s, u"no-manifest"_s, u"broken"_s};
    QStringList result;
    for (const CStagedTree::SDifference &difference : tree.differences()) {
        result << names.at(difference.kind) + u' ' + difference.path;
    }
    return result;
}

/** An entry of an archive that is made by hand. */
struct SEntry {
    QByteArray name;
    QByteArray content;
    mode_t type = S_IFREG;
    QByteArray link;
    qint64 claimedSize = -1;
};

/** An archive as somebody else may make it; an entry that claims more than it has ends it. */
inline QByteArray archiveOf(const QList<SEntry> &entries, bool compressed = true)
{
    QByteArray bytes(1 << 20, Qt::Uninitialized);
    size_t used = 0;
    archive *const written = archive_write_new();
    archive_write_set_format_pax_restricted(written);
    if (compressed) {
        archive_write_add_filter_gzip(written);
    }
    archive_write_open_memory(written, bytes.data(), static_cast<size_t>(bytes.size()), &used);
    for (const SEntry &entry : entries) {
        archive_entry *const header = archive_entry_new();
        archive_entry_set_pathname(header, entry.name.constData());
        archive_entry_set_filetype(header, entry.type);
        archive_entry_set_perm(header, 0644);
        archive_entry_set_size(header,
                               entry.claimedSize < 0 ? entry.content.size() : entry.claimedSize);
        if (entry.type == S_IFLNK) {
            archive_entry_set_symlink(header, entry.link.constData());
        } else if (!entry.link.isEmpty()) {
            archive_entry_set_hardlink(header, entry.link.constData());
        }
        archive_write_header(written, header);
        archive_write_data(written, entry.content.constData(),
                           static_cast<size_t>(entry.content.size()));
        archive_entry_free(header);
        if (entry.claimedSize > entry.content.size()) {
            archive_write_fail(written);
        }
    }
    archive_write_close(written);
    archive_write_free(written);
    bytes.truncate(static_cast<int>(used));
    return bytes;
}

/** What @p tar becomes with gzip. */
inline QByteArray gzipOf(const QByteArray &tar)
{
    QByteArray bytes(tar.size() + (1 << 16), Qt::Uninitialized);
    size_t used = 0;
    archive *const written = archive_write_new();
    archive_write_set_format_raw(written);
    archive_write_add_filter_gzip(written);
    archive_write_open_memory(written, bytes.data(), static_cast<size_t>(bytes.size()), &used);
    archive_entry *const header = archive_entry_new();
    archive_entry_set_filetype(header, S_IFREG);
    archive_write_header(written, header);
    archive_write_data(written, tar.constData(), static_cast<size_t>(tar.size()));
    archive_entry_free(header);
    archive_write_close(written);
    archive_write_free(written);
    bytes.truncate(static_cast<int>(used));
    return bytes;
}

/** Bytes of a block in an archive that is not compressed; each header is one. */
const int TarBlock = 512;

/** Bytes that a file takes in an archive that is not compressed. */
inline int sizeInArchive(const QByteArray &content)
{
    return TarBlock + (content.size() + TarBlock - 1) / TarBlock * TarBlock;
}

/** Writes the sum of a header of tar that was changed by hand, which begins at @p start. */
inline void seal(QByteArray &tar, int start = 0)
{
    const int place = start + 148;
    tar.replace(place, 8, QByteArray(8, ' '));
    int sum = 0;
    for (int i = 0; i < TarBlock; ++i) {
        sum += static_cast<unsigned char>(tar.at(start + i));
    }
    tar.replace(place, 8, QByteArray::number(sum, 8).rightJustified(6, '0') + QByteArray("\0 ", 2));
}

inline QByteArray sumOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

inline QByteArray manifestOf(const QList<CDeviceManifest::SEntry> &entries)
{
    CDeviceManifest manifest;
    manifest.setEntries(entries);
    return manifest.toJson();
}

inline SEntry regular(const QByteArray &name, const QByteArray &content)
{
    return {name, content, S_IFREG, QByteArray(), -1};
}

/** A project with a few files, from which "root" and "out.tar.gz" beside it are made. */
class StagedTreeTest : public QObject
{
protected:
    /** Called before each test. */
    void prepare()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(at(u"project/Line"_s)));
        QVERIFY(QDir().mkpath(at(u"work"_s)));
        QVERIFY(writeProject(u"a.xml"_s, "content of a"));
        QVERIFY(writeProject(u"large"_s, Large));
        QVERIFY(writeProject(u"tiny"_s, "x"));
        // The file's own name is UTF-8 in every locale.
        const QByteArray name = system(at(u"project/Line"_s)) + "/" + u"Ünit-Ж.xml"_s.toUtf8();
        const int fd = open(name.constData(), O_WRONLY | O_CREAT, 0600);
        QCOMPARE(write(fd, "unit", 4), 4);
        QCOMPARE(close(fd), 0);
        QVERIFY(plan().problems().isEmpty());
    }

    QString at(const QString &path) const { return m_directory->filePath(path); }

    QString root() const { return at(u"work/root"_s); }

    QString archive() const { return at(u"work/out.tar.gz"_s); }

    QStringList beside() const { return Files::names(at(u"work"_s)); }

    CStagingPlan plan(const QStringList &names = {u"a.xml"_s, u"large"_s, u"tiny"_s,
                                                  u"Ünit-Ж.xml"_s}) const
    {
        CDeviceElement device;
        device.setName(u"Line"_s);
        device.setConfigurationName(u"STD"_s);
        for (const QString &name : names) {
            CFileElement file;
            file.setFileName(name);
            file.setDevicePath(u'/' + Conf);
            file.setProjectPath(u"Line"_s);
            device.appendAdditionalFile(file);
        }
        return CStagingPlan(device, {"<document/>", QString()}, at(u"project"_s));
    }

    CStagedTree::STarget treeTarget(bool mayReplace = false) const
    {
        return {root(), mayReplace, QString()};
    }

    CStagedTree::STarget archiveTarget() const { return {QString(), false, archive()}; }

    QStringList verified(const QString &path)
    {
        CStagedTree tree;
        return tree.verify(path) ? told(tree) : QStringList{tree.errorText()};
    }

    bool writeProject(const QString &name, const QByteArray &content) const
    {
        return Files::write(at(u"project/Line/"_s + name), content);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

} // namespace StagedTrees
