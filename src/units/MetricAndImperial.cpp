// Between the metric units shown, their imperial partners and the stored units.

#include "units/Routes.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"

#include <cstddef>

namespace {

using Routes::By;
using Routes::TConversion;
using U = TUnits;

template <double (*Hub)(double, EUnitsType), EUnitsType Unit>
double Through(double value)
{
    return Hub(value, Unit);
}

struct tagRow
{
    EUnitsType type;
    TConversion in;  ///< into the stored unit
    TConversion out; ///< out of it
};

// clang-format off

/// A metric unit shown, and the stored unit.
constexpr tagRow MetricRows[] = {
    {UNITS_MILLIMETERS,   By<U::ConvertMillimetersToMeters>,                        By<U::ConvertMetersToMillimeters>},
    {UNITS_MILLILITERS,   By<U::ConvertMilliLitersToLiters>,                        By<U::ConvertLitersToMilliLiters>},
    {UNITS_ML_PER_MIN,    By<U::ConvertMilliLitersToLiters>,                        By<U::ConvertLitersToMilliLiters>},
    {UNITS_CUBIC_METERS,  By<U::ConvertCubicMetersToLiters>,                        By<U::ConvertLitersToCubicMeters>},
    {UNITS_M3_PER_MIN,    By<U::ConvertCubicMetersToLiters>,                        By<U::ConvertLitersToCubicMeters>},
    {UNITS_TONNES,        By<U::ConvertTonnesToLiters>,                             By<U::ConvertLitersToTonnes>},
    {UNITS_T_PER_MIN,     By<U::ConvertTonnesToLiters>,                             By<U::ConvertLitersToTonnes>},
    {UNITS_US_BUSHELS,    By<U::ConvertUSBushelsToLiters>,                          By<U::ConvertLitersToUSBushels>},
    {UNITS_UK_BUSHELS,    By<U::ConvertUKBushelsToLiters>,                          By<U::ConvertLitersToUKBushels>},
    {UNITS_PULSES_PER_ML, By<U::ConvertPerMilliLiterToPerLiter>,                    By<U::ConvertPerLiterToPerMilliLiter>},
    {UNITS_PULSES_PER_M3, By<U::ConvertPulsesPerCubicMeterToPulsesPerLiter>,        By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter>},
    {UNITS_PULSES_PER_T,  By<U::ConvertPulsesPerTonneToPulsesPerLiter>,             By<U::ConvertPulsesPerLiterToPulsesPerTonne>},
    {UNITS_KG_PER_M3,     By<U::ConvertKilogramsPerCubicMeterToKilogramsPerLiter>,  By<U::ConvertKilogramsPerLiterToKilogramsPerCubicMeter>},
    {UNITS_KG_PER_US_BU,  By<U::ConvertKilogramsPerUSBushelToKilogramsPerLiter>,    By<U::ConvertKilogramsPerLiterToKilogramsPerUSBushel>},
    {UNITS_KG_PER_UK_BU,  By<U::ConvertKilogramsPerUKBushelToKilogramsPerLiter>,    By<U::ConvertKilogramsPerLiterToKilogramsPerUKBushel>},
};

/// The imperial unit shown in place of a metric one, and the stored unit. Where in and out take different ways, recorded
/// data did: small volumes come in by the minute's hub, bushels and cubic metres of density go out by a factor alone,
/// and a count per weight goes against the weight.
constexpr tagRow ImperialRows[] = {
    {UNITS_MILLIMETERS,     By<U::ConvertInchesToMeters>,                              By<U::ConvertMetersToInches>},
    {UNITS_METERS_PER_MIN,  By<U::ConvertFeetToMeters>,                                By<U::ConvertMetersToFeet>},
    {UNITS_M_PER_PULSE,     By<U::ConvertFeetToMeters>,                                By<U::ConvertMetersToFeet>},
    {UNITS_KPH,             By<U::ConvertMilesPerHourToKilometersPerHour>,             By<U::ConvertKilometersPerHourToMilesPerHour>},
    {UNITS_HZ_PER_KPH,      By<U::ConvertPulsesPerMPHToPulsesPerKPH>,                  By<U::ConvertPulsesPerKPHToPulsesPerMPH>},
    {UNITS_LITERS,          Through<U::ConvertToLiter, UNITS_GALLONS>,                 Through<U::ConvertFromLiter, UNITS_GALLONS>},
    {UNITS_L_PER_MIN,       Through<U::ConvertToLiter, UNITS_GALLONS>,                 Through<U::ConvertFromLiter, UNITS_GALLONS>},
    {UNITS_L_PER_REV,       Through<U::ConvertToLiter, UNITS_GALLONS>,                 Through<U::ConvertFromLiter, UNITS_GALLONS>},
    {UNITS_MILLILITERS,     Through<U::ConvertToLitersPerMinute, UNITS_FLOZ_PER_MIN>,  Through<U::ConvertFromLiter, UNITS_FLUID_OUNCES>},
    {UNITS_ML_PER_MIN,      Through<U::ConvertToLitersPerMinute, UNITS_FLOZ_PER_MIN>,  Through<U::ConvertFromLiter, UNITS_FLUID_OUNCES>},
    {UNITS_CUBIC_METERS,    By<U::ConvertCubicFeetToLiters>,                           By<U::ConvertLitersToCubicFeet>},
    {UNITS_M3_PER_MIN,      By<U::ConvertCubicFeetToLiters>,                           By<U::ConvertLitersToCubicFeet>},
    {UNITS_TONNES,          By<U::ConvertPoundsToLiters>,                              By<U::ConvertLitersToPounds>},
    {UNITS_T_PER_MIN,       By<U::ConvertPoundsToLiters>,                              By<U::ConvertLitersToPounds>},
    {UNITS_US_BUSHELS,      By<U::ConvertUSBushelsToLiters>,                           By<U::ConvertLitersToUSBushels>},
    {UNITS_UK_BUSHELS,      By<U::ConvertUKBushelsToLiters>,                           By<U::ConvertLitersToUKBushels>},
    {UNITS_PULSES_PER_L,    Through<U::ConvertToPulsesPerLiter, UNITS_PULSES_PER_GAL>,  Through<U::ConvertFromPulsesPerLiter, UNITS_PULSES_PER_GAL>},
    {UNITS_PULSES_PER_ML,   Through<U::ConvertToPulsesPerLiter, UNITS_PULSES_PER_FLOZ>, Through<U::ConvertFromPulsesPerLiter, UNITS_PULSES_PER_FLOZ>},
    {UNITS_PULSES_PER_M3,   Through<U::ConvertToPulsesPerLiter, UNITS_PULSES_PER_FT3>,  Through<U::ConvertFromPulsesPerLiter, UNITS_PULSES_PER_FT3>},
    {UNITS_PULSES_PER_T,    Through<U::ConvertToPulsesPerLiter, UNITS_PULSES_PER_LB>,   Through<U::ConvertFromPulsesPerLiter, UNITS_PULSES_PER_LB>},
    {UNITS_KG,              By<U::ConvertPoundsToKilograms>,                           By<U::ConvertKilogramsToPounds>},
    {UNITS_KG_N,            By<U::ConvertPoundsToKilograms>,                           By<U::ConvertKilogramsToPounds>},
    {UNITS_KG_PER_MIN,      By<U::ConvertPoundsToKilograms>,                           By<U::ConvertKilogramsToPounds>},
    {UNITS_KG_N_PER_MIN,    By<U::ConvertPoundsToKilograms>,                           By<U::ConvertKilogramsToPounds>},
    {UNITS_KG_PER_REV,      By<U::ConvertPoundsToKilograms>,                           By<U::ConvertKilogramsToPounds>},
    {UNITS_KG_N_PER_HA,     By<U::ConvertPoundsPerAcreToKilogramsPerHectare>,          By<U::ConvertKilogramsPerHectareToPoundsPerAcre>},
    {UNITS_KG_PER_L,        Through<U::ConvertToKilogramsPerLiter, UNITS_LB_PER_GAL>,   Through<U::ConvertFromKilogramsPerLiter, UNITS_LB_PER_GAL>},
    {UNITS_KG_PER_M3,       Through<U::ConvertToKilogramsPerLiter, UNITS_LB_PER_FT3>,   By<U::ConvertKilogramsPerLiterToPoundsPerCubicFoot>},
    {UNITS_KG_PER_US_BU,    Through<U::ConvertToKilogramsPerLiter, UNITS_LB_PER_US_BU>, By<U::ConvertKilogramsPerLiterToPoundsPerUSBushel>},
    {UNITS_KG_PER_UK_BU,    Through<U::ConvertToKilogramsPerLiter, UNITS_LB_PER_UK_BU>, By<U::ConvertKilogramsPerLiterToPoundsPerUKBushel>},
    {UNITS_PULSES_PER_KG_N, By<U::ConvertKilogramsToPounds>,                           By<U::ConvertPoundsToKilograms>},
    {UNITS_CELSIUS,         By<U::ConvertFahrenheitToCelsius>,                         By<U::ConvertCelsiusToFahrenheit>},
};
// clang-format on

template <std::size_t Count>
double Convert(const tagRow (&rows)[Count], TConversion tagRow::*direction, double value, EUnitsType type)
{
    for (const tagRow& row : rows) {
        if (row.type == type)
            return (row.*direction)(value);
    }
    return value;
}

} // namespace

double TUnits::NormaliseMetricValue(double value, EUnitsType type)
{
    return UnitSystem::IsMetric() ? Convert(MetricRows, &tagRow::in, value, type) : value;
}

double TUnits::DenormaliseMetricValue(double value, EUnitsType type)
{
    return UnitSystem::IsMetric() ? Convert(MetricRows, &tagRow::out, value, type) : value;
}

double TUnits::ConvertToMetric(double value, EUnitsType metricType)
{
    return Convert(ImperialRows, &tagRow::in, value, metricType);
}

double TUnits::ConvertToImperial(double value, EUnitsType metricType)
{
    return Convert(ImperialRows, &tagRow::out, value, metricType);
}
