#include "imported/CDomDoc.h"

#include <QDomDocument>

QDomElement CDomDoc::existingChild(const QString &tag, const QDomElement &parent)
{
    // QDom takes an empty name for any.
    return tag.isEmpty() ? QDomElement() : parent.firstChildElement(tag);
}

QDomElement CDomDoc::child(const QString &tag, QDomElement parent)
{
    QDomElement element = existingChild(tag, parent);
    if (element.isNull() && !parent.isNull() && !tag.isEmpty()) {
        element = parent.ownerDocument().createElement(tag);
        parent.appendChild(element);
    }
    return element;
}

QString CDomDoc::text(const QDomElement &element)
{
    QString result;
    const QDomNode only = element.firstChild();
    if (only.isText() && only.nextSibling().isNull()) {
        return only.nodeValue();
    }
    for (QDomNode node = only; !node.isNull(); node = node.nextSibling()) {
        if (node.isText() || node.isCDATASection()) {
            result += node.nodeValue();
        }
    }
    return result;
}

void CDomDoc::setText(const QString &text, QDomElement element)
{
    if (element.isNull() || CDomDoc::text(element) == text) {
        return;
    }
    for (QDomNode node = element.firstChild(); !node.isNull();) {
        const QDomNode next = node.nextSibling();
        if (node.isText() || node.isCDATASection()) {
            element.removeChild(node);
        }
        node = next;
    }
    if (!text.isEmpty()) {
        element.insertBefore(element.ownerDocument().createTextNode(text), element.firstChild());
    }
}
