#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"

#include <QJsonArray>

#include <algorithm>

namespace {

const QString CheckOption = QStringLiteral("check");

enum class EState { CANONICAL, NOT_CANONICAL, REWRITTEN, NOT_SAVED, UNREADABLE };

QString keyOf(EState state)
{
    switch (state) {
    case EState::CANONICAL:
        return QStringLiteral("canonical");
    case EState::NOT_CANONICAL:
        return QStringLiteral("notCanonical");
    case EState::REWRITTEN:
        return QStringLiteral("rewritten");
    case EState::NOT_SAVED:
        return QStringLiteral("notSaved");
    case EState::UNREADABLE:
        break;
    }
    return QStringLiteral("unreadable");
}

struct SFormatted {
    QString path;
    EState state = EState::UNREADABLE;
};

EState format(const QString &path, bool isCheck)
{
    QByteArray present;
    QString reason;
    if (!readInput(path, present, reason, isCheck ? EAccess::READ : EAccess::CHANGE)) {
        reportUnreadable(path, reason);
        return EState::UNREADABLE;
    }
    CDeviceConfigurationFile10 file(nullptr);
    // What cannot be read again has been; a file is opened by its name, which then stands in
    // messages.
    if (!(isReadOnce(path) ? file.load(present) : file.open(path))) {
        return EState::UNREADABLE;
    }
    QByteArray canonical;
    if (!file.save(canonical, reason)) {
        return EState::NOT_SAVED;
    }
    const bool isCanonical = canonical == present;
    if (isCheck) {
        return isCanonical ? EState::CANONICAL : EState::NOT_CANONICAL;
    }
    // As a filter it passes on also what is canonical already.
    if (isCanonical && !isStandardStream(path)) {
        return EState::CANONICAL;
    }
    return saveConfiguration(path, file) == EXIT_DONE ? EState::REWRITTEN : EState::NOT_SAVED;
}

int exitCode(const QList<SFormatted> &files)
{
    const auto has = [&](EState state) {
        return std::any_of(files.cbegin(), files.cend(),
                           [&](const SFormatted &file) { return file.state == state; });
    };
    if (has(EState::UNREADABLE)) {
        return EXIT_UNREADABLE_INPUT;
    }
    return has(EState::NOT_SAVED) || has(EState::NOT_CANONICAL) ? EXIT_FINDINGS : EXIT_DONE;
}

void describe(CommandLine &line)
{
    line.addArguments(QStringLiteral("FILE"),
                      Texts::tr("The configurations to format; - filters standard input."));
    line.addOption(
        CheckOption,
        Texts::tr(
            "Write nothing; list the files that would change, and end with 1 if there are any."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
    line.addExample(QStringLiteral("--check line-1.3deco line-2.3deco"));
}

int run(const CommandLine &line)
{
    const QStringList paths = line.arguments(0);
    const bool isCheck = line.isSet(CheckOption);
    const bool isFilter = !isCheck && std::any_of(paths.cbegin(), paths.cend(), isStandardStream);
    if (isFilter && (paths.size() > 1 || line.wantsJson())) {
        return line.badUsage(
            Texts::tr("Standard input cannot be combined with other files or --json."));
    }
    QList<SFormatted> files;
    for (const QString &path : paths) {
        files.append({path, format(path, isCheck)});
    }
    const int result = exitCode(files);
    if (isFilter) {
        return result;
    }
    Output out;
    QJsonArray array;
    for (const SFormatted &file : files) {
        array.append(QJsonObject{{QStringLiteral("path"), file.path},
                                 {QStringLiteral("state"), keyOf(file.state)}});
        if (line.wantsJson()) {
            continue;
        }
        if (file.state == EState::REWRITTEN) {
            out.text() << Texts::tr("%1: rewritten").arg(file.path) << '\n';
        } else if (file.state == EState::NOT_CANONICAL) {
            out.text() << Texts::tr("%1: would change").arg(shownName(file.path)) << '\n';
        }
    }
    if (line.wantsJson()) {
        out.print({{QStringLiteral("files"), array}});
    }
    const int printed = out.finish();
    return result == EXIT_DONE ? printed : result;
}

const CommandRegistration Registration(
    "fmt",
    QT_TRANSLATE_NOOP("vrndevice", "Rewrite configurations in the form in which they are saved."),
    describe, run);

} // namespace
