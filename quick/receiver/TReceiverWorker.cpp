#include "receiver/TReceiverWorker.h"

#include "nmea/NmeaAddress.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/RecordedTime.h"
#include "nmea/TNmeaInput.h"
#include "nmea/TNmeaLineSplitter.h"
#include "parameters/ParameterRows.h"
#include "receiver/SimulatedField.h"
#include "receiver/TSimulatedInput.h"
#include "sun/TDaySwitch.h"

#include <cmath>

namespace {

const double PaceOfRecording = 1;

/// The time of day of a sentence that has a position, which all sentences of an epoch share. Empty for other lines.
QByteArray EpochOf(const QByteArray& line)
{
    const QByteArray type = line.mid(3, 4);
    if ((type != "RMC," && type != "GGA,") || CheckNmeaLine(line) != NMEA_RIGHT_CHECKSUM)
        return QByteArray();
    return line.split(',').at(1);
}

} // namespace

TReceiverWorker::TReceiverWorker(TParameterStore& store, const QString& address) : m_Store(store), m_Address(address)
{
    m_Delivery.setParent(this); // goes to another thread with this object
    m_Delivery.setSingleShot(true);
    connect(&m_Delivery, &QTimer::timeout, this, &TReceiverWorker::Deliver);
}

TReceiverWorker::~TReceiverWorker()
{
    m_Simulator.reset();
    if (m_Input)
        m_Input->Stop();
    if (m_Receiver)
        m_Receiver->Finish();
}

void TReceiverWorker::Start()
{
    if (m_Address == QLatin1String(ParameterRows::SimulatorAddress))
        StartSimulator();
    else
        StartInput();
}

/// Its times are those of the machine's clock, which may be wrong. As a recording's they do not decide which times of a
/// real receiver are refused later.
void TReceiverWorker::StartSimulator()
{
    m_Receiver = std::make_unique<TNmeaReceiver>(NMEA_RECORDED);
    m_DaySwitch = std::make_unique<TDaySwitch>(m_Store, TDaySwitch::TIMES_OF_TODAY);
    m_Simulator = std::make_unique<TSimulatedInput>(CabQuick::SimulatedPlan());
    connect(m_Simulator.get(), &TSimulatedInput::LineReceived, this, &TReceiverWorker::Take);
    connect(m_Simulator.get(), &TSimulatedInput::Finished, this, [this] {
        Deliver();
        emit Ended(QString());
    });
    m_Simulator->Start();
}

void TReceiverWorker::StartInput()
{
    QString error;
    const auto address = ReadNmeaAddress(m_Address, &error);
    if (!address) {
        emit Ended(error);
        return;
    }
    const bool isRecording = IsRecording(*address);
    const QDateTime begin = isRecording ? FirstRecordedTime(*address) : QDateTime();
    if (begin.isValid())
        BeginClockAt(begin, m_Store);
    m_Receiver = std::make_unique<TNmeaReceiver>(isRecording ? NMEA_RECORDED : NMEA_LIVE);
    m_DaySwitch = std::make_unique<TDaySwitch>(m_Store, isRecording ? TDaySwitch::TIMES_OF_A_RECORDING
                                                                    : TDaySwitch::TIMES_OF_TODAY);
    m_Input = std::make_unique<TNmeaInput>(*address, PaceOfRecording);
    connect(m_Input.get(), &TNmeaInput::LineReceived, this, &TReceiverWorker::Take);
    connect(m_Input.get(), &TNmeaInput::SourceLost, this, &TReceiverWorker::Lost);
    connect(m_Input.get(), &TNmeaInput::SourceRegained, this, &TReceiverWorker::Regained);
    connect(m_Input.get(), &TNmeaInput::Finished, this, [this](bool, const QString& problem) {
        Deliver();
        emit Ended(problem);
    });
    m_Input->Start();
}

void TReceiverWorker::Play(const QByteArray& sentences)
{
    if (!m_Receiver)
        m_Receiver = std::make_unique<TNmeaReceiver>(NMEA_RECORDED);
    TNmeaLineSplitter lines;
    lines.Append(sentences.constData(), static_cast<int>(sentences.size()));
    for (QByteArray line = lines.TakeLine(); !line.isEmpty(); line = lines.TakeLine())
        Take(line);
    Deliver();
}

void TReceiverWorker::Take(const QByteArray& line)
{
    const QByteArray epoch = EpochOf(line);
    if (!epoch.isEmpty() && epoch != m_Epoch) {
        if (m_Received.isPosition)
            Deliver();
        m_Epoch = epoch;
    }
    m_Receiver->Receive(line);
    m_Received.status = m_Receiver->GetStatus();
    if (const auto quality = ReadFixQuality(line))
        m_Received.quality = *quality;
    const TNmeaReceiver::tagStatus& status = m_Received.status;
    if (!epoch.isEmpty() && status.hasFix && !std::isnan(status.latitude)) {
        m_Received.isPosition = true;
        if (m_DaySwitch)
            m_DaySwitch->Look({status.latitude, status.longitude}, status.utc);
    }
    if (!m_Delivery.isActive())
        m_Delivery.start(0);
}

void TReceiverWorker::Deliver()
{
    m_Delivery.stop();
    if (m_Received.status.lines == 0)
        return;
    emit Received(m_Received);
    m_Received.isPosition = false;
}
