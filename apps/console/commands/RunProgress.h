#pragma once

#include "nmea/TNmeaReceiver.h"

#include <QObject>
#include <QTimer>

/// Shows the progress of a run in one line on the terminal: lines received, fix, clock, log file. Shows nothing when
/// standard error is not a terminal.
class TRunProgress : public QObject
{
    Q_OBJECT

public:
    explicit TRunProgress(const TNmeaReceiver& receiver);

    /// Removes the line from the terminal.
    ~TRunProgress() override;

    /// Writes a message to standard error, after the program's name, in place of the line.
    void Say(const QString& text);

private:
    void Show();
    void Wipe();

    const TNmeaReceiver& m_Receiver;
    QTimer m_Timer;
    bool m_IsShown;
};
