#include "nmea/TFixTracker.h"

#include <QGeoCoordinate>
#include <QLocale>

#include <cmath>
#include <limits>

namespace {

const int FirstYear = 2000;
const double FullCircle = 360;

/// QtPositioning reads a leap second, and a time of day that does not exist, as midnight of the same date, which is
/// wrong.
bool CarriesTime(const QByteArray& line, const QDateTime& utc)
{
    return line.split(',').value(1).startsWith(QLocale::c().toString(utc.time(), QLatin1String("HHmmss")).toLatin1());
}

/// The attribute from 0 to @p greatest. NaN when it is missing, and for any other number, which QtPositioning passes
/// on.
double AttributeOf(const QGeoPositionInfo& info, QGeoPositionInfo::Attribute attribute, double greatest)
{
    const double value = info.hasAttribute(attribute) ? info.attribute(attribute) : -1;
    return value >= 0 && value <= greatest ? value : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

/// A line and what QtPositioning reads in it.
struct TFixTracker::tagReading
{
    const QByteArray& line;
    TNmeaSentenceParser::tagSentence sentence;

    bool Is(const char* type) const { return sentence.type == type; }
    bool HasPosition() const { return sentence.hasFix && sentence.info.coordinate().isValid(); }
};

TFixTracker::TFixTracker(TNmeaReceiver::tagStatus& status) : m_Status(status), m_SendsRMC(false), m_SendsGGA(false) {}

QDateTime TFixTracker::Take(const QByteArray& line)
{
    const tagReading reading = {line, m_Parser.Parse(line)};
    TakeFix(reading);
    TakePosition(reading);
    return TakeTime(reading);
}

void TFixTracker::TakeFix(const tagReading& reading)
{
    const bool decides = reading.Is("RMC") || (reading.Is("GGA") && m_SendsGGA && !m_SendsRMC);
    m_SendsRMC = m_SendsRMC || reading.Is("RMC");
    m_SendsGGA = m_SendsGGA || reading.Is("GGA");
    if (decides)
        m_Status.hasFix = reading.HasPosition();
}

void TFixTracker::TakePosition(const tagReading& reading)
{
    if (!m_Status.hasFix)
        return;
    const QGeoPositionInfo& info = reading.sentence.info;
    if (reading.HasPosition()) {
        m_Status.latitude = info.coordinate().latitude();
        m_Status.longitude = info.coordinate().longitude();
        if (info.coordinate().type() == QGeoCoordinate::Coordinate3D && std::isfinite(info.coordinate().altitude()))
            m_Status.altitude = info.coordinate().altitude();
    }
    if (info.hasAttribute(QGeoPositionInfo::GroundSpeed)) {
        m_Status.speed = AttributeOf(info, QGeoPositionInfo::GroundSpeed, std::numeric_limits<double>::max());
        m_Status.course = AttributeOf(info, QGeoPositionInfo::Direction, FullCircle);
    }
}

QDateTime TFixTracker::TakeTime(const tagReading& reading)
{
    QDateTime utc = reading.sentence.info.timestamp();
    if (!m_Status.hasFix || !(reading.Is("RMC") || reading.Is("ZDA")) || !utc.isValid() ||
        utc.date().year() < FirstYear || !CarriesTime(reading.line, utc))
        return QDateTime();
    m_Status.utc = utc;
    return utc;
}
