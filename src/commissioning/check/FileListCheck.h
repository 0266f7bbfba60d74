#pragma once

#include "commissioning/check/FileCheck.h"

/** Checks the entries whose directories follow from their kind: parameter files and FPGA images. */
class FileListCheck
{
public:
    FileListCheck(CheckContext &context, FileCheck &files) : m_context(context), m_files(files) { }

    void checkParameterFile(const Fields &fields, const QString &item);
    void checkFpgaFile(const Fields &fields, const QString &item);

private:
    NvrnGlobal::EParamFileType checkParameterType(const Fields &fields, const QString &item);
    CParamFileElement placed(const CParamFileElement &file);

    CheckContext &m_context;
    FileCheck &m_files;
    QSet<QPair<QString, int>> m_parameterFiles;
    QSet<QString> m_fpgaFiles;
    /** Directories of parameter files of a type, which depend on the type alone. */
    QHash<int, CParamFileElement> m_placedTypes;
    CFileElement m_placedFpgaFile;
};
