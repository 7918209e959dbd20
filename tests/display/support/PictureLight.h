#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

/// What the eye gets from a picture of the display.
namespace PictureLight {

constexpr double LeastContrast = 4.5;         ///< of a text on its ground
constexpr double MostLuminanceAtNight = 0.08; ///< the mean of a page

/// The mean luminance of its pixels, 0 (black) to 1 (white), of linear light as sRGB defines it.
double MeanLuminance(const QImage& picture);

/// The part of its pixels that have just this colour, 0 to 1.
double PartOf(const QImage& picture, const QColor& color);

/// Whether a pixel is pure white.
bool HasWhite(const QImage& picture);

/// The greatest contrast of a pixel of the place, which is in the middle of a stroke, against the colour that most
/// pixels have. The place lies within the picture.
double Contrast(const QImage& picture, const QRect& place);

} // namespace PictureLight
