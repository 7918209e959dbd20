#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <functional>

/// A thread that does jobs for others, one after the other: a database connection can be used by one thread alone.
class TDiskThread : private QThread
{
public:
    TDiskThread();
    ~TDiskThread() override;

    /// Returns when @p job is done. One caller at a time.
    void Do(const std::function<void()>& job);

private:
    void run() override;

    QMutex m_Mutex;
    QWaitCondition m_Changed;
    const std::function<void()>* m_Job; // null when there is nothing to do
    bool m_IsEnding;
};
