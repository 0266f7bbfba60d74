#include "tools/ConfigurationEdit.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to change; - filters standard input."));
    line.addArguments(
        QStringLiteral("PATH"),
        Texts::tr("The entry to add, such as drive[3] or files[a.xml]. Pairs of a path and a value "
                  "may follow, which are then set. Either all changes are made or none."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco 'drive[3]' 'drive[3].name' Gripper"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco 'device.options[-trace]'"));
}

int run(const CommandLine &line)
{
    const QString entry = line.argument(1);
    const QStringList pairs = line.arguments(2);
    if (pairs.size() % 2 != 0) {
        return line.badUsage(Texts::tr("Each path needs a value."));
    }
    QList<CConfigurationItems::SItem> done;
    return editConfiguration(
        line,
        [&](CConfigurationItems &items) {
            return items.add(entry) && setItems(items, pairs, done);
        },
        [&](PrintedText &stream) {
            stream << Texts::tr("Added %1").arg(entry) << '\n';
            print(done, stream);
        },
        [&]() {
            return QJsonObject{{QStringLiteral("added"), entry},
                               {QStringLiteral("items"), toJson(done)}};
        });
}

const CommandRegistration Registration(
    "add",
    QT_TRANSLATE_NOOP("vrndevice",
                      "Add an entry to a list: a drive, a file, a plug-in or an option."),
    describe, run);

} // namespace
