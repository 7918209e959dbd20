#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>

#include <atomic>
#include <functional>

#include <sys/syscall.h>
#include <unistd.h>

/// Makes one call in a thread of its own, and tells from outside whether it has returned or in which system call the
/// thread sleeps. So a test can see that a call waits for a lock, where the clock could only make it likely.
class TCallThread final : public QThread
{
public:
    /// Whether the kernel tells what SleepsIn() needs.
    static bool IsObservable() { return QFile(QLatin1String("/proc/self/syscall")).open(QIODevice::ReadOnly); }

    explicit TCallThread(const std::function<void()>& call) : m_Call(call), m_ThreadID(0), m_HasReturned(false)
    {
        start();
    }

    ~TCallThread() override { wait(); }

    bool HasReturned() const { return m_HasReturned; }

    /// Number and first argument of the system call the thread sleeps in, "202 0x7f00…"; empty while it runs. For a
    /// futex the argument is the address of the word waited for.
    QByteArray SleepsIn() const
    {
        if (m_ThreadID == 0)
            return QByteArray();
        QFile file(QString::fromLatin1("/proc/self/task/%1/syscall").arg(m_ThreadID.load()));
        if (!file.open(QIODevice::ReadOnly))
            return QByteArray();
        const QList<QByteArray> fields = file.readAll().split(' ');
        const bool isInCall = fields.size() > 2 && !fields[0].startsWith('-'); // else running, or at a page fault
        return isInCall ? fields[0] + ' ' + fields[1] : QByteArray();
    }

private:
    void run() override
    {
        m_ThreadID = syscall(SYS_gettid);
        m_Call();
        m_HasReturned = true;
    }

    std::function<void()> m_Call;
    std::atomic<long> m_ThreadID;
    std::atomic<bool> m_HasReturned;
};

/// Recognises a thread that waits for a mutex.
class TMutexWatch
{
public:
    /// Learns the place from a thread that does nothing but wait for @p mutex, which must be free.
    explicit TMutexWatch(QMutex& mutex)
    {
        mutex.lock();
        TCallThread waiting([&mutex] {
            mutex.lock();
            mutex.unlock();
        });
        while (m_Place.isEmpty()) {
            QThread::yieldCurrentThread();
            m_Place = waiting.SleepsIn();
        }
        mutex.unlock();
    }

    bool IsAwaitedBy(const TCallThread& thread) const { return thread.SleepsIn() == m_Place; }

private:
    QByteArray m_Place;
};
