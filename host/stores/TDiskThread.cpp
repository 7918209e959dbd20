#include "stores/TDiskThread.h"

#include <QMutexLocker>

TDiskThread::TDiskThread() : m_Job(nullptr), m_IsEnding(false) { start(); }

TDiskThread::~TDiskThread()
{
    {
        const QMutexLocker lock(&m_Mutex);
        m_IsEnding = true;
        m_Changed.wakeAll();
    }
    wait();
}

void TDiskThread::Do(const std::function<void()>& job)
{
    const QMutexLocker lock(&m_Mutex);
    m_Job = &job;
    m_Changed.wakeAll();
    while (m_Job != nullptr)
        m_Changed.wait(&m_Mutex);
}

void TDiskThread::run()
{
    const QMutexLocker lock(&m_Mutex);
    for (;;) {
        while (m_Job == nullptr && !m_IsEnding)
            m_Changed.wait(&m_Mutex);
        if (m_Job == nullptr)
            return;
        (*m_Job)();
        m_Job = nullptr;
        m_Changed.wakeAll();
    }
}
