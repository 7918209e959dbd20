// One string for each quantity that the display shows. Most differ only in the units they choose between and in the
// ways there; each is then one row.

#include "units/QuantityText.h"
#include "units/Routes.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"

namespace {

using namespace QuantityText;
using Routes::By;
using Routes::Unchanged;
using U = TUnits;

/// What is shown in hectares and in acres; any other area leaves the value, without a unit.
struct tagAreas
{
    tagWay hectares;
    tagWay acres;

    tagShown operator()(double value) const
    {
        const int area = UnitSystem::Area();
        if (area == UnitSystem::Hectares)
            return hectares(value);
        return area == UnitSystem::Acres ? acres(value) : tagShown{value, UNITS_NONE};
    }
};

// clang-format off
constexpr tagAreas Area         = {{UNITS_HECTARES,          Unchanged}, {UNITS_ACRES,          By<U::ConvertHectaresToAcres>}};
constexpr tagAreas Productivity = {{UNITS_HECTARES_PER_HOUR, Unchanged}, {UNITS_ACRES_PER_HOUR, By<U::ConvertHectaresToAcres>}};
constexpr tagAreas Kiloseeds    = {{UNITS_KSEEDS_PER_HA,     Unchanged}, {UNITS_KSEEDS_PER_AC,  By<U::ConvertPerHectareToPerAcre>}};

constexpr tagSystems Temperature     = {{UNITS_CELSIUS,        Unchanged}, {UNITS_FAHRENHEIT,   By<U::ConvertCelsiusToFahrenheit>}};
constexpr tagSystems SpeedPerMinute  = {{UNITS_METERS_PER_MIN, Unchanged}, {UNITS_FEET_PER_MIN, By<U::ConvertMetersToFeet>}};
constexpr tagSystems Weight          = {{UNITS_KG,             Unchanged}, {UNITS_LB,           By<U::ConvertKilogramsToPounds>}};
constexpr tagSystems NitrogenWeight  = {{UNITS_KG_N,           Unchanged}, {UNITS_LB_N,         By<U::ConvertKilogramsToPounds>}};
constexpr tagSystems DischargeRate   = {{UNITS_KG_PER_MIN,     Unchanged}, {UNITS_LB_PER_MIN,   By<U::ConvertKilogramsToPounds>}};
constexpr tagSystems WeightPerRev    = {{UNITS_KG_PER_REV,     Unchanged}, {UNITS_LB_PER_REV,   By<U::ConvertKilogramsToPounds>}};
constexpr tagSystems NitrogenFlow    = {{UNITS_KG_N_PER_MIN,   Unchanged}, {UNITS_LB_N_PER_MIN, By<U::ConvertKilogramsToPounds>}};
constexpr tagSystems WheelCalFactor  = {{UNITS_M_PER_PULSE,    Unchanged}, {UNITS_FT_PER_PULSE, By<U::ConvertMetersToFeet>}};
constexpr tagSystems PulsesPerSpeed  = {{UNITS_HZ_PER_KPH,     Unchanged}, {UNITS_HZ_PER_MPH,   By<U::ConvertPulsesPerKPHToPulsesPerMPH>}};

constexpr tagSystems Speed           = {{UNITS_KPH,          By<U::ConvertMetersPerSecondToKilometersPerHour>}, {UNITS_MPH,         By<U::ConvertMetersPerSecondToMilesPerHour>}};
constexpr tagSystems CubicVolume     = {{UNITS_CUBIC_METERS, By<U::ConvertLitersToCubicMeters>},                {UNITS_CUBIC_FEET,  By<U::ConvertLitersToCubicFeet>}};
constexpr tagSystems CubicFlow       = {{UNITS_M3_PER_MIN,   By<U::ConvertLitersToCubicMeters>},                {UNITS_FT3_PER_MIN, By<U::ConvertLitersToCubicFeet>}};
constexpr tagSystems VolumeInTonnes  = {{UNITS_TONNES,       By<U::ConvertLitersToTonnes>},                     {UNITS_LB,          By<U::ConvertLitersToTonnes, U::ConvertTonnesToPounds>}};
constexpr tagSystems FlowInTonnes    = {{UNITS_T_PER_MIN,    By<U::ConvertLitersToTonnes>},                     {UNITS_LB_PER_MIN,  By<U::ConvertLitersToTonnes, U::ConvertTonnesToPounds>}};
constexpr tagSystems DensityPerCubic = {{UNITS_KG_PER_M3,    By<U::ConvertKilogramsPerLiterToKilogramsPerCubicMeter>}, {UNITS_LB_PER_FT3, By<U::ConvertKilogramsPerLiterToPoundsPerCubicFoot>}};

constexpr tagWay USBushels = {UNITS_US_BUSHELS, By<U::ConvertLitersToUSBushels>};
constexpr tagWay UKBushels = {UNITS_UK_BUSHELS, By<U::ConvertLitersToUKBushels>};

constexpr tagMeasures Volume       = {{UNITS_LITERS,    Unchanged}, {UNITS_GALLONS,     By<U::ConvertLitersToUSGallons>}, {UNITS_GALLONS,     By<U::ConvertLitersToEnglishGallons>}};
constexpr tagMeasures Flow         = {{UNITS_L_PER_MIN, Unchanged}, {UNITS_GAL_PER_MIN, By<U::ConvertLitersToUSGallons>}, {UNITS_GAL_PER_MIN, By<U::ConvertLitersToEnglishGallons>}};
constexpr tagMeasures VolumePerRev = {{UNITS_L_PER_REV, Unchanged}, {UNITS_GAL_PER_REV, By<U::ConvertLitersToUSGallons>}, {UNITS_GAL_PER_REV, By<U::ConvertLitersToEnglishGallons>}};
constexpr tagMeasures SmallVolume  = {{UNITS_MILLILITERS, By<U::ConvertLitersToMilliLiters>}, {UNITS_FLUID_OUNCES, By<U::ConvertLitersToUSFluidOunces>}, {UNITS_FLUID_OUNCES, By<U::ConvertLitersToEnglishFluidOunces>}};
constexpr tagMeasures SmallFlow    = {{UNITS_ML_PER_MIN,  By<U::ConvertLitersToMilliLiters>}, {UNITS_FLOZ_PER_MIN, By<U::ConvertLitersToUSFluidOunces>}, {UNITS_FLOZ_PER_MIN, By<U::ConvertLitersToEnglishFluidOunces>}};
constexpr tagMeasures Density      = {{UNITS_KG_PER_L, Unchanged}, {UNITS_LB_PER_GAL, By<U::ConvertKilogramsPerLiterToPoundsPerUSGallon>}, {UNITS_LB_PER_GAL, By<U::ConvertKilogramsPerLiterToPoundsPerGallon>}};

// Pounds per bushel exist for the bushel of the measures in use only.
constexpr tagMeasures DensityPerUSBushel = {{UNITS_KG_PER_US_BU, By<U::ConvertKilogramsPerLiterToKilogramsPerUSBushel>}, {UNITS_LB_PER_US_BU, By<U::ConvertKilogramsPerLiterToPoundsPerUSBushel>}, {UNITS_NONE, Unchanged}};
constexpr tagMeasures DensityPerUKBushel = {{UNITS_KG_PER_UK_BU, By<U::ConvertKilogramsPerLiterToKilogramsPerUKBushel>}, {UNITS_NONE, Unchanged}, {UNITS_LB_PER_UK_BU, By<U::ConvertKilogramsPerLiterToPoundsPerUKBushel>}};

/// Calibration factors by the product's unit; every product else is shown as it is, without a unit.
struct tagFlowCalRow
{
    EUnitsType product;
    tagMeasures shown;
};

constexpr tagFlowCalRow FlowCalFactors[] = {
    {UNITS_PULSES_PER_L,    {{UNITS_PULSES_PER_L,    Unchanged},                                         {UNITS_PULSES_PER_GAL,  By<U::ConvertPulsesPerLiterToPulsesPerUSGallon>}, {UNITS_PULSES_PER_GAL,  By<U::ConvertPulsesPerLiterToPulsesPerEnglishGallon>}}},
    {UNITS_PULSES_PER_ML,   {{UNITS_PULSES_PER_ML,   By<U::ConvertPerLiterToPerMilliLiter>},             {UNITS_PULSES_PER_FLOZ, By<U::ConvertPerLiterToPerUSFluidOunce>},         {UNITS_PULSES_PER_FLOZ, By<U::ConvertPerLiterToPerEnglishFluidOunce>}}},
    {UNITS_PULSES_PER_M3,   {{UNITS_PULSES_PER_M3,   By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter>}, {UNITS_PULSES_PER_FT3,  By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet>}, {UNITS_PULSES_PER_FT3, By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet>}}},
    {UNITS_PULSES_PER_T,    {{UNITS_PULSES_PER_T,    By<U::ConvertPulsesPerLiterToPulsesPerTonne>},      {UNITS_PULSES_PER_LB,   By<U::ConvertPulsesPerLiterToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerPound>},                {UNITS_PULSES_PER_LB,  By<U::ConvertPulsesPerLiterToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerPound>}}},
    {UNITS_PULSES_PER_KG_N, {{UNITS_PULSES_PER_KG_N, Unchanged},                                         {UNITS_PULSES_PER_LB_N, By<U::ConvertPoundsToKilograms>},                 {UNITS_PULSES_PER_LB_N, By<U::ConvertPoundsToKilograms>}}},
};

constexpr tagWay Pressures[] = {
    {UNITS_KPA, Unchanged},
    {UNITS_PSI, By<U::ConvertKilopascalsToPoundsPerSquareInch>},
    {UNITS_BAR, By<U::ConvertKilopascalsToBar>},
};
// clang-format on

const int Default = -1; // precision

/// The short distance in the unit chosen for it; the one quantity whose unit may stand close.
QString ShortDistance(float meters, EUnitsType unit, int precision, const U::tagThresholdSpec* spec)
{
    const double value = U::ConvertFromMeter(static_cast<double>(meters), unit);
    if (TUnitAbbreviations::UnitTypeRequiresSpacing(unit))
        return WithPrecision({value, unit}, precision, spec);
    const int asked = U::GetThresholdPrecision(static_cast<float>(value), spec, precision);
    return CloseWithDecimals({value, unit}, U::GetUnitPrecision(unit, asked));
}

} // namespace

QString TUnits::GetAreaString(float hectares, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(Area(static_cast<double>(hectares)), precision, spec);
}

QString TUnits::GetProductivityString(float hectaresPerHour, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(Productivity(static_cast<double>(hectaresPerHour)), precision, spec);
}

QString TUnits::GetKiloseedsPerAreaString(double kiloseedsPerHectare, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(Kiloseeds(kiloseedsPerHectare), precision, spec);
}

QString TUnits::GetTemperatureString(bool metric, double celsius, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(Temperature(metric, celsius), precision, spec);
}

QString TUnits::GetSpeedStringForMetersPerMinute(bool metric, float metersPerMinute, int precision,
                                                 const tagThresholdSpec* spec)
{
    return WithPrecision(SpeedPerMinute(metric, static_cast<double>(metersPerMinute)), precision, spec);
}

QString TUnits::GetVolumeStringInCubicMeterOrCubicFeet(bool metric, float liters, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(CubicVolume(metric, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInTonnes(bool metric, float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(VolumeInTonnes(metric, static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInUSBushels(float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(USBushels(static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetVolumeStringInUKBushels(float liters, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(UKBushels(static_cast<double>(liters)), precision, spec);
}

QString TUnits::GetFlowRateStringInCubicMetersPerMinute(bool metric, float litersPerMinute, int precision,
                                                        const tagThresholdSpec* spec)
{
    return WithPrecision(CubicFlow(metric, static_cast<double>(litersPerMinute)), precision, spec);
}

QString TUnits::GetFlowRateStringInTonnesPerMinute(bool metric, float litersPerMinute, int precision,
                                                   const tagThresholdSpec* spec)
{
    return WithPrecision(FlowInTonnes(metric, static_cast<double>(litersPerMinute)), precision, spec);
}

QString TUnits::GetWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(Weight(metric, static_cast<double>(kilograms)), precision, spec);
}

QString TUnits::GetNitrogenWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(NitrogenWeight(metric, static_cast<double>(kilograms)), precision, spec);
}

QString TUnits::GetDischargeRateString(bool metric, float kilogramsPerMinute, int precision,
                                       const tagThresholdSpec* spec)
{
    return WithPrecision(DischargeRate(metric, static_cast<double>(kilogramsPerMinute)), precision, spec);
}

QString TUnits::GetWeightPerRevolutionString(bool metric, double kilograms, int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(WeightPerRev(metric, kilograms), precision, spec);
}

QString TUnits::GetVolumePerRevolutionString(bool metric, bool us, double liters, int precision,
                                             const tagThresholdSpec* spec)
{
    return WithPrecision(VolumePerRev(metric, us, liters), precision, spec);
}

QString TUnits::GetDensityString(bool metric, bool us, double kilogramsPerLiter, int precision,
                                 const tagThresholdSpec* spec)
{
    return WithPrecision(Density(metric, us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerCubicMeter(bool metric, double kilogramsPerLiter, int precision,
                                                         const tagThresholdSpec* spec)
{
    return WithPrecision(DensityPerCubic(metric, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerUSBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(DensityPerUSBushel(metric, us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetDensityStringInKilogramsPerUKBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                       const tagThresholdSpec* spec)
{
    return WithPrecision(DensityPerUKBushel(metric, us, kilogramsPerLiter), precision, spec);
}

QString TUnits::GetSpeedString(bool metric, float metersPerSecond, bool)
{
    return WithPrecision(Speed(metric, static_cast<double>(metersPerSecond)), Default, nullptr);
}

QString TUnits::GetPulsesPerSpeedUnitString(bool metric, float hertzPerKph)
{
    return WithPrecision(PulsesPerSpeed(metric, static_cast<double>(hertzPerKph)), Default, nullptr);
}

QString TUnits::GetWheelCalFactorString(bool metric, float metersPerPulse)
{
    return WithPrecision(WheelCalFactor(metric, static_cast<double>(metersPerPulse)), Default, nullptr);
}

QString TUnits::GetFlowCalFactorString(bool metric, bool us, float pulses, EUnitsType product)
{
    const double value = static_cast<double>(pulses);
    for (const tagFlowCalRow& row : FlowCalFactors) {
        if (row.product == product)
            return WithPrecision(row.shown(metric, us, value), Default, nullptr);
    }
    return WithPrecision({value, UNITS_NONE}, Default, nullptr);
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
        return WithPrecision(SmallVolume(metric, us, value), precision, spec);
    switch (product) {
    case UNITS_LITERS:
        return WithPrecision(Volume(metric, us, value), precision, spec);
    case UNITS_CUBIC_METERS: // these have never followed a threshold rule from here
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
        return WithPrecision(SmallFlow(metric, us, value), precision, spec);
    switch (product) {
    case UNITS_L_PER_MIN:
        return WithPrecision(Flow(metric, us, value), precision, spec);
    case UNITS_KG_N_PER_MIN:
        return WithPrecision(NitrogenFlow(metric, value), precision, spec);
    case UNITS_M3_PER_MIN: // from here these two show their default precision, whatever was asked for
        return GetFlowRateStringInCubicMetersPerMinute(metric, litersPerMinute, Default, nullptr);
    case UNITS_T_PER_MIN:
        return GetFlowRateStringInTonnesPerMinute(metric, litersPerMinute, Default, nullptr);
    default:
        return WithPrecision({value, UNITS_NONE}, precision, spec);
    }
}

QString TUnits::GetPressureString(float kilopascals)
{
    const double oneDecimalBelow = 100;
    const double value = static_cast<double>(kilopascals);
    const int choice = Parameters::ReadInt(PARAM_PRESSURE_UNIT);
    if (choice < 0 || choice >= static_cast<int>(sizeof(Pressures) / sizeof(Pressures[0])))
        return WithDecimals({value, UNITS_NONE}, 0);
    const tagShown shown = Pressures[choice](value);
    const bool showsDecimals = shown.unit == UNITS_BAR || shown.value < oneDecimalBelow;
    return WithDecimals(shown, showsDecimals ? GetDefaultPrecision(shown.unit) : 0);
}
