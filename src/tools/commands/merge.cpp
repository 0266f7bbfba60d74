#include "commissioning/CConfigurationMerge.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"

#include <QJsonArray>

#include <algorithm>

namespace {

const QString OutputOption = QStringLiteral("output");

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("BASE"),
                     Texts::tr("The configuration that both sides started from."));
    line.addArgument(
        QStringLiteral("OURS"),
        Texts::tr("The configuration with the changes of one side; the result replaces it."));
    line.addArgument(QStringLiteral("THEIRS"),
                     Texts::tr("The configuration with the changes of the other side."));
    line.addOption(QLatin1Char('o'), OutputOption,
                   Texts::tr("Save the result as another file; - is standard output."),
                   QStringLiteral("OUT"));
    line.addExample(QStringLiteral("base.3deco DeviceConfiguration.3deco theirs.3deco"));
    line.addExample(QStringLiteral("--output merged.3deco base.3deco ours.3deco theirs.3deco"));
}

QString conflictName(CConfigurationMerge::EConflict conflict)
{
    switch (conflict) {
    case CConfigurationMerge::DIFFERENT_VALUES:
        return QStringLiteral("differentValues");
    case CConfigurationMerge::REMOVED_BY_OURS:
        return QStringLiteral("removedByOurs");
    case CConfigurationMerge::REMOVED_BY_THEIRS:
        return QStringLiteral("removedByTheirs");
    case CConfigurationMerge::NOT_POSSIBLE:
        break;
    }
    return QStringLiteral("notPossible");
}

QJsonObject toJson(const CConfigurationMerge::SConflict &conflict)
{
    QJsonObject object = {
        {QStringLiteral("conflict"), conflictName(conflict.conflict)},
        {QStringLiteral("path"), conflict.path},
        {QStringLiteral("details"), QJsonArray::fromStringList(conflict.details)},
    };
    if (conflict.conflict == CConfigurationMerge::DIFFERENT_VALUES) {
        object.insert(QStringLiteral("base"), conflict.base);
        object.insert(QStringLiteral("ours"), conflict.ours);
        object.insert(QStringLiteral("theirs"), conflict.theirs);
    }
    return object;
}

int print(const CommandLine &line, const CConfigurationMerge &merge)
{
    Output out;
    const CConfigurationPatch patch = merge.patch();
    if (line.wantsJson()) {
        QJsonArray conflicts;
        for (const CConfigurationMerge::SConflict &conflict : merge.conflicts()) {
            conflicts.append(toJson(conflict));
        }
        out.print({{QStringLiteral("taken"), patch.changes().size()},
                   {QStringLiteral("conflicts"), conflicts}});
    } else {
        const QStringList lines = patch.describe();
        for (const QString &text : lines) {
            out.text() << text << '\n';
        }
    }
    return out.finish();
}

int run(const CommandLine &line)
{
    const QStringList paths = line.arguments(0);
    if (std::count_if(paths.begin(), paths.end(), isStandardStream) > 1) {
        return line.badUsage(Texts::tr("Only one file can be standard input."));
    }
    const QString oursPath = line.argument(1);
    const QString output = line.isSet(OutputOption) ? line.value(OutputOption) : oursPath;
    if (line.wantsJson() && isStandardStream(output)) {
        return line.badUsage(
            Texts::tr("The configuration and --json cannot both be printed to standard output."));
    }
    CDeviceConfigurationFile10 base(nullptr);
    CDeviceConfigurationFile10 ours(nullptr);
    CDeviceConfigurationFile10 theirs(nullptr);
    const EAccess access = output == oursPath ? EAccess::CHANGE : EAccess::READ;
    if (!openConfiguration(paths.at(0), base) || !openConfiguration(oursPath, ours, access)
        || !openConfiguration(paths.at(2), theirs)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const CConfigurationMerge merge(base, ours, theirs);
    QStringList mismatches;
    if (!merge.patch().apply(ours, mismatches)) {
        for (const QString &mismatch : qAsConst(mismatches)) {
            printError(mismatch);
        }
        return EXIT_NOT_DONE;
    }
    const QList<CConfigurationMerge::SConflict> conflicts = merge.conflicts();
    for (const CConfigurationMerge::SConflict &conflict : conflicts) {
        printWarning(Texts::tr("conflict: %1")
                         .arg(CConfigurationMerge::describe(conflict).join(QLatin1Char(' '))));
    }
    // Where nothing is taken, our file stays as it is, also the way it was written.
    if (output != oursPath || isStandardStream(output) || !merge.patch().isEmpty()) {
        const int saved = saveConfiguration(output, ours);
        if (saved != EXIT_DONE) {
            return saved;
        }
    }
    const int written = isStandardStream(output) ? int(EXIT_DONE) : print(line, merge);
    return conflicts.isEmpty() ? written : int(EXIT_FINDINGS);
}

const CommandRegistration
    Registration("merge",
                 QT_TRANSLATE_NOOP("vrndevice", "Merge two changed versions of a configuration."),
                 describe, run);

} // namespace
