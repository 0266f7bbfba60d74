#pragma once

#include "imported/CDeviceItem.h"
#include "vocabulary/NDeviceConf.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/NvrnGlobal.h"

#include <QList>
#include <QString>

/**
 * The text forms of the enumerations, each in one table; its first row stands for everything that
 * is not in it.
 */
namespace TextTables {

template <typename Value>
struct SRow {
    Value value;
    QString text;
};

template <typename Value>
using Table = QList<SRow<Value>>;

const Table<NvrnGlobal::EParamFileType> &paramFileTypes();
const Table<NDeviceConf::EDeviceClass> &deviceClasses();
const Table<NvrnDeviceCore::EElementType> &subDeviceTypes();
const Table<NvrnGlobal::EConnectionState> &connectionStates();
const Table<CDeviceItem::EHostAddrType> &hostAddressTypes();

/** The text of @p value; of a value that is not in the table, the text of its first row. */
template <typename Value>
QString text(const Table<Value> &table, Value value)
{
    for (const SRow<Value> &row : table) {
        if (row.value == value) {
            return row.text;
        }
    }
    return table.first().text;
}

/** The value whose text is @p text; of a text that is not in the table, that of its first row. */
template <typename Value>
Value value(const Table<Value> &table, const QString &text, Qt::CaseSensitivity sensitivity)
{
    for (const SRow<Value> &row : table) {
        if (row.text.compare(text, sensitivity) == 0) {
            return row.value;
        }
    }
    return table.first().value;
}

} // namespace TextTables
