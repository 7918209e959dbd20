#pragma once

#include "display/map/TMapModel.h"
#include "guidance/GuidanceLine.h"
#include "guidance/LineOffset.h"

#include <optional>

/// The guidance line while it is set and followed.
///
/// @code
/// guidance.SetA(here);
/// if (guidance.SetB(there))
///     WriteGuidanceLine(path, *guidance.Line(), &error);
/// @endcode
class TGuidance
{
public:
    void Clear();
    void SetA(const tagGeoPoint& a);

    /// Completes the line. Returns false, and leaves it as it was, when there is no A, or B is not far enough from it.
    bool SetB(const tagGeoPoint& b);
    void SetLine(const std::optional<tagGuidanceLine>& line);

    bool HasA() const { return m_A.has_value(); }
    const std::optional<tagGuidanceLine>& Line() const { return m_Line; }

    /// Brings the line to a plane, on which it is followed and shown.
    void Follow(const TLocalPlane& plane);

    /// Nothing without a line, and before Follow().
    std::optional<tagLineOffset> Offset(const tagPlanePoint& place, double spacing, double heading) const;

    /// Nothing without A, and before Follow().
    std::optional<tagMapGuidance> OnMap(double spacing, int activeLine) const;

private:
    void Place();

    std::optional<tagGeoPoint> m_A;
    std::optional<tagGuidanceLine> m_Line;
    std::optional<TLocalPlane> m_Plane;
    tagPlanePoint m_PlaneA = {};
    tagPlanePoint m_PlaneB = {};
};
