#pragma once

#include "configfile/CDeviceConfigurationFileBase.h"

/** The configuration file in version 1.0 of the format; see ICDeviceConfigurationFile. */
class VRNDEVICECORE_EXPORT CDeviceConfigurationFile10 : public CDeviceConfigurationFileBase
{
public:
    explicit CDeviceConfigurationFile10(ICLogfile *logfile);
    ~CDeviceConfigurationFile10() override;

    bool handleVersionError(const QString &required, const QString &existing) override;

    using CDeviceConfigurationFileBase::createNewDocument;
    using CDeviceConfigurationFileBase::open;
    using CDeviceConfigurationFileBase::save;
    bool createNewDocument() override;
    bool open(const QString &path) override;
    bool save(const QString &path) override;
    bool load(const QByteArray &buffer) override;
    QString requiredFileVersion() const override;

    bool setDescription(const CDescriptionElement &description) override;
    CDescriptionElement description() const override;

    bool setConfiguration(const CDeviceElement &device) override;
    bool configuration(CDeviceElement &device) const override;

    bool setOdictFile(const CFileElement &file) override;
    CFileElement odictFile() const override;
    bool setFaultTextFile(const CFileElement &file) override;
    CFileElement faultTextFile() const override;

    QList<CParamFileElement> paramFiles() const override;
    bool paramFiles(QList<CParamFileElement> &files) const override;
    bool setParamFiles(const QList<CParamFileElement> &files) override;
    bool containsParamFile(const CParamFileElement &file) const override;
    bool addParamFile(const CParamFileElement &file) override;
    bool addParamFile(const QString &name, NvrnGlobal::EParamFileType type) override;
    bool removeParamFile(const CParamFileElement &file) override;
    bool removeParamFile(const QString &name, NvrnGlobal::EParamFileType type) override;

    QStringList fpgaFiles() const override;
    bool setFpgaFiles(const QStringList &fileNames) override;
    bool containsFpgaFile(const QString &fileName) const override;
    bool appendFpgaFile(const QString &fileName) override;
    bool removeFpgaFile(const QString &fileName) override;
    bool setActiveFpgaFile(const QString &fileName) override;
    QString activeFpgaFile() const override;

    QList<CFileElement> additionalFiles() const override;
    bool setAdditionalFiles(const QList<CFileElement> &files) override;
    bool containsAdditionalFile(const CFileElement &file) const override;
    bool appendAdditionalFile(const CFileElement &file) override;
    bool removeAdditionalFile(const CFileElement &file) override;

    bool setPlugins(const QList<CPluginElement> &plugins) override;
    QList<CPluginElement> plugins() const override;
    bool plugins(QList<CPluginElement> &plugins) const override;
    bool setExecutionPlugin(const QString &name) override;
    QString executionPlugin() const override;

    bool setOpcUaEnabled(bool enabled) override;
    bool isOpcUaEnabled() const override;
    bool setOpcUaFiles(const QList<CFileElement> &files) override;
    bool opcUaFiles(QList<CFileElement> &files) const override;

    bool setEtherCatMasterFile(const CFileElement &file) override;
    CFileElement etherCatMasterFile() const override;

    QStringList options() const override;

private:
    bool hasDocument() const;
    bool finishOpening(bool opened);
    void dropDocument();
    CFileElement checkedProjectPath(const CFileElement &file, const CDeviceElement &device) const;
    template <typename Matches>
    QDomElement findFile(const QDomElement &list, Matches matches) const;
    QDomElement findParamFile(const QString &name, NvrnGlobal::EParamFileType type) const;
    QDomElement findAdditionalFile(const CFileElement &file) const;
    QDomElement findFpgaFile(const QString &fileName) const;
    bool setConfigFile(const CFileElement &file, const QString &tag);
};
