#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/NetworkFindings.h"
#include "tools/SmallFiles.h"

#include <QFileInfo>

namespace {

using Check = CNetworkSettingsCheck;

const QString CreateOption = QStringLiteral("create");

/** Whether the line of the finding would not be in the file any more after saving. */
bool wouldBeLost(const Check::SFinding &finding)
{
    switch (finding.finding) {
    case Check::FINDING_NO_ASSIGNMENT:
    case Check::FINDING_SECTION:
    case Check::FINDING_UNKNOWN_KEY:
    case Check::FINDING_NOT_READ:
        return true;
    case Check::FINDING_REPEATED_KEY:
    case Check::FINDING_BAD_VALUE:
    case Check::FINDING_NO_ADDRESS:
    case Check::FINDING_OTHER_SUBNET:
        break;
    }
    return false;
}

/** Prints each line that saving would lose. @return whether there is any */
bool reportLosses(const QString &path, const QList<Check::SFinding> &findings)
{
    bool found = false;
    for (const Check::SFinding &finding : findings) {
        if (wouldBeLost(finding)) {
            printError(toText(path, finding));
            found = true;
        }
    }
    if (found) {
        printError(Texts::tr("%1: The reported lines would be lost. Correct or remove them first.")
                       .arg(path));
    }
    return found;
}

/** Warns of what is wrong with the settings as they were saved. */
void warnOfRest(const QString &path, CNetworkSettingsFile &file)
{
    QByteArray content;
    file.saveToBuffer(content);
    for (const Check::SFinding &finding : Check::check(content)) {
        printWarning(toText(path, finding));
    }
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The network.conf to change."));
    line.setFileNames({QStringLiteral("network.conf")});
    line.addArguments(QStringLiteral("KEY=VALUE"),
                      Texts::tr("A key of the file and its new value."));
    line.addOption(CreateOption, Texts::tr("Start from the defaults if the file does not exist."));
    line.addExample(QStringLiteral("network.conf MODE=STATIC ADDRESS=192.168.1.10"));
}

int run(const CommandLine &line)
{
    const QStringList assignments = line.arguments(1);
    for (const QString &assignment : assignments) {
        const QString key = assignment.section(QLatin1Char('='), 0, 0);
        const QString problem = Check::problem(key, assignment.section(QLatin1Char('='), 1));
        if (!assignment.contains(QLatin1Char('='))) {
            return line.badUsage(
                Texts::tr("'%1' does not have the form KEY=VALUE.").arg(assignment));
        }
        if (!problem.isEmpty()) {
            return line.badUsage(QStringLiteral("%1: %2").arg(key, problem));
        }
    }

    const QString path = line.argument(0);
    CNetworkSettingsFile file;
    if (!line.isSet(CreateOption) || QFileInfo::exists(path)) {
        QByteArray content;
        QString reason;
        if (!readNetworkSettings(path, EAccess::CHANGE, file, content, reason)) {
            return reportUnreadable(path, reason);
        }
        if (reportLosses(path, Check::check(content))) {
            return EXIT_NOT_DONE;
        }
    }
    for (const QString &assignment : assignments) {
        file.setValue(assignment.section(QLatin1Char('='), 0, 0),
                      assignment.section(QLatin1Char('='), 1));
    }
    if (file.save(path) != NvrnGlobal::FILE_RESULT_SUCCESS) {
        return reportNotSaved(path, file.errorText());
    }
    warnOfRest(path, file);
    return printContent(file, line.wantsJson());
}

const CommandRegistration
    Registration("network set",
                 QT_TRANSLATE_NOOP("vrndevice", "Change Ethernet settings in a network.conf."),
                 describe, run);

} // namespace
