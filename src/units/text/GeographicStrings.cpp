// Positions, durations and dates as texts.

#include "access/Parameters.h"
#include "platform/QtCompat.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/text/NumberText.h"
#include "units/text/QuantityText.h"
#include "units/text/TFixedNumber.h"

#include <cmath>

namespace {

const float OneMinuteInHours = 0.016666668f;
const int MostHoursShown = 100;
const int MinutesPerHour = 60;

/// "12°34'56.78"N". Seconds of 59.995 and more are shown as 60.00; they are not carried into the minutes.
QString DegreesMinutesSeconds(double degrees, char hemisphere)
{
    const double magnitude = std::fabs(degrees);
    const int wholeDegrees = NumberText::Truncated(magnitude);
    const double fraction = magnitude - wholeDegrees;
    const int minutes = NumberText::Truncated(fraction * 60);
    // Just below a whole minute the product can be rounded up to it. The rest is then slightly below zero.
    const double rest = (fraction - minutes / 60.0) * 3600;
    const double seconds = rest < 0 ? 0.0 : rest;
    return QString::number(wholeDegrees) + QChar(0xB0) + NumberText::TwoDigits(minutes) + QLatin1Char('\'') +
           QString::fromLatin1("%1").arg(seconds, 5, 'f', 2, QLatin1Char('0')) + QLatin1Char('"') +
           QLatin1Char(hemisphere);
}

// Positions always have a full stop: they are copied into other systems.
QString Position(double degrees, char positive, char negative)
{
    if (!Parameters::ReadBool(PARAM_DEGREES_MINUTES_SECONDS))
        return TFixedNumber(degrees, 8).Text();
    return DegreesMinutesSeconds(degrees, degrees < 0 ? negative : positive);
}

} // namespace

QString TUnits::GetLatitudeString(double degrees) { return Position(degrees, 'N', 'S'); }
QString TUnits::GetLongitudeString(double degrees) { return Position(degrees, 'E', 'W'); }

QString TUnits::GetDurationString(float hours)
{
    const float magnitude = std::fabs(hours);
    const double value = static_cast<double>(hours);
    if (magnitude < OneMinuteInHours)
        return QuantityText::WithDecimals({value * 3600, UNITS_SECONDS}, 0);
    if (magnitude < 1.0f)
        return QuantityText::WithDecimals({value * 60, UNITS_MINUTES}, 0);
    return QuantityText::WithDecimals({value, UNITS_HOURS}, 1);
}

QString TUnits::GetFormattedDurationString(double minutes)
{
    const QString& unit = TUnitAbbreviations::UnitAbbreviations[UNITS_HOURS];
    const int hours = NumberText::Truncated(minutes / 60);
    if (hours > MostHoursShown)
        return QLatin1String("> 100 ") + unit;
    return NumberText::TwoDigits(hours) + QLatin1Char(':') +
           NumberText::TwoDigits(NumberText::Truncated(minutes) % MinutesPerHour) + QLatin1Char(' ') + unit;
}

QString TUnits::GetDateString(bool monthFirst, const QDate& date)
{
    const QtCompat::tagDateParts parts = QtCompat::Parts(date);
    const QString name = parts.month == 0 ? QString() : TUnitAbbreviations::Months[parts.month - 1];
    const QString day = QString::number(parts.day);
    const QString& first = monthFirst ? name : day;
    const QString& second = monthFirst ? day : name;
    return first + QLatin1Char(' ') + second + QLatin1String(", ") + QString::number(parts.year);
}
