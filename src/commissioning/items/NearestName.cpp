#include "commissioning/items/NearestName.h"

#include <QVector>

namespace {

/** How many letters have to be changed, added, left out or exchanged with the next one. */
int distance(const QString &left, const QString &right)
{
    const int width = right.size() + 1;
    QVector<int> beforeLast(width);
    QVector<int> last(width);
    for (int column = 0; column < width; ++column) {
        last[column] = column;
    }
    for (int row = 1; row <= left.size(); ++row) {
        QVector<int> current(width);
        current[0] = row;
        for (int column = 1; column < width; ++column) {
            const bool isSame = left.at(row - 1) == right.at(column - 1);
            int best = last.at(column - 1) + (isSame ? 0 : 1);
            best = qMin(best, qMin(last.at(column), current.at(column - 1)) + 1);
            const bool isExchanged = row > 1 && column > 1
                && left.at(row - 1) == right.at(column - 2)
                && left.at(row - 2) == right.at(column - 1);
            if (isExchanged) {
                best = qMin(best, beforeLast.at(column - 2) + 1);
            }
            current[column] = best;
        }
        beforeLast = last;
        last = current;
    }
    return last.at(right.size());
}

} // namespace

QString nearestName(const QString &given, const QStringList &names)
{
    QString nearest;
    int least = 0;
    for (const QString &name : names) {
        // With more than a third of its letters wrong a word is another one.
        const int most = qMax(1, name.size() / 3);
        if (qAbs(name.size() - given.size()) > most) {
            continue;
        }
        const int found = distance(given.toCaseFolded(), name.toCaseFolded());
        if (found <= most && (nearest.isEmpty() || found < least)) {
            nearest = name;
            least = found;
        }
    }
    return nearest;
}
