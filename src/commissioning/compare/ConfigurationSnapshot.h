#pragma once

#include "commissioning/CConfigurationItems.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

/** The parts of a path as CConfigurationItems documents it. */
struct SItemPath {
    /** "drive" in "drive[2].name", "device" in "device.dictionary.name". */
    QString list;
    /** Without escapes; empty also for what is no entry of a list. */
    QString key;
    /** Which of the entries of that key, from 1; 0 for what is no entry of a list. */
    int number = 0;
    /** Behind the entry: "name", "param.comment"; empty for the entry itself. */
    QString item;

    /** False for a text that has not the form of a path; whether there is such an item is open. */
    static bool parse(const QString &path, SItemPath &parts);

    bool isInList() const { return number > 0; }
    /** The path without the item. */
    QString entryPath() const;
};

/** What readers of a document take for an absent item below @p entry; for most, the empty text. */
QString defaultValue(const SItemPath &entry, const QString &item);
/** What readers make of the text of such an item: directories and numbers have several spellings.
 */
QString readValue(const SItemPath &entry, const QString &item, const QString &text);

/**
 * An entry of a list with all that is below it, or "description" or "device" without their lists.
 * The single files below it, as "param" of a drive, are its parts.
 */
struct SSnapshotEntry {
    SItemPath path;
    /** In the order of the document, with paths below the entry and values as readers take them. */
    QList<CConfigurationItems::SItem> items;

    bool has(const QString &item) const;
    /** Of what is not there, what readers take for it. */
    QString value(const QString &item) const;

    QStringList paths() const;
    /** The items of the entry alone, or of one part; @p part is empty or the name of a part. */
    QStringList itemsOf(const QString &part) const;
    QStringList parts() const;
    /** A part without any text is as good as none. */
    bool hasPart(const QString &part) const;

    int differences(const SSnapshotEntry &other) const;
    bool isSame(const SSnapshotEntry &other) const { return differences(other) == 0; }
    bool isSamePart(const QString &part, const SSnapshotEntry &other) const;
    /** What has a text; of one part, when @p part is not empty. */
    QList<CConfigurationItems::SItem> content(const QString &part = QString()) const;
};

/** All items of a document, sorted to be compared with those of another one. */
class ConfigurationSnapshot
{
public:
    explicit ConfigurationSnapshot(const CDeviceConfigurationFile10 &file);

    SSnapshotEntry description;
    SSnapshotEntry device;

    /** In the order of the document. */
    QVector<SSnapshotEntry> entries(const QString &list) const { return m_lists.value(list); }

    /**
     * For each of @p left the index of its counterpart in @p right, or -1. Entries of one key are
     * matched so that little differs; to swap the sides matches the same ones.
     */
    static QVector<int> match(const QVector<SSnapshotEntry> &left,
                              const QVector<SSnapshotEntry> &right);

    /** Each text of both lists once, in their order. */
    static QStringList unite(const QStringList &left, const QStringList &right);

private:
    QHash<QString, QVector<SSnapshotEntry>> m_lists;
};
