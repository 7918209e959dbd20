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

/// A part of the path: a straight line or an arc, driven with a constant acceleration.
struct tagSegment
{
    tagPose start;
    double length;     ///< metres
    double curvature;  ///< 1 / radius in metres, positive to the right; 0 is straight
    double entrySpeed; ///< metres per second, above 0
    double exitSpeed;  ///< metres per second, above 0

    /// Seconds.
    double Duration() const;

    /// Speed in metres per second, and pose, @p time seconds after the start.
    double SpeedAt(double time) const;
    tagPose PoseAt(double time) const;

    /// Pose @p distance metres after the start.
    tagPose PoseAfter(double distance) const;
};

/// The path of the tractor over the whole field, from (0, 0). Each segment starts where the one before it ends.
std::vector<tagSegment> DrivenPath(const tagFieldPlan& plan);
