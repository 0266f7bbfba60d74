#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTextStream>

/** Standard output, in UTF-8; written when the command is done, or a part of it. */
class Output
{
public:
    Output();

    QTextStream &stream();
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
};

/** Print one line on standard error. */
void printError(const QString &text);
void printWarning(const QString &text);
