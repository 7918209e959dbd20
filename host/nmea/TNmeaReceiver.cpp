#include "nmea/TNmeaReceiver.h"

#include "diagnostics/EReceiverEvent.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaSentenceParser.h"
#include "region/TRegionSettingsProxy.h"

#include <QGeoCoordinate>
#include <QLocale>

#include <limits>

using Receiver = TNmeaReceiver;

namespace {

const int FirstYear = 2000;
const int SecondsPerMinute = 60;
const int CoordinateDecimals = 7; // about a centimetre

void AddUserEvent(EReceiverEvent event, const QString& text1 = QString(), const QString& text2 = QString())
{
    TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, event, text1, text2);
}

QString DecimalDegrees(const QGeoCoordinate& position)
{
    return QString::number(position.latitude(), 'f', CoordinateDecimals) + QLatin1Char(' ') +
           QString::number(position.longitude(), 'f', CoordinateDecimals);
}

/// Without a time zone, which a local time of the display has none to show.
QString IsoText(const QDateTime& time) { return QLocale::c().toString(time, QLatin1String("yyyy-MM-dd'T'HH:mm:ss")); }

/// QtPositioning makes midnight of a time of day that does not exist, and of a leap second, but leaves the date: a day
/// too early.
bool CarriesTime(const QByteArray& line, const QDateTime& utc)
{
    return line.split(',').value(1).startsWith(QLocale::c().toString(utc.time(), QLatin1String("HHmmss")).toLatin1());
}

double AttributeOf(const QGeoPositionInfo& info, QGeoPositionInfo::Attribute attribute)
{
    return info.hasAttribute(attribute) ? info.attribute(attribute) : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

/// A line and what QtPositioning reads in it.
struct Receiver::tagReading
{
    const QByteArray& line;
    TNmeaSentenceParser::tagSentence sentence;

    bool Is(const char* type) const { return sentence.type == type; }
    bool HasPosition() const { return sentence.hasFix && sentence.info.coordinate().isValid(); }
};

Receiver::TNmeaReceiver() : m_Parser(std::make_unique<TNmeaSentenceParser>()) {}
Receiver::~TNmeaReceiver() = default;

void Receiver::Receive(const QByteArray& line)
{
    ++m_Status.lines;
    if (!TNEMADiagnosticLogProxy().Log(line.constData(), static_cast<int>(line.size())))
        ++m_Status.unloggedLines;

    switch (CheckNmeaLine(line)) {
    case NMEA_RIGHT_CHECKSUM: {
        ++m_Status.sentences;
        const tagReading reading = {line, m_Parser->Parse(line)};
        Judge(reading);
        TakePosition(reading);
        TakeTime(reading);
        break;
    }
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
        ReportBadChecksums();
}

void Receiver::Finish() { ReportBadChecksums(); }

const Receiver::tagStatus& Receiver::GetStatus() const { return m_Status; }

void Receiver::Judge(const tagReading& reading)
{
    const bool decides = reading.Is("RMC") || (reading.Is("GGA") && m_SendsGGA && !m_SendsRMC);
    m_SendsRMC = m_SendsRMC || reading.Is("RMC");
    m_SendsGGA = m_SendsGGA || reading.Is("GGA");
    if (!decides || reading.HasPosition() == m_Status.hasFix)
        return;

    m_Status.hasFix = !m_Status.hasFix;
    if (!m_Status.hasFix) {
        AddUserEvent(RECEIVER_EVENT_FIX_LOST);
    } else if (m_HadFix) {
        AddUserEvent(RECEIVER_EVENT_FIX_REGAINED);
        m_ReportsTime = true;
    } else {
        AddUserEvent(RECEIVER_EVENT_FIRST_FIX, DecimalDegrees(reading.sentence.info.coordinate()));
        m_HadFix = true;
    }
}

void Receiver::TakePosition(const tagReading& reading)
{
    if (!m_Status.hasFix)
        return;
    const QGeoPositionInfo& info = reading.sentence.info;
    if (reading.HasPosition()) {
        m_Status.latitude = info.coordinate().latitude();
        m_Status.longitude = info.coordinate().longitude();
        if (info.coordinate().type() == QGeoCoordinate::Coordinate3D)
            m_Status.altitude = info.coordinate().altitude();
    }
    if (info.hasAttribute(QGeoPositionInfo::GroundSpeed)) {
        m_Status.speed = AttributeOf(info, QGeoPositionInfo::GroundSpeed);
        m_Status.course = AttributeOf(info, QGeoPositionInfo::Direction);
    }
}

void Receiver::TakeTime(const tagReading& reading)
{
    const QDateTime utc = reading.sentence.info.timestamp();
    if (!m_Status.hasFix || !(reading.Is("RMC") || reading.Is("ZDA")) || !utc.isValid() ||
        utc.date().year() < FirstYear || !CarriesTime(reading.line, utc))
        return;

    const qint64 last = m_Status.utc.isValid() ? m_Status.utc.toSecsSinceEpoch() : -1;
    const qint64 now = utc.toSecsSinceEpoch();
    m_Status.utc = utc;
    if (last / SecondsPerMinute != now / SecondsPerMinute)
        ReportBadChecksums();
    m_LinesSinceTime = 0;
    if (last == now)
        return;

    QTime time = utc.time();
    QDate date = utc.date();
    TRegionSettingsProxy region;
    region.SetUTCTimeAndDate(time, date, true);
    if (m_ReportsTime)
        AddUserEvent(RECEIVER_EVENT_TIME_SET, IsoText(utc) + QLatin1Char('Z'), IsoText(region.GetDateTime()));
    m_ReportsTime = false;
}

void Receiver::ReportBadChecksums()
{
    if (m_UnreportedBadChecksums > 0)
        AddUserEvent(RECEIVER_EVENT_BAD_CHECKSUMS, QString::number(m_UnreportedBadChecksums));
    m_UnreportedBadChecksums = 0;
    m_LinesSinceTime = 0;
}
