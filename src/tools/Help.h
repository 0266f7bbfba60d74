#pragma once

#include "tools/Command.h"

/** The help texts, in lines of at most 80 characters. They return an exit code. */

/** The help on the tool itself. */
int printHelp();
/** The help on the commands that begin with the word @p group. */
int printHelp(const QString &group);
/** The help on one command. */
int printHelp(const CommandLine &line);

/** The commands whose first word is @p group; empty if it is not the name of a group. */
QList<SCommand> commandsOfGroup(const QString &group);
/** The words that may follow the name of the tool: commands and groups of commands, in order. */
QStringList firstWords();

/** @p text in lines of at most @p length characters, broken at spaces where possible. */
QStringList wrapped(const QString &text, int length);

/** What the tool is for. */
QString purpose();
/** The options that stand in place of a command, and what they do. */
QList<CommandLine::SOption> optionsOfTool();
/** "-o, --option <VALUE>" */
QString shownForm(const CommandLine::SOption &option);

struct SExitCode {
    int code;
    /** One or a few words, in lower case. */
    QString meaning;
};
/** Every exit code that there is. */
QList<SExitCode> exitCodes();
