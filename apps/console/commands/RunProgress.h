#pragma once

#include "nmea/TNmeaReceiver.h"

#include <QObject>
#include <QTimer>

/// A line on the terminal that tells how a run is going: lines, fix, clock, log files. Quiet when standard error is no
/// terminal.
class TRunProgress : public QObject
{
    Q_OBJECT

public:
    explicit TRunProgress(const TNmeaReceiver& receiver);

    /// Wipes the line from the terminal.
    ~TRunProgress() override;

    /// Says one line on standard error, whatever it is, behind the program's name; what is shown makes way for it.
    void Say(const QString& text);

private:
    void Show();
    void Wipe();

    const TNmeaReceiver& m_Receiver;
    QTimer m_Timer;
    bool m_IsShown;
};
