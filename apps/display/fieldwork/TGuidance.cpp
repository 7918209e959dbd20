#include "display/fieldwork/TGuidance.h"

#include <cmath>

void TGuidance::Clear()
{
    m_A.reset();
    m_Line.reset();
}

void TGuidance::SetA(const tagGeoPoint& a)
{
    m_A = a;
    m_Line.reset();
    Place();
}

bool TGuidance::SetB(const tagGeoPoint& b)
{
    if (!m_A)
        return false;
    const tagPlanePoint place = TLocalPlane(m_A->latitude, m_A->longitude).ToPlane(b.latitude, b.longitude);
    const double length = std::hypot(place.east, place.north);
    if (!(length >= LeastLineLength && length <= GreatestLineLength))
        return false;
    m_Line = tagGuidanceLine{*m_A, b};
    Place();
    return true;
}

void TGuidance::SetLine(const std::optional<tagGuidanceLine>& line)
{
    m_Line = line;
    m_A = line ? std::optional<tagGeoPoint>(line->a) : std::nullopt;
    Place();
}

void TGuidance::Follow(const TLocalPlane& plane)
{
    m_Plane.emplace(plane);
    Place();
}

void TGuidance::Place()
{
    if (m_Plane && m_A)
        m_PlaneA = m_Plane->ToPlane(m_A->latitude, m_A->longitude);
    if (m_Plane && m_Line)
        m_PlaneB = m_Plane->ToPlane(m_Line->b.latitude, m_Line->b.longitude);
}

std::optional<tagLineOffset> TGuidance::Offset(const tagPlanePoint& place, double spacing, double heading) const
{
    if (!m_Plane || !m_Line)
        return std::nullopt;
    return OffsetFromLines(m_PlaneA, m_PlaneB, spacing, place, heading);
}

std::optional<tagMapGuidance> TGuidance::OnMap(double spacing, int activeLine) const
{
    if (!m_Plane || !m_A)
        return std::nullopt;
    return tagMapGuidance{QPointF(m_PlaneA.east, m_PlaneA.north), QPointF(m_PlaneB.east, m_PlaneB.north), spacing,
                          activeLine, m_Line.has_value()};
}
