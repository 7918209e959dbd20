#pragma once

#include "HostExport.h"

/// A place on the WGS84 ellipsoid.
struct tagGeoPoint
{
    double latitude;  ///< degrees, north positive, -90 to 90
    double longitude; ///< degrees, east positive, -180 to 180
};

/// Whether both numbers are in their range; false for NaN.
CABHOST_EXPORT bool IsGeoPoint(const tagGeoPoint& point);
