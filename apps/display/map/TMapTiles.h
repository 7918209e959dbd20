#pragma once

#include "display/map/CoverageRaster.h"
#include "display/map/TStripIndex.h"
#include "display/map/TilePainter.h"

#include <QImage>

#include <cstddef>
#include <map>
#include <memory>
#include <utility>

/// The tiles of the map at one resolution. A tile is painted when it is first seen, again when what it shows has
/// changed, and forgotten when the memory is full and others were seen later.
class TMapTiles
{
public:
    /// Pixels of a tile, and of its part that no neighbour shows: with a seam of one pixel on every side, tiles that
    /// are turned fit together without a gap.
    static constexpr int TilePixels = 256;
    static constexpr int StepPixels = TilePixels - 2;

    /// A tile lies this many steps to the east and to the south of the model's origin.
    using Place = std::pair<int, int>;

    struct tagTile
    {
        QImage picture;
        TCoverageRaster covered{TilePixels};
        TCoverageRaster edges{TilePixels};
        quint64 version = 0;  ///< another one each time it is painted, also of a tile that was forgotten
        bool isStale = true;  ///< to be painted before it is shown
        quint64 lastSeen = 0; ///< the number of the call of Show

        std::size_t Bytes() const { return std::size_t(picture.sizeInBytes()) + covered.Bytes() + edges.Bytes(); }
    };

    /// The model may be null. Forgets the tiles.
    void SetModel(const TMapModel* model);

    /// detail: pixels of a tile for one pixel of the item. Forgets the tiles if it changes anything.
    void SetScale(double metresPerPixel, double detail);
    double PixelMetres() const { return m_MetresPerPixel; }

    /// All are painted again when they are seen next.
    void SetColors(const tagMapColors& colors);
    void SetGrid(double metres);
    void Repaint();

    void ResetStrips();
    /// The model's last strip was added. False: no tile shows it.
    bool AddStrip();

    /// The tiles that show the ground, a convex polygon, painted. Memory is bounded by these and Spare more.
    std::vector<Place> Show(const QPolygonF& ground);
    const tagTile& Tile(const Place& place) const { return *m_Tiles.at(place); }
    static constexpr std::size_t Spare = 24;

    /// The upper left corner of a tile, in pixels from the model's origin; y grows to the south.
    static QPointF Corner(const Place& place);

    std::size_t Count() const { return m_Tiles.size(); }
    std::size_t Bytes() const;

private:
    void Cover(tagTile& tile, const Place& place);
    bool Cover(tagTile& tile, const tagTilePlace& place, const tagMapStrip& piece) const;
    tagTilePlace PlaceOf(const Place& place) const { return {Corner(place), m_MetresPerPixel, m_Detail}; }
    double PieceStep() const;
    void ForgetOldest(std::size_t most);

    const TMapModel* m_Model = nullptr;
    TStripIndex m_Index;
    tagMapColors m_Colors;
    double m_MetresPerPixel = 1;
    double m_Detail = 1;
    double m_GridMetres = 0;
    std::map<Place, std::unique_ptr<tagTile>> m_Tiles;
    quint64 m_Shown = 0;
    quint64 m_Painted = 0;
};
