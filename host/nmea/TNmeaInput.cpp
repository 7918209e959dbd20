#include "nmea/TNmeaInput.h"

#include "nmea/TFileSource.h"
#include "nmea/TNmeaStreamTime.h"
#include "nmea/TSerialSource.h"
#include "nmea/TTcpSource.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const double LongestWait = 60000; // milliseconds; QTimer counts them in an int

using ByteSourcePtr = std::unique_ptr<TByteSource>;

struct tagSourceMaker
{
    ByteSourcePtr operator()(const tagFileAddress& file) const { return std::make_unique<TFileSource>(file.path); }
    ByteSourcePtr operator()(const tagTcpAddress& server) const { return std::make_unique<TTcpSource>(server); }
    ByteSourcePtr operator()(const tagSerialAddress& line) const { return std::make_unique<TSerialSource>(line); }
};

} // namespace

TNmeaInput::TNmeaInput(const NmeaAddress& address, double speed, QObject* parent)
    : QObject(parent)
    , m_Speed(speed)
    , m_Source(std::visit(tagSourceMaker(), address))
    , m_DueAt(0)
    , m_IsRunning(false)
    , m_IsAtEnd(false)
{
    connect(m_Source.get(), &TByteSource::Received, this, &TNmeaInput::Take);
    connect(m_Source.get(), &TByteSource::Lost, this, &TNmeaInput::BreakLine);
    connect(m_Source.get(), &TByteSource::Regained, this, &TNmeaInput::SourceRegained);
    connect(m_Source.get(), &TByteSource::Ended, this, &TNmeaInput::TakeEnd);
    m_Timer.setSingleShot(true);
    m_Timer.setTimerType(Qt::PreciseTimer);
    connect(&m_Timer, &QTimer::timeout, this, &TNmeaInput::Step);
}

TNmeaInput::~TNmeaInput() = default;

void TNmeaInput::Start()
{
    m_IsRunning = true;
    m_Timer.start(0);
}

void TNmeaInput::Stop()
{
    if (m_IsRunning && !m_Source->IsRecording()) {
        TNmeaLineSplitter received = std::exchange(m_Splitter, TNmeaLineSplitter());
        for (QByteArray line = received.TakeLine(); !line.isEmpty(); line = received.TakeLine())
            emit LineReceived(line);
        const QByteArray rest = received.TakeRest();
        if (!rest.isEmpty())
            emit LineReceived(rest);
    }
    End(QString());
}

void TNmeaInput::Step()
{
    if (m_Waiting.isEmpty())
        m_Source->Read();
    else
        HandOn();
}

void TNmeaInput::Take(const QByteArray& bytes)
{
    if (m_Speed > 0 && !m_StreamTime && m_Source->IsRecording()) {
        m_StreamTime = std::make_unique<TNmeaStreamTime>();
        m_Elapsed.start();
    }
    m_Splitter.Append(bytes.constData(), static_cast<int>(bytes.size()));
    HandOn();
}

void TNmeaInput::BreakLine(const QString& reason)
{
    const QByteArray rest = m_Splitter.TakeRest();
    if (!rest.isEmpty())
        emit LineReceived(rest + (rest.endsWith('\r') ? "\n" : "\r\n"));
    if (m_IsRunning)
        emit SourceLost(reason);
}

void TNmeaInput::TakeEnd(const QString& error)
{
    m_IsAtEnd = true;
    if (error.isEmpty())
        HandOn();
    else
        End(error);
}

void TNmeaInput::HandOn()
{
    for (QByteArray line = NextLine(); !line.isEmpty(); line = NextLine()) {
        if (const double wait = Wait(); wait > 0) {
            m_Waiting = line;
            m_Timer.start(static_cast<int>(std::ceil(std::min(wait, LongestWait))));
            return;
        }
        emit LineReceived(line);
        if (!m_IsRunning)
            return;
    }
    if (m_IsAtEnd)
        End(QString());
    else if (m_Source->IsRecording())
        m_Timer.start(0);
}

QByteArray TNmeaInput::NextLine()
{
    if (!m_Waiting.isEmpty())
        return std::exchange(m_Waiting, QByteArray());
    QByteArray line = m_Splitter.TakeLine();
    if (line.isEmpty() && m_IsAtEnd)
        line = m_Splitter.TakeRest();
    if (m_StreamTime && !line.isEmpty())
        m_DueAt = static_cast<double>(m_StreamTime->Advance(line)) / m_Speed;
    return line;
}

/// Milliseconds until the line is due; 0 or less: now.
double TNmeaInput::Wait() const { return m_StreamTime ? m_DueAt - static_cast<double>(m_Elapsed.elapsed()) : 0; }

void TNmeaInput::End(const QString& error)
{
    if (!m_IsRunning)
        return;
    m_IsRunning = false;
    m_Timer.stop();
    m_Source->Close();
    emit Finished(error.isEmpty(), error);
}
