#pragma once

#include "configfile/ConfigurationShape.h"

#include <QString>
#include <QStringList>

/**
 * The kinds of values of the items: what each accepts, what readers make of a text, how it is
 * written, and how a bad one is reported.
 */
namespace ItemValue {

using ConfigurationShape::EValue;

/** What the text of an item means to readers of the document. */
enum class EReading {
    EMPTY,
    /** It says that the value is open: "Undefined", "UNKNOWN_drive", or 255 as a drive number. */
    UNDEFINED,
    /** Readers cannot read it, and take what read() returns instead. */
    INVALID,
    VALUE
};

EReading reading(EValue kind, const QString &text);

/**
 * What readers make of @p text, written in the one form of its kind: directories and numbers have
 * several spellings. Of the empty text, what they take where the item is absent; but see
 * absentValue().
 */
QString read(EValue kind, const QString &text);
/** What readers take where the item is absent. */
QString absentValue(const ConfigurationShape::SItem &item);

/** Whether an item may be set to @p text; reading() also accepts other spellings of a value. */
bool accepts(EValue kind, const QString &text);
/** How an accepted text is written into the document. */
QString stored(EValue kind, const QString &text);

/** The values of an enumeration, without the one that leaves it open; empty for other kinds. */
QStringList choices(EValue kind);
/** The text of an enumeration that leaves its value open; empty for other kinds. */
QString undefined(EValue kind);

/** What to write, for users: "a date like 2026-11-21"; of an enumeration, its choices(). */
QString expected(EValue kind);
/**
 * Why a text is not accepted, as a sentence for users: "'tomorrow' is not a valid date."
 * @param shown the text, or its beginning, as it stands in the sentence
 */
QString invalidText(EValue kind, const QString &shown);

/** Why no item may be set to @p text; empty when XML can carry all its characters. */
QString unwritableText(const QString &text);

} // namespace ItemValue
