#pragma once

#include "commissioning/CConfigurationItems.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QJsonArray>

#include <functional>

/**
 * Opens the configuration that is the first argument, changes it, saves it, and prints what was
 * done. With standard input, the changed document is all that is printed.
 * @param change false leaves the file as it is; the reason is then printed
 * @param report prints what was done, when JSON is not wanted
 * @param reportJson the same as JSON
 */
int editConfiguration(const CommandLine &line,
                      const std::function<bool(CConfigurationItems &)> &change,
                      const std::function<void(PrintedText &)> &report,
                      const std::function<QJsonObject()> &reportJson);

/**
 * Sets the items that @p pairs tells: path, value, path, value, …
 * @param done what has been set, with the values as they are stored
 */
bool setItems(CConfigurationItems &items, const QStringList &pairs,
              QList<CConfigurationItems::SItem> &done);

/** Prints what the last operation on @p path failed of. @return EXIT_NOT_DONE */
int reportFailure(const QString &path, const CConfigurationItems &items);

/** One "path = value" a line; further lines of a value begin with a tab. */
void print(const QList<CConfigurationItems::SItem> &items, PrintedText &stream);
QJsonArray toJson(const QList<CConfigurationItems::SItem> &items);
