#pragma once

#include "storage/BoundedStream.h"

#include <QDataStream>
#include <QHostAddress>
#include <QIODevice>
#include <QList>
#include <QMap>
#include <QSharedDataPointer>
#include <QStringList>

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

/**
 * As equal(), for a class whose comparison leaves fields out on purpose: its data class has a
 * second view, identity(), of those that count.
 */
template <typename Data>
bool equalIdentity(const QSharedDataPointer<Data> &left, const QSharedDataPointer<Data> &right)
{
    return left.constData() == right.constData()
        || Data::identity(*left.constData()) == Data::identity(*right.constData());
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

template <typename Field>
void readField(QDataStream &stream, Field &field)
{
    stream >> field;
}

inline void readField(QDataStream &stream, QString &text)
{
    BoundedStream::read(stream, text);
}

/** As Qt's own operator, which reads the scope of an address without a bound. */
inline void readField(QDataStream &stream, QHostAddress &address)
{
    address.clear();
    qint8 protocol = QAbstractSocket::UnknownNetworkLayerProtocol;
    stream >> protocol;
    if (protocol == QAbstractSocket::IPv4Protocol) {
        quint32 number = 0;
        stream >> number;
        address.setAddress(number);
    } else if (protocol == QAbstractSocket::IPv6Protocol) {
        Q_IPV6ADDR bytes = {};
        for (quint8 &byte : bytes.c) {
            stream >> byte;
        }
        QString scope;
        BoundedStream::read(stream, scope);
        address.setAddress(bytes);
        address.setScopeId(scope);
    } else if (protocol == QAbstractSocket::AnyIPProtocol) {
        address = QHostAddress(QHostAddress::Any);
    } else if (protocol != QAbstractSocket::UnknownNetworkLayerProtocol) {
        stream.setStatus(QDataStream::ReadCorruptData);
    }
}

/**
 * Gives a list or a map a status of its own while it is read, so that only what it reads itself
 * decides whether it is complete, and puts back what the stream failed of before. It is what Qt's
 * own operators do. In a transaction that failed, nothing is read any more, and its status stays.
 */
class OwnStatus
{
public:
    explicit OwnStatus(QDataStream &stream) : m_stream(stream), m_before(stream.status())
    {
        const QIODevice *const device = stream.device();
        if (device == nullptr || !device->isTransactionStarted()) {
            stream.resetStatus();
        }
    }

    ~OwnStatus()
    {
        if (m_before != QDataStream::Ok) {
            m_stream.resetStatus();
            m_stream.setStatus(m_before);
        }
    }

    bool isOk() const { return m_stream.status() == QDataStream::Ok; }

private:
    Q_DISABLE_COPY(OwnStatus)

    QDataStream &m_stream;
    const QDataStream::Status m_before;
};

/**
 * Qt's own operator takes the count for granted and reserves memory for it; a few broken bytes
 * could ask for all there is. As there, a list that cannot be read to its end is left empty.
 */
template <typename List>
void readList(QDataStream &stream, List &list)
{
    const OwnStatus status(stream);
    list.clear();
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && status.isOk(); ++i) {
        typename List::value_type item;
        readField(stream, item);
        list.append(item);
    }
    if (!status.isOk()) {
        list.clear();
    }
}

template <typename Item>
void readField(QDataStream &stream, QList<Item> &list)
{
    readList(stream, list);
}

inline void readField(QDataStream &stream, QStringList &list)
{
    readList(stream, list);
}

/** Here Qt's own operator would keep several values under one key; the last one counts. */
template <typename Key, typename Value>
void readField(QDataStream &stream, QMap<Key, Value> &map)
{
    const OwnStatus status(stream);
    map.clear();
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && status.isOk(); ++i) {
        Key key = Key();
        Value value;
        readField(stream, key);
        readField(stream, value);
        map.insert(key, value);
    }
    if (!status.isOk()) {
        map.clear();
    }
}

/** Detaches and overwrites the fields in place, whatever the stream's status becomes. */
template <typename Data>
QDataStream &read(QDataStream &stream, QSharedDataPointer<Data> &data)
{
    std::apply([&stream](auto &...field) { (readField(stream, field), ...); }, Data::fields(*data));
    return stream;
}

} // namespace FieldList
