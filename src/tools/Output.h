#pragma once

#include "tools/PrintedText.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>

/**
 * Standard output, in UTF-8; written when the command is done, or a part of it. People get what
 * they read through text(), programs through exact() and print().
 */
class Output
{
public:
    Output();

    /** What people read: nothing in it that came from a file commands their terminal. */
    PrintedText &text();
    /** What programs read, such as a document or a script: every character as it is. */
    QTextStream &exact();
    void print(const QJsonObject &json);
    /** Rows of equally many texts, each column as wide as its widest text. */
    void printColumns(const QList<QStringList> &rows);

    /**
     * Writes what is there.
     * @return EXIT_DONE, or EXIT_NOT_DONE when standard output cannot be written
     */
    int finish();

private:
    QByteArray m_bytes;
    QTextStream m_stream;
    PrintedText m_text;
};

/** Print one line on standard error. */
void printError(const QString &text);
void printWarning(const QString &text);
