#pragma once

#include "nmea/TFieldSimulator.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// The stream of a simulated receiver, at the pace of its plan. Works in the event loop of its thread.
class TSimulatedInput : public QObject
{
    Q_OBJECT

public:
    explicit TSimulatedInput(const tagFieldPlan& plan);

    /// Emits the first epoch as soon as the event loop runs.
    void Start();

signals:
    void LineReceived(const QByteArray& line);

    /// The tractor has reached the end of the last pass.
    void Finished();

private:
    void EmitDue();

    TFieldSimulator m_Simulator;
    const int m_Rate; ///< epochs per second
    qint64 m_Epochs;  ///< emitted
    QElapsedTimer m_Elapsed;
    QTimer m_Timer;
};
