#include "tools/ConfigurationEdit.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to change; - filters standard input."));
    line.addArgument(QStringLiteral("PATH"), Texts::tr("The item to set."));
    line.addArguments(
        QStringLiteral("VALUE"),
        Texts::tr("Its new value. More pairs of PATH and VALUE may follow; either all are set or "
                  "none. Write -- before a value that begins with a hyphen."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco 'drive[2].busId' 1003"));
    line.addExample(
        QStringLiteral("DeviceConfiguration.3deco 'device.plugins[motion].priority' -- -5"));
}

int run(const CommandLine &line)
{
    const QStringList pairs = line.arguments(1);
    if (pairs.size() % 2 != 0) {
        return line.badUsage(Texts::tr("Each path needs a value."));
    }
    QList<CConfigurationItems::SItem> done;
    return editConfiguration(
        line, [&](CConfigurationItems &items) { return setItems(items, pairs, done); },
        [&](PrintedText &stream) { print(done, stream); },
        [&]() {
            return QJsonObject{{QStringLiteral("items"), toJson(done)}};
        });
}

const CommandRegistration Registration(
    "set",
    QT_TRANSLATE_NOOP("vrndevice", "Set items of a configuration and keep the rest unchanged."),
    describe, run);

} // namespace
