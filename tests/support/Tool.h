#pragma once

#include "support/Places.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

/** The tool as its users call it: arguments in, output, diagnostics and exit code out. */
namespace Tool {

struct SResult {
    /** -1 when it did not end by itself. */
    int exitCode = -1;
    QString output;
    QString errors;

    QJsonObject json() const { return QJsonDocument::fromJson(output.toUtf8()).object(); }
};

/** The tool; VRN_TOOL in the environment names another build of it. */
inline QString program()
{
    return qEnvironmentVariable("VRN_TOOL", Places::tool());
}

/** The environment of the test, in which the tool speaks English whatever the locale is. */
inline QProcessEnvironment englishEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    return environment;
}

/**
 * With @p process, of which its standard streams may have been set.
 * @param command what is started: the tool, or a program that starts it
 */
inline SResult runCommand(QProcess &process, const QString &directory, const QStringList &command,
                          const QProcessEnvironment &environment = englishEnvironment())
{
    process.setWorkingDirectory(directory);
    process.setProcessEnvironment(environment);
    process.start(command.first(), command.mid(1));
    SResult result;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

inline SResult runCommand(const QString &directory, const QStringList &command,
                          const QProcessEnvironment &environment = englishEnvironment())
{
    QProcess process;
    return runCommand(process, directory, command, environment);
}

/** The same for the tool. */
inline SResult run(QProcess &process, const QString &directory, const QStringList &arguments,
                   const QProcessEnvironment &environment = englishEnvironment())
{
    return runCommand(process, directory, QStringList{program()} + arguments, environment);
}

inline SResult run(const QString &directory, const QStringList &arguments,
                   const QProcessEnvironment &environment = englishEnvironment())
{
    QProcess process;
    return run(process, directory, arguments, environment);
}

/** Every command, from the help. */
inline QStringList commandNames()
{
    QStringList names;
    static const QRegularExpression row(QStringLiteral("^  ([a-z][a-z-]*(?: [a-z-]+)?)  "));
    const QString help = run(QDir::tempPath(), {QStringLiteral("--help")}).output;
    for (const QString &line : help.split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch match = row.match(line);
        if (match.hasMatch()) {
            names.append(match.captured(1));
        }
    }
    return names;
}

/** The project that is shipped as an example. */
inline QDir exampleDirectory()
{
    return QDir(Places::source("examples/packaging-line"));
}

/** Copies a file of the example, writable, into @p directory. */
inline bool copyExample(const QString &name, const QString &directory)
{
    const QString copy = QDir(directory).filePath(name);
    return QFile::copy(exampleDirectory().filePath(name), copy)
        && QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

} // namespace Tool
