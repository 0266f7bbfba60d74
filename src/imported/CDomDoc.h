#pragma once

#include "imported/VrnImportedExport.h"

#include <QDomElement>
#include <QString>

/**
 * Conveniences for DOM trees.
 *
 * All members are static. They work on the handles that QDom's classes are: what they change, they
 * change in the tree behind the handle. One document must not be used from two threads at once.
 */
class VRNXML_EXPORT CDomDoc
{
public:
    CDomDoc() = delete;

    /**
     * The first child element of @p parent named exactly @p tag; null if there is none, and for an
     * empty tag.
     */
    static QDomElement existingChild(const QString &tag, const QDomElement &parent);

    /**
     * The first child element of @p parent named exactly @p tag, appended when there is none; null
     * when @p parent is null or @p tag is empty.
     */
    static QDomElement child(const QString &tag, QDomElement parent);

    /** The element's own text: its text and CDATA children, not those of elements below. */
    static QString text(const QDomElement &element);

    /**
     * Replaces the element's own text. Child elements, comments and processing instructions stay;
     * an element that has that text already is not touched.
     */
    static void setText(const QString &text, QDomElement element);
};
