#include "commissioning/check/PluginCheck.h"

#include "commissioning/check/ValueChecks.h"
#include "commissioning/rules/FileRules.h"
#include "commissioning/Texts.h"
#include "imported/CDomDoc.h"
#include "vocabulary/NVornXmlTags.h"

using ConfigurationCheckTexts::Texts;

using namespace ConfigurationRules;
using namespace FaultTexts;
using namespace NVornXmlTags;

void PluginCheck::check(const Fields &fields, const QString &item)
{
    CPluginElement plugin;
    plugin.setName(fields.text(TAG_NAME));
    plugin.setVersion(fields.text(TAG_VERSION));
    const SPlace place = {fields.parent(), item};
    const bool hasName = checkName(fields, item);
    m_names.insert(plugin.name());
    if (plugin.name() == NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER
        && m_etherCatPlugin.element.isNull()) {
        m_etherCatPlugin = place;
    }
    const bool hasVersion = checkVersion(plugin, fields, item);
    m_context.findings.report(
        ValueChecks::of(ConfigurationShape::EValue::SIGNED_NUMBER, fields.text(TAG_PRIORITY)),
        {fields.element(TAG_PRIORITY), item + QStringLiteral(".priority")});
    if (hasName && hasVersion) {
        checkLibrary(plugin, place);
    }
}

bool PluginCheck::checkName(const Fields &fields, const QString &item)
{
    const QString name = fields.text(TAG_NAME);
    const SPlace place = {fields.place(TAG_NAME), item};
    if (name.isEmpty()) {
        m_context.findings.report(
            PLUGIN_NAME_MISSING, place,
            {Texts::tr("The plug-in has no name."), QString(), Texts::tr("a name"), QString()});
        return false;
    }
    if (!m_files.checkName(fields, item)) {
        return false;
    }
    if (m_names.contains(name)) {
        m_context.findings.report(
            PLUGIN_TWICE, place,
            {Texts::tr("The plug-in '%1' is listed more than once.").arg(shown(name)), name,
             QString(), Texts::tr("Remove all but one.")});
        return false;
    }
    return true;
}

bool PluginCheck::checkVersion(const CPluginElement &plugin, const Fields &fields,
                               const QString &item)
{
    const std::optional<SFault> fault = ValueChecks::pluginVersion(plugin);
    m_context.findings.report(fault,
                              {fields.place(TAG_VERSION), item + QStringLiteral(".version")});
    return !fault;
}

void PluginCheck::checkLibrary(const CPluginElement &plugin, const SPlace &place)
{
    if (m_placed.isNull()) {
        CDeviceElement device = m_context.device;
        device.setPlugins({plugin});
        m_placed = device.pluginFileElements().value(0);
    }
    CFileElement file = m_placed;
    file.setFileName(plugin.fileName());
    m_files.checkPlaced({file}, place);
}

void PluginCheck::noteEtherCatFile(const Fields &fields, const QString &item)
{
    if (!CDomDoc::text(fields.element(TAG_FILE).firstChildElement(TAG_NAME)).isEmpty()) {
        m_etherCatFile = {fields.parent(), item};
    }
}

void PluginCheck::finish(const Fields &config, const QString &item)
{
    checkExecutionPlugin(config, item);
    checkEtherCatMaster();
}

void PluginCheck::checkExecutionPlugin(const Fields &config, const QString &item)
{
    const QString name = config.text(TAG_EXECUTIONPLUGIN);
    if (name.isEmpty() || m_names.contains(name)) {
        return;
    }
    m_context.findings.report(
        EXECUTION_PLUGIN_UNKNOWN,
        {config.element(TAG_EXECUTIONPLUGIN), item + QStringLiteral(".executionPlugin")},
        {Texts::tr("The execution plug-in '%1' is not in the list of plug-ins.").arg(shown(name)),
         name, Texts::tr("the name of a plug-in"),
         Texts::tr("Add the plug-in, or choose another one.")});
}

void PluginCheck::checkEtherCatMaster()
{
    const QString &plugin = NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER;
    const bool hasPlugin = !m_etherCatPlugin.element.isNull();
    const bool hasFile = !m_etherCatFile.element.isNull();
    if (hasPlugin && !hasFile) {
        m_context.findings.report(
            ETHERCAT_FILE_MISSING, m_etherCatPlugin,
            {Texts::tr("The plug-in '%1' has no bus configuration.").arg(plugin), QString(),
             Texts::tr("a file in '%1'").arg(TAG_ETHERCATMASTER), QString()});
    } else if (hasFile && !hasPlugin) {
        m_context.findings.report(
            ETHERCAT_PLUGIN_MISSING, m_etherCatFile,
            {Texts::tr("The bus configuration needs the plug-in '%1', which is missing.")
                 .arg(plugin),
             QString(), Texts::tr("a plug-in '%1'").arg(plugin), QString()});
    }
}
