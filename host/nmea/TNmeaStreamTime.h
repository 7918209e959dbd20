#pragma once

#include "nmea/TNmeaSentenceParser.h"

#include <QTime>

/// The time at which each line of a recording was received, from the times of day in its sentences.
class TNmeaStreamTime
{
public:
    /// Milliseconds from the first time of the recording to @p line. Call it for each line, in order. A line without a
    /// time gets the time of the line before it. A step back and a gap of more than a minute count as 0: another
    /// recording begins there, or the receiver knew no time.
    qint64 Advance(const QByteArray& line);

private:
    TNmeaSentenceParser m_Parser;
    QTime m_TimeOfDay;
    qint64 m_Elapsed = 0;
};
