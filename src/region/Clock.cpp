#include "access/Parameters.h"
#include "platform/TLocalTime.h"
#include "region/TRegionSettings.h"

namespace {

const int MinutesPerHour = 60;
const int HoursPerDay = 24;
const int MinutesPerDay = HoursPerDay * MinutesPerHour;

/// Brings hour and minute into the range of a day and changes @p date accordingly. One step is enough, since the
/// offsets are smaller than a day.
void Normalise(int& hour, int& minute, QDate& date)
{
    if (minute < 0) {
        --hour;
        minute += MinutesPerHour;
    } else if (minute >= MinutesPerHour) {
        ++hour;
        minute -= MinutesPerHour;
    }
    if (hour < 0) {
        date = date.addDays(-1);
        hour += HoursPerDay;
    } else if (hour >= HoursPerDay) {
        date = date.addDays(1);
        hour -= HoursPerDay;
    }
}

void StoreOffsets(int hours, int minutes)
{
    Parameters::WriteInt(PARAM_UTC_OFFSET_HOURS, hours);
    Parameters::WriteInt(PARAM_UTC_OFFSET_MINUTES, minutes);
}

} // namespace

TRegionSettings::TRegionSettings() : m_GPSTimeReceived(false) {}

QDate TRegionSettings::GetDate() const { return TLocalTime::currentDate(); }
QTime TRegionSettings::GetTime() const { return TLocalTime::currentTime(); }
QDateTime TRegionSettings::GetDateTime() const { return TLocalTime::currentDateTime(); }

bool TRegionSettings::IsGPSTimeRecieved() const { return m_GPSTimeReceived; }

void TRegionSettings::Restore()
{
    if (TLocalTime::GetOffset() == 0)
        TLocalTime::SetOffset(Parameters::ReadInt(PARAM_CLOCK_OFFSET));
}

void TRegionSettings::ComputeTimeOffsets(int localHour, int localMinute, int utcHour, int utcMinute)
{
    int difference = (MinutesPerHour * localHour + localMinute) - (MinutesPerHour * utcHour + utcMinute);
    if (difference > MinutesPerDay / 2)
        difference -= MinutesPerDay;
    else if (difference < -MinutesPerDay / 2)
        difference += MinutesPerDay;
    StoreOffsets(difference / MinutesPerHour, difference % MinutesPerHour);
}

bool TRegionSettings::GetUTCTimeAndDate(QTime& time, QDate& date) const
{
    if (!m_GPSTimeReceived)
        return false;
    const QTime local = TLocalTime::currentTime();
    date = TLocalTime::currentDate();
    int hour = local.hour() - Parameters::ReadInt(PARAM_UTC_OFFSET_HOURS);
    int minute = local.minute() - Parameters::ReadInt(PARAM_UTC_OFFSET_MINUTES);
    Normalise(hour, minute, date);
    time = QTime(hour, minute, local.second(), local.msec());
    return true;
}

bool TRegionSettings::SetUTCTimeAndDate(QTime& time, QDate& date, bool fromGPS)
{
    const bool keepsOffset = Parameters::ReadBool(PARAM_UTC_OFFSET_SET_BY_USER);
    if (!keepsOffset && fromGPS && !m_GPSTimeReceived) {
        const QTime local = TLocalTime::currentTime();
        ComputeTimeOffsets(local.hour(), local.minute(), time.hour(), time.minute());
    }

    int hour = time.hour();
    int minute = time.minute();
    if (m_GPSTimeReceived || fromGPS) {
        hour += Parameters::ReadInt(PARAM_UTC_OFFSET_HOURS);
        minute += Parameters::ReadInt(PARAM_UTC_OFFSET_MINUTES);
    }
    Normalise(hour, minute, date);

    const int clockOffset = TLocalTime::SetDateTime(date.year(), date.month(), date.day(), hour, minute, time.second());
    Parameters::WriteInt(PARAM_CLOCK_OFFSET, clockOffset);
    if (fromGPS)
        m_GPSTimeReceived = true;
    return true;
}

void TRegionSettings::SetUserDate(int year, int month, int day)
{
    if (m_GPSTimeReceived || !QDate::isValid(year, month, day))
        return;
    QTime time = GetTime();
    QDate date(year, month, day);
    SetUTCTimeAndDate(time, date, false);
    Parameters::WriteBool(PARAM_UTC_OFFSET_SET_BY_USER, false);
    StoreOffsets(0, 0);
}

void TRegionSettings::SetUserTime(int hour, int minute, int second)
{
    QTime utcTime;
    QDate utcDate;
    int offsetHours = 0;
    int offsetMinutes = 0;
    const bool knowsUTC = GetUTCTimeAndDate(utcTime, utcDate);
    if (knowsUTC) {
        ComputeTimeOffsets(hour, minute, utcTime.hour(), utcTime.minute());
        SetUTCTimeAndDate(utcTime, utcDate, false);
        offsetHours = Parameters::ReadInt(PARAM_UTC_OFFSET_HOURS);
        offsetMinutes = Parameters::ReadInt(PARAM_UTC_OFFSET_MINUTES);
    } else {
        utcTime = QTime(hour, minute, second, 0);
        utcDate = TLocalTime::currentDate();
        SetUTCTimeAndDate(utcTime, utcDate, false);
    }
    Parameters::WriteBool(PARAM_UTC_OFFSET_SET_BY_USER, knowsUTC);
    StoreOffsets(offsetHours, offsetMinutes);
}

void TRegionSettings::SetUserDateTime(int year, int month, int day, int hour, int minute, int second)
{
    if (m_GPSTimeReceived) {
        SetUserTime(hour, minute, second);
        return;
    }
    if (!QDate::isValid(year, month, day))
        return;
    QTime time(hour, minute, second, 0);
    QDate date(year, month, day);
    SetUTCTimeAndDate(time, date, false);
    Parameters::WriteBool(PARAM_UTC_OFFSET_SET_BY_USER, false);
    StoreOffsets(0, 0);
}
