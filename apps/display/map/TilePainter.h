#pragma once

#include "display/map/MapStyle.h"
#include "display/map/TMapModel.h"

#include <QImage>

class TCoverageRaster;

/// What a tile shows: north is up, and one pixel is the same length of ground everywhere.
struct tagTilePlace
{
    QPointF corner;        ///< upper left corner, in pixels from the model's origin; y grows to the south
    double metresPerPixel; ///< of the tile
    double detail;         ///< the width of a line of one pixel of the item, in pixels of the tile

    QPointF Pixel(const QPointF& place) const { return QPointF(place.x(), -place.y()) / metresPerPixel - corner; }
};

/// Paints all of the ground that does not move on a tile: ground, grid, coverage, exclusion zones, boundaries and
/// guidance lines, the later ones on top. What neighbouring tiles share fits together.
void PaintTile(QImage& tile, const tagTilePlace& place, const tagMapColors& colors, double gridMetres,
               const TCoverageRaster& covered, const TCoverageRaster& edges, const TMapModel& model);
