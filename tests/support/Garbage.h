#pragma once

#include <QByteArray>
#include <QTest>

#include <random>

/** A quarter of a megabyte of content in which no "KEY=value" of a network.conf stands. */
namespace Garbage {

const int Size = 250000;

inline QByteArray randomBytes()
{
    std::mt19937 generator(1);
    QByteArray bytes(Size, Qt::Uninitialized);
    for (char &byte : bytes) {
        byte = static_cast<char>(generator() & 0xFFu);
    }
    return bytes;
}

/** Adds the column "content", and a row for each shape. */
inline void addRows()
{
    QTest::addColumn<QByteArray>("content");

    const auto row = [](const char *name, const QByteArray &part) {
        QTest::newRow(name) << part.repeated(Size / part.size());
    };
    QTest::newRow("random bytes") << randomBytes();
    row("null characters", QByteArray(1, '\0'));
    row("brackets", "[");
    row("closing brackets", "]");
    row("lines of brackets", "[\n");
    row("sections", "[a]\n");
    row("quotation marks", "\"");
    row("lines of quotation marks", "\"\n");
    row("backslashes", "\\");
    row("lines of backslashes", "\\\n");
    row("equals signs", "=");
    row("lines of equals signs", "=\n");
    row("commas", ",");
    row("value of commas", "x=,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,");
    row("at signs", "@");
    row("semicolons", ";");
    row("hashes", "#");
    row("percent signs", "%=%\n");
    row("line feeds", "\n");
    row("carriage returns", "\r");
    row("blanks", " ");
    row("letters", "M");
    row("hexadecimal escapes", "\\x");
    row("octal escapes", "\\0");
    row("broken UTF-8", "\xFF\xC3\xF0");
    row("objects", "x=@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)\n");
    QTest::newRow("one value of commas") << "x=" + QByteArray(Size, ',');
}

} // namespace Garbage
