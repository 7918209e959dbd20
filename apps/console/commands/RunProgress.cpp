#include "console/commands/RunProgress.h"

#include "logs/TLogSeries.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace {

const int IntervalMs = 200;
const char* const WipeLine = "\r\033[K";

} // namespace

TRunProgress::TRunProgress(const TNmeaReceiver& receiver) : m_Receiver(receiver), m_IsShown(false)
{
    if (!isatty(STDERR_FILENO))
        return;
    connect(&m_Timer, &QTimer::timeout, this, &TRunProgress::Show);
    m_Timer.start(IntervalMs);
}

TRunProgress::~TRunProgress() { Wipe(); }

void TRunProgress::Say(const QString& text)
{
    Wipe();
    std::fprintf(stderr, "cabsettings: %s\n", text.toUtf8().constData());
}

void TRunProgress::Wipe()
{
    if (std::exchange(m_IsShown, false))
        std::fputs(WipeLine, stderr);
}

void TRunProgress::Show()
{
    const TNmeaReceiver::tagStatus& status = m_Receiver.GetStatus();
    const TRegionSettingsProxy region;
    const auto logs = TLogSeries(TSystemSettingsProxy().GetInternalNemaLogPath()).GetFiles();
    const QString line = QString::fromLatin1("%1 lines, %2, %3 %4, %5")
                             .arg(status.lines)
                             .arg(QLatin1String(status.hasFix ? "fix" : "no fix"))
                             .arg(region.GetDateString(), region.GetTimeString())
                             .arg(logs.empty() ? QLatin1String("no log") : logs.back().name);
    std::fprintf(stderr, "%s%s", WipeLine, line.toUtf8().constData());
    std::fflush(stderr);
    m_IsShown = true;
}
