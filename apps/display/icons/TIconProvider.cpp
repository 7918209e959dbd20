#include "display/icons/TIconProvider.h"

#include "display/icons/IconTable.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace {

constexpr int DefaultPixels = 24;

QByteArray Svg(const char* path, const QColor& color)
{
    return QByteArrayLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path fill='none' stroke='") +
           color.name().toLatin1() + "' stroke-opacity='" + QByteArray::number(color.alphaF()) +
           "' stroke-width='2' stroke-linecap='round' stroke-linejoin='round' d='" + path + "'/></svg>";
}

} // namespace

QImage RenderIcon(const QString& name, const QColor& color, int pixels)
{
    const auto* const icon = std::find_if(Icons.begin(), Icons.end(),
                                          [&name](const tagIcon& row) { return name == QLatin1String(row.name); });
    if (icon == Icons.end())
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(Svg(icon->path, color)).render(&painter);
    return image;
}

TIconProvider::TIconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage TIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QString name = id.section(QLatin1Char('/'), 0, 0);
    const QColor color(id.section(QLatin1Char('/'), 1));
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : DefaultPixels;
    QImage image = RenderIcon(name, color, pixels);
    if (size != nullptr)
        *size = image.size();
    return image;
}
