#pragma once

#include "configfile/ConfigurationShape.h"
#include "imported/CDomDoc.h"

#include <QDomElement>
#include <QVarLengthArray>

/** The items of an element class in the element that holds them, by the rows of their table. */
namespace ItemElements {

/** As read(), and calls @p unread with each row and its text that cannot be read. */
template <typename Element, typename Unread>
void read(const QVector<ConfigurationShape::SField<Element>> &rows, const QDomElement &parent,
          Element &element, Unread unread)
{
    // One walk, as files have their thousands; of each name the first child counts.
    QVarLengthArray<QDomElement, 8> children(rows.size());
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString name = child.tagName();
        for (int i = 0; i < rows.size(); ++i) {
            if (children.at(i).isNull() && !rows.at(i).isAttribute && name == rows.at(i).tag) {
                children[i] = child;
            }
        }
    }
    for (int i = 0; i < rows.size(); ++i) {
        const ConfigurationShape::SField<Element> &row = rows.at(i);
        if (!row.isAttribute && children.at(i).isNull()) {
            continue;
        }
        const QString text =
            row.isAttribute ? parent.attribute(row.tag) : CDomDoc::text(children.at(i));
        if (!row.set(element, text)) {
            unread(row, text);
        }
    }
}

/** Sets the items of @p element that @p parent has, and its attributes, there or not. */
template <typename Element>
void read(const QVector<ConfigurationShape::SField<Element>> &rows, const QDomElement &parent,
          Element &element)
{
    read(rows, parent, element, [](const ConfigurationShape::SItem &, const QString &) {});
}

} // namespace ItemElements
