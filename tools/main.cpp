#include "tools/Command.h"
#include "tools/Output.h"

#include <QCoreApplication>

namespace {

int printHelp()
{
    Output out;
    out.stream() << "Usage: vrndevice COMMAND [ARGUMENTS]\n"
                    "Reads and changes configurations of servo drives and motion controllers.\n"
                    "\nCommands:\n";
    for (const SCommand &command : commands()) {
        out.stream() << "  " << command.name.leftJustified(12) << command.summary << '\n';
    }
    out.stream() << "\nOptions:\n"
                    "  -h, --help     Print this help; behind a command, the command's.\n"
                    "  -v, --version  Print the version.\n"
                    "\nExit codes: 0 done, 1 not done, 2 bad usage, 3 unreadable input.\n";
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
    const QString name = arguments.takeFirst();
    if (name == QLatin1String("-h") || name == QLatin1String("--help")) {
        return printHelp();
    }
    if (name == QLatin1String("-v") || name == QLatin1String("--version")) {
        Output out;
        out.stream() << "vrndevice " << QCoreApplication::applicationVersion() << '\n';
        return out.finish();
    }
    for (const SCommand &command : commands()) {
        if (command.name == name) {
            return command.run(command, arguments);
        }
    }
    printError(QStringLiteral("There is no command '%1'. Try 'vrndevice --help'.").arg(name));
    return EXIT_BAD_USAGE;
}
