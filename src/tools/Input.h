#pragma once

#include "configfile/CDeviceConfigurationFile10.h"

#include <QByteArray>
#include <QString>

/** What stands for standard input in place of a file to read, and for standard output. */
bool isStandardStream(const QString &path);
/** How a file is called in messages: its path, or "standard input". */
QString shownName(const QString &path);

/** Reads the file @p path, or standard input. @return false when that fails; @p reason says why */
bool readInput(const QString &path, QByteArray &content, QString &reason);

/**
 * Opens the configuration @p path, or reads it from standard input.
 * @return false when that fails; the reason has been printed
 */
bool openConfiguration(const QString &path, CDeviceConfigurationFile10 &file);
/**
 * Saves the configuration as @p path, or writes it to standard output.
 * @return EXIT_DONE, or EXIT_NOT_DONE when that fails; the reason has been printed
 */
int saveConfiguration(const QString &path, CDeviceConfigurationFile10 &file);

/**
 * Opens the configuration @p path and reads its device.
 * @return false when that fails, also because there is no device; the reason has been printed
 */
bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device);

/** Prints that the file @p path cannot be read, and why. @return EXIT_UNREADABLE_INPUT */
int reportUnreadable(const QString &path, const QString &reason);
/** Prints why the file @p path could not be saved. @return EXIT_NOT_DONE */
int reportNotSaved(const QString &path, const QString &reason);
