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

/// To be called while Settings is still set, before it goes: says in both logs what they have lost. TTerminal does it.
///
///     FinishLogs();
///     Settings = nullptr;
CABHOST_EXPORT void FinishLogs();
