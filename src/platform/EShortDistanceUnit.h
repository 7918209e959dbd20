#pragma once

/// Unit of short distances, such as widths and offsets. Values of PARAM_SHORT_DISTANCE_UNIT: stored data and hosts use
/// the numbers, which never change.
enum EShortDistanceUnit : int
{
    SHORT_DISTANCE_UNIT_METRIC = 0,
    SHORT_DISTANCE_UNIT_INCH = 1,
    SHORT_DISTANCE_UNIT_FOOT = 2,
};
