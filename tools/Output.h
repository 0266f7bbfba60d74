#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QTextStream>

/** Standard output, in UTF-8; written when the command is done. */
class Output
{
public:
    Output();

    QTextStream &stream();
    void print(const QJsonObject &json);

    /** Writes it all. @return EXIT_DONE, or EXIT_NOT_DONE when standard output cannot be written */
    int finish();

private:
    QByteArray m_bytes;
    QTextStream m_stream;
};

/** Prints one line on standard error. */
void printError(const QString &text);
