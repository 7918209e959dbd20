#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QDateTime>

#include <limits>
#include <memory>

enum EReceiverEvent : int;
class TFixTracker;
class TTimeGuard;

/// Where the lines of a receiver come from.
enum ENmeaOrigin : int
{
    NMEA_LIVE,     ///< from a receiver, now: its times are checked
    NMEA_RECORDED, ///< from a recording, which lives in its own time
};

/// Takes the lines of a GPS receiver: writes them to the NMEA log, sets the clock, and reports events in the user log.
///
/// \code
/// TNmeaReceiver receiver;
/// QObject::connect(&input, &TNmeaInput::LineReceived, [&](const QByteArray& line) { receiver.Receive(line); });
/// QObject::connect(&input, &TNmeaInput::Finished, [&] { receiver.Finish(); });
/// \endcode
///
/// Every line goes to the NMEA log as received, before anything else. After that a line is used only if its checksum is
/// right. A sentence without a checksum is not used: it may have been cut short.
///
/// The fix. If the receiver sends RMC, RMC alone decides: there is a fix while the status is A and a position is given.
/// Before the first RMC, GGA decides by its quality, beginning with the second GGA: the first one may belong to the
/// moment of the first RMC. No other sentence decides, so sentences that disagree for a moment change nothing. Silence
/// does not end a fix.
///
/// The time. Valid is the full UTC date and time of an RMC or a ZDA while there is a fix, from the year 2000 on. The
/// leap second 23:59:60 is ignored. The clock is set once for each second of UTC, by the first sentence with that
/// second. It is set to whole seconds: the clock is late by the fraction of the receiver's time and by the delay of the
/// line.
///
/// The times of a live receiver are checked first; see TTimeGuard. Its reference is PARAM_NEWEST_TIME, which is brought
/// up to date once a day, and the date of the software. A refused time is not used. The user log gets it with the
/// reason, once until a minute passes without that reason; so it gets the first time that was corrected. The times of a
/// recording are not checked, and leave PARAM_NEWEST_TIME alone. PARAM_TIME_SOURCE tells that the receiver has set the
/// clock.
///
/// The user log gets the first fix with its position, each loss and each return of the fix, and the time that was set
/// first and again after each return. A fix that comes and goes does not fill the log: of one minute, MostLosses losses
/// are reported with their returns. The number of the others is reported at the end of the minute, with the state of
/// the fix. So is the number of wrong checksums. The minutes are those of the stream's UTC, because the clock jumps
/// when it is set. Without UTC, LinesWithoutTime lines count as one minute.
///
/// Settings must be set. Use it from one thread at a time; it calls the façades from there.
class CABHOST_EXPORT TNmeaReceiver
{
public:
    /// What has been received so far.
    struct tagStatus
    {
        qint64 lines = 0;         ///< the sum of the next three
        qint64 sentences = 0;     ///< with a right checksum, whether of use here or not
        qint64 badChecksums = 0;  ///< sentences with a wrong checksum
        qint64 damagedLines = 0;  ///< sentences without a checksum, empty lines, and other text
        qint64 unloggedLines = 0; ///< lines that the NMEA log has lost: it was closed, or the disk was full

        bool hasFix = false;
        QDateTime utc; ///< the last valid time; invalid before the first

        /// The last known values, kept when the fix is lost; NaN while unknown.
        double latitude = std::numeric_limits<double>::quiet_NaN();  ///< degrees, north positive
        double longitude = std::numeric_limits<double>::quiet_NaN(); ///< degrees, east positive
        double altitude = std::numeric_limits<double>::quiet_NaN();  ///< metres above sea level
        double speed = std::numeric_limits<double>::quiet_NaN();     ///< metres per second over ground, not negative
        /// Degrees from true north, 0 to 360; NaN at a standstill too.
        double course = std::numeric_limits<double>::quiet_NaN();
    };

    /// Number of lines without a valid time that count as a minute of the stream.
    static constexpr int LinesWithoutTime = 1000;

    /// Number of losses of the fix, in a minute of the stream, that get an entry of their own in the user log.
    static constexpr int MostLosses = 3;

    explicit TNmeaReceiver(ENmeaOrigin origin = NMEA_LIVE);
    ~TNmeaReceiver();

    TNmeaReceiver(const TNmeaReceiver&) = delete;
    TNmeaReceiver& operator=(const TNmeaReceiver&) = delete;

    /// @param line one line as received, with its line end.
    void Receive(const QByteArray& line);

    /// Call it at the end of a stream: reports what has been counted and not reported yet. Another stream may follow.
    void Finish();

    const tagStatus& GetStatus() const;

private:
    void Take(const QByteArray& sentence);
    QDateTime Trusted(const QDateTime& utc);
    void ReportOnce(int reason, EReceiverEvent event, const QDateTime& utc, const QString& text);
    void KeepNewestTime();
    void ReportFix();
    void SetClock(const QDateTime& utc);
    void ReportCounts();

    tagStatus m_Status;
    std::unique_ptr<TFixTracker> m_Tracker; ///< keeps fix, time and position in m_Status up to date
    ENmeaOrigin m_Origin;
    std::unique_ptr<TTimeGuard> m_Guard; ///< made with the first time of a live receiver
    unsigned m_Reported = 0;             ///< bits of the reasons that are not reported again
    unsigned m_ReasonsOfMinute = 0;
    bool m_HadFix = false;
    bool m_IsLossReported = false; ///< the last one
    bool m_ReportsTime = true;     ///< the next one that is set
    int m_ReportedLosses = 0;      ///< these three in the current minute
    int m_UnreportedLosses = 0;
    int m_UnreportedBadChecksums = 0;
    int m_LinesSinceTime = 0;
};
