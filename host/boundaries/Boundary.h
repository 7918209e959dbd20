#pragma once

#include "HostExport.h"
#include "guidance/GeoPoint.h"

#include <QString>

#include <optional>
#include <vector>

/// The corners of an area, one after the other; the last one is joined to the first.
using TGeoRing = std::vector<tagGeoPoint>;

/// The boundary of a field: its outline, and the places in it that are not worked, such as a pond.
struct tagBoundary
{
    TGeoRing external;
    std::vector<TGeoRing> internals;
};

/// The greatest number of corners of a boundary, all rings together.
constexpr int MostCorners = 1000000;

/// Reads a boundary, such as the one at TSystemSettings::GetBoundaryFilePath(). Nothing when there is no file, with an
/// empty @p error; and when it cannot be read or is damaged, which @p error says in one line. May be called from any
/// thread.
///
/// @code
/// const std::optional<tagBoundary> boundary = ReadBoundary(system.GetActiveBoundaryPath(), &error);
/// if (boundary)
///     Show(BoundaryArea(*boundary) / 10000); // hectares
/// @endcode
CABHOST_EXPORT std::optional<tagBoundary> ReadBoundary(const QString& path, QString* error);

/// Writes a boundary, so that it is on the disk; makes its folder. A power cut leaves the old file or the new one.
/// @return false, with @p error, when a ring has fewer than three corners, there are more than MostCorners, a corner is
/// no place, or writing has failed.
CABHOST_EXPORT bool WriteBoundary(const QString& path, const tagBoundary& boundary, QString* error);

/// The area to be worked, in square metres: that of the outline without those of the internal rings. Rings may turn
/// either way. Exact to 1 in 100 000 for fields within 25 km.
CABHOST_EXPORT double BoundaryArea(const tagBoundary& boundary);
