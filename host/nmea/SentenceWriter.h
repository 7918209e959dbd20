#pragma once

#include <QByteArray>
#include <QDateTime>

/// Time, position and movement of a receiver at one moment.
struct tagEpoch
{
    QDateTime utc;
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
    double altitude;  ///< metres above sea level
    double speed;     ///< metres per second
    double course;    ///< degrees from true north, 0 to 360
};

/// The sentences RMC, GGA, VTG and ZDA of a receiver with an RTK fix, with checksums and line ends.
QByteArray WriteSentences(const QByteArray& talker, const tagEpoch& epoch);
