#include "commissioning/report/ReportPage.h"

#include "commissioning/report/OverviewFiles.h"
#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"

using namespace NvrnDeviceCore;
using ConfigurationReportTexts::Texts;
using ConfigurationShape::EEntry;
using Element = HtmlWriter::Element;

namespace {

QString kindText(EDeviceFile kind)
{
    switch (kind) {
    case DEVICE_FILE_NONE:
        return Texts::tr("Configuration");
    case DEVICE_FILE_PARAMETER_VALUES:
        return Texts::tr("Parameter values");
    case DEVICE_FILE_PARAMETER_DEFINITION:
        return Texts::tr("Parameter definition");
    default:
        return ConfigurationShape::capitalized(ShapePaths::noun(kind));
    }
}

/** The heading of a list of the document. */
QString heading(ConfigurationShape::EEntry entry)
{
    return ConfigurationShape::title(ShapePaths::find(ShapePaths::list(entry))->heading);
}

} // namespace

/** Files of which there is one at most; one that is missing may have been found to be. */
void ReportPage::writeSingleFiles()
{
    QList<SFile> files;
    QStringList missing;
    for (const SFile &file : OverviewFiles::singleFiles(m_overview)) {
        if (file.file.isNull()) {
            missing.append(file.item);
        } else {
            files.append(file);
        }
    }
    writeGroup(Texts::tr("Object dictionary, fault texts, bus configuration"), missing,
               rows(files));
}

QList<ReportPage::SRow> ReportPage::rows(const QList<SFile> &files) const
{
    QList<SRow> result;
    for (const SFile &file : files) {
        result.append(
            {file.item, kindText(file.kind), file.file, QString(),
             ShownItems::of(ConfigurationShape::fileItems(), file.file, file.item,
                            {QStringLiteral("name"), QStringLiteral("comment"),
                             QStringLiteral("deviceDir"), QStringLiteral("projectDir")})});
    }
    return result;
}

QList<ReportPage::SRow> ReportPage::parameterRows() const
{
    QList<SRow> result;
    for (const CConfigurationOverview::SParameterFile &parameters : m_overview.parameterFiles()) {
        QList<SRow> pair;
        for (const SFile &file : parameters.files) {
            pair.append({QString(),
                         Texts::tr("%1, %2").arg(kindText(file.kind), parameters.typeText),
                         file.file,
                         QString(),
                         {}});
        }
        if (pair.isEmpty()) {
            // Without a type or a name it stands for no files.
            CFileElement nameAlone;
            nameAlone.setFileName(parameters.parameters.name());
            pair.append({QString(), parameters.typeText, nameAlone, QString(), {}});
        }
        pair.first().file.setComment(parameters.parameters.comment());
        pair.first().others = ShownItems::of(
            ConfigurationShape::parameterFileItems(), parameters.parameters, parameters.item,
            {QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("comment")});
        pair.last().item = parameters.item;
        result += pair;
    }
    return result;
}

QList<ReportPage::SRow> ReportPage::fpgaRows() const
{
    QList<SRow> result = rows(m_overview.fpgaFiles());
    if (!result.isEmpty()) {
        result.first().badge = Texts::tr("Active");
    }
    return result;
}

void ReportPage::writeFiles()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Files of the device"), QStringLiteral("files"));
    writeGroup(Texts::tr("Configuration"), {}, rows({m_overview.configurationFile()}));
    writeGroup(heading(EEntry::PARAMETER_FILE), {ShapePaths::list(EEntry::PARAMETER_FILE)},
               parameterRows());
    writeSingleFiles();
    writeGroup(heading(EEntry::FPGA_FILE),
               {ShapePaths::list(EEntry::FPGA_FILE), QStringLiteral("device.activeFpgaFile")},
               fpgaRows());
    writeGroup(heading(EEntry::OPC_UA_FILE),
               {QStringLiteral("device.opcUaEnabled"), ShapePaths::list(EEntry::OPC_UA_FILE)},
               rows(m_overview.opcUaFiles()),
               m_overview.device().isOpcUaEnabled() ? Texts::tr("Enabled") : Texts::tr("Disabled"));
    writeGroup(heading(EEntry::FILE), {ShapePaths::list(EEntry::FILE)},
               rows(m_overview.additionalFiles()));
}

void ReportPage::writeGroup(const QString &heading, const QStringList &items,
                            const QList<SRow> &rows, const QString &badge)
{
    if (rows.isEmpty() && !hasFindings(items)) {
        return;
    }
    m_out.lineBreak();
    const Element card(m_out, "div", {{"class", QStringLiteral("card group")}});
    {
        const Element title(m_out, "h3");
        m_out.text(heading);
        if (!badge.isEmpty()) {
            m_out.raw(QStringLiteral(" "));
            m_out.element("span", badge, {{"class", QStringLiteral("badge series")}});
        }
    }
    writeFindings(items);
    if (!rows.isEmpty()) {
        writeFileTable(rows);
    }
}

void ReportPage::writeColumnHeads(const QStringList &heads)
{
    const Element head(m_out, "thead");
    const Element row(m_out, "tr");
    for (const QString &text : heads) {
        m_out.element("th", text, {{"scope", QStringLiteral("col")}});
    }
}

void ReportPage::writeFileTable(const QList<SRow> &rows)
{
    const Element table(m_out, "table", {{"class", QStringLiteral("files")}});
    {
        const Element columns(m_out, "colgroup");
        m_out.empty("col", {{"class", QStringLiteral("what")}});
        m_out.empty("col", {{"class", QStringLiteral("kind")}});
        m_out.empty("col");
        m_out.empty("col");
    }
    writeColumnHeads({Texts::tr("File"), Texts::tr("Kind"), Texts::tr("On the device"),
                      Texts::tr("In the project")});
    const Element body(m_out, "tbody");
    for (const SRow &row : rows) {
        m_out.lineBreak();
        writeFileRow(row);
        writeFindingsRow(row.item, 4);
    }
}

void ReportPage::writeFileRow(const SRow &row)
{
    const bool isConcerned = !row.item.isEmpty() && hasFindings({row.item});
    const Element line(m_out, "tr",
                       {{"class", isConcerned ? QStringLiteral("concerned") : QString()}});
    {
        const Element name(m_out, "th", {{"scope", QStringLiteral("row")}});
        m_out.element("bdi", orDash(row.file.fileName()), {{"class", QStringLiteral("file")}});
        if (!row.badge.isEmpty()) {
            m_out.element("span", row.badge, {{"class", QStringLiteral("badge active")}});
        }
        writeComment(row.file.comment());
        writeOthers(row.others);
    }
    m_out.element("td", row.kind, {{"data-label", Texts::tr("Kind")}});
    writeDirectory(Texts::tr("On the device"), row.file.devicePath());
    writeDirectory(Texts::tr("In the project"), row.file.projectPath());
}

void ReportPage::writeDirectory(const QString &label, const QString &directory)
{
    const Element cell(m_out, "td", {{"data-label", label}});
    const Element code(m_out, "code", {{"dir", QStringLiteral("auto")}});
    m_out.path(orDash(directory));
}

void ReportPage::writeFindingsRow(const QString &item, int columns)
{
    // The path of the whole document is empty, and so is that of a row that is not an entry.
    if (!item.isEmpty() && hasFindings({item})) {
        const Element row(m_out, "tr");
        const Element cell(m_out, "td", {{"colspan", QString::number(columns)}});
        writeFindings({item});
    }
}
