#pragma once

#include "HostExport.h"
#include "nmea/LocalPlane.h"

/// Where a tractor is beside the nearest of the parallel lines.
struct tagLineOffset
{
    double distance; ///< metres to the nearest line; positive when the tractor is right of it, as the driver looks
    int line; ///< number of the nearest line: 0 goes through A and B, positive ones lie right of it, seen from A to B
    bool isAlong; ///< the tractor drives from A to B, rather than back
};

/// The distance from the nearest of the lines that lie parallel to the one through @p a and @p b.
///
/// Whether the tractor is left or right of a line depends on the direction in which it drives, so that the driver
/// steers to the same side on every pass: a distance above 0 asks to steer to the left. The number of a line does not
/// depend on it. Halfway between two lines, the nearest one is the one that is farther from line 0.
///
/// @code
/// const tagLineOffset offset = OffsetFromLines(a, b, implement.width, place, status.course);
/// lightBar.Show(offset.distance);
/// @endcode
///
/// @param a, b two different places on the plane.
/// @param spacing from one line to the next, in metres, above 0.
/// @param course direction of travel in degrees from the plane's north. NaN counts as from A to B.
CABHOST_EXPORT tagLineOffset OffsetFromLines(const tagPlanePoint& a, const tagPlanePoint& b, double spacing,
                                             const tagPlanePoint& place, double course);
