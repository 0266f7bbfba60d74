#pragma once

#include "configfile/ConfigurationShape.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** What a configuration document consists of: which element may stand where, and how often. */
namespace DocumentStructure {

/** What is to be checked of an element beyond its structure. */
enum EMeaning {
    MEANING_NONE,
    MEANING_ROOT,
    MEANING_HEAD,
    MEANING_DESCRIPTION,
    MEANING_DEVICE,
    MEANING_CONFIG,
    MEANING_OPC_UA,
    MEANING_ETHERCAT_MASTER,
    MEANING_PARAMETER_FILE,
    MEANING_FPGA_FILE,
    MEANING_PLUGIN,
    MEANING_FILE,
    /** A file that the reader wants below the device's own directory in the project. */
    MEANING_FILE_OF_DEVICE,
    MEANING_DRIVE
};

struct SElement;

struct SChild {
    const SElement *element = nullptr;
    /**
     * The path of its item, as CConfigurationItems names it: with a dot at the start it follows
     * that of the parent, empty it is that of the parent.
     */
    QString item;
    /** Otherwise only the first one is read. */
    bool isRepeated = false;
};

struct SElement {
    QString tag;
    EMeaning meaning = MEANING_NONE;
    /** Whether it has text, and no children; otherwise it has children, and no text. */
    bool hasText = false;
    QStringList attributes;
    QVector<SChild> children;
    /** Of an entry: its list in the description; null of any other element. */
    const ConfigurationShape::SNode *list = nullptr;
    /** Whether the reader looks for the children at any depth. */
    bool isReadDeep = false;
};

/** The root element, and with it all others. */
const SElement &root();

/** The elements in which one of that name may stand; empty for a name that nobody knows. */
QStringList parents(const QString &tag);
/** The known name that differs from @p tag in capital and small letters alone; may be empty. */
QString similar(const QString &tag);

} // namespace DocumentStructure
