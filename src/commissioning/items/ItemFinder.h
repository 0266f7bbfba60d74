#pragma once

#include "commissioning/items/ItemPath.h"
#include "commissioning/items/ItemTree.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "elements/StartOptions.h"

#include <QDomElement>
#include <QStringList>
#include <QVector>

/** What a path names. */
struct SItemPlace {
    const SItemNode *node = nullptr;
    /** The list, when the node is something in one of its entries. */
    const SItemNode *list = nullptr;
    /** As it is written, whatever way it was given. */
    QString path;
    /** That of the list in which the path led to an entry. */
    QString listPath;
    /** An element that is there, and the elements that lead on from it, there or not. */
    QDomElement anchor;
    QStringList tags;
    /** Whether the path ends in a key. */
    bool isEntry = false;
    /** That key, also when its entry is not there. */
    SItemPathStep entry;
    bool isAbsent = false;
    /** Of a start option or its name: its position among all of them. */
    int option = -1;

    QDomElement element() const;
    /** An item is there when its element is, a single file when something is in its element. */
    bool isThere() const;
    /** Whether it is an entry that has nothing but its key. */
    bool isBareEntry() const { return isEntry && option < 0 && node->isListOfNames(); }
    bool hasValue() const { return node->isItem() || option >= 0 || isBareEntry(); }
};

/** Finds what paths name, and the entries of lists as readers of the document take them. */
class ItemFinder
{
public:
    /** @p file outlives the object. */
    explicit ItemFinder(const CDeviceConfigurationFile10 &file);

    /**
     * Finds what @p path names. @p entryMayBeAbsent lets the path of an entry that is not there
     * through, when its list could be there: the place is then that of the list.
     */
    bool find(const QString &path, SItemPlace &place, bool entryMayBeAbsent = false);
    /** Why find() returned false, for the user. */
    QString errorText() const { return m_errorText; }

    /** In the order of the document. */
    QVector<QDomElement> entries(const SItemNode &list, const QDomElement &element) const;
    QString key(const SItemNode &list, const QDomElement &entry) const;
    /** The start options in the text of @p element. */
    StartOptions options(const QDomElement &element) const;
    /** Whether @p node can be in @p element, that of the node around it. */
    static bool canHave(const QDomElement &element, const SItemNode &node);

    /** Whether readers of the document take @p element for an entry of @p list. */
    static bool isEntry(const CDeviceConfigurationFile10 &file,
                        const ConfigurationShape::SNode &list, const QDomElement &element);
    /** The key that an entry has in paths when @p text is what the document contains as its key. */
    static QString key(const ConfigurationShape::SNode &list, const QString &text);

private:
    bool step(const SItemPathStep &given, bool entryMayBeAbsent, SItemPlace &place);
    bool enterList(const SItemPathStep &given, bool entryMayBeAbsent, SItemPlace &place);
    bool findEntry(const SItemPathStep &wanted, SItemPlace &place) const;
    bool findOption(const SItemPathStep &wanted, SItemPlace &place) const;
    template <typename Visit>
    static void visitCandidates(const SItemNode &list, const QDomElement &element, Visit visit);
    bool fail(const QString &text);
    bool failUnknownWord(const SItemPlace &place, const QString &path, const QString &word);

    const CDeviceConfigurationFile10 &m_file;
    QString m_errorText;
};
