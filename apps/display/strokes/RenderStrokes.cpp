#include "display/strokes/RenderStrokes.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

QByteArray Svg(const char* path, int side, const QColor& color)
{
    const QByteArray units = QByteArray::number(side);
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 " + units + ' ' + units +
           "'><path fill='none' stroke='" + color.name().toLatin1() + "' stroke-opacity='" +
           QByteArray::number(color.alphaF()) +
           "' stroke-width='2' stroke-linecap='round' stroke-linejoin='round' d='" + path + "'/></svg>";
}

} // namespace

QImage RenderStrokes(const char* path, int side, const QColor& color, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(Svg(path, side, color)).render(&painter);
    return image;
}
