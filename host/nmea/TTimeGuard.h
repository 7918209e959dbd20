#pragma once

#include "HostExport.h"

#include <QDateTime>

/// Why a time is not used.
enum ETimeRefusal : int
{
    TIME_NOT_REFUSED,
    TIME_UNCONFIRMED,   ///< far ahead of the newest time, and no run of fixes has confirmed it
    TIME_BEFORE_NEWEST, ///< behind the newest time by more than TTimeGuard::MostSeconds
    TIME_BEFORE_BUILD,  ///< before the software was built, and no rollover of the week number explains it
    TIME_TOO_LATE,      ///< a rollover of the week number or more after the software was built
};

/// What TTimeGuard says of a time.
struct tagTimeCheck
{
    QDateTime utc;        ///< the time to use, in UTC; invalid when it is refused, and while it waits
    ETimeRefusal refusal; ///< TIME_NOT_REFUSED also while it waits
    bool isCorrected;     ///< utc differs from what was received
    QDateTime dropped;    ///< an earlier time that waited in vain: TIME_UNCONFIRMED; mostly invalid
};

/// Checks the times of a live receiver before they reach the clock.
///
/// \code
/// TTimeGuard guard(builtOn, newestSeen);
/// const tagTimeCheck check = guard.Check(received);
/// if (check.utc.isValid())
///     SetClock(check.utc);
/// \endcode
///
/// Possible are the 1024 weeks from the date of the build. They are one rollover of the GPS week number, so each date
/// before them is one possible date, a whole number of rollovers later. A receiver whose own epoch has passed tells
/// such dates. The corrected date is used when it is less than LongestYears after the newest time, or after the build
/// when there is none; other dates before the build are refused. NMEA has two digits for the year: 1980 to 1999 are
/// read as 2080 to 2099, and are corrected too.
///
/// Against the newest time, up to MostSeconds ahead or back are accepted at once: a receiver that was wrong by so
/// little can be put right. A time further back is refused. A time further ahead, and a corrected one without a newest
/// time, waits until FixesToConfirm times in a row follow each other by at most LongestStep seconds; the times of one
/// second count once. Without a newest time, the first possible time is accepted.
///
/// Use it from one thread at a time.
class CABHOST_EXPORT TTimeGuard
{
public:
    static constexpr int MostSeconds = 24 * 60 * 60; ///< ahead or back without a question
    static constexpr int FixesToConfirm = 10;
    static constexpr qint64 LongestStep = 10; ///< seconds between two of them
    static constexpr int LongestYears = 5;    ///< from the newest time to a corrected one
    static constexpr int RolloverDays = 1024 * 7;

    /// @param built the date on which the software was built.
    /// @param newest the newest time seen before; invalid when there is none.
    TTimeGuard(const QDate& built, const QDateTime& newest);

    /// @param utc a valid time of the receiver, in UTC. Call it for each, in order.
    tagTimeCheck Check(const QDateTime& utc);

    /// The newest time that was accepted or given; invalid when there is none.
    QDateTime Newest() const { return m_Newest; }

private:
    QDateTime Corrected(const QDateTime& utc) const;
    ETimeRefusal Refusal(const QDateTime& utc, bool isCorrected) const;
    bool IsConfirmed(const QDateTime& utc, QDateTime* dropped);

    QDateTime m_Earliest;
    QDateTime m_Newest;
    QDateTime m_Waiting; ///< the last one of a run that may be confirmed; invalid without
    int m_Confirmations; ///< length of that run
};
