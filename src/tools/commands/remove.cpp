#include "tools/ConfigurationEdit.h"

#include <algorithm>

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to change; - filters standard input."));
    line.addArguments(QStringLiteral("PATH"),
                      Texts::tr("What to remove: list entries, single files or items. Either all "
                                "are removed or none."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco 'drive[2]' 'files[recipes.csv]'"));
}

int run(const CommandLine &line)
{
    const QStringList paths = line.arguments(1);
    return editConfiguration(
        line,
        [&](CConfigurationItems &items) {
            return std::all_of(paths.cbegin(), paths.cend(),
                               [&](const QString &path) { return items.remove(path); });
        },
        [&](PrintedText &stream) {
            for (const QString &path : paths) {
                stream << Texts::tr("Removed %1").arg(path) << '\n';
            }
        },
        [&]() {
            return QJsonObject{{QStringLiteral("removed"), QJsonArray::fromStringList(paths)}};
        });
}

const CommandRegistration Registration(
    "remove", QT_TRANSLATE_NOOP("vrndevice", "Remove entries, files or items of a configuration."),
    describe, run);

} // namespace
