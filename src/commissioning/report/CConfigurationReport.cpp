#include "commissioning/CConfigurationReport.h"

#include "commissioning/CItemFindings.h"
#include "commissioning/report/DeviceDrawing.h"
#include "commissioning/report/HtmlWriter.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <limits>

using namespace NvrnDeviceCore;

namespace {

/** The texts of this class, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationReport)
};

using Element = HtmlWriter::Element;
using SFile = CConfigurationOverview::SFile;
using SDrive = CConfigurationOverview::SDrive;

/** Further ones are folded away, so that the drawing is not out of sight. */
const int SummaryLength = 12;

QString kindText(EDeviceFile kind)
{
    switch (kind) {
    case DEVICE_FILE_NONE:
        return Texts::tr("Configuration");
    case DEVICE_FILE_PARAMETER_VALUES:
        return Texts::tr("Parameter values");
    case DEVICE_FILE_PARAMETER_DEFINITION:
        return Texts::tr("Parameter definition");
    case DEVICE_FILE_OBJECT_DICTIONARY:
        return Texts::tr("Object dictionary");
    case DEVICE_FILE_FAULT_TEXTS:
        return Texts::tr("Fault texts");
    case DEVICE_FILE_ADDITIONAL:
        return Texts::tr("Additional file");
    case DEVICE_FILE_PLUGIN:
        return Texts::tr("Plug-in");
    case DEVICE_FILE_FPGA:
        return Texts::tr("FPGA image");
    case DEVICE_FILE_OPC_UA:
        return Texts::tr("OPC UA model");
    case DEVICE_FILE_ETHERCAT_MASTER:
        return Texts::tr("EtherCAT bus configuration");
    case DEVICE_FILE_SUB_DEVICE_PARAMETERS:
        return Texts::tr("Parameters");
    case DEVICE_FILE_KD2_FIRMWARE:
        return Texts::tr("Firmware");
    case DEVICE_FILE_KD2_LOGIC:
        return Texts::tr("Logic");
    case DEVICE_FILE_KD2_PARAMETERS:
        return Texts::tr("Parameters of the drive itself");
    default:
        return QString();
    }
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? QString(QChar(0x2013)) : text;
}

/** The items beside which findings can stand. */
QStringList shownItems(const CConfigurationOverview &overview)
{
    if (!overview.hasDevice()) {
        return {QStringLiteral("description")};
    }
    QStringList items = {QStringLiteral("description"),
                         QStringLiteral("device"),
                         QStringLiteral("drive"),
                         QStringLiteral("files"),
                         QStringLiteral("device.options"),
                         QStringLiteral("device.parameterFiles"),
                         QStringLiteral("device.dictionary"),
                         QStringLiteral("device.faultTextFile"),
                         QStringLiteral("device.etherCatMasterFile"),
                         QStringLiteral("device.fpgaFiles"),
                         QStringLiteral("device.activeFpgaFile"),
                         QStringLiteral("device.opcUaFiles"),
                         QStringLiteral("device.opcUaEnabled"),
                         QStringLiteral("device.plugins"),
                         QStringLiteral("device.executionPlugin")};
    const auto add = [&items](const auto &entries) {
        for (const auto &entry : entries) {
            items.append(entry.item);
        }
    };
    add(overview.parameterFiles());
    add(overview.fpgaFiles());
    add(overview.opcUaFiles());
    add(overview.additionalFiles());
    add(overview.plugins());
    add(overview.options());
    for (const SDrive &drive : overview.drives()) {
        items.append(drive.item);
        add(drive.files);
    }
    return items;
}

/** Writes one page; the functions stand in the order of its sections. */
class Page
{
public:
    Page(const CConfigurationOverview &overview, const QList<SConfigurationFinding> &findings)
        : m_overview(overview), m_findings(findings, shownItems(overview))
    {
    }

    QByteArray write();

private:
    /** A row of a table of files; @p item is empty when the row above is of the same entry. */
    struct SRow {
        QString item;
        QString kind;
        CFileElement file;
        QString badge;
    };

    void writeHead();
    QString title() const;

    void writePageHeader();
    void writeNavigation();
    void writeTile(const QString &label, int number, const char *cssClass);
    void writeTiles();

    void writeFindings();
    void writeSummary();
    void writeSummary(int first, int end);
    void writeFindingsOfWhole();
    QString place(const SConfigurationFinding &finding) const;
    void writeSeverity(const SConfigurationFinding &finding);
    void writeFinding(int index);
    void writeFindings(const QStringList &items);
    bool hasFindings(const QStringList &items) const;

    void writeDrawing();
    DeviceDrawing::EMark mark(const QStringList &items) const;
    DeviceDrawing::SModule module(const SDrive &drive) const;

    void writeDevice();
    void writeDrives();
    void writeDrive(const SDrive &drive);

    void writeFiles();
    void writeSingleFiles();
    QList<SRow> rows(const QList<SFile> &files) const;
    QList<SRow> parameterRows() const;
    QList<SRow> fpgaRows() const;
    void writeGroup(const QString &heading, const QStringList &items, const QList<SRow> &rows,
                    const QString &badge = QString());
    void writeFileTable(const QList<SRow> &rows);
    void writeFileRow(const SRow &row);
    void writeDirectory(const QString &label, const QString &directory);
    void writeFindingsRow(const QString &item, int columns);

    void writePlugins();
    void writePlugin(const CConfigurationOverview::SPlugin &plugin);
    void writeOptions();

    void writeFact(const QString &name, const QString &value, bool isCode = false);
    void writeComment(const QString &comment);
    void writeHeading(const QString &text, const QString &id);
    void writeColumnHeads(const QStringList &heads);

    const CConfigurationOverview &m_overview;
    const CItemFindings m_findings;
    HtmlWriter m_out;
};

QByteArray Page::write()
{
    m_out.raw(QStringLiteral("<!DOCTYPE html>\n"));
    {
        //: The code of the language that these texts are translated into, as "de" or "pt-BR".
        const Element html(m_out, "html", {{"lang", Texts::tr("en")}});
        writeHead();
        const Element body(m_out, "body");
        m_out.lineBreak();
        DeviceDrawing::writeShapes(m_out);
        writePageHeader();
        {
            const Element main(m_out, "main");
            writeFindings();
            if (m_overview.hasDevice()) {
                writeDrawing();
                writeDevice();
                writeDrives();
                writeFiles();
                writePlugins();
                writeOptions();
            }
        }
        m_out.element(
            "footer",
            Texts::tr(
                "Created from the configuration; the page loads nothing else when it is opened."));
    }
    m_out.lineBreak();
    return m_out.html().toUtf8();
}

QString Page::title() const
{
    if (!m_overview.description().name().isEmpty()) {
        return m_overview.description().name();
    }
    return m_overview.device().name().isEmpty() ? Texts::tr("Configuration without a name")
                                                : m_overview.device().name();
}

void Page::writeHead()
{
    const Element head(m_out, "head");
    m_out.empty("meta", {{"charset", QStringLiteral("utf-8")}});
    m_out.empty("meta",
                {{"name", QStringLiteral("viewport")},
                 {"content", QStringLiteral("width=device-width, initial-scale=1")}});
    // Names come from anywhere: should one ever get past the escaping, it still cannot do anything.
    m_out.empty("meta",
                {{"http-equiv", QStringLiteral("Content-Security-Policy")},
                 {"content", QStringLiteral("default-src 'none'; style-src 'unsafe-inline'")}});
    m_out.element("title", Texts::tr("%1 – configuration report").arg(title()));
    m_out.lineBreak();
    QFile css(QStringLiteral(":/vrnCommissioning/report.css"));
    css.open(QIODevice::ReadOnly);
    const Element style(m_out, "style");
    m_out.raw(QString::fromUtf8(css.readAll()));
}

void Page::writePageHeader()
{
    const CDescriptionElement &description = m_overview.description();
    {
        const Element header(m_out, "header", {{"class", QStringLiteral("page")}});
        m_out.element("p", Texts::tr("Configuration report"),
                      {{"class", QStringLiteral("eyebrow")}});
        {
            const Element heading(m_out, "h1");
            m_out.element("bdi", title());
        }
        writeComment(description.comment());
        writeTiles();
        writeNavigation();
    }
    m_out.lineBreak();
}

void Page::writeTile(const QString &label, int number, const char *cssClass)
{
    const Element tile(m_out, "li",
                       {{"class", number > 0 ? QString::fromLatin1(cssClass) : QString()}});
    m_out.element("strong", QString::number(number));
    m_out.text(label);
}

void Page::writeTiles()
{
    const Element tiles(m_out, "ul", {{"class", QStringLiteral("tiles")}});
    writeTile(Texts::tr("Errors"), m_findings.count(SConfigurationFinding::ERROR), "error");
    writeTile(Texts::tr("Warnings"), m_findings.count(SConfigurationFinding::WARNING), "warning");
    writeTile(Texts::tr("Drives"), m_overview.drives().size(), nullptr);
    writeTile(Texts::tr("Files"), m_overview.fileCount(), nullptr);
    writeTile(Texts::tr("Plug-ins"), m_overview.plugins().size(), nullptr);
}

void Page::writeNavigation()
{
    QList<QPair<QString, QString>> targets = {{QStringLiteral("#findings"), Texts::tr("Findings")}};
    if (m_overview.hasDevice()) {
        targets += {{QStringLiteral("#device"), Texts::tr("Device")},
                    {QStringLiteral("#drives"), Texts::tr("Drives")},
                    {QStringLiteral("#files"), Texts::tr("Files of the device")},
                    {QStringLiteral("#plugins"), Texts::tr("Plug-ins")},
                    {QStringLiteral("#options"), Texts::tr("Start options")}};
    }
    const Element navigation(m_out, "nav", {{"aria-label", Texts::tr("Sections of this page")}});
    const Element list(m_out, "ul");
    for (const auto &target : targets) {
        const Element entry(m_out, "li");
        m_out.element("a", target.second, {{"href", target.first}});
    }
}

// Findings

QString Page::place(const SConfigurationFinding &finding) const
{
    return finding.position.isKnown()
        ? Texts::tr("line %1, column %2")
              .arg(QString::number(finding.position.line), QString::number(finding.position.column))
        : QString();
}

void Page::writeFindings()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Findings"), QStringLiteral("findings"));
    if (m_findings.all().isEmpty()) {
        m_out.element("p", Texts::tr("The check found no errors and no warnings."),
                      {{"class", QStringLiteral("card none")}});
        return;
    }
    writeSummary();
    writeFindingsOfWhole();
}

void Page::writeSummary()
{
    const int count = m_findings.all().size();
    const Element card(m_out, "div", {{"class", QStringLiteral("card summary")}});
    writeSummary(0, std::min(count, SummaryLength));
    if (count > SummaryLength) {
        const Element details(m_out, "details");
        m_out.element("summary", Texts::tr("Further findings: %1").arg(count - SummaryLength));
        writeSummary(SummaryLength, count);
    }
}

void Page::writeSummary(int first, int end)
{
    const Element list(m_out, "ol", {{"start", QString::number(first + 1)}});
    for (int i = first; i < end; ++i) {
        const SConfigurationFinding finding = m_findings.at(i);
        m_out.lineBreak();
        const Element entry(m_out, "li");
        writeSeverity(finding);
        {
            const Element message(m_out, "div", {{"class", QStringLiteral("message")}});
            {
                const Element link(m_out, "a",
                                   {{"href", QStringLiteral("#finding-%1").arg(i + 1)}});
                m_out.element("bdi", finding.message);
            }
            if (!finding.item.isEmpty()) {
                m_out.element("code", finding.item, {{"dir", QStringLiteral("auto")}});
            }
        }
        m_out.element("span", place(finding), {{"class", QStringLiteral("where")}});
    }
}

void Page::writeFindingsOfWhole()
{
    const QStringList items = {QString(), QStringLiteral("description")};
    if (hasFindings(items)) {
        const Element card(m_out, "div", {{"class", QStringLiteral("card group")}});
        m_out.element("h3", Texts::tr("The configuration as a whole"));
        writeFindings(items);
    }
}

void Page::writeSeverity(const SConfigurationFinding &finding)
{
    const bool isError = finding.severity == SConfigurationFinding::ERROR;
    m_out.element(
        "span", isError ? Texts::tr("Error") : Texts::tr("Warning"),
        {{"class", isError ? QStringLiteral("badge error") : QStringLiteral("badge warning")}});
}

void Page::writeFinding(int index)
{
    const SConfigurationFinding finding = m_findings.at(index);
    const bool isError = finding.severity == SConfigurationFinding::ERROR;
    m_out.lineBreak();
    const Element entry(m_out, "li",
                        {{"id", QStringLiteral("finding-%1").arg(index + 1)},
                         {"class", isError ? QStringLiteral("error") : QStringLiteral("warning")}});
    {
        const Element paragraph(m_out, "p");
        writeSeverity(finding);
        m_out.element("bdi", finding.message);
    }
    const auto line = [this](const QString &label, const QString &text) {
        if (!text.isEmpty()) {
            const Element paragraph(m_out, "p");
            m_out.element("span", label, {{"class", QStringLiteral("soft")}});
            m_out.raw(QStringLiteral(" "));
            m_out.element("bdi", text);
        }
    };
    // Most messages quote what was found.
    if (!finding.message.contains(finding.found)) {
        line(Texts::tr("Found:"), finding.found);
    }
    line(Texts::tr("Expected:"), finding.expected);
    line(Texts::tr("Hint:"), finding.hint);
    const Element paragraph(m_out, "p", {{"class", QStringLiteral("place")}});
    m_out.element("code", finding.rule);
    const auto part = [this](const QString &text) {
        if (!text.isEmpty()) {
            m_out.raw(QStringLiteral(" · "));
            m_out.element("bdi", text);
        }
    };
    part(finding.item);
    part(place(finding));
}

bool Page::hasFindings(const QStringList &items) const
{
    return std::any_of(items.begin(), items.end(),
                       [this](const QString &item) { return !m_findings.at(item).isEmpty(); });
}

void Page::writeFindings(const QStringList &items)
{
    if (!hasFindings(items)) {
        return;
    }
    const Element list(m_out, "ul", {{"class", QStringLiteral("findings")}});
    for (const QString &item : items) {
        for (const int index : m_findings.at(item)) {
            writeFinding(index);
        }
    }
}

// The drawing

DeviceDrawing::EMark Page::mark(const QStringList &items) const
{
    DeviceDrawing::EMark result = DeviceDrawing::MARK_NONE;
    const QList<SConfigurationFinding> all = m_findings.all();
    for (const QString &item : items) {
        for (const int index : m_findings.at(item)) {
            if (all.at(index).severity == SConfigurationFinding::ERROR) {
                return DeviceDrawing::MARK_ERROR;
            }
            result = DeviceDrawing::MARK_WARNING;
        }
    }
    return result;
}

DeviceDrawing::SModule Page::module(const SDrive &drive) const
{
    const CSubDeviceElement &element = drive.drive;
    DeviceDrawing::SModule module;
    module.number = QString::number(element.driveId());
    module.name = orDash(element.name());
    module.isOldSeries = element.isKD2();
    module.series = element.isKD2() ? QStringLiteral("KD2") : QStringLiteral("KD3");
    module.busNumber = QString::number(element.busId());
    module.bus = element.busId() == 0 ? Texts::tr("No bus ID")
                                      : Texts::tr("Bus ID %1").arg(module.busNumber);
    module.target = QStringLiteral("drive-%1").arg(module.number);
    QStringList items = {drive.item};
    for (const SFile &file : drive.files) {
        items.append(file.item);
    }
    module.mark = mark(items);
    QString text = Texts::tr("Drive %1: %2, series %3. %4.");
    switch (module.mark) {
    case DeviceDrawing::MARK_ERROR:
        text = Texts::tr("Drive %1: %2, series %3. %4. It has errors.");
        break;
    case DeviceDrawing::MARK_WARNING:
        text = Texts::tr("Drive %1: %2, series %3. %4. It has warnings.");
        break;
    case DeviceDrawing::MARK_NONE:
        break;
    }
    module.title = text.arg(module.number, module.name, module.series, module.bus);
    return module;
}

void Page::writeDrawing()
{
    const CDeviceElement &device = m_overview.device();
    DeviceDrawing::SDevice drawn;
    drawn.name = orDash(device.name());
    drawn.title = Texts::tr("Device %1. Drives on its fieldbus: %2.")
                      .arg(device.name(), QString::number(m_overview.drives().size()));
    drawn.target = QStringLiteral("device");
    drawn.details = QStringList{
        device.productName(),
        Texts::tr("Class %1").arg(CDeviceElement::deviceClassString(device.deviceClass()))};
    drawn.details.removeAll(QString());
    if (!m_overview.etherCatMaster().file.isNull()) {
        drawn.sockets.append(QStringLiteral("EtherCAT"));
    }
    if (device.isOpcUaEnabled()) {
        drawn.sockets.append(QStringLiteral("OPC UA"));
    }
    drawn.mark = mark({QStringLiteral("device")});
    drawn.withoutModules = Texts::tr("No drives");
    for (const SDrive &drive : m_overview.drives()) {
        drawn.modules.append(module(drive));
    }
    {
        const Element section(m_out, "section", {{"aria-labelledby", QStringLiteral("drawing")}});
        writeHeading(Texts::tr("The device and its drives"), QStringLiteral("drawing"));
        const Element figure(m_out, "figure", {{"class", QStringLiteral("card")}});
        DeviceDrawing::write(drawn, DeviceDrawing::LAYOUT_WIDE, m_out);
        DeviceDrawing::write(drawn, DeviceDrawing::LAYOUT_NARROW, m_out);
    }
    m_out.lineBreak();
}

// The device and its drives

void Page::writeDevice()
{
    const CDescriptionElement &description = m_overview.description();
    const CDeviceElement &device = m_overview.device();
    const CDeviceHardwareId &hardware = device.hardwareId();
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Device"), QStringLiteral("device"));
    const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
    writeFindings({QStringLiteral("device")});
    const Element facts(m_out, "dl", {{"class", QStringLiteral("facts")}});
    writeFact(Texts::tr("Name"), device.name());
    writeFact(Texts::tr("Comment"), device.comment());
    writeFact(Texts::tr("Class"), CDeviceElement::deviceClassString(device.deviceClass()));
    writeFact(Texts::tr("Product"), hardware.name());
    writeFact(Texts::tr("Platform, version, revision"),
              hardware.isNull() ? QString()
                                : QStringLiteral("%1 · %2 · %3")
                                      .arg(hardware.platform())
                                      .arg(hardware.version())
                                      .arg(hardware.revision()));
    writeFact(Texts::tr("Hardware identity"), device.hardwareIdStr(), true);
    writeFact(Texts::tr("Configuration name"), device.configurationName());
    writeFact(Texts::tr("Version of the configuration"), description.version());
    writeFact(Texts::tr("Created"), description.creationDate().toString(Qt::ISODate));
    writeFact(Texts::tr("Last revision"), description.revisionDate().toString(Qt::ISODate));
    writeFact(Texts::tr("Written by"), m_overview.metaData().author());
    writeFact(Texts::tr("Written on"), m_overview.metaData().date().toString(Qt::ISODate));
}

void Page::writeDrives()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Drives"), QStringLiteral("drives"));
    const QStringList items = {QStringLiteral("drive")};
    writeFindings(items);
    if (m_overview.drives().isEmpty()) {
        m_out.element("p", Texts::tr("The device has no drives."),
                      {{"class", QStringLiteral("card soft")}});
    }
    for (const SDrive &drive : m_overview.drives()) {
        m_out.lineBreak();
        writeDrive(drive);
    }
}

void Page::writeDrive(const SDrive &drive)
{
    const CSubDeviceElement &element = drive.drive;
    const Element card(m_out, "article",
                       {{"class", QStringLiteral("card drive")},
                        {"id", QStringLiteral("drive-%1").arg(element.driveId())}});
    {
        const Element heading(m_out, "h3");
        m_out.element("span", QString::number(element.driveId()),
                      {{"class", QStringLiteral("driveno")}});
        m_out.raw(QStringLiteral(" "));
        m_out.element("bdi", orDash(element.name()));
        m_out.raw(QStringLiteral(" "));
        m_out.element("span", element.isKD2() ? QStringLiteral("KD2") : QStringLiteral("KD3"),
                      {{"class", QStringLiteral("badge series")}});
    }
    writeComment(element.comment());
    writeFindings({drive.item});
    {
        const Element facts(m_out, "dl", {{"class", QStringLiteral("facts")}});
        writeFact(Texts::tr("Bus identifier"),
                  element.busId() == 0 ? QString() : QString::number(element.busId()));
        writeFact(Texts::tr("Hardware identity"), element.hardwareIdStr(), true);
    }
    if (!drive.files.isEmpty()) {
        writeFileTable(rows(drive.files));
    }
}

// Files

/** Files of which there is one at most; one that is missing may have been found to be. */
void Page::writeSingleFiles()
{
    QList<SFile> files;
    QStringList missing;
    for (const SFile &file :
         {m_overview.dictionary(), m_overview.faultTexts(), m_overview.etherCatMaster()}) {
        if (file.file.isNull()) {
            missing.append(file.item);
        } else {
            files.append(file);
        }
    }
    writeGroup(Texts::tr("Object dictionary, fault texts, bus configuration"), missing,
               rows(files));
}

QList<Page::SRow> Page::rows(const QList<SFile> &files) const
{
    QList<SRow> result;
    for (const SFile &file : files) {
        result.append({file.item, kindText(file.kind), file.file, QString()});
    }
    return result;
}

QList<Page::SRow> Page::parameterRows() const
{
    QList<SRow> result;
    for (const CConfigurationOverview::SParameterFile &parameters : m_overview.parameterFiles()) {
        QList<SRow> pair;
        for (const SFile &file : parameters.files) {
            pair.append({QString(),
                         Texts::tr("%1, %2").arg(kindText(file.kind), parameters.typeText),
                         file.file, QString()});
        }
        if (pair.isEmpty()) {
            // Without a type or a name it stands for no files.
            CFileElement nameAlone;
            nameAlone.setFileName(parameters.parameters.name());
            pair.append({QString(), parameters.typeText, nameAlone, QString()});
        }
        pair.first().file.setComment(parameters.parameters.comment());
        pair.last().item = parameters.item;
        result += pair;
    }
    return result;
}

QList<Page::SRow> Page::fpgaRows() const
{
    QList<SRow> result = rows(m_overview.fpgaFiles());
    if (!result.isEmpty()) {
        result.first().badge = Texts::tr("Active");
    }
    return result;
}

void Page::writeFiles()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Files of the device"), QStringLiteral("files"));
    writeGroup(Texts::tr("Configuration"), {}, rows({m_overview.configurationFile()}));
    writeGroup(Texts::tr("Parameter files"), {QStringLiteral("device.parameterFiles")},
               parameterRows());
    writeSingleFiles();
    writeGroup(Texts::tr("FPGA images"),
               {QStringLiteral("device.fpgaFiles"), QStringLiteral("device.activeFpgaFile")},
               fpgaRows());
    writeGroup(Texts::tr("OPC UA models"),
               {QStringLiteral("device.opcUaEnabled"), QStringLiteral("device.opcUaFiles")},
               rows(m_overview.opcUaFiles()),
               m_overview.device().isOpcUaEnabled() ? Texts::tr("Enabled") : Texts::tr("Disabled"));
    writeGroup(Texts::tr("Additional files"), {QStringLiteral("files")},
               rows(m_overview.additionalFiles()));
}

void Page::writeGroup(const QString &heading, const QStringList &items, const QList<SRow> &rows,
                      const QString &badge)
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

void Page::writeColumnHeads(const QStringList &heads)
{
    const Element head(m_out, "thead");
    const Element row(m_out, "tr");
    for (const QString &text : heads) {
        m_out.element("th", text, {{"scope", QStringLiteral("col")}});
    }
}

void Page::writeFileTable(const QList<SRow> &rows)
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

void Page::writeFileRow(const SRow &row)
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
    }
    m_out.element("td", row.kind, {{"data-label", Texts::tr("Kind")}});
    writeDirectory(Texts::tr("On the device"), row.file.devicePath());
    writeDirectory(Texts::tr("In the project"), row.file.projectPath());
}

void Page::writeDirectory(const QString &label, const QString &directory)
{
    const Element cell(m_out, "td", {{"data-label", label}});
    const Element code(m_out, "code", {{"dir", QStringLiteral("auto")}});
    m_out.path(orDash(directory));
}

void Page::writeFindingsRow(const QString &item, int columns)
{
    // The path of the whole document is empty, and so is that of a row that is not an entry.
    if (!item.isEmpty() && hasFindings({item})) {
        const Element row(m_out, "tr");
        const Element cell(m_out, "td", {{"colspan", QString::number(columns)}});
        writeFindings({item});
    }
}

// Plug-ins and options

void Page::writePlugins()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Plug-ins"), QStringLiteral("plugins"));
    const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
    writeFindings({QStringLiteral("device.plugins"), QStringLiteral("device.executionPlugin")});
    if (m_overview.plugins().isEmpty()) {
        m_out.element("p", Texts::tr("The device has no plug-ins."),
                      {{"class", QStringLiteral("soft")}});
        return;
    }
    const Element table(m_out, "table", {{"class", QStringLiteral("files")}});
    {
        const Element columns(m_out, "colgroup");
        m_out.empty("col", {{"class", QStringLiteral("what")}});
        m_out.empty("col", {{"class", QStringLiteral("number")}});
        m_out.empty("col", {{"class", QStringLiteral("number")}});
        m_out.empty("col");
        m_out.empty("col");
    }
    writeColumnHeads({Texts::tr("Plug-in"), Texts::tr("Version"), Texts::tr("Priority"),
                      Texts::tr("On the device"), Texts::tr("In the project")});
    const Element body(m_out, "tbody");
    for (const CConfigurationOverview::SPlugin &plugin : m_overview.plugins()) {
        m_out.lineBreak();
        writePlugin(plugin);
        writeFindingsRow(plugin.item, 5);
    }
}

void Page::writePlugin(const CConfigurationOverview::SPlugin &plugin)
{
    const Element row(
        m_out, "tr",
        {{"class", hasFindings({plugin.item}) ? QStringLiteral("concerned") : QString()}});
    {
        const Element name(m_out, "th", {{"scope", QStringLiteral("row")}});
        m_out.element("bdi", orDash(plugin.plugin.name()), {{"class", QStringLiteral("file")}});
        if (plugin.isExecuted) {
            m_out.element("span", Texts::tr("Runs the application"),
                          {{"class", QStringLiteral("badge active")}});
        }
        if (!plugin.library.isNull()) {
            const Element library(m_out, "div", {{"class", QStringLiteral("soft")}});
            m_out.element("bdi", plugin.library.fileName());
        }
    }
    const int priority = plugin.plugin.priority();
    const bool hasPriority = priority != std::numeric_limits<int>::min();
    {
        const Element version(m_out, "td", {{"data-label", Texts::tr("Version")}});
        m_out.element("bdi", orDash(plugin.plugin.version()));
    }
    m_out.element("td", orDash(hasPriority ? QString::number(priority) : QString()),
                  {{"data-label", Texts::tr("Priority")}});
    writeDirectory(Texts::tr("On the device"), plugin.library.devicePath());
    writeDirectory(Texts::tr("In the project"), plugin.library.projectPath());
}

void Page::writeOptions()
{
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Start options"), QStringLiteral("options"));
    const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
    writeFindings({QStringLiteral("device.options")});
    if (m_overview.options().isEmpty()) {
        m_out.element("p", Texts::tr("The device starts without options."),
                      {{"class", QStringLiteral("soft")}});
        return;
    }
    const Element list(m_out, "ul", {{"class", QStringLiteral("chips")}});
    for (const CConfigurationOverview::SOption &option : m_overview.options()) {
        const Element entry(
            m_out, "li",
            {{"class", hasFindings({option.item}) ? QStringLiteral("concerned") : QString()}});
        m_out.element("code", option.text, {{"dir", QStringLiteral("auto")}});
        writeFindings({option.item});
    }
}

// Parts of sections

void Page::writeFact(const QString &name, const QString &value, bool isCode)
{
    const Element group(m_out, "div");
    m_out.element("dt", name);
    const Element description(m_out, "dd");
    const Element content(
        m_out, isCode ? "code" : "bdi",
        {{"class", QStringLiteral("multiline")}, {"dir", QStringLiteral("auto")}});
    m_out.lines(orDash(value));
}

void Page::writeComment(const QString &comment)
{
    if (!comment.isEmpty()) {
        const Element paragraph(
            m_out, "div",
            {{"class", QStringLiteral("comment multiline soft")}, {"dir", QStringLiteral("auto")}});
        m_out.lines(comment);
    }
}

void Page::writeHeading(const QString &text, const QString &id)
{
    m_out.lineBreak();
    m_out.element("h2", text, {{"id", id}});
    m_out.lineBreak();
}

} // namespace

CConfigurationReport::CConfigurationReport(const CConfigurationOverview &overview,
                                           const QList<SConfigurationFinding> &findings)
    : m_overview(overview), m_findings(findings)
{
}

QByteArray CConfigurationReport::toHtml() const
{
    return Page(m_overview, m_findings).write();
}
