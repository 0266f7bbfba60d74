#pragma once

#include "commissioning/CStagedTree.h"

#include <QByteArray>

#include <functional>
#include <vector>

/**
 * Compares what is in a tree or an archive with a manifest. Both readers report what they find, and
 * what they did not report is missing in the end.
 */
class TreeComparison
{
public:
    using EKind = CStagedTree::SDifference::EKind;
    /** @return false to end the comparison */
    using Step = std::function<bool(qint64 done, qint64 total)>;

    enum EExpected { NOTHING, DIRECTORY, FILE };

    TreeComparison(const CDeviceManifest &manifest, const Step &step);

    /** What the manifest tells of a name; a name that is no path is nothing. */
    EExpected expected(const QByteArray &name) const;
    /** The entry of a file that expected() tells. */
    const CDeviceManifest::SEntry &entry(const QByteArray &name) const;

    /** Marks what expected() tells as found. @return false when it was found before */
    bool find(const QByteArray &name);
    void add(EKind kind, const QByteArray &name, const QString &message);
    /** Tells a surplus name as what it is. */
    void addSurplus(const QByteArray &name);
    /** What is not where the manifest tells a directory or a file. */
    void addWrongKind(const QByteArray &name, EExpected should);
    void addChanged(const QByteArray &name);

    /** Counts bytes that were compared. @return false to end the comparison */
    bool step(qint64 bytes);
    bool isCancelled() const { return m_isCancelled; }
    /** Whether there are so many differences that no more are of use. */
    bool isFull() const;

    /** All that was found; what was not found is missing, unless the comparison is not complete. */
    QList<CStagedTree::SDifference> differences(bool isComplete) const;

private:
    struct SNode {
        /** With NUL for each slash, so that what is in a directory follows right behind it. */
        QString key;
        QString path;
        /** Index of the entry; -1 for a directory. */
        int entry = -1;
        bool isFound = false;
    };

    std::vector<SNode>::const_iterator lowerBound(const QString &key) const;

    const QList<CDeviceManifest::SEntry> m_entries;
    const Step m_step;
    std::vector<SNode> m_nodes;
    QList<CStagedTree::SDifference> m_differences;
    qint64 m_done = 0;
    qint64 m_total = 0;
    bool m_isCancelled = false;
};

/**
 * Compares the directory @p root, a descriptor; without @p contents only names and kinds.
 * @return whether it was compared to its end
 */
bool compareTree(int root, bool contents, TreeComparison &comparison);
/** Compares the archive @p fd. @return whether it could be read to its end */
bool compareArchive(int fd, TreeComparison &comparison);

/** Reads the manifest of a tree. @return false with the reason when it is none */
bool readTreeManifest(int root, CDeviceManifest &manifest, QString &errorText);
/** Reads the manifest of an archive. @param isBroken whether the archive itself cannot be read */
bool readArchiveManifest(int fd, CDeviceManifest &manifest, bool &isBroken, QString &errorText);
