#pragma once

#include "HostExport.h"

#include <QString>

#include <optional>

/// A position of a receiver.
struct tagLoggedPosition
{
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
};

/// The last position with a fix in an NMEA log, from its newest files back. Empty when no file of the log has one.
///
/// \code
/// const auto position = LastLoggedPosition(TSystemSettingsProxy().GetInternalNemaLogPath());
/// \endcode
///
/// @param path the log's path, as TSystemSettings tells it. Lines that are staged in memory are not seen.
CABHOST_EXPORT std::optional<tagLoggedPosition> LastLoggedPosition(const QString& path);
