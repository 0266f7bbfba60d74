#pragma once

#include "commissioning/check/CheckContext.h"
#include "commissioning/check/Fields.h"
#include "commissioning/check/ManifestComparison.h"
#include "commissioning/rules/ProjectFiles.h"

#include <QPair>
#include <QSet>

#include <memory>

/** Checks the files that the document names: their names, their places, and the project's files. */
class FileCheck
{
public:
    /** @param projectDirectory may be empty: then no files are looked for */
    FileCheck(CheckContext &context, const QString &projectDirectory);

    void readManifest();

    /** A file with directories of its own. @param isOfDevice it lies below the device's directory
     * in the project */
    void check(const Fields &fields, const QString &item, bool isOfDevice);
    /** The file's name, which may also be that of a list's entry. @return whether it is one */
    bool checkName(const Fields &fields, const QString &item);
    /** The files of one entry whose directories follow from its kind. */
    void checkPlaced(const QList<CFileElement> &files, const SPlace &place);
    /** Takes the file's place on the device. @return false when another one has it */
    bool claim(const CFileElement &file, const SPlace &place);

private:
    void checkDevicePath(const CFileElement &file, const Fields &fields, const QString &item);
    void checkConfiguration(const CFileElement &file, const SPlace &place, const QString &text);
    bool checkProjectPath(CFileElement &file, const SPlace &place, bool isOfDevice);
    void checkInProject(const CFileElement &file, const SPlace &place);

    CheckContext &m_context;
    const QString m_projectDirectory;
    /** Null when no files are looked for. */
    std::unique_ptr<ProjectFiles> m_project;
    ManifestComparison m_manifest;
    /** The item of each file, by its path on the device. */
    QHash<QString, QString> m_claims;
    QSet<QPair<QString, QString>> m_files;
};
