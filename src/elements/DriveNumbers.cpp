#include "elements/DriveNumbers.h"

#include <bitset>

namespace DriveNumbers {

namespace {

using Used = std::bitset<Highest + 1>;

/** The number behind the highest in use, or the lowest free one; -1 when all are used. */
int next(const Used &used)
{
    int number = Highest;
    while (number >= 0 && !used.test(static_cast<size_t>(number))) {
        --number;
    }
    if (number < Highest) {
        return number + 1;
    }
    number = 0;
    while (number <= Highest && used.test(static_cast<size_t>(number))) {
        ++number;
    }
    return number <= Highest ? number : -1;
}

} // namespace

int nextFree(const QList<quint8> &numbers)
{
    Used used;
    for (const quint8 number : numbers) {
        if (number != None) {
            used.set(number);
        }
    }
    return next(used);
}

int read(const QString &text)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    return isNumber && number <= None ? static_cast<int>(number) : -1;
}

QString key(const QString &text)
{
    const int number = read(text);
    return number < 0 ? text : QString::number(number);
}

quint8 behind(int highest)
{
    return static_cast<quint8>(highest + 1);
}

QVector<SAssigned> assigned(const QStringList &texts)
{
    QVector<SAssigned> result;
    result.reserve(texts.size());
    Used used;
    for (const QString &text : texts) {
        const int number = read(text);
        const bool isOwn =
            number >= 0 && number <= Highest && !used.test(static_cast<size_t>(number));
        if (isOwn) {
            used.set(static_cast<size_t>(number));
        }
        result.append({isOwn ? number : -1, isOwn});
    }
    for (SAssigned &drive : result) {
        if (!drive.isOwn) {
            drive.number = next(used);
        }
        if (drive.number >= 0) {
            used.set(static_cast<size_t>(drive.number));
        }
    }
    return result;
}

} // namespace DriveNumbers
