#pragma once

#include "display/map/MapKeys.h"
#include "display/map/MapPictures.h"
#include "display/map/MapScale.h"
#include "display/map/MapView.h"
#include "display/map/TMapTiles.h"

#include <QPointer>
#include <QQuickItem>

#include <cstddef>

/// The map: it draws a TMapModel from image nodes, which every renderer of Qt Quick has. Ground, grid, coverage, areas
/// and guidance lines are tiles that are painted once and turned with the map; the vehicle, flags and cross hairs stand
/// on them. It is a stop of Tab; while it has the focus, the keys of MapKeys act on it.
///
///     MapView { model: Work.map; headingUp: true; mapColor: Scheme.map; coverageColor: Scheme.coverage }
class TMapItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QObject* model READ Model WRITE SetModel NOTIFY modelChanged)
    Q_PROPERTY(int zoom READ Zoom WRITE SetZoom NOTIFY zoomChanged)
    Q_PROPERTY(int zoomLevels READ Levels CONSTANT)
    Q_PROPERTY(double metresPerPixel READ PixelMetres NOTIFY zoomChanged)
    Q_PROPERTY(bool headingUp READ IsHeadingUp WRITE SetHeadingUp NOTIFY headingUpChanged)
    Q_PROPERTY(bool follow READ IsFollowing WRITE SetFollow NOTIFY followChanged)
    Q_PROPERTY(double bearing READ Bearing NOTIFY bearingChanged)
    Q_PROPERTY(QRectF free READ Free WRITE SetFree NOTIFY freeChanged)
    Q_PROPERTY(double lengthUnit READ LengthUnit WRITE SetLengthUnit NOTIFY scaleChanged)
    Q_PROPERTY(double scaleMetres READ ScaleMetres NOTIFY scaleChanged)
    Q_PROPERTY(double scaleLength READ ScaleLength NOTIFY scaleChanged)
    Q_PROPERTY(QColor mapColor READ MapColor WRITE SetMapColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor gridColor READ GridColor WRITE SetGridColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor coverageColor READ CoverageColor WRITE SetCoverageColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor coverageEdgeColor READ CoverageEdgeColor WRITE SetCoverageEdgeColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor trackColor READ TrackColor WRITE SetTrackColor NOTIFY colorsChanged)
    Q_PROPERTY(
        QColor externalBoundaryColor READ ExternalBoundaryColor WRITE SetExternalBoundaryColor NOTIFY colorsChanged)
    Q_PROPERTY(
        QColor internalBoundaryColor READ InternalBoundaryColor WRITE SetInternalBoundaryColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor inactiveBoundariesColor READ InactiveBoundariesColor WRITE SetInactiveBoundariesColor NOTIFY
                   colorsChanged)
    Q_PROPERTY(QColor exclusionZoneColor READ ExclusionZoneColor WRITE SetExclusionZoneColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor vehicleColor READ VehicleColor WRITE SetVehicleColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor crossHairsColor READ CrossHairsColor WRITE SetCrossHairsColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor flagColor READ FlagColor WRITE SetFlagColor NOTIFY colorsChanged)

public:
    explicit TMapItem(QQuickItem* parent = nullptr);

    /// A TMapModel, or null for an empty ground. Not owned.
    QObject* Model() const { return m_Model; }
    void SetModel(QObject* model);

    /// 0 for the widest view to zoomLevels - 1 for the closest; others are brought into this range.
    int Zoom() const { return m_Zoom; }
    void SetZoom(int zoom);
    static int Levels() { return ZoomLevels; }
    double PixelMetres() const { return MetresPerPixel[std::size_t(m_Zoom)]; }

    /// The vehicle's heading is up; false: north.
    bool IsHeadingUp() const { return m_IsHeadingUp; }
    void SetHeadingUp(bool isHeadingUp);

    /// The vehicle stays at its point of the map. False after a pan: the ground stays, and does not turn.
    bool IsFollowing() const { return m_IsFollowing; }
    void SetFollow(bool isFollowing);

    /// What is up: degrees from true north, clockwise.
    double Bearing() const { return m_View.bearing; }

    /// The part of the item that nothing stands on, in its pixels: the cross hairs are in the middle of it. Empty: all.
    QRectF Free() const { return m_Free; }
    void SetFree(const QRectF& free);

    /// Metres of one unit of length that the operator reads, for the steps of the grid and the scale bar: 1 for metres,
    /// 0.3048 for feet.
    double LengthUnit() const { return m_LengthUnit; }
    void SetLengthUnit(double metres);

    /// The length of the scale bar, which is 1, 2 or 5 times a power of ten of the unit, in metres and in pixels.
    double ScaleMetres() const { return RoundStep(GridPixelsMost * PixelMetres() / m_LengthUnit) * m_LengthUnit; }
    double ScaleLength() const { return ScaleMetres() / PixelMetres(); }

    Q_INVOKABLE void zoomIn() { SetZoom(m_Zoom + 1); }
    Q_INVOKABLE void zoomOut() { SetZoom(m_Zoom - 1); }

    /// Moves the ground by pixels, and stops following.
    Q_INVOKABLE void pan(double dx, double dy);

    /// Follows the vehicle again.
    Q_INVOKABLE void recentre() { SetFollow(true); }

    /// Metres to the east and north of the model's origin, and the point of the item where they are seen.
    Q_INVOKABLE QPointF pointOf(const QPointF& place) const { return m_View.PointOf(place); }
    Q_INVOKABLE QPointF placeAt(const QPointF& point) const { return m_View.PlaceAt(point); }

    /// The memory of the tiles: of those that are seen and a bounded number of others.
    std::size_t TileBytes() const { return m_Tiles.Bytes(); }

    QColor MapColor() const { return m_Colors.ground; }
    void SetMapColor(const QColor& color) { SetColor(&tagMapColors::ground, color); }
    QColor GridColor() const { return m_Colors.grid; }
    void SetGridColor(const QColor& color) { SetColor(&tagMapColors::grid, color); }
    QColor CoverageColor() const { return m_Colors.coverage; }
    void SetCoverageColor(const QColor& color) { SetColor(&tagMapColors::coverage, color); }
    QColor CoverageEdgeColor() const { return m_Colors.coverageEdge; }
    void SetCoverageEdgeColor(const QColor& color) { SetColor(&tagMapColors::coverageEdge, color); }
    QColor TrackColor() const { return m_Colors.track; }
    void SetTrackColor(const QColor& color) { SetColor(&tagMapColors::track, color); }
    QColor ExternalBoundaryColor() const { return m_Colors.externalBoundary; }
    void SetExternalBoundaryColor(const QColor& color) { SetColor(&tagMapColors::externalBoundary, color); }
    QColor InternalBoundaryColor() const { return m_Colors.internalBoundary; }
    void SetInternalBoundaryColor(const QColor& color) { SetColor(&tagMapColors::internalBoundary, color); }
    QColor InactiveBoundariesColor() const { return m_Colors.inactiveBoundary; }
    void SetInactiveBoundariesColor(const QColor& color) { SetColor(&tagMapColors::inactiveBoundary, color); }
    QColor ExclusionZoneColor() const { return m_Colors.exclusionZone; }
    void SetExclusionZoneColor(const QColor& color) { SetColor(&tagMapColors::exclusionZone, color); }
    QColor VehicleColor() const { return m_Colors.vehicle; }
    void SetVehicleColor(const QColor& color) { SetColor(&tagMapColors::vehicle, color); }
    QColor CrossHairsColor() const { return m_Colors.crossHairs; }
    void SetCrossHairsColor(const QColor& color) { SetColor(&tagMapColors::crossHairs, color); }
    QColor FlagColor() const { return m_Colors.flag; }
    void SetFlagColor(const QColor& color) { SetColor(&tagMapColors::flag, color); }

    const TMapTiles& Tiles() const { return m_Tiles; }

signals:
    void modelChanged();
    void zoomChanged();
    void headingUpChanged();
    void followChanged();
    void bearingChanged();
    void freeChanged();
    void scaleChanged();
    void colorsChanged();
    void turnWanted(); ///< a key asks for the heading up where north is, or for north where the heading is

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    void geometryChange(const QRectF& after, const QRectF& before) override;
#else
    void geometryChanged(const QRectF& after, const QRectF& before) override;
#endif

private:
    void Do(EMapAction action);
    void SetColor(QColor tagMapColors::*color, const QColor& value);
    void Redraw();
    void RedrawTiles();
    void OnStripAdded();
    const tagMapVehicle* Vehicle() const; ///< null also while its place or heading is not a number
    void Look();                          ///< centre, anchor and bearing of the view, while it follows
    void Turn();
    QPointF WholeField() const;
    QRectF FreeOrAll() const { return m_Free.isEmpty() ? QRectF(0, 0, width(), height()) : m_Free; }
    QPointF CrossHairs() const { return FreeOrAll().center(); }
    double Detail() const;

    QPointer<TMapModel> m_Model;
    TMapTiles m_Tiles;
    tagMapColors m_Colors;
    tagMapView m_View;
    QRectF m_Free;
    double m_LengthUnit = 1;
    int m_Zoom = FirstZoom;
    bool m_IsHeadingUp = true;
    bool m_IsFollowing = true;

    // What the node has to show, made while the item is polished.
    std::vector<TMapTiles::Place> m_Seen;
    tagMapPictures m_Pictures;
    tagMapVehicle m_Drawn = {};
    double m_PicturesMetres = 0;
    double m_PicturesDetail = 0;
    bool m_ArePicturesStale = true;
    bool m_IsVehicleStale = true;
};
