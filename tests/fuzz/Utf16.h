#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>

/**
 * The text whose UTF-16 code units are @p bytes as they stand in memory, also if they are no valid
 * text; a last odd byte is left out.
 */
inline QString fromUtf16Bytes(const QByteArray &bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    if (!text.isEmpty()) {
        std::memcpy(text.data(), bytes.constData(),
                    static_cast<size_t>(text.size()) * sizeof(QChar));
    }
    return text;
}
