#include "sun/DaySwitchStep.h"

namespace {

const int LongestGap = 30 * 60; // seconds between looks that follow each other

bool HasPassed(const tagSunWatch& watch, const tagSunPlace& place, const QDateTime& utc, ESunLevel level, bool isUp)
{
    if (watch.until.isValid() && watch.wasUp && watch.until.secsTo(utc) <= LongestGap)
        return *watch.wasUp != isUp;
    const QDateTime dayBefore = utc.addDays(-1);
    const QDateTime from = watch.until.isValid() ? qMax(watch.until, dayBefore) : dayBefore;
    return !SunCrossings(place, from, utc, level).isEmpty();
}

} // namespace

tagDaySwitchStep StepDaySwitch(const tagSunWatch& watch, const tagSunPlace& place, const QDateTime& utc,
                               ESunLevel level)
{
    const bool isUp = IsSunUp(place, utc, level);
    const tagSunWatch next = {utc, isUp, level};
    const bool isBackwards = watch.until.isValid() && utc < watch.until;
    const bool isOtherLevel = watch.wasUp && watch.level != level;
    if (isBackwards || isOtherLevel || !HasPassed(watch, place, utc, level, isUp))
        return {next, std::nullopt};
    return {next, isUp};
}
