#pragma once

#include "commissioning/check/DeviceCheck.h"
#include "commissioning/check/DriveCheck.h"
#include "commissioning/check/FileListCheck.h"
#include "commissioning/check/OptionCheck.h"
#include "commissioning/check/PluginCheck.h"
#include "commissioning/check/StructureCheck.h"

/** The check of one document: one walk over its elements, with what contradicts each other. */
class DocumentCheck
{
public:
    /**
     * @param file holds the document, with positions
     * @param version of the document as it was read
     * @param projectDirectory may be empty: then no files are looked for
     */
    DocumentCheck(const CDeviceConfigurationFile10 &file, const QString &version,
                  const QString &projectDirectory);

    /** In the order of the walk. */
    QList<SConfigurationFinding> run();

private:
    Q_DISABLE_COPY(DocumentCheck)

    using SElement = DocumentStructure::SElement;

    void visit(const QDomElement &element, const SElement &type, const QString &path);
    void visitChild(const QDomElement &child, const Fields &parent, const QString &item);
    void visitDeep(const QDomElement &element, const SElement &list, const QString &path);
    QString itemOf(const Fields &fields, const QString &path);
    void checkMeaning(const Fields &fields, const QString &item);

    const QString m_version;
    CheckContext m_context;
    StructureCheck m_structure;
    DeviceCheck m_device;
    OptionCheck m_options;
    FileCheck m_files;
    FileListCheck m_fileLists;
    PluginCheck m_plugins;
    DriveCheck m_drives;
};
