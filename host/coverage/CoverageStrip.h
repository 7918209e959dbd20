#pragma once

#include "nmea/LocalPlane.h"

#include <array>

/// The ground that an implement has covered between two fixes: its left and its right end before, its right and its
/// left end after. Metres on the local plane of the coverage.
struct tagCoverageStrip
{
    std::array<tagPlanePoint, 4> corners;
};
