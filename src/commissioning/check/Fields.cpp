#include "commissioning/check/Fields.h"

#include "imported/CDomDoc.h"

#include <algorithm>

using namespace DocumentStructure;

Fields::Fields(const QDomElement &parent, const SElement &type)
    : m_parent(parent), m_type(type), m_children(type.children.size())
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const int index = indexOf(child.tagName());
        if (index >= 0 && m_children.at(index).isNull()) {
            m_children[index] = child;
        }
    }
}

int Fields::indexOf(const QString &tag) const
{
    const auto isOfThatTag = [&tag](const SChild &child) { return child.element->tag == tag; };
    const auto found = std::find_if(m_type.children.cbegin(), m_type.children.cend(), isOfThatTag);
    return found == m_type.children.cend()
        ? -1
        : static_cast<int>(std::distance(m_type.children.cbegin(), found));
}

QString Fields::text(const QString &tag) const
{
    return CDomDoc::text(element(tag));
}

QDomElement Fields::place(const QString &tag) const
{
    const QDomElement child = element(tag);
    return child.isNull() ? m_parent : child;
}
