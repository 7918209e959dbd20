#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QDateTime>

#include <limits>
#include <memory>

class TNmeaSentenceParser;

/// Takes the lines of a GPS receiver: logs them, sets the clock by them, and tells the user log what happens.
///
/// Every line goes to the NMEA log as received, before anything else. A line without a right checksum is then left
/// alone: a sentence that lacks its checksum cannot be told from one that was cut short.
///
/// The fix. A receiver that sends RMC is judged by RMC alone: status A with a position. Until the first RMC, GGA
/// decides by its quality, from the second GGA on, since the first may only stand before the RMC of the same moment.
/// Nothing else decides, so that sentences which disagree for a moment raise no alarm. Silence is no loss of the fix.
///
/// The time. Valid is the full UTC date and time of an RMC, or of a ZDA, while there is a fix, from the year 2000 on.
/// The leap second 23:59:60 is passed over. The clock is set once in each second of UTC, by the first sentence that
/// carries it. It takes whole seconds, so it lags by what the receiver's times are off them, and by the line's delay.
///
/// The user log gets the first fix with its position, each loss and return of the fix, the time set first and again
/// after each return of the fix, and the number of wrong checksums of a minute. Minutes are those of the stream's UTC,
/// since the clock jumps when it is set; without UTC, LinesWithoutTime lines count as one.
///
/// Settings must be set. Lines are handed in by one thread at a time, from which the façades are called.
class CABHOST_EXPORT TNmeaReceiver
{
public:
    /// What has been received so far.
    struct tagStatus
    {
        qint64 lines = 0;         ///< the sum of the next three
        qint64 sentences = 0;     ///< with a right checksum, whether of use here or not
        qint64 badChecksums = 0;  ///< sentences with a wrong checksum
        qint64 damagedLines = 0;  ///< sentences without a checksum, empty lines, and what is no sentence
        qint64 unloggedLines = 0; ///< lines that the NMEA log did not take: it is closed, or the disk is full

        bool hasFix = false;
        QDateTime utc; ///< the last valid time; invalid before the first

        /// The last ones known, kept when the fix is lost; NaN while unknown.
        double latitude = std::numeric_limits<double>::quiet_NaN();  ///< degrees, north positive
        double longitude = std::numeric_limits<double>::quiet_NaN(); ///< degrees, east positive
        double altitude = std::numeric_limits<double>::quiet_NaN();  ///< metres above sea level
        double speed = std::numeric_limits<double>::quiet_NaN();     ///< metres per second over ground
        double course = std::numeric_limits<double>::quiet_NaN(); ///< degrees from true north; NaN at a standstill too
    };

    /// How many lines without a valid time stand for a minute when wrong checksums are counted.
    static constexpr int LinesWithoutTime = 1000;

    TNmeaReceiver();
    ~TNmeaReceiver();

    TNmeaReceiver(const TNmeaReceiver&) = delete;
    TNmeaReceiver& operator=(const TNmeaReceiver&) = delete;

    /// @param line one line as received, with its line end.
    void Receive(const QByteArray& line);

    /// At the end of a stream: reports the wrong checksums that have not been reported. Another stream may follow.
    void Finish();

    const tagStatus& GetStatus() const;

private:
    struct tagReading;

    void Judge(const tagReading& reading);
    void TakePosition(const tagReading& reading);
    void TakeTime(const tagReading& reading);
    void ReportBadChecksums();

    std::unique_ptr<TNmeaSentenceParser> m_Parser;
    tagStatus m_Status;
    bool m_SendsRMC = false;
    bool m_SendsGGA = false;
    bool m_HadFix = false;
    bool m_ReportsTime = true;
    int m_UnreportedBadChecksums = 0;
    int m_LinesSinceTime = 0;
};
