#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QString>

/// Local time less UTC, as the parameters store it.
///
/// @code
/// const QString text = QLatin1String("UTC ") + StoredUtcOffset(store).Text(); // "UTC +05:30"
/// @endcode
struct CABHOST_EXPORT tagUtcOffset
{
    int hours;
    int minutes; ///< beyond the hours, with their sign

    int Seconds() const;

    /// "+05:30"
    QString Text() const;
};

/// The offset in PARAM_UTC_OFFSET_HOURS and PARAM_UTC_OFFSET_MINUTES.
CABHOST_EXPORT tagUtcOffset StoredUtcOffset(TParameterStore& store);
