#pragma once

#include "imported/xml/XmlText.h"

#include <QString>

#include <array>
#include <cstring>

/**
 * Turns UTF-8 into strings and gives those that came lately again, so that equal ones share their
 * memory. It forgets rather than grows.
 */
class StringCache
{
public:
    /** @p size in bytes; the bytes are valid UTF-8. The result is valid until the next call. */
    const QString &string(const char *utf8, int size)
    {
        if (size > MaximumSize) {
            return m_long = XmlText::fromUtf8(utf8, size);
        }
        SEntry &entry = m_entries[slot(utf8, size)];
        if (entry.size != size || std::memcmp(entry.utf8, utf8, static_cast<size_t>(size)) != 0) {
            entry.size = size;
            std::memcpy(entry.utf8, utf8, static_cast<size_t>(size));
            entry.text = XmlText::fromUtf8(utf8, size);
        }
        return entry.text;
    }

private:
    static constexpr int MaximumSize = 64;
    static constexpr size_t Slots = 128; // what is used often stays in the processor's cache

    struct SEntry {
        int size = MaximumSize + 1; // as no text in the cache
        char utf8[MaximumSize];
        QString text;
    };

    /** Names and paths differ at one of their ends; the middle is not worth the time. */
    static size_t slot(const char *utf8, int size)
    {
        quint64 first = 0;
        quint64 last = 0;
        const auto length = qMin(static_cast<size_t>(size), sizeof(first));
        std::memcpy(&first, utf8, length);
        std::memcpy(&last, utf8 + size - length, length);
        const quint64 hash =
            (first * 31 + last + static_cast<quint64>(size)) * Q_UINT64_C(0x9E3779B97F4A7C15);
        return static_cast<size_t>(hash >> 32) % Slots;
    }

    std::array<SEntry, Slots> m_entries;
    QString m_long;
};
