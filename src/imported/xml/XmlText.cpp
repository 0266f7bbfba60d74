#include "imported/xml/XmlText.h"

#include <QCoreApplication>

#include <expat.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace XmlText {

namespace {

template <typename Unit>
bool isBlankUnit(Unit unit)
{
    return unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r';
}

/** Worth asking: the decoder of UTF-8 does more than that of Latin-1. */
bool isAscii(const char *utf8, int size)
{
    quint64 all = 0;
    quint64 part = 0;
    const int step = sizeof(part);
    for (; size >= step; utf8 += step, size -= step) {
        std::memcpy(&part, utf8, sizeof(part));
        all |= part;
    }
    part = 0;
    std::memcpy(&part, utf8, static_cast<size_t>(size));
    return ((all | part) & Q_UINT64_C(0x8080808080808080)) == 0;
}

} // namespace

bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar c) { return isBlankUnit(c.unicode()); });
}

bool isBlank(const char *utf8, int size)
{
    return std::all_of(utf8, utf8 + size, isBlankUnit<char>);
}

QString outOfMemory()
{
    return QCoreApplication::translate("CXmlAbstractVornFile",
                                       "There is not enough memory for the document.");
}

QString fromUtf8(const char *utf8, int size)
{
    if (isAscii(utf8, size)) {
        return QString::fromLatin1(utf8, size);
    }
    static const char mark[] = {'\xEF', '\xBB', '\xBF'};
    const QString text = QString::fromUtf8(utf8, size);
    const bool beginsWithMark = size >= static_cast<int>(sizeof(mark))
        && std::equal(std::begin(mark), std::end(mark), utf8);
    return beginsWithMark ? QChar(QChar::ByteOrderMark) + text : text;
}

bool holdsText(const QDomElement &element)
{
    bool hasBlankText = false;
    bool hasChildElements = false;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection() || (node.isText() && !isBlank(node.nodeValue()))) {
            return true;
        }
        hasBlankText = hasBlankText || node.isText();
        hasChildElements = hasChildElements || node.isElement();
    }
    return hasBlankText && !hasChildElements;
}

bool isName(const QString &text)
{
    const QByteArray tag = '<' + text.toUtf8() + "/>";
    QString found;
    XML_Parser parser = XML_ParserCreate("UTF-8");
    // Without a salt of its own expat asks the system for a random one; one name needs none.
    XML_SetHashSalt(parser, 1);
    XML_SetUserData(parser, &found);
    XML_SetStartElementHandler(parser, [](void *name, const XML_Char *tagName, const XML_Char **) {
        *static_cast<QString *>(name) = fromUtf8(tagName, static_cast<int>(qstrlen(tagName)));
    });
    const bool isElement =
        XML_Parse(parser, tag.constData(), tag.size(), XML_TRUE) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return isElement && found == text;
}

} // namespace XmlText
