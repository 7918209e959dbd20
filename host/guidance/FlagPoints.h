#pragma once

#include "HostExport.h"
#include "guidance/GeoPoint.h"

#include <QString>

#include <optional>
#include <vector>

/// The places that the operator has marked in a field, in the order in which they were marked. Reads the file at
/// TSystemSettings::GetFlagPointsFilePath(). Nothing when there is no file, with an empty @p error; and when it cannot
/// be read or is damaged, which @p error says in one line. May be called from any thread.
///
/// @code
/// std::vector<tagGeoPoint> flags = ReadFlagPoints(path, &error).value_or(std::vector<tagGeoPoint>());
/// flags.push_back({status.latitude, status.longitude});
/// if (error.isEmpty() && !WriteFlagPoints(path, flags, &error))
///     Show(error);
/// @endcode
CABHOST_EXPORT std::optional<std::vector<tagGeoPoint>> ReadFlagPoints(const QString& path, QString* error);

/// Writes the places, so that they are on the disk; makes the folder. A power cut leaves the old file or the new one.
CABHOST_EXPORT bool WriteFlagPoints(const QString& path, const std::vector<tagGeoPoint>& points, QString* error);
