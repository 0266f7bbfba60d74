#pragma once

#include <QByteArray>
#include <QDataStream>

/** Stream forms as bytes: big endian, in the form of Qt 5.15. */
namespace StreamBytes {

inline void setUp(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setByteOrder(QDataStream::BigEndian);
}

template <typename T>
QByteArray toBytes(const T &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setUp(stream);
    stream << value;
    return bytes;
}

/** Reads @p value and returns the number of bytes that it took; -1 when they did not suffice. */
template <typename T>
qint64 read(const QByteArray &bytes, T &value)
{
    QDataStream stream(bytes);
    setUp(stream);
    stream >> value;
    return stream.status() == QDataStream::Ok ? stream.device()->pos() : -1;
}

template <typename T>
T fromBytes(const QByteArray &bytes)
{
    T value;
    read(bytes, value);
    return value;
}

} // namespace StreamBytes
