#pragma once

#include "tools/Texts.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/** How a command ends; the same numbers for every command. */
enum EExitCode {
    EXIT_DONE = 0,
    /** The command could not do what was asked; the file is as it was. */
    EXIT_NOT_DONE = 1,
    /** Something was found: faults, differences, conflicts. */
    EXIT_FINDINGS = 1,
    EXIT_BAD_USAGE = 2,
    /** The input is missing or cannot be read. */
    EXIT_UNREADABLE_INPUT = 3
};

class CommandLine;

/** One row of the table of commands, from which help, manual page and completion are made. */
struct SCommand {
    /** One word, or two: that of a group of commands, and its own. */
    QString name;
    /** Untranslated, see summary(). */
    const char *summaryText;
    /** Describes the arguments and options that the command takes. */
    void (*describe)(CommandLine &line);
    /** Runs with the command line that was given and returns an exit code. */
    int (*run)(const CommandLine &line);

    QString summary() const { return Texts::tr(summaryText); }
};

/** All commands, in the order of their names. */
QList<SCommand> commands();

/** A static object of this class makes a command known; that is all it takes to add one. */
class CommandRegistration
{
public:
    /** @param summary marked with QT_TRANSLATE_NOOP("vrndevice", …) */
    CommandRegistration(const char *name, const char *summary, void (*describe)(CommandLine &),
                        int (*run)(const CommandLine &));
};

/** The command line of one command, with the options that every command has. */
class CommandLine
{
public:
    struct SArgument {
        QString name;
        QString description;
        bool isRepeated = false;
        bool isOptional = false;
        /** The only texts that make sense, beside files; empty when anything may be given. */
        QStringList choices;
        /** Name patterns of suitable files, with wildcards; for the completion only. */
        QStringList fileNames;
    };

    struct SOption {
        /** Without hyphens: a long name, or a single letter for a short one. */
        QStringList names;
        QString description;
        /** Empty for a switch. */
        QString valueName;
        /** The only values that make sense, beside files; empty when anything may be given. */
        QStringList choices;
        /** As for an argument. */
        QStringList fileNames;
    };

    explicit CommandLine(const SCommand &command);

    /** Adds an argument that must be given; with @p choices one of them. */
    void addArgument(const QString &name, const QString &description,
                     const QStringList &choices = {});
    /** Adds an argument that may be given; only optional ones can follow it. */
    void addOptionalArgument(const QString &name, const QString &description);
    /** Adds arguments of which at least one must be given; nothing can follow them. */
    void addArguments(const QString &name, const QString &description);
    /**
     * Sets the file name patterns of the argument or option that was added last. Where there are
     * choices, a file may be given in place of one of them.
     */
    void setFileNames(const QStringList &patterns);
    /** Without @p valueName the option is a switch. */
    void addOption(const QString &name, const QString &description,
                   const QString &valueName = QString(), const QStringList &choices = {});
    /** Adds an option that has a short name of one letter beside the long one. */
    void addOption(QChar letter, const QString &name, const QString &description,
                   const QString &valueName = QString(), const QStringList &choices = {});
    /** Takes away --json, for a command whose output is text by its nature. */
    void withoutJson();
    /** @param example what follows the name of the command */
    void addExample(const QString &example);

    /** What the command is and takes, in the order in which it was added. */
    QString name() const;
    QString summary() const;
    QList<SArgument> describedArguments() const;
    QList<SOption> describedOptions() const;
    /** Whole command lines. */
    QStringList examples() const;
    /** One line that begins with "vrndevice". */
    QString usage() const;

    /**
     * @return whether the command should run; otherwise it is done, with exitCode(), and help or
     *         what is wrong with the arguments has been printed
     */
    bool parse(const QStringList &arguments);
    int exitCode() const;

    /** Empty for an optional argument that is not given. */
    QString argument(int index) const;
    /** The arguments from @p index on. */
    QStringList arguments(int index) const;
    bool isSet(const QString &option) const;
    QString value(const QString &option) const;
    /** The values of an option that may be given more than once. */
    QStringList values(const QString &option) const;
    bool wantsJson() const;

    /** Prints what is wrong with the arguments. @return EXIT_BAD_USAGE */
    int badUsage(const QString &what) const;

private:
    void add(const SArgument &argument);
    void add(const SOption &option);
    /** The option that is called @p name on the command line, without hyphens; or null. */
    const SOption *option(const QString &name) const;
    QString sort(const QStringList &given);
    QString sortLetters(const QString &word, QStringList &following);
    QString noSuchOption(const QString &given) const;
    QString problem() const;

    const QString m_name;
    const QString m_summary;
    QList<SArgument> m_arguments;
    QList<SOption> m_options;
    QStringList m_examples;
    bool m_wasOptionAdded = false;
    /** What was given: the arguments, and the values of each option by its long name. */
    QStringList m_givenArguments;
    QMap<QString, QStringList> m_givenValues;
    int m_exitCode = EXIT_DONE;
};
