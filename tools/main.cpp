#include "tools/Command.h"
#include "tools/Output.h"

#include <QCoreApplication>

namespace {

bool isHelp(const QString &argument)
{
    return argument == QLatin1String("-h") || argument == QLatin1String("--help");
}

void printCommands(const QList<SCommand> &list, Output &out)
{
    out.stream() << "\nCommands:\n";
    QList<QStringList> rows;
    for (const SCommand &command : list) {
        rows.append({QStringLiteral("  ") + command.name, command.summary()});
    }
    out.printColumns(rows);
}

int printHelp()
{
    Output out;
    out.stream() << "Usage: vrndevice COMMAND [ARGUMENTS]\n"
                    "Reads and changes configurations of servo drives and motion controllers, and "
                    "the files that\nthe devices keep.\n";
    printCommands(commands(), out);
    out.stream() << "\nOptions:\n"
                    "  -h, --help     Print this help; behind a command, the command's.\n"
                    "  -v, --version  Print the version.\n"
                    "\nExit codes: 0 done, 1 not done, 2 bad usage, 3 unreadable input.\n";
    return out.finish();
}

QList<SCommand> commandsOfGroup(const QString &group)
{
    QList<SCommand> result;
    for (const SCommand &command : commands()) {
        if (command.name.startsWith(group + QLatin1Char(' '))) {
            result.append(command);
        }
    }
    return result;
}

int printGroupHelp(const QString &group)
{
    Output out;
    out.stream() << "Usage: vrndevice " << group << " COMMAND [ARGUMENTS]\n";
    printCommands(commandsOfGroup(group), out);
    return out.finish();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vrndevice"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VRN_VERSION));

    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        printError(QStringLiteral("No command given. Try 'vrndevice --help'."));
        return EXIT_BAD_USAGE;
    }
    QString name = arguments.takeFirst();
    if (isHelp(name)) {
        return printHelp();
    }
    if (name == QLatin1String("-v") || name == QLatin1String("--version")) {
        Output out;
        out.stream() << "vrndevice " << QCoreApplication::applicationVersion() << '\n';
        return out.finish();
    }
    if (!commandsOfGroup(name).isEmpty()) {
        if (arguments.isEmpty()) {
            printError(
                QStringLiteral("Which command of '%1'? Try 'vrndevice %1 --help'.").arg(name));
            return EXIT_BAD_USAGE;
        }
        if (isHelp(arguments.constFirst())) {
            return printGroupHelp(name);
        }
        name += QLatin1Char(' ') + arguments.takeFirst();
    }
    for (const SCommand &command : commands()) {
        if (command.name == name) {
            CommandLine line(command);
            return line.parse(arguments) ? command.run(line) : line.exitCode();
        }
    }
    printError(QStringLiteral("There is no command '%1'. Try 'vrndevice --help'.").arg(name));
    return EXIT_BAD_USAGE;
}
