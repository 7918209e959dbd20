#pragma once

#include "HostExport.h"
#include "guidance/GeoPoint.h"

#include <QString>

#include <optional>

/// A guidance line: the straight line through A and B, in the direction from A to B.
struct tagGuidanceLine
{
    tagGeoPoint a;
    tagGeoPoint b;
};

/// The least and the greatest distance from A to B, in metres.
constexpr double LeastLineLength = 1;
constexpr double GreatestLineLength = 100000;

/// Reads a guidance line, such as the one at TSystemSettings::GetActiveABLinePath(). Nothing when there is no file,
/// with an empty @p error; and when it cannot be read or is not a guidance line, which @p error says in one line. May
/// be called from any thread.
///
/// @code
/// const std::optional<tagGuidanceLine> line = ReadGuidanceLine(system.GetActiveABLinePath(), &error);
/// if (!line && !error.isEmpty())
///     Show(error);
/// @endcode
CABHOST_EXPORT std::optional<tagGuidanceLine> ReadGuidanceLine(const QString& path, QString* error);

/// Writes a guidance line, so that it is on the disk; makes its folder. A power cut leaves the old line or the new one.
/// @return false, with @p error, when A and B are too near or too far apart, or writing has failed.
CABHOST_EXPORT bool WriteGuidanceLine(const QString& path, const tagGuidanceLine& line, QString* error);
