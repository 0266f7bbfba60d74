#include "commissioning/report/HtmlWriter.h"

namespace {

enum ELines { SHOW_LINE_BREAKS, KEEP_LINE_BREAKS };

const ushort Delete = 0x7F;
/** Signs for the control characters stand here, in their order. */
const ushort ControlPictures = 0x2400;
const ushort PictureOfDelete = 0x2421;

bool isNoCharacter(uint c)
{
    return (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFEu) == 0xFFFEu;
}

/** How a character is written that HTML or XML cannot carry as it is; null for any other one. */
QString replacement(uint c, ELines lines)
{
    switch (c) {
    case '&':
        return QStringLiteral("&amp;");
    case '<':
        return QStringLiteral("&lt;");
    case '>':
        return QStringLiteral("&gt;");
    case '"':
        return QStringLiteral("&quot;");
    case '\n':
    case '\t':
        if (lines == KEEP_LINE_BREAKS) {
            return QString();
        }
        break;
    default:
        break;
    }
    if (c < 0x20) {
        return QString(QChar(static_cast<ushort>(ControlPictures + c)));
    }
    if (c == Delete) {
        return QString(QChar(PictureOfDelete));
    }
    if ((c > Delete && c < 0xA0) || QChar::isSurrogate(c) || isNoCharacter(c)) {
        return QString(QChar(QChar::ReplacementCharacter));
    }
    return QString();
}

void appendEscaped(QString &html, const QString &text, ELines lines)
{
    for (int i = 0; i < text.size(); ++i) {
        uint c = text.at(i).unicode();
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            c = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
        }
        const QString instead = replacement(c, lines);
        if (!instead.isNull()) {
            html += instead;
        } else {
            html += text.midRef(i, isPair ? 2 : 1);
        }
        i += isPair ? 1 : 0;
    }
}

} // namespace

HtmlWriter::Element::Element(HtmlWriter &writer, const char *tag, Attributes attributes)
    : m_writer(writer), m_tag(tag)
{
    writer.tag(tag, attributes, ">");
}

HtmlWriter::Element::~Element()
{
    m_writer.m_html += QLatin1String("</");
    m_writer.m_html += m_tag;
    m_writer.m_html += QLatin1Char('>');
}

void HtmlWriter::tag(const char *name, Attributes attributes, const char *end)
{
    m_html += QLatin1Char('<');
    m_html += QLatin1String(name);
    for (const auto &attribute : attributes) {
        if (attribute.second.isNull()) {
            continue;
        }
        m_html += QLatin1Char(' ');
        m_html += QLatin1String(attribute.first);
        m_html += QLatin1String("=\"");
        appendEscaped(m_html, attribute.second, SHOW_LINE_BREAKS);
        m_html += QLatin1Char('"');
    }
    m_html += QLatin1String(end);
}

void HtmlWriter::text(const QString &text)
{
    appendEscaped(m_html, text, SHOW_LINE_BREAKS);
}

void HtmlWriter::lines(const QString &text)
{
    appendEscaped(m_html, text, KEEP_LINE_BREAKS);
}

void HtmlWriter::path(const QString &path)
{
    const QLatin1Char separator('/');
    const QStringList parts = path.split(separator);
    for (int i = 0; i < parts.size(); ++i) {
        text(parts.at(i));
        if (i < parts.size() - 1) {
            m_html += separator;
            m_html += QLatin1String("<wbr/>");
        }
    }
}

void HtmlWriter::element(const char *tag, const QString &content, Attributes attributes)
{
    const Element element(*this, tag, attributes);
    text(content);
}

void HtmlWriter::empty(const char *tagName, Attributes attributes)
{
    tag(tagName, attributes, "/>");
}
