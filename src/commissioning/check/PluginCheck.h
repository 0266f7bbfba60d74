#pragma once

#include "commissioning/check/FileCheck.h"

/** Checks the plug-ins, and what the rest of the configuration has to have for them. */
class PluginCheck
{
public:
    PluginCheck(CheckContext &context, FileCheck &files) : m_context(context), m_files(files) { }

    void check(const Fields &fields, const QString &item);
    /** Keeps where the bus configuration of the EtherCAT master stands, if it is a file. */
    void noteEtherCatFile(const Fields &fields, const QString &item);
    /** To be called behind all plug-ins: the one that runs the application, and the EtherCAT
     * master. */
    void finish(const Fields &config, const QString &item);

private:
    bool checkName(const Fields &fields, const QString &item);
    bool checkVersion(const CPluginElement &plugin, const Fields &fields, const QString &item);
    void checkLibrary(const CPluginElement &plugin, const SPlace &place);
    void checkExecutionPlugin(const Fields &config, const QString &item);
    void checkEtherCatMaster();

    CheckContext &m_context;
    FileCheck &m_files;
    QSet<QString> m_names;
    CFileElement m_placed;
    SPlace m_etherCatPlugin;
    SPlace m_etherCatFile;
};
