#include "imported/xml/XmlText.h"

#include <expat.h>

#include <algorithm>

namespace XmlText {

namespace {

template <typename Text>
bool holdsOnlyBlanks(const Text &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](auto c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
            || c == QLatin1Char('\r');
    });
}

bool isPairAt(const QString &text, int index)
{
    return text.at(index).isHighSurrogate() && index + 1 < text.size()
        && text.at(index + 1).isLowSurrogate();
}

template <typename Predicate>
int indexOf(const QString &text, Predicate matches)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            if (matches(text.at(i).unicode())) {
                return i;
            }
        } else if (isPairAt(text, i)) {
            ++i;
        } else {
            return i;
        }
    }
    return -1;
}

} // namespace

bool isBlank(const QString &text)
{
    return holdsOnlyBlanks(text);
}

bool isBlank(const QByteArray &utf8)
{
    return holdsOnlyBlanks(QLatin1String(utf8));
}

QString fromUtf8(const char *utf8, int size)
{
    const QString text = QString::fromUtf8(utf8, size);
    const bool beginsWithMark = QByteArray::fromRawData(utf8, size).startsWith("\xEF\xBB\xBF");
    return beginsWithMark ? QChar(QChar::ByteOrderMark) + text : text;
}

int indexOfLoneSurrogate(const QString &text)
{
    return indexOf(text, [](ushort) { return false; });
}

int indexOfIllegal(const QString &text)
{
    return indexOf(text, [](ushort unit) {
        const bool allowedControl = unit == '\t' || unit == '\n' || unit == '\r';
        return (unit < 0x20 && !allowedControl) || unit >= 0xfffe;
    });
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
