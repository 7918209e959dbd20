// One text for each quantity. Most differ only in the unit; its row in the table names its imperial partner and the
// conversions.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/text/QuantityText.h"

namespace {

using namespace QuantityText;
using ShownUnits::InSystem;
using ShownUnits::InUnit;
using ShownUnits::PerArea;
using U = TUnits;

/// Feet and inches follow the number without a blank. No other text does that.
QString ShortDistance(float meters, EUnitsType unit, int precision, const U::tagThresholdSpec* spec)
{
    const double value = U::ConvertFromMeter(static_cast<double>(meters), unit);
    if (TUnitAbbreviations::UnitTypeRequiresSpacing(unit))
        return WithPrecision({value, unit}, precision, spec);
    const int asked = U::GetThresholdPrecision(static_cast<float>(value), spec, precision);
    return CloseWithDecimals({value, unit}, U::GetUnitPrecision(unit, asked));
}

/// Pounds per bushel are shown for the bushel of the measures in use. For the other bushel the value is shown as it is,
/// without a unit.
tagShown PerBushel(EUnitsType type, bool metric, bool isOfMeasures, double value)
{
    return metric || isOfMeasures ? InSystem(type, metric, value) : tagShown{value, UNITS_NONE};
}

bool IsFlowCalFactor(EUnitsType product)
{
    return product == UNITS_PULSES_PER_L || product == UNITS_PULSES_PER_ML || product == UNITS_PULSES_PER_M3 ||
           product == UNITS_PULSES_PER_T || product == UNITS_PULSES_PER_KG_N;
}

} // namespace

QString TUnits::GetAreaString(float hectares, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(PerArea(UNITS_HECTARES, static_cast<double>(hectares)), precision, spec);
}

QString TUnits::GetProductivityString(float hectaresPerHour, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(PerArea(UNITS_HECTARES_PER_HOUR, static_cast<double>(hectaresPerHour)), precision, spec);
}

QString TUnits::GetKiloseedsPerAreaString(double kiloseedsPerHectare, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(PerArea(UNITS_KSEEDS_PER_HA, kiloseedsPerHectare), precision, spec);
}

QString TUnits::GetTemperatureString(bool metric, double celsius, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_CELSIUS, metric, celsius), precision, spec);
}

QString TUnits::GetSpeedStringForMetersPerMinute(bool metric, float metersPerMinute, int precision,
                                                 const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_METERS_PER_MIN, metric, static_cast<double>(metersPerMinute)), precision, spec);
}

QString TUnits::GetVolumeStringInCubicMeterOrCubicFeet(bool metric, float liters, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_CUBIC_METERS, metric, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInTonnes(bool metric, float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_TONNES, metric, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInUSBushels(float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InUnit(UNITS_US_BUSHELS, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInUKBushels(float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InUnit(UNITS_UK_BUSHELS, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetFlowRateStringInCubicMetersPerMinute(bool metric, float litersPerMinute, int precision,
                                                        const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_M3_PER_MIN, metric, static_cast<double>(litersPerMinute)), precision, spec);
}

QString TUnits::GetFlowRateStringInTonnesPerMinute(bool metric, float litersPerMinute, int precision,
                                                   const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_T_PER_MIN, metric, static_cast<double>(litersPerMinute)), precision, spec);
}

QString TUnits::GetWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG, metric, static_cast<double>(kilograms)), precision, spec);
}

QString TUnits::GetNitrogenWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG_N, metric, static_cast<double>(kilograms)), precision, spec);
}

QString TUnits::GetDischargeRateString(bool metric, float kilogramsPerMinute, int precision,
                                       const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG_PER_MIN, metric, static_cast<double>(kilogramsPerMinute)), precision, spec);
}

QString TUnits::GetWeightPerRevolutionString(bool metric, double kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG_PER_REV, metric, kilograms), precision, spec);
}

QString TUnits::GetVolumePerRevolutionString(bool metric, bool us, double liters, int precision,
                                             const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_L_PER_REV, metric, us, liters), precision, spec);
}

QString TUnits::GetDensityString(bool metric, bool us, double kilogramsPerLiter, int precision,
                                 const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG_PER_L, metric, us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerCubicMeter(bool metric, double kilogramsPerLiter, int precision,
                                                         const tagThresholdSpec* spec)
{
    return WithPrecision(InSystem(UNITS_KG_PER_M3, metric, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerUSBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(PerBushel(UNITS_KG_PER_US_BU, metric, us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerUKBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(PerBushel(UNITS_KG_PER_UK_BU, metric, !us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetSpeedString(bool metric, float metersPerSecond, bool)
{
    return WithPrecision(InSystem(UNITS_KPH, metric, static_cast<double>(metersPerSecond)), DefaultPrecision, nullptr);
}

QString TUnits::GetPulsesPerSpeedUnitString(bool metric, float hertzPerKph)
{
    return WithPrecision(InSystem(UNITS_HZ_PER_KPH, metric, static_cast<double>(hertzPerKph)), DefaultPrecision,
                         nullptr);
}

QString TUnits::GetWheelCalFactorString(bool metric, float metersPerPulse)
{
    return WithPrecision(InSystem(UNITS_M_PER_PULSE, metric, static_cast<double>(metersPerPulse)), DefaultPrecision,
                         nullptr);
}

QString TUnits::GetFlowCalFactorString(bool metric, bool us, float pulses, EUnitsType product)
{
    const double value = static_cast<double>(pulses);
    return WithPrecision(IsFlowCalFactor(product) ? InSystem(product, metric, us, value) : tagShown{value, UNITS_NONE},
                         DefaultPrecision, nullptr);
}

QString TUnits::GetDistanceString(float meters, bool small, int precision, const tagThresholdSpec* spec)
{
    return ShortDistance(meters, GetShortDistanceUnits(small, UNITS_METERS), precision, spec);
}

QString TUnits::GetDistanceStringInMetricOrImperialFeet(float meters, int precision, const tagThresholdSpec* spec)
{
    return ShortDistance(meters, GetShortDistanceUnits(false, UNITS_FEET), precision, spec);
}

QString TUnits::GetVolumeString(bool metric, bool us, float liters, bool small, EUnitsType product, int precision,
                                const tagThresholdSpec* spec)
{
    const double value = static_cast<double>(liters);
    if (small)
        return WithPrecision(InSystem(UNITS_MILLILITERS, metric, us, value), precision, spec);
    switch (product) {
    case UNITS_LITERS:
        return WithPrecision(InSystem(UNITS_LITERS, metric, us, value), precision, spec);
    case UNITS_CUBIC_METERS: // these ignore the threshold rule, as they always have
        return GetVolumeStringInCubicMeterOrCubicFeet(metric, liters, precision, nullptr);
    case UNITS_US_BUSHELS:
        return GetVolumeStringInUSBushels(liters, precision, nullptr);
    case UNITS_UK_BUSHELS:
        return GetVolumeStringInUKBushels(liters, precision, nullptr);
    case UNITS_TONNES:
        return GetVolumeStringInTonnes(metric, liters, precision, nullptr);
    default:
        return WithPrecision({value, UNITS_NONE}, precision, spec);
    }
}

QString TUnits::GetFlowRateString(bool metric, bool us, float litersPerMinute, bool small, EUnitsType product,
                                  int precision, const tagThresholdSpec* spec)
{
    const double value = static_cast<double>(litersPerMinute);
    if (small)
        return WithPrecision(InSystem(UNITS_ML_PER_MIN, metric, us, value), precision, spec);
    switch (product) {
    case UNITS_L_PER_MIN:
        return WithPrecision(InSystem(UNITS_L_PER_MIN, metric, us, value), precision, spec);
    case UNITS_KG_N_PER_MIN:
        return WithPrecision(InSystem(UNITS_KG_N_PER_MIN, metric, value), precision, spec);
    case UNITS_M3_PER_MIN: // these show their default precision, as they always have
        return GetFlowRateStringInCubicMetersPerMinute(metric, litersPerMinute, DefaultPrecision, nullptr);
    case UNITS_T_PER_MIN:
        return GetFlowRateStringInTonnesPerMinute(metric, litersPerMinute, DefaultPrecision, nullptr);
    default:
        return WithPrecision({value, UNITS_NONE}, precision, spec);
    }
}

QString TUnits::GetPressureString(float kilopascals)
{
    const double oneDecimalBelow = 100;
    const double value = static_cast<double>(kilopascals);
    const EUnitsType unit = DetermineActualUnitFromUnitsType(UNITS_KPA);
    if (unit == UNITS_NONE)
        return WithDecimals({value, UNITS_NONE}, 0);
    const tagShown shown = InUnit(UNITS_KPA, unit, false, value);
    const bool showsDecimals = unit == UNITS_BAR || shown.value < oneDecimalBelow;
    return WithDecimals(shown, showsDecimals ? GetDefaultPrecision(unit) : 0);
}
