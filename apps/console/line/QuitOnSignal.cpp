#include "console/line/QuitOnSignal.h"

#include <QCoreApplication>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t EndingSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigaddset(&ending, SIGTERM);
    sigaddset(&ending, SIGHUP);
    return ending;
}

/// Keeps the signals from ending the program, and gives a descriptor on which they arrive instead.
int Intercept()
{
    const sigset_t ending = EndingSignals();
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);
    return signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

TQuitOnSignal::TQuitOnSignal() : m_Fd(Intercept()), m_Notifier(m_Fd, QSocketNotifier::Read)
{
    connect(&m_Notifier, &QSocketNotifier::activated, this, [this] {
        signalfd_siginfo info;
        if (read(m_Fd, &info, sizeof info) > 0)
            QCoreApplication::quit();
    });
}

TQuitOnSignal::~TQuitOnSignal()
{
    m_Notifier.setEnabled(false);
    close(m_Fd);
    const sigset_t ending = EndingSignals();
    pthread_sigmask(SIG_UNBLOCK, &ending, nullptr);
}
