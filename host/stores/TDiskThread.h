#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <functional>

/// A thread that runs jobs for other threads, because a database connection can be used by one thread only.
class TDiskThread : private QThread
{
public:
    TDiskThread();
    ~TDiskThread() override;

    /// Runs @p job in the thread and returns when it has ended. One caller at a time.
    void Do(const std::function<void()>& job);

private:
    void run() override;

    QMutex m_Mutex;
    QWaitCondition m_Changed;
    const std::function<void()>* m_Job; // null while there is no job
    bool m_IsEnding;
};
