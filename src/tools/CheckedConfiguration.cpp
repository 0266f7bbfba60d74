#include "tools/CheckedConfiguration.h"

#include "tools/Input.h"
#include "tools/MessageSilence.h"
#include "tools/Output.h"

namespace {

const QString ProjectOption = QStringLiteral("project");

/** Opens @p path and has @p check look at the same. @return false when the file cannot be opened */
bool open(const QString &path, CDeviceConfigurationFile10 &file, CConfigurationCheck &check,
          bool &isChecked)
{
    if (!isReadOnce(path)) {
        if (!file.open(path)) {
            return false;
        }
        const MessageSilence silence;
        isChecked = check.open(path);
        return true;
    }
    QByteArray content;
    QString reason;
    if (!readInput(path, content, reason)) {
        reportUnreadable(path, reason);
        return false;
    }
    if (!file.load(content)) {
        return false;
    }
    const MessageSilence silence;
    isChecked = check.load(content);
    return true;
}

} // namespace

void CheckedConfiguration::describeProject(CommandLine &line)
{
    line.addOption(ProjectOption,
                   Texts::tr("Also look for the files of the configuration in this directory."),
                   QStringLiteral("DIR"));
}

bool CheckedConfiguration::setProject(const CommandLine &line, CConfigurationCheck &check)
{
    if (!line.isSet(ProjectOption) || check.setProjectDirectory(line.value(ProjectOption))) {
        return true;
    }
    printError(check.errorText());
    return false;
}

int CheckedConfiguration::open(const CommandLine &line, CDeviceConfigurationFile10 &file,
                               QList<SConfigurationFinding> &findings)
{
    CConfigurationCheck check;
    if (!setProject(line, check)) {
        return EXIT_UNREADABLE_INPUT;
    }
    bool isChecked = false;
    if (!::open(line.argument(0), file, check, isChecked)) {
        return EXIT_UNREADABLE_INPUT;
    }
    if (!isChecked) {
        return reportUnreadable(line.argument(0), check.errorText());
    }
    findings = check.findings();
    return EXIT_DONE;
}

CConfigurationOverview CheckedConfiguration::overview(const CDeviceConfigurationFile10 &file)
{
    const MessageSilence silence;
    return CConfigurationOverview(file);
}
