#include "commissioning/CItemFindings.h"
#include "tools/CheckedConfiguration.h"
#include "tools/ConfigurationJson.h"
#include "tools/ConfigurationTree.h"
#include "tools/Output.h"
#include "tools/Terminal.h"

namespace {

const QString ColorOption = QStringLiteral("color");
const QString Always = QStringLiteral("always");
const QString Never = QStringLiteral("never");
const QString Auto = QStringLiteral("auto");

QStringList shownItems(const STreeNode &node)
{
    QStringList items = node.items;
    for (const STreeNode &child : node.children) {
        items += shownItems(child);
    }
    return items;
}

/** The findings that stand below a node, in the order of its items. */
QList<SConfigurationFinding> findingsOf(const STreeNode &node, const CItemFindings &findings)
{
    QList<SConfigurationFinding> result;
    for (const QString &item : node.items) {
        for (const int index : findings.at(item)) {
            result.append(findings.at(index));
        }
    }
    return result;
}

class TreePrinter
{
public:
    TreePrinter(const CItemFindings &findings, bool wantsColours, PrintedText &out)
        : m_findings(findings), m_wantsColours(wantsColours), m_out(out)
    {
    }

    void print(const STreeNode &node, const QString &before, const QString &beforeFurtherLines)
    {
        m_out << before
              << Terminal::SStyled{node.text, Terminal::STYLE_BOLD,
                                   m_wantsColours && !node.children.isEmpty()}
              << '\n';
        for (const CFileElement &file : node.files) {
            printPlace(beforeFurtherLines, Texts::tr("device:"), file.devicePath(),
                       file.deviceFilePath());
            printPlace(beforeFurtherLines, Texts::tr("project:"), file.projectPath(),
                       file.projectFilePath());
        }
        for (const SConfigurationFinding &finding : findingsOf(node, m_findings)) {
            print(finding, beforeFurtherLines);
        }
    }

private:
    Terminal::SStyled styled(const QString &text, Terminal::EStyle style) const
    {
        return {text, style, m_wantsColours};
    }

    /** A directory that the configuration leaves open is shown as a hyphen. */
    void printPlace(const QString &before, const QString &title, const QString &directory,
                    const QString &path)
    {
        m_out << before << styled(title, Terminal::STYLE_CYAN) << ' '
              << (directory.isEmpty() ? QStringLiteral("-") : path) << '\n';
    }

    void print(const SConfigurationFinding &finding, const QString &before)
    {
        const bool isError = finding.severity == SConfigurationFinding::ERROR;
        m_out << before
              << (isError ? styled(Texts::tr("error:"), Terminal::STYLE_RED)
                          : styled(Texts::tr("warning:"), Terminal::STYLE_YELLOW))
              << ' ' << finding.message << " [" << finding.rule << ']';
        if (finding.position.isKnown()) {
            m_out << ' '
                  << Texts::tr("(line %1, column %2)")
                         .arg(QString::number(finding.position.line),
                              QString::number(finding.position.column));
        }
        m_out << '\n';
        if (!finding.hint.isEmpty()) {
            m_out << before << QStringLiteral("  ") << finding.hint << '\n';
        }
    }

    const CItemFindings &m_findings;
    const bool m_wantsColours;
    PrintedText &m_out;
};

QJsonObject toJson(const STreeNode &node, const CItemFindings &findings)
{
    QJsonArray files;
    for (const CFileElement &file : node.files) {
        files.append(toJson(file));
    }
    QJsonArray array;
    for (const SConfigurationFinding &finding : findingsOf(node, findings)) {
        array.append(toJson(finding));
    }
    QJsonArray children;
    for (const STreeNode &child : node.children) {
        children.append(toJson(child, findings));
    }
    return {{QStringLiteral("text"), node.text},
            {QStringLiteral("items"), QJsonArray::fromStringList(node.items)},
            {QStringLiteral("files"), files},
            {QStringLiteral("findings"), array},
            {QStringLiteral("children"), children}};
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"),
                     Texts::tr("The configuration to show. The tree shows its findings, which do "
                               "not make the command fail."));
    CheckedConfiguration::describeProject(line);
    line.addOption(ColorOption,
                   Texts::tr("When to use colours: always, never or auto; auto uses them on "
                             "terminals unless NO_COLOR is set."),
                   QStringLiteral("WHEN"), {Always, Never, Auto});
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --color always | less -R"));
}

int run(const CommandLine &line)
{
    const QString when = line.isSet(ColorOption) ? line.value(ColorOption) : Auto;
    if (when != Always && when != Never && when != Auto) {
        return line.badUsage(Texts::tr("--color must be always, never or auto."));
    }
    CDeviceConfigurationFile10 file(nullptr);
    QList<SConfigurationFinding> all;
    const int opened = CheckedConfiguration::open(line, file, all);
    if (opened != EXIT_DONE) {
        return opened;
    }
    const STreeNode root = configurationTree(CheckedConfiguration::overview(file));
    const CItemFindings findings(all, shownItems(root));
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(root, findings));
        return out.finish();
    }
    const bool wantsColours = when == Always || (when == Auto && Terminal::wantsColours(stdout));
    TreePrinter printer(findings, wantsColours, out.text());
    visitTree(root,
              [&printer](const STreeNode &node, const QString &before,
                         const QString &beforeFurtherLines) {
                  printer.print(node, before, beforeFurtherLines);
              });
    return out.finish();
}

const CommandRegistration Registration(
    "tree",
    QT_TRANSLATE_NOOP("vrndevice", "Show a configuration as a tree, with all places and findings."),
    describe, run);

} // namespace
