#pragma once

#include <QDomElement>
#include <QString>

/** Where elements stand below each other: in the order in which a whole document is written. */
namespace ElementOrder {

/**
 * The child @p tag of @p parent. A missing one is created before the first child that is written
 * behind it, and before the comments on that; where there is none, and for a tag that @p parent
 * does not hold by its shape, at the end. Null for a null parent.
 */
QDomElement child(const QString &tag, QDomElement parent);

} // namespace ElementOrder
