#pragma once

#include "commissioning/VrnCommissioningExport.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class CConfigurationItemsPrivate;

/**
 * Every item of a configuration document under a readable path, for reading and changing one
 * without touching anything else in the document.
 *
 * A path is words joined by dots. An entry of a list is the list's name with the entry's key in
 * brackets; in a key, "]" and "\" stand behind a "\". Where several entries have one key, "[2]"
 * behind it means the second, and so on:
 *
 *     description.name  .comment  .version  .creationDate  .revisionDate
 *     device.name  .comment  .class  .hardwareId  .configurationName  .executionPlugin
 *     device.opcUaEnabled                        true or false
 *     device.activeFpgaFile                      the first of the FPGA images
 *     device.options[-trace]                     argument of a start option; empty without one
 *     device.parameterFiles[NAME].type  .comment
 *     device.dictionary.name  .comment  .deviceDir  .projectDir
 *     device.faultTextFile.…  device.etherCatMasterFile.…        the same four
 *     device.fpgaFiles[NAME]                     has no value: it is there or not
 *     device.opcUaFiles[NAME].comment  .deviceDir  .projectDir
 *     device.plugins[NAME].version  .priority
 *     drive[NUMBER].type  .hardwareId  .name  .comment  .busId
 *     drive[NUMBER].param.name  .comment  .deviceDir  .projectDir
 *     drive[NUMBER].kd2Param.…  .kd2Logic.…  .kd2Firmware.…      the same four, KD2 drives alone
 *     files[NAME].comment  .deviceDir  .projectDir
 *
 * An entry's key is itself an item, "name" or "driveNo" ("files[a.xml].name",
 * "drive[2].driveNo"): setting it renames the entry, which is then found under its new key.
 *
 * The object works on a file object that it does not own and that must outlive it; what it changes
 * is in that document at once, and saved by its save(). Failures are told by the result and
 * errorText(); the document is then unchanged. Not synchronised, as the file object itself.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationItems
{
public:
    struct SItem {
        QString path;
        QString value;
    };

    explicit CConfigurationItems(CDeviceConfigurationFile10 &file);
    ~CConfigurationItems();

    /**
     * The items that the document has, in the order of the list above and, in lists, in that of the
     * document. The items that rename an entry are left out.
     */
    QList<SItem> items() const;
    /** Of these, @p path itself and those below it. */
    QList<SItem> items(const QString &path) const;
    /** The entries of all lists in the same order: "drive[0]", "files[recipes.csv]", … */
    QStringList entries() const;

    /** Whether there is an item or an entry of that path. */
    bool contains(const QString &path) const;
    /** The value of one item; fails when the path is none or nothing is there. */
    bool value(const QString &path, QString &value) const;

    /**
     * Sets one item, creating its element, and the elements of single files, where absent. The text
     * must be one that the item can have: a number, a date as 2026-11-21, a class, a type. Fails
     * when the entry of a list is not there.
     */
    bool setValue(const QString &path, const QString &value);
    /**
     * Adds an entry to a list: "drive[3]", "files[a.xml]", "device.plugins[motion]",
     * "device.options[-trace]". Its items are empty, or have the values with which such an entry is
     * valid. Fails when it is there already.
     */
    bool add(const QString &path);
    /** Removes an entry of a list, or a single file; for any other item, its element. */
    bool remove(const QString &path);

    /** The element in the document that an item or entry stands in; null when there is none. */
    QDomElement element(const QString &path) const;

    /** Why the last operation failed, for the user; empty after one that did not. */
    QString errorText() const;

    /** @p list with @p key in brackets, escaped: "files" and "a.xml" give "files[a.xml]". */
    static QString entryPath(const QString &list, const QString &key);

private:
    Q_DISABLE_COPY(CConfigurationItems)

    std::unique_ptr<CConfigurationItemsPrivate> d;
};
