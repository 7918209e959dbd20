#pragma once

#include <QByteArray>
#include <QGeoPositionInfo>
#include <QNmeaPositionInfoSource>

/// One sentence at a time through QtPositioning's NMEA source, without its device, its timers and its event loop.
class TNmeaSentenceParser : private QNmeaPositionInfoSource
{
public:
    TNmeaSentenceParser();

    struct tagSentence
    {
        QByteArray type;       ///< "RMC", "GGA", ...; empty for a line that QtPositioning does not read
        bool hasFix = false;   ///< as the sentence itself says; false for those that do not say
        QGeoPositionInfo info; ///< what the sentence carries; its time may have no date
    };

    /// Lines without a right checksum are not read.
    tagSentence Parse(const QByteArray& line);
};
