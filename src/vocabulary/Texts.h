#pragma once

#include <QCoreApplication>

/**
 * The texts for users. Each namespace is one context of the catalogue; a source says with a
 * using-declaration which one its texts belong to. lupdate follows such a declaration, but neither
 * an alias nor a macro.
 */
namespace DeviceConfigurationFileTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceConfigurationFile)
};
} // namespace DeviceConfigurationFileTexts

namespace DeviceConfigurationFile10Texts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceConfigurationFile10)
};
} // namespace DeviceConfigurationFile10Texts

namespace DeviceSettingsFileBaseTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceSettingsFileBase)
};
} // namespace DeviceSettingsFileBaseTexts

namespace NetworkSettingsCheckTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CNetworkSettingsCheck)
};
} // namespace NetworkSettingsCheckTexts

namespace OptionModuleFileNameTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(COptionModuleFileName)
};
} // namespace OptionModuleFileNameTexts

namespace ItemValueTexts {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ItemValue)
};
} // namespace ItemValueTexts
