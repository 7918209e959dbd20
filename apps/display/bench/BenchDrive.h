#pragma once

#include "display/map/TMapModel.h"

/// The field of the bench: passes of 600 m, 12 m from each other, driven at 12 km/h with ten fixes a second. The
/// implement is lifted in the turns, and the tractor never drives quite straight.
///
///     TMapModel model;
///     LayOutBenchField(model);
///     DriveBenchField(model, 0, 36000); // an hour of work
namespace BenchDrive {

constexpr int FixesPerSecond = 10;
constexpr int FixesPerHour = 3600 * FixesPerSecond;

} // namespace BenchDrive

/// Boundaries, zones, flags and the guidance line.
void LayOutBenchField(TMapModel& model);

/// The strips of the fixes from first to last - 1, set all at once where first is 0 and added one by one otherwise, and
/// the vehicle at the last.
void DriveBenchField(TMapModel& model, int first, int last);
