#pragma once

#include "HostExport.h"

#include <QByteArray>

/// What a line of an NMEA stream is worth.
enum ENmeaVerdict : int
{
    NMEA_RIGHT_CHECKSUM,
    NMEA_WRONG_CHECKSUM, ///< also one that is not two hexadecimal digits, or is followed by anything but the line end
    NMEA_NO_CHECKSUM,    ///< starts like a sentence and has no "*": most often one that was cut short
    NMEA_NO_SENTENCE,    ///< does not start with "$" or "!", or has nothing behind it
};

/// "*hh" for the text between "$" and "*", in capitals.
CABHOST_EXPORT QByteArray NmeaChecksum(const QByteArray& body);

/// The verdict on a line as received, with or without its line end. Small letters are good in a checksum.
CABHOST_EXPORT ENmeaVerdict CheckNmeaLine(const QByteArray& line);
