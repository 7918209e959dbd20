#pragma once

#include "guidance/GeoPoint.h"
#include "serialization/TSerializer.h"

#include <vector>

/// Lists of places in the files of the work on a field: their number, then latitude and longitude of each.
namespace PointList {

void Write(TSerializer& serializer, const std::vector<tagGeoPoint>& points);

/// Returns false when the list is cut off, or holds what is not a place.
bool Read(TSerializer& serializer, std::vector<tagGeoPoint>* points);

} // namespace PointList
