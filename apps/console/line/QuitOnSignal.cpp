#include "console/line/QuitOnSignal.h"

#include <QCoreApplication>

#include <csignal>
#include <sys/eventfd.h>
#include <thread>

namespace {

bool IsIgnored(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

sigset_t EndingSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigaddset(&ending, SIGTERM);
    if (!IsIgnored(SIGHUP)) // nohup asks for that
        sigaddset(&ending, SIGHUP);
    return ending;
}

/// Ends the process by the signal, also when the program was started with that signal ignored.
void EndBy(int signal)
{
    std::signal(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
    raise(signal);
}

/// Runs in a thread of its own, so that it works while the main thread hangs, and no call of another thread is
/// interrupted.
void WaitForSignals(const sigset_t& ending, int fd, std::chrono::milliseconds patience)
{
    int signal = 0;
    sigwait(&ending, &signal);
    const auto first = std::chrono::steady_clock::now();
    eventfd_write(fd, 1);
    do
        sigwait(&ending, &signal);
    while (std::chrono::steady_clock::now() - first < patience);
    EndBy(signal);
}

} // namespace

TQuitOnSignal::TQuitOnSignal(std::chrono::milliseconds patience)
    : m_Fd(eventfd(0, EFD_CLOEXEC)), m_Notifier(m_Fd, QSocketNotifier::Read)
{
    connect(&m_Notifier, &QSocketNotifier::activated, this, [this] {
        m_Notifier.setEnabled(false);
        QCoreApplication::quit();
    });
    const sigset_t ending = EndingSignals();
    pthread_sigmask(SIG_BLOCK, &ending, nullptr); // the threads that start from here on inherit it
    std::thread(WaitForSignals, ending, m_Fd, patience).detach();
}
