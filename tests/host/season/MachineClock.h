#pragma once

#include "SystemClock.h"

#include <atomic>
#include <ctime>

#include <sys/time.h>

/// The machine's clock, which tells the time of day, of the program that includes this, in one of its files: it stands
/// where the test has put it. The clocks that measure time go as ever.
struct MachineClock
{
    /// Since 1970-01-01 00:00 UTC.
    static inline std::atomic<long long> milliseconds{1577836800000};
};

// Found before those of the C library, by the libraries under test too.

extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE) {
        const long long now = MachineClock::milliseconds;
        time->tv_sec = static_cast<time_t>(now / 1000);
        time->tv_nsec = static_cast<long>(now % 1000 * 1000000);
        return 0;
    }
    return ReadSystemClock(clock, time);
}

extern "C" __attribute__((visibility("default"))) int gettimeofday(timeval* time, void*) noexcept
{
    const long long now = MachineClock::milliseconds;
    time->tv_sec = static_cast<time_t>(now / 1000);
    time->tv_usec = static_cast<suseconds_t>(now % 1000 * 1000);
    return 0;
}

#if defined(__USE_TIME_BITS64) && defined(__TIMESIZE) && __TIMESIZE == 32

// Of machines of 32 bits: those functions have other names then, and these serve libraries that count 32 bits of
// seconds.

extern "C" __attribute__((visibility("default"))) int ClockOfLong(clockid_t clock, long* time) noexcept
    __asm__("clock_gettime");
extern "C" __attribute__((visibility("default"))) int TimeOfDayOfLong(long* time, void*) noexcept
    __asm__("gettimeofday");

extern "C" int ClockOfLong(clockid_t clock, long* time) noexcept
{
    timespec now = {};
    const int result = clock_gettime(clock, &now);
    time[0] = static_cast<long>(now.tv_sec);
    time[1] = static_cast<long>(now.tv_nsec);
    return result;
}

extern "C" int TimeOfDayOfLong(long* time, void*) noexcept
{
    const long long now = MachineClock::milliseconds;
    time[0] = static_cast<long>(now / 1000);
    time[1] = static_cast<long>(now % 1000 * 1000);
    return 0;
}

#endif
