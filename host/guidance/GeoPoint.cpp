#include "guidance/GeoPoint.h"

#include <cmath>

bool IsGeoPoint(const tagGeoPoint& point) { return std::abs(point.latitude) <= 90 && std::abs(point.longitude) <= 180; }
