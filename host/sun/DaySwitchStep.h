#pragma once

#include "HostExport.h"
#include "sun/SunTimes.h"

#include <QDateTime>

#include <optional>

/// What is known of the sun so far.
struct tagSunWatch
{
    /// The crossings up to this time, in UTC, have been dealt with. Invalid: none has.
    QDateTime until;

    /// Whether the sun was up at that time. Empty after a start: only the time is known.
    std::optional<bool> wasUp;

    /// The level of wasUp.
    ESunLevel level = SUN_LEVEL_HORIZON;
};

/// What follows from a look at the sun.
struct tagDaySwitchStep
{
    tagSunWatch watch; ///< for the next look

    /// The scheme to switch to, because the sun has passed the level: true for the day. Empty: nothing switches.
    std::optional<bool> day;
};

/// Decides whether the sun has passed the level since the last look.
///
/// Looks that are less than half an hour apart compare whether the sun is up, so a vehicle that drives towards the
/// sunset misses nothing. After a start or a longer gap, the crossings since the last look are searched, at most one
/// day back: near the poles, where the sun has not passed the level for a day, nothing switches.
///
/// A time before the last look switches nothing: watching begins anew from there. So a time that jumps to and fro
/// switches at most once.
///
/// \code
/// const tagDaySwitchStep step = StepDaySwitch(watch, {52.2, 10.5}, utc, SUN_LEVEL_HORIZON);
/// watch = step.watch;
/// if (step.day)
///     colors.SetDayMode(*step.day);
/// \endcode
///
/// @param place must be valid; see IsSunPlace().
/// @param utc must be valid.
CABHOST_EXPORT tagDaySwitchStep StepDaySwitch(const tagSunWatch& watch, const tagSunPlace& place, const QDateTime& utc,
                                              ESunLevel level);
