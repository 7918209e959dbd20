#include "diagnostics/TLogKeeper.h"

#include "logs/TDiagnosticLogProxy.h"
#include "platform/TLocalTime.h"

#include <QMutexLocker>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

qint64 SteadyMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

TLogKeeper::TLogKeeper(const FSay& say) : TLogKeeper(say, &SteadyMilliseconds) {}
TLogKeeper::TLogKeeper(const FSay& say, const FClock& clock) : m_Say(say), m_Clock(clock) {}

TLogKeeper::tagResult TLogKeeper::Write(TDiagnosticLogProxy& log, const std::function<bool()>& write)
{
    const QMutexLocker lock(&m_Mutex);
    if (!m_IsKnown)
        Look(log);
    if ((m_HasFailed || m_Gap.lines > 0) && m_Clock() >= m_NextTry)
        TryAgain(log);
    const bool isTaken = write();
    // A line that is in its file has false for a result where there is no next file.
    const bool isWritten = Look(log) == 0 || isTaken;
    return {isWritten, TakeFound()};
}

TLogKeeper::tagEnd TLogKeeper::Finish(TDiagnosticLogProxy& log)
{
    const QMutexLocker lock(&m_Mutex);
    Look(log);
    if (m_HasFailed)
        log.Reopen();
    log.FlushTempBuffer(); // staged lines that the disk does not take are lost now, not after the last word
    Look(log);
    if (m_HasFailed || m_Gap.lines > 0)
        TryAgain(log);
    tagEnd end = {TakeFound(), m_Gap};
    m_IsKnown = false;
    m_LostLines = 0;
    m_Gap = {0, QDateTime(), QDateTime()};
    m_NextTry = 0;
    m_WaitMs = FirstWaitMs;
    return end;
}

/// Asks for the log's state; returns how many lines it has lost since the last time.
qint64 TLogKeeper::Look(TDiagnosticLogProxy& log)
{
    const TDiagnosticLog::tagState state = log.GetState();
    const qint64 lost = state.lostLines - m_LostLines;
    m_IsKnown = true;
    m_IsOpen = state.isOpen;
    m_HasFailed = state.hasFailed;
    m_LostLines = state.lostLines;
    if (lost <= 0)
        return 0;
    m_Gap.to = TLocalTime::currentDateTime();
    if (m_Gap.lines == 0)
        m_Gap.from = m_Gap.to;
    m_Gap.lines += lost;
    m_FoundLost += lost;
    return lost;
}

qint64 TLogKeeper::TakeFound() { return std::exchange(m_FoundLost, 0); }

void TLogKeeper::TryAgain(TDiagnosticLogProxy& log)
{
    if (m_HasFailed)
        log.Reopen();
    Look(log);
    if (m_IsOpen && m_Gap.lines > 0) {
        const tagGap gap = m_Gap;
        m_Gap.lines = 0;
        m_Say(log, gap);
        log.FlushTempBuffer();
        // One of the lines that are lost now is the one that tells of the gap. It does not count.
        const qint64 lost = Look(log) - 1;
        if (lost >= 0) {
            m_Gap = {gap.lines + lost, gap.from, lost > 0 ? m_Gap.to : gap.to};
            --m_FoundLost;
        }
    }
    const bool isMended = m_IsOpen && m_Gap.lines == 0;
    if (isMended)
        m_WaitMs = FirstWaitMs;
    m_NextTry = m_Clock() + m_WaitMs;
    if (!isMended)
        m_WaitMs = std::min(2 * m_WaitMs, LongestWaitMs);
}
