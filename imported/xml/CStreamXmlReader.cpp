#include "imported/xml/CStreamXmlReader.h"

#include "imported/xml/XmlText.h"

#include <QCoreApplication>
#include <QDomImplementation>
#include <QXmlStreamReader>

namespace {

// QDom destroys its trees recursively: without a bound a small file could exhaust the stack.
const int MaximumDepth = 256;

void dropLayout(QDomElement &element)
{
    if (XmlText::holdsText(element)) {
        return;
    }
    for (QDomNode node = element.firstChild(); !node.isNull();) {
        const QDomNode next = node.nextSibling();
        if (node.isText()) {
            element.removeChild(node);
        }
        node = next;
    }
}

class Builder
{
    Q_DECLARE_TR_FUNCTIONS(CXmlAbstractVornFile)

public:
    explicit Builder(const QByteArray &bytes) : m_reader(bytes)
    {
        m_reader.setNamespaceProcessing(false);
    }

    bool build(QDomDocument &document, SXmlError &error)
    {
        while (!m_reader.atEnd()) {
            takeToken(m_reader.readNext());
        }
        if (m_reader.hasError()) {
            error.line = m_reader.lineNumber();
            // The reader counts from 0 and stands behind the character it could not take.
            error.column = qMax<qint64>(1, m_reader.columnNumber());
            error.reason = m_reader.errorString();
            document = QDomDocument();
            return false;
        }
        document = m_document;
        return true;
    }

private:
    void takeToken(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::DTD:
            takeDocumentType();
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            takeText();
            break;
        case QXmlStreamReader::Comment:
            append(m_document.createComment(m_reader.text().toString()));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            append(m_document.createProcessingInstruction(
                m_reader.processingInstructionTarget().toString(),
                m_reader.processingInstructionData().toString()));
            break;
        case QXmlStreamReader::EntityReference:
            m_reader.raiseError(
                tr("The entity '%1' is not declared.").arg(m_reader.name().toString()));
            break;
        default:
            break;
        }
    }

    void takeDocumentType()
    {
        if (!m_reader.entityDeclarations().isEmpty()) {
            m_reader.raiseError(tr("Entity declarations are not allowed."));
            return;
        }
        QDomImplementation implementation;
        const QString name = m_reader.dtdName().toString();
        const QDomDocument typed = implementation.createDocument(
            QString(), name,
            implementation.createDocumentType(name, m_reader.dtdPublicId().toString(),
                                              m_reader.dtdSystemId().toString()));
        const QDomDocument before = m_document;
        m_document = typed;
        m_document.removeChild(m_document.documentElement());
        for (QDomNode node = before.firstChild(); !node.isNull(); node = node.nextSibling()) {
            m_document.appendChild(m_document.importNode(node, true));
        }
    }

    void startElement()
    {
        if (++m_depth > MaximumDepth) {
            m_reader.raiseError(tr("Elements are nested more than %1 deep.").arg(MaximumDepth));
            return;
        }
        QDomElement element = m_document.createElement(m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            element.setAttribute(attribute.qualifiedName().toString(),
                                 attribute.value().toString());
        }
        append(element);
        m_current = element;
    }

    void endElement()
    {
        --m_depth;
        dropLayout(m_current);
        m_current = m_current.parentNode().toElement();
    }

    void takeText()
    {
        if (m_current.isNull()) {
            return;
        }
        const QString text = m_reader.text().toString();
        if (m_reader.isCDATA()) {
            append(m_document.createCDATASection(text));
            return;
        }
        // One text may arrive in several tokens.
        QDomNode last = m_current.lastChild();
        if (last.isText() && !last.isCDATASection()) {
            last.setNodeValue(last.nodeValue() + text);
        } else {
            append(m_document.createTextNode(text));
        }
    }

    void append(const QDomNode &node)
    {
        if (m_current.isNull()) {
            m_document.appendChild(node);
        } else {
            m_current.appendChild(node);
        }
    }

    QXmlStreamReader m_reader;
    QDomDocument m_document;
    QDomElement m_current;
    int m_depth = 0;
};

} // namespace

bool CStreamXmlReader::read(const QByteArray &bytes, QDomDocument &document, SXmlError &error) const
{
    return Builder(bytes).build(document, error);
}
