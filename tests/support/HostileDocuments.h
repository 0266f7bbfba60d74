#pragma once

#include "support/Literals.h"
#include "support/MarkedText.h"
#include "support/SampleSettings.h"

#include <QByteArray>
#include <QChar>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>

/** Documents that somebody wrote to do harm. */
namespace HostileDocuments {

const QString Type = u"VornDeviceConfig"_s;
const QString Version = u"1.0"_s;
const int Megabyte = 1000 * 1000;

/** Beside what the size of a document explains: tables of the parser, messages. */
const int SmallChange = 1024 * 1024;

/** The heap that reading may take, in sizes of what is read. */
const int MemoryFactor = 10;

inline QByteArray document(const QByteArray &content, const QByteArray &before = QByteArray())
{
    return before + "<VornDeviceConfig version=\"1.0\">\n" + content + "</VornDeviceConfig>\n";
}

inline QByteArray named(const QByteArray &text)
{
    return document("<Name>" + text + "</Name>\n");
}

inline QByteArray attribute(const QByteArray &value)
{
    return document("<Name a=\"" + value + "\"/>\n");
}

inline QByteArray declared(const QByteArray &encoding, const QByteArray &text)
{
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n" + named(text);
}

inline QByteArray nested(int depth)
{
    return document(QByteArray("<A>").repeated(depth - 1) + QByteArray("</A>").repeated(depth - 1));
}

inline QByteArray attributes(int count, const char *pattern)
{
    QByteArray text = "<A";
    for (int i = 0; i < count; ++i) {
        text += QByteArray(pattern).replace("%", QByteArray::number(i));
    }
    return text + "/>";
}

enum class ByteOrder { Little, Big };

inline QByteArray utf16(const QString &text, ByteOrder order)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const char cell = static_cast<char>(c.cell());
        const char row = static_cast<char>(c.row());
        bytes += order == ByteOrder::Little ? cell : row;
        bytes += order == ByteOrder::Little ? row : cell;
    }
    return bytes;
}

inline QByteArray utf16Document(const QString &name, ByteOrder order, bool hasMark = true)
{
    const QString text = QString::fromLatin1(document("<Name>%</Name>\n")).replace(u"%"_s, name);
    return utf16(hasMark ? QChar(QChar::ByteOrderMark) + text : text, order);
}

/** Where "line:column: reason" says that the fault is; unknown when it is not of that form. */
inline MarkedText::SPlace placeIn(const QString &error)
{
    const QRegularExpression form(u"\\A([1-9][0-9]*):([1-9][0-9]*): [^ ].+\\z"_s);
    const QRegularExpressionMatch match = form.match(error);
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

} // namespace HostileDocuments
