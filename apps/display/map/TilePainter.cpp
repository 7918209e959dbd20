#include "display/map/TilePainter.h"

#include "display/map/CoverageRaster.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// How the outline of each kind of area is drawn. In the order of EMapArea.
struct tagOutline
{
    EMapArea kind;
    QColor tagMapColors::*color;
    double width;
    bool isDashed;
    bool isHatched;
};
constexpr std::array<tagOutline, 4> Outlines = {{
    {MAP_AREA_EXTERNAL_BOUNDARY, &tagMapColors::externalBoundary, 4, false, false},
    {MAP_AREA_INTERNAL_BOUNDARY, &tagMapColors::internalBoundary, 4, false, false},
    {MAP_AREA_INACTIVE_BOUNDARY, &tagMapColors::inactiveBoundary, 3, true, false},
    {MAP_AREA_EXCLUSION_ZONE, &tagMapColors::exclusionZone, 3, false, true},
}};

constexpr double HatchPixels = 20; // from line to line, along the x axis
constexpr double HatchWidth = 2;
constexpr double ZoneTint = 0.25;

constexpr double ActiveLineWidth = 5;
constexpr double NeighbourWidth = 1.5;
constexpr double NeighbourStrength = 0.5;

/// The lines next to the active one are shown from this spacing on, in pixels; nearer ones would hide it.
constexpr double NextPixelsLeast = 18;
constexpr int NextLines = 2; // on each side
/// All lines are shown from this spacing on; nearer ones, all together, look like a hatch over the field.
constexpr double AllPixelsLeast = 70;

constexpr double MarkRadius = 7;

/// Pixels beyond the tile that a wide line can still reach.
constexpr double Reach = 8;

void PaintGrid(QPainter& painter, const tagTilePlace& place, const QColor& color, double metres, int size)
{
    const double step = metres / place.metresPerPixel;
    if (!(step >= 4))
        return;
    const auto each = [&](double corner, auto&& fill) {
        for (double line = std::ceil((corner - place.detail) / step); line * step < corner + size; ++line)
            fill(int(std::floor(line * step - corner)));
    };
    const int width = std::max(1, qRound(place.detail));
    each(place.corner.x(), [&](int x) { painter.fillRect(x, 0, width, size, color); });
    each(place.corner.y(), [&](int y) { painter.fillRect(0, y, size, width, color); });
}

uint Blend(uint ground, uint color, uint part)
{
    const auto channel = [=](int shift) {
        const uint from = (ground >> shift) & 255U;
        const uint to = (color >> shift) & 255U;
        return ((from * (255U - part) + to * part + 127U) / 255U) << shift;
    };
    return 0xff000000U | channel(16) | channel(8) | channel(0);
}

/// Sums of quadrangles that meet in a pixel are rounded for each.
constexpr uchar NearlyAll = 250;

void PaintPlane(QImage& tile, const TCoverageRaster& plane, QRgb color)
{
    for (int y = 0; y < tile.height(); ++y) {
        const uchar* parts = plane.Row(y);
        if (parts == nullptr)
            return;
        auto* pixels = reinterpret_cast<QRgb*>(tile.scanLine(y));
        for (int x = 0; x < tile.width(); ++x) {
            if (parts[x] >= NearlyAll)
                pixels[x] = color;
            else if (parts[x] > 0)
                pixels[x] = Blend(pixels[x], color, parts[x]);
        }
    }
}

/// The parts of a closed outline that come near the tile, so that a long boundary costs a tile what the tile shows.
struct tagStretch
{
    QPolygonF points;
    double before; ///< length of the outline up to here, for dashes that go on across tiles
};

std::vector<tagStretch> NearStretches(const QPolygonF& outline, const tagTilePlace& place, const QRectF& tile)
{
    std::vector<tagStretch> stretches;
    double length = 0;
    bool isOpen = false;
    QPointF from = place.Pixel(outline.constFirst());
    for (int index = 1; index <= outline.size(); ++index) {
        const QPointF to = place.Pixel(outline[index % outline.size()]);
        const bool isNear = std::max(from.x(), to.x()) >= tile.left() && std::min(from.x(), to.x()) <= tile.right() &&
                            std::max(from.y(), to.y()) >= tile.top() && std::min(from.y(), to.y()) <= tile.bottom();
        if (isNear && !isOpen)
            stretches.push_back({QPolygonF() << from, length});
        if (isNear)
            stretches.back().points << to;
        isOpen = isNear;
        length += std::hypot(to.x() - from.x(), to.y() - from.y());
        from = to;
    }
    return stretches;
}

void PaintHatch(QPainter& painter, const QPolygonF& outline, const tagTilePlace& place, const QColor& color, int size)
{
    QPolygonF pixels;
    for (const QPointF& point : outline)
        pixels << place.Pixel(point);
    if (!pixels.boundingRect().adjusted(-Reach, -Reach, Reach, Reach).intersects(QRectF(0, 0, size, size)))
        return;
    QPainterPath path;
    path.addPolygon(pixels);
    path.closeSubpath();
    painter.save();
    painter.setClipPath(path);
    QColor tint = color;
    tint.setAlphaF(ZoneTint);
    painter.fillRect(0, 0, size, size, tint);
    painter.setPen(QPen(color, HatchWidth * place.detail));
    // Lines x + y = n · step, counted from the model's origin.
    const double step = HatchPixels * place.detail;
    const double corner = place.corner.x() + place.corner.y();
    for (double line = std::floor(corner / step); line * step < corner + 2 * size + step; ++line) {
        const double sum = line * step - corner;
        painter.drawLine(QPointF(sum + Reach, -Reach), QPointF(sum - size - Reach, size + Reach));
    }
    painter.restore();
}

void PaintAreas(QPainter& painter, const tagTilePlace& place, const tagMapColors& colors,
                const QVector<tagMapArea>& areas, int size)
{
    const double reach = Reach * place.detail;
    const QRectF tile = QRectF(0, 0, size, size).adjusted(-reach, -reach, reach, reach);
    for (const tagMapArea& area : areas) {
        if (area.outline.size() < 2)
            continue;
        const tagOutline& look = Outlines[std::size_t(area.kind)];
        const QColor color = colors.*look.color;
        if (look.isHatched)
            PaintHatch(painter, area.outline, place, color, size);
        QPen pen(color, look.width * place.detail, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        for (const tagStretch& stretch : NearStretches(area.outline, place, tile)) {
            if (look.isDashed) {
                pen.setDashPattern({4, 3});
                pen.setDashOffset(stretch.before / pen.widthF());
            } else {
                pen.setCapStyle(Qt::RoundCap); // joins the last point to the first
            }
            painter.setPen(pen);
            painter.drawPolyline(stretch.points);
        }
    }
}

void PaintGuidance(QPainter& painter, const tagTilePlace& place, const QColor& color, const tagMapGuidance& guidance,
                   int size)
{
    const QPointF a = place.Pixel(guidance.a);
    const double length = std::hypot(guidance.b.x() - guidance.a.x(), guidance.b.y() - guidance.a.y());
    if (!guidance.isLine || !(length > 0)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(a, MarkRadius * place.detail, MarkRadius * place.detail);
        return;
    }

    // Pixels: y grows to the south.
    const QPointF along = QPointF(guidance.b.x() - guidance.a.x(), guidance.a.y() - guidance.b.y()) / length;
    const QPointF right(-along.y(), along.x());
    const double spacing = guidance.spacing / place.metresPerPixel;
    const QPointF middle(size / 2.0, size / 2.0);
    const double half = size * M_SQRT1_2 + Reach * place.detail;
    const double across = QPointF::dotProduct(middle - a, right);
    const auto draw = [&](double line) {
        const double aside = line == 0 ? 0 : line * spacing; // also where the spacing is not a number
        if (!(std::abs(aside - across) <= half))
            return;
        const QPointF foot = middle + right * (aside - across);
        painter.drawLine(foot - along * half * 2, foot + along * half * 2);
    };
    if (spacing >= NextPixelsLeast * place.detail) {
        QColor pale = color;
        pale.setAlphaF(NeighbourStrength);
        painter.setPen(QPen(pale, NeighbourWidth * place.detail, Qt::SolidLine, Qt::FlatCap));
        double first = std::ceil((across - half) / spacing);
        double last = std::floor((across + half) / spacing);
        if (spacing < AllPixelsLeast * place.detail) {
            first = std::max(first, double(guidance.activeLine) - NextLines);
            last = std::min(last, double(guidance.activeLine) + NextLines);
        }
        const int count = last >= first ? static_cast<int>(last - first) + 1 : 0;
        for (int i = 0; i < count; ++i)
            if (first + i != guidance.activeLine)
                draw(first + i);
    }
    painter.setPen(QPen(color, ActiveLineWidth * place.detail, Qt::SolidLine, Qt::FlatCap));
    draw(guidance.activeLine);
}

} // namespace

void PaintTile(QImage& tile, const tagTilePlace& place, const tagMapColors& colors, double gridMetres,
               const TCoverageRaster& covered, const TCoverageRaster& edges, const TMapModel& model)
{
    tile.fill(colors.ground);
    {
        QPainter painter(&tile);
        PaintGrid(painter, place, colors.grid, gridMetres, tile.width());
    }
    PaintPlane(tile, covered, colors.coverage.rgb());
    PaintPlane(tile, edges, colors.coverageEdge.rgb());

    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintAreas(painter, place, colors, model.Areas(), tile.width());
    if (model.Guidance() != nullptr)
        PaintGuidance(painter, place, colors.track, *model.Guidance(), tile.width());
}
