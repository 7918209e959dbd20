#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

/// Ends the program with a failure when one of its threads makes no more calls. It prints which thread, which call, the
/// lock that the thread waits for and the thread that holds it, as LockRecord knows them:
///
///     TWatchdog watchdog(2, std::chrono::minutes(1), "CABSETTINGS_TEST_SEED=1");
///     // in thread 0:
///     LockRecord::NameThread("thread 0");
///     watchdog.Begins(0, "GetDefaultJobName");
///     system.GetDefaultJobName();
///     watchdog.Ends(0);
///
/// A thread is watched from its first call until Ends(). The limit is no measure of speed: it is far longer than a call
/// takes on the slowest machine, and only what never returns meets it.
class TWatchdog
{
public:
    /// @param hint is printed with the report, for instance how to run the program again.
    TWatchdog(int threadCount, std::chrono::milliseconds limit, const char* hint);
    ~TWatchdog();

    TWatchdog(const TWatchdog&) = delete;
    TWatchdog& operator=(const TWatchdog&) = delete;

    /// @p call is a text that is never freed.
    void Begins(int thread, const char* call);
    void Ends(int thread);

private:
    struct tagThread
    {
        std::atomic<const char*> call{nullptr}; ///< null while the thread is not watched
        std::atomic<long> steps{0};
    };

    void Watch();
    [[noreturn]] void Report(int thread, const char* call) const;

    const int m_ThreadCount;
    const std::chrono::milliseconds m_Limit;
    const char* const m_Hint;
    std::unique_ptr<tagThread[]> m_Threads;
    std::atomic<bool> m_Ended{false};
    std::thread m_Watcher; // last, so that it finds everything constructed
};
