#include "SystemCalls.h"

#include "TestSeed.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<int> calls{0};
std::atomic<int> last{INT_MAX}; // the first call that is not made
std::atomic<int> failure{0};    // its error; 0 to kill

std::array<std::atomic<bool>, 1024> isUnsynced; // by descriptor

bool IsRegular(int file)
{
    struct stat about = {};
    return fstat(file, &about) == 0 && S_ISREG(about.st_mode);
}

void Wrote(int file)
{
    if (file >= 0 && static_cast<std::size_t>(file) < isUnsynced.size() && IsRegular(file))
        isUnsynced[static_cast<std::size_t>(file)] = true;
}

int Synced(int file, int result)
{
    if (result == 0 && file >= 0 && static_cast<std::size_t>(file) < isUnsynced.size())
        isUnsynced[static_cast<std::size_t>(file)] = false;
    return result;
}

void Arm(int nth, int error)
{
    for (std::atomic<bool>& file : isUnsynced)
        file = false;
    failure = error;
    calls = 0;
    last = nth;
}

/// Whether the call is made; if not, errno is set.
bool IsMade()
{
    if (++calls < last)
        return true;
    if (failure == 0)
        kill(getpid(), SIGKILL);
    errno = failure;
    return false;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int CallStep = 4;
#else
constexpr int CallStep = 1;
#endif

template <class Function>
Function* Original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void SystemCalls::Count() { Arm(INT_MAX, 0); }
int SystemCalls::Counted() { return calls; }

int SystemCalls::UnsyncedFiles() { return static_cast<int>(std::count(isUnsynced.begin(), isUnsynced.end(), true)); }

void SystemCalls::Fail(int nth, int error) { Arm(nth, error); }
void SystemCalls::Kill(int nth) { Arm(nth, 0); }
void SystemCalls::Stop(int nth, int error) { Arm(nth, error); }
int SystemCalls::FirstToKill() { return CallStep == 1 ? 1 : 1 + static_cast<int>(TestSeed() % CallStep); }
int SystemCalls::NextToKill(int nth) { return nth + CallStep; }

// These take the place of the C library's functions. With 64-bit file offsets, pwrite and ftruncate get their names
// from the headers.

extern "C" __attribute__((visibility("default"))) ssize_t write(int file, const void* data, size_t size)
{
    static const auto original = Original<ssize_t(int, const void*, size_t)>("write");
    Wrote(file);
    return IsMade() ? original(file, data, size) : -1;
}

extern "C" __attribute__((visibility("default"))) ssize_t pwrite(int file, const void* data, size_t size, off_t offset)
{
    static const auto original = Original<ssize_t(int, const void*, size_t, off_t)>("pwrite64");
    Wrote(file);
    return IsMade() ? original(file, data, size, offset) : -1;
}

extern "C" __attribute__((visibility("default"))) int ftruncate(int file, off_t size) noexcept
{
    static const auto original = Original<int(int, off_t)>("ftruncate64");
    return IsMade() ? original(file, size) : -1;
}

extern "C" __attribute__((visibility("default"))) int fsync(int file)
{
    static const auto original = Original<int(int)>("fsync");
    return Synced(file, IsMade() ? original(file) : -1);
}

extern "C" __attribute__((visibility("default"))) int fdatasync(int file)
{
    static const auto original = Original<int(int)>("fdatasync");
    return Synced(file, IsMade() ? original(file) : -1);
}

extern "C" __attribute__((visibility("default"))) int rename(const char* from, const char* to) noexcept
{
    static const auto original = Original<int(const char*, const char*)>("rename");
    return IsMade() ? original(from, to) : -1;
}

extern "C" __attribute__((visibility("default"))) int unlink(const char* path) noexcept
{
    static const auto original = Original<int(const char*)>("unlink");
    return IsMade() ? original(path) : -1;
}

extern "C" __attribute__((visibility("default"))) int renameat2(int fromFolder, const char* from, int toFolder,
                                                                const char* to, unsigned flags) noexcept
{
    static const auto original = Original<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return IsMade() ? original(fromFolder, from, toFolder, to, flags) : -1;
}

extern "C" __attribute__((visibility("default"))) int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto original = Original<int(const char*, mode_t)>("mkdir");
    return IsMade() ? original(path, mode) : -1;
}
