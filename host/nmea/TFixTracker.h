#pragma once

#include "nmea/TNmeaReceiver.h"
#include "nmea/TNmeaSentenceParser.h"

/// Follows fix, time and position through the sentences of a receiver, by the rules described at TNmeaReceiver. Sets no
/// clock and writes no log.
class TFixTracker
{
public:
    /// @param status gets fix, time, position, speed and course; the counts are left alone.
    explicit TFixTracker(TNmeaReceiver::tagStatus& status);

    /// @param line a sentence with a right checksum.
    /// @return the valid time that the sentence carries; invalid without one.
    QDateTime Take(const QByteArray& line);

private:
    struct tagReading;

    void TakeFix(const tagReading& reading);
    void TakePosition(const tagReading& reading);
    QDateTime TakeTime(const tagReading& reading);

    TNmeaReceiver::tagStatus& m_Status;
    TNmeaSentenceParser m_Parser;
    bool m_SendsRMC;
    bool m_SendsGGA;
};
