#include "terminal/TProblemWatch.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "module/TBackground.h"
#include "module/TParameterHub.h"
#include "stores/TSqliteStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/SizeText.h"
#include "terminal/TProblems.h"
#include "texts/HostText.h"
#include "transfer/TransferProblem.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

const int LookMs = 1000;

/// A drive is nearly full when less is free than this part of it, and than this many bytes. It is not any more when a
/// tenth more is free, so that the message does not come and go.
const int NearlyFullPart = 20;
const qint64 NearlyFullBytes = 1000000000;
const int HysteresisPart = 10;

/// A loss of lines is said until so many looks have found no further one.
const int LooksOfLoss = 5;

const char* const LogsText =
    QT_TRANSLATE_NOOP("Problems", "The logs lose lines: their drive is full or cannot be written.");

QString Translated(const char* text) { return QCoreApplication::translate("Problems", text); }

} // namespace

TProblemWatch::TProblemWatch(TProblems& problems)
    : QObject(&problems), m_Problems(problems), m_LooksSinceLoss(LooksOfLoss)
{
    m_Timer.setSingleShot(true);
    m_Timer.setInterval(LookMs);
    connect(&m_Timer, &QTimer::timeout, this, &TProblemWatch::Look);
    Look();
}

TProblemWatch::tagLook TProblemWatch::LookNow(TSqliteStore& store)
{
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    const TDiagnosticLog::tagState user = userLog.GetState();
    const TDiagnosticLog::tagState nmea = nmeaLog.GetState();
    const TSystemSettingsProxy system;
    if (!store.WriteFailure().isEmpty())
        store.WriteOutstanding();
    return {Storage::InternalDrive().space,
            Storage::Stick().isMounted,
            user.lostLines + nmea.lostLines,
            user.hasFailed || nmea.hasFailed,
            system.IsLowFlashRecordingOff() || system.IsLowRAMRecordingOff(),
            store.WriteFailure()};
}

void TProblemWatch::Look()
{
    TSqliteStore& store = TParameterHub::Instance().Store();
    const tagStickProblems before = {m_Problems.Appearance(StickProblem), m_Problems.Appearance(NoStickProblem)};
    TBackground::Lane("problems")
        .Run(
            this, [&store] { return LookNow(store); }, [this, before](const tagLook& look) { Take(look, before); });
}

void TProblemWatch::Take(const tagLook& look, const tagStickProblems& before)
{
    TakeDrive(look.drive);
    TakeStick(look.hasStick, before);
    TakeLogs(look);
    m_Problems.Keep(QLatin1String("recording"), look.isRecordingOff,
                    Translated(QT_TRANSLATE_NOOP("Problems", "Recording is off, because there is too little room.")));
    m_Problems.Keep(QLatin1String("store"), !look.writeFailure.isEmpty(),
                    Translated(QT_TRANSLATE_NOOP("Problems", "Changes of settings are not stored yet. %1"))
                        .arg(CabQuick::HostText(look.writeFailure)));
    m_Timer.start();
}

/// A look that began before the problem came says nothing of it: the stick may have come or gone since.
void TProblemWatch::TakeStick(bool hasStick, const tagStickProblems& before)
{
    const QLatin1String over = hasStick ? NoStickProblem : StickProblem;
    const int appearance = m_Problems.Appearance(over);
    if (appearance != 0 && appearance == (hasStick ? before.withoutStick : before.withStick))
        m_Problems.Clear(over);
}

void TProblemWatch::TakeDrive(const std::optional<tagSpace>& drive)
{
    if (!drive)
        return;
    const qint64 least = std::min(drive->total / NearlyFullPart, NearlyFullBytes);
    m_IsNearlyFull = drive->free < (m_IsNearlyFull ? least + least / HysteresisPart : least);
    m_Problems.Keep(QLatin1String("drive"), m_IsNearlyFull,
                    Translated(QT_TRANSLATE_NOOP("Problems", "The drive of the terminal is nearly full. Free: %1"))
                        .arg(SizeText(drive->free)));
}

void TProblemWatch::TakeLogs(const tagLook& look)
{
    m_LooksSinceLoss = look.lostLines > m_LostLines ? 0 : m_LooksSinceLoss + 1;
    m_LostLines = look.lostLines;
    m_Problems.Keep(QLatin1String("logs"), look.hasFailedLog || m_LooksSinceLoss < LooksOfLoss, Translated(LogsText));
}
