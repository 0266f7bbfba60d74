#pragma once

#include "configfile/ICDeviceConfigurationFile.h"
#include "vocabulary/NDeviceConf.h"

#include <QMap>

/**
 * What every version of the configuration document has in common: finding, creating, writing and
 * reading the elements of files, plug-ins and lists, and the text forms of two enumerations.
 *
 * The rules of ICDeviceConfigurationFile's DOM helpers hold here, too.
 */
class VRNDEVICECORE_EXPORT CAbstractDeviceConfigurationFile : public ICDeviceConfigurationFile
{
public:
    explicit CAbstractDeviceConfigurationFile(ICLogfile *logfile);
    ~CAbstractDeviceConfigurationFile() override;

    QDomElement findDeviceElement(const QDomElement &element = QDomElement()) const override;
    QDomElement findConfigElement(const QDomElement &element = QDomElement()) const override;
    QDomElement findParamFilesElement(const QDomElement &element = QDomElement()) const override;
    QDomElement findFilesElement(const QDomElement &element = QDomElement()) const override;
    QDomElement findPluginsElement(const QDomElement &element = QDomElement()) const override;
    void appendFileElement(const CFileElement &file, QDomElement parent) override;
    void insertFileElement(const CFileElement &file, QDomElement parent) override;
    void fileElement(CFileElement &file, const QDomElement &element) const override;
    void fileElements(QList<CFileElement> &files, const QDomElement &element) const override;
    void insertPluginElement(const CPluginElement &plugin, QDomElement parent) override;
    void pluginElement(CPluginElement &plugin, const QDomElement &element) const override;

    /** The child "Description" of @p element. */
    virtual QDomElement findDescriptionElement(const QDomElement &element = QDomElement()) const;
    /** The child @p tag of the "Config" of @p element, a device or a "Config" itself. */
    virtual QDomElement
    findElementInConfigElement(const QString &tag,
                               const QDomElement &element = QDomElement()) const;
    virtual QDomElement findOpcUAElement(const QDomElement &element = QDomElement()) const;
    virtual QDomElement findEtherCatMasterElement(const QDomElement &element = QDomElement()) const;

    // As the finders, but they create what is absent. Null only without a document.
    virtual QDomElement deviceDomElement();
    virtual QDomElement configDomElement(QDomElement device);
    virtual QDomElement paramFilesDomElement(QDomElement element);
    virtual QDomElement pluginsDomElement(QDomElement element);

    /** Appends a "File" to @p parent, or fills it if it is one; nothing for an invalid file. */
    virtual void appendParamFileElement(const CParamFileElement &file, QDomElement parent);
    /** Replaces the "File" of that name below @p parent, or appends one. */
    virtual void insertParamFileElement(const CParamFileElement &file, QDomElement parent);
    /** Reads from @p element if it is a "File" with child nodes; else clears @p file. */
    virtual void paramFileElement(CParamFileElement &file, const QDomElement &element) const;

    /** Text form of a type; "Undefined" for one that has none. */
    virtual QString typeToStr(NvrnGlobal::EParamFileType type) const;
    /** The type of exactly that text form; PARAM_FILE_UNDEFINED for any other text. */
    virtual NvrnGlobal::EParamFileType strToType(const QString &text) const;
    /** Text form of a device class; "Undefined" for an unknown one. */
    virtual QString deviceClassToStr(NDeviceConf::EDeviceClass deviceClass) const;
    /** The class of exactly that text form; DEVICE_CLASS_UNDEFINED for any other text. */
    virtual NDeviceConf::EDeviceClass strToDeviceClass(const QString &text) const;

    /** Appends a "File" with only a name to @p parent, or fills it if it is one. */
    virtual void appendFileString(const QString &fileName, QDomElement parent);
    /** Reads the names of all "File" children of @p element, in document order. */
    virtual void fileStrings(QStringList &fileNames, const QDomElement &element) const;

    /** Appends a "Plugin" to @p parent, or fills @p parent if it is a "Plugin" or a "File" itself.
     */
    virtual void appendPluginElement(const CPluginElement &plugin, QDomElement parent);

    /** Builds a list element named @p tag and puts it in place of the one in @p parent. */
    void setFileElements(const QList<CFileElement> &files, const QString &tag, QDomElement parent);
    /** The same files, with names alone. */
    void setFileStringList(const QStringList &fileNames, const QString &tag, QDomElement parent);
    /** Reads from @p element if it is a "File" with child nodes; else clears @p fileName. */
    void fileString(QString &fileName, const QDomElement &element) const;

protected:
    /** Puts @p element in place of the child of @p parent with its tag, or at the end. */
    static void replaceChildElement(const QDomElement &element, QDomElement parent);

private:
    QMap<QString, NvrnGlobal::EParamFileType> m_paramFileTypes;
    QMap<QString, NDeviceConf::EDeviceClass> m_deviceClasses;
};
