#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QRegExp>
#include <QString>

/**
 * Names and patterns of device configurations, and the classes of devices they describe.
 *
 * The configuration names that contain "setup", "failsafe" or "mount error" belong to the device
 * itself. The regular expressions are case-sensitive and stand beside their texts, so that a
 * caller can build its own expression or validator from the same pattern.
 *
 * The strings may be read from any thread. A QRegExp changes itself even when it is constant: it is
 * compiled when it is first used or copied, and keeps the captures of its last match. So only one
 * thread may touch these; any other one builds its own from the text of the pattern.
 */
namespace NDeviceConf {

/** Name of the configuration with which a device leaves the factory. */
extern VRNDEVICECORE_EXPORT const QString FACTORY_CONFIGURATION_NAME;

/** @name Texts of the patterns */
///@{
extern VRNDEVICECORE_EXPORT const QString FACTORY_CONFIGURATION_PATTERN;
extern VRNDEVICECORE_EXPORT const QString FAILSAFE_CONFIGURATION_PATTERN;
extern VRNDEVICECORE_EXPORT const QString MOUNTERROR_CONFIGURATION_PATTERN;
/** Any name that is reserved for the device. */
extern VRNDEVICECORE_EXPORT const QString NAME_CHECK_PATTERN;
/** What a user may enter as a configuration name; a number in parentheses may follow the name. */
extern VRNDEVICECORE_EXPORT const QString NAME_INPUT_PATTERN;
///@}

/** @name The same patterns as regular expressions, for exact matches */
///@{
extern VRNDEVICECORE_EXPORT const QRegExp FACTORY_CONFIGURATION_REGEXP;
extern VRNDEVICECORE_EXPORT const QRegExp FAILSAFE_CONFIGURATION_REGEXP;
extern VRNDEVICECORE_EXPORT const QRegExp MOUNTERROR_CONFIGURATION_REGEXP;
extern VRNDEVICECORE_EXPORT const QRegExp NAME_CHECK_REGEXP;
///@}

/** Name of the plug-in that marks a configuration as having an EtherCAT master. */
extern VRNDEVICECORE_EXPORT const QString PLUGIN_NAME_ETHERCAT_MASTER;

/**
 * Class of the device that a configuration describes. For the text forms see
 * CAbstractDeviceConfigurationFile::deviceClassToStr().
 */
enum EDeviceClass : qint32 {
    DEVICE_CLASS_UNDEFINED = 0,
    /** A controller of the KC2 series. */
    DEVICE_CLASS_KC2 = 1,
    /** A drive controller of the KD3 series. */
    DEVICE_CLASS_KD3 = 2
};

} // namespace NDeviceConf
