#pragma once

#include "commissioning/check/DocumentStructure.h"

#include <QDomElement>

/** An element, and of each child that it may have, the first one: that is what is read. */
class Fields
{
public:
    Fields(const QDomElement &parent, const DocumentStructure::SElement &type);

    const QDomElement &parent() const { return m_parent; }
    const DocumentStructure::SElement &type() const { return m_type; }

    /** Among the children that the element may have; -1 for any other name. */
    int indexOf(const QString &tag) const;

    /** Null when there is none. */
    QDomElement element(const QString &tag) const { return m_children.value(indexOf(tag)); }
    bool contains(const QString &tag) const { return !element(tag).isNull(); }
    QString text(const QString &tag) const;
    /** The child, or where it would stand. */
    QDomElement place(const QString &tag) const;

private:
    const QDomElement m_parent;
    const DocumentStructure::SElement &m_type;
    QVector<QDomElement> m_children;
};
