#include "imported/xml/CXmlPositions.h"

namespace {

/** QDom shows whether two handles are for one node, but not which node that is. */
class Handle : public QDomNode
{
public:
    explicit Handle(const QDomNode &node) : QDomNode(node) { }

    const void *identity() const { return impl; }
};

} // namespace

void CXmlPositions::insert(const QDomElement &element, const SXmlPosition &position)
{
    m_entries.insert(Handle(element).identity(), {element, position});
}

void CXmlPositions::clear()
{
    m_entries.clear();
}

SXmlPosition CXmlPositions::position(const QDomElement &element) const
{
    return m_entries.value(Handle(element).identity()).position;
}
