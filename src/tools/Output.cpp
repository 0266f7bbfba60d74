#include "tools/Output.h"

#include "imported/CMessageBoardHelper.h"
#include "storage/PrintableText.h"
#include "tools/Command.h"

#include <QFile>
#include <QJsonDocument>
#include <QVector>

Output::Output() : m_stream(&m_bytes), m_text(m_stream)
{
    m_stream.setCodec("UTF-8");
}

PrintedText &Output::text()
{
    return m_text;
}

QTextStream &Output::exact()
{
    return m_stream;
}

void Output::print(const QJsonObject &json)
{
    m_stream << QString::fromUtf8(QJsonDocument(json).toJson());
}

void Output::printColumns(const QList<QStringList> &rows)
{
    const int gap = 2;
    QVector<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(row.size());
        for (int column = 0; column < row.size(); ++column) {
            // As wide as it is printed.
            widths[column] = qMax(widths.at(column), PrintableText::of(row.at(column)).size());
        }
    }
    for (const QStringList &row : rows) {
        QString text;
        for (int column = 0; column < row.size(); ++column) {
            text += PrintableText::of(row.at(column)).leftJustified(widths.at(column) + gap);
        }
        while (text.endsWith(QLatin1Char(' '))) {
            text.chop(1);
        }
        m_text << text << '\n';
    }
}

int Output::finish()
{
    m_stream.flush();
    QFile standardOutput;
    const bool written = standardOutput.open(stdout, QIODevice::WriteOnly)
        && standardOutput.write(m_bytes) == m_bytes.size() && standardOutput.flush();
    m_bytes.clear();
    m_stream.seek(0);
    if (!written) {
        printError(Texts::tr("Cannot write to standard output."));
    }
    return written ? EXIT_DONE : EXIT_NOT_DONE;
}

void printError(const QString &text)
{
    CMessageBoardHelper::setDebugCritical(text, nullptr);
}

void printWarning(const QString &text)
{
    CMessageBoardHelper::setDebugWarning(text, nullptr);
}
