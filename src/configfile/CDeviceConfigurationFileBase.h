#pragma once

#include "configfile/CAbstractDeviceConfigurationFile.h"
#include "elements/CSubDeviceElement.h"

/**
 * The part of a configuration file that does not depend on the version of the format: it keeps the
 * version and the result of opening, and maps description, device and sub-devices to their
 * elements. Operations that take an element read or fill that element itself.
 */
class VRNDEVICECORE_EXPORT CDeviceConfigurationFileBase : public CAbstractDeviceConfigurationFile
{
public:
    explicit CDeviceConfigurationFileBase(ICLogfile *logfile);
    ~CDeviceConfigurationFileBase() override;

    /**
     * Warns of a document of a previous or a later version, whose version then becomes the current
     * one. Nothing happens if one of the texts is not a valid revision.
     * @return true: a version never refuses a document
     */
    bool handleVersionError(const QString &required, const QString &existing) override;

    QString currentFileVersion() const override;

    /** Sets the children of the "Description" @p element. */
    virtual void setDescriptionElement(const CDescriptionElement &description, QDomElement element);
    /** Reads the "Description" @p element; a default description if @p element is another one. */
    virtual void descriptionElement(CDescriptionElement &description,
                                    const QDomElement &element) const;

    /** Appends a "SubDevice" of type "UNKNOWN_drive" to the "Device" @p device. */
    virtual QDomElement createSubDeviceDomElement(QDomElement device);
    /** Fills the empty "Device" @p element. */
    virtual void setDeviceElement(const CDeviceElement &device, QDomElement element);
    /** Appends a sub-device to the "Device" @p device; nothing for an empty container. */
    virtual void appendSubDeviceElement(const CSubDeviceElement &subDevice, QDomElement device);
    /** Appends what a KD2 drive has beyond other drives to its "SubDevice" @p element. */
    virtual void appendKD2SubDeviceElement(const CSubDeviceKD2Element &subDevice,
                                           QDomElement element);
    /** Reads the "Device" @p element; a null device if @p element is another one. */
    virtual void deviceElement(CDeviceElement &device, const QDomElement &element) const;
    /**
     * Reads the sub-devices of the "Device" @p element. Each gets a drive number of its own: one
     * that has none, which 255 stands for, or one that is taken, gets the next free one up to 254,
     * with a warning. When none is free it is left out, with a warning.
     */
    virtual void subDeviceElements(QList<CSubDeviceElement> &subDevices,
                                   const QDomElement &element) const;

    /** Reads all "File" elements below the "ParameterFiles" @p element. */
    virtual void paramFileElementList(QList<CParamFileElement> &files,
                                      const QDomElement &element) const;
    /** Rebuilds "ParameterFiles" in the "Config" @p config; invalid files are left out. */
    virtual void setParamFileElementList(const QList<CParamFileElement> &files, QDomElement config);
    /** Reads all "Plugin" elements below the "Plugins" @p element. */
    virtual void pluginElementList(QList<CPluginElement> &plugins,
                                   const QDomElement &element) const;
    /** Rebuilds "Plugins" in the "Config" @p config. */
    virtual void setPluginElementList(const QList<CPluginElement> &plugins, QDomElement config);

    void setCurrentFileVersion(const QString &version);
    void setOpenResult(NvrnGlobal::EFileResult result);
    /** FILE_RESULT_FAILURE until a document was opened, loaded or created. */
    NvrnGlobal::EFileResult openResult() const;

protected:
    /** Shared by the versions: which of the two texts is posted as a warning. */
    bool warnOfVersion(const QString &required, const QString &existing,
                       const QString &previousText, const QString &laterText);

    // Items of the configuration block, as they are read from and written into a "Config" element.
    void setSingleFile(const CFileElement &file, const QString &tag, QDomElement parent);
    CFileElement singleFile(const QString &tag, const QDomElement &parent) const;
    void setOpcUaFlag(bool enabled, QDomElement config);
    bool opcUaFlag(const QDomElement &config) const;
    QStringList optionList(const QDomElement &config) const;

private:
    void setConfigElement(const CDeviceElement &device, QDomElement parent);
    void configElement(CDeviceElement &device, const QDomElement &parent) const;
    CSubDeviceElement subDeviceElement(const QDomElement &element) const;

    QString m_currentFileVersion;
    NvrnGlobal::EFileResult m_openResult = NvrnGlobal::FILE_RESULT_FAILURE;
};
