#pragma once

#include "nmea/FieldPlan.h"

#include <vector>

/// Place and direction on a plane.
struct tagPose
{
    double east = 0;    ///< metres
    double north = 0;   ///< metres
    double heading = 0; ///< radians, clockwise from the plane's north
};

/// A piece of the way: straight or an arc, at a speed that changes evenly.
struct tagSegment
{
    tagPose start;
    double length;     ///< metres
    double curvature;  ///< 1 / radius in metres, positive to the right; 0 is straight
    double entrySpeed; ///< metres per second, above 0
    double exitSpeed;

    double Duration() const;             ///< seconds
    double SpeedAt(double time) const;   ///< metres per second, @p time in seconds since the start
    tagPose PoseAt(double time) const;   ///< the same
    tagPose PoseAfter(double way) const; ///< metres from the start
};

/// The way over the whole field, from (0, 0), each piece starting where the one before it ends.
std::vector<tagSegment> DrivenPath(const tagFieldPlan& plan);
