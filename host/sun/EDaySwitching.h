#pragma once

/// When the terminal switches between the schemes for day and night. Values of PARAM_DAY_SWITCHING: stored data uses
/// the numbers, which never change.
enum EDaySwitching : int
{
    DAY_SWITCHING_BY_HAND = 0,  ///< only the operator switches
    DAY_SWITCHING_SUNSET = 1,   ///< at sunrise and sunset
    DAY_SWITCHING_TWILIGHT = 2, ///< when civil twilight begins and ends, with the sun 6 degrees below the horizon
};
