#include "guidance/LineOffset.h"

#include <algorithm>
#include <cmath>
#include <limits>

tagLineOffset OffsetFromLines(const tagPlanePoint& a, const tagPlanePoint& b, double spacing,
                              const tagPlanePoint& place, double course)
{
    const double radians = course * std::acos(-1.0) / 180;
    const double length = std::hypot(b.east - a.east, b.north - a.north);
    const double east = (b.east - a.east) / length;
    const double north = (b.north - a.north) / length;

    const double right = (place.east - a.east) * north - (place.north - a.north) * east;
    const double line = std::clamp(std::round(right / spacing), static_cast<double>(std::numeric_limits<int>::min()),
                                   static_cast<double>(std::numeric_limits<int>::max()));
    const double distance = right - line * spacing;
    const bool isBack = std::sin(radians) * east + std::cos(radians) * north < 0; // false for NaN
    return {isBack ? -distance : distance, static_cast<int>(line), !isBack};
}
