#pragma once

#include <QStringList>

/**
 * The one of @p names that somebody who typed @p given most likely meant: few letters are wrong,
 * missing, surplus or exchanged. Empty when nothing is near; the first of those that are as near.
 */
QString nearestName(const QString &given, const QStringList &names);
