#include "platform/TLocalTime.h"

#include <algorithm>
#include <atomic>
#include <ctime>
#include <limits>

// The display's clock is the machine's UTC clock plus an offset in seconds. It never sets the machine's own clock, and
// it keeps away from the machine's time zone: the operator's local time is what the offset makes it, a stored offset
// means the same after a change to summer time, and no call reads a zone file, which Qt's own date and time would do
// twice for every log line.

namespace {

const qint64 SecondsPerDay = static_cast<qint64>(24) * 60 * 60;
const qint64 JulianDayOf1970 = 2440588;

std::atomic<int> Offset{0};

struct tagInstant
{
    qint64 seconds; ///< since 1970-01-01 00:00 on the machine's clock, UTC
    int milliseconds;
};

tagInstant MachineTime()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return {now.tv_sec, static_cast<int>(now.tv_nsec / 1000000)};
}

/// The display's time as days since 1970 and milliseconds of the day.
struct tagLocal
{
    qint64 day;
    int milliseconds;

    QDate Date() const { return QDate::fromJulianDay(JulianDayOf1970 + day); }
    QTime Time() const { return QTime::fromMSecsSinceStartOfDay(milliseconds); }
};

tagLocal Now()
{
    const tagInstant machine = MachineTime();
    const qint64 seconds = machine.seconds + Offset.load(std::memory_order_relaxed);
    const qint64 secondOfDay = (seconds % SecondsPerDay + SecondsPerDay) % SecondsPerDay;
    return {(seconds - secondOfDay) / SecondsPerDay, static_cast<int>(secondOfDay * 1000) + machine.milliseconds};
}

} // namespace

QDate TLocalTime::currentDate() { return Now().Date(); }
QTime TLocalTime::currentTime() { return Now().Time(); }

// Marked as UTC so that no zone of the machine's moves it; the value is the operator's local time.
QDateTime TLocalTime::currentDateTime()
{
    const tagLocal now = Now();
    return QDateTime(now.Date(), now.Time(), Qt::UTC);
}

// A date or time that does not exist leaves the clock as it is; an offset beyond 68 years is cut there.
int TLocalTime::SetDateTime(int year, int month, int day, int hour, int minute, int second)
{
    const QDate date(year, month, day);
    const QTime time(hour, minute, second);
    if (!date.isValid() || !time.isValid())
        return GetOffset();
    const qint64 wanted = (date.toJulianDay() - JulianDayOf1970) * SecondsPerDay + QTime(0, 0).secsTo(time);
    const qint64 offset = wanted - MachineTime().seconds;
    SetOffset(
        static_cast<int>(std::clamp<qint64>(offset, std::numeric_limits<int>::min(), std::numeric_limits<int>::max())));
    return GetOffset();
}

int TLocalTime::GetOffset() { return Offset.load(std::memory_order_relaxed); }
void TLocalTime::SetOffset(int offset) { Offset.store(offset, std::memory_order_relaxed); }
