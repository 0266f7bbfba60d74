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
                                         int (*run)(const SCommand &, const QStringList &))
{
    registeredCommands().append({QString::fromLatin1(name), QString::fromLatin1(summary), run});
}

CommandLine::CommandLine(const SCommand &command) : m_name(command.name), m_summary(command.summary)
{
    m_parser.addOption({{QStringLiteral("h"), HelpOption}, QStringLiteral("Print this help.")});
    m_parser.addOption({JsonOption, QStringLiteral("Print JSON instead of text.")});
}

void CommandLine::addArgument(const QString &name, const QString &description)
{
    m_parser.addPositionalArgument(name, description);
    m_argumentNames.append(name);
}

void CommandLine::addArguments(const QString &name, const QString &description)
{
    addArgument(name, description);
    m_argumentNames.last() += QStringLiteral("...");
    m_lastIsRepeated = true;
}

void CommandLine::addOption(const QString &name, const QString &description,
                            const QString &valueName)
{
    m_parser.addOption({name, description, valueName});
}

void CommandLine::addExample(const QString &example)
{
    m_examples += QStringLiteral("\n  vrndevice %1 %2").arg(m_name, example);
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
        out.stream() << "Usage: vrndevice " << m_name << " [options] "
                     << m_argumentNames.join(QLatin1Char(' ')) << '\n'
                     << m_summary << '\n'
                     << helpText.mid(helpText.indexOf(QLatin1Char('\n')) + 1)
                     << "\nExample:" << m_examples << '\n';
        m_exitCode = out.finish();
        return false;
    }
    const int given = m_parser.positionalArguments().size();
    const int expected = m_argumentNames.size();
    if (m_lastIsRepeated ? given < expected : given != expected) {
        const QString text = m_lastIsRepeated
            ? QStringLiteral("At least %1 argument(s) expected, %2 given.")
            : QStringLiteral("%1 argument(s) expected, %2 given.");
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
    return m_parser.positionalArguments().at(index);
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
    printError(QStringLiteral("%1: %2 Try 'vrndevice %1 --help'.").arg(m_name, what));
    return EXIT_BAD_USAGE;
}
