#include "platform/TLocalTime.h"

#include <algorithm>
#include <atomic>
#include <ctime>
#include <limits>

// The display's clock is the machine's UTC clock plus an offset. Setting it never sets the machine's clock. The clock
// does not use the machine's time zone: the operator's local time follows from the offset alone, so a stored offset
// keeps its meaning when summer time begins, and no call reads a zone file, which Qt's own date and time would do twice
// for every log line.
//
// What is promised:
// - SetDateTime() changes the clock only when it is at least a second ahead of the second given, or at least half a
//   second behind its beginning. So the clock stays within a second of the time that it was set to last, and lines of a
//   receiver that are early or late by less than half a second do not move it.
// - When it changes the clock, the second that was given begins at that moment.
// - The clock never runs backwards by less than two seconds. It stands still until the time has come.
// - Offsets are in milliseconds inside and in whole seconds outside, rounded up: after a restart the clock shows the
//   time that it would have shown, or up to a second more.

namespace {

const qint64 MillisecondsPerSecond = 1000;
const qint64 SecondsPerDay = qint64(24) * 60 * 60;
const qint64 MillisecondsPerDay = SecondsPerDay * MillisecondsPerSecond;
const qint64 NanosecondsPerMillisecond = 1000000;
const qint64 JulianDayOf1970 = 2440588;

const qint64 Smallest = std::numeric_limits<qint64>::min();
const qint64 LongestStandstill = 2 * MillisecondsPerSecond;

// A time given in whole seconds is on average half a second past the beginning of its second: a clock that is half a
// second behind that beginning is about a second wrong.
const qint64 LargestLead = MillisecondsPerSecond;
const qint64 LargestLag = MillisecondsPerSecond / 2;

std::atomic<qint64> OffsetInMilliseconds{0};
std::atomic<qint64> StandsUntil{Smallest}; ///< a time that the clock has shown, and does not go behind

/// Milliseconds since 1970-01-01 00:00 UTC on the machine's clock.
qint64 MachineTime()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * MillisecondsPerSecond + now.tv_nsec / NanosecondsPerMillisecond;
}

/// The clock's time in milliseconds since 1970-01-01 00:00, local.
qint64 ShownTime()
{
    // In this order: a new offset is never seen without the standstill that goes with it.
    const qint64 offset = OffsetInMilliseconds.load();
    const qint64 stands = StandsUntil.load();
    const qint64 now = MachineTime() + offset;
    return now < stands && stands - now <= LongestStandstill ? stands : now;
}

void Change(qint64 offset, qint64 standsUntil)
{
    StandsUntil.store(standsUntil);
    OffsetInMilliseconds.store(offset);
}

struct tagShown
{
    QDate date;
    QTime time;
};

tagShown Now()
{
    const qint64 now = ShownTime();
    const qint64 timeOfDay = (now % MillisecondsPerDay + MillisecondsPerDay) % MillisecondsPerDay;
    return {QDate::fromJulianDay(JulianDayOf1970 + (now - timeOfDay) / MillisecondsPerDay),
            QTime::fromMSecsSinceStartOfDay(static_cast<int>(timeOfDay))};
}

qint64 Milliseconds(int seconds) { return seconds * MillisecondsPerSecond; }

} // namespace

QDate TLocalTime::currentDate() { return Now().date; }
QTime TLocalTime::currentTime() { return Now().time; }

// Marked as UTC so that the machine's time zone does not move it; the value is the operator's local time.
QDateTime TLocalTime::currentDateTime()
{
    const tagShown now = Now();
    return QDateTime(now.date, now.time, Qt::UTC);
}

// A date or time that does not exist leaves the clock as it is. An offset beyond 68 years is limited to that.
int TLocalTime::SetDateTime(int year, int month, int day, int hour, int minute, int second)
{
    const QDate date(year, month, day);
    const QTime time(hour, minute, second);
    if (!date.isValid() || !time.isValid())
        return GetOffset();
    const qint64 wanted = (date.toJulianDay() - JulianDayOf1970) * MillisecondsPerDay + time.msecsSinceStartOfDay();
    const qint64 machine = MachineTime();
    const qint64 lead = machine + OffsetInMilliseconds.load() - wanted;
    if (lead >= LargestLead || -lead >= LargestLag) {
        // Compared with what is shown, not with the offset: the clock may stand still already.
        const qint64 shown = ShownTime();
        const bool standsStill = shown > wanted && shown - wanted < LongestStandstill;
        Change(std::clamp(wanted - machine, Milliseconds(std::numeric_limits<int>::min()),
                          Milliseconds(std::numeric_limits<int>::max())),
               standsStill ? shown : Smallest);
    }
    return GetOffset();
}

int TLocalTime::GetOffset()
{
    const qint64 offset = OffsetInMilliseconds.load();
    const qint64 seconds = offset / MillisecondsPerSecond; // towards zero, which rounds up what is negative
    return static_cast<int>(seconds + (offset % MillisecondsPerSecond > 0 ? 1 : 0));
}

void TLocalTime::SetOffset(int offset) { Change(Milliseconds(offset), Smallest); }
