#pragma once

#include "guidance/GeoPoint.h"
#include "serialization/TSerializer.h"

#include <vector>

/// Lists of places in the files of the work on a field: their number, then latitude and longitude of each.
namespace PointList {

void Write(TSerializer& serializer, const std::vector<tagGeoPoint>& points);

/// The number of bytes that Write() makes of the list.
qint64 Bytes(const std::vector<tagGeoPoint>& points);

/// Returns false when the list ends before its last point, or holds what is not a place. A list that is cut off within
/// a number passes with another number there: compare Bytes() with what there was to read.
bool Read(TSerializer& serializer, std::vector<tagGeoPoint>* points);

} // namespace PointList
