#pragma once

#include <QDateTime>
#include <QMutex>

#include <functional>

class TDiagnosticLogProxy;

/// Keeps a diagnostic log going. A log closes when its file, or the next file of its series, cannot be made: the folder
/// is missing, the disk is full or read-only. The keeper opens it again when that is possible, and then says in the log
/// what was lost in between. What a full disk loses while the log is open is said, too.
///
///     TUserDiagnosticLogProxy log;
///     const TLogKeeper::tagResult result = UserLogKeeper().Write(log, [&] { return log.AddEntry(text); });
///     lostLines += result.lostLines;
///
/// The keeper tries when something is written: at once for the first time, and not again until a second has passed,
/// then two, four and so on up to a minute. A log that was closed by Close() stays closed. May be used from any thread;
/// each keeper has a lock of its own, which is held during the calls of the façade.
class TLogKeeper
{
public:
    /// What a log has lost.
    struct tagGap
    {
        qint64 lines;
        QDateTime from; ///< when the first loss was noticed, in the display's local time
        QDateTime to;   ///< when the last one was
    };

    struct tagResult
    {
        bool isWritten;   ///< the line was taken by the log; it may be staged there
        qint64 lostLines; ///< lines found lost since the last call, this one and staged ones among them
    };

    /// The end of a log.
    struct tagEnd
    {
        qint64 lostLines; ///< lines found lost since the last call of Write()
        tagGap untold;    ///< what was lost and could not be said in the log; no lines when all was said
    };

    /// Writes to the log what tells of the gap.
    using FSay = std::function<void(TDiagnosticLogProxy& log, const tagGap& gap)>;

    /// Milliseconds of a clock that is never set.
    using FClock = std::function<qint64()>;

    static constexpr qint64 FirstWaitMs = 1000;
    static constexpr qint64 LongestWaitMs = 60000;

    explicit TLogKeeper(const FSay& say);
    TLogKeeper(const FSay& say, const FClock& clock);

    TLogKeeper(const TLogKeeper&) = delete;
    TLogKeeper& operator=(const TLogKeeper&) = delete;

    /// Opens @p log again where it has failed, says what was lost, then calls @p write, which writes one line to @p log
    /// and returns the result of the façade.
    tagResult Write(TDiagnosticLogProxy& log, const std::function<bool()>& write);

    /// To be called before @p log is closed or destroyed: opens it again where it has failed, writes what is staged,
    /// says in it what was lost, and forgets the log. Does not wait for the time of the next attempt.
    tagEnd Finish(TDiagnosticLogProxy& log);

private:
    qint64 Look(TDiagnosticLogProxy& log);
    qint64 TakeFound();
    void TryAgain(TDiagnosticLogProxy& log);

    QMutex m_Mutex;
    FSay m_Say;
    FClock m_Clock;
    bool m_IsKnown = false;
    // The state of the log when it was last asked.
    bool m_IsOpen = false;
    bool m_HasFailed = false;
    qint64 m_LostLines = 0;

    qint64 m_FoundLost = 0; ///< not returned yet
    tagGap m_Gap = {0, QDateTime(), QDateTime()};
    qint64 m_NextTry = 0; ///< by m_Clock
    qint64 m_WaitMs = FirstWaitMs;
};
