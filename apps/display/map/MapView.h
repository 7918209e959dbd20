#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

/// Which ground is seen where: places in metres to the east and north of the model's origin, points in pixels of the
/// item, x to the right and y down.
struct tagMapView
{
    QPointF centre;     ///< the place that is seen at the anchor
    QPointF anchor;     ///< point of the item
    double bearing = 0; ///< what is up: degrees from true north, clockwise
    double metresPerPixel = 1;

    QPointF PointOf(const QPointF& place) const;
    QPointF PlaceAt(const QPointF& point) const;

    /// The corners of the ground that is seen in the rectangle.
    QPolygonF GroundOf(const QRectF& points) const;
};
