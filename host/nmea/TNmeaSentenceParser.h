#pragma once

#include <QByteArray>
#include <QGeoPositionInfo>
#include <QNmeaPositionInfoSource>

/// Reads single sentences with the parser of QtPositioning, without its device, timers and event loop.
class TNmeaSentenceParser : private QNmeaPositionInfoSource
{
public:
    TNmeaSentenceParser();

    struct tagSentence
    {
        QByteArray type;       ///< "RMC", "GGA", ...; empty for a line that QtPositioning does not read
        bool hasFix = false;   ///< false, too, for a sentence that does not tell
        QGeoPositionInfo info; ///< the values of the sentence; its time may have no date
    };

    /// @param line with or without its line end. Not read unless its checksum is right.
    tagSentence Parse(const QByteArray& line);
};
