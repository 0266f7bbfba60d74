#include "commissioning/CConfigurationPatch.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

const QString CheckOption = QStringLiteral("check");
const QString OutputOption = QStringLiteral("output");

void describe(CommandLine &line)
{
    line.addArgument(
        QStringLiteral("PATCH"),
        Texts::tr("The patch to apply, as 'diff --json' prints it; - is standard input."));
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to change; - is standard input."));
    line.addOption(CheckOption, Texts::tr("Only check whether the patch can be applied."));
    line.addOption(QLatin1Char('o'), OutputOption,
                   Texts::tr("Save the changed configuration as another file; - is standard "
                             "output."),
                   QStringLiteral("OUT"));
    line.addExample(QStringLiteral("new.patch.json DeviceConfiguration.3deco"));
    line.addExample(QStringLiteral("--check new.patch.json DeviceConfiguration.3deco"));
}

/** @return false when it cannot be read; the reason has been printed */
bool readPatch(const QString &path, CConfigurationPatch &patch)
{
    QByteArray content;
    QString reason;
    const bool isRead = readInput(path, content, reason) && patch.readJson(content, reason);
    if (!isRead) {
        reportUnreadable(path, reason);
    }
    return isRead;
}

int print(const CommandLine &line, const CConfigurationPatch &patch, const QStringList &mismatches)
{
    Output out;
    if (line.wantsJson()) {
        out.print({{QStringLiteral("applicable"), mismatches.isEmpty()},
                   {QStringLiteral("saved"), mismatches.isEmpty() && !line.isSet(CheckOption)},
                   {QStringLiteral("changes"), patch.changes().size()},
                   {QStringLiteral("mismatches"), QJsonArray::fromStringList(mismatches)}});
    } else if (mismatches.isEmpty()) {
        const QStringList lines = patch.describe();
        for (const QString &text : lines) {
            out.text() << text << '\n';
        }
    }
    return out.finish();
}

int run(const CommandLine &line)
{
    const QString path = line.argument(1);
    const QString output = line.isSet(OutputOption) ? line.value(OutputOption) : path;
    const bool isCheck = line.isSet(CheckOption);
    if (isStandardStream(line.argument(0)) && isStandardStream(path)) {
        return line.badUsage(Texts::tr("Only one file can be standard input."));
    }
    if (isCheck && line.isSet(OutputOption)) {
        return line.badUsage(
            Texts::tr("--check saves nothing and cannot be combined with --output."));
    }
    if (!isCheck && line.wantsJson() && isStandardStream(output)) {
        return line.badUsage(
            Texts::tr("The configuration and --json cannot both be printed to standard output."));
    }
    CConfigurationPatch patch;
    CDeviceConfigurationFile10 file(nullptr);
    const EAccess access = isCheck || output != path ? EAccess::READ : EAccess::CHANGE;
    if (!readPatch(line.argument(0), patch) || !openConfiguration(path, file, access)) {
        return EXIT_UNREADABLE_INPUT;
    }
    QStringList mismatches;
    const bool isDone = isCheck ? patch.check(file, mismatches) : patch.apply(file, mismatches);
    for (const QString &mismatch : qAsConst(mismatches)) {
        printError(QStringLiteral("%1: %2").arg(shownName(path), mismatch));
    }
    if (isDone && !isCheck) {
        const int saved = saveConfiguration(output, file);
        if (saved != EXIT_DONE || isStandardStream(output)) {
            return saved;
        }
    }
    const int written = print(line, patch, mismatches);
    return isDone ? written : EXIT_NOT_DONE;
}

const CommandRegistration
    Registration("apply", QT_TRANSLATE_NOOP("vrndevice", "Apply a patch written by 'diff --json'."),
                 describe, run);

} // namespace
