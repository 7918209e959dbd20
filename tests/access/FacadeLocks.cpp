#include "CoreTest.h"
#include "FacadeOperations.h"
#include "HeldLocks.h"
#include "HostFailures.h"
#include "Latin1.h"
#include "TWorkingDisplay.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TUserLogAccessor.h"

#include <QScopedPointer>
#include <QtTest>

namespace {

const tagLock& SystemLock = Locks[0];
const tagLock& RegionLock = Locks[1];
const tagLock& UserLogLock = Locks[2];
const tagLock& NMEALogLock = Locks[3];

QStringList NamesOf(const tagLock& lock) { return QStringList(Latin1(lock.name)); }

/// A call of one forwarder, made on a façade of its own.
struct tagForwarder
{
    const tagLock* lock;
    EReach reach;
    std::function<void()> call;
};

using FForwarderFilter = bool (*)(EReach);

void AddForwarder(FForwarderFilter filter, const tagLock& lock, const char* name, const std::function<void()>& call,
                  EReach reach)
{
    if (filter(reach))
        QTest::newRow((QByteArray(lock.name) + ": " + name).constData()) << tagForwarder{&lock, reach, call};
}

template <class Facade, class Operation>
void AddOperations(FForwarderFilter filter, const tagLock& lock, const std::vector<Operation>& operations)
{
    for (const Operation& operation : operations) {
        const auto call = [&operation] {
            Facade facade;
            operation.onFacade(facade);
        };
        AddForwarder(filter, lock, operation.name, call, operation.reach);
    }
}

bool Any(EReach) { return true; }
bool ReachesHost(EReach reach) { return reach != StaysInside; }
bool ReachesHostUnderBoth(EReach reach) { return reach == CallsHostUnderBoth; }

void LogEvent()
{
    TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 1, QString(), QString());
}
void LogCode() { TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_DTC, 1, QString(), QString()); }
void LogByAccessor() { TUserLogAccessor().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 1, QString(), QString()); }
void LogNMEA() { TNEMADiagnosticLogProxy().Log("$GPGGA", 6); }

} // namespace

Q_DECLARE_METATYPE(tagForwarder)
Q_DECLARE_METATYPE(std::function<void()>)
Q_DECLARE_METATYPE(const tagLock*)

class FacadeLocks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_Display.reset(new TWorkingDisplay); }
    void cleanup();

    void aForwarderWaitsForItsLock_data() { AddForwarders(Any); }
    void aForwarderWaitsForItsLock();
    void aForwarderNeedsNoOtherLock_data() { AddForwarders(Any); }
    void aForwarderNeedsNoOtherLock();
    void theHostIsCalledUnderTheLock_data() { AddForwarders(ReachesHost); }
    void theHostIsCalledUnderTheLock();
    void aHostThatThrowsLeavesNoLockBehind_data() { AddForwarders(ReachesHost); }
    void aHostThatThrowsLeavesNoLockBehind();
    void defaultNamesTakeTheRegionLockInsideTheSystemLock_data() { AddForwarders(ReachesHostUnderBoth); }
    void defaultNamesTakeTheRegionLockInsideTheSystemLock();

    void whatNeedsNoLockReturnsWhileAllAreHeld_data();
    void whatNeedsNoLockReturnsWhileAllAreHeld();
    void lockAndUnlockDoNothingElse_data();
    void lockAndUnlockDoNothingElse();
    void aHeldLockIsRefusedToItsHolder_data();
    void aHeldLockIsRefusedToItsHolder();

private:
    static void AddForwarders(FForwarderFilter filter);
    bool IsAwaited(const tagLock& lock, const TCallThread& thread) const;
    bool ReturnsWhileHeld(const std::function<void()>& call, const QList<const tagLock*>& held) const;

    QScopedPointer<TWorkingDisplay> m_Display;
    std::vector<TMutexWatch> m_Watches;
};

void FacadeLocks::initTestCase()
{
    QVERIFY2(TCallThread::IsObservable(), "this kernel does not tell what a thread sleeps in");
    for (const tagLock& lock : Locks)
        m_Watches.emplace_back(*lock.mutex);
}

void FacadeLocks::cleanup()
{
    ReleaseLocks();
    m_Display.reset();
}

bool FacadeLocks::IsAwaited(const tagLock& lock, const TCallThread& thread) const
{
    return m_Watches[static_cast<std::size_t>(&lock - Locks)].IsAwaitedBy(thread);
}

/// Whether @p call gets through, rather than to sleep on one of the locks that are held meanwhile.
bool FacadeLocks::ReturnsWhileHeld(const std::function<void()>& call, const QList<const tagLock*>& held) const
{
    for (const tagLock* lock : held)
        lock->mutex->lock();
    bool isAwaited = false;
    TCallThread thread(call);
    while (!isAwaited && !thread.HasReturned()) {
        QThread::yieldCurrentThread();
        for (const tagLock* lock : held)
            isAwaited = isAwaited || IsAwaited(*lock, thread);
    }
    for (const tagLock* lock : held)
        lock->mutex->unlock();
    return !isAwaited;
}

void FacadeLocks::AddForwarders(FForwarderFilter filter)
{
    QTest::addColumn<tagForwarder>("forwarder");
    AddOperations<TSystemSettingsProxy>(filter, SystemLock, SystemOperations());
    AddOperations<TRegionSettingsProxy>(filter, RegionLock, RegionOperations());
    AddOperations<TUserDiagnosticLogProxy>(filter, UserLogLock, LogOperations());
    AddForwarder(filter, UserLogLock, "AddEntry of an event", LogEvent, CallsHost);
    AddForwarder(filter, UserLogLock, "AddEntry of a trouble code", LogCode, CallsHost);
    AddForwarder(filter, UserLogLock, "AddEntry of the accessor", LogByAccessor, CallsHost);
    AddOperations<TNEMADiagnosticLogProxy>(filter, NMEALogLock, LogOperations());
    AddForwarder(filter, NMEALogLock, "Log", LogNMEA, StaysInside);
}

void FacadeLocks::aForwarderWaitsForItsLock()
{
    QFETCH(tagForwarder, forwarder);
    QVERIFY(!ReturnsWhileHeld(forwarder.call, QList<const tagLock*>() << forwarder.lock));
    QCOMPARE(HeldLocks(), QStringList());
}

void FacadeLocks::aForwarderNeedsNoOtherLock()
{
    QFETCH(tagForwarder, forwarder);
    QList<const tagLock*> others;
    for (const tagLock& lock : Locks) {
        const bool isNeededInside = &lock == &RegionLock && forwarder.reach == CallsHostUnderBoth;
        if (&lock != forwarder.lock && !isNeededInside)
            others.append(&lock);
    }
    QVERIFY(ReturnsWhileHeld(forwarder.call, others));
    QCOMPARE(HeldLocks(), QStringList());
}

void FacadeLocks::theHostIsCalledUnderTheLock()
{
    QFETCH(tagForwarder, forwarder);
    QList<QStringList> observed;
    m_Display->store.onNote = [&observed] { observed.append(HeldLocks()); };
    forwarder.call();
    m_Display->store.onNote = nullptr;

    QStringList both = NamesOf(SystemLock) + NamesOf(RegionLock);
    QVERIFY(!observed.isEmpty());
    for (const QStringList& held : observed)
        QVERIFY2(held == NamesOf(*forwarder.lock) || (forwarder.reach == CallsHostUnderBoth && held == both),
                 qPrintable(held.join(QLatin1String(", "))));
    const bool isUnderBoth = observed.contains(both);
    QCOMPARE(isUnderBoth, forwarder.reach == CallsHostUnderBoth);
    QCOMPARE(HeldLocks(), QStringList());
}

void FacadeLocks::aHostThatThrowsLeavesNoLockBehind()
{
    QFETCH(tagForwarder, forwarder);
    const int failures =
        FailAtEveryCallOfTheHost(m_Display->store, forwarder.call, [] { return HeldLocks().isEmpty(); });
    QVERIFY(failures > 0);
}

void FacadeLocks::defaultNamesTakeTheRegionLockInsideTheSystemLock()
{
    QFETCH(tagForwarder, forwarder);
    RegionLock.mutex->lock();
    TCallThread thread(forwarder.call);
    while (!thread.HasReturned() && !IsAwaited(RegionLock, thread))
        QThread::yieldCurrentThread();
    const bool hasReturned = thread.HasReturned();
    const QStringList held = HeldLocks();
    RegionLock.mutex->unlock();
    thread.wait();
    QVERIFY(!hasReturned);
    QCOMPARE(held, NamesOf(SystemLock) + NamesOf(RegionLock));
}

void FacadeLocks::whatNeedsNoLockReturnsWhileAllAreHeld_data()
{
    using FCall = std::function<void()>;
    QTest::addColumn<FCall>("call");

    QTest::newRow("IsDevBuild") << FCall([] { TSystemSettingsProxy().IsDevBuild(); });
    QTest::newRow("IsAlphaBuild") << FCall([] { TSystemSettingsProxy().IsAlphaBuild(); });
    QTest::newRow("IsBetaBuild") << FCall([] { TSystemSettingsProxy().IsBetaBuild(); });
    for (const tagColorOperation& operation : ColorOperations()) {
        QTest::newRow((QByteArray("colours: ") + operation.name).constData()) << FCall([&operation] {
            TColorSettingsProxy facade;
            operation.onFacade(facade);
        });
    }
}

void FacadeLocks::whatNeedsNoLockReturnsWhileAllAreHeld()
{
    QFETCH(std::function<void()>, call);
    QList<const tagLock*> all;
    for (const tagLock& lock : Locks)
        all.append(&lock);
    QVERIFY(ReturnsWhileHeld(call, all));
}

void FacadeLocks::lockAndUnlockDoNothingElse_data()
{
    using FCall = std::function<void()>;
    QTest::addColumn<const tagLock*>("lock");
    QTest::addColumn<FCall>("take");
    QTest::addColumn<FCall>("release");

    QTest::newRow("system") << &SystemLock << FCall([] { TSystemSettingsProxy().Lock(); })
                            << FCall([] { TSystemSettingsProxy().Unlock(); });
    QTest::newRow("region") << &RegionLock << FCall([] { TRegionSettingsProxy().Lock(); })
                            << FCall([] { TRegionSettingsProxy().Unlock(); });
    QTest::newRow("user log") << &UserLogLock << FCall([] { TUserDiagnosticLogProxy().Lock(); })
                              << FCall([] { TUserDiagnosticLogProxy().Unlock(); });
    QTest::newRow("NMEA log") << &NMEALogLock << FCall([] { TNEMADiagnosticLogProxy().Lock(); })
                              << FCall([] { TNEMADiagnosticLogProxy().Unlock(); });
}

void FacadeLocks::lockAndUnlockDoNothingElse()
{
    QFETCH(const tagLock*, lock);
    QFETCH(std::function<void()>, take);
    QFETCH(std::function<void()>, release);
    take();
    const QStringList held = HeldLocks();
    release();
    QCOMPARE(held, NamesOf(*lock));
    QCOMPARE(HeldLocks(), QStringList());
    QCOMPARE(m_Display->store.calls, QStringList());
}

void FacadeLocks::aHeldLockIsRefusedToItsHolder_data()
{
    QTest::addColumn<const tagLock*>("lock");
    for (const tagLock& lock : Locks)
        QTest::newRow(lock.name) << &lock;
}

void FacadeLocks::aHeldLockIsRefusedToItsHolder()
{
    QFETCH(const tagLock*, lock);
    lock->mutex->lock();
    const bool isGrantedAgain = lock->mutex->tryLock();
    if (isGrantedAgain)
        lock->mutex->unlock();
    lock->mutex->unlock();
    QVERIFY(!isGrantedAgain);
}

int main(int argc, char** argv) { return RunCoreTest<FacadeLocks>(argc, argv); }
#include "FacadeLocks.moc"
