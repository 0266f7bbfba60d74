#pragma once

#include <QList>
#include <QString>

/** One word of a path as CConfigurationItems documents it, with the key of an entry. */
struct SItemPathStep {
    QString word;
    QString key;
    /** Which of several entries with that key, from 1 on. */
    int occurrence = 1;
    bool hasKey = false;

    /** As it stands in a path. */
    QString text() const;
};

namespace ItemPath {

/**
 * Takes @p path apart. Whether there are such items is open.
 * @return false for a text that is no path; @p errorText says why, for the user
 */
bool parse(const QString &path, QList<SItemPathStep> &steps, QString &errorText);

/** Two paths joined by a dot; the other one where one is empty. */
QString joined(const QString &outer, const QString &inner);

} // namespace ItemPath
