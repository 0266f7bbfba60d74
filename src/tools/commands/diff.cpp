#include "commissioning/CConfigurationComparison.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("BEFORE"),
                     Texts::tr("The configuration to start from; - is standard input."));
    line.addArgument(QStringLiteral("AFTER"),
                     Texts::tr("The configuration to compare with it; - is standard input."));
    line.addExample(QStringLiteral("old/DeviceConfiguration.3deco DeviceConfiguration.3deco"));
    line.addExample(QStringLiteral("--json old.3deco new.3deco > new.patch.json"));
}

int run(const CommandLine &line)
{
    if (isStandardStream(line.argument(0)) && isStandardStream(line.argument(1))) {
        return line.badUsage(Texts::tr("Only one file can be standard input."));
    }
    CDeviceConfigurationFile10 before(nullptr);
    CDeviceConfigurationFile10 after(nullptr);
    if (!openConfiguration(line.argument(0), before)
        || !openConfiguration(line.argument(1), after)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const CConfigurationPatch patch = CConfigurationComparison::compare(before, after);
    Output out;
    if (line.wantsJson()) {
        out.exact() << QString::fromUtf8(patch.toJson());
    } else {
        const QStringList lines = patch.describe();
        for (const QString &text : lines) {
            out.text() << text << '\n';
        }
    }
    const int written = out.finish();
    return written == EXIT_DONE && !patch.isEmpty() ? EXIT_FINDINGS : written;
}

const CommandRegistration
    Registration("diff",
                 QT_TRANSLATE_NOOP("vrndevice", "Show the differences between two configurations."),
                 describe, run);

} // namespace
