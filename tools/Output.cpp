#include "tools/Output.h"

#include "imported/CMessageBoardHelper.h"
#include "tools/Command.h"

#include <QFile>
#include <QJsonDocument>

Output::Output() : m_stream(&m_bytes)
{
    m_stream.setCodec("UTF-8");
}

QTextStream &Output::stream()
{
    return m_stream;
}

void Output::print(const QJsonObject &json)
{
    m_stream << QString::fromUtf8(QJsonDocument(json).toJson());
}

int Output::finish()
{
    m_stream.flush();
    QFile standardOutput;
    const bool written = standardOutput.open(stdout, QIODevice::WriteOnly)
        && standardOutput.write(m_bytes) == m_bytes.size() && standardOutput.flush();
    m_bytes.clear();
    if (!written) {
        printError(QStringLiteral("Standard output cannot be written."));
    }
    return written ? EXIT_DONE : EXIT_NOT_DONE;
}

void printError(const QString &text)
{
    CMessageBoardHelper::setDebugCritical(text, nullptr);
}
