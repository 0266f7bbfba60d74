#include "imported/xml/CIndentingXmlWriter.h"

#include "imported/xml/XmlText.h"

#include <QCoreApplication>
#include <QMap>
#include <QSet>

namespace {

class Output
{
    Q_DECLARE_TR_FUNCTIONS(CXmlAbstractVornFile)

public:
    explicit Output(const QString &rootName) : m_rootName(rootName) { }

    bool write(const QDomDocument &document)
    {
        m_text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
        writeDocumentType(document.doctype());
        for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.isElement()) {
                writeElement(node.toElement(), m_rootName, 0);
                m_text += QLatin1Char('\n');
            } else if (node.isComment() || isInstruction(node)) {
                writeOther(node);
                m_text += QLatin1Char('\n');
            }
        }
        return m_reason.isEmpty();
    }

    QByteArray bytes() const { return m_text.toUtf8(); }
    QString reason() const { return m_reason; }

private:
    static bool isInstruction(const QDomNode &node)
    {
        // The XML declaration is a processing instruction in a QDomDocument; it is written anew.
        return node.isProcessingInstruction() && node.nodeName() != QLatin1String("xml");
    }

    void fail(const QString &reason)
    {
        if (m_reason.isEmpty()) {
            m_reason = reason;
        }
    }

    void writeDocumentType(const QDomDocumentType &type)
    {
        if (type.isNull() || type.name().isEmpty()) {
            return;
        }
        m_text += QLatin1String("<!DOCTYPE ") + m_rootName;
        if (!type.publicId().isEmpty()) {
            m_text += QLatin1String(" PUBLIC ") + quoted(type.publicId()) + QLatin1Char(' ')
                + quoted(type.systemId());
        } else if (!type.systemId().isEmpty()) {
            m_text += QLatin1String(" SYSTEM ") + quoted(type.systemId());
        }
        m_text += QLatin1String(">\n");
    }

    /** In a document type nothing can be escaped; a text holds at most one kind of quotes. */
    static QString quoted(const QString &text)
    {
        const QChar quote = QLatin1Char(text.contains(QLatin1Char('"')) ? '\'' : '"');
        return quote + text + quote;
    }

    void writeElement(const QDomElement &element, const QString &name, int depth)
    {
        checkName(name);
        m_text += QLatin1Char('<') + name;
        writeAttributes(element);
        if (!element.hasChildNodes()) {
            m_text += QLatin1String("/>");
            return;
        }
        m_text += QLatin1Char('>');
        const bool indented = !XmlText::holdsText(element);
        for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (indented && node.isText()) {
                continue;
            }
            if (indented) {
                startLine(depth + 1);
            }
            if (node.isElement()) {
                writeElement(node.toElement(), node.nodeName(), depth + 1);
            } else if (node.isCDATASection()) {
                writeChecked(node.nodeValue(), element, Context::CData);
            } else if (node.isText()) {
                writeChecked(node.nodeValue(), element, Context::Text);
            } else {
                writeOther(node);
            }
        }
        if (indented) {
            startLine(depth);
        }
        m_text += QLatin1String("</") + name + QLatin1Char('>');
    }

    void startLine(int depth)
    {
        m_text += QLatin1Char('\n');
        m_text += QString(depth, QLatin1Char(' '));
    }

    void writeAttributes(const QDomElement &element)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        QMap<QString, QString> sorted;
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomNode attribute = attributes.item(i);
            sorted.insert(attribute.nodeName(), attribute.nodeValue());
        }
        for (auto it = sorted.cbegin(); it != sorted.cend(); ++it) {
            checkName(it.key());
            m_text += QLatin1Char(' ') + it.key() + QLatin1String("=\"");
            writeChecked(it.value(), element, Context::Attribute);
            m_text += QLatin1Char('"');
        }
    }

    void writeOther(const QDomNode &node)
    {
        const QString value = node.nodeValue();
        if (node.isComment()) {
            if (value.contains(QLatin1String("--")) || value.endsWith(QLatin1Char('-'))) {
                fail(tr("A comment holds '--' or ends in '-', which XML cannot carry."));
            }
            m_text += QLatin1String("<!--") + value + QLatin1String("-->");
        } else if (node.isProcessingInstruction()) {
            if (value.contains(QLatin1String("?>"))) {
                fail(tr("A processing instruction holds '?>', which XML cannot carry."));
            }
            m_text += QLatin1String("<?") + node.nodeName();
            if (!value.isEmpty()) {
                m_text += QLatin1Char(' ') + value;
            }
            m_text += QLatin1String("?>");
        }
        checkCharacters(value, node.parentNode().nodeName());
    }

    enum class Context { Text, Attribute, CData };

    void writeChecked(const QString &value, const QDomElement &element, Context context)
    {
        checkCharacters(value, element.nodeName());
        if (context == Context::CData) {
            // A section cannot hold its own end mark: it is split in two there.
            m_text += QLatin1String("<![CDATA[")
                + QString(value).replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>"))
                + QLatin1String("]]>");
            return;
        }
        for (const QChar c : value) {
            writeEscaped(c, context);
        }
    }

    void writeEscaped(QChar c, Context context)
    {
        switch (c.unicode()) {
        case '&':
            m_text += QLatin1String("&amp;");
            break;
        case '<':
            m_text += QLatin1String("&lt;");
            break;
        case '>':
            m_text += QLatin1String("&gt;");
            break;
        case '\r':
            // As it stands a reader would turn it into a line feed.
            m_text += QLatin1String("&#13;");
            break;
        case '"':
        case '\t':
        case '\n':
            if (context == Context::Attribute) {
                m_text += QStringLiteral("&#%1;").arg(c.unicode());
                break;
            }
            Q_FALLTHROUGH();
        default:
            m_text += c;
        }
    }

    void checkName(const QString &name)
    {
        if (m_checkedNames.contains(name)) {
            return;
        }
        m_checkedNames.insert(name);
        if (!XmlText::isName(name)) {
            fail(tr("'%1' cannot be the name of an element or attribute.").arg(name));
        }
    }

    void checkCharacters(const QString &value, const QString &elementName)
    {
        for (int i = 0; i < value.size(); ++i) {
            const QChar c = value.at(i);
            const ushort unit = c.unicode();
            if (c.isHighSurrogate() && i + 1 < value.size() && value.at(i + 1).isLowSurrogate()) {
                ++i;
                continue;
            }
            const bool allowedControl = unit == '\t' || unit == '\n' || unit == '\r';
            if ((unit < 0x20 && !allowedControl) || c.isSurrogate() || unit >= 0xfffe) {
                fail(tr("The element '%1' holds the character U+%2, which XML cannot carry.")
                         .arg(elementName,
                              QString::number(unit, 16).toUpper().rightJustified(
                                  4, QLatin1Char('0'))));
                return;
            }
        }
    }

    const QString m_rootName;
    // A document has few names; asking about each only once keeps that cheap.
    QSet<QString> m_checkedNames;
    QString m_text;
    QString m_reason;
};

} // namespace

bool CIndentingXmlWriter::write(const QDomDocument &document, const QString &rootName,
                                QByteArray &bytes, QString &reason) const
{
    Output output(rootName);
    if (!output.write(document)) {
        reason = output.reason();
        return false;
    }
    bytes = output.bytes();
    return true;
}
