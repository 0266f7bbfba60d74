#pragma once

#include "imported/xml/XmlText.h"

#include <QByteArray>
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
    /** @p size in bytes; the bytes are valid UTF-8. */
    QString string(const char *utf8, int size)
    {
        if (size > MaximumSize) {
            return XmlText::fromUtf8(utf8, size);
        }
        SEntry &entry = m_entries[slot(utf8, size)];
        if (entry.utf8.size() != size
            || std::memcmp(entry.utf8.constData(), utf8, static_cast<size_t>(size)) != 0) {
            entry.utf8 = QByteArray(utf8, size);
            entry.text = XmlText::fromUtf8(utf8, size);
        }
        return entry.text;
    }

private:
    struct SEntry {
        QByteArray utf8;
        QString text = QLatin1String("");
    };

    static constexpr int MaximumSize = 128;
    static constexpr size_t Slots = 512;

    static size_t slot(const char *utf8, int size)
    {
        quint32 hash = 2166136261U;
        for (int i = 0; i < size; ++i) {
            hash = (hash ^ static_cast<uchar>(utf8[i])) * 16777619U;
        }
        return (hash ^ (hash >> 15)) % Slots;
    }

    std::array<SEntry, Slots> m_entries;
};
