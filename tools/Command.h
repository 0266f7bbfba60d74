#pragma once

#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

/** How a command ends; the same numbers for every command. */
enum EExitCode {
    EXIT_DONE = 0,
    /** The command could not do what was asked; the file is as it was. */
    EXIT_NOT_DONE = 1,
    EXIT_BAD_USAGE = 2,
    /** The input is missing or cannot be read. */
    EXIT_UNREADABLE_INPUT = 3
};

struct SCommand {
    /** One word, or two: that of a group of commands, and its own. */
    QString name;
    QString summary;
    /** Runs with the command's own arguments and returns an exit code. */
    int (*run)(const SCommand &command, const QStringList &arguments);
};

/** All commands, in the order of their names. */
QList<SCommand> commands();

/** A static object of this class makes a command known; that is all it takes to add one. */
class CommandRegistration
{
public:
    CommandRegistration(const char *name, const char *summary,
                        int (*run)(const SCommand &, const QStringList &));
};

/** The command line of one command, with the options that every command has. */
class CommandLine
{
public:
    explicit CommandLine(const SCommand &command);

    /** Adds an argument that must be given. */
    void addArgument(const QString &name, const QString &description);
    /** Adds arguments of which at least one must be given; nothing can follow them. */
    void addArguments(const QString &name, const QString &description);
    /** Without @p valueName the option is a switch. */
    void addOption(const QString &name, const QString &description,
                   const QString &valueName = QString());
    void addExample(const QString &example);

    /**
     * @return whether the command should run; otherwise it is done, with exitCode(), and help or
     *         what is wrong with the arguments has been printed
     */
    bool parse(const QStringList &arguments);
    int exitCode() const;

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
    const QString m_name;
    const QString m_summary;
    QCommandLineParser m_parser;
    QStringList m_argumentNames;
    bool m_lastIsRepeated = false;
    QString m_examples;
    int m_exitCode = EXIT_DONE;
};
