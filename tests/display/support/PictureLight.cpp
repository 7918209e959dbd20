#include "PictureLight.h"

#include "colors/ColorContrast.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

/// Linear light of a channel from 0 to 255, as sRGB defines it.
double Linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.red()) + 0.7152 * Linear(color.green()) + 0.0722 * Linear(color.blue());
}

QHash<QRgb, int> Count(const QImage& picture, const QRect& place)
{
    QHash<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return counts;
}

} // namespace

double PictureLight::MeanLuminance(const QImage& picture)
{
    const QHash<QRgb, int> counts = Count(picture, picture.rect());
    double sum = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        sum += Luminance(QColor(count.key())) * count.value();
    return sum / (double(picture.width()) * picture.height());
}

double PictureLight::PartOf(const QImage& picture, const QColor& color)
{
    return Count(picture, picture.rect()).value(color.rgb()) / (double(picture.width()) * picture.height());
}

bool PictureLight::HasWhite(const QImage& picture)
{
    return Count(picture, picture.rect()).contains(QColor(Qt::white).rgb());
}

double PictureLight::Contrast(const QImage& picture, const QRect& place)
{
    const QHash<QRgb, int> counts = Count(picture, place);
    QRgb ground = picture.pixel(place.topLeft());
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > counts.value(ground))
            ground = count.key();
    }
    double greatest = 1;
    for (const QRgb pixel : counts.keys())
        greatest = std::max(greatest, ContrastRatio(QColor(pixel), QColor(ground)));
    return greatest;
}
