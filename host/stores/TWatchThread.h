#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <functional>

/// Looks at something several times a second, in a thread of its own, until it is destroyed.
class TWatchThread : private QThread
{
public:
    explicit TWatchThread(std::function<void()> look);

    /// Waits for a look that is under way.
    ~TWatchThread() override;

private:
    void run() override;

    const std::function<void()> m_Look;
    QMutex m_Mutex;
    QWaitCondition m_Ended;
    bool m_IsEnding;
};
