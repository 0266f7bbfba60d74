#include "imported/CPath.h"

namespace {
const QLatin1Char Separator('/');
}

const QString CPath::CPATH_COMPANY = QStringLiteral("velkor/");
const QString CPath::CPATH_CONF = QStringLiteral("conf/");
const QString CPath::CPATH_LOG = QStringLiteral("log/");
const QString CPath::CPATH_PLUGINS = QStringLiteral("plugins/");
const QString CPath::CPATH_CCONF = QStringLiteral("etc/conf/");

QString CPath::ensurePathSeparatorAtEnd(const QString &path)
{
    return path.endsWith(Separator) ? path : path + Separator;
}

QString CPath::ensurePathSeparatorAtStart(const QString &path)
{
    return path.startsWith(Separator) ? path : Separator + path;
}

QString CPath::removePathSeparatorAtStart(const QString &path)
{
    int start = 0;
    while (start < path.size() && path.at(start) == Separator) {
        ++start;
    }
    return path.mid(start);
}
