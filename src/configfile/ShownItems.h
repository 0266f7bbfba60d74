#pragma once

#include "configfile/ConfigurationShape.h"
#include "configfile/ItemValue.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** An item as texts for users show it. */
struct SShownItem {
    /** Of the item; see ShapePaths. The path of the entry or group stands before it. */
    QString path;
    QString word;
    /** What stands before a colon. */
    QString title;
    /** As it is written into the document. */
    QString value;
    /** Whether an absent item means the same: such items are shown only where there is room. */
    bool isDefault = false;
};

namespace ShownItems {

/**
 * All items of @p element, in the order of their rows, but for those in @p others: texts show these
 * in places of their own.
 * @param path of the entry or group that the element is
 */
template <typename Element>
QVector<SShownItem> of(const QVector<ConfigurationShape::SField<Element>> &rows,
                       const Element &element, const QString &path, const QStringList &others = {})
{
    QVector<SShownItem> result;
    for (const ConfigurationShape::SField<Element> &row : rows) {
        if (!others.contains(row.word)) {
            const QString value = ItemValue::read(row.value, row.get(element));
            result.append({path + QLatin1Char('.') + row.word, row.word,
                           ConfigurationShape::title(row.text), value,
                           value == ItemValue::read(row.value, QString())});
        }
    }
    return result;
}

/** All items of the device, those in its groups included. */
QVector<SShownItem> ofDevice(const CDeviceElement &device, const QStringList &others = {});

} // namespace ShownItems
