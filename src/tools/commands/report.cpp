#include "commissioning/CConfigurationReport.h"
#include "storage/FileStorage.h"
#include "tools/CheckedConfiguration.h"
#include "tools/Input.h"
#include "tools/Output.h"

#include <QFileInfo>

#include <algorithm>

namespace {

const QString OutputOption = QStringLiteral("output");

int count(const QList<SConfigurationFinding> &findings, SConfigurationFinding::ESeverity severity)
{
    return static_cast<int>(std::count_if(
        findings.begin(), findings.end(),
        [severity](const SConfigurationFinding &finding) { return finding.severity == severity; }));
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to report on. The page shows its findings, which "
                               "do not make the command fail."));
    line.addOption(QLatin1Char('o'), OutputOption,
                   Texts::tr("The file to write; by default standard output."),
                   QStringLiteral("OUT.html"));
    CheckedConfiguration::describeProject(line);
    line.addExample(QStringLiteral("DeviceConfiguration.3deco -o report.html"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --project . -o report.html"));
}

int run(const CommandLine &line)
{
    const QString path = line.value(OutputOption);
    const bool isFile = line.isSet(OutputOption) && !isStandardStream(path);
    if (line.isSet(OutputOption) && path.isEmpty()) {
        return line.badUsage(Texts::tr("The file name of --output is empty."));
    }
    if (line.wantsJson() && !isFile) {
        return line.badUsage(Texts::tr("--json requires --output with the name of a file."));
    }
    // Two files that are missing would pass for one.
    if (isFile && QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(line.argument(0))) {
        return line.badUsage(Texts::tr("The page would overwrite the configuration."));
    }
    CDeviceConfigurationFile10 file(nullptr);
    QList<SConfigurationFinding> findings;
    const int opened = CheckedConfiguration::open(line, file, findings);
    if (opened != EXIT_DONE) {
        return opened;
    }
    const CConfigurationOverview overview = CheckedConfiguration::overview(file);
    const QByteArray page = CConfigurationReport(overview, findings).toHtml();
    Output out;
    if (!isFile) {
        out.exact() << QString::fromUtf8(page);
        return out.finish();
    }
    const FileStorage::SResult written = FileStorage::replace(path, page);
    if (!written) {
        return reportNotSaved(path, written.reason);
    }
    const int errors = count(findings, SConfigurationFinding::ERROR);
    const int warnings = count(findings, SConfigurationFinding::WARNING);
    if (line.wantsJson()) {
        out.print({{QStringLiteral("output"), path},
                   {QStringLiteral("drives"), overview.drives().size()},
                   {QStringLiteral("files"), overview.fileCount()},
                   {QStringLiteral("errors"), errors},
                   {QStringLiteral("warnings"), warnings}});
    } else {
        out.text() << Texts::tr("Wrote %1. Errors: %2, warnings: %3.")
                          .arg(path, QString::number(errors), QString::number(warnings))
                   << '\n';
    }
    return out.finish();
}

const CommandRegistration Registration(
    "report",
    QT_TRANSLATE_NOOP("vrndevice", "Create a page that shows a configuration and its findings."),
    describe, run);

} // namespace
