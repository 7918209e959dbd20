#include "nmea/SentenceWriter.h"

#include "nmea/NmeaChecksum.h"

#include <QLocale>

#include <cmath>

namespace {

const double SecondsPerHour = 3600;
const double MetresPerNauticalMile = 1852;
const double MetresPerKilometre = 1000;
const int SpeedDecimals = 3;

/// A whole number with leading zeros.
QByteArray Digits(qint64 value, int width) { return QByteArray::number(value).rightJustified(width, '0'); }

QByteArray Decimals(double value, int decimals) { return QByteArray::number(value, 'f', decimals); }

/// Degrees, minutes with seven decimals, a comma, and the side. Rounded as a whole number of the last decimal, so that
/// the minutes are never 60.
QByteArray Angle(double degrees, int degreeDigits, const char* sides)
{
    const qint64 unitsPerMinute = 10000000;
    const qint64 unitsPerDegree = 60 * unitsPerMinute;
    const qint64 units = std::llround(std::abs(degrees) * static_cast<double>(unitsPerDegree));
    const qint64 minutes = units % unitsPerDegree;
    return Digits(units / unitsPerDegree, degreeDigits) + Digits(minutes / unitsPerMinute, 2) + '.' +
           Digits(minutes % unitsPerMinute, 7) + ',' + sides[degrees < 0];
}

/// Degrees with two decimals. Rounded as a whole number of hundredths, so that 359.999 becomes 0.
QByteArray Course(double degrees)
{
    const qint64 hundredths = std::llround(degrees * 100) % 36000;
    return Digits(hundredths / 100, 3) + '.' + Digits(hundredths % 100, 2);
}

QByteArray Sentence(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

} // namespace

QByteArray WriteSentences(const QByteArray& talker, const tagEpoch& epoch)
{
    const QByteArray time = QLocale::c().toString(epoch.utc.time(), QLatin1String("HHmmss.zzz")).toLatin1();
    const QDate date = epoch.utc.date();
    const QByteArray position = Angle(epoch.latitude, 2, "NS") + ',' + Angle(epoch.longitude, 3, "EW");
    const QByteArray course = Course(epoch.course);
    const QByteArray knots = Decimals(epoch.speed * SecondsPerHour / MetresPerNauticalMile, SpeedDecimals);
    const QByteArray kilometresPerHour = Decimals(epoch.speed * SecondsPerHour / MetresPerKilometre, SpeedDecimals);
    const QByteArray day = Digits(date.day(), 2);
    const QByteArray month = Digits(date.month(), 2);

    return Sentence(talker + "RMC," + time + ",A," + position + ',' + knots + ',' + course + ',' + day + month +
                    Digits(date.year() % 100, 2) + ",,,R") +
           Sentence(talker + "GGA," + time + ',' + position + ",4,12,0.7," + Decimals(epoch.altitude, 1) +
                    ",M,0.0,M,1,1") +
           Sentence(talker + "VTG," + course + ",T,,M," + knots + ",N," + kilometresPerHour + ",K,R") +
           Sentence(talker + "ZDA," + time + ',' + day + ',' + month + ',' + Digits(date.year(), 4) + ",00,00");
}
