#include "nmea/DrivenPath.h"

#include <algorithm>
#include <cmath>

namespace {

const double Acceleration = 0.5; // m/s², of a tractor with an implement

/// A path that is put together from its beginning.
struct tagPath
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

void AddPass(tagPath& path, const tagFieldPlan& plan)
{
    const double slow = MetresPerSecond(plan.turnSpeed);
    // A short pass ends before the full speed is reached.
    const double fast = std::min(MetresPerSecond(plan.speed), std::sqrt(slow * slow + Acceleration * plan.passLength));
    const double ramp = (fast * fast - slow * slow) / (2 * Acceleration);
    path.Add(ramp, 0, slow, fast);
    path.Add(plan.passLength - 2 * ramp, 0, fast, fast);
    path.Add(ramp, 0, fast, slow);
}

/// @param side 1 to the right, -1 to the left.
void AddTurn(tagPath& path, const tagFieldPlan& plan, double side)
{
    const double pi = std::acos(-1.0);
    const double speed = MetresPerSecond(plan.turnSpeed);
    const double radius = std::max(plan.swathWidth / 2, plan.smallestTurnRadius);
    // Three arcs on circles that touch: away from the next pass, round to it, and back into its line. A swath that is
    // wide enough for the semicircle makes the first and the last arc empty.
    const double swing = std::acos(std::min(1.0, (plan.swathWidth + 2 * radius) / (4 * radius)));
    path.Add(swing * radius, -side / radius, speed, speed);
    path.Add((pi + 2 * swing) * radius, side / radius, speed, speed);
    path.Add(swing * radius, -side / radius, speed, speed);
}

} // namespace

double tagSegment::Duration() const { return 2 * length / (entrySpeed + exitSpeed); }

double tagSegment::SpeedAt(double time) const { return entrySpeed + (exitSpeed - entrySpeed) * time / Duration(); }

tagPose tagSegment::PoseAt(double time) const { return PoseAfter((entrySpeed + SpeedAt(time)) / 2 * time); }

tagPose tagSegment::PoseAfter(double distance) const
{
    // Along the chord. Its heading is half of the turn away from the start's.
    const double half = curvature * distance / 2;
    const double chord = std::abs(half) > 0 ? distance * std::sin(half) / half : distance;
    return {start.east + chord * std::sin(start.heading + half), start.north + chord * std::cos(start.heading + half),
            start.heading + 2 * half};
}

std::vector<tagSegment> DrivenPath(const tagFieldPlan& plan)
{
    const double pi = std::acos(-1.0);
    tagPath path;
    path.end.heading = plan.heading * pi / 180;
    AddPass(path, plan);
    for (int pass = 1; pass < plan.passes; ++pass) {
        AddTurn(path, plan, pass % 2 == 1 ? 1 : -1);
        AddPass(path, plan);
    }
    return path.segments;
}
