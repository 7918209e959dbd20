#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <functional>

/// Calls a function four times a second, in a thread of its own, until the object is destroyed.
class TWatchThread : private QThread
{
public:
    explicit TWatchThread(std::function<void()> look);

    /// Waits until a call that is in progress has ended.
    ~TWatchThread() override;

private:
    void run() override;

    const std::function<void()> m_Look;
    QMutex m_Mutex;
    QWaitCondition m_Ended;
    bool m_IsEnding;
};
