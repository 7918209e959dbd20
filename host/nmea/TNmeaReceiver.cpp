#include "nmea/TNmeaReceiver.h"

#include "diagnostics/EReceiverEvent.h"
#include "diagnostics/KeptLogs.h"
#include "diagnostics/UserLogEntries.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFixTracker.h"
#include "region/TRegionSettingsProxy.h"

#include <QLocale>

using Receiver = TNmeaReceiver;

namespace {

const int SecondsPerMinute = 60;
const int CoordinateDecimals = 7; // about a centimetre

void AddEvent(EReceiverEvent event, const QString& text1 = QString(), const QString& text2 = QString())
{
    AddUserLogEntry(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, event, text1, text2);
}

QString DecimalDegrees(double value) { return QString::number(value, 'f', CoordinateDecimals); }

/// Without a time zone, which a local time of the display does not have.
QString IsoText(const QDateTime& time) { return QLocale::c().toString(time, QLatin1String("yyyy-MM-dd'T'HH:mm:ss")); }

} // namespace

Receiver::TNmeaReceiver() : m_Tracker(std::make_unique<TFixTracker>(m_Status)) {}
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
    const qint64 last = m_Status.utc.isValid() ? m_Status.utc.toSecsSinceEpoch() : -1;
    const QDateTime utc = m_Tracker->Take(sentence);
    if (m_Status.hasFix != hadFix)
        ReportFix();
    if (!utc.isValid())
        return;

    const qint64 now = utc.toSecsSinceEpoch();
    if (last / SecondsPerMinute != now / SecondsPerMinute)
        ReportCounts();
    m_LinesSinceTime = 0;
    if (last != now)
        SetClock(utc);
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
