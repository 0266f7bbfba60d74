#pragma once

#include "support/Places.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
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

/** @param command what is started: the tool, or a program that starts it */
inline SResult runCommand(const QString &directory, const QStringList &command,
                          const QProcessEnvironment &environment = englishEnvironment())
{
    QProcess process;
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

inline SResult run(const QString &directory, const QStringList &arguments,
                   const QProcessEnvironment &environment = englishEnvironment())
{
    return runCommand(directory, QStringList{program()} + arguments, environment);
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
