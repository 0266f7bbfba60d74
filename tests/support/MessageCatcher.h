#pragma once

#include "imported/CMessageBoardHelper.h"

#include <QList>
#include <QStringList>

/** Collects what is posted to the message board while it lives; one at a time, one thread. */
class MessageCatcher
{
public:
    struct Message {
        CMessageBoardHelper::ESeverity severity;
        QString text;
        ICLogfile *log;
    };

    MessageCatcher()
        : m_previous(CMessageBoardHelper::installHandler(
            [this](CMessageBoardHelper::ESeverity severity, const QString &text, ICLogfile *log) {
                m_messages.append({severity, text, log});
            }))
    {
    }

    ~MessageCatcher() { CMessageBoardHelper::installHandler(m_previous); }

    QList<Message> messages() const { return m_messages; }

    QStringList warnings() const { return texts(CMessageBoardHelper::SEVERITY_WARNING); }
    QStringList criticals() const { return texts(CMessageBoardHelper::SEVERITY_CRITICAL); }

private:
    Q_DISABLE_COPY(MessageCatcher)

    QStringList texts(CMessageBoardHelper::ESeverity severity) const
    {
        QStringList result;
        for (const Message &message : m_messages) {
            if (message.severity == severity) {
                result << message.text;
            }
        }
        return result;
    }

    QList<Message> m_messages;
    CMessageBoardHelper::Handler m_previous;
};
