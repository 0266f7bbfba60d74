#pragma once

#include "commissioning/CConfigurationItems.h"
#include "commissioning/items/ItemFinder.h"

/**
 * The items of a document that is not changed; functions and paths are those of
 * CConfigurationItems.
 */
class ItemReader
{
public:
    using SItem = CConfigurationItems::SItem;

    /** @p file outlives the object. */
    explicit ItemReader(const CDeviceConfigurationFile10 &file);

    QList<SItem> items();
    QStringList entries();
    QList<SItem> items(const QString &path);
    bool contains(const QString &path);
    bool value(const QString &path, QString &value);
    QDomElement element(const QString &path);

    QString errorText() const { return m_errorText; }

protected:
    bool fail(const QString &text);
    bool failWithoutValue(const SItemPlace &place);
    bool failAbsent(const SItemPlace &place);
    /** ItemFinder::find(), with its errorText(). */
    bool find(const QString &path, SItemPlace &place, bool entryMayBeAbsent = false);
    StartOptions options(const SItemPlace &place) const;

private:
    /** Where entries and items are collected; one that is null is not wanted. */
    struct SLists {
        QList<SItem> *items = nullptr;
        QStringList *entries = nullptr;
    };

    QString text(const SItemPlace &place) const;
    void listPlace(const SItemPlace &place, const SLists &lists) const;
    void listNode(const SItemNode &node, const QDomElement &element, const QString &path,
                  const SLists &lists) const;
    void listChildren(const SItemNode &node, const QDomElement &element, const QString &path,
                      const SLists &lists) const;
    void listEntries(const SItemNode &list, const QDomElement &element, const QString &path,
                     const SLists &lists) const;
    void listEntry(const SItemNode &list, const QDomElement &entry, const QString &path,
                   const SLists &lists) const;
    void listOptions(const QDomElement &element, const QString &path, const SLists &lists) const;
    void listAll(const SLists &lists) const;

    const CDeviceConfigurationFile10 &m_file;
    ItemFinder m_finder;
    QString m_errorText;
};
