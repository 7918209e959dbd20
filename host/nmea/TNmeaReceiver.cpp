#include "nmea/TNmeaReceiver.h"

#include "diagnostics/EReceiverEvent.h"
#include "diagnostics/KeptLogs.h"
#include "diagnostics/UserLogEntries.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFixTracker.h"
#include "nmea/TTimeGuard.h"
#include "parameters/HostParameters.h"
#include "parameters/UtcText.h"
#include "platform/BuildDate.h"
#include "platform/IsoText.h"
#include "platform/TConfigManager.h"
#include "platform/TimeSource.h"
#include "region/TRegionSettingsProxy.h"

#include <utility>

using Receiver = TNmeaReceiver;

namespace {

const int SecondsPerMinute = 60;
const int SecondsPerDay = 24 * 60 * SecondsPerMinute;
const int CoordinateDecimals = 7; // about a centimetre

void AddEvent(EReceiverEvent event, const QString& text1 = QString(), const QString& text2 = QString())
{
    AddUserLogEntry(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, event, text1, text2);
}

QString DecimalDegrees(double value) { return QString::number(value, 'f', CoordinateDecimals); }

/// A reason of its own beside those of ETimeRefusal.
const int CorrectedReason = TIME_TOO_LATE + 1;

/// What the user log says of a refused time, by ETimeRefusal.
constexpr const char* RefusalTexts[] = {
    "",
    "far ahead of the newest time and not confirmed",
    "behind the newest time",
    "before the software was built",
    "too long after the software was built",
};

} // namespace

Receiver::TNmeaReceiver(ENmeaOrigin origin) : m_Tracker(std::make_unique<TFixTracker>(m_Status)), m_Origin(origin) {}
Receiver::~TNmeaReceiver() = default;

void Receiver::Receive(const QByteArray& line)
{
    ++m_Status.lines;
    m_Status.unloggedLines += WriteNmeaLine(line);

    switch (CheckNmeaLine(line)) {
    case NMEA_RIGHT_CHECKSUM:
        ++m_Status.sentences;
        Take(line);
        break;
    case NMEA_WRONG_CHECKSUM:
        ++m_Status.badChecksums;
        ++m_UnreportedBadChecksums;
        break;
    case NMEA_NO_CHECKSUM:
    case NMEA_NO_SENTENCE:
        ++m_Status.damagedLines;
        break;
    }

    if (++m_LinesSinceTime >= LinesWithoutTime)
        ReportCounts();
}

void Receiver::Finish() { ReportCounts(); }

const Receiver::tagStatus& Receiver::GetStatus() const { return m_Status; }

void Receiver::Take(const QByteArray& sentence)
{
    const bool hadFix = m_Status.hasFix;
    const QDateTime before = m_Status.utc;
    const qint64 last = before.isValid() ? before.toSecsSinceEpoch() : -1;
    const QDateTime received = m_Tracker->Take(sentence);
    if (m_Status.hasFix != hadFix)
        ReportFix();
    if (!received.isValid())
        return;
    const QDateTime utc = m_Origin == NMEA_LIVE ? Trusted(received) : received;
    m_Status.utc = utc.isValid() ? utc : before;
    if (!utc.isValid())
        return;

    const qint64 now = utc.toSecsSinceEpoch();
    if (last / SecondsPerMinute != now / SecondsPerMinute) {
        ReportCounts();
        m_Reported = std::exchange(m_ReasonsOfMinute, 0U);
    }
    m_LinesSinceTime = 0;
    if (last != now)
        SetClock(utc);
}

/// The time to use; invalid when there is none.
QDateTime Receiver::Trusted(const QDateTime& utc)
{
    if (!m_Guard)
        m_Guard = std::make_unique<TTimeGuard>(BuildDate(),
                                               FromUtcText(ConfigManager->GetParameter(PARAM_NEWEST_TIME).toString()));
    const tagTimeCheck check = m_Guard->Check(utc);
    const auto refuse = [this](ETimeRefusal refusal, const QDateTime& time) {
        ReportOnce(refusal, RECEIVER_EVENT_TIME_REFUSED, time, QLatin1String(RefusalTexts[refusal]));
    };
    if (check.dropped.isValid())
        refuse(TIME_UNCONFIRMED, check.dropped);
    if (check.refusal != TIME_NOT_REFUSED)
        refuse(check.refusal, utc);
    if (check.isCorrected)
        ReportOnce(CorrectedReason, RECEIVER_EVENT_TIME_CORRECTED, utc, IsoText(check.utc) + QLatin1Char('Z'));
    if (check.utc.isValid())
        KeepNewestTime();
    return check.utc;
}

void Receiver::ReportOnce(int reason, EReceiverEvent event, const QDateTime& utc, const QString& text)
{
    const unsigned bit = 1U << static_cast<unsigned>(reason);
    if ((m_Reported & bit) == 0)
        AddEvent(event, IsoText(utc) + QLatin1Char('Z'), text);
    m_Reported |= bit;
    m_ReasonsOfMinute |= bit;
}

/// Once a day, because each change wears the flash of the terminal.
void Receiver::KeepNewestTime()
{
    const QDateTime kept = FromUtcText(ConfigManager->GetParameter(PARAM_NEWEST_TIME).toString());
    if (!kept.isValid() || kept.secsTo(m_Guard->Newest()) >= SecondsPerDay)
        ConfigManager->SetParameter(PARAM_NEWEST_TIME, UtcText(m_Guard->Newest()), true);
}

void Receiver::ReportFix()
{
    if (!m_Status.hasFix) {
        m_IsLossReported = m_ReportedLosses < MostLosses;
        if (!m_IsLossReported) {
            ++m_UnreportedLosses;
            return;
        }
        ++m_ReportedLosses;
        AddEvent(RECEIVER_EVENT_FIX_LOST);
    } else if (!m_HadFix) {
        m_HadFix = true;
        AddEvent(RECEIVER_EVENT_FIRST_FIX,
                 DecimalDegrees(m_Status.latitude) + QLatin1Char(' ') + DecimalDegrees(m_Status.longitude));
    } else if (m_IsLossReported) {
        AddEvent(RECEIVER_EVENT_FIX_REGAINED);
        m_ReportsTime = true;
    }
}

void Receiver::SetClock(const QDateTime& utc)
{
    QTime time = utc.time();
    QDate date = utc.date();
    TRegionSettingsProxy region;
    region.SetUTCTimeAndDate(time, date, true);
    KeepTimeSource(TIME_SOURCE_RECEIVER, utc);
    if (m_ReportsTime)
        AddEvent(RECEIVER_EVENT_TIME_SET, IsoText(utc) + QLatin1Char('Z'), IsoText(region.GetDateTime()));
    m_ReportsTime = false;
}

void Receiver::ReportCounts()
{
    if (m_UnreportedLosses > 0) {
        AddEvent(RECEIVER_EVENT_FIX_UNSTABLE, QString::number(m_UnreportedLosses),
                 QLatin1String(m_Status.hasFix ? "fix" : "no fix"));
        m_IsLossReported = true; // a return from "no fix" must not be missing from the log
    }
    if (m_UnreportedBadChecksums > 0)
        AddEvent(RECEIVER_EVENT_BAD_CHECKSUMS, QString::number(m_UnreportedBadChecksums));
    m_ReportedLosses = 0;
    m_UnreportedLosses = 0;
    m_UnreportedBadChecksums = 0;
    m_LinesSinceTime = 0;
}
