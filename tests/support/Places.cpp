#include "support/Places.h"

QString Places::source(const char *path)
{
    const QString root = QStringLiteral(VRN_SOURCE_DIR);
    return *path == '\0' ? root : root + QLatin1Char('/') + QString::fromUtf8(path);
}

QString Places::data(const char *path)
{
    return source("tests/data/") + QString::fromUtf8(path);
}

QString Places::tool()
{
    return QStringLiteral(VRN_TOOL);
}
