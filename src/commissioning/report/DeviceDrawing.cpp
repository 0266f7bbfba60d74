#include "commissioning/report/DeviceDrawing.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstring>

namespace DeviceDrawing {

namespace {

using Element = HtmlWriter::Element;

/** More modules than this are drawn smaller. */
const int ModulesInFullSize = 16;

struct SBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
};

/** Where everything stands, in the units of the drawing, which are pixels at its natural size. */
struct SLayout {
    /** Of the shapes behind which texts end; each drawing of a page has its own. */
    QString id;
    int width = 0;
    SBox device;
    /** x of the line from which the bus of each row branches off. */
    int trunk = 0;
    /** x of the first column, y of the first row's bus. */
    int left = 0;
    int top = 0;
    int columns = 0;
    int moduleWidth = 0;
    int moduleHeight = 0;
    int columnGap = 0;
    /** From the bottom of a module to the bus of the next row. */
    int rowGap = 0;
    bool isCompact = false;

    /** From the bus to the top of the modules. */
    static const int Drop = 20;

    int row(int index) const { return index / columns; }
    int busY(int rowIndex) const { return top + rowIndex * (Drop + moduleHeight + rowGap); }
    int moduleX(int index) const { return left + index % columns * (moduleWidth + columnGap); }
    int moduleY(int index) const { return busY(row(index)) + Drop; }
    /** Whether the bus leaves the device at its side, not at its bottom. */
    bool isBesideDevice() const { return trunk > device.right(); }
};

SLayout layoutFor(ELayout layout, int moduleCount)
{
    SLayout places;
    places.isCompact = moduleCount > ModulesInFullSize;
    places.moduleHeight = places.isCompact ? 70 : 140;
    places.rowGap = places.isCompact ? 22 : 28;
    if (layout == LAYOUT_NARROW) {
        places.id = QStringLiteral("narrow");
        places.width = 344;
        places.device = {4, 14, 336, 128};
        places.trunk = 24;
        places.left = 42;
        places.top = 168;
        places.columns = places.isCompact ? 3 : 2;
        places.moduleWidth = places.isCompact ? 92 : 142;
        places.columnGap = places.isCompact ? 10 : 14;
        return places;
    }
    places.id = QStringLiteral("wide");
    places.width = 960;
    if (places.isCompact) {
        places.device = {12, 14, 400, 128};
        places.trunk = 34;
        places.left = 60;
        places.top = 172;
        places.columns = 9;
        places.moduleWidth = 90;
        places.columnGap = 9;
        return places;
    }
    places.device = {12, 14, 286, 186};
    places.trunk = 318;
    places.left = 340;
    places.top = 40;
    places.columns = 4;
    places.moduleWidth = 138;
    places.columnGap = 18;
    return places;
}

QString number(int value)
{
    return QString::number(value);
}

QString translation(int x, int y)
{
    return QStringLiteral("translate(%1 %2)").arg(x).arg(y);
}

bool isOneOf(uint c, const char *characters)
{
    return c != 0 && c < 0x80 && std::strchr(characters, static_cast<int>(c)) != nullptr;
}

/** How wide a character is at most, as a part of its height, in the fonts that pages are shown in.
 */
double widthOf(uint c)
{
    if (QChar::category(c) == QChar::Mark_NonSpacing || QChar::category(c) == QChar::Other_Format) {
        return 0;
    }
    const bool isWide = (c >= 0x1100 && c < 0x1200) || (c >= 0x2E80 && c < 0xD7B0)
        || (c >= 0xF900 && c < 0xFB00) || (c >= 0xFE30 && c < 0xFE70) || (c >= 0xFF00 && c < 0xFF61)
        || c >= 0x1F000;
    if (isWide) {
        return 1.05;
    }
    if (isOneOf(c, "iljtfI.,:;'|!()[] ")) {
        return 0.4;
    }
    if (isOneOf(c, "mwMWQ@%&")) {
        return 1;
    }
    return QChar::isUpper(c) || c >= 0x250 ? 0.77 : 0.64;
}

double widthOf(const QString &text)
{
    double width = 0;
    for (const uint c : text.toUcs4()) {
        width += widthOf(c);
    }
    return width;
}

void writeText(const QString &text, int x, int y, const char *cssClass, int width, int size,
               HtmlWriter &out)
{
    out.element("text", shortened(text, static_cast<double>(width) / size),
                {{"class", QLatin1String(cssClass)},
                 {"x", number(x)},
                 {"y", number(y)},
                 {"font-size", number(size)}});
}

/** The shape behind which the texts of a box end, should a font be wider than expected. */
void writeClip(const QString &id, int width, int height, HtmlWriter &out)
{
    const Element clip(out, "clipPath", {{"id", id}});
    out.empty("rect", {{"x", number(4)}, {"width", number(width - 8)}, {"height", number(height)}});
}

QString clipReference(const QString &id)
{
    return QStringLiteral("url(#%1)").arg(id);
}

/** A sign at the upper right corner of a box; its shape tells the severity, too. */
void writeMark(EMark mark, int x, int y, HtmlWriter &out)
{
    if (mark != MARK_NONE) {
        out.empty(
            "use",
            {{"href",
              mark == MARK_ERROR ? QStringLiteral("#mark-error") : QStringLiteral("#mark-warning")},
             {"x", number(x)},
             {"y", number(y)}});
    }
}

void writeSockets(const QStringList &labels, const SBox &box, HtmlWriter &out)
{
    const int size = 11;
    const int height = 22;
    const int gap = 8;
    int x = 62;
    for (const QString &label : labels) {
        const int width = static_cast<int>(widthOf(label) * size) + 16;
        out.empty("rect",
                  {{"class", QStringLiteral("socket")},
                   {"x", number(x)},
                   {"y", number(box.height - height - 12)},
                   {"width", number(width)},
                   {"height", number(height)},
                   {"rx", QStringLiteral("4")}});
        writeText(label, x + 8, box.height - 19, "detail", width, size, out);
        x += width + gap;
    }
}

void writeDevice(const SDevice &device, const SLayout &layout, HtmlWriter &out)
{
    const SBox &box = layout.device;
    const Element link(
        out, "a", {{"href", QLatin1Char('#') + device.target}, {"tabindex", QStringLiteral("-1")}});
    const Element group(out, "g", {{"transform", translation(box.x, box.y)}});
    out.element("title", device.title);
    out.empty("rect",
              {{"class", QStringLiteral("cabinet")},
               {"width", number(box.width)},
               {"height", number(box.height)},
               {"rx", QStringLiteral("10")}});
    out.empty("path",
              {{"class", QStringLiteral("panel")},
               {"d",
                QStringLiteral("M44 0H10a10 10 0 0 0-10 10V%1a10 10 0 0 0 10 10H44z")
                    .arg(box.height - 10)}});
    out.empty("use", {{"href", QStringLiteral("#panel")}});
    {
        const Element texts(out, "g",
                            {{"clip-path", clipReference(QStringLiteral("device-") + layout.id)}});
        const int textWidth = box.width - 62 - 18;
        writeText(device.name, 62, 38, "name", textWidth, 19, out);
        int y = 62;
        for (const QString &detail : device.details) {
            writeText(detail, 62, y, "detail", textWidth, 13, out);
            y += 20;
        }
        writeSockets(device.sockets, box, out);
    }
    writeMark(device.mark, box.width - 6, 4, out);
}

/** @p text, or @p shorter where it does not fit. */
QString fitting(const QString &text, const QString &shorter, int width, int size)
{
    return widthOf(text) * size <= width ? text : shorter;
}

void writeModuleFront(const SModule &module, const SLayout &layout, HtmlWriter &out)
{
    const Element texts(out, "g",
                        {{"clip-path", clipReference(QStringLiteral("module-") + layout.id)}});
    const int width = layout.moduleWidth;
    if (layout.isCompact) {
        writeText(module.number, 10, 25, "number", width - 50, 17, out);
        writeText(module.series, width - 37, 24, "series", 40, 11, out);
        writeText(module.name, 10, 44, "name", width - 16, 12, out);
        writeText(fitting(module.bus, module.busNumber, width - 16, 11), 10, 60, "detail",
                  width - 16, 11, out);
        return;
    }
    writeText(module.number, 14, 37, "number", width - 70, 25, out);
    out.empty("rect",
              {{"class", QStringLiteral("tag")},
               {"x", number(width - 56)},
               {"y", QStringLiteral("17")},
               {"width", QStringLiteral("42")},
               {"height", QStringLiteral("22")},
               {"rx", QStringLiteral("11")}});
    writeText(module.series, width - 48, 32, "series", 42, 12, out);
    writeText(module.name, 14, 66, "name", width - 20, 15, out);
    writeText(fitting(module.bus, module.busNumber, width - 24, 13), 14, 87, "detail", width - 24,
              13, out);
    out.empty(
        "use",
        {{"href", module.isOldSeries ? QStringLiteral("#front-old") : QStringLiteral("#front")},
         {"x", number((width - 110) / 2)},
         {"y", QStringLiteral("100")}});
}

void writeModule(const SModule &module, int x, int y, const SLayout &layout, HtmlWriter &out)
{
    const Element link(
        out, "a", {{"href", QLatin1Char('#') + module.target}, {"tabindex", QStringLiteral("-1")}});
    const Element group(out, "g", {{"transform", translation(x, y)}});
    const int width = layout.moduleWidth;
    out.element("title", module.title);
    out.empty(
        "rect",
        {{"class", module.isOldSeries ? QStringLiteral("module old") : QStringLiteral("module")},
         {"width", number(width)},
         {"height", number(layout.moduleHeight)},
         {"rx", QStringLiteral("8")}});
    out.empty("use", {{"href", QStringLiteral("#plug")}, {"x", number(width / 2)}});
    writeModuleFront(module, layout, out);
    writeMark(module.mark, width - 4, 2, out);
}

/** The lines from the device to all modules. */
void writeBus(int moduleCount, const SLayout &layout, HtmlWriter &out)
{
    const int lastRow = layout.row(moduleCount - 1);
    QString lines;
    if (layout.isBesideDevice()) {
        lines += QStringLiteral("M%1 %2H%3")
                     .arg(layout.device.right())
                     .arg(layout.top)
                     .arg(layout.trunk);
        out.empty("use",
                  {{"href", QStringLiteral("#socket-side")},
                   {"x", number(layout.device.right())},
                   {"y", number(layout.top)}});
    } else {
        lines += QStringLiteral("M%1 %2V%3")
                     .arg(layout.trunk)
                     .arg(layout.device.bottom())
                     .arg(layout.top);
        out.empty("use",
                  {{"href", QStringLiteral("#plug")},
                   {"x", number(layout.trunk)},
                   {"y", number(layout.device.bottom() + 3)}});
    }
    if (lastRow > 0) {
        lines +=
            QStringLiteral("M%1 %2V%3").arg(layout.trunk).arg(layout.top).arg(layout.busY(lastRow));
    }
    for (int first = 0; first < moduleCount; first += layout.columns) {
        const int last = std::min(first + layout.columns, moduleCount) - 1;
        const int y = layout.busY(layout.row(first));
        lines += QStringLiteral("M%1 %2H%3")
                     .arg(layout.trunk)
                     .arg(y)
                     .arg(layout.moduleX(last) + layout.moduleWidth / 2);
        for (int i = first; i <= last; ++i) {
            lines += QStringLiteral("M%1 %2v%3")
                         .arg(layout.moduleX(i) + layout.moduleWidth / 2)
                         .arg(y)
                         .arg(SLayout::Drop);
        }
    }
    out.empty("path", {{"class", QStringLiteral("bus")}, {"d", lines}});
}

void writePlaceholder(const QString &text, const SBox &box, HtmlWriter &out)
{
    out.empty("rect",
              {{"class", QStringLiteral("placeholder")},
               {"x", number(box.x)},
               {"y", number(box.y)},
               {"width", number(box.width)},
               {"height", number(box.height)},
               {"rx", QStringLiteral("8")}});
    out.element("text", text,
                {{"class", QStringLiteral("detail middle")},
                 {"x", number(box.x + box.width / 2)},
                 {"y", number(box.y + box.height / 2 + 5)},
                 {"font-size", QStringLiteral("14")}});
}

} // namespace

QString shortened(const QString &text, double width)
{
    if (widthOf(text) <= width) {
        return text;
    }
    const QChar ellipsis(0x2026);
    const double available = width - 1;
    // A base character and the marks on it stay together.
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    double used = 0;
    int end = 0;
    for (int next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
        used += widthOf(text.mid(end, next - end));
        if (used > available) {
            break;
        }
        end = next;
    }
    return text.left(end).trimmed() + ellipsis;
}

void writeShapes(HtmlWriter &out)
{
    out.raw(QStringLiteral(
        "<svg class=\"shapes\" width=\"0\" height=\"0\" aria-hidden=\"true\" focusable=\"false\">"
        "<defs>\n"
        // Ventilation slots and lamps of the controller.
        "<g id=\"panel\"><path class=\"slots\" d=\"M12 22H32M12 30H32M12 38H32M12 46H32\"/>"
        "<circle class=\"lamp\" cx=\"16\" cy=\"66\" r=\"3.5\"/>"
        "<circle class=\"lamp\" cx=\"28\" cy=\"66\" r=\"3.5\"/></g>\n"
        "<rect id=\"plug\" class=\"plug\" x=\"-11\" y=\"-5\" width=\"22\" height=\"9\" rx=\"2\"/>\n"
        "<rect id=\"socket-side\" class=\"plug\" x=\"-4\" y=\"-11\" width=\"9\" height=\"22\" "
        "rx=\"2\"/>\n"
        // The terminals of the motor, and the ribs of the newer or the older series.
        "<g id=\"front\"><path class=\"rule\" d=\"M0 0H110\"/>"
        "<circle class=\"terminal\" cx=\"9\" cy=\"20\" r=\"6\"/>"
        "<circle class=\"terminal\" cx=\"29\" cy=\"20\" r=\"6\"/>"
        "<circle class=\"terminal\" cx=\"49\" cy=\"20\" r=\"6\"/>"
        "<path class=\"ribs\" d=\"M72 14H110M72 20H110M72 26H110\"/></g>\n"
        "<g id=\"front-old\"><path class=\"rule\" d=\"M0 0H110\"/>"
        "<rect class=\"terminal\" x=\"2\" y=\"13\" width=\"14\" height=\"14\"/>"
        "<rect class=\"terminal\" x=\"20\" y=\"13\" width=\"14\" height=\"14\"/>"
        "<rect class=\"terminal\" x=\"38\" y=\"13\" width=\"14\" height=\"14\"/>"
        "<path class=\"ribs\" d=\"M74 11V29M82 11V29M90 11V29M98 11V29M106 11V29\"/></g>\n"
        "<g id=\"mark-error\"><circle class=\"mark-error\" r=\"11\"/>"
        "<path class=\"mark-sign\" d=\"M0-5.5V1M0 5v.2\"/></g>\n"
        "<g id=\"mark-warning\"><path class=\"mark-warning\" d=\"M0-11 12 10H-12z\"/>"
        "<path class=\"mark-sign\" d=\"M0-4.5V2M0 6v.2\"/></g>\n"
        "</defs></svg>\n"));
}

void write(const SDevice &device, ELayout layout, HtmlWriter &out)
{
    const int moduleCount = device.modules.size();
    const SLayout places = layoutFor(layout, moduleCount);
    SBox placeholder = {places.left, places.device.y, 240, places.device.height};
    int height = places.device.bottom();
    if (moduleCount > 0) {
        height = std::max(height, places.moduleY(moduleCount - 1) + places.moduleHeight);
    } else if (!places.isBesideDevice()) {
        placeholder = {places.device.x, places.device.bottom() + 16, places.device.width, 72};
        height = placeholder.bottom();
    }
    const Element svg(out, "svg",
                      {{"class",
                        layout == LAYOUT_WIDE ? QStringLiteral("drawing wide")
                                              : QStringLiteral("drawing narrow")},
                       {"viewBox", QStringLiteral("0 0 %1 %2").arg(places.width).arg(height + 14)},
                       {"role", QStringLiteral("img")}});
    out.element("title", device.title);
    writeClip(QStringLiteral("device-") + places.id, places.device.width, places.device.height,
              out);
    writeClip(QStringLiteral("module-") + places.id, places.moduleWidth, places.moduleHeight, out);
    out.lineBreak();
    if (moduleCount > 0) {
        writeBus(moduleCount, places, out);
        out.lineBreak();
    } else {
        writePlaceholder(device.withoutModules, placeholder, out);
    }
    writeDevice(device, places, out);
    out.lineBreak();
    for (int i = 0; i < moduleCount; ++i) {
        writeModule(device.modules.at(i), places.moduleX(i), places.moduleY(i), places, out);
        out.lineBreak();
    }
}

} // namespace DeviceDrawing
