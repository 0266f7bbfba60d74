#pragma once

#include <QByteArray>

namespace Fuzz {

/** Runs the target named @p name on @p bytes. */
void runTarget(const char *name, const QByteArray &bytes);

} // namespace Fuzz
