#pragma once

#include "HostExport.h"

#include <QString>

/// Lets the times of a log's files follow their numbers. The log takes the file with the newest time as the one to go
/// on with, and removes the one with the oldest. The machine's clock may have been wrong, or set back: what was written
/// after that would then count as old, and be removed first.
///
///     OrderLogTimes(QLatin1String("/logs/user.log")); // before the log is restored
///
/// After this the times of the files serve their order: a file that has an older time than the file before it gets the
/// time of that file and a millisecond. All other files keep their times. Nothing is changed when the times are in
/// order, not even times that lie in the future: on a machine whose clock begins in 1970 at each start, the files that
/// were written with the right time keep it.
///
/// Regular files count whose names are those that the log gives: user00001.log to user99999.log, where 00001 follows
/// 99999. Links, copies under other names (user20240501.log, user1.log) and files without a number are left alone.
/// Nothing is changed when the folder cannot be read to its end.
///
/// To be called before the log is opened, and where it goes on to its next file: when it stores the number of that
/// file. TTerminal does both. Takes no lock and logs nothing; may be called from any thread.
/// @param basePath as of TDiagnosticLog::Restore().
CABHOST_EXPORT void OrderLogTimes(const QString& basePath);
