#pragma once

#include "HostExport.h"

#include <QString>

#include <optional>
#include <variant>

/// A file, a pipe or a device; "-" is the standard input. The settings of a device are not changed.
struct tagFileAddress
{
    QString path;
};

/// A server that sends NMEA: a receiver's gateway, a simulator, gpsd.
struct tagTcpAddress
{
    QString host; ///< a name, or an IPv4 or IPv6 address without brackets
    quint16 port;
};

/// A receiver on a serial line: eight data bits, no parity, one stop bit, no flow control.
struct tagSerialAddress
{
    QString device; ///< absolute path
    int baud;       ///< bits per second
};

/// Where an NMEA stream comes from.
using NmeaAddress = std::variant<tagFileAddress, tagTcpAddress, tagSerialAddress>;

/// Reads an address: tcp://HOST:PORT, serial:///dev/NAME, serial:///dev/NAME?baud=N, or the path of a file. The path of
/// a file that begins like another kind of address needs ./ before it.
///
/// \code
/// QString error;
/// if (const auto address = ReadNmeaAddress(QLatin1String("tcp://localhost:2947"), &error))
///     input = std::make_unique<TNmeaInput>(*address);
/// \endcode
///
/// @param error when nothing is returned: what was wrong and what is accepted.
CABHOST_EXPORT std::optional<NmeaAddress> ReadNmeaAddress(const QString& text, QString* error);
