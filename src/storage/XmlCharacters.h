#pragma once

#include <QString>

/** Which characters a document can carry. */
namespace XmlCharacters {

/** The first unit that is half of a pair without its other half; -1 if there is none. */
int indexOfLoneSurrogate(const QString &text);

/** The first unit that XML 1.0 cannot carry, also not as a reference; -1 if there is none. */
int indexOfIllegal(const QString &text);

} // namespace XmlCharacters
