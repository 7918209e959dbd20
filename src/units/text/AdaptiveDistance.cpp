// A distance in the unit that suits its magnitude.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/text/DecimalPoint.h"
#include "units/text/QuantityText.h"
#include "units/text/TFixedNumber.h"

#include <cmath>

namespace {

using namespace QuantityText;
using U = TUnits;

const float OneMeter = 1.0f;
const float TenMeters = 10.0f;
const float GreatestInMeters = 999.0f;
const float OneYard = 0.9144f;
const double TenFeet = 10.0;

const QString& Abbreviation(EUnitsType unit) { return TUnitAbbreviations::UnitAbbreviations[unit]; }

QString Metric(float meters, bool noDecimals)
{
    const float magnitude = std::fabs(meters);
    if (magnitude < OneMeter)
        return WithDecimals({U::ConvertMetersToCentimeters(meters), UNITS_CENTIMETERS}, 0);
    if (magnitude <= GreatestInMeters) {
        const int decimals = magnitude < TenMeters ? 2 : 1;
        return WithDecimals({static_cast<double>(meters), UNITS_METERS}, noDecimals ? 0 : decimals);
    }
    return WithDecimals({U::ConvertMetersToKilometers(meters), UNITS_KILOMETERS}, noDecimals ? 0 : 1);
}

/// Whole feet, and below ten feet the whole inches beyond them.
QString Feet(float meters, bool noDecimals)
{
    const double feet = std::trunc(U::ConvertMetersToFeet(meters));
    const float magnitude = std::fabs(meters);
    if (noDecimals || !(U::ConvertMetersToFeet(magnitude) < TenFeet))
        return CloseWithDecimals({feet, UNITS_FEET}, 0);
    const double rest = static_cast<double>(magnitude) - U::ConvertFeetToMeters(static_cast<float>(std::fabs(feet)));
    const double inches = std::trunc(U::ConvertMetersToInches(static_cast<float>(rest)));
    return DecimalPoint::Shown(TFixedNumber(feet, 0) % Abbreviation(UNITS_FEET) % TFixedNumber(inches, 0) %
                               Abbreviation(UNITS_INCHES));
}

QString Imperial(float meters, bool wholeInches, bool noDecimals)
{
    const float magnitude = std::fabs(meters);
    if (magnitude < OneYard)
        return CloseWithDecimals({U::ConvertMetersToInches(meters), UNITS_INCHES}, wholeInches || noDecimals ? 0 : 2);
    if (static_cast<double>(magnitude) > U::ConvertMilesToMeters(1.0f))
        return WithDecimals({U::ConvertMetersToMiles(meters), UNITS_MILES}, noDecimals ? 0 : 1);
    return Feet(meters, noDecimals);
}

} // namespace

QString TUnits::GetDistanceStringAdaptive(bool metric, float meters, bool wholeInches, bool noDecimals)
{
    return metric ? Metric(meters, noDecimals) : Imperial(meters, wholeInches, noDecimals);
}
