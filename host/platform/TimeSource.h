#pragma once

#include "HostExport.h"
#include "parameters/ETimeSource.h"

#include <QDateTime>

/// To be called when the clock has been set: keeps what has set it, and since when, in PARAM_TIME_SOURCE and
/// PARAM_TIME_SOURCE_SINCE. Stores nothing while the source stays the same.
///
/// \code
/// region.SetUserDateTime(2026, 3, 5, 14, 5, 0);
/// KeepTimeSource(TIME_SOURCE_OPERATOR, utc);
/// \endcode
///
/// @param utc the clock's new time in UTC.
///
/// ConfigManager must be set. May be called from any thread.
CABHOST_EXPORT void KeepTimeSource(ETimeSource source, const QDateTime& utc);
