#pragma once

#include "commissioning/CStagedTree.h"
#include "commissioning/stage/StagingArea.h"

#include <QByteArray>
#include <QHash>

#include <functional>
#include <memory>

class ArchiveWriter;

/**
 * Carries out one plan: finds the places, measures every file, makes the tree and the archive
 * beside their places, and puts both in place. Each step returns false with errorText() on failure.
 */
class TreeMaker
{
public:
    TreeMaker(const CStagingPlan &plan, const CStagedTree::Progress &progress);

    bool make(const CStagedTree::STarget &target);

    CDeviceManifest manifest() const { return m_manifest; }
    QString errorText() const { return m_errorText; }
    bool isCancelled() const { return m_isCancelled; }

private:
    /** Takes the next bytes of a file. @return false to end the reading */
    using Take = std::function<bool(const char *bytes, int size)>;
    /** Hands all bytes of a file to the function. @return false when it ended before */
    using Source = std::function<bool(const Take &take)>;

    bool findRoot(const CStagedTree::STarget &target);
    bool isReplaceable(int root, const QString &path);
    bool findArchive(const CStagedTree::STarget &target);

    bool measureAll(const CStagedTree::STarget &target);
    bool read(const CStagingPlan::SFile &file, const Take &take);
    bool copy(const CStagingPlan::SFile &file, const Take &take);

    bool makeTree();
    bool makeDirectories();
    bool makeFiles();
    bool makeFile(const QByteArray &name, const Source &source);
    bool finishTree();

    bool makeArchive();
    bool packAll(ArchiveWriter &writer);
    bool packFile(ArchiveWriter &writer, const QString &name, qint64 size, const Source &source);

    bool putInPlace();

    /** Counts bytes that were read. @return false when the user cancelled */
    bool step(qint64 bytes);
    bool fail(const QString &text);
    bool failNotEmpty(const QString &root);
    bool failTree(int error);
    bool failArchive(const QString &reason);

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
