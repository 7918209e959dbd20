#include "display/backgrounds/TBackgroundProvider.h"

#include "display/backgrounds/BackgroundTable.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace {

constexpr int DefaultPixels = 48;

QByteArray Svg(const char* path, const QColor& color)
{
    return QByteArrayLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'><path fill='none' stroke='") +
           color.name().toLatin1() + "' stroke-width='2' stroke-linecap='round' d='" + path + "'/></svg>";
}

} // namespace

QImage RenderBackground(int number, const QColor& color, int pixels)
{
    const auto* const background = std::find_if(Backgrounds.begin(), Backgrounds.end(),
                                                [number](const tagBackground& row) { return row.number == number; });
    if (background == Backgrounds.end())
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(Svg(background->path, color)).render(&painter);
    return image;
}

TBackgroundProvider::TBackgroundProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage TBackgroundProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : DefaultPixels;
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
