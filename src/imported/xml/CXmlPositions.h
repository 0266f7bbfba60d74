#pragma once

#include "imported/SXmlPosition.h"

#include <QDomElement>
#include <QHash>

/** Remembers where elements stood in the file that they were read from. */
class CXmlPositions
{
public:
    void insert(const QDomElement &element, const SXmlPosition &position);
    void clear();

    /** Unknown for a null element and for one that was not read from the file. */
    SXmlPosition position(const QDomElement &element) const;

private:
    struct SEntry {
        // Keeps the element's identity from being taken by another one after it was removed.
        QDomElement element;
        SXmlPosition position;
    };

    QHash<const void *, SEntry> m_entries;
};
