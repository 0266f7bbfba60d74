#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

/** The numbers of drives: their limits, how a text is read as one, and how a drive gets one. */
namespace DriveNumbers {

/** A drive may be given any number up to this one. */
constexpr quint8 Highest = 254;
/** Means that no number is assigned. A drive with it in a document is read like one without. */
constexpr quint8 None = 255;

/** The number in @p text, None included; -1 for any other text. */
int read(const QString &text);

/** The number in @p text without signs and leading zeros, which names a drive in paths; any other
 * text as it is. */
QString key(const QString &text);

/** The number behind the highest one in use; 0 with -1 for none, and again behind 255. */
quint8 behind(int highest);

/** The number that a drive beside those with @p numbers gets; -1 when all are in use. */
int nextFree(const QList<quint8> &numbers);

/** The number with which a drive of a document is read. */
struct SAssigned {
    /** At most Highest; -1 when all numbers are used: the drive is left out. */
    int number = -1;
    /** Whether the document contains that number, and no earlier drive has it. */
    bool isOwn = false;
};

/**
 * Gives each drive of a document a number of its own. @p texts are what the document contains as
 * their numbers; a drive whose text is not a number, or None, or that of an earlier drive, gets the
 * number behind the highest one in use, at most 254, else the lowest that is free. It gets it after
 * all drives that have their own, so that it takes none of theirs.
 */
QVector<SAssigned> assigned(const QStringList &texts);

} // namespace DriveNumbers
