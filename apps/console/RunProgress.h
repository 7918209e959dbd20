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

private:
    void Show();

    const TNmeaReceiver& m_Receiver;
    QTimer m_Timer;
    bool m_IsShown;
};
