#pragma once

#include "HostExport.h"

#include <QByteArray>

/// Result of checking a line of an NMEA stream.
enum ENmeaVerdict : int
{
    NMEA_RIGHT_CHECKSUM,
    NMEA_WRONG_CHECKSUM, ///< also a checksum that is not two hexadecimal digits, or that does not end the line
    NMEA_NO_CHECKSUM,    ///< starts like a sentence and has no "*"; most often it was cut short
    NMEA_NO_SENTENCE,    ///< does not start with "$" or "!", or has nothing after it
};

/// The checksum of @p body, the text between "$" and "*", as "*hh" in capital letters.
///
/// \code
/// const QByteArray body = "GPZDA,120000.00,01,05,2024,,";
/// const QByteArray line = '$' + body + NmeaChecksum(body) + "\r\n";
/// CheckNmeaLine(line); // NMEA_RIGHT_CHECKSUM
/// \endcode
CABHOST_EXPORT QByteArray NmeaChecksum(const QByteArray& body);

/// Checks a line as received, with or without its line end. A checksum may have small letters.
CABHOST_EXPORT ENmeaVerdict CheckNmeaLine(const QByteArray& line);
