#include "imported/xml/CIndentingXmlWriter.h"

#include "imported/xml/XmlText.h"
#include "storage/XmlCharacters.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>

#include <limits>
#include <new>
#include <string>

namespace {

class Output
{
    Q_DECLARE_TR_FUNCTIONS(CXmlAbstractVornFile)

public:
    Output(const QString &rootName, const SXmlLimits &limits)
        : m_rootName(rootName), m_limits(limits)
    {
    }

    bool write(const QDomDocument &document)
    {
        m_chunk = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        writeDocumentType(document.doctype());
        for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.isElement()) {
                writeElement(node.toElement(), nameOf(m_rootName), 1);
                m_chunk += '\n';
            } else if (node.isComment() || isInstruction(node)) {
                writeOther(node);
                m_chunk += '\n';
            }
        }
        takeChunk();
        return m_reason.isEmpty();
    }

    QByteArray bytes() const { return m_bytes; }

    QString reason() const { return m_reason; }

private:
    enum class Context { Text, Attribute };

    static bool isInstruction(const QDomNode &node)
    {
        // The XML declaration is a processing instruction in a QDomDocument; the writer writes its
        // own.
        return node.isProcessingInstruction() && node.nodeName() != QLatin1String("xml");
    }

    void fail(const QString &reason)
    {
        if (m_reason.isEmpty()) {
            m_reason = reason;
        }
    }

    void append(const QByteArray &bytes)
    {
        m_chunk.append(bytes.constData(), static_cast<size_t>(bytes.size()));
    }

    /** Long documents grow in large steps: growing costs a copy, and few of them cost little. */
    void takeChunk()
    {
        const qint64 maximumSize = qMin(m_limits.fileSize, MaximumSize);
        if (m_bytes.size() + static_cast<qint64>(m_chunk.size()) > maximumSize) {
            fail(tr("The file would be larger than %1 bytes.").arg(maximumSize));
        } else {
            m_bytes.append(m_chunk.data(), static_cast<int>(m_chunk.size()));
        }
        m_chunk.clear();
    }

    void writeDocumentType(const QDomDocumentType &type)
    {
        if (type.isNull() || type.name().isEmpty()) {
            return;
        }
        m_chunk += "<!DOCTYPE ";
        append(nameOf(m_rootName));
        if (!type.publicId().isEmpty()) {
            m_chunk += " PUBLIC ";
            append(quoted(type.publicId()));
            m_chunk += ' ';
            append(quoted(type.systemId()));
        } else if (!type.systemId().isEmpty()) {
            m_chunk += " SYSTEM ";
            append(quoted(type.systemId()));
        }
        m_chunk += ">\n";
    }

    /** In a document type nothing can be escaped; a text holds at most one kind of quotes. */
    static QByteArray quoted(const QString &text)
    {
        const char quote = text.contains(QLatin1Char('"')) ? '\'' : '"';
        return quote + text.toUtf8() + quote;
    }

    void countNodes(int count)
    {
        m_nodes += count;
        if (m_nodes > m_limits.nodes) {
            fail(tr("The document has more than %1 nodes.").arg(m_limits.nodes));
        }
    }

    void writeElement(const QDomElement &element, const QByteArray &name, int depth)
    {
        countNodes(1);
        if (depth > m_limits.depth) {
            fail(tr("Elements are nested more than %1 deep.").arg(m_limits.depth));
            return;
        }
        m_chunk += '<';
        append(name);
        if (element.hasAttributes()) {
            writeAttributes(element);
        }
        const QDomNode first = element.firstChild();
        if (first.isNull()) {
            m_chunk += "/>";
            return;
        }
        m_chunk += '>';
        const bool isLeaf = first.isText() && first.nextSibling().isNull();
        if (isLeaf || XmlText::holdsText(element)) {
            for (QDomNode node = first; !node.isNull(); node = node.nextSibling()) {
                writeNode(node, element, depth);
            }
        } else {
            writeIndented(first, element, depth);
        }
        m_chunk += "</";
        append(name);
        m_chunk += '>';
        if (m_chunk.size() > ChunkSize) {
            takeChunk();
        }
    }

    void writeIndented(const QDomNode &first, const QDomElement &parent, int depth)
    {
        for (QDomNode node = first; !node.isNull(); node = node.nextSibling()) {
            if (!node.isText()) {
                startLine(depth);
                writeNode(node, parent, depth);
            }
        }
        startLine(depth - 1);
    }

    void startLine(int indentation)
    {
        m_chunk += '\n';
        m_chunk.append(static_cast<size_t>(indentation), ' ');
    }

    void writeNode(const QDomNode &node, const QDomElement &parent, int depth)
    {
        switch (node.nodeType()) {
        case QDomNode::ElementNode:
            writeElement(node.toElement(), nameOf(node.nodeName()), depth + 1);
            break;
        case QDomNode::TextNode:
            countNodes(1);
            writeEscaped(node.nodeValue(), parent, Context::Text);
            break;
        case QDomNode::CDATASectionNode:
            writeSection(node.nodeValue(), parent);
            break;
        default:
            writeOther(node);
        }
    }

    void writeAttributes(const QDomElement &element)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        if (attributes.count() > m_limits.attributes) {
            fail(tr("The element '%1' has more than %2 attributes.")
                     .arg(element.tagName(), QString::number(m_limits.attributes)));
            return;
        }
        countNodes(attributes.count());
        QMap<QString, QString> sorted;
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomNode attribute = attributes.item(i);
            sorted.insert(attribute.nodeName(), attribute.nodeValue());
        }
        for (auto it = sorted.cbegin(); it != sorted.cend(); ++it) {
            m_chunk += ' ';
            append(nameOf(it.key()));
            m_chunk += "=\"";
            writeEscaped(it.value(), element, Context::Attribute);
            m_chunk += '"';
        }
    }

    /** A section cannot hold its own end mark: it is split in two there. */
    void writeSection(QString value, const QDomElement &parent)
    {
        countNodes(1 + value.count(QLatin1String("]]>")));
        checkCharacters(value, parent);
        value.replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>"));
        m_chunk += "<![CDATA[";
        append(value.toUtf8());
        m_chunk += "]]>";
    }

    void writeOther(const QDomNode &node)
    {
        countNodes(1);
        const QString value = node.nodeValue();
        checkCharacters(value, node.parentNode());
        if (node.isComment()) {
            if (value.contains(QLatin1String("--")) || value.endsWith(QLatin1Char('-'))) {
                fail(tr("A comment contains '--' or ends with '-', which XML does not allow."));
            }
            m_chunk += "<!--";
            append(value.toUtf8());
            m_chunk += "-->";
        } else if (node.isProcessingInstruction()) {
            if (value.contains(QLatin1String("?>"))) {
                fail(tr("A processing instruction contains '?>', which XML does not allow."));
            }
            m_chunk += "<?";
            append(nameOf(node.nodeName()));
            if (!value.isEmpty()) {
                m_chunk += ' ';
                append(value.toUtf8());
            }
            m_chunk += "?>";
        }
    }

    void writeEscaped(const QString &value, const QDomElement &element, Context context)
    {
        const QChar *const end = value.cend();
        for (const QChar *c = value.cbegin(); c != end; ++c) {
            const ushort unit = c->unicode();
            const bool isPlain = unit > '>'
                ? unit < 0x80
                : unit >= ' ' && unit != '"' && unit != '&' && unit != '<' && unit != '>';
            if (isPlain) {
                m_chunk += static_cast<char>(unit);
                continue;
            }
            if (unit < 0x80) {
                writeMarkup(unit, context);
                if (unit < ' ' && unit != '\t' && unit != '\n' && unit != '\r') {
                    checkCharacters(QString(*c), element);
                }
                continue;
            }
            // The rest of the text at once, up to where ASCII begins again.
            const QChar *const run = c;
            while (c + 1 != end && (c + 1)->unicode() >= 0x80) {
                ++c;
            }
            const QString part(run, static_cast<int>(c + 1 - run));
            checkCharacters(part, element);
            append(part.toUtf8());
        }
    }

    /** A character that means something in XML, or would be changed by a reader as it stands. */
    void writeMarkup(ushort unit, Context context)
    {
        switch (unit) {
        case '&':
            m_chunk += "&amp;";
            break;
        case '<':
            m_chunk += "&lt;";
            break;
        case '>':
            m_chunk += "&gt;";
            break;
        case '\r':
            m_chunk += "&#13;";
            break;
        case '"':
        case '\t':
        case '\n':
            if (context == Context::Attribute) {
                m_chunk += "&#" + std::to_string(unit) + ';';
                break;
            }
            Q_FALLTHROUGH();
        default:
            m_chunk += static_cast<char>(unit);
        }
    }

    /** The name in UTF-8. Few names stand in a document; each is checked and converted once. */
    QByteArray nameOf(const QString &name)
    {
        QByteArray &utf8 = m_names[name];
        if (utf8.isEmpty()) {
            utf8 = name.toUtf8();
            if (name.size() > m_limits.nameLength) {
                fail(tr("A name has more than %1 characters.").arg(m_limits.nameLength));
            } else if (!XmlText::isName(name)) {
                fail(tr("'%1' is not a valid name of an element or attribute.").arg(name));
            }
        }
        return utf8;
    }

    void checkCharacters(const QString &value, const QDomNode &element)
    {
        const int illegal = XmlCharacters::indexOfIllegal(value);
        if (illegal >= 0) {
            const QString code = QString::number(value.at(illegal).unicode(), 16).toUpper();
            fail(tr("The element '%1' contains the character U+%2, which XML does not allow.")
                     .arg(element.nodeName(), code.rightJustified(4, QLatin1Char('0'))));
        }
    }

    static constexpr qint64 MaximumSize = std::numeric_limits<int>::max() / 2;
    static constexpr size_t ChunkSize = 1 << 16;

    const QString m_rootName;
    const SXmlLimits m_limits;
    QHash<QString, QByteArray> m_names;
    int m_nodes = 0;
    std::string m_chunk; // what is not yet among the bytes
    QByteArray m_bytes;
    QString m_reason;
};

} // namespace

bool CIndentingXmlWriter::write(const QDomDocument &document, const QString &rootName,
                                const SXmlLimits &limits, QByteArray &bytes, QString &reason) const
{
    try {
        Output output(rootName, limits);
        if (!output.write(document)) {
            reason = output.reason();
            return false;
        }
        bytes = output.bytes();
        return true;
    } catch (const std::bad_alloc &) {
        reason = XmlText::outOfMemory();
        return false;
    }
}
