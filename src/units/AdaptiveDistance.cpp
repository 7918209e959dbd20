// A distance in the unit that suits its magnitude.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <cmath>

namespace {

using U = TUnits;

const float OneMeter = 1.0f;
const float TenMeters = 10.0f;
const float GreatestInMeters = 999.0f;
const float OneYard = 0.9144f;
const double TenFeet = 10.0;

const QString& Abbreviation(EUnitsType unit) { return TUnitAbbreviations::UnitAbbreviations[unit]; }

QString Spaced(double value, int decimals, EUnitsType unit)
{
    return QString::number(value, 'f', decimals) + QLatin1Char(' ') + Abbreviation(unit);
}

QString Close(double value, int decimals, EUnitsType unit)
{
    return QString::number(value, 'f', decimals) + Abbreviation(unit);
}

QString Metric(float meters, bool noDecimals)
{
    const float magnitude = std::fabs(meters);
    if (magnitude < OneMeter)
        return Spaced(U::ConvertMetersToCentimeters(meters), 0, UNITS_CENTIMETERS);
    if (magnitude <= GreatestInMeters) {
        const int decimals = magnitude < TenMeters ? 2 : 1;
        return Spaced(static_cast<double>(meters), noDecimals ? 0 : decimals, UNITS_METERS);
    }
    return Spaced(U::ConvertMetersToKilometers(meters), noDecimals ? 0 : 1, UNITS_KILOMETERS);
}

/// Whole feet, and below ten feet the whole inches beyond them.
QString Feet(float meters, bool noDecimals)
{
    const double feet = std::trunc(U::ConvertMetersToFeet(meters));
    QString text = Close(feet, 0, UNITS_FEET);
    const float magnitude = std::fabs(meters);
    if (noDecimals || !(U::ConvertMetersToFeet(magnitude) < TenFeet))
        return text;
    const double rest = static_cast<double>(magnitude) - U::ConvertFeetToMeters(static_cast<float>(std::fabs(feet)));
    return text + Close(std::trunc(U::ConvertMetersToInches(static_cast<float>(rest))), 0, UNITS_INCHES);
}

QString Imperial(float meters, bool wholeInches, bool noDecimals)
{
    const float magnitude = std::fabs(meters);
    if (magnitude < OneYard)
        return Close(U::ConvertMetersToInches(meters), wholeInches || noDecimals ? 0 : 2, UNITS_INCHES);
    if (static_cast<double>(magnitude) > U::ConvertMilesToMeters(1.0f))
        return Spaced(U::ConvertMetersToMiles(meters), noDecimals ? 0 : 1, UNITS_MILES);
    return Feet(meters, noDecimals);
}

} // namespace

QString TUnits::GetDistanceStringAdaptive(bool metric, float meters, bool wholeInches, bool noDecimals)
{
    return InternalToDisplayableFloatStr(metric ? Metric(meters, noDecimals)
                                                : Imperial(meters, wholeInches, noDecimals));
}
