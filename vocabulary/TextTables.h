#pragma once

#include "vocabulary/NDeviceConf.h"
#include "vocabulary/NvrnDeviceCore.h"
#include "vocabulary/NvrnGlobal.h"

#include <QList>
#include <QString>

/** The text forms of the enumerations, each in one table, in the order of their values. */
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

} // namespace TextTables
