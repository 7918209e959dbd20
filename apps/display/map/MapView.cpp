#include "display/map/MapView.h"

#include <QtMath>

#include <cmath>

QPointF tagMapView::PointOf(const QPointF& place) const
{
    const double angle = qDegreesToRadians(bearing);
    const QPointF metres = place - centre;
    const double right = metres.x() * std::cos(angle) - metres.y() * std::sin(angle);
    const double up = metres.x() * std::sin(angle) + metres.y() * std::cos(angle);
    return anchor + QPointF(right, -up) / metresPerPixel;
}

QPointF tagMapView::PlaceAt(const QPointF& point) const
{
    const double angle = qDegreesToRadians(bearing);
    const QPointF metres = (point - anchor) * metresPerPixel;
    return centre + QPointF(metres.x() * std::cos(angle) - metres.y() * std::sin(angle),
                            -metres.x() * std::sin(angle) - metres.y() * std::cos(angle));
}

QPolygonF tagMapView::GroundOf(const QRectF& points) const
{
    QPolygonF corners;
    for (const QPointF& point : {points.topLeft(), points.topRight(), points.bottomRight(), points.bottomLeft()})
        corners << PlaceAt(point);
    return corners;
}
