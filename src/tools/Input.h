#pragma once

#include "configfile/CDeviceConfigurationFile10.h"

#include <QByteArray>
#include <QString>

/** What a command does with a file. */
enum class EAccess {
    /** It may also be a pipe or another device, such as /dev/stdin, which has its bytes only once.
     */
    READ,
    /** It is written in the end, and so must be a regular file. */
    CHANGE
};

/** What stands for standard input in place of a file to read, and for standard output. */
bool isStandardStream(const QString &path);
/** Whether what is read of @p path cannot be read again: standard input, pipes, other devices. */
bool isReadOnce(const QString &path);
/** How a file is called in messages: its path, or "standard input". */
QString shownName(const QString &path);

/**
 * Reads the file @p path, of at most @p maximumSize bytes.
 * @return false when that fails; @p reason says why
 */
bool readFile(const QString &path, EAccess access, qint64 maximumSize, QByteArray &content,
              QString &reason);
/**
 * Reads the file @p path, or standard input, of at most the size of a configuration.
 * @return false when that fails; @p reason says why
 */
bool readInput(const QString &path, QByteArray &content, QString &reason,
               EAccess access = EAccess::READ);

/**
 * Opens the configuration @p path, or reads it from standard input.
 * @return false when that fails; the reason has been printed
 */
bool openConfiguration(const QString &path, CDeviceConfigurationFile10 &file,
                       EAccess access = EAccess::READ);
/**
 * Saves the configuration as @p path, or writes it to standard output.
 * @return EXIT_DONE, or EXIT_NOT_DONE when that fails; the reason has been printed
 */
int saveConfiguration(const QString &path, CDeviceConfigurationFile10 &file);

/**
 * Opens the configuration @p path and reads its device.
 * @return false when that fails, also because there is no device; the reason has been printed
 */
bool readDevice(const QString &path, CDeviceConfigurationFile10 &file, CDeviceElement &device,
                EAccess access = EAccess::READ);

/** Prints that the file @p path cannot be read, and why. @return EXIT_UNREADABLE_INPUT */
int reportUnreadable(const QString &path, const QString &reason);
/** Prints why the file @p path could not be saved. @return EXIT_NOT_DONE */
int reportNotSaved(const QString &path, const QString &reason);
