#pragma once

#include <QElapsedTimer>
#include <QString>

/**
 * A bar on standard error for work that takes its time: it appears after a second, only on a
 * terminal, and is wiped away in the end.
 */
class Progress
{
public:
    /** @param what in a few words, what is done */
    explicit Progress(const QString &what);
    ~Progress();

    void show(qint64 done, qint64 total);

private:
    Q_DISABLE_COPY(Progress)

    const QString m_what;
    const bool m_isWanted;
    bool m_isShown = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};
