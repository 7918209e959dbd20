#include "sun/SunTimes.h"

#include <QMutex>
#include <QtMath>

#include <cmath>
#include <libnova/dynamical_time.h>
#include <libnova/precession.h>
#include <libnova/sidereal_time.h>
#include <libnova/solar.h>

// libnova tells where the sun is. Its own times of rise and set are not used: they are minutes off in middle latitudes
// and much more near the poles, because they take the place of the sun among the stars of the year 2000 for that of
// the date, and interpolate between days. Here the altitude of the sun is followed through the day.

namespace {

constexpr double LevelAltitudes[] = {-50.0 / 60, -6}; // degrees; by ESunLevel

const int SecondsPerDay = 24 * 60 * 60;
const int SecondsPerStep = 10 * 60;
const qint64 MillisecondsPerSecond = 1000;
const qint64 MillisecondsPerDay = SecondsPerDay * MillisecondsPerSecond;
const qint64 Step = SecondsPerStep * MillisecondsPerSecond;

const double JulianDayOf1970 = 2440587.5;
const double DegreesPerHour = 15;

/// An extreme altitude farther from the level than this cannot pass it between two steps.
const double GrazingDegrees = 1;

/// The place of the sun among the stars, in the coordinates of the date.
ln_equ_posn SunAt(double julianDay)
{
    // libnova keeps what it computed last in static variables.
    static QMutex mutex;
    const QMutexLocker lock(&mutex);
    const double dynamicalDay = julianDay + ln_get_dynamical_time_diff(julianDay) / SecondsPerDay;
    ln_equ_posn ofYear2000 = {};
    ln_get_solar_equ_coords(dynamicalDay, &ofYear2000);
    ln_equ_posn ofDate = {};
    ln_get_equ_prec(&ofYear2000, dynamicalDay, &ofDate);
    return ofDate;
}

/// The altitude of the sun's centre above a level.
class TSunAltitude
{
public:
    TSunAltitude(const tagSunPlace& place, ESunLevel level) : m_Place(place), m_Level(LevelAltitudes[level]) {}

    /// Degrees.
    double At(qint64 milliseconds) const
    {
        const double julianDay =
            JulianDayOf1970 + static_cast<double>(milliseconds) / static_cast<double>(MillisecondsPerDay);
        const ln_equ_posn sun = SunAt(julianDay);
        const double siderealTime = ln_get_mean_sidereal_time(julianDay) * DegreesPerHour + m_Place.longitude;
        const double hourAngle = qDegreesToRadians(siderealTime - sun.ra);
        const double latitude = qDegreesToRadians(m_Place.latitude);
        const double declination = qDegreesToRadians(sun.dec);
        const double sine = std::sin(latitude) * std::sin(declination) +
                            std::cos(latitude) * std::cos(declination) * std::cos(hourAngle);
        return qRadiansToDegrees(std::asin(qBound(-1.0, sine, 1.0))) - m_Level;
    }

    bool IsAbove(qint64 milliseconds) const { return At(milliseconds) >= 0; }

private:
    tagSunPlace m_Place;
    double m_Level;
};

/// The moment to the second at which the side of the level changes, which is different at both ends.
qint64 CrossingBetween(const TSunAltitude& altitude, qint64 from, qint64 to)
{
    const bool wasAbove = altitude.IsAbove(from);
    while (to - from > MillisecondsPerSecond) {
        const qint64 middle = from + (to - from) / 2;
        (altitude.IsAbove(middle) == wasAbove ? from : to) = middle;
    }
    return to;
}

/// The moment between two times at which @p sign times the altitude is greatest. It has one greatest value there.
qint64 ExtremeBetween(const TSunAltitude& altitude, qint64 from, qint64 to, double sign)
{
    while (to - from > MillisecondsPerSecond) {
        const qint64 third = (to - from) / 3;
        if (sign * altitude.At(from + third) < sign * altitude.At(to - third))
            from += third;
        else
            to -= third;
    }
    return from;
}

/// A time and the altitude then.
struct tagSample
{
    qint64 time;
    double altitude;

    bool IsAbove() const { return altitude >= 0; }
};

/// Adds the crossings between two samples.
void AddCrossing(const TSunAltitude& altitude, const tagSample& from, const tagSample& to,
                 QList<tagSunCrossing>* crossings)
{
    if (from.IsAbove() == to.IsAbove())
        return;
    const qint64 time = CrossingBetween(altitude, from.time, to.time);
    crossings->append({QDateTime::fromMSecsSinceEpoch(time, Qt::UTC), to.IsAbove()});
}

/// Whether the sun, on the same side of the level at three successive samples, may have passed it for a moment around
/// the middle one.
bool MayGraze(const tagSample& first, const tagSample& middle, const tagSample& last)
{
    const double sign = middle.IsAbove() ? -1 : 1;
    return first.IsAbove() == middle.IsAbove() && middle.IsAbove() == last.IsAbove() &&
           std::abs(middle.altitude) < GrazingDegrees && sign * middle.altitude >= sign * first.altitude &&
           sign * middle.altitude >= sign * last.altitude;
}

} // namespace

bool IsSunPlace(const tagSunPlace& place) { return std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180; }

QList<tagSunCrossing> SunCrossings(const tagSunPlace& place, const QDateTime& from, const QDateTime& to,
                                   ESunLevel level)
{
    QList<tagSunCrossing> crossings;
    if (!IsSunPlace(place) || !from.isValid() || !to.isValid())
        return crossings;
    const TSunAltitude altitude(place, level);
    const qint64 end = to.toMSecsSinceEpoch();
    const auto sampleAt = [&](qint64 time) { return tagSample{time, altitude.At(time)}; };
    tagSample before = sampleAt(from.toMSecsSinceEpoch());
    tagSample last = before;
    while (last.time < end) {
        const tagSample next = sampleAt(qMin(last.time + Step, end));
        if (before.time < last.time && MayGraze(before, last, next)) {
            const double sign = last.IsAbove() ? -1 : 1;
            const tagSample extreme = sampleAt(ExtremeBetween(altitude, before.time, next.time, sign));
            AddCrossing(altitude, before, extreme, &crossings);
            AddCrossing(altitude, extreme, next, &crossings);
        } else {
            AddCrossing(altitude, last, next, &crossings);
        }
        before = last;
        last = next;
    }
    return crossings;
}

tagSunTimes SunTimes(const tagSunPlace& place, const QDate& date, ESunLevel level)
{
    if (!IsSunPlace(place) || !date.isValid())
        return {SUN_UNKNOWN, {}, {}};
    const QDateTime begin(date, QTime(0, 0), Qt::UTC);
    const QList<tagSunCrossing> crossings = SunCrossings(place, begin, begin.addDays(1), level);
    if (crossings.isEmpty())
        return {IsSunUp(place, begin, level) ? SUN_STAYS_UP : SUN_STAYS_DOWN, {}, {}};
    tagSunTimes times = {SUN_RISES_OR_SETS, {}, {}};
    for (const tagSunCrossing& crossing : crossings) {
        QDateTime& time = crossing.isRise ? times.rise : times.set;
        if (!time.isValid())
            time = crossing.utc;
    }
    return times;
}

bool IsSunUp(const tagSunPlace& place, const QDateTime& utc, ESunLevel level)
{
    return TSunAltitude(place, level).IsAbove(utc.toMSecsSinceEpoch());
}
