#include "imported/xml/CExpatXmlReader.h"

#include "imported/xml/StringCache.h"
#include "imported/xml/XmlEncodings.h"
#include "imported/xml/XmlText.h"

#include <QCoreApplication>
#include <QDomImplementation>

#include <QVarLengthArray>

#include <expat.h>

#include <algorithm>

#include <memory>
#include <new>
#include <vector>

namespace {

using Parser = std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)>;
using XmlEncodings::EByteOrder;

/** The place behind the last character of @p utf8. */
SXmlPosition endOf(const QByteArray &utf8)
{
    SXmlPosition end = {1, 1};
    for (int i = 0; i < utf8.size(); ++i) {
        const char c = utf8.at(i);
        const bool isLineFeed = c == '\n' && (i == 0 || utf8.at(i - 1) != '\r');
        if (c == '\r' || isLineFeed) {
            ++end.line;
            end.column = 1;
        } else if (c != '\n' && (static_cast<uchar>(c) & 0xC0U) != 0x80U) {
            ++end.column;
        }
    }
    return end;
}

/** The first entity in a start tag that XML does not define itself; empty if there is none. */
QByteArray undeclaredEntity(const QByteArray &tag)
{
    for (int at = tag.indexOf('&'); at >= 0; at = tag.indexOf('&', at + 1)) {
        QByteArray name = tag.mid(at + 1, tag.indexOf(';', at) - at - 1);
        if (!name.startsWith('#') && name != "lt" && name != "gt" && name != "amp" && name != "quot"
            && name != "apos") {
            return name;
        }
    }
    return QByteArray();
}

int lengthOf(const XML_Char *utf8)
{
    return static_cast<int>(qstrlen(utf8));
}

QString toText(const XML_Char *utf8)
{
    return XmlText::fromUtf8(utf8, lengthOf(utf8));
}

/** Text in UTF-8; the space of a short one is there already. */
using Bytes = QVarLengthArray<char, 1024>;

/** An open element, and what is known of its text so far. */
struct SOpenElement {
    SOpenElement(const QDomElement &opened, size_t blank, int blankByte)
        : element(opened), firstBlank(blank), firstBlankByte(blankByte)
    {
    }

    QDomElement element;
    int children = 0;
    bool hasChildElements = false;
    /** It contains text other than white space: from then on white space is text, too. */
    bool holdsText = false;
    // Where its own white space begins among all that waits.
    size_t firstBlank;
    int firstBlankByte;
};

/** White space before the child `index`; whether it is layout is not known yet. */
struct SBlank {
    int index;
    int size;
};

class Builder
{
    Q_DECLARE_TR_FUNCTIONS(CXmlAbstractVornFile)

public:
    Builder(const SXmlLimits &limits, CXmlPositions *positions)
        : m_limits(limits), m_positions(positions), m_parser(nullptr, &XML_ParserFree)
    {
    }

    bool build(const QByteArray &bytes, QDomDocument &document, SXmlError &error)
    {
        document = QDomDocument();
        m_order = XmlEncodings::byteOrderOfUtf16(bytes);
        m_isMarkedUtf8 = bytes.startsWith("\xEF\xBB\xBF");
        bool complete = true;
        m_bytes =
            m_order == EByteOrder::None ? bytes : XmlEncodings::fromUtf16(bytes, m_order, complete);
        // That it is UTF-8 under another name is known only when its declaration has been read.
        const bool isParsed = parse(m_order == EByteOrder::None ? nullptr : "UTF-8", complete)
            || (m_isOtherName && parse("UTF-8", complete));
        if (!isParsed) {
            if (!m_isRefused) {
                refuse(errorText());
            }
            error = m_error;
            return false;
        }
        if (!complete) {
            error = {endOf(m_bytes), tr("This is not valid UTF-16 text.")};
            return false;
        }
        document = m_document;
        return true;
    }

private:
    /** @param encoding whatever the document declares; null for what it declares */
    bool parse(const char *encoding, bool isComplete)
    {
        m_isOtherName = false;
        m_parser.reset(XML_ParserCreate(encoding));
        Q_CHECK_PTR(m_parser.get());
        XML_Parser parser = m_parser.get();
        XML_SetUserData(parser, this);
        XML_SetUnknownEncodingHandler(parser, &Builder::takeEncoding, this);
        XML_SetXmlDeclHandler(parser, &on<&Builder::takeDeclaration>);
        XML_SetStartDoctypeDeclHandler(parser, &on<&Builder::takeDocumentType>);
        XML_SetElementHandler(parser, &on<&Builder::startElement>, &on<&Builder::endElement>);
        XML_SetCharacterDataHandler(parser, &on<&Builder::takeText>);
        XML_SetCdataSectionHandler(parser, &on<&Builder::startCData>, &on<&Builder::endCData>);
        XML_SetCommentHandler(parser, &on<&Builder::takeComment>);
        XML_SetProcessingInstructionHandler(parser, &on<&Builder::takeInstruction>);
        XML_SetSkippedEntityHandler(parser, &on<&Builder::refuseEntity>);
        // At once: in parts, expat would look at the beginning of a long token with each of them.
        const XML_Status status = XML_Parse(parser, m_bytes.constData(), m_bytes.size(),
                                            isComplete ? XML_TRUE : XML_FALSE);
        return status == XML_STATUS_OK && !m_isRefused;
    }

    /** Has expat read an encoding that it does not know, at least not by this name. */
    static int takeEncoding(void *builder, const XML_Char *name, XML_Encoding *encoding)
    {
        auto *self = static_cast<Builder *>(builder);
        try {
            return self->fill(*encoding, XmlEncodings::find(name)) ? XML_STATUS_OK
                                                                   : XML_STATUS_ERROR;
        } catch (const std::bad_alloc &) {
            self->refuse(XmlText::outOfMemory());
            return XML_STATUS_ERROR;
        }
    }

    bool fill(XML_Encoding &target, const XmlEncodings::SEncoding *encoding)
    {
        m_isOtherName =
            !m_isRefused && encoding != nullptr && encoding->kind == XmlEncodings::UTF_8;
        if (encoding == nullptr || encoding->kind != XmlEncodings::SINGLE_BYTE) {
            return false;
        }
        const XmlEncodings::Characters characters = XmlEncodings::characters(*encoding);
        std::copy(characters.begin(), characters.end(), target.map);
        target.data = nullptr;
        target.convert = nullptr;
        target.release = nullptr;
        return true;
    }

    /** Nothing may be thrown through expat, and nothing is to come after a refusal. */
    template <auto Handler, typename... Arguments>
    static void on(void *builder, Arguments... arguments)
    {
        auto *self = static_cast<Builder *>(builder);
        if (self->m_isRefused) {
            return;
        }
        try {
            (self->*Handler)(arguments...);
        } catch (const std::bad_alloc &) {
            self->refuse(XmlText::outOfMemory());
        }
    }

    void refuse(const QString &reason)
    {
        if (m_isRefused) {
            return;
        }
        m_isRefused = true;
        m_error.reason = reason;
        m_error.position = currentPosition();
        XML_StopParser(m_parser.get(), XML_FALSE);
    }

    SXmlPosition currentPosition() const
    {
        return {static_cast<qint64>(XML_GetCurrentLineNumber(m_parser.get())),
                static_cast<qint64>(XML_GetCurrentColumnNumber(m_parser.get())) + 1};
    }

    QString currentName() const
    {
        return m_open.empty() ? QString() : m_open.back().element.tagName();
    }

    QString errorText() const
    {
        const XML_Error code = XML_GetErrorCode(m_parser.get());
        switch (code) {
        case XML_ERROR_NO_ELEMENTS:
            return m_open.empty()
                ? tr("The document contains no element.")
                : tr("The document ends before the element '%1' is closed.").arg(currentName());
        case XML_ERROR_INVALID_TOKEN:
            if (!isCharacterHere()) {
                return wrongEncoding();
            }
            Q_FALLTHROUGH();
        case XML_ERROR_SYNTAX:
            return tr("This character is not allowed here.");
        case XML_ERROR_UNCLOSED_TOKEN:
            return tr("The markup that begins here is not closed before the document ends.");
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
            return tr("The CDATA section is not closed.");
        case XML_ERROR_PARTIAL_CHAR:
            return tr("The document ends within a character.");
        case XML_ERROR_TAG_MISMATCH:
            return tr("The element '%1' must be closed first.").arg(currentName());
        case XML_ERROR_DUPLICATE_ATTRIBUTE:
            return tr("The element has two attributes of this name.");
        case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
            return tr("The root element is followed by further content.");
        case XML_ERROR_UNDEFINED_ENTITY:
            return tr("The entity is not declared.");
        case XML_ERROR_BAD_CHAR_REF:
            return tr("The reference is to a character that XML does not allow.");
        case XML_ERROR_MISPLACED_XML_PI:
            return tr("The XML declaration must be at the very beginning.");
        case XML_ERROR_UNKNOWN_ENCODING:
            return tr("The encoding is unknown.");
        case XML_ERROR_INCORRECT_ENCODING:
            return wrongEncoding();
        case XML_ERROR_XML_DECL:
            return tr("The XML declaration is malformed.");
        case XML_ERROR_NO_MEMORY:
            return XmlText::outOfMemory();
        default:
            return QString::fromUtf8(XML_ErrorString(code));
        }
    }

    void takeDeclaration(const XML_Char *version, const XML_Char *encoding, int)
    {
        if (version != nullptr && qstrcmp(version, "1.0") != 0) {
            refuse(tr("The XML version '%1' is unknown.").arg(QString::fromUtf8(version)));
            return;
        }
        m_isDeclared = encoding != nullptr;
        m_encoding = m_isDeclared ? XmlEncodings::find(encoding) : nullptr;
        if (m_isDeclared && !isPossibleEncoding()) {
            refuse(wrongEncoding());
        }
    }

    /** Whether the document may be what it declares, as far as its first bytes tell. */
    bool isPossibleEncoding() const
    {
        using namespace XmlEncodings;
        const bool isWide = m_order != EByteOrder::None;
        if (m_encoding == nullptr) {
            return !isWide && !m_isMarkedUtf8;
        }
        switch (m_encoding->kind) {
        case UTF_8:
            return !isWide;
        case UTF_16:
            return isWide;
        case UTF_16_LE:
            return m_order == EByteOrder::Little;
        case UTF_16_BE:
            return m_order == EByteOrder::Big;
        case SINGLE_BYTE:
            return !isWide && !m_isMarkedUtf8;
        }
        return false;
    }

    /** Whether the bytes that cannot be read are a character in the encoding of the document. */
    bool isCharacterHere() const
    {
        const auto at = static_cast<int>(XML_GetCurrentByteIndex(m_parser.get()));
        if (at < 0 || at >= m_bytes.size()) {
            return true;
        }
        if (m_encoding == nullptr || m_encoding->kind != XmlEncodings::SINGLE_BYTE) {
            return XmlEncodings::beginsWithUtf8(m_bytes.mid(at, 4));
        }
        return XmlEncodings::characters(*m_encoding)[static_cast<uchar>(m_bytes.at(at))] >= 0;
    }

    QString wrongEncoding() const
    {
        return m_isDeclared
            ? tr("The document is not in the encoding that it declares.")
            : tr("This is not valid UTF-8 text, and the document declares no other encoding.");
    }

    void takeDocumentType(const XML_Char *name, const XML_Char *systemId, const XML_Char *publicId,
                          int hasInternalSubset)
    {
        if (hasInternalSubset != 0) {
            refuse(tr("A document type declaration with an internal subset is not allowed."));
            return;
        }
        m_hasExternalSubset = systemId != nullptr;
        const QString rootName = nameOf(name);
        if (m_isRefused) {
            return;
        }
        QDomImplementation implementation;
        const QDomDocument typed = implementation.createDocument(
            QString(), rootName,
            implementation.createDocumentType(rootName, QString::fromUtf8(publicId),
                                              QString::fromUtf8(systemId)));
        const QDomDocument before = m_document;
        m_document = typed;
        m_document.removeChild(m_document.documentElement());
        for (QDomNode node = before.firstChild(); !node.isNull(); node = node.nextSibling()) {
            m_document.appendChild(m_document.importNode(node, true));
        }
    }

    void refuseEntity(const XML_Char *name, int)
    {
        refuse(tr("The entity '%1' is not declared.").arg(QString::fromUtf8(name)));
    }

    /** Valid until the next call. */
    const QString &nameOf(const XML_Char *name)
    {
        const QString &result = m_names.string(name, lengthOf(name));
        if (result.size() > m_limits.nameLength) {
            refuse(tr("A name has more than %1 characters.").arg(m_limits.nameLength));
        }
        return result;
    }

    void startElement(const XML_Char *name, const XML_Char **attributes)
    {
        flushText();
        if (static_cast<int>(m_open.size()) >= m_limits.depth) {
            refuse(tr("Elements are nested more than %1 deep.").arg(m_limits.depth));
            return;
        }
        QDomElement element = m_document.createElement(nameOf(name));
        if (*attributes != nullptr) {
            takeAttributes(attributes, element);
        }
        if (m_isRefused) {
            return;
        }
        append(element);
        if (!m_open.empty()) {
            m_open.back().hasChildElements = true;
        }
        m_open.emplace_back(element, m_blanks.size(), m_blankBytes.size());
        if (m_positions != nullptr) {
            m_positions->insert(element, currentPosition());
        }
    }

    void takeAttributes(const XML_Char **attributes, QDomElement &element)
    {
        if (m_hasExternalSubset) {
            // expat takes such an entity for one that the subset declares, and leaves it out.
            const QByteArray entity = undeclaredEntity(QByteArray::fromRawData(
                m_bytes.constData() + XML_GetCurrentByteIndex(m_parser.get()),
                XML_GetCurrentByteCount(m_parser.get())));
            if (!entity.isEmpty()) {
                refuseEntity(entity.constData(), 0);
                return;
            }
        }
        int count = 0;
        for (const XML_Char **attribute = attributes; *attribute != nullptr; attribute += 2) {
            if (++count > m_limits.attributes) {
                refuse(tr("The element '%1' has more than %2 attributes.")
                           .arg(element.tagName(), QString::number(m_limits.attributes)));
                return;
            }
            countNode();
            const QString &name = nameOf(attribute[0]);
            if (m_isRefused) {
                return;
            }
            element.setAttribute(name, m_texts.string(attribute[1], lengthOf(attribute[1])));
        }
    }

    void endElement(const XML_Char *)
    {
        flushText();
        const SOpenElement &open = m_open.back();
        if (!open.holdsText && !open.hasChildElements) {
            insertBlanks();
        }
        dropBlanks();
        m_open.pop_back();
    }

    void takeText(const XML_Char *text, int size)
    {
        m_isBlank = m_isBlank && XmlText::isBlank(text, size);
        m_text.append(text, size);
    }

    void flushText()
    {
        if (m_text.isEmpty()) {
            return;
        }
        // Outside the root there is only layout; expat refuses everything else.
        if (!m_open.empty()) {
            SOpenElement &open = m_open.back();
            if (!open.holdsText && m_isBlank) {
                m_blanks.push_back({open.children, m_text.size()});
                m_blankBytes.append(m_text.constData(), m_text.size());
            } else {
                holdText();
                append(textNode(m_texts.string(m_text.data(), m_text.size())));
            }
        }
        dropText();
    }

    void dropText()
    {
        m_text.clear();
        m_isBlank = true;
    }

    /** A copy of a text node shares its name, for which each new one would allocate memory. */
    QDomNode textNode(const QString &text)
    {
        if (m_textPattern.isNull()) {
            m_textPattern = m_document.createTextNode(QLatin1String(""));
        }
        QDomNode node = m_textPattern.cloneNode(false);
        node.setNodeValue(text);
        return node;
    }

    /** From here on the element's white space is text. */
    void holdText()
    {
        SOpenElement &open = m_open.back();
        if (!open.holdsText) {
            open.holdsText = true;
            insertBlanks();
            dropBlanks();
        }
    }

    void insertBlanks()
    {
        SOpenElement &open = m_open.back();
        if (m_blanks.size() == open.firstBlank) {
            return;
        }
        QDomNode next = open.element.firstChild();
        int index = 0;
        int at = open.firstBlankByte;
        for (size_t i = open.firstBlank; i < m_blanks.size(); ++i) {
            for (; index < m_blanks[i].index; ++index) {
                next = next.nextSibling();
            }
            const QDomNode text =
                textNode(m_texts.string(m_blankBytes.data() + at, m_blanks[i].size));
            at += m_blanks[i].size;
            countNode();
            if (next.isNull()) {
                open.element.appendChild(text);
            } else {
                open.element.insertBefore(text, next);
            }
        }
    }

    void dropBlanks()
    {
        const SOpenElement &open = m_open.back();
        m_blanks.resize(open.firstBlank);
        m_blankBytes.resize(open.firstBlankByte);
    }

    void startCData()
    {
        flushText();
        holdText();
    }

    void endCData()
    {
        append(m_document.createCDATASection(XmlText::fromUtf8(m_text.data(), m_text.size())));
        dropText();
    }

    void takeComment(const XML_Char *text)
    {
        flushText();
        append(m_document.createComment(toText(text)));
    }

    void takeInstruction(const XML_Char *target, const XML_Char *data)
    {
        flushText();
        const QString &name = nameOf(target);
        if (!m_isRefused) {
            append(m_document.createProcessingInstruction(name, toText(data)));
        }
    }

    void countNode()
    {
        if (++m_nodes > m_limits.nodes) {
            refuse(tr("The document has more than %1 nodes.").arg(m_limits.nodes));
        }
    }

    void append(const QDomNode &node)
    {
        countNode();
        if (m_open.empty()) {
            m_document.appendChild(node);
        } else {
            m_open.back().element.appendChild(node);
            ++m_open.back().children;
        }
    }

    const SXmlLimits m_limits;
    CXmlPositions *const m_positions;
    Parser m_parser;
    QByteArray m_bytes;
    EByteOrder m_order = EByteOrder::None; // of the document as it came; it is parsed as UTF-8
    bool m_isMarkedUtf8 = false;
    bool m_isDeclared = false;
    const XmlEncodings::SEncoding *m_encoding = nullptr; // that is declared, if it is known
    bool m_isOtherName = false; // of UTF-8, which expat does not know
    bool m_hasExternalSubset = false;
    bool m_isRefused = false;
    SXmlError m_error;

    int m_nodes = 0;
    QDomDocument m_document;
    QDomText m_textPattern;
    std::vector<SOpenElement> m_open;
    Bytes m_text; // not yet appended, in UTF-8
    bool m_isBlank = true;
    std::vector<SBlank> m_blanks;
    Bytes m_blankBytes;
    // Few names and many equal texts stand in a document: each is kept once.
    StringCache m_names;
    StringCache m_texts;
};

} // namespace

bool CExpatXmlReader::read(const QByteArray &bytes, const SXmlLimits &limits,
                           QDomDocument &document, CXmlPositions *positions, SXmlError &error) const
{
    try {
        return Builder(limits, positions).build(bytes, document, error);
    } catch (const std::bad_alloc &) {
        document = QDomDocument();
        error = {SXmlPosition(), XmlText::outOfMemory()};
        return false;
    }
}
