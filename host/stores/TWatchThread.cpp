#include "stores/TWatchThread.h"

#include <QMutexLocker>

#include <utility>

namespace {

const unsigned long PauseMilliseconds = 250;

} // namespace

TWatchThread::TWatchThread(std::function<void()> look) : m_Look(std::move(look)), m_IsEnding(false) { start(); }

TWatchThread::~TWatchThread()
{
    {
        const QMutexLocker lock(&m_Mutex);
        m_IsEnding = true;
        m_Ended.wakeAll();
    }
    wait();
}

void TWatchThread::run()
{
    QMutexLocker lock(&m_Mutex);
    while (!m_IsEnding) {
        lock.unlock();
        m_Look();
        lock.relock();
        if (!m_IsEnding)
            m_Ended.wait(&m_Mutex, PauseMilliseconds);
    }
}
