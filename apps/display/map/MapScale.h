#pragma once

#include <array>
#include <cmath>

/// The steps of the zoom, from the widest view to the closest: metres of ground in one pixel. Each level has tiles of
/// its own, so that lines have the same width at all of them.
constexpr std::array<double, 14> MetresPerPixel = {8,    5,    3,    2,   1.25, 0.8,  0.5,
                                                   0.35, 0.25, 0.16, 0.1, 0.06, 0.04, 0.025};
constexpr int ZoomLevels = int(MetresPerPixel.size());

/// A quarter of a metre: twelve metres of implement are 48 pixels.
constexpr int FirstZoom = 8;

/// The greatest of 1, 2, 5, 10, 20, 50 … that is not above most; 0 for a most that is not a positive number.
inline double RoundStep(double most)
{
    if (!(most > 0) || !std::isfinite(most))
        return 0;
    const double power = std::pow(10, std::floor(std::log10(most)));
    for (const double step : {10 * power, 5 * power, 2 * power}) // 10: of a most just below a power, by rounding
        if (step <= most)
            return step;
    return power;
}

/// The distance of grid lines, which is also the length of the scale bar, in pixels at most.
constexpr double GridPixelsMost = 120;
