#include "VirtualTime.h"

#include <atomic>
#include <cstdlib>
#include <ctime>

#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>

namespace {

constexpr std::int64_t NanosecondsPerSecond = 1000000000;
constexpr std::int64_t NanosecondsPerMillisecond = 1000000;

/// The other end of a connection is in this program; what it has sent is there after so long.
constexpr timespec ForTheSystem = {0, 50000};

std::atomic<std::int64_t> skipped{0}; // nanoseconds
std::atomic<bool> hasBegun{false};
pthread_t mainThread;

template <class Function>
Function* Original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Others have the clock of the system, such as the thread that ends a test which takes too long.
bool IsVirtual() { return hasBegun && pthread_equal(pthread_self(), mainThread) != 0; }

std::int64_t Nanoseconds(const timespec& time) { return time.tv_sec * NanosecondsPerSecond + time.tv_nsec; }

} // namespace

void VirtualTime::Begin()
{
    setenv("QT_NO_GLIB", "1", 1); // its loop waits in another call
    mainThread = pthread_self();
    hasBegun = true;
}

std::int64_t VirtualTime::Skipped() { return skipped / NanosecondsPerMillisecond; }

#pragma GCC visibility push(default)
extern "C" {

int VirtualClock(clockid_t clock, timespec* time) __asm__("clock_gettime");
int VirtualPoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask) __asm__("ppoll");

int VirtualClock(clockid_t clock, timespec* time)
{
    static const auto original = Original<int(clockid_t, timespec*)>("clock_gettime");
    const int result = original(clock, time);
    if (result != 0 || !IsVirtual() || (clock != CLOCK_MONOTONIC && clock != CLOCK_MONOTONIC_COARSE))
        return result;
    const std::int64_t now = Nanoseconds(*time) + skipped;
    time->tv_sec = static_cast<time_t>(now / NanosecondsPerSecond);
    time->tv_nsec = static_cast<long>(now % NanosecondsPerSecond);
    return result;
}

int VirtualPoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask)
{
    static const auto original = Original<int(pollfd*, nfds_t, const timespec*, const sigset_t*)>("ppoll");
    if (!IsVirtual() || !timeout || Nanoseconds(*timeout) <= Nanoseconds(ForTheSystem))
        return original(files, count, timeout, mask);
    const int ready = original(files, count, &ForTheSystem, mask);
    if (ready == 0)
        skipped += Nanoseconds(*timeout);
    return ready;
}
}
#pragma GCC visibility pop
