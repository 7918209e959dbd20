#pragma once

#include "HostExport.h"

#include <QString>

#include <optional>
#include <variant>

/// A file, a pipe, or a device as it is set up; "-" is the standard input.
struct tagFileAddress
{
    QString path;
};

/// A server that sends NMEA: a receiver's gateway, a simulator, gpsd.
struct tagTcpAddress
{
    QString host; ///< a name or a number; of IPv6 without brackets
    quint16 port;
};

/// A receiver on a serial line: eight data bits, no parity, one stop bit, no flow control.
struct tagSerialAddress
{
    QString device; ///< whole path
    int baud;
};

/// Where an NMEA stream comes from.
using NmeaAddress = std::variant<tagFileAddress, tagTcpAddress, tagSerialAddress>;

/// Reads an address as people write it: tcp://HOST:PORT, serial:///dev/NAME, serial:///dev/NAME?baud=N, or else the
/// path of a file. A file whose path looks like one of the others, or like some other kind of address, is written with
/// ./ before it.
/// @param error what was expected instead, when nothing is returned.
CABHOST_EXPORT std::optional<NmeaAddress> ReadNmeaAddress(const QString& text, QString* error);
