#pragma once

#include "commissioning/check/ConfigurationRules.h"
#include "commissioning/check/DocumentStructure.h"
#include "commissioning/check/ProjectFiles.h"
#include "commissioning/SConfigurationFinding.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QHash>
#include <QPair>
#include <QSet>

/** The check of one document: one walk over its elements, with what contradicts each other. */
class DocumentCheck
{
public:
    /**
     * @param file holds the document, with positions
     * @param version of the document as it was read
     * @param project may be null
     */
    DocumentCheck(const CDeviceConfigurationFile10 &file, const QString &version,
                  ProjectFiles *project);

    /** In the order of the walk. */
    QList<SConfigurationFinding> run();

private:
    using ERule = ConfigurationRules::ERule;
    using SElement = DocumentStructure::SElement;
    using SChild = DocumentStructure::SChild;

    class Fields;

    /** Where something stands, and how it is called. */
    struct SPlace {
        QDomElement element;
        QString item;
    };

    struct SText {
        QString message;
        QString found;
        QString expected;
        QString hint;
    };

    void report(ERule rule, const SPlace &place, const SText &text);
    void append(ERule rule, const SPlace &place, const SText &text);

    void visit(const QDomElement &element, const SElement &type, const QString &path);
    void visitDeep(const QDomElement &element, const SElement &list, const QString &path);
    QString itemOf(const SElement &type, const Fields &fields, const QString &path);
    QString entryPath(const QString &list, const QString &key);
    void checkStructure(const Fields &fields, const QString &item);
    void reportStray(const QDomElement &child, const SElement &parent, const QString &item);
    void checkMeaning(const Fields &fields, const QString &item);

    void checkRoot(const Fields &fields);
    void checkDate(const Fields &fields, const QString &tag, const QString &item);
    void checkDescription(const Fields &fields);
    void checkDevice(const Fields &fields, const QString &item);
    void checkDeviceClass(const Fields &fields, const QString &item);
    void checkConfigurationName(const Fields &fields, const QString &item);
    CDeviceHardwareId checkHardwareId(const Fields &fields, const QString &item);
    void checkOptions(const Fields &fields);
    void checkOpcUa(const Fields &fields);
    void checkParameterFile(const Fields &fields, const QString &item);
    NvrnGlobal::EParamFileType checkParameterType(const Fields &fields, const QString &item);
    void checkFpgaFile(const Fields &fields, const QString &item);
    void checkPlugin(const Fields &fields, const QString &item);
    void checkDrive(const Fields &fields, const QString &item);
    void checkDriveType(const Fields &fields, const QString &item);
    void checkDriveNumber(const Fields &fields, const QString &item);
    void checkDriveName(const Fields &fields, const QString &item);
    void checkBusId(const Fields &fields, const QString &item);
    void checkConfig(const Fields &fields, const QString &item);

    void checkFile(const Fields &fields, const QString &item, bool isOfDevice);
    bool checkFileName(const Fields &fields, const QString &item);
    void checkDevicePath(const CFileElement &file, const SPlace &place, const QString &text);
    bool checkProjectPath(const CFileElement &file, const SPlace &place, bool isOfDevice);
    void checkPlacedFiles(const QList<CFileElement> &files, const SPlace &place);
    bool claim(const CFileElement &file, const SPlace &place);
    void checkInProject(const CFileElement &file, const SPlace &place);

    const CDeviceConfigurationFile10 &m_file;
    const QString m_version;
    ProjectFiles *const m_project;
    QList<SConfigurationFinding> m_findings;

    /** What the device tells of itself, without lists. */
    CDeviceElement m_device;
    /** Directories of parameter files of a type, which depend on the type alone. */
    QHash<int, CParamFileElement> m_placedTypes;
    CFileElement m_placedPlugin;
    CFileElement m_placedFpgaFile;

    QHash<QString, int> m_entryCounts;
    QHash<QString, QString> m_claims;
    QSet<QPair<QString, QString>> m_files;
    QSet<QPair<QString, int>> m_parameterFiles;
    QSet<QString> m_fpgaFiles;
    QSet<QString> m_plugins;
    QHash<uint, QString> m_driveNumbers;
    QHash<QString, QString> m_driveNames;
    QHash<uint, QString> m_busIds;
    SPlace m_etherCatPlugin;
    SPlace m_etherCatFile;
    SPlace m_opcUaFlag;
    SPlace m_opcUaOption;
    bool m_isOpcUaFlagValid = true;
    bool m_isOpcUaEnabled = false;
};
