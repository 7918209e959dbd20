#include "display/fieldwork/TStripMaker.h"

#include <cmath>

namespace {

const double ShortestMove = 0.1;  ///< metres; less may be the noise of a vehicle that stands
const double LongestMove = 20;    ///< metres; more is a jump of the position
const qint64 LongestPause = 3000; ///< milliseconds
const double MostTurn = 120;      ///< degrees from one fix to the next

} // namespace

void TStripMaker::SetImplement(const tagImplement& implement)
{
    m_Implement = implement;
    Break();
}

TStripMaker::tagEdge TStripMaker::EdgeAt(const tagVehiclePose& pose) const
{
    const double radians = pose.heading * std::acos(-1.0) / 180;
    const double east = std::sin(radians);
    const double north = std::cos(radians);
    const double half = m_Implement.width / 2;
    const double middleEast = pose.place.east - m_Implement.behind * east;
    const double middleNorth = pose.place.north - m_Implement.behind * north;
    return {{middleEast - half * north, middleNorth + half * east},
            {middleEast + half * north, middleNorth - half * east}};
}

std::optional<tagCoverageStrip> TStripMaker::MoveTo(const tagVehiclePose& pose, const QDateTime& utc, bool isWorking)
{
    if (!isWorking || std::isnan(pose.heading)) {
        Break();
        return std::nullopt;
    }
    const double move = std::hypot(pose.place.east - m_Place.east, pose.place.north - m_Place.north);
    const qint64 pause = m_Utc.isValid() && utc.isValid() ? std::abs(m_Utc.msecsTo(utc)) : 0;
    const bool isJoined = m_HasEdge && move <= LongestMove && pause <= LongestPause;
    if (isJoined && move < ShortestMove) {
        m_Utc = utc;
        return std::nullopt;
    }
    const tagEdge before = m_Edge;
    m_Edge = EdgeAt(pose);
    m_Place = pose.place;
    m_Utc = utc;
    m_HasEdge = true;
    if (!isJoined)
        return std::nullopt;
    return tagCoverageStrip{{before.left, before.right, m_Edge.right, m_Edge.left}};
}

double HeadingAfter(double before, double course)
{
    if (std::isnan(course))
        return before;
    const bool isBackwards = std::abs(std::remainder(course - before, 360.0)) > MostTurn; // false for NaN
    const double heading = isBackwards ? course + 180 : course;
    return heading >= 360 ? heading - 360 : heading;
}
