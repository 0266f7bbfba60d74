#include "storage/XmlCharacters.h"

namespace XmlCharacters {

namespace {

bool isPairAt(const QString &text, int index)
{
    return text.at(index).isHighSurrogate() && index + 1 < text.size()
        && text.at(index + 1).isLowSurrogate();
}

template <typename Predicate>
int indexOf(const QString &text, Predicate matches)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            if (matches(text.at(i).unicode())) {
                return i;
            }
        } else if (isPairAt(text, i)) {
            ++i;
        } else {
            return i;
        }
    }
    return -1;
}

} // namespace

int indexOfLoneSurrogate(const QString &text)
{
    return indexOf(text, [](ushort) { return false; });
}

int indexOfIllegal(const QString &text)
{
    return indexOf(text, [](ushort unit) {
        const bool allowedControl = unit == '\t' || unit == '\n' || unit == '\r';
        return (unit < 0x20 && !allowedControl) || unit >= 0xfffe;
    });
}

} // namespace XmlCharacters
