#pragma once

#include "SystemClock.h"

#include <ctime>

/// The clock CLOCK_MONOTONIC_COARSE of the program that includes this, in one of its files: it stands still until the
/// test moves it. The other clocks go as ever.
struct StandingClock
{
    static inline long long nanoseconds = 1000000000000;
};

// Found before that of the C library, by the library under test too.

extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock == CLOCK_MONOTONIC_COARSE) {
        time->tv_sec = static_cast<time_t>(StandingClock::nanoseconds / 1000000000);
        time->tv_nsec = static_cast<long>(StandingClock::nanoseconds % 1000000000);
        return 0;
    }
    return ReadSystemClock(clock, time);
}
