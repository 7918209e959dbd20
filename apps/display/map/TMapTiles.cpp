#include "display/map/TMapTiles.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// The implement's way in one piece, in pixels: what a piece of a curve leaves out is far less.
constexpr double PiecePixels = 1.5;

/// The darker edge of a pass, and the narrowest pass that has one, in pixels.
constexpr double EdgePixels = 1.8;
constexpr double EdgedPassLeast = 8;

/// Tiles from the one with the pixel `from` to the one with the pixel `to`.
std::pair<int, int> Steps(double from, double to)
{
    const auto step = [](double pixel) { return int(std::floor(pixel / TMapTiles::StepPixels)); };
    return {step(from), step(to)};
}

/// False where one side of the convex polygon has the whole tile beyond it.
bool MayMeet(const QPolygonF& convex, const QRectF& tile)
{
    const QPointF inside = std::accumulate(convex.begin(), convex.end(), QPointF()) / double(convex.size());
    const std::array<QPointF, 4> corners = {tile.topLeft(), tile.topRight(), tile.bottomRight(), tile.bottomLeft()};
    for (int side = 0; side < convex.size(); ++side) {
        const QPointF from = convex[side];
        const QPointF along = convex[(side + 1) % convex.size()] - from;
        const QPointF across(-along.y(), along.x());
        const double inward = QPointF::dotProduct(inside - from, across);
        if (std::all_of(corners.begin(), corners.end(),
                        [&](const QPointF& corner) { return QPointF::dotProduct(corner - from, across) * inward < 0; }))
            return false;
    }
    return true;
}

} // namespace

void TMapTiles::SetModel(const TMapModel* model)
{
    m_Model = model;
    ResetStrips();
}

void TMapTiles::SetScale(double metresPerPixel, double detail)
{
    if (metresPerPixel == m_MetresPerPixel && detail == m_Detail)
        return;
    m_MetresPerPixel = metresPerPixel;
    m_Detail = detail;
    m_Tiles.clear();
}

void TMapTiles::SetColors(const tagMapColors& colors)
{
    m_Colors = colors;
    Repaint();
}

void TMapTiles::SetGrid(double metres)
{
    if (metres == m_GridMetres)
        return;
    m_GridMetres = metres;
    Repaint();
}

void TMapTiles::Repaint()
{
    for (auto& tile : m_Tiles)
        tile.second->isStale = true;
}

void TMapTiles::ResetStrips()
{
    m_Tiles.clear();
    m_Index.Reset(m_Model == nullptr ? QVector<tagMapStrip>() : m_Model->Strips());
}

bool TMapTiles::AddStrip()
{
    m_Index.Append(m_Model->Strips());
    bool isShown = false;
    m_Index.ForEachEnded(m_Model->Strips(), PieceStep(), [&](const tagMapStrip& piece) {
        for (auto& [place, tile] : m_Tiles) {
            if (!Cover(*tile, PlaceOf(place), piece))
                continue;
            tile->isStale = true;
            isShown = true;
        }
    });
    return isShown;
}

std::vector<TMapTiles::Place> TMapTiles::Show(const QPolygonF& ground)
{
    ++m_Shown;
    QPolygonF pixels;
    for (const QPointF& place : ground)
        pixels << QPointF(place.x(), -place.y()) / m_MetresPerPixel;
    const QRectF bounds = pixels.boundingRect();
    const auto [west, east] = Steps(bounds.left(), bounds.right());
    const auto [north, south] = Steps(bounds.top(), bounds.bottom());
    std::vector<Place> places;
    for (int y = north; y <= south; ++y)
        for (int x = west; x <= east; ++x)
            if (MayMeet(pixels, QRectF(Corner({x, y}), QSizeF(TilePixels, TilePixels))))
                places.emplace_back(x, y);

    for (const Place& place : places) {
        std::unique_ptr<tagTile>& tile = m_Tiles[place];
        if (!tile) {
            tile = std::make_unique<tagTile>();
            Cover(*tile, place);
        }
        tile->lastSeen = m_Shown;
        if (!tile->isStale)
            continue;
        static const TMapModel empty;
        tile->picture = QImage(TilePixels, TilePixels, QImage::Format_RGB32);
        PaintTile(tile->picture, PlaceOf(place), m_Colors, m_GridMetres, tile->covered, tile->edges,
                  m_Model == nullptr ? empty : *m_Model);
        tile->isStale = false;
        tile->version = ++m_Painted;
    }
    ForgetOldest(places.size() + Spare);
    return places;
}

QPointF TMapTiles::Corner(const Place& place)
{
    return {place.first * double(StepPixels) - 1, place.second * double(StepPixels) - 1};
}

std::size_t TMapTiles::Bytes() const
{
    std::size_t bytes = 0;
    for (const auto& tile : m_Tiles)
        bytes += tile.second->Bytes();
    return bytes;
}

void TMapTiles::Cover(tagTile& tile, const Place& place)
{
    if (m_Model == nullptr)
        return;
    const double step = PieceStep();
    const tagTilePlace tilePlace = PlaceOf(place);
    const double metres = TilePixels * m_MetresPerPixel;
    const QPointF northWest = tilePlace.corner * m_MetresPerPixel;
    // A piece is straight where its strips bend, so it can reach beyond them.
    const QRectF ground =
        QRectF(northWest.x(), -northWest.y() - metres, metres, metres).adjusted(-step, -step, step, step);
    const QVector<tagMapStrip>& strips = m_Model->Strips();
    for (const TStripIndex::tagRun& run : m_Index.Within(ground))
        m_Index.ForEachPiece(strips, run, step, [&](const tagMapStrip& piece) { Cover(tile, tilePlace, piece); });
}

bool TMapTiles::Cover(tagTile& tile, const tagTilePlace& place, const tagMapStrip& piece) const
{
    std::array<QPointF, 4> corners;
    for (std::size_t corner = 0; corner < corners.size(); ++corner)
        corners[corner] = place.Pixel(QPointF(double(piece.corners[corner].east), double(piece.corners[corner].north)));
    if (!tile.covered.Add(corners))
        return false;

    const auto& [left, right, rightAfter, leftAfter] = corners;
    const double width = std::hypot(right.x() - left.x(), right.y() - left.y());
    const double widthAfter = std::hypot(rightAfter.x() - leftAfter.x(), rightAfter.y() - leftAfter.y());
    if (std::min(width, widthAfter) < EdgedPassLeast * m_Detail)
        return true;
    const QPointF inner = (right - left) * (EdgePixels * m_Detail / width);
    const QPointF innerAfter = (rightAfter - leftAfter) * (EdgePixels * m_Detail / widthAfter);
    tile.edges.Add({left, left + inner, leftAfter + innerAfter, leftAfter});
    tile.edges.Add({right - inner, right, rightAfter, rightAfter - innerAfter});
    return true;
}

double TMapTiles::PieceStep() const { return PiecePixels * m_Detail * m_MetresPerPixel; }

void TMapTiles::ForgetOldest(std::size_t most)
{
    if (m_Tiles.size() <= most)
        return;
    std::vector<std::pair<quint64, Place>> byAge;
    for (const auto& tile : m_Tiles)
        byAge.emplace_back(tile.second->lastSeen, tile.first);
    std::sort(byAge.begin(), byAge.end());
    for (std::size_t index = 0; index < byAge.size() - most; ++index)
        m_Tiles.erase(byAge[index].second);
}
