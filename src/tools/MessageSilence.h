#pragma once

#include "imported/CMessageBoardHelper.h"

/** As long as it lives, what is posted is kept from the user, who gets the same message in another
 * way.
 */
class MessageSilence
{
public:
    MessageSilence()
        : m_previous(CMessageBoardHelper::installHandler(
            [](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) {}))
    {
    }
    ~MessageSilence() { CMessageBoardHelper::installHandler(m_previous); }

private:
    Q_DISABLE_COPY(MessageSilence)

    CMessageBoardHelper::Handler m_previous;
};
