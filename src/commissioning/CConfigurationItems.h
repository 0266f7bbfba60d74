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
 * brackets; in a key, "]" and "\" are preceded by a "\". Where several entries have one key, "[2]"
 * after it means the second, and so on:
 *
 *     description.name  .comment  .version  .creationDate  .revisionDate
 *     device.name  .comment  .class  .hardwareId  .configurationName  .executionPlugin
 *     device.opcUaEnabled                        true or false
 *     device.activeFpgaFile                      the first of the FPGA images
 *     device.options[-trace]                     argument of a start option; empty without one
 *     device.parameterFiles[NAME].type  .comment
 *     device.dictionary.name  .comment  .deviceDir  .projectDir
 *     device.faultTextFile.…  device.etherCatMasterFile.…        the same four
 *     device.fpgaFiles[NAME]                     always empty: it is there or not
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
 * The items are those that readers of the document find: parameter files and plug-ins at any depth
 * below their list, no empty files. Values are given as they stand in the document, also those that
 * no reader understands; a drive's key alone is its number as it is read, and its text if that is
 * not a number. An item is there when its element is, with the empty value when nothing is in it.
 *
 * The object works on a file object that it does not own and that must outlive it; what it changes
 * is in that document at once, and saved by its save(). Failures are reported by the result and
 * errorText(); the document is then unchanged. Thread-safe as every file object: see
 * docs/architecture.md.
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
     * document. The items that rename an entry are left out. Takes linear time.
     */
    QList<SItem> items() const;
    /**
     * The items at and below @p path, which may name an item, an entry, or whatever items have in
     * common, as "device", "files" or "drive[0].param". Nothing, with an errorText(), for an
     * invalid path and for items, entries and single files that are not there.
     */
    QList<SItem> items(const QString &path) const;
    /** The entries of all lists in the same order: "drive[0]", "files[recipes.csv]", … */
    QStringList entries() const;

    /** Whether the item, entry, single file, group or list of that path is there. */
    bool contains(const QString &path) const;
    /**
     * The value of one item; fails, without changing @p value, if @p path does not lead to an item
     * or the item is absent.
     */
    bool value(const QString &path, QString &value) const;

    /**
     * Sets one item, creating its element, and the elements of single files, where absent. Fails
     * when the entry of a list is not there, and for a text that the item cannot have:
     *
     * - creationDate, revisionDate: a date as 2026-11-21, or empty
     * - class: kc2, kd3 or Undefined; type: that of a parameter file, KD2_drive or KD3_drive
     * - hardwareId: as CDeviceHardwareId reads it, or empty; opcUaEnabled: true or false
     * - busId: 0 to 4294967295; priority: a signed 32-bit number; driveNo: 0 to 254
     * - an option's argument: words, none of which begins with "-", with single spaces between
     * - names of entries and of the active FPGA image: not empty, and no other entry's name
     * - every text: only characters that XML can carry
     *
     * Directories are stored as CFileElement stores them: "velkor\conf" on the device becomes
     * "/velkor/conf/". Setting device.activeFpgaFile moves the image to the front, or adds it
     * there. Setting a drive's type keeps the elements of the KD2 files, which a KD3 drive does not
     * show.
     */
    bool setValue(const QString &path, const QString &value);
    /**
     * Adds an entry to a list: "drive[3]", "files[a.xml]", "device.plugins[motion]",
     * "device.options[-trace]". Its items are empty, or have the values with which such an entry is
     * valid: a parameter file is of the type VornParameters, a plug-in has the priority 0; a drive
     * is a KD3 drive with the name and the hardware identity that
     * CDeviceBaseElement::insertSubDevice() gives it. Fails if it already exists.
     */
    bool add(const QString &path);
    /**
     * Removes an entry of a list, or a single file; for any other item, its element. Lists and the
     * elements around single files stay, empty. An entry's key cannot be removed.
     */
    bool remove(const QString &path);

    /**
     * The element in the document that an item or entry stands in, also that of a single file, a
     * group or a list; null when there is none.
     */
    QDomElement element(const QString &path) const;

    /** Why the last operation failed, for the user; empty after one that did not. */
    QString errorText() const;

    /**
     * @p list with @p key in brackets, escaped: "files" and "a.xml" give "files[a.xml]".
     * @param occurrence which of several entries of that key, from 1 on
     */
    static QString entryPath(const QString &list, const QString &key, int occurrence = 1);

private:
    Q_DISABLE_COPY(CConfigurationItems)

    std::unique_ptr<CConfigurationItemsPrivate> d;
};
