#pragma once

/// Where the time of the terminal's clock comes from. Values of PARAM_TIME_SOURCE: stored data uses the numbers, which
/// never change.
enum ETimeSource : int
{
    TIME_SOURCE_NONE = 0,     ///< the machine's clock; nothing has set the terminal's
    TIME_SOURCE_OPERATOR = 1, ///< set by hand
    TIME_SOURCE_RECEIVER = 2, ///< set from a satellite receiver
};
