#include "tools/Command.h"
#include "tools/Help.h"
#include "tools/Output.h"

// Completion scripts for three shells, written from the table of commands: for each place on the
// command line what can stand there.

namespace {

using SArgument = CommandLine::SArgument;
using SOption = CommandLine::SOption;

/** What can stand in one place of a command line. */
struct SOffer {
    QStringList words;
    /** How the files are called. */
    QStringList files;
    bool directories = false;
};

const QStringList AnyFile = {QStringLiteral("*")};

/** @p otherFiles what to offer where nothing is known */
SOffer offer(const QString &name, const QStringList &choices, const QStringList &fileNames,
             const QStringList &otherFiles)
{
    if (!choices.isEmpty() || !fileNames.isEmpty()) {
        return {choices, fileNames, false};
    }
    if (name.contains(QLatin1String("DIR"))) {
        return {{}, {}, true};
    }
    return {{}, name.contains(QLatin1String("FILE")) ? AnyFile : otherFiles, false};
}

SOffer offer(const SArgument &argument)
{
    // Most arguments are files, whatever they are called: OLD and NEW, for instance.
    const bool isAssignment = argument.name.contains(QLatin1Char('='));
    return offer(argument.name, argument.choices, argument.fileNames,
                 isAssignment ? QStringList() : AnyFile);
}

SOffer offer(const SOption &option)
{
    return offer(option.valueName, option.choices, option.fileNames, {});
}

QString written(const QString &name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

QStringList written(const SOption &option)
{
    QStringList names;
    for (const QString &name : option.names) {
        names.append(written(name));
    }
    return names;
}

/** All names of @p options, or only of those that take a value. */
QString names(const QList<SOption> &options, bool onlyWithValue = false)
{
    QStringList result;
    for (const SOption &option : options) {
        if (!onlyWithValue || !option.valueName.isEmpty()) {
            result += written(option);
        }
    }
    return result.join(QLatin1Char(' '));
}

/** The commands of a group, without its name. */
QStringList secondWords(const QString &group)
{
    QStringList result;
    for (const SCommand &command : commandsOfGroup(group)) {
        result.append(command.name.mid(group.size() + 1));
    }
    return result;
}

QStringList groups()
{
    QStringList result;
    for (const QString &word : firstWords()) {
        if (!commandsOfGroup(word).isEmpty()) {
            result.append(word);
        }
    }
    return result;
}

/** What to say of a word in the place of the command. */
QString summaryOf(const QString &word)
{
    for (const SCommand &command : commands()) {
        if (command.name == word) {
            return command.summary();
        }
    }
    return Texts::tr("Commands: %1").arg(secondWords(word).join(QStringLiteral(", ")));
}

/** @p text as one word of bash or zsh. */
QString quoted(const QString &text)
{
    QString inner = text;
    return QStringLiteral("'%1'").arg(inner.replace(QLatin1Char('\''), QStringLiteral("'\\''")));
}

QStringList quoted(const QStringList &texts)
{
    QStringList result;
    for (const QString &text : texts) {
        result.append(quoted(text));
    }
    return result;
}

// bash ------------------------------------------------------------------------------------------

const char BashStart[] =
    R"(# Completion of vrndevice in bash, written by 'vrndevice completion bash'.

_vrndevice_words()
{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$current")
}

_vrndevice_directories()
{
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$current")
}

# Adds the files with one of the names, and directories on the way there; all files if there are none.
_vrndevice_files()
{
    local pattern words=("${COMPREPLY[@]}")
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(
        for pattern; do
            compgen -f -X "!$pattern" -- "$current"
            compgen -f -X "!*/$pattern" -- "$current"
        done
    )
    [ "${#COMPREPLY[@]}" -gt 0 ] || mapfile -t COMPREPLY < <(compgen -f -- "$current")
    mapfile -t COMPREPLY < <(
        {
            [ "${#COMPREPLY[@]}" -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}"
            compgen -d -- "$current"
        } | LC_ALL=C sort -u
    )
    COMPREPLY=("${words[@]}" "${COMPREPLY[@]}")
}

_vrndevice()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]-} options='' valued='' i first=2 position=0
    COMPREPLY=()
    # Readline makes three words of --option=value.
    if [ "$current" = = ]; then
        current=''
    elif [ "$previous" = = ] && [ "$COMP_CWORD" -gt 2 ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
)";

const char BashPosition[] = R"(    for ((i = first; i < COMP_CWORD; ++i)); do
        if [[ " $valued " == *" ${COMP_WORDS[i]} "* ]]; then
            ((++i))
            [ "${COMP_WORDS[i]-}" != = ] || ((++i))
        elif [[ ${COMP_WORDS[i]} != -* ]]; then
            ((++position))
        fi
    done
)";

QString bashAction(const SOffer &offer)
{
    QStringList actions;
    if (!offer.words.isEmpty()) {
        actions.append(QStringLiteral("_vrndevice_words ")
                       + quoted(offer.words.join(QLatin1Char(' '))));
    }
    if (!offer.files.isEmpty()) {
        actions.append(QStringLiteral("_vrndevice_files ")
                       + quoted(offer.files).join(QLatin1Char(' ')));
    }
    if (offer.directories) {
        actions.append(QStringLiteral("_vrndevice_directories"));
    }
    return actions.isEmpty() ? QStringLiteral(":") : actions.join(QStringLiteral("; "));
}

void printBash(QTextStream &out)
{
    const QString toolOptions = names(optionsOfTool());
    out << BashStart << "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n        _vrndevice_words "
        << quoted(firstWords().join(QLatin1Char(' ')) + QLatin1Char(' ') + toolOptions)
        << "\n        return\n    fi\n    case $command in\n";
    for (const QString &group : groups()) {
        out << "    " << quoted(group) << ")\n        if [ \"$COMP_CWORD\" -eq 2 ]; then\n"
            << "            _vrndevice_words "
            << quoted(secondWords(group).join(QLatin1Char(' ')) + QStringLiteral(" -h --help"))
            << "\n            return\n        fi\n        command+=\" ${COMP_WORDS[2]}\"\n"
            << "        first=3\n        ;;\n";
    }
    out << "    esac\n    case $command in\n";
    for (const SCommand &command : commands()) {
        const QList<SOption> options = CommandLine(command).describedOptions();
        out << "    " << quoted(command.name) << ")\n        options=" << quoted(names(options))
            << "\n        valued=" << quoted(names(options, true)) << "\n        ;;\n";
    }
    out << "    esac\n" << BashPosition << "    case \"$command $previous\" in\n";
    for (const SCommand &command : commands()) {
        for (const SOption &option : CommandLine(command).describedOptions()) {
            if (option.valueName.isEmpty()) {
                continue;
            }
            QStringList patterns;
            for (const QString &name : written(option)) {
                patterns.append(command.name + QLatin1Char(' ') + name);
            }
            out << "    " << quoted(patterns).join(QStringLiteral(" | ")) << ")\n        "
                << bashAction(offer(option)) << "\n        return\n        ;;\n";
        }
    }
    out << "    esac\n    if [[ $current == -* ]]; then\n        _vrndevice_words \"$options\"\n"
        << "        return\n    fi\n    case \"$command $position\" in\n";
    for (const SCommand &command : commands()) {
        int position = 0;
        for (const SArgument &argument : CommandLine(command).describedArguments()) {
            const QString place = argument.isRepeated ? QString() : QString::number(position);
            out << "    " << quoted(command.name + QLatin1Char(' ') + place)
                << (argument.isRepeated ? "*" : "") << ") " << bashAction(offer(argument))
                << " ;;\n";
            ++position;
        }
    }
    out << "    esac\n}\n\ncomplete -F _vrndevice vrndevice\n";
}

// zsh -------------------------------------------------------------------------------------------

const char ZshStart[] = R"(#compdef vrndevice
# Completion of vrndevice in zsh, written by 'vrndevice completion zsh'.

)";

const char ZshEnd[] = R"(
if [ "$funcstack[1]" = _vrndevice ]; then
    _vrndevice "$@"
else
    compdef _vrndevice vrndevice
fi
)";

/** @p text for where colons and brackets would end a part. */
QString zshEscaped(const QString &text)
{
    QString result;
    for (const QChar character : text) {
        if (QStringLiteral("\\:[]").contains(character)) {
            result += QLatin1Char('\\');
        }
        result += character;
    }
    return result;
}

QString zshAction(const SOffer &offer)
{
    QString words;
    QString files;
    if (!offer.words.isEmpty()) {
        words = QStringLiteral("(%1)").arg(offer.words.join(QLatin1Char(' ')));
    }
    if (!offer.files.isEmpty()) {
        files = offer.files == AnyFile
            ? QStringLiteral("_files")
            : QStringLiteral("_files -g \"%1\"").arg(offer.files.join(QLatin1Char(' ')));
    }
    if (!words.isEmpty() && !files.isEmpty()) {
        // A colon would end the action.
        return QStringLiteral("_alternative \"words\\:word\\:%1\" \"files\\:file\\:%2\"")
            .arg(words, files.replace(QLatin1Char('"'), QStringLiteral("\\\"")));
    }
    if (offer.directories) {
        return QStringLiteral("_files -/");
    }
    const QString action = words + files;
    return action.isEmpty() ? QStringLiteral(" ") : action;
}

/**
 * The description of an option for _arguments; an option can be given again, and so it is offered
 * again.
 */
QStringList zshSpecifications(const SOption &option)
{
    QStringList result;
    for (const QString &name : written(option)) {
        const bool takesValue = !option.valueName.isEmpty();
        QString text =
            QStringLiteral("*%1%2[%3]")
                .arg(name, takesValue && name.size() > 2 ? QStringLiteral("=") : QString(),
                     zshEscaped(option.description));
        if (takesValue) {
            text += QStringLiteral(":%1:%2").arg(zshEscaped(option.valueName),
                                                 zshAction(offer(option)));
        }
        result.append(quoted(text));
    }
    return result;
}

QStringList zshSpecifications(const CommandLine &line)
{
    QStringList result;
    for (const SOption &option : line.describedOptions()) {
        result += zshSpecifications(option);
    }
    int position = 0;
    for (const SArgument &argument : line.describedArguments()) {
        ++position;
        const QString place = argument.isRepeated ? QStringLiteral("*") : QString::number(position);
        result.append(
            quoted(QStringLiteral("%1:%2:%3")
                       .arg(place, zshEscaped(argument.name), zshAction(offer(argument)))));
    }
    return result;
}

void printZshWords(const QString &group, const QStringList &words, QTextStream &out)
{
    out << "    (" << quoted(group) << ")\n        list=(\n";
    for (const QString &word : words) {
        const QString name = group.isEmpty() ? word : group + QLatin1Char(' ') + word;
        out << "            " << quoted(zshEscaped(word) + QLatin1Char(':') + summaryOf(name))
            << '\n';
    }
    out << "        )\n        ;;\n";
}

void printZsh(QTextStream &out)
{
    const QString next = QStringLiteral(" \\\n            ");
    out << ZshStart << "_vrndevice_commands()\n{\n    local -a list\n    case $1 in\n";
    printZshWords(QString(), firstWords(), out);
    for (const QString &group : groups()) {
        printZshWords(group, secondWords(group), out);
    }
    out << "    esac\n    _describe -t commands command list\n}\n\n_vrndevice()\n{\n"
        << "    local curcontext=$curcontext state='' command line\n    typeset -A opt_args\n"
        << "    _arguments -C";
    for (const SOption &option : optionsOfTool()) {
        out << next << zshSpecifications(option).join(next);
    }
    out << next << "'1:command: _vrndevice_commands \"\"'" << next << "'*:: :->arguments'\n"
        << "    [ \"$state\" = arguments ] || return\n    command=$words[1]\n"
        << "    case $command in\n    (" << quoted(groups()).join(QLatin1Char('|')) << ")\n"
        << "        state=''\n        _arguments -C" << next
        << quoted(QStringLiteral("*--help[%1]").arg(zshEscaped(Texts::tr("Print this help."))))
        << next << "\"1:command: _vrndevice_commands $command\"" << next
        << "'*:: :->arguments'\n        [ \"$state\" = arguments ] || return\n"
        << "        command+=\" $words[1]\"\n        ;;\n    esac\n    case $command in\n";
    for (const SCommand &command : commands()) {
        out << "    (" << quoted(command.name) << ")\n        _arguments" << next
            << zshSpecifications(CommandLine(command)).join(next) << "\n        ;;\n";
    }
    out << "    esac\n}\n" << ZshEnd;
}

// fish ------------------------------------------------------------------------------------------

const char FishStart[] =
    R"(# Completion of vrndevice in fish, written by 'vrndevice completion fish'.

# Whether what was typed so far is exactly these words.
function __vrndevice_after
    set -l words (commandline -opc)
    test "$words[2..-1]" = "$argv"
end

# Whether these words, the name of a command, were typed, and maybe more.
function __vrndevice_in
    set -l words (commandline -opc)
    set -l last (math (count $argv) + 1)
    test (count $words) -ge $last; and test "$words[2..$last]" = "$argv"
end

complete -c vrndevice -f
)";

QString fishQuoted(const QString &text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    inner.replace(QLatin1Char('\''), QStringLiteral("\\'"));
    return QStringLiteral("'%1'").arg(inner);
}

/** The options of "complete" that define what is offered. */
QString fishAction(const SOffer &offer, bool isValue)
{
    QStringList offers = offer.words;
    if (offer.directories) {
        offers.append(QStringLiteral("(__fish_complete_directories)"));
    }
    bool isAnyFile = false;
    for (const QString &pattern : offer.files) {
        // It knows the ends of names only; other files follow behind those.
        const bool isEnd = pattern.startsWith(QLatin1Char('*'));
        const QString end = isEnd ? pattern.mid(1) : pattern;
        if (end.isEmpty() || end.contains(QLatin1Char('*'))) {
            isAnyFile = true;
        } else {
            offers.append(QStringLiteral("(__fish_complete_suffix %1)").arg(end));
        }
    }
    QString action = isValue ? QStringLiteral(" -r") : QString();
    if (isAnyFile) {
        action += QStringLiteral(" -F");
    } else if (isValue) {
        action += QStringLiteral(" -f");
    }
    return offers.isEmpty()
        ? action
        : action + QStringLiteral(" -k -a ") + fishQuoted(offers.join(QLatin1Char(' ')));
}

void printFishWord(const QString &after, const QString &word, const QString &summary,
                   QTextStream &out)
{
    out << "complete -c vrndevice -n "
        << fishQuoted((QStringLiteral("__vrndevice_after ") + after).trimmed()) << " -a "
        << fishQuoted(word) << " -d " << fishQuoted(summary) << '\n';
}

void printFishOption(const QString &condition, const SOption &option, QTextStream &out)
{
    out << "complete -c vrndevice -n " << fishQuoted(condition);
    for (const QString &name : option.names) {
        out << (name.size() == 1 ? " -s " : " -l ") << name;
    }
    out << (option.valueName.isEmpty() ? QString() : fishAction(offer(option), true)) << " -d "
        << fishQuoted(option.description) << '\n';
}

void printFish(QTextStream &out)
{
    out << FishStart;
    for (const SOption &option : optionsOfTool()) {
        printFishOption(QStringLiteral("__vrndevice_after"), option, out);
    }
    for (const QString &word : firstWords()) {
        printFishWord(QString(), word, summaryOf(word), out);
    }
    for (const SCommand &command : commands()) {
        const QString group = command.name.section(QLatin1Char(' '), 0, -2);
        if (!group.isEmpty()) {
            printFishWord(group, command.name.mid(group.size() + 1), command.summary(), out);
        }
    }
    for (const SCommand &command : commands()) {
        const CommandLine line(command);
        const QString condition = QStringLiteral("__vrndevice_in ") + command.name;
        for (const SOption &option : line.describedOptions()) {
            printFishOption(condition, option, out);
        }
        for (const SArgument &argument : line.describedArguments()) {
            const QString action = fishAction(offer(argument), false);
            if (!action.isEmpty()) {
                out << "complete -c vrndevice -n " << fishQuoted(condition) << action << '\n';
            }
        }
    }
}

struct SShell {
    QString name;
    void (*print)(QTextStream &out);
};

QList<SShell> shells()
{
    return {{QStringLiteral("bash"), printBash},
            {QStringLiteral("zsh"), printZsh},
            {QStringLiteral("fish"), printFish}};
}

void describe(CommandLine &line)
{
    QStringList names;
    for (const SShell &shell : shells()) {
        names.append(shell.name);
    }
    line.withoutJson();
    line.addArgument(QStringLiteral("SHELL"),
                     Texts::tr("The shell: %1.").arg(names.join(QStringLiteral(", "))), names);
    line.addExample(QStringLiteral("bash > ~/.local/share/bash-completion/completions/vrndevice"));
}

int run(const CommandLine &line)
{
    Output out;
    for (const SShell &shell : shells()) {
        if (shell.name == line.argument(0)) {
            shell.print(out.exact());
        }
    }
    return out.finish();
}

const CommandRegistration Registration("completion",
                                       QT_TRANSLATE_NOOP("vrndevice",
                                                         "Print a completion script for a shell."),
                                       describe, run);

} // namespace
