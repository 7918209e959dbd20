#pragma once

#include "HostExport.h"
#include "boundaries/Boundary.h"

#include <QString>

#include <optional>
#include <vector>

/// Reads the exclusion zones of a field, such as those at TSystemSettings::GetExclusionZoneShapefilePath(): the
/// polygons of a shapefile whose coordinates are degrees on WGS84. Each part of a polygon is a zone; a hole is not told
/// from the zone around it, which is the safe side. Needs the file of the index (".shx") too. May be called from any
/// thread.
///
/// @code
/// const auto zones = ReadExclusionZones(path, &error);
/// if (!zones && !error.isEmpty())
///     Show(error);
/// @endcode
///
/// @return nothing when there is no file, with an empty @p error; and when it cannot be read, holds other shapes or
/// other coordinates, or is damaged, which @p error says in one line.
CABHOST_EXPORT std::optional<std::vector<TGeoRing>> ReadExclusionZones(const QString& path, QString* error);

/// Writes zones as a shapefile, with index and an attribute table that other programs want; makes its folder. Whatever
/// happens on the way, a pulled stick or a power cut, ReadExclusionZones() reads the old zones or the new ones: each of
/// the three files is replaced as a whole, and where the index is of other zones, the shapes themselves are read.
/// @return false, with @p error, when a zone has fewer than three corners, a file would be larger than 64 MB, which is
/// never read, or writing has failed.
CABHOST_EXPORT bool WriteExclusionZones(const QString& path, const std::vector<TGeoRing>& zones, QString* error);
