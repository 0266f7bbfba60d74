#pragma once

#include <QDataStream>
#include <QSharedDataPointer>

#include <tuple>

/**
 * What every value class needs of its data class. The data class lists its fields once, in
 *
 *     template <typename Self>
 *     static auto fields(Self &self) { return std::tie(self.first, self.second); }
 *
 * and comparison and streams follow from that list; its order is the order on the stream.
 */
namespace FieldList {

/** True when both share their data or all fields are equal. */
template <typename Data>
bool equal(const QSharedDataPointer<Data> &left, const QSharedDataPointer<Data> &right)
{
    return left.constData() == right.constData()
        || Data::fields(*left.constData()) == Data::fields(*right.constData());
}

/** True when all fields are as in default-constructed data. */
template <typename Data>
bool isDefault(const QSharedDataPointer<Data> &data)
{
    const Data defaults;
    return Data::fields(*data.constData()) == Data::fields(defaults);
}

template <typename Data>
QDataStream &write(QDataStream &stream, const QSharedDataPointer<Data> &data)
{
    std::apply([&stream](const auto &...field) { (stream << ... << field); },
               Data::fields(*data.constData()));
    return stream;
}

/** Detaches and overwrites the fields in place, without checks. */
template <typename Data>
QDataStream &read(QDataStream &stream, QSharedDataPointer<Data> &data)
{
    std::apply([&stream](auto &...field) { (stream >> ... >> field); }, Data::fields(*data));
    return stream;
}

} // namespace FieldList
