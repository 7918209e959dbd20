#pragma once

#include "HostExport.h"
#include "nmea/NmeaAddress.h"

#include <QDateTime>

/// The first time of a recording that TNmeaReceiver takes as valid, in UTC. Invalid when @p address is no recording
/// (only files are), when it cannot be read, and when it has no such time.
///
/// \code
/// const QDateTime utc = FirstRecordedTime(address);
/// if (utc.isValid())
///     ReplayFrom(utc);
/// \endcode
///
/// Reads the file up to that time. A file on standard input can be read from the same place afterwards.
CABHOST_EXPORT QDateTime FirstRecordedTime(const NmeaAddress& address);

/// Whether @p address is a recording: a regular file, also on standard input. Pipes, servers and devices are live.
CABHOST_EXPORT bool IsRecording(const NmeaAddress& address);
