#pragma once

#include "elements/CDescriptionElement.h"
#include "elements/CDeviceElement.h"
#include "elements/CFileElement.h"
#include "elements/CParamFileElement.h"
#include "elements/CPluginElement.h"
#include "imported/CXmlAbstractVornFile.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QByteArray>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

class ICLogfile;

/**
 * The device configuration document, by default "DeviceConfiguration.3deco": one device with its
 * files, plug-ins and sub-devices, and a description of the project.
 *
 * Get an object from instance(), then open(), load() or createNewDocument(), then read and change,
 * then save(). The object keeps the document and no elements: every getter reads the document,
 * every setter changes it at once. What a setter does not concern stays in the document, also
 * elements, attributes and comments that this library does not know; only setConfiguration() and
 * the setters of whole lists and of single files rebuild their part of the document. An element
 * that a setter misses is created where a whole document has it.
 *
 * Without a document, as after a failed open() or load(), getters give empty values, and setters
 * change nothing and return false. A getter never creates an element.
 *
 * The result reports a failure, which is also posted to the message board together with the log, as
 * critical messages where the operation failed and as warnings where it went on.
 *
 * The virtual operations stand in the order that binary compatibility demands. Thread-safe as every
 * file object: see docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT ICDeviceConfigurationFile : public CXmlAbstractVornFile
{
public:
    /**
     * A file object for version 1.0 of the format, which handles documents of every version.
     * @param logfile is not owned, may be null, and must outlive the file object
     * @return never null; the caller owns it
     */
    static ICDeviceConfigurationFile *instance(ICLogfile *logfile);
    /** "DeviceConfiguration.3deco" */
    static QString defaultFileName();

    ~ICDeviceConfigurationFile() override;

    using CXmlAbstractVornFile::createNewDocument;
    using CXmlAbstractVornFile::open;
    using CXmlAbstractVornFile::save;

    /**
     * Starts a document with nothing but its meta data: a comment, and the author from the log.
     * They have no date, so that it is the same document on every day.
     */
    virtual bool createNewDocument() = 0;
    /**
     * Opens the file @p path. A document of another version is accepted with a warning. On failure
     * the object holds no document, also when it held one before.
     */
    virtual bool open(const QString &path) = 0;
    /** Saves the document in one step, see CXmlAbstractVornFile::save(). */
    virtual bool save(const QString &path) = 0;
    /** As open(), from memory; an empty buffer is refused. */
    virtual bool load(const QByteArray &buffer) = 0;

    /** The version of the format that this object writes, "1.0". */
    virtual QString requiredFileVersion() const = 0;
    /**
     * The version as which the document in hand is treated; empty without a document. A document
     * that was opened is one of version "1.0" from then on, whatever its file said.
     */
    virtual QString currentFileVersion() const = 0;

    /** Sets the description; its element is created, with a comment before it, when absent. */
    virtual bool setDescription(const CDescriptionElement &description) = 0;
    /** A default-constructed description when the document has none. */
    virtual CDescriptionElement description() const = 0;

    /**
     * Removes every device of the document, and appends @p device to the root. Serial number,
     * network endpoint and list position, and the directories and drive numbers of parameter files,
     * are not part of the document. Parts of the device that are empty are left out.
     */
    virtual bool setConfiguration(const CDeviceElement &device) = 0;
    /**
     * Reads the device.
     *
     * Object dictionary and fault texts must have their project path below the device's own
     * directory, which is its name followed by "/"; another path is removed with a warning (but
     * not when it is empty, or when the device has no name). A sub-device without a drive number
     * from 0 to 254, or with one that is taken, gets the next free one, with a warning; when all
     * are taken it is left out, with a warning.
     * @return false when the document has no device; @p device is null then
     */
    virtual bool configuration(CDeviceElement &device) const = 0;

    /**
     * Object dictionary and fault texts, as the document contains them: with their project paths,
     * whether or not configuration() would accept these. The setters replace the whole entry; for a
     * null file it is one with empty texts, which is read as null.
     */
    virtual bool setOdictFile(const CFileElement &file) = 0;
    virtual CFileElement odictFile() const = 0;
    virtual bool setFaultTextFile(const CFileElement &file) = 0;
    virtual CFileElement faultTextFile() const = 0;

    /**
     * The parameter files, with name, type and comment; the document contains no directories. An
     * empty entry is a null one.
     */
    virtual QList<CParamFileElement> paramFiles() const = 0;
    /** @return whether the document has a list of parameter files */
    virtual bool paramFiles(QList<CParamFileElement> &files) const = 0;
    /** Invalid parameter files are left out. */
    virtual bool setParamFiles(const QList<CParamFileElement> &files) = 0;
    /** Whether there is a parameter file of that name and type. */
    virtual bool containsParamFile(const CParamFileElement &file) const = 0;
    /** Replaces the parameter file of that name, or appends one; false for an invalid one. */
    virtual bool addParamFile(const CParamFileElement &file) = 0;
    virtual bool addParamFile(const QString &name, NvrnGlobal::EParamFileType type) = 0;
    /** Removes the first parameter file of that name and type; false when there is none. */
    virtual bool removeParamFile(const CParamFileElement &file) = 0;
    virtual bool removeParamFile(const QString &name, NvrnGlobal::EParamFileType type) = 0;

    /** Names of the FPGA images; the first one is the active one. */
    virtual QStringList fpgaFiles() const = 0;
    virtual bool setFpgaFiles(const QStringList &fileNames) = 0;
    virtual bool containsFpgaFile(const QString &fileName) const = 0;
    virtual bool appendFpgaFile(const QString &fileName) = 0;
    /** Removes the first entry of that name; false when there is none. */
    virtual bool removeFpgaFile(const QString &fileName) = 0;
    /**
     * Puts @p fileName first; an entry of the same file name (the last component of a path) moves
     * there instead of standing twice. False for an empty name.
     */
    virtual bool setActiveFpgaFile(const QString &fileName) = 0;
    virtual QString activeFpgaFile() const = 0;

    /** Further files that are transferred with the device, without null entries. */
    virtual QList<CFileElement> additionalFiles() const = 0;
    virtual bool setAdditionalFiles(const QList<CFileElement> &files) = 0;
    virtual bool containsAdditionalFile(const CFileElement &file) const = 0;
    /**
     * Appends the file, whatever is there: a long list is appended to as fast as a short one. False
     * for a null file.
     */
    virtual bool appendAdditionalFile(const CFileElement &file) = 0;
    /** Removes the first equal file; false when there is none. */
    virtual bool removeAdditionalFile(const CFileElement &file) = 0;

    /** Replaces the list of plug-ins. */
    virtual bool setPlugins(const QList<CPluginElement> &plugins) = 0;
    virtual QList<CPluginElement> plugins() const = 0;
    /** @return whether the document has a list of plug-ins */
    virtual bool plugins(QList<CPluginElement> &plugins) const = 0;
    /** Name of the plug-in that runs the application; empty when there is none. */
    virtual bool setExecutionPlugin(const QString &name) = 0;
    virtual QString executionPlugin() const = 0;

    /** Sets the flag alone; the option "-opc" is kept in step by CDeviceElement. */
    virtual bool setOpcUaEnabled(bool enabled) = 0;
    virtual bool isOpcUaEnabled() const = 0;
    virtual bool setOpcUaFiles(const QList<CFileElement> &files) = 0;
    /** @return whether the document has a list of OPC UA files */
    virtual bool opcUaFiles(QList<CFileElement> &files) const = 0;

    /** Bus configuration of the EtherCAT master; set like setOdictFile(). */
    virtual bool setEtherCatMasterFile(const CFileElement &file) = 0;
    virtual CFileElement etherCatMasterFile() const = 0;

    /** The start options, split at spaces: an option with an argument comes back as two. */
    virtual QStringList options() const = 0;

    // DOM helpers. They report no errors: what is absent is a null element or a cleared value. A
    // null element to search in stands for the whole document.

    /** The first child "Device" of @p element. */
    virtual QDomElement findDeviceElement(const QDomElement &element = QDomElement()) const = 0;
    /** The child "Config" of the device @p element. */
    virtual QDomElement findConfigElement(const QDomElement &element = QDomElement()) const = 0;
    /** The child "ParameterFiles" of the configuration block @p element. */
    virtual QDomElement findParamFilesElement(const QDomElement &element = QDomElement()) const = 0;
    /** The child "Files" of the configuration block @p element. */
    virtual QDomElement findFilesElement(const QDomElement &element = QDomElement()) const = 0;
    /** The child "Plugins" of the configuration block @p element. */
    virtual QDomElement findPluginsElement(const QDomElement &element = QDomElement()) const = 0;

    /** Appends a "File" element to @p parent, or fills @p parent if it is one itself. */
    virtual void appendFileElement(const CFileElement &file, QDomElement parent) = 0;
    /** Appends @p file to @p parent unless it is null or an equal one is there. */
    virtual void insertFileElement(const CFileElement &file, QDomElement parent) = 0;
    /** Reads from @p element if it is a "File" with child nodes; else clears @p file. */
    virtual void fileElement(CFileElement &file, const QDomElement &element) const = 0;
    /** Reads every "File" child of @p element that is not null, in document order. */
    virtual void fileElements(QList<CFileElement> &files, const QDomElement &element) const = 0;

    /** Replaces the "Plugin" of that name below @p parent, or appends one. */
    virtual void insertPluginElement(const CPluginElement &plugin, QDomElement parent) = 0;
    /** Reads from @p element if it is a "Plugin" with child nodes; else clears @p plugin. */
    virtual void pluginElement(CPluginElement &plugin, const QDomElement &element) const = 0;

protected:
    explicit ICDeviceConfigurationFile(ICLogfile *logfile);
};
