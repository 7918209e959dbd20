#include "display/map/TMapItem.h"

#include "display/map/TMapNode.h"

#include <QKeyEvent>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace {

/// Heading up, most of what is seen lies ahead of the vehicle.
constexpr double VehicleDown = 0.68;

/// Metres from the origin; a pan ends there.
constexpr double Farthest = 1e6;

bool IsUsable(const tagMapVehicle& vehicle)
{
    return std::abs(vehicle.place.x()) <= Farthest && std::abs(vehicle.place.y()) <= Farthest &&
           std::isfinite(vehicle.heading);
}

bool IsSameImplement(const tagMapVehicle& a, const tagMapVehicle& b)
{
    return a.implementWidth == b.implementWidth && a.implementBehind == b.implementBehind && a.isWorking == b.isWorking;
}

} // namespace

TMapItem::TMapItem(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setClip(true); // tiles reach beyond the item
    setActiveFocusOnTab(true);
    m_View.metresPerPixel = PixelMetres();
    m_Tiles.SetColors(m_Colors);
}

void TMapItem::SetModel(QObject* model)
{
    auto* map = qobject_cast<TMapModel*>(model);
    if (map == m_Model)
        return;
    if (m_Model != nullptr)
        disconnect(m_Model, nullptr, this, nullptr);
    m_Model = map;
    m_Tiles.SetModel(map);
    if (map != nullptr) {
        connect(map, &TMapModel::AreasChanged, this, &TMapItem::RedrawTiles);
        connect(map, &TMapModel::GuidanceChanged, this, &TMapItem::RedrawTiles);
        connect(map, &TMapModel::FlagsChanged, this, &TMapItem::Redraw);
        connect(map, &TMapModel::VehicleChanged, this, &TMapItem::Redraw);
        connect(map, &TMapModel::StripAdded, this, &TMapItem::OnStripAdded);
        connect(map, &TMapModel::StripsReset, this, [this] {
            m_Tiles.ResetStrips();
            Redraw();
        });
        connect(map, &QObject::destroyed, this, [this] {
            m_Tiles.SetModel(nullptr);
            Redraw();
            emit modelChanged();
        });
    }
    Redraw();
    emit modelChanged();
}

void TMapItem::SetZoom(int zoom)
{
    zoom = std::clamp(zoom, 0, ZoomLevels - 1);
    if (zoom == m_Zoom)
        return;
    m_Zoom = zoom;
    m_View.metresPerPixel = PixelMetres();
    Redraw();
    emit zoomChanged();
    emit scaleChanged();
}

void TMapItem::SetHeadingUp(bool isHeadingUp)
{
    if (isHeadingUp == m_IsHeadingUp)
        return;
    m_IsHeadingUp = isHeadingUp;
    Turn();
    Redraw();
    emit headingUpChanged();
}

void TMapItem::SetFollow(bool isFollowing)
{
    if (isFollowing == m_IsFollowing)
        return;
    const QPointF seen = m_View.PlaceAt(CrossHairs());
    m_IsFollowing = isFollowing;
    if (!isFollowing)
        m_View.centre = seen;
    Redraw();
    emit followChanged();
}

void TMapItem::SetFree(const QRectF& free)
{
    if (free == m_Free)
        return;
    m_Free = free;
    Redraw();
    emit freeChanged();
}

void TMapItem::SetLengthUnit(double metres)
{
    if (metres == m_LengthUnit || !(metres > 0) || !std::isfinite(metres))
        return;
    m_LengthUnit = metres;
    Redraw();
    emit scaleChanged();
}

void TMapItem::pan(double dx, double dy)
{
    if (!std::isfinite(dx) || !std::isfinite(dy))
        return;
    SetFollow(false);
    const QPointF place = m_View.PlaceAt(m_View.anchor - QPointF(dx, dy));
    m_View.centre = {std::clamp(place.x(), -Farthest, Farthest), std::clamp(place.y(), -Farthest, Farthest)};
    Redraw();
}

void TMapItem::keyPressEvent(QKeyEvent* event)
{
    const auto* const row = std::find_if(MapKeys.begin(), MapKeys.end(),
                                         [event](const tagMapKey& known) { return known.key == event->key(); });
    const bool isOther = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier;
    event->setAccepted(row != MapKeys.end() && !isOther);
    if (event->isAccepted())
        Do(row->action);
}

void TMapItem::Do(EMapAction action)
{
    const double look = LookPart * std::min(FreeOrAll().width(), FreeOrAll().height());
    switch (action) {
    case MAP_LOOK_LEFT:
        return pan(look, 0);
    case MAP_LOOK_RIGHT:
        return pan(-look, 0);
    case MAP_LOOK_UP:
        return pan(0, look);
    case MAP_LOOK_DOWN:
        return pan(0, -look);
    case MAP_ZOOM_IN:
        return zoomIn();
    case MAP_ZOOM_OUT:
        return zoomOut();
    case MAP_FOLLOW:
        return recentre();
    case MAP_TURN:
        emit turnWanted();
    }
}

void TMapItem::SetColor(QColor tagMapColors::*color, const QColor& value)
{
    if (m_Colors.*color == value)
        return;
    m_Colors.*color = value;
    m_Tiles.SetColors(m_Colors);
    m_ArePicturesStale = true;
    m_IsVehicleStale = true;
    Redraw();
    emit colorsChanged();
}

void TMapItem::Redraw()
{
    Look();
    polish();
    update();
}

void TMapItem::RedrawTiles()
{
    m_Tiles.Repaint();
    Redraw();
}

void TMapItem::OnStripAdded()
{
    if (m_Tiles.AddStrip())
        Redraw();
}

const tagMapVehicle* TMapItem::Vehicle() const
{
    const tagMapVehicle* vehicle = m_Model == nullptr ? nullptr : m_Model->Vehicle();
    return vehicle != nullptr && IsUsable(*vehicle) ? vehicle : nullptr;
}

void TMapItem::Look()
{
    const tagMapVehicle* vehicle = Vehicle();
    m_View.anchor = CrossHairs();
    if (!m_IsFollowing)
        return;
    m_View.centre = vehicle == nullptr ? WholeField() : vehicle->place;
    if (vehicle != nullptr && m_IsHeadingUp) {
        const QRectF free = FreeOrAll();
        m_View.anchor.setY(free.top() + VehicleDown * free.height());
    }
    Turn();
}

void TMapItem::Turn()
{
    const tagMapVehicle* vehicle = Vehicle();
    const double bearing = vehicle != nullptr && m_IsHeadingUp ? vehicle->heading : 0;
    if (bearing == m_View.bearing)
        return;
    m_View.bearing = bearing;
    emit bearingChanged();
}

QPointF TMapItem::WholeField() const
{
    QRectF field;
    if (m_Model != nullptr)
        for (const tagMapArea& area : m_Model->Areas())
            field |= area.outline.boundingRect();
    const QPointF centre = field.center();
    return std::abs(centre.x()) <= Farthest && std::abs(centre.y()) <= Farthest ? centre : QPointF();
}

double TMapItem::Detail() const { return window() == nullptr ? 1 : window()->effectiveDevicePixelRatio(); }

void TMapItem::updatePolish()
{
    m_Seen.clear();
    if (width() <= 0 || height() <= 0)
        return;
    const double detail = Detail();
    m_Tiles.SetScale(PixelMetres() / detail, detail);
    m_Tiles.SetGrid(ScaleMetres());
    m_Seen = m_Tiles.Show(m_View.GroundOf(QRectF(0, 0, width(), height())));

    const tagMapVehicle* vehicle = Vehicle();
    const bool isOtherDetail = m_PicturesDetail != detail;
    const bool isOtherScale = m_PicturesMetres != PixelMetres() || isOtherDetail;
    m_IsVehicleStale = m_IsVehicleStale || isOtherScale || (vehicle != nullptr && !IsSameImplement(*vehicle, m_Drawn));
    if (m_IsVehicleStale && vehicle != nullptr) {
        m_Pictures.vehicle = VehiclePicture(*vehicle, m_Colors, PixelMetres(), detail);
        ++m_Pictures.vehicleVersion;
        m_Drawn = *vehicle;
        m_IsVehicleStale = false;
    }
    if (m_ArePicturesStale || isOtherDetail) {
        m_Pictures.flag = FlagPicture(m_Colors, detail);
        m_Pictures.crossHairs = CrossHairsPicture(m_Colors, detail);
        ++m_Pictures.version;
        m_ArePicturesStale = false;
    }
    m_PicturesMetres = PixelMetres();
    m_PicturesDetail = detail;
}

QSGNode* TMapItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/)
{
    auto* node = static_cast<TMapNode*>(old);
    if (m_Seen.empty()) {
        delete node;
        return nullptr;
    }
    if (node == nullptr)
        node = new TMapNode(*window());
    node->ShowTiles(m_Tiles, m_Seen, m_View, m_PicturesDetail);
    std::vector<QPointF> flags;
    if (m_Model != nullptr)
        for (const QPointF& flag : m_Model->Flags())
            flags.push_back(m_View.PointOf(flag));
    const tagMapVehicle* vehicle = Vehicle();
    node->ShowPictures(m_Pictures, m_PicturesDetail, flags, CrossHairs());
    if (vehicle == nullptr)
        node->HideVehicle();
    else
        node->ShowVehicle(m_Pictures, m_PicturesDetail, m_View.PointOf(vehicle->place),
                          vehicle->heading - m_View.bearing);
    return node;
}

void TMapItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && value.window != nullptr))
        Redraw();
    QQuickItem::itemChange(change, value);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
void TMapItem::geometryChange(const QRectF& after, const QRectF& before)
{
    QQuickItem::geometryChange(after, before);
    Redraw();
}
#else
void TMapItem::geometryChanged(const QRectF& after, const QRectF& before)
{
    QQuickItem::geometryChanged(after, before);
    Redraw();
}
#endif
