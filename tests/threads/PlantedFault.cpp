// Faults that the thread sanitizer must find, each beside its mended form, in which there is nothing to find. They give
// a meaning to the silence of all other tests. Called with the name of one.

#include "TargetOf.h"
#include "TestHost.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "settings/TSettings.h"

#include <QMutex>
#include <QMutexLocker>
#include <QReadWriteLock>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int Shared = 0;
QMutex Common;
QMutex Own[2];
QReadWriteLock ReadWrite;

void AddWithoutLock(int) { ++Shared; }

void AddUnderOwnLock(int thread)
{
    const QMutexLocker lock(&Own[thread]);
    ++Shared;
}

void AddUnderCommonLock(int)
{
    const QMutexLocker lock(&Common);
    ++Shared;
}

void AddUnderReadLock(int)
{
    const QReadLocker lock(&ReadWrite);
    ++Shared;
}

void AddUnderWriteLock(int)
{
    const QWriteLocker lock(&ReadWrite);
    ++Shared;
}

void LogThroughTheFacade(int) { TNEMADiagnosticLogProxy().Log("$", 1); }

void LogBesideTheFacade(int thread)
{
    if (thread == 0)
        LogThroughTheFacade(thread);
    else
        TargetOf<TDiagnosticLog>(TNEMADiagnosticLogProxy()).LogDiagnostic("$", 1);
}

void LockInOppositeOrders(int thread)
{
    const QMutexLocker outer(&Own[thread]);
    const QMutexLocker inner(&Own[1 - thread]);
}

void LockInOneOrder(int)
{
    const QMutexLocker outer(&Own[0]);
    const QMutexLocker inner(&Own[1]);
}

struct tagPlan
{
    const char* name;
    void (*step)(int thread);
};

constexpr tagPlan Plans[] = {
    {"without-lock", AddWithoutLock},            // a fault
    {"own-lock", AddUnderOwnLock},               // a fault
    {"common-lock", AddUnderCommonLock},         // both mended
    {"read-lock", AddUnderReadLock},             // a fault
    {"write-lock", AddUnderWriteLock},           // mended
    {"beside-the-facade", LogBesideTheFacade},   // a fault
    {"through-the-facade", LogThroughTheFacade}, // mended
    {"opposite-orders", LockInOppositeOrders},   // a fault
    {"one-order", LockInOneOrder},               // mended
};

// Whose turn it is. Both threads are alive at each step, the steps never meet, and relaxed access orders nothing else:
// the fault is found by what it is, not by chance.
std::atomic<int> Turn{0};

class TStep final : public QThread
{
public:
    TStep(const tagPlan& plan, int thread) : m_Plan(plan), m_Thread(thread) {}

private:
    void run() override
    {
        while (Turn.load(std::memory_order_relaxed) != m_Thread)
            yieldCurrentThread();
        m_Plan.step(m_Thread);
        Turn.store(m_Thread + 1, std::memory_order_relaxed);
        while (Turn.load(std::memory_order_relaxed) != 2)
            yieldCurrentThread();
    }

    const tagPlan& m_Plan;
    const int m_Thread;
};

void RunInTwoThreads(const tagPlan& plan)
{
    TStep first(plan, 0);
    TStep second(plan, 1);
    first.start();
    second.start();
    first.wait();
    second.wait();
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    TTestStore store;
    TTestClock::Reset();
    TSettings settings;
    Settings = &settings;
    TNEMADiagnosticLogProxy().Restore(folder.filePath(QLatin1String("NMEA.csv")), 0, 0);

    for (const tagPlan& plan : Plans) {
        if (argc != 2 || std::strcmp(argv[1], plan.name) != 0)
            continue;
        RunInTwoThreads(plan);
        std::fputs("both threads came to their end\n", stderr); // so nothing else went wrong
        return EXIT_SUCCESS;
    }
    return EXIT_FAILURE;
}
