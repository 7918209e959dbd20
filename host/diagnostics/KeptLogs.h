#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QtGlobal>

class TLogKeeper;

/// The keepers of the two logs, through which the host writes all its entries; see TLogKeeper.
TLogKeeper& UserLogKeeper();
TLogKeeper& NmeaLogKeeper();

/// Writes one line, as received, to the NMEA log. Returns the number of lines found lost: this one, or staged ones.
/// Settings must be set. May be called from any thread.
CABHOST_EXPORT qint64 WriteNmeaLine(const QByteArray& line);

/// Lines that the two logs have lost.
struct tagLostLines
{
    qint64 userLog;
    qint64 nmeaLog;
};

/// Writes what both logs have staged, and says in them what they have lost. What cannot be said there is said on
/// standard error. Call it before the logs are closed, while Settings is set; TTerminal::Stop() calls it.
///
///     const tagLostLines lost = FinishLogs();
///     TNEMADiagnosticLogProxy().Close();
///
/// @return the lines found lost since the last entry of each log.
CABHOST_EXPORT tagLostLines FinishLogs();
