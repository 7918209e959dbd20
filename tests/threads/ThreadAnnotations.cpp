// What the thread sanitizer cannot see for itself. Qt comes without its instrumentation, and locks by bare futexes: to
// the sanitizer such a lock orders nothing, and everything under it would look like a race. Every program of a build
// with the sanitizer is linked with this file. The functions below stand in front of Qt's own of the same names, in the
// library and the host too; each calls Qt's and tells the sanitizer what that did.
//
// These are the functions that our programs call. A program that starts to use another one (a semaphore, an event
// posted to another thread) is reported as a race until that one stands here as well.

#include <QDeadlineTimer>
#include <QMutex>
#include <QReadWriteLock>
#include <QThread>
#include <QWaitCondition>

#include <algorithm>
#include <limits>
#include <vector>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

/// Qt's own function of a mangled name. A member function takes its object as the first argument.
template <class Function>
Function* QtsOwn(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

/// What this thread has locked for writing. Qt has one function for both kinds of unlocking; the sanitizer has two, and
/// that is what lets it find a write that only a read lock guards.
thread_local std::vector<const QReadWriteLock*> WriteLocked;

bool ForgetWriteLocked(const QReadWriteLock* lock)
{
    const auto found = std::find(WriteLocked.begin(), WriteLocked.end(), lock);
    if (found == WriteLocked.end())
        return false;
    WriteLocked.erase(found);
    return true;
}

} // namespace

// What Qt and the event loop below it call in the C library does not count: they free what was shared when its last
// reference goes, and reuse their own memory under their own locks, and the sanitizer sees neither the counts nor those
// locks. (Qt's look-up of a host runs in a thread that shares the host's name with whoever asked.) What our code does
// still counts, also when Qt has called it, and also on memory that Qt has allocated.
//
// For the same reason the sanitizer does not see that Qt closes a file. Neither does it see opendir() take the number
// of that file again, so that closedir() seems to close what another thread has just written.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_suppressions()
{
    return "called_from_lib:libQt5Core.so.5\n"
           "called_from_lib:libQt5Gui.so.5\n"
           "called_from_lib:libQt5Network.so.5\n"
           "called_from_lib:libglib-2.0.so.0\n"
           "race:closedir\n";
}

// Threads have ended before their program does; at the end the sanitizer would wait a second for one that is just about
// to vanish. Of two locks taken in opposite orders it shows where each was taken.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options()
{
    return "atexit_sleep_ms=0:second_deadlock_stack=1";
}

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto own = QtsOwn<void(QMutex*)>("_ZN6QMutex4lockEv");
    __tsan_mutex_pre_lock(this, 0);
    own(this);
    __tsan_mutex_post_lock(this, 0, 0);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto own = QtsOwn<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    __tsan_mutex_pre_lock(this, __tsan_mutex_try_lock);
    const bool isLocked = own(this, timeout);
    __tsan_mutex_post_lock(this, __tsan_mutex_try_lock | (isLocked ? 0 : __tsan_mutex_try_lock_failed), 0);
    return isLocked;
}

void QMutex::unlock() noexcept
{
    static const auto own = QtsOwn<void(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_mutex_pre_unlock(this, 0);
    own(this);
    __tsan_mutex_post_unlock(this, 0);
}

QMutex::~QMutex()
{
    static const auto own = QtsOwn<void(QMutex*)>("_ZN6QMutexD1Ev");
    __tsan_mutex_destroy(this, 0);
    own(this);
}

void QReadWriteLock::lockForRead()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock11lockForReadEv");
    __tsan_mutex_pre_lock(this, __tsan_mutex_read_lock);
    own(this);
    __tsan_mutex_post_lock(this, __tsan_mutex_read_lock, 0);
}

void QReadWriteLock::lockForWrite()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock12lockForWriteEv");
    __tsan_mutex_pre_lock(this, 0);
    own(this);
    __tsan_mutex_post_lock(this, 0, 0);
    WriteLocked.push_back(this);
}

void QReadWriteLock::unlock()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLock6unlockEv");
    const unsigned kind = ForgetWriteLocked(this) ? 0 : __tsan_mutex_read_lock;
    __tsan_mutex_pre_unlock(this, kind);
    own(this);
    __tsan_mutex_post_unlock(this, kind);
}

QReadWriteLock::~QReadWriteLock()
{
    static const auto own = QtsOwn<void(QReadWriteLock*)>("_ZN14QReadWriteLockD1Ev");
    __tsan_mutex_destroy(this, 0);
    own(this);
}

bool QWaitCondition::wait(QMutex* mutex, QDeadlineTimer deadline)
{
    static const auto own =
        QtsOwn<bool(QWaitCondition*, QMutex*, QDeadlineTimer)>("_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_mutex_pre_unlock(mutex, 0);
    __tsan_mutex_post_unlock(mutex, 0);
    const bool isWoken = own(this, mutex, deadline);
    __tsan_mutex_pre_lock(mutex, 0);
    __tsan_mutex_post_lock(mutex, 0, 0);
    return isWoken;
}

bool QWaitCondition::wait(QMutex* mutex, unsigned long milliseconds)
{
    return wait(mutex, milliseconds == std::numeric_limits<unsigned long>::max()
                           ? QDeadlineTimer(QDeadlineTimer::Forever)
                           : QDeadlineTimer(static_cast<qint64>(milliseconds)));
}

// What a thread did is done when wait() returns. The signal is the last that it does before others may find that it has
// ended.
void QThread::start(Priority priority)
{
    static const auto own = QtsOwn<void(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    connect(this, &QThread::finished, [this] { __tsan_release(this); });
    own(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto own = QtsOwn<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = own(this, deadline);
    if (hasEnded)
        __tsan_acquire(this);
    return hasEnded;
}
