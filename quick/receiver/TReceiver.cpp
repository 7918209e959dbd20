#include "receiver/TReceiver.h"

#include "module/CabQuick.h"
#include "module/SharedObject.h"
#include "parameters/HostParameters.h"
#include "platform/TConfigManager.h"
#include "receiver/ReceiverTexts.h"
#include "receiver/TReceiverWorker.h"
#include "stores/TSqliteStore.h"
#include "terminal/TProblems.h"

#include <QLocale>

#include <cmath>

namespace {

const int TickMs = 500;
const double MillisecondsPerSecond = 1000;
const double LongestInterval = 10; ///< seconds; a longer step is no interval but a gap
const double FirstInterval = 1;

const QString ProblemKey = QLatin1String("receiver");

bool AreSame(double one, double other) { return one == other || (std::isnan(one) && std::isnan(other)); }

} // namespace

TReceiver::TReceiver(QObject* parent)
    : QObject(parent), m_Age(std::numeric_limits<double>::quiet_NaN()), m_Interval(FirstInterval)
{
    qRegisterMetaType<tagReceived>();
    m_Thread.setObjectName(QLatin1String("receiver"));
    m_Thread.start();
    m_Timer.setInterval(TickMs);
    connect(&m_Timer, &QTimer::timeout, this, &TReceiver::Tick);
    m_Address = ConfigManager->GetParameter(PARAM_RECEIVER_ADDRESS).toString();
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        if (number == PARAM_RECEIVER_ADDRESS)
            FollowAddress();
    });
}

TReceiver::~TReceiver()
{
    m_Link.reset();
    m_Thread.quit(); // the worker is destroyed at the end of its thread, and ends its stream
    m_Thread.wait();
}

void TReceiver::SetRunning(bool isRunning)
{
    if (isRunning == m_IsRunning)
        return;
    m_IsRunning = isRunning;
    if (isRunning)
        Start();
    else
        Stop();
    emit runningChanged();
}

void TReceiver::FollowAddress()
{
    const QString address = ConfigManager->GetParameter(PARAM_RECEIVER_ADDRESS).toString();
    if (address == m_Address)
        return;
    m_Address = address;
    emit addressChanged();
    if (m_IsRunning) {
        Stop();
        Start();
    }
}

void TReceiver::Show(const QByteArray& sentences)
{
    if (m_IsRunning)
        return;
    if (!m_Player) {
        m_Player = std::make_unique<TReceiverWorker>(TParameterHub::Instance().Store(), m_Address);
        connect(m_Player.get(), &TReceiverWorker::Received, this, &TReceiver::Take);
    }
    m_Player->Play(sentences);
    TellCounts();
}

void TReceiver::Start()
{
    m_Player.reset();
    auto* const worker = new TReceiverWorker(TParameterHub::Instance().Store(), m_Address);
    m_Link = std::make_unique<QObject>();
    QObject* const link = m_Link.get();
    connect(worker, &TReceiverWorker::Received, link, [this](const tagReceived& received) { Take(received); });
    connect(worker, &TReceiverWorker::Lost, link,
            [this](const QString& reason) { SetState(STATE_LOST, ReceiverTexts::Lost(reason)); });
    connect(worker, &TReceiverWorker::Regained, link, [this] { SetState(STATE_CONNECTING); });
    connect(worker, &TReceiverWorker::Ended, link, [this](const QString& error) { TakeEnd(error); });
    worker->moveToThread(&m_Thread);
    connect(&m_Thread, &QThread::finished, worker, &QObject::deleteLater);
    connect(link, &QObject::destroyed, worker, &QObject::deleteLater); // in the worker's thread
    QMetaObject::invokeMethod(worker, &TReceiverWorker::Start, Qt::QueuedConnection);

    m_Status = TNmeaReceiver::tagStatus();
    m_SincePosition.invalidate();
    m_Interval = FirstInterval;
    m_SinceLine.start();
    TellCounts();
    TellAge();
    m_Timer.start();
    SetState(STATE_CONNECTING);
}

void TReceiver::Stop()
{
    m_Link.reset();
    m_Timer.stop();
    SetState(STATE_OFF);
}

void TReceiver::Take(const tagReceived& received)
{
    m_SinceLine.start();
    const QDateTime before = m_Status.utc;
    TakeFix(received.status, received.quality, true);
    SetState(STATE_RECEIVING);
    if (!received.isPosition)
        return;
    TakeInterval(before);
    m_SincePosition.start();
    TellAge();
    const QString utc = QLocale::c().toString(m_Status.utc, QLatin1String("yyyy-MM-dd HH:mm:ss"));
    if (utc != m_Utc) {
        m_Utc = utc;
        emit utcChanged();
    }
    emit positionChanged();
}

/// By the times of the receiver, which are exact, if they follow each other; else by those of their arrival.
void TReceiver::TakeInterval(const QDateTime& before)
{
    double interval = static_cast<double>(before.msecsTo(m_Status.utc)) / MillisecondsPerSecond;
    if (!before.isValid() || interval <= 0)
        interval = m_SincePosition.isValid() ? static_cast<double>(m_SincePosition.elapsed()) / MillisecondsPerSecond
                                             : FirstInterval;
    if (interval <= LongestInterval)
        m_Interval = interval;
}

void TReceiver::TakeFix(const TNmeaReceiver::tagStatus& status, const tagFixQuality& quality, bool isCurrent)
{
    const tagFix before = {HasFix(), Quality(), Satellites(), Hdop()};
    m_Status = status;
    m_Quality = quality;
    m_IsCurrent = isCurrent;
    if (before.hasFix != HasFix() || before.quality != Quality() || before.satellites != Satellites() ||
        !AreSame(before.hdop, Hdop()))
        emit fixChanged();
}

void TReceiver::TakeEnd(const QString& error)
{
    m_Timer.stop();
    TellCounts();
    if (error.isEmpty())
        SetState(STATE_ENDED, ReceiverTexts::Ended(m_Address));
    else
        SetState(STATE_LOST, ReceiverTexts::Unreadable(error));
}

void TReceiver::SetState(EState state, const QString& reason)
{
    if (state == m_State && reason == m_Reason)
        return;
    m_State = state;
    m_Reason = reason;
    if (state != STATE_RECEIVING)
        TakeFix(m_Status, m_Quality, false);
    SharedObject<TProblems>()->Keep(ProblemKey, !reason.isEmpty(), reason);
    emit stateChanged();
}

void TReceiver::Tick()
{
    TellCounts();
    TellAge();
    const bool waits = m_State == STATE_CONNECTING || m_State == STATE_RECEIVING;
    if (waits && m_SinceLine.elapsed() >= SilenceMs)
        SetState(STATE_SILENT, ReceiverTexts::Silent());
}

void TReceiver::TellAge()
{
    double age = std::numeric_limits<double>::quiet_NaN();
    if (m_SincePosition.isValid()) {
        const double elapsed = static_cast<double>(m_SincePosition.elapsed()) / MillisecondsPerSecond;
        age = elapsed < m_Interval + FirstInterval ? m_Interval : elapsed;
    }
    if (AreSame(age, m_Age))
        return;
    m_Age = age;
    m_AgeText = ReceiverTexts::Age(age);
    emit ageChanged();
}

void TReceiver::TellCounts()
{
    const bool isChanged = m_Counts.lines != m_Status.lines;
    m_Counts = m_Status;
    if (isChanged)
        emit countsChanged();
}

QString TReceiver::StateName() const { return ReceiverTexts::StateName(m_State); }
QString TReceiver::StateText() const { return ReceiverTexts::StateText(m_State); }
QString TReceiver::FixText() const { return ReceiverTexts::Fix(Quality(), HasFix()); }

QString TReceiver::HdopText() const { return ReceiverTexts::Dilution(Hdop()); }
QString TReceiver::SatellitesText() const { return ReceiverTexts::Count(Satellites()); }
QString TReceiver::LinesText() const { return ReceiverTexts::Count(Lines()); }
QString TReceiver::SentencesText() const { return ReceiverTexts::Count(Sentences()); }
QString TReceiver::BadChecksumsText() const { return ReceiverTexts::Count(BadChecksums()); }
QString TReceiver::DamagedLinesText() const { return ReceiverTexts::Count(DamagedLines()); }

TReceiver& CabQuick::Receiver() { return *SharedObject<TReceiver>(); }
