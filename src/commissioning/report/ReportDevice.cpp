#include "commissioning/report/ReportPage.h"

#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"

using ConfigurationReportTexts::Texts;
using Element = HtmlWriter::Element;

DeviceDrawing::EMark ReportPage::mark(const QStringList &items) const
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

DeviceDrawing::SModule ReportPage::module(const SDrive &drive) const
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

void ReportPage::writeDrawing()
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

void ReportPage::writeDevice()
{
    const CDeviceElement &device = m_overview.device();
    const CDeviceHardwareId &hardware = device.hardwareId();
    const Element section(m_out, "section");
    writeHeading(Texts::tr("Device"), QStringLiteral("device"));
    {
        const Element card(m_out, "div", {{"class", QStringLiteral("card")}});
        writeFindings({QStringLiteral("device")});
        const Element facts(m_out, "dl", {{"class", QStringLiteral("facts")}});
        for (const SShownItem &item : ShownItems::ofDevice(device)) {
            writeFact(item);
        }
        writeFact(Texts::tr("Product"), hardware.name());
        writeFact(Texts::tr("Platform, version, revision"),
                  hardware.isNull() ? QString()
                                    : QStringLiteral("%1 · %2 · %3")
                                          .arg(hardware.platform())
                                          .arg(hardware.version())
                                          .arg(hardware.revision()));
    }
    writeDescription();
}

/** The header of the page has its name and its comment. */
void ReportPage::writeDescription()
{
    const QString path = QStringLiteral("description");
    const Element card(m_out, "div", {{"class", QStringLiteral("card group")}});
    m_out.element("h3", ConfigurationShape::title(ShapePaths::find(path)->text));
    const Element facts(m_out, "dl", {{"class", QStringLiteral("facts")}});
    for (const SShownItem &item :
         ShownItems::of(ConfigurationShape::descriptionItems(), m_overview.description(), path,
                        {QStringLiteral("name"), QStringLiteral("comment")})) {
        writeFact(item);
    }
    writeFact(Texts::tr("Written by"), m_overview.metaData().author());
    writeFact(Texts::tr("Written on"), m_overview.metaData().date().toString(Qt::ISODate));
}

void ReportPage::writeDrives()
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

void ReportPage::writeDrive(const SDrive &drive)
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
        // The others stand above them.
        for (SShownItem item :
             ShownItems::of(ConfigurationShape::driveItems(), element, drive.item,
                            {QStringLiteral("driveNo"), QStringLiteral("type"),
                             QStringLiteral("name"), QStringLiteral("comment")})) {
            item.value = item.isDefault ? QString() : item.value;
            writeFact(item);
        }
    }
    if (!drive.files.isEmpty()) {
        writeFileTable(rows(drive.files));
    }
}
