#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QtGlobal>

#include <functional>
#include <vector>

/// What each thread does with Qt's locks: which it holds, for which it waits, and which it took while it held others.
/// The code under test is not changed. Its library stands before Qt in the link order of a test program, and its
/// functions of the same names are called instead of Qt's:
///
///     cabsettings_add_test(SomeTest SomeTest.cpp LIBRARIES LockRecord CabSettings::CabSettings)
///
///     LockRecord::NameLock(&TSystemSettingsProxy::Mutex, "system");
///     ... threads ...
///     for (const LockRecord::tagPair& pair : LockRecord::Pairs())
///         qInfo("%s, then %s", pair.held.constData(), pair.taken.constData());
///
/// The record orders no threads, so it hides no race from a sanitizer. tryLock() cannot wait for ever, so it makes no
/// pair. What Qt locks for itself is not seen.
namespace LockRecord {

/// Qt 6 locks inline, where no function can take the place of its own: nothing is recorded there. On processors other
/// than x86 QtCore too calls what stands in its place, so that its own locks are recorded, which have no order of ours.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) && (defined(__x86_64__) || defined(__i386__))
constexpr bool SeesLocks = true;
#else
constexpr bool SeesLocks = false;
#endif

/// The name of each lock that was not named.
const char* const Unnamed = "a lock without a name";

/// Gives a name to the lock at an address. Names are never copied or freed.
void NameLock(const void* lock, const char* name);

/// Gives a name to a lock that nobody else can reach: the first one without a name that this thread takes in @p call.
/// Returns whether there was one.
bool NameFirstLockOf(const std::function<void()>& call, const char* name);

/// Forgets the pairs that were recorded before all locks had their names.
void ForgetPairs();

/// Forgets all names: what was named is gone. While no other thread uses a lock.
void ForgetNames();

/// Gives a name to the calling thread until it ends.
void NameThread(const char* name);

/// @p taken was asked for while the same thread held @p held.
struct tagPair
{
    QByteArray held;
    QByteArray taken;
    long count;
};

std::vector<tagPair> Pairs();

/// Number of times that a lock was taken.
long Acquisitions();

struct tagThread
{
    QByteArray name;
    QByteArrayList holds; ///< in the order in which they were taken
    QByteArray waitsFor;  ///< empty while the thread does not wait
};

/// The threads that hold a lock or wait for one, at this moment.
std::vector<tagThread> Threads();

} // namespace LockRecord
