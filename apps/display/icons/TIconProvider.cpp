#include "display/icons/TIconProvider.h"

#include "display/icons/IconTable.h"
#include "display/strokes/RenderStrokes.h"

#include <algorithm>

namespace {

const int Side = 24; ///< of the square in which the paths of the table are drawn

} // namespace

QImage RenderIcon(const QString& name, const QColor& color, int pixels)
{
    const auto* const icon = std::find_if(Icons.begin(), Icons.end(),
                                          [&name](const tagIcon& row) { return name == QLatin1String(row.name); });
    return icon == Icons.end() ? QImage() : RenderStrokes(icon->path, Side, color, pixels);
}

TIconProvider::TIconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage TIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QString name = id.section(QLatin1Char('/'), 0, 0);
    const QColor color(id.section(QLatin1Char('/'), 1));
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : Side;
    QImage image = RenderIcon(name, color, pixels);
    if (size != nullptr)
        *size = image.size();
    return image;
}
