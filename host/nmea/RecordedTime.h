#pragma once

#include "HostExport.h"
#include "nmea/NmeaAddress.h"

#include <QDateTime>

/// The first time of a recording that TNmeaReceiver takes as valid, in UTC. Invalid when @p address is no recording
/// (only files are), when it cannot be read, and when it has no such time.
///
///     const QDateTime utc = FirstRecordedTime(address);
///     if (utc.isValid())
///         ... // replay it in the time in which it was recorded
///
/// Reads the file up to that time. A file on standard input can be read from the same place afterwards.
CABHOST_EXPORT QDateTime FirstRecordedTime(const NmeaAddress& address);
