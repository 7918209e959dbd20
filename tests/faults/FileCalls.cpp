#include "FileCalls.h"

#include "DiskRecord.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/types.h>
#include <unistd.h>

using namespace FileCalls;

namespace {

constexpr std::size_t MostFiles = 1024;
constexpr int NoNode = -1;

// A mutex of its own, not one of Qt: Qt's calls come here.
std::recursive_mutex lock;
std::atomic<bool> isWatching{false};
std::string root; // with "/" at its end
tagFault fault = {};
int counted = 0;
int target = INT_MAX;
bool isReached = false;
std::map<unsigned, int> refused; // by kind
std::string misread;             // empty: nothing
TDiskRecord* record = nullptr;
tagClock fileClock;
std::atomic<std::int64_t> clockShift{0};

/// What a descriptor is open for.
struct tagOpen
{
    std::atomic<bool> isWatched{false}; // looked at by every call of every thread, most of which are about other files
    int node = NoNode;                  ///< in the record; guarded by the lock
};
std::array<tagOpen, MostFiles> opened;

void Forget(tagOpen& open)
{
    open.isWatched = false;
    open.node = NoNode;
}

using TLock = std::lock_guard<std::recursive_mutex>;

template <class Function>
Function* Original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

tagOpen* Of(int file)
{
    if (!isWatching || file < 0 || static_cast<std::size_t>(file) >= MostFiles)
        return nullptr;
    tagOpen* const open = &opened[static_cast<std::size_t>(file)];
    return open->isWatched ? open : nullptr;
}

/// The path without links in its folder; empty when there is no such folder.
std::string Resolved(const char* path)
{
    const std::string text = path;
    const std::size_t end = text.find_last_not_of('/');
    const std::size_t separator = end == std::string::npos ? end : text.rfind('/', end);
    const std::string folder = separator == std::string::npos ? "." : text.substr(0, separator + 1);
    char* const resolved = realpath(folder.c_str(), nullptr);
    if (!resolved)
        return std::string();
    const std::string name = separator == std::string::npos ? text : text.substr(separator + 1, end - separator);
    std::string whole = resolved;
    std::free(resolved);
    if (name == "." || name.empty())
        return whole;
    return whole == "/" ? whole + name : whole + '/' + name;
}

/// The path in the watched folder: empty for the folder itself, nullopt for what is not in it.
std::optional<std::string> Watched(const char* path)
{
    if (!isWatching || !path)
        return std::nullopt;
    const int before = errno;
    const std::string resolved = Resolved(path);
    errno = before;
    if (resolved + '/' == root)
        return std::string();
    if (resolved.compare(0, root.size(), root) != 0)
        return std::nullopt;
    return resolved.substr(root.size());
}

/// Whether the call is made in full. If it fails, errno is set.
enum EWay
{
    WAY_WHOLE,
    WAY_HALF,
    WAY_FAILS
};

EWay WayOf(unsigned call)
{
    if ((fault.calls & call) == 0)
        return WAY_WHOLE;
    ++counted;
    if (counted < target)
        return WAY_WHOLE;
    const bool isFirst = counted == target;
    isReached = true;
    if (fault.stop == STOP_KILL)
        kill(getpid(), SIGKILL);
    if (isFirst && (fault.stop == STOP_SHORT || fault.stop == STOP_SHORT_FULL))
        return WAY_HALF;
    if (!isFirst && (fault.stop == STOP_ERROR || fault.stop == STOP_SHORT))
        return WAY_WHOLE;
    ++refused[call];
    errno = fault.error;
    return WAY_FAILS;
}

/// Gives a file that was written the time of the clock.
void Stamp(int file)
{
    const bool isMoved = fileClock.shift != 0 || fileClock.step != 0 || fileClock.standsAtFile != -1;
    if (!isMoved)
        return;
    timespec now = {};
    if (fileClock.standsAtFile != -1)
        now.tv_sec = static_cast<time_t>(fileClock.standsAtFile);
    else
        clock_gettime(CLOCK_REALTIME, &now);
    if (fileClock.step > 0) {
        const time_t step = static_cast<time_t>(fileClock.step);
        now.tv_sec -= (now.tv_sec % step + step) % step;
        now.tv_nsec = 0;
    }
    const timespec times[] = {now, now};
    futimens(file, times);
}

void Remember(int file, const std::string& path, bool isMade, bool isEmptied)
{
    if (file < 0 || static_cast<std::size_t>(file) >= MostFiles)
        return;
    tagOpen& open = opened[static_cast<std::size_t>(file)];
    open.node = record ? record->Opened(path, isMade, isEmptied) : NoNode;
    open.isWatched = true;
    if (isMade || isEmptied)
        Stamp(file);
}

bool HasMode(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

using TOpen = int(const char*, int, ...);

int Open(TOpen* original, const char* path, int flags, mode_t mode)
{
    const std::optional<std::string> watched = Watched(path);
    if (!watched)
        return original(path, flags, mode);
    const TLock locked(lock);
    struct stat before = {};
    const bool isThere = fstatat(AT_FDCWD, path, &before, (flags & O_NOFOLLOW) != 0 ? AT_SYMLINK_NOFOLLOW : 0) == 0;
    const bool isMaking = (flags & O_CREAT) != 0 && !isThere;
    const bool isEmptying = (flags & O_TRUNC) != 0 && isThere;
    unsigned call = CALL_OPEN;
    if (isMaking || isEmptying)
        call = CALL_MAKE;
    else if ((flags & O_ACCMODE) != O_RDONLY)
        call = CALL_ALTER;
    if (WayOf(call) == WAY_FAILS)
        return -1;
    const int file = original(path, flags, mode);
    if (file >= 0)
        Remember(file, *watched, isMaking, isEmptying);
    return file;
}

/// What @p move does with a part or all of @p size bytes of an open file.
template <class Move>
ssize_t Transfer(int file, unsigned call, std::size_t size, Move move)
{
    tagOpen* const open = Of(file);
    if (!open)
        return move(size);
    const TLock locked(lock);
    const EWay way = WayOf(call);
    return way == WAY_FAILS ? -1 : move(way == WAY_HALF ? (size + 1) / 2 : size);
}

/// A call that reads.
template <class Move>
ssize_t Take(int file, void* data, std::size_t size, Move move)
{
    const ssize_t length = Transfer(file, CALL_READ, size, move);
    if (length <= 0 || !Of(file))
        return length;
    const TLock locked(lock);
    char* const begin = static_cast<char*>(data);
    char* const end = begin + length;
    char* const found = misread.empty() ? end : std::search(begin, end, misread.begin(), misread.end());
    if (found != end) {
        *found = static_cast<char>(*found ^ 1);
        misread.clear();
    }
    return length;
}

/// A call that writes: @p at is -1 for the place where the file is.
template <class Move>
ssize_t Put(int file, const void* data, std::size_t size, std::int64_t at, Move move)
{
    tagOpen* const open = Of(file);
    if (!open)
        return move(size);
    const TLock locked(lock);
    const ssize_t written = Transfer(file, CALL_WRITE, size, move);
    if (written > 0 && record && open->node != NoNode) {
        const std::int64_t end = lseek(file, 0, SEEK_CUR);
        record->Wrote(open->node, at >= 0 ? at : end - written,
                      std::string(static_cast<const char*>(data), static_cast<std::size_t>(written)));
    }
    if (written > 0)
        Stamp(file);
    return written;
}

template <class Sync>
int SyncFile(int file, bool hasName, Sync sync)
{
    tagOpen* const open = Of(file);
    if (!open)
        return sync();
    const TLock locked(lock);
    if (WayOf(CALL_SYNC) != WAY_WHOLE)
        return -1;
    const int result = sync();
    if (result == 0 && record && open->node != NoNode)
        record->Synced(open->node, hasName);
    return result;
}

/// A call that changes a name; @p note notes it.
template <class Change, class Note>
int Named(const char* path, unsigned call, Change change, Note note)
{
    const std::optional<std::string> watched = Watched(path);
    if (!watched)
        return change();
    const TLock locked(lock);
    if (WayOf(call) != WAY_WHOLE)
        return -1;
    const int result = change();
    if (result == 0 && record)
        note(*watched);
    return result;
}

template <class Change>
int Renamed(const char* from, const char* to, Change change)
{
    return Named(from, CALL_RENAME, change, [to](const std::string& watched) {
        if (const std::optional<std::string> renamed = Watched(to))
            record->Renamed(watched, *renamed);
    });
}

const auto LetsThrough = tagFault{"", STOP_ERROR, 0, 0};

} // namespace

void FileCalls::Watch(const QByteArray& folder)
{
    const TLock locked(lock);
    char* const resolved = realpath(folder.constData(), nullptr);
    root = std::string(resolved ? resolved : "/nothing") + '/';
    std::free(resolved);
    fault = LetsThrough;
    misread.clear();
    record = nullptr;
    for (tagOpen& open : opened)
        Forget(open);
    isWatching = true;
}

void FileCalls::Ignore()
{
    const TLock locked(lock);
    isWatching = false;
    fault = LetsThrough;
    misread.clear();
    record = nullptr;
}

void FileCalls::Arm(const tagFault& chosen, int nth)
{
    const TLock locked(lock);
    fault = chosen;
    counted = 0;
    target = nth;
    isReached = false;
    refused.clear();
}

bool FileCalls::Disarm()
{
    const TLock locked(lock);
    fault = LetsThrough;
    return isReached;
}

int FileCalls::Counted()
{
    const TLock locked(lock);
    return counted;
}

int FileCalls::Refused(unsigned calls)
{
    const TLock locked(lock);
    int count = 0;
    for (const auto& [call, times] : refused)
        count += (call & calls) != 0 ? times : 0;
    return count;
}

void FileCalls::Misread(const QByteArray& text)
{
    const TLock locked(lock);
    misread = text.toStdString();
}

bool FileCalls::HasMisread()
{
    const TLock locked(lock);
    return misread.empty();
}

void FileCalls::Record(TDiskRecord* chosen)
{
    const TLock locked(lock);
    record = chosen;
}

void FileCalls::SetClock(const tagClock& clock)
{
    const TLock locked(lock);
    fileClock = clock;
    clockShift = clock.shift;
}

// On 32 bits, the C library has two sizes of times behind these names.
static_assert(sizeof(time_t) == sizeof(long), "the clock of this room is for 64 bits");

// These take the place of the C library's functions, under both names of those that have one for 64-bit file offsets:
// libraries are built with one or the other. With these options the headers give one name for both, so each function
// has a name of its own here, and its name in the program behind it.

#pragma GCC visibility push(default)
extern "C" {

int SeenOpen(const char* path, int flags, ...) __asm__("open");
int SeenOpen64(const char* path, int flags, ...) __asm__("open64");
int SeenClose(int file) __asm__("close");
int SeenMakeFile(char* pattern, int flags) __asm__("mkostemp");
int SeenMakeFile64(char* pattern, int flags) __asm__("mkostemp64");
ssize_t SeenRead(int file, void* data, size_t size) __asm__("read");
ssize_t SeenReadAt(int file, void* data, size_t size, long at) __asm__("pread");
ssize_t SeenReadAt64(int file, void* data, size_t size, std::int64_t at) __asm__("pread64");
ssize_t SeenWrite(int file, const void* data, size_t size) __asm__("write");
ssize_t SeenWriteAt(int file, const void* data, size_t size, long at) __asm__("pwrite");
ssize_t SeenWriteAt64(int file, const void* data, size_t size, std::int64_t at) __asm__("pwrite64");
int SeenCut(int file, long size) __asm__("ftruncate");
int SeenCut64(int file, std::int64_t size) __asm__("ftruncate64");
int SeenSync(int file) __asm__("fsync");
int SeenSyncData(int file) __asm__("fdatasync");
int SeenSyncAll(int file) __asm__("syncfs");
int SeenRename(const char* from, const char* to) __asm__("rename");
int SeenRename2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) __asm__("renameat2");
int SeenRemove(const char* path) __asm__("unlink");
int SeenRemoveFolder(const char* path) __asm__("rmdir");
int SeenMakeFolder(const char* path, mode_t mode) __asm__("mkdir");
DIR* SeenList(const char* path) __asm__("opendir");
int SeenLock(int file, int operation) __asm__("flock");
time_t SeenTime(time_t* now) __asm__("time");

int SeenOpen(const char* path, int flags, ...)
{
    static const auto original = Original<TOpen>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = HasMode(flags) ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
    va_end(rest);
    return Open(original, path, flags, mode);
}

int SeenOpen64(const char* path, int flags, ...)
{
    static const auto original = Original<TOpen>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = HasMode(flags) ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
    va_end(rest);
    return Open(original, path, flags, mode);
}

int SeenClose(int file)
{
    static const auto original = Original<int(int)>("close");
    if (tagOpen* const open = Of(file)) {
        const TLock locked(lock);
        Forget(*open);
    }
    return original(file);
}

int SeenMakeFile64(char* pattern, int flags)
{
    static const auto original = Original<int(char*, int)>("mkostemp64");
    if (!Watched(pattern))
        return original(pattern, flags);
    const TLock locked(lock);
    if (WayOf(CALL_MAKE) == WAY_FAILS)
        return -1;
    const int file = original(pattern, flags);
    if (file >= 0)
        Remember(file, Watched(pattern).value_or(std::string()), true, false);
    return file;
}

int SeenMakeFile(char* pattern, int flags) { return SeenMakeFile64(pattern, flags); }

ssize_t SeenRead(int file, void* data, size_t size)
{
    static const auto original = Original<ssize_t(int, void*, size_t)>("read");
    return Take(file, data, size, [&](size_t part) { return original(file, data, part); });
}

ssize_t SeenReadAt(int file, void* data, size_t size, long at)
{
    static const auto original = Original<ssize_t(int, void*, size_t, long)>("pread");
    return Take(file, data, size, [&](size_t part) { return original(file, data, part, at); });
}

ssize_t SeenReadAt64(int file, void* data, size_t size, std::int64_t at)
{
    static const auto original = Original<ssize_t(int, void*, size_t, std::int64_t)>("pread64");
    return Take(file, data, size, [&](size_t part) { return original(file, data, part, at); });
}

ssize_t SeenWrite(int file, const void* data, size_t size)
{
    static const auto original = Original<ssize_t(int, const void*, size_t)>("write");
    return Put(file, data, size, -1, [&](size_t part) { return original(file, data, part); });
}

ssize_t SeenWriteAt(int file, const void* data, size_t size, long at)
{
    static const auto original = Original<ssize_t(int, const void*, size_t, long)>("pwrite");
    return Put(file, data, size, at, [&](size_t part) { return original(file, data, part, at); });
}

ssize_t SeenWriteAt64(int file, const void* data, size_t size, std::int64_t at)
{
    static const auto original = Original<ssize_t(int, const void*, size_t, std::int64_t)>("pwrite64");
    return Put(file, data, size, at, [&](size_t part) { return original(file, data, part, at); });
}

int SeenCut64(int file, std::int64_t size)
{
    static const auto original = Original<int(int, std::int64_t)>("ftruncate64");
    tagOpen* const open = Of(file);
    if (!open)
        return original(file, size);
    const TLock locked(lock);
    if (WayOf(CALL_CUT) != WAY_WHOLE)
        return -1;
    const int result = original(file, size);
    if (result == 0 && record && open->node != NoNode)
        record->Cut(open->node, size);
    return result;
}

int SeenCut(int file, long size) { return SeenCut64(file, size); }

int SeenSync(int file)
{
    static const auto original = Original<int(int)>("fsync");
    return SyncFile(file, true, [&] { return original(file); });
}

int SeenSyncData(int file)
{
    static const auto original = Original<int(int)>("fdatasync");
    return SyncFile(file, false, [&] { return original(file); });
}

int SeenSyncAll(int file)
{
    static const auto original = Original<int(int)>("syncfs");
    return SyncFile(file, true, [&] { return original(file); });
}

int SeenRename(const char* from, const char* to)
{
    static const auto original = Original<int(const char*, const char*)>("rename");
    return Renamed(from, to, [&] { return original(from, to); });
}

int SeenRename2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
{
    static const auto original = Original<int(int, const char*, int, const char*, unsigned)>("renameat2");
    const bool isByPath = fromFolder == AT_FDCWD && toFolder == AT_FDCWD;
    const auto change = [&] { return original(fromFolder, from, toFolder, to, flags); };
    return isByPath ? Renamed(from, to, change) : change();
}

int SeenRemove(const char* path)
{
    static const auto original = Original<int(const char*)>("unlink");
    return Named(
        path, CALL_REMOVE, [&] { return original(path); },
        [](const std::string& watched) { record->Removed(watched); });
}

int SeenRemoveFolder(const char* path)
{
    static const auto original = Original<int(const char*)>("rmdir");
    return Named(
        path, CALL_REMOVE, [&] { return original(path); },
        [](const std::string& watched) { record->Removed(watched); });
}

int SeenMakeFolder(const char* path, mode_t mode)
{
    static const auto original = Original<int(const char*, mode_t)>("mkdir");
    return Named(
        path, CALL_FOLDER, [&] { return original(path, mode); },
        [](const std::string& watched) { record->MadeFolder(watched); });
}

DIR* SeenList(const char* path)
{
    static const auto original = Original<DIR*(const char*)>("opendir");
    if (!Watched(path))
        return original(path);
    const TLock locked(lock);
    return WayOf(CALL_LIST) == WAY_WHOLE ? original(path) : nullptr;
}

int SeenLock(int file, int operation)
{
    static const auto original = Original<int(int, int)>("flock");
    if (!Of(file))
        return original(file, operation);
    const TLock locked(lock);
    return WayOf(CALL_LOCK) == WAY_WHOLE ? original(file, operation) : -1;
}

// The names that the headers give these serve programs that are built with the same options.

int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    static const auto original = Original<int(clockid_t, timespec*)>("clock_gettime");
    const int result = original(clock, time);
    if (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)
        time->tv_sec += static_cast<time_t>(clockShift.load());
    return result;
}

int gettimeofday(timeval* time, void* zone) noexcept
{
    static const auto original = Original<int(timeval*, void*)>("gettimeofday");
    const int result = original(time, zone);
    time->tv_sec += static_cast<time_t>(clockShift.load());
    return result;
}

time_t SeenTime(time_t* now)
{
    timespec time = {};
    clock_gettime(CLOCK_REALTIME, &time);
    if (now)
        *now = time.tv_sec;
    return time.tv_sec;
}

} // extern "C"
#pragma GCC visibility pop
