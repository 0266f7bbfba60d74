#include "commissioning/CStagedTree.h"
#include "commissioning/CStagingPlan.h"
#include "storage/FileStorage.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"
#include "tools/Progress.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>

#include <csignal>

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

/** While it lives, the first Ctrl-C lets the command clean up; a second one ends it at once. */
class InterruptWatch
{
public:
    InterruptWatch()
    {
        struct sigaction action = {};
        action.sa_handler = [](int) { isInterrupted = 1; };
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, &action, &m_interrupt);
        sigaction(SIGTERM, &action, &m_terminate);
    }

    ~InterruptWatch()
    {
        sigaction(SIGINT, &m_interrupt, nullptr);
        sigaction(SIGTERM, &m_terminate, nullptr);
    }

private:
    Q_DISABLE_COPY(InterruptWatch)

    struct sigaction m_interrupt = {};
    struct sigaction m_terminate = {};
};

/** A document as it is staged: the bytes that were read are those that are understood. */
bool readDocument(const QString &path, CStagingPlan::SDocument &document, CDeviceElement &device)
{
    QString reason;
    if (!readInput(path, document.content, reason)) {
        reportUnreadable(path, reason);
        return false;
    }
    document.path = isReadOnce(path) ? QString() : path;
    CDeviceConfigurationFile10 file(nullptr);
    if (!file.load(document.content)) {
        reportUnreadable(path, Texts::tr("This is not a configuration."));
        return false;
    }
    if (!file.configuration(device)) {
        printError(Texts::tr("%1: The configuration has no device.").arg(shownName(path)));
        return false;
    }
    return true;
}

QJsonArray toJson(const QList<CStagingPlan::SProblem> &problems)
{
    QJsonArray array;
    for (const CStagingPlan::SProblem &problem : problems) {
        array.append(QJsonObject{{QStringLiteral("rule"), problem.rule},
                                 {QStringLiteral("devicePath"), problem.devicePath},
                                 {QStringLiteral("projectPath"), problem.projectPath},
                                 {QStringLiteral("message"), problem.message}});
    }
    return array;
}

int reportProblems(const QList<CStagingPlan::SProblem> &problems, bool asJson)
{
    Output out;
    if (asJson) {
        out.print(
            {{QStringLiteral("staged"), false}, {QStringLiteral("problems"), toJson(problems)}});
    } else {
        for (const CStagingPlan::SProblem &problem : problems) {
            printError(problem.message);
        }
    }
    out.finish();
    return EXIT_FINDINGS;
}

int reportNotStaged(const QString &reason, bool asJson)
{
    printError(reason);
    Output out;
    if (asJson) {
        out.print({{QStringLiteral("staged"), false},
                   {QStringLiteral("problems"), QJsonArray()},
                   {QStringLiteral("error"), reason}});
    }
    out.finish();
    return EXIT_NOT_DONE;
}

QString recordPath(const CommandLine &line)
{
    return QDir(line.value(QStringLiteral("project"))).filePath(CDeviceManifest::fileName());
}

/** Whether a manifest may be written there: another file of that name would be lost. */
bool mayRecord(const QString &path, QString &reason)
{
    QByteArray json;
    CDeviceManifest manifest;
    if (!QFileInfo::exists(path)) {
        return true;
    }
    const FileStorage::SResult read = FileStorage::read(path, json, CDeviceManifest::maximumSize());
    reason = read.reason;
    if (read && manifest.readJson(json, reason)) {
        return true;
    }
    reason = Texts::tr("%1 already exists and is not a manifest: %2").arg(path, reason);
    return false;
}

int reportStaged(const CommandLine &line, const CDeviceManifest &manifest)
{
    qint64 size = 0;
    for (const CDeviceManifest::SEntry &entry : manifest.entries()) {
        size += entry.size;
    }
    const QString sum = QString::fromLatin1(
        QCryptographicHash::hash(manifest.toJson(), QCryptographicHash::Sha256).toHex());
    Output out;
    if (line.wantsJson()) {
        out.print({{QStringLiteral("staged"), true},
                   {QStringLiteral("problems"), QJsonArray()},
                   {QStringLiteral("directories"), manifest.directories().size()},
                   {QStringLiteral("files"), manifest.entries().size()},
                   {QStringLiteral("size"), size},
                   {QStringLiteral("manifestSha256"), sum}});
    } else {
        out.text() << Texts::tr("Staged %1 files with %2 bytes; checksum of the manifest: %3")
                          .arg(QString::number(manifest.entries().size()), QString::number(size),
                               sum)
                   << '\n';
    }
    return out.finish();
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The configuration to stage."));
    line.addOption(QStringLiteral("project"),
                   Texts::tr("The directory that contains the files of the configuration."),
                   QStringLiteral("DIR"));
    line.addOption(QStringLiteral("to"),
                   Texts::tr("The directory to create for the files of the device."),
                   QStringLiteral("ROOT"));
    line.addOption(QStringLiteral("archive"),
                   Texts::tr("The archive to create, a .tar.gz file with the same content."),
                   QStringLiteral("OUT"));
    line.addOption(QStringLiteral("replace"),
                   Texts::tr("Replace the device tree that ROOT already contains."));
    line.addOption(QStringLiteral("record"), Texts::tr("Also write the manifest to the project."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --project . --to device"));
    line.addExample(
        QStringLiteral("DeviceConfiguration.3deco --project . --archive device.tar.gz --record"));
}

/** @return what is wrong with the options; empty when nothing is */
QString wrongUsage(const CommandLine &line)
{
    const bool hasRoot = !line.value(QStringLiteral("to")).isEmpty();
    if (line.value(QStringLiteral("project")).isEmpty()) {
        return Texts::tr("The project is missing. Give --project DIR.");
    }
    if (!hasRoot && line.value(QStringLiteral("archive")).isEmpty()) {
        return Texts::tr("The target is missing. Give --to ROOT, --archive OUT, or both.");
    }
    if (!hasRoot && line.isSet(QStringLiteral("replace"))) {
        return Texts::tr("Only a directory can be replaced. Give --to ROOT.");
    }
    return QString();
}

bool write(const CStagingPlan &plan, const CommandLine &line, CDeviceManifest &manifest,
           QString &reason)
{
    CStagedTree::STarget target;
    target.root = line.value(QStringLiteral("to"));
    target.archive = line.value(QStringLiteral("archive"));
    target.mayReplaceRoot = line.isSet(QStringLiteral("replace"));
    const InterruptWatch watch;
    Progress progress(Texts::tr("Staging"));
    CStagedTree tree;
    tree.setProgress([&](qint64 done, qint64 total) {
        progress.show(done, total);
        return isInterrupted == 0;
    });
    const bool isMade = tree.write(plan, target);
    manifest = tree.manifest();
    reason = tree.errorText();
    return isMade;
}

int run(const CommandLine &line)
{
    const QString wrong = wrongUsage(line);
    if (!wrong.isEmpty()) {
        return line.badUsage(wrong);
    }
    CStagingPlan::SDocument document;
    CDeviceElement device;
    if (!readDocument(line.argument(0), document, device)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const CStagingPlan plan(device, document, line.value(QStringLiteral("project")));
    if (!plan.problems().isEmpty()) {
        return reportProblems(plan.problems(), line.wantsJson());
    }
    const bool isRecorded = line.isSet(QStringLiteral("record"));
    QString reason;
    if (isRecorded && !mayRecord(recordPath(line), reason)) {
        return reportNotStaged(reason, line.wantsJson());
    }
    CDeviceManifest manifest;
    if (!write(plan, line, manifest, reason)) {
        return reportNotStaged(reason, line.wantsJson());
    }
    if (isRecorded) {
        const FileStorage::SResult recorded =
            FileStorage::replace(recordPath(line), manifest.toJson());
        if (!recorded) {
            return reportNotSaved(recordPath(line), recorded.reason);
        }
    }
    return reportStaged(line, manifest);
}

const CommandRegistration
    Registration("stage",
                 QT_TRANSLATE_NOOP("vrndevice", "Create the tree of files for the device."),
                 describe, run);

} // namespace
