#pragma once

#include <QString>

/** A QString of a u"" literal; an empty one is empty and not null. */
inline QString operator""_s(const char16_t *text, std::size_t size)
{
    return QString(reinterpret_cast<const QChar *>(text), static_cast<int>(size));
}
