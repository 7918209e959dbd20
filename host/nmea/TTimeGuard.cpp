#include "nmea/TTimeGuard.h"

#include <utility>

namespace {

const int FirstYearOfGps = 1980;
const int YearsOfCentury = 100;

} // namespace

TTimeGuard::TTimeGuard(const QDate& built, const QDateTime& newest)
    : m_Earliest(built, QTime(0, 0), Qt::UTC), m_Newest(newest), m_Confirmations(0)
{}

tagTimeCheck TTimeGuard::Check(const QDateTime& utc)
{
    const QDateTime possible = Corrected(utc);
    const bool isCorrected = possible != utc;
    const ETimeRefusal refusal = Refusal(possible, isCorrected);
    QDateTime dropped;
    if (refusal != TIME_NOT_REFUSED)
        return {QDateTime(), refusal, false, dropped};
    const bool isNear = m_Newest.isValid() ? m_Newest.secsTo(possible) <= MostSeconds : !isCorrected;
    if (!isNear && !IsConfirmed(possible, &dropped))
        return {QDateTime(), TIME_NOT_REFUSED, false, dropped};
    if (isNear)
        dropped = m_Waiting;
    m_Waiting = QDateTime();
    if (!m_Newest.isValid() || possible > m_Newest)
        m_Newest = possible;
    return {possible, TIME_NOT_REFUSED, isCorrected, dropped};
}

/// The possible date that @p utc stands for; itself when it is possible, and when it is too late.
QDateTime TTimeGuard::Corrected(const QDateTime& utc) const
{
    const QDateTime end = m_Earliest.addDays(RolloverDays);
    QDateTime time = utc;
    if (time >= end && time.date().year() >= FirstYearOfGps + YearsOfCentury)
        time = time.addYears(-YearsOfCentury);
    while (time < m_Earliest)
        time = time.addDays(RolloverDays);
    return time;
}

ETimeRefusal TTimeGuard::Refusal(const QDateTime& utc, bool isCorrected) const
{
    if (utc >= m_Earliest.addDays(RolloverDays))
        return TIME_TOO_LATE;
    const QDateTime& reference = m_Newest.isValid() ? m_Newest : m_Earliest;
    const bool isBehind = reference.secsTo(utc) < -MostSeconds;
    if (isCorrected && (isBehind || utc > reference.addYears(LongestYears)))
        return TIME_BEFORE_BUILD;
    return isBehind ? TIME_BEFORE_NEWEST : TIME_NOT_REFUSED;
}

/// Whether @p utc ends a run that is long enough. A run that it does not continue is dropped, and begins anew with it.
bool TTimeGuard::IsConfirmed(const QDateTime& utc, QDateTime* dropped)
{
    const QDateTime before = std::exchange(m_Waiting, utc);
    // From one second to the next: the fixes of a fast receiver are less than a second apart.
    const qint64 step = before.isValid() ? utc.toSecsSinceEpoch() - before.toSecsSinceEpoch() : -1;
    if (step < 0 || step > LongestStep) {
        *dropped = before;
        m_Confirmations = 1;
    } else if (step > 0) {
        ++m_Confirmations;
    }
    return m_Confirmations >= FixesToConfirm;
}
