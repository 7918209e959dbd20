#pragma once

#include "coverage/CoverageStrip.h"
#include "machine/Implement.h"

#include <QDateTime>

#include <optional>

/// Where a vehicle is at a fix.
struct tagVehiclePose
{
    tagPlanePoint place;
    double heading; ///< degrees from north, where its front points to
};

/// Makes the strips that an implement covers from the poses of its vehicle.
///
/// @code
/// if (const auto strip = maker.MoveTo(pose, status.utc, isWorking))
///     map.AddStrip(*strip);
/// @endcode
class TStripMaker
{
public:
    /// The next strip begins with the implement's new width.
    void SetImplement(const tagImplement& implement);
    const tagImplement& Implement() const { return m_Implement; }

    /// The strip from the last pose to this one. Nothing while the implement does not work, at the first pose, while
    /// the implement stands, and over a gap: when no pose has come for some seconds, or the place jumps.
    std::optional<tagCoverageStrip> MoveTo(const tagVehiclePose& pose, const QDateTime& utc, bool isWorking);

    /// The next pose is a first one.
    void Break() { m_HasEdge = false; }

private:
    struct tagEdge
    {
        tagPlanePoint left;
        tagPlanePoint right;
    };

    tagEdge EdgeAt(const tagVehiclePose& pose) const;

    tagImplement m_Implement;
    tagEdge m_Edge = {};
    tagPlanePoint m_Place = {};
    QDateTime m_Utc;
    bool m_HasEdge = false;
};

/// The direction in which the front of a vehicle points.
/// @param before the last one, in degrees; NaN when it is not known.
/// @param course over ground, in degrees; NaN at a standstill. A vehicle does not turn round from one fix to the next:
/// a course that has turned that much is that of a vehicle that drives backwards.
double HeadingAfter(double before, double course);
