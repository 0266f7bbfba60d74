#include "commissioning/items/NearestName.h"
#include "tools/Command.h"
#include "tools/Help.h"
#include "tools/Output.h"
#include "tools/Translations.h"

#include <QCoreApplication>

namespace {

bool isHelp(const QString &argument)
{
    return argument == QLatin1String("-h") || argument == QLatin1String("--help");
}

/** @p known are the commands that could stand in place of @p name. */
int reportUnknown(const QString &name, const QStringList &known)
{
    const QString nearest = nearestName(name, known);
    printError(nearest.isEmpty()
                   ? Texts::tr("Unknown command '%1'. Try 'vrndevice --help'.").arg(name)
                   : Texts::tr("Unknown command '%1'. Did you mean '%2'?").arg(name, nearest));
    return EXIT_BAD_USAGE;
}

int run(QStringList arguments)
{
    if (arguments.isEmpty()) {
        printError(Texts::tr("The command is missing. Try 'vrndevice --help'."));
        return EXIT_BAD_USAGE;
    }
    QString name = arguments.takeFirst();
    if (isHelp(name)) {
        return printHelp();
    }
    if (name == QLatin1String("-v") || name == QLatin1String("--version")) {
        Output out;
        out.text() << "vrndevice " << QCoreApplication::applicationVersion() << '\n';
        return out.finish();
    }
    QStringList known = firstWords();
    const QList<SCommand> group = commandsOfGroup(name);
    if (!group.isEmpty()) {
        if (arguments.isEmpty()) {
            printError(
                Texts::tr("The command of '%1' is missing. Try 'vrndevice %1 --help'.").arg(name));
            return EXIT_BAD_USAGE;
        }
        if (isHelp(arguments.constFirst())) {
            return printHelp(name);
        }
        name += QLatin1Char(' ') + arguments.takeFirst();
        known.clear();
        for (const SCommand &command : group) {
            known.append(command.name);
        }
    }
    for (const SCommand &command : commands()) {
        if (command.name == name) {
            CommandLine line(command);
            return line.parse(arguments) ? command.run(line) : line.exitCode();
        }
    }
    return reportUnknown(name, known);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vrndevice"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VRN_VERSION));
    installTranslations();
    return run(QCoreApplication::arguments().mid(1));
}
