#pragma once

#include <QCoreApplication>

/**
 * The texts for users. Each namespace is one context of the catalogue; a source says with a
 * using-declaration which one its texts belong to. lupdate follows such a declaration, but neither
 * an alias nor a macro.
 */
namespace ConfigurationCheckTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationCheck)
};
} // namespace ConfigurationCheckTexts

namespace ConfigurationItemsTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationItems)
};
} // namespace ConfigurationItemsTexts

namespace ConfigurationMergeTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationMerge)
};
} // namespace ConfigurationMergeTexts

namespace ConfigurationPatchTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationPatch)
};
} // namespace ConfigurationPatchTexts

namespace ConfigurationReportTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationReport)
};
} // namespace ConfigurationReportTexts

namespace DeviceManifestTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceManifest)
};
} // namespace DeviceManifestTexts

namespace StagedTreeTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CStagedTree)
};
} // namespace StagedTreeTexts

namespace StagingPlanTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CStagingPlan)
};
} // namespace StagingPlanTexts
