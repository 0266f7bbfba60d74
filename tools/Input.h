#pragma once

#include "configfile/CDeviceConfigurationFile10.h"

#include <QString>

/**
 * Opens the configuration @p path and reads its device.
 * @return false when that fails, also because there is no device; the reason has been printed
 */
bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device);

/** Prints that the file @p path cannot be read, and why. @return EXIT_UNREADABLE_INPUT */
int reportUnreadable(const QString &path, const QString &reason);
/** Prints why the file @p path could not be saved. @return EXIT_NOT_DONE */
int reportNotSaved(const QString &path, const QString &reason);
