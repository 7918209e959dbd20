#pragma once

#include <QObject>
#include <QSocketNotifier>

/// While it lives, an interrupt or a request to terminate quits the application's event loop, so that a run ends in
/// good order: logs closed, summary printed.
class TQuitOnSignal : public QObject
{
    Q_OBJECT

public:
    TQuitOnSignal();
    ~TQuitOnSignal() override;
    TQuitOnSignal(const TQuitOnSignal&) = delete;
    TQuitOnSignal& operator=(const TQuitOnSignal&) = delete;

private:
    int m_Fd;
    QSocketNotifier m_Notifier;
};
