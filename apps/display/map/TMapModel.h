#pragma once

#include <QObject>
#include <QPointF>
#include <QPolygonF>
#include <QVector>

#include <array>

/// What an area of the map is.
enum EMapArea : int
{
    MAP_AREA_EXTERNAL_BOUNDARY,
    MAP_AREA_INTERNAL_BOUNDARY,
    MAP_AREA_INACTIVE_BOUNDARY,
    MAP_AREA_EXCLUSION_ZONE,
};

struct tagMapArea
{
    EMapArea kind;
    QPolygonF outline; ///< closed by itself: the last point is joined to the first
};

/// The ground that the implement has covered between two fixes: left and right end before, right and left end after.
/// Floats hold places within 100 km of the origin to a centimetre, in half the memory.
struct tagMapStrip
{
    struct tagPlace
    {
        float east;
        float north;
    };
    std::array<tagPlace, 4> corners;
};

struct tagMapVehicle
{
    QPointF place;          ///< of the antenna
    double heading;         ///< degrees from true north, clockwise
    double implementWidth;  ///< metres
    double implementBehind; ///< from the antenna to the implement, metres
    bool isWorking;         ///< the implement is down and on
};

struct tagMapGuidance
{
    QPointF a;
    QPointF b;
    double spacing; ///< from one line to the next, metres
    int activeLine; ///< of the line that is followed; 0 is the line through A and B, positive ones lie right of it
    bool isLine;    ///< false: only A is set
};

/// The things that the map shows, in metres: x to the east and y to the north of an origin. Whoever works on the field
/// sets them; the map item draws them. Belongs to the thread of the application object.
class TMapModel : public QObject
{
    Q_OBJECT

public:
    explicit TMapModel(QObject* parent = nullptr);

    const QVector<tagMapArea>& Areas() const { return m_Areas; }
    void SetAreas(const QVector<tagMapArea>& areas);

    /// In the order in which they were covered.
    const QVector<tagMapStrip>& Strips() const { return m_Strips; }
    void SetStrips(const QVector<tagMapStrip>& strips);
    void AddStrip(const tagMapStrip& strip);

    /// Places that the operator has marked.
    const QVector<QPointF>& Flags() const { return m_Flags; }
    void SetFlags(const QVector<QPointF>& flags);

    /// Null while nothing is known.
    const tagMapVehicle* Vehicle() const { return m_HasVehicle ? &m_Vehicle : nullptr; }
    void SetVehicle(const tagMapVehicle& vehicle);
    void ClearVehicle();

    /// Null without a line.
    const tagMapGuidance* Guidance() const { return m_HasGuidance ? &m_Guidance : nullptr; }
    void SetGuidance(const tagMapGuidance& guidance);
    void ClearGuidance();

signals:
    void AreasChanged();
    void StripsReset();
    void StripAdded(); ///< it is the last one
    void FlagsChanged();
    void VehicleChanged();
    void GuidanceChanged();

private:
    QVector<tagMapArea> m_Areas;
    QVector<tagMapStrip> m_Strips;
    QVector<QPointF> m_Flags;
    tagMapVehicle m_Vehicle = {};
    tagMapGuidance m_Guidance = {};
    bool m_HasVehicle = false;
    bool m_HasGuidance = false;
};
