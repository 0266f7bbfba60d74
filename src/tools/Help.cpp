#include "tools/Help.h"

#include "tools/Output.h"

namespace {

const int LineLength = 80;
const int Indentation = 2;
/** Where the explanations begin at the latest. */
const int WidestTerm = 28;

struct SRow {
    QString term;
    QString explanation;
};

/** A space at which no line is broken becomes an ordinary one. */
void printParagraph(const QString &text, Output &out)
{
    for (QString &line : wrapped(text, LineLength)) {
        out.text() << line.replace(QChar::Nbsp, QLatin1Char(' ')) << '\n';
    }
}

/** How wide the terms are, but for those that get a line of their own. */
int width(const QList<SRow> &rows)
{
    int widest = 0;
    for (const SRow &row : rows) {
        if (row.term.size() <= WidestTerm) {
            widest = qMax(widest, row.term.size());
        }
    }
    return widest;
}

/** Prints nothing when there are no rows. */
void printSection(const QString &title, const QList<SRow> &rows, int termWidth, Output &out)
{
    if (rows.isEmpty()) {
        return;
    }
    out.text() << '\n' << title << '\n';
    const int column = Indentation + termWidth + Indentation;
    for (const SRow &row : rows) {
        QString start = QString(Indentation, QLatin1Char(' ')) + row.term;
        if (row.term.size() > termWidth) {
            out.text() << start << '\n';
            start.clear();
        }
        for (const QString &line : wrapped(row.explanation, LineLength - column)) {
            out.text() << start.leftJustified(column) << line << '\n';
            start.clear();
        }
    }
}

QList<SRow> rows(const QList<SCommand> &list)
{
    QList<SRow> result;
    for (const SCommand &command : list) {
        result.append({command.name, command.summary()});
    }
    return result;
}

QList<SRow> rows(const QList<CommandLine::SOption> &options)
{
    QList<SRow> result;
    for (const CommandLine::SOption &option : options) {
        result.append({shownForm(option), option.description});
    }
    return result;
}

QList<SRow> rows(const QList<CommandLine::SArgument> &arguments)
{
    QList<SRow> result;
    for (const CommandLine::SArgument &argument : arguments) {
        result.append({argument.name, argument.description});
    }
    return result;
}

} // namespace

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

QStringList firstWords()
{
    QStringList words;
    for (const SCommand &command : commands()) {
        words.append(command.name.section(QLatin1Char(' '), 0, 0));
    }
    words.removeDuplicates();
    return words;
}

QStringList wrapped(const QString &text, int length)
{
    QStringList result;
    QString line;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > length) {
            result.append(line);
            line.clear();
        }
        line += line.isEmpty() ? word : QLatin1Char(' ') + word;
    }
    result.append(line);
    return result;
}

QString purpose()
{
    return Texts::tr("Reads, checks and changes configurations of servo drives and motion "
                     "controllers, and the files that the devices keep.");
}

QList<CommandLine::SOption> optionsOfTool()
{
    return {{{QStringLiteral("h"), QStringLiteral("help")},
             Texts::tr("Print this help; after a command, the help of the command."),
             QString(),
             {},
             {}},
            {{QStringLiteral("v"), QStringLiteral("version")},
             Texts::tr("Print the version."),
             QString(),
             {},
             {}}};
}

QString shownForm(const CommandLine::SOption &option)
{
    QStringList names;
    for (const QString &name : option.names) {
        names.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    }
    const QString form = names.join(QStringLiteral(", "));
    const QString value =
        option.choices.isEmpty() ? option.valueName : option.choices.join(QLatin1Char('|'));
    return value.isEmpty() ? form : QStringLiteral("%1 <%2>").arg(form, value);
}

QList<SExitCode> exitCodes()
{
    return {{EXIT_DONE, Texts::tr("done")},
            {EXIT_NOT_DONE, Texts::tr("not done, findings or differences")},
            {EXIT_BAD_USAGE, Texts::tr("bad usage")},
            {EXIT_UNREADABLE_INPUT, Texts::tr("unreadable input")}};
}

int printHelp()
{
    Output out;
    out.text() << Texts::tr("Usage: vrndevice COMMAND [ARGUMENTS]") << '\n';
    printParagraph(purpose(), out);
    const QList<SRow> commandRows = rows(commands());
    const QList<SRow> optionRows = rows(optionsOfTool());
    const int termWidth = width(commandRows + optionRows);
    printSection(Texts::tr("Commands:"), commandRows, termWidth, out);
    printSection(Texts::tr("Options:"), optionRows, termWidth, out);
    QStringList codes;
    for (const SExitCode &exitCode : exitCodes()) {
        codes.append(QString::number(exitCode.code) + QChar::Nbsp + exitCode.meaning);
    }
    out.text() << '\n';
    printParagraph(Texts::tr("Exit codes: %1.").arg(codes.join(QStringLiteral(", "))), out);
    return out.finish();
}

int printHelp(const QString &group)
{
    Output out;
    out.text() << Texts::tr("Usage: vrndevice %1 COMMAND [ARGUMENTS]").arg(group) << '\n';
    const QList<SRow> commandRows = rows(commandsOfGroup(group));
    printSection(Texts::tr("Commands:"), commandRows, width(commandRows), out);
    return out.finish();
}

int printHelp(const CommandLine &line)
{
    Output out;
    printParagraph(Texts::tr("Usage: %1").arg(line.usage()), out);
    printParagraph(line.summary(), out);
    const QList<SRow> optionRows = rows(line.describedOptions());
    const QList<SRow> argumentRows = rows(line.describedArguments());
    const int termWidth = width(optionRows + argumentRows);
    printSection(Texts::tr("Options:"), optionRows, termWidth, out);
    printSection(Texts::tr("Arguments:"), argumentRows, termWidth, out);
    const QStringList examples = line.examples();
    out.text() << '\n'
               << (examples.size() > 1 ? Texts::tr("Examples:") : Texts::tr("Example:")) << '\n';
    for (const QString &example : examples) {
        out.text() << "  " << example << '\n';
    }
    return out.finish();
}
