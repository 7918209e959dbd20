#pragma once

#include "HostExport.h"

#include <QString>

/// Lets the times of a log's files follow their numbers. The log takes the file with the newest time as the one to go
/// on with, and removes the one with the oldest. The machine's clock may have been wrong, or set back: what was written
/// after that would then count as old, and be removed first.
///
///     OrderLogTimes(QLatin1String("/logs/user.log")); // before the log is restored
///
/// Times that lie in the future become the time of now. Nothing is changed when the times are in order. 00001 follows
/// 99999; files without a number are left alone.
/// @param basePath as of TDiagnosticLog::Restore().
CABHOST_EXPORT void OrderLogTimes(const QString& basePath);
