#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <chrono>

/// Turns the first interrupt, termination or hang-up signal into the end of the event loop, so that the program can
/// close its logs and print its results. Further signals do nothing for the next five seconds. After that, one more
/// signal ends the program at once, for an end that hangs.
///
/// Construct it once, in the main thread, before any other thread starts. The signals stay under its control until the
/// process ends, also when it is destroyed before.
class TQuitOnSignal : public QObject
{
    Q_OBJECT

public:
    /// @param patience time after the first signal in which further signals do nothing.
    explicit TQuitOnSignal(std::chrono::milliseconds patience = std::chrono::seconds(5));

private:
    int m_Fd; ///< readable after the first signal; stays open for the thread that waits for signals
    QSocketNotifier m_Notifier;
};
