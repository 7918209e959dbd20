#include "display/backgrounds/TBackgroundProvider.h"

#include "display/backgrounds/BackgroundTable.h"
#include "display/strokes/RenderStrokes.h"

#include <algorithm>

namespace {

const int Side = 48; ///< of the square in which the paths of the table are drawn

} // namespace

QImage RenderBackground(int number, const QColor& color, int pixels)
{
    const auto* const background = std::find_if(Backgrounds.begin(), Backgrounds.end(),
                                                [number](const tagBackground& row) { return row.number == number; });
    return background == Backgrounds.end() ? QImage() : RenderStrokes(background->path, Side, color, pixels);
}

TBackgroundProvider::TBackgroundProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage TBackgroundProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : Side;
    const int number = id.section(QLatin1Char('/'), 0, 0).toInt();
    QImage image = RenderBackground(number, QColor(id.section(QLatin1Char('/'), 1)), pixels);
    if (image.isNull()) { // not a mistake, about which Qt would complain
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    if (size)
        *size = image.size();
    return image;
}
