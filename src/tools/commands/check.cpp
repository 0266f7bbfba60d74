#include "commissioning/CConfigurationCheck.h"
#include "tools/CheckedConfiguration.h"
#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/MessageSilence.h"
#include "tools/Output.h"
#include "tools/Terminal.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace {

const QString StrictOption = QStringLiteral("strict");

/** What was found in all files together. */
struct SCount {
    int files = 0;
    int errors = 0;
    int warnings = 0;
    int unreadable = 0;

    int exitCode(bool isStrict) const
    {
        const int warningCode = isStrict && warnings > 0 ? EXIT_FINDINGS : EXIT_DONE;
        const int findingsCode = errors > 0 ? EXIT_FINDINGS : warningCode;
        return unreadable > 0 ? EXIT_UNREADABLE_INPUT : findingsCode;
    }

    QString text() const
    {
        const QString errorText =
            errors == 1 ? Texts::tr("1 error") : Texts::tr("%1 errors").arg(errors);
        const QString warningText =
            warnings == 1 ? Texts::tr("1 warning") : Texts::tr("%1 warnings").arg(warnings);
        return files == 1
            ? Texts::tr("%1, %2 in 1 file").arg(errorText, warningText)
            : Texts::tr("%1, %2 in %3 files").arg(errorText, warningText, QString::number(files));
    }
};

bool isError(const SConfigurationFinding &finding)
{
    return finding.severity == SConfigurationFinding::ERROR;
}

/** "file:line:column", without what is not known. */
QString placeText(const QString &path, const SXmlPosition &position)
{
    return position.isKnown() ? QStringLiteral("%1:%2:%3")
                                    .arg(shownName(path), QString::number(position.line),
                                         QString::number(position.column))
                              : shownName(path);
}

void print(const QString &path, const SConfigurationFinding &finding, bool wantsColours,
           PrintedText &out)
{
    const QString severity = isError(finding) ? Texts::tr("error") : Texts::tr("warning");
    const Terminal::EStyle style = isError(finding) ? Terminal::STYLE_RED : Terminal::STYLE_YELLOW;
    const QString place = placeText(path, finding.position) + QLatin1Char(':');
    out << Terminal::SStyled{place, Terminal::STYLE_BOLD, wantsColours} << ' '
        << Terminal::SStyled{severity + QLatin1Char(':'), style, wantsColours} << ' '
        << finding.message << " [" << finding.rule << "]\n";
    const auto detail = [&out](const QString &name, const QString &text) {
        if (!text.isEmpty()) {
            out << "    " << name << ' ' << text << '\n';
        }
    };
    detail(Texts::tr("item:"), finding.item);
    // Most messages quote what was found.
    if (!finding.message.contains(finding.found)) {
        detail(Texts::tr("found:"), finding.found);
    }
    detail(Texts::tr("expected:"), finding.expected);
    detail(Texts::tr("hint:"), finding.hint);
}

/** Checks @p path, or standard input. @return why it cannot be read; empty when it was checked */
QString checkInput(const QString &path, CConfigurationCheck &check)
{
    const MessageSilence silence;
    if (!isReadOnce(path)) {
        return check.open(path) ? QString() : check.errorText();
    }
    QByteArray content;
    QString reason;
    if (readInput(path, content, reason) && check.load(content)) {
        return QString();
    }
    static const QRegularExpression position(QStringLiteral("\\A[0-9]+:[0-9]+: "));
    const QString text = reason.isEmpty() ? check.errorText() : reason;
    const QLatin1String gap(position.match(text).hasMatch() ? ":" : ": ");
    return shownName(path) + gap + text;
}

void describe(CommandLine &line)
{
    line.addArguments(QStringLiteral("FILE"), Texts::tr("A configuration to check."));
    CheckedConfiguration::describeProject(line);
    line.addOption(StrictOption, Texts::tr("Also fail for warnings."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --project . --strict"));
    line.addExample(QStringLiteral("*/DeviceConfiguration.3deco --json"));
}

int run(const CommandLine &line)
{
    CConfigurationCheck check;
    if (!CheckedConfiguration::setProject(line, check)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const bool wantsColours = Terminal::wantsColours(stdout);
    Output out;
    QJsonArray files;
    SCount count;
    int outputCode = EXIT_DONE;
    for (const QString &path : line.arguments(0)) {
        const QString error = checkInput(path, check);
        const QList<SConfigurationFinding> findings = check.findings();
        ++count.files;
        if (!error.isEmpty()) {
            ++count.unreadable;
            printError(error);
        }
        QJsonArray array;
        for (const SConfigurationFinding &finding : findings) {
            ++(isError(finding) ? count.errors : count.warnings);
            if (line.wantsJson()) {
                array.append(toJson(finding));
            } else {
                print(path, finding, wantsColours, out.text());
            }
        }
        if (line.wantsJson()) {
            files.append(QJsonObject{{QStringLiteral("file"), shownName(path)},
                                     {QStringLiteral("error"), error},
                                     {QStringLiteral("findings"), array}});
        } else {
            if (error.isEmpty() && findings.isEmpty()) {
                out.text() << Texts::tr("%1: nothing is wrong").arg(shownName(path)) << '\n';
            }
            // File by file, so that what is printed needs no more memory than what is read.
            outputCode = qMax(outputCode, out.finish());
        }
    }
    if (line.wantsJson()) {
        out.print({{QStringLiteral("files"), files},
                   {QStringLiteral("errors"), count.errors},
                   {QStringLiteral("warnings"), count.warnings}});
    } else if (count.errors + count.warnings > 0) {
        out.text() << count.text() << '\n';
    }
    outputCode = qMax(outputCode, out.finish());
    return qMax(outputCode, count.exitCode(line.isSet(StrictOption)));
}

const CommandRegistration Registration(
    "check",
    QT_TRANSLATE_NOOP("vrndevice", "Report everything that is wrong with a configuration."),
    describe, run);

} // namespace
