#include "receiver/TSimulatedInput.h"

#include "nmea/TNmeaLineSplitter.h"

namespace {

const int MillisecondsPerSecond = 1000;

} // namespace

TSimulatedInput::TSimulatedInput(const tagFieldPlan& plan) : m_Simulator(plan), m_Rate(plan.rate), m_Epochs(0)
{
    m_Timer.setTimerType(Qt::PreciseTimer);
    connect(&m_Timer, &QTimer::timeout, this, &TSimulatedInput::EmitDue);
}

void TSimulatedInput::Start()
{
    m_Elapsed.start();
    m_Timer.start(MillisecondsPerSecond / m_Rate);
    QTimer::singleShot(0, this, &TSimulatedInput::EmitDue);
}

/// All epochs whose time has come: a machine that was busy for a moment leaves no gap.
void TSimulatedInput::EmitDue()
{
    TNmeaLineSplitter lines;
    while (!m_Simulator.AtEnd() && m_Epochs * MillisecondsPerSecond <= m_Elapsed.elapsed() * m_Rate) {
        const QByteArray epoch = m_Simulator.NextEpoch();
        ++m_Epochs;
        lines.Append(epoch.constData(), static_cast<int>(epoch.size()));
        for (QByteArray line = lines.TakeLine(); !line.isEmpty(); line = lines.TakeLine())
            emit LineReceived(line);
    }
    if (m_Simulator.AtEnd() && m_Timer.isActive()) {
        m_Timer.stop();
        emit Finished();
    }
}
