#pragma once

#include "elements/CDescriptionElement.h"
#include "elements/CDeviceElement.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <functional>

/**
 * The shape of the configuration document, described once. Reading and writing, the paths of the
 * items, the check of the structure, comparison, the words for users, JSON, tree and report all
 * follow from these tables; the schemas and the pages in docs/ are compared with them by a test.
 *
 * A new item of an element is one row in the table of that element, together with its accessors in
 * the element's class. A new file, list or group is a node of root() as well.
 *
 * The tables are built at their first use, never change, and may be read from any thread.
 */
namespace ConfigurationShape {

/** What the text of an item stands for; ItemValue.h knows what each accepts and how it is written.
 */
enum class EValue {
    TEXT,
    /** The name of an entry of a list: not empty, and no other entry of the list has it. */
    KEY_NAME,
    /** The number of a drive: as KEY_NAME, from 0 to 254. */
    KEY_DRIVE_NUMBER,
    /** A start option: a word that begins with "-". */
    KEY_OPTION,
    /** What follows a start option in the one text. */
    OPTION_ARGUMENT,
    DATE,
    DEVICE_CLASS,
    HARDWARE_ID,
    BOOLEAN,
    UNSIGNED_NUMBER,
    SIGNED_NUMBER,
    PARAMETER_FILE_TYPE,
    DRIVE_TYPE,
    DEVICE_DIRECTORY,
    PROJECT_DIRECTORY,
    /** The name of the FPGA image that stands first in its list. */
    ACTIVE_FPGA_FILE
};

/** One item: a child element that holds a text, or an attribute. */
struct SItem {
    /** In paths and in JSON. */
    QString word;
    /** The name of its element, or of the attribute. */
    QString tag;
    EValue value = EValue::TEXT;
    /** For users, in English and in lower case; label() translates it. */
    const char *text = nullptr;
    bool isAttribute = false;
    /** What readers take where the element is absent. */
    QString absent;
};

/** An item of an element class. */
template <typename Element>
struct SField : SItem {
    /** The value as it is written into the document. */
    std::function<QString(const Element &)> get;
    /** Leaves the element as it was, and returns false, when the text cannot be read. */
    std::function<bool(Element &, const QString &)> set;
};

/** A file of which the element class has one; in the document a holder with one "File". */
template <typename Element>
struct SFileField {
    QString word;
    /** The name of the holder's element. */
    QString tag;
    const char *text = nullptr;
    /** Where the directory layout puts the file. */
    NvrnDeviceCore::EDeviceFile kind = NvrnDeviceCore::DEVICE_FILE_NONE;
    /** Whether only drives of the KD2 series have it. */
    bool isOfKd2Only = false;
    /** Readers drop its directory in the project when that is not below the device's own one. */
    bool isBelowDevice = false;
    std::function<CFileElement(const Element &)> get;
    std::function<void(Element &, const CFileElement &)> set;
};

// The rows of each element class, in the order in which they stand in the document.

const QVector<SField<CDescriptionElement>> &descriptionItems();
/** The children of "Device" that are texts. */
const QVector<SField<CDeviceElement>> &deviceItems();
/** Those in its "Config". */
const QVector<SField<CDeviceElement>> &configItems();
/** Those in the "OpcUa" of that. */
const QVector<SField<CDeviceElement>> &opcUaItems();
const QVector<SFileField<CDeviceElement>> &deviceFiles();
/** To set the type, which is the first of them, empties the drive. */
const QVector<SField<CSubDeviceElement>> &driveItems();
const QVector<SFileField<CSubDeviceElement>> &driveFiles();
const QVector<SField<CFileElement>> &fileItems();
const QVector<SField<CParamFileElement>> &parameterFileItems();
const QVector<SField<CPluginElement>> &pluginItems();

/** The row of that element or attribute; null when the table has none. */
template <typename Field>
const Field *find(const QVector<Field> &rows, const QString &tag)
{
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&tag](const Field &candidate) { return candidate.tag == tag; });
    return row == rows.end() ? nullptr : &*row;
}

/** What the entries of a list are. */
enum class EEntry { NONE, DRIVE, PARAMETER_FILE, FILE, FPGA_FILE, OPC_UA_FILE, PLUGIN, OPTION };

enum class EKind {
    /** An element with others in it. */
    GROUP,
    ITEM,
    /** A holder with one "File" in it. */
    SINGLE_FILE,
    /** Entries with a key each. */
    LIST,
    /** A list in one text: the start options. */
    OPTIONS,
    /** Another name of an item that stands elsewhere: the first FPGA image. */
    ALIAS
};

/** One thing that the document holds, and what is in it. */
struct SNode {
    EKind kind = EKind::GROUP;
    /** Of its element; empty for a list whose entries stand in the element around it. */
    QString tag;
    /** In paths and in JSON; a group without one gives its children to the path around it. */
    QString word;
    /** For users; of a list that of an entry, with %1 for its key. */
    const char *text = nullptr;
    /** Of a list: its entries together. */
    const char *heading = nullptr;
    /** The path does not begin with that of the node around it. */
    bool isAtTop = false;
    /** Of an item, and of the start options: the argument, which an entry itself has as value. */
    SItem item;
    /** Of a list. */
    EEntry entry = EEntry::NONE;
    /** Of a list and a single file: what stands in it. */
    QString entryTag;
    /** Of a list: readers find its entries at any depth below it. */
    bool isReadDeep = false;
    bool isOfKd2Only = false;
    /** Of a single file: see SFileField. */
    bool isBelowDevice = false;
    /** Of a single file and a list of files: where the directory layout puts them. */
    NvrnDeviceCore::EDeviceFile file = NvrnDeviceCore::DEVICE_FILE_NONE;
    /** In the order in which they are written; of a list what each entry has. */
    QVector<SNode> children;
    /** The words that come first where items are listed; the others follow in their order. */
    QStringList listedFirst;

    bool isList() const { return kind == EKind::LIST || kind == EKind::OPTIONS; }
    bool isItem() const { return kind == EKind::ITEM || kind == EKind::ALIAS; }
    /** Whether it is the key of an entry. */
    bool isKey() const
    {
        return item.value == EValue::KEY_NAME || item.value == EValue::KEY_DRIVE_NUMBER
            || item.value == EValue::KEY_OPTION;
    }
    /** Of a list: the child that is the key of an entry. */
    const SNode &key() const
    {
        return *std::find_if(children.begin(), children.end(),
                             [](const SNode &child) { return child.isKey(); });
    }
};

/** The root element, and in it all others; its head belongs to the base of all XML files. */
const SNode &root();
/** In that the "Device", and in that the "Config". */
const SNode &device();
const SNode &config();

/** A text of these tables in the user's language. */
QString label(const char *text);
/** The same as a heading, or before a colon: with a capital letter. */
QString title(const char *text);
QString capitalized(const QString &text);

} // namespace ConfigurationShape
