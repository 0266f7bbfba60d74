#include "tools/Command.h"

#include "tools/Output.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QList<SCommand> &registeredCommands()
{
    static QList<SCommand> list;
    return list;
}

const QString HelpOption = QStringLiteral("help");
const QString JsonOption = QStringLiteral("json");

} // namespace

QList<SCommand> commands()
{
    QList<SCommand> sorted = registeredCommands();
    std::sort(sorted.begin(), sorted.end(),
              [](const SCommand &left, const SCommand &right) { return left.name < right.name; });
    return sorted;
}

CommandRegistration::CommandRegistration(const char *name, const char *summary,
                                         void (*describe)(CommandLine &),
                                         int (*run)(const CommandLine &))
{
    registeredCommands().append({QString::fromLatin1(name), summary, describe, run});
}

CommandLine::CommandLine(const SCommand &command)
    : m_name(command.name), m_summary(command.summary())
{
    addOption(QLatin1Char('h'), HelpOption, Texts::tr("Print this help."));
    addOption(JsonOption, Texts::tr("Print JSON instead of text."));
    command.describe(*this);
}

void CommandLine::add(const SArgument &argument)
{
    m_arguments.append(argument);
    m_parser.addPositionalArgument(argument.name, argument.description);
}

void CommandLine::addArgument(const QString &name, const QString &description)
{
    add(SArgument{name, description, false, false});
}

void CommandLine::addOptionalArgument(const QString &name, const QString &description)
{
    add(SArgument{name, description, false, true});
}

void CommandLine::addArguments(const QString &name, const QString &description)
{
    add(SArgument{name, description, true, false});
}

void CommandLine::add(const SOption &option)
{
    m_options.append(option);
    m_parser.addOption({option.names, option.description, option.valueName});
}

void CommandLine::addOption(const QString &name, const QString &description,
                            const QString &valueName, const QStringList &choices)
{
    add(SOption{{name}, description, valueName, choices});
}

void CommandLine::addOption(QChar letter, const QString &name, const QString &description,
                            const QString &valueName)
{
    add(SOption{{QString(letter), name}, description, valueName, {}});
}

void CommandLine::addExample(const QString &example)
{
    m_examples.append(QStringLiteral("vrndevice %1 %2").arg(m_name, example));
}

QString CommandLine::name() const
{
    return m_name;
}

QString CommandLine::summary() const
{
    return m_summary;
}

QList<CommandLine::SArgument> CommandLine::describedArguments() const
{
    return m_arguments;
}

QList<CommandLine::SOption> CommandLine::describedOptions() const
{
    return m_options;
}

QStringList CommandLine::examples() const
{
    return m_examples;
}

QString CommandLine::usage() const
{
    QString text = QStringLiteral("vrndevice %1 [%2]").arg(m_name, Texts::tr("options"));
    for (const SArgument &argument : m_arguments) {
        const QString name =
            argument.isRepeated ? argument.name + QStringLiteral("...") : argument.name;
        text += argument.isOptional ? QStringLiteral(" [%1]").arg(name) : QLatin1Char(' ') + name;
    }
    return text;
}

bool CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(QStringList(QCoreApplication::applicationName()) + arguments)) {
        m_exitCode = badUsage(m_parser.errorText());
        return false;
    }
    if (m_parser.isSet(HelpOption)) {
        Output out;
        // The parser's own usage line does not know the command.
        const QString helpText = m_parser.helpText();
        out.stream() << Texts::tr("Usage: %1").arg(usage()) << '\n'
                     << m_summary << '\n'
                     << helpText.mid(helpText.indexOf(QLatin1Char('\n')) + 1) << '\n'
                     << Texts::tr("Example:") << '\n';
        for (const QString &example : m_examples) {
            out.stream() << "  " << example << '\n';
        }
        m_exitCode = out.finish();
        return false;
    }
    const int given = m_parser.positionalArguments().size();
    int expected = 0;
    bool isOpen = false;
    for (const SArgument &argument : m_arguments) {
        expected += argument.isOptional ? 0 : 1;
        isOpen = isOpen || argument.isRepeated;
    }
    if (given < expected || (!isOpen && given > m_arguments.size())) {
        const bool isAtLeast = isOpen || expected < m_arguments.size();
        const QString text = isAtLeast ? Texts::tr("At least %1 argument(s) expected, %2 given.")
                                       : Texts::tr("%1 argument(s) expected, %2 given.");
        m_exitCode = badUsage(text.arg(expected).arg(given));
        return false;
    }
    return true;
}

int CommandLine::exitCode() const
{
    return m_exitCode;
}

QString CommandLine::argument(int index) const
{
    return m_parser.positionalArguments().value(index);
}

QStringList CommandLine::arguments(int index) const
{
    return m_parser.positionalArguments().mid(index);
}

bool CommandLine::isSet(const QString &option) const
{
    return m_parser.isSet(option);
}

QString CommandLine::value(const QString &option) const
{
    return m_parser.value(option);
}

QStringList CommandLine::values(const QString &option) const
{
    return m_parser.values(option);
}

bool CommandLine::wantsJson() const
{
    return m_parser.isSet(JsonOption);
}

int CommandLine::badUsage(const QString &what) const
{
    printError(Texts::tr("%1: %2 Try 'vrndevice %1 --help'.").arg(m_name, what));
    return EXIT_BAD_USAGE;
}
