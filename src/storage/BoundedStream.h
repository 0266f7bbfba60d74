#pragma once

#include <QDataStream>
#include <QString>
#include <QtEndian>

/**
 * Reads what Qt's own operators write, but reserves memory only for what is there: those take the
 * length for granted up to a megabyte at a time, and a few broken bytes would cost that much.
 */
namespace BoundedStream {

/** As stream >> text; @p text is null when it cannot be read to its end. */
inline void read(QDataStream &stream, QString &text)
{
    const quint32 nullSize = 0xFFFFFFFF;
    const int unitSize = static_cast<int>(sizeof(QChar));
    const int firstStep = 1024;

    text = QString();
    quint32 size = 0;
    stream >> size;
    if (stream.status() != QDataStream::Ok || size == nullSize) {
        return;
    }
    if (size % unitSize != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    const int length = static_cast<int>(size / unitSize);
    QString read = QLatin1String("");
    while (read.size() < length) {
        const int before = read.size();
        const int step = qMin(length - before, qMax(before, firstStep));
        read.resize(before + step);
        char *const target = reinterpret_cast<char *>(read.data() + before);
        if (stream.readRawData(target, step * unitSize) != step * unitSize) {
            stream.setStatus(QDataStream::ReadPastEnd);
            return;
        }
    }
    if (stream.byteOrder() == QDataStream::BigEndian) {
        qFromBigEndian<quint16>(read.constData(), length, read.data());
    } else {
        qFromLittleEndian<quint16>(read.constData(), length, read.data());
    }
    text = read;
}

} // namespace BoundedStream
