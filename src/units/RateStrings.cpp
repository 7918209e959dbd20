// Application rates: amounts per area, or per travelled distance.

#include "units/DecimalPoint.h"
#include "units/QuantityText.h"
#include "units/Routes.h"
#include "units/TFixedNumber.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"

#include <cmath>

namespace {

using namespace QuantityText;
using Routes::By;
using Routes::Unchanged;
using U = TUnits;

/// What a rate is shown in, by the area in use.
struct tagRate
{
    EUnitsType product;
    tagMeasures perHectare;
    tagMeasures perAcre;
};

/// For an area that is neither hectares nor acres the value stays, without a unit.
tagShown Show(const tagRate& rate, bool metric, bool us, double value)
{
    const int area = UnitSystem::Area();
    if (area == UnitSystem::Hectares)
        return rate.perHectare(metric, us, value);
    return area == UnitSystem::Acres ? rate.perAcre(metric, us, value) : tagShown{value, UNITS_NONE};
}

// US gallons and fluid ounces are shown with the plain abbreviations: the operator has chosen the measures, and the
// "(US)" would only take room.
// clang-format off

/// A way of the imperial system, whatever the gallon.
constexpr tagMeasures Both(tagWay metric, tagWay imperial) { return {metric, imperial, imperial}; }

constexpr tagRate SmallVolumeRate = {
    UNITS_ML_PER_HA,
    {{UNITS_ML_PER_HA,   By<U::ConvertLitersToMilliLiters>},
     {UNITS_FLOZ_PER_HA, By<U::ConvertLitersToUSFluidOunces>},
     {UNITS_FLOZ_PER_HA, By<U::ConvertLitersToEnglishFluidOunces>}},
    {{UNITS_ML_PER_AC,   By<U::ConvertLitersPerHectareToMilliLitersPerAcre>},
     {UNITS_FLOZ_PER_AC, By<U::ConvertLitersPerHectareToUSFluidOuncesPerAcre>},
     {UNITS_FLOZ_PER_AC, By<U::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre>}},
};

constexpr tagRate LiquidRate = {
    UNITS_L_PER_HA,
    {{UNITS_L_PER_HA,   Unchanged},
     {UNITS_GAL_PER_HA, By<U::ConvertLitersToUSGallons>},
     {UNITS_GAL_PER_HA, By<U::ConvertLitersToEnglishGallons>}},
    {{UNITS_L_PER_AC,   By<U::ConvertPerHectareToPerAcre>},
     {UNITS_GAL_PER_AC, By<U::ConvertLitersPerHectareToUSGallonsPerAcre>},
     {UNITS_GAL_PER_AC, By<U::ConvertLitersPerHectareToEnglishGallonsPerAcre>}},
};

constexpr tagMeasures LiquidRatePerTravel = {
    {UNITS_L_PER_100M,    By<U::ConvertLitersPerHectareToLitersPer100Meters>},
    {UNITS_GAL_PER_100YD, By<U::ConvertLitersPerHectareToUSGallonsPer100Yards>},
    {UNITS_GAL_PER_100YD, By<U::ConvertLitersPerHectareToEnglishGallonsPer100Yards>},
};

/// The rates of a product shown by volume; nitrogen takes this way too. Per acre, its pounds go by way of kilograms per
/// acre.
constexpr tagRate VolumeRates[] = {
    {UNITS_KG_N_PER_HA,
     Both({UNITS_KG_N_PER_HA, Unchanged},                         {UNITS_LB_N_PER_HA, By<U::ConvertKilogramsToPounds>}),
     Both({UNITS_KG_N_PER_AC, By<U::ConvertPerHectareToPerAcre>}, {UNITS_LB_N_PER_AC, By<U::ConvertPerHectareToPerAcre, U::ConvertKilogramsToPounds>})},
    {UNITS_M3_PER_HA,
     Both({UNITS_M3_PER_HA, By<U::ConvertLitersToCubicMeters>},                  {UNITS_FT3_PER_HA, By<U::ConvertLitersToCubicFeet>}),
     Both({UNITS_M3_PER_AC, By<U::ConvertLitersPerHectareToCubicMetersPerAcre>}, {UNITS_FT3_PER_AC, By<U::ConvertLitersPerHectareToCubicFeetPerAcre>})},
    {UNITS_T_PER_HA,
     Both({UNITS_T_PER_HA, By<U::ConvertLitersToTonnes>},                  {UNITS_LB_PER_HA, By<U::ConvertLitersToPounds>}),
     Both({UNITS_T_PER_AC, By<U::ConvertLitersPerHectareToTonnesPerAcre>}, {UNITS_LB_PER_AC, By<U::ConvertLitersPerHectareToPoundsPerAcre>})},
};

constexpr tagRate WeightRate = {
    UNITS_KG_PER_HA,
    Both({UNITS_KG_PER_HA, Unchanged},                         {UNITS_LB_PER_HA, By<U::ConvertKilogramsToPounds>}),
    Both({UNITS_KG_PER_AC, By<U::ConvertPerHectareToPerAcre>}, {UNITS_LB_PER_AC, By<U::ConvertKilogramsPerHectareToPoundsPerAcre>}),
};

constexpr tagRate NitrogenRate = {
    UNITS_KG_N_PER_HA,
    Both({UNITS_KG_N_PER_HA, Unchanged},                         {UNITS_LB_N_PER_HA, By<U::ConvertKilogramsToPounds>}),
    Both({UNITS_KG_N_PER_AC, By<U::ConvertPerHectareToPerAcre>}, {UNITS_LB_N_PER_AC, By<U::ConvertKilogramsPerHectareToPoundsPerAcre>}),
};
// clang-format on

tagShown LiquidRateShown(bool metric, bool us, double value)
{
    return UnitSystem::ShowsRatesPerTravel() ? LiquidRatePerTravel(metric, us, value)
                                             : Show(LiquidRate, metric, us, value);
}

tagShown VolumeRate(bool metric, bool us, double value, bool smallVolume, EUnitsType product)
{
    if (smallVolume)
        return Show(SmallVolumeRate, metric, us, value);
    const int area = UnitSystem::Area();
    if (area != UnitSystem::Hectares && area != UnitSystem::Acres)
        return {value, UNITS_NONE}; // rates per travelled distance included
    if (product == UNITS_L_PER_HA)
        return LiquidRateShown(metric, us, value);
    for (const tagRate& rate : VolumeRates) {
        if (rate.product == product)
            return Show(rate, metric, us, value);
    }
    return {value, UNITS_NONE};
}

/// A rate that cannot be shown per any area is shown as 0, so that nobody takes it for one that is applied.
tagShown OrZero(const tagShown& shown) { return shown.unit == UNITS_NONE ? tagShown{0.0, UNITS_NONE} : shown; }

QString Dynamic(const tagShown& shown, int (*precision)(float))
{
    return WithDecimals(shown, precision(static_cast<float>(shown.value)));
}

const double GreatestErrorShown = 999;

/// Decimals of a rate or an error in percent, by its magnitude.
int DecimalsByMagnitude(double value)
{
    const double magnitude = std::fabs(value);
    return magnitude < 100 ? 2 : magnitude < 1000 ? 1 : 0;
}

QString NumberOrDashes(double value)
{
    static const QString dashes = QLatin1String("----");
    return std::isfinite(value) ? TFixedNumber(value, DecimalsByMagnitude(value)).Text() : dashes;
}

QString ErrorText(double percent)
{
    static const QString above = QLatin1Char('>') + QString::number(GreatestErrorShown);
    static const QString below = QLatin1Char('<') + QString::number(-GreatestErrorShown);
    if (std::isfinite(percent) && percent > GreatestErrorShown)
        return above;
    if (std::isfinite(percent) && percent < -GreatestErrorShown)
        return below;
    return NumberOrDashes(percent);
}

QString WithRelativeError(const tagShown& rate, float percent)
{
    return DecimalPoint::Shown(NumberOrDashes(rate.value) % QLatin1Char(' ') %
                               TUnitAbbreviations::UnitAbbreviations[rate.unit] % QLatin1String(" (") %
                               ErrorText(static_cast<double>(percent)) % QLatin1String("%)"));
}

} // namespace

double TUnits::GetWeightPerAreaValue(EUnitsType& unit, bool metric, float kilogramsPerHectare)
{
    const tagShown shown = Show(WeightRate, metric, false, static_cast<double>(kilogramsPerHectare));
    unit = shown.unit;
    return shown.value;
}

double TUnits::GetVolumePerAreaValue(EUnitsType& unit, bool metric, bool us, float litersPerHectare, bool smallVolume,
                                     EUnitsType product)
{
    const tagShown shown = VolumeRate(metric, us, static_cast<double>(litersPerHectare), smallVolume, product);
    unit = shown.unit;
    return shown.value;
}

QString TUnits::GetVolumePerAreaString(bool metric, bool us, float litersPerHectare, bool small, EUnitsType product,
                                       int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(VolumeRate(metric, us, static_cast<double>(litersPerHectare), small, product), precision,
                         spec);
}

QString TUnits::GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(bool metric, float litersPerHectare,
                                                                        int precision, const tagThresholdSpec* spec)
{
    const tagShown shown = VolumeRate(metric, false, static_cast<double>(litersPerHectare), false, UNITS_M3_PER_HA);
    return WithPrecisionOf(UNITS_M3_PER_HA, shown, precision, spec);
}

QString TUnits::GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(bool metric, float litersPerHectare, int precision,
                                                                   const tagThresholdSpec* spec)
{
    const tagShown shown = VolumeRate(metric, false, static_cast<double>(litersPerHectare), false, UNITS_T_PER_HA);
    return WithPrecisionOf(UNITS_T_PER_HA, shown, precision, spec);
}

QString TUnits::GetWeightPerAreaString(bool metric, float kilogramsPerHectare, int precision,
                                       const tagThresholdSpec* spec)
{
    const tagShown shown = Show(WeightRate, metric, false, static_cast<double>(kilogramsPerHectare));
    return WithPrecisionOf(UNITS_KG_PER_HA, shown, precision, spec);
}

QString TUnits::GetWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare)
{
    return Dynamic(OrZero(Show(WeightRate, UnitSystem::IsMetric(), false, kilogramsPerHectare)),
                   CalculateGranularRateDynamicPrecision);
}

QString TUnits::GetNitrogenWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare)
{
    return Dynamic(OrZero(Show(NitrogenRate, UnitSystem::IsMetric(), false, kilogramsPerHectare)),
                   CalculateNH3RateDynamicPrecision);
}

QString TUnits::GetSprayerRequestedRateString(double litersPerHectare)
{
    const bool metric = UnitSystem::IsMetric();
    const bool us = UnitSystem::IsUS();
    return Dynamic(OrZero(LiquidRateShown(metric, us, litersPerHectare)), CalculateLiquidRateDynamicPrecision);
}

QString TUnits::GetDischargeRateAndRelativeErrorString(bool metric, bool perArea, float rate,
                                                       float relativeErrorPercent)
{
    const double value = static_cast<double>(rate);
    return WithRelativeError(perArea ? Show(WeightRate, metric, false, value) : tagShown{value, UNITS_NONE},
                             relativeErrorPercent);
}

QString TUnits::GetFlowRateAndRelativeErrorString(bool metric, bool us, bool smallVolume, float rate,
                                                  float relativeErrorPercent, bool, EUnitsType product)
{
    return WithRelativeError(VolumeRate(metric, us, static_cast<double>(rate), smallVolume, product),
                             relativeErrorPercent);
}
