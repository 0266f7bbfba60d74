#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QString>
#include <QtEndian>

#include <limits>

/**
 * Reads what Qt's own operators write, but reserves memory only for what is there: those take the
 * length for granted up to a megabyte at a time, and a few broken bytes would cost that much. In
 * all else it reads as they do, so the status that the stream already has is not looked at.
 */
namespace BoundedStream {

/** Reads @p count units; false, with the status of the stream, when not all of them are there. */
template <typename Units>
bool readUnits(QDataStream &stream, quint32 count, Units &units)
{
    const int unitSize = static_cast<int>(sizeof(typename Units::value_type));
    const quint32 firstStep = 1024;
    // Qt's containers hold so many bytes at most, with what they keep of themselves.
    const auto most = static_cast<quint32>((std::numeric_limits<int>::max() - 64) / unitSize);

    quint32 size = 0;
    do {
        const quint32 step = qMin(count - size, qMax(size, firstStep));
        if (step > most - size) {
            stream.setStatus(QDataStream::ReadCorruptData);
            return false;
        }
        units.resize(static_cast<int>(size + step));
        char *const target = reinterpret_cast<char *>(units.data() + size);
        const int bytes = static_cast<int>(step) * unitSize;
        if (stream.readRawData(target, bytes) != bytes) {
            stream.setStatus(QDataStream::ReadPastEnd);
            return false;
        }
        size += step;
    } while (size < count);
    return true;
}

/** As stream >> text: null when it cannot be read to its end, empty when there is no length. */
inline void read(QDataStream &stream, QString &text)
{
    const quint32 nullSize = 0xFFFFFFFF;
    const quint32 unitSize = sizeof(QChar);

    text = QString();
    quint32 size = 0;
    stream >> size;
    if (size == nullSize) {
        return;
    }
    if (stream.version() == QDataStream::Qt_1_0) {
        QByteArray latin1;
        if (readUnits(stream, size, latin1)) {
            text = QString::fromLatin1(latin1);
        }
        return;
    }
    if (size % unitSize != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    QString read = QLatin1String("");
    if (size > 0 && !readUnits(stream, size / unitSize, read)) {
        return;
    }
    if (stream.byteOrder() == QDataStream::BigEndian) {
        qFromBigEndian<quint16>(read.constData(), read.size(), read.data());
    } else {
        qFromLittleEndian<quint16>(read.constData(), read.size(), read.data());
    }
    text = read;
}

} // namespace BoundedStream
