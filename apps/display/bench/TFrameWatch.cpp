#include "display/bench/TFrameWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

#include <ctime>

namespace {

constexpr int PatienceMilliseconds = 10 * 1000;

double Milliseconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

tagFrameTime Now() { return {Milliseconds(CLOCK_MONOTONIC), Milliseconds(CLOCK_PROCESS_CPUTIME_ID)}; }

} // namespace

TFrameWatch::TFrameWatch(QQuickWindow& window) : m_Window(window) { window.installEventFilter(this); }

std::optional<tagFrameTime> TFrameWatch::Frame(const std::function<void()>& change)
{
    QCoreApplication::processEvents(); // what was asked for before
    const tagFrameTime start = Now();
    change();
    const tagFrameTime changed = Now();
    m_Asked = changed;

    std::optional<tagFrameTime> drawn;
    QEventLoop loop;
    QTimer::singleShot(PatienceMilliseconds, &loop, &QEventLoop::quit);
    connect(&m_Window, &QQuickWindow::frameSwapped, &loop, [&] {
        drawn = Now();
        loop.quit();
    });
    m_Window.update();
    loop.exec();
    if (!drawn)
        return {};
    return tagFrameTime{changed.elapsed - start.elapsed + drawn->elapsed - m_Asked.elapsed,
                        changed.worked - start.worked + drawn->worked - m_Asked.worked};
}

bool TFrameWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::UpdateRequest)
        m_Asked = Now();
    return QObject::eventFilter(object, event);
}
