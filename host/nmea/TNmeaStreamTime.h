#pragma once

#include "nmea/TNmeaSentenceParser.h"

#include <QTime>

/// How far into a recording each of its lines stands, told by the times of day that its sentences carry.
class TNmeaStreamTime
{
public:
    /// Milliseconds from the first time in the stream to @p line, which is the one behind the line of the last call. A
    /// line without a time of its own belongs to the one before it. Time that runs backwards, and a gap of more than a
    /// minute, count as no time: there another recording begins, or the receiver had no time to tell.
    qint64 Advance(const QByteArray& line);

private:
    TNmeaSentenceParser m_Parser;
    QTime m_TimeOfDay;
    qint64 m_Elapsed = 0;
};
