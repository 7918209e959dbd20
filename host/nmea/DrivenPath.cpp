#include "nmea/DrivenPath.h"

#include <algorithm>
#include <cmath>

namespace {

const double Acceleration = 0.5; // m/s², of a tractor with an implement

/// Strings segments together.
struct tagWay
{
    tagPose end;
    std::vector<tagSegment> segments;

    void Add(double length, double curvature, double entrySpeed, double exitSpeed)
    {
        if (length <= 0)
            return;
        segments.push_back({end, length, curvature, entrySpeed, exitSpeed});
        end = segments.back().PoseAfter(length);
    }
};

double MetresPerSecond(double kilometresPerHour) { return kilometresPerHour / 3.6; }

void AddPass(tagWay& way, const tagFieldPlan& plan)
{
    const double slow = MetresPerSecond(plan.turnSpeed);
    // A short pass ends before the full speed is reached.
    const double fast = std::min(MetresPerSecond(plan.speed), std::sqrt(slow * slow + Acceleration * plan.passLength));
    const double ramp = (fast * fast - slow * slow) / (2 * Acceleration);
    way.Add(ramp, 0, slow, fast);
    way.Add(plan.passLength - 2 * ramp, 0, fast, fast);
    way.Add(ramp, 0, fast, slow);
}

/// @param side 1 to the right, -1 to the left.
void AddTurn(tagWay& way, const tagFieldPlan& plan, double side)
{
    const double pi = std::acos(-1.0);
    const double speed = MetresPerSecond(plan.turnSpeed);
    const double radius = std::max(plan.swathWidth / 2, plan.smallestTurnRadius);
    // Swings out, goes round, and swings back, on three circles that touch. Where the swath leaves room for the
    // semicircle there is nothing to swing.
    const double swing = std::acos(std::min(1.0, (plan.swathWidth + 2 * radius) / (4 * radius)));
    way.Add(swing * radius, -side / radius, speed, speed);
    way.Add((pi + 2 * swing) * radius, side / radius, speed, speed);
    way.Add(swing * radius, -side / radius, speed, speed);
}

} // namespace

double tagSegment::Duration() const { return 2 * length / (entrySpeed + exitSpeed); }

double tagSegment::SpeedAt(double time) const { return entrySpeed + (exitSpeed - entrySpeed) * time / Duration(); }

tagPose tagSegment::PoseAt(double time) const { return PoseAfter((entrySpeed + SpeedAt(time)) / 2 * time); }

tagPose tagSegment::PoseAfter(double way) const
{
    // Along the chord, which lies half of the turn to the side of the start.
    const double half = curvature * way / 2;
    const double chord = std::abs(half) > 0 ? way * std::sin(half) / half : way;
    return {start.east + chord * std::sin(start.heading + half), start.north + chord * std::cos(start.heading + half),
            start.heading + 2 * half};
}

std::vector<tagSegment> DrivenPath(const tagFieldPlan& plan)
{
    const double pi = std::acos(-1.0);
    tagWay way;
    way.end.heading = plan.heading * pi / 180;
    AddPass(way, plan);
    for (int pass = 1; pass < plan.passes; ++pass) {
        AddTurn(way, plan, pass % 2 == 1 ? 1 : -1);
        AddPass(way, plan);
    }
    return way.segments;
}
