#pragma once

#include "HostExport.h"
#include "nmea/NmeaAddress.h"
#include "stores/TParameterStore.h"

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

/// Sets the display's clock to @p utc, at which a recording begins. Call it before the first line. Unless the operator
/// has chosen an offset from UTC, it becomes that of the machine's time zone at that time: the library's own way, from
/// clock to GPS time, would give the distance between the recording and today.
/// @param utc valid, in UTC.
/// @param store that of the terminal that runs.
CABHOST_EXPORT void BeginClockAt(const QDateTime& utc, TParameterStore& store);
