#include "TWatchdog.h"

#include "LockRecord.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using FClock = std::chrono::steady_clock;

const std::chrono::milliseconds Look{20};
constexpr auto Relaxed = std::memory_order_relaxed;

QByteArray HolderOf(const QByteArray& lock, const std::vector<LockRecord::tagThread>& threads)
{
    for (const LockRecord::tagThread& thread : threads) {
        if (thread.holds.contains(lock))
            return thread.name;
    }
    return "no thread";
}

} // namespace

TWatchdog::TWatchdog(int threadCount, std::chrono::milliseconds limit, const char* hint)
    : m_ThreadCount(threadCount)
    , m_Limit(limit)
    , m_Hint(hint)
    , m_Threads(new tagThread[static_cast<std::size_t>(threadCount)])
    , m_Watcher([this] { Watch(); })
{}

TWatchdog::~TWatchdog()
{
    m_Ended.store(true, Relaxed);
    m_Watcher.join();
}

void TWatchdog::Begins(int thread, const char* call)
{
    tagThread& watched = m_Threads[static_cast<std::size_t>(thread)];
    watched.call.store(call, Relaxed);
    watched.steps.fetch_add(1, Relaxed);
}

void TWatchdog::Ends(int thread) { m_Threads[static_cast<std::size_t>(thread)].call.store(nullptr, Relaxed); }

void TWatchdog::Watch()
{
    struct tagSeen
    {
        long steps;
        FClock::time_point since;
    };
    std::vector<tagSeen> seen(static_cast<std::size_t>(m_ThreadCount), {0, FClock::now()});
    while (!m_Ended.load(Relaxed)) {
        std::this_thread::sleep_for(Look);
        for (int i = 0; i < m_ThreadCount; ++i) {
            const tagThread& thread = m_Threads[static_cast<std::size_t>(i)];
            tagSeen& before = seen[static_cast<std::size_t>(i)];
            const char* const call = thread.call.load(Relaxed);
            const long steps = thread.steps.load(Relaxed);
            if (!call || steps != before.steps)
                before = {steps, FClock::now()};
            else if (FClock::now() - before.since > m_Limit)
                Report(i, call);
        }
    }
}

void TWatchdog::Report(int thread, const char* call) const
{
    std::fprintf(stderr, "thread %d has not returned from %s for %lld s; %s\n", thread, call,
                 static_cast<long long>(std::chrono::duration_cast<std::chrono::seconds>(m_Limit).count()), m_Hint);
    const std::vector<LockRecord::tagThread> threads = LockRecord::Threads();
    for (const LockRecord::tagThread& other : threads) {
        std::fprintf(stderr, "%s", other.name.constData());
        if (!other.holds.isEmpty())
            std::fprintf(stderr, " holds \"%s\"", other.holds.join("\", \"").constData());
        if (!other.waitsFor.isEmpty())
            std::fprintf(stderr, "%s waits for \"%s\", which %s holds", other.holds.isEmpty() ? "" : " and",
                         other.waitsFor.constData(), HolderOf(other.waitsFor, threads).constData());
        std::fputc('\n', stderr);
    }
    if (!LockRecord::SeesLocks)
        std::fputs("the locks of this version of Qt cannot be seen\n", stderr);
    std::_Exit(EXIT_FAILURE);
}
