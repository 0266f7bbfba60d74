#include "tools/Progress.h"

#include "tools/Terminal.h"

#include <cstdio>

namespace {

const int PatienceMs = 1000;
const int IntervalMs = 100;
const int BarWidth = 30;
const int Percent = 100;

/** Back to the start of the line, and nothing behind it. */
const char *const Wipe = "\r\033[K";

} // namespace

Progress::Progress(const QString &what) : m_what(what), m_isWanted(Terminal::isTerminal(stderr))
{
    m_sinceStart.start();
}

Progress::~Progress()
{
    if (m_isShown) {
        std::fputs(Wipe, stderr);
        std::fflush(stderr);
    }
}

void Progress::show(qint64 done, qint64 total)
{
    const bool isTime = m_isWanted && m_sinceStart.hasExpired(PatienceMs)
        && (!m_isShown || m_sinceShown.hasExpired(IntervalMs));
    if (!isTime) {
        return;
    }
    const double part = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    const int full = qBound(0, static_cast<int>(part * BarWidth), BarWidth);
    const QString bar = QString(full, QLatin1Char('#')).leftJustified(BarWidth, QLatin1Char('.'));
    const int percent = qBound(0, static_cast<int>(part * Percent), Percent);
    const QString line = QStringLiteral("%1 [%2] %3 %").arg(m_what, bar).arg(percent, 3);
    std::fputs(Wipe, stderr);
    std::fputs(line.toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
    m_isShown = true;
    m_sinceShown.start();
}
