#pragma once

#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

/// What the system's clocks tell, in a program that has a clock_gettime() of its own.
inline int ReadSystemClock(clockid_t clock, timespec* time) noexcept
{
    // On 32-bit machines times have 64 bits here.
#if defined(SYS_clock_gettime64)
    return static_cast<int>(syscall(SYS_clock_gettime64, clock, time));
#else
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
#endif
}
