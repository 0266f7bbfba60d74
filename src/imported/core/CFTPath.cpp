#include "imported/CFTPath.h"

#include "imported/CPath.h"

#include <QList>

const QString CFTPath::PATH_CONFIGURATIONS = QStringLiteral("configurations/");
const QString CFTPath::PATH_CONF = QStringLiteral("conf/");
const QString CFTPath::PATH_PARAM = QStringLiteral("param/");
const QString CFTPath::PATH_SUBDEVICES = QStringLiteral("subdevices/");
const QString CFTPath::PATH_FIRMWARE = QStringLiteral("firmware/");
const QString CFTPath::PATH_LOGIC = QStringLiteral("logic/");
const QString CFTPath::PATH_AUTOSTART = QStringLiteral("autostart/");
const QString CFTPath::PATH_BIN = QStringLiteral("bin/");

namespace {

struct EntryPointRoot {
    CFTPath::EEntryPoint entryPoint;
    QString root;
};

const QList<EntryPointRoot> &entryPointRoots()
{
    static const QString sm = QLatin1Char('/') + CPath::CPATH_COMPANY;
    static const QString opt = QStringLiteral("/opt/") + CPath::CPATH_COMPANY;
    static const QList<EntryPointRoot> roots = {
        {CFTPath::ENTRY_POINT_SM, sm},
        {CFTPath::ENTRY_POINT_SM_CONFIGURATIONS, sm + CFTPath::PATH_CONFIGURATIONS},
        {CFTPath::ENTRY_POINT_SM_LOG, sm + CPath::CPATH_LOG},
        {CFTPath::ENTRY_POINT_OPT, opt},
        {CFTPath::ENTRY_POINT_OPT_CONFIGURATIONS, opt + CFTPath::PATH_CONFIGURATIONS},
        {CFTPath::ENTRY_POINT_OPT_PLUGINS, opt + CPath::CPATH_PLUGINS},
    };
    return roots;
}

} // namespace

CFTPath::EEntryPoint CFTPath::fromPath(const QString &path)
{
    const QString directory = CPath::ensurePathSeparatorAtEnd(path);
    EEntryPoint best = ENTRY_POINT_UNKNOWN;
    int bestLength = 0;
    for (const EntryPointRoot &candidate : entryPointRoots()) {
        if (candidate.root.size() > bestLength && directory.startsWith(candidate.root)) {
            best = candidate.entryPoint;
            bestLength = candidate.root.size();
        }
    }
    return best;
}

QString CFTPath::toPath(EEntryPoint entryPoint)
{
    for (const EntryPointRoot &candidate : entryPointRoots()) {
        if (candidate.entryPoint == entryPoint) {
            return candidate.root;
        }
    }
    return QString();
}
