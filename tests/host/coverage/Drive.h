#pragma once

#include "coverage/CoverageStrip.h"

#include <cmath>
#include <vector>

/// A straight pass: strips of @p step metres, @p width wide, from @p start in the direction @p heading (degrees).
inline std::vector<tagCoverageStrip> Pass(const tagPlanePoint& start, double heading, double width, double step,
                                          int count)
{
    const double radians = heading * std::acos(-1.0) / 180;
    const double east = std::sin(radians);
    const double north = std::cos(radians);
    const auto edge = [&](int i, double side) {
        return tagPlanePoint{start.east + i * step * east + side * width / 2 * north,
                             start.north + i * step * north - side * width / 2 * east};
    };
    std::vector<tagCoverageStrip> strips;
    for (int i = 0; i < count; ++i)
        strips.push_back({{edge(i, -1), edge(i, 1), edge(i + 1, 1), edge(i + 1, -1)}});
    return strips;
}

/// Whether no corner differs by more than half a millimetre.
inline bool IsSame(const tagCoverageStrip& one, const tagCoverageStrip& other)
{
    for (std::size_t i = 0; i < one.corners.size(); ++i) {
        if (std::abs(one.corners[i].east - other.corners[i].east) > 0.000501 ||
            std::abs(one.corners[i].north - other.corners[i].north) > 0.000501)
            return false;
    }
    return true;
}
