#pragma once

#include "HostExport.h"

#include <QDateTime>
#include <QList>

/// A place on the Earth, at sea level.
struct tagSunPlace
{
    double latitude;  ///< degrees, north positive, from -90 to 90
    double longitude; ///< degrees, east positive, from -180 to 180
};

/// The altitude of the sun that separates day from night.
enum ESunLevel : int
{
    SUN_LEVEL_HORIZON,  ///< the upper limb on the horizon, with 34' of refraction: 50' below it
    SUN_LEVEL_TWILIGHT, ///< civil twilight: 6 degrees below the horizon
};

/// What the sun does on a date at a place.
enum ESunDay : int
{
    SUN_RISES_OR_SETS,
    SUN_STAYS_UP,   ///< as in summer near the poles
    SUN_STAYS_DOWN, ///< as in winter near the poles
    SUN_UNKNOWN,    ///< the place or the date is invalid
};

/// Times in UTC, to the second.
struct tagSunTimes
{
    ESunDay day;
    QDateTime rise; ///< invalid when the sun does not rise on that date
    QDateTime set;  ///< invalid when the sun does not set on that date
};

/// A moment at which the sun passes a level.
struct tagSunCrossing
{
    QDateTime utc;
    bool isRise;
};

/// False for numbers outside their ranges, and for NaN.
CABHOST_EXPORT bool IsSunPlace(const tagSunPlace& place);

/// The times at which the sun rises and sets at @p place, from 00:00 to 24:00 UTC of @p date. Far from Greenwich the
/// sun may set before it rises on a date of UTC. At high latitudes one of the two may be missing, and the sun may rise
/// or set twice: the first time counts.
///
/// \code
/// const tagSunTimes times = SunTimes({52.2, 10.5}, QDate(2026, 3, 5), SUN_LEVEL_HORIZON);
/// if (times.set.isValid())
///     ShowSunset(times.set);
/// \endcode
///
/// Within a minute of an almanac's tables, for the standard atmosphere and a flat horizon. Air and hills move the real
/// sunset by minutes.
///
/// These functions may be called from any thread.
CABHOST_EXPORT tagSunTimes SunTimes(const tagSunPlace& place, const QDate& date, ESunLevel level);

/// All crossings after @p from and up to @p to, in order of time. Takes about 3 ms for a day.
CABHOST_EXPORT QList<tagSunCrossing> SunCrossings(const tagSunPlace& place, const QDateTime& from, const QDateTime& to,
                                                  ESunLevel level);

/// Whether the sun is above the level.
CABHOST_EXPORT bool IsSunUp(const tagSunPlace& place, const QDateTime& utc, ESunLevel level);
