#include "tools/Command.h"

#include "commissioning/items/NearestName.h"
#include "tools/Help.h"
#include "tools/Output.h"

#include <algorithm>

namespace {

QList<SCommand> &registeredCommands()
{
    static QList<SCommand> list;
    return list;
}

const QString HelpOption = QStringLiteral("help");
const QString JsonOption = QStringLiteral("json");

/** An option as it stands on the command line. */
QString written(const QString &name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

/** Files need not be called as it is usual. */
bool isPossible(const QString &given, const QStringList &choices, const QStringList &fileNames)
{
    return choices.isEmpty() || !fileNames.isEmpty() || choices.contains(given);
}

/** "A, B or C" */
QString anyOf(const QStringList &choices)
{
    return choices.size() < 2
        ? choices.join(QString())
        : Texts::tr("%1 or %2")
              .arg(choices.mid(0, choices.size() - 1).join(QStringLiteral(", ")), choices.last());
}

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
    m_wasOptionAdded = false;
}

void CommandLine::add(const SOption &option)
{
    m_options.append(option);
    m_wasOptionAdded = true;
}

void CommandLine::addArgument(const QString &name, const QString &description,
                              const QStringList &choices)
{
    add(SArgument{name, description, false, false, choices, {}});
}

void CommandLine::addOptionalArgument(const QString &name, const QString &description)
{
    add(SArgument{name, description, false, true, {}, {}});
}

void CommandLine::addArguments(const QString &name, const QString &description)
{
    add(SArgument{name, description, true, false, {}, {}});
}

void CommandLine::setFileNames(const QStringList &patterns)
{
    (m_wasOptionAdded ? m_options.last().fileNames : m_arguments.last().fileNames) = patterns;
}

void CommandLine::addOption(const QString &name, const QString &description,
                            const QString &valueName, const QStringList &choices)
{
    add(SOption{{name}, description, valueName, choices, {}});
}

void CommandLine::addOption(QChar letter, const QString &name, const QString &description,
                            const QString &valueName, const QStringList &choices)
{
    add(SOption{{QString(letter), name}, description, valueName, choices, {}});
}

void CommandLine::withoutJson()
{
    const auto isJson = [](const SOption &option) { return option.names.last() == JsonOption; };
    m_options.erase(std::remove_if(m_options.begin(), m_options.end(), isJson), m_options.end());
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

const CommandLine::SOption *CommandLine::option(const QString &name) const
{
    const auto found =
        std::find_if(m_options.constBegin(), m_options.constEnd(),
                     [&name](const SOption &option) { return option.names.contains(name); });
    return found == m_options.constEnd() ? nullptr : &*found;
}

QString CommandLine::noSuchOption(const QString &given) const
{
    QStringList names;
    for (const SOption &option : m_options) {
        names.append(written(option.names.last()));
    }
    // A word with one hyphen instead of two is not reported as an unknown letter.
    const bool isShort = !given.startsWith(QLatin1String("--"));
    const QString nearest = nearestName(isShort ? QLatin1Char('-') + given : given, names);
    return nearest.isEmpty()
        ? Texts::tr("Unknown option '%1'.").arg(given)
        : Texts::tr("Unknown option '%1'. Did you mean '%2'?").arg(given, nearest);
}

/** Takes "-ab", "-aVALUE" and "-a=VALUE"; @p following are the words behind it. */
QString CommandLine::sortLetters(const QString &word, QStringList &following)
{
    for (int position = 1; position < word.size(); ++position) {
        const QString letter = word.at(position);
        const SOption *const found = option(letter);
        if (found == nullptr) {
            return noSuchOption(position == 1 ? word : written(letter));
        }
        QStringList &values = m_givenValues[found->names.last()];
        const QString rest = word.mid(position + 1);
        const bool hasEqualsSign = rest.startsWith(QLatin1Char('='));
        if (found->valueName.isEmpty()) {
            if (hasEqualsSign) {
                return Texts::tr("%1 takes no value.").arg(written(letter));
            }
            values.append(QString());
        } else if (!rest.isEmpty()) {
            values.append(hasEqualsSign ? rest.mid(1) : rest);
            break;
        } else if (following.isEmpty()) {
            return Texts::tr("The value of %1 is missing.").arg(written(letter));
        } else {
            values.append(following.takeFirst());
        }
    }
    return QString();
}

/** Separates options from arguments. @return what is wrong; empty when nothing is */
QString CommandLine::sort(const QStringList &given)
{
    QStringList words = given;
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        if (word == QLatin1String("--")) {
            m_givenArguments += words;
            break;
        }
        if (!word.startsWith(QLatin1Char('-')) || word.size() == 1) {
            m_givenArguments.append(word);
            continue;
        }
        if (!word.startsWith(QLatin1String("--"))) {
            QString what = sortLetters(word, words);
            if (!what.isEmpty()) {
                return what;
            }
            continue;
        }
        const QString shown = word.section(QLatin1Char('='), 0, 0);
        const bool hasValue = shown.size() < word.size();
        const QString name = shown.mid(2);
        const SOption *const found = name.size() > 1 ? option(name) : nullptr;
        if (found == nullptr) {
            return noSuchOption(shown);
        }
        const bool takesValue = !found->valueName.isEmpty();
        if (hasValue && !takesValue) {
            return Texts::tr("%1 takes no value.").arg(shown);
        }
        if (takesValue && !hasValue && words.isEmpty()) {
            return Texts::tr("The value of %1 is missing.").arg(shown);
        }
        m_givenValues[name].append(
            takesValue ? (hasValue ? word.mid(shown.size() + 1) : words.takeFirst()) : QString());
    }
    return QString();
}

/** What is wrong with the arguments and values that were given; empty when nothing is. */
QString CommandLine::problem() const
{
    for (const SOption &option : m_options) {
        for (const QString &value : m_givenValues.value(option.names.last())) {
            if (!isPossible(value, option.choices, option.fileNames)) {
                return Texts::tr("%1 must be %2.")
                    .arg(written(option.names.last()), anyOf(option.choices));
            }
        }
    }
    int index = 0;
    for (const SArgument &argument : m_arguments) {
        if (index >= m_givenArguments.size()) {
            return argument.isOptional
                ? QString()
                : Texts::tr("The argument %1 is missing.").arg(argument.name);
        }
        if (!isPossible(m_givenArguments.at(index), argument.choices, argument.fileNames)) {
            return Texts::tr("%1 must be %2.").arg(argument.name, anyOf(argument.choices));
        }
        index = argument.isRepeated ? m_givenArguments.size() : index + 1;
    }
    return index == m_givenArguments.size()
        ? QString()
        : Texts::tr("Unexpected argument '%1'.").arg(m_givenArguments.at(index));
}

bool CommandLine::parse(const QStringList &arguments)
{
    QString what = sort(arguments);
    if (what.isEmpty() && isSet(HelpOption)) {
        m_exitCode = printHelp(*this);
        return false;
    }
    if (what.isEmpty()) {
        what = problem();
    }
    if (!what.isEmpty()) {
        m_exitCode = badUsage(what);
    }
    return what.isEmpty();
}

int CommandLine::exitCode() const
{
    return m_exitCode;
}

QString CommandLine::argument(int index) const
{
    return m_givenArguments.value(index);
}

QStringList CommandLine::arguments(int index) const
{
    return m_givenArguments.mid(index);
}

bool CommandLine::isSet(const QString &option) const
{
    return m_givenValues.contains(option);
}

QString CommandLine::value(const QString &option) const
{
    const QStringList given = values(option);
    return given.isEmpty() ? QString() : given.last();
}

QStringList CommandLine::values(const QString &option) const
{
    return m_givenValues.value(option);
}

bool CommandLine::wantsJson() const
{
    return isSet(JsonOption);
}

int CommandLine::badUsage(const QString &what) const
{
    printError(Texts::tr("%1: %2 Try 'vrndevice %1 --help'.").arg(m_name, what));
    return EXIT_BAD_USAGE;
}
