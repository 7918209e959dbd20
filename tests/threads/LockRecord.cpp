#include "LockRecord.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QReadWriteLock>
#include <QWaitCondition>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

namespace {

constexpr std::size_t MostLocks = 32;
constexpr std::size_t MostHeld = 16;
constexpr std::size_t MostThreads = 256;

/// Locks are numbered in the order of their names. The last number is of those without one.
constexpr std::size_t UnnamedLock = MostLocks - 1;

constexpr auto Relaxed = std::memory_order_relaxed;

struct tagName
{
    std::atomic<const void*> lock;
    std::atomic<const char*> name;
};

struct tagSlot
{
    std::atomic<bool> isUsed;
    std::atomic<const char*> name;
    std::atomic<const void*> waitsFor; ///< null while the thread does not wait
    std::atomic<std::size_t> heldCount;
    std::array<std::atomic<const void*>, MostHeld> held;
};

// All zero before the first constructor of the program runs, so that locks may be taken at any time.
std::array<tagName, MostLocks> Names;
std::atomic<std::size_t> NameCount;
std::array<tagSlot, MostThreads> Slots;
std::array<std::array<std::atomic<long>, MostLocks>, MostLocks> PairCounts;
std::atomic<long> AcquisitionCount;

// Of NameFirstLockOf(), in the thread that called it.
thread_local bool IsLooking = false;
thread_local const void* FirstFound = nullptr;

[[noreturn]] void Fail(const char* what)
{
    std::fprintf(stderr, "LockRecord: more %s than there is room for\n", what);
    std::abort();
}

/// The slot of this thread, taken at its first use and given back when the thread ends.
class TOwnSlot
{
public:
    TOwnSlot() : m_Slot(Slots.begin())
    {
        bool isUsed = false;
        while (!m_Slot->isUsed.compare_exchange_strong(isUsed, true, Relaxed)) {
            isUsed = false;
            if (++m_Slot == Slots.end())
                Fail("threads");
        }
        m_Slot->name.store("a thread without a name", Relaxed);
    }

    ~TOwnSlot()
    {
        m_Slot->heldCount.store(0, Relaxed);
        m_Slot->isUsed.store(false, Relaxed);
    }

    TOwnSlot(const TOwnSlot&) = delete;
    TOwnSlot& operator=(const TOwnSlot&) = delete;

    tagSlot& operator*() const { return *m_Slot; }

private:
    tagSlot* m_Slot;
};

tagSlot& Own()
{
    thread_local const TOwnSlot own;
    return *own;
}

std::size_t NumberOf(const void* lock)
{
    const std::size_t count = NameCount.load(std::memory_order_acquire);
    for (std::size_t i = 0; i < count; ++i) {
        if (Names[i].lock.load(Relaxed) == lock)
            return i;
    }
    return UnnamedLock;
}

const char* NameOf(std::size_t number)
{
    return number == UnnamedLock ? LockRecord::Unnamed : Names[number].name.load(Relaxed);
}

} // namespace

void LockRecord::NameLock(const void* lock, const char* name)
{
    const std::size_t number = NumberOf(lock);
    if (number != UnnamedLock) {
        Names[number].name.store(name, Relaxed);
        return;
    }
    const std::size_t count = NameCount.load(Relaxed);
    if (count == UnnamedLock)
        Fail("locks with names");
    Names[count].lock.store(lock, Relaxed);
    Names[count].name.store(name, Relaxed);
    NameCount.store(count + 1, std::memory_order_release);
}

bool LockRecord::NameFirstLockOf(const std::function<void()>& call, const char* name)
{
    FirstFound = nullptr;
    IsLooking = true;
    call();
    IsLooking = false;
    if (FirstFound)
        NameLock(FirstFound, name);
    return FirstFound != nullptr;
}

void LockRecord::ForgetPairs()
{
    for (auto& counts : PairCounts) {
        for (std::atomic<long>& count : counts)
            count.store(0, Relaxed);
    }
}

void LockRecord::ForgetNames() { NameCount.store(0, std::memory_order_release); }

void LockRecord::NameThread(const char* name) { Own().name.store(name, Relaxed); }

std::vector<LockRecord::tagPair> LockRecord::Pairs()
{
    std::vector<tagPair> pairs;
    for (std::size_t held = 0; held < MostLocks; ++held) {
        for (std::size_t taken = 0; taken < MostLocks; ++taken) {
            const long count = PairCounts[held][taken].load(Relaxed);
            if (count > 0)
                pairs.push_back({NameOf(held), NameOf(taken), count});
        }
    }
    return pairs;
}

long LockRecord::Acquisitions() { return AcquisitionCount.load(Relaxed); }

std::vector<LockRecord::tagThread> LockRecord::Threads()
{
    std::vector<tagThread> threads;
    for (const tagSlot& slot : Slots) {
        tagThread thread;
        const std::size_t heldCount = slot.isUsed.load(Relaxed) ? slot.heldCount.load(Relaxed) : 0;
        for (std::size_t i = 0; i < heldCount; ++i)
            thread.holds.append(NameOf(NumberOf(slot.held[i].load(Relaxed))));
        const void* const waitsFor = slot.isUsed.load(Relaxed) ? slot.waitsFor.load(Relaxed) : nullptr;
        if (waitsFor)
            thread.waitsFor = NameOf(NumberOf(waitsFor));
        if (!thread.holds.isEmpty() || !thread.waitsFor.isEmpty()) {
            thread.name = slot.name.load(Relaxed);
            threads.push_back(thread);
        }
    }
    return threads;
}

// In front of Qt's own functions. Each is called by our programs and libraries alone: Qt calls its own directly.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
namespace {

/// Before the lock is taken: the order in which two threads wait for each other is recorded too.
void Asked(const void* lock)
{
    tagSlot& own = Own();
    const std::size_t number = NumberOf(lock);
    const std::size_t heldCount = own.heldCount.load(Relaxed);
    for (std::size_t i = 0; i < heldCount; ++i)
        PairCounts[NumberOf(own.held[i].load(Relaxed))][number].fetch_add(1, Relaxed);
    own.waitsFor.store(lock, Relaxed);
    if (IsLooking && !FirstFound && number == UnnamedLock)
        FirstFound = lock;
}

void Taken(const void* lock)
{
    tagSlot& own = Own();
    const std::size_t heldCount = own.heldCount.load(Relaxed);
    if (heldCount == MostHeld)
        Fail("locks held by one thread");
    own.held[heldCount].store(lock, Relaxed);
    own.heldCount.store(heldCount + 1, Relaxed);
    own.waitsFor.store(nullptr, Relaxed);
    AcquisitionCount.fetch_add(1, Relaxed);
}

/// A lock may be released by another thread than took it; then the slot of that thread keeps it.
void Released(const void* lock)
{
    tagSlot& own = Own();
    const std::size_t heldCount = own.heldCount.load(Relaxed);
    std::size_t at = heldCount;
    while (at > 0 && own.held[at - 1].load(Relaxed) != lock)
        --at;
    if (at == 0)
        return;
    for (; at < heldCount; ++at)
        own.held[at - 1].store(own.held[at].load(Relaxed), Relaxed);
    own.heldCount.store(heldCount - 1, Relaxed);
}

/// Qt's own function of a mangled name. A member function takes its object as the first argument.
template <class Function>
Function* QtsOwn(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto own = QtsOwn<void(QMutex*)>("_ZN6QMutex4lockEv");
    Asked(this);
    own(this);
    Taken(this);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto own = QtsOwn<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool isLocked = own(this, timeout);
    if (isLocked)
        Taken(this);
    return isLocked;
}

void QMutex::unlock() noexcept
{
    static const auto own = QtsOwn<void(QMutex*)>("_ZN6QMutex6unlockEv");
    Released(this);
    own(this);
}

void QReadWriteLock::lockForRead()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock11lockForReadEv");
    Asked(this);
    own(this);
    Taken(this);
}

void QReadWriteLock::lockForWrite()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock12lockForWriteEv");
    Asked(this);
    own(this);
    Taken(this);
}

void QReadWriteLock::unlock()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock6unlockEv");
    Released(this);
    own(this);
}

// While it waits, a thread does not hold the mutex of the condition.
bool QWaitCondition::wait(QMutex* mutex, QDeadlineTimer deadline)
{
    static const auto own =
        QtsOwn<bool(QWaitCondition*, QMutex*, QDeadlineTimer)>("_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    Released(mutex);
    const bool isWoken = own(this, mutex, deadline);
    Taken(mutex);
    return isWoken;
}

bool QWaitCondition::wait(QMutex* mutex, unsigned long milliseconds)
{
    static const auto own = QtsOwn<bool(QWaitCondition*, QMutex*, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
    Released(mutex);
    const bool isWoken = own(this, mutex, milliseconds);
    Taken(mutex);
    return isWoken;
}
#endif
