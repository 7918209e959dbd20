#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>

#include <memory>

/// A thread that works for the module, so that the display never waits for a drive. It does one job after the other.
///
/// @code
/// TBackground::Lane("fields").Run(
///     this, [&store] { return ListFields(store); }, [this](const TItems& items) { Show(items); });
/// @endcode
class TBackground : public QObject
{
    Q_OBJECT

public:
    /// The thread with this name; made at its first use. Jobs of different lanes do not wait for each other. At the end
    /// of the module the jobs that have not begun are dropped, and the one in work is waited for.
    static TBackground& Lane(const char* name);

    /// Whether a lane has a job whose result has not been taken. Call it in the thread of the module.
    static bool IsBusy();

    explicit TBackground(QObject* parent);
    ~TBackground() override;

    TBackground(const TBackground&) = delete;
    TBackground& operator=(const TBackground&) = delete;

    /// Runs @p job in the thread, and then @p take with its result in the thread of the module, unless @p owner has
    /// been destroyed meanwhile. Call it in the thread of the module.
    /// @param job must not use @p owner.
    template <class Job, class Take>
    void Run(QObject* owner, Job job, Take take)
    {
        const QPointer<QObject> keeper(owner);
        ++m_Jobs;
        Post([this, keeper, job, take] {
            auto result = job();
            QMetaObject::invokeMethod(
                this,
                [this, keeper, take, result] {
                    --m_Jobs;
                    if (keeper)
                        take(result);
                },
                Qt::QueuedConnection);
        });
    }

    /// Calls @p take in the thread of the module unless @p owner has been destroyed; for the progress of a job, which
    /// calls it.
    template <class Take>
    void Tell(const QPointer<QObject>& owner, Take take)
    {
        QMetaObject::invokeMethod(
            this,
            [owner, take] {
                if (owner)
                    take();
            },
            Qt::QueuedConnection);
    }

private:
    template <class Job>
    void Post(Job job)
    {
        QMetaObject::invokeMethod(m_Worker.get(), job, Qt::QueuedConnection);
    }

    int m_Jobs = 0; ///< whose result has not been taken
    QThread m_Thread;
    std::unique_ptr<QObject> m_Worker; ///< in the thread
};
